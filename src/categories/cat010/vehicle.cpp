// CAT010 target shape, vehicles and sensor status: the primary plot's
// amplitude, the target's size and orientation, its elementary presences,
// the fleet of a ground vehicle and its pre-programmed message, and the
// status of the surface system.
#include <cstdio>

#include "categories/cat010/item_fields.h"
#include "categories/cat010/surface_support.h"
#include "items/item_ex.h"
#include "kovrel/cat010.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
namespace surface = kovrel::surface;
using surface::bit;
using surface::flag_bit;

constexpr AstItemId kAmplitudeId = 10131;
constexpr AstItemId kSizeId = 10270;
constexpr AstItemId kPresenceId = 10280;
constexpr AstItemId kFleetId = 10300;
constexpr AstItemId kMessageId = 10310;
constexpr AstItemId kStatusId = 10550;

constexpr double kOrientationLsb = 360.0 / 128.0;  // degrees
constexpr double kDthetaLsb = 0.15;                // degrees
constexpr uint32_t kMax7 = 0x7F;

constexpr const char *kNogoText[4] = {"OPERATIONAL", "DEGRADED", "NOGO", "UNDEFINED"};

}  // namespace

extern "C" {

// ---- I010/131 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_131_init(AstItem010_131 *out) {
    if (out) *out = AstItem010_131{};
}

KOVREL_API void ast_dataitem_010_131_decode(AstItem010_131 *out, const AstDataItem *item) {
    ast_dataitem_010_131_init(out);
    if (!out || !items::span_ok(item, 1) || item->id != kAmplitudeId) return;
    *out = AstItem010_131{1, item->data[0]};
}

KOVREL_API void ast_dataitem_010_131_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_131 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->pam > 0xFFu) return;
    buffer[0] = static_cast<uint8_t>(in->pam);
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_010_131_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_131_decode, [](TextWriter &w, const auto &a) {
        w.append("PAM:");
        w.append_uint(a.pam);
    });
}

KOVREL_API void ast_dataitem_010_131_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_131_decode, [](TextWriter &w, const auto &a) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-7]", "AMPLITUDE", "%u", a.pam);
        t.end();
    });
}

// ---- I010/270 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_270_init(AstItem010_270 *out) {
    if (!out) return;
    *out = AstItem010_270{};
    out->orientation_lsb = kOrientationLsb;
}

KOVREL_API void ast_dataitem_010_270_decode(AstItem010_270 *out, const AstDataItem *item) {
    ast_dataitem_010_270_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kSizeId) return;
    // Seven bits of each octet; the length decides which octets are there.
    const uint8_t *p = item->data;
    out->length = p[0] >> 1;
    if (item->length >= 2) {
        out->orientation_present = 1;
        out->orientation_raw = p[1] >> 1;
        out->orientation = out->orientation_raw * kOrientationLsb;
    }
    if (item->length >= 3) {
        out->width_present = 1;
        out->width = p[2] >> 1;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_010_270_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_270 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->length > kMax7 || in->orientation_raw > kMax7 || in->width > kMax7) return;
    // The width is the third octet: it cannot come without the orientation.
    if (in->width_present && !in->orientation_present) return;
    const size_t length = in->width_present ? 3 : (in->orientation_present ? 2 : 1);
    if (size < length) return;
    const uint8_t o[3] = {static_cast<uint8_t>(in->length << 1), static_cast<uint8_t>(in->orientation_raw << 1),
                          static_cast<uint8_t>(in->width << 1)};
    for (size_t i = 0; i < length; ++i) buffer[i] = static_cast<uint8_t>(o[i] | (i + 1 < length ? 1u : 0u));
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_010_270_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_270_decode, [](TextWriter &w, const auto &s) {
        w.append("LEN:");
        w.append_uint(s.length);
        if (s.orientation_present) {
            w.append(" ORI:");
            w.append_fixed(s.orientation, 1);
        }
        if (s.width_present) {
            w.append(" WID:");
            w.append_uint(s.width);
        }
    });
}

