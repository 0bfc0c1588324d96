// The detail table builder and the six-bit identification characters.
#include "items/item_support.h"

#include <cstdio>

#include "kovrel/codec.h"

namespace kovrel::items {
namespace {

constexpr size_t kCellText = 96;

}  // namespace

void DetailTable::title(const char *text) {
    ast_html_gen_title_h4(w_.end(), w_.end_size(), "%s", text);
    w_.resync();
}

void DetailTable::begin() {
    ast_html_gen_table_begin(w_.end(), w_.end_size());
    w_.resync();
}

void DetailTable::end() {
    ast_html_gen_table_end(w_.end(), w_.end_size());
    w_.resync();
}

void DetailTable::rowf(const char *cell1, const char *cell2, const char *format, ...) {
    va_list ap;
    va_start(ap, format);
    vrowf(cell1, cell2, format, ap);
    va_end(ap);
}

void DetailTable::vrowf(const char *cell1, const char *cell2, const char *format, va_list ap) {
    char value[kCellText];
    std::vsnprintf(value, sizeof value, format, ap);
    row(cell1, cell2, value);
}

void DetailTable::valuef(const char *name, const char *format, ...) {
    char value[kCellText];
    va_list ap;
    va_start(ap, format);
    std::vsnprintf(value, sizeof value, format, ap);
    va_end(ap);
    row(name, value);
}

void DetailTable::char_rows(const char (&chars)[9], const char *const *bits) {
    static const char *const names[8] = {"CHAR_1", "CHAR_2", "CHAR_3", "CHAR_4",
                                         "CHAR_5", "CHAR_6", "CHAR_7", "CHAR_8"};
    for (int i = 0; i < 8; ++i) {
        const char text[2] = {chars[i], '\0'};
        if (bits)
            row(bits[i], names[i], text);
        else
            row(names[i], text);
    }
}

void chars_decode(char (&chars)[9], const uint8_t *six) {
    uint64_t bits = 0;
    for (int i = 0; i < 6; ++i) bits = (bits << 8) | six[i];
    for (int i = 0; i < 8; ++i) chars[i] = ast_icao_to_ansi(static_cast<int>((bits >> (42 - 6 * i)) & 0x3Fu));
    chars[8] = '\0';
}

void chars_encode(uint8_t *six, const char (&chars)[9]) {
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

}  // namespace kovrel::items
