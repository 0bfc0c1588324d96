#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "kovrel/cat065.h"
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

TEST(Cat065, NamesWithASilentFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_065_get_name(65000), "Message Type");
    EXPECT_STREQ(ast_dataitem_065_get_name(65030), "Time of Day");
    EXPECT_STREQ(ast_dataitem_065_get_name(65040), "SDPS Configuration and Status");
    EXPECT_STREQ(ast_dataitem_get_name(65050), "Service Status Report");
    EXPECT_STREQ(ast_dataitem_get_name(65999), "Special Purpose Field");
    EXPECT_STREQ(ast_dataitem_065_get_name(65060), "Unknown CAT065 Dataitem");
    EXPECT_STREQ(ast_dataitem_065_get_name(63060), "Unknown CAT065 Dataitem");
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat065, WholeRecordScansBackToBack) {
    LogCapture log;
    const Octets record = {
        0xFF, 0x06,        // FSPEC: FRN 1-7, 13, 14
        0x01, 0x02,        // I065/010
        0x02,              // I065/000
        0x11,              // I065/015
        0x00, 0x20, 0x00,  // I065/030
        0x2A,              // I065/020
        0x24,              // I065/040
        0x80,              // I065/050
        0x03, 0x01, 0x02,  // I065/REF
        0x02, 0x09,        // I065/SPF
    };
    const std::vector<Scanned> expected = {
        {65010, 2}, {65000, 1}, {65015, 1}, {65030, 3}, {65020, 1},
        {65040, 1}, {65050, 1}, {65998, 3}, {65999, 2}};

    size_t consumed = 0;
    EXPECT_EQ(walk(AST_UAP_STANDARD, 65, record, &consumed), expected);
    EXPECT_EQ(consumed, record.size());

    // A record cut inside I065/030 stops the scan there.
    AstDataItem cut;
    ast_dataitem_scan(&cut, record.data() + 6, 2, 65030);
    EXPECT_EQ(cut.valid, 0);
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat065, CommonItemsServeTheirRows) {
    LogCapture log;
    const Octets end_of_batch = {0x02};
    expect_row(65000, end_of_batch, nullptr, kCodec);  // the category summarises it; no view
    expect_row(65010, {0x01, 0x02}, "SAC:001 SIC:002", kShown | kCodec);
    expect_row(65015, {0x11}, "SVC_ID:017", kDecodeSummary | kCodec);
    expect_row(65030, {0x00, 0x20, 0x00}, "TOD:00:01:04.000", kShown | kCodec);
    expect_row(65998, {0x03, 0x01, 0x02}, "RESERVED_EXPANSION", kDecodeSummary);
    expect_row(65999, {0x02, 0x09}, "SPECIAL_PURPOSE", kDecodeSummary);

    const AstDataItem item = scanned(65000, end_of_batch);
    AstMessageType type{};
    AstDataItemValue value;
    ast_dataitem_decode(&value, &type, sizeof type - 1, &item);
    EXPECT_EQ(value.valid + type.valid, 0u);
    ast_dataitem_decode(&value, &type, sizeof type, &item);
    EXPECT_EQ(value.value, &type);
    EXPECT_EQ(type.value, 2u);
    EXPECT_EQ(log.size(), 0u);
}
