// CAT019 dispatch rows (multilateration system status messages, edition 1.3
// of the category): size rule and name of every item of the standard UAP.
// The category has no compound items.
// Items laid out as a common item carry that item's views and the
// structured entry points of common_items.cpp.
#include "kovrel/cat019.h"
#include "kovrel/items.h"
#include "categories/cat019/item_fields.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte, kSourceSummary, kSourceDetail,
     ast_dataitem_019_010_encode_ex, ast_dataitem_019_010_decode_ex, &fields::kDataSourceIdentifier},
    // The message type has no text of its own.
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte, nullptr, kNoDetail,
     ast_dataitem_019_000_encode_ex, ast_dataitem_019_000_decode_ex, &fields::kMessageType},
    {140, "Time of Day", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_019_140_encode_ex, ast_dataitem_019_140_decode_ex, &fields::kTimeOfDay},
    {550, "System Status", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_019_550_get_summary,
     ast_dataitem_019_550_get_detail_html, ast_dataitem_019_550_encode_ex, ast_dataitem_019_550_decode_ex,
     &fields::k019_550},
    {551, "Tracking Processor Detailed Status", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_019_551_get_summary,
     ast_dataitem_019_551_get_detail_html, ast_dataitem_019_551_encode_ex, ast_dataitem_019_551_decode_ex,
     &fields::k019_551},
    // Remote sensor identifier and its status octet.
    {552, "Remote Sensor Detailed Status", ast_dataitem_get_size_rep_2_byte, ast_dataitem_019_552_get_summary,
     ast_dataitem_019_552_get_detail_html, ast_dataitem_019_552_encode_ex, ast_dataitem_019_552_decode_ex,
     &fields::k019_552},
    // Two reference transponders per octet, two octets in edition 1.3.
    {553, "Reference Transponder Detailed Status", ast_dataitem_get_size_var_2_byte, ast_dataitem_019_553_get_summary,
     ast_dataitem_019_553_get_detail_html, ast_dataitem_019_553_encode_ex, ast_dataitem_019_553_decode_ex,
     &fields::k019_553},
    // Read at 180/2^30 degrees with the common views; written by the
    // category's own encoder at the same LSB.
    {600, "Position of the MLT System Reference Point", ast_dataitem_get_size_fixed_8_byte, kWgs84Summary, kWgs84Detail,
     ast_dataitem_019_600_encode_ex, ast_dataitem_019_600_decode_ex, &fields::kPositionWgs84},
    // Quarters of a metre, unlike the common height (6.25 ft).
    {610, "Height of the MLT System Reference Point", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_019_610_get_summary, ast_dataitem_019_610_get_detail_html, ast_dataitem_019_610_encode_ex,
     ast_dataitem_019_610_decode_ex, &fields::k019_610},
    {620, "WGS-84 Undulation", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_019_620_get_summary,
     ast_dataitem_019_620_get_detail_html, ast_dataitem_019_620_encode_ex, ast_dataitem_019_620_decode_ex,
     &fields::k019_620},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size, kRefSummary, kNoDetail,
     nullptr, ast_dataitem_019_REF_decode_ex, &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size, kSpfSummary, kNoDetail,
     nullptr, ast_dataitem_019_SPF_decode_ex, &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems019Table =
    make_category_items(19, ast_dataitem_019_get_name, "Unknown CAT019 Dataitem", kRows);
constinit const CategoryItems kItems019 = kItems019Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_019_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems019, id);
}
