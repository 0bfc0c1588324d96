// CAT010 positions and motion in the sensor's own units: the polar position
// in metres, the WGS-84 position at 180/2^31 degrees, the 16-bit Cartesian
// position and velocity, the acceleration and the standard deviation of the
// position.
#include <cmath>

#include "categories/cat010/item_fields.h"
#include "categories/cat010/surface_support.h"
#include "items/item_ex.h"
#include "kovrel/cat010.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
namespace surface = kovrel::surface;

constexpr AstItemId kPolarId = 10040;
constexpr AstItemId kWgs84Id = 10041;
constexpr AstItemId kCartesianId = 10042;
constexpr AstItemId kVelocityId = 10202;
constexpr AstItemId kAccelerationId = 10210;
constexpr AstItemId kDeviationId = 10500;

constexpr double kRhoLsb = 1.0;                 // metres
constexpr double kThetaLsb = 360.0 / 65536.0;   // degrees
constexpr double kWgs84Lsb = 180.0 / 2147483648.0;  // degrees, 180/2^31
constexpr double kCartesianLsb = 1.0;           // metres
constexpr double kVelocityLsb = 1.0 / 16.0;     // m/s
constexpr double kAccelerationLsb = 1.0 / 16.0; // m/s2
constexpr double kDeviationLsb = 0.25;          // metres
constexpr uint32_t kMax16 = 0xFFFF;

uint32_t u16(const uint8_t *p) { return (static_cast<uint32_t>(p[0]) << 8) | p[1]; }

void signed_pair_init(AstPositionCartesian *out, double lsb) {
    *out = AstPositionCartesian{0, 0, lsb, 0.0, 0, lsb, 0.0};
}

// Two 16-bit two's complement fields into a {valid, raw, lsb, value} x 2 structure.
template <typename T>
void decode_pair16(T *out, const AstDataItem *item, AstItemId id, double lsb) {
    *out = T{0, 0, lsb, 0.0, 0, lsb, 0.0};
    if (!items::span_ok(item, 4) || item->id != id) return;
    int32_t a = 0, b = 0;
    ast_twos_complement_decode(&a, item->data, 2);
    ast_twos_complement_decode(&b, item->data + 2, 2);
    *out = T{1, a, lsb, a * lsb, b, lsb, b * lsb};
}

void encode_pair16(AstDataItem *out, uint8_t *buffer, size_t size, uint32_t valid, int32_t a, int32_t b) {
    if (!items::encode_begin(out, buffer, size, 4)) return;
    if (valid != 1 || !surface::fits_signed(a, 16) || !surface::fits_signed(b, 16)) return;
    ast_twos_complement_encode(buffer, 2, a);
    ast_twos_complement_encode(buffer + 2, 2, b);
    items::encode_done(out, buffer, 4);
}

}  // namespace

extern "C" {

// ---- I010/040 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_040_init(AstItem010_040 *out) {
    if (out) *out = AstItem010_040{0, 0, kRhoLsb, 0.0, 0, kThetaLsb, 0.0};
}

KOVREL_API void ast_dataitem_010_040_decode(AstItem010_040 *out, const AstDataItem *item) {
    ast_dataitem_010_040_init(out);
    if (!out || !items::span_ok(item, 4) || item->id != kPolarId) return;
    const uint32_t rho = u16(item->data);
    const uint32_t theta = u16(item->data + 2);
    *out = AstItem010_040{1, rho, kRhoLsb, rho * kRhoLsb, theta, kThetaLsb, theta * kThetaLsb};
}

KOVREL_API void ast_dataitem_010_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_040 *in) {
    if (!items::encode_begin(out, buffer, size, 4)) return;
    if (!in || in->valid != 1 || in->rho_raw > kMax16 || in->theta_raw > kMax16) return;
    ast_unsigned_encode(buffer, 2, in->rho_raw);
    ast_unsigned_encode(buffer + 2, 2, in->theta_raw);
    items::encode_done(out, buffer, 4);
}

