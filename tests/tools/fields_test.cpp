// The facts the tool shows for a record: the `fields` object of the JSON
// output and the tags of the text line.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include "tools/decoded.h"

using namespace kovrel_tool_test;

namespace {

Octets cat048_block(std::initializer_list<Octets> records) {
    Octets b = {48, 0, 0};
    for (const auto &r : records) b.insert(b.end(), r.begin(), r.end());
    b[1] = static_cast<uint8_t>(b.size() >> 8);
    b[2] = static_cast<uint8_t>(b.size());
    return b;
}

// I048/010, 140, 020, 040, 070, 090, 220, 240 and 161.
const Octets kFull = {0xFD, 0xD0,                          // FSPEC: FRN 1-6, 8, 9, 11
                      0x19, 0x01,                          // SAC 25 SIC 1
                      0x58, 0x78, 0x65,                    // 5797989/128 s: 12:34:56.789
                      0xA0,                                // Mode S roll-call
                      0x0C, 0x81, 0x20, 0x01,              // rho 3201/256 NM, theta 8193 x 360/65536
                      0x0A, 0x3F,                          // Mode 3/A 5077
                      0x05, 0x79,                          // 1401 quarters of FL: 35025 ft
                      0x3C, 0x65, 0x4A,                    // address
                      0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20,  // "DLH123  "
                      0x00, 0x4D};                         // track 77
// Small values that need their leading zeros: I048/010, 140, 070, 220.
const Octets kPadded = {0xC9, 0x80, 0x19, 0x02, 0x00, 0x00, 0x80, 0x00, 0x07, 0x00, 0x0A, 0xBC};
const Octets kSourceOnly = {0x80, 0x19, 0x03};
const Octets kCutShort = {0x82, 0x19, 0x04, 0xE0, 0x29, 0x06};  // I048/130 announces more than it holds

}  // namespace

TEST(ToolFields, JsonHoldsWhatTheAccessorsAnswer) {
    const auto records = decode_json(cat048_block({kFull, kPadded, kSourceOnly}));
    ASSERT_EQ(records.size(), 3u);

    const auto &full = records[0]["fields"];
    EXPECT_EQ(full["sac"], 25);
    EXPECT_EQ(full["sic"], 1);
    EXPECT_EQ(full["tod"], "12:34:56.789");
    EXPECT_EQ(full["mode3a"], "5077");
    EXPECT_EQ(full["icao"], "3C654A");
    EXPECT_EQ(full["callsign"], "DLH123");
    EXPECT_EQ(full["track"], 77);
    EXPECT_EQ(full["fl"], 35025.0);
    EXPECT_EQ(full["rho"], 3201 / 256.0);
    EXPECT_EQ(full["theta"], 8193 * 360.0 / 65536);
    EXPECT_TRUE(full["msgtype"].is_string()) << full;
    for (const char *key : {"sel_alt", "lat", "lon", "speed", "heading", "vx", "vy", "vrate"})
        EXPECT_FALSE(full.contains(key)) << key;

    const auto &padded = records[1]["fields"];
    EXPECT_EQ(padded["tod"], "00:00:01.000");
    EXPECT_EQ(padded["mode3a"], "0007");
    EXPECT_EQ(padded["icao"], "000ABC");
    for (const char *key : {"callsign", "fl", "track", "rho", "theta"}) EXPECT_FALSE(padded.contains(key)) << key;

    const auto &source = records[2]["fields"];
    EXPECT_EQ(source["sic"], 3);
    for (const auto &[key, value] : source.items())
        EXPECT_TRUE(key == "sac" || key == "sic" || key == "msgtype") << key;

    // The record a bad block stops at answers nothing, though it holds I048/010.
    const auto bad = decode_json(cat048_block({kSourceOnly, kCutShort}));
    ASSERT_EQ(bad.size(), 2u);
    EXPECT_EQ(bad[1]["valid"], false);
    EXPECT_EQ(bad[1]["fields"], nlohmann::json::object());
    EXPECT_EQ(bad[1]["items"].size(), 1u);
}

TEST(ToolFields, TextLineTags) {
    const auto lines = decode_octets(cat048_block({kFull, kPadded, kSourceOnly}), false).lines;
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_NE(lines[0].find(" valid  sac 25 sic 1  tod 12:34:56.789  "), std::string::npos) << lines[0];
    EXPECT_TRUE(lines[0].ends_with("  callsign DLH123")) << lines[0];
    EXPECT_EQ(lines[0].find("mode3a"), std::string::npos) << lines[0];
    // Without a callsign, the Mode 3/A code.
    EXPECT_NE(lines[1].find(" valid  sac 25 sic 2  tod 00:00:01.000  "), std::string::npos) << lines[1];
    EXPECT_TRUE(lines[1].ends_with("  mode3a 0007")) << lines[1];
    EXPECT_NE(lines[2].find(" valid  sac 25 sic 3"), std::string::npos) << lines[2];
    for (const char *tag : {"tod", "callsign", "mode3a"}) EXPECT_EQ(lines[2].find(tag), std::string::npos) << tag;

    const auto bad = decode_octets(cat048_block({kCutShort}), false).lines;
    ASSERT_EQ(bad.size(), 1u);
    EXPECT_TRUE(bad[0].ends_with(" INVALID")) << bad[0];
}

#endif  // KOVREL_HAVE_TOOL_CORE