KOVREL_API void ast_dataitem_010_270_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_270_decode, [](TextWriter &w, const auto &s) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-6]", "LENGTH LSB=M", "%u", s.length);
        if (s.orientation_present) {
            t.rowf("Bit[8-14]", "ORIENTATION LSB=360/128DEG", "%u", s.orientation_raw);
            t.rowf("Bit[8-14]", "ORIENTATION LSB=DEG", "%.2f", s.orientation);
        }
        if (s.width_present) t.rowf("Bit[16-22]", "WIDTH LSB=M", "%u", s.width);
        t.end();
    });
}

// ---- I010/280 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_280_init(AstItem010_280 *out) {
    if (out) *out = AstItem010_280{};
}

KOVREL_API void ast_dataitem_010_280_decode(AstItem010_280 *out, const AstDataItem *item) {
    ast_dataitem_010_280_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kPresenceId) return;
    const uint32_t count = item->data[0];
    if (item->length != 1 + 2ull * count) return;
    out->count = count;
    for (uint32_t i = 0; i < count; ++i) {
        AstItem010_280Presence &p = out->presences[i];
        p.drho = static_cast<int8_t>(item->data[1 + 2 * i]);
        p.dtheta_raw = static_cast<int8_t>(item->data[2 + 2 * i]);
        p.dtheta = p.dtheta_raw * kDthetaLsb;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_010_280_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_280 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->count == 0 || in->count > AST_ITEM010_280_MAX) return;
    const size_t length = 1 + 2 * static_cast<size_t>(in->count);
    if (size < length) return;
    for (uint32_t i = 0; i < in->count; ++i)
        if (!surface::fits_signed(in->presences[i].drho, 8) || !surface::fits_signed(in->presences[i].dtheta_raw, 8))
            return;
    buffer[0] = static_cast<uint8_t>(in->count);
    for (uint32_t i = 0; i < in->count; ++i) {
        buffer[1 + 2 * i] = static_cast<uint8_t>(in->presences[i].drho & 0xFF);
        buffer[2 + 2 * i] = static_cast<uint8_t>(in->presences[i].dtheta_raw & 0xFF);
    }
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_010_280_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_280_decode, [](TextWriter &w, const auto &p) {
        w.append("PRESENCES:");
        w.append_uint(p.count);
    });
}

KOVREL_API void ast_dataitem_010_280_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_280_decode, [](TextWriter &w, const auto &p) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        for (uint32_t i = 0; i < p.count && !w.full(); ++i) {
            char bits[32], name[32];
            std::snprintf(bits, sizeof bits, "Bit[%u-%u]", 8 + 16 * i, 15 + 16 * i);
            std::snprintf(name, sizeof name, "DRHO_%u LSB=M", i + 1);
            t.rowf(bits, name, "%d", p.presences[i].drho);
            std::snprintf(bits, sizeof bits, "Bit[%u-%u]", 16 + 16 * i, 23 + 16 * i);
            std::snprintf(name, sizeof name, "DTHETA_%u LSB=DEG", i + 1);
            t.rowf(bits, name, "%.2f", p.presences[i].dtheta);
        }
        t.end();
    });
}

// ---- I010/300 and I010/310 -----------------------------------------------------

KOVREL_API void ast_dataitem_010_300_init(AstItem010_300 *out) {
    if (out) *out = AstItem010_300{};
}

KOVREL_API void ast_dataitem_010_300_decode(AstItem010_300 *out, const AstDataItem *item) {
    surface::fleet_decode(out, item, kFleetId);
}

KOVREL_API void ast_dataitem_010_300_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_300 *in) {
    surface::fleet_encode(out, buffer, size, in);
}

KOVREL_API void ast_dataitem_010_300_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_300_decode,
                    [](TextWriter &w, const auto &f) { surface::fleet_summary(w, f); });
}

