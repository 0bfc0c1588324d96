#include <gtest/gtest.h>

#include <vector>

#include "kovrel/cat015.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/subfield.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

namespace {

uint64_t size_of(std::vector<uint8_t> o, AstItemId id, size_t available = SIZE_MAX) {
    return ast_dataitem_get_size(o.data(), available == SIZE_MAX ? o.size() : available, id);
}

}  // namespace

TEST(Cat015, CompoundSubfieldCounts) {
    LogCapture log;
    const std::pair<AstItemId, uint32_t> counts[] = {
        {15600, 3}, {15601, 8}, {15602, 4}, {15604, 6}, {15625, 8},  {15626, 10},
        {15627, 6}, {15270, 4}, {15603, 4}, {15605, 5}, {15628, 6}, {15630, 4},
    };
    for (auto [id, n] : counts) EXPECT_EQ(ast_dataitem_subfields_get_number(id), n) << id;
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(15631), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Undefined Subfield I015/631"));
}

TEST(Cat015, SubfieldIdsAndNames) {
    EXPECT_STREQ(ast_subfield_get_id(15600001), "P84");
    EXPECT_STREQ(ast_subfield_get_name(15600003), "Horizontal Position Precision");
    EXPECT_STREQ(ast_subfield_get_id(15601008), "COGHHA");
    EXPECT_STREQ(ast_subfield_get_name(15601004), "Confidence Interval for Geometric Height (67%)");
    EXPECT_STREQ(ast_subfield_get_id(15602004), "COHVHP");
    EXPECT_STREQ(ast_subfield_get_name(15604002), "Vertical Velocity Resolution");
    EXPECT_STREQ(ast_subfield_015_625_get_id(15625008), "SDRA");
    EXPECT_STREQ(ast_subfield_015_625_get_name(15625006), "Range Rate Precision");
    EXPECT_STREQ(ast_subfield_get_id(15626010), "CODARA");
    EXPECT_STREQ(ast_subfield_get_name(15626010), "Correlation of Doppler Acceleration and Range Acceleration");
    EXPECT_STREQ(ast_subfield_get_id(15627003), "SDASZ");
    EXPECT_STREQ(ast_subfield_get_name(15630002), "Direct Path - Signal to Noise Ratio (SNR)");
    // Beyond an item's subfields, or asked of another item's function.
    EXPECT_STREQ(ast_subfield_get_id(15626011), "---");
    EXPECT_STREQ(ast_subfield_get_name(15600004), "UNKNOWN_SUBFIELD_NAME");
    EXPECT_STREQ(ast_subfield_015_625_get_name(15626001), "UNKNOWN_SUBFIELD_NAME");
}

TEST(Cat015, CompoundSizesFromTheWire) {
    struct Case {
        AstItemId id;
        std::vector<uint8_t> primary;
        uint64_t length;
    };
    const Case cases[] = {
        {15600, {0xE0}, 1 + 8 + 5 + 5},
        {15600, {0x40}, 1 + 5},
        {15601, {0xFF, 0x80}, 2 + 3 * 5 + 2 * 3},
        {15601, {0x10}, 1 + 3},
        {15602, {0xF0}, 1 + 5 + 5 + 5 + 4},
        {15603, {0xF0}, 1 + 3 + 4 + 4 + 4},
        {15604, {0xFC}, 1 + 3 + 2 + 3 + 2 + 2 + 2},
        {15605, {0xF8}, 1 + 2 + 4 + 2 + 2 + 2},
        {15625, {0xFF, 0x80}, 2 + 3 * 5 + 4 + 2 + 4},
        {15626, {0xFF, 0xE0}, 2 + 3 + 2 + 2 + 3 + 6 * 1},
        {15626, {0x81, 0x60}, 2 + 3 + 1 + 1},
        {15627, {0xFC}, 1 + 2 * 4 + 3 + 4},
        {15628, {0x0C}, 1 + 3 + 4},
        {15630, {0xF0}, 1 + 1 + 1 + 2 + 1},
        {15270, {0xF0}, 1 + 4 * 2},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.id);
        std::vector<uint8_t> octets = c.primary;
        octets.resize(64, 0x00);
        EXPECT_EQ(ast_dataitem_get_size(octets.data(), octets.size(), c.id), c.length);
        EXPECT_EQ(ast_dataitem_get_size(octets.data(), c.length, c.id), c.length);
        // One octet short: the last subfield cannot be delimited and adds
        // nothing, so the item never reaches past the octets given.
        EXPECT_LE(ast_dataitem_get_size(octets.data(), c.length - 1, c.id), c.length - 1);
    }
    // A primary subfield that never ends.
    EXPECT_EQ(size_of({0x81, 0x81}, 15626), 0u);
    EXPECT_EQ(ast_dataitem_015_600_get_size(nullptr, 8), 0u);
}

