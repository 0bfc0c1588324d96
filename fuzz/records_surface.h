// What the CAT010 and CAT020 record exercises share: disassembled, assembled
// again into a buffer of exactly the record's length and one and two octets
// shorter (a canary past the end must stay), what was assembled decoded
// again; every accessor asked through the generic entry points, and every
// subfield of the compound items summarised and shown.
#pragma once

#include <cstring>
#include <initializer_list>

#include "fuzz_records.h"

namespace fuzzing::surface {

constexpr size_t kCanary = 64;

template <typename Record, typename Disassemble, typename Assemble>
void round_trip(const AstDataRecord &record, uint32_t category, Disassemble disassemble, Assemble assemble) {
    static Record flat;
    static AstDataRecord assembled;
    static AstDataRecord decoded;
    disassemble(&flat, &record);
    if (record.valid != 1 || record.category != category) {
        if (flat.valid != 0) __builtin_trap();
        return;
    }
    if (flat.valid != 1) __builtin_trap();
    const size_t length = static_cast<size_t>(record.length);
    for (size_t shorter = 0; shorter <= 2 && shorter <= length; ++shorter) {
        const size_t size = length - shorter;
        std::memset(g_buffer + size, 0xA5, kCanary);
        assemble(&assembled, g_buffer, size, &flat, &record.uap);
        for (size_t i = size; i < size + kCanary; ++i)
            if (g_buffer[i] != 0xA5) __builtin_trap();
        if (assembled.valid != 1) continue;
        if (assembled.length > size) __builtin_trap();
        ast_datarecord_decode(&decoded, g_buffer, static_cast<size_t>(assembled.length), category, &assembled.uap);
        if (decoded.valid != 1 || decoded.length != assembled.length) __builtin_trap();
    }
}

inline void accessors(const AstDataRecord &record) {
    AstDataSourceIdentifier sacsic;
    ast_datarecord_get_sacsic(&sacsic, &record);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &record);
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &record);
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &record);
    AstMode3aCode squawk;
    ast_datarecord_get_squawk(&squawk, &record);
    AstRecordCallsign callsign;
    ast_datarecord_get_callsign(&callsign, &record);
    if (callsign.callsign[sizeof callsign.callsign - 1] != '\0') __builtin_trap();
    AstTargetAddress address;
    ast_datarecord_get_icaoaddr(&address, &record);
    AstRecordWgs84 position;
    ast_datarecord_get_wgs84coord(&position, &record);
    AstRecordPolar polar;
    ast_datarecord_get_polarcoord(&polar, &record);
    AstRecordValue value;
    ast_datarecord_get_flightlevel(&value, &record);
    ast_datarecord_get_selaltitude(&value, &record);
    ast_datarecord_get_heading(&value, &record);
    ast_datarecord_get_speed(&value, &record);
    AstVelocityCartesian velocity;
    ast_datarecord_get_cartesianvel(&velocity, &record);
    if (record.valid != 1 && (type.valid != 0 || position.valid != 0 || velocity.valid != 0)) __builtin_trap();
}

// A text written into `size` octets must end inside them.
inline void check_text(const char *text, size_t size) {
    if (size > 0 && std::memchr(text, '\0', size) == nullptr) __builtin_trap();
}

inline void walk_subfields(const AstDataItem &item) {
    static AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    if (list.valid != 1) return;
    const uint64_t count = list.span_count < AST_SUBFIELD_MAX ? list.span_count : AST_SUBFIELD_MAX;
    for (uint64_t i = 0; i < count; ++i) {
        const AstSubfield &span = list.spans[i];
        for (size_t size : {sizeof g_text, size_t{0}, size_t{1}, size_t{7}, size_t{40}}) {
            if (size < sizeof g_text) g_text[size] = '#';
            ast_subfield_get_summary(g_text, size, &span, span.id);
            check_text(g_text, size);
            ast_subfield_get_detail_html(g_text, size, &span, span.id);
            check_text(g_text, size);
            if (size < sizeof g_text && g_text[size] != '#') __builtin_trap();
        }
    }
}

}  // namespace fuzzing::surface