KOVREL_API void ast_dataitem_010_040_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_040_decode, [](TextWriter &w, const auto &p) {
        w.append("RHO:");
        w.append_fixed(p.rho, 0);
        w.append(" THETA:");
        w.append_fixed(p.theta, 2);
    });
}

KOVREL_API void ast_dataitem_010_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_040_decode, [](TextWriter &w, const auto &p) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "RHO LSB=M", "%u", p.rho_raw);
        t.rowf("Bit[0-15]", "RHO LSB=NM", "%.3f", p.rho / 1852.0);
        t.rowf("Bit[16-31]", "THETA LSB=360/2^16DEG", "%u", p.theta_raw);
        t.rowf("Bit[16-31]", "THETA LSB=DEG", "%.3f", p.theta);
        t.end();
    });
}

// ---- I010/041 encoder ------------------------------------------------------------

KOVREL_API void ast_dataitem_010_041_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstPositionWgs84 *in) {
    if (!items::encode_begin(out, buffer, size, 8)) return;
    if (!in || in->valid != 1) return;
    // Comparisons written so that NaN fails them.
    if (!(std::fabs(in->latitude) <= 90.0) || !(std::fabs(in->longitude) <= 180.0)) return;
    const double lat = std::round(in->latitude / kWgs84Lsb);
    const double lon = std::round(in->longitude / kWgs84Lsb);
    // +90 degrees is 2^30 LSB and fits; +180 is 2^31 and does not.
    if (!(lon < 2147483648.0)) return;
    ast_twos_complement_encode(buffer, 4, static_cast<int32_t>(lat));
    ast_twos_complement_encode(buffer + 4, 4, static_cast<int32_t>(lon));
    items::encode_done(out, buffer, 8);
}

// ---- I010/042 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_042_init(AstItem010_042 *out) {
    if (out) signed_pair_init(out, kCartesianLsb);
}

KOVREL_API void ast_dataitem_010_042_decode(AstItem010_042 *out, const AstDataItem *item) {
    if (out) decode_pair16(out, item, kCartesianId, kCartesianLsb);
}

KOVREL_API void ast_dataitem_010_042_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_042 *in) {
    encode_pair16(out, buffer, size, in ? in->valid : 0, in ? in->x_raw : 0, in ? in->y_raw : 0);
}

KOVREL_API void ast_dataitem_010_042_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_042_decode, [](TextWriter &w, const auto &p) {
        w.append("X:");
        w.append_fixed(p.x, 0);
        w.append(" Y:");
        w.append_fixed(p.y, 0);
        w.append(" LSB:M");
    });
}

KOVREL_API void ast_dataitem_010_042_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_042_decode, [](TextWriter &w, const auto &p) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "X LSB=M", "%d", p.x_raw);
        t.rowf("Bit[0-15]", "X LSB=NM", "%.3f", p.x / 1852.0);
        t.rowf("Bit[16-31]", "Y LSB=M", "%d", p.y_raw);
        t.rowf("Bit[16-31]", "Y LSB=NM", "%.3f", p.y / 1852.0);
        t.end();
    });
}

// ---- I010/202 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_202_init(AstItem010_202 *out) {
    if (out) *out = AstItem010_202{0, 0, kVelocityLsb, 0.0, 0, kVelocityLsb, 0.0};
}

KOVREL_API void ast_dataitem_010_202_decode(AstItem010_202 *out, const AstDataItem *item) {
    if (out) decode_pair16(out, item, kVelocityId, kVelocityLsb);
}

KOVREL_API void ast_dataitem_010_202_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_202 *in) {
    encode_pair16(out, buffer, size, in ? in->valid : 0, in ? in->vx_raw : 0, in ? in->vy_raw : 0);
}

KOVREL_API void ast_dataitem_010_202_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_202_decode,
                    [](TextWriter &w, const auto &v) { w.appendf("VX:%.2f VY:%.2f LSB:M/S", v.vx, v.vy); });
}

