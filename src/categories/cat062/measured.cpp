// I062/340 Measured Information: the last sensor report that updated the
// track: the sensor, its polar position, 3-D height, Mode C and Mode 3/A
// codes, and the kind of report.
#include <cstdint>

#include "categories/cat062/item_fields.h"
#include "categories/cat062/support.h"
#include "items/item_ex.h"
#include "kovrel/cat062.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using namespace kovrel::cat062;
using T = AstItem062_340;

constexpr AstItemId kId = 62340;
constexpr double kRhoLsb = 1.0 / 256.0;        // NM
constexpr double kThetaLsb = 360.0 / 65536.0;  // degrees
constexpr double kHeightLsb = 25.0;            // ft
constexpr double kModeCLsb = 0.25;             // FL

constexpr const char *kTypText[8] = {"NO_DETECTION",   "PSR",           "SSR",
                                     "SSR_PSR",        "MODES_ALL_CALL", "MODES_ROLL_CALL",
                                     "MODES_ALL_CALL_PSR", "MODES_ROLL_CALL_PSR"};

bool decode_subfield(T &o, uint32_t number, const AstSubfield &s) {
    const uint8_t *p = s.data;
    switch (number) {
    case 1:
        if (!span_is(s, 2)) return false;
        o.sac = p[0];
        o.sic = p[1];
        o.sid_present = 1;
        return true;
    case 2:
        if (!span_is(s, 4)) return false;
        o.rho_raw = octets_u(p, 2);
        o.theta_raw = octets_u(p + 2, 2);
        o.rho = o.rho_raw * kRhoLsb;
        o.theta = o.theta_raw * kThetaLsb;
        o.pos_present = 1;
        return true;
    case 3:
        if (!span_is(s, 2)) return false;
        o.height_raw = octets_s(p, 2);
        o.height = o.height_raw * kHeightLsb;
        o.height_present = 1;
        return true;
    case 4: {
        if (!span_is(s, 2)) return false;
        const uint32_t v = octets_u(p, 2);
        o.mdc_v = static_cast<uint8_t>(field(v, 15, 1));
        o.mdc_g = static_cast<uint8_t>(field(v, 14, 1));
        o.mdc_raw = signed_field(v, 0, 14);
        o.mdc = o.mdc_raw * kModeCLsb;
        o.mdc_present = 1;
        return true;
    }
    case 5: {
        if (!span_is(s, 2)) return false;
        const uint32_t v = octets_u(p, 2);
        o.mda_v = static_cast<uint8_t>(field(v, 15, 1));
        o.mda_g = static_cast<uint8_t>(field(v, 14, 1));
        o.mda_l = static_cast<uint8_t>(field(v, 13, 1));
        o.mda = field(v, 0, 12);
        o.mda_present = 1;
        return true;
    }
    case 6:
        if (!span_is(s, 1)) return false;
        o.typ = p[0] >> 5;
        o.sim = (p[0] >> 4) & 1u;
        o.rab = (p[0] >> 3) & 1u;
        o.tst = (p[0] >> 2) & 1u;
        o.typ_present = 1;
        return true;
    default: return false;
    }
}

void write_summary(TextWriter &w, const T &o, uint32_t number) {
    switch (number) {
    case 1: w.appendf("SAC:%03d SIC:%03d", static_cast<int>(o.sac), static_cast<int>(o.sic)); break;
    case 2: w.appendf("RHO:%.3f THETA:%.3f", o.rho, o.theta); break;
    case 3: w.appendf("HEIGHT:%d LSB:FT", static_cast<int>(o.height)); break;
    case 4:
        w.appendf("FL:%.2f", o.mdc);
        if (o.mdc_v) w.append(" V");
        if (o.mdc_g) w.append(" G");
        break;
    case 5:
        w.appendf("MODE_3/A:%04o", o.mda);
        if (o.mda_v) w.append(" V");
        if (o.mda_g) w.append(" G");
        if (o.mda_l) w.append(" L");
        break;
    case 6:
        w.appendf("TYP:%s", kTypText[o.typ & 7u]);
        if (o.sim) w.append(" SIM");
        if (o.rab) w.append(" RAB");
        if (o.tst) w.append(" TST");
        break;
    default: break;
    }
}

