// I062/390 Flight Plan Related Data: what the flight plan processing system
// holds of the flight correlated with the track: its callsign and plan
// number, category, aircraft type and wake category, airports, runway,
// cleared level, control position, times, stand, standard routes and the
// code and callsign held before an emergency.
#include <cstdio>

#include "categories/cat062/item_fields.h"
#include "categories/cat062/support.h"
#include "items/item_ex.h"
#include "kovrel/cat062.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using namespace kovrel::cat062;
using T = AstItem062_390;

constexpr AstItemId kId = 62390;
constexpr double kCflLsb = 0.25;  // FL
constexpr uint64_t kTimeOctets = 4;

// Times of departure and arrival, by their usual abbreviations.
constexpr const char *kTimeText[14] = {"SOBT", "EOBT", "ETOT", "AOBT", "PTHR", "ATHR", "ALUT",
                                       "ATOT", "ETA",  "PLDT", "ALDT", "ATOR", "PTTG", "AIBT"};
constexpr const char *kDayText[4] = {"TODAY", "YESTERDAY", "TOMORROW", "INVALID"};
constexpr const char *kIfiText[4] = {"PLAN_NUMBER", "UNIT_1", "UNIT_2", "UNIT_3"};
constexpr const char *kGatOatText[4] = {"UNKNOWN", "GAT", "OAT", "NOT_APPLICABLE"};
constexpr const char *kFlightRulesText[4] = {"IFR", "VFR", "NOT_APPLICABLE", "CONTROLLED_VFR"};
constexpr const char *kRvsmText[4] = {"UNKNOWN", "APPROVED", "EXEMPT", "NOT_APPROVED"};
constexpr const char *kEmpText[4] = {"EMPTY", "OCCUPIED", "UNKNOWN", "INVALID"};
constexpr const char *kAvlText[4] = {"AVAILABLE", "NOT_AVAILABLE", "UNKNOWN", "INVALID"};

void decode_time(AstItem062Time &t, const uint8_t *p) {
    t.typ = p[0] >> 3;
    t.day = (p[0] >> 1) & 3u;
    t.hor = p[1] & 0x1Fu;
    t.min = p[2] & 0x3Fu;
    t.avs = p[3] >> 7;
    t.sec = p[3] & 0x3Fu;
}

// "EOBT:12:30" or "ETOT:12:45:10" when the seconds are given.
void append_time(TextWriter &w, const AstItem062Time &t) {
    w.appendf("%s:%02u:%02u", text_of(kTimeText, t.typ), t.hor, t.min);
    if (!t.avs) w.appendf(":%02u", t.sec);
}

bool decode_subfield(T &o, uint32_t number, const AstSubfield &s) {
    const uint8_t *p = s.data;
    switch (number) {
    case 1:
        if (!span_is(s, 2)) return false;
        o.sac = p[0];
        o.sic = p[1];
        return mark(o.tag_present);
    case 2:
        if (!span_is(s, 7)) return false;
        ascii_text(o.cs, p, 7);
        return mark(o.cs_present);
    case 3: {
        if (!span_is(s, 4)) return false;
        const uint32_t v = octets_u(p, 4);
        o.ifi_typ = field(v, 30, 2);
        o.ifi_nbr = field(v, 0, 27);
        return mark(o.ifi_present);
    }
    case 4:
        if (!span_is(s, 1)) return false;
        o.gatoat = p[0] >> 6;
        o.fr1fr2 = (p[0] >> 4) & 3u;
        o.rvsm = (p[0] >> 2) & 3u;
        o.hpr = (p[0] >> 1) & 1u;
        return mark(o.fct_present);
    case 5:
        if (!span_is(s, 4)) return false;
        ascii_text(o.tac, p, 4);
        return mark(o.tac_present);
    case 6:
        if (!span_is(s, 1)) return false;
        ascii_text(o.wtc, p, 1);
        return mark(o.wtc_present);
    case 7:
        if (!span_is(s, 4)) return false;
        ascii_text(o.dep, p, 4);
        return mark(o.dep_present);
    case 8:
        if (!span_is(s, 4)) return false;
        ascii_text(o.dst, p, 4);
        return mark(o.dst_present);
    case 9:
        if (!span_is(s, 3)) return false;
        ascii_text(o.rds, p, 3);
        return mark(o.rds_present);
    case 10:
        if (!span_is(s, 2)) return false;
        o.cfl_raw = octets_u(p, 2);
        o.cfl = o.cfl_raw * kCflLsb;
        return mark(o.cfl_present);
    case 11:
        if (!span_is(s, 2)) return false;
        o.centre = p[0];
        o.position = p[1];
        return mark(o.ctl_present);
    case 12: {
        if (!span_repeats(s, kTimeOctets)) return false;
        o.tod_rep = p[0];
        o.tod_count = o.tod_rep < AST_ITEM062_390_MAX_TOD ? o.tod_rep : AST_ITEM062_390_MAX_TOD;
        for (uint32_t i = 0; i < o.tod_count; ++i) decode_time(o.tod[i], p + 1 + kTimeOctets * i);
        return mark(o.tod_present);
    }
    case 13:
        if (!span_is(s, 6)) return false;
        ascii_text(o.ast, p, 6);
        return mark(o.ast_present);
    case 14:
        if (!span_is(s, 1)) return false;
        o.emp = p[0] >> 6;
        o.avl = (p[0] >> 4) & 3u;
        return mark(o.sts_present);
    case 15:
        if (!span_is(s, 7)) return false;
        ascii_text(o.std_, p, 7);
        return mark(o.std_present);
    case 16:
        if (!span_is(s, 7)) return false;
        ascii_text(o.sta, p, 7);
        return mark(o.sta_present);
    case 17: {
        if (!span_is(s, 2)) return false;
        const uint32_t v = octets_u(p, 2);
        o.pem_va = static_cast<uint8_t>(field(v, 12, 1));
        o.pem = field(v, 0, 12);
        return mark(o.pem_present);
    }
    case 18:
        if (!span_is(s, 7)) return false;
        ascii_text(o.pec, p, 7);
        return mark(o.pec_present);
    default: return false;
    }
}

