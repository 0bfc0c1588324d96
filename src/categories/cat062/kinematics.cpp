// CAT062 elementary items of the track's kinematics and identity: the
// geometric and barometric altitudes and the measured flight level
// (I062/130, 135, 136), the mode of movement (200), the acceleration (210),
// the rate of climb or descent (220), size and orientation (270), the
// vehicle fleet (300) and the composed track number (510).
#include <cstdio>

#include "categories/cat062/item_fields.h"
#include "categories/cat062/support.h"
#include "items/item_ex.h"
#include "kovrel/cat062.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using kovrel::cat062::octets_s;

constexpr double kGeometricLsb = 6.25;  // ft (I062/130)
constexpr double kLevelLsb = 25.0;      // ft: a quarter of a flight level (I062/135, 136)
constexpr double kAccelerationLsb = 0.25;  // m/s2
constexpr double kRateLsb = 6.25;          // ft/min
constexpr double kOrientationLsb = 360.0 / 128.0;  // degrees

constexpr const char *kTransText[4] = {"CONSTANT", "RIGHT", "LEFT", "UNDETERMINED"};
constexpr const char *kLongText[4] = {"CONSTANT", "INCREASING", "DECREASING", "UNDETERMINED"};
constexpr const char *kVertText[4] = {"LEVEL", "CLIMB", "DESCENT", "UNDETERMINED"};

bool item_is(const AstDataItem *item, AstItemId id, uint64_t length) {
    return items::span_ok(item, length) && item->id == id;
}

}  // namespace

extern "C" {

// ---- I062/130 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_130_init(AstItem062_130 *out) {
    if (out) *out = AstItem062_130{0, 0, kGeometricLsb, 0.0};
}

KOVREL_API void ast_dataitem_062_130_decode(AstItem062_130 *out, const AstDataItem *item) {
    ast_dataitem_062_130_init(out);
    if (!out || !item_is(item, 62130, 2)) return;
    out->raw = octets_s(item->data, 2);
    out->altitude = out->raw * kGeometricLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_062_130_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_130_decode,
                    [](TextWriter &w, const auto &a) { w.appendf("LEVEL:%.2f LSB:FT", a.altitude); });
}

KOVREL_API void ast_dataitem_062_130_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_130_decode, [](TextWriter &w, const auto &a) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "GEOMETRIC_ALTITUDE LSB=FT", "%.2f", a.altitude);
        t.end();
    });
}

// ---- I062/135 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_135_init(AstItem062_135 *out) {
    if (out) *out = AstItem062_135{0, 0, 0, kLevelLsb, 0.0};
}

KOVREL_API void ast_dataitem_062_135_decode(AstItem062_135 *out, const AstDataItem *item) {
    ast_dataitem_062_135_init(out);
    if (!out || !item_is(item, 62135, 2)) return;
    int32_t raw = 0;
    ast_twos_complement_decode_ex(&raw, item->data, 2, 1);
    out->qnh = item->data[0] >> 7;
    out->raw = raw;
    out->altitude = raw * kLevelLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_062_135_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_135_decode, [](TextWriter &w, const auto &a) {
        w.appendf("ALTITUDE:%d LSB:FT", static_cast<int>(a.raw * 25));
        if (a.qnh) w.append(" QNH");
    });
}

KOVREL_API void ast_dataitem_062_135_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_135_decode, [](TextWriter &w, const auto &a) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "QNH_CORRECTION", "%d", a.qnh);
        t.rowf("Bit[1-15]", "BAROMETRIC_ALTITUDE LSB=FT", "%d", static_cast<int>(a.raw * 25));
        t.end();
    });
}

// ---- I062/136 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_136_init(AstItem062_136 *out) {
    if (out) *out = AstItem062_136{0, 0, kLevelLsb, 0.0};
}

KOVREL_API void ast_dataitem_062_136_decode(AstItem062_136 *out, const AstDataItem *item) {
    ast_dataitem_062_136_init(out);
    if (!out || !item_is(item, 62136, 2)) return;
    out->raw = octets_s(item->data, 2);
    out->level = out->raw * kLevelLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_062_136_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_136_decode, [](TextWriter &w, const auto &a) {
        w.appendf("LEVEL:%d LSB:FT", static_cast<int>(a.raw * 25));
    });
}

