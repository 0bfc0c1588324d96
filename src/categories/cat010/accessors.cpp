// CAT010 record accessors: the facts of a surface movement report, each
// read from the first item of the record that carries it. A result is all
// zeros (SAC/SIC: all ones) when the record is invalid or lacks the item or
// the item does not decode.
#include <cmath>
#include <cstring>

#include "categories/cat010/surface_support.h"
#include "kovrel/cat010.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_facts.h"
#include "record/record_funcs.h"

namespace {

using namespace kovrel::access;
namespace surface = kovrel::surface;

constexpr double kMetresPerNm = 1852.0;

// Message types of I010/000 and the record message types they give.
constexpr uint32_t kTargetReport = 1;
constexpr uint32_t kStartOfUpdateCycle = 2;
constexpr uint32_t kMsgNorth = 1;
constexpr uint32_t kMsgMlat = 6;
constexpr uint32_t kMsgSurface = 8;

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_010_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (out) sacsic_of(out, record, 10010);
}

KOVREL_API void ast_datarecord_010_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 10140, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_010_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstMessageType type;
    if (!decode_first(&type, record, 10000, ast_dataitem_message_type_decode)) return;
    uint32_t value = 0;  // status messages and codes without a meaning here
    if (type.value == kStartOfUpdateCycle) {
        value = kMsgNorth;
    } else if (type.value == kTargetReport) {
        // SSR, Mode S and HF multilateration are "Mlat"; PSR, ADS-B, loops
        // and the rest of the surface sensors are "Surface".
        AstItem010_020 descriptor;
        const bool mlat = decode_first(&descriptor, record, 10020, ast_dataitem_010_020_decode) &&
                          (descriptor.typ == 0 || descriptor.typ == 1 || descriptor.typ == 5);
        value = mlat ? kMsgMlat : kMsgSurface;
    }
    *out = AstRecordMsgType{1, value};
}

KOVREL_API void ast_datarecord_010_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 10161, ast_dataitem_track_number_decode);
}

KOVREL_API void ast_datarecord_010_get_squawk(AstMode3aCode *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 10060, ast_dataitem_mode_3a_code_decode);
}

KOVREL_API void ast_datarecord_010_get_callsign(AstRecordCallsign *out, const AstDataRecord *record) {
    if (out) callsign_of_target_id(out, record, 10245);
}

KOVREL_API void ast_datarecord_010_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 10220, ast_dataitem_target_address_decode);
}

KOVREL_API void ast_datarecord_010_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record) {
    if (out) wgs84_of(out, record, 10041);
}

KOVREL_API void ast_datarecord_010_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    if (flightlevel_of_mode_c(out, record, 10090) || height_of(out, record, 10091)) return;
    set_value(out, false, 0.0);
}

KOVREL_API void ast_datarecord_010_get_selaltitude(AstRecordValue *out, const AstDataRecord *record) {
    if (out) selaltitude_of_mb(out, record, 10250);
}

KOVREL_API void ast_datarecord_010_get_polarcoord(AstRecordPolar *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstItem010_040 position;
    if (!decode_first(&position, record, 10040, ast_dataitem_010_040_decode)) return;
    out->valid = 1;
    out->rho = position.rho / kMetresPerNm;
    out->theta = position.theta;
}

KOVREL_API void ast_datarecord_010_get_heading(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstVelocityPolar polar;
    if (decode_first(&polar, record, 10200, ast_dataitem_velocity_polar_decode))
        return set_value(out, true, polar.heading);
    AstItem010_202 v;
    const bool ok = decode_first(&v, record, 10202, ast_dataitem_010_202_decode);
    set_value(out, ok, ok ? surface::course_of(v.vx, v.vy) : 0.0);
}

KOVREL_API void ast_datarecord_010_get_speed(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstVelocityPolar polar;
    if (decode_first(&polar, record, 10200, ast_dataitem_velocity_polar_decode))
        return set_value(out, true, polar.speed);
    AstItem010_202 v;
    const bool ok = decode_first(&v, record, 10202, ast_dataitem_010_202_decode);
    set_value(out, ok, ok ? std::hypot(v.vx, v.vy) * surface::kKnotsPerMs : 0.0);
}

KOVREL_API void ast_datarecord_010_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 10202, ast_dataitem_010_202_decode);
}

KOVREL_API void ast_datarecord_010_get_vrate(AstVerticalRate *out, const AstDataRecord *record) {
    if (out) vrate_of_mb(out, record, 10250);
}

KOVREL_API void ast_datarecord_010_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record) {
    if (out) cartesian_of<AstItem010_042>(out, record, 10042, ast_dataitem_010_042_decode);
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs010 = {
    ast_datarecord_010_get_sacsic,
    ast_datarecord_010_get_timeofday,
    ast_datarecord_010_get_msgtype,
    ast_datarecord_010_get_tracknum,
    ast_datarecord_010_get_squawk,
    ast_datarecord_010_get_callsign,
    ast_datarecord_010_get_icaoaddr,
    ast_datarecord_010_get_coordinate,
    ast_datarecord_010_get_flightlevel,
    ast_datarecord_010_get_selaltitude,
    ast_datarecord_010_get_polarcoord,
    ast_datarecord_010_get_heading,
    ast_datarecord_010_get_speed,
    ast_datarecord_010_get_cartesianvel,
    ast_datarecord_010_get_vrate,
};

}  // namespace kovrel
