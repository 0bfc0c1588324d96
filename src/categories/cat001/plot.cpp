// The plot measurements of CAT001: I001/120 Measured Radial Doppler Speed,
// I001/130 Radar Plot Characteristics, I001/131 Received Power, I001/141
// Truncated Time of Day and I001/150 Presence of X-Pulse.
#include "categories/cat001/chain.h"
#include "categories/cat001/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat001.h"
#include "kovrel/codec.h"
#include "kovrel/items_mode.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId k120 = 1120;
constexpr AstItemId k130 = 1130;
constexpr AstItemId k131 = 1131;
constexpr AstItemId k141 = 1141;
constexpr AstItemId k150 = 1150;

// Knots per LSB of the Doppler speed. Consumers have always been given this
// factor (the quantisation of the usual f = 6 setting), so it stays fixed.
constexpr double kDopplerKt = 14.0625;
constexpr uint32_t kMaxCharacteristics = 6;

int32_t s8(uint8_t octet) { return static_cast<int8_t>(octet); }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_001_120_init(AstItem001_120 *out) {
    if (out) *out = AstItem001_120{};
}

KOVREL_API void ast_dataitem_001_120_decode(AstItem001_120 *out, const AstDataItem *item) {
    ast_dataitem_001_120_init(out);
    if (!out || !items::span_ok(item, 1) || item->id != k120) return;
    const int32_t raw = s8(item->data[0]);
    *out = AstItem001_120{1, raw, raw * kDopplerKt};
}

KOVREL_API void ast_dataitem_001_120_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_120 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->raw < -128 || in->raw > 127) return;
    buffer[0] = static_cast<uint8_t>(in->raw);
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_001_120_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_120_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("DOP:%.1fKT", d.value); });
}

KOVREL_API void ast_dataitem_001_120_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_120_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-7]", "DOPPLER_SPEED RAW", "%d", d.raw);
        t.rowf("Bit[0-7]", "DOPPLER_SPEED LSB=KT", "%.1f", d.value);
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_130_init(AstItem001_130 *out) {
    if (out) *out = AstItem001_130{};
}

KOVREL_API void ast_dataitem_001_130_decode(AstItem001_130 *out, const AstDataItem *item) {
    ast_dataitem_001_130_init(out);
    if (!out || !item || item->id != k130) return;
    out->count = kovrel::cat001::read_chain(out->values, kMaxCharacteristics, item);
    out->valid = out->count > 0 ? 1 : 0;
}

KOVREL_API void ast_dataitem_001_130_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_130 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 ||
        !kovrel::cat001::write_chain(buffer, size, in->values, in->count, kMaxCharacteristics))
        return;
    items::encode_done(out, buffer, in->count);
}

KOVREL_API void ast_dataitem_001_130_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    // The bits as they came, for a span that holds the item at all.
    TextWriter cleared(buffer, size);
    AstItem001_130 d;
    ast_dataitem_001_130_decode(&d, item);
    if (d.valid == 1) ast_dataitem_binary_data_get_summary(buffer, size, item);
}

KOVREL_API void ast_dataitem_001_130_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_130_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Octet", "Item", "Value");
        char octet[16];
        for (uint32_t i = 0; i < d.count; ++i) {
            TextWriter label(octet, sizeof octet);
            label.appendf("Octet[%u]", i + 1);
            t.rowf(octet, "CHARACTERISTIC", "%u", d.values[i]);
        }
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_131_init(AstItem001_131 *out) {
    if (out) *out = AstItem001_131{};
}

KOVREL_API void ast_dataitem_001_131_decode(AstItem001_131 *out, const AstDataItem *item) {
    ast_dataitem_001_131_init(out);
    if (!out || !items::span_ok(item, 1) || item->id != k131) return;
    *out = AstItem001_131{1, s8(item->data[0])};
}

KOVREL_API void ast_dataitem_001_131_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_131 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->power < -128 || in->power > 127) return;
    buffer[0] = static_cast<uint8_t>(in->power);
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_001_131_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_131_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("PWR:%d dBm", d.power); });
}

KOVREL_API void ast_dataitem_001_131_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_131_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-7]", "RECEIVED_POWER LSB=DBM", "%d", d.power);
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_141_init(AstItem001_141 *out) {
    if (out) *out = AstItem001_141{};
}

KOVREL_API void ast_dataitem_001_141_decode(AstItem001_141 *out, const AstDataItem *item) {
    ast_dataitem_001_141_init(out);
    if (!out || !items::span_ok(item, 2) || item->id != k141) return;
    const uint32_t raw = (static_cast<uint32_t>(item->data[0]) << 8) | item->data[1];
    *out = AstItem001_141{1, raw, raw >> 7, ((raw & 127u) * 1000u) >> 7};
}

KOVREL_API void ast_dataitem_001_141_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_141 *in) {
    if (!items::encode_begin(out, buffer, size, 2)) return;
    if (!in || in->valid != 1) return;
    // The item is the time of day modulo 512 s: a full time of day in raw
    // (1/128 s) goes out as its low 16 bits.
    ast_unsigned_encode(buffer, 2, in->raw & 0xFFFFu);
    items::encode_done(out, buffer, 2);
}

KOVREL_API void ast_dataitem_001_141_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_141_decode, [](TextWriter &w, const auto &d) {
        w.appendf("TTOD:%03d.%03d", static_cast<int>(d.seconds), static_cast<int>(d.milliseconds));
    });
}

