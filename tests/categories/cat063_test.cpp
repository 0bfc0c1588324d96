#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "kovrel/cat063.h"
#include "kovrel/core.h"
#include "kovrel/fspec.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;
using Octets = std::vector<uint8_t>;

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
    const std::vector<std::pair<AstItemId, uint64_t>> expected = {
        {63010, 2}, {63015, 1}, {63030, 3}, {63050, 2}, {63060, 3}, {63070, 2}, {63080, 4},
        {63081, 2}, {63090, 4}, {63091, 2}, {63092, 2}, {63998, 2}, {63999, 1}};

    AstFspec fspec;
    ast_fspec_decode(&fspec, record.data(), record.size());
    ASSERT_EQ(fspec.valid, 1);
    size_t pos = static_cast<size_t>(fspec.length);
    std::vector<std::pair<AstItemId, uint64_t>> scanned;
    for (uint32_t frn = 1; frn <= fspec.frn_count; ++frn) {
        if (!ast_fspec_is_set(&fspec, frn)) continue;
        AstDataItem item;
        ast_dataitem_scan(&item, record.data() + pos, record.size() - pos,
                          ast_uap_get_dataitem(&AST_UAP_STANDARD, 63, frn));
        ASSERT_EQ(item.valid, 1) << "FRN " << frn;
        scanned.emplace_back(item.id, item.length);
        pos += static_cast<size_t>(item.length);
    }
    EXPECT_EQ(scanned, expected);
    EXPECT_EQ(pos, record.size());

    // The status chain has no bound but must end inside the data.
    const Octets open = {0x81, 0x09};
    EXPECT_EQ(ast_dataitem_get_size(open.data(), open.size(), 63060), 0u);
    EXPECT_EQ(ast_dataitem_get_size(open.data(), 1, 63080), 0u);
    EXPECT_EQ(log.size(), 0u);
}
