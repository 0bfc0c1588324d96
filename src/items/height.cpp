// Height: one 16-bit two's complement field, LSB 6.25 ft.
#include <cstdio>

#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_motion.h"

namespace kovrel {
namespace {

constexpr double kLsbFeet = 6.25;
constexpr double kLsbMetres = 1.905;  // 6.25 ft

void decode(AstHeight *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstHeight{0, 0, kLsbFeet, 0.0};
    if (!motion::exact_span(item, 2)) return;
    int32_t raw = 0;
    ast_twos_complement_decode(&raw, item->data, 2);
    *out = AstHeight{1, raw, kLsbFeet, raw * kLsbFeet};
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_dataitem_height_init(AstHeight *out) { kovrel::decode(out, nullptr); }

KOVREL_API void ast_dataitem_height_decode(AstHeight *out, const AstDataItem *item) { kovrel::decode(out, item); }

KOVREL_API void ast_dataitem_height_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    AstHeight h;
    kovrel::decode(&h, item);
    if (h.valid != 1) return;
    w.appendf("H:%.2f LSB:FT", h.value);
}

KOVREL_API void ast_dataitem_height_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    using namespace kovrel;
    TextWriter w(buffer, size);
    AstHeight h;
    decode(&h, item);
    if (h.valid != 1) return;
    char text[32];
    motion::table_begin(w, "Bit", "Item", "Value");
    std::snprintf(text, sizeof text, "%d", h.raw);
    motion::table_row(w, "Bit[0-15]", "HEIGHT LSB=6.25FT", text);
    std::snprintf(text, sizeof text, "%.2f", h.value);
    motion::table_row(w, "Bit[0-15]", "HEIGHT LSB=FT", text);
    std::snprintf(text, sizeof text, "%.2f", h.raw * kLsbMetres);
    motion::table_row(w, "Bit[0-15]", "HEIGHT LSB=M", text);
    motion::table_end(w);
}

}  // extern "C"