KOVREL_API void ast_dataitem_010_202_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_202_decode, [](TextWriter &w, const auto &v) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "VX LSB=1/16M/S", "%d", v.vx_raw);
        t.rowf("Bit[0-15]", "VX LSB=M/S", "%.4f", v.vx);
        t.rowf("Bit[16-31]", "VY LSB=1/16M/S", "%d", v.vy_raw);
        t.rowf("Bit[16-31]", "VY LSB=M/S", "%.4f", v.vy);
        t.rowf("Bit[0-31]", "SPEED LSB=KNOT", "%.2f", std::hypot(v.vx, v.vy) * surface::kKnotsPerMs);
        t.rowf("Bit[0-31]", "COURSE LSB=DEG", "%.2f", surface::course_of(v.vx, v.vy));
        t.end();
    });
}

// ---- I010/210 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_210_init(AstItem010_210 *out) { surface::acceleration_init(out, kAccelerationLsb); }

KOVREL_API void ast_dataitem_010_210_decode(AstItem010_210 *out, const AstDataItem *item) {
    surface::acceleration_decode(out, item, kAccelerationId, kAccelerationLsb);
}

KOVREL_API void ast_dataitem_010_210_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_210 *in) {
    surface::acceleration_encode(out, buffer, size, in);
}

KOVREL_API void ast_dataitem_010_210_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_210_decode,
                    [](TextWriter &w, const auto &a) { surface::acceleration_summary(w, a); });
}

KOVREL_API void ast_dataitem_010_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_210_decode, [](TextWriter &w, const auto &a) {
        surface::acceleration_detail(w, a, "AX LSB=1/16M/S2", "AY LSB=1/16M/S2");
    });
}

// ---- I010/500 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_010_500_init(AstItem010_500 *out) {
    if (out) *out = AstItem010_500{0, 0, kDeviationLsb, 0.0, 0, kDeviationLsb, 0.0, 0, kDeviationLsb, 0.0};
}

KOVREL_API void ast_dataitem_010_500_decode(AstItem010_500 *out, const AstDataItem *item) {
    ast_dataitem_010_500_init(out);
    if (!out || !items::span_ok(item, 4) || item->id != kDeviationId) return;
    const uint8_t *p = item->data;
    int32_t cov = 0;
    ast_twos_complement_decode(&cov, p + 2, 2);
    *out = AstItem010_500{1,   p[0], kDeviationLsb, p[0] * kDeviationLsb, p[1], kDeviationLsb, p[1] * kDeviationLsb,
                          cov, kDeviationLsb, cov * kDeviationLsb};
}

KOVREL_API void ast_dataitem_010_500_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_500 *in) {
    if (!items::encode_begin(out, buffer, size, 4)) return;
    if (!in || in->valid != 1 || in->devx_raw > 0xFFu || in->devy_raw > 0xFFu ||
        !surface::fits_signed(in->covxy_raw, 16))
        return;
    buffer[0] = static_cast<uint8_t>(in->devx_raw);
    buffer[1] = static_cast<uint8_t>(in->devy_raw);
    ast_twos_complement_encode(buffer + 2, 2, in->covxy_raw);
    items::encode_done(out, buffer, 4);
}

KOVREL_API void ast_dataitem_010_500_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_500_decode, [](TextWriter &w, const auto &d) {
        w.appendf("SX:%.2f SY:%.2f COV:%.2f", d.devx, d.devy, d.covxy);
    });
}

KOVREL_API void ast_dataitem_010_500_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_500_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-7]", "SIGMA_X LSB=M", "%.2f", d.devx);
        t.rowf("Bit[8-15]", "SIGMA_Y LSB=M", "%.2f", d.devy);
        t.rowf("Bit[16-31]", "COVARIANCE_XY LSB=M", "%.2f", d.covxy);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(010_040, AstItem010_040, ast_dataitem_010_040_decode)
