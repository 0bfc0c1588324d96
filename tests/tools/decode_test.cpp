// The tool's block handling: cutting chunks into blocks, and the reasons it
// gives for bad blocks.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <string>

#include "blocks.h"
#include "decode.h"
#include "tools/capture_builder.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

std::vector<BlockSlice> split(const Octets &o, Location where = {}) {
    Chunk c;
    c.where = where;
    c.data = o.data();
    c.size = o.size();
    return split_blocks(c);
}

std::string reason(const Octets &o, const AstUap *uap = &AST_UAP_STANDARD) {
    BlockDecoder d(uap);
    const BlockOutcome out = d.decode(o.data(), o.size());
    EXPECT_FALSE(out.valid);
    return out.reason;
}

}  // namespace

TEST(ToolBlocks, SplitsBackToBackBlocks) {
    const Octets a = sacsic_block(1), b = sacsic_block(2, 3);
    const auto slices = split(concat({a, b, a}), Location{7, 10});
    ASSERT_EQ(slices.size(), 3u);
    EXPECT_EQ(slices[0].where.packet, 7u);
    EXPECT_EQ(slices[0].where.offset, 10u);
    EXPECT_EQ(slices[1].where.offset, 10u + a.size());
    EXPECT_EQ(slices[2].where.offset, 10u + a.size() + b.size());
    EXPECT_EQ(slices[1].size, b.size());
    EXPECT_EQ(slices[1].len, b.size());
    for (const auto &s : slices) EXPECT_EQ(s.problem, SliceProblem::None);
    EXPECT_TRUE(split(Octets{}).empty());
}

TEST(ToolBlocks, StopsWhereTheNextBlockIsUnknown) {
    const Octets a = sacsic_block(1);
    // LEN beyond the data: the slice is what is left, and nothing follows.
    auto s = split(concat({a, {0x30, 0x00, 0x40, 0x80, 0x19}}));
    ASSERT_EQ(s.size(), 2u);
    EXPECT_EQ(s[1].problem, SliceProblem::LengthTooLarge);
    EXPECT_EQ(s[1].len, 0x40u);
    EXPECT_EQ(s[1].size, 5u);
    // At the boundary: LEN one over what is left, and exactly what is left.
    s = split(Octets{0x30, 0x00, 0x07, 0x80, 0x19, 0x01});
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0].problem, SliceProblem::LengthTooLarge);
    EXPECT_EQ(s[0].size, 6u);
    s = split(Octets{0x30, 0x00, 0x06, 0x80, 0x19, 0x01});
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0].problem, SliceProblem::None);
    // LEN below 3 cannot step on.
    s = split(concat({{0x30, 0x00, 0x02}, a}));
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0].problem, SliceProblem::LengthTooSmall);
    EXPECT_EQ(s[0].size, 3u + a.size());
    // Two octets after the last block.
    s = split(concat({a, {0x30, 0x00}}));
    ASSERT_EQ(s.size(), 2u);
    EXPECT_EQ(s[1].problem, SliceProblem::ShortHeader);
    EXPECT_EQ(s[1].size, 2u);
    EXPECT_EQ(s[1].where.offset, a.size());
    // Exactly LEN 3: an empty block is a block.
    s = split(Octets{0x30, 0x00, 0x03, 0x30, 0x00, 0x03});
    ASSERT_EQ(s.size(), 2u);
    EXPECT_EQ(s[1].problem, SliceProblem::None);
}

TEST(ToolDecode, HeaderReasons) {
    EXPECT_EQ(reason({0x30, 0x00}), "only 2 octets, a block header takes 3");
    EXPECT_EQ(reason({0x30}), "only 1 octet, a block header takes 3");
    // A category the library does not know is named, with one profile or smartly.
    EXPECT_EQ(reason({0x1E, 0x00, 0x06, 0x80, 0x19, 0x01}), "category 030 is not supported");
    EXPECT_EQ(reason({0x1E, 0x00, 0x06, 0x80, 0x19, 0x01}, nullptr), "category 030 is not supported");
    EXPECT_EQ(reason({0xFF, 0x00, 0x04, 0x00}, nullptr), "category 255 is not supported");
    EXPECT_EQ(reason({0x30, 0x00, 0x02}), "LEN 2 is below 3");
    EXPECT_EQ(reason({0x30, 0x00, 0x10, 0x80, 0x19, 0x01}), "LEN 16 exceeds the 6 octets available");
    EXPECT_EQ(reason(sacsic_block(1, 65)), "more than 64 records");
}

TEST(ToolDecode, RecordReasonsNameRecordAndItem) {
    // I048/130 announces three subfields and holds two.
    EXPECT_EQ(reason({0x30, 0x00, 0x09, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06}),
              "record 1 at octet 3: after I048/010, I048/130 (FRN 7) cannot be delimited in the 3 octets left");
    // The second record fails at its first item.
    EXPECT_EQ(reason({0x30, 0x00, 0x08, 0x80, 0x19, 0x01, 0x40, 0x46}),
              "record 2 at octet 6: after the FSPEC, I048/140 (FRN 2) cannot be delimited in the 1 octet left");
    // FRN 2 of CAT062 is spare.
    EXPECT_EQ(reason({0x3E, 0x00, 0x06, 0xC0, 0x19, 0x64}),
              "record 1 at octet 3: after I062/010, FRN 2 is spare or undefined in profile standard");
    // I002/070 stands in the profile, but the library cannot size it.
    EXPECT_EQ(reason({0x02, 0x00, 0x08, 0x81, 0x80, 0x19, 0x02, 0x01}),
              "record 1 at octet 3: after I002/010, I002/070 (FRN 8) is not known to the library");
    // An SP field (FRN 27) longer than what is left.
    EXPECT_EQ(reason({0x30, 0x00, 0x09, 0x01, 0x01, 0x01, 0x04, 0x10, 0x00}),
              "record 1 at octet 3: after the FSPEC, I048/SPF (FRN 27) claims 16 octets, 2 left");
    // FSPEC problems.
    EXPECT_EQ(reason({0x30, 0x00, 0x05, 0x01, 0x01}), "record 1 at octet 3: FSPEC runs past LEN");
    EXPECT_EQ(reason({0x30, 0x00, 0x04, 0x00}), "record 1 at octet 3: FSPEC announces no item");
    // Given more octets than LEN, a record may run past it.
    EXPECT_EQ(reason({0x30, 0x00, 0x05, 0x80, 0x19, 0x01}),
              "record 1 at octet 3 ends at octet 6, past LEN 5");
}

