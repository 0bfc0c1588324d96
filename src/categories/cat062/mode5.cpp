// I062/110 Mode 5 Data reports & Extended Mode 1 Code: the Mode 5 summary,
// PIN, national origin and mission code, the reported position and GNSS
// altitude, the extended Mode 1 code, the time offset of the position and
// the X pulses of each mode.
#include "categories/cat062/item_fields.h"
#include "categories/cat062/support.h"
#include "items/item_ex.h"
#include "kovrel/cat062.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using namespace kovrel::cat062;
using T = AstItem062_110;

constexpr AstItemId kId = 62110;
constexpr double kLatLonLsb = 180.0 / 8388608.0;  // degrees, 180/2^23
constexpr double kGaLsb = 25.0;                    // ft
constexpr double kTosLsb = 1.0 / 128.0;            // s

bool decode_subfield(T &o, uint32_t number, const AstSubfield &s) {
    const uint8_t *p = s.data;
    switch (number) {
    case 1: {
        if (!span_is(s, 1)) return false;
        o.m5 = p[0] >> 7;
        o.id = (p[0] >> 6) & 1u;
        o.da = (p[0] >> 5) & 1u;
        o.m1 = (p[0] >> 4) & 1u;
        o.m2 = (p[0] >> 3) & 1u;
        o.m3 = (p[0] >> 2) & 1u;
        o.mc = (p[0] >> 1) & 1u;
        o.x = p[0] & 1u;
        o.sum_present = 1;
        return true;
    }
    case 2: {
        if (!span_is(s, 4)) return false;
        const uint32_t v = octets_u(p, 4);
        o.pin = field(v, 16, 14);
        o.nat = field(v, 8, 5);
        o.mis = field(v, 0, 6);
        o.pmn_present = 1;
        return true;
    }
    case 3: {
        if (!span_is(s, 6)) return false;
        o.lat_raw = octets_s(p, 3);
        o.lon_raw = octets_s(p + 3, 3);
        o.latitude = o.lat_raw * kLatLonLsb;
        o.longitude = o.lon_raw * kLatLonLsb;
        o.pos_present = 1;
        return true;
    }
    case 4: {
        if (!span_is(s, 2)) return false;
        const uint32_t v = octets_u(p, 2);
        o.res = static_cast<uint8_t>(field(v, 14, 1));
        o.ga_raw = signed_field(v, 0, 14);
        o.ga = o.ga_raw * kGaLsb;
        o.ga_present = 1;
        return true;
    }
    case 5: {
        if (!span_is(s, 2)) return false;
        o.em1 = octets_u(p, 2) & 0x0FFFu;
        o.em1_present = 1;
        return true;
    }
    case 6: {
        if (!span_is(s, 1)) return false;
        o.tos_raw = static_cast<int8_t>(p[0]);
        o.tos = o.tos_raw * kTosLsb;
        o.tos_present = 1;
        return true;
    }
    case 7: {
        if (!span_is(s, 1)) return false;
        o.x5 = (p[0] >> 4) & 1u;
        o.xc = (p[0] >> 3) & 1u;
        o.x3 = (p[0] >> 2) & 1u;
        o.x2 = (p[0] >> 1) & 1u;
        o.x1 = p[0] & 1u;
        o.xp_present = 1;
        return true;
    }
    default: return false;
    }
}

void write_summary(TextWriter &w, const T &o, uint32_t number) {
    const size_t start = w.length();
    switch (number) {
    case 1:
        flag_word(w, o.m5, "M5");
        flag_word(w, o.id, "ID");
        flag_word(w, o.da, "DA");
        flag_word(w, o.m1, "M1");
        flag_word(w, o.m2, "M2");
        flag_word(w, o.m3, "M3");
        flag_word(w, o.mc, "MC");
        flag_word(w, o.x, "X");
        end_flags(w, start, "NO_INFO");
        break;
    case 2: w.appendf("PIN:%u NAT:%u MIS:%u", o.pin, o.nat, o.mis); break;
    case 3: w.appendf("LAT:%.5f LON:%.5f", o.latitude, o.longitude); break;
    case 4: w.appendf("GA:%d LSB:FT", static_cast<int>(o.ga)); break;
    case 5: w.appendf("EM1:%04o", o.em1); break;
    case 6: w.appendf("TOS:%.3f LSB:S", o.tos); break;
    case 7:
        flag_word(w, o.x5, "X5");
        flag_word(w, o.xc, "XC");
        flag_word(w, o.x3, "X3");
        flag_word(w, o.x2, "X2");
        flag_word(w, o.x1, "X1");
        end_flags(w, start, "NO_INFO");
        break;
    default: break;
    }
}