KOVREL_API void ast_dataitem_062_136_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_136_decode, [](TextWriter &w, const auto &a) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "FLIGHT_LEVEL LSB=FL", "%.2f", a.raw / 4.0);
        t.rowf("Bit[0-15]", "FLIGHT_LEVEL LSB=FT", "%d", static_cast<int>(a.raw * 25));
        t.end();
    });
}

// ---- I062/200 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_200_init(AstItem062_200 *out) {
    if (out) *out = AstItem062_200{};
}

KOVREL_API void ast_dataitem_062_200_decode(AstItem062_200 *out, const AstDataItem *item) {
    ast_dataitem_062_200_init(out);
    if (!out || !item_is(item, 62200, 1)) return;
    const uint8_t o = item->data[0];
    *out = AstItem062_200{1, static_cast<uint32_t>(o >> 6), (o >> 4) & 3u, (o >> 2) & 3u,
                          static_cast<uint8_t>((o >> 1) & 1u)};
}

KOVREL_API void ast_dataitem_062_200_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_200_decode, [](TextWriter &w, const auto &m) {
        w.appendf("TRANS:%s LONG:%s VERT:%s", kTransText[m.trans & 3u], kLongText[m.lon & 3u], kVertText[m.vert & 3u]);
        if (m.adf) w.append(" ADF");
    });
}

KOVREL_API void ast_dataitem_062_200_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_200_decode, [](TextWriter &w, const auto &m) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0-1]", "TRANSVERSAL_ACCELERATION", kTransText[m.trans & 3u]);
        t.row("Bit[2-3]", "LONGITUDINAL_ACCELERATION", kLongText[m.lon & 3u]);
        t.row("Bit[4-5]", "VERTICAL_RATE", kVertText[m.vert & 3u]);
        t.rowf("Bit[6]", "ALTITUDE_DISCREPANCY", "%d", m.adf);
        t.end();
    });
}

// ---- I062/210 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_210_init(AstItem062_210 *out) {
    if (out) *out = AstItem062_210{};
}

KOVREL_API void ast_dataitem_062_210_decode(AstItem062_210 *out, const AstDataItem *item) {
    ast_dataitem_062_210_init(out);
    if (!out || !item_is(item, 62210, 2)) return;
    const int32_t ax = static_cast<int8_t>(item->data[0]);
    const int32_t ay = static_cast<int8_t>(item->data[1]);
    *out = AstItem062_210{1, ax, ax * kAccelerationLsb, ay, ay * kAccelerationLsb};
}

KOVREL_API void ast_dataitem_062_210_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_210_decode,
                    [](TextWriter &w, const auto &a) { w.appendf("AX:%.2f AY:%.2f", a.ax, a.ay); });
}

KOVREL_API void ast_dataitem_062_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_210_decode, [](TextWriter &w, const auto &a) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-7]", "AX LSB=M/S2", "%.2f", a.ax);
        t.rowf("Bit[8-15]", "AY LSB=M/S2", "%.2f", a.ay);
        t.end();
    });
}

// ---- I062/220 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_220_init(AstItem062_220 *out) {
    if (out) *out = AstItem062_220{0, 0, kRateLsb, 0.0};
}

KOVREL_API void ast_dataitem_062_220_decode(AstItem062_220 *out, const AstDataItem *item) {
    ast_dataitem_062_220_init(out);
    if (!out || !item_is(item, 62220, 2)) return;
    out->raw = octets_s(item->data, 2);
    out->rate = out->raw * kRateLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_062_220_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_220_decode,
                    [](TextWriter &w, const auto &r) { w.appendf("VH:%.2f", r.rate); });
}

KOVREL_API void ast_dataitem_062_220_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_220_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "RATE_OF_CLIMB_DESCENT LSB=FT/MIN", "%.2f", r.rate);
        t.end();
    });
}

// ---- I062/270 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_270_init(AstItem062_270 *out) {
    if (out) *out = AstItem062_270{};
}

KOVREL_API void ast_dataitem_062_270_decode(AstItem062_270 *out, const AstDataItem *item) {
    ast_dataitem_062_270_init(out);
    if (!out || !items::span_at_least(item, 1) || item->length > 3 || item->id != 62270) return;
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

KOVREL_API void ast_dataitem_062_270_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_270_decode, [](TextWriter &w, const auto &s) {
        if (s.width_present)
            w.appendf("L:%u O:%.2f W:%u", s.length, s.orientation, s.width);
        else if (s.orientation_present)
            w.appendf("L:%u O:%.2f", s.length, s.orientation);
        else
            w.appendf("L:%u", s.length);
    });
}

