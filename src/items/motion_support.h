// Shared pieces of the position, velocity and height items: the span check,
// the encode result, double-to-integer conversions that stay defined on
// hostile values, and the rows of their three-column detail tables.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/text.h"
#include "kovrel/dataitem.h"
#include "kovrel/html.h"

namespace kovrel::motion {

// True when the span can be read as an item of exactly n octets.
inline bool exact_span(const AstDataItem *item, uint64_t n) {
    return item && item->valid == 1 && item->data && item->length == n;
}

// The result span of an encoder: {buffer, n, 0, 1}, or {buffer, 0, 0, 0}.
inline void encode_result(AstDataItem *out, uint8_t *buffer, uint64_t n) {
    *out = AstDataItem{buffer, n, 0, static_cast<uint8_t>(n ? 1 : 0)};
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

// Opens a detail table with its header row.
inline void table_begin(TextWriter &w, const char *h1, const char *h2, const char *h3) {
    ast_html_gen_table_begin(w.end(), w.end_size());
    w.resync();
    ast_html_gen_table_row(w.end(), w.end_size(), 1, h1, h2, h3, AST_HTML_TABLE_END_OF_ROW);
    w.resync();
}

inline void table_row(TextWriter &w, const char *c1, const char *c2, const char *c3) {
    ast_html_gen_table_row(w.end(), w.end_size(), 0, c1, c2, c3, AST_HTML_TABLE_END_OF_ROW);
    w.resync();
}

inline void table_end(TextWriter &w) {
    ast_html_gen_table_end(w.end(), w.end_size());
    w.resync();
}

}  // namespace kovrel::motion
