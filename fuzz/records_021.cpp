// CAT021 records: disassembled by each edition's disassembler and the
// all-editions one, assembled again into a buffer of exactly the record's
// length and one and two octets shorter (a canary past the end must stay),
// what was assembled decoded again; every accessor asked.
#include <cstring>

#include "fuzz_records.h"
#include "kovrel/cat021.h"

namespace fuzzing {

namespace {

using Disassemble = void (*)(AstRecord021 *, const AstDataRecord *);
using Assemble = void (*)(AstDataRecord *, uint8_t *, size_t, const AstRecord021 *);

constexpr size_t kCanary = 64;

void assemble_and_check(const AstDataRecord &record, const AstRecord021 &in, Assemble assemble, const AstUap *uap) {
    static AstDataRecord assembled;
    static AstDataRecord decoded;
    const size_t length = static_cast<size_t>(record.length);
    for (size_t shorter = 0; shorter <= 2 && shorter <= length; ++shorter) {
        const size_t size = length - shorter;
        std::memset(g_buffer + size, 0xA5, kCanary);
        if (assemble)
            assemble(&assembled, g_buffer, size, &in);
        else
            ast_datarecord_021_assemble(&assembled, g_buffer, size, &in, uap);
        for (size_t i = size; i < size + kCanary; ++i)
            if (g_buffer[i] != 0xA5) __builtin_trap();
        if (assembled.valid != 1) continue;
        if (assembled.length > size) __builtin_trap();
        ast_datarecord_decode(&decoded, g_buffer, static_cast<size_t>(assembled.length), 21, &assembled.uap);
        if (decoded.valid != 1 || decoded.length != assembled.length) __builtin_trap();
    }
}

void accessors(const AstDataRecord &record) {
    AstDataSourceIdentifier sacsic;
    ast_datarecord_021_get_sacsic(&sacsic, &record);
    AstTimeOfDay tod;
    ast_datarecord_021_get_timeofday(&tod, &record);
    AstRecordMsgType type;
    ast_datarecord_021_get_msgtype(&type, &record);
    AstTrackNumber track;
    ast_datarecord_021_get_tracknum(&track, &record);
    AstMode3aCode squawk;
    ast_datarecord_021_get_squawk(&squawk, &record);
    AstRecordCallsign callsign;
    ast_datarecord_021_get_callsign(&callsign, &record);
    if (callsign.callsign[sizeof callsign.callsign - 1] != '\0') __builtin_trap();
    AstTargetAddress address;
    ast_datarecord_021_get_icaoaddr(&address, &record);
    AstRecordWgs84 position;
    ast_datarecord_021_get_coordinate(&position, &record);
    AstRecordValue value;
    ast_datarecord_021_get_flightlevel(&value, &record);
    ast_datarecord_021_get_selaltitude(&value, &record);
    ast_datarecord_021_get_heading(&value, &record);
    ast_datarecord_021_get_speed(&value, &record);
    AstVerticalRate rate;
    ast_datarecord_021_get_vrate(&rate, &record);
    // Without a valid record every result is invalid.
    if (record.valid != 1 && (type.valid != 0 || position.valid != 0 || rate.valid != 0)) __builtin_trap();
}

}  // namespace

void exercise_record_021(const AstDataRecord &record) {
    static AstRecord021 flat;
    const struct {
        Disassemble disassemble;
        Assemble assemble;  // null: the all-editions assembler with the record's profile
    } editions[] = {
        {ast_datarecord_021_disassemble, nullptr},
        {ast_datarecord_021_v27_disassemble, ast_datarecord_021_v27_assemble},
        {ast_datarecord_021_v21_disassemble, ast_datarecord_021_v21_assemble},
        {ast_datarecord_021_v026_disassemble, ast_datarecord_021_v026_assemble},
        {ast_datarecord_021_v023_disassemble, ast_datarecord_021_v023_assemble},
    };
    for (const auto &e : editions) {
        e.disassemble(&flat, &record);
        if (record.valid != 1 || record.category != 21) {
            if (flat.valid != 0) __builtin_trap();
            continue;
        }
        if (flat.valid != 1) __builtin_trap();
        assemble_and_check(record, flat, e.assemble, &record.uap);
    }
    accessors(record);
}

}  // namespace fuzzing