KOVREL_API void ast_dataitem_010_300_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_300_decode,
                    [](TextWriter &w, const auto &f) { surface::fleet_detail(w, f); });
}

KOVREL_API void ast_dataitem_010_310_init(AstItem010_310 *out) {
    if (out) *out = AstItem010_310{};
}

KOVREL_API void ast_dataitem_010_310_decode(AstItem010_310 *out, const AstDataItem *item) {
    surface::message_decode(out, item, kMessageId);
}

KOVREL_API void ast_dataitem_010_310_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_310 *in) {
    surface::message_encode(out, buffer, size, in);
}

KOVREL_API void ast_dataitem_010_310_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_310_decode,
                    [](TextWriter &w, const auto &m) { surface::message_summary(w, m); });
}

KOVREL_API void ast_dataitem_010_310_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_310_decode,
                    [](TextWriter &w, const auto &m) { surface::message_detail(w, m); });
}

// ---- I010/550 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_550_init(AstItem010_550 *out) {
    if (out) *out = AstItem010_550{};
}

KOVREL_API void ast_dataitem_010_550_decode(AstItem010_550 *out, const AstDataItem *item) {
    ast_dataitem_010_550_init(out);
    if (!out || !items::span_ok(item, 1) || item->id != kStatusId) return;
    const uint8_t s = item->data[0];
    *out = AstItem010_550{1, static_cast<uint8_t>(s >> 6), bit(s, 5), bit(s, 4), bit(s, 3), bit(s, 2)};
}

KOVREL_API void ast_dataitem_010_550_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_550 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->nogo > 3) return;
    buffer[0] = static_cast<uint8_t>((in->nogo << 6) | flag_bit(in->ovl, 5) | flag_bit(in->tsv, 4) |
                                     flag_bit(in->div, 3) | flag_bit(in->ttf, 2));
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_010_550_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_550_decode, [](TextWriter &w, const auto &s) {
        w.append("STATUS:");
        w.append(kNogoText[s.nogo & 3u]);
        surface::Words words(w);
        words.add_if(s.ovl, "OVERLOAD");
        words.add_if(s.tsv, "TIME_SOURCE_INVALID");
        words.add_if(s.div, "DIVERSITY_DEGRADED");
        words.add_if(s.ttf, "TEST_TARGET_FAILURE");
    });
}

KOVREL_API void ast_dataitem_010_550_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_550_decode, [](TextWriter &w, const auto &s) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0-1]", "OPERATIONAL_RELEASE", kNogoText[s.nogo & 3u]);
        t.rowf("Bit[2]", "OVERLOAD", "%d", s.ovl);
        t.rowf("Bit[3]", "TIME_SOURCE_INVALID", "%d", s.tsv);
        t.rowf("Bit[4]", "DIVERSITY_DEGRADED", "%d", s.div);
        t.rowf("Bit[5]", "TEST_TARGET_FAILURE", "%d", s.ttf);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(010_131, AstItem010_131, ast_dataitem_010_131_decode)
KOVREL_ENCODE_EX(010_131, AstItem010_131, ast_dataitem_010_131_encode)
KOVREL_DECODE_EX(010_270, AstItem010_270, ast_dataitem_010_270_decode)
KOVREL_ENCODE_EX(010_270, AstItem010_270, ast_dataitem_010_270_encode)
KOVREL_DECODE_EX(010_280, AstItem010_280, ast_dataitem_010_280_decode)
KOVREL_ENCODE_EX(010_280, AstItem010_280, ast_dataitem_010_280_encode)
KOVREL_DECODE_EX(010_300, AstItem010_300, ast_dataitem_010_300_decode)
KOVREL_ENCODE_EX(010_300, AstItem010_300, ast_dataitem_010_300_encode)
KOVREL_DECODE_EX(010_310, AstItem010_310, ast_dataitem_010_310_decode)
KOVREL_ENCODE_EX(010_310, AstItem010_310, ast_dataitem_010_310_encode)
KOVREL_DECODE_EX(010_550, AstItem010_550, ast_dataitem_010_550_decode)
KOVREL_ENCODE_EX(010_550, AstItem010_550, ast_dataitem_010_550_encode)

