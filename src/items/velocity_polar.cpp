// Polar velocity: ground speed (16-bit unsigned, LSB 2^-14 NM/s) and heading
// (16-bit unsigned, LSB 360/2^16 degrees). Speed is kept in knots.
#include "items/item_fields.h"
#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_motion.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 4;
constexpr double kSpeedNmPerS = 1.0 / 16384.0;         // 2^-14 NM/s
constexpr double kSpeedKnots = 0.2197265625;           // 2^-14 NM/s in knots
constexpr double kSpeedMPerS = 0.113037109375;         // 2^-14 NM/s in m/s
constexpr double kSpeedKmPerH = 0.40693359375;         // 2^-14 NM/s in km/h
constexpr double kHeadingDeg = 0.0054931640625;        // 360/2^16

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_velocity_polar_init(AstVelocityPolar *out) {
    if (out) *out = items::number_pair<AstVelocityPolar>(0, 0, kSpeedKnots, 0, kHeadingDeg);
}

KOVREL_API void ast_dataitem_velocity_polar_decode(AstVelocityPolar *out, const AstDataItem *item) {
    ast_dataitem_velocity_polar_init(out);
    if (!out || !items::span_ok(item, kLength)) return;
    uint32_t speed = 0, heading = 0;
    ast_unsigned_decode(&speed, item->data, 2);
    ast_unsigned_decode(&heading, item->data + 2, 2);
    *out = items::number_pair<AstVelocityPolar>(1, static_cast<int32_t>(speed), kSpeedKnots,
                                                static_cast<int32_t>(heading), kHeadingDeg);
}

KOVREL_API void ast_dataitem_velocity_polar_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                   const AstVelocityPolar *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    int32_t speed = in->speed_raw;
    int32_t heading = in->heading_raw;
    // Either value set means the caller filled the doubles; otherwise the raw
    // fields are what is to be sent.
    if (in->speed > 0.0 || in->heading > 0.0) {
        speed = items::round_i32(in->speed / kSpeedKnots);
        heading = items::round_i32(in->heading / kHeadingDeg);
    }
    ast_unsigned_encode(buffer, 2, static_cast<uint32_t>(speed));
    ast_unsigned_encode(buffer + 2, 2, static_cast<uint32_t>(heading));
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_velocity_polar_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_velocity_polar_decode,
                    [](TextWriter &w, const auto &v) {
                        w.append("SPD:");
                        w.append_fixed(v.speed, 2);
                        w.append(" HDG:");
                        w.append_fixed(v.heading, 2);
                    });
}

KOVREL_API void ast_dataitem_velocity_polar_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_velocity_polar_decode, [](TextWriter &w, const auto &v) {
        items::DetailTable t(w);
        t.header("Octet", "Item", "Value");
        t.rowf("Octet[1-2]", "GROUND_SPEED LSB:NM/S", "%.6f", v.speed_raw * kSpeedNmPerS);
        t.rowf("Octet[1-2]", "GROUND_SPEED LSB:M/S", "%.2f", v.speed_raw * kSpeedMPerS);
        t.rowf("Octet[1-2]", "GROUND_SPEED LSB:KNOT", "%.2f", v.speed_raw * kSpeedKnots);
        t.rowf("Octet[1-2]", "GROUND_SPEED LSB:KM/H", "%.2f", v.speed_raw * kSpeedKmPerH);
        t.rowf("Octet[3-4]", "HEADING LSB:DEG", "%.2f", v.heading_raw * kHeadingDeg);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstVelocityPolar;
// The values in knots and degrees, which the encoder prefers whenever either
// is above 0 (and both at 0 write zero raw values, the defaults).
constexpr FieldRow kPolarRows[] = {
    real("gsp", KOVREL_MEMBER(T, speed), "kt"),
    real("hdg", KOVREL_MEMBER(T, heading), "deg"),
};
}  // namespace

constinit const FieldDesc kVelocityPolar = describe<T, init_valid<T, ast_dataitem_velocity_polar_init>>(kPolarRows);

}  // namespace kovrel::fields
