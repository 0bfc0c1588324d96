// CAT021 altitudes, speeds and angles: geometric altitude (140), flight
// level (145), selected altitude (146), air speed (150), true air speed
// (151), magnetic heading (152), the airborne ground vector (160) and its
// form in editions up to 0.26 (21911), and the roll angle (230).
#include "categories/cat021/support.h"
#include "items/item_ex.h"
#include "kovrel/cat021.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
using kovrel::cat021::Detail;
using kovrel::cat021::fits_signed;
using kovrel::cat021::fits_unsigned;
using kovrel::cat021::sign_extend;
namespace items = kovrel::items;

constexpr double kAltitudeLsb = 6.25;            // ft
constexpr double kLevelLsbFeet = 25.0;           // ft, 1/4 FL
constexpr double kQuarter = 0.25;                // FL
constexpr double kSpeedLsb = 0.2197265625;       // kt: 2^-14 NM/s x 3600
constexpr double kMachLsb = 0.001;
constexpr double kAngleLsb = 0.0054931640625;    // degrees: 360 / 2^16
constexpr double kRollLsb = 0.01;                // degrees

// The two octets of a two-octet item of identifier id, big-endian.
bool word_of(const AstDataItem *item, AstItemId id, uint32_t *word) {
    if (!items::span_ok(item, 2) || item->id != id) return false;
    *word = (uint32_t{item->data[0]} << 8) | item->data[1];
    return true;
}

void put16(uint8_t *p, uint32_t v) {
    p[0] = static_cast<uint8_t>(v >> 8);
    p[1] = static_cast<uint8_t>(v);
}

template <typename T>
bool begin(AstDataItem *out, uint8_t *buffer, size_t size, const T *in, size_t length) {
    return items::encode_begin(out, buffer, size, length) && in && in->valid == 1;
}

void done2(AstDataItem *out, uint8_t *buffer, uint32_t word) {
    put16(buffer, word);
    items::encode_done(out, buffer, 2);
}

}  // namespace

extern "C" {

// ---- I021/140 Geometric Altitude --------------------------------------------------

KOVREL_API void ast_dataitem_021_140_init(AstItem021_140 *out) {
    if (!out) return;
    *out = AstItem021_140{};
    out->lsb = kAltitudeLsb;
}

KOVREL_API void ast_dataitem_021_140_decode(AstItem021_140 *out, const AstDataItem *item) {
    ast_dataitem_021_140_init(out);
    uint32_t w = 0;
    if (!out || !word_of(item, 21140, &w)) return;
    out->raw = sign_extend(w, 16);
    out->value = out->raw * kAltitudeLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_140_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_140 *in) {
    if (!begin(out, buffer, size, in, 2) || !fits_signed(in->raw, 16)) return;
    done2(out, buffer, static_cast<uint32_t>(in->raw) & 0xFFFFu);
}

KOVREL_API void ast_dataitem_021_140_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_140_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("ALTITUDE:%.2fFT", d.value); });
}

KOVREL_API void ast_dataitem_021_140_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_140_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-16]", "GA", "GEOMETRIC_ALTITUDE", "%.2f ft", d.value);
        t.end();
    });
}

// ---- I021/145 Flight Level ------------------------------------------------------

KOVREL_API void ast_dataitem_021_145_init(AstItem021_145 *out) {
    if (!out) return;
    *out = AstItem021_145{};
    out->lsb = kLevelLsbFeet;
}

KOVREL_API void ast_dataitem_021_145_decode(AstItem021_145 *out, const AstDataItem *item) {
    ast_dataitem_021_145_init(out);
    uint32_t w = 0;
    if (!out || !word_of(item, 21145, &w)) return;
    out->raw = sign_extend(w, 16);
    out->value = static_cast<int64_t>(out->raw) * 25;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_145_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_145 *in) {
    if (!begin(out, buffer, size, in, 2) || !fits_signed(in->raw, 16)) return;
    done2(out, buffer, static_cast<uint32_t>(in->raw) & 0xFFFFu);
}

KOVREL_API void ast_dataitem_021_145_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_145_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("LEVEL:%.2fFL", d.raw * kQuarter); });
}

