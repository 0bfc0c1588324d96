// CAT065 dispatch rows: size rule and name of every item, and the common
// items that serve some of them.
#include "categories/cat065/status.h"
#include "kovrel/cat065.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_065_010_encode_ex, ast_dataitem_065_010_decode_ex, &fields::kDataSourceIdentifier},
    // Read and written as the common message type, summarised by the category.
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_065_000_get_summary, kNoDetail, ast_dataitem_065_000_encode_ex,
     ast_dataitem_065_000_decode_ex, &fields::kMessageType},
    {15, "Service Identification", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_service_id_get_summary,
     kNoDetail, ast_dataitem_065_015_encode_ex, ast_dataitem_065_015_decode_ex, &fields::kServiceId},
    {30, "Time of Day", ast_dataitem_get_size_fixed_3_byte, ast_dataitem_time_of_day_get_summary,
     ast_dataitem_time_of_day_get_detail_html, ast_dataitem_065_030_encode_ex, ast_dataitem_065_030_decode_ex,
     &fields::kTimeOfDay},
    {20, "Batch Number", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_065_020_get_summary, kNoDetail, nullptr,
     ast_dataitem_065_020_decode_ex, &fields::k065_020},
    // NOGO, OVL, TSV and PSS packed into one octet.
    {40, "SDPS Configuration and Status", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_065_040_get_summary,
     ast_dataitem_065_040_get_detail_html, nullptr, ast_dataitem_065_040_decode_ex, &fields::k065_040},
    {50, "Service Status Report", ast_dataitem_get_size_fixed_1_byte},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail, nullptr, ast_dataitem_065_REF_decode_ex,
     &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail, nullptr, ast_dataitem_065_SPF_decode_ex,
     &fields::kExplicitField},
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
