#include <gtest/gtest.h>

#include <vector>

#include "kovrel/cat016.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

TEST(Cat016, PropertyListsAndTheirCounts) {
    // Transmitters take 21 octets each, receivers 12, pairs 6.
    std::vector<uint8_t> o(64, 0x00);
    o[0] = 2;
    EXPECT_EQ(ast_dataitem_get_size(o.data(), o.size(), 16410), 43u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 42, 16410), 0u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), o.size(), 16420), 25u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 24, 16420), 0u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), o.size(), 16300), 13u);
    // A count far beyond the data, and an empty list.
    o[0] = 0xFF;
    EXPECT_EQ(ast_dataitem_get_size(o.data(), o.size(), 16410), 0u);
    o[0] = 0;
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 1, 16410), 1u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 0, 16410), 0u);
    // The reference point: latitude and longitude, four octets each.
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 8, 16400), 8u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 7, 16400), 0u);
}

TEST(Cat016, Names) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(16405), "Height of System Reference Point");
    EXPECT_STREQ(ast_dataitem_016_get_name(16200), "System Configuration Reporting Period");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_016_get_name(16020), "Unknown CAT016 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I016/020."));
}

TEST(Cat016, RecordScansBackToBack) {
    std::vector<uint8_t> tx(1 + 21, 0x11), rx(1 + 2 * 12, 0x22);
    tx[0] = 1;
    rx[0] = 2;
    // One item per FRN of the standard UAP, in FRN order.
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x16},                                      // I016/010
        {0x01},                                            // I016/015
        {0x01},                                            // I016/000
        {0x00, 0x96, 0x00},                                // I016/140
        {0x0A},                                            // I016/200
        {0x01, 0x00, 0x01, 0x00, 0x02, 0x00, 0x03},        // I016/300
        {0x1F, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00},  // I016/400
        {0x01, 0x00},                                      // I016/405
        tx,                                                // I016/410
        rx,                                                // I016/420
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 16), items.size());
    kovrel_test::expect_frn_items(16, items);
}
