// What the per-category record exercises of the fuzz target share: the
// scratch buffers, and one entry per category file (records_NNN.cpp).
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/kovrel.h"

namespace fuzzing {

extern char g_text[1 << 16];
extern uint8_t g_buffer[1 << 17];

// Exercises the record operations of the record's category when a
// records_NNN.cpp file handles it; does nothing for other categories.
void exercise_record_more(const AstDataRecord &record);

// CAT048 and CAT034 records: disassembled, converted to CAT001 / CAT002 and
// assembled into a buffer of exactly the converted record's length and one
// octet shorter, with a canary past the end; does nothing for other
// categories.
void exercise_convert(const AstDataRecord &record);

// CAT062 records: disassembled, every accessor asked, every subfield of the
// compound items summarised and shown into full and small buffers.
void exercise_record_062(const AstDataRecord &record);

// CAT010 and CAT020 records: disassembled, assembled into exact and short
// buffers with a canary past the end, re-decoded; every accessor asked
// (CAT020: the subfields of I020/500 summarised and shown too).
void exercise_record_010(const AstDataRecord &record);
void exercise_record_020(const AstDataRecord &record);

// CAT021 records: disassembled by each edition's disassembler and the
// all-editions one, assembled into exact and short buffers with a canary
// past the end, re-decoded; every accessor asked.
void exercise_record_021(const AstDataRecord &record);

// CAT240 records: disassembled, every accessor asked, the video vector into arrays of every capacity.
void exercise_record_240(const AstDataRecord &record);

// Safety-net and status records (records_status.cpp): disassembled, every
// accessor asked, compound items split, encoders written into exact and
// short buffers.
void exercise_record_004(const AstDataRecord &record);
void exercise_record_023(const AstDataRecord &record);
void exercise_record_063(const AstDataRecord &record);
void exercise_record_065(const AstDataRecord &record);

// Weather, non-cooperative surveillance and multilateration status records
// (records_008.cpp, records_015.cpp, records_016.cpp, records_019.cpp):
// disassembled, assembled into exact and short buffers with a canary past
// the end, re-decoded; every accessor asked; every item (and subfield)
// summarised and shown into full and small buffers.
void exercise_record_008(const AstDataRecord &record);
void exercise_record_015(const AstDataRecord &record);
void exercise_record_016(const AstDataRecord &record);
void exercise_record_019(const AstDataRecord &record);

}  // namespace fuzzing
