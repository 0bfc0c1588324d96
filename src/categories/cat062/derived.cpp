// I062/380 Aircraft Derived Data: what the aircraft itself reported through
// Mode S or ADS-B and the tracker passes on: address and identification,
// heading and airspeeds, selected altitudes, trajectory intent, capability
// and status, the ACAS resolution advisory, vertical rates, roll and track
// angles, ground speed, meteorological data, emitter category, position,
// geometric altitude, the Mode S MB registers, and the pressure setting.
#include <cstdio>

#include "categories/cat062/item_fields.h"
#include "categories/cat062/support.h"
#include "items/item_ex.h"
#include "kovrel/bds.h"
#include "kovrel/cat062.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using namespace kovrel::cat062;
using T = AstItem062_380;

constexpr AstItemId kId = 62380;
constexpr double kAngleLsb = 360.0 / 65536.0;                // degrees (MHG, TAN)
constexpr double kNmPerSecond = 1.0 / 16384.0;               // NM/s (IAS, GS)
constexpr double kKnotsLsb = kNmPerSecond * 3600.0;          // the same in knots
constexpr double kMachLsb = 0.001;                           // IAS subfield with IM set
constexpr double kAltitudeLsb = 25.0;                        // ft (SAL, FSS)
constexpr double kRateLsb = 6.25;                            // ft/min (BVR, GVR) and ft (GAL)
constexpr double kRollLsb = 0.01;                            // degrees
constexpr double kTurnLsb = 0.25;                            // deg/s
constexpr double kLatLonLsb = 180.0 / 8388608.0;             // degrees, 180/2^23
constexpr double kTemperatureLsb = 0.25;                     // degrees C
constexpr double kTcpAltitudeLsb = 10.0;                     // ft
constexpr double kTurnRadiusLsb = 0.01;                      // NM
constexpr double kMacLsb = 0.008;                            // Mach
constexpr double kPressureLsb = 0.1;                         // hPa
constexpr double kPressureBase = 800.0;                      // hPa: the setting is sent above it
constexpr uint64_t kTcpOctets = 15;
constexpr uint64_t kMbOctets = 8;
constexpr uint64_t kAcasOctets = 7;
constexpr uint32_t kMbNumber = 25;
constexpr uint32_t kAcasNumber = 12;

// Differential correction as CAT062 codes it: 1 applied, 2 not applied.
constexpr const char *kCorrectionText[4] = {"UNKNOWN", "DIFFERENTIAL", "NO_DIFFERENTIAL", "INVALID"};
constexpr const char *kTurnText[4] = {"NOT_AVAILABLE", "LEFT", "RIGHT", "STRAIGHT"};

void decode_tcp(AstItem062Tcp &c, const uint8_t *p) {
    c.tca = p[0] >> 7;
    c.nc = (p[0] >> 6) & 1u;
    c.tcpn = p[0] & 0x3Fu;
    c.alt_raw = octets_s(p + 1, 2);
    c.alt = c.alt_raw * kTcpAltitudeLsb;
    c.lat_raw = octets_s(p + 3, 3);
    c.lon_raw = octets_s(p + 6, 3);
    c.latitude = c.lat_raw * kLatLonLsb;
    c.longitude = c.lon_raw * kLatLonLsb;
    c.pt = p[9] >> 4;
    c.td = (p[9] >> 2) & 3u;
    c.tra = (p[9] >> 1) & 1u;
    c.toa = p[9] & 1u;
    c.tov = octets_u(p + 10, 3);
    c.ttr_raw = octets_u(p + 13, 2);
    c.ttr = c.ttr_raw * kTurnRadiusLsb;
}

// The span of subfield `number` as an item span, for the views of the
// common Mode S structures.
AstDataItem span_item(const T &o, uint32_t number) {
    const AstSubfield &s = o.subfields.spans[number - 1];
    return AstDataItem{s.data, s.length, kId, static_cast<uint8_t>(s.data ? 1 : 0)};
}

