#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "kovrel/cat023.h"
#include "kovrel/core.h"
#include "kovrel/fspec.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"
#include "support/served.h"

using kovrel_test::expect_row;
using kovrel_test::kCodec;
using kovrel_test::kDecodeSummary;
using kovrel_test::kShown;
using kovrel_test::LogCapture;
using kovrel_test::Octets;
using kovrel_test::Scanned;
using kovrel_test::walk;

namespace {

uint64_t size_of(AstItemId id, const Octets &o) { return ast_dataitem_get_size(o.data(), o.size(), id); }

uint64_t size_101(const Octets &o, size_t available) { return ast_dataitem_023_101_get_size(o.data(), available); }

}  // namespace

TEST(Cat023, NamesWithASilentFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_023_get_name(23000), "Report Type");
    EXPECT_STREQ(ast_dataitem_023_get_name(23015), "Service Type and Identification");
    EXPECT_STREQ(ast_dataitem_023_get_name(23101), "Ground Station Configuration");
    EXPECT_STREQ(ast_dataitem_023_get_name(23120), "Service Statistics");
    EXPECT_STREQ(ast_dataitem_get_name(23200), "Operational Range");
    EXPECT_STREQ(ast_dataitem_get_name(23999), "Special Purpose Field");

    EXPECT_STREQ(ast_dataitem_023_get_name(23050), "Unknown CAT023 Dataitem");
    EXPECT_STREQ(ast_dataitem_023_get_name(23997), "Unknown CAT023 Dataitem");
    EXPECT_STREQ(ast_dataitem_023_get_name(4000), "Unknown CAT023 Dataitem");
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat023, ConfigurationSizeStartsItsChainInOctetTwo) {
    LogCapture log;
    // Octet 1 is the report period: its low bit is data, not an FX bit.
    EXPECT_EQ(size_101({0x01, 0x20, 0xFF}, 3), 2u);
    EXPECT_EQ(size_101({0x00, 0x21, 0x14}, 3), 3u);
    EXPECT_EQ(size_101({0x00, 0x21, 0x14, 0x99}, 4), 3u);
    // Too short: one octet, or FX in octet 2 without octet 3.
    EXPECT_EQ(size_101({0x01}, 1), 0u);
    EXPECT_EQ(size_101({0x00, 0x21}, 2), 0u);
    EXPECT_EQ(size_101({0x00, 0x20}, 0), 0u);
    EXPECT_EQ(ast_dataitem_023_101_get_size(nullptr, 3), 0u);
    EXPECT_EQ(log.size(), 0u);

    // Three octets at most: an FX bit still set in octet 3 is logged and the
    // item ends there anyway.
    EXPECT_EQ(size_101({0x00, 0x21, 0x15, 0x00}, 4), 3u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem I023/101 length exceed max: 3"));
    log.clear();
    EXPECT_EQ(size_101({0x00, 0x21, 0x15}, 3), 3u);
    EXPECT_EQ(log.size(), 1u);

    // The dispatch row uses the same rule.
    EXPECT_EQ(size_of(23101, {0x01, 0x20}), 2u);
    EXPECT_EQ(size_of(23101, {0x00, 0x21, 0x14}), 3u);
}

TEST(Cat023, StatusAndStatisticsSizes) {
    LogCapture log;
    // Ground station status and service status extend by FX without a bound.
    EXPECT_EQ(size_of(23100, {0x40}), 1u);
    EXPECT_EQ(size_of(23100, {0x81, 0x0A}), 2u);
    EXPECT_EQ(size_of(23110, {0x03, 0x01, 0x01, 0x00}), 4u);
    EXPECT_EQ(size_of(23110, {0x03, 0x01}), 0u);

    // Service statistics: 1 + 6 x REP.
    Octets stats(13, 0);
    stats[0] = 2;
    EXPECT_EQ(size_of(23120, stats), 13u);
    stats.pop_back();
    EXPECT_EQ(size_of(23120, stats), 0u);
    EXPECT_EQ(size_of(23120, {0x00}), 1u);

    EXPECT_EQ(size_of(23015, {0x1A}), 1u);
    EXPECT_EQ(size_of(23070, {0x00, 0x00}), 0u);
    EXPECT_EQ(size_of(23998, {0x05, 0x00}), 5u);  // length octet as it stands
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat023, WholeRecordScansBackToBack) {
    LogCapture log;
    const Octets record = {
        0xFF, 0xC2,                                                  // FSPEC: FRN 1-7, 8, 9, 14
        0x01, 0x02,                                                  // I023/010
        0x03,                                                        // I023/000
        0x1A,                                                        // I023/015
        0x01, 0x02, 0x03,                                            // I023/070
        0x01, 0x0A,                                                  // I023/100
        0x00, 0x21, 0x14,                                            // I023/101
        0xFA,                                                        // I023/200
        0x08,                                                        // I023/110
        0x01, 0x05, 0x80, 0x00, 0x00, 0x01, 0x00,                    // I023/120
        0x03, 0x11, 0x22,                                            // I023/SPF
    };
    const std::vector<Scanned> expected = {
        {23010, 2}, {23000, 1}, {23015, 1}, {23070, 3}, {23100, 2},
        {23101, 3}, {23200, 1}, {23110, 1}, {23120, 7}, {23999, 3}};

    size_t consumed = 0;
    EXPECT_EQ(walk(AST_UAP_STANDARD, 23, record, &consumed), expected);
    EXPECT_EQ(consumed, record.size());
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat023, CommonItemsServeTheirRows) {
    LogCapture log;
    // Shown, read and written through the common items; the report type
    // is summarised by the category.
    expect_row(23010, {0x19, 0x0C}, "SAC:025 SIC:012", kShown | kCodec);
    expect_row(23070, {0xA8, 0xBF, 0xFF}, "TOD:23:59:59.992", kShown | kCodec);
    expect_row(23000, {0x02}, "RPT_TYPE:SERVICE_STATUS", AST_DATAITEM_CAP_SUMMARY | kCodec);
    expect_row(23998, {0x02, 0xAA}, "RESERVED_EXPANSION", kDecodeSummary);
    expect_row(23999, {0x01}, "SPECIAL_PURPOSE", kDecodeSummary);
    EXPECT_EQ(log.size(), 0u);
}
