// Time of day: a 24-bit count of 1/128 s since midnight.
#include <cstdio>

#include "items/ident_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_ident.h"

namespace {

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
    if (!kovrel::ident::span_ok(item, kLength)) return;
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
    if (!out) return;
    kovrel::ident::encode_failed(out, buffer);
    if (!in || !buffer || size < kLength || in->valid != 1) return;
    // A raw count wins over the parts; the parts are only looked at when
    // raw is 0.
    const uint32_t raw = in->raw != 0 ? (in->raw & 0xFFFFFFu) : ticks_from_parts(*in);
    ast_unsigned_encode(buffer, 3, raw);
    kovrel::ident::encoded(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_time_of_day_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    AstTimeOfDay t;
    ast_dataitem_time_of_day_decode(&t, item);
    if (!t.valid) return;
    w.appendf("TOD:%02d:%02d:%02d.%03d", static_cast<int>(t.hour), static_cast<int>(t.minute),
              static_cast<int>(t.second), static_cast<int>(t.millisecond));
}

KOVREL_API void ast_dataitem_time_of_day_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::ident::HtmlView view(buffer, size);
    AstTimeOfDay t;
    ast_dataitem_time_of_day_decode(&t, item);
    if (!t.valid) return;

    char raw[16];
    char whole[16];
    char hour[16];
    char minute[16];
    char second[16];
    char millisecond[16];
    std::snprintf(raw, sizeof raw, "%u", static_cast<unsigned>(t.raw));
    std::snprintf(whole, sizeof whole, "%u", static_cast<unsigned>(t.raw >> 7));
    std::snprintf(hour, sizeof hour, "%2u", static_cast<unsigned>(t.hour));
    std::snprintf(minute, sizeof minute, "%2u", static_cast<unsigned>(t.minute));
    std::snprintf(second, sizeof second, "%2u", static_cast<unsigned>(t.second));
    std::snprintf(millisecond, sizeof millisecond, "%3u", static_cast<unsigned>(t.millisecond));

    view.table_begin();
    view.header("Name", "Value");
    view.row("TIME LSB=1/128S", raw);
    view.row("TIME LSB=1S", whole);
    view.row("HOUR", hour);
    view.row("MINUTE", minute);
    view.row("SECOND", second);
    view.row("MILLISECOND", millisecond);
    view.table_end();
}

}  // extern "C"
