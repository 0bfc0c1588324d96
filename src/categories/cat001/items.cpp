// CAT001 dispatch rows: size rule and name of every item of the track and
// plot UAPs, of the ASR-10SS and ASR-10SS Mk2 sensor layouts and of the
// MANAGAIR custom field, and the common items that serve some of them.
#include "categories/cat001/item_fields.h"
#include "kovrel/cat001.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

// Rows: item, name, size rule, summary, detail view, encode_ex, decode_ex,
// field description.
// Items served by a common item take its summary and detail view.
constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_001_010_encode_ex, ast_dataitem_001_010_decode_ex, &fields::kDataSourceIdentifier},
    {20, "Target Report Descriptor", ast_dataitem_get_size_var_2_byte,
     ast_dataitem_001_020_get_summary, ast_dataitem_001_020_get_detail_html,
     ast_dataitem_001_020_encode_ex, ast_dataitem_001_020_decode_ex, &fields::k001_020},
    // The library reads at most the first extension of I001/030: a longer
    // chain is logged and cut after two octets.
    {30, "Warning/Error Conditions", ast_dataitem_get_size_var_2_byte,
     ast_dataitem_001_030_get_summary, ast_dataitem_001_030_get_detail_html,
     ast_dataitem_001_030_encode_ex, ast_dataitem_001_030_decode_ex, &fields::k001_030},
    {40, "Measured Position in Polar Coordinates", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_001_040_get_summary, ast_dataitem_001_040_get_detail_html,
     ast_dataitem_001_040_encode_ex, ast_dataitem_001_040_decode_ex, &fields::k001_040},
    {42, "Calculated Position in Cartesian Coordinates", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_001_042_get_summary, ast_dataitem_001_042_get_detail_html,
     ast_dataitem_001_042_encode_ex, ast_dataitem_001_042_decode_ex, &fields::k001_042},
    // The Mode 2 items share the Mode 3/A layouts; the common functions tell
    // I001/050 apart by its identifier and print it as "MODE_2:...".
    {50, "Mode-2 Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_mode_3a_code_get_summary, ast_dataitem_mode_3a_code_get_detail_html,
     ast_dataitem_001_050_encode_ex, ast_dataitem_001_050_decode_ex, &fields::kMode2Code},
    {60, "Mode-2 Code Confidence Indicator", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_mode_3a_confidence_get_summary, ast_dataitem_mode_3a_confidence_get_detail_html,
     ast_dataitem_001_060_encode_ex, ast_dataitem_001_060_decode_ex, &fields::kMode3aConfidence},
    {70, "Mode-3/A Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_mode_3a_code_get_summary, ast_dataitem_mode_3a_code_get_detail_html,
     ast_dataitem_001_070_encode_ex, ast_dataitem_001_070_decode_ex, &fields::kMode3aCode},
    {80, "Mode-3/A Code Confidence Indicator", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_mode_3a_confidence_get_summary, ast_dataitem_mode_3a_confidence_get_detail_html,
     ast_dataitem_001_080_encode_ex, ast_dataitem_001_080_decode_ex, &fields::kMode3aConfidence},
    {90, "Mode-C Code in Binary Representation", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_mode_c_code_get_summary, ast_dataitem_mode_c_code_get_detail_html,
     ast_dataitem_001_090_encode_ex, ast_dataitem_001_090_decode_ex, &fields::kModeCCode},
    {100, "Mode-C Code and Code Confidence Indicator", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_mode_c_confidence_get_summary, ast_dataitem_mode_c_confidence_get_detail_html,
     nullptr, ast_dataitem_001_100_decode_ex, &fields::kModeCConfidence},
    {120, nullptr, ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_001_120_get_summary, ast_dataitem_001_120_get_detail_html,
     ast_dataitem_001_120_encode_ex, ast_dataitem_001_120_decode_ex, &fields::k001_120},
    // The plot characteristics are summarised as their bits; the detail view
    // lists the seven-bit value of each octet.
    {130, "Radar Plot Characteristics", ast_dataitem_get_size_var_6_byte,
     ast_dataitem_001_130_get_summary, ast_dataitem_001_130_get_detail_html,
     ast_dataitem_001_130_encode_ex, ast_dataitem_001_130_decode_ex, &fields::k001_130},
    {131, "Received Power", ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_001_131_get_summary, ast_dataitem_001_131_get_detail_html,
     ast_dataitem_001_131_encode_ex, ast_dataitem_001_131_decode_ex, &fields::k001_131},
    {141, "Truncated Time of Day", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_001_141_get_summary, ast_dataitem_001_141_get_detail_html,
     ast_dataitem_001_141_encode_ex, ast_dataitem_001_141_decode_ex, &fields::k001_141},
    {150, nullptr, ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_001_150_get_summary, ast_dataitem_001_150_get_detail_html,
     ast_dataitem_001_150_encode_ex, ast_dataitem_001_150_decode_ex, &fields::k001_150},
    // All 16 bits of I001/161 are the number (the common item knows it).
    {161, "Track Plot Number", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_track_number_get_summary, kNoDetail,
     ast_dataitem_001_161_encode_ex, ast_dataitem_001_161_decode_ex, &fields::kTrackNumber},
    {170, "Track Status", ast_dataitem_get_size_var_2_byte,
     ast_dataitem_001_170_get_summary, ast_dataitem_001_170_get_detail_html,
     ast_dataitem_001_170_encode_ex, ast_dataitem_001_170_decode_ex, &fields::k001_170},
    {200, "Calculated Track Velocity in Polar Coordinates", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_velocity_polar_get_summary, ast_dataitem_velocity_polar_get_detail_html,
     ast_dataitem_001_200_encode_ex, ast_dataitem_001_200_decode_ex, &fields::kVelocityPolar},
    {210, "Track Quality", ast_dataitem_get_size_var_12_byte,
     ast_dataitem_001_210_get_summary, ast_dataitem_001_210_get_detail_html,
     ast_dataitem_001_210_encode_ex, ast_dataitem_001_210_decode_ex, &fields::k001_210},

    // ASR-10SS and ASR-10SS Mk2 fill the places of I001/130 (FRN 10) and
    // I001/210 (FRN 14) with layouts of their own; the identifiers 1901 to
    // 1904 print as I001/130 and I001/210. Both stay FX-extended fields, so
    // they keep the length bound of the standard item whose place they take,
    // except the Mk2 track field, which never exceeds 11 octets.
    {901, "Radar Plot Characteristics", ast_dataitem_get_size_var_6_byte,
     ast_dataitem_001_901_get_summary, ast_dataitem_001_901_get_detail_html,
     nullptr, ast_dataitem_001_901_decode_ex, &fields::k001_901},
    {902, "Plot Amplitude", ast_dataitem_get_size_var_12_byte,
     ast_dataitem_001_902_get_summary, ast_dataitem_001_902_get_detail_html,
     nullptr, ast_dataitem_001_902_decode_ex, &fields::k001_902},
    {903, "Radar Plot Characteristics", ast_dataitem_get_size_var_6_byte,
     ast_dataitem_001_903_get_summary, ast_dataitem_001_903_get_detail_html,
     nullptr, ast_dataitem_001_903_decode_ex, &fields::k001_903},
    {904, "Track Quality and Plot Extent", ast_dataitem_get_size_var_11_byte,
     ast_dataitem_001_904_get_summary, ast_dataitem_001_904_get_detail_html,
     nullptr, ast_dataitem_001_904_decode_ex, &fields::k001_904},

    // MANAGAIR sends a two-octet field of its own at FRN 5 and FRN 23; it
    // is delimited and named, its content is not interpreted.
    {951, "Custom Field", ast_dataitem_get_size_fixed_2_byte},

    {997, "Random Field Sequencing", ast_dataitem_random_field_sequencing_get_size,
     ast_dataitem_random_field_sequencing_get_summary, kNoDetail,
     nullptr, ast_dataitem_001_RFS_decode_ex, &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail,
     nullptr, ast_dataitem_001_SPF_decode_ex, &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems001Table =
    make_category_items(1, ast_dataitem_001_get_name, "Unknown CAT001 Dataitem", kRows);
constinit const CategoryItems kItems001 = kItems001Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_001_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems001, id);
}
