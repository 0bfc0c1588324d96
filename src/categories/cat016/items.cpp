// CAT016 dispatch rows (independent non-cooperative surveillance system
// configuration reports, edition 1.0 of the category): size rule and name of
// every item of the standard UAP. The category has no compound items.
// Items laid out as a common item carry that item's views and the
// structured entry points of common_items.cpp.
#include "kovrel/cat016.h"
#include "kovrel/items.h"
#include "categories/cat016/item_fields.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte, kSourceSummary, kSourceDetail,
     ast_dataitem_016_010_encode_ex, ast_dataitem_016_010_decode_ex, &fields::kDataSourceIdentifier},
    {15, "Service Identification", ast_dataitem_get_size_fixed_1_byte, kServiceSummary, kNoDetail,
     ast_dataitem_016_015_encode_ex, ast_dataitem_016_015_decode_ex, &fields::kServiceId},
    // The message type has no text of its own.
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte, nullptr, kNoDetail,
     ast_dataitem_016_000_encode_ex, ast_dataitem_016_000_decode_ex, &fields::kMessageType},
    {140, "Time of Day", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail,
     ast_dataitem_016_140_encode_ex, ast_dataitem_016_140_decode_ex, &fields::kTimeOfDay},
    {200, "System Configuration Reporting Period", ast_dataitem_get_size_fixed_1_byte,
     ast_dataitem_016_200_get_summary, ast_dataitem_016_200_get_detail_html, ast_dataitem_016_200_encode_ex,
     ast_dataitem_016_200_decode_ex, &fields::k016_200},
    // Pair, transmitter and receiver identifiers: two octets each.
    {300, "Pair Identification", ast_dataitem_get_size_rep_6_byte, ast_dataitem_016_300_get_summary,
     ast_dataitem_016_300_get_detail_html, ast_dataitem_016_300_encode_ex, ast_dataitem_016_300_decode_ex,
     &fields::k016_300},
    // Latitude and longitude, four octets each.
    // Read at 180/2^31 degrees with the common views; written by the
    // category's own encoder at the same LSB.
    {400, "Position of the System Reference Point", ast_dataitem_get_size_fixed_8_byte, kWgs84Summary, kWgs84Detail,
     ast_dataitem_016_400_encode_ex, ast_dataitem_016_400_decode_ex, &fields::kPositionWgs84},
    // Quarters of a metre, unlike the common height (6.25 ft).
    {405, "Height of System Reference Point", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_016_405_get_summary,
     ast_dataitem_016_405_get_detail_html, ast_dataitem_016_405_encode_ex, ast_dataitem_016_405_decode_ex,
     &fields::k016_405},
    // Identifier, position, altitude, time offset and its accuracy, and the
    // parallel transmitter index: 21 octets per transmitter.
    {410, "Transmitter Properties", ast_dataitem_get_size_rep_21_byte, ast_dataitem_016_410_get_summary,
     ast_dataitem_016_410_get_detail_html, ast_dataitem_016_410_encode_ex, ast_dataitem_016_410_decode_ex,
     &fields::k016_410},
    // Identifier, position and altitude: 12 octets per receiver.
    {420, "Receiver Properties", ast_dataitem_get_size_rep_12_byte, ast_dataitem_016_420_get_summary,
     ast_dataitem_016_420_get_detail_html, ast_dataitem_016_420_encode_ex, ast_dataitem_016_420_decode_ex,
     &fields::k016_420},
    // Not reached through the standard UAP (its 10 FRNs stop at I016/420),
    // but defined by the edition at FRN 11, so a caller's own profile may
    // carry it.
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size, kSpfSummary, kNoDetail,
     nullptr, ast_dataitem_016_SPF_decode_ex, &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems016Table =
    make_category_items(16, ast_dataitem_016_get_name, "Unknown CAT016 Dataitem", kRows);
constinit const CategoryItems kItems016 = kItems016Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_016_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems016, id);
}