TEST(ToolDecode, FailedRecordKeepsWhatWasRead) {
    const Octets bad = {0x30, 0x00, 0x0C, 0x80, 0x19, 0x01, 0x82, 0x19, 0x02, 0xE0, 0x29, 0x06};
    BlockDecoder d(&AST_UAP_STANDARD);
    const BlockOutcome out = d.decode(bad.data(), bad.size());
    ASSERT_FALSE(out.valid);
    ASSERT_EQ(out.block->record_count, 1u);
    ASSERT_NE(out.failed, nullptr);
    EXPECT_EQ(out.failed->index, 1u);
    EXPECT_EQ(out.failed->offset, 6u);
    EXPECT_EQ(out.failed->record.valid, 0);
    ASSERT_EQ(out.failed->record.item_count, 1u);
    EXPECT_EQ(out.failed->record.items[0].id, 48010u);
    EXPECT_EQ(out.failed->record.items[0].data, bad.data() + 7);

    // A header problem has no record to show.
    const Octets short_block = {0x30, 0x00, 0x40, 0x80};
    const BlockOutcome header = d.decode(short_block.data(), short_block.size());
    EXPECT_EQ(header.failed, nullptr);
    EXPECT_EQ(header.block->record_count, 0u);
    // The decoder is reused: a good block after a bad one is clean.
    const Octets good = sacsic_block(3, 2);
    const BlockOutcome ok = d.decode(good.data(), good.size());
    EXPECT_TRUE(ok.valid);
    EXPECT_TRUE(ok.reason.empty());
    EXPECT_EQ(ok.failed, nullptr);
    EXPECT_EQ(ok.block->record_count, 2u);
}

TEST(ToolDecode, SmartDecodingPicksAndNamesProfiles) {
    BlockDecoder smart(nullptr);
    // CAT021 edition 2.1 only: I021/010 and I021/170 at FRN 29.
    const Octets v21 = {21, 0x00, 0x10, 0x81, 0x01, 0x01, 0x01, 0x80, 0x19, 0x33,
                        0x4D, 0x74, 0xB1, 0xCB, 0x38, 0x20};
    BlockOutcome out = smart.decode(v21.data(), v21.size());
    ASSERT_TRUE(out.valid) << out.reason;
    EXPECT_STREQ(profile_label(out.block->records[0].uap, 21), "cat021_ver21");
    // The smart decoder now starts with edition 2.1, which reads CAT048 as
    // the standard profile does: shown as standard.
    const Octets cat048 = sacsic_block(1);
    out = smart.decode(cat048.data(), cat048.size());
    ASSERT_TRUE(out.valid);
    EXPECT_STREQ(profile_label(out.block->records[0].uap, 48), "standard");

    // CAT001 plots and tracks in one block.
    const Octets mixed = {1, 0x00, 0x0B, 0xC0, 0x19, 0x02, 0x30, 0xC0, 0x19, 0x02, 0xB0};
    out = smart.decode(mixed.data(), mixed.size());
    ASSERT_TRUE(out.valid) << out.reason;
    ASSERT_EQ(out.block->record_count, 2u);
    EXPECT_STREQ(profile_label(out.block->records[0].uap, 1), "cat001_plot");
    EXPECT_STREQ(profile_label(out.block->records[1].uap, 1), "standard");

    // No profile fits: the reason comes from the attempt that read furthest.
    const Octets bad = {0x30, 0x00, 0x09, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06};
    out = smart.decode(bad.data(), bad.size());
    EXPECT_FALSE(out.valid);
    EXPECT_EQ(out.reason,
              "no profile reads the whole block; furthest with standard: record 1 at octet 3: after I048/010, "
              "I048/130 (FRN 7) cannot be delimited in the 3 octets left");
    ASSERT_NE(out.failed, nullptr);
    EXPECT_EQ(out.failed->record.item_count, 1u);
}

TEST(ToolDecode, ProfileLabels) {
    EXPECT_STREQ(profile_label(AST_UAP_STANDARD, 48), "standard");
    EXPECT_STREQ(profile_label(AST_UAP_CAT021_VER21, 21), "cat021_ver21");
    EXPECT_STREQ(profile_label(AST_UAP_CAT021_VER21, 62), "standard");
    EXPECT_STREQ(profile_label(AST_UAP_CAT001_PLOT, 21), "standard");
    EXPECT_STREQ(profile_label(AST_UAP_MANAGAIR, 2), "managair");
    EXPECT_STREQ(profile_label(AST_UAP_MANAGAIR, 48), "standard");
    // The standard profile answers CAT021 with edition 0.26, so the 0.26
    // variant is the standard table.
    EXPECT_STREQ(profile_label(AST_UAP_CAT021_VER026, 21), "standard");
    const AstUap own = {ast_uap_max_frn_standard,
                        [](uint32_t, uint32_t) -> AstItemId { return 48010; }};
    EXPECT_STREQ(profile_label(own, 48), "custom");
}

#endif  // KOVREL_HAVE_TOOL_CORE
