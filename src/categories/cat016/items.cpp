// CAT016 dispatch rows (independent non-cooperative surveillance system
// configuration reports, edition 1.0 of the category): size rule and name of
// every item of the standard UAP. The category has no compound items.
#include "kovrel/cat016.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte},
    {15, "Service Identification", ast_dataitem_get_size_fixed_1_byte},
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte},
    {140, "Time of Day", ast_dataitem_get_size_fixed_3_byte},
    {200, "System Configuration Reporting Period", ast_dataitem_get_size_fixed_1_byte},
    // Pair, transmitter and receiver identifiers: two octets each.
    {300, "Pair Identification", ast_dataitem_get_size_rep_6_byte},
    // Latitude and longitude, four octets each.
    {400, "Position of the System Reference Point", ast_dataitem_get_size_fixed_8_byte},
    {405, "Height of System Reference Point", ast_dataitem_get_size_fixed_2_byte},
    // Identifier, position, altitude, time offset and its accuracy, and the
    // parallel transmitter index: 21 octets per transmitter.
    {410, "Transmitter Properties", ast_dataitem_get_size_rep_21_byte},
    // Identifier, position and altitude: 12 octets per receiver.
    {420, "Receiver Properties", ast_dataitem_get_size_rep_12_byte},
    // Not reached through the standard UAP (its 10 FRNs stop at I016/420),
    // but defined by the edition at FRN 11, so a caller's own profile may
    // carry it.
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size},
};

}  // namespace

constexpr CategoryItems kItems016Table =
    make_category_items(16, ast_dataitem_016_get_name, "Unknown CAT016 Dataitem", kRows);
constinit const CategoryItems kItems016 = kItems016Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_016_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems016, id);
}
