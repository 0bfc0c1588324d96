// CAT020 dispatch rows (multilateration target reports, edition 1.11 of the
// category): size rule, name, views and structured entry points of every
// item of the standard UAP, and the subfields of the compound item I020/500.
// Items laid out as a common item carry that item's views and the
// structured entry points of common_items.cpp; the others their own.
#include "kovrel/cat020.h"
#include "kovrel/items.h"
#include "items/common_views.h"
#include "categories/cat020/accuracy.h"
#include "categories/cat020/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

constexpr SubfieldRow k500Subfields[] = {
    // DOP of x, y and their correlation: two octets each.
    {"DOP", "DOP of Position", SubfieldRule::Fixed, 6, nullptr, cat020::dop_summary, cat020::dop_detail},
    // Sigma x, sigma y and their correlation: two octets each.
    {"SDP", "Standard Deviation of Position", SubfieldRule::Fixed, 6, nullptr, cat020::sdp_summary,
     cat020::sdp_detail},
    {"SDH", "Standard Deviation of Geometric Height (WGS 84)", SubfieldRule::Fixed, 2, nullptr, cat020::sdh_summary,
     cat020::sdh_detail},
};

}  // namespace

extern const CompoundItem kCompound020_500;

}  // namespace kovrel

KOVREL_COMPOUND_ITEM(020_500, 20500, ::kovrel::kCompound020_500)