KOVREL_ENCODE_EX(010_040, AstItem010_040, ast_dataitem_010_040_encode)
KOVREL_ENCODE_EX(010_041, AstPositionWgs84, ast_dataitem_010_041_encode)
KOVREL_DECODE_EX(010_042, AstItem010_042, ast_dataitem_010_042_decode)
KOVREL_ENCODE_EX(010_042, AstItem010_042, ast_dataitem_010_042_encode)
KOVREL_DECODE_EX(010_202, AstItem010_202, ast_dataitem_010_202_decode)
KOVREL_ENCODE_EX(010_202, AstItem010_202, ast_dataitem_010_202_encode)
KOVREL_DECODE_EX(010_210, AstItem010_210, ast_dataitem_010_210_decode)
KOVREL_ENCODE_EX(010_210, AstItem010_210, ast_dataitem_010_210_encode)
KOVREL_DECODE_EX(010_500, AstItem010_500, ast_dataitem_010_500_decode)
KOVREL_ENCODE_EX(010_500, AstItem010_500, ast_dataitem_010_500_encode)

namespace kovrel::fields {

namespace {

using Polar = AstItem010_040;
using Cartesian = AstItem010_042;
using Velocity = AstItem010_202;
using Acceleration = AstItem010_210;
using Deviation = AstItem010_500;

// Every encoder here writes the raw members, so the fields are the raw
// values shown scaled.
constexpr FieldRow kPolarRows[] = {
    scaled("rho", KOVREL_MEMBER(Polar, rho_raw), kRhoLsb, "m").width(16),
    scaled("theta", KOVREL_MEMBER(Polar, theta_raw), kThetaLsb, "deg").width(16),
};

constexpr FieldRow kCartesianRows[] = {
    scaled("x", KOVREL_MEMBER(Cartesian, x_raw), kCartesianLsb, "m").width(16),
    scaled("y", KOVREL_MEMBER(Cartesian, y_raw), kCartesianLsb, "m").width(16),
};

constexpr FieldRow kVelocityRows[] = {
    scaled("vx", KOVREL_MEMBER(Velocity, vx_raw), kVelocityLsb, "m/s").width(16),
    scaled("vy", KOVREL_MEMBER(Velocity, vy_raw), kVelocityLsb, "m/s").width(16),
};

constexpr FieldRow kAccelerationRows[] = {
    scaled("ax", KOVREL_MEMBER(Acceleration, ax_raw), kAccelerationLsb, "m/s2").width(8),
    scaled("ay", KOVREL_MEMBER(Acceleration, ay_raw), kAccelerationLsb, "m/s2").width(8),
};

constexpr FieldRow kDeviationRows[] = {
    scaled("devx", KOVREL_MEMBER(Deviation, devx_raw), kDeviationLsb, "m").width(8),
    scaled("devy", KOVREL_MEMBER(Deviation, devy_raw), kDeviationLsb, "m").width(8),
    scaled("covxy", KOVREL_MEMBER(Deviation, covxy_raw), kDeviationLsb, "m").width(16),
};

}  // namespace

constinit const FieldDesc k010_040 = describe<Polar, init_valid<Polar, ast_dataitem_010_040_init>>(kPolarRows);
constinit const FieldDesc k010_042 =
    describe<Cartesian, init_valid<Cartesian, ast_dataitem_010_042_init>>(kCartesianRows);
constinit const FieldDesc k010_202 = describe<Velocity, init_valid<Velocity, ast_dataitem_010_202_init>>(kVelocityRows);
constinit const FieldDesc k010_210 =
    describe<Acceleration, init_valid<Acceleration, ast_dataitem_010_210_init>>(kAccelerationRows);
constinit const FieldDesc k010_500 =
    describe<Deviation, init_valid<Deviation, ast_dataitem_010_500_init>>(kDeviationRows);

}  // namespace kovrel::fields
