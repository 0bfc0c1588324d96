// CAT008 dispatch rows (monoradar derived weather information, edition 1.3
// of the category): size rule and name of every item of the standard UAP.
// Items laid out as a common item carry that item's views and the
// structured entry points of common_items.cpp.
#include "kovrel/cat008.h"
#include "kovrel/core.h"
#include "kovrel/items.h"
#include "categories/cat008/item_fields.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

// I008/100 opens with a first part of three octets; only the third octet
// carries an FX bit. Edition 1.3 defines no extent beyond the first part, so
// an FX bit set there is treated like the variable rule's overlong chain:
// the item is cut off when nothing follows, otherwise the record goes on
// after the three octets defined.
extern "C" KOVREL_API uint64_t ast_dataitem_008_100_get_size(const uint8_t *octets, size_t available) {
    constexpr size_t kFirstPart = 3;
    if (!octets || available < kFirstPart) return 0;
    if ((octets[kFirstPart - 1] & 0x01u) == 0) return kFirstPart;
    if (available == kFirstPart) return 0;
    ast_log(AST_LOG_CRITICAL, "Dataitem length exceed max: %d", static_cast<int>(kFirstPart));
    return kFirstPart;
}

namespace kovrel {
namespace {

using namespace views;

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte, kSourceSummary, kSourceDetail,
     ast_dataitem_008_010_encode_ex, ast_dataitem_008_010_decode_ex, &fields::kDataSourceIdentifier},
    // The message type has no text of its own.
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte, nullptr, kNoDetail, ast_dataitem_008_000_encode_ex,
     ast_dataitem_008_000_decode_ex, &fields::kMessageType},
    {20, "Vector Qualifier", ast_dataitem_get_size_var_2_byte, ast_dataitem_008_020_get_summary,
     ast_dataitem_008_020_get_detail_html, ast_dataitem_008_020_encode_ex, ast_dataitem_008_020_decode_ex,
     &fields::k008_020},
    // X, Y and length: one octet each.
    {36, "Sequence of Cartesian Vectors in SPF Notation", ast_dataitem_get_size_rep_3_byte, ast_dataitem_008_036_get_summary,
     ast_dataitem_008_036_get_detail_html, ast_dataitem_008_036_encode_ex, ast_dataitem_008_036_decode_ex,
     &fields::k008_036},
    // Start range, end range (one octet each) and a two-octet azimuth.
    {34, "Sequence of Polar Vectors in SPF Notation", ast_dataitem_get_size_rep_4_byte, ast_dataitem_008_034_get_summary,
     ast_dataitem_008_034_get_detail_html, ast_dataitem_008_034_encode_ex, ast_dataitem_008_034_decode_ex,
     &fields::k008_034},
    {40, "Contour Identifier", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_008_040_get_summary,
     ast_dataitem_008_040_get_detail_html, ast_dataitem_008_040_encode_ex, ast_dataitem_008_040_decode_ex,
     &fields::k008_040},
    {50, "Sequence of Contour Points in SPF Notation", ast_dataitem_get_size_rep_2_byte, ast_dataitem_008_050_get_summary,
     ast_dataitem_008_050_get_detail_html, ast_dataitem_008_050_encode_ex, ast_dataitem_008_050_decode_ex,
     &fields::k008_050},
    {90, "Time of Day", ast_dataitem_get_size_fixed_3_byte, kTimeSummary, kTimeDetail, ast_dataitem_008_090_encode_ex,
     ast_dataitem_008_090_decode_ex, &fields::kTimeOfDay},
    {100, "Processing Status", ast_dataitem_008_100_get_size, ast_dataitem_008_100_get_summary,
     ast_dataitem_008_100_get_detail_html, ast_dataitem_008_100_encode_ex, ast_dataitem_008_100_decode_ex,
     &fields::k008_100},
    // A chain of seven-bit status words, each octet extended by its FX bit,
    // with no upper bound in the category.
    {110, "Station Configuration Status", ast_dataitem_get_size_var_unlimited, ast_dataitem_008_110_get_summary,
     ast_dataitem_008_110_get_detail_html, ast_dataitem_008_110_encode_ex, ast_dataitem_008_110_decode_ex,
     &fields::k008_110},
    {120, "Total Number of Items Constituting One Weather Picture", ast_dataitem_get_size_fixed_2_byte, ast_dataitem_008_120_get_summary,
     ast_dataitem_008_120_get_detail_html, ast_dataitem_008_120_encode_ex, ast_dataitem_008_120_decode_ex,
     &fields::k008_120},
    {38, "Sequence of Weather Vectors in SPF Notation", ast_dataitem_get_size_rep_4_byte, ast_dataitem_008_038_get_summary,
     ast_dataitem_008_038_get_detail_html, ast_dataitem_008_038_encode_ex, ast_dataitem_008_038_decode_ex,
     &fields::k008_038},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail, nullptr, ast_dataitem_008_SPF_decode_ex,
     &fields::kExplicitField},
    {997, "Random Field Sequencing", ast_dataitem_random_field_sequencing_get_size,
     ast_dataitem_random_field_sequencing_get_summary, kNoDetail, nullptr, ast_dataitem_008_RFS_decode_ex,
     &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems008Table =
    make_category_items(8, ast_dataitem_008_get_name, "Unknown CAT008 Dataitem", kRows);
constinit const CategoryItems kItems008 = kItems008Table;

}  // namespace kovrel

extern "C" KOVREL_API const char *ast_dataitem_008_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems008, id);
}