void write_summary(TextWriter &w, const T &o, uint32_t number) {
    switch (number) {
    case 1: w.appendf("SAC:%03d SIC:%03d", static_cast<int>(o.sac), static_cast<int>(o.sic)); break;
    case 2: w.append("CS:"), append_trimmed(w, o.cs); break;
    case 3: w.appendf("TYP:%u NBR:%u", o.ifi_typ, o.ifi_nbr); break;
    case 4:
        w.appendf("GAT_OAT:%s FR:%s RVSM:%s", kGatOatText[o.gatoat & 3u], kFlightRulesText[o.fr1fr2 & 3u],
                  kRvsmText[o.rvsm & 3u]);
        if (o.hpr) w.append(" HPR");
        break;
    case 5: w.append("TYPE:"), append_trimmed(w, o.tac); break;
    case 6: w.append("WTC:"), append_trimmed(w, o.wtc); break;
    case 7: w.append("DEP:"), append_trimmed(w, o.dep); break;
    case 8: w.append("DST:"), append_trimmed(w, o.dst); break;
    case 9: w.append("RWY:"), append_trimmed(w, o.rds); break;
    case 10: w.appendf("CFL:%.2f", o.cfl); break;
    case 11: w.appendf("CENTRE:%u POSITION:%u", o.centre, o.position); break;
    case 12:
        w.appendf("TIMES:%u", o.tod_rep);
        for (uint32_t i = 0; i < o.tod_count; ++i) {
            w.append_char(' ');
            append_time(w, o.tod[i]);
        }
        break;
    case 13: w.append("STAND:"), append_trimmed(w, o.ast); break;
    case 14: w.appendf("EMP:%s AVL:%s", kEmpText[o.emp & 3u], kAvlText[o.avl & 3u]); break;
    case 15: w.append("SID:"), append_trimmed(w, o.std_); break;
    case 16: w.append("STAR:"), append_trimmed(w, o.sta); break;
    case 17:
        if (o.pem_va)
            w.appendf("MODE_3/A:%04o", o.pem);
        else
            w.append("NO_CODE");
        break;
    case 18: w.append("CS:"), append_trimmed(w, o.pec); break;
    default: break;
    }
}

