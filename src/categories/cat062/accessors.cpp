// CAT062 record accessors: the facts of a system track, each read from the
// first item of the record that carries it, with the fallbacks a tracker's
// output offers (aircraft derived data, flight plan data). A result is all
// zeros (SAC/SIC: all ones) when the record is invalid or lacks the items
// or they do not decode.
#include <cmath>
#include <cstring>

#include "kovrel/bds.h"
#include "kovrel/cat062.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_facts.h"
#include "record/record_funcs.h"

namespace {

using namespace kovrel::access;

constexpr double kPi = 3.14159265358979323846;
constexpr double kKnotsPerMs = 3600.0 / 1852.0;

// The aircraft derived data of the record. Large: callers keep one per call.
bool first_derived(AstItem062_380 *adr, const AstDataRecord *record) {
    return decode_first(adr, record, 62380, ast_dataitem_062_380_decode);
}

void set_rate(AstVerticalRate *out, int32_t raw) {
    clear(out);
    out->valid = 1;
    out->raw = raw;
    out->lsb = 6.25;
    out->value = raw * 6.25;
}

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_062_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 62010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_062_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 62070, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_062_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    if (!record || record->valid != 1) return;
    // 13 "Track End" on the last message of a track, else 4 "Track".
    AstItem062_080 status;
    const bool ending = decode_first(&status, record, 62080, ast_dataitem_062_080_decode) && status.tse == 1;
    *out = AstRecordMsgType{1, ending ? 13u : 4u};
}

KOVREL_API void ast_datarecord_062_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 62040, ast_dataitem_track_number_decode);
}

KOVREL_API void ast_datarecord_062_get_squawk(AstMode3aCode *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 62060, ast_dataitem_mode_3a_code_decode);
}

KOVREL_API void ast_datarecord_062_get_callsign(AstRecordCallsign *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstItem062_380 adr;
    if (first_derived(&adr, record) && adr.id_present == 1) {
        out->valid = 1;
        std::memcpy(out->callsign, adr.id, sizeof out->callsign - 1);
        return;
    }
    AstTargetId target;
    if (decode_first(&target, record, 62245, ast_dataitem_target_id_decode)) {
        out->valid = 1;
        std::memcpy(out->callsign, target.chars, sizeof out->callsign - 1);
        return;
    }
    AstItem062_390 plan;
    if (decode_first(&plan, record, 62390, ast_dataitem_062_390_decode) && plan.cs_present == 1) {
        out->valid = 1;
        std::memcpy(out->callsign, plan.cs, sizeof plan.cs);
    }
}

KOVREL_API void ast_datarecord_062_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstItem062_380 adr;
    if (!first_derived(&adr, record) || adr.adr_present != 1) return;
    out->valid = 1;
    out->address = adr.adr;
}

KOVREL_API void ast_datarecord_062_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstPositionWgs84 pos;
    if (!decode_first(&pos, record, 62105)) return;
    out->valid = 1;
    out->latitude = pos.latitude;
    out->longitude = pos.longitude;
}

KOVREL_API void ast_datarecord_062_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstItem062_136 measured;
    if (decode_first(&measured, record, 62136, ast_dataitem_062_136_decode)) return set_value(out, true, measured.level);
    AstItem062_135 barometric;
    const bool ok = decode_first(&barometric, record, 62135, ast_dataitem_062_135_decode);
    set_value(out, ok, ok ? barometric.altitude : 0.0);
}

KOVREL_API void ast_datarecord_062_get_selaltitude(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    set_value(out, false, 0.0);
    AstItem062_380 adr;
    if (!first_derived(&adr, record)) return;
    if (adr.sal_present == 1) return set_value(out, true, adr.sal);
    if (adr.mb_present != 1 || adr.mb.valid != 1) return;
    for (uint32_t i = 0; i < adr.mb.rep && i < AST_MODES_MB_MAX_BDS; ++i) {
        if (adr.mb.bds[i].id != 0x40) continue;
        const AstBds40 r = ast_bds_40_decode(&adr.mb.bds[i]);
        if (r.valid == 1 && r.mcp_alt_status == 1) return set_value(out, true, r.mcp_alt);
    }
}

KOVREL_API void ast_datarecord_062_get_heading(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstVelocityCartesian v;
    if (decode_first(&v, record, 62185)) {
        // Course over ground: clockwise from north (y), east is x.
        double course = std::atan2(v.vx, v.vy) * 180.0 / kPi;
        if (course < 0) course += 360.0;
        return set_value(out, true, course);
    }
    set_value(out, false, 0.0);
    AstItem062_380 adr;
    if (!first_derived(&adr, record)) return;
    if (adr.tan_present == 1) return set_value(out, true, adr.tan);
    if (adr.mhg_present == 1) return set_value(out, true, adr.mhg);
}

KOVREL_API void ast_datarecord_062_get_speed(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstVelocityCartesian v;
    if (decode_first(&v, record, 62185)) return set_value(out, true, std::hypot(v.vx, v.vy) * kKnotsPerMs);
    set_value(out, false, 0.0);
    AstItem062_380 adr;
    if (first_derived(&adr, record) && adr.gs_present == 1) set_value(out, true, adr.gs);
}

KOVREL_API void ast_datarecord_062_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 62185);
}

KOVREL_API void ast_datarecord_062_get_vrate(AstVerticalRate *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstItem062_220 rate;
    if (decode_first(&rate, record, 62220, ast_dataitem_062_220_decode)) return set_rate(out, rate.raw);
    AstItem062_380 adr;
    if (!first_derived(&adr, record)) return;
    if (adr.bvr_present == 1) return set_rate(out, adr.bvr_raw);
    if (adr.gvr_present == 1) set_rate(out, adr.gvr_raw);
}

KOVREL_API void ast_datarecord_062_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record) {
    if (out) cartesian_of<AstPositionCartesian>(out, record, 62100);
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs062 = {
    ast_datarecord_062_get_sacsic,
    ast_datarecord_062_get_timeofday,
    ast_datarecord_062_get_msgtype,
    ast_datarecord_062_get_tracknum,
    ast_datarecord_062_get_squawk,
    ast_datarecord_062_get_callsign,
    ast_datarecord_062_get_icaoaddr,
    ast_datarecord_062_get_coordinate,
    ast_datarecord_062_get_flightlevel,
    ast_datarecord_062_get_selaltitude,
    nullptr,  // no polar position in a system track
    ast_datarecord_062_get_heading,
    ast_datarecord_062_get_speed,
    ast_datarecord_062_get_cartesianvel,
    ast_datarecord_062_get_vrate,
};

}  // namespace kovrel
