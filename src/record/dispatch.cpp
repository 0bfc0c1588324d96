// Item dispatch: one switch on the category, one direct index into its rows.
#include "core/state.h"
#include "record/item_table.h"

namespace kovrel {

const CategoryItems *find_category_items(uint32_t category) {
    switch (category) {
        case 1: return &kItems001;
        case 2: return &kItems002;
        case 4: return &kItems004;
        case 8: return &kItems008;
        case 10: return &kItems010;
        case 15: return &kItems015;
        case 16: return &kItems016;
        case 19: return &kItems019;
        case 20: return &kItems020;
        case 21: return &kItems021;
        case 23: return &kItems023;
        case 34: return &kItems034;
        case 48: return &kItems048;
        case 62: return &kItems062;
        case 63: return &kItems063;
        case 65: return &kItems065;
        case 240: return &kItems240;
        default: return nullptr;
    }
}

const ItemRow *find_item_row(AstItemId id) {
    const CategoryItems *t = find_category_items(id / 1000);
    return t ? t->find(id % 1000) : nullptr;
}

const char *category_item_name(const CategoryItems &table, AstItemId id, bool log_unknown) {
    const ItemRow *row = (id / 1000 == table.category) ? table.find(id % 1000) : nullptr;
    if (row && row->name) return row->name;
    if (log_unknown && logging_enabled()) {
        char text[16];
        ast_dataitem_type_to_str(text, sizeof text, id);
        ast_log(AST_LOG_WARNING, "Unknown dataitem name: %s.", text);
    }
    return table.unknown_name;
}

}  // namespace kovrel

extern "C" KOVREL_API void ast_dataitem_get_func(AstDataItemFuncs *out, AstItemId id) {
    if (!out) return;
    *out = AstDataItemFuncs{};
    const kovrel::CategoryItems *t = kovrel::find_category_items(id / 1000);
    const kovrel::ItemRow *row = t ? t->find(id % 1000) : nullptr;
    if (!row) {
        if (id != 0 && kovrel::logging_enabled()) {
            char text[16];
            ast_dataitem_type_to_str(text, sizeof text, id);
            ast_log(AST_LOG_CRITICAL, "Unsupported dataitem %s", text);
        }
        return;
    }
    out->get_size = row->get_size;
    out->get_name = t->get_name;
    out->get_summary = row->get_summary;
    out->get_detail_html = row->get_detail_html;
    out->encode_ex = row->encode_ex;
    out->decode_ex = row->decode_ex;
}
