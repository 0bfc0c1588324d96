// The structured decode and encode entry points of a dispatch row
// (decode_ex / encode_ex), written once for every item.
//
// Each item has a decoded structure T whose first field is its valid flag,
// a decoder and, when it can be written, an encoder:
//   decoder  void decode(T *out, const AstDataItem *item)   or
//            T decode(const AstDataItem *item)              (returned by value)
//   encoder  void encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in)
// KOVREL_DECODE_EX / KOVREL_ENCODE_EX define the exported per-item wrappers
// (ast_dataitem_048_010_decode_ex, ...) from them; a category folder puts
// the wrappers in its dispatch rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "kovrel/dataitem.h"

namespace kovrel {

// Decodes into caller storage. Storage that is missing or smaller than T,
// or an invalid item, gives {0, id, nullptr} and writes nothing; otherwise
// {T's valid flag, id, storage}.
template <typename T, auto Decode>
void decode_ex(AstDataItemValue *out, void *storage, size_t storage_size, const AstDataItem *item) {
    if (!out) return;
    *out = AstDataItemValue{0, item ? item->id : 0u, nullptr};
    if (!item || item->valid != 1 || !storage || storage_size < sizeof(T)) return;
    T *value = static_cast<T *>(storage);
    if constexpr (std::is_invocable_r_v<T, decltype(Decode), const AstDataItem *>) {
        *value = Decode(item);
    } else {
        Decode(value, item);
    }
    *out = AstDataItemValue{static_cast<uint8_t>(value->valid ? 1 : 0), item->id, storage};
}

// Writes the item from the structure an entry points at. The written span
// carries the entry's identifier, so record encoders can tell what they got.
template <typename T, auto Encode>
void encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItemValue *value) {
    if (!out) return;
    const AstItemId id = value ? value->id : 0u;
    *out = AstDataItem{buffer, 0, id, 0};
    if (!buffer || !value || !value->value) return;
    Encode(out, buffer, size, static_cast<const T *>(value->value));
    out->id = id;
}

}  // namespace kovrel

// Defines the exported ast_dataitem_<P>_decode_ex, P being category and item
// ("048_010"), from the item's structure T and decoder DECODE. Declare the
// same name in the category's public header.
#define KOVREL_DECODE_EX(P, T, DECODE)                                                                    \
    extern "C" KOVREL_API void ast_dataitem_##P##_decode_ex(AstDataItemValue *out, void *storage,          \
                                                            size_t storage_size, const AstDataItem *item) { \
        ::kovrel::decode_ex<T, DECODE>(out, storage, storage_size, item);                                 \
    }

// Defines the exported ast_dataitem_<P>_encode_ex from T and ENCODE.
#define KOVREL_ENCODE_EX(P, T, ENCODE)                                                                    \
    extern "C" KOVREL_API void ast_dataitem_##P##_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, \
                                                            const AstDataItemValue *value) {              \
        ::kovrel::encode_ex<T, ENCODE>(out, buffer, size, value);                                         \
    }
