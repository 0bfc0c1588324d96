// Mode C code as a flight level, and the Mode C code with its pulse
// confidence.
#include <cstdio>

#include "items/item_fields.h"
#include "items/item_support.h"
#include "items/mode_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_mode.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kCodeLength = 2;
constexpr uint64_t kConfidenceLength = 4;

constexpr double kFeetPerQuarterFl = 25.0;
constexpr double kMetresPerFoot = 0.3048;

// The reply pulses (and their quality flags) in the order they arrive in the
// low 12 bits of octets 1-2 (3-4): C1 A1 C2 A2 C4 A4 B1 D1 B2 D2 B4 D4.
enum Pulse { A4, A2, A1, B4, B2, B1, C4, C2, C1, D4, D2, D1 };
constexpr Pulse kWireOrder[12] = {C1, A1, C2, A2, C4, A4, B1, D1, B2, D2, B4, D4};
const char *const kPulseNames[12] = {"A4", "A2", "A1", "B4", "B2", "B1", "C4", "C2", "C1", "D4", "D2", "D1"};
const char *const kQualityNames[12] = {"QA4", "QA2", "QA1", "QB4", "QB2", "QB1",
                                       "QC4", "QC2", "QC1", "QD4", "QD2", "QD1"};

// The twelve flags of a structure in Pulse order.
struct Flags {
    uint8_t *f[12];
};
Flags pulses_of(AstModeCConfidence *c) {
    return {{&c->a4, &c->a2, &c->a1, &c->b4, &c->b2, &c->b1, &c->c4, &c->c2, &c->c1, &c->d4, &c->d2, &c->d1}};
}
Flags qualities_of(AstModeCConfidence *c) {
    return {{&c->qa4, &c->qa2, &c->qa1, &c->qb4, &c->qb2, &c->qb1, &c->qc4, &c->qc2, &c->qc1, &c->qd4, &c->qd2,
             &c->qd1}};
}

// Spreads the low 12 bits of two octets over the flags, in wire order.
void unpack(const Flags &flags, const uint8_t *two) {
    const uint32_t bits = (static_cast<uint32_t>(two[0] & 0x0Fu) << 8) | two[1];
    for (int i = 0; i < 12; ++i) *flags.f[kWireOrder[i]] = (bits >> (11 - i)) & 1u;
}

// Detail rows of twelve flags in wire order, the first at bit first_bit.
void wire_rows(items::DetailTable &t, int first_bit, const char *const (&names)[12], const Flags &flags) {
    for (int i = 0; i < 12; ++i) {
        char bit[12];
        std::snprintf(bit, sizeof bit, "Bit[%d]", first_bit + i);
        t.rowf(bit, names[kWireOrder[i]], "%d", *flags.f[kWireOrder[i]]);
    }
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_mode_c_code_init(AstModeCCode *out) {
    if (out) *out = AstModeCCode{};
}

KOVREL_API void ast_dataitem_mode_c_code_decode(AstModeCCode *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstModeCCode{};
    if (!items::span_ok(item, kCodeLength)) return;
    out->validated = (item->data[0] & 0x80u) ? 0 : 1;
    out->garbled = (item->data[0] >> 6) & 1u;
    ast_twos_complement_decode_ex(&out->flight_level, item->data, 2, 2);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_mode_c_code_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                const AstModeCCode *in) {
    if (!items::encode_begin(out, buffer, size, kCodeLength)) return;
    if (!in || in->valid == 0) return;
    // A flight level beyond 14 bits is cut to its low bits like any field.
    buffer[0] = static_cast<uint8_t>((in->validated ? 0u : 0x80u) | (in->garbled ? 0x40u : 0u));
    ast_twos_complement_encode_ex(buffer, 2, in->flight_level, 2);
    items::encode_done(out, buffer, kCodeLength);
}

KOVREL_API void ast_dataitem_mode_c_code_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_mode_c_code_decode, [](TextWriter &w, const auto &c) {
        w.append("MODE_C:");
        w.append_int(c.flight_level / 4, 4);
        if (!c.validated) w.append(" NOT_VALIDATED");
        if (c.garbled) w.append(" GARBLED");
    });
}