TEST(Cat015, SplitOfATwoOctetPrimary) {
    // DV, then CODARR and CODARA from the primary's second octet.
    const uint8_t octets[] = {0x81, 0x60, 0x00, 0x01, 0x02, 0x7F, 0x80, 0xEE};
    AstDataItem item;
    ast_dataitem_scan(&item, octets, sizeof octets, 15626);
    ASSERT_EQ(item.valid, 1);
    ASSERT_EQ(item.length, 7u);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    ASSERT_EQ(list.span_count, 10u);
    EXPECT_EQ(list.spans[0].present, 1);
    EXPECT_EQ(list.spans[0].length, 3u);
    for (int i = 1; i < 8; ++i) EXPECT_EQ(list.spans[i].present, 0) << i;
    EXPECT_EQ(list.spans[8].data, octets + 5);
    EXPECT_EQ(list.spans[8].id, 15626009u);
    EXPECT_EQ(list.spans[9].data, octets + 6);
    EXPECT_EQ(list.spans[9].length, 1u);
    char text[32];
    ast_dataitem_get_summary(text, sizeof text, &item);
    EXPECT_STREQ(text, "SUBFIELDS:03/10");
}

TEST(Cat015, SimpleItemSizes) {
    LogCapture log;
    // Descriptor and status: one octet with an FX bit.
    for (AstItemId id : {15020u, 15170u}) {
        EXPECT_EQ(size_of({0x40, 0xFF}, id), 1u) << id;
        EXPECT_EQ(size_of({0x41}, id), 0u) << id;
    }
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(size_of({0x41, 0x00}, 15020), 1u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 1"));
    // Warning/error values chain on without bound.
    EXPECT_EQ(size_of({0x03, 0x05, 0x07, 0x09, 0x0B, 0x0C}, 15030), 6u);
    EXPECT_EQ(size_of({0x03, 0x05, 0x07}, 15030), 0u);
    // Associations are five octets, contour points eight, classes two.
    std::vector<uint8_t> rep(17, 0x00);
    rep[0] = 2;
    EXPECT_EQ(size_of(rep, 15480, 11), 11u);
    EXPECT_EQ(size_of(rep, 15480, 10), 0u);
    EXPECT_EQ(size_of(rep, 15631), 17u);
    EXPECT_EQ(size_of(rep, 15300), 5u);
    EXPECT_EQ(size_of(rep, 15400), 5u);
}

TEST(Cat015, Names) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(15270), "Target Size & Orientation");
    EXPECT_STREQ(ast_dataitem_015_get_name(15161), "Track/Plot Number");
    // I015/605 carries the vertical acceleration under I015/604's title.
    EXPECT_STREQ(ast_dataitem_015_get_name(15605), "Vertical Velocity Information");
    EXPECT_STREQ(ast_dataitem_015_get_name(15631), "Contour (Azimuth, Elevation Angle, Range Extent)");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_015_get_name(15998), "Unknown CAT015 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I015/REF."));
}

TEST(Cat015, RecordScansBackToBack) {
    // One item per FRN of the standard UAP, in FRN order; compound items
    // carry some of their subfields.
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x10},                                            // I015/010
        {0x03},                                                  // I015/000
        {0x07},                                                  // I015/015
        {0x40},                                                  // I015/020
        {0x41, 0x40},                                            // I015/030
        {0x00, 0x96, 0x00},                                      // I015/145
        {0x12, 0x34},                                            // I015/161
        {0x80},                                                  // I015/170
        {0x00, 0x04},                                            // I015/050
        {0x90, 0x00, 0x64, 0x10, 0x00},                          // I015/270 LEN ORT
        {0x01, 0x03, 0x50},                                      // I015/300
        {0x00, 0x01, 0x00, 0x00, 0x2A},                          // I015/400
        {0xA0, 1, 2, 3, 4, 5, 6, 7, 8, 0, 0, 0, 0, 1},           // I015/600 P84 HPP
        {0x81, 0x80, 0x00, 0x03, 0xE8, 0x00, 0x00},              // I015/601 GH COGHHA
        {0x10, 0x01, 0x02, 0x03, 0x04},                          // I015/602 COHVHP
        {0x40, 0x00, 0x00, 0x00, 0x10},                          // I015/603 SDHA
        {0x28, 0x00, 0x10, 0x00, 0x00, 0x05},                    // I015/604 SDVV COVVHV
        {0x48, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00},              // I015/605 RSVA COVAHA
        {0x01, 0x00, 0x01, 0x00, 0x00, 0x02},                    // I015/480
        {0x83, 0x80, 1, 2, 3, 0x00, 0x04, 0, 0, 0, 5},           // I015/625 R RA SDRA
        {0x11, 0x20, 0x00, 0x10, 0x00, 0x7F},                    // I015/626 SDDA CODARA
        {0x04, 0x00, 0x00, 0x10, 0x00},                          // I015/627 AZEX
        {0x80, 0x10, 0x00},                                      // I015/628 EL
        {0x30, 0x00, 0x00, 0x20},                                // I015/630 RPP RPS
        {0x01, 1, 2, 3, 4, 5, 6, 7, 8},                          // I015/631
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 15), items.size());
    kovrel_test::expect_frn_items(15, items);
}