void write_detail(TextWriter &w, const T &o, uint32_t number) {
    if (number == 1) {
        // The flight plan system's SAC and SIC, with what the application's
        // lookups know of them.
        const uint8_t octets[2] = {static_cast<uint8_t>(o.sac), static_cast<uint8_t>(o.sic)};
        const AstDataItem tag{octets, 2, kId, 1};
        ast_dataitem_data_source_identifier_get_detail_html(w.end(), w.end_size(), &tag);
        w.resync();
        return;
    }
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    switch (number) {
    case 2: t.row("Bit[0-55]", "CALLSIGN", o.cs); break;
    case 3:
        t.row("Bit[0-1]", "TYPE", kIfiText[o.ifi_typ & 3u]);
        t.rowf("Bit[5-31]", "NUMBER", "%u", o.ifi_nbr);
        break;
    case 4:
        t.row("Bit[0-1]", "GAT_OAT", kGatOatText[o.gatoat & 3u]);
        t.row("Bit[2-3]", "FLIGHT_RULES", kFlightRulesText[o.fr1fr2 & 3u]);
        t.row("Bit[4-5]", "RVSM", kRvsmText[o.rvsm & 3u]);
        t.rowf("Bit[6]", "HIGH_PRIORITY", "%d", o.hpr);
        break;
    case 5: t.row("Bit[0-31]", "AIRCRAFT_TYPE", o.tac); break;
    case 6: t.row("Bit[0-7]", "WAKE_TURBULENCE_CATEGORY", o.wtc); break;
    case 7: t.row("Bit[0-31]", "DEPARTURE_AIRPORT", o.dep); break;
    case 8: t.row("Bit[0-31]", "DESTINATION_AIRPORT", o.dst); break;
    case 9: t.row("Bit[0-23]", "RUNWAY", o.rds); break;
    case 10: t.rowf("Bit[0-15]", "CLEARED_FLIGHT_LEVEL LSB=FL", "%.2f", o.cfl); break;
    case 11:
        t.rowf("Bit[0-7]", "CENTRE", "%u", o.centre);
        t.rowf("Bit[8-15]", "POSITION", "%u", o.position);
        break;
    case 12:
        t.rowf("Bit[0-7]", "REP", "%u", o.tod_rep);
        for (uint32_t i = 0; i < o.tod_count; ++i) {
            const AstItem062Time &e = o.tod[i];
            char label[16], value[64];
            std::snprintf(label, sizeof label, "Time[%u]", i + 1);
            if (e.avs)
                std::snprintf(value, sizeof value, "%s %02u:%02u", text_of(kDayText, e.day), e.hor, e.min);
            else
                std::snprintf(value, sizeof value, "%s %02u:%02u:%02u", text_of(kDayText, e.day), e.hor, e.min, e.sec);
            t.row(label, text_of(kTimeText, e.typ), value);
        }
        break;
    case 13: t.row("Bit[0-47]", "STAND", o.ast); break;
    case 14:
        t.row("Bit[0-1]", "EMPTY", kEmpText[o.emp & 3u]);
        t.row("Bit[2-3]", "AVAILABLE", kAvlText[o.avl & 3u]);
        break;
    case 15: t.row("Bit[0-55]", "STANDARD_INSTRUMENT_DEPARTURE", o.std_); break;
    case 16: t.row("Bit[0-55]", "STANDARD_INSTRUMENT_ARRIVAL", o.sta); break;
    case 17:
        t.rowf("Bit[3]", "VALID_MODE_3/A", "%d", o.pem_va);
        t.rowf("Bit[4-15]", "MODE_3/A", "%04o", o.pem);
        break;
    case 18: t.row("Bit[0-55]", "CALLSIGN", o.pec); break;
    default: break;
    }
    t.end();
}

}  // namespace

KOVREL_CAT062_COMPOUND(390, AstItem062_390, kId, decode_subfield, write_summary, write_detail)