KOVREL_API void ast_dataitem_mode_c_code_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_mode_c_code_decode, [](TextWriter &w, const auto &c) {
        const double feet = c.flight_level * kFeetPerQuarterFl;
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "NOT_VALIDATED", "%d", c.validated ? 0 : 1);
        t.rowf("Bit[1]", "GARBLED", "%d", c.garbled);
        t.rowf("Bit[2-15]", "FLIGHT_LEVEL (LSB=1/4FL)", "%d", c.flight_level);
        t.rowf("Bit[2-15]", "FLIGHT_LEVEL (LSB=FL)", "%.2f", c.flight_level / 4.0);
        t.rowf("Bit[2-15]", "FLIGHT_LEVEL (LSB=FT)", "%.2f", feet);
        t.rowf("Bit[2-15]", "FLIGHT_LEVEL (LSB=M)", "%.2f", feet * kMetresPerFoot);
        t.end();
    });
}

KOVREL_API void ast_dataitem_mode_c_confidence_init(AstModeCConfidence *out) {
    if (out) *out = AstModeCConfidence{};
}

KOVREL_API void ast_dataitem_mode_c_confidence_decode(AstModeCConfidence *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstModeCConfidence{};
    if (!items::span_ok(item, kConfidenceLength)) return;
    out->validated = (item->data[0] & 0x80u) ? 0 : 1;
    out->garbled = (item->data[0] >> 6) & 1u;
    const Flags pulses = pulses_of(out);
    unpack(pulses, item->data);
    unpack(qualities_of(out), item->data + 2);
    // Octal digits A B C D, each pulse 4 2 1 from the top.
    for (int i = 0; i < 12; ++i) out->code = (out->code << 1) | *pulses.f[i];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_mode_c_confidence_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_mode_c_confidence_decode, [](TextWriter &w, const auto &c) {
        w.append("CODE:");
        w.append_octal(c.code, 4);
        w.append_char(' ');
        items::append_quality(w, c);
        if (!c.validated) w.append(" NOT_VALIDATED");
        if (c.garbled) w.append(" GARBLED");
    });
}

KOVREL_API void ast_dataitem_mode_c_confidence_get_detail_html(char *buffer, size_t size,
                                                               const AstDataItem *item) {
    // c by value: the flag views point into it.
    items::describe(buffer, size, item, ast_dataitem_mode_c_confidence_decode, [](TextWriter &w, auto c) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "NOT_VALIDATED", "%d", c.validated ? 0 : 1);
        t.rowf("Bit[1]", "GARBLED", "%d", c.garbled);
        t.rowf("Bit[4-15]", "MODE_C_CODE", "%.4o", c.code);
        // Pulses at wire bits 4-15, their quality flags at 20-31.
        wire_rows(t, 4, kPulseNames, pulses_of(&c));
        wire_rows(t, 20, kQualityNames, qualities_of(&c));
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
// V is shown as on the wire (1: not validated) over the `validated` member.
using C = AstModeCCode;
constexpr FieldRow kCodeRows[] = {
    flag("v", KOVREL_MEMBER(C, validated)).inverted(),
    flag("g", KOVREL_MEMBER(C, garbled)),
    scaled("fl", KOVREL_MEMBER(C, flight_level), 0.25, "FL").width(14),
};

// The reply as the four octal digits the summary prints; the quality flags
// in their wire order.
using Q = AstModeCConfidence;
constexpr FieldRow kConfidenceRows[] = {
    flag("v", KOVREL_MEMBER(Q, validated)).inverted(),
    flag("g", KOVREL_MEMBER(Q, garbled)),
    integer("modec", KOVREL_MEMBER(Q, code)).width(12).shown(AST_FIELD_FORMAT_OCTAL4),
    flag("qc1", KOVREL_MEMBER(Q, qc1)), flag("qa1", KOVREL_MEMBER(Q, qa1)), flag("qc2", KOVREL_MEMBER(Q, qc2)),
    flag("qa2", KOVREL_MEMBER(Q, qa2)), flag("qc4", KOVREL_MEMBER(Q, qc4)), flag("qa4", KOVREL_MEMBER(Q, qa4)),
    flag("qb1", KOVREL_MEMBER(Q, qb1)), flag("qd1", KOVREL_MEMBER(Q, qd1)), flag("qb2", KOVREL_MEMBER(Q, qb2)),
    flag("qd2", KOVREL_MEMBER(Q, qd2)), flag("qb4", KOVREL_MEMBER(Q, qb4)), flag("qd4", KOVREL_MEMBER(Q, qd4)),
};
}  // namespace

constinit const FieldDesc kModeCCode = describe<C, init_valid<C, ast_dataitem_mode_c_code_init>>(kCodeRows);
constinit const FieldDesc kModeCConfidence =
    describe<Q, init_valid<Q, ast_dataitem_mode_c_confidence_init>>(kConfidenceRows);

}  // namespace kovrel::fields