bool decode_subfield(T &o, uint32_t number, const AstSubfield &s) {
    const uint8_t *p = s.data;
    switch (number) {
    case 1:
        if (!span_is(s, 3)) return false;
        o.adr = octets_u(p, 3);
        return mark(o.adr_present);
    case 2:
        if (!span_is(s, 6)) return false;
        items::chars_decode(o.id, p);
        return mark(o.id_present);
    case 3:
        if (!span_is(s, 2)) return false;
        o.mhg_raw = octets_u(p, 2);
        o.mhg = o.mhg_raw * kAngleLsb;
        return mark(o.mhg_present);
    case 4: {
        if (!span_is(s, 2)) return false;
        const uint32_t v = octets_u(p, 2);
        o.im = static_cast<uint8_t>(field(v, 15, 1));
        o.ias_raw = field(v, 0, 15);
        o.ias_knots = o.im ? 0 : 1;
        o.ias = o.im ? 0.0 : o.ias_raw * kKnotsLsb;
        o.mach = o.im ? o.ias_raw * kMachLsb : 0.0;
        return mark(o.ias_present);
    }
    case 5:
        if (!span_is(s, 2)) return false;
        o.tas = octets_u(p, 2);
        return mark(o.tas_present);
    case 6: {
        if (!span_is(s, 2)) return false;
        const uint32_t v = octets_u(p, 2);
        o.sal_sas = static_cast<uint8_t>(field(v, 15, 1));
        o.sal_src = field(v, 13, 2);
        o.sal_raw = signed_field(v, 0, 13);
        o.sal = o.sal_raw * kAltitudeLsb;
        return mark(o.sal_present);
    }
    case 7: {
        if (!span_is(s, 2)) return false;
        const uint32_t v = octets_u(p, 2);
        o.fss_mv = static_cast<uint8_t>(field(v, 15, 1));
        o.fss_ah = static_cast<uint8_t>(field(v, 14, 1));
        o.fss_am = static_cast<uint8_t>(field(v, 13, 1));
        o.fss_raw = signed_field(v, 0, 13);
        o.fss = o.fss_raw * kAltitudeLsb;
        return mark(o.fss_present);
    }
    case 8:
        if (!span_is(s, 1)) return false;
        o.nav = p[0] >> 7;
        o.nvb = (p[0] >> 6) & 1u;
        return mark(o.tis_present);
    case 9:
        if (!span_repeats(s, kTcpOctets)) return false;
        o.tid_rep = p[0];
        o.tid_count = o.tid_rep < AST_ITEM062_380_MAX_TID ? o.tid_rep : AST_ITEM062_380_MAX_TID;
        for (uint32_t i = 0; i < o.tid_count; ++i) decode_tcp(o.tid[i], p + 1 + kTcpOctets * i);
        return mark(o.tid_present);
    case 10:
        if (!span_is(s, 2)) return false;
        o.com = p[0] >> 5;
        o.stat = (p[0] >> 2) & 7u;
        o.ssc = p[1] >> 7;
        o.arc = (p[1] >> 6) & 1u;
        o.aic = (p[1] >> 5) & 1u;
        o.b1a = (p[1] >> 4) & 1u;
        o.b1b = p[1] & 0x0Fu;
        return mark(o.com_present);
    case 11:
        if (!span_is(s, 2)) return false;
        o.ac = p[0] >> 6;
        o.mn = (p[0] >> 4) & 3u;
        o.dc = (p[0] >> 2) & 3u;
        o.gbs = (p[0] >> 1) & 1u;
        o.sab_stat = p[1] & 7u;
        return mark(o.sab_present);
    case 12: {
        if (!span_is(s, kAcasOctets)) return false;
        AstDataItem reg;
        ast_bds_decode(&reg, p, kAcasOctets, 0x30);
        o.acs = ast_bds_30_decode(&reg);
        return mark(o.acs_present);
    }
    case 13:
        if (!span_is(s, 2)) return false;
        o.bvr_raw = octets_s(p, 2);
        o.bvr = o.bvr_raw * kRateLsb;
        return mark(o.bvr_present);
    case 14:
        if (!span_is(s, 2)) return false;
        o.gvr_raw = octets_s(p, 2);
        o.gvr = o.gvr_raw * kRateLsb;
        return mark(o.gvr_present);
    case 15:
        if (!span_is(s, 2)) return false;
        o.ran_raw = octets_s(p, 2);
        o.ran = o.ran_raw * kRollLsb;
        return mark(o.ran_present);
    case 16:
        if (!span_is(s, 2)) return false;
        o.ti = p[0] >> 6;
        o.rot_raw = signed_field(p[1], 1, 7);
        o.rot = o.rot_raw * kTurnLsb;
        return mark(o.tar_present);
    case 17:
        if (!span_is(s, 2)) return false;
        o.tan_raw = octets_u(p, 2);
        o.tan = o.tan_raw * kAngleLsb;
        return mark(o.tan_present);
    case 18:
        if (!span_is(s, 2)) return false;
        o.gs_raw = octets_s(p, 2);
        o.gs = o.gs_raw * kKnotsLsb;
        return mark(o.gs_present);
    case 19:
        if (!span_is(s, 1)) return false;
        o.vun = p[0];
        return mark(o.vun_present);
    case 20:
        if (!span_is(s, 8)) return false;
        o.met_ws = p[0] >> 7;
        o.met_wd = (p[0] >> 6) & 1u;
        o.met_tmp = (p[0] >> 5) & 1u;
        o.met_trb = (p[0] >> 4) & 1u;
        o.wind_speed = octets_u(p + 1, 2);
        o.wind_direction = octets_u(p + 3, 2);
        o.temperature_raw = octets_s(p + 5, 2);
        o.temperature = o.temperature_raw * kTemperatureLsb;
        o.turbulence = p[7];
        return mark(o.met_present);
    case 21:
        if (!span_is(s, 1)) return false;
        o.emc = p[0];
        return mark(o.emc_present);
    case 22:
        if (!span_is(s, 6)) return false;
        o.lat_raw = octets_s(p, 3);
        o.lon_raw = octets_s(p + 3, 3);
        o.latitude = o.lat_raw * kLatLonLsb;
        o.longitude = o.lon_raw * kLatLonLsb;
        return mark(o.pos_present);
    case 23:
        if (!span_is(s, 2)) return false;
        o.gal_raw = octets_s(p, 2);
        o.gal = o.gal_raw * kRateLsb;
        return mark(o.gal_present);
    case 24:
        if (!span_is(s, 1)) return false;
        o.pun = p[0] & 0x0Fu;
        return mark(o.pun_present);
    case 25: {
        if (!span_repeats(s, kMbOctets)) return false;
        const AstDataItem mb{p, s.length, kId, 1};
        ast_dataitem_modes_mb_decode(&o.mb, &mb);
        return mark(o.mb_present);
    }
    case 26:
        if (!span_is(s, 2)) return false;
        o.iar = octets_u(p, 2);
        return mark(o.iar_present);
    case 27:
        if (!span_is(s, 2)) return false;
        o.mac_raw = octets_u(p, 2);
        o.mac = o.mac_raw * kMacLsb;
        return mark(o.mac_present);
    case 28:
        if (!span_is(s, 2)) return false;
        o.bps_raw = octets_u(p, 2) & 0x0FFFu;
        o.bps = kPressureBase + o.bps_raw * kPressureLsb;
        return mark(o.bps_present);
    default: return false;
    }
}

