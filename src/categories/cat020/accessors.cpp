// CAT020 record accessors: the facts of a multilateration report, each read
// from the first item of the record that carries it. A result is all zeros
// (SAC/SIC: all ones) when the record is invalid or lacks the item or the
// item does not decode.
#include <cmath>
#include <cstring>

#include "categories/cat010/surface_support.h"
#include "kovrel/bds.h"
#include "kovrel/cat020.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_funcs.h"

namespace {

using namespace kovrel::access;
namespace surface = kovrel::surface;

constexpr uint32_t kMsgMlat = 6;

void set_value(AstRecordValue *out, bool ok, double value) {
    clear(out);
    if (!ok) return;
    out->valid = 1;
    out->value = value;
}

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_020_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 20010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_020_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 20140, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_020_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    if (!record || record->valid != 1) return;
    *out = AstRecordMsgType{1, kMsgMlat};
}

KOVREL_API void ast_datarecord_020_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 20161, ast_dataitem_track_number_decode);
}

KOVREL_API void ast_datarecord_020_get_squawk(AstMode3aCode *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 20070, ast_dataitem_mode_3a_code_decode);
}

KOVREL_API void ast_datarecord_020_get_callsign(AstRecordCallsign *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstTargetId id;
    if (!decode_first(&id, record, 20245, ast_dataitem_target_id_decode)) return;
    out->valid = 1;
    std::memcpy(out->callsign, id.chars, sizeof out->callsign - 1);
}

KOVREL_API void ast_datarecord_020_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 20220, ast_dataitem_target_address_decode);
}

KOVREL_API void ast_datarecord_020_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstPositionWgs84 pos;
    if (!decode_first(&pos, record, 20041, ast_dataitem_position_wgs84_decode)) return;
    out->valid = 1;
    out->latitude = pos.latitude;
    out->longitude = pos.longitude;
}

KOVREL_API void ast_datarecord_020_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstModeCCode mode_c;
    if (decode_first(&mode_c, record, 20090, ast_dataitem_mode_c_code_decode))
        return set_value(out, true, mode_c.flight_level * 25.0);  // 1/4 FL = 25 ft
    AstHeight height;
    if (decode_first(&height, record, 20105, ast_dataitem_height_decode)) return set_value(out, true, height.value);
    const bool ok = decode_first(&height, record, 20110, ast_dataitem_height_decode);
    set_value(out, ok, ok ? height.value : 0.0);
}

KOVREL_API void ast_datarecord_020_get_selaltitude(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    set_value(out, false, 0.0);
    AstModesMb mb;
    if (!decode_first(&mb, record, 20250, ast_dataitem_modes_mb_decode)) return;
    for (uint32_t i = 0; i < mb.rep && i < AST_MODES_MB_MAX_BDS; ++i) {
        if (mb.bds[i].id != 0x40) continue;
        const AstBds40 r = ast_bds_40_decode(&mb.bds[i]);
        if (r.valid == 1 && r.mcp_alt_status == 1) return set_value(out, true, r.mcp_alt);
    }
}

KOVREL_API void ast_datarecord_020_get_heading(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstVelocityCartesian v;
    const bool ok = decode_first(&v, record, 20202, ast_dataitem_velocity_cartesian_decode);
    set_value(out, ok, ok ? surface::course_of(v.vx, v.vy) : 0.0);
}

KOVREL_API void ast_datarecord_020_get_speed(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstVelocityCartesian v;
    const bool ok = decode_first(&v, record, 20202, ast_dataitem_velocity_cartesian_decode);
    set_value(out, ok, ok ? std::hypot(v.vx, v.vy) * surface::kKnotsPerMs : 0.0);
}

KOVREL_API void ast_datarecord_020_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 20202, ast_dataitem_velocity_cartesian_decode);
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs020 = {
    ast_datarecord_020_get_sacsic,
    ast_datarecord_020_get_timeofday,
    ast_datarecord_020_get_msgtype,
    ast_datarecord_020_get_tracknum,
    ast_datarecord_020_get_squawk,
    ast_datarecord_020_get_callsign,
    ast_datarecord_020_get_icaoaddr,
    ast_datarecord_020_get_coordinate,
    ast_datarecord_020_get_flightlevel,
    ast_datarecord_020_get_selaltitude,
    nullptr,  // no polar position in a multilateration report
    ast_datarecord_020_get_heading,
    ast_datarecord_020_get_speed,
    ast_datarecord_020_get_cartesianvel,
    nullptr,  // no vertical rate
};

}  // namespace kovrel
