// CAT010 dispatch rows (monosensor surface movement data, edition 1.1 of the
// category): size rule, name, views and structured entry points of every
// item of the standard UAP. The category has no compound items.
// Items laid out as a common item carry that item's views and the
// structured entry points of common_items.cpp; the others their own.
#include "kovrel/cat010.h"
#include "kovrel/items.h"
#include "items/common_views.h"
#include "categories/cat010/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte, kSourceSummary, kSourceDetail,
     ast_dataitem_010_010_encode_ex, ast_dataitem_010_010_decode_ex, &fields::kDataSourceIdentifier},
    // The message type has no text of its own.
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte, nullptr, kNoDetail,
     ast_dataitem_010_000_encode_ex, ast_dataitem_010_000_decode_ex, &fields::kMessageType},
    // TYP..CRT, SIM..TOT, SPI: three octets in edition 1.1.
    {20, "Target Report Descriptor", ast_dataitem_get_size_var_3_byte, ast_dataitem_010_020_get_summary,
     ast_dataitem_010_020_get_detail_html, ast_dataitem_010_020_encode_ex, ast_dataitem_010_020_decode_ex,
     &fields::k010_020},
    {140, "Time of Day", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_010_140_encode_ex, ast_dataitem_010_140_decode_ex, &fields::kTimeOfDay},
    // Read and written at 180/2^31 degrees (the common encoder writes 180/2^25).
    {41, "Position in WGS-84 Co-ordinates", ast_dataitem_get_size_fixed_8_byte, kWgs84Summary, kWgs84Detail,
     ast_dataitem_010_041_encode_ex, ast_dataitem_010_041_decode_ex, &fields::kPositionWgs84},
    {40, "Measured Position in Polar Co-ordinates", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_010_040_get_summary, ast_dataitem_010_040_get_detail_html, ast_dataitem_010_040_encode_ex,
     ast_dataitem_010_040_decode_ex, &fields::k010_040},
    // X and Y of 16 bits in metres, unlike the common Cartesian position.
    {42, "Position in Cartesian Co-ordinates", ast_dataitem_get_size_fixed_4_byte, ast_dataitem_010_042_get_summary,
     ast_dataitem_010_042_get_detail_html, ast_dataitem_010_042_encode_ex, ast_dataitem_010_042_decode_ex,
     &fields::k010_042},
    {200, "Calculated Track Velocity in Polar Co-ordinates", ast_dataitem_get_size_fixed_4_byte,
     kPolarSummary, kPolarDetail, ast_dataitem_010_200_encode_ex, ast_dataitem_010_200_decode_ex,
     &fields::kVelocityPolar},
    // VX and VY at 1/16 m/s, unlike the common Cartesian velocity (1/4 m/s).
    {202, "Calculated Track Velocity in Cartesian Co-ordinates", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_010_202_get_summary, ast_dataitem_010_202_get_detail_html, ast_dataitem_010_202_encode_ex,
     ast_dataitem_010_202_decode_ex, &fields::k010_202},
    {161, "Track Number", ast_dataitem_get_size_fixed_2_byte, kTrackSummary, kNoDetail,
     ast_dataitem_010_161_encode_ex, ast_dataitem_010_161_decode_ex, &fields::kTrackNumber},
    {170, "Track Status", ast_dataitem_get_size_var_3_byte, ast_dataitem_010_170_get_summary,
     ast_dataitem_010_170_get_detail_html, ast_dataitem_010_170_encode_ex, ast_dataitem_010_170_decode_ex,
     &fields::k010_170},
    {60, "Mode-3/A Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte, kMode3aSummary, kMode3aDetail,
     ast_dataitem_010_060_encode_ex, ast_dataitem_010_060_decode_ex, &fields::kMode3aCode},
    {220, "Target Address", ast_dataitem_get_size_fixed_3_byte, kAddressSummary, kAddressDetail,
     ast_dataitem_010_220_encode_ex, ast_dataitem_010_220_decode_ex, &fields::kTargetAddress},
    // Status octet and six octets of six-bit characters.
    {245, "Target Identification", ast_dataitem_get_size_fixed_7_byte, kTargetIdSummary, kTargetIdDetail,
     ast_dataitem_010_245_encode_ex, ast_dataitem_010_245_decode_ex, &fields::kTargetId},
    {250, "Mode S MB Data", ast_dataitem_get_size_rep_8_byte, kModesMbSummary, kModesMbDetail,
     nullptr, ast_dataitem_010_250_decode_ex, &fields::kModesMb},
    {300, "Vehicle Fleet Identification", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_010_300_get_summary,
     ast_dataitem_010_300_get_detail_html, ast_dataitem_010_300_encode_ex, ast_dataitem_010_300_decode_ex,
     &fields::k010_300},
    {90, "Flight Level in Binary Representation", ast_dataitem_get_size_fixed_2_byte, kModeCSummary, kModeCDetail,
     ast_dataitem_010_090_encode_ex, ast_dataitem_010_090_decode_ex, &fields::kModeCCode},
    {91, "Measured Height", ast_dataitem_get_size_fixed_2_byte, kHeightSummary, kHeightDetail,
     ast_dataitem_010_091_encode_ex, ast_dataitem_010_091_decode_ex, &fields::kHeight},
    // Length, orientation, width: one octet each.
    {270, "Target Size and Orientation", ast_dataitem_get_size_var_3_byte, ast_dataitem_010_270_get_summary,
     ast_dataitem_010_270_get_detail_html, ast_dataitem_010_270_encode_ex, ast_dataitem_010_270_decode_ex,
     &fields::k010_270},
    {550, "System Status", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_010_550_get_summary,
     ast_dataitem_010_550_get_detail_html, ast_dataitem_010_550_encode_ex, ast_dataitem_010_550_decode_ex,
     &fields::k010_550},
    {310, "Pre-programmed Message", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_010_310_get_summary,
     ast_dataitem_010_310_get_detail_html, ast_dataitem_010_310_encode_ex, ast_dataitem_010_310_decode_ex,
     &fields::k010_310},
    {500, "Standard Deviation of Position", ast_dataitem_get_size_fixed_4_byte, ast_dataitem_010_500_get_summary,
     ast_dataitem_010_500_get_detail_html, ast_dataitem_010_500_encode_ex, ast_dataitem_010_500_decode_ex,
     &fields::k010_500},
    // Each presence is a range and an azimuth difference, one octet each.
    {280, "Presence", ast_dataitem_get_size_rep_2_byte, ast_dataitem_010_280_get_summary,
     ast_dataitem_010_280_get_detail_html, ast_dataitem_010_280_encode_ex, ast_dataitem_010_280_decode_ex,
     &fields::k010_280},
    {131, "Amplitude of Primary Plot", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_010_131_get_summary,
     ast_dataitem_010_131_get_detail_html, ast_dataitem_010_131_encode_ex, ast_dataitem_010_131_decode_ex,
     &fields::k010_131},
    {210, "Calculated Acceleration", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_010_210_get_summary,
     ast_dataitem_010_210_get_detail_html, ast_dataitem_010_210_encode_ex, ast_dataitem_010_210_decode_ex,
     &fields::k010_210},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size, kSpfSummary, kNoDetail,
     nullptr, ast_dataitem_010_SPF_decode_ex, &fields::kExplicitField},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size, kRefSummary, kNoDetail,
     nullptr, ast_dataitem_010_REF_decode_ex, &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems010Table =
    make_category_items(10, ast_dataitem_010_get_name, "Unknown CAT010 Dataitem", kRows);
constinit const CategoryItems kItems010 = kItems010Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_010_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems010, id);
}
