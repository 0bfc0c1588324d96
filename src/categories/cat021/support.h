// What the CAT021 items share: the detail table of the category (columns
// "Bit", "ID", "Name", "Value"), flag lists for summaries, and the field
// descriptions the dispatch rows point at.
#pragma once

#include <cstdarg>
#include <cstdint>

#include "core/text.h"
#include "items/item_fields.h"
#include "items/item_support.h"
#include "record/field_desc.h"

namespace kovrel::cat021 {

// A detail table with one row per field. Bit ranges are counted from 1 at
// the item's most significant bit.
class Detail {
public:
    explicit Detail(TextWriter &w);
    void row(const char *bits, const char *id, const char *name, const char *value);
    void rowf(const char *bits, const char *id, const char *name, const char *format, ...)
        __attribute__((format(printf, 5, 6)));
    void flag(const char *bits, const char *id, const char *name, unsigned value) {
        rowf(bits, id, name, "%u", value);
    }
    void end();

private:
    items::DetailTable table_;
};

// A summary made of words with a trailing blank each: the last blank is
// removed, and the fallback is written when no word was. The words are
// gathered first, so that a text cut to a small buffer is the start of the
// whole text.
class FlagList {
public:
    explicit FlagList(TextWriter &w) : w_(w), words_(text_, sizeof text_) {}
    void add(bool set, const char *word) {
        if (set) words_.append(word);
    }
    TextWriter &words() { return words_; }
    void finish(const char *fallback) {
        if (words_.length() == 0) {
            w_.append(fallback);
            return;
        }
        words_.drop_last();
        w_.append(text_);
    }

private:
    TextWriter &w_;
    char text_[128];
    TextWriter words_;
};

// Writers of the high-precision times (I021/074, 076), the Mode S MB data
// (I021/250) and the RE and SP fields for the disassembled record; the
// items themselves have no encoder.
void time_high_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItemValue *value);
void modes_mb_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItemValue *value);
void explicit_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItemValue *value);

// True when v fits an unsigned field of n bits.
constexpr bool fits_unsigned(uint64_t v, unsigned n) { return n >= 64 || v < (uint64_t{1} << n); }
// True when v fits a two's complement field of n bits.
constexpr bool fits_signed(int64_t v, unsigned n) {
    return v >= -(int64_t{1} << (n - 1)) && v < (int64_t{1} << (n - 1));
}
// Sign extension of the low n bits of v.
constexpr int32_t sign_extend(uint32_t v, unsigned n) {
    const uint32_t m = uint32_t{1} << (n - 1);
    v &= (n >= 32) ? 0xFFFFFFFFu : ((uint32_t{1} << n) - 1);
    return static_cast<int32_t>((v ^ m) - m);
}

}  // namespace kovrel::cat021

namespace kovrel::fields {

extern const FieldDesc k021_008;
extern const FieldDesc k021_016;
extern const FieldDesc k021_020;
extern const FieldDesc k021_032;
extern const FieldDesc k021_040;
extern const FieldDesc k021_A03;
extern const FieldDesc k021_090;
extern const FieldDesc k021_A05;
extern const FieldDesc k021_095;
extern const FieldDesc k021_A04;
extern const FieldDesc k021_132;
extern const FieldDesc k021_140;
extern const FieldDesc k021_145;
extern const FieldDesc k021_146;
extern const FieldDesc k021_150;
extern const FieldDesc k021_151;
extern const FieldDesc k021_152;
extern const FieldDesc k021_160;
extern const FieldDesc k021_A11;
extern const FieldDesc k021_200;
extern const FieldDesc k021_A08;
extern const FieldDesc k021_210;
extern const FieldDesc k021_A06;
extern const FieldDesc k021_230;
extern const FieldDesc k021_260;
extern const FieldDesc k021_271;
extern const FieldDesc k021_A07;
extern const FieldDesc k021_110;
extern const FieldDesc k021_220;
extern const FieldDesc k021_295;
extern const FieldDesc k021_400;

}  // namespace kovrel::fields
