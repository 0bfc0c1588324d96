// Sector number: the antenna azimuth as one octet, LSB 360/256 degrees.
#include <cmath>
#include <cstdio>

#include "items/ident_support.h"
#include "kovrel/items_ident.h"

namespace {
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
    if (!kovrel::ident::span_ok(item, kLength)) return;
    out->raw = item->data[0];
    out->azimuth = out->raw * kLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_sector_number_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                  const AstSectorNumber *in) {
    if (!out) return;
    kovrel::ident::encode_failed(out, buffer);
    if (!in || !buffer || size < kLength || in->valid != 1) return;
    // An azimuth outside one turn (or NaN) means the caller filled raw only.
    // Rounding is half away from zero, so the top half-step below 360
    // gives 256 and fails rather than wrapping to sector 0.
    double sector = in->raw;
    if (in->azimuth >= 0.0 && in->azimuth < 360.0) sector = std::round(in->azimuth / kLsb);
    if (sector > 255.0) return;
    buffer[0] = static_cast<uint8_t>(sector);
    kovrel::ident::encoded(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_sector_number_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    AstSectorNumber sn;
    ast_dataitem_sector_number_decode(&sn, item);
    if (!sn.valid) return;
    w.appendf("SECTOR:%03dDEG", static_cast<int>(std::lround(sn.raw * kLsb)));
}

KOVREL_API void ast_dataitem_sector_number_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::ident::HtmlView view(buffer, size);
    AstSectorNumber sn;
    ast_dataitem_sector_number_decode(&sn, item);
    if (!sn.valid) return;

    char raw[16];
    char degrees[32];
    char per32[16];
    char per16[16];
    std::snprintf(raw, sizeof raw, "%u", static_cast<unsigned>(sn.raw));
    std::snprintf(degrees, sizeof degrees, "%.4f", sn.azimuth);
    std::snprintf(per32, sizeof per32, "%.2d", static_cast<int>(sn.azimuth / 11.25));
    std::snprintf(per16, sizeof per16, "%.2d", static_cast<int>(sn.azimuth / 22.5));

    view.table_begin();
    view.header("Name", "Value");
    view.row("ANTENNA AZIMUTH LSB~=1.41DEG", raw);
    view.row("ANTENNA AZIMUTH LSB=1DEG", degrees);
    view.row("SECTOR NUMBER LSB=1/32", per32);
    view.row("SECTOR NUMBER LSB=1/16", per16);
    view.table_end();
}

}  // extern "C"
