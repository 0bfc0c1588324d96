// What the item dispatch serves for an item: summary, capabilities, and the
// structured decode and encode. Shared by the category tests.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kovrel/datarecord.h"
#include "support/record_walk.h"

namespace kovrel_test {

constexpr uint32_t kShown = AST_DATAITEM_CAP_SUMMARY | AST_DATAITEM_CAP_DETAIL;
constexpr uint32_t kCodec = AST_DATAITEM_CAP_DECODE | AST_DATAITEM_CAP_ENCODE;
constexpr uint32_t kDecodeSummary = AST_DATAITEM_CAP_DECODE | AST_DATAITEM_CAP_SUMMARY;

// One item of a decoded record: its summary, capabilities and the size of
// its decoded structure (0: no structured decode). Storage one octet short
// is refused, the exact size decodes, and an encodable item is written back
// as the octets it came from.
struct Served {
    AstItemId id;
    const char *summary;
    uint32_t caps;
    size_t storage;
};

// Expects the record's items, in order, to be served as `cases` say.
void expect_served(const AstDataRecord &r, const std::vector<Served> &cases);

// Scans o as item id and expects the summary (not looked at when text is
// null, nor then the summary capability) and the capabilities; a row that
// can encode must write o back from what its decode_ex gives.
void expect_row(AstItemId id, const Octets &o, const char *text, uint32_t caps);

}  // namespace kovrel_test