KOVREL_API void ast_dataitem_062_270_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_270_decode, [](TextWriter &w, const auto &s) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-6]", "LENGTH LSB=M", "%u", s.length);
        if (s.orientation_present) t.rowf("Bit[8-14]", "ORIENTATION LSB=DEG", "%.2f", s.orientation);
        if (s.width_present) t.rowf("Bit[16-22]", "WIDTH LSB=M", "%u", s.width);
        t.end();
    });
}

// ---- I062/300 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_300_init(AstItem062_300 *out) {
    if (out) *out = AstItem062_300{};
}

KOVREL_API void ast_dataitem_062_300_decode(AstItem062_300 *out, const AstDataItem *item) {
    ast_dataitem_062_300_init(out);
    if (!out || !item_is(item, 62300, 1)) return;
    *out = AstItem062_300{1, item->data[0]};
}

KOVREL_API void ast_dataitem_062_300_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_300_decode,
                    [](TextWriter &w, const auto &v) { w.append(ast_vehicle_fleet_id_get_name(v.vfi)); });
}

KOVREL_API void ast_dataitem_062_300_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_300_decode, [](TextWriter &w, const auto &v) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0-7]", "VEHICLE_FLEET", ast_vehicle_fleet_id_get_name(v.vfi));
        t.end();
    });
}

// ---- I062/510 -----------------------------------------------------------

KOVREL_API void ast_dataitem_062_510_init(AstItem062_510 *out) {
    if (out) *out = AstItem062_510{};
}

KOVREL_API void ast_dataitem_062_510_decode(AstItem062_510 *out, const AstDataItem *item) {
    ast_dataitem_062_510_init(out);
    if (!out || !items::span_at_least(item, 3) || item->length % 3 != 0 || item->id != 62510) return;
    const uint64_t groups = item->length / 3;
    for (uint64_t i = 0; i < groups; ++i) {
        const uint8_t *g = item->data + 3 * i;
        // Every group but the last announces another one; the last may
        // announce one that the data cut off.
        if (i + 1 < groups && (g[2] & 1u) == 0) {
            ast_dataitem_062_510_init(out);
            return;
        }
        if (i < AST_ITEM062_510_MAX) out->tracks[i] = AstItem062Track{g[0], (uint32_t{g[1]} << 7) | (g[2] >> 1)};
    }
    out->count = static_cast<uint32_t>(groups);
    out->stored = groups < AST_ITEM062_510_MAX ? static_cast<uint32_t>(groups) : AST_ITEM062_510_MAX;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_062_510_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_510_decode,
                    [](TextWriter &w, const auto &c) { w.appendf("NUM_TRACKS:%d", static_cast<int>(c.count)); });
}

