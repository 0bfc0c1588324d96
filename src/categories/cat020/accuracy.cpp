// I020/500 Position Accuracy: the dilution of precision (DOP), the standard
// deviation of the position (SDP), both as x, y and their correlation, and
// the standard deviation of the geometric height (SDH).
//
// Every field is unsigned at 1/4 (the correlations too, as the category
// lays them out), SDH at 1/2 m.
#include "categories/cat020/accuracy.h"

#include "categories/cat010/surface_support.h"
#include "categories/cat020/item_fields.h"
#include "items/item_ex.h"
#include "kovrel/cat020.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 20500;
enum : size_t { kDopAt, kSdpAt, kSdhAt };  // span positions of the subfields
constexpr uint64_t kTripleLength = 6;
constexpr uint64_t kSdhLength = 2;
constexpr double kLsb = 0.25;
constexpr double kSdhLsb = 0.5;  // metres
constexpr uint32_t kMax16 = 0xFFFF;

uint32_t u16(const uint8_t *p) { return (static_cast<uint32_t>(p[0]) << 8) | p[1]; }

// The octets of a subfield span when its bit is set and it was delimited
// with its length.
const uint8_t *span_data(const AstSubfield *span, uint64_t length) {
    if (!span || span->present != 1 || span->valid != 1 || !span->data || span->length != length) return nullptr;
    return span->data;
}

struct Triple {
    uint32_t raw[3];
};

Triple triple(const uint8_t *p) { return Triple{{u16(p), u16(p + 2), u16(p + 4)}}; }

void triple_summary(char *buffer, size_t size, const AstSubfield *span, const char *x, const char *y,
                    const char *xy) {
    TextWriter w(buffer, size);
    const uint8_t *p = span_data(span, kTripleLength);
    if (!p) return;
    const Triple t = triple(p);
    w.appendf("%s:%.2f %s:%.2f %s:%.2f", x, t.raw[0] * kLsb, y, t.raw[1] * kLsb, xy, t.raw[2] * kLsb);
}

void triple_detail(char *buffer, size_t size, const AstSubfield *span, const char *const (&names)[3]) {
    TextWriter w(buffer, size);
    const uint8_t *p = span_data(span, kTripleLength);
    if (!p) return;
    const Triple tr = triple(p);
    const char *bits[3] = {"Bit[0-15]", "Bit[16-31]", "Bit[32-47]"};
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    for (int i = 0; i < 3; ++i) {
        t.rowf(bits[i], names[i], "%u", tr.raw[i]);
        t.rowf(bits[i], "VALUE", "%.2f", tr.raw[i] * kLsb);
    }
    t.end();
}

}  // namespace

namespace kovrel::cat020 {

void dop_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    triple_summary(buffer, size, span, "DOP_X", "DOP_Y", "DOP_XY");
}

void dop_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    static constexpr const char *kNames[3] = {"DOP_X LSB=1/4", "DOP_Y LSB=1/4", "DOP_XY LSB=1/4"};
    triple_detail(buffer, size, span, kNames);
}

void sdp_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    triple_summary(buffer, size, span, "SDP_X", "SDP_Y", "SDP_XY");
}

void sdp_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    static constexpr const char *kNames[3] = {"SDP_X LSB=1/4M", "SDP_Y LSB=1/4M", "SDP_XY LSB=1/4"};
    triple_detail(buffer, size, span, kNames);
}

void sdh_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    const uint8_t *p = span_data(span, kSdhLength);
    if (!p) return;
    w.append("SDH:");
    w.append_fixed(u16(p) * kSdhLsb, 1);
}

void sdh_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    const uint8_t *p = span_data(span, kSdhLength);
    if (!p) return;
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[0-15]", "SDH LSB=1/2M", "%u", u16(p));
    t.rowf("Bit[0-15]", "SDH LSB=M", "%.1f", u16(p) * kSdhLsb);
    t.end();
}

}  // namespace kovrel::cat020