KOVREL_API void ast_dataitem_021_145_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_145_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-16]", "FL", "FLIGHT_LEVEL", "%.2f FL", d.raw * kQuarter);
        t.end();
    });
}

// ---- I021/146 Selected Altitude ---------------------------------------------------

KOVREL_API void ast_dataitem_021_146_init(AstItem021_146 *out) {
    if (out) *out = AstItem021_146{};
}

KOVREL_API void ast_dataitem_021_146_decode(AstItem021_146 *out, const AstDataItem *item) {
    ast_dataitem_021_146_init(out);
    uint32_t w = 0;
    if (!out || !word_of(item, 21146, &w)) return;
    out->sas = (w >> 15) & 1u;
    out->source = ast_selected_altitude_source_from_int((w >> 13) & 3u);
    out->altitude = sign_extend(w, 13);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_146_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_146 *in) {
    if (!begin(out, buffer, size, in, 2) || in->source > 3 || !fits_signed(in->altitude, 13)) return;
    done2(out, buffer, (in->sas ? 0x8000u : 0u) | (in->source << 13) | (static_cast<uint32_t>(in->altitude) & 0x1FFFu));
}

KOVREL_API void ast_dataitem_021_146_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_146_decode, [](TextWriter &w, const auto &d) {
        w.appendf("SELECTED_ALTITUDE:%.2fFL", d.altitude * kQuarter);
    });
}

KOVREL_API void ast_dataitem_021_146_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_146_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.flag("Bit[1]", "SAS", "SOURCE_INFORMATION_PROVIDED", d.sas);
        t.row("Bit[2-3]", "SOURCE", "SOURCE", ast_selected_altitude_source_to_str(d.source, 1));
        t.rowf("Bit[4-16]", "ALT", "ALTITUDE", "%d ft", static_cast<int>(d.altitude * 25));
        t.end();
    });
}

// ---- I021/150 Air Speed -----------------------------------------------------------

KOVREL_API void ast_dataitem_021_150_init(AstItem021_150 *out) {
    if (!out) return;
    *out = AstItem021_150{};
    out->ias_lsb = kSpeedLsb;
    out->mach_lsb = kMachLsb;
}

// The indicated air speed arrives in 2^-14 NM/s and is held in knots, the
// unit of every other speed of the category.
KOVREL_API void ast_dataitem_021_150_decode(AstItem021_150 *out, const AstDataItem *item) {
    ast_dataitem_021_150_init(out);
    uint32_t w = 0;
    if (!out || !word_of(item, 21150, &w)) return;
    out->im = (w >> 15) & 1u;
    out->raw = w & 0x7FFFu;
    if (out->im) {
        out->mach_valid = 1;
        out->mach = out->raw * kMachLsb;
    } else {
        out->ias_valid = 1;
        out->ias = out->raw * kSpeedLsb;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_150_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_150 *in) {
    if (!begin(out, buffer, size, in, 2) || in->raw > 0x7FFFu) return;
    done2(out, buffer, (in->im ? 0x8000u : 0u) | in->raw);
}

KOVREL_API void ast_dataitem_021_150_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_150_decode, [](TextWriter &w, const auto &d) {
        if (d.im)
            w.appendf("MACH:%.3f", d.mach);
        else
            w.appendf("IAS:%.2fKT", d.ias);
    });
}

KOVREL_API void ast_dataitem_021_150_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_150_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.row("Bit[1]", "IM", "IAS_OR_MACH", d.im ? "MACH" : "IAS");
        if (d.im)
            t.rowf("Bit[2-16]", "MACH", "MACH_NUMBER", "%.3f", d.mach);
        else
            t.rowf("Bit[2-16]", "IAS", "INDICATED_AIR_SPEED", "%.2f kt", d.ias);
        t.end();
    });
}

// ---- I021/151 True Air Speed ------------------------------------------------------

KOVREL_API void ast_dataitem_021_151_init(AstItem021_151 *out) {
    if (out) *out = AstItem021_151{};
}