KOVREL_API void ast_dataitem_062_510_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_510_decode, [](TextWriter &w, const auto &c) {
        items::DetailTable t(w);
        t.header("Group", "Role", "System Unit", "Track Number");
        for (uint32_t i = 0; i < c.stored; ++i) {
            char group[8], unit[8], track[8];
            std::snprintf(group, sizeof group, "%u", i + 1);
            std::snprintf(unit, sizeof unit, "%u", c.tracks[i].ident);
            std::snprintf(track, sizeof track, "%u", c.tracks[i].track);
            t.row(group, i == 0 ? "MASTER" : "SLAVE", unit, track);
        }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(062_130, AstItem062_130, ast_dataitem_062_130_decode)
KOVREL_DECODE_EX(062_135, AstItem062_135, ast_dataitem_062_135_decode)
KOVREL_DECODE_EX(062_136, AstItem062_136, ast_dataitem_062_136_decode)
KOVREL_DECODE_EX(062_200, AstItem062_200, ast_dataitem_062_200_decode)
KOVREL_DECODE_EX(062_210, AstItem062_210, ast_dataitem_062_210_decode)
KOVREL_DECODE_EX(062_220, AstItem062_220, ast_dataitem_062_220_decode)
KOVREL_DECODE_EX(062_270, AstItem062_270, ast_dataitem_062_270_decode)
KOVREL_DECODE_EX(062_300, AstItem062_300, ast_dataitem_062_300_decode)
KOVREL_DECODE_EX(062_510, AstItem062_510, ast_dataitem_062_510_decode)

namespace kovrel::fields {

namespace {

const char *trans_name(uint32_t v) { return v < 4 ? kTransText[v] : nullptr; }
const char *long_name(uint32_t v) { return v < 4 ? kLongText[v] : nullptr; }
const char *vert_name(uint32_t v) { return v < 4 ? kVertText[v] : nullptr; }
const char *fleet_name(uint32_t v) { return v <= 16 ? ast_vehicle_fleet_id_get_name(v) : nullptr; }

using T130 = AstItem062_130;
constexpr FieldRow k130Rows[] = {scaled("alt", KOVREL_MEMBER(T130, raw), kGeometricLsb, "ft").width(16)};
using T135 = AstItem062_135;
constexpr FieldRow k135Rows[] = {
    flag("qnh", KOVREL_MEMBER(T135, qnh)),
    scaled("ctb", KOVREL_MEMBER(T135, raw), kLevelLsb, "ft").width(15),
};
using T136 = AstItem062_136;
constexpr FieldRow k136Rows[] = {scaled("mfl", KOVREL_MEMBER(T136, raw), kLevelLsb, "ft").width(16)};
using T200 = AstItem062_200;
constexpr FieldRow k200Rows[] = {
    enumeration("trans", KOVREL_MEMBER(T200, trans), trans_name).width(2),
    enumeration("long", KOVREL_MEMBER(T200, lon), long_name).width(2),
    enumeration("vert", KOVREL_MEMBER(T200, vert), vert_name).width(2),
    flag("adf", KOVREL_MEMBER(T200, adf)),
};
using T210 = AstItem062_210;
constexpr FieldRow k210Rows[] = {
    scaled("ax", KOVREL_MEMBER(T210, ax_raw), kAccelerationLsb, "m/s2").width(8),
    scaled("ay", KOVREL_MEMBER(T210, ay_raw), kAccelerationLsb, "m/s2").width(8),
};
using T220 = AstItem062_220;
constexpr FieldRow k220Rows[] = {scaled("rocd", KOVREL_MEMBER(T220, raw), kRateLsb, "ft/min").width(16)};
using T270 = AstItem062_270;
constexpr FieldRow k270Rows[] = {
    integer("length", KOVREL_MEMBER(T270, length), "m").width(7),
    scaled("orientation", KOVREL_MEMBER(T270, orientation_raw), kOrientationLsb, "deg")
        .width(7)
        .when(KOVREL_MEMBER(T270, orientation_present)),
    integer("width", KOVREL_MEMBER(T270, width), "m").width(7).when(KOVREL_MEMBER(T270, width_present)),
};
using T300 = AstItem062_300;
constexpr FieldRow k300Rows[] = {enumeration("vfi", KOVREL_MEMBER(T300, vfi), fleet_name).width(8)};

using Track = AstItem062Track;
constexpr FieldRow kTrackRows[] = {
    integer("ident", KOVREL_MEMBER(Track, ident)).width(8),
    integer("track", KOVREL_MEMBER(Track, track)).width(15),
};
constinit const FieldDesc kTrackFields = describe<Track>(kTrackRows);
using T510 = AstItem062_510;
constexpr FieldRow k510Rows[] = {
    integer("count", KOVREL_MEMBER(T510, count)),
    array("tracks", KOVREL_MEMBER(T510, tracks), KOVREL_MEMBER(T510, stored), sizeof(Track), AST_ITEM062_510_MAX,
          kTrackFields),
};

}  // namespace

constinit const FieldDesc k062_130 = describe<T130, init_valid<T130, ast_dataitem_062_130_init>>(k130Rows);
constinit const FieldDesc k062_135 = describe<T135, init_valid<T135, ast_dataitem_062_135_init>>(k135Rows);
constinit const FieldDesc k062_136 = describe<T136, init_valid<T136, ast_dataitem_062_136_init>>(k136Rows);
constinit const FieldDesc k062_200 = describe<T200, init_valid<T200, ast_dataitem_062_200_init>>(k200Rows);
constinit const FieldDesc k062_210 = describe<T210, init_valid<T210, ast_dataitem_062_210_init>>(k210Rows);
constinit const FieldDesc k062_220 = describe<T220, init_valid<T220, ast_dataitem_062_220_init>>(k220Rows);
constinit const FieldDesc k062_270 = describe<T270, init_valid<T270, ast_dataitem_062_270_init>>(k270Rows);
constinit const FieldDesc k062_300 = describe<T300, init_valid<T300, ast_dataitem_062_300_init>>(k300Rows);
constinit const FieldDesc k062_510 = describe<T510, init_valid<T510, ast_dataitem_062_510_init>>(k510Rows);

}  // namespace kovrel::fields
