// The leaves of an item's field walk as (path, value) pairs, the paths as
// ast_dataitem_fields_set takes them ("sac", "adsb.ep", "vectors[1].x",
// "devices[0]"), and the round trip through them: a fresh structure set
// leaf by leaf, then encoded.
#pragma once

#include <string>
#include <vector>

#include "kovrel/fields.h"
#include "support/record_walk.h"

namespace kovrel_test {

struct FieldLeaf {
    std::string path;
    AstField value;
    std::string text;  // value.text points here once set_leaves runs
};

// The leaves of the item span; octet fields are left out (they are not set
// by name). Empty when the span does not walk.
std::vector<FieldLeaf> field_leaves(const AstDataItem &item);

// Initialises a structure of the item's identifier, sets every leaf of the
// span into it, and encodes it: the octets written, or an empty list when a
// leaf is refused or the encoder fails. `failed` names the first refused
// path.
Octets encode_through_fields(const AstDataItem &item, std::string *failed = nullptr);

}  // namespace kovrel_test
