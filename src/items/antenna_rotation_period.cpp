// Antenna rotation period: 16-bit unsigned count of 1/128 s.
#include <cmath>
#include <cstdio>

#include "items/ident_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_ident.h"

namespace {

constexpr uint64_t kLength = 2;
constexpr double kLsb = 1.0 / 128.0;

// Low 16 bits of period x 128 rounded half away from zero (two's complement
// for negative periods). A value with no 64-bit integer form (NaN, infinite
// or huge) gives 0, as the hardware's "integer indefinite" result would.
uint32_t count_from_period(double period) {
    const double ticks = period * 128.0;
    if (!std::isfinite(ticks) || std::fabs(ticks) >= 9.2e18) return 0;
    return static_cast<uint32_t>(static_cast<uint64_t>(std::llround(ticks)) & 0xFFFFu);
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_antenna_rotation_period_init(AstAntennaRotationPeriod *out) {
    if (out) *out = AstAntennaRotationPeriod{0, 0, kLsb, 0.0};
}

KOVREL_API void ast_dataitem_antenna_rotation_period_decode(AstAntennaRotationPeriod *out,
                                                            const AstDataItem *item) {
    if (!out) return;
    ast_dataitem_antenna_rotation_period_init(out);
    if (!kovrel::ident::span_ok(item, kLength)) return;
    uint32_t raw = 0;
    ast_unsigned_decode(&raw, item->data, 2);
    out->raw = raw;
    out->period = raw * kLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_antenna_rotation_period_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                            const AstAntennaRotationPeriod *in) {
    if (!out) return;
    kovrel::ident::encode_failed(out, buffer);
    // Any non-zero valid flag is accepted here (kept for compatibility with
    // existing callers that set it to other true values).
    if (!in || !buffer || size < kLength || in->valid == 0) return;
    // The period wins over raw whenever it is not 0; NaN is not 0.
    const uint32_t count = in->period != 0.0 ? count_from_period(in->period) : (in->raw & 0xFFFFu);
    ast_unsigned_encode(buffer, 2, count);
    kovrel::ident::encoded(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_antenna_rotation_period_get_summary(char *buffer, size_t size,
                                                                 const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    AstAntennaRotationPeriod arp;
    ast_dataitem_antenna_rotation_period_decode(&arp, item);
    if (!arp.valid) return;
    w.appendf("ROT:%.2f", arp.raw * kLsb);
}

KOVREL_API void ast_dataitem_antenna_rotation_period_get_detail_html(char *buffer, size_t size,
                                                                     const AstDataItem *item) {
    kovrel::ident::HtmlView view(buffer, size);
    AstAntennaRotationPeriod arp;
    ast_dataitem_antenna_rotation_period_decode(&arp, item);
    if (!arp.valid) return;

    char raw[16];
    char seconds[32];
    std::snprintf(raw, sizeof raw, "%u", static_cast<unsigned>(arp.raw));
    std::snprintf(seconds, sizeof seconds, "%.3f", arp.period);

    view.table_begin();
    view.header("Bit", "Item", "Value");
    view.row("Bit[0-15]", "ROTATION_PERIOD LSB=1/128s", raw);
    view.row("Bit[0-15]", "ROTATION_PERIOD LSB=S", seconds);
    view.table_end();
}

}  // extern "C"
