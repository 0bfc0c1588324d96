// CAT001 items made of FX-extended octets: each octet carries seven bits
// (bits 8-2) and the FX bit that announces the next one.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/dataitem.h"

namespace kovrel::cat001 {

// The seven-bit values of a span of 1 to max octets into values[]; the
// count, or 0 when the span cannot be read or is longer than max. The
// span's length, not the FX bits, decides how many octets there are.
inline uint32_t read_chain(uint32_t *values, size_t max, const AstDataItem *item) {
    if (!item || item->valid != 1 || !item->data || item->length < 1 || item->length > max) return 0;
    for (uint64_t i = 0; i < item->length; ++i) values[i] = item->data[i] >> 1;
    return static_cast<uint32_t>(item->length);
}

// Writes count seven-bit values as an FX chain; false, nothing written, when
// the count is 0 or above max, a value does not fit seven bits or the buffer
// is short.
inline bool write_chain(uint8_t *buffer, size_t size, const uint32_t *values, uint32_t count, size_t max) {
    if (count < 1 || count > max || size < count) return false;
    for (uint32_t i = 0; i < count; ++i)
        if (values[i] > 0x7F) return false;
    for (uint32_t i = 0; i < count; ++i)
        buffer[i] = static_cast<uint8_t>((values[i] << 1) | (i + 1 < count ? 1u : 0u));
    return true;
}

}  // namespace kovrel::cat001
