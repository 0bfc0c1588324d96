// What the CAT062 items share: reading bit fields out of octets, and the
// glue that gives a compound item's subfields their summaries and detail
// views from one per-subfield decoder.
//
// A compound item's structure is filled subfield by subfield by a decoder
//   bool decode_subfield(T &out, uint32_t number, const AstSubfield &span)
// that checks the span's length and sets the subfield's `_present` flag.
// The item decode runs it over every present span; the subfield summary and
// detail run it over the one span they are given, then write from the
// structure. No text is ever written for a span that does not decode.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/text.h"
#include "items/item_support.h"
#include "kovrel/codec.h"
#include "kovrel/subfield.h"

namespace kovrel::cat062 {

// Unsigned field of `width` bits whose lowest bit is `shift` bits above bit 0 of v.
constexpr uint32_t field(uint32_t v, unsigned shift, unsigned width) {
    return (v >> shift) & ((width >= 32) ? 0xFFFFFFFFu : ((1u << width) - 1u));
}

// The same read as two's complement.
constexpr int32_t signed_field(uint32_t v, unsigned shift, unsigned width) {
    const uint32_t u = field(v, shift, width);
    const uint32_t sign = 1u << (width - 1);
    return static_cast<int32_t>((u ^ sign) - sign);
}

// n octets big-endian (n at most 4).
inline uint32_t octets_u(const uint8_t *p, int n) {
    uint32_t v = 0;
    ast_unsigned_decode(&v, p, n);
    return v;
}

// n octets as two's complement.
inline int32_t octets_s(const uint8_t *p, int n) {
    int32_t v = 0;
    ast_twos_complement_decode(&v, p, n);
    return v;
}

// Characters of an ASCII text field into a NUL-terminated array: a NUL or
// a character outside the printable range ends the text there.
template <size_t N>
void ascii_text(char (&out)[N], const uint8_t *p, size_t n) {
    size_t i = 0;
    for (; i < n && i + 1 < N; ++i) {
        if (p[i] < 0x20 || p[i] > 0x7E) break;
        out[i] = static_cast<char>(p[i]);
    }
    for (; i < N; ++i) out[i] = '\0';
}

// A span the decoder may read as `length` octets.
inline bool span_is(const AstSubfield &s, uint64_t length) {
    return s.present == 1 && s.valid == 1 && s.data && s.length == length;
}

// A repetitive span: REP, then REP elements of n octets, nothing more.
inline bool span_repeats(const AstSubfield &s, uint64_t n) {
    return s.present == 1 && s.valid == 1 && s.data && s.length >= 1 && s.length == 1 + n * s.data[0];
}

// Marks a subfield decoded; true, for the decoders' return.
inline bool mark(uint8_t &present) {
    present = 1;
    return true;
}

template <typename T>
using SubfieldDecodeFn = bool (*)(T &out, uint32_t number, const AstSubfield &span);
template <typename T>
using SubfieldWriteFn = void (*)(TextWriter &w, const T &value, uint32_t number);

// Splits a compound item of identifier id and decodes every present span.
template <typename T, void (*Init)(T *), SubfieldDecodeFn<T> Decode>
void decode_compound(T *out, const AstDataItem *item, AstItemId id) {
    Init(out);
    if (!out || !item || item->valid != 1 || item->id != id) return;
    ast_dataitem_subfields_decode(&out->subfields, item);
    if (out->subfields.valid != 1) return;
    const uint64_t count = out->subfields.span_count < AST_SUBFIELD_MAX ? out->subfields.span_count : AST_SUBFIELD_MAX;
    for (uint64_t i = 0; i < count; ++i) {
        const AstSubfield &s = out->subfields.spans[i];
        if (s.present == 1 && s.valid == 1 && s.data) Decode(*out, static_cast<uint32_t>(i + 1), s);
    }
    out->valid = 1;
}

// The summary or detail of one subfield of item `id`: the empty text, then,
// when the span decodes, what Write adds.
template <typename T, void (*Init)(T *), SubfieldDecodeFn<T> Decode, SubfieldWriteFn<T> Write>
void subfield_text(AstItemId id, char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    TextWriter w(buffer, size);
    if (!span || subfield_id / 1000 != id || span->present != 1 || span->valid != 1 || !span->data) return;
    const uint32_t number = subfield_id % 1000;
    T value;
    Init(&value);
    // The writers may look at the span itself (registers shown by their
    // own views).
    if (number >= 1 && number <= AST_SUBFIELD_MAX) value.subfields.spans[number - 1] = *span;
    if (!Decode(value, number, *span)) return;
    Write(w, value, number);
}

// A flag word followed by a blank when set (the last blank is dropped by the caller).
inline void flag_word(TextWriter &w, bool set, const char *word) {
    if (!set) return;
    w.append(word);
    w.append_char(' ');
}

// Ends a list of flag words: drops the trailing blank, or writes the
// fallback when nothing was written since `start`.
inline void end_flags(TextWriter &w, size_t start, const char *fallback) {
    if (w.length() == start)
        w.append(fallback);
    else
        w.drop_last();
}

// A text without its trailing blanks.
template <size_t N>
void append_trimmed(TextWriter &w, const char (&text)[N]) {
    size_t n = 0;
    while (n < N && text[n] != '\0') ++n;
    while (n > 0 && text[n - 1] == ' ') --n;
    for (size_t i = 0; i < n; ++i) w.append_char(text[i]);
}

// Texts of small enumerations; "UNDEFINED" past the table.
template <size_t N>
const char *text_of(const char *const (&names)[N], uint32_t code) {
    return code < N ? names[code] : "UNDEFINED";
}

}  // namespace kovrel::cat062

// What every compound item of the category defines the same way over its
// structure T (identifier ID, subfield decoder DECODE, subfield writers
// SUMMARY and DETAIL): the subfield texts kovrel::cat062::summary_NNN and
// detail_NNN, and the exported _init (all zeros), _decode and _decode_ex.
#define KOVREL_CAT062_COMPOUND(NNN, T, ID, DECODE, SUMMARY, DETAIL)                                               \
    namespace kovrel::cat062 {                                                                                    \
    void summary_##NNN(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {                \
        subfield_text<T, ast_dataitem_062_##NNN##_init, DECODE, SUMMARY>(ID, buffer, size, span, subfield_id);    \
    }                                                                                                             \
    void detail_##NNN(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {                 \
        subfield_text<T, ast_dataitem_062_##NNN##_init, DECODE, DETAIL>(ID, buffer, size, span, subfield_id);     \
    }                                                                                                             \
    }                                                                                                             \
    extern "C" {                                                                                                  \
    KOVREL_API void ast_dataitem_062_##NNN##_init(T *out) {                                                       \
        if (out) *out = T{};                                                                                      \
    }                                                                                                             \
    KOVREL_API void ast_dataitem_062_##NNN##_decode(T *out, const AstDataItem *item) {                            \
        kovrel::cat062::decode_compound<T, ast_dataitem_062_##NNN##_init, DECODE>(out, item, ID);                 \
    }                                                                                                             \
    }                                                                                                             \
    KOVREL_DECODE_EX(062_##NNN, T, ast_dataitem_062_##NNN##_decode)
