// Mode S registers: the register span, its code as text, its name, the
// dispatch to the register views, and the status rows the views share.
#include <cstdarg>

#include "items/bds_support.h"
#include "kovrel/bds.h"
#include "kovrel/core.h"

namespace kovrel {
namespace {

struct BdsName {
    uint32_t code;
    const char *name;
};

constexpr BdsName kNames[] = {
    {0x05, "Extended Squitter Airborne Position"},
    {0x06, "Extended Squitter Surface Position"},
    {0x07, "Extended Squitter Status"},
    {0x08, "Extended Squitter Aircraft Identification and Category"},
    {0x09, "Extended Squitter Airborne Velocity"},
    {0x0A, "Extended Squitter Event-Driven Information"},
    {0x10, "Data Link Capability Report"},
    {0x17, "Common Usage GICB Capability Report"},
    {0x20, "Aircraft Identification"},
    {0x30, "TCAS/ACAS Active Resolution Advisory"},
    {0x40, "Selected Vertical Intention"},
    {0x50, "Track and Turn Report"},
    {0x60, "Heading and Speed Report"},
    {0x61, "Extended Squitter Aircraft Status"},
    {0x62, "Target State and Status"},
    {0x65, "Extended Squitter Aircraft Operational Status"},
    {0xE1, "Reserved for Mode S BITE"},
};

struct BdsView {
    uint32_t code;
    AstBdsGetDetailHtmlFn view;
};

constexpr BdsView kViews[] = {
    {0x05, ast_bds_05_get_detail_html}, {0x08, ast_bds_08_get_detail_html}, {0x09, ast_bds_09_get_detail_html},
    {0x10, ast_bds_10_get_detail_html}, {0x20, ast_bds_20_get_detail_html}, {0x30, ast_bds_30_get_detail_html},
    {0x40, ast_bds_40_get_detail_html}, {0x50, ast_bds_50_get_detail_html}, {0x60, ast_bds_60_get_detail_html},
};

// "%X,%X" of BDS1 and BDS2, optionally after a prefix.
char *code_text(char *buffer, size_t size, uint32_t code, const char *prefix) {
    if (!buffer || size == 0) return nullptr;
    TextWriter w(buffer, size);
    w.append(prefix);
    static constexpr char kHex[] = "0123456789ABCDEF";
    w.append_char(kHex[(code >> 4) & 0xFu]);
    w.append_char(',');
    w.append_char(kHex[code & 0xFu]);
    return buffer;
}

}  // namespace

namespace items {

void status_row(DetailTable &table, const char *label, bool valid, const char *format, ...) {
    if (!valid) {
        table.row(label, "invalid", "--");
        return;
    }
    va_list ap;
    va_start(ap, format);
    table.vrowf(label, "valid", format, ap);
    va_end(ap);
}

}  // namespace items
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_bds_decode(AstDataItem *out, const uint8_t *mb, size_t count, uint32_t code) {
    if (!out) return;
    const bool valid = mb && count >= kovrel::items::kMbOctets;
    *out = AstDataItem{mb, kovrel::items::kMbOctets, code, static_cast<uint8_t>(valid ? 1 : 0)};
}

KOVREL_API char *ast_bds_type_to_str_simple(char *buffer, size_t size, uint32_t code) {
    return kovrel::code_text(buffer, size, code, "");
}

KOVREL_API char *ast_bds_type_to_str(char *buffer, size_t size, uint32_t code) {
    return kovrel::code_text(buffer, size, code, "BDS ");
}

KOVREL_API const char *ast_bds_get_name(uint32_t code) {
    for (const auto &entry : kovrel::kNames)
        if (entry.code == code) return entry.name;
    return "UNKNOWN NAME";
}

KOVREL_API AstBdsGetDetailHtmlFn ast_bds_get_func(uint32_t code) {
    for (const auto &entry : kovrel::kViews)
        if (entry.code == code) return entry.view;
    char text[8];
    ast_bds_type_to_str_simple(text, sizeof text, code);
    ast_log(AST_LOG_WARNING, "Unsupported BDS %s", text);
    return nullptr;
}

KOVREL_API void ast_bds_get_detail_html_dummy(char *buffer, size_t size, const AstDataItem *) {
    kovrel::TextWriter w(buffer, size);
}

KOVREL_API void ast_bds_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    kovrel::TextWriter w(buffer, size);
    if (!reg || reg->valid != 1) return;
    const AstBdsGetDetailHtmlFn view = ast_bds_get_func(reg->id);
    if (view) view(buffer, size, reg);
}

}  // extern "C"
