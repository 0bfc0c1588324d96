#include <gtest/gtest.h>

#include <vector>

#include "kovrel/cat019.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

TEST(Cat019, TransponderAndSensorStatus) {
    LogCapture log;
    // I019/553: two octets, each with the status of two transponders.
    const uint8_t one[] = {0x44, 0x55};
    EXPECT_EQ(ast_dataitem_get_size(one, sizeof one, 19553), 1u);
    const uint8_t two[] = {0x45, 0x44, 0x55};
    EXPECT_EQ(ast_dataitem_get_size(two, sizeof two, 19553), 2u);
    const uint8_t open[] = {0x45, 0x45};
    EXPECT_EQ(ast_dataitem_get_size(open, sizeof open, 19553), 0u);
    EXPECT_EQ(log.size(), 0u);
    const uint8_t more[] = {0x45, 0x45, 0x44};
    EXPECT_EQ(ast_dataitem_get_size(more, sizeof more, 19553), 2u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 2"));
    // I019/552: identifier and status octet per remote sensor.
    const uint8_t sensors[] = {0x03, 1, 0x70, 2, 0x70, 3, 0x70};
    EXPECT_EQ(ast_dataitem_get_size(sensors, sizeof sensors, 19552), 7u);
    EXPECT_EQ(ast_dataitem_get_size(sensors, 6, 19552), 0u);
    // The RE field reports its length octet; the scan refuses it when short.
    const uint8_t re[] = {0x04, 0x01, 0x02};
    EXPECT_EQ(ast_dataitem_get_size(re, sizeof re, 19998), 4u);
    AstDataItem item;
    ast_dataitem_scan(&item, re, sizeof re, 19998);
    EXPECT_EQ(item.valid, 0);
}

TEST(Cat019, NamesAndSpareFrns) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(19620), "WGS-84 Undulation");
    EXPECT_STREQ(ast_dataitem_019_get_name(19600), "Position of the MLT System Reference Point");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_019_get_name(19997), "Unknown CAT019 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I019/RFS."));
    // FRNs 11 and 12 are spare: nothing there can be scanned.
    const uint8_t o[] = {0x00, 0x00};
    AstDataItem item;
    ast_dataitem_scan(&item, o, sizeof o, ast_uap_get_dataitem(&AST_UAP_STANDARD, 19, 11));
    EXPECT_EQ(item.valid, 0);
}

TEST(Cat019, RecordScansBackToBack) {
    // One item per FRN of the standard UAP (FRNs 11 and 12 are spare).
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x13},                                      // I019/010
        {0x02},                                            // I019/000
        {0x00, 0x96, 0x00},                                // I019/140
        {0x80},                                            // I019/550
        {0x80},                                            // I019/551
        {0x02, 0x01, 0x70, 0x02, 0x70},                    // I019/552
        {0x45, 0x44},                                      // I019/553
        {0x1F, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00},  // I019/600
        {0x00, 0x80},                                      // I019/610
        {0xF0},                                            // I019/620
        {},                                                // spare
        {},                                                // spare
        {0x03, 0x01, 0x02},                                // I019/REF
        {0x01},                                            // I019/SPF
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 19), items.size());
    kovrel_test::expect_frn_items(19, items);
}
