// CAT240 record accessors: the source, time and kind of a video record,
// each read from the first item of the record that carries it.
#include "categories/cat240/video_state.h"
#include "record/record_access.h"
#include "record/record_funcs.h"

namespace {

using namespace kovrel::access;

// The record message type of a video record, whether summary or message.
constexpr uint32_t kRecordVideo = 7;

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_240_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 240010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_240_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 240140, ast_dataitem_time_of_day_decode);
}

KOVREL_API void ast_datarecord_240_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstMessageType type;
    if (!decode_first(&type, record, 240000, ast_dataitem_message_type_decode)) return;
    if (type.value == 1 || type.value == 2) *out = AstRecordMsgType{1, kRecordVideo};
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs240 = {
    ast_datarecord_240_get_sacsic,
    ast_datarecord_240_get_timeofday,
    ast_datarecord_240_get_msgtype,
    nullptr,  // track number: video carries no targets
    nullptr,  // Mode 3/A
    nullptr,  // callsign
    nullptr,  // ICAO address
    nullptr,  // WGS-84 position
    nullptr,  // flight level
    nullptr,  // selected altitude
    nullptr,  // polar position
    nullptr,  // heading
    nullptr,  // speed
    nullptr,  // Cartesian velocity
    nullptr,  // vertical rate
};

}  // namespace kovrel