KOVREL_API void ast_dataitem_021_151_decode(AstItem021_151 *out, const AstDataItem *item) {
    ast_dataitem_021_151_init(out);
    uint32_t w = 0;
    if (!out || !word_of(item, 21151, &w)) return;
    out->re = (w >> 15) & 1u;
    out->tas = static_cast<uint16_t>(w & 0x7FFFu);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_151_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_151 *in) {
    if (!begin(out, buffer, size, in, 2) || in->tas > 0x7FFFu) return;
    done2(out, buffer, (in->re ? 0x8000u : 0u) | in->tas);
}

KOVREL_API void ast_dataitem_021_151_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_151_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("TAS:%dKT", static_cast<int>(d.tas)); });
}

KOVREL_API void ast_dataitem_021_151_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_151_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.flag("Bit[1]", "RE", "RANGE_EXCEEDED", d.re);
        t.rowf("Bit[2-16]", "TAS", "TRUE_AIR_SPEED", "%u kt", static_cast<unsigned>(d.tas));
        t.end();
    });
}

// ---- I021/152 Magnetic Heading -----------------------------------------------------

KOVREL_API void ast_dataitem_021_152_init(AstItem021_152 *out) {
    if (out) *out = AstItem021_152{};
}

KOVREL_API void ast_dataitem_021_152_decode(AstItem021_152 *out, const AstDataItem *item) {
    ast_dataitem_021_152_init(out);
    uint32_t w = 0;
    if (!out || !word_of(item, 21152, &w)) return;
    out->raw = w;
    out->heading = w * kAngleLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_152_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_152 *in) {
    if (!begin(out, buffer, size, in, 2) || in->raw > 0xFFFFu) return;
    done2(out, buffer, in->raw);
}

KOVREL_API void ast_dataitem_021_152_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_152_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("HDG:%03.2fDEG", d.heading); });
}

KOVREL_API void ast_dataitem_021_152_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_152_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-16]", "MH", "MAGNETIC_HEADING", "%.4f deg", d.heading);
        t.end();
    });
}

// ---- I021/160 Airborne Ground Vector and 21911 ----------------------------------------

KOVREL_API void ast_dataitem_021_160_init(AstItem021_160 *out) {
    if (!out) return;
    *out = AstItem021_160{};
    out->speed_lsb = kSpeedLsb;
    out->angle_lsb = kAngleLsb;
}

KOVREL_API void ast_dataitem_021_160_decode(AstItem021_160 *out, const AstDataItem *item) {
    ast_dataitem_021_160_init(out);
    if (!out || !items::span_ok(item, 4) || item->id != 21160) return;
    const uint8_t *p = item->data;
    out->re = p[0] >> 7;
    out->speed_raw = ((uint32_t{p[0]} << 8) | p[1]) & 0x7FFFu;
    out->speed = out->speed_raw * kSpeedLsb;
    out->angle_raw = (uint32_t{p[2]} << 8) | p[3];
    out->angle = out->angle_raw * kAngleLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_160_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_160 *in) {
    if (!begin(out, buffer, size, in, 4) || in->speed_raw > 0x7FFFu || in->angle_raw > 0xFFFFu) return;
    put16(buffer, (in->re ? 0x8000u : 0u) | in->speed_raw);
    put16(buffer + 2, in->angle_raw);
    items::encode_done(out, buffer, 4);
}

KOVREL_API void ast_dataitem_021_160_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_160_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("SPD:%.2fKT AGL:%03.2fDEG", d.speed, d.angle); });
}

KOVREL_API void ast_dataitem_021_160_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_160_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.flag("Bit[1]", "RE", "RANGE_EXCEEDED", d.re);
        t.rowf("Bit[2-16]", "GS", "GROUND_SPEED", "%.2f kt", d.speed);
        t.rowf("Bit[17-32]", "TA", "TRACK_ANGLE", "%.4f deg", d.angle);
        t.end();
    });
}

KOVREL_API void ast_dataitem_021_A11_init(AstItem021_A11 *out) {
    if (!out) return;
    *out = AstItem021_A11{};
    out->speed_lsb = kSpeedLsb;
    out->angle_lsb = kAngleLsb;
}

