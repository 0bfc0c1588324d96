// Antenna rotation period: 16-bit unsigned count of 1/128 s.
#include <cmath>

#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_ident.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

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
    if (!items::span_ok(item, kLength)) return;
    uint32_t raw = 0;
    ast_unsigned_decode(&raw, item->data, 2);
    out->raw = raw;
    out->period = raw * kLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_antenna_rotation_period_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                            const AstAntennaRotationPeriod *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    // Any non-zero valid flag is accepted here (kept for compatibility with
    // existing callers that set it to other true values).
    if (!in || in->valid == 0) return;
    // The period wins over raw whenever it is not 0; NaN is not 0.
    const uint32_t count = in->period != 0.0 ? count_from_period(in->period) : (in->raw & 0xFFFFu);
    ast_unsigned_encode(buffer, 2, count);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_antenna_rotation_period_get_summary(char *buffer, size_t size,
                                                                 const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_antenna_rotation_period_decode,
                    [](TextWriter &w, const auto &arp) { w.appendf("ROT:%.2f", arp.raw * kLsb); });
}

KOVREL_API void ast_dataitem_antenna_rotation_period_get_detail_html(char *buffer, size_t size,
                                                                     const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_antenna_rotation_period_decode, [](TextWriter &w, const auto &p) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "ROTATION_PERIOD LSB=1/128s", "%u", static_cast<unsigned>(p.raw));
        t.rowf("Bit[0-15]", "ROTATION_PERIOD LSB=S", "%.3f", p.period);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstAntennaRotationPeriod;
// Over the raw count: the encoder writes it whenever the period is 0, which
// the defaults give.
constexpr FieldRow kRotationRows[] = {
    scaled("arp", KOVREL_MEMBER(T, raw), kLsb, "s").width(16),
};
}  // namespace

constinit const FieldDesc kAntennaRotationPeriod =
    describe<T, init_valid<T, ast_dataitem_antenna_rotation_period_init>>(kRotationRows);

}  // namespace kovrel::fields
