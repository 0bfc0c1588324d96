// CAT001 dispatch rows: size rule and name of every item of the track and
// plot UAPs, of the ASR-10SS and ASR-10SS Mk2 sensor layouts and of the
// MANAGAIR custom field.
#include "kovrel/cat001.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte},
    {20, "Target Report Descriptor", ast_dataitem_get_size_var_2_byte},
    // The library reads at most the first extension of I001/030: a longer
    // chain is logged and cut after two octets.
    {30, "Warning/Error Conditions", ast_dataitem_get_size_var_2_byte},
    {40, "Measured Position in Polar Coordinates", ast_dataitem_get_size_fixed_4_byte},
    {42, "Calculated Position in Cartesian Coordinates", ast_dataitem_get_size_fixed_4_byte},
    {50, "Mode-2 Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte},
    {60, "Mode-2 Code Confidence Indicator", ast_dataitem_get_size_fixed_2_byte},
    {70, "Mode-3/A Code in Octal Representation", ast_dataitem_get_size_fixed_2_byte},
    {80, "Mode-3/A Code Confidence Indicator", ast_dataitem_get_size_fixed_2_byte},
    {90, "Mode-C Code in Binary Representation", ast_dataitem_get_size_fixed_2_byte},
    {100, "Mode-C Code and Code Confidence Indicator", ast_dataitem_get_size_fixed_4_byte},
    // I001/120 (Measured Radial Doppler Speed) and I001/150 (Presence of
    // X-Pulse) are delimited like any other item, but the name function has
    // never had an entry for them: they answer "Unknown CAT001 Dataitem",
    // kept for compatibility with existing consumers.
    {120, nullptr, ast_dataitem_get_size_fixed_1_byte},
    {130, "Radar Plot Characteristics", ast_dataitem_get_size_var_6_byte},
    {131, "Received Power", ast_dataitem_get_size_fixed_1_byte},
    {141, "Truncated Time of Day", ast_dataitem_get_size_fixed_2_byte},
    {150, nullptr, ast_dataitem_get_size_fixed_1_byte},
    {161, "Track Plot Number", ast_dataitem_get_size_fixed_2_byte},
    {170, "Track Status", ast_dataitem_get_size_var_2_byte},
    {200, "Calculated Track Velocity in Polar Coordinates", ast_dataitem_get_size_fixed_4_byte},
    {210, "Track Quality", ast_dataitem_get_size_var_12_byte},

    // ASR-10SS and ASR-10SS Mk2 fill the places of I001/130 (FRN 10) and
    // I001/210 (FRN 14) with layouts of their own; the identifiers 1901 to
    // 1904 print as I001/130 and I001/210. Both stay FX-extended fields, so
    // they keep the length bound of the standard item whose place they take,
    // except the Mk2 track field, which never exceeds 11 octets.
    {901, "Radar Plot Characteristics", ast_dataitem_get_size_var_6_byte},
    {902, "Plot Amplitude", ast_dataitem_get_size_var_12_byte},
    {903, "Radar Plot Characteristics", ast_dataitem_get_size_var_6_byte},
    {904, "Track Quality and Plot Extent", ast_dataitem_get_size_var_11_byte},

    // MANAGAIR sends a two-octet field of its own at FRN 5 and FRN 23; it
    // is delimited and named, its content is not interpreted.
    {951, "Custom Field", ast_dataitem_get_size_fixed_2_byte},

    {997, "Random Field Sequencing", ast_dataitem_random_field_sequencing_get_size},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size},
};

}  // namespace

constexpr CategoryItems kItems001Table =
    make_category_items(1, ast_dataitem_001_get_name, "Unknown CAT001 Dataitem", kRows);
constinit const CategoryItems kItems001 = kItems001Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_001_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems001, id);
}
