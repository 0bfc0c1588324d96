// Polar velocity: ground speed (16-bit unsigned, LSB 2^-14 NM/s) and heading
// (16-bit unsigned, LSB 360/2^16 degrees). Speed is kept in knots.
#include <cstdio>

#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_motion.h"

namespace kovrel {
namespace {

constexpr double kSpeedNmPerS = 1.0 / 16384.0;         // 2^-14 NM/s
constexpr double kSpeedKnots = 0.2197265625;           // 2^-14 NM/s in knots
constexpr double kSpeedMPerS = 0.113037109375;         // 2^-14 NM/s in m/s
constexpr double kSpeedKmPerH = 0.40693359375;         // 2^-14 NM/s in km/h
constexpr double kHeadingDeg = 0.0054931640625;        // 360/2^16

void decode(AstVelocityPolar *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstVelocityPolar{0, 0, kSpeedKnots, 0.0, 0, kHeadingDeg, 0.0};
    if (!motion::exact_span(item, 4)) return;
    uint32_t speed = 0, heading = 0;
    ast_unsigned_decode(&speed, item->data, 2);
    ast_unsigned_decode(&heading, item->data + 2, 2);
    const auto s = static_cast<int32_t>(speed);
    const auto h = static_cast<int32_t>(heading);
    *out = AstVelocityPolar{1, s, kSpeedKnots, s * kSpeedKnots, h, kHeadingDeg, h * kHeadingDeg};
}

void row(TextWriter &w, const char *label, const char *name, const char *format, double value) {
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    motion::table_row(w, label, name, text);
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_dataitem_velocity_polar_init(AstVelocityPolar *out) { kovrel::decode(out, nullptr); }

KOVREL_API void ast_dataitem_velocity_polar_decode(AstVelocityPolar *out, const AstDataItem *item) {
    kovrel::decode(out, item);
}

KOVREL_API void ast_dataitem_velocity_polar_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                   const AstVelocityPolar *in) {
    namespace m = kovrel::motion;
    if (!out) return;
    m::encode_result(out, buffer, 0);
    if (!in || !buffer || size < 4 || in->valid != 1) return;
    int32_t speed = in->speed_raw;
    int32_t heading = in->heading_raw;
    // Either value set means the caller filled the doubles; otherwise the raw
    // fields are what is to be sent.
    if (in->speed > 0.0 || in->heading > 0.0) {
        speed = m::round_i32(in->speed / kovrel::kSpeedKnots);
        heading = m::round_i32(in->heading / kovrel::kHeadingDeg);
    }
    ast_unsigned_encode(buffer, 2, static_cast<uint32_t>(speed));
    ast_unsigned_encode(buffer + 2, 2, static_cast<uint32_t>(heading));
    m::encode_result(out, buffer, 4);
}

KOVREL_API void ast_dataitem_velocity_polar_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    AstVelocityPolar v;
    kovrel::decode(&v, item);
    if (v.valid != 1) return;
    w.appendf("SPD:%.2f HDG:%.2f", v.speed, v.heading);
}

KOVREL_API void ast_dataitem_velocity_polar_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    using namespace kovrel;
    TextWriter w(buffer, size);
    AstVelocityPolar v;
    decode(&v, item);
    if (v.valid != 1) return;
    motion::table_begin(w, "Octet", "Item", "Value");
    row(w, "Octet[1-2]", "GROUND_SPEED LSB:NM/S", "%.6f", v.speed_raw * kSpeedNmPerS);
    row(w, "Octet[1-2]", "GROUND_SPEED LSB:M/S", "%.2f", v.speed_raw * kSpeedMPerS);
    row(w, "Octet[1-2]", "GROUND_SPEED LSB:KNOT", "%.2f", v.speed_raw * kSpeedKnots);
    row(w, "Octet[1-2]", "GROUND_SPEED LSB:KM/H", "%.2f", v.speed_raw * kSpeedKmPerH);
    row(w, "Octet[3-4]", "HEADING LSB:DEG", "%.2f", v.heading_raw * kHeadingDeg);
    motion::table_end(w);
}

}  // extern "C"