void write_summary(TextWriter &w, const T &o, uint32_t number) {
    const size_t start = w.length();
    switch (number) {
    case 1: w.appendf("ADR:%06X", o.adr); break;
    case 2: w.append("ID:"), append_trimmed(w, o.id); break;
    case 3: w.appendf("MHG:%.2f", o.mhg); break;
    case 4:
        if (o.im)
            w.appendf("MACH:%.3f", o.mach);
        else
            w.appendf("IAS:%.1f LSB:KT", o.ias);
        break;
    case 5: w.appendf("TAS:%u LSB:KT", o.tas); break;
    case 6:
        w.appendf("SAL:%d LSB:FT", static_cast<int>(o.sal));
        if (o.sal_sas) w.appendf(" SRC:%s", ast_selected_altitude_source_to_str(o.sal_src, 0));
        break;
    case 7:
        w.appendf("FSS:%d LSB:FT", static_cast<int>(o.fss));
        if (o.fss_mv) w.append(" MV");
        if (o.fss_ah) w.append(" AH");
        if (o.fss_am) w.append(" AM");
        break;
    case 8: w.appendf("NAV:%d NVB:%d", o.nav, o.nvb); break;
    case 9: w.appendf("TCP:%u", o.tid_rep); break;
    case 10:
        w.appendf("COM:%s STAT:%s", ast_transponder_comm_cap_to_str(ast_transponder_comm_cap_from_int(o.com)),
                  ast_radar_flight_status_to_str(ast_radar_flight_status_from_int(o.stat)));
        break;
    case 11:
        w.appendf("AC:%s MN:%s DC:%s", ast_acas_status_to_str(ast_acas_status_from_int(o.ac)),
                  ast_multi_navids_status_to_str(ast_multi_navids_status_from_int(o.mn)),
                  kCorrectionText[o.dc & 3u]);
        if (o.gbs) w.append(" GBS");
        w.appendf(" STAT:%s", ast_emergency_status_to_str(ast_emergency_status_from_int(o.sab_stat)));
        break;
    case 12: w.append("BDS:3,0"); break;
    case 13: w.appendf("BVR:%.2f LSB:FT/MIN", o.bvr); break;
    case 14: w.appendf("GVR:%.2f LSB:FT/MIN", o.gvr); break;
    case 15: w.appendf("RAN:%.2f", o.ran); break;
    case 16: w.appendf("TI:%s ROT:%.2f", kTurnText[o.ti & 3u], o.rot); break;
    case 17: w.appendf("TAN:%.2f", o.tan); break;
    case 18: w.appendf("GS:%.1f LSB:KT", o.gs); break;
    case 19: w.appendf("VUN:%u", o.vun); break;
    case 20:
        if (o.met_ws) w.appendf("WS:%u ", o.wind_speed);
        if (o.met_wd) w.appendf("WD:%u ", o.wind_direction);
        if (o.met_tmp) w.appendf("TMP:%.2f ", o.temperature);
        if (o.met_trb) w.appendf("TRB:%u ", o.turbulence);
        end_flags(w, start, "NO_INFO");
        break;
    case 21: w.appendf("EMC:%u", o.emc); break;
    case 22: w.appendf("LAT:%.5f LON:%.5f", o.latitude, o.longitude); break;
    case 23: w.appendf("GAL:%.2f LSB:FT", o.gal); break;
    case 24: w.appendf("PUN:%u", o.pun); break;
    case 25: {
        const AstDataItem mb = span_item(o, number);
        ast_dataitem_modes_mb_get_summary(w.end(), w.end_size(), &mb);
        w.resync();
        break;
    }
    case 26: w.appendf("IAR:%u LSB:KT", o.iar); break;
    case 27: w.appendf("MACH:%.3f", o.mac); break;
    case 28: w.appendf("BPS:%.1f LSB:HPA", o.bps); break;
    default: break;
    }
}

