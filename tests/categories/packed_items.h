// Test helpers for the items of CAT008, CAT015, CAT016 and CAT019 read from
// wire octets: their summary, their named fields as JSON, and the two ways
// back to the wire (the structure the item dispatch decodes, and the named
// fields set one by one into a fresh structure).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "kovrel/kovrel.h"

namespace kovrel_test {

using Wire = std::vector<uint8_t>;

// An item of the wire octets, its summary and its fields as JSON.
struct ItemCase {
    AstItemId id;
    Wire wire;
    const char *summary;
    const char *json;
};

std::string summary_of(AstItemId id, const Wire &wire);
std::string json_of(AstItemId id, const Wire &wire);
std::string detail_of(AstItemId id, const Wire &wire);
// Decoded by the item dispatch and encoded again; empty when either fails.
Wire through_structure(AstItemId id, const Wire &wire);
// Walked as named fields, set into a fresh structure and encoded; empty
// when a field is refused or the encoder fails. Array elements are set by
// their positions ("vectors[1].x").
Wire through_fields(AstItemId id, const Wire &wire);

// Every case: summary, JSON and, when `encodes`, both ways back to the wire.
void expect_items(const std::vector<ItemCase> &cases, bool encodes = true);

// One field set by name into the structure decoded from `before`, then
// encoded: the result of the set and the octets after it (`before` again
// when the set is refused).
struct SetCase {
    AstItemId id;
    Wire before;
    const char *path;
    AstField value;
    int result;
    Wire after;
};

AstField unsigned_value(uint64_t u);
AstField signed_value(int64_t i);
AstField real_value(double real);
AstField flag_value(bool set);

void expect_sets(const std::vector<SetCase> &cases);

// A repetitive item of `rep` elements: the count octet, then each element's
// octets made by `element(index)`.
Wire repeated(size_t rep, Wire (*element)(size_t index));

// A long list: its summary starts with `summary_start`, its JSON ends with
// `json_end` (the last element), and both ways back give the same octets.
struct LongCase {
    AstItemId id;
    Wire wire;
    const char *summary_start;
    const char *json_end;
};

void expect_long(const std::vector<LongCase> &cases);

}  // namespace kovrel_test
