// CAT063 dispatch rows: size rule and name of every item, and the common
// items that serve some of them.
#include "categories/cat063/status.h"
#include "kovrel/cat063.h"
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
     ast_dataitem_063_010_encode_ex, ast_dataitem_063_010_decode_ex, &fields::kDataSourceIdentifier},
    {15, "Service Identification", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_service_id_get_summary,
     kNoDetail, ast_dataitem_063_015_encode_ex, ast_dataitem_063_015_decode_ex, &fields::kServiceId},
    {30, "Time of Message", ast_dataitem_get_size_fixed_3_byte, ast_dataitem_time_of_day_get_summary,
     ast_dataitem_time_of_day_get_detail_html, ast_dataitem_063_030_encode_ex, ast_dataitem_063_030_decode_ex,
     &fields::kTimeOfDay},
    // SAC/SIC of the sensor the report is about, shown as a data source.
    {50, "Sensor Identifier", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_data_source_identifier_get_summary,
     ast_dataitem_data_source_identifier_get_detail_html, ast_dataitem_063_050_encode_ex,
     ast_dataitem_063_050_decode_ex, &fields::kDataSourceIdentifier},
    // Later editions add octets to the chain; they are delimited, not read.
    {60, "Sensor Configuration and Status", ast_dataitem_get_size_var_unlimited, ast_dataitem_063_060_get_summary,
     ast_dataitem_063_060_get_detail_html, nullptr, ast_dataitem_063_060_decode_ex, &fields::k063_060},
    {70, "Time Stamping Bias", ast_dataitem_get_size_fixed_2_byte},
    // Range gain and range bias, 16 bits each.
    {80, "SSR/Mode S Range Gain and Bias", ast_dataitem_get_size_fixed_4_byte},
    {81, "SSR/Mode S Azimuth Bias", ast_dataitem_get_size_fixed_2_byte},
    {90, "PSR Range Gain and Bias", ast_dataitem_get_size_fixed_4_byte},
    {91, "PSR Azimuth Bias", ast_dataitem_get_size_fixed_2_byte},
    {92, "PSR Elevation Bias", ast_dataitem_get_size_fixed_2_byte},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail, nullptr, ast_dataitem_063_REF_decode_ex,
     &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail, nullptr, ast_dataitem_063_SPF_decode_ex,
     &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems063Table =
    make_category_items(63, ast_dataitem_063_get_name, "Unknown CAT063 Dataitem", kRows);
constinit const CategoryItems kItems063 = kItems063Table;

}  // namespace kovrel

// Unknown identifiers are answered with the fallback name without a log line.
extern "C" KOVREL_API const char *ast_dataitem_063_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems063, id, false);
}
