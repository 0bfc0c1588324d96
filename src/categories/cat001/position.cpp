// I001/040 Measured Position in Polar Coordinates and I001/042 Calculated
// Position in Cartesian Coordinates.
#include "categories/cat001/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat001.h"
#include "kovrel/codec.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kPolarId = 1040;
constexpr AstItemId kCartesianId = 1042;
constexpr uint64_t kLength = 4;

constexpr double kRhoLsb = 1.0 / 128.0;        // NM
constexpr double kThetaLsb = 360.0 / 65536.0;  // degrees
constexpr double kCartesianLsb = 1.0 / 64.0;   // NM
constexpr double kMetresPerNm = 1852.0;

AstItem001Scaled scaled(int32_t raw, double lsb) { return AstItem001Scaled{raw, lsb, raw * lsb}; }

AstItem001UScaled uscaled(uint32_t raw, double lsb) { return AstItem001UScaled{raw, lsb, raw * lsb}; }

uint32_t u16(const uint8_t *p) { return (static_cast<uint32_t>(p[0]) << 8) | p[1]; }

int32_t s16(const uint8_t *p) {
    int32_t v = 0;
    ast_twos_complement_decode(&v, p, 2);
    return v;
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_001_040_init(AstItem001_040 *out) {
    if (out) *out = AstItem001_040{0, {0, kRhoLsb, 0.0}, {0, kThetaLsb, 0.0}};
}

KOVREL_API void ast_dataitem_001_040_decode(AstItem001_040 *out, const AstDataItem *item) {
    ast_dataitem_001_040_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kPolarId) return;
    *out = AstItem001_040{1, uscaled(u16(item->data), kRhoLsb), uscaled(u16(item->data + 2), kThetaLsb)};
}

KOVREL_API void ast_dataitem_001_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_040 *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    if (in->rho.raw > 0xFFFF || in->theta.raw > 0xFFFF) return;
    ast_unsigned_encode(buffer, 2, in->rho.raw);
    ast_unsigned_encode(buffer + 2, 2, in->theta.raw);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_001_040_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_040_decode, [](TextWriter &w, const auto &p) {
        w.append("RHO:");
        w.append_fixed(p.rho.value, 1);
        w.append(" THETA:");
        w.append_fixed(p.theta.value, 1);
    });
}

KOVREL_API void ast_dataitem_001_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_040_decode, [](TextWriter &w, const auto &p) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "RHO LSB=1/128NM", "%u", p.rho.raw);
        t.rowf("Bit[0-15]", "RHO LSB=NM", "%.3f", p.rho.value);
        t.rowf("Bit[0-15]", "RHO LSB=KM", "%.3f", p.rho.value * kMetresPerNm / 1000.0);
        t.rowf("Bit[16-31]", "THETA LSB=360/2^16DEG", "%u", p.theta.raw);
        t.rowf("Bit[16-31]", "THETA LSB=DEG", "%.3f", p.theta.value);
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_042_init(AstItem001_042 *out) {
    if (out) *out = AstItem001_042{0, {0, kCartesianLsb, 0.0}, {0, kCartesianLsb, 0.0}};
}

KOVREL_API void ast_dataitem_001_042_decode(AstItem001_042 *out, const AstDataItem *item) {
    ast_dataitem_001_042_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kCartesianId) return;
    *out = AstItem001_042{1, scaled(s16(item->data), kCartesianLsb), scaled(s16(item->data + 2), kCartesianLsb)};
}

KOVREL_API void ast_dataitem_001_042_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_042 *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    if (in->x.raw < -32768 || in->x.raw > 32767 || in->y.raw < -32768 || in->y.raw > 32767) return;
    ast_twos_complement_encode(buffer, 2, in->x.raw);
    ast_twos_complement_encode(buffer + 2, 2, in->y.raw);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_001_042_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_042_decode, [](TextWriter &w, const auto &p) {
        w.append("X:");
        w.append_fixed(p.x.value * kMetresPerNm, 1);
        w.append(" Y:");
        w.append_fixed(p.y.value * kMetresPerNm, 1);
        w.append(" LSB:M");
    });
}

KOVREL_API void ast_dataitem_001_042_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_042_decode, [](TextWriter &w, const auto &p) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "X LSB=1/64NM", "%d", p.x.raw);
        t.rowf("Bit[0-15]", "X LSB=NM", "%.3f", p.x.value);
        t.rowf("Bit[0-15]", "X LSB=M", "%.1f", p.x.value * kMetresPerNm);
        t.rowf("Bit[16-31]", "Y LSB=1/64NM", "%d", p.y.raw);
        t.rowf("Bit[16-31]", "Y LSB=NM", "%.3f", p.y.value);
        t.rowf("Bit[16-31]", "Y LSB=M", "%.1f", p.y.value * kMetresPerNm);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(001_040, AstItem001_040, ast_dataitem_001_040_decode)
KOVREL_ENCODE_EX(001_040, AstItem001_040, ast_dataitem_001_040_encode)
KOVREL_DECODE_EX(001_042, AstItem001_042, ast_dataitem_001_042_decode)
KOVREL_ENCODE_EX(001_042, AstItem001_042, ast_dataitem_001_042_encode)

namespace kovrel::fields {

namespace {

using Polar = AstItem001_040;
using Cartesian = AstItem001_042;

// The encoder sends the raw fields, so the rows are over them.
constexpr FieldRow kPolarRows[] = {
    scaled("rho", KOVREL_MEMBER(Polar, rho.raw), kRhoLsb, "NM").width(16),
    scaled("theta", KOVREL_MEMBER(Polar, theta.raw), kThetaLsb, "deg").width(16),
};

// X and Y in metres, as the summary shows them.
constexpr FieldRow kCartesianRows[] = {
    scaled("x", KOVREL_MEMBER(Cartesian, x.raw), kCartesianLsb * kMetresPerNm, "m").width(16),
    scaled("y", KOVREL_MEMBER(Cartesian, y.raw), kCartesianLsb * kMetresPerNm, "m").width(16),
};

}  // namespace

constinit const FieldDesc k001_040 = describe<Polar, init_valid<Polar, ast_dataitem_001_040_init>>(kPolarRows);
constinit const FieldDesc k001_042 =
    describe<Cartesian, init_valid<Cartesian, ast_dataitem_001_042_init>>(kCartesianRows);

}  // namespace kovrel::fields
