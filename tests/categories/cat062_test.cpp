#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "kovrel/cat062.h"
#include "kovrel/core.h"
#include "kovrel/items.h"
#include "support/log_capture.h"
#include "support/record_walk.h"
#include "support/served.h"

using kovrel_test::expect_row;
using kovrel_test::scanned;
using kovrel_test::kShown;
using kovrel_test::kCodec;
using kovrel_test::kDecodeSummary;
using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

// Length that ast_dataitem_scan gives the item at octets, 0 when it refuses.
uint64_t scan(AstItemId id, const std::vector<uint8_t> &octets, size_t available) {
    AstDataItem item;
    ast_dataitem_scan(&item, octets.data(), available, id);
    EXPECT_EQ(item.valid, item.length != 0 ? 1 : 0);
    return item.length;
}
uint64_t scan(AstItemId id, const std::vector<uint8_t> &octets) { return scan(id, octets, octets.size()); }

std::vector<uint8_t> with_octets(std::vector<uint8_t> head, size_t n, uint8_t fill = 0x00) {
    head.resize(head.size() + n, fill);
    return head;
}

}  // namespace

TEST(Cat062, ComposedTrackNumberGroups) {
    EXPECT_EQ(scan(62510, {0x12, 0x34, 0x56, 0xFF}), 3u);
    EXPECT_EQ(scan(62510, {0x12, 0x34, 0x57, 0x22, 0x33, 0x44}), 6u);
    EXPECT_EQ(scan(62510, {0x12, 0x34, 0x57, 0x22, 0x33, 0x45, 0x01, 0x02, 0x02}), 9u);
    // A chain cut short by the end of the data ends at its last whole group.
    EXPECT_EQ(scan(62510, {0x12, 0x34, 0x57, 0x22, 0x33}), 3u);
    EXPECT_EQ(scan(62510, {0x12, 0x34, 0x57, 0x22, 0x33, 0x45}), 6u);
    // The rule never answers 0; the scan refuses what does not fit.
    const uint8_t two[] = {0x12, 0x35};
    EXPECT_EQ(ast_dataitem_062_510_get_size(two, 2), 3u);
    EXPECT_EQ(ast_dataitem_062_510_get_size(nullptr, 0), 3u);
    EXPECT_EQ(scan(62510, {0x12, 0x35}), 0u);
}

