// Register 0,9: extended squitter airborne velocity.
#include "items/bds_support.h"
#include "items/item_fields.h"
#include "kovrel/bds.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

}  // namespace

extern "C" {

KOVREL_API AstBds09 ast_bds_09_decode(const AstDataItem *reg) {
    AstBds09 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x09);
    if (!octets) return r;
    const items::MbBits mb(octets);
    const uint32_t tc = mb.field(1, 5);
    const uint32_t subtype = mb.field(6, 3);
    if (tc != 19 || subtype < 1 || subtype > 4) return r;
    r.type_code = tc;
    r.subtype = subtype;
    r.intent_change = mb.bit(9);
    r.nac = mb.field(11, 3);
    if (subtype <= 2) {
        // Ground speed components: raw 0 means no information, raw n means
        // n - 1 knots (4 knot steps for the supersonic subtype 2). The
        // north-south direction (bit 25) is not kept.
        r.ew_direction = mb.bit(14);
        const uint32_t ew = mb.field(15, 10);
        const uint32_t ns = mb.field(26, 10);
        if (ew != 0 && ns != 0) {
            const uint32_t factor = subtype == 2 ? 4 : 1;
            r.velocity_present = 1;
            r.ew_speed = (ew - 1) * factor;
            r.ns_speed = (ns - 1) * factor;
        }
    }
    r.vertical_rate_source = mb.bit(36);
    r.vertical_rate_sign = mb.bit(37);
    const uint32_t rate = mb.field(38, 9);
    if (rate != 0) {
        r.vertical_rate_present = 1;
        r.vertical_rate = static_cast<int32_t>(rate - 1) * 64;
    }
    r.height_diff_sign = mb.bit(49);
    const uint32_t diff = mb.field(50, 7);
    if (diff != 0) {
        r.height_diff_present = 1;
        r.height_diff = static_cast<int32_t>(diff - 1) * 25;
    }
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_09_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_09_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Value");
        t.valuef("Format Type Code", "%d", static_cast<int>(r.type_code));
        t.valuef("Subtype", "%d", static_cast<int>(r.subtype));
        t.valuef("Intent Change Flag", "%d", r.intent_change);
        t.valuef("NACv", "%d", static_cast<int>(r.nac));
        t.valuef("Ground Speed Valid", "%d", r.velocity_present);
        t.valuef("Ground Speed Direction E-W", "%d", r.ew_direction);
        t.valuef("Ground Speed E-W", "%u", static_cast<unsigned>(r.ew_speed));
        t.valuef("Ground Speed Direction N-S", "%d", r.ns_direction);
        t.valuef("Ground Speed N-S", "%u", static_cast<unsigned>(r.ns_speed));
        t.row("Vertical Rate Source", r.vertical_rate_source ? "BARO" : "GEOMETRIC");
        t.row("Vertical Rate Sign", r.vertical_rate_sign ? "DOWN" : "UP");
        t.valuef("Vertical Rate Valid", "%d", r.vertical_rate_present);
        t.valuef("Vertical Rate", "%d", r.vertical_rate);
        t.row("Geometric Height Difference Sign", r.height_diff_sign ? "BELOW_BARO" : "ABOVE_BARO");
        t.valuef("Geometric Height Difference Valid", "%d", r.height_diff_present);
        t.valuef("Geometric Height Difference", "%d", r.height_diff);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
// Speeds, rates and their directions exist only when the register gives
// them; the north-south direction is not decoded, so it is not a field.
using T = AstBds09;
constexpr FieldRow kRows[] = {
    integer("tc", KOVREL_MEMBER(T, type_code)).width(5),
    integer("st", KOVREL_MEMBER(T, subtype)).width(3),
    flag("ic", KOVREL_MEMBER(T, intent_change)),
    integer("nac", KOVREL_MEMBER(T, nac)).width(3),
    flag("dew", KOVREL_MEMBER(T, ew_direction)).when(KOVREL_MEMBER(T, velocity_present)),
    integer("vew", KOVREL_MEMBER(T, ew_speed), "kt").when(KOVREL_MEMBER(T, velocity_present)),
    integer("vns", KOVREL_MEMBER(T, ns_speed), "kt").when(KOVREL_MEMBER(T, velocity_present)),
    flag("vrsrc", KOVREL_MEMBER(T, vertical_rate_source)),
    flag("svr", KOVREL_MEMBER(T, vertical_rate_sign)).when(KOVREL_MEMBER(T, vertical_rate_present)),
    integer("vr", KOVREL_MEMBER(T, vertical_rate), "ft/min").when(KOVREL_MEMBER(T, vertical_rate_present)),
    flag("sdif", KOVREL_MEMBER(T, height_diff_sign)).when(KOVREL_MEMBER(T, height_diff_present)),
    integer("dalt", KOVREL_MEMBER(T, height_diff), "ft").when(KOVREL_MEMBER(T, height_diff_present)),
};
}  // namespace

constinit const FieldDesc kBds09 = describe<T>(kRows);

}  // namespace kovrel::fields
