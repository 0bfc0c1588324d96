#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "kovrel/cat002.h"
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

TEST(Cat002, NamesAndTheirFallback) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_002_get_name(2000), "Message Type");
    EXPECT_STREQ(ast_dataitem_002_get_name(2041), "Antenna Rotation Period");
    EXPECT_STREQ(ast_dataitem_002_get_name(2050), "Station Configuration Status");
    EXPECT_STREQ(ast_dataitem_002_get_name(2901), "Station Configuration Status");
    EXPECT_STREQ(ast_dataitem_002_get_name(2902), "Station Configuration Status");
    EXPECT_STREQ(ast_dataitem_002_get_name(2951), "Custom Field");
    EXPECT_STREQ(ast_dataitem_get_name(2997), "Random Field Sequencing");
    EXPECT_TRUE(log.lines().empty());

    // The items of FRN 7 to 11 have neither name nor size rule.
    for (AstItemId id : {2060u, 2070u, 2080u, 2090u, 2100u}) {
        EXPECT_STREQ(ast_dataitem_002_get_name(id), "Unknown CAT002 Dataitem") << id;
        EXPECT_EQ(size_of(id, {0x00, 0x00, 0x00, 0x00}), 0u) << id;
    }
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I002/060."));
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I002/100."));
    log.clear();
    EXPECT_STREQ(ast_dataitem_002_get_name(2998), "Unknown CAT002 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I002/REF."));
    EXPECT_STREQ(ast_dataitem_002_get_name(2903), "Unknown CAT002 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I002/903."));
    EXPECT_EQ(log.size(), 2u);
}

