// Test helpers over wire octets: item sizes, FX chains, and the items a
// record decodes into.
#pragma once

#include <cstdint>
#include <vector>

#include "kovrel/datarecord.h"

namespace kovrel_test {

using Octets = std::vector<uint8_t>;

struct Scanned {
    AstItemId id;
    uint64_t length;
    bool operator==(const Scanned &o) const { return id == o.id && length == o.length; }
};

// Decodes one record of `category` with `uap` and lists its items (those
// found before a failure too); `consumed` is the record length when the
// record is valid, 0 otherwise.
std::vector<Scanned> walk(const AstUap &uap, uint32_t category, const Octets &record, size_t *consumed);

// The size rule's answer for id over all of o.
// The span of o scanned as item id.
inline AstDataItem scanned(AstItemId id, const Octets &o) {
    AstDataItem item;
    ast_dataitem_scan(&item, o.data(), o.size(), id);
    return item;
}

inline uint64_t size_of(AstItemId id, const Octets &o) { return ast_dataitem_get_size(o.data(), o.size(), id); }

// `extended` octets with the FX bit set followed by one that ends the chain.
inline Octets fx_chain(size_t extended) {
    Octets o(extended, 0x01);
    o.push_back(0x00);
    return o;
}

}  // namespace kovrel_test

namespace kovrel_test {

// Scans items[0], items[1], ... back to back as the items of FRN 1, 2, ...
// of `category` in the standard profile, and expects each to be delimited
// at exactly its length (an empty entry stands for a spare FRN).
void expect_frn_items(uint32_t category, const std::vector<Octets> &items);

}  // namespace kovrel_test
