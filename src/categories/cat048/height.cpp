// I048/110 Height Measured by a 3D Radar: a 14-bit two's complement height
// in units of 25 ft; the two top bits of the item are spare.
#include "categories/cat048/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat048.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 48110;
constexpr uint64_t kLength = 2;
constexpr int32_t kLsbFeet = 25;
constexpr double kMetresPerFoot = 0.3048;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_110_init(AstItem048_110 *out) {
    if (out) *out = AstItem048_110{};
}

KOVREL_API void ast_dataitem_048_110_decode(AstItem048_110 *out, const AstDataItem *item) {
    ast_dataitem_048_110_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kId) return;
    int32_t raw = ((item->data[0] & 0x3F) << 8) | item->data[1];
    if (raw & 0x2000) raw -= 0x4000;
    out->height = raw * kLsbFeet;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_048_110_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_110_decode,
                    [](TextWriter &w, const auto &h) {
                        w.append("H:");
                        w.append_int(h.height);
                        w.append(" LSB:FT");
                    });
}

KOVREL_API void ast_dataitem_048_110_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_110_decode, [](TextWriter &w, const auto &h) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[2-15]", "HEIGHT LSB=25FT", "%d", h.height / kLsbFeet);
        t.rowf("Bit[2-15]", "HEIGHT LSB=FT", "%d", h.height);
        t.rowf("Bit[2-15]", "HEIGHT LSB=M", "%.2f", h.height * kMetresPerFoot);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(048_110, AstItem048_110, ast_dataitem_048_110_decode)

namespace kovrel::fields {

namespace {

using T = AstItem048_110;

// The standard's mnemonic of the height is "3DH"; the structure holds feet.
constexpr FieldRow kRows[] = {
    integer("3dh", KOVREL_MEMBER(T, height), "ft"),
};

}  // namespace

constinit const FieldDesc k048_110 = describe<T, init_valid<T, ast_dataitem_048_110_init>>(kRows);

}  // namespace kovrel::fields
