// I034/120 3D-Position Of Data Source: the station's height above the
// WGS-84 ellipsoid (16-bit two's complement, 1 m) and its latitude and
// longitude (24-bit two's complement, 180/2^23 degrees).
#include "categories/cat034/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat034.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 34120;
constexpr uint64_t kLength = 8;
constexpr double kHeightLsb = 1.0;                  // m
constexpr double kAngleLsb = 180.0 / 8388608.0;     // degrees, 180/2^23

int32_t s16(const uint8_t *p) { return static_cast<int16_t>((p[0] << 8) | p[1]); }

int32_t s24(const uint8_t *p) {
    int32_t v = (p[0] << 16) | (p[1] << 8) | p[2];
    if (v & 0x800000) v -= 0x1000000;
    return v;
}

AstItem034Scaled scaled(int32_t raw, double lsb) { return AstItem034Scaled{raw, lsb, raw * lsb}; }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_034_120_init(AstItem034_120 *out) {
    if (!out) return;
    *out = AstItem034_120{};
    out->height.lsb = kHeightLsb;
    out->latitude.lsb = kAngleLsb;
    out->longitude.lsb = kAngleLsb;
}

KOVREL_API void ast_dataitem_034_120_decode(AstItem034_120 *out, const AstDataItem *item) {
    ast_dataitem_034_120_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kId) return;
    out->height = scaled(s16(item->data), kHeightLsb);
    out->latitude = scaled(s24(item->data + 2), kAngleLsb);
    out->longitude = scaled(s24(item->data + 5), kAngleLsb);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_034_120_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_034_120_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[63-48]", "HGT LSB=M", "%d", d.height.raw);
        t.rowf("Bit[47-24]", "LAT LSB=180/2^23 DEG", "%d", d.latitude.raw);
        t.rowf("Bit[47-24]", "LAT LSB=DEG", "%.8f", d.latitude.value);
        t.rowf("Bit[23-0]", "LON LSB=180/2^23 DEG", "%d", d.longitude.raw);
        t.rowf("Bit[23-0]", "LON LSB=DEG", "%.8f", d.longitude.value);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(034_120, AstItem034_120, ast_dataitem_034_120_decode)

namespace kovrel::fields {

namespace {

using T = AstItem034_120;

constexpr FieldRow kRows[] = {
    scaled("hgt", KOVREL_MEMBER(T, height.raw), kHeightLsb, "m").width(16),
    scaled("lat", KOVREL_MEMBER(T, latitude.raw), kAngleLsb, "deg").width(24),
    scaled("lon", KOVREL_MEMBER(T, longitude.raw), kAngleLsb, "deg").width(24),
};

}  // namespace

constinit const FieldDesc k034_120 = describe<T, init_valid<T, ast_dataitem_034_120_init>>(kRows);

}  // namespace kovrel::fields
