// CAT016 record accessors: the source, time and kind of a configuration
// report.
#include "kovrel/cat016.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_funcs.h"

using namespace kovrel::access;

extern "C" {

KOVREL_API void ast_datarecord_016_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 16010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_016_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 16140, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_016_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    AstMessageType type;
    decode_first(&type, record, 16000, ast_dataitem_message_type_decode);
    clear(out);
    // Configuration reports carry no target: typed, as "Unknown".
    if (type.valid == 1 && (type.value == 1 || type.value == 2)) *out = AstRecordMsgType{1, 0};
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs016 = {
    ast_datarecord_016_get_sacsic,
    ast_datarecord_016_get_timeofday,
    ast_datarecord_016_get_msgtype,
    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
};

}  // namespace kovrel
