#include "record/record_facts.h"

#include <cmath>
#include <cstring>

#include "kovrel/bds.h"
#include "record/record_access.h"

namespace kovrel::access {

namespace {

constexpr double kFeetPerMinutePerBds60Lsb = 32.0;

// Calls visit on each register of the first MB data item id of the record,
// in order, until it returns true.
template <typename Visit>
void each_register(const AstDataRecord *record, AstItemId id, uint32_t bds, Visit visit) {
    AstModesMb mb;
    if (!decode_first(&mb, record, id, ast_dataitem_modes_mb_decode)) return;
    for (uint32_t i = 0; i < mb.rep && i < AST_MODES_MB_MAX_BDS; ++i)
        if (mb.bds[i].id == bds && visit(mb.bds[i])) return;
}

}  // namespace

void set_value(AstRecordValue *out, bool ok, double value) {
    clear(out);
    if (!ok) return;
    out->valid = 1;
    out->value = value;
}

void set_cartesian(AstRecordCartesian *out, double x, double y) {
    clear(out);
    out->valid = 1;
    out->x = x;
    out->y = y;
}

void sacsic_of(AstDataSourceIdentifier *out, const AstDataRecord *record, AstItemId id) {
    if (decode_first(out, record, id, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

void callsign_of_target_id(AstRecordCallsign *out, const AstDataRecord *record, AstItemId id) {
    clear(out);
    AstTargetId target;
    if (!decode_first(&target, record, id, ast_dataitem_target_id_decode)) return;
    out->valid = 1;
    std::memcpy(out->callsign, target.chars, sizeof out->callsign - 1);
}

void wgs84_of(AstRecordWgs84 *out, const AstDataRecord *record, AstItemId id) {
    clear(out);
    AstPositionWgs84 pos;
    if (!decode_first(&pos, record, id, ast_dataitem_position_wgs84_decode)) return;
    out->valid = 1;
    out->latitude = pos.latitude;
    out->longitude = pos.longitude;
}

bool flightlevel_of_mode_c(AstRecordValue *out, const AstDataRecord *record, AstItemId id) {
    AstModeCCode mode_c;
    if (!decode_first(&mode_c, record, id, ast_dataitem_mode_c_code_decode)) return false;
    set_value(out, true, mode_c.flight_level * 25.0);  // 1/4 FL = 25 ft
    return true;
}

bool height_of(AstRecordValue *out, const AstDataRecord *record, AstItemId id) {
    AstHeight height;
    if (!decode_first(&height, record, id, ast_dataitem_height_decode)) return false;
    set_value(out, true, height.value);
    return true;
}

void selaltitude_of_mb(AstRecordValue *out, const AstDataRecord *record, AstItemId id) {
    set_value(out, false, 0.0);
    each_register(record, id, 0x40, [out](const AstDataItem &reg) {
        const AstBds40 r = ast_bds_40_decode(&reg);
        if (r.valid != 1 || r.mcp_alt_status != 1) return false;
        set_value(out, true, r.mcp_alt);
        return true;
    });
}

void vrate_of_mb(AstVerticalRate *out, const AstDataRecord *record, AstItemId id) {
    clear(out);
    each_register(record, id, 0x60, [out](const AstDataItem &reg) {
        const AstBds60 r = ast_bds_60_decode(&reg);
        if (r.valid != 1) return false;
        double rate;
        if (r.baro_alt_rate_status == 1)
            rate = r.baro_alt_rate;
        else if (r.inertial_vv_status == 1)
            rate = r.inertial_vv;
        else
            return false;
        out->valid = 1;
        out->lsb = kFeetPerMinutePerBds60Lsb;
        out->raw = static_cast<int32_t>(std::lround(rate / kFeetPerMinutePerBds60Lsb));
        out->value = rate;
        return true;
    });
}

}  // namespace kovrel::access
