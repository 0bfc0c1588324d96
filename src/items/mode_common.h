// Pieces shared by the mode code and Mode S item operations: span checks,
// the encoder result, six-bit character strings and the rows of a
// "Bit, Item, Value" detail table.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <cstdio>

#include "core/text.h"
#include "kovrel/codec.h"
#include "kovrel/dataitem.h"
#include "kovrel/html.h"

namespace kovrel::mode {

// A span the item operations act on: valid and exactly `length` octets.
inline bool span_ok(const AstDataItem *item, uint64_t length) {
    return item && item->valid == 1 && item->data && item->length == length;
}

// Encoders first mark the result as failed; nothing is written until every
// check passed.
inline bool encode_start(AstDataItem *out, uint8_t *buffer, size_t size, size_t length) {
    if (!out) return false;
    *out = AstDataItem{buffer, 0, 0, 0};
    return buffer && size >= length;
}

inline void encode_done(AstDataItem *out, uint8_t *buffer, size_t length) {
    *out = AstDataItem{buffer, length, 0, 1};
}

// Eight six-bit characters from 6 octets, first character in the top bits.
// A code without a character gives NUL, which ends the text there.
inline void chars_decode(char out[9], const uint8_t *six) {
    uint64_t bits = 0;
    for (int i = 0; i < 6; ++i) bits = (bits << 8) | six[i];
    for (int i = 0; i < 8; ++i) out[i] = ast_icao_to_ansi(static_cast<int>((bits >> (42 - 6 * i)) & 0x3Fu));
    out[8] = '\0';
}

// The inverse: characters up to the first NUL (at most 8), spaces after.
inline void chars_encode(uint8_t *six, const char chars[9]) {
    uint64_t bits = 0;
    bool ended = false;
    for (int i = 0; i < 8; ++i) {
        if (chars[i] == '\0') ended = true;
        const uint8_t code = ended ? ast_ansi_to_icao(' ') : ast_ansi_to_icao(chars[i]);
        bits = (bits << 6) | (code & 0x3Fu);
    }
    for (int i = 5; i >= 0; --i) {
        six[i] = static_cast<uint8_t>(bits & 0xFFu);
        bits >>= 8;
    }
}

// "QTY:ABCD": each digit's letter in lower case when any of its three reply
// pulses is of low quality.
inline void append_quality(TextWriter &w, bool a, bool b, bool c, bool d) {
    const bool low[4] = {a, b, c, d};
    w.append("QTY:");
    for (int i = 0; i < 4; ++i) w.append_char(static_cast<char>((low[i] ? 'a' : 'A') + i));
}

// Opens a detail table with the header row "Bit", "Item", "Value".
inline void table_begin(TextWriter &w) {
    ast_html_gen_table_begin(w.end(), w.end_size());
    w.resync();
    ast_html_gen_table_row(w.end(), w.end_size(), 1, "Bit", "Item", "Value", AST_HTML_TABLE_END_OF_ROW);
    w.resync();
}

// One data row; the value cell is printf-formatted into a 64-octet buffer.
inline void table_row(TextWriter &w, const char *bit, const char *name, const char *format, ...)
    __attribute__((format(printf, 4, 5)));
inline void table_row(TextWriter &w, const char *bit, const char *name, const char *format, ...) {
    char value[64];
    va_list ap;
    va_start(ap, format);
    std::vsnprintf(value, sizeof value, format, ap);
    va_end(ap);
    ast_html_gen_table_row(w.end(), w.end_size(), 0, bit, name, value, AST_HTML_TABLE_END_OF_ROW);
    w.resync();
}

inline void table_end(TextWriter &w) {
    ast_html_gen_table_end(w.end(), w.end_size());
    w.resync();
}

// Rows "CHAR_1" to "CHAR_8" with the given bit labels; a position without
// a character shows an empty cell.
inline void char_rows(TextWriter &w, const char chars[9], const char *const labels[8]) {
    static const char *const names[8] = {"CHAR_1", "CHAR_2", "CHAR_3", "CHAR_4",
                                         "CHAR_5", "CHAR_6", "CHAR_7", "CHAR_8"};
    for (int i = 0; i < 8; ++i) {
        const char text[2] = {chars[i], '\0'};
        table_row(w, labels[i], names[i], "%s", text);
    }
}

}  // namespace kovrel::mode
