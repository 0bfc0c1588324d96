// I062/500 Estimated Accuracies: the standard deviations the tracker gives
// its position (Cartesian and WGS-84), the XY covariance, the altitudes, the
// velocity, the acceleration and the rate of climb or descent.
#include "categories/cat062/item_fields.h"
#include "categories/cat062/support.h"
#include "items/item_ex.h"
#include "kovrel/cat062.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using namespace kovrel::cat062;
using T = AstItem062_500;

constexpr AstItemId kId = 62500;
constexpr double kHalfMetre = 0.5;                 // m (APC, COV)
constexpr double kApwLsb = 180.0 / 33554432.0;     // degrees, 180/2^25
constexpr double kAgaLsb = 6.25;                   // ft
constexpr double kAbaLsb = 0.25;                   // FL
constexpr double kQuarter = 0.25;                  // m/s (ATV), m/s2 (AA)
constexpr double kArcLsb = 6.25;                   // ft/min

bool decode_subfield(T &o, uint32_t number, const AstSubfield &s) {
    const uint8_t *p = s.data;
    switch (number) {
    case 1:
        if (!span_is(s, 4)) return false;
        o.apc_x_raw = octets_u(p, 2);
        o.apc_y_raw = octets_u(p + 2, 2);
        o.apc_x = o.apc_x_raw * kHalfMetre;
        o.apc_y = o.apc_y_raw * kHalfMetre;
        o.apc_present = 1;
        return true;
    case 2:
        if (!span_is(s, 2)) return false;
        o.cov_raw = octets_s(p, 2);
        o.cov = o.cov_raw * kHalfMetre;
        o.cov_present = 1;
        return true;
    case 3:
        if (!span_is(s, 4)) return false;
        o.apw_lat_raw = octets_u(p, 2);
        o.apw_lon_raw = octets_u(p + 2, 2);
        o.apw_lat = o.apw_lat_raw * kApwLsb;
        o.apw_lon = o.apw_lon_raw * kApwLsb;
        o.apw_present = 1;
        return true;
    case 4:
        if (!span_is(s, 1)) return false;
        o.aga_raw = p[0];
        o.aga = o.aga_raw * kAgaLsb;
        o.aga_present = 1;
        return true;
    case 5:
        if (!span_is(s, 1)) return false;
        o.aba_raw = p[0];
        o.aba = o.aba_raw * kAbaLsb;
        o.aba_present = 1;
        return true;
    case 6:
        if (!span_is(s, 2)) return false;
        o.atv_x_raw = p[0];
        o.atv_y_raw = p[1];
        o.atv_x = p[0] * kQuarter;
        o.atv_y = p[1] * kQuarter;
        o.atv_present = 1;
        return true;
    case 7:
        if (!span_is(s, 2)) return false;
        o.aa_x_raw = p[0];
        o.aa_y_raw = p[1];
        o.aa_x = p[0] * kQuarter;
        o.aa_y = p[1] * kQuarter;
        o.aa_present = 1;
        return true;
    case 8:
        if (!span_is(s, 1)) return false;
        o.arc_raw = p[0];
        o.arc = o.arc_raw * kArcLsb;
        o.arc_present = 1;
        return true;
    default: return false;
    }
}

void write_summary(TextWriter &w, const T &o, uint32_t number) {
    switch (number) {
    case 1: w.appendf("X:%.1f Y:%.1f LSB:M", o.apc_x, o.apc_y); break;
    case 2: w.appendf("COV:%.1f LSB:M", o.cov); break;
    case 3: w.appendf("LAT:%.7f LON:%.7f", o.apw_lat, o.apw_lon); break;
    case 4: w.appendf("AGA:%.2f LSB:FT", o.aga); break;
    case 5: w.appendf("ABA:%.2f LSB:FL", o.aba); break;
    case 6: w.appendf("X:%.2f Y:%.2f LSB:M/S", o.atv_x, o.atv_y); break;
    case 7: w.appendf("X:%.2f Y:%.2f LSB:M/S2", o.aa_x, o.aa_y); break;
    case 8: w.appendf("ARC:%.2f LSB:FT/MIN", o.arc); break;
    default: break;
    }
}

