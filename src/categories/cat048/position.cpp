// I048/040 Measured Position in Polar Co-ordinates and I048/042 Calculated
// Position in Cartesian Co-ordinates.
#include <cmath>

#include "categories/cat048/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat048.h"
#include "kovrel/codec.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kPolarId = 48040;
constexpr AstItemId kCartesianId = 48042;
constexpr uint64_t kLength = 4;

constexpr double kRhoLsb = 1.0 / 256.0;        // NM
constexpr double kThetaLsb = 360.0 / 65536.0;  // degrees
constexpr double kCartesianLsb = 1.0 / 128.0;  // NM
constexpr double kMetresPerNm = 1852.0;
constexpr uint32_t kMax16 = 0xFFFF;

uint32_t u16(const uint8_t *p) { return (static_cast<uint32_t>(p[0]) << 8) | p[1]; }

AstItem048Scaled scaled(uint32_t raw, double lsb) { return AstItem048Scaled{raw, lsb, raw * lsb}; }

// The raw value to send for a scaled field: the value when the caller filled
// it (above 0), rounded to the nearest LSB, otherwise the raw field as it
// stands. False when that does not fit in `max`.
bool raw_to_send(uint32_t *raw, uint32_t field_raw, double value, double lsb, uint32_t max) {
    if (!(value > 0.0)) {
        *raw = field_raw;
        return field_raw <= max;
    }
    const double r = std::round(value / lsb);
    if (!(r <= max)) return false;
    *raw = static_cast<uint32_t>(r);
    return true;
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_040_init(AstItem048_040 *out) {
    if (out) *out = AstItem048_040{};
}

KOVREL_API void ast_dataitem_048_040_decode(AstItem048_040 *out, const AstDataItem *item) {
    ast_dataitem_048_040_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kPolarId) return;
    const AstItem048Scaled rho = scaled(u16(item->data), kRhoLsb);
    const AstItem048Scaled theta = scaled(u16(item->data + 2), kThetaLsb);
    *out = AstItem048_040{1, rho.raw, rho.lsb, rho.value, theta.raw, theta.lsb, theta.value};
}

KOVREL_API void ast_dataitem_048_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_040 *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    uint32_t rho = 0, theta = 0;
    if (!raw_to_send(&rho, in->rho_raw, in->rho, kRhoLsb, kMax16)) return;
    // THETA is an azimuth: a value just below 360 degrees that rounds up to
    // 2^16 LSB is north (raw 0); 360 degrees and more are refused.
    const uint32_t theta_max = in->theta > 0.0 ? kMax16 + 1 : kMax16;
    if (in->theta >= 360.0 || !raw_to_send(&theta, in->theta_raw, in->theta, kThetaLsb, theta_max)) return;
    theta &= kMax16;
    ast_unsigned_encode(buffer, 2, rho);
    ast_unsigned_encode(buffer + 2, 2, theta);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_048_040_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_040_decode,
                    [](TextWriter &w, const auto &p) {
                        w.append("RHO:");
                        w.append_fixed(p.rho, 1);
                        w.append(" THETA:");
                        w.append_fixed(p.theta, 1);
                    });
}

KOVREL_API void ast_dataitem_048_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_040_decode, [](TextWriter &w, const auto &p) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "RHO LSB=1/256NM", "%u", p.rho_raw);
        t.rowf("Bit[0-15]", "RHO LSB=NM", "%.3f", p.rho);
        t.rowf("Bit[0-15]", "RHO LSB=KM", "%.3f", p.rho * kMetresPerNm / 1000.0);
        t.rowf("Bit[16-31]", "THETA LSB=360/2^16DEG", "%u", p.theta_raw);
        t.rowf("Bit[16-31]", "THETA LSB=DEG", "%.3f", p.theta);
        t.end();
    });
}

KOVREL_API void ast_dataitem_048_042_init(AstItem048_042 *out) {
    if (out) *out = AstItem048_042{};
}

KOVREL_API void ast_dataitem_048_042_decode(AstItem048_042 *out, const AstDataItem *item) {
    ast_dataitem_048_042_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kCartesianId) return;
    ast_twos_complement_decode(&out->x, item->data, 2);
    ast_twos_complement_decode(&out->y, item->data + 2, 2);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_048_042_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_042 *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1 || in->x < -32768 || in->x > 32767 || in->y < -32768 || in->y > 32767) return;
    ast_twos_complement_encode(buffer, 2, in->x);
    ast_twos_complement_encode(buffer + 2, 2, in->y);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_048_042_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_042_decode, [](TextWriter &w, const auto &p) {
        w.append("X:");
        w.append_fixed(p.x * kCartesianLsb * kMetresPerNm, 1);
        w.append(" Y:");
        w.append_fixed(p.y * kCartesianLsb * kMetresPerNm, 1);
        w.append(" LSB:M");
    });
}

KOVREL_API void ast_dataitem_048_042_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_042_decode, [](TextWriter &w, const auto &p) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "X LSB=1/128NM", "%d", p.x);
        t.rowf("Bit[0-15]", "X LSB=NM", "%.3f", p.x * kCartesianLsb);
        t.rowf("Bit[0-15]", "X LSB=M", "%.1f", p.x * kCartesianLsb * kMetresPerNm);
        t.rowf("Bit[16-31]", "Y LSB=1/128NM", "%d", p.y);
        t.rowf("Bit[16-31]", "Y LSB=NM", "%.3f", p.y * kCartesianLsb);
        t.rowf("Bit[16-31]", "Y LSB=M", "%.1f", p.y * kCartesianLsb * kMetresPerNm);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(048_040, AstItem048_040, ast_dataitem_048_040_decode)
KOVREL_ENCODE_EX(048_040, AstItem048_040, ast_dataitem_048_040_encode)
KOVREL_DECODE_EX(048_042, AstItem048_042, ast_dataitem_048_042_decode)
KOVREL_ENCODE_EX(048_042, AstItem048_042, ast_dataitem_048_042_encode)

namespace kovrel::fields {

namespace {

using Polar = AstItem048_040;
using Cartesian = AstItem048_042;

// The encoder sends RHO and THETA from their values (raw only when a value
// is 0), so the values are what a caller sets.
constexpr FieldRow kPolarRows[] = {
    real("rho", KOVREL_MEMBER(Polar, rho), "NM"),
    real("theta", KOVREL_MEMBER(Polar, theta), "deg"),
};

// X and Y in metres, as the summary shows them.
constexpr FieldRow kCartesianRows[] = {
    scaled("x", KOVREL_MEMBER(Cartesian, x), kCartesianLsb * kMetresPerNm, "m").width(16),
    scaled("y", KOVREL_MEMBER(Cartesian, y), kCartesianLsb * kMetresPerNm, "m").width(16),
};

}  // namespace

constinit const FieldDesc k048_040 = describe<Polar, init_valid<Polar, ast_dataitem_048_040_init>>(kPolarRows);
constinit const FieldDesc k048_042 =
    describe<Cartesian, init_valid<Cartesian, ast_dataitem_048_042_init>>(kCartesianRows);

}  // namespace kovrel::fields
