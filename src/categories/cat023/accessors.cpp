// CAT023 record accessors: the station and the time of a report, each read
// from the first item of the record that carries it.
#include "kovrel/cat023.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_funcs.h"

using namespace kovrel::access;

extern "C" {

KOVREL_API void ast_datarecord_023_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 23010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_023_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 23070, ast_dataitem_time_of_day_decode);
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs023 = {
    ast_datarecord_023_get_sacsic,
    ast_datarecord_023_get_timeofday,
    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    nullptr,
};

}  // namespace kovrel
