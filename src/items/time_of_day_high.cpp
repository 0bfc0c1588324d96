// High-precision time of day: a 2-bit full-second indication (FSI) and the
// fraction of the second in 30 bits, LSB 2^-30 s. The FSI tells whether the
// whole second of the accompanying time of day is the same, the next or the
// previous one.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_ident.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 4;
constexpr double kLsb = 1.0 / 1073741824.0;  // 2^-30 s

// FSI codes 00, 01, 10 and the reserved 11, which reads as "same second".
int32_t fsi_of(uint32_t code) {
    switch (code) {
    case 1: return 1;
    case 2: return -1;
    default: return 0;
    }
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_time_of_day_high_init(AstTimeOfDayHigh *out) {
    if (out) *out = AstTimeOfDayHigh{0, 0, 0, kLsb, 0.0};
}

KOVREL_API void ast_dataitem_time_of_day_high_decode(AstTimeOfDayHigh *out, const AstDataItem *item) {
    if (!out) return;
    ast_dataitem_time_of_day_high_init(out);
    if (!items::span_ok(item, kLength)) return;
    uint32_t word = 0;
    ast_unsigned_decode(&word, item->data, 4);
    out->fsi = fsi_of(word >> 30);
    out->raw = word & 0x3FFFFFFFu;
    out->fraction = out->raw * kLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_time_of_day_high_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_time_of_day_high_decode, [](TextWriter &w, const auto &t) {
        w.appendf("FSI:%d TOMR:%.6f", static_cast<int>(t.fsi), t.fraction);
    });
}

KOVREL_API void ast_dataitem_time_of_day_high_get_detail_html(char *buffer, size_t size,
                                                              const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_time_of_day_high_decode, [](TextWriter &w, const auto &tod) {
        items::DetailTable t(w);
        t.header("Name", "Value");
        t.valuef("FSI", "%d", static_cast<int>(tod.fsi));
        t.valuef("TIME LSB=2^-30S", "%u", static_cast<unsigned>(tod.raw));
        t.valuef("TIME LSB=S", "%f", tod.fraction);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstTimeOfDayHigh;
constexpr FieldRow kTimeHighRows[] = {
    integer("fsi", KOVREL_MEMBER(T, fsi)).width(2),
    scaled("tomr", KOVREL_MEMBER(T, raw), kLsb, "s").width(30),
};
}  // namespace

constinit const FieldDesc kTimeOfDayHigh =
    describe<T, init_valid<T, ast_dataitem_time_of_day_high_init>>(kTimeHighRows);

}  // namespace kovrel::fields
