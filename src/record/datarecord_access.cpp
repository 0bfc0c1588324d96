// Category-independent record accessors, dispatched by category.
#include <cstring>

#include "kovrel/datarecord.h"
#include "record/record_funcs.h"

namespace {

AstDataRecordFuncs funcs_of(const AstDataRecord *record) {
    AstDataRecordFuncs f{};
    if (record && record->valid == 1) ast_datarecord_get_func(&f, record->category);
    return f;
}

// Calls the category's accessor when there is one; the result is zeroed
// first, so it stays invalid otherwise.
template <typename T, typename Slot>
void call(T *out, const AstDataRecord *record, Slot AstDataRecordFuncs::*slot) {
    if (!out) return;
    std::memset(out, 0, sizeof *out);
    const AstDataRecordFuncs f = funcs_of(record);
    if (f.*slot) (f.*slot)(out, record);
}

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_get_func(AstDataRecordFuncs *out, uint32_t category) {
    if (!out) return;
    *out = AstDataRecordFuncs{};
    const AstDataRecordFuncs *f = kovrel::find_record_funcs(category);
    if (f) *out = *f;
}

KOVREL_API void ast_datarecord_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_sacsic);
    if (out && out->valid != 1) {
        out->valid = 0;
        out->sac = 0xFFFFFFFFu;
        out->sic = 0xFFFFFFFFu;
    }
}

KOVREL_API void ast_datarecord_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_timeofday);
}
KOVREL_API void ast_datarecord_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_msgtype);
}
KOVREL_API void ast_datarecord_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_tracknum);
}
KOVREL_API void ast_datarecord_get_squawk(AstMode3aCode *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_squawk);
}
KOVREL_API void ast_datarecord_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_flightlevel);
}
KOVREL_API void ast_datarecord_get_selaltitude(AstRecordValue *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_selaltitude);
}

KOVREL_API void ast_datarecord_get_callsign(AstRecordCallsign *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_callsign);
    if (!out) return;
    if (out->valid != 1) {
        std::memset(out, 0, sizeof *out);
        return;
    }
    // Padding blanks never reach the caller.
    out->callsign[sizeof out->callsign - 1] = '\0';
    for (size_t i = 0; i < sizeof out->callsign; ++i) {
        if (out->callsign[i] == ' ' || out->callsign[i] == '\0') {
            out->callsign[i] = '\0';
            break;
        }
    }
}

KOVREL_API void ast_datarecord_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_icaoaddr);
}
KOVREL_API void ast_datarecord_get_wgs84coord(AstRecordWgs84 *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_coordinate);
}
KOVREL_API void ast_datarecord_get_polarcoord(AstRecordPolar *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_polarcoord);
}
KOVREL_API void ast_datarecord_get_speed(AstRecordValue *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_speed);
}
KOVREL_API void ast_datarecord_get_heading(AstRecordValue *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_heading);
}
KOVREL_API void ast_datarecord_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_cartesianvel);
}
KOVREL_API void ast_datarecord_get_vrate(AstVerticalRate *out, const AstDataRecord *record) {
    call(out, record, &AstDataRecordFuncs::get_vrate);
}

}  // extern "C"