namespace kovrel {

constinit const CompoundItem kCompound020_500 = make_compound(3, k500Subfields, KOVREL_SUBFIELD_FUNCS(020_500));

namespace {

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte, kSourceSummary, kSourceDetail,
     ast_dataitem_020_010_encode_ex, ast_dataitem_020_010_decode_ex, &fields::kDataSourceIdentifier},
    // Three octets since edition 1.10 added the CF octet; edition 1.9 data,
    // which stops after two, is read the same.
    {20, "Target Report Descriptor", ast_dataitem_get_size_var_3_byte, ast_dataitem_020_020_get_summary,
     ast_dataitem_020_020_get_detail_html, ast_dataitem_020_020_encode_ex, ast_dataitem_020_020_decode_ex,
     &fields::k020_020},
    {140, "Time of Day", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_020_140_encode_ex, ast_dataitem_020_140_decode_ex, &fields::kTimeOfDay},
    // The capital "In" is the edition's own spelling.
    {41, "Position In WGS-84 Coordinates", ast_dataitem_get_size_fixed_8_byte, kWgs84Summary, kWgs84Detail,
     ast_dataitem_020_041_encode_ex, ast_dataitem_020_041_decode_ex, &fields::kPositionWgs84},
    // x and y: three octets each.
    {42, "Position in Cartesian Coordinates", ast_dataitem_get_size_fixed_6_byte, kCartesianSummary, kNoDetail,
     ast_dataitem_020_042_encode_ex, ast_dataitem_020_042_decode_ex, &fields::kPositionCartesian},
    {161, "Track Number", ast_dataitem_get_size_fixed_2_byte, kTrackSummary, kNoDetail,
     ast_dataitem_020_161_encode_ex, ast_dataitem_020_161_decode_ex, &fields::kTrackNumber},
    {170, "Track Status", ast_dataitem_get_size_var_2_byte, ast_dataitem_020_170_get_summary,
     ast_dataitem_020_170_get_detail_html, ast_dataitem_020_170_encode_ex, ast_dataitem_020_170_decode_ex,
     &fields::k020_170},
    {70, "Mode-3/A Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte, kMode3aSummary, kMode3aDetail,
     ast_dataitem_020_070_encode_ex, ast_dataitem_020_070_decode_ex, &fields::kMode3aCode},
    {202, "Calculated Track Velocity in Cartesian Coordinates", ast_dataitem_get_size_fixed_4_byte,
     kVelocitySummary, kNoDetail, ast_dataitem_020_202_encode_ex, ast_dataitem_020_202_decode_ex,
     &fields::kVelocityCartesian},
    {90, "Flight Level in Binary Representation", ast_dataitem_get_size_fixed_2_byte, kModeCSummary, kModeCDetail,
     ast_dataitem_020_090_encode_ex, ast_dataitem_020_090_decode_ex, &fields::kModeCCode},
    // Validity bits and the Gray-coded Mode C reply, then its quality-pulse
    // bits: two octets each.
    {100, "Mode C Code", ast_dataitem_get_size_fixed_4_byte, kModeCQualitySummary, kModeCQualityDetail,
     ast_dataitem_020_100_encode_ex, ast_dataitem_020_100_decode_ex, &fields::kModeCConfidence},
    {220, "Target Address", ast_dataitem_get_size_fixed_3_byte, kAddressSummary, kAddressDetail,
     ast_dataitem_020_220_encode_ex, ast_dataitem_020_220_decode_ex, &fields::kTargetAddress},
    // Status octet and six octets of six-bit characters.
    {245, "Target Identification", ast_dataitem_get_size_fixed_7_byte, kTargetIdSummary, kTargetIdDetail,
     ast_dataitem_020_245_encode_ex, ast_dataitem_020_245_decode_ex, &fields::kTargetId},
    {110, "Measured Height (Local Cartesian Coordinates)", ast_dataitem_get_size_fixed_2_byte,
     kHeightSummary, kHeightDetail, ast_dataitem_020_110_encode_ex, ast_dataitem_020_110_decode_ex,
     &fields::kHeight},
    {105, "Geometric Height (WGS-84)", ast_dataitem_get_size_fixed_2_byte, kHeightSummary, kHeightDetail,
     ast_dataitem_020_105_encode_ex, ast_dataitem_020_105_decode_ex, &fields::kHeight},
    {210, "Calculated Acceleration", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_020_210_get_summary,
     ast_dataitem_020_210_get_detail_html, ast_dataitem_020_210_encode_ex, ast_dataitem_020_210_decode_ex,
     &fields::k020_210},
    {300, "Vehicle Fleet Identification", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_020_300_get_summary,
     ast_dataitem_020_300_get_detail_html, ast_dataitem_020_300_encode_ex, ast_dataitem_020_300_decode_ex,
     &fields::k020_300},
    {310, "Pre-programmed Message", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_020_310_get_summary,
     ast_dataitem_020_310_get_detail_html, ast_dataitem_020_310_encode_ex, ast_dataitem_020_310_decode_ex,
     &fields::k020_310},
    {500, "Position Accuracy", ast_dataitem_020_500_get_size, ast_dataitem_subfields_get_summary,
     ast_dataitem_subfields_get_detail_html, ast_dataitem_020_500_encode_ex, ast_dataitem_020_500_decode_ex,
     &fields::k020_500, &kCompound020_500},
    // One octet of eight contribution bits per repetition.
    {400, "Contributing Devices", ast_dataitem_get_size_rep_1_byte, ast_dataitem_020_400_get_summary,
     ast_dataitem_020_400_get_detail_html, ast_dataitem_020_400_encode_ex, ast_dataitem_020_400_decode_ex,
     &fields::k020_400},
    // Seven octets of register data and the register address octet.
    {250, "BDS Register Data", ast_dataitem_get_size_rep_8_byte, kModesMbSummary, kModesMbDetail,
     nullptr, ast_dataitem_020_250_decode_ex, &fields::kModesMb},
    {230, "Communications/ACAS Capability and Flight Status", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_020_230_get_summary, ast_dataitem_020_230_get_detail_html, ast_dataitem_020_230_encode_ex,
     ast_dataitem_020_230_decode_ex, &fields::k020_230},
    {260, "ACAS Resolution Advisory Report", ast_dataitem_get_size_fixed_7_byte, ast_dataitem_020_260_get_summary,
     ast_dataitem_020_260_get_detail_html, ast_dataitem_020_260_encode_ex, ast_dataitem_020_260_decode_ex,
     &fields::k020_260},
    // Seven-bit warning/error values, each octet extended by its FX bit,
    // with no upper bound in the category.
    {30, "Warning/Error Conditions", ast_dataitem_get_size_var_unlimited, ast_dataitem_020_030_get_summary,
     ast_dataitem_020_030_get_detail_html, ast_dataitem_020_030_encode_ex, ast_dataitem_020_030_decode_ex,
     &fields::k020_030},
    {55, "Mode-1 Code in Octal Representation", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_020_055_get_summary,
     ast_dataitem_020_055_get_detail_html, ast_dataitem_020_055_encode_ex, ast_dataitem_020_055_decode_ex,
     &fields::k020_055},
    // Laid out as a Mode 3/A code, with a summary of its own (the common one
    // would call the code "MODE_3/A"); the common detail view shows the L
    // bit as SMOOTHED, which is what the bit means here.
    {50, "Mode-2 Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_020_050_get_summary,
     kMode3aDetail,
     ast_dataitem_020_050_encode_ex, ast_dataitem_020_050_decode_ex, &fields::kMode2Code},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size, kRefSummary, kNoDetail,
     nullptr, ast_dataitem_020_REF_decode_ex, &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size, kSpfSummary, kNoDetail,
     nullptr, ast_dataitem_020_SPF_decode_ex, &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems020Table =
    make_category_items(20, ast_dataitem_020_get_name, "Unknown CAT020 Dataitem", kRows);
constinit const CategoryItems kItems020 = kItems020Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_020_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems020, id);
}
