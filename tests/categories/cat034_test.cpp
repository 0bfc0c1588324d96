#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "kovrel/cat034.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/fspec.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"
#include "support/served.h"

using kovrel_test::expect_served;
using kovrel_test::LogCapture;
using kovrel_test::Octets;

using kovrel_test::fx_chain;
using kovrel_test::Scanned;
using kovrel_test::size_of;
using kovrel_test::walk;

TEST(Cat034, NamesAndTheirFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_034_get_name(34000), "Message Type");
    EXPECT_STREQ(ast_dataitem_034_get_name(34050), "Station Configuration & Status");
    EXPECT_STREQ(ast_dataitem_034_get_name(34060), "System Processing Mode");
    EXPECT_STREQ(ast_dataitem_034_get_name(34070), "Message Count Values");
    EXPECT_STREQ(ast_dataitem_034_get_name(34120), "3D-Position Of Data Source");
    EXPECT_STREQ(ast_dataitem_034_get_name(34090), "Collimation Error");
    EXPECT_STREQ(ast_dataitem_034_get_name(34998), "Reserved Expansion Field");
    EXPECT_STREQ(ast_dataitem_034_get_name(34999), "Special Purpose Field");
    // The generic name operation reaches the category's function.
    EXPECT_STREQ(ast_dataitem_get_name(34110), "Data Filter");
    EXPECT_TRUE(log.lines().empty());

    // I034/100 stands in the UAP but has no name; RFS is not a CAT034 field.
    EXPECT_STREQ(ast_dataitem_034_get_name(34100), "Unknown CAT034 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I034/100."));
    EXPECT_STREQ(ast_dataitem_034_get_name(34997), "Unknown CAT034 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I034/RFS."));
    // An identifier of another category is not answered with a CAT034 name.
    EXPECT_STREQ(ast_dataitem_034_get_name(48010), "Unknown CAT034 Dataitem");
    EXPECT_EQ(log.size(), 3u);

    // Without a row there is no name slot at all.
    log.clear();
    EXPECT_STREQ(ast_dataitem_get_name(34100), "UNKNOWN NAME");
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Unsupported dataitem I034/100"));
}

TEST(Cat034, FixedRepetitiveAndExplicitLengths) {
    EXPECT_EQ(size_of(34030, {0x00, 0x01}), 0u);  // time of day needs 3
    EXPECT_EQ(size_of(34090, {0x01, 0x02}), 2u);
    EXPECT_EQ(size_of(34120, {0, 1, 2, 3, 4, 5, 6, 7}), 8u);
    EXPECT_EQ(size_of(34120, {0, 1, 2, 3, 4, 5, 6}), 0u);

    // I034/070: one REP octet, then REP two-octet counters.
    EXPECT_EQ(size_of(34070, {0x00}), 1u);
    EXPECT_EQ(size_of(34070, {0x02, 0x08, 0x01, 0x10, 0x02}), 5u);
    EXPECT_EQ(size_of(34070, {0x02, 0x08, 0x01, 0x10}), 0u);
    Octets sixteen(33, 0x00);
    sixteen[0] = 16;
    EXPECT_EQ(size_of(34070, sixteen), 33u);
    EXPECT_EQ(size_of(34070, {}), 0u);

    // REF and SPF carry their length in the first octet, which is reported as
    // it stands; the scan still refuses an item that would end past the data.
    EXPECT_EQ(size_of(34998, {0x05, 0xaa}), 5u);
    AstDataItem item;
    const Octets short_ref = {0x05, 0xaa};
    ast_dataitem_scan(&item, short_ref.data(), short_ref.size(), 34998);
    EXPECT_EQ(item.valid, 0);
    EXPECT_EQ(item.length, 0u);
    const Octets spf = {0x03, 0xaa, 0xbb, 0xcc};
    ast_dataitem_scan(&item, spf.data(), spf.size(), 34999);
    EXPECT_EQ(item.valid, 1);
    EXPECT_EQ(item.length, 3u);

    // I034/100 cannot be sized at all.
    LogCapture log;
    EXPECT_EQ(size_of(34100, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}), 0u);
}

