// CAT065 dispatch rows: size rule and name of every item.
#include "kovrel/cat065.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte},
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte},
    {15, "Service Identification", ast_dataitem_get_size_fixed_1_byte},
    {30, "Time of Day", ast_dataitem_get_size_fixed_3_byte},
    {20, "Batch Number", ast_dataitem_get_size_fixed_1_byte},
    // NOGO, OVL, TSV and PSS packed into one octet.
    {40, "SDPS Configuration and Status", ast_dataitem_get_size_fixed_1_byte},
    {50, "Service Status Report", ast_dataitem_get_size_fixed_1_byte},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size},
};

}  // namespace

constexpr CategoryItems kItems065Table =
    make_category_items(65, ast_dataitem_065_get_name, "Unknown CAT065 Dataitem", kRows);
constinit const CategoryItems kItems065 = kItems065Table;

}  // namespace kovrel

// Unknown identifiers are answered with the fallback name without a log line.
extern "C" KOVREL_API const char *ast_dataitem_065_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems065, id, false);
}
