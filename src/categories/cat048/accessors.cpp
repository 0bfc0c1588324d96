// CAT048 record accessors: the facts of a target report, each read from the
// first item of the record that carries it. A result is all zeros (SAC/SIC:
// all ones) when the record is invalid or lacks the item or the item does
// not decode.
#include "kovrel/cat048.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_facts.h"
#include "record/record_funcs.h"

namespace {

using namespace kovrel::access;

// The registers of the first I048/250 of the record.
bool first_modes_mb(AstModesMb *mb, const AstDataRecord *record) {
    return decode_first(mb, record, 48250, ast_dataitem_modes_mb_decode);
}

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_048_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 48010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_048_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 48140, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_048_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    if (!record || record->valid != 1) return;
    // 4 "Track" when the report carries a track number, else 3 "Plot".
    *out = AstRecordMsgType{1, first_item(record, 48161) ? 4u : 3u};
}

KOVREL_API void ast_datarecord_048_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 48161, ast_dataitem_track_number_decode);
}

KOVREL_API void ast_datarecord_048_get_squawk(AstMode3aCode *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 48070, ast_dataitem_mode_3a_code_decode);
}

KOVREL_API void ast_datarecord_048_get_callsign(AstRecordCallsign *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstAircraftId id;
    if (!decode_first(&id, record, 48240, ast_dataitem_aircraft_id_decode)) return;
    out->valid = 1;
    std::memcpy(out->callsign, id.chars, sizeof out->callsign - 1);
}

KOVREL_API void ast_datarecord_048_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 48220, ast_dataitem_target_address_decode);
}

KOVREL_API void ast_datarecord_048_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstModeCCode mode_c;
    if (decode_first(&mode_c, record, 48090, ast_dataitem_mode_c_code_decode)) {
        set_value(out, true, mode_c.flight_level * 25.0);  // 1/4 FL = 25 ft
        return;
    }
    AstItem048_110 height;
    const bool ok = decode_first(&height, record, 48110);
    set_value(out, ok, ok ? static_cast<double>(height.height) : 0.0);
}

KOVREL_API void ast_datarecord_048_get_selaltitude(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    set_value(out, false, 0.0);
    AstModesMb mb;
    if (!first_modes_mb(&mb, record)) return;
    for (uint32_t i = 0; i < mb.rep; ++i) {
        if (mb.bds[i].id != 0x40) continue;
        const AstBds40 r = ast_bds_40_decode(&mb.bds[i]);
        if (r.valid == 1 && r.mcp_alt_status == 1) return set_value(out, true, r.mcp_alt);
    }
}

KOVREL_API void ast_datarecord_048_get_heading(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    set_value(out, false, 0.0);
    AstModesMb mb;
    if (!first_modes_mb(&mb, record)) return;
    // The true track angle of BDS 5,0 wins; the magnetic heading of BDS 6,0
    // stands in when no 5,0 register gives one.
    for (uint32_t i = 0; i < mb.rep; ++i) {
        if (mb.bds[i].id != 0x50) continue;
        const AstBds50 r = ast_bds_50_decode(&mb.bds[i]);
        if (r.valid == 1 && r.true_track_status == 1) return set_value(out, true, r.true_track);
    }
    for (uint32_t i = 0; i < mb.rep; ++i) {
        if (mb.bds[i].id != 0x60) continue;
        const AstBds60 r = ast_bds_60_decode(&mb.bds[i]);
        if (r.valid == 1 && r.magnetic_heading_status == 1) return set_value(out, true, r.magnetic_heading);
    }
}

KOVREL_API void ast_datarecord_048_get_polarcoord(AstRecordPolar *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstItem048_040 position;
    if (!decode_first(&position, record, 48040)) return;
    out->valid = 1;
    out->rho = position.rho;
    out->theta = position.theta;
}

KOVREL_API void ast_datarecord_048_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstItem048_042 position;
    if (decode_first(&position, record, 48042, ast_dataitem_048_042_decode))
        set_cartesian(out, position.x * (1852.0 / 128.0), position.y * (1852.0 / 128.0));
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs048 = {
    ast_datarecord_048_get_sacsic,
    ast_datarecord_048_get_timeofday,
    ast_datarecord_048_get_msgtype,
    ast_datarecord_048_get_tracknum,
    ast_datarecord_048_get_squawk,
    ast_datarecord_048_get_callsign,
    ast_datarecord_048_get_icaoaddr,
    nullptr,  // no WGS-84 position in a monoradar report
    ast_datarecord_048_get_flightlevel,
    ast_datarecord_048_get_selaltitude,
    ast_datarecord_048_get_polarcoord,
    ast_datarecord_048_get_heading,
    nullptr,  // speed
    nullptr,  // Cartesian velocity
    nullptr,  // vertical rate
};

}  // namespace kovrel
