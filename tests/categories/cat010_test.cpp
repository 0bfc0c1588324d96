#include <gtest/gtest.h>

#include <vector>

#include "kovrel/cat010.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

namespace {

uint64_t size_of(std::vector<uint8_t> o, AstItemId id, size_t available = SIZE_MAX) {
    return ast_dataitem_get_size(o.data(), available == SIZE_MAX ? o.size() : available, id);
}

}  // namespace

TEST(Cat010, ThreeOctetDescriptorsAndStatus) {
    LogCapture log;
    // I010/020, I010/170 and I010/270 reach three octets in edition 1.1.
    for (AstItemId id : {10020u, 10170u, 10270u}) {
        SCOPED_TRACE(id);
        EXPECT_EQ(size_of({0x40, 0xFF, 0xFF}, id), 1u);
        EXPECT_EQ(size_of({0x41, 0x01, 0x02, 0xFF}, id), 3u);
        EXPECT_EQ(size_of({0x41, 0x01}, id), 0u);
        EXPECT_EQ(size_of({0x41, 0x01, 0x01}, id), 0u);
    }
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(size_of({0x41, 0x01, 0x01, 0x00}, 10020), 3u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 3"));
}

TEST(Cat010, FixedAndRepetitiveItems) {
    const std::vector<uint8_t> seven = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08};
    EXPECT_EQ(size_of(seven, 10245), 7u);  // status octet and six characters
    EXPECT_EQ(size_of(seven, 10245, 6), 0u);
    EXPECT_EQ(size_of(seven, 10041), 8u);
    EXPECT_EQ(size_of(seven, 10041, 7), 0u);
    EXPECT_EQ(size_of(seven, 10500), 4u);
    // Presences are two octets, MB data eight.
    EXPECT_EQ(size_of({0x03, 1, 2, 3, 4, 5, 6}, 10280), 7u);
    EXPECT_EQ(size_of({0x03, 1, 2, 3, 4, 5}, 10280), 0u);
    std::vector<uint8_t> mb(17, 0x00);
    mb[0] = 2;
    EXPECT_EQ(size_of(mb, 10250), 17u);
    EXPECT_EQ(size_of(mb, 10250, 16), 0u);
}

TEST(Cat010, Names) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(10270), "Target Size and Orientation");
    EXPECT_STREQ(ast_dataitem_010_get_name(10200), "Calculated Track Velocity in Polar Co-ordinates");
    EXPECT_STREQ(ast_dataitem_010_get_name(10998), "Reserved Expansion Field");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_010_get_name(10997), "Unknown CAT010 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I010/RFS."));
    EXPECT_STREQ(ast_dataitem_010_get_name(20020), "Unknown CAT010 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I020/020."));
}

TEST(Cat010, RecordScansBackToBack) {
    // One item per FRN of the standard UAP (FRN 26 is spare), in FRN order.
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x07},                                      // I010/010
        {0x01},                                            // I010/000
        {0x21, 0x01, 0x80},                                // I010/020
        {0x00, 0x96, 0x00},                                // I010/140
        {0x1F, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00},  // I010/041
        {0x00, 0x10, 0x40, 0x00},                          // I010/040
        {0xFF, 0x00, 0x00, 0x20},                          // I010/042
        {0x00, 0x20, 0x80, 0x00},                          // I010/200
        {0x00, 0x01, 0xFF, 0xFF},                          // I010/202
        {0x01, 0x23},                                      // I010/161
        {0x41, 0x00},                                      // I010/170
        {0x0A, 0xBC},                                      // I010/060
        {0x40, 0x12, 0x34},                                // I010/220
        {0x00, 0x04, 0x20, 0xF1, 0xCB, 0x3C, 0x20},        // I010/245
        {0x01, 0, 0, 0, 0, 0, 0, 0, 0x20},                 // I010/250
        {0x02},                                            // I010/300
        {0x01, 0x40},                                      // I010/090
        {0x00, 0x64},                                      // I010/091
        {0x15, 0x2A},                                      // I010/270
        {0x00},                                            // I010/550
        {0x81},                                            // I010/310
        {0x01, 0x02, 0x00, 0x03},                          // I010/500
        {0x02, 0x01, 0x02, 0x03, 0x04},                    // I010/280
        {0x7F},                                            // I010/131
        {0x01, 0xFF},                                      // I010/210
        {},                                                // spare
        {0x02, 0x00},                                      // I010/SPF
        {0x03, 0x01, 0x02},                                // I010/REF
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 10), items.size());
    kovrel_test::expect_frn_items(10, items);
}
