// Time of day: a 24-bit count of 1/128 s since midnight.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_ident.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 3;
constexpr double kLsb = 1.0 / 128.0;
constexpr uint32_t kTicksPerHour = 3600u * 128u;  // 460800
constexpr uint32_t kTicksPerMinute = 60u * 128u;  // 7680

// Count of 1/128 s from the parts, computed in double and truncated (not
// rounded): existing consumers compare encoded times with this rule.
uint32_t ticks_from_parts(const AstTimeOfDay &t) {
    const double ms = static_cast<double>(t.millisecond) + 1000.0 * t.second + 3600000.0 * t.hour +
                      60000.0 * t.minute;
    // Every part is at most 2^32 - 1, so the count stays far below 2^64.
    const auto ticks = static_cast<uint64_t>(ms * 128.0 / 1000.0);
    return static_cast<uint32_t>(ticks & 0xFFFFFFu);
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_time_of_day_init(AstTimeOfDay *out) {
    if (out) *out = AstTimeOfDay{0, 0, kLsb, 0, 0, 0, 0};
}

KOVREL_API void ast_dataitem_time_of_day_decode(AstTimeOfDay *out, const AstDataItem *item) {
    if (!out) return;
    ast_dataitem_time_of_day_init(out);
    if (!items::span_ok(item, kLength)) return;
    uint32_t raw = 0;
    ast_unsigned_decode(&raw, item->data, 3);
    out->raw = raw;
    out->hour = raw / kTicksPerHour;
    const uint32_t in_hour = raw / 128u - 3600u * out->hour;
    out->minute = in_hour / 60u;
    out->second = in_hour % 60u;
    const uint32_t ticks = raw - kTicksPerHour * out->hour - kTicksPerMinute * out->minute - 128u * out->second;
    out->millisecond = ticks * 1000u / 128u;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_time_of_day_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                const AstTimeOfDay *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    // A raw count wins over the parts; the parts are only looked at when
    // raw is 0.
    const uint32_t raw = in->raw != 0 ? (in->raw & 0xFFFFFFu) : ticks_from_parts(*in);
    ast_unsigned_encode(buffer, 3, raw);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_time_of_day_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_time_of_day_decode, [](TextWriter &w, const auto &t) {
        w.append("TOD:");
        w.append_int(static_cast<int>(t.hour), 2);
        w.append_char(':');
        w.append_int(static_cast<int>(t.minute), 2);
        w.append_char(':');
        w.append_int(static_cast<int>(t.second), 2);
        w.append_char('.');
        w.append_int(static_cast<int>(t.millisecond), 3);
    });
}

KOVREL_API void ast_dataitem_time_of_day_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_time_of_day_decode, [](TextWriter &w, const auto &tod) {
        items::DetailTable t(w);
        t.header("Name", "Value");
        t.valuef("TIME LSB=1/128S", "%u", static_cast<unsigned>(tod.raw));
        t.valuef("TIME LSB=1S", "%u", static_cast<unsigned>(tod.raw >> 7));
        t.valuef("HOUR", "%2u", static_cast<unsigned>(tod.hour));
        t.valuef("MINUTE", "%2u", static_cast<unsigned>(tod.minute));
        t.valuef("SECOND", "%2u", static_cast<unsigned>(tod.second));
        t.valuef("MILLISECOND", "%3u", static_cast<unsigned>(tod.millisecond));
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstTimeOfDay;
// Seconds since midnight over the raw count, which the encoder writes
// whenever it is not 0 (a count of 0 gives midnight from the zero parts).
constexpr FieldRow kTimeRows[] = {
    scaled("tod", KOVREL_MEMBER(T, raw), kLsb, "s").width(24),
};
}  // namespace

constinit const FieldDesc kTimeOfDay = describe<T, init_valid<T, ast_dataitem_time_of_day_init>>(kTimeRows);

}  // namespace kovrel::fields
