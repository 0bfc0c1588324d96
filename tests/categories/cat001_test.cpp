#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "kovrel/cat001.h"
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

TEST(Cat001, Names) {
    LogCapture log;
    // "Coordinates", where CAT048 writes "Co-ordinates".
    EXPECT_STREQ(ast_dataitem_001_get_name(1040), "Measured Position in Polar Coordinates");
    EXPECT_STREQ(ast_dataitem_001_get_name(1042), "Calculated Position in Cartesian Coordinates");
    EXPECT_STREQ(ast_dataitem_001_get_name(1200), "Calculated Track Velocity in Polar Coordinates");
    EXPECT_STREQ(ast_dataitem_001_get_name(1090), "Mode-C Code in Binary Representation");
    EXPECT_STREQ(ast_dataitem_001_get_name(1060), "Mode-2 Code Confidence Indicator");
    EXPECT_STREQ(ast_dataitem_001_get_name(1161), "Track Plot Number");
    EXPECT_STREQ(ast_dataitem_001_get_name(1141), "Truncated Time of Day");
    EXPECT_STREQ(ast_dataitem_get_name(1997), "Random Field Sequencing");
    // Sensor variants.
    EXPECT_STREQ(ast_dataitem_001_get_name(1901), "Radar Plot Characteristics");
    EXPECT_STREQ(ast_dataitem_001_get_name(1903), "Radar Plot Characteristics");
    EXPECT_STREQ(ast_dataitem_001_get_name(1902), "Plot Amplitude");
    EXPECT_STREQ(ast_dataitem_001_get_name(1904), "Track Quality and Plot Extent");
    EXPECT_STREQ(ast_dataitem_get_name(1951), "Custom Field");
    EXPECT_TRUE(log.lines().empty());
}

TEST(Cat001, DopplerSpeedAndXPulseAreSizedButUnnamed) {
    LogCapture log;
    // Both have a row (so the generic name reaches the category function and
    // nothing is "unsupported"), yet the name is the category's fallback.
    EXPECT_STREQ(ast_dataitem_001_get_name(1120), "Unknown CAT001 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I001/120."));
    EXPECT_STREQ(ast_dataitem_get_name(1150), "Unknown CAT001 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I001/150."));
    EXPECT_EQ(log.size(), 2u);
    EXPECT_EQ(size_of(1120, {0xff, 0x00}), 1u);
    EXPECT_EQ(size_of(1150, {0xa4}), 1u);
    EXPECT_EQ(size_of(1150, {}), 0u);
    EXPECT_EQ(log.size(), 2u);

    // Identifiers without a row: a REF (CAT001 has none) and an unknown variant.
    log.clear();
    EXPECT_STREQ(ast_dataitem_001_get_name(1998), "Unknown CAT001 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I001/REF."));
    EXPECT_STREQ(ast_dataitem_001_get_name(1905), "Unknown CAT001 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I001/905."));
    EXPECT_STREQ(ast_dataitem_001_get_name(2010), "Unknown CAT001 Dataitem");
    EXPECT_EQ(size_of(1998, {0x02, 0x00}), 0u);
}

TEST(Cat001, FixedAndExplicitLengths) {
    EXPECT_EQ(size_of(1040, {0x00, 0x01, 0x02}), 0u);
    EXPECT_EQ(size_of(1040, {0x00, 0x01, 0x02, 0x03, 0x04}), 4u);
    EXPECT_EQ(size_of(1100, {0x00, 0x01, 0x02, 0x03}), 4u);
    EXPECT_EQ(size_of(1141, {0x00, 0x80}), 2u);
    EXPECT_EQ(size_of(1951, {0xab}), 0u);
    EXPECT_EQ(size_of(1951, {0xab, 0xcd, 0xef}), 2u);
    // RFS: the first octet is the length, as for the RE and SP fields.
    EXPECT_EQ(size_of(1997, {0x04, 0x0a, 0x00, 0x0b}), 4u);
    EXPECT_EQ(size_of(1999, {0x00, 0x0a}), 0u);
}