TEST(Cat062, ElementaryItemSizes) {
    LogCapture log;
    const std::vector<uint8_t> data(10, 0xFE);
    EXPECT_EQ(scan(62245, data), 7u);
    EXPECT_EQ(scan(62245, data, 6), 0u);
    EXPECT_EQ(scan(62105, data), 8u);
    EXPECT_EQ(scan(62100, data), 6u);
    EXPECT_EQ(scan(62210, data), 2u);
    EXPECT_EQ(log.size(), 0u);

    // Track status: up to six octets.
    EXPECT_EQ(scan(62080, {0x40, 0xFF}), 1u);
    EXPECT_EQ(scan(62080, {0x01, 0x01, 0x01, 0x01, 0x01, 0x00}), 6u);
    EXPECT_EQ(scan(62080, {0x01, 0x01, 0x01, 0x01, 0x01, 0x01}), 0u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(scan(62080, {0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x00}), 6u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 6"));
    // Target size and orientation: up to three.
    EXPECT_EQ(scan(62270, {0x02, 0x01, 0x00}), 1u);
    EXPECT_EQ(scan(62270, {0x03, 0x05, 0x08}), 3u);
    EXPECT_EQ(scan(62270, {0x03, 0x05}), 0u);

    // RE and SP fields: the length octet.
    EXPECT_EQ(scan(62998, {0x02, 0x00, 0x00}), 2u);
    EXPECT_EQ(scan(62999, {0x04, 0x00, 0x00}), 0u);
    EXPECT_EQ(ast_dataitem_get_size(data.data(), 1, 62999), 0xFEu);
}

TEST(Cat062, AircraftDerivedDataRepetitiveSubfields) {
    // Subfield 9, trajectory intent data: 1 + 15 x REP octets.
    std::vector<uint8_t> tid = with_octets({0x01, 0x40, 0x02}, 30, 0x11);
    EXPECT_EQ(scan(62380, tid), 33u);
    EXPECT_EQ(scan(62380, tid, 1), 0u);  // primary subfield cut off
    EXPECT_EQ(ast_subfield_get_size(tid.data() + 2, 31, 62380009), 31u);
    EXPECT_EQ(ast_subfield_062_380_get_size(tid.data() + 2, 30, 62380009), 0u);

    // Subfield 25, Mode S MB data: 1 + 8 x REP; and 28 at the end.
    std::vector<uint8_t> mb = with_octets({0x01, 0x01, 0x01, 0x12, 0x01}, 8, 0x22);
    mb.insert(mb.end(), {0x03, 0xF4});
    EXPECT_EQ(scan(62380, mb), 15u);

    // Target address and identification.
    EXPECT_EQ(scan(62380, with_octets({0xC0}, 9)), 10u);

    EXPECT_EQ(ast_dataitem_subfields_get_number(62380), 28u);
    EXPECT_STREQ(ast_subfield_get_id(62380009), "TID");
    EXPECT_STREQ(ast_subfield_get_name(62380012), "ACAS Resolution Avisory Report");
    EXPECT_STREQ(ast_subfield_get_name(62380013), "Brometric Vertical Rate");
    EXPECT_STREQ(ast_subfield_062_380_get_name(62380010),
                 "Communications / ACAS Capability and Flight Status reported by Mode-S");
    EXPECT_STREQ(ast_subfield_get_name(62380028), "Barometric Pressure Setting");
    EXPECT_STREQ(ast_subfield_get_name(62380029), "UNKNOWN_SUBFIELD_NAME");
    EXPECT_STREQ(ast_subfield_get_id(62380029), "---");
    // Another item's subfield asked of this item's functions.
    EXPECT_STREQ(ast_subfield_062_380_get_name(62390001), "UNKNOWN_SUBFIELD_NAME");
    EXPECT_EQ(ast_subfield_062_380_get_size(tid.data(), tid.size(), 62390001), 0u);
}

TEST(Cat062, OtherCompoundItems) {
    // 390: callsign (7) and times of departure/arrival (1 + 4 x REP).
    EXPECT_EQ(scan(62390, with_octets({0x41, 0x08}, 7 + 1 + 12, 0x03)), 2u + 7 + 13);
    EXPECT_EQ(ast_dataitem_subfields_get_number(62390), 18u);
    EXPECT_STREQ(ast_subfield_get_name(62390017), "Pre-emergency Mode 3/A Code");
    EXPECT_STREQ(ast_subfield_get_id(62390012), "TOD");

    // 290: the ADS-C age is the one two-octet age; ten subfields.
    EXPECT_EQ(scan(62290, {0x08, 0x00, 0x10}), 3u);
    EXPECT_EQ(scan(62290, {0xFF, 0xE0, 1, 2, 3, 4, 5, 5, 6, 7, 8, 9, 10}), 13u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(62290), 10u);
    EXPECT_STREQ(ast_subfield_get_name(62290005), "ADS-C age");

    // 295: 31 one-octet ages behind a five-octet primary subfield.
    EXPECT_EQ(scan(62295, with_octets({0xFF, 0xFF, 0xFF, 0xFF, 0xE0}, 31)), 36u);
    EXPECT_EQ(scan(62295, with_octets({0xFF, 0xFF, 0xFF, 0xFF, 0xE0}, 30)), 0u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(62295), 31u);
    EXPECT_STREQ(ast_subfield_get_name(62295022), "Velocity Uncertanty age");
    EXPECT_STREQ(ast_subfield_get_id(62295031), "BPS");

    // 110: PIN/national origin (4) and reported position (6).
    EXPECT_EQ(scan(62110, with_octets({0x60}, 10)), 11u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(62110), 7u);
    EXPECT_STREQ(ast_subfield_get_name(62110002), "Mode 5 PIN/ National");

    // 340: every subfield; a seventh bit adds nothing and the split stops at six.
    EXPECT_EQ(scan(62340, with_octets({0xFC}, 13)), 14u);
    const std::vector<uint8_t> seventh = {0x02};
    EXPECT_EQ(scan(62340, seventh), 1u);
    AstDataItem item;
    ast_dataitem_scan(&item, seventh.data(), seventh.size(), 62340);
    char text[32];
    ast_dataitem_get_summary(text, sizeof text, &item);
    EXPECT_STREQ(text, "SUBFIELDS:00/06");
    EXPECT_STREQ(ast_subfield_get_id(62340004), "MDC");

    // 500: every subfield.
    EXPECT_EQ(scan(62500, with_octets({0xFF, 0x80}, 17)), 19u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(62500), 8u);
    EXPECT_STREQ(ast_subfield_get_name(62500007), "Estimated Accuracy Of Acceleration");
}

TEST(Cat062, NamesAndTheirFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_062_get_name(62110), "Mode 5 Data reports & Extended Mode 1 Code");
    EXPECT_STREQ(ast_dataitem_062_get_name(62270), "Target Size & Orientation");
    EXPECT_STREQ(ast_dataitem_062_get_name(62999), "Reserved For Special Purpose Indicator");
    EXPECT_STREQ(ast_dataitem_get_name(62510), "Composed Track Number");
    EXPECT_EQ(log.size(), 0u);

    EXPECT_STREQ(ast_dataitem_062_get_name(62002), "Unknown CAT062 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I062/002."));
    EXPECT_STREQ(ast_dataitem_062_get_name(62997), "Unknown CAT062 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I062/RFS."));
    EXPECT_STREQ(ast_dataitem_062_get_name(48010), "Unknown CAT062 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I048/010."));

    log.clear();
    EXPECT_EQ(ast_dataitem_subfields_get_number(62080), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Undefined Subfield I062/080"));
}

