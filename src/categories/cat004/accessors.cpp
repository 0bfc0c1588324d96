// CAT004 record accessors: the source, time and first track number of an
// alert, each read from the first item of the record that carries it. A
// result is all zeros (SAC/SIC: all ones) when the record is invalid or
// lacks the item or the item does not decode.
#include "kovrel/cat004.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_funcs.h"

using namespace kovrel::access;

extern "C" {

KOVREL_API void ast_datarecord_004_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 4010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_004_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 4020, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_004_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 4030, ast_dataitem_track_number_decode);
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs004 = {
    ast_datarecord_004_get_sacsic,
    ast_datarecord_004_get_timeofday,
    nullptr,  // message type: the safety-net types have no record message type
    ast_datarecord_004_get_tracknum,
    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
};

}  // namespace kovrel
