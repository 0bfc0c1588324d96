// Height: one 16-bit two's complement field, LSB 6.25 ft.
#include "items/item_fields.h"
#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_motion.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 2;
constexpr double kLsbFeet = 6.25;
constexpr double kLsbMetres = 1.905;  // 6.25 ft

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_height_init(AstHeight *out) {
    if (out) *out = AstHeight{0, 0, kLsbFeet, 0.0};
}

KOVREL_API void ast_dataitem_height_decode(AstHeight *out, const AstDataItem *item) {
    ast_dataitem_height_init(out);
    if (!out || !items::span_ok(item, kLength)) return;
    int32_t raw = 0;
    ast_twos_complement_decode(&raw, item->data, 2);
    *out = AstHeight{1, raw, kLsbFeet, raw * kLsbFeet};
}

KOVREL_API void ast_dataitem_height_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_height_decode,
                    [](TextWriter &w, const auto &h) { w.appendf("H:%.2f LSB:FT", h.value); });
}

KOVREL_API void ast_dataitem_height_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_height_decode, [](TextWriter &w, const auto &h) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "HEIGHT LSB=6.25FT", "%d", h.raw);
        t.rowf("Bit[0-15]", "HEIGHT LSB=FT", "%.2f", h.value);
        t.rowf("Bit[0-15]", "HEIGHT LSB=M", "%.2f", h.raw * kLsbMetres);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstHeight;
constexpr FieldRow kHeightRows[] = {
    scaled("height", KOVREL_MEMBER(T, raw), kLsbFeet, "ft").width(16),
};
}  // namespace

constinit const FieldDesc kHeight = describe<T, init_valid<T, ast_dataitem_height_init>>(kHeightRows);

}  // namespace kovrel::fields
