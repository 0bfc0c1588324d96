#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "kovrel/cat063.h"
#include "kovrel/core.h"
#include "kovrel/fspec.h"
#include "kovrel/items.h"
#include "kovrel/uap.h"
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
using kovrel_test::Scanned;
using kovrel_test::walk;

TEST(Cat063, NamesWithASilentFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_063_get_name(63030), "Time of Message");
    EXPECT_STREQ(ast_dataitem_063_get_name(63050), "Sensor Identifier");
    EXPECT_STREQ(ast_dataitem_063_get_name(63080), "SSR/Mode S Range Gain and Bias");
    EXPECT_STREQ(ast_dataitem_063_get_name(63081), "SSR/Mode S Azimuth Bias");
    EXPECT_STREQ(ast_dataitem_get_name(63092), "PSR Elevation Bias");
    EXPECT_STREQ(ast_dataitem_get_name(63998), "Reserved Expansion Field");
    EXPECT_STREQ(ast_dataitem_063_get_name(63000), "Unknown CAT063 Dataitem");
    EXPECT_STREQ(ast_dataitem_063_get_name(65040), "Unknown CAT063 Dataitem");
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat063, WholeRecordScansBackToBack) {
    LogCapture log;
    const Octets record = {
        0xFF, 0xF6,              // FSPEC: FRN 1-11, 13, 14
        0x01, 0x02,              // I063/010
        0x07,                    // I063/015
        0x00, 0x10, 0x00,        // I063/030
        0x03, 0x04,              // I063/050
        0x81, 0x09, 0x00,        // I063/060, three octets of a later edition
        0xFF, 0xF0,              // I063/070
        0x00, 0x01, 0xFF, 0xFE,  // I063/080
        0x00, 0x10,              // I063/081
        0x00, 0x02, 0x00, 0x03,  // I063/090
        0x00, 0x20,              // I063/091
        0x00, 0x30,              // I063/092
        0x02, 0xAA,              // I063/REF
        0x01,                    // I063/SPF (its length octet only)
    };
    const std::vector<Scanned> expected = {
        {63010, 2}, {63015, 1}, {63030, 3}, {63050, 2}, {63060, 3}, {63070, 2}, {63080, 4},
        {63081, 2}, {63090, 4}, {63091, 2}, {63092, 2}, {63998, 2}, {63999, 1}};

    size_t consumed = 0;
    EXPECT_EQ(walk(AST_UAP_STANDARD, 63, record, &consumed), expected);
    EXPECT_EQ(consumed, record.size());

    // The status chain has no bound but must end inside the data.
    const Octets open = {0x81, 0x09};
    EXPECT_EQ(ast_dataitem_get_size(open.data(), open.size(), 63060), 0u);
    EXPECT_EQ(ast_dataitem_get_size(open.data(), 1, 63080), 0u);
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat063, CommonItemsServeTheirRows) {
    LogCapture log;
    const Octets sensor = {0x03, 0x04};
    expect_row(63010, {0x01, 0x02}, "SAC:001 SIC:002", kShown | kCodec);
    expect_row(63015, {0x07}, "SVC_ID:007", kDecodeSummary | kCodec);
    expect_row(63030, {0x00, 0x10, 0x00}, "TOD:00:00:32.000", kShown | kCodec);
    expect_row(63050, sensor, "SAC:003 SIC:004", kShown | kCodec);
    expect_row(63998, {0x02, 0xAA}, "RESERVED_EXPANSION", kDecodeSummary);
    expect_row(63999, {0x01}, "SPECIAL_PURPOSE", kDecodeSummary);

    const AstDataItem item = scanned(63050, sensor);
    AstDataSourceIdentifier dsi{};
    AstDataItemValue value;
    ast_dataitem_decode(&value, &dsi, sizeof dsi - 1, &item);
    EXPECT_EQ(value.valid + dsi.valid, 0u);
    ast_dataitem_decode(&value, &dsi, sizeof dsi, &item);
    EXPECT_EQ(value.value, &dsi);
    EXPECT_EQ(dsi.sic, 4u);
    EXPECT_EQ(log.size(), 0u);
}
