// CAT004 dispatch rows: size rule and name of every item, the common items
// that serve some of them, and the subfields of the compound items I004/100,
// I004/120, I004/170 and I004/171.
#include "categories/cat004/item_fields.h"
#include "kovrel/cat004.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

constexpr SubfieldRow k100Subfields[] = {
    // Eight characters of the 6-bit ICAO alphabet.
    {"AN", "Area Name", SubfieldRule::Fixed, 6, nullptr, cat004::an_summary, nullptr},
    // Seven ASCII characters each; decoded, but summarised as raw.
    {"CAN", "Crossing Area Name", SubfieldRule::Fixed, 7, nullptr, cat004::raw_summary, nullptr},
    {"RT1", "Runway/Taxiway Designator 1", SubfieldRule::Fixed, 7, nullptr, cat004::raw_summary, nullptr},
    {"RT2", "Runway/Taxiway Designator 2", SubfieldRule::Fixed, 7, nullptr, cat004::raw_summary, nullptr},
    {"SB", "Stop Bar Designator", SubfieldRule::Fixed, 7, nullptr, cat004::raw_summary, nullptr},
    {"G", "Gate Designator", SubfieldRule::Fixed, 7, nullptr, cat004::raw_summary, nullptr},
};

// I004/070 Conflict Timing and Separation (edition 1.13 layout).
constexpr SubfieldRow k070Subfields[] = {
    {"TC", "Time to Conflict", SubfieldRule::Fixed, 3, nullptr, nullptr, nullptr},
    {"TCA", "Time to Closest Approach", SubfieldRule::Fixed, 3, nullptr, nullptr, nullptr},
    {"CHS", "Current Horizontal Separation", SubfieldRule::Fixed, 3, nullptr, nullptr, nullptr},
    {"MHS", "Estimated Minimum Horizontal Separation", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"CVS", "Current Vertical Separation", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"MVS", "Estimated Minimum Vertical Separation", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k120Subfields[] = {
    // The conflict nature flags extend by FX; three octets is the longest chain read.
    {"CN", "Conflict Nature", SubfieldRule::Variable, 3, nullptr, cat004::raw_summary, nullptr},
    {"CC", "Conflict Classification", SubfieldRule::Fixed, 1, nullptr, cat004::cc_summary, nullptr},
    {"CP", "Conflict Probability", SubfieldRule::Fixed, 1, nullptr, cat004::raw_summary, nullptr},
    {"CD", "Conflict Duration", SubfieldRule::Fixed, 3, nullptr, cat004::raw_summary, nullptr},
};

// I004/170 and I004/171 describe the two aircraft of a conflict alike; only
// the digit at the end of the ids and names differs.
// I004/170: the first aircraft of a conflict. Only the Mode 3/A code is
// summarised; the other subfields are decoded but read "NOT_IMPLEMENTED".
constexpr SubfieldRow k170Subfields[] = {
    {"AI1", "Aircraft Identifier 1", SubfieldRule::Fixed, 7, nullptr, cat004::raw_summary, nullptr},
    {"M31", "Mode 3/A Code Aircraft 1", SubfieldRule::Fixed, 2, nullptr, cat004::m3_summary, nullptr},
    {"CPW1", "Predicted Conflict Position 1 (WGS84)", SubfieldRule::Fixed, 10, nullptr, cat004::raw_summary, nullptr},
    {"CPC1", "Predicted Conflict Position 1 (Cartesian Coordinates)", SubfieldRule::Fixed, 8, nullptr, cat004::raw_summary,
     nullptr},
    {"TT1", "Time to Threshold Aircraft 1", SubfieldRule::Fixed, 3, nullptr, cat004::raw_summary, nullptr},
    {"DT1", "Distance to Threshold Aircraft 1", SubfieldRule::Fixed, 2, nullptr, cat004::raw_summary, nullptr},
    {"AC1", "Aircraft Characteristics Aircraft 1", SubfieldRule::Variable, 2, nullptr, cat004::raw_summary, nullptr},
    {"MS1", "Mode S Identifier Aircraft 1", SubfieldRule::Fixed, 6, nullptr, cat004::raw_summary, nullptr},
    {"FP1", "Flight Plan Number Aircraft 1", SubfieldRule::Fixed, 4, nullptr, cat004::raw_summary, nullptr},
    {"CF1", "Cleared Flight Level Aircraft 1", SubfieldRule::Fixed, 2, nullptr, cat004::raw_summary, nullptr},
};

// I004/171 describes the second aircraft like I004/170 the first (ids and
// names end in 2), but none of its subfields has a summary of its own.
constexpr SubfieldRow k171Subfields[] = {
    {"AI2", "Aircraft Identifier 2", SubfieldRule::Fixed, 7, nullptr, nullptr, nullptr},
    {"M32", "Mode 3/A Code Aircraft 2", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"CPW2", "Predicted Conflict Position 2 (WGS84)", SubfieldRule::Fixed, 10, nullptr, nullptr, nullptr},
    {"CPC2", "Predicted Conflict Position 2 (Cartesian Coordinates)", SubfieldRule::Fixed, 8, nullptr, nullptr,
     nullptr},
    {"TT2", "Time to Threshold Aircraft 2", SubfieldRule::Fixed, 3, nullptr, nullptr, nullptr},
    {"DT2", "Distance to Threshold Aircraft 2", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"AC2", "Aircraft Characteristics Aircraft 2", SubfieldRule::Variable, 2, nullptr, nullptr, nullptr},
    {"MS2", "Mode S Identifier Aircraft 2", SubfieldRule::Fixed, 6, nullptr, nullptr, nullptr},
    {"FP2", "Flight Plan Number Aircraft 2", SubfieldRule::Fixed, 4, nullptr, nullptr, nullptr},
    {"CF2", "Cleared Flight Level Aircraft 2", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
};

}  // namespace

// Safety-net views show an unknown subfield with two dashes, not three;
// existing consumers match on it, so it is kept.
constexpr const char *kUnknownId = "--";

extern const CompoundItem kCompound004_070;
extern const CompoundItem kCompound004_100;
extern const CompoundItem kCompound004_120;
extern const CompoundItem kCompound004_170;
extern const CompoundItem kCompound004_171;

}  // namespace kovrel

KOVREL_COMPOUND_ITEM(004_070, 4070, ::kovrel::kCompound004_070)
KOVREL_COMPOUND_ITEM(004_100, 4100, ::kovrel::kCompound004_100)
KOVREL_COMPOUND_ITEM(004_120, 4120, ::kovrel::kCompound004_120)
KOVREL_COMPOUND_ITEM(004_170, 4170, ::kovrel::kCompound004_170)
KOVREL_COMPOUND_ITEM(004_171, 4171, ::kovrel::kCompound004_171)

namespace kovrel {

constinit const CompoundItem kCompound004_070 = make_compound(6, k070Subfields, KOVREL_SUBFIELD_FUNCS(004_070), kUnknownId);
constinit const CompoundItem kCompound004_100 = make_compound(6, k100Subfields, KOVREL_SUBFIELD_FUNCS(004_100), kUnknownId);
constinit const CompoundItem kCompound004_120 = make_compound(4, k120Subfields, KOVREL_SUBFIELD_FUNCS(004_120), kUnknownId);
constinit const CompoundItem kCompound004_170 = make_compound(10, k170Subfields, KOVREL_SUBFIELD_FUNCS(004_170), kUnknownId);
constinit const CompoundItem kCompound004_171 = make_compound(10, k171Subfields, KOVREL_SUBFIELD_FUNCS(004_171), kUnknownId);

namespace {

// I004/015, 045, 070, 074, 075, 076 and 110 stand in the UAP but have no
// row: the library neither names nor sizes them, so a record announcing one
// of them stops there.
constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_004_010_encode_ex, ast_dataitem_004_010_decode_ex, &fields::kDataSourceIdentifier},
    // A safety-net message type, read and written as the common message type.
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_004_000_get_summary,
     ast_dataitem_004_000_get_detail_html, ast_dataitem_004_000_encode_ex, ast_dataitem_004_000_decode_ex,
     &fields::kMessageType},
    {20, "Time of Message", ast_dataitem_get_size_fixed_3_byte, ast_dataitem_time_of_day_get_summary,
     ast_dataitem_time_of_day_get_detail_html, ast_dataitem_004_020_encode_ex, ast_dataitem_004_020_decode_ex,
     &fields::kTimeOfDay},
    {40, "Alert Identifier", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_004_040_get_summary, kNoDetail,
     ast_dataitem_004_040_encode_ex, ast_dataitem_004_040_decode_ex, &fields::k004_040},
    // One presence bit per safety-net function, extended by FX without bound.
    {60, "Safety Net Function & System Status", ast_dataitem_get_size_var_unlimited,
     ast_dataitem_004_060_get_summary, ast_dataitem_004_060_get_detail_html, nullptr,
     ast_dataitem_004_060_decode_ex, &fields::k004_060},
    // Both track numbers are 16-bit; the common functions tell them by identifier.
    {30, "Track Number 1", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_track_number_get_summary, kNoDetail,
     ast_dataitem_004_030_encode_ex, ast_dataitem_004_030_decode_ex, &fields::kTrackNumber},
    {170, "Aircraft Identification & Characteristics 1", ast_dataitem_004_170_get_size, kCompoundSummary,
     kCompoundDetail, nullptr, ast_dataitem_004_170_decode_ex, &fields::k004_170, &kCompound004_170},
    {120, "Conflict Characteristics", ast_dataitem_004_120_get_size, kCompoundSummary, kCompoundDetail, nullptr,
     ast_dataitem_004_120_decode_ex, &fields::k004_120, &kCompound004_120},
    {100, "Area Definition", ast_dataitem_004_100_get_size, kCompoundSummary, kCompoundDetail, nullptr,
     ast_dataitem_004_100_decode_ex, &fields::k004_100, &kCompound004_100},
    {35, "Track Number 2", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_track_number_get_summary, kNoDetail,
     ast_dataitem_004_035_encode_ex, ast_dataitem_004_035_decode_ex, &fields::kTrackNumber},
    {171, "Aircraft Identification & Characteristics 2", ast_dataitem_004_171_get_size, kCompoundSummary,
     kCompoundDetail, nullptr, ast_dataitem_004_171_decode_ex, &fields::k004_170, &kCompound004_171},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail, nullptr, ast_dataitem_004_REF_decode_ex,
     &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail, nullptr, ast_dataitem_004_SPF_decode_ex,
     &fields::kExplicitField},
    // Items of the UAP that the safety-net views do not show: they are sized
    // (edition 1.13 layouts) so that records carrying them decode, but have no
    // name of their own and answer "Unknown CAT004 Dataitem".
    {15, nullptr, ast_dataitem_get_size_rep_2_byte},  // SDPS identifiers
    {45, nullptr, ast_dataitem_get_size_fixed_1_byte},  // area and alert status
    {70, nullptr, ast_dataitem_004_070_get_size, kCompoundSummary, kCompoundDetail, nullptr, nullptr,
     nullptr, &kCompound004_070},  // conflict timing and separation
    {74, nullptr, ast_dataitem_get_size_fixed_2_byte},   // longitudinal deviation
    {75, nullptr, ast_dataitem_get_size_fixed_3_byte},   // transversal distance deviation
    {76, nullptr, ast_dataitem_get_size_fixed_2_byte},   // vertical deviation
    {110, nullptr, ast_dataitem_get_size_rep_2_byte},  // FDPS sector control positions
};

}  // namespace

constexpr CategoryItems kItems004Table =
    make_category_items(4, ast_dataitem_004_get_name, "Unknown CAT004 Dataitem", kRows);
constinit const CategoryItems kItems004 = kItems004Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_004_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems004, id);
}