namespace kovrel::fields {

namespace {

const char *time_name(uint32_t v) { return v < 14 ? kTimeText[v] : nullptr; }
const char *day_name(uint32_t v) { return v < 4 ? kDayText[v] : nullptr; }
const char *ifi_name(uint32_t v) { return v < 4 ? kIfiText[v] : nullptr; }
const char *gatoat_name(uint32_t v) { return v < 4 ? kGatOatText[v] : nullptr; }
const char *rules_name(uint32_t v) { return v < 4 ? kFlightRulesText[v] : nullptr; }
const char *rvsm_name(uint32_t v) { return v < 4 ? kRvsmText[v] : nullptr; }
const char *emp_name(uint32_t v) { return v < 4 ? kEmpText[v] : nullptr; }
const char *avl_name(uint32_t v) { return v < 4 ? kAvlText[v] : nullptr; }

using Time = AstItem062Time;
constexpr FieldRow kTimeRows[] = {
    enumeration("typ", KOVREL_MEMBER(Time, typ), time_name).width(5),
    enumeration("day", KOVREL_MEMBER(Time, day), day_name).width(2),
    integer("hor", KOVREL_MEMBER(Time, hor)).width(5),
    integer("min", KOVREL_MEMBER(Time, min)).width(6),
    flag("avs", KOVREL_MEMBER(Time, avs)),
    integer("sec", KOVREL_MEMBER(Time, sec)).width(6),
};
constinit const FieldDesc kTime = describe<Time>(kTimeRows);

constexpr FieldRow kTagRows[] = {
    integer("sac", KOVREL_MEMBER(T, sac)).width(8),
    integer("sic", KOVREL_MEMBER(T, sic)).width(8),
};
constexpr FieldRow kCsRows[] = {text("cs", KOVREL_MEMBER(T, cs))};
constexpr FieldRow kIfiRows[] = {
    enumeration("typ", KOVREL_MEMBER(T, ifi_typ), ifi_name).width(2),
    integer("nbr", KOVREL_MEMBER(T, ifi_nbr)).width(27),
};
constexpr FieldRow kFctRows[] = {
    enumeration("gatoat", KOVREL_MEMBER(T, gatoat), gatoat_name).width(2),
    enumeration("fr1fr2", KOVREL_MEMBER(T, fr1fr2), rules_name).width(2),
    enumeration("rvsm", KOVREL_MEMBER(T, rvsm), rvsm_name).width(2),
    flag("hpr", KOVREL_MEMBER(T, hpr)),
};
constexpr FieldRow kTacRows[] = {text("tac", KOVREL_MEMBER(T, tac))};
constexpr FieldRow kWtcRows[] = {text("wtc", KOVREL_MEMBER(T, wtc))};
constexpr FieldRow kDepRows[] = {text("dep", KOVREL_MEMBER(T, dep))};
constexpr FieldRow kDstRows[] = {text("dst", KOVREL_MEMBER(T, dst))};
constexpr FieldRow kRdsRows[] = {text("rds", KOVREL_MEMBER(T, rds))};
constexpr FieldRow kCflRows[] = {scaled("cfl", KOVREL_MEMBER(T, cfl_raw), kCflLsb, "FL").width(16)};
constexpr FieldRow kCtlRows[] = {
    integer("centre", KOVREL_MEMBER(T, centre)).width(8),
    integer("position", KOVREL_MEMBER(T, position)).width(8),
};
constexpr FieldRow kTodRows[] = {
    integer("rep", KOVREL_MEMBER(T, tod_rep)).width(8),
    array("times", KOVREL_MEMBER(T, tod), KOVREL_MEMBER(T, tod_count), sizeof(Time), AST_ITEM062_390_MAX_TOD, kTime),
};
constexpr FieldRow kAstRows[] = {text("ast", KOVREL_MEMBER(T, ast))};
constexpr FieldRow kStsRows[] = {
    enumeration("emp", KOVREL_MEMBER(T, emp), emp_name).width(2),
    enumeration("avl", KOVREL_MEMBER(T, avl), avl_name).width(2),
};
constexpr FieldRow kStdRows[] = {text("std", KOVREL_MEMBER(T, std_))};
constexpr FieldRow kStaRows[] = {text("sta", KOVREL_MEMBER(T, sta))};
constexpr FieldRow kPemRows[] = {
    flag("va", KOVREL_MEMBER(T, pem_va)),
    integer("mode3a", KOVREL_MEMBER(T, pem)).width(12).shown(AST_FIELD_FORMAT_OCTAL4),
};
constexpr FieldRow kPecRows[] = {text("pec", KOVREL_MEMBER(T, pec))};

constinit const FieldDesc kTag = describe<T>(kTagRows);
constinit const FieldDesc kCs = describe<T>(kCsRows);
constinit const FieldDesc kIfi = describe<T>(kIfiRows);
constinit const FieldDesc kFct = describe<T>(kFctRows);
constinit const FieldDesc kTac = describe<T>(kTacRows);
constinit const FieldDesc kWtc = describe<T>(kWtcRows);
constinit const FieldDesc kDep = describe<T>(kDepRows);
constinit const FieldDesc kDst = describe<T>(kDstRows);
constinit const FieldDesc kRds = describe<T>(kRdsRows);
constinit const FieldDesc kCfl = describe<T>(kCflRows);
constinit const FieldDesc kCtl = describe<T>(kCtlRows);
constinit const FieldDesc kTod = describe<T>(kTodRows);
constinit const FieldDesc kAst = describe<T>(kAstRows);
constinit const FieldDesc kSts = describe<T>(kStsRows);
constinit const FieldDesc kStd = describe<T>(kStdRows);
constinit const FieldDesc kSta = describe<T>(kStaRows);
constinit const FieldDesc kPem = describe<T>(kPemRows);
constinit const FieldDesc kPec = describe<T>(kPecRows);

#define PART(NAME, FIELDS) compound_part(#NAME, KOVREL_MEMBER(T, NAME##_present), FIELDS, sizeof(T))
constexpr FieldRow kRows[] = {
    PART(tag, kTag), PART(cs, kCs),   PART(ifi, kIfi), PART(fct, kFct), PART(tac, kTac), PART(wtc, kWtc),
    PART(dep, kDep), PART(dst, kDst), PART(rds, kRds), PART(cfl, kCfl), PART(ctl, kCtl), PART(tod, kTod),
    PART(ast, kAst), PART(sts, kSts), PART(std, kStd), PART(sta, kSta), PART(pem, kPem), PART(pec, kPec),
};
#undef PART

}  // namespace

constinit const FieldDesc k062_390 = describe<T, init_valid<T, ast_dataitem_062_390_init>>(kRows);

}  // namespace kovrel::fields
