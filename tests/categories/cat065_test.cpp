#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "kovrel/cat065.h"
#include "kovrel/core.h"
#include "kovrel/fspec.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;
using Octets = std::vector<uint8_t>;

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
    const std::vector<std::pair<AstItemId, uint64_t>> expected = {
        {65010, 2}, {65000, 1}, {65015, 1}, {65030, 3}, {65020, 1},
        {65040, 1}, {65050, 1}, {65998, 3}, {65999, 2}};

    AstFspec fspec;
    ast_fspec_decode(&fspec, record.data(), record.size());
    ASSERT_EQ(fspec.valid, 1);
    size_t pos = static_cast<size_t>(fspec.length);
    std::vector<std::pair<AstItemId, uint64_t>> scanned;
    for (uint32_t frn = 1; frn <= fspec.frn_count; ++frn) {
        if (!ast_fspec_is_set(&fspec, frn)) continue;
        AstDataItem item;
        ast_dataitem_scan(&item, record.data() + pos, record.size() - pos,
                          ast_uap_get_dataitem(&AST_UAP_STANDARD, 65, frn));
        ASSERT_EQ(item.valid, 1) << "FRN " << frn;
        scanned.emplace_back(item.id, item.length);
        pos += static_cast<size_t>(item.length);
    }
    EXPECT_EQ(scanned, expected);
    EXPECT_EQ(pos, record.size());

    // A record cut inside I065/030 stops the scan there.
    AstDataItem cut;
    ast_dataitem_scan(&cut, record.data() + 6, 2, 65030);
    EXPECT_EQ(cut.valid, 0);
    EXPECT_EQ(log.size(), 0u);
}
