#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "kovrel/cat240.h"
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
using Octets = std::vector<uint8_t>;
using Items = std::vector<std::pair<AstItemId, uint64_t>>;

namespace {

uint64_t size_of(AstItemId id, const Octets &o) { return ast_dataitem_get_size(o.data(), o.size(), id); }

// Scans the items of a CAT240 record in FRN order; `consumed` is where the
// last delimited item ended.
Items walk(const Octets &record, size_t *consumed) {
    Items items;
    AstFspec fspec;
    ast_fspec_decode(&fspec, record.data(), record.size());
    size_t pos = fspec.valid == 1 ? static_cast<size_t>(fspec.length) : 0;
    for (uint32_t frn = 1; fspec.valid == 1 && frn <= fspec.frn_count; ++frn) {
        if (!ast_fspec_is_set(&fspec, frn)) continue;
        AstDataItem item;
        ast_dataitem_scan(&item, record.data() + pos, record.size() - pos,
                          ast_uap_get_dataitem(&AST_UAP_STANDARD, 240, frn));
        if (item.valid != 1) break;
        items.emplace_back(item.id, item.length);
        pos += static_cast<size_t>(item.length);
    }
    *consumed = pos;
    return items;
}

}  // namespace

TEST(Cat240, NamesWithASilentFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_240_get_name(240020), "Video Record Header");
    EXPECT_STREQ(ast_dataitem_240_get_name(240041), "Video Header Femto");
    EXPECT_STREQ(ast_dataitem_240_get_name(240048), "Video Cells Resolution & Data Compression Indicator");
    EXPECT_STREQ(ast_dataitem_240_get_name(240049), "Video Octets & Video Cells Counters");
    EXPECT_STREQ(ast_dataitem_240_get_name(240052), "Video Block High Data Volume");
    EXPECT_STREQ(ast_dataitem_240_get_name(240140), "Time of Day");
    EXPECT_STREQ(ast_dataitem_get_name(240051), "Video Block Medium Data Volume");
    EXPECT_STREQ(ast_dataitem_get_name(240998), "Reserved Expansion Field");
    EXPECT_STREQ(ast_dataitem_get_name(240999), "Special Purpose Field");

    for (AstItemId id : {240001u, 240042u, 240047u, 240053u, 240139u, 240141u})
        EXPECT_STREQ(ast_dataitem_240_get_name(id), "Unknown CAT240 Dataitem") << id;
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat240, VideoBlockSizes) {
    LogCapture log;
    EXPECT_EQ(size_of(240050, {0x00}), 1u);
    EXPECT_EQ(size_of(240050, {0x01, 0xAA, 0x55, 0xAA, 0x55}), 5u);
    EXPECT_EQ(size_of(240050, {0x02, 0xAA, 0x55, 0xAA, 0x55}), 0u);

    Octets medium(1 + 2 * 64, 0x11);
    medium[0] = 2;
    EXPECT_EQ(size_of(240051, medium), 129u);
    EXPECT_EQ(ast_dataitem_get_size(medium.data(), 128, 240051), 0u);

    // The high-volume block is delimited even with REP 255; refusing that
    // count is left to its decoder.
    Octets high(1 + 255 * 256, 0x0F);
    high[0] = 255;
    EXPECT_EQ(size_of(240052, high), 65281u);
    EXPECT_EQ(ast_dataitem_get_size(high.data(), high.size() - 1, 240052), 0u);
    high[0] = 1;
    EXPECT_EQ(size_of(240052, high), 257u);

    // Video summary: REP characters.
    EXPECT_EQ(size_of(240030, {0x03, 'a', 'b', 'c', 'd'}), 4u);
    EXPECT_EQ(size_of(240030, {0x05, 'a', 'b'}), 0u);
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat240, WholeRecordsScanBackToBack) {
    LogCapture log;
    Octets video = {
        0xE7, 0xC8,                                            // FSPEC: FRN 1 2 3 6 7, 8 9 12
        0x07, 0x01,                                            // I240/010
        0x02,                                                  // I240/000 video message
        0x00, 0x00, 0x00, 0x2A,                                // I240/020
        0x10, 0x00, 0x10, 0x20, 0x00, 0x00, 0x00, 0x00,        // I240/041
        0x00, 0x00, 0x03, 0xE8,
        0x00, 0x04,                                            // I240/048 RES 4
        0x00, 0x08, 0x00, 0x00, 0x08,                          // I240/049
        0x02, 0x00, 0x05, 0x00, 0xFF, 0x01, 0x02, 0x03, 0x04,  // I240/050
        0x00, 0x10, 0x00,                                      // I240/140
    };
    size_t consumed = 0;
    EXPECT_EQ(walk(video, &consumed), (Items{{240010, 2},
                                            {240000, 1},
                                            {240020, 4},
                                            {240041, 12},
                                            {240048, 2},
                                            {240049, 5},
                                            {240050, 9},
                                            {240140, 3}}));
    EXPECT_EQ(consumed, video.size());

    // A block whose REP claims more than the record holds stops the scan.
    video[28] = 0x03;
    EXPECT_EQ(walk(video, &consumed).size(), 6u);
    EXPECT_EQ(consumed, 28u);

    const Octets summary = {0x50, 0x01, 0x04, 'S', 'C', 'A', 'N'};  // I240/000, I240/030
    EXPECT_EQ(walk(summary, &consumed), (Items{{240000, 1}, {240030, 5}}));
    EXPECT_EQ(consumed, summary.size());
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat240, CommonItemsServeTheirRows) {
    LogCapture log;
    const Octets video = {0x02};
    expect_row(240000, video, nullptr, kCodec);  // the category summarises it; no view
    expect_row(240010, {0x07, 0x01}, "SAC:007 SIC:001", kShown | kCodec);
    expect_row(240140, {0x00, 0x10, 0x00}, "TOD:00:00:32.000", kShown | kCodec);
    expect_row(240998, {0x02, 0x00}, "RESERVED_EXPANSION", kDecodeSummary);
    expect_row(240999, {0x01}, "SPECIAL_PURPOSE", kDecodeSummary);

    const AstDataItem item = scanned(240000, video);
    AstMessageType type{};
    AstDataItemValue value;
    ast_dataitem_decode(&value, &type, sizeof type - 1, &item);
    EXPECT_EQ(value.valid + type.valid, 0u);
    ast_dataitem_decode(&value, &type, sizeof type, &item);
    EXPECT_EQ(value.value, &type);
    EXPECT_EQ(type.value, 2u);
    EXPECT_EQ(log.size(), 0u);
}
