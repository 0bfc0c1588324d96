#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "kovrel/cat004.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
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

namespace {

uint64_t size_of(AstItemId id, const Octets &o) { return ast_dataitem_get_size(o.data(), o.size(), id); }

uint64_t size_of(AstItemId id, const Octets &o, size_t available) {
    return ast_dataitem_get_size(o.data(), available, id);
}

std::string summary(AstItemId id, const Octets &o) {
    AstDataItem item;
    ast_dataitem_scan(&item, o.data(), o.size(), id);
    char text[64];
    ast_dataitem_get_summary(text, sizeof text, &item);
    return text;
}

}  // namespace

TEST(Cat004, NamesAndTheLoggedFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_004_get_name(4000), "Message Type");
    EXPECT_STREQ(ast_dataitem_004_get_name(4020), "Time of Message");
    EXPECT_STREQ(ast_dataitem_004_get_name(4060), "Safety Net Function & System Status");
    EXPECT_STREQ(ast_dataitem_004_get_name(4170), "Aircraft Identification & Characteristics 1");
    EXPECT_STREQ(ast_dataitem_004_get_name(4171), "Aircraft Identification & Characteristics 2");
    EXPECT_STREQ(ast_dataitem_get_name(4035), "Track Number 2");
    EXPECT_STREQ(ast_dataitem_get_name(4998), "Reserved Expansion Field");
    EXPECT_EQ(log.size(), 0u);

    // I004/070 is in the UAP without a name of its own: named by the
    // fallback with a warning.
    EXPECT_STREQ(ast_dataitem_004_get_name(4070), "Unknown CAT004 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I004/070."));
    EXPECT_STREQ(ast_dataitem_004_get_name(48010), "Unknown CAT004 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I048/010."));
}

