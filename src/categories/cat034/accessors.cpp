// CAT034 record accessors: the station's identity, the time of the message
// and whether it is a North marker or a sector crossing, each read from the
// first item of the record that carries it. A result is all zeros when the
// record is invalid or lacks the item or the item does not decode.
#include "kovrel/cat034.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"

using kovrel::access::decode_first;
using kovrel::access::clear;

extern "C" {

KOVREL_API void ast_datarecord_034_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 34010, ast_dataitem_data_source_identifier_decode);
}

KOVREL_API void ast_datarecord_034_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 34030, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_034_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    AstMessageType type;
    decode_first(&type, record, 34000, ast_dataitem_message_type_decode);
    clear(out);
    // Only the two messages a tracker times its scan by are typed.
    if (type.valid == 1 && (type.value == 1 || type.value == 2)) *out = AstRecordMsgType{1, type.value};
}

}  // extern "C"

namespace kovrel {

// The CAT034 slots of the record accessors, for the central switch of
// record/record_funcs.cpp; a service message has no target facts.
extern const AstDataRecordFuncs kRecordFuncs034;
constinit const AstDataRecordFuncs kRecordFuncs034 = {
    ast_datarecord_034_get_sacsic,
    ast_datarecord_034_get_timeofday,
    ast_datarecord_034_get_msgtype,
    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
};

}  // namespace kovrel
