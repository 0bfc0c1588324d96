// CAT034 record accessors: the station's identity, the time of the message
// and whether it is a North marker or a sector crossing, each read from the
// first item of the record that carries it. A result is all zeros when the
// record is invalid or lacks the item or the item does not decode.
#include <cstring>
#include <type_traits>

#include "kovrel/cat034.h"
#include "kovrel/datarecord.h"

namespace {

template <typename T>
void clear(T *out) {
    std::memset(static_cast<void *>(out), 0, sizeof *out);
}

const AstDataItem *first_item(const AstDataRecord *record, AstItemId id) {
    if (!record || record->valid != 1) return nullptr;
    const uint64_t count =
        record->item_count < AST_DATARECORD_MAX_ITEMS ? record->item_count : AST_DATARECORD_MAX_ITEMS;
    for (uint64_t i = 0; i < count; ++i)
        if (record->items[i].id == id) return &record->items[i];
    return nullptr;
}

// Decodes the first item id of the record into *out with a common item
// decoder (by pointer or by value); *out zero when there is none.
template <typename T, typename Decode>
void decode_first(T *out, const AstDataRecord *record, AstItemId id, Decode decode) {
    clear(out);
    const AstDataItem *item = first_item(record, id);
    if (!item) return;
    if constexpr (std::is_invocable_r_v<T, Decode, const AstDataItem *>)
        *out = decode(item);
    else
        decode(out, item);
    if (out->valid != 1) clear(out);
}

}  // namespace

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