void write_detail(TextWriter &w, const T &o, uint32_t number) {
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    switch (number) {
    case 1:
        t.rowf("Bit[0-15]", "SIGMA_X LSB=M", "%.1f", o.apc_x);
        t.rowf("Bit[16-31]", "SIGMA_Y LSB=M", "%.1f", o.apc_y);
        break;
    case 2: t.rowf("Bit[0-15]", "COVARIANCE_XY LSB=M", "%.1f", o.cov); break;
    case 3:
        t.rowf("Bit[0-15]", "SIGMA_LATITUDE LSB=DEG", "%.7f", o.apw_lat);
        t.rowf("Bit[16-31]", "SIGMA_LONGITUDE LSB=DEG", "%.7f", o.apw_lon);
        break;
    case 4: t.rowf("Bit[0-7]", "SIGMA_GEOMETRIC_ALTITUDE LSB=FT", "%.2f", o.aga); break;
    case 5: t.rowf("Bit[0-7]", "SIGMA_BAROMETRIC_ALTITUDE LSB=FL", "%.2f", o.aba); break;
    case 6:
        t.rowf("Bit[0-7]", "SIGMA_VX LSB=M/S", "%.2f", o.atv_x);
        t.rowf("Bit[8-15]", "SIGMA_VY LSB=M/S", "%.2f", o.atv_y);
        break;
    case 7:
        t.rowf("Bit[0-7]", "SIGMA_AX LSB=M/S2", "%.2f", o.aa_x);
        t.rowf("Bit[8-15]", "SIGMA_AY LSB=M/S2", "%.2f", o.aa_y);
        break;
    case 8: t.rowf("Bit[0-7]", "SIGMA_RATE_OF_CLIMB LSB=FT/MIN", "%.2f", o.arc); break;
    default: break;
    }
    t.end();
}

}  // namespace

KOVREL_CAT062_COMPOUND(500, AstItem062_500, kId, decode_subfield, write_summary, write_detail)

namespace kovrel::fields {

namespace {

constexpr FieldRow kApcRows[] = {
    scaled("x", KOVREL_MEMBER(T, apc_x_raw), kHalfMetre, "m").width(16),
    scaled("y", KOVREL_MEMBER(T, apc_y_raw), kHalfMetre, "m").width(16),
};
constexpr FieldRow kCovRows[] = {scaled("cov", KOVREL_MEMBER(T, cov_raw), kHalfMetre, "m").width(16)};
constexpr FieldRow kApwRows[] = {
    scaled("lat", KOVREL_MEMBER(T, apw_lat_raw), kApwLsb, "deg").width(16),
    scaled("lon", KOVREL_MEMBER(T, apw_lon_raw), kApwLsb, "deg").width(16),
};
constexpr FieldRow kAgaRows[] = {scaled("aga", KOVREL_MEMBER(T, aga_raw), kAgaLsb, "ft").width(8)};
constexpr FieldRow kAbaRows[] = {scaled("aba", KOVREL_MEMBER(T, aba_raw), kAbaLsb, "FL").width(8)};
constexpr FieldRow kAtvRows[] = {
    scaled("x", KOVREL_MEMBER(T, atv_x_raw), kQuarter, "m/s").width(8),
    scaled("y", KOVREL_MEMBER(T, atv_y_raw), kQuarter, "m/s").width(8),
};
constexpr FieldRow kAaRows[] = {
    scaled("x", KOVREL_MEMBER(T, aa_x_raw), kQuarter, "m/s2").width(8),
    scaled("y", KOVREL_MEMBER(T, aa_y_raw), kQuarter, "m/s2").width(8),
};
constexpr FieldRow kArcRows[] = {scaled("arc", KOVREL_MEMBER(T, arc_raw), kArcLsb, "ft/min").width(8)};

constinit const FieldDesc kApc = describe<T>(kApcRows);
constinit const FieldDesc kCov = describe<T>(kCovRows);
constinit const FieldDesc kApw = describe<T>(kApwRows);
constinit const FieldDesc kAga = describe<T>(kAgaRows);
constinit const FieldDesc kAba = describe<T>(kAbaRows);
constinit const FieldDesc kAtv = describe<T>(kAtvRows);
constinit const FieldDesc kAa = describe<T>(kAaRows);
constinit const FieldDesc kArc = describe<T>(kArcRows);

constexpr FieldRow kRows[] = {
    compound_part("apc", KOVREL_MEMBER(T, apc_present), kApc, sizeof(T)),
    compound_part("cov", KOVREL_MEMBER(T, cov_present), kCov, sizeof(T)),
    compound_part("apw", KOVREL_MEMBER(T, apw_present), kApw, sizeof(T)),
    compound_part("aga", KOVREL_MEMBER(T, aga_present), kAga, sizeof(T)),
    compound_part("aba", KOVREL_MEMBER(T, aba_present), kAba, sizeof(T)),
    compound_part("atv", KOVREL_MEMBER(T, atv_present), kAtv, sizeof(T)),
    compound_part("aa", KOVREL_MEMBER(T, aa_present), kAa, sizeof(T)),
    compound_part("arc", KOVREL_MEMBER(T, arc_present), kArc, sizeof(T)),
};

}  // namespace

constinit const FieldDesc k062_500 = describe<T, init_valid<T, ast_dataitem_062_500_init>>(kRows);

}  // namespace kovrel::fields
