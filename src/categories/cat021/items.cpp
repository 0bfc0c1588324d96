// CAT021 dispatch rows: size rule and name of every item of the editions
// 0.23, 0.26, 2.1 and 2.7, including the old-edition items 21902..21911 that
// stand in for items whose layout changed between the early editions and
// the later ones. Items laid out as a common item carry that item's views
// and the structured entry points of common_items.cpp.
#include "categories/cat021/subfields.h"
#include "categories/cat021/support.h"
#include "kovrel/cat021.h"
#include "kovrel/items.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

// Surface capabilities of editions 1.0 to 2.1: one octet, or two when the
// FX bit of the first is set. The second octet's own FX bit is not looked
// at, so a longer chain ends after two octets.
extern "C" KOVREL_API uint64_t ast_dataitem_021_A07_get_size(const uint8_t *octets, size_t available) {
    if (!octets || available == 0) return 0;
    if ((octets[0] & 0x01u) == 0) return 1;
    return available >= 2 ? 2 : 0;
}

namespace kovrel {
namespace {

using namespace views;

// Rows without a name (110, 148, 165, 220) are delimited but have no
// display name of their own: the name function answers "Unknown CAT021
// Dataitem" for them, which is what existing consumers show.
constexpr ItemRow kRows[] = {
    {8, "Aircraft Operational Status", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_008_get_summary, ast_dataitem_021_008_get_detail_html,
     ast_dataitem_021_008_encode_ex, ast_dataitem_021_008_decode_ex, &fields::k021_008},
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte, kSourceSummary, kSourceDetail,
     ast_dataitem_021_010_encode_ex, ast_dataitem_021_010_decode_ex, &fields::kDataSourceIdentifier},
    {15, "Service Identification", ast_dataitem_get_size_fixed_1_byte, kServiceSummary, kNoDetail,
     ast_dataitem_021_015_encode_ex, ast_dataitem_021_015_decode_ex, &fields::kServiceId},
    {16, "Service Management", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_016_get_summary, ast_dataitem_021_016_get_detail_html,
     ast_dataitem_021_016_encode_ex, ast_dataitem_021_016_decode_ex, &fields::k021_016},
    {20, "Emitter Category", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_020_get_summary, ast_dataitem_021_020_get_detail_html,
     ast_dataitem_021_020_encode_ex, ast_dataitem_021_020_decode_ex, &fields::k021_020},
    {30, "Time of Day", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_021_030_encode_ex, ast_dataitem_021_030_decode_ex, &fields::kTimeOfDay},
    {32, "Time of Day Accuracy", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_032_get_summary, ast_dataitem_021_032_get_detail_html,
     ast_dataitem_021_032_encode_ex, ast_dataitem_021_032_decode_ex, &fields::k021_032},
    // Up to three octets are decoded; later editions add extensions, which
    // the size rule walks over so the rest of the record stays readable.
    {40, "Target Report Descriptor", ast_dataitem_get_size_var_unlimited, ast_dataitem_021_040_get_summary, ast_dataitem_021_040_get_detail_html,
     ast_dataitem_021_040_encode_ex, ast_dataitem_021_040_decode_ex, &fields::k021_040},
    {70, "Mode-3/A Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte, kMode3aSummary, kMode3aDetail,
     ast_dataitem_021_070_encode_ex, ast_dataitem_021_070_decode_ex, &fields::kMode3aCode},
    {71, "Time of Applicability for Position", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_021_071_encode_ex, ast_dataitem_021_071_decode_ex, &fields::kTimeOfDay},
    {72, "Time of Applicability for Velocity", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_021_072_encode_ex, ast_dataitem_021_072_decode_ex, &fields::kTimeOfDay},
    {73, "Time of Message Reception for Position", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_021_073_encode_ex, ast_dataitem_021_073_decode_ex, &fields::kTimeOfDay},
    {74, "Time of Message Reception of Position - High Precision", ast_dataitem_get_size_fixed_4_byte,
     kTimeHighSummary, kTimeHighDetail, nullptr, ast_dataitem_021_074_decode_ex, &fields::kTimeOfDayHigh},
    {75, "Time of Message Reception for Velocity", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_021_075_encode_ex, ast_dataitem_021_075_decode_ex, &fields::kTimeOfDay},
    {76, "Time of Message Reception of Velocity - High Precision", ast_dataitem_get_size_fixed_4_byte,
     kTimeHighSummary, kTimeHighDetail, nullptr, ast_dataitem_021_076_decode_ex, &fields::kTimeOfDayHigh},
    {77, "Time of ASTERIX Report Transmission", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_021_077_encode_ex, ast_dataitem_021_077_decode_ex, &fields::kTimeOfDay},
    {80, "Target Address", ast_dataitem_get_size_fixed_3_byte, kAddressSummary, kAddressDetail,
     ast_dataitem_021_080_encode_ex, ast_dataitem_021_080_decode_ex, &fields::kTargetAddress},
    {90, "Quality Indicators", ast_dataitem_get_size_var_4_byte, ast_dataitem_021_090_get_summary, ast_dataitem_021_090_get_detail_html,
     ast_dataitem_021_090_encode_ex, ast_dataitem_021_090_decode_ex, &fields::k021_090},
    {95, "Velocity Accuracy", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_095_get_summary, ast_dataitem_021_095_get_detail_html,
     ast_dataitem_021_095_encode_ex, ast_dataitem_021_095_decode_ex, &fields::k021_095},
    {110, nullptr, ast_dataitem_021_110_get_size, kCompoundSummary, kCompoundDetail, ast_dataitem_021_110_encode_ex,
     ast_dataitem_021_110_decode_ex, &fields::k021_110, &kCompound021_110},
    {130, "Position in WGS84 Coordinates", ast_dataitem_get_size_fixed_6_byte, kWgs84LowSummary, kWgs84LowDetail,
     ast_dataitem_021_130_encode_ex, ast_dataitem_021_130_decode_ex, &fields::kPositionWgs84Low},
    // Decoded at 180/2^30 (the common decoder knows the item), written back
    // at 180/2^25 like every 8-octet position.
    {131, "High-Resolution Position in WGS-84 Coordinates", ast_dataitem_get_size_fixed_8_byte, kWgs84Summary,
     kWgs84Detail, ast_dataitem_021_131_encode_ex, ast_dataitem_021_131_decode_ex, &fields::kPositionWgs84},
    {132, "Message Amplitude", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_132_get_summary, ast_dataitem_021_132_get_detail_html,
     ast_dataitem_021_132_encode_ex, ast_dataitem_021_132_decode_ex, &fields::k021_132},
    {140, "Geometric Altitude", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_140_get_summary, ast_dataitem_021_140_get_detail_html,
     ast_dataitem_021_140_encode_ex, ast_dataitem_021_140_decode_ex, &fields::k021_140},
    {145, "Flight Level", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_145_get_summary, ast_dataitem_021_145_get_detail_html,
     ast_dataitem_021_145_encode_ex, ast_dataitem_021_145_decode_ex, &fields::k021_145},
    {146, "Selected Altitude", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_146_get_summary, ast_dataitem_021_146_get_detail_html,
     ast_dataitem_021_146_encode_ex, ast_dataitem_021_146_decode_ex, &fields::k021_146},
    {148, nullptr, ast_dataitem_get_size_fixed_2_byte},
    {150, "Air Speed", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_150_get_summary, ast_dataitem_021_150_get_detail_html,
     ast_dataitem_021_150_encode_ex, ast_dataitem_021_150_decode_ex, &fields::k021_150},
    {151, "True Air Speed", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_151_get_summary, ast_dataitem_021_151_get_detail_html,
     ast_dataitem_021_151_encode_ex, ast_dataitem_021_151_decode_ex, &fields::k021_151},
    {152, "Magnetic Heading", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_152_get_summary, ast_dataitem_021_152_get_detail_html,
     ast_dataitem_021_152_encode_ex, ast_dataitem_021_152_decode_ex, &fields::k021_152},
    {155, "Barometric Vertical Rate", ast_dataitem_get_size_fixed_2_byte, kRateSummary, kRateDetail,
     ast_dataitem_021_155_encode_ex, ast_dataitem_021_155_decode_ex, &fields::kVerticalRate},
    {157, "Geometric Vertical Rate", ast_dataitem_get_size_fixed_2_byte, kRateSummary, kRateDetail,
     ast_dataitem_021_157_encode_ex, ast_dataitem_021_157_decode_ex, &fields::kVerticalRate},
    {160, "Airborne Ground Vector", ast_dataitem_get_size_fixed_4_byte, ast_dataitem_021_160_get_summary, ast_dataitem_021_160_get_detail_html,
     ast_dataitem_021_160_encode_ex, ast_dataitem_021_160_decode_ex, &fields::k021_160},
    {161, "Track Number", ast_dataitem_get_size_fixed_2_byte, kTrackSummary, kNoDetail,
     ast_dataitem_021_161_encode_ex, ast_dataitem_021_161_decode_ex, &fields::kTrackNumber},
    // Sized as the two octets of editions 1.x and later; the FX-extended
    // rate of turn of editions 0.23/0.26 shares the number.
    {165, nullptr, ast_dataitem_get_size_fixed_2_byte},
    // Eight characters without a source indicator: the aircraft identification.
    {170, "Target Identification", ast_dataitem_get_size_fixed_6_byte, kIdentSummary, kIdentDetail,
     ast_dataitem_021_170_encode_ex, ast_dataitem_021_170_decode_ex, &fields::kAircraftId},
    {200, "Target Status", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_200_get_summary, ast_dataitem_021_200_get_detail_html,
     ast_dataitem_021_200_encode_ex, ast_dataitem_021_200_decode_ex, &fields::k021_200},
    {210, "MOPS Version", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_210_get_summary, ast_dataitem_021_210_get_detail_html,
     ast_dataitem_021_210_encode_ex, ast_dataitem_021_210_decode_ex, &fields::k021_210},
    {220, nullptr, ast_dataitem_021_220_get_size, kCompoundSummary, kCompoundDetail, ast_dataitem_021_220_encode_ex,
     ast_dataitem_021_220_decode_ex, &fields::k021_220, &kCompound021_220},
    {230, "Roll Angle", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_230_get_summary, ast_dataitem_021_230_get_detail_html,
     ast_dataitem_021_230_encode_ex, ast_dataitem_021_230_decode_ex, &fields::k021_230},
    {250, "Mode S MB Data", ast_dataitem_get_size_rep_8_byte, kModesMbSummary, kModesMbDetail, nullptr,
     ast_dataitem_021_250_decode_ex, &fields::kModesMb},
    {260, "ACAS Resolution Advisory Report", ast_dataitem_get_size_fixed_7_byte, ast_dataitem_021_260_get_summary, ast_dataitem_021_260_get_detail_html,
     ast_dataitem_021_260_encode_ex, ast_dataitem_021_260_decode_ex, &fields::k021_260},
    {271, "Surface Capabilities and Characteristics (Ver >= 2.2)", ast_dataitem_get_size_var_2_byte, ast_dataitem_021_271_get_summary, ast_dataitem_021_271_get_detail_html,
     ast_dataitem_021_271_encode_ex, ast_dataitem_021_271_decode_ex, &fields::k021_271},
    {295, "Data Ages", ast_dataitem_021_295_get_size, kCompoundSummary, kCompoundDetail, ast_dataitem_021_295_encode_ex,
     ast_dataitem_021_295_decode_ex, &fields::k021_295, &kCompound021_295},
    {400, "Receiver ID", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_400_get_summary, ast_dataitem_021_400_get_detail_html,
     ast_dataitem_021_400_encode_ex, ast_dataitem_021_400_decode_ex, &fields::k021_400},
    // Items of the editions 0.23 and 0.26 (and 1.0 to 2.1 for 907).
    {902, "Position in WGS84 Coordinates (0.23 < Ver <= 0.26)", ast_dataitem_get_size_fixed_8_byte, kWgs84Summary,
     kWgs84Detail, ast_dataitem_021_A02_encode_ex, ast_dataitem_021_A02_decode_ex, &fields::kPositionWgs84},
    {903, "Target Report Descriptor (Ver <= 0.26)", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_A03_get_summary, ast_dataitem_021_A03_get_detail_html,
     ast_dataitem_021_A03_encode_ex, ast_dataitem_021_A03_decode_ex, &fields::k021_A03},
    {904, "Signal Amplitude (Ver = 0.26)", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_A04_get_summary, ast_dataitem_021_A04_get_detail_html,
     ast_dataitem_021_A04_encode_ex, ast_dataitem_021_A04_decode_ex, &fields::k021_A04},
    {905, "Figure of Merit (Ver <= 0.26)", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_021_A05_get_summary, ast_dataitem_021_A05_get_detail_html,
     ast_dataitem_021_A05_encode_ex, ast_dataitem_021_A05_decode_ex, &fields::k021_A05},
    {906, "Link Technology Indicator (Ver <= 0.26)", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_A06_get_summary, ast_dataitem_021_A06_get_detail_html,
     ast_dataitem_021_A06_encode_ex, ast_dataitem_021_A06_decode_ex, &fields::k021_A06},
    {907, "Surface Capabilities and Characteristics (1.0 <= Ver < 2.2)", ast_dataitem_021_A07_get_size, ast_dataitem_021_A07_get_summary, ast_dataitem_021_A07_get_detail_html,
     ast_dataitem_021_A07_encode_ex, ast_dataitem_021_A07_decode_ex, &fields::k021_A07},
    {908, "Target Status (Ver <= 0.26)", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_021_A08_get_summary, ast_dataitem_021_A08_get_detail_html,
     ast_dataitem_021_A08_encode_ex, ast_dataitem_021_A08_decode_ex, &fields::k021_A08},
    {909, "Barometric Vertical Rate (Ver <= 0.26)", ast_dataitem_get_size_fixed_2_byte, kRateNoReSummary,
     kRateNoReDetail, ast_dataitem_021_A09_encode_ex, ast_dataitem_021_A09_decode_ex, &fields::kVerticalRateNoRe},
    {910, "Geometric Vertical Rate (Ver <= 0.26)", ast_dataitem_get_size_fixed_2_byte, kRateNoReSummary,
     kRateNoReDetail, ast_dataitem_021_A10_encode_ex, ast_dataitem_021_A10_decode_ex, &fields::kVerticalRateNoRe},
    {911, "Ground Vector (Ver <= 0.26)", ast_dataitem_get_size_fixed_4_byte, ast_dataitem_021_A11_get_summary, ast_dataitem_021_A11_get_detail_html,
     ast_dataitem_021_A11_encode_ex, ast_dataitem_021_A11_decode_ex, &fields::k021_A11},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail, nullptr, ast_dataitem_021_REF_decode_ex,
     &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail, nullptr, ast_dataitem_021_SPF_decode_ex,
     &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems021Table =
    make_category_items(21, ast_dataitem_021_get_name, "Unknown CAT021 Dataitem", kRows);
constinit const CategoryItems kItems021 = kItems021Table;

}  // namespace kovrel

// Only identifiers among the item numbers of the category (21008..21399)
// are reported when unknown; anything else is answered quietly.
extern "C" KOVREL_API const char *ast_dataitem_021_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems021, id, id >= 21008 && id <= 21399);
}
