// CAT240 dispatch rows: size rule and name of every item, and the common
// items that serve the message type, data source identifier, time of day
// and the RE and SP fields.
//
// The video blocks are plain repetitive items of 4, 64 and 256 octets a
// repetition. The size rule of the high-volume block accepts REP 255 (an
// item of 65281 octets) like any other count: refusing that count is the
// block decoder's business, and it can only report it on a delimited item.
#include "categories/cat240/video_state.h"
#include "kovrel/cat240.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"
#include "items/common_views.h"
#include "items/item_fields.h"
#include "record/item_table.h"

namespace kovrel {
namespace {

using namespace views;

constexpr ItemRow kRows[] = {
    {10, "Data Source Identifier", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_data_source_identifier_get_summary, ast_dataitem_data_source_identifier_get_detail_html,
     ast_dataitem_240_010_encode_ex, ast_dataitem_240_010_decode_ex, &fields::kDataSourceIdentifier},
    // 1 = video summary, 2 = video message; read and written as the common
    // message type, summarised by the category.
    {0, "Message Type", ast_dataitem_get_size_fixed_1_byte, ast_dataitem_240_000_get_summary, kNoDetail,
     ast_dataitem_240_000_encode_ex, ast_dataitem_240_000_decode_ex, &fields::kMessageType},
    // Message sequence identifier, 32 bits.
    {20, "Video Record Header", ast_dataitem_get_size_fixed_4_byte, ast_dataitem_240_020_get_summary, kNoDetail,
     nullptr, ast_dataitem_240_020_decode_ex, &fields::k240_020},
    // REP characters of free text.
    {30, "Video Summary", ast_dataitem_get_size_rep_1_byte, ast_dataitem_240_030_get_summary,
     ast_dataitem_240_030_get_detail_html, nullptr, ast_dataitem_240_030_decode_ex, &fields::k240_030},
    // START_AZ, END_AZ (16 bits each), START_RG, CELL_DUR (32 bits each).
    {40, "Video Header Nano", ast_dataitem_get_size_fixed_12_byte, ast_dataitem_240_040_get_summary,
     ast_dataitem_240_040_get_detail_html, nullptr, ast_dataitem_240_040_decode_ex, &fields::k240_040},
    {41, "Video Header Femto", ast_dataitem_get_size_fixed_12_byte, ast_dataitem_240_041_get_summary,
     ast_dataitem_240_041_get_detail_html, nullptr, ast_dataitem_240_041_decode_ex, &fields::k240_041},
    {48, "Video Cells Resolution & Data Compression Indicator", ast_dataitem_get_size_fixed_2_byte,
     ast_dataitem_240_048_get_summary, ast_dataitem_240_048_get_detail_html, nullptr,
     ast_dataitem_240_048_decode_ex, &fields::k240_048},
    // NB_VB (16 bits), NB_CELLS (24 bits).
    {49, "Video Octets & Video Cells Counters", ast_dataitem_get_size_fixed_5_byte,
     ast_dataitem_240_049_get_summary, ast_dataitem_240_049_get_detail_html, nullptr,
     ast_dataitem_240_049_decode_ex, &fields::k240_049},
    {50, "Video Block Low Data Volume", ast_dataitem_get_size_rep_4_byte, ast_dataitem_240_050_get_summary,
     ast_dataitem_240_050_get_detail_html, nullptr, ast_dataitem_240_050_decode_ex, &fields::k240_block},
    {51, "Video Block Medium Data Volume", ast_dataitem_get_size_rep_64_byte, ast_dataitem_240_051_get_summary,
     ast_dataitem_240_051_get_detail_html, nullptr, ast_dataitem_240_051_decode_ex, &fields::k240_block},
    {52, "Video Block High Data Volume", ast_dataitem_get_size_rep_256_byte, ast_dataitem_240_052_get_summary,
     ast_dataitem_240_052_get_detail_html, nullptr, ast_dataitem_240_052_decode_ex, &fields::k240_block},
    {140, "Time of Day", ast_dataitem_get_size_fixed_3_byte, ast_dataitem_time_of_day_get_summary,
     ast_dataitem_time_of_day_get_detail_html, ast_dataitem_240_140_encode_ex, ast_dataitem_240_140_decode_ex,
     &fields::kTimeOfDay},
    {998, "Reserved Expansion Field", ast_dataitem_reserved_expansion_field_get_size,
     ast_dataitem_reserved_expansion_field_get_summary, kNoDetail, nullptr, ast_dataitem_240_REF_decode_ex,
     &fields::kExplicitField},
    {999, "Special Purpose Field", ast_dataitem_special_purpose_field_get_size,
     ast_dataitem_special_purpose_field_get_summary, kNoDetail, nullptr, ast_dataitem_240_SPF_decode_ex,
     &fields::kExplicitField},
};

}  // namespace

constexpr CategoryItems kItems240Table =
    make_category_items(240, ast_dataitem_240_get_name, "Unknown CAT240 Dataitem", kRows);
constinit const CategoryItems kItems240 = kItems240Table;

}  // namespace kovrel

// Unknown identifiers are answered with the fallback name without a log line.
extern "C" KOVREL_API const char *ast_dataitem_240_get_name(AstItemId id) {
    return kovrel::category_item_name(kovrel::kItems240, id, false);
}