void write_detail(TextWriter &w, const T &o, uint32_t number) {
    if (number == 1) {
        // The sensor's SAC and SIC tables, with what the application's
        // lookups know of them.
        const uint8_t octets[2] = {static_cast<uint8_t>(o.sac), static_cast<uint8_t>(o.sic)};
        const AstDataItem sid{octets, 2, kId, 1};
        ast_dataitem_data_source_identifier_get_detail_html(w.end(), w.end_size(), &sid);
        w.resync();
        return;
    }
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    switch (number) {
    case 2:
        t.rowf("Bit[0-15]", "RHO LSB=NM", "%.4f", o.rho);
        t.rowf("Bit[16-31]", "THETA LSB=DEG", "%.4f", o.theta);
        break;
    case 3: t.rowf("Bit[0-15]", "HEIGHT LSB=FT", "%d", static_cast<int>(o.height)); break;
    case 4:
        t.rowf("Bit[0]", "NOT_VALIDATED", "%d", o.mdc_v);
        t.rowf("Bit[1]", "GARBLED", "%d", o.mdc_g);
        t.rowf("Bit[2-15]", "MODE_C LSB=FL", "%.2f", o.mdc);
        break;
    case 5:
        t.rowf("Bit[0]", "NOT_VALIDATED", "%d", o.mda_v);
        t.rowf("Bit[1]", "GARBLED", "%d", o.mda_g);
        t.rowf("Bit[2]", "LOCAL_TRACKER", "%d", o.mda_l);
        t.rowf("Bit[4-15]", "MODE_3/A", "%04o", o.mda);
        break;
    case 6:
        t.row("Bit[0-2]", "REPORT_TYPE", kTypText[o.typ & 7u]);
        t.rowf("Bit[3]", "SIMULATED", "%d", o.sim);
        t.rowf("Bit[4]", "FIELD_MONITOR", "%d", o.rab);
        t.rowf("Bit[5]", "TEST_TARGET", "%d", o.tst);
        break;
    default: break;
    }
    t.end();
}

}  // namespace

KOVREL_CAT062_COMPOUND(340, AstItem062_340, kId, decode_subfield, write_summary, write_detail)

namespace kovrel::fields {

namespace {

const char *typ_name(uint32_t v) { return v < 8 ? kTypText[v] : nullptr; }

constexpr FieldRow kSidRows[] = {
    integer("sac", KOVREL_MEMBER(T, sac)).width(8),
    integer("sic", KOVREL_MEMBER(T, sic)).width(8),
};
constexpr FieldRow kPosRows[] = {
    scaled("rho", KOVREL_MEMBER(T, rho_raw), kRhoLsb, "NM").width(16),
    scaled("theta", KOVREL_MEMBER(T, theta_raw), kThetaLsb, "deg").width(16),
};
constexpr FieldRow kHeightRows[] = {scaled("height", KOVREL_MEMBER(T, height_raw), kHeightLsb, "ft").width(16)};
constexpr FieldRow kMdcRows[] = {
    flag("v", KOVREL_MEMBER(T, mdc_v)),
    flag("g", KOVREL_MEMBER(T, mdc_g)),
    scaled("lmc", KOVREL_MEMBER(T, mdc_raw), kModeCLsb, "FL").width(14),
};
constexpr FieldRow kMdaRows[] = {
    flag("v", KOVREL_MEMBER(T, mda_v)),
    flag("g", KOVREL_MEMBER(T, mda_g)),
    flag("l", KOVREL_MEMBER(T, mda_l)),
    integer("mode3a", KOVREL_MEMBER(T, mda)).width(12).shown(AST_FIELD_FORMAT_OCTAL4),
};
constexpr FieldRow kTypRows[] = {
    enumeration("typ", KOVREL_MEMBER(T, typ), typ_name).width(3),
    flag("sim", KOVREL_MEMBER(T, sim)),
    flag("rab", KOVREL_MEMBER(T, rab)),
    flag("tst", KOVREL_MEMBER(T, tst)),
};

constinit const FieldDesc kSid = describe<T>(kSidRows);
constinit const FieldDesc kPos = describe<T>(kPosRows);
constinit const FieldDesc kHeight = describe<T>(kHeightRows);
constinit const FieldDesc kMdc = describe<T>(kMdcRows);
constinit const FieldDesc kMda = describe<T>(kMdaRows);
constinit const FieldDesc kTyp = describe<T>(kTypRows);

constexpr FieldRow kRows[] = {
    compound_part("sid", KOVREL_MEMBER(T, sid_present), kSid, sizeof(T)),
    compound_part("pos", KOVREL_MEMBER(T, pos_present), kPos, sizeof(T)),
    compound_part("height", KOVREL_MEMBER(T, height_present), kHeight, sizeof(T)),
    compound_part("mdc", KOVREL_MEMBER(T, mdc_present), kMdc, sizeof(T)),
    compound_part("mda", KOVREL_MEMBER(T, mda_present), kMda, sizeof(T)),
    compound_part("typ", KOVREL_MEMBER(T, typ_present), kTyp, sizeof(T)),
};

}  // namespace

constinit const FieldDesc k062_340 = describe<T, init_valid<T, ast_dataitem_062_340_init>>(kRows);

}  // namespace kovrel::fields
