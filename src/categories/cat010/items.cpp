// CAT010 dispatch rows (monosensor surface movement data, edition 1.1 of the
// category): size rule and name of every item of the standard UAP. The
// category has no compound items.
#include "kovrel/cat010.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte},
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte},
    // TYP..CRT, SIM..TOT, SPI: three octets in edition 1.1.
    {20, "Target Report Descriptor", ast_dataitem_get_size_var_3_byte},
    {140, "Time of Day", ast_dataitem_get_size_fixed_3_byte},
    {41, "Position in WGS-84 Co-ordinates", ast_dataitem_get_size_fixed_8_byte},
    {40, "Measured Position in Polar Co-ordinates", ast_dataitem_get_size_fixed_4_byte},
    {42, "Position in Cartesian Co-ordinates", ast_dataitem_get_size_fixed_4_byte},
    {200, "Calculated Track Velocity in Polar Co-ordinates", ast_dataitem_get_size_fixed_4_byte},
    {202, "Calculated Track Velocity in Cartesian Co-ordinates", ast_dataitem_get_size_fixed_4_byte},
    {161, "Track Number", ast_dataitem_get_size_fixed_2_byte},
    {170, "Track Status", ast_dataitem_get_size_var_3_byte},
    {60, "Mode-3/A Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte},
    {220, "Target Address", ast_dataitem_get_size_fixed_3_byte},
    // Status octet and six octets of six-bit characters.
    {245, "Target Identification", ast_dataitem_get_size_fixed_7_byte},
    {250, "Mode S MB Data", ast_dataitem_get_size_rep_8_byte},
    {300, "Vehicle Fleet Identification", ast_dataitem_get_size_fixed_1_byte},
    {90, "Flight Level in Binary Representation", ast_dataitem_get_size_fixed_2_byte},
    {91, "Measured Height", ast_dataitem_get_size_fixed_2_byte},
    // Length, orientation, width: one octet each.
    {270, "Target Size and Orientation", ast_dataitem_get_size_var_3_byte},
    {550, "System Status", ast_dataitem_get_size_fixed_1_byte},
    {310, "Pre-programmed Message", ast_dataitem_get_size_fixed_1_byte},
    {500, "Standard Deviation of Position", ast_dataitem_get_size_fixed_4_byte},
    // Each presence is a range and an azimuth difference, one octet each.
    {280, "Presence", ast_dataitem_get_size_rep_2_byte},
    {131, "Amplitude of Primary Plot", ast_dataitem_get_size_fixed_1_byte},
    {210, "Calculated Acceleration", ast_dataitem_get_size_fixed_2_byte},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size},
};

}  // namespace

constexpr CategoryItems kItems010Table =
    make_category_items(10, ast_dataitem_010_get_name, "Unknown CAT010 Dataitem", kRows);
constinit const CategoryItems kItems010 = kItems010Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_010_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems010, id);
}