TEST(Cat004, FixedAndVariableItems) {
    LogCapture log;
    EXPECT_EQ(size_of(4040, {0x00, 0x2A}), 2u);
    EXPECT_EQ(size_of(4040, {0x00, 0x2A}, 1), 0u);

    // I004/060 extends by FX without a bound.
    EXPECT_EQ(size_of(4060, {0x80}), 1u);
    EXPECT_EQ(size_of(4060, {0x81, 0x00}), 2u);
    EXPECT_EQ(size_of(4060, {0x81, 0x81, 0x81, 0x81, 0x00, 0xFF}), 5u);
    EXPECT_EQ(size_of(4060, {0x81, 0x81}), 0u);  // chain runs past the data
    EXPECT_EQ(size_of(4060, {0x81}, 0), 0u);
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat004, CompoundSizes) {
    LogCapture log;
    // I004/100 with AN only, then with all six subfields.
    EXPECT_EQ(size_of(4100, {0x80, 1, 2, 3, 4, 5, 6}), 7u);
    Octets all(1 + 6 + 5 * 7, 0x20);
    all[0] = 0xFC;
    EXPECT_EQ(size_of(4100, all), all.size());
    EXPECT_EQ(size_of(4100, {0x00, 0x01}), 0u);  // empty primary subfield

    // I004/120: CN of two octets, CC, CP, CD (3 octets).
    EXPECT_EQ(size_of(4120, {0xF0, 0x03, 0x02, 0x11, 0x64, 0x00, 0x01, 0x00}), 8u);
    // CN is bounded at three octets: a fourth announced octet is logged and
    // the subfield still ends after three.
    EXPECT_EQ(size_of(4120, {0x80, 0x01, 0x01, 0x01, 0x00}), 4u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Subfield length exceed max: 3"));

    // I004/170, two-octet primary: M31 (2), AC1 (FX, at most 2), CF1 (2).
    const Octets ac = {0x43, 0x20, 0x0F, 0xFF, 0x01, 0x00, 0x01, 0x40};
    EXPECT_EQ(size_of(4170, ac), 8u);
    EXPECT_EQ(size_of(4171, ac), 8u);
    EXPECT_EQ(size_of(4170, ac, 1), 0u);  // primary subfield cut after its first octet
    // AI (7), CPW (10), CPC (8), TT (3), DT (2), MS (6), FP (4).
    Octets wide(2 + 7 + 10 + 8 + 3 + 2 + 6 + 4, 0);
    wide[0] = 0xBD;  // AI, CPW, CPC, TT, DT and FX
    wide[1] = 0xC0;  // MS, FP
    EXPECT_EQ(size_of(4171, wide), wide.size());
}

TEST(Cat004, SubfieldCountsIdsAndNames) {
    LogCapture log;
    EXPECT_EQ(ast_dataitem_subfields_get_number(4100), 6u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(4120), 4u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(4170), 10u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(4171), 10u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(4060), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Undefined Subfield I004/060"));

    EXPECT_STREQ(ast_subfield_get_id(4100001), "AN");
    EXPECT_STREQ(ast_subfield_get_name(4100006), "Gate Designator");
    EXPECT_STREQ(ast_subfield_get_id(4120004), "CD");
    EXPECT_STREQ(ast_subfield_get_name(4120001), "Conflict Nature");
    EXPECT_STREQ(ast_subfield_get_id(4170003), "CPW1");
    EXPECT_STREQ(ast_subfield_get_name(4170004), "Predicted Conflict Position 1 (Cartesian Coordinates)");
    EXPECT_STREQ(ast_subfield_004_171_get_id(4171002), "M32");
    EXPECT_STREQ(ast_subfield_004_171_get_name(4171007), "Aircraft Characteristics Aircraft 2");
    EXPECT_STREQ(ast_subfield_004_171_get_id(4171010), "CF2");

    // Outside an item's subfields: size 0, "--" and the unknown name, both
    // through the item's own functions and the generic ones.
    const Octets any = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08};
    EXPECT_EQ(ast_subfield_get_size(any.data(), any.size(), 4120005), 0u);
    EXPECT_STREQ(ast_subfield_get_id(4120005), "--");
    EXPECT_STREQ(ast_subfield_get_name(4120005), "UNKNOWN_SUBFIELD_NAME");
    EXPECT_STREQ(ast_subfield_004_100_get_id(4100007), "--");
    EXPECT_STREQ(ast_subfield_004_100_get_id(4100000), "--");
    EXPECT_STREQ(ast_subfield_004_100_get_id(4120001), "--");  // another item's subfield
    EXPECT_EQ(ast_subfield_004_170_get_size(any.data(), any.size(), 4170011), 0u);
    EXPECT_STREQ(ast_subfield_004_170_get_name(4170011), "UNKNOWN_SUBFIELD_NAME");

    // A fixed subfield answers its layout's length; the item's size check
    // refuses it when it runs past the data.
    EXPECT_EQ(ast_subfield_004_170_get_size(any.data(), any.size(), 4170003), 10u);
    EXPECT_EQ(ast_subfield_004_170_get_size(any.data(), any.size(), 4170004), 8u);
    EXPECT_EQ(ast_subfield_get_size(any.data(), any.size(), 4100002), 7u);
}

TEST(Cat004, SplitStopsAtTheSubfieldCount) {
    LogCapture log;
    // I004/120 with bits 1 and 5 set: subfield 5 does not exist, adds no
    // octets to the size, and the split ends at subfield 4.
    const Octets o = {0x88, 0x02};
    AstDataItem item;
    ast_dataitem_scan(&item, o.data(), o.size(), 4120);
    ASSERT_EQ(item.valid, 1);
    EXPECT_EQ(item.length, 2u);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    EXPECT_EQ(list.span_count, 4u);
    EXPECT_EQ(list.spans[0].present, 1);
    EXPECT_EQ(list.spans[0].length, 1u);
    EXPECT_EQ(list.spans[3].present, 0);
    EXPECT_EQ(list.spans[3].id, 4120004u);

    // The two-octet primary of I004/170 opens 14 positions; 10 are kept.
    const Octets ac = {0x43, 0x20, 0x0F, 0xFF, 0x01, 0x00, 0x01, 0x40};
    EXPECT_EQ(summary(4170, ac), "SUBFIELDS:03/10");
    ast_dataitem_scan(&item, ac.data(), ac.size(), 4171);
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    EXPECT_EQ(list.spans[6].length, 2u);  // AC2
    EXPECT_EQ(list.spans[9].data, ac.data() + 6);
    EXPECT_EQ(summary(4100, {0x80, 1, 2, 3, 4, 5, 6}), "SUBFIELDS:01/06");
}

TEST(Cat004, WholeRecordScansBackToBack) {
    LogCapture log;
    const Octets record = {
        0xDB, 0xE1, 0xE6,                                // FSPEC: FRN 1 2 4 5 7, 8 9 10, 15 16 17 20 21
        0x12, 0x34,                                      // I004/010
        0x07,                                            // I004/000
        0x00, 0x10, 0x00,                                // I004/020
        0x00, 0x2A,                                      // I004/040
        0x81, 0x00,                                      // I004/060
        0x01, 0x02,                                      // I004/030
        0x43, 0x20, 0x0F, 0xFF, 0x01, 0x00, 0x01, 0x40,  // I004/170
        0xF0, 0x03, 0x02, 0x11, 0x64, 0x00, 0x01, 0x00,  // I004/120
        0x80, 0x04, 0x20, 0xC4, 0x81, 0x04, 0x20,        // I004/100
        0x00, 0x05,                                      // I004/035
        0x80, 1, 2, 3, 4, 5, 6, 7,                       // I004/171
        0x03, 0xAA, 0xBB,                                // I004/REF
        0x02, 0xCC,                                      // I004/SPF
    };
    const std::vector<Scanned> expected = {
        {4010, 2}, {4000, 1}, {4020, 3}, {4040, 2}, {4060, 2}, {4030, 2}, {4170, 8},
        {4120, 8}, {4100, 7}, {4035, 2}, {4171, 8}, {4998, 3}, {4999, 2}};

    size_t consumed = 0;
    EXPECT_EQ(walk(AST_UAP_STANDARD, 4, record, &consumed), expected);
    EXPECT_EQ(consumed, record.size());
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat004, UnnamedUapItemsAreSized) {
    LogCapture log;
    // An STCA record with I004/010, I004/000, I004/070 (TC and MHS present).
    const Octets record = {0xC1, 0x10, 0x19, 0x0D, 0x07, 0x90, 0x00, 0x01, 0x00, 0x00, 0x20};
    AstDataRecord r;
    ast_datarecord_decode(&r, record.data(), record.size(), 4, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    ASSERT_EQ(r.item_count, 3u);
    EXPECT_EQ(r.items[2].id, 4070u);
    EXPECT_EQ(r.items[2].length, 6u);
    EXPECT_EQ(size_of(4015, {0x02, 1, 2, 3, 4}), 5u);
    EXPECT_EQ(size_of(4075, {1, 2}), 0u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_get_name(4070), "Unknown CAT004 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I004/070."));
}

TEST(Cat004, CommonItemsServeTheirRows) {
    LogCapture log;
    const Octets first = {0xF1, 0x23};
    expect_row(4000, {0x07}, "MSG_TYPE:STCA", kShown | kCodec);  // the category's own views
    expect_row(4010, {0x12, 0x34}, "SAC:018 SIC:052", kShown | kCodec);
    expect_row(4020, {0x54, 0x60, 0x00}, "TOD:12:00:00.000", kShown | kCodec);
    expect_row(4030, first, "TRACK_NUM:61731", kDecodeSummary | kCodec);  // all 16 bits
    expect_row(4035, {0x00, 0x05}, "TRACK_NUM:0005", kDecodeSummary | kCodec);
    expect_row(4998, {0x03, 0xAA, 0xBB}, "RESERVED_EXPANSION", kDecodeSummary);
    expect_row(4999, {0x01}, "SPECIAL_PURPOSE", kDecodeSummary);

    const AstDataItem item = scanned(4030, first);
    AstTrackNumber track{};
    AstDataItemValue value;
    ast_dataitem_decode(&value, &track, sizeof track - 1, &item);
    EXPECT_EQ(value.valid + track.valid, 0u);
    ast_dataitem_decode(&value, &track, sizeof track, &item);
    EXPECT_EQ(value.value, &track);
    EXPECT_EQ(track.number, 0xF123u);
    EXPECT_EQ(log.size(), 0u);
}
