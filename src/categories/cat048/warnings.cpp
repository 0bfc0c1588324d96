// I048/030 Warning/Error Conditions: one warning or error code per octet,
// the octet's FX bit dropped.
#include <cstdio>

#include "categories/cat048/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat048.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 48030;
constexpr uint32_t kMaxCodes = sizeof(AstItem048_030::codes) / sizeof(AstItem048_030::codes[0]);

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_030_init(AstItem048_030 *out) {
    if (out) *out = AstItem048_030{};
}

KOVREL_API void ast_dataitem_048_030_decode(AstItem048_030 *out, const AstDataItem *item) {
    ast_dataitem_048_030_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kId || item->length > kMaxCodes) return;
    out->count = static_cast<uint32_t>(item->length);
    for (uint32_t i = 0; i < out->count; ++i) out->codes[i] = item->data[i] >> 1;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_048_030_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_030_decode, [](TextWriter &w, const auto &d) {
        for (uint32_t i = 0; i < d.count; ++i) {
            w.append(i ? "+ERRCODE:" : "ERRCODE:");
            w.append_int(static_cast<int>(d.codes[i]));
        }
    });
}

KOVREL_API void ast_dataitem_048_030_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_030_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        for (uint32_t i = 0; i < d.count; ++i) {
            char bits[24];
            std::snprintf(bits, sizeof bits, "Bit[%u-%u]", 8 * i, 8 * i + 6);
            t.rowf(bits, "WARNING_ERROR_CODE", "%u", d.codes[i]);
        }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(048_030, AstItem048_030, ast_dataitem_048_030_decode)

namespace kovrel::fields {

namespace {

using T = AstItem048_030;

// One code: seven bits of its octet.
constexpr FieldRow kCodeRows[] = {integer(nullptr, member_of<uint32_t>(0)).width(7)};
constinit const FieldDesc kCode = describe<uint32_t>(kCodeRows);

constexpr FieldRow kRows[] = {
    array("codes", KOVREL_MEMBER(T, codes), KOVREL_MEMBER(T, count), sizeof(uint32_t), kMaxCodes, kCode),
};

}  // namespace

constinit const FieldDesc k048_030 = describe<T, init_valid<T, ast_dataitem_048_030_init>>(kRows);

}  // namespace kovrel::fields
