#include <gtest/gtest.h>

#include <vector>

#include "kovrel/cat020.h"
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

TEST(Cat020, DescriptorAndStatusChains) {
    LogCapture log;
    // The descriptor's third octet (CF) follows a second one with FX set.
    EXPECT_EQ(size_of({0x41, 0x01, 0xC0, 0xFF}, 20020), 3u);
    EXPECT_EQ(size_of({0x41, 0x00, 0xFF}, 20020), 2u);
    EXPECT_EQ(size_of({0x41, 0x01, 0xC1}, 20020), 0u);
    // Track status stops at two octets.
    EXPECT_EQ(size_of({0x01, 0x00, 0xFF}, 20170), 2u);
    EXPECT_EQ(size_of({0x01, 0x01}, 20170), 0u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(size_of({0x01, 0x01, 0x00}, 20170), 2u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 2"));
    // Warning/error conditions chain on without bound.
    std::vector<uint8_t> chain(30, 0x0B);
    chain.back() = 0x0A;
    EXPECT_EQ(size_of(chain, 20030), 30u);
    EXPECT_EQ(size_of(chain, 20030, 29), 0u);
}

TEST(Cat020, FixedAndRepetitiveItems) {
    std::vector<uint8_t> o(32, 0x00);
    EXPECT_EQ(size_of(o, 20042, 6), 6u);
    EXPECT_EQ(size_of(o, 20042, 5), 0u);
    EXPECT_EQ(size_of(o, 20260, 7), 7u);
    EXPECT_EQ(size_of(o, 20100, 4), 4u);
    o[0] = 3;
    EXPECT_EQ(size_of(o, 20400), 4u);  // one octet per repetition
    EXPECT_EQ(size_of(o, 20250), 25u);
    EXPECT_EQ(size_of(o, 20250, 24), 0u);
}

TEST(Cat020, PositionAccuracyCompound) {
    LogCapture log;
    // DOP and SDH: primary octet, six octets, two octets.
    const uint8_t dop_sdh[] = {0xA0, 0, 4, 0, 4, 0, 1, 0x00, 0x0A, 0xEE};
    EXPECT_EQ(ast_dataitem_get_size(dop_sdh, sizeof dop_sdh, 20500), 9u);
    const uint8_t all[16] = {0xE0};
    EXPECT_EQ(ast_dataitem_020_500_get_size(all, sizeof all), 15u);
    const uint8_t open[] = {0x81, 0x81};
    EXPECT_EQ(ast_dataitem_020_500_get_size(open, sizeof open), 0u);

    AstDataItem item;
    ast_dataitem_scan(&item, dop_sdh, sizeof dop_sdh, 20500);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    ASSERT_EQ(list.span_count, 3u);
    EXPECT_EQ(list.spans[1].present, 0);
    EXPECT_EQ(list.spans[2].data, dop_sdh + 7);
    EXPECT_EQ(list.spans[2].length, 2u);

    EXPECT_EQ(ast_dataitem_subfields_get_number(20500), 3u);
    EXPECT_STREQ(ast_subfield_get_id(20500002), "SDP");
    EXPECT_STREQ(ast_subfield_get_name(20500003), "Standard Deviation of Geometric Height (WGS 84)");
    EXPECT_STREQ(ast_subfield_020_500_get_id(20500004), "---");
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat020, Names) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(20250), "BDS Register Data");
    EXPECT_STREQ(ast_dataitem_020_get_name(20041), "Position In WGS-84 Coordinates");
    EXPECT_STREQ(ast_dataitem_020_get_name(20500), "Position Accuracy");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_020_get_name(20040), "Unknown CAT020 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I020/040."));
}

TEST(Cat020, RecordScansBackToBack) {
    // One item per FRN of the standard UAP, in FRN order.
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x14},                                      // I020/010
        {0x41, 0x01, 0xC0},                                // I020/020
        {0x00, 0x96, 0x00},                                // I020/140
        {0x1F, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00},  // I020/041
        {0x00, 0x10, 0x00, 0xFF, 0xF0, 0x00},              // I020/042
        {0x01, 0x23},                                      // I020/161
        {0x01, 0x40},                                      // I020/170
        {0x0A, 0xBC},                                      // I020/070
        {0x00, 0x10, 0xFF, 0xF0},                          // I020/202
        {0x01, 0x40},                                      // I020/090
        {0x00, 0x12, 0x00, 0x00},                          // I020/100
        {0x40, 0x12, 0x34},                                // I020/220
        {0x00, 0x04, 0x20, 0xF1, 0xCB, 0x3C, 0x20},        // I020/245
        {0x00, 0x64},                                      // I020/110
        {0x00, 0x65},                                      // I020/105
        {0x01, 0xFF},                                      // I020/210
        {0x02},                                            // I020/300
        {0x81},                                            // I020/310
        {0x40, 0x00, 0x08, 0x00, 0x08, 0x00, 0x01},        // I020/500 SDP
        {0x02, 0xF0, 0x0F},                                // I020/400
        {0x01, 0, 0, 0, 0, 0, 0, 0, 0x30},                 // I020/250
        {0x20, 0x10},                                      // I020/230
        {0, 0, 0, 0, 0, 0, 0},                             // I020/260
        {0x03, 0x04},                                      // I020/030
        {0x12},                                            // I020/055
        {0x01, 0x23},                                      // I020/050
        {0x02, 0x00},                                      // I020/REF
        {0x01},                                            // I020/SPF
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 20), items.size());
    kovrel_test::expect_frn_items(20, items);
}
