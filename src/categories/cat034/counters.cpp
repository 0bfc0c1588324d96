// I034/070 Message Count Values: REP two-octet counters, each a 5-bit
// counter type and an 11-bit count of the messages of that type the station
// produced since the last North marker.
#include <cstdio>

#include "categories/cat034/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat034.h"
#include "kovrel/core.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 34070;
constexpr uint32_t kMaxCounters = AST_ITEM034_070_MAX_COUNTERS;

// Counter types as the station reports them; types beyond the table have no name.
const char *counter_name(uint32_t typ) {
    static constexpr const char *kNames[] = {
        "No detection (number of misses)",
        "Single PSR target reports",
        "Single SSR target reports (Non-Mode S)",
        "SSR+PSR target reports (Non-Mode S)",
        "Single All-Call target reports (Mode S)",
        "Single Roll-Call target reports (Mode S)",
        "All-Call + PSR (Mode S) target reports",
        "Roll-Call + PSR (Mode S) target reports",
        "Filter for Weather data",
        "Filter for Jamming Strobe",
        "Filter for PSR data",
        "Filter for SSR/Mode S data",
        "Filter for SSR/Mode S+PSR data",
        "Filter for Enhanced Surveillance data",
        "Filter for PSR+Enhanced Surveillance",
        "Filter for PSR+Enhanced Surveillance + SSR/Mode S data not in Area of Prime Interest",
        "Filter for PSR+Enhanced Surveillance + all SSR/Mode S data",
        "Re-Interrogations (per sector)",
        "BDS Swap and wrong DF replies (per sector)",
        "Mode A/C FRUIT (per sector)",
        "Mode S FRUIT (per sector)",
    };
    return typ < sizeof kNames / sizeof kNames[0] ? kNames[typ] : "";
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_034_070_init(AstItem034_070 *out) {
    if (out) *out = AstItem034_070{};
}

KOVREL_API void ast_dataitem_034_070_decode(AstItem034_070 *out, const AstDataItem *item) {
    ast_dataitem_034_070_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kId) return;
    const uint32_t rep = item->data[0];
    if (item->length != 2ull * rep + 1) return;
    if (rep > kMaxCounters) {
        ast_log(AST_LOG_WARNING, "I034/070 counter count %u exceeds max %u.", rep, kMaxCounters);
        return;
    }
    out->count = rep;
    for (uint32_t i = 0; i < rep; ++i) {
        const uint8_t *p = item->data + 1 + 2 * i;
        out->counters[i].typ = p[0] >> 3;
        out->counters[i].count = ((p[0] & 0x07u) << 8) | p[1];
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_034_070_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_034_070_decode, [](TextWriter &w, const auto &d) {
        w.append("COUNTERS:");
        w.append_int(d.count);
    });
}

KOVREL_API void ast_dataitem_034_070_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_034_070_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Counter", "TYP", "Type", "COUNT");
        for (uint32_t i = 0; i < d.count; ++i) {
            char number[12], typ[12], count[12];
            std::snprintf(number, sizeof number, "%u", i + 1);
            std::snprintf(typ, sizeof typ, "%u", d.counters[i].typ);
            std::snprintf(count, sizeof count, "%u", d.counters[i].count);
            t.row(number, typ, counter_name(d.counters[i].typ), count);
        }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(034_070, AstItem034_070, ast_dataitem_034_070_decode)

namespace kovrel::fields {

namespace {

using T = AstItem034_070;
using C = AstItem034Counter;

constexpr FieldRow kCounterRows[] = {
    integer("typ", KOVREL_MEMBER(C, typ)).width(5),
    integer("count", KOVREL_MEMBER(C, count)).width(11),
};
constinit const FieldDesc kCounter = describe<C>(kCounterRows);

constexpr FieldRow kRows[] = {
    array("counters", KOVREL_MEMBER(T, counters), KOVREL_MEMBER(T, count), sizeof(C), kMaxCounters, kCounter),
};

}  // namespace

constinit const FieldDesc k034_070 = describe<T, init_valid<T, ast_dataitem_034_070_init>>(kRows);

}  // namespace kovrel::fields