KOVREL_API void ast_dataitem_021_A11_decode(AstItem021_A11 *out, const AstDataItem *item) {
    ast_dataitem_021_A11_init(out);
    if (!out || !items::span_ok(item, 4) || item->id != 21911) return;
    const uint8_t *p = item->data;
    out->speed_raw = sign_extend((uint32_t{p[0]} << 8) | p[1], 16);
    out->speed = out->speed_raw * kSpeedLsb;
    out->angle_raw = (uint32_t{p[2]} << 8) | p[3];
    out->angle = out->angle_raw * kAngleLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_A11_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A11 *in) {
    if (!begin(out, buffer, size, in, 4) || !fits_signed(in->speed_raw, 16) || in->angle_raw > 0xFFFFu) return;
    put16(buffer, static_cast<uint32_t>(in->speed_raw) & 0xFFFFu);
    put16(buffer + 2, in->angle_raw);
    items::encode_done(out, buffer, 4);
}

KOVREL_API void ast_dataitem_021_A11_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A11_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("SPD:%.2fKT AGL:%03.2fDEG", d.speed, d.angle); });
}

KOVREL_API void ast_dataitem_021_A11_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A11_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-16]", "GS", "GROUND_SPEED", "%.2f kt", d.speed);
        t.rowf("Bit[17-32]", "TA", "TRACK_ANGLE", "%.4f deg", d.angle);
        t.end();
    });
}

// ---- I021/230 Roll Angle --------------------------------------------------------------

KOVREL_API void ast_dataitem_021_230_init(AstItem021_230 *out) {
    if (!out) return;
    *out = AstItem021_230{};
    out->lsb = kRollLsb;
}

KOVREL_API void ast_dataitem_021_230_decode(AstItem021_230 *out, const AstDataItem *item) {
    ast_dataitem_021_230_init(out);
    uint32_t w = 0;
    if (!out || !word_of(item, 21230, &w)) return;
    out->raw = sign_extend(w, 16);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_230_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_230 *in) {
    if (!begin(out, buffer, size, in, 2) || !fits_signed(in->raw, 16)) return;
    done2(out, buffer, static_cast<uint32_t>(in->raw) & 0xFFFFu);
}

KOVREL_API void ast_dataitem_021_230_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_230_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("RA:%.2fDEG", d.raw * kRollLsb); });
}

KOVREL_API void ast_dataitem_021_230_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_230_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-16]", "RA", "ROLL_ANGLE", "%.2f deg", d.raw * kRollLsb);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(021_140, AstItem021_140, ast_dataitem_021_140_decode)
KOVREL_ENCODE_EX(021_140, AstItem021_140, ast_dataitem_021_140_encode)
KOVREL_DECODE_EX(021_145, AstItem021_145, ast_dataitem_021_145_decode)
KOVREL_ENCODE_EX(021_145, AstItem021_145, ast_dataitem_021_145_encode)
KOVREL_DECODE_EX(021_146, AstItem021_146, ast_dataitem_021_146_decode)
KOVREL_ENCODE_EX(021_146, AstItem021_146, ast_dataitem_021_146_encode)
KOVREL_DECODE_EX(021_150, AstItem021_150, ast_dataitem_021_150_decode)
KOVREL_ENCODE_EX(021_150, AstItem021_150, ast_dataitem_021_150_encode)
KOVREL_DECODE_EX(021_151, AstItem021_151, ast_dataitem_021_151_decode)
KOVREL_ENCODE_EX(021_151, AstItem021_151, ast_dataitem_021_151_encode)
KOVREL_DECODE_EX(021_152, AstItem021_152, ast_dataitem_021_152_decode)
KOVREL_ENCODE_EX(021_152, AstItem021_152, ast_dataitem_021_152_encode)
KOVREL_DECODE_EX(021_160, AstItem021_160, ast_dataitem_021_160_decode)
KOVREL_ENCODE_EX(021_160, AstItem021_160, ast_dataitem_021_160_encode)
KOVREL_DECODE_EX(021_A11, AstItem021_A11, ast_dataitem_021_A11_decode)
KOVREL_ENCODE_EX(021_A11, AstItem021_A11, ast_dataitem_021_A11_encode)
KOVREL_DECODE_EX(021_230, AstItem021_230, ast_dataitem_021_230_decode)
KOVREL_ENCODE_EX(021_230, AstItem021_230, ast_dataitem_021_230_encode)

