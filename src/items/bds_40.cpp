// Register 4,0: selected vertical intention.
#include "items/bds_support.h"
#include "items/item_fields.h"
#include "kovrel/bds.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

}  // namespace

extern "C" {

KOVREL_API AstBds40 ast_bds_40_decode(const AstDataItem *reg) {
    AstBds40 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x40);
    if (!octets) return r;
    const items::MbBits mb(octets);
    if ((r.mcp_alt_status = mb.bit(1))) r.mcp_alt = mb.field(2, 12) * 16;
    if ((r.fms_alt_status = mb.bit(14))) r.fms_alt = mb.field(15, 12) * 16;
    if ((r.baro_setting_status = mb.bit(27))) r.baro_setting = mb.field(28, 12) * 0.1 + 800.0;
    if ((r.mode_status = mb.bit(48))) {
        r.vnav_mode = mb.bit(49);
        r.alt_hold_mode = mb.bit(50);
        r.approach_mode = mb.bit(51);
    }
    if ((r.target_alt_source_status = mb.bit(54))) r.target_alt_source = mb.field(55, 2);
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_40_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_40_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Status", "Value");
        items::status_row(t, "MCP/FCU Selected Altitude", r.mcp_alt_status, "%d FT", static_cast<int>(r.mcp_alt));
        items::status_row(t, "FMS Selected Altitude", r.fms_alt_status, "%d FT", static_cast<int>(r.fms_alt));
        items::status_row(t, "Barometric Pressure Setting", r.baro_setting_status, "%.1f MB", r.baro_setting);
        items::status_row(t, "Vnav Mode", r.mode_status, "%d", r.vnav_mode);
        items::status_row(t, "Alt Hold Mode", r.mode_status, "%d", r.alt_hold_mode);
        items::status_row(t, "Approach Mode", r.mode_status, "%d", r.approach_mode);
        items::status_row(t, "Target Altitude Source", r.target_alt_source_status, "%s",
                          ast_selected_altitude_source_to_str(r.target_alt_source, 0));
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
const char *altitude_source_name(uint32_t code) { return ast_selected_altitude_source_to_str(code, 0); }

// Each value exists only when its status bit is set.
using T = AstBds40;
constexpr FieldRow kRows[] = {
    integer("mcp_alt", KOVREL_MEMBER(T, mcp_alt), "ft").when(KOVREL_MEMBER(T, mcp_alt_status)),
    integer("fms_alt", KOVREL_MEMBER(T, fms_alt), "ft").when(KOVREL_MEMBER(T, fms_alt_status)),
    real("bps", KOVREL_MEMBER(T, baro_setting), "hPa").when(KOVREL_MEMBER(T, baro_setting_status)),
    flag("vnav", KOVREL_MEMBER(T, vnav_mode)).when(KOVREL_MEMBER(T, mode_status)),
    flag("alt_hold", KOVREL_MEMBER(T, alt_hold_mode)).when(KOVREL_MEMBER(T, mode_status)),
    flag("app", KOVREL_MEMBER(T, approach_mode)).when(KOVREL_MEMBER(T, mode_status)),
    enumeration("tars", KOVREL_MEMBER(T, target_alt_source), altitude_source_name)
        .width(2)
        .when(KOVREL_MEMBER(T, target_alt_source_status)),
};
}  // namespace

constinit const FieldDesc kBds40 = describe<T>(kRows);

}  // namespace kovrel::fields
