// HTML views of a whole record.
#include <cstdio>

#include "core/text.h"
#include "kovrel/datarecord.h"
#include "kovrel/html.h"

extern "C" {

KOVREL_API void ast_datarecord_get_hex_html(char *buffer, size_t size, const AstDataRecord *record) {
    kovrel::TextWriter w(buffer, size);
    if (!record || record->valid != 1 || !record->data) return;
    ast_html_gen_hex_table(buffer, size, record->data, static_cast<size_t>(record->length));
}

KOVREL_API void ast_datarecord_get_detail_html(char *buffer, size_t size, const AstDataRecord *record) {
    kovrel::TextWriter w(buffer, size);
    if (!record) return;
    ast_html_gen_table_begin(w.end(), w.end_size());
    w.resync();
    ast_html_gen_table_row(w.end(), w.end_size(), 1, "Dataitem", "Name", "Size", "Summary", AST_HTML_TABLE_END_OF_ROW);
    w.resync();
    const uint64_t count = record->item_count > AST_DATARECORD_MAX_ITEMS ? AST_DATARECORD_MAX_ITEMS : record->item_count;
    for (uint64_t i = 0; i < count; ++i) {
        const AstDataItem &item = record->items[i];
        char id[16], name[128], length[3], summary[256];
        ast_dataitem_type_to_str(id, sizeof id, item.id);
        ast_html_escape_text(name, sizeof name, ast_dataitem_get_name(item.id));
        // Two digits only: a length of 100 or more shows its first two
        // digits, as existing report readers expect.
        std::snprintf(length, sizeof length, "%.2zu", static_cast<size_t>(item.length));
        ast_dataitem_get_summary(summary, sizeof summary, &item);
        ast_html_gen_table_row(w.end(), w.end_size(), 0, id, name, length, summary, AST_HTML_TABLE_END_OF_ROW);
        w.resync();
    }
    ast_html_gen_table_end(w.end(), w.end_size());
    w.resync();
}

}  // extern "C"
