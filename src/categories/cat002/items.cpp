// CAT002 dispatch rows: size rule and name of every item of the standard
// UAP, of the ASR-10SS station status items and of the MANAGAIR custom
// field, and the common items that serve some of them.
#include "categories/cat002/item_fields.h"
#include "kovrel/cat002.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

// I002/060, 070, 080, 090 and 100 stand in the UAP but have no row: they
// cannot be sized, so a record announcing one of them stops there.
//
// Rows: item, name, size rule, summary, detail view, encode_ex, decode_ex,
// field description.
// Items served by a common item take its summary and detail view; the
// message type keeps the common decoder but is summarised with the CAT002
// meanings of its values.
constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_002_010_encode_ex, ast_dataitem_002_010_decode_ex, &fields::kDataSourceIdentifier},
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_002_000_get_summary, kNoDetail,
     ast_dataitem_002_000_encode_ex, ast_dataitem_002_000_decode_ex, &fields::kMessageType},
    {20, "Sector Number", ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_sector_number_get_summary, ast_dataitem_sector_number_get_detail_html,
     ast_dataitem_002_020_encode_ex, ast_dataitem_002_020_decode_ex, &fields::kSectorNumber},
    {30, "Time of Day", ast_dataitem_get_size_fixed_3_byte,
     ast_dataitem_time_of_day_get_summary, ast_dataitem_time_of_day_get_detail_html,
     ast_dataitem_002_030_encode_ex, ast_dataitem_002_030_decode_ex, &fields::kTimeOfDay},
    {41, "Antenna Rotation Period", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_antenna_rotation_period_get_summary, ast_dataitem_antenna_rotation_period_get_detail_html,
     ast_dataitem_002_041_encode_ex, ast_dataitem_002_041_decode_ex, &fields::kAntennaRotationPeriod},
    // The station status bits are shown as they are.
    {50, "Station Configuration Status", ast_dataitem_get_size_var_8_byte,
     ast_dataitem_binary_data_get_summary, kNoDetail,
     nullptr, ast_dataitem_002_050_decode_ex, &fields::k002_050},

    // ASR-10SS and ASR-10SS Mk2 put a longer station status of their own at
    // FRN 6, the place of I002/050 (both print as I002/050).
    {901, "Station Configuration Status", ast_dataitem_get_size_var_16_byte,
     ast_dataitem_002_901_get_summary, ast_dataitem_002_901_get_detail_html,
     nullptr, ast_dataitem_002_901_decode_ex, &fields::k002_901},
    {902, "Station Configuration Status", ast_dataitem_get_size_var_16_byte,
     ast_dataitem_002_902_get_summary, ast_dataitem_002_902_get_detail_html,
     nullptr, ast_dataitem_002_902_decode_ex, &fields::k002_901},

    // MANAGAIR sends a two-octet field of its own at FRN 23; it is
    // delimited and named, its content is not interpreted.
    {951, "Custom Field", ast_dataitem_get_size_fixed_2_byte},

    {997, "Random Field Sequencing", ast_dataitem_random_field_sequencing_get_size,
     ast_dataitem_random_field_sequencing_get_summary, kNoDetail,
     nullptr, ast_dataitem_002_RFS_decode_ex, &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail,
     nullptr, ast_dataitem_002_SPF_decode_ex, &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems002Table =
    make_category_items(2, ast_dataitem_002_get_name, "Unknown CAT002 Dataitem", kRows);
constinit const CategoryItems kItems002 = kItems002Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_002_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems002, id);
}
