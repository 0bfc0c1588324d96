#include <gtest/gtest.h>

#include <vector>

#include "kovrel/cat008.h"
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

TEST(Cat008, ProcessingStatusHasAThreeOctetFirstPart) {
    LogCapture log;
    // Bit 1 of the first two octets belongs to R and Q, not to an FX bit:
    // clear bits there must not end the item early, set ones must not extend it.
    EXPECT_EQ(size_of({0x00, 0x00, 0x00, 0xEE}, 8100), 3u);
    EXPECT_EQ(size_of({0x01, 0x01, 0x00, 0xEE}, 8100), 3u);
    EXPECT_EQ(size_of({0x00, 0x00}, 8100), 0u);
    EXPECT_EQ(ast_dataitem_008_100_get_size(nullptr, 8), 0u);
    EXPECT_EQ(log.size(), 0u);
    // FX of the third octet: cut off when nothing follows, else the record
    // goes on after the three octets defined.
    EXPECT_EQ(size_of({0x00, 0x00, 0x01}, 8100), 0u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(size_of({0x00, 0x00, 0x01, 0x00}, 8100), 3u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 3"));
}

TEST(Cat008, VariableAndRepetitiveItems) {
    LogCapture log;
    // I008/020: two octets at most.
    EXPECT_EQ(size_of({0x10, 0xFF}, 8020), 1u);
    EXPECT_EQ(size_of({0x11, 0x02, 0xFF}, 8020), 2u);
    EXPECT_EQ(size_of({0x11, 0x03}, 8020), 0u);
    EXPECT_EQ(size_of({0x11, 0x03, 0x00}, 8020), 2u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 2"));
    // I008/110: a status chain of any length, undelimitable while it runs on.
    std::vector<uint8_t> chain(40, 0x03);
    chain.back() = 0x02;
    EXPECT_EQ(size_of(chain, 8110), 40u);
    EXPECT_EQ(size_of(chain, 8110, 39), 0u);
    // Cartesian vectors are three octets, polar and weather vectors four,
    // contour points two.
    EXPECT_EQ(size_of({2, 1, 2, 3, 4, 5, 6}, 8036), 7u);
    EXPECT_EQ(size_of({2, 1, 2, 3, 4, 5, 6}, 8034), 0u);
    EXPECT_EQ(size_of({2, 1, 2, 3, 4, 5, 6, 7, 8}, 8034), 9u);
    EXPECT_EQ(size_of({2, 1, 2, 3, 4, 5, 6, 7, 8}, 8038), 9u);
    EXPECT_EQ(size_of({3, 1, 2, 3, 4, 5, 6}, 8050), 7u);
    EXPECT_EQ(size_of({0}, 8036), 1u);
}

TEST(Cat008, ExplicitFieldsAndNames) {
    LogCapture log;
    // SP and RFS fields report their length octet; the scan refuses what
    // ends beyond the data.
    const uint8_t sp[] = {0x05, 0xAA};
    EXPECT_EQ(ast_dataitem_get_size(sp, sizeof sp, 8999), 5u);
    EXPECT_EQ(ast_dataitem_get_size(sp, sizeof sp, 8997), 5u);
    AstDataItem item;
    ast_dataitem_scan(&item, sp, sizeof sp, 8997);
    EXPECT_EQ(item.valid, 0);
    const uint8_t rfs[] = {0x02, 0xAA, 0xBB};
    ast_dataitem_scan(&item, rfs, sizeof rfs, 8997);
    EXPECT_EQ(item.valid, 1);
    EXPECT_EQ(item.length, 2u);

    EXPECT_STREQ(ast_dataitem_get_name(8120), "Total Number of Items Constituting One Weather Picture");
    EXPECT_STREQ(ast_dataitem_008_get_name(8997), "Random Field Sequencing");
    EXPECT_STREQ(ast_dataitem_008_get_name(8036), "Sequence of Cartesian Vectors in SPF Notation");
    EXPECT_EQ(log.size(), 0u);
    // CAT008 has no Reserved Expansion Field.
    EXPECT_STREQ(ast_dataitem_008_get_name(8998), "Unknown CAT008 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I008/REF."));
    EXPECT_STREQ(ast_dataitem_008_get_name(48010), "Unknown CAT008 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I048/010."));
}

TEST(Cat008, RecordScansBackToBack) {
    // One item per FRN of the standard UAP, in FRN order.
    const std::vector<std::vector<uint8_t>> items = {
        {0x19, 0x01},                                      // I008/010
        {0x01},                                            // I008/000
        {0x13, 0x02},                                      // I008/020
        {0x01, 0x10, 0x20, 0x05},                          // I008/036
        {0x01, 0x0A, 0x14, 0x40, 0x00},                    // I008/034
        {0x91, 0x07},                                      // I008/040
        {0x02, 0x01, 0x02, 0x03, 0x04},                    // I008/050
        {0x01, 0x02, 0x03},                                // I008/090
        {0x20, 0x00, 0x10},                                // I008/100
        {0x01, 0x01, 0x00},                                // I008/110
        {0x00, 0x2A},                                      // I008/120
        {0x01, 0x0A, 0x14, 0x1E, 0x28},                    // I008/038
        {0x03, 0xAB, 0xCD},                                // I008/SPF
        {0x02, 0x00},                                      // I008/RFS
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 8), items.size());
    kovrel_test::expect_frn_items(8, items);
}