TEST(Cat001, VariableLengthBounds) {
    LogCapture log;
    // I001/020 and I001/030: one extension at most.
    EXPECT_EQ(size_of(1020, {0x20, 0xff}), 1u);
    EXPECT_EQ(size_of(1020, {0xa1, 0x00}), 2u);
    EXPECT_EQ(size_of(1020, {0xa1, 0x01}), 0u);  // cut off
    EXPECT_EQ(size_of(1020, {0xa1}), 0u);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(size_of(1030, {0x03, 0x05, 0x00}), 2u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 2"));
    EXPECT_EQ(size_of(1170, {0x81, 0x80}), 2u);

    // I001/130: at most six octets.
    log.clear();
    EXPECT_EQ(size_of(1130, fx_chain(5)), 6u);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(size_of(1130, fx_chain(6)), 6u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 6"));
    EXPECT_EQ(size_of(1130, Octets(6, 0x01)), 0u);

    // I001/210: at most twelve.
    log.clear();
    EXPECT_EQ(size_of(1210, fx_chain(11)), 12u);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(size_of(1210, fx_chain(12)), 12u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 12"));
    EXPECT_EQ(size_of(1210, Octets(11, 0x01)), 0u);  // chain runs out
}

TEST(Cat001, SensorVariantLengthBounds) {
    LogCapture log;
    // The ASR-10SS plot characteristics keep the six-octet bound of I001/130.
    EXPECT_EQ(size_of(1901, {0x81, 0x40}), 2u);
    EXPECT_EQ(size_of(1903, fx_chain(5)), 6u);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(size_of(1901, fx_chain(6)), 6u);
    EXPECT_EQ(size_of(1903, fx_chain(6)), 6u);
    EXPECT_EQ(log.size(), 2u);

    // The ASR-10SS track field keeps twelve, the Mk2 one stops at eleven.
    log.clear();
    EXPECT_EQ(size_of(1902, {0x1e}), 1u);
    EXPECT_EQ(size_of(1902, fx_chain(11)), 12u);
    EXPECT_EQ(size_of(1904, fx_chain(10)), 11u);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(size_of(1904, fx_chain(11)), 11u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 11"));
    EXPECT_EQ(size_of(1904, Octets(11, 0x01)), 0u);
}

TEST(Cat001, TrackAndPlotRecords) {
    size_t consumed = 0;
    const Octets track = {0xf7, 0xa6,              // FSPEC
                          0x08, 0x11,              // 010
                          0xa1, 0x00,              // 020 with extension
                          0x01, 0x2c,              // 161
                          0x12, 0x34, 0x40, 0x00,  // 040
                          0x00, 0x80, 0x20, 0x00,  // 200
                          0x0f, 0xff,              // 070
                          0x01, 0x40,              // 090
                          0x41, 0x20,              // 130, two octets
                          0x80,                    // 170
                          0x11, 0x20};             // 210, two octets
    EXPECT_EQ(walk(AST_UAP_STANDARD, 1, track, &consumed),
              (std::vector<Scanned>{{1010, 2},
                                    {1020, 2},
                                    {1161, 2},
                                    {1040, 4},
                                    {1200, 4},
                                    {1070, 2},
                                    {1090, 2},
                                    {1130, 2},
                                    {1170, 1},
                                    {1210, 2}}));
    EXPECT_EQ(consumed, track.size());

    const Octets plot = {0xe5, 0xe1, 0x80,        // FSPEC
                         0x08, 0x11,              // 010
                         0x20,                    // 020
                         0x12, 0x34, 0x40, 0x00,  // 040
                         0x01, 0x01, 0x00,        // 130, three octets
                         0x01, 0x23,              // 050
                         0xff,                    // 120
                         0xf6,                    // 131
                         0xa4};                   // 150
    EXPECT_EQ(walk(AST_UAP_CAT001_PLOT, 1, plot, &consumed),
              (std::vector<Scanned>{{1010, 2},
                                    {1020, 1},
                                    {1040, 4},
                                    {1130, 3},
                                    {1050, 2},
                                    {1120, 1},
                                    {1131, 1},
                                    {1150, 1}}));
    EXPECT_EQ(consumed, plot.size());
}

TEST(Cat001, SensorProfileRecords) {
    size_t consumed = 0;
    const Octets asr = {0xd1, 0x62,              // FSPEC: 010, 020, 040, 141, 1901, 1902
                        0x08, 0x11, 0x20, 0x12, 0x34, 0x40, 0x00, 0x02, 0x80,
                        0x81, 0x40,              // 1901
                        0x1e};                   // 1902
    EXPECT_EQ(walk(AST_UAP_ASR10SS, 1, asr, &consumed),
              (std::vector<Scanned>{{1010, 2}, {1020, 1}, {1040, 4}, {1141, 2}, {1901, 2}, {1902, 1}}));
    EXPECT_EQ(consumed, asr.size());

    Octets mk2 = {0xd1, 0x62, 0x08, 0x11, 0x20, 0x12, 0x34, 0x40, 0x00, 0x02, 0x80,
                  0x03, 0x05, 0x40};  // 1903, three octets
    const Octets track_field = fx_chain(10);  // 1904, eleven octets
    mk2.insert(mk2.end(), track_field.begin(), track_field.end());
    EXPECT_EQ(walk(AST_UAP_ASR10SS_MK2, 1, mk2, &consumed),
              (std::vector<Scanned>{{1010, 2}, {1020, 1}, {1040, 4}, {1141, 2}, {1903, 3}, {1904, 11}}));
    EXPECT_EQ(consumed, mk2.size());

    // MANAGAIR puts its two-octet custom field at FRN 5.
    const Octets managair = {0x8c, 0x08, 0x11, 0xca, 0xfe, 0x00, 0x80, 0x20, 0x00};
    EXPECT_EQ(walk(AST_UAP_MANAGAIR, 1, managair, &consumed),
              (std::vector<Scanned>{{1010, 2}, {1951, 2}, {1200, 4}}));
    EXPECT_EQ(consumed, managair.size());
}


namespace {

}  // namespace

TEST(Cat001, CommonItemsOfATrack) {
    // FSPEC; 010; 161; 200; 070; 090; 130 of two octets; 050; 080; 100; 060; SPF; RFS.
    const Octets track = {0xa7, 0xa1, 0xf6, 0x08, 0x11, 0xf1, 0x23, 0x04, 0x00, 0x20, 0x00, 0x4f, 0xff,
                          0x01, 0x40, 0x41, 0x20, 0xa1, 0x23, 0x00, 0x01, 0x84, 0x40, 0x00, 0x00, 0x08, 0x00,
                          0x02, 0xff, 0x02, 0x00};
    AstDataRecord r;
    ast_datarecord_decode(&r, track.data(), track.size(), 1, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    // The Mode-C confidence has no encoder; the others encode.
    expect_served(r, {{1010, "SAC:008 SIC:017", 0xf, sizeof(AstDataSourceIdentifier)},
                      {1161, "TRACK_NUM:61731", 0xb, sizeof(AstTrackNumber)},  // 16 bits, no detail view
                      {1200, "SPD:225.00 HDG:45.00", 0xf, sizeof(AstVelocityPolar)},
                      {1070, "MODE_3/A:7777 GARBLED", 0xf, sizeof(AstMode3aCode)},
                      {1090, "MODE_C:0080", 0xf, sizeof(AstModeCCode)},
                      {1130, "BIN:01000001 00100000", 0xf, sizeof(AstItem001_130)},
                      {1050, "MODE_2:0443 NOT_VALIDATED SMOOTHED", 0xf, sizeof(AstMode3aCode)},
                      {1080, "QTY:ABCd", 0xf, sizeof(AstMode3aConfidence)},
                      {1100, "CODE:5000 QTY:ABCD NOT_VALIDATED", 0x7, sizeof(AstModeCConfidence)},
                      {1060, "QTY:aBCD", 0xf, sizeof(AstMode3aConfidence)},
                      {1999, "SPECIAL_PURPOSE", 0x3, sizeof(AstSpecialPurposeField)},
                      {1997, "RANDOM_FIELD_SEQUENCING", 0x3, sizeof(AstRandomFieldSequencing)}});

    AstTrackNumber number;
    AstDataItemValue v;
    ast_dataitem_decode(&v, &number, sizeof number, &r.items[1]);
    EXPECT_EQ(number.number, 0xf123u);
    EXPECT_EQ(number.twelve_bit, 0);
    AstMode3aCode mode2;
    ast_dataitem_decode(&v, &mode2, sizeof mode2, &r.items[6]);
    EXPECT_EQ(mode2.code, 0443u);
    EXPECT_EQ(mode2.v + mode2.g + mode2.l, 2);
}
