// Sector number: the antenna azimuth as one octet, LSB 360/256 degrees.
#include <cmath>

#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/items_ident.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 1;
constexpr double kLsb = 360.0 / 256.0;  // 1.40625 degrees

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_sector_number_init(AstSectorNumber *out) {
    if (out) *out = AstSectorNumber{0, 0, kLsb, 0.0};
}

KOVREL_API void ast_dataitem_sector_number_decode(AstSectorNumber *out, const AstDataItem *item) {
    if (!out) return;
    ast_dataitem_sector_number_init(out);
    if (!items::span_ok(item, kLength)) return;
    out->raw = item->data[0];
    out->azimuth = out->raw * kLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_sector_number_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                  const AstSectorNumber *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    // An azimuth outside one turn (or NaN) means the caller filled raw only.
    // Rounding is half away from zero, so the top half-step below 360
    // gives 256 and fails rather than wrapping to sector 0.
    double sector = in->raw;
    if (in->azimuth >= 0.0 && in->azimuth < 360.0) sector = std::round(in->azimuth / kLsb);
    if (sector > 255.0) return;
    buffer[0] = static_cast<uint8_t>(sector);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_sector_number_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_sector_number_decode, [](TextWriter &w, const auto &sn) {
        w.appendf("SECTOR:%03dDEG", static_cast<int>(std::lround(sn.raw * kLsb)));
    });
}

KOVREL_API void ast_dataitem_sector_number_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_sector_number_decode, [](TextWriter &w, const auto &sn) {
        items::DetailTable t(w);
        t.header("Name", "Value");
        t.valuef("ANTENNA AZIMUTH LSB~=1.41DEG", "%u", static_cast<unsigned>(sn.raw));
        t.valuef("ANTENNA AZIMUTH LSB=1DEG", "%.4f", sn.azimuth);
        t.valuef("SECTOR NUMBER LSB=1/32", "%.2d", static_cast<int>(sn.azimuth / 11.25));
        t.valuef("SECTOR NUMBER LSB=1/16", "%.2d", static_cast<int>(sn.azimuth / 22.5));
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstSectorNumber;
// The azimuth, not the octet: the encoder takes the azimuth whenever it lies
// within one turn, and the defaults (azimuth 0) are within it.
constexpr FieldRow kSectorRows[] = {
    real("sector", KOVREL_MEMBER(T, azimuth), "deg"),
};
}  // namespace

constinit const FieldDesc kSectorNumber = describe<T, init_valid<T, ast_dataitem_sector_number_init>>(kSectorRows);

}  // namespace kovrel::fields
