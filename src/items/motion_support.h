// What the position, velocity and height items share: structures of two
// numbers, and double-to-integer conversions that stay defined on hostile
// values.
#pragma once

#include <cmath>
#include <cstdint>

#include "items/item_support.h"
#include "kovrel/codec.h"

namespace kovrel::items {

// A structure laid out {valid, raw, lsb, value, raw, lsb, value}: two raw
// numbers, each with its LSB and its value.
template <typename T>
T number_pair(uint32_t valid, int32_t a, double a_lsb, int32_t b, double b_lsb) {
    return T{valid, a, a_lsb, a * a_lsb, b, b_lsb, b * b_lsb};
}

// Decodes two two's complement fields of `octets` octets each, with one LSB.
// A missing, invalid or wrong-length span gives raw values 0.
template <typename T>
void decode_signed_pair(T *out, const AstDataItem *item, int octets, double lsb) {
    if (!out) return;
    *out = number_pair<T>(0, 0, lsb, 0, lsb);
    if (!span_ok(item, 2 * static_cast<uint64_t>(octets))) return;
    int32_t a = 0, b = 0;
    ast_twos_complement_decode(&a, item->data, octets);
    ast_twos_complement_decode(&b, item->data + octets, octets);
    *out = number_pair<T>(1, a, lsb, b, lsb);
}

// C truncation towards zero. A value with no 32-bit truncation (NaN,
// infinity, beyond the range) gives 0x80000000, what the processor's own
// conversion yields; its low bits are 0, so such a field is written as 0.
inline int32_t truncate_i32(double v) {
    if (std::isnan(v) || v >= 2147483648.0 || v <= -2147483649.0) return INT32_MIN;
    return static_cast<int32_t>(v);
}

// Rounds half away from zero, then converts as truncate_i32.
inline int32_t round_i32(double v) { return truncate_i32(std::round(v)); }

// Two's complement negation that leaves INT32_MIN as it is instead of
// overflowing.
inline int32_t negate_i32(int32_t v) { return static_cast<int32_t>(0u - static_cast<uint32_t>(v)); }

}  // namespace kovrel::items
