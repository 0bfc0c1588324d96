// Vertical rate, LSB 6.25 ft/min, in two layouts: with a range-exceeded bit
// (bit 16) above a 15-bit two's complement rate, and as a plain 16-bit two's
// complement rate.
#include "items/item_fields.h"
#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_motion.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 2;
constexpr double kLsbFeet = 6.25;
constexpr double kLsbMetres = 1.905;  // 6.25 ft
constexpr uint8_t kRangeExceeded = 0x80;

void init(AstVerticalRate *out) {
    if (out) *out = AstVerticalRate{0, 0, 0, kLsbFeet, 0.0};
}

void decode(AstVerticalRate *out, const AstDataItem *item, bool with_re) {
    init(out);
    if (!out || !items::span_ok(item, kLength)) return;
    int32_t raw = 0;
    uint8_t re = 0;
    if (with_re) {
        ast_twos_complement_decode_ex(&raw, item->data, 2, 1);
        re = (item->data[0] & kRangeExceeded) ? 1 : 0;
    } else {
        ast_twos_complement_decode(&raw, item->data, 2);
    }
    *out = AstVerticalRate{1, re, raw, kLsbFeet, raw * kLsbFeet};
}

void encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstVerticalRate *in, bool with_re) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid == 0) return;
    // A non-zero rate (NaN included) means the caller filled the value; a
    // zero rate sends the raw field.
    const int32_t raw = in->value != 0.0 ? items::truncate_i32(in->value / kLsbFeet) : in->raw;
    buffer[0] = 0;
    buffer[1] = 0;
    if (with_re) {
        ast_twos_complement_encode_ex(buffer, 2, raw, 1);
        if (in->re == 1) buffer[0] |= kRangeExceeded;
    } else {
        ast_twos_complement_encode(buffer, 2, raw);
    }
    items::encode_done(out, buffer, kLength);
}

void summary(TextWriter &w, const AstVerticalRate &vr) { w.appendf("VR:%.2fFT/M", vr.value); }

void detail(TextWriter &w, const AstVerticalRate &vr) {
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[0-15]", "VERTICAL_RATE LSB=6.25FT/M", "%d", vr.raw);
    t.rowf("Bit[0-15]", "VERTICAL_RATE LSB=FT/M", "%.2f", vr.value);
    t.rowf("Bit[0-15]", "VERTICAL_RATE LSB=METER/M", "%.2f", vr.raw * kLsbMetres);
    t.end();
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_vertical_rate_init(AstVerticalRate *out) { init(out); }

KOVREL_API void ast_dataitem_vertical_rate_decode(AstVerticalRate *out, const AstDataItem *item) {
    decode(out, item, true);
}

KOVREL_API void ast_dataitem_vertical_rate_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                  const AstVerticalRate *in) {
    encode(out, buffer, size, in, true);
}

KOVREL_API void ast_dataitem_vertical_rate_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_vertical_rate_decode, summary);
}

KOVREL_API void ast_dataitem_vertical_rate_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_vertical_rate_decode, detail);
}

KOVREL_API void ast_dataitem_vertical_rate_no_re_init(AstVerticalRateNoRe *out) { init(out); }

KOVREL_API void ast_dataitem_vertical_rate_no_re_decode(AstVerticalRateNoRe *out, const AstDataItem *item) {
    decode(out, item, false);
}

KOVREL_API void ast_dataitem_vertical_rate_no_re_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                        const AstVerticalRateNoRe *in) {
    encode(out, buffer, size, in, false);
}

KOVREL_API void ast_dataitem_vertical_rate_no_re_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_vertical_rate_no_re_decode, summary);
}

KOVREL_API void ast_dataitem_vertical_rate_no_re_get_detail_html(char *buffer, size_t size,
                                                                 const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_vertical_rate_no_re_decode, detail);
}

}  // extern "C"

namespace kovrel::fields {

namespace {
// Over the raw rate: the encoders write it whenever the value is 0, which
// the defaults give, and its wire width bounds what can be set.
using T = AstVerticalRate;
constexpr FieldRow kRateRows[] = {
    flag("re", KOVREL_MEMBER(T, re)),
    scaled("vr", KOVREL_MEMBER(T, raw), kLsbFeet, "ft/min").width(15),
};
constexpr FieldRow kRateNoReRows[] = {
    scaled("vr", KOVREL_MEMBER(T, raw), kLsbFeet, "ft/min").width(16),
};
}  // namespace

constinit const FieldDesc kVerticalRate = describe<T, init_valid<T, ast_dataitem_vertical_rate_init>>(kRateRows);
constinit const FieldDesc kVerticalRateNoRe =
    describe<T, init_valid<T, ast_dataitem_vertical_rate_no_re_init>>(kRateNoReRows);

}  // namespace kovrel::fields