void write_detail(TextWriter &w, const T &o, uint32_t number) {
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    switch (number) {
    case 1:
        t.rowf("Bit[0]", "MODE_5_INTERROGATION", "%d", o.m5);
        t.rowf("Bit[1]", "AUTHENTICATED_ID_REPLY", "%d", o.id);
        t.rowf("Bit[2]", "AUTHENTICATED_DATA_REPLY", "%d", o.da);
        t.rowf("Bit[3]", "MODE_1_FROM_MODE_5", "%d", o.m1);
        t.rowf("Bit[4]", "MODE_2_FROM_MODE_5", "%d", o.m2);
        t.rowf("Bit[5]", "MODE_3_FROM_MODE_5", "%d", o.m3);
        t.rowf("Bit[6]", "MODE_C_FROM_MODE_5", "%d", o.mc);
        t.rowf("Bit[7]", "X_PULSE", "%d", o.x);
        break;
    case 2:
        t.rowf("Bit[2-15]", "PIN", "%u", o.pin);
        t.rowf("Bit[19-23]", "NATIONAL_ORIGIN", "%u", o.nat);
        t.rowf("Bit[26-31]", "MISSION_CODE", "%u", o.mis);
        break;
    case 3:
        t.rowf("Bit[0-23]", "LATITUDE LSB=DEG", "%.6f", o.latitude);
        t.rowf("Bit[24-47]", "LONGITUDE LSB=DEG", "%.6f", o.longitude);
        break;
    case 4:
        t.row("Bit[1]", "RESOLUTION", o.res ? "25_FT" : "100_FT");
        t.rowf("Bit[2-15]", "GNSS_ALTITUDE LSB=FT", "%d", static_cast<int>(o.ga));
        break;
    case 5: t.rowf("Bit[4-15]", "EXTENDED_MODE_1", "%04o", o.em1); break;
    case 6: t.rowf("Bit[0-7]", "TIME_OFFSET LSB=S", "%.3f", o.tos); break;
    case 7:
        t.rowf("Bit[3]", "X_PULSE_MODE_5", "%d", o.x5);
        t.rowf("Bit[4]", "X_PULSE_MODE_C", "%d", o.xc);
        t.rowf("Bit[5]", "X_PULSE_MODE_3A", "%d", o.x3);
        t.rowf("Bit[6]", "X_PULSE_MODE_2", "%d", o.x2);
        t.rowf("Bit[7]", "X_PULSE_MODE_1", "%d", o.x1);
        break;
    default: break;
    }
    t.end();
}

}  // namespace

KOVREL_CAT062_COMPOUND(110, AstItem062_110, kId, decode_subfield, write_summary, write_detail)

namespace kovrel::fields {

namespace {

constexpr FieldRow kSumRows[] = {
    flag("m5", KOVREL_MEMBER(T, m5)), flag("id", KOVREL_MEMBER(T, id)), flag("da", KOVREL_MEMBER(T, da)),
    flag("m1", KOVREL_MEMBER(T, m1)), flag("m2", KOVREL_MEMBER(T, m2)), flag("m3", KOVREL_MEMBER(T, m3)),
    flag("mc", KOVREL_MEMBER(T, mc)), flag("x", KOVREL_MEMBER(T, x)),
};
constexpr FieldRow kPmnRows[] = {
    integer("pin", KOVREL_MEMBER(T, pin)).width(14),
    integer("nat", KOVREL_MEMBER(T, nat)).width(5),
    integer("mis", KOVREL_MEMBER(T, mis)).width(6),
};
constexpr FieldRow kPosRows[] = {
    scaled("lat", KOVREL_MEMBER(T, lat_raw), kLatLonLsb, "deg").width(24),
    scaled("lon", KOVREL_MEMBER(T, lon_raw), kLatLonLsb, "deg").width(24),
};
constexpr FieldRow kGaRows[] = {
    flag("res", KOVREL_MEMBER(T, res)),
    scaled("ga", KOVREL_MEMBER(T, ga_raw), kGaLsb, "ft").width(14),
};
constexpr FieldRow kEm1Rows[] = {integer("em1", KOVREL_MEMBER(T, em1)).width(12).shown(AST_FIELD_FORMAT_OCTAL4)};
constexpr FieldRow kTosRows[] = {scaled("tos", KOVREL_MEMBER(T, tos_raw), kTosLsb, "s").width(8)};
constexpr FieldRow kXpRows[] = {
    flag("x5", KOVREL_MEMBER(T, x5)), flag("xc", KOVREL_MEMBER(T, xc)), flag("x3", KOVREL_MEMBER(T, x3)),
    flag("x2", KOVREL_MEMBER(T, x2)), flag("x1", KOVREL_MEMBER(T, x1)),
};

constinit const FieldDesc kSum = describe<T>(kSumRows);
constinit const FieldDesc kPmn = describe<T>(kPmnRows);
constinit const FieldDesc kPos = describe<T>(kPosRows);
constinit const FieldDesc kGa = describe<T>(kGaRows);
constinit const FieldDesc kEm1 = describe<T>(kEm1Rows);
constinit const FieldDesc kTos = describe<T>(kTosRows);
constinit const FieldDesc kXp = describe<T>(kXpRows);

constexpr FieldRow kRows[] = {
    compound_part("sum", KOVREL_MEMBER(T, sum_present), kSum, sizeof(T)),
    compound_part("pmn", KOVREL_MEMBER(T, pmn_present), kPmn, sizeof(T)),
    compound_part("pos", KOVREL_MEMBER(T, pos_present), kPos, sizeof(T)),
    compound_part("ga", KOVREL_MEMBER(T, ga_present), kGa, sizeof(T)),
    compound_part("em1", KOVREL_MEMBER(T, em1_present), kEm1, sizeof(T)),
    compound_part("tos", KOVREL_MEMBER(T, tos_present), kTos, sizeof(T)),
    compound_part("xp", KOVREL_MEMBER(T, xp_present), kXp, sizeof(T)),
};

}  // namespace

constinit const FieldDesc k062_110 = describe<T, init_valid<T, ast_dataitem_062_110_init>>(kRows);

}  // namespace kovrel::fields
