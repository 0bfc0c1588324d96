// CAT019 record accessors: the source, time and kind of a status message.
#include "kovrel/cat019.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_funcs.h"

using namespace kovrel::access;

extern "C" {

KOVREL_API void ast_datarecord_019_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 19010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_019_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 19140, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_019_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    AstMessageType type;
    decode_first(&type, record, 19000, ast_dataitem_message_type_decode);
    clear(out);
    if (type.valid != 1) return;
    if (type.value == 1) *out = AstRecordMsgType{1, 1};                          // start of update cycle: "North"
    if (type.value == 2 || type.value == 3) *out = AstRecordMsgType{1, 6};       // status: "Mlat"
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs019 = {
    ast_datarecord_019_get_sacsic,
    ast_datarecord_019_get_timeofday,
    ast_datarecord_019_get_msgtype,
    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
};

}  // namespace kovrel