KOVREL_API void ast_dataitem_001_141_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_141_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "TRUNCATED_TIME LSB=1/128S", "%u", d.raw);
        t.rowf("Bit[0-8]", "SECONDS", "%u", d.seconds);
        t.rowf("Bit[9-15]", "MILLISECONDS", "%u", d.milliseconds);
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_150_init(AstItem001_150 *out) {
    if (out) *out = AstItem001_150{};
}

KOVREL_API void ast_dataitem_001_150_decode(AstItem001_150 *out, const AstDataItem *item) {
    ast_dataitem_001_150_init(out);
    if (!out || !items::span_ok(item, 1) || item->id != k150) return;
    const uint8_t o = item->data[0];
    *out = AstItem001_150{1, (o >> 7) & 1u, (o >> 5) & 1u, (o >> 2) & 1u};
}

KOVREL_API void ast_dataitem_001_150_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_150 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->xa > 1 || in->xc > 1 || in->x2 > 1) return;
    buffer[0] = static_cast<uint8_t>((in->xa << 7) | (in->xc << 5) | (in->x2 << 2));
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_001_150_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_150_decode, [](TextWriter &w, const auto &d) {
        w.append("X:");
        if (!d.xa && !d.xc && !d.x2) {
            w.append("NONE");
            return;
        }
        const char *sep = "";
        if (d.xa) { w.append("XA"); sep = " "; }
        if (d.xc) { w.append(sep); w.append("XC"); sep = " "; }
        if (d.x2) { w.append(sep); w.append("X2"); }
    });
}

KOVREL_API void ast_dataitem_001_150_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_150_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "X_PULSE_MODE_3A", "%u", d.xa);
        t.rowf("Bit[2]", "X_PULSE_MODE_C", "%u", d.xc);
        t.rowf("Bit[5]", "X_PULSE_MODE_2", "%u", d.x2);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(001_120, AstItem001_120, ast_dataitem_001_120_decode)
KOVREL_ENCODE_EX(001_120, AstItem001_120, ast_dataitem_001_120_encode)
KOVREL_DECODE_EX(001_130, AstItem001_130, ast_dataitem_001_130_decode)
KOVREL_ENCODE_EX(001_130, AstItem001_130, ast_dataitem_001_130_encode)
KOVREL_DECODE_EX(001_131, AstItem001_131, ast_dataitem_001_131_decode)
KOVREL_ENCODE_EX(001_131, AstItem001_131, ast_dataitem_001_131_encode)
KOVREL_DECODE_EX(001_141, AstItem001_141, ast_dataitem_001_141_decode)
KOVREL_ENCODE_EX(001_141, AstItem001_141, ast_dataitem_001_141_encode)
KOVREL_DECODE_EX(001_150, AstItem001_150, ast_dataitem_001_150_decode)
KOVREL_ENCODE_EX(001_150, AstItem001_150, ast_dataitem_001_150_encode)

namespace kovrel::fields {

namespace {

using Doppler = AstItem001_120;
using Characteristics = AstItem001_130;
using Power = AstItem001_131;
using Ttod = AstItem001_141;
using XPulse = AstItem001_150;

// The encoder sends the raw value; it is shown in knots like the summary.
constexpr FieldRow k120Rows[] = {scaled("dop", KOVREL_MEMBER(Doppler, raw), kDopplerKt, "kt").width(8)};

// The count says how many octets the encoder writes; the values past it are
// not sent. (Arrays cannot be set by name, so each value is a field.)
#define KOVREL_VALUE(N) integer("v" #N, member_of<uint32_t>(offsetof(Characteristics, values) + (N - 1) * sizeof(uint32_t))).width(7)
constexpr FieldRow k130Rows[] = {
    integer("count", KOVREL_MEMBER(Characteristics, count)).width(3),
    KOVREL_VALUE(1), KOVREL_VALUE(2), KOVREL_VALUE(3), KOVREL_VALUE(4), KOVREL_VALUE(5), KOVREL_VALUE(6),
};
#undef KOVREL_VALUE

constexpr FieldRow k131Rows[] = {integer("power", KOVREL_MEMBER(Power, power), "dBm").width(8)};

constexpr FieldRow k141Rows[] = {scaled("ttod", KOVREL_MEMBER(Ttod, raw), 1.0 / 128.0, "s").width(16)};

constexpr FieldRow k150Rows[] = {
    flag("xa", KOVREL_MEMBER(XPulse, xa)),
    flag("xc", KOVREL_MEMBER(XPulse, xc)),
    flag("x2", KOVREL_MEMBER(XPulse, x2)),
};

}  // namespace

constinit const FieldDesc k001_120 = describe<Doppler, init_valid<Doppler, ast_dataitem_001_120_init>>(k120Rows);
constinit const FieldDesc k001_130 =
    describe<Characteristics, init_valid<Characteristics, ast_dataitem_001_130_init>>(k130Rows);
constinit const FieldDesc k001_131 = describe<Power, init_valid<Power, ast_dataitem_001_131_init>>(k131Rows);
constinit const FieldDesc k001_141 = describe<Ttod, init_valid<Ttod, ast_dataitem_001_141_init>>(k141Rows);
constinit const FieldDesc k001_150 = describe<XPulse, init_valid<XPulse, ast_dataitem_001_150_init>>(k150Rows);

}  // namespace kovrel::fields