TEST(Cat034, StationConfigurationAndStatusSizes) {
    // Primary subfield bits from the top: COM, spare, spare, PSR, SSR, MDS, spare.
    EXPECT_EQ(ast_dataitem_034_050_get_size(Octets{0x80, 0x00}.data(), 2), 2u);
    EXPECT_EQ(ast_dataitem_034_050_get_size(Octets{0x04, 0x12, 0x34}.data(), 3), 3u);  // MDS alone: 2 octets
    EXPECT_EQ(size_of(34050, {0x9c, 0x00, 0x10, 0x20, 0x30, 0x31}), 6u);  // COM, PSR, SSR, MDS
    // One octet short, the item cannot be delimited at all.
    EXPECT_EQ(ast_dataitem_034_050_get_size(Octets{0x04, 0x12}.data(), 2), 0u);
    EXPECT_EQ(size_of(34050, {0x9c, 0x00, 0x10, 0x20, 0x30}), 0u);
    // Spare bits announce nothing, whatever octets follow.
    EXPECT_EQ(size_of(34050, {0xe0, 0x00, 0xff, 0xff}), 2u);
    EXPECT_EQ(size_of(34050, {0x82, 0x00, 0xff}), 2u);

    EXPECT_EQ(ast_dataitem_subfields_get_number(34050), 7u);
    EXPECT_EQ(ast_subfield_034_050_get_size(Octets{0x00, 0x00}.data(), 2, 34050006), 2u);
    EXPECT_EQ(ast_subfield_034_050_get_size(Octets{0x00}.data(), 1, 34050006), 2u);
    EXPECT_EQ(ast_subfield_034_050_get_size(Octets{0x00, 0x00}.data(), 2, 34050007), 0u);
    // A subfield identifier of the other compound item is not this item's.
    EXPECT_EQ(ast_subfield_034_050_get_size(Octets{0x00, 0x00}.data(), 2, 34060001), 0u);

    // The split gives a span to every position up to the subfield count.
    const Octets wire = {0x94, 0x41, 0x7f, 0x80, 0x01};
    AstDataItem item;
    ast_dataitem_scan(&item, wire.data(), wire.size(), 34050);
    ASSERT_EQ(item.valid, 1);
    ASSERT_EQ(item.length, 5u);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    EXPECT_EQ(list.span_count, 7u);
    EXPECT_EQ(list.spans[0].present, 1);
    EXPECT_EQ(list.spans[0].length, 1u);
    EXPECT_EQ(list.spans[0].data[0], 0x41);
    EXPECT_EQ(list.spans[3].present, 1);
    EXPECT_EQ(list.spans[3].data[0], 0x7f);
    EXPECT_EQ(list.spans[4].present, 0);
    EXPECT_EQ(list.spans[5].id, 34050006u);
    EXPECT_EQ(list.spans[5].length, 2u);
    EXPECT_EQ(list.spans[5].data[1], 0x01);
    char text[32];
    ast_dataitem_get_summary(text, sizeof text, &item);
    EXPECT_STREQ(text, "SUBFIELDS:03/07");
}

TEST(Cat034, SystemProcessingModeSizes) {
    // Unlike I034/050, the MDS subfield of I034/060 is one octet.
    EXPECT_EQ(size_of(34060, {0x9c, 0x01, 0x02, 0x03, 0x04}), 5u);
    EXPECT_EQ(size_of(34060, {0x04, 0xff}), 2u);
    EXPECT_EQ(size_of(34060, {0x84, 0xff, 0xee, 0xdd}), 3u);
    EXPECT_EQ(ast_dataitem_034_060_get_size(Octets{0x10, 0xff, 0xee}.data(), 3), 2u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(34060), 7u);
    EXPECT_EQ(ast_subfield_034_060_get_size(Octets{0x00, 0x00}.data(), 2, 34060006), 1u);
    EXPECT_EQ(ast_subfield_get_size(Octets{0x00, 0x00}.data(), 2, 34060002), 0u);
}

TEST(Cat034, SubfieldIdsAndNames) {
    EXPECT_STREQ(ast_subfield_get_id(34050001), "COM");
    EXPECT_STREQ(ast_subfield_get_name(34050001), "Common Elements of System");
    EXPECT_STREQ(ast_subfield_get_id(34050003), "---");
    EXPECT_STREQ(ast_subfield_get_name(34050003), "Spare");
    EXPECT_STREQ(ast_subfield_034_050_get_name(34050005), "SSR Sensor Specific Status Information");
    EXPECT_STREQ(ast_subfield_034_050_get_id(34050006), "MDS");
    EXPECT_STREQ(ast_subfield_034_050_get_name(34050006), "MODE-S Sensor Specific Status Information");
    // Position 7 has a name but no short id; beyond it nothing is known.
    EXPECT_STREQ(ast_subfield_034_050_get_id(34050007), "---");
    EXPECT_STREQ(ast_subfield_034_050_get_name(34050007), "Spare");
    EXPECT_STREQ(ast_subfield_034_050_get_name(34050008), "UNKNOWN_SUBFIELD_NAME");
    EXPECT_STREQ(ast_subfield_034_050_get_name(34050000), "UNKNOWN_SUBFIELD_NAME");

    EXPECT_STREQ(ast_subfield_get_name(34060005), "SSR Sensor Specific Processing Mode");
    EXPECT_STREQ(ast_subfield_get_name(34060006), "Mode S Sensor Specific Processing Mode");
    EXPECT_STREQ(ast_subfield_get_id(34060006), "MDS");
    EXPECT_STREQ(ast_subfield_get_name(34060007), "Spare");
    EXPECT_STREQ(ast_subfield_034_060_get_name(34050004), "UNKNOWN_SUBFIELD_NAME");

    // A decoded subfield without a span has no text; an undecoded one keeps
    // the generic text.
    char text[32] = "x";
    ast_subfield_get_summary(text, sizeof text, nullptr, 34050001);
    EXPECT_STREQ(text, "");
    ast_subfield_get_summary(text, sizeof text, nullptr, 34050004);
    EXPECT_STREQ(text, "NOT_IMPLEMENTED");
}

