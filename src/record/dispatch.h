// Row look-ups of the generic item operations (dispatch.cpp).
#pragma once

#include <array>

#include "record/item_table.h"

namespace kovrel {

// Category number (one octet on the wire) to its table, nullptr for a
// category the library does not know.
extern const std::array<const CategoryItems *, 256> kCategoryIndex;

// Reports an identifier no category knows (other than 0) at CRITICAL as
// "Unsupported dataitem I048/777".
void report_unsupported_item(AstItemId id);

// The row of an identifier, reported when there is none: two loads on the
// hot path of every generic item operation.
inline const ItemRow *find_item_row_reported(AstItemId id) {
    const uint32_t category = id / 1000;
    const CategoryItems *t = category < kCategoryIndex.size() ? kCategoryIndex[category] : nullptr;
    const ItemRow *row = t ? t->find(id % 1000) : nullptr;
    if (!row) report_unsupported_item(id);
    return row;
}

}  // namespace kovrel
