// What the common data items share: the span checks, the encoder results,
// the summary and detail texts of a decoded item, the detail table builder
// and the six-bit identification characters.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdint>

#include "core/text.h"
#include "kovrel/dataitem.h"
#include "kovrel/html.h"
#include "kovrel/subfield.h"

namespace kovrel::items {

// True when the span may be read as an item of exactly `length` octets.
inline bool span_ok(const AstDataItem *item, uint64_t length) {
    return item && item->valid == 1 && item->data && item->length == length;
}

// True when the span may be read and holds at least `length` octets.
inline bool span_at_least(const AstDataItem *item, uint64_t length) {
    return item && item->valid == 1 && item->data && item->length >= length;
}

// The octet of a one-octet subfield, when its bit is set and it was
// delimited.
inline bool subfield_octet(const AstSubfield *span, uint8_t *octet) {
    if (!span || span->present != 1 || span->valid != 1 || !span->data || span->length != 1) return false;
    *octet = span->data[0];
    return true;
}

// The result of an encoder that wrote nothing: a zero-length invalid span.
inline void encode_failed(AstDataItem *out, uint8_t *buffer) { *out = AstDataItem{buffer, 0, 0, 0}; }

// Starts an encoder: the result stays failed until encode_done. False when
// there is no result span or the buffer cannot hold `length` octets; the
// encoder then writes nothing.
inline bool encode_begin(AstDataItem *out, uint8_t *buffer, size_t size, size_t length) {
    if (!out) return false;
    encode_failed(out, buffer);
    return buffer && size >= length;
}

// The result of an encoder that wrote `length` octets at buffer.
inline void encode_done(AstDataItem *out, uint8_t *buffer, size_t length) {
    *out = AstDataItem{buffer, length, 0, 1};
}

// A summary or detail text of an item: empties the text, decodes the item
// and, when the decoded value is valid, lets write(w, value) add to the text.
// The decoder fills a structure, or returns it.
template <typename T, typename Write>
void describe(char *buffer, size_t size, const AstDataItem *item, void (*decode)(T *, const AstDataItem *),
              Write write) {
    TextWriter w(buffer, size);
    T value;
    decode(&value, item);
    if (value.valid == 1) write(w, value);
}

template <typename T, typename Write>
void describe(char *buffer, size_t size, const AstDataItem *item, T (*decode)(const AstDataItem *), Write write) {
    TextWriter w(buffer, size);
    const T value = decode(item);
    if (value.valid == 1) write(w, value);
}

// Builds detail tables at the end of a text: a title, the header row that
// opens a table, data rows, the end. Formatted cells are cut at 95
// characters, far more than any value they show.
class DetailTable {
public:
    explicit DetailTable(TextWriter &w) : w_(w) {}

    void title(const char *text);

    // Opens a table with its header row.
    template <typename... Cells>
    void header(Cells... cells) {
        begin();
        add_row(1, cells...);
    }

    template <typename... Cells>
    void row(Cells... cells) {
        add_row(0, cells...);
    }

    // A row of three cells, the last printf-formatted.
    void rowf(const char *cell1, const char *cell2, const char *format, ...) __attribute__((format(printf, 4, 5)));
    void vrowf(const char *cell1, const char *cell2, const char *format, va_list ap);

    // A row of two cells: a name and its printf-formatted value.
    void valuef(const char *name, const char *format, ...) __attribute__((format(printf, 3, 4)));

    // Rows "CHAR_1" to "CHAR_8", one identification character each (an empty
    // cell after the end of the text), behind the bit label of each character
    // when bits are given.
    void char_rows(const char (&chars)[9], const char *const *bits = nullptr);

    void end();

private:
    void begin();

    template <typename... Cells>
    void add_row(int is_header, Cells... cells) {
        ast_html_gen_table_row(w_.end(), w_.end_size(), is_header, static_cast<const char *>(cells)...,
                               AST_HTML_TABLE_END_OF_ROW);
        w_.resync();
    }

    TextWriter &w_;
};

// Eight six-bit characters from 6 octets, first character in the top bits.
// A code without a character gives NUL, which ends the text there.
void chars_decode(char (&chars)[9], const uint8_t *six);

// The inverse: characters up to the first NUL (at most 8), spaces after.
void chars_encode(uint8_t *six, const char (&chars)[9]);

}  // namespace kovrel::items