void write_tcp_rows(kovrel::items::DetailTable &t, const AstItem062Tcp &c, uint32_t index) {
    char label[24];
    std::snprintf(label, sizeof label, "TCP[%u]", index);
    t.rowf(label, "TCP_NUMBER", "%u%s", c.tcpn, c.tca ? " (NOT_AVAILABLE)" : "");
    t.rowf(label, "COMPLIANCE", "%s", c.nc ? "NON_COMPLIANT" : "COMPLIANT");
    t.rowf(label, "ALTITUDE LSB=FT", "%.0f", c.alt);
    t.rowf(label, "LATITUDE LSB=DEG", "%.6f", c.latitude);
    t.rowf(label, "LONGITUDE LSB=DEG", "%.6f", c.longitude);
    t.rowf(label, "POINT_TYPE", "%u", c.pt);
    t.rowf(label, "TURN_DIRECTION", "%u", c.td);
    if (!c.toa) t.rowf(label, "TIME_OVER_POINT LSB=S", "%u", c.tov);
    if (c.tra) t.rowf(label, "TURN_RADIUS LSB=NM", "%.2f", c.ttr);
}

void write_detail(TextWriter &w, const T &o, uint32_t number) {
    if (number == kMbNumber) {
        const AstDataItem mb = span_item(o, number);
        ast_dataitem_modes_mb_get_detail_html(w.end(), w.end_size(), &mb);
        w.resync();
        return;
    }
    if (number == kAcasNumber) {
        AstDataItem reg;
        const AstSubfield &s = o.subfields.spans[number - 1];
        ast_bds_decode(&reg, s.data, kAcasOctets, 0x30);
        ast_bds_30_get_detail_html(w.end(), w.end_size(), &reg);
        w.resync();
        return;
    }
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    switch (number) {
    case 1: t.rowf("Bit[0-23]", "TARGET_ADDRESS", "%06X", o.adr); break;
    case 2: t.char_rows(o.id); break;
    case 3: t.rowf("Bit[0-15]", "MAGNETIC_HEADING LSB=DEG", "%.4f", o.mhg); break;
    case 4:
        t.rowf("Bit[0]", "MACH", "%d", o.im);
        if (o.im)
            t.rowf("Bit[1-15]", "AIRSPEED LSB=MACH", "%.3f", o.mach);
        else
            t.rowf("Bit[1-15]", "AIRSPEED LSB=KT", "%.2f", o.ias);
        break;
    case 5: t.rowf("Bit[0-15]", "TRUE_AIRSPEED LSB=KT", "%u", o.tas); break;
    case 6:
        t.rowf("Bit[0]", "SOURCE_GIVEN", "%d", o.sal_sas);
        t.row("Bit[1-2]", "SOURCE", ast_selected_altitude_source_to_str(o.sal_src, 0));
        t.rowf("Bit[3-15]", "ALTITUDE LSB=FT", "%d", static_cast<int>(o.sal));
        break;
    case 7:
        t.rowf("Bit[0]", "MANAGE_VERTICAL_MODE", "%d", o.fss_mv);
        t.rowf("Bit[1]", "ALTITUDE_HOLD", "%d", o.fss_ah);
        t.rowf("Bit[2]", "APPROACH_MODE", "%d", o.fss_am);
        t.rowf("Bit[3-15]", "ALTITUDE LSB=FT", "%d", static_cast<int>(o.fss));
        break;
    case 8:
        t.rowf("Bit[0]", "NOT_AVAILABLE", "%d", o.nav);
        t.rowf("Bit[1]", "NOT_VALID", "%d", o.nvb);
        break;
    case 9:
        t.rowf("Bit[0-7]", "REP", "%u", o.tid_rep);
        for (uint32_t i = 0; i < o.tid_count; ++i) write_tcp_rows(t, o.tid[i], i + 1);
        break;
    case 10:
        t.row("Bit[0-2]", "COMMUNICATIONS_CAPABILITY",
              ast_transponder_comm_cap_to_str(ast_transponder_comm_cap_from_int(o.com)));
        t.row("Bit[3-5]", "FLIGHT_STATUS", ast_radar_flight_status_to_str(ast_radar_flight_status_from_int(o.stat)));
        t.rowf("Bit[8]", "SPECIFIC_SERVICE", "%d", o.ssc);
        t.row("Bit[9]", "ALTITUDE_REPORTING", o.arc ? "25_FT" : "100_FT");
        t.rowf("Bit[10]", "AIRCRAFT_IDENTIFICATION", "%d", o.aic);
        t.rowf("Bit[11]", "BDS_1,0_BIT_16", "%d", o.b1a);
        t.rowf("Bit[12-15]", "BDS_1,0_BITS_37-40", "%u", o.b1b);
        break;
    case 11:
        t.row("Bit[0-1]", "ACAS_STATUS", ast_acas_status_to_str(ast_acas_status_from_int(o.ac)));
        t.row("Bit[2-3]", "MULTIPLE_NAVIGATION_AIDS", ast_multi_navids_status_to_str(ast_multi_navids_status_from_int(o.mn)));
        t.row("Bit[4-5]", "DIFFERENTIAL_CORRECTION", kCorrectionText[o.dc & 3u]);
        t.rowf("Bit[6]", "GROUND_BIT", "%d", o.gbs);
        t.row("Bit[13-15]", "FLIGHT_STATUS", ast_emergency_status_to_str(ast_emergency_status_from_int(o.sab_stat)));
        break;
    case 13: t.rowf("Bit[0-15]", "BAROMETRIC_VERTICAL_RATE LSB=FT/MIN", "%.2f", o.bvr); break;
    case 14: t.rowf("Bit[0-15]", "GEOMETRIC_VERTICAL_RATE LSB=FT/MIN", "%.2f", o.gvr); break;
    case 15: t.rowf("Bit[0-15]", "ROLL_ANGLE LSB=DEG", "%.2f", o.ran); break;
    case 16:
        t.row("Bit[0-1]", "TURN_INDICATOR", kTurnText[o.ti & 3u]);
        t.rowf("Bit[8-14]", "RATE_OF_TURN LSB=DEG/S", "%.2f", o.rot);
        break;
    case 17: t.rowf("Bit[0-15]", "TRACK_ANGLE LSB=DEG", "%.4f", o.tan); break;
    case 18: t.rowf("Bit[0-15]", "GROUND_SPEED LSB=KT", "%.2f", o.gs); break;
    case 19: t.rowf("Bit[0-7]", "VELOCITY_UNCERTAINTY", "%u", o.vun); break;
    case 20:
        t.rowf("Bit[0]", "WIND_SPEED_VALID", "%d", o.met_ws);
        t.rowf("Bit[1]", "WIND_DIRECTION_VALID", "%d", o.met_wd);
        t.rowf("Bit[2]", "TEMPERATURE_VALID", "%d", o.met_tmp);
        t.rowf("Bit[3]", "TURBULENCE_VALID", "%d", o.met_trb);
        t.rowf("Bit[8-23]", "WIND_SPEED LSB=KT", "%u", o.wind_speed);
        t.rowf("Bit[24-39]", "WIND_DIRECTION LSB=DEG", "%u", o.wind_direction);
        t.rowf("Bit[40-55]", "TEMPERATURE LSB=C", "%.2f", o.temperature);
        t.rowf("Bit[56-63]", "TURBULENCE", "%u", o.turbulence);
        break;
    case 21: t.row("Bit[0-7]", "EMITTER_CATEGORY", ast_emitter_category_to_str(ast_emitter_category_from_int(o.emc), 0)); break;
    case 22:
        t.rowf("Bit[0-23]", "LATITUDE LSB=DEG", "%.6f", o.latitude);
        t.rowf("Bit[24-47]", "LONGITUDE LSB=DEG", "%.6f", o.longitude);
        break;
    case 23: t.rowf("Bit[0-15]", "GEOMETRIC_ALTITUDE LSB=FT", "%.2f", o.gal); break;
    case 24: t.rowf("Bit[4-7]", "POSITION_UNCERTAINTY", "%u", o.pun); break;
    case 26: t.rowf("Bit[0-15]", "INDICATED_AIRSPEED LSB=KT", "%u", o.iar); break;
    case 27: t.rowf("Bit[0-15]", "MACH_NUMBER", "%.3f", o.mac); break;
    case 28: t.rowf("Bit[4-15]", "BAROMETRIC_PRESSURE_SETTING LSB=HPA", "%.1f", o.bps); break;
    default: break;
    }
    t.end();
}

}  // namespace

