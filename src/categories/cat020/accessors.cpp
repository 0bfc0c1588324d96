// CAT020 record accessors: the facts of a multilateration report, each read
// from the first item of the record that carries it. A result is all zeros
// (SAC/SIC: all ones) when the record is invalid or lacks the item or the
// item does not decode.
#include <cmath>
#include <cstring>

#include "categories/cat010/surface_support.h"
#include "kovrel/cat020.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_facts.h"
#include "record/record_funcs.h"

namespace {

using namespace kovrel::access;
namespace surface = kovrel::surface;

constexpr uint32_t kMsgMlat = 6;

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_020_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (out) sacsic_of(out, record, 20010);
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
    if (out) callsign_of_target_id(out, record, 20245);
}

KOVREL_API void ast_datarecord_020_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 20220, ast_dataitem_target_address_decode);
}

KOVREL_API void ast_datarecord_020_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record) {
    if (out) wgs84_of(out, record, 20041);
}

KOVREL_API void ast_datarecord_020_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    if (flightlevel_of_mode_c(out, record, 20090) || height_of(out, record, 20105) || height_of(out, record, 20110))
        return;
    set_value(out, false, 0.0);
}

KOVREL_API void ast_datarecord_020_get_selaltitude(AstRecordValue *out, const AstDataRecord *record) {
    if (out) selaltitude_of_mb(out, record, 20250);
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

KOVREL_API void ast_datarecord_020_get_vrate(AstVerticalRate *out, const AstDataRecord *record) {
    if (out) vrate_of_mb(out, record, 20250);
}

KOVREL_API void ast_datarecord_020_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record) {
    if (out) cartesian_of<AstPositionCartesian>(out, record, 20042);
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
    ast_datarecord_020_get_vrate,
};

}  // namespace kovrel
