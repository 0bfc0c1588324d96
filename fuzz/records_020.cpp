// CAT020 records: disassembled, assembled into exact and short buffers with
// a canary past the end, re-decoded; every accessor asked; the subfields of
// I020/500 summarised and shown into full and small buffers.
#include "fuzz_records.h"
#include "kovrel/cat020.h"
#include "records_surface.h"

namespace fuzzing {

void exercise_record_020(const AstDataRecord &record) {
    surface::round_trip<AstRecord020>(record, 20, ast_datarecord_020_disassemble, ast_datarecord_020_assemble);
    surface::accessors(record);
    if (record.valid != 1) return;
    const uint64_t count = record.item_count < AST_DATARECORD_MAX_ITEMS ? record.item_count : AST_DATARECORD_MAX_ITEMS;
    for (uint64_t i = 0; i < count; ++i)
        if (record.items[i].id == 20500) surface::walk_subfields(record.items[i]);
}

}  // namespace fuzzing