TEST(Cat034, RecordsScannedBackToBack) {
    size_t consumed = 0;
    // North marker: 010, 000, 030, 020.
    const Octets north = {0xf0, 0x19, 0x0d, 0x01, 0x6a, 0x2b, 0x40, 0x00};
    EXPECT_EQ(walk(AST_UAP_STANDARD, 34, north, &consumed),
              (std::vector<Scanned>{{34010, 2}, {34000, 1}, {34030, 3}, {34020, 1}}));
    EXPECT_EQ(consumed, north.size());

    // Status message: 010, 000, 030, 050, 060, 070, 120 and SPF.
    const Octets status = {0xe7, 0x92,                          // FSPEC
                           0x19, 0x0d,                          // 010
                           0x03,                                // 000
                           0x6a, 0x2b, 0x40,                    // 030
                           0x94, 0x00, 0x40, 0x00, 0x00,        // 050: COM, PSR, MDS
                           0x84, 0x22, 0xc0,                    // 060: COM, MDS
                           0x02, 0x08, 0x10, 0x10, 0x20,        // 070: two counters
                           0x00, 0x64, 0x28, 0x00, 0x00, 0x05, 0x00, 0x00,  // 120
                           0x03, 0xde, 0xad};                   // SPF
    EXPECT_EQ(walk(AST_UAP_STANDARD, 34, status, &consumed),
              (std::vector<Scanned>{{34010, 2},
                                    {34000, 1},
                                    {34030, 3},
                                    {34050, 5},
                                    {34060, 3},
                                    {34070, 5},
                                    {34120, 8},
                                    {34999, 3}}));
    EXPECT_EQ(consumed, status.size());

    // FRN 9 announces I034/100, which cannot be delimited: reading stops there.
    LogCapture log;
    const Octets polar_window = {0x81, 0x40, 0x19, 0x0d, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00};
    EXPECT_EQ(walk(AST_UAP_STANDARD, 34, polar_window, &consumed), (std::vector<Scanned>{{34010, 2}}));
    EXPECT_EQ(consumed, 0u);
}


namespace {

}  // namespace

TEST(Cat034, CommonItemsOfANorthMarker) {
    // FSPEC; 010; 000; 030; 020; 041; REF; SPF.
    const Octets north = {0xf9, 0x06, 0x19, 0x0d, 0x01, 0x58, 0x78, 0x65, 0x40,
                          0x02, 0x00, 0x02, 0x00, 0x03, 0xab, 0xcd};
    AstDataRecord r;
    ast_datarecord_decode(&r, north.data(), north.size(), 34, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    expect_served(r, {{34010, "SAC:025 SIC:013", 0xf, sizeof(AstDataSourceIdentifier)},
                      {34000, "MSG_TYPE:NORTH_MARKER", 0xb, sizeof(AstMessageType)},  // no detail view
                      {34030, "TOD:12:34:56.789", 0xf, sizeof(AstTimeOfDay)},
                      {34020, "SECTOR:090DEG", 0xf, sizeof(AstSectorNumber)},
                      {34041, "ROT:4.00", 0xf, sizeof(AstAntennaRotationPeriod)},
                      {34998, "RESERVED_EXPANSION", 0x3, sizeof(AstReservedExpansionField)},
                      {34999, "SPECIAL_PURPOSE", 0x3, sizeof(AstSpecialPurposeField)}});

    // The message type texts of CAT034, for I034/000 spans only.
    const char *const texts[] = {"MSG_TYPE:UNDEFINED",     "MSG_TYPE:NORTH_MARKER",   "MSG_TYPE:SECTOR_CROSSING",
                                 "MSG_TYPE:GEO_FILTERING", "MSG_TYPE:JAMMING_STROBE", "MSG_TYPE:UNDEFINED"};
    char text[32];
    for (uint8_t value = 0; value < 6; ++value) {
        const AstDataItem item = {&value, 1, 34000, 1};
        ast_dataitem_034_000_get_summary(text, sizeof text, &item);
        EXPECT_STREQ(text, texts[value]) << int(value);
    }
    const AstDataItem other = {north.data() + 4, 1, 2000, 1};
    ast_dataitem_034_000_get_summary(text, sizeof text, &other);
    EXPECT_STREQ(text, "");
}
