// CAT019 records: disassembled, assembled into exact and short buffers with
// a canary past the end, re-decoded; every accessor asked; the summary and
// detail view of every item into full and small buffers.
#include <initializer_list>

#include "fuzz_records.h"
#include "kovrel/cat019.h"
#include "records_surface.h"

namespace fuzzing {

void exercise_record_019(const AstDataRecord &record) {
    surface::round_trip<AstRecord019>(record, 19, ast_datarecord_019_disassemble, ast_datarecord_019_assemble);
    surface::accessors(record);
    const uint64_t count = record.item_count < AST_DATARECORD_MAX_ITEMS ? record.item_count : AST_DATARECORD_MAX_ITEMS;
    for (uint64_t i = 0; i < count; ++i) {
        const AstDataItem &item = record.items[i];
        for (size_t size : {sizeof g_text, size_t{0}, size_t{1}, size_t{9}}) {
            if (size < sizeof g_text) g_text[size] = '#';
            ast_dataitem_get_summary(g_text, size, &item);
            surface::check_text(g_text, size);
            ast_dataitem_get_detail_html(g_text, size, &item);
            surface::check_text(g_text, size);
            if (size < sizeof g_text && g_text[size] != '#') __builtin_trap();
        }
    }
}

}  // namespace fuzzing