namespace kovrel::fields {

namespace {

using Amplitude = AstItem010_131;
using Size = AstItem010_270;
using Presence = AstItem010_280;
using Element = AstItem010_280Presence;
using Fleet = AstItem010_300;
using Message = AstItem010_310;
using Status = AstItem010_550;

const char *nogo_name(uint32_t c) { return surface::name_of(kNogoText, c); }

constexpr FieldRow kAmplitudeRows[] = {integer("pam", KOVREL_MEMBER(Amplitude, pam)).width(8)};

constexpr FieldRow kSizeRows[] = {
    integer("length", KOVREL_MEMBER(Size, length), "m").width(7),
    scaled("orientation", KOVREL_MEMBER(Size, orientation_raw), kOrientationLsb, "deg")
        .width(7)
        .when(KOVREL_MEMBER(Size, orientation_present)),
    integer("width", KOVREL_MEMBER(Size, width), "m").width(7).when(KOVREL_MEMBER(Size, width_present)),
};

constexpr FieldRow kElementRows[] = {
    integer("drho", KOVREL_MEMBER(Element, drho), "m").width(8),
    scaled("dtheta", KOVREL_MEMBER(Element, dtheta_raw), kDthetaLsb, "deg").width(8),
};
constinit const FieldDesc kElement = describe<Element>(kElementRows);

constexpr FieldRow kPresenceRows[] = {
    array("presences", KOVREL_MEMBER(Presence, presences), KOVREL_MEMBER(Presence, count), sizeof(Element),
          AST_ITEM010_280_MAX, kElement),
};

constexpr FieldRow kFleetRows[] = {
    enumeration("vfi", KOVREL_MEMBER(Fleet, vfi), surface::fleet_name).width(8),
};

constexpr FieldRow kMessageRows[] = {
    flag("trb", KOVREL_MEMBER(Message, trb)),
    enumeration("msg", KOVREL_MEMBER(Message, msg), surface::message_name).width(7),
};

constexpr FieldRow kStatusRows[] = {
    enumeration("nogo", KOVREL_MEMBER(Status, nogo), nogo_name).width(2),
    flag("ovl", KOVREL_MEMBER(Status, ovl)),
    flag("tsv", KOVREL_MEMBER(Status, tsv)),
    flag("div", KOVREL_MEMBER(Status, div)),
    flag("ttf", KOVREL_MEMBER(Status, ttf)),
};

}  // namespace

constinit const FieldDesc k010_131 =
    describe<Amplitude, init_valid<Amplitude, ast_dataitem_010_131_init>>(kAmplitudeRows);
constinit const FieldDesc k010_270 = describe<Size, init_valid<Size, ast_dataitem_010_270_init>>(kSizeRows);
constinit const FieldDesc k010_280 =
    describe<Presence, init_valid<Presence, ast_dataitem_010_280_init>>(kPresenceRows);
constinit const FieldDesc k010_300 = describe<Fleet, init_valid<Fleet, ast_dataitem_010_300_init>>(kFleetRows);
constinit const FieldDesc k010_310 = describe<Message, init_valid<Message, ast_dataitem_010_310_init>>(kMessageRows);
constinit const FieldDesc k010_550 = describe<Status, init_valid<Status, ast_dataitem_010_550_init>>(kStatusRows);

}  // namespace kovrel::fields

// I010/091 Measured Height: the common height layout, written from its raw value.
extern "C" KOVREL_API void ast_dataitem_010_091_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                       const AstHeight *in) {
    kovrel::surface::height_encode(out, buffer, size, in);
}

KOVREL_ENCODE_EX(010_091, AstHeight, ast_dataitem_010_091_encode)
