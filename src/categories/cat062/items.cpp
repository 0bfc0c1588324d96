// CAT062 dispatch rows: size rule and name of every item of the system track
// UAP, the common items that serve some of them, and the size rule of
// I062/510 Composed Track Number.
#include "categories/cat062/item_fields.h"
#include "categories/cat062/subfields.h"
#include "kovrel/cat062.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"
#include "kovrel/items_motion.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

// I062/510 is a chain of 3-octet groups (system unit identification and
// track number), the last octet of each group ending in an FX bit. The
// answer is never 0: a chain cut short ends at its last whole group, and
// fewer than 3 octets still answer 3 (the scan then refuses the item, as it
// does not fit). Only octets inside `available` are read.
extern "C" KOVREL_API uint64_t ast_dataitem_062_510_get_size(const uint8_t *octets, size_t available) {
    uint64_t length = 3;
    if (!octets) return length;
    while (length <= available && (octets[length - 1] & 0x01u) != 0 && length + 3 <= available) length += 3;
    return length;
}

namespace kovrel {
namespace {

using namespace views;

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_062_010_encode_ex, ast_dataitem_062_010_decode_ex, &fields::kDataSourceIdentifier},
    {15, "Service Identification", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_service_id_get_summary,
     kNoDetail, ast_dataitem_062_015_encode_ex, ast_dataitem_062_015_decode_ex, &fields::kServiceId},
    {70, "Time of Track Information", ast_dataitem_get_size_fixed_3_byte, ast_dataitem_time_of_day_get_summary,
     ast_dataitem_time_of_day_get_detail_html, ast_dataitem_062_070_encode_ex, ast_dataitem_062_070_decode_ex,
     &fields::kTimeOfDay},
    {105, "Calculated Position in WGS84 Coordinates", ast_dataitem_get_size_fixed_8_byte,
     ast_dataitem_position_wgs84_get_summary, ast_dataitem_position_wgs84_get_detail_html, nullptr,
     ast_dataitem_062_105_decode_ex, &fields::kPositionWgs84},
    {100, "Calculated Track Position (Cartesian)", ast_dataitem_get_size_fixed_6_byte,
     ast_dataitem_position_cartesian_get_summary, kNoDetail, nullptr, ast_dataitem_062_100_decode_ex,
     &fields::kPositionCartesian},
    {185, "Calculated Track Velocity (Cartesian)", ast_dataitem_get_size_fixed_4_byte,
     ast_dataitem_velocity_cartesian_get_summary, kNoDetail, nullptr, ast_dataitem_062_185_decode_ex,
     &fields::kVelocityCartesian},
    {210, "Calculated Acceleration (Cartesian)", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_062_210_get_summary, ast_dataitem_062_210_get_detail_html, nullptr,
     ast_dataitem_062_210_decode_ex, &fields::k062_210},
    {60, "Track Mode 3/A Code", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_mode_3a_code_get_summary,
     ast_dataitem_mode_3a_code_get_detail_html, ast_dataitem_062_060_encode_ex, ast_dataitem_062_060_decode_ex,
     &fields::kMode3aCodeChanged},
    {245, "Target Identification", ast_dataitem_get_size_fixed_7_byte, ast_dataitem_target_id_get_summary,
     ast_dataitem_target_id_get_detail_html, nullptr, ast_dataitem_062_245_decode_ex, &fields::kTargetId},
    {380, "Aircraft Derived Data", ast_dataitem_062_380_get_size, kCompoundSummary, kCompoundDetail, nullptr,
     ast_dataitem_062_380_decode_ex, &fields::k062_380, &kCompound062_380},
    {40, "Track Number", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_track_number_get_summary, kNoDetail,
     ast_dataitem_062_040_encode_ex, ast_dataitem_062_040_decode_ex, &fields::kTrackNumber},
    {80, "Track Status", ast_dataitem_get_size_var_6_byte,
     ast_dataitem_062_080_get_summary, ast_dataitem_062_080_get_detail_html, nullptr,
     ast_dataitem_062_080_decode_ex, &fields::k062_080},
    {290, "System Track Update Ages", ast_dataitem_062_290_get_size, kCompoundSummary, kCompoundDetail, nullptr,
     ast_dataitem_062_290_decode_ex, &fields::k062_290, &kCompound062_290},
    {200, "Mode of Movement", ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_062_200_get_summary, ast_dataitem_062_200_get_detail_html, nullptr,
     ast_dataitem_062_200_decode_ex, &fields::k062_200},
    {295, "Track Data Age", ast_dataitem_062_295_get_size, kCompoundSummary, kCompoundDetail, nullptr,
     ast_dataitem_062_295_decode_ex, &fields::k062_295, &kCompound062_295},
    {136, "Measured Flight Level", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_062_136_get_summary, ast_dataitem_062_136_get_detail_html, nullptr,
     ast_dataitem_062_136_decode_ex, &fields::k062_136},
    {130, "Calculated Track Geometric Altitude", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_062_130_get_summary, ast_dataitem_062_130_get_detail_html, nullptr,
     ast_dataitem_062_130_decode_ex, &fields::k062_130},
    {135, "Calculated Track Barometric Altitude", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_062_135_get_summary, ast_dataitem_062_135_get_detail_html, nullptr,
     ast_dataitem_062_135_decode_ex, &fields::k062_135},
    {220, "Calculated Rate of Climb/Descent", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_062_220_get_summary, ast_dataitem_062_220_get_detail_html, nullptr,
     ast_dataitem_062_220_decode_ex, &fields::k062_220},
    {390, "Flight Plan Related Data", ast_dataitem_062_390_get_size, kCompoundSummary, kCompoundDetail, nullptr,
     ast_dataitem_062_390_decode_ex, &fields::k062_390, &kCompound062_390},
    {270, "Target Size & Orientation", ast_dataitem_get_size_var_3_byte,
     ast_dataitem_062_270_get_summary, ast_dataitem_062_270_get_detail_html, nullptr,
     ast_dataitem_062_270_decode_ex, &fields::k062_270},
    {300, "Vehicle Fleet Identification", ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_062_300_get_summary, ast_dataitem_062_300_get_detail_html, nullptr,
     ast_dataitem_062_300_decode_ex, &fields::k062_300},
    {110, "Mode 5 Data reports & Extended Mode 1 Code", ast_dataitem_062_110_get_size, kCompoundSummary,
     kCompoundDetail, nullptr, ast_dataitem_062_110_decode_ex, &fields::k062_110, &kCompound062_110},
    // The Mode 2 code shares the Mode 3/A functions, which print it as
    // "MODE_2:" without flags for this item.
    {120, "Track Mode 2 Code", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_mode_3a_code_get_summary,
     ast_dataitem_mode_3a_code_get_detail_html, ast_dataitem_062_120_encode_ex, ast_dataitem_062_120_decode_ex,
     &fields::kMode2Code},
    {510, "Composed Track Number", ast_dataitem_062_510_get_size,
     ast_dataitem_062_510_get_summary, ast_dataitem_062_510_get_detail_html, nullptr,
     ast_dataitem_062_510_decode_ex, &fields::k062_510},
    {500, "Estimated Accuracies", ast_dataitem_062_500_get_size, kCompoundSummary, kCompoundDetail, nullptr,
     ast_dataitem_062_500_decode_ex, &fields::k062_500, &kCompound062_500},
    {340, "Measured Information", ast_dataitem_062_340_get_size, kCompoundSummary, kCompoundDetail, nullptr,
     ast_dataitem_062_340_decode_ex, &fields::k062_340, &kCompound062_340},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail, nullptr, ast_dataitem_062_REF_decode_ex,
     &fields::kExplicitField},
    // CAT062 titles its special purpose field differently from the other
    // categories; consumers display and match on this text.
    {999, "Reserved For Special Purpose Indicator", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail, nullptr, ast_dataitem_062_SPF_decode_ex,
     &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems062Table =
    make_category_items(62, ast_dataitem_062_get_name, "Unknown CAT062 Dataitem", kRows);
constinit const CategoryItems kItems062 = kItems062Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_062_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems062, id);
}
