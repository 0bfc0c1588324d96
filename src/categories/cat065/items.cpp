// Placeholder: being written.
#include "record/item_table.h"

extern "C" KOVREL_API const char *ast_dataitem_065_get_name(AstItemId id);

namespace kovrel {
namespace {
constexpr ItemRow kRows[] = {
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size},
};
}  // namespace
constinit const CategoryItems kItems065 = make_category_items(65, ast_dataitem_065_get_name, "Unknown CAT065 Dataitem", kRows);
}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_065_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems065, id);
}
