// CAT023 dispatch rows: size rule, name and field description of every
// item, the common items that serve some of them, and the size rule of
// I023/101, whose FX chain does not start in its first octet.
#include "categories/cat023/item_fields.h"
#include "kovrel/cat023.h"
#include "kovrel/core.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"
#include "items/common_views.h"
#include "record/item_table.h"

// I023/101 Ground Station Configuration: octet 1 is the report period as a
// whole octet, octet 2 carries SC and the first FX bit, and an optional
// octet 3 the status report period with the last FX bit. Three octets is the
// longest form; an FX bit still set there is logged and the item ends after
// it all the same, so the record goes on reading.
extern "C" KOVREL_API uint64_t ast_dataitem_023_101_get_size(const uint8_t *octets, size_t available) {
    if (!octets || available < 2) return 0;
    if ((octets[1] & 0x01u) == 0) return 2;
    if (available < 3) return 0;
    if ((octets[2] & 0x01u) != 0) ast_log(AST_LOG_CRITICAL, "Dataitem I023/101 length exceed max: %d", 3);
    return 3;
}

namespace kovrel {
namespace {

using namespace views;

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_023_010_encode_ex, ast_dataitem_023_010_decode_ex, &fields::kDataSourceIdentifier},
    // Read and written as the common message type, summarised by the category.
    {0, "Report Type", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_023_000_get_summary, kNoDetail,
     ast_dataitem_023_000_encode_ex, ast_dataitem_023_000_decode_ex, &fields::kMessageType},
    {15, "Service Type and Identification", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_023_015_get_summary,
     ast_dataitem_023_015_get_detail_html, nullptr, ast_dataitem_023_015_decode_ex, &fields::k023_015},
    {70, "Time of Day", ast_dataitem_get_size_fixed_3_byte, ast_dataitem_time_of_day_get_summary,
     ast_dataitem_time_of_day_get_detail_html, ast_dataitem_023_070_encode_ex, ast_dataitem_023_070_decode_ex,
     &fields::kTimeOfDay},
    {100, "Ground Station Status", ast_dataitem_get_size_var_unlimited, ast_dataitem_023_100_get_summary,
     ast_dataitem_023_100_get_detail_html, nullptr, ast_dataitem_023_100_decode_ex, &fields::k023_100},
    {101, "Ground Station Configuration", ast_dataitem_023_101_get_size, ast_dataitem_023_101_get_summary,
     ast_dataitem_023_101_get_detail_html, ast_dataitem_023_101_encode_ex, ast_dataitem_023_101_decode_ex,
     &fields::k023_101},
    {200, "Operational Range", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_023_200_get_summary,
     ast_dataitem_023_200_get_detail_html, ast_dataitem_023_200_encode_ex, ast_dataitem_023_200_decode_ex,
     &fields::k023_200},
    {110, "Service Status", ast_dataitem_get_size_var_unlimited, ast_dataitem_023_110_get_summary, kNoDetail,
     ast_dataitem_023_110_encode_ex, ast_dataitem_023_110_decode_ex, &fields::k023_110},
    // REP entries of TYPE, REF/spare and a 32-bit counter.
    {120, "Service Statistics", ast_dataitem_get_size_rep_6_byte, ast_dataitem_023_120_get_summary,
     ast_dataitem_023_120_get_detail_html, ast_dataitem_023_120_encode_ex, ast_dataitem_023_120_decode_ex,
     &fields::k023_120},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail, nullptr, ast_dataitem_023_REF_decode_ex,
     &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail, nullptr, ast_dataitem_023_SPF_decode_ex,
     &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems023Table =
    make_category_items(23, ast_dataitem_023_get_name, "Unknown CAT023 Dataitem", kRows);
constinit const CategoryItems kItems023 = kItems023Table;

}  // namespace kovrel

// Unknown identifiers are answered with the fallback name without a log line.
extern "C" KOVREL_API const char *ast_dataitem_023_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems023, id, false);
}