namespace kovrel::fields {

namespace {

const char *source_name(uint32_t v) { return v <= 3 ? ast_selected_altitude_source_to_str(v, 0) : nullptr; }

using T140 = AstItem021_140;
constexpr FieldRow k140[] = {scaled("ga", KOVREL_MEMBER(T140, raw), kAltitudeLsb, "ft").width(16)};
using T145 = AstItem021_145;
constexpr FieldRow k145[] = {scaled("fl", KOVREL_MEMBER(T145, raw), kQuarter, "FL").width(16)};
using T146 = AstItem021_146;
constexpr FieldRow k146[] = {
    flag("sas", KOVREL_MEMBER(T146, sas)),
    enumeration("src", KOVREL_MEMBER(T146, source), source_name).width(2),
    scaled("alt", KOVREL_MEMBER(T146, altitude), kQuarter, "FL").width(13),
};
using T150 = AstItem021_150;
constexpr FieldRow k150[] = {
    flag("im", KOVREL_MEMBER(T150, im)),
    scaled("ias", KOVREL_MEMBER(T150, raw), kSpeedLsb, "kt").width(15).when(KOVREL_MEMBER(T150, ias_valid)),
    scaled("mach", KOVREL_MEMBER(T150, raw), kMachLsb).width(15).when(KOVREL_MEMBER(T150, mach_valid)),
};
using T151 = AstItem021_151;
constexpr FieldRow k151[] = {
    flag("re", KOVREL_MEMBER(T151, re)),
    integer("tas", KOVREL_MEMBER(T151, tas), "kt").width(15),
};
using T152 = AstItem021_152;
constexpr FieldRow k152[] = {scaled("mh", KOVREL_MEMBER(T152, raw), kAngleLsb, "deg").width(16)};
using T160 = AstItem021_160;
constexpr FieldRow k160[] = {
    flag("re", KOVREL_MEMBER(T160, re)),
    scaled("gs", KOVREL_MEMBER(T160, speed_raw), kSpeedLsb, "kt").width(15),
    scaled("ta", KOVREL_MEMBER(T160, angle_raw), kAngleLsb, "deg").width(16),
};
using TA11 = AstItem021_A11;
constexpr FieldRow kA11[] = {
    scaled("gs", KOVREL_MEMBER(TA11, speed_raw), kSpeedLsb, "kt").width(16),
    scaled("ta", KOVREL_MEMBER(TA11, angle_raw), kAngleLsb, "deg").width(16),
};
using T230 = AstItem021_230;
constexpr FieldRow k230[] = {scaled("ra", KOVREL_MEMBER(T230, raw), kRollLsb, "deg").width(16)};

}  // namespace

constinit const FieldDesc k021_140 = describe<T140, init_valid<T140, ast_dataitem_021_140_init>>(k140);
constinit const FieldDesc k021_145 = describe<T145, init_valid<T145, ast_dataitem_021_145_init>>(k145);
constinit const FieldDesc k021_146 = describe<T146, init_valid<T146, ast_dataitem_021_146_init>>(k146);
constinit const FieldDesc k021_150 = describe<T150, init_valid<T150, ast_dataitem_021_150_init>>(k150);
constinit const FieldDesc k021_151 = describe<T151, init_valid<T151, ast_dataitem_021_151_init>>(k151);
constinit const FieldDesc k021_152 = describe<T152, init_valid<T152, ast_dataitem_021_152_init>>(k152);
constinit const FieldDesc k021_160 = describe<T160, init_valid<T160, ast_dataitem_021_160_init>>(k160);
constinit const FieldDesc k021_A11 = describe<TA11, init_valid<TA11, ast_dataitem_021_A11_init>>(kA11);
constinit const FieldDesc k021_230 = describe<T230, init_valid<T230, ast_dataitem_021_230_init>>(k230);

}  // namespace kovrel::fields
