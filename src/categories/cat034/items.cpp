// CAT034 dispatch rows: size rule and name of every item, the common items
// that serve some of them, and the subfields of the compound items I034/050
// and I034/060.
#include "categories/cat034/item_fields.h"
#include "categories/cat034/subfields.h"
#include "kovrel/cat034.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

// Subfields 2 and 3 of both compound items are spare bits of the primary
// subfield: a sender that sets them adds no octets. Subfield 7 has no data
// either, but keeps the name "Spare" (and only the name) so that a detail
// view of a primary subfield with bit 7 set reads sensibly.
constexpr SubfieldRow k050Subfields[] = {
    {"COM", "Common Elements of System", SubfieldRule::Fixed, 1, nullptr, cat034::status_com_summary,
     cat034::status_com_detail},
    {"---", "Spare", SubfieldRule::None, 0, nullptr, nullptr, nullptr},
    {"---", "Spare", SubfieldRule::None, 0, nullptr, nullptr, nullptr},
    // The PSR and Mode S status octets are kept as they are, not decoded.
    {"PSR", "PSR Sensor Specific Status Information", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"SSR", "SSR Sensor Specific Status Information", SubfieldRule::Fixed, 1, nullptr, cat034::status_ssr_summary,
     cat034::status_ssr_detail},
    {"MDS", "MODE-S Sensor Specific Status Information", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {nullptr, "Spare", SubfieldRule::None, 0, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k060Subfields[] = {
    {"COM", "Common Elements of System", SubfieldRule::Fixed, 1, nullptr, cat034::mode_com_summary,
     cat034::mode_com_detail},
    {"---", "Spare", SubfieldRule::None, 0, nullptr, nullptr, nullptr},
    {"---", "Spare", SubfieldRule::None, 0, nullptr, nullptr, nullptr},
    {"PSR", "PSR Sensor Specific Processing Mode", SubfieldRule::Fixed, 1, nullptr, cat034::mode_psr_summary,
     cat034::mode_psr_detail},
    {"SSR", "SSR Sensor Specific Processing Mode", SubfieldRule::Fixed, 1, nullptr, cat034::mode_ssr_summary,
     cat034::mode_ssr_detail},
    {"MDS", "Mode S Sensor Specific Processing Mode", SubfieldRule::Fixed, 1, nullptr, cat034::mode_mds_summary,
     cat034::mode_mds_detail},
    {nullptr, "Spare", SubfieldRule::None, 0, nullptr, nullptr, nullptr},
};

}  // namespace

extern const CompoundItem kCompound034_050;
extern const CompoundItem kCompound034_060;

}  // namespace kovrel

KOVREL_COMPOUND_ITEM(034_050, 34050, ::kovrel::kCompound034_050)
KOVREL_COMPOUND_ITEM(034_060, 34060, ::kovrel::kCompound034_060)

namespace kovrel {

constinit const CompoundItem kCompound034_050 = make_compound(7, k050Subfields, KOVREL_SUBFIELD_FUNCS(034_050));
constinit const CompoundItem kCompound034_060 = make_compound(7, k060Subfields, KOVREL_SUBFIELD_FUNCS(034_060));

namespace {

// I034/100 (Generic Polar Window) stands in the UAP but has no row: it
// cannot be sized, so a record announcing it stops there.
//
// Rows: item, name, size rule, summary, detail view, encode_ex, decode_ex,
// field description.
// Items served by a common item take its summary and detail view; the
// message type keeps the common decoder but is summarised with the CAT034
// meanings of its values.
constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_034_010_encode_ex, ast_dataitem_034_010_decode_ex, &fields::kDataSourceIdentifier},
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_034_000_get_summary, kNoDetail,
     ast_dataitem_034_000_encode_ex, ast_dataitem_034_000_decode_ex, &fields::kMessageType},
    {30, "Time of Day", ast_dataitem_get_size_fixed_3_byte,
     ast_dataitem_time_of_day_get_summary, ast_dataitem_time_of_day_get_detail_html,
     ast_dataitem_034_030_encode_ex, ast_dataitem_034_030_decode_ex, &fields::kTimeOfDay},
    {20, "Sector Number", ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_sector_number_get_summary, ast_dataitem_sector_number_get_detail_html,
     ast_dataitem_034_020_encode_ex, ast_dataitem_034_020_decode_ex, &fields::kSectorNumber},
    {41, "Antenna Rotation Period", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_antenna_rotation_period_get_summary, ast_dataitem_antenna_rotation_period_get_detail_html,
     ast_dataitem_034_041_encode_ex, ast_dataitem_034_041_decode_ex, &fields::kAntennaRotationPeriod},
    {50, "Station Configuration & Status", ast_dataitem_034_050_get_size,
     kCompoundSummary, kCompoundDetail,
     nullptr, ast_dataitem_034_050_decode_ex, &fields::k034_050, &kCompound034_050},
    {60, "System Processing Mode", ast_dataitem_034_060_get_size,
     kCompoundSummary, kCompoundDetail,
     nullptr, ast_dataitem_034_060_decode_ex, &fields::k034_060, &kCompound034_060},
    {70, "Message Count Values", ast_dataitem_get_size_rep_2_byte,
     ast_dataitem_034_070_get_summary, ast_dataitem_034_070_get_detail_html,
     nullptr, ast_dataitem_034_070_decode_ex, &fields::k034_070},
    {110, "Data Filter", ast_dataitem_get_size_fixed_1_byte},
    // "Of" with a capital O is the name existing consumers display and match on.
    // No summary: the position is read from the detail view and the fields.
    {120, "3D-Position Of Data Source", ast_dataitem_get_size_fixed_8_byte,
     nullptr, ast_dataitem_034_120_get_detail_html,
     nullptr, ast_dataitem_034_120_decode_ex, &fields::k034_120},
    {90, "Collimation Error", ast_dataitem_get_size_fixed_2_byte},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail,
     nullptr, ast_dataitem_034_REF_decode_ex, &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail,
     nullptr, ast_dataitem_034_SPF_decode_ex, &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems034Table =
    make_category_items(34, ast_dataitem_034_get_name, "Unknown CAT034 Dataitem", kRows);
constinit const CategoryItems kItems034 = kItems034Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_034_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems034, id);
}