TEST(Cat062, TrackRecordScansBackToBack) {
    // Items in UAP order, as a tracker sends them.
    const std::vector<std::pair<AstItemId, std::vector<uint8_t>>> items = {
        {62010, {0x19, 0x0C}},
        {62015, {0x04}},
        {62070, {0x5A, 0x12, 0x34}},
        {62105, {0x00, 0x59, 0x12, 0x34, 0x00, 0x08, 0x45, 0x67}},
        {62100, {0x00, 0x10, 0x00, 0xFF, 0xF0, 0x00}},
        {62185, {0x00, 0x64, 0xFF, 0x9C}},
        {62210, {0x01, 0xFF}},
        {62060, {0x0A, 0x3F}},
        {62245, {0x01, 0x10, 0x20, 0x30, 0x40, 0x50, 0x60}},
        {62380, {0x80, 0x3C, 0x65, 0xAC}},
        {62040, {0x0F, 0xA0}},
        {62080, {0x41, 0x00}},
        {62290, {0xC0, 0x02, 0x03}},
        {62200, {0x48}},
        {62295, {0x01, 0x01, 0x01, 0x01, 0x20, 0x07}},
        {62136, {0x01, 0x40}},
        {62130, {0x00, 0xC8}},
        {62135, {0x80, 0x64}},
        {62220, {0xFF, 0xF0}},
        {62390, {0x01, 0x08, 0x02, 0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF0}},
        {62270, {0x15, 0x00}},
        {62300, {0x02}},
        {62110, {0x80, 0x20}},
        {62120, {0x01, 0x23}},
        {62510, {0x01, 0x00, 0x11, 0x02, 0x00, 0x22}},
        {62500, {0x80, 0x01, 0x02, 0x03, 0x04}},
        {62340, {0x90, 0x19, 0x0C, 0x05, 0x00}},
        {62998, {0x02, 0xAA}},
        {62999, {0x01}},
    };
    std::vector<uint8_t> record;
    for (const auto &it : items) record.insert(record.end(), it.second.begin(), it.second.end());

    size_t pos = 0;
    for (const auto &it : items) {
        AstDataItem item;
        ast_dataitem_scan(&item, record.data() + pos, record.size() - pos, it.first);
        ASSERT_EQ(item.valid, 1) << it.first;
        EXPECT_EQ(item.length, it.second.size()) << it.first;
        pos += item.length;
    }
    EXPECT_EQ(pos, record.size());
}

TEST(Cat062, CommonItemsServeTheirRows) {
    LogCapture log;
    const Octets wgs84 = {0x00, 0x80, 0x00, 0x00, 0xFF, 0xC0, 0x00, 0x00};  // 45N 22.5W
    expect_row(62010, {0x19, 0x0C}, "SAC:025 SIC:012", kShown | kCodec);
    expect_row(62015, {0x04}, "SVC_ID:004", kDecodeSummary | kCodec);
    expect_row(62040, {0xF1, 0x23}, "TRACK_NUM:61731", kDecodeSummary | kCodec);  // all 16 bits
    expect_row(62060, {0x2A, 0x3F}, "MODE_3/A:5077 CHANGED", kShown | kCodec);
    expect_row(62070, {0xA8, 0xBF, 0xFF}, "TOD:23:59:59.992", kShown | kCodec);
    expect_row(62100, {0x00, 0x10, 0x00, 0xFF, 0xF0, 0x00}, "X:2048.0 Y:-2048.0 LSB:M", kDecodeSummary);
    expect_row(62105, wgs84, "WGS84:450000N0223000W", kShown | AST_DATAITEM_CAP_DECODE);
    expect_row(62120, {0xE1, 0x23}, "MODE_2:0443", kShown | kCodec);  // V, G and bit 6 set, not shown
    expect_row(62185, {0x00, 0x64, 0xFF, 0x9C}, "VX:25.00 VY:-25.00 LSB:M/S", kDecodeSummary);
    expect_row(62245, {0x80, 0x2C, 0xC3, 0x71, 0xCB, 0x38, 0x20}, "CALLSIGN:KLM123  ",
               kShown | AST_DATAITEM_CAP_DECODE);
    expect_row(62998, {0x03, 0xAA, 0xBB}, "RESERVED_EXPANSION", kDecodeSummary);
    expect_row(62999, {0x01}, "SPECIAL_PURPOSE", kDecodeSummary);

    const bool negate = ast_library_test_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE);
    ast_library_set_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE);
    expect_row(62105, wgs84, "WGS84:450000N0223000E", kShown | AST_DATAITEM_CAP_DECODE);
    if (!negate) ast_library_unset_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE);

    const AstDataItem item = scanned(62105, wgs84);
    AstPositionWgs84 pos{};
    AstDataItemValue value;
    ast_dataitem_decode(&value, &pos, sizeof pos - 1, &item);
    EXPECT_EQ(value.valid + pos.valid, 0u);
    ast_dataitem_decode(&value, &pos, sizeof pos, &item);
    EXPECT_EQ(value.value, &pos);
    EXPECT_DOUBLE_EQ(pos.longitude, -22.5);
    EXPECT_EQ(log.size(), 0u);
}