extern "C" {

KOVREL_API void ast_dataitem_020_500_init(AstItem020_500 *out) {
    if (out) *out = AstItem020_500{};
}

KOVREL_API void ast_dataitem_020_500_decode(AstItem020_500 *out, const AstDataItem *item) {
    ast_dataitem_020_500_init(out);
    if (!out || !item || item->valid != 1 || item->id != kId) return;
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, item);
    if (list.valid != 1) return;
    // A set bit whose subfield does not have its length fails the item.
    for (uint64_t i = 0; i < list.span_count && i < AST_SUBFIELD_MAX; ++i) {
        const AstSubfield &s = list.spans[i];
        if (s.present != 1) continue;
        const uint8_t *p = span_data(&s, i == kSdhAt ? kSdhLength : kTripleLength);
        if (!p) return;
        if (i == kDopAt || i == kSdpAt) {
            const Triple t = triple(p);
            uint32_t *raw = i == kDopAt ? &out->dop_x_raw : &out->sdp_x_raw;
            double *value = i == kDopAt ? &out->dop_x : &out->sdp_x;
            (i == kDopAt ? out->dop_present : out->sdp_present) = 1;
            for (int k = 0; k < 3; ++k) {
                raw[k] = t.raw[k];
                value[k] = t.raw[k] * kLsb;
            }
        } else {
            out->sdh_present = 1;
            out->sdh_raw = u16(p);
            out->sdh = out->sdh_raw * kSdhLsb;
        }
    }
    // The sum of the spans must be the item: nothing beyond the subfields.
    uint64_t length = 0;
    for (uint64_t i = 0; i < list.span_count && i < AST_SUBFIELD_MAX; ++i) length += list.spans[i].length;
    if (length + list.primary.length != item->length) {
        ast_dataitem_020_500_init(out);
        return;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_020_500_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_500 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || !(in->dop_present || in->sdp_present || in->sdh_present)) return;
    const uint32_t *triples[2] = {&in->dop_x_raw, &in->sdp_x_raw};
    const uint8_t present[2] = {in->dop_present, in->sdp_present};
    for (int i = 0; i < 2; ++i)
        if (present[i] && (triples[i][0] > kMax16 || triples[i][1] > kMax16 || triples[i][2] > kMax16)) return;
    if (in->sdh_present && in->sdh_raw > kMax16) return;
    const size_t length = 1 + (in->dop_present ? kTripleLength : 0) + (in->sdp_present ? kTripleLength : 0) +
                          (in->sdh_present ? kSdhLength : 0);
    if (size < length) return;
    buffer[0] = static_cast<uint8_t>((in->dop_present ? 0x80u : 0u) | (in->sdp_present ? 0x40u : 0u) |
                                     (in->sdh_present ? 0x20u : 0u));
    size_t at = 1;
    for (int i = 0; i < 2; ++i) {
        if (!present[i]) continue;
        for (int k = 0; k < 3; ++k, at += 2) ast_unsigned_encode(buffer + at, 2, triples[i][k]);
    }
    if (in->sdh_present) ast_unsigned_encode(buffer + at, 2, in->sdh_raw);
    items::encode_done(out, buffer, length);
}

}  // extern "C"

KOVREL_DECODE_EX(020_500, AstItem020_500, ast_dataitem_020_500_decode)
KOVREL_ENCODE_EX(020_500, AstItem020_500, ast_dataitem_020_500_encode)

namespace kovrel::fields {

namespace {

using T = AstItem020_500;

constexpr FieldRow kDopRows[] = {
    scaled("x", KOVREL_MEMBER(T, dop_x_raw), kLsb).width(16),
    scaled("y", KOVREL_MEMBER(T, dop_y_raw), kLsb).width(16),
    scaled("xy", KOVREL_MEMBER(T, dop_xy_raw), kLsb).width(16),
};
constexpr FieldRow kSdpRows[] = {
    scaled("x", KOVREL_MEMBER(T, sdp_x_raw), kLsb, "m").width(16),
    scaled("y", KOVREL_MEMBER(T, sdp_y_raw), kLsb, "m").width(16),
    scaled("xy", KOVREL_MEMBER(T, sdp_xy_raw), kLsb).width(16),
};
constexpr FieldRow kSdhRows[] = {
    scaled("sdh", KOVREL_MEMBER(T, sdh_raw), kSdhLsb, "m").width(16),
};
constinit const FieldDesc kDop = describe<T>(kDopRows);
constinit const FieldDesc kSdp = describe<T>(kSdpRows);
constinit const FieldDesc kSdh = describe<T>(kSdhRows);

// A subfield as a group of the item's own structure, shown when present.
constexpr FieldRow subfield(const char *name, Member present, const FieldDesc &fields) {
    return group(name, Member{Store::Struct, 0, sizeof(T)}, fields).when(present);
}

constexpr FieldRow kRows[] = {
    subfield("dop", KOVREL_MEMBER(T, dop_present), kDop),
    subfield("sdp", KOVREL_MEMBER(T, sdp_present), kSdp),
    subfield("sdh", KOVREL_MEMBER(T, sdh_present), kSdh),
};

}  // namespace

constinit const FieldDesc k020_500 = describe<T, init_valid<T, ast_dataitem_020_500_init>>(kRows);

}  // namespace kovrel::fields
