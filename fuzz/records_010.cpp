// CAT010 records: disassembled, assembled into exact and short buffers with
// a canary past the end, re-decoded; every accessor asked.
#include "fuzz_records.h"
#include "kovrel/cat010.h"
#include "records_surface.h"

namespace fuzzing {

void exercise_record_010(const AstDataRecord &record) {
    surface::round_trip<AstRecord010>(record, 10, ast_datarecord_010_disassemble, ast_datarecord_010_assemble);
    surface::accessors(record);
}

}  // namespace fuzzing
