// Item dispatch: one look-up of the category's table, one direct index into
// its rows.
#include <array>

#include "core/state.h"
#include "record/dispatch.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

// Category number (one octet on the wire) to its table, built at compile
// time: a look-up is one load, whatever the category.
constexpr std::array<const CategoryItems *, 256> make_category_index() {
    std::array<const CategoryItems *, 256> t{};
    t[1] = &kItems001;
    t[2] = &kItems002;
    t[4] = &kItems004;
    t[8] = &kItems008;
    t[10] = &kItems010;
    t[15] = &kItems015;
    t[16] = &kItems016;
    t[19] = &kItems019;
    t[20] = &kItems020;
    t[21] = &kItems021;
    t[23] = &kItems023;
    t[34] = &kItems034;
    t[48] = &kItems048;
    t[62] = &kItems062;
    t[63] = &kItems063;
    t[65] = &kItems065;
    t[240] = &kItems240;
    return t;
}

}  // namespace

constinit const std::array<const CategoryItems *, 256> kCategoryIndex = make_category_index();

const CategoryItems *find_category_items(uint32_t category) {
    return category < kCategoryIndex.size() ? kCategoryIndex[category] : nullptr;
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

// Reporting an unknown identifier is what handing out its empty function
// set has always done.
void report_unsupported_item(AstItemId id) {
    if (id == 0 || !logging_enabled()) return;
    char text[16];
    ast_dataitem_type_to_str(text, sizeof text, id);
    ast_log(AST_LOG_CRITICAL, "Unsupported dataitem %s", text);
}

}  // namespace kovrel

extern "C" KOVREL_API void ast_dataitem_get_func(AstDataItemFuncs *out, AstItemId id) {
    if (!out) return;
    *out = AstDataItemFuncs{};
    const kovrel::ItemRow *row = kovrel::find_item_row_reported(id);
    if (!row) return;
    const kovrel::CategoryItems *t = kovrel::kCategoryIndex[id / 1000];
    out->get_size = row->get_size;
    out->get_name = t->get_name;
    out->get_summary = row->get_summary;
    out->get_detail_html = row->get_detail_html;
    out->encode_ex = row->encode_ex;
    out->decode_ex = row->decode_ex;
}
