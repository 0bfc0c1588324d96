// CAT001 record accessors: the facts of a plot or track, each read from the
// first item of the record that carries it. A result is all zeros (SAC/SIC:
// all ones) when the record is invalid or lacks the item or the item does
// not decode.
#include "kovrel/cat001.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_facts.h"
#include "record/record_funcs.h"

using kovrel::access::decode_first;
using kovrel::access::clear;
using kovrel::access::first_item;

extern "C" {

KOVREL_API void ast_datarecord_001_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 1010)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_001_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    if (!record || record->valid != 1) return;
    // The track number decides, not TYP of I001/020: 4 "Track", else 3 "Plot".
    *out = AstRecordMsgType{1, first_item(record, 1161) ? 4u : 3u};
}

KOVREL_API void ast_datarecord_001_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 1161);
}

KOVREL_API void ast_datarecord_001_get_squawk(AstMode3aCode *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 1070);
}

KOVREL_API void ast_datarecord_001_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    AstModeCCode mode_c;
    const bool ok = decode_first(&mode_c, record, 1090);
    clear(out);
    if (!ok) return;
    out->valid = 1;
    out->value = mode_c.flight_level * 25.0;  // 1/4 FL = 25 ft
}

KOVREL_API void ast_datarecord_001_get_polarcoord(AstRecordPolar *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstItem001_040 position;
    if (!decode_first(&position, record, 1040)) return;
    out->valid = 1;
    out->rho = position.rho.value;
    out->theta = position.theta.value;
}

KOVREL_API void ast_datarecord_001_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstItem001_042 position;
    if (decode_first(&position, record, 1042, ast_dataitem_001_042_decode))
        kovrel::access::set_cartesian(out, position.x.value * 1852.0, position.y.value * 1852.0);
}

}  // extern "C"

namespace kovrel {

// The accessors as the generic record functions reach them; record_funcs.cpp
// hands this table out for category 1.
extern const AstDataRecordFuncs kRecordFuncs001;
constinit const AstDataRecordFuncs kRecordFuncs001 = {
    ast_datarecord_001_get_sacsic,
    nullptr,  // no time of day of its own: I001/141 is truncated
    ast_datarecord_001_get_msgtype,
    ast_datarecord_001_get_tracknum,
    ast_datarecord_001_get_squawk,
    nullptr,  // callsign
    nullptr,  // aircraft address
    nullptr,  // WGS-84 position
    ast_datarecord_001_get_flightlevel,
    nullptr,  // selected altitude
    ast_datarecord_001_get_polarcoord,
    nullptr,  // heading
    nullptr,  // speed
    nullptr,  // Cartesian velocity
    nullptr,  // vertical rate
};

}  // namespace kovrel
