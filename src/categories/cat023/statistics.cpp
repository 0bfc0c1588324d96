// I023/120 Service Statistics: counters of the messages the station handled,
// each with what it counts and since when.
#include <cstdio>

#include "categories/cat023/item_fields.h"
#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat023.h"
#include "kovrel/codec.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint32_t kMaxCounters = 32;

struct TypeName {
    uint32_t type;
    const char *name;
};

// Counter types 0-4 count all messages, 20-32 one kind of message received.
constexpr TypeName kTypeNames[] = {
    {0, "UNKNOWN_MESSAGES"},
    {1, "TOO_OLD_MESSAGES"},
    {2, "FAILED_CONVERSIONS"},
    {3, "TOTAL_RECEIVED"},
    {4, "TOTAL_TRANSMITTED"},
    {20, "TISB_MANAGEMENT"},
    {21, "BASIC"},
    {22, "HIGH_DYNAMIC"},
    {23, "FULL_POSITION"},
    {24, "BASIC_GROUND"},
    {25, "TCP"},
    {26, "UTC_TIME"},
    {27, "DATA"},
    {28, "HIGH_RESOLUTION"},
    {29, "AIRCRAFT_TARGET_AIRBORNE"},
    {30, "AIRCRAFT_TARGET_GROUND"},
    {31, "GROUND_VEHICLE_TARGET"},
    {32, "TCP_TWO_SLOT"},
};

}  // namespace

extern "C" {

KOVREL_API const char *ast_dataitem_023_120_type_name(uint32_t type) {
    for (const TypeName &t : kTypeNames)
        if (t.type == type) return t.name;
    return "RESERVED";
}

KOVREL_API void ast_dataitem_023_120_init(AstItem023_120 *out) {
    if (out) *out = AstItem023_120{};
}

KOVREL_API void ast_dataitem_023_120_decode(AstItem023_120 *out, const AstDataItem *item) {
    ast_dataitem_023_120_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != 23120) return;
    const uint8_t *d = item->data;
    out->rep = d[0];
    if (out->rep > kMaxCounters || item->length != 1 + 6ull * out->rep) return;
    for (uint32_t i = 0; i < out->rep; ++i) {
        const uint8_t *c = d + 1 + 6 * i;
        out->counters[i].type = c[0];
        out->counters[i].ref = c[1] >> 7;
        ast_unsigned_decode(&out->counters[i].counter, c + 2, 4);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_023_120_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstItem023_120 *in) {
    const uint32_t rep = in ? in->rep : 0;
    const size_t length = 1 + 6 * static_cast<size_t>(rep <= kMaxCounters ? rep : 0);
    if (!items::encode_begin(out, buffer, size, length)) return;
    if (!in || in->valid != 1 || rep > kMaxCounters) return;
    for (uint32_t i = 0; i < rep; ++i)
        if (in->counters[i].type > 255 || in->counters[i].ref > 1) return;
    buffer[0] = static_cast<uint8_t>(rep);
    for (uint32_t i = 0; i < rep; ++i) {
        uint8_t *c = buffer + 1 + 6 * i;
        c[0] = static_cast<uint8_t>(in->counters[i].type);
        c[1] = static_cast<uint8_t>(in->counters[i].ref << 7);
        ast_unsigned_encode(c + 2, 4, in->counters[i].counter);
    }
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_023_120_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_120_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("COUNTERS:%u", d.rep); });
}

KOVREL_API void ast_dataitem_023_120_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_120_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Counter", "TYPE", "Name", "REF", "Value");
        for (uint32_t i = 0; i < d.rep; ++i) {
            const AstItem023_120Counter &c = d.counters[i];
            char number[16], type[16], value[16];
            std::snprintf(number, sizeof number, "#%u", i + 1);
            std::snprintf(type, sizeof type, "%u", c.type);
            std::snprintf(value, sizeof value, "%u", c.counter);
            t.row(number, type, ast_dataitem_023_120_type_name(c.type),
                  c.ref ? "FROM_LAST_REPORT" : "FROM_MIDNIGHT", value);
        }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(023_120, AstItem023_120, ast_dataitem_023_120_decode)
KOVREL_ENCODE_EX(023_120, AstItem023_120, ast_dataitem_023_120_encode)

namespace kovrel::fields {

namespace {

const char *type_name(uint32_t type) { return ast_dataitem_023_120_type_name(type); }

using C = AstItem023_120Counter;
constexpr FieldRow kCounterRows[] = {
    enumeration("type", KOVREL_MEMBER(C, type), type_name).width(8),
    flag("ref", KOVREL_MEMBER(C, ref)),
    integer("counter", KOVREL_MEMBER(C, counter)),
};
constinit const FieldDesc kCounter = describe<C>(kCounterRows);

using T = AstItem023_120;
constexpr FieldRow kRows[] = {
    array("counters", KOVREL_MEMBER(T, counters), KOVREL_MEMBER(T, rep), sizeof(C), kMaxCounters, kCounter),
};

}  // namespace

constinit const FieldDesc k023_120 = describe<T, init_valid<T, ast_dataitem_023_120_init>>(kRows);

}  // namespace kovrel::fields
