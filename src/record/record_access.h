// What every category's record accessors share: a result cleared to all
// zeros, the first item of the record with an identifier, and that item
// decoded into the result.
#pragma once

#include <cstring>
#include <type_traits>

#include "kovrel/datarecord.h"

namespace kovrel::access {

// Zeroes padding too: callers may compare results octet by octet.
template <typename T>
void clear(T *out) {
    std::memset(static_cast<void *>(out), 0, sizeof *out);
}

// The first item of a valid record with identifier id, nullptr when none.
inline const AstDataItem *first_item(const AstDataRecord *record, AstItemId id) {
    if (!record || record->valid != 1) return nullptr;
    const uint64_t count =
        record->item_count < AST_DATARECORD_MAX_ITEMS ? record->item_count : AST_DATARECORD_MAX_ITEMS;
    for (uint64_t i = 0; i < count; ++i)
        if (record->items[i].id == id) return &record->items[i];
    return nullptr;
}

// Decodes the first item id of the record into *out with an item decoder
// (filling a structure or returning it); false, *out zero, when there is
// none or it does not decode.
template <typename T, typename Decode>
bool decode_first(T *out, const AstDataRecord *record, AstItemId id, Decode decode) {
    clear(out);
    const AstDataItem *item = first_item(record, id);
    if (!item) return false;
    if constexpr (std::is_invocable_r_v<T, Decode, const AstDataItem *>)
        *out = decode(item);
    else
        decode(out, item);
    if (out->valid == 1) return true;
    clear(out);
    return false;
}

// The same through the item's structured decode (a category's own items).
template <typename T>
bool decode_first(T *out, const AstDataRecord *record, AstItemId id) {
    clear(out);
    const AstDataItem *item = first_item(record, id);
    if (!item) return false;
    AstDataItemValue v;
    ast_dataitem_decode(&v, out, sizeof *out, item);
    if (v.valid == 1 && out->valid == 1) return true;
    clear(out);
    return false;
}

}  // namespace kovrel::access