KOVREL_CAT062_COMPOUND(380, AstItem062_380, kId, decode_subfield, write_summary, write_detail)

namespace kovrel::fields {

namespace {

const char *src_name(uint32_t v) { return v < 4 ? ast_selected_altitude_source_to_str(v, 0) : nullptr; }
const char *com_name(uint32_t v) { return v <= 4 ? ast_transponder_comm_cap_to_str(v) : nullptr; }
const char *stat_name(uint32_t v) { return v <= 5 ? ast_radar_flight_status_to_str(v) : nullptr; }
const char *ac_name(uint32_t v) { return v < 4 ? ast_acas_status_to_str(v) : nullptr; }
const char *mn_name(uint32_t v) { return v < 4 ? ast_multi_navids_status_to_str(v) : nullptr; }
const char *dc_name(uint32_t v) { return v < 4 ? kCorrectionText[v] : nullptr; }
const char *emg_name(uint32_t v) { return v < 8 ? ast_emergency_status_to_str(v) : nullptr; }
const char *turn_name(uint32_t v) { return v < 4 ? kTurnText[v] : nullptr; }

using Tcp = AstItem062Tcp;
constexpr FieldRow kTcpRows[] = {
    flag("tca", KOVREL_MEMBER(Tcp, tca)),
    flag("nc", KOVREL_MEMBER(Tcp, nc)),
    integer("tcpn", KOVREL_MEMBER(Tcp, tcpn)).width(6),
    scaled("alt", KOVREL_MEMBER(Tcp, alt_raw), kTcpAltitudeLsb, "ft").width(16),
    scaled("lat", KOVREL_MEMBER(Tcp, lat_raw), kLatLonLsb, "deg").width(24),
    scaled("lon", KOVREL_MEMBER(Tcp, lon_raw), kLatLonLsb, "deg").width(24),
    integer("pt", KOVREL_MEMBER(Tcp, pt)).width(4),
    integer("td", KOVREL_MEMBER(Tcp, td)).width(2),
    flag("tra", KOVREL_MEMBER(Tcp, tra)),
    flag("toa", KOVREL_MEMBER(Tcp, toa)),
    integer("tov", KOVREL_MEMBER(Tcp, tov), "s").width(24),
    scaled("ttr", KOVREL_MEMBER(Tcp, ttr_raw), kTurnRadiusLsb, "NM").width(16),
};
constinit const FieldDesc kTcp = describe<Tcp>(kTcpRows);

constexpr FieldRow kAdr[] = {integer("adr", KOVREL_MEMBER(T, adr)).width(24).shown(AST_FIELD_FORMAT_HEX6)};
constexpr FieldRow kId[] = {text("id", KOVREL_MEMBER(T, id))};
constexpr FieldRow kMhg[] = {scaled("mhg", KOVREL_MEMBER(T, mhg_raw), kAngleLsb, "deg").width(16)};
constexpr FieldRow kIas[] = {
    flag("im", KOVREL_MEMBER(T, im)),
    integer("ias_raw", KOVREL_MEMBER(T, ias_raw)).width(15),
    real("ias", KOVREL_MEMBER(T, ias), "kt").when(KOVREL_MEMBER(T, ias_knots)),
    real("mach", KOVREL_MEMBER(T, mach)).when(KOVREL_MEMBER(T, im)),
};
constexpr FieldRow kTas[] = {integer("tas", KOVREL_MEMBER(T, tas), "kt").width(16)};
constexpr FieldRow kSal[] = {
    flag("sas", KOVREL_MEMBER(T, sal_sas)),
    enumeration("src", KOVREL_MEMBER(T, sal_src), src_name).width(2),
    scaled("alt", KOVREL_MEMBER(T, sal_raw), kAltitudeLsb, "ft").width(13),
};
constexpr FieldRow kFss[] = {
    flag("mv", KOVREL_MEMBER(T, fss_mv)),
    flag("ah", KOVREL_MEMBER(T, fss_ah)),
    flag("am", KOVREL_MEMBER(T, fss_am)),
    scaled("alt", KOVREL_MEMBER(T, fss_raw), kAltitudeLsb, "ft").width(13),
};
constexpr FieldRow kTis[] = {flag("nav", KOVREL_MEMBER(T, nav)), flag("nvb", KOVREL_MEMBER(T, nvb))};
constexpr FieldRow kTid[] = {
    integer("rep", KOVREL_MEMBER(T, tid_rep)).width(8),
    array("points", KOVREL_MEMBER(T, tid), KOVREL_MEMBER(T, tid_count), sizeof(Tcp), AST_ITEM062_380_MAX_TID, kTcp),
};
constexpr FieldRow kCom[] = {
    enumeration("com", KOVREL_MEMBER(T, com), com_name).width(3),
    enumeration("stat", KOVREL_MEMBER(T, stat), stat_name).width(3),
    flag("ssc", KOVREL_MEMBER(T, ssc)),
    flag("arc", KOVREL_MEMBER(T, arc)),
    flag("aic", KOVREL_MEMBER(T, aic)),
    integer("b1a", KOVREL_MEMBER(T, b1a)).width(1),
    integer("b1b", KOVREL_MEMBER(T, b1b)).width(4),
};
constexpr FieldRow kSab[] = {
    enumeration("ac", KOVREL_MEMBER(T, ac), ac_name).width(2),
    enumeration("mn", KOVREL_MEMBER(T, mn), mn_name).width(2),
    enumeration("dc", KOVREL_MEMBER(T, dc), dc_name).width(2),
    flag("gbs", KOVREL_MEMBER(T, gbs)),
    enumeration("stat", KOVREL_MEMBER(T, sab_stat), emg_name).width(3),
};
constexpr FieldRow kAcs[] = {group("bds", KOVREL_MEMBER(T, acs), kBds30)};
constexpr FieldRow kBvr[] = {scaled("bvr", KOVREL_MEMBER(T, bvr_raw), kRateLsb, "ft/min").width(16)};
constexpr FieldRow kGvr[] = {scaled("gvr", KOVREL_MEMBER(T, gvr_raw), kRateLsb, "ft/min").width(16)};
constexpr FieldRow kRan[] = {scaled("ran", KOVREL_MEMBER(T, ran_raw), kRollLsb, "deg").width(16)};
constexpr FieldRow kTar[] = {
    enumeration("ti", KOVREL_MEMBER(T, ti), turn_name).width(2),
    scaled("rot", KOVREL_MEMBER(T, rot_raw), kTurnLsb, "deg/s").width(7),
};
constexpr FieldRow kTan[] = {scaled("tan", KOVREL_MEMBER(T, tan_raw), kAngleLsb, "deg").width(16)};
constexpr FieldRow kGs[] = {scaled("gs", KOVREL_MEMBER(T, gs_raw), kKnotsLsb, "kt").width(16)};
constexpr FieldRow kVun[] = {integer("vun", KOVREL_MEMBER(T, vun)).width(8)};
constexpr FieldRow kMet[] = {
    flag("ws", KOVREL_MEMBER(T, met_ws)),
    flag("wd", KOVREL_MEMBER(T, met_wd)),
    flag("tmp", KOVREL_MEMBER(T, met_tmp)),
    flag("trb", KOVREL_MEMBER(T, met_trb)),
    integer("wsd", KOVREL_MEMBER(T, wind_speed), "kt").width(16),
    integer("wdd", KOVREL_MEMBER(T, wind_direction), "deg").width(16),
    scaled("tmpd", KOVREL_MEMBER(T, temperature_raw), kTemperatureLsb, "degC").width(16),
    integer("trbd", KOVREL_MEMBER(T, turbulence)).width(8),
};
constexpr FieldRow kEmc[] = {integer("emc", KOVREL_MEMBER(T, emc)).width(8)};
constexpr FieldRow kPos[] = {
    scaled("lat", KOVREL_MEMBER(T, lat_raw), kLatLonLsb, "deg").width(24),
    scaled("lon", KOVREL_MEMBER(T, lon_raw), kLatLonLsb, "deg").width(24),
};
constexpr FieldRow kGal[] = {scaled("gal", KOVREL_MEMBER(T, gal_raw), kRateLsb, "ft").width(16)};
constexpr FieldRow kPun[] = {integer("pun", KOVREL_MEMBER(T, pun)).width(4)};
constexpr FieldRow kMb[] = {group("mb", KOVREL_MEMBER(T, mb), kModesMb)};
constexpr FieldRow kIar[] = {integer("iar", KOVREL_MEMBER(T, iar), "kt").width(16)};
constexpr FieldRow kMac[] = {scaled("mac", KOVREL_MEMBER(T, mac_raw), kMacLsb).width(16)};
constexpr FieldRow kBps[] = {
    integer("bps_raw", KOVREL_MEMBER(T, bps_raw)).width(12),
    real("bps", KOVREL_MEMBER(T, bps), "hPa"),
};

#define PART(NAME, ROWS)                                                                           \
    compound_part(#NAME, KOVREL_MEMBER(T, NAME##_present), k##ROWS##Fields, sizeof(T))
#define DESC(ROWS) constinit const FieldDesc k##ROWS##Fields = describe<T>(k##ROWS);
DESC(Adr) DESC(Id) DESC(Mhg) DESC(Ias) DESC(Tas) DESC(Sal) DESC(Fss) DESC(Tis) DESC(Tid) DESC(Com)
DESC(Sab) DESC(Acs) DESC(Bvr) DESC(Gvr) DESC(Ran) DESC(Tar) DESC(Tan) DESC(Gs) DESC(Vun) DESC(Met)
DESC(Emc) DESC(Pos) DESC(Gal) DESC(Pun) DESC(Mb) DESC(Iar) DESC(Mac) DESC(Bps)
#undef DESC

constexpr FieldRow kRows[] = {
    PART(adr, Adr), PART(id, Id),   PART(mhg, Mhg), PART(ias, Ias), PART(tas, Tas), PART(sal, Sal),
    PART(fss, Fss), PART(tis, Tis), PART(tid, Tid), PART(com, Com), PART(sab, Sab), PART(acs, Acs),
    PART(bvr, Bvr), PART(gvr, Gvr), PART(ran, Ran), PART(tar, Tar), PART(tan, Tan), PART(gs, Gs),
    PART(vun, Vun), PART(met, Met), PART(emc, Emc), PART(pos, Pos), PART(gal, Gal), PART(pun, Pun),
    PART(mb, Mb),   PART(iar, Iar), PART(mac, Mac), PART(bps, Bps),
};
#undef PART

}  // namespace

constinit const FieldDesc k062_380 = describe<T, init_valid<T, ast_dataitem_062_380_init>>(kRows);

}  // namespace kovrel::fields
