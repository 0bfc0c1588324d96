// CAT002 dispatch rows: size rule and name of every item of the standard
// UAP, of the ASR-10SS station status items and of the MANAGAIR custom
// field.
#include "kovrel/cat002.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

// I002/060, 070, 080, 090 and 100 stand in the UAP but have no row: they
// cannot be sized, so a record announcing one of them stops there.
constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte},
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte},
    {20, "Sector Number", ast_dataitem_get_size_fixed_1_byte},
    {30, "Time of Day", ast_dataitem_get_size_fixed_3_byte},
    {41, "Antenna Rotation Period", ast_dataitem_get_size_fixed_2_byte},
    {50, "Station Configuration Status", ast_dataitem_get_size_var_8_byte},

    // ASR-10SS and ASR-10SS Mk2 put a longer station status of their own at
    // FRN 6, the place of I002/050 (both print as I002/050).
    {901, "Station Configuration Status", ast_dataitem_get_size_var_16_byte},
    {902, "Station Configuration Status", ast_dataitem_get_size_var_16_byte},

    // MANAGAIR sends a two-octet field of its own at FRN 23; it is
    // delimited and named, its content is not interpreted.
    {951, "Custom Field", ast_dataitem_get_size_fixed_2_byte},

    {997, "Random Field Sequencing", ast_dataitem_random_field_sequencing_get_size},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size},
};

}  // namespace

constexpr CategoryItems kItems002Table =
    make_category_items(2, ast_dataitem_002_get_name, "Unknown CAT002 Dataitem", kRows);
constinit const CategoryItems kItems002 = kItems002Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_002_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems002, id);
}