TEST(Cat002, Lengths) {
    EXPECT_EQ(size_of(2030, {0x6a, 0x2b}), 0u);
    EXPECT_EQ(size_of(2951, {0xca, 0xfe}), 2u);
    EXPECT_EQ(size_of(2951, {0xca}), 0u);
    EXPECT_EQ(size_of(2997, {0x03, 0x01, 0x02}), 3u);
    EXPECT_EQ(size_of(2999, {0x02, 0x01}), 2u);

    LogCapture log;
    // I002/050: at most eight octets.
    EXPECT_EQ(size_of(2050, {0x80}), 1u);
    EXPECT_EQ(size_of(2050, fx_chain(7)), 8u);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(size_of(2050, fx_chain(8)), 8u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 8"));
    EXPECT_EQ(size_of(2050, Octets(8, 0x01)), 0u);

    // The ASR-10SS station status items go up to sixteen.
    log.clear();
    EXPECT_EQ(size_of(2901, fx_chain(8)), 9u);
    EXPECT_EQ(size_of(2902, fx_chain(15)), 16u);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(size_of(2901, fx_chain(16)), 16u);
    EXPECT_EQ(size_of(2902, fx_chain(16)), 16u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 16"));
    EXPECT_EQ(size_of(2902, Octets(16, 0x01)), 0u);
    EXPECT_EQ(size_of(2901, Octets(5, 0x01)), 0u);
}

TEST(Cat002, RecordsScannedBackToBack) {
    size_t consumed = 0;
    // North marker: 010, 000, 020, 030, 041.
    const Octets north = {0xf8, 0x08, 0x11, 0x01, 0x00, 0x6a, 0x2b, 0x40, 0x04, 0x00};
    EXPECT_EQ(walk(AST_UAP_STANDARD, 2, north, &consumed),
              (std::vector<Scanned>{{2010, 2}, {2000, 1}, {2020, 1}, {2030, 3}, {2041, 2}}));
    EXPECT_EQ(consumed, north.size());

    // 010, 050 of three octets, SPF and RFS.
    const Octets status = {0x85, 0x06, 0x08, 0x11, 0x41, 0x03, 0x80, 0x02, 0xee, 0x03, 0x02, 0x06};
    EXPECT_EQ(walk(AST_UAP_STANDARD, 2, status, &consumed),
              (std::vector<Scanned>{{2010, 2}, {2050, 3}, {2999, 2}, {2997, 3}}));
    EXPECT_EQ(consumed, status.size());

    // FRN 7 (I002/060) cannot be delimited: reading stops after 010.
    LogCapture log;
    const Octets plot_count = {0x82, 0x08, 0x11, 0x00, 0x00};
    EXPECT_EQ(walk(AST_UAP_STANDARD, 2, plot_count, &consumed), (std::vector<Scanned>{{2010, 2}}));
    EXPECT_EQ(consumed, 0u);
}

TEST(Cat002, SensorProfileRecords) {
    size_t consumed = 0;
    // ASR-10SS: 010, 000, 030 and the station status at FRN 6 (ten octets,
    // longer than I002/050 could be).
    Octets asr = {0xd4, 0x08, 0x11, 0x80, 0x6a, 0x2b, 0x40};
    const Octets station = fx_chain(9);
    asr.insert(asr.end(), station.begin(), station.end());
    EXPECT_EQ(walk(AST_UAP_ASR10SS, 2, asr, &consumed),
              (std::vector<Scanned>{{2010, 2}, {2000, 1}, {2030, 3}, {2901, 10}}));
    EXPECT_EQ(consumed, asr.size());
    EXPECT_EQ(walk(AST_UAP_ASR10SS_MK2, 2, asr, &consumed),
              (std::vector<Scanned>{{2010, 2}, {2000, 1}, {2030, 3}, {2902, 10}}));
    EXPECT_EQ(consumed, asr.size());
    // The same octets read with the standard profile take I002/050, which
    // is cut after eight octets and leaves two octets unread.
    LogCapture log;
    EXPECT_EQ(walk(AST_UAP_STANDARD, 2, asr, &consumed),
              (std::vector<Scanned>{{2010, 2}, {2000, 1}, {2030, 3}, {2050, 8}}));
    EXPECT_EQ(consumed, 15u);

    // MANAGAIR: FRN 23 carries the custom field.
    const Octets managair = {0x81, 0x01, 0x01, 0x40, 0x08, 0x11, 0xca, 0xfe};
    EXPECT_EQ(walk(AST_UAP_MANAGAIR, 2, managair, &consumed), (std::vector<Scanned>{{2010, 2}, {2951, 2}}));
    EXPECT_EQ(consumed, managair.size());
}


namespace {

}  // namespace

TEST(Cat002, CommonItemsOfASectorCrossing) {
    // FSPEC; 010; 000; 020; 030; 041; 050 of two octets; SPF; RFS.
    const Octets sector = {0xfd, 0x06, 0x08, 0x11, 0x02, 0x20, 0x58, 0x78, 0x65,
                           0x02, 0x80, 0x41, 0x80, 0x02, 0xff, 0x02, 0x00};
    AstDataRecord r;
    ast_datarecord_decode(&r, sector.data(), sector.size(), 2, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    expect_served(r, {{2010, "SAC:008 SIC:017", 0xf, sizeof(AstDataSourceIdentifier)},
                      {2000, "MSG_TYPE:SECTOR_CROSSING", 0xb, sizeof(AstMessageType)},  // no detail view
                      {2020, "SECTOR:045DEG", 0xf, sizeof(AstSectorNumber)},
                      {2030, "TOD:12:34:56.789", 0xf, sizeof(AstTimeOfDay)},
                      {2041, "ROT:5.00", 0xf, sizeof(AstAntennaRotationPeriod)},
                      {2050, "BIN:01000001 10000000", 0x3, sizeof(AstItem002_050)},
                      {2999, "SPECIAL_PURPOSE", 0x3, sizeof(AstSpecialPurposeField)},
                      {2997, "RANDOM_FIELD_SEQUENCING", 0x3, sizeof(AstRandomFieldSequencing)}});

    // The message type texts of CAT002, for I002/000 spans only.
    const struct {
        uint8_t value;
        const char *text;
    } cases[] = {{1, "MSG_TYPE:NORTH_MARKER"},    {2, "MSG_TYPE:SECTOR_CROSSING"}, {3, "MSG_TYPE:SOUTH_MARKER"},
                 {4, "MSG_TYPE:UNDEFINED"},       {7, "MSG_TYPE:UNDEFINED"},       {8, "MSG_TYPE:BLIND_ZONE_START"},
                 {9, "MSG_TYPE:BLIND_ZONE_STOP"}, {128, "MSG_TYPE:STATUS"},        {0, "MSG_TYPE:UNDEFINED"}};
    char text[32];
    for (const auto &c : cases) {
        const AstDataItem item = {&c.value, 1, 2000, 1};
        ast_dataitem_002_000_get_summary(text, sizeof text, &item);
        EXPECT_STREQ(text, c.text) << int(c.value);
    }
    const AstDataItem other = {sector.data() + 4, 1, 34000, 1};
    ast_dataitem_002_000_get_summary(text, sizeof text, &other);
    EXPECT_STREQ(text, "");
}
