// CAT015 record accessors: the facts of a non-cooperative target report,
// each read from the first item of the record that carries it.
#include "kovrel/cat015.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_funcs.h"

using namespace kovrel::access;

namespace {

constexpr double kFeetPerMetre = 1.0 / 0.3048;
constexpr double kFeetPerMinutePerMetrePerSecond = 60.0 / 0.3048;

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_015_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 15010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_015_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 15145, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_015_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    AstItem015_000 type;
    const bool ok = decode_first(&type, record, 15000);
    clear(out);
    // The five report kinds follow one another in the message types, from 9.
    if (ok && type.mt >= 1 && type.mt <= 5) *out = AstRecordMsgType{1, 8 + type.mt};
}

KOVREL_API void ast_datarecord_015_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 15161, ast_dataitem_track_number_decode);
}

KOVREL_API void ast_datarecord_015_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record) {
    if (!out) return;
    AstItem015_600 pos;
    const bool ok = decode_first(&pos, record, 15600);
    clear(out);
    if (ok && pos.p84_present) *out = AstRecordWgs84{1, pos.p84_latitude, pos.p84_longitude};
}

KOVREL_API void ast_datarecord_015_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstItem015_601 height;
    const bool ok = decode_first(&height, record, 15601);
    clear(out);
    if (ok && height.gh_present) *out = AstRecordValue{1, height.gh * kFeetPerMetre};
}

KOVREL_API void ast_datarecord_015_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record) {
    if (!out) return;
    AstItem015_602 v;
    const bool ok = decode_first(&v, record, 15602);
    clear(out);
    if (!ok || !v.hv_present) return;
    *out = AstVelocityCartesian{1, v.hv_x_raw, v.hv_x_lsb, v.hv_x, v.hv_y_raw, v.hv_y_lsb, v.hv_y};
}

KOVREL_API void ast_datarecord_015_get_vrate(AstVerticalRate *out, const AstDataRecord *record) {
    if (!out) return;
    AstItem015_604 v;
    const bool ok = decode_first(&v, record, 15604);
    clear(out);
    if (!ok || !v.vv_present) return;
    out->valid = 1;
    out->raw = v.vv_raw;
    out->lsb = v.vv_lsb * kFeetPerMinutePerMetrePerSecond;
    out->value = v.vv * kFeetPerMinutePerMetrePerSecond;
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs015 = {
    ast_datarecord_015_get_sacsic,
    ast_datarecord_015_get_timeofday,
    ast_datarecord_015_get_msgtype,
    ast_datarecord_015_get_tracknum,
    nullptr,  // no Mode 3/A code
    nullptr,  // no callsign
    nullptr,  // no aircraft address
    ast_datarecord_015_get_coordinate,
    ast_datarecord_015_get_flightlevel,
    nullptr,  // selected altitude
    nullptr,  // polar position
    nullptr,  // heading
    nullptr,  // speed
    ast_datarecord_015_get_cartesianvel,
    ast_datarecord_015_get_vrate,
};

}  // namespace kovrel
