// CAT048 dispatch rows: size rule, name and field description of every
// item, the common items that serve some of them, and the subfields of the
// compound items I048/120 and I048/130.
#include "categories/cat048/item_fields.h"
#include "categories/cat048/plot_characteristics.h"
#include "kovrel/cat048.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

constexpr SubfieldRow k120Subfields[] = {
    {"CAL", "Calculated Doppler Speed", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    // RDS is taken as one 7-octet block: its repetition factor is not read.
    {"RDS", "Raw Doppler Speed", SubfieldRule::Fixed, 7, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k130Subfields[] = {
    {"SRL", "SSR Plot Runlength", SubfieldRule::Fixed, 1, nullptr, cat048::srl_summary, nullptr},
    {"SRR", "Number of Received Replies for (M)SSR", SubfieldRule::Fixed, 1, nullptr, cat048::srr_summary, nullptr},
    {"SAM", "Amplitude of (M)SSR Reply", SubfieldRule::Fixed, 1, nullptr, cat048::sam_summary, nullptr},
    // The primary plot subfields are not decoded: their summary is "NOT_IMPLEMENTED".
    {"PRL", "Primary Plot Runlength", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    // The trailing blank is part of the name that consumers match on.
    {"PAM", "Amplitude of Primary Plot ", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"RPD", "Difference in Range between PSR and SSR plot", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
    {"APD", "Difference in Azimuth between PSR and SSR plot", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
};

}  // namespace

extern const CompoundItem kCompound048_120;
extern const CompoundItem kCompound048_130;

}  // namespace kovrel

KOVREL_COMPOUND_ITEM(048_120, 48120, ::kovrel::kCompound048_120)
KOVREL_COMPOUND_ITEM(048_130, 48130, ::kovrel::kCompound048_130)

namespace kovrel {

constinit const CompoundItem kCompound048_120 = make_compound(2, k120Subfields, KOVREL_SUBFIELD_FUNCS(048_120));
constinit const CompoundItem kCompound048_130 = make_compound(7, k130Subfields, KOVREL_SUBFIELD_FUNCS(048_130));

namespace {

// I048/055, 060 and 065 stand in the UAP but have no row: they cannot be
// sized, so a record announcing them stops there.
//
// Rows: item, name, size rule, summary, detail view, encode_ex, decode_ex,
// field description (and the subfields of a compound item). Items served by
// a common item take its summary, detail view and field description.
constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_048_010_encode_ex, ast_dataitem_048_010_decode_ex, &fields::kDataSourceIdentifier},
    {140, "Time of Day", ast_dataitem_get_size_fixed_3_byte,
     ast_dataitem_time_of_day_get_summary, ast_dataitem_time_of_day_get_detail_html,
     ast_dataitem_048_140_encode_ex, ast_dataitem_048_140_decode_ex, &fields::kTimeOfDay},
    {20, "Target Report Descriptor", ast_dataitem_get_size_var_2_byte,
     ast_dataitem_048_020_get_summary, ast_dataitem_048_020_get_detail_html,
     ast_dataitem_048_020_encode_ex, ast_dataitem_048_020_decode_ex, &fields::k048_020},
    {40, "Measured Position in Polar Co-ordinates", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_048_040_get_summary, ast_dataitem_048_040_get_detail_html,
     ast_dataitem_048_040_encode_ex, ast_dataitem_048_040_decode_ex, &fields::k048_040},
    {70, "Mode-3/A Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_mode_3a_code_get_summary, ast_dataitem_mode_3a_code_get_detail_html,
     ast_dataitem_048_070_encode_ex, ast_dataitem_048_070_decode_ex, &fields::kMode3aCode},
    {90, "Flight Level in Binary Representation", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_mode_c_code_get_summary, ast_dataitem_mode_c_code_get_detail_html,
     ast_dataitem_048_090_encode_ex, ast_dataitem_048_090_decode_ex, &fields::kModeCCode},
    {130, "Radar Plot Characteristics", ast_dataitem_048_130_get_size,
     kCompoundSummary, kCompoundDetail,
     nullptr, ast_dataitem_048_130_decode_ex, &fields::k048_130, &kCompound048_130},
    {220, "Aircraft Address", ast_dataitem_get_size_fixed_3_byte,
     ast_dataitem_target_address_get_summary, ast_dataitem_target_address_get_detail_html,
     ast_dataitem_048_220_encode_ex, ast_dataitem_048_220_decode_ex, &fields::kTargetAddress},
    {240, "Aircraft Identification", ast_dataitem_get_size_fixed_6_byte,
     ast_dataitem_aircraft_id_get_summary, ast_dataitem_aircraft_id_get_detail_html,
     ast_dataitem_048_240_encode_ex, ast_dataitem_048_240_decode_ex, &fields::kAircraftId},
    {250, "Mode S MB Data", ast_dataitem_get_size_rep_8_byte,
     ast_dataitem_modes_mb_get_summary, ast_dataitem_modes_mb_get_detail_html,
     nullptr, ast_dataitem_048_250_decode_ex, &fields::kModesMb},
    {161, "Track Number", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_track_number_get_summary, kNoDetail,
     ast_dataitem_048_161_encode_ex, ast_dataitem_048_161_decode_ex, &fields::kTrackNumber},
    {42, "Calculated Position in Cartesian Co-ordinates", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_048_042_get_summary, ast_dataitem_048_042_get_detail_html,
     ast_dataitem_048_042_encode_ex, ast_dataitem_048_042_decode_ex, &fields::k048_042},
    // "Ploar" is the name existing consumers display and match on.
    {200, "Calculated Track Velocity in Ploar Co-ordinates", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_velocity_polar_get_summary, ast_dataitem_velocity_polar_get_detail_html,
     ast_dataitem_048_200_encode_ex, ast_dataitem_048_200_decode_ex, &fields::kVelocityPolar},
    {170, "Track Status", ast_dataitem_get_size_var_2_byte,
     ast_dataitem_048_170_get_summary, ast_dataitem_048_170_get_detail_html,
     nullptr, ast_dataitem_048_170_decode_ex, &fields::k048_170},
    {210, "Track Quality", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_048_210_get_summary, ast_dataitem_048_210_get_detail_html,
     nullptr, ast_dataitem_048_210_decode_ex, &fields::k048_210},
    {30, "Warning/Error Conditions", ast_dataitem_get_size_var_23_byte,
     ast_dataitem_048_030_get_summary, ast_dataitem_048_030_get_detail_html,
     nullptr, ast_dataitem_048_030_decode_ex, &fields::k048_030},
    {80, "Mode-3/A Code Confidence Indicator", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_mode_3a_confidence_get_summary, ast_dataitem_mode_3a_confidence_get_detail_html,
     nullptr, ast_dataitem_048_080_decode_ex, &fields::kMode3aConfidence},
    {100, "Mode-C Code and Code Confidence Indicator", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_mode_c_confidence_get_summary, ast_dataitem_mode_c_confidence_get_detail_html,
     nullptr, ast_dataitem_048_100_decode_ex, &fields::kModeCConfidence},
    {110, "Height Measured by a 3D Radar", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_048_110_get_summary, ast_dataitem_048_110_get_detail_html,
     nullptr, ast_dataitem_048_110_decode_ex, &fields::k048_110},
    {120, "Radial Doppler Speed", ast_dataitem_048_120_get_size,
     kCompoundSummary, kCompoundDetail,
     nullptr, ast_dataitem_048_120_decode_ex, &fields::k048_120, &kCompound048_120},
    {230, "Communications / ACAS Capability and Flight Status", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_048_230_get_summary, ast_dataitem_048_230_get_detail_html,
     nullptr, ast_dataitem_048_230_decode_ex, &fields::k048_230},
    {260, "ACAS Resolution Advisory Report", ast_dataitem_get_size_fixed_7_byte,
     ast_dataitem_048_260_get_summary, ast_dataitem_048_260_get_detail_html,
     nullptr, ast_dataitem_048_260_decode_ex, &fields::k048_260},
    {50, "Mode-2 Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_048_050_get_summary, ast_dataitem_048_050_get_detail_html,
     ast_dataitem_048_050_encode_ex, ast_dataitem_048_050_decode_ex, &fields::k048_050},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail,
     nullptr, ast_dataitem_048_SPF_decode_ex, &fields::kExplicitField},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail,
     nullptr, ast_dataitem_048_REF_decode_ex, &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems048Table =
    make_category_items(48, ast_dataitem_048_get_name, "Unknown CAT048 Dataitem", kRows);
constinit const CategoryItems kItems048 = kItems048Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_048_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems048, id);
}
