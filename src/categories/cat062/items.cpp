// Placeholder: being written.
#include "record/item_table.h"

extern "C" KOVREL_API const char *ast_dataitem_062_get_name(AstItemId id);

namespace kovrel {
namespace {
constexpr ItemRow kRows[] = {
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size},
};
}  // namespace
constinit const CategoryItems kItems062 = make_category_items(62, ast_dataitem_062_get_name, "Unknown CAT062 Dataitem", kRows);
}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_062_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems062, id);
}
