#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "kovrel/cat065.h"
#include "kovrel/core.h"
#include "kovrel/fspec.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

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
