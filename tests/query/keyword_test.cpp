// Keywords: the table, the word comparison, and searching records of
// CAT048, CAT062 and CAT034 decoded from their octets.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "kovrel/codec.h"
#include "kovrel/datarecord.h"
#include "kovrel/keyword.h"
#include "kovrel/uap.h"

namespace {

using Octets = std::vector<uint8_t>;

// FSPEC and items, given as (FRN, octets) in FRN order.
Octets record_of(const std::vector<std::pair<unsigned, Octets>> &items) {
    unsigned highest = 0;
    for (const auto &i : items) highest = i.first > highest ? i.first : highest;
    Octets o((highest - 1) / 7 + 1, 0);
    for (const auto &i : items) o[(i.first - 1) / 7] |= static_cast<uint8_t>(0x80u >> ((i.first - 1) % 7));
    for (size_t k = 0; k + 1 < o.size(); ++k) o[k] |= 0x01;
    for (const auto &i : items) o.insert(o.end(), i.second.begin(), i.second.end());
    return o;
}

// A decoded record that owns its octets.
struct Rec {
    Octets octets;
    AstDataRecord r{};
    Rec(uint32_t category, Octets o) : octets(std::move(o)) {
        ast_datarecord_decode(&r, octets.data(), octets.size(), category, &AST_UAP_STANDARD);
    }
};

const Octets kTod = {0x58, 0x78, 0x65};  // 5797989 / 128 s: 12:34:56.789

// A Mode S track report: 025/013, plot and track data, callsign DLH4AB.
Rec cat048_track() {
    return Rec(48, record_of({
                       {1, {0x19, 0x0D}},
                       {2, kTod},
                       {3, {0xA0}},
                       {4, {0x0C, 0x80, 0x40, 0x00}},                          // 12.5 NM, 90 deg
                       {5, {0x0F, 0xC0}},                                      // 7700
                       {6, {0x05, 0x78}},                                      // FL350
                       {8, {0x4C, 0xA1, 0xFF}},                                // address
                       {9, {0x10, 0xC2, 0x34, 0x04, 0x28, 0x20}},              // "DLH4AB  "
                       {10, {0x01, 0xC4, 0x60, 0, 0, 0, 0, 0, 0x40}},          // BDS 4,0: 35008 ft selected
                       {11, {0x04, 0xD2}},                                     // track 1234
                   }));
}

// A plot: garbled code not extracted in the last scan, a blank callsign.
Rec cat048_plot() {
    return Rec(48, record_of({
                       {1, {0x19, 0x0E}},
                       {2, {0x00, 0x00, 0x80}},                      // 00:00:01.000
                       {5, {0x6F, 0xC0}},                            // 7700, G and L set
                       {6, {0x3F, 0xFF}},                            // -1/4 FL: -25 ft
                       {9, {0x82, 0x08, 0x20, 0x82, 0x08, 0x20}},    // eight blanks
                   }));
}

// A system track: WGS-84 position, Cartesian velocity 25/25 m/s, climbing
// -100 ft/min, callsign from the flight plan.
Rec cat062_track() {
    return Rec(62, record_of({
                       {1, {0x19, 0x0D}},
                       {4, kTod},
                       {5, {0x00, 0x80, 0x00, 0x00, 0xFF, 0xC0, 0x00, 0x00}},  // 45, -22.5 deg
                       {7, {0x00, 0x64, 0x00, 0x64}},
                       {9, {0x0F, 0xC0}},
                       {12, {0x04, 0xD2}},
                       {17, {0x01, 0x40}},                                     // 8000 ft
                       {20, {0xFF, 0xF0}},
                       {21, {0x40, 'B', 'A', 'W', '1', '2', '3', ' '}},
                   }));
}

// A sector crossing message of a radar service.
Rec cat034_sector() { return Rec(34, record_of({{1, {0x19, 0x0D}}, {2, {0x02}}, {3, kTod}})); }

std::string keyword_text(const AstDataRecord &r, uint32_t id, uint32_t flags = 0, bool *ok = nullptr) {
    char text[96];
    std::memset(text, 'x', sizeof text);
    text[sizeof text - 1] = '\0';
    const bool result = ast_datarecord_get_keyword(text, sizeof text, &r, id, flags);
    if (ok) *ok = result;
    return result ? std::string(text) : std::string("(false)");
}

}  // namespace

TEST(Keyword, NamesAndDescriptions) {
    char text[80];
    ast_keyword_name(text, sizeof text, AST_KEYWORD_SACSIC);
    EXPECT_STREQ(text, "SAC/SIC");
    ast_keyword_name(text, sizeof text, AST_KEYWORD_TIMESTAMP);
    EXPECT_STREQ(text, "Timestamp Tx");
    ast_keyword_name(text, sizeof text, AST_KEYWORD_VERTICAL_RATE);
    EXPECT_STREQ(text, "Vertical Rate");
    ast_keyword_description(text, sizeof text, AST_KEYWORD_TIMESTAMP);
    EXPECT_STREQ(text, "Timestamp, definition and time zone depends on sensor configuration");
    ast_keyword_description(text, sizeof text, AST_KEYWORD_CARTESIAN_VELOCITY);
    EXPECT_STREQ(text, "Cartesian or horizontal velocity in meters/second");
    ast_keyword_description(text, sizeof text, AST_KEYWORD_FLIGHT_LEVEL);
    EXPECT_STREQ(text, "Flight level in foot");

    // Above 14: the empty text, in both.
    std::strcpy(text, "old");
    ast_keyword_name(text, sizeof text, 15);
    EXPECT_STREQ(text, "");
    std::strcpy(text, "old");
    ast_keyword_description(text, sizeof text, 0xFFFFFFFFu);
    EXPECT_STREQ(text, "");

    // Cut to size; a zero size leaves the buffer alone.
    char small[4];
    ast_keyword_name(small, sizeof small, AST_KEYWORD_CALLSIGN);
    EXPECT_STREQ(small, "Cal");
    small[0] = '#';
    ast_keyword_name(small, 0, AST_KEYWORD_CALLSIGN);
    EXPECT_EQ(small[0], '#');
    ast_keyword_name(nullptr, 10, AST_KEYWORD_CALLSIGN);  // must not crash
}

TEST(Keyword, WordComparison) {
    struct Case {
        const char *value, *search;
        uint8_t case_sensitive;
        bool expected;
    } cases[] = {
        {"  BAW123 ", "baw123", 0, true},
        {"  BAW123 ", "baw123", 1, false},
        {"  BAW123 ", "BAW123", 1, true},
        {"Measurement Plot", "measurement", 0, true},
        {"Measurement Plot", "Measure", 0, false},       // a prefix is not enough
        {"Measurement Track", "measurement", 0, true},
        {"Measurement", "Measurements", 0, false},       // nor a longer word
        {"Track End", "Track", 1, true},
        {"Track", "Track End", 1, true},                 // only the first word of the search counts
        {"Track", "  track", 0, true},
        {"", "", 0, true},
        {"   ", "", 0, true},
        {"", " ", 1, true},
        {"", "A", 0, false},
        {"A", "", 0, false},
        {"DLH4AB", "dlh4ac", 0, false},
        {"ab", "aB", 1, false},
        {"Z@[", "z@[", 0, true},                         // only letters fold
        {"`", "@", 0, false},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ast_keyword_match(c.value, c.search, c.case_sensitive), c.expected)
            << "'" << c.value << "' vs '" << c.search << "' flag " << int(c.case_sensitive);
    EXPECT_FALSE(ast_keyword_match(nullptr, "", 0));
    EXPECT_FALSE(ast_keyword_match("", nullptr, 0));
}

TEST(Keyword, CategoriesServeTheKeywordsOfTheirAccessors) {
    struct Case {
        uint32_t category, id;
        bool expected;
    } cases[] = {
        {48, AST_KEYWORD_SACSIC, true},        {48, AST_KEYWORD_POLAR, true},
        {48, AST_KEYWORD_CALLSIGN, true},      {48, AST_KEYWORD_HEADING, true},
        {48, AST_KEYWORD_WGS84, false},        {48, AST_KEYWORD_SPEED, false},
        {48, AST_KEYWORD_VERTICAL_RATE, false}, {62, AST_KEYWORD_POLAR, false},
        {62, AST_KEYWORD_CARTESIAN_VELOCITY, true}, {62, AST_KEYWORD_VERTICAL_RATE, true},
        {34, AST_KEYWORD_TYPE, true},          {34, AST_KEYWORD_TIMESTAMP, true},
        {34, AST_KEYWORD_TRACK_NUMBER, false}, {1, AST_KEYWORD_MODE3A, true},
        {1, AST_KEYWORD_TIMESTAMP, false},     {2, AST_KEYWORD_TYPE, true},
        {7, AST_KEYWORD_SACSIC, false},        {1000048, AST_KEYWORD_SACSIC, false},
        {48, 15, false},                       {62, 0xFFFFFFFFu, false},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ast_datarecord_supports_keyword(c.category, c.id), c.expected)
            << "CAT" << c.category << " keyword " << c.id;
}

TEST(Keyword, TextForms) {
    const Rec t48 = cat048_track(), p48 = cat048_plot(), t62 = cat062_track(), s34 = cat034_sector();
    ASSERT_EQ(t48.r.valid, 1);
    ASSERT_EQ(p48.r.valid, 1);
    ASSERT_EQ(t62.r.valid, 1);
    ASSERT_EQ(s34.r.valid, 1);

    struct Case {
        const AstDataRecord *record;
        uint32_t id, flags;
        const char *expected;  // "(false)": no value
    } cases[] = {
        {&t48.r, AST_KEYWORD_SACSIC, 0, "025/013"},
        {&t48.r, AST_KEYWORD_TIMESTAMP, 0, "12:34:56.789"},
        {&t48.r, AST_KEYWORD_TYPE, 0, "Track"},
        {&t48.r, AST_KEYWORD_TRACK_NUMBER, 0, "1234"},
        {&t48.r, AST_KEYWORD_MODE3A, 0, "7700"},
        {&t48.r, AST_KEYWORD_FLIGHT_LEVEL, 0, "35000"},
        {&t48.r, AST_KEYWORD_SELECTED_ALTITUDE, 0, "35008"},
        {&t48.r, AST_KEYWORD_CALLSIGN, 0, "DLH4AB"},
        {&t48.r, AST_KEYWORD_ICAO_ADDRESS, 0, "4CA1FF"},
        {&t48.r, AST_KEYWORD_POLAR, 0, "R:012.5000 T:090.00"},
        {&t48.r, AST_KEYWORD_WGS84, 0, "(false)"},          // no accessor in CAT048
        {&t48.r, AST_KEYWORD_HEADING, 0, "(false)"},        // accessor, but no BDS 5,0 or 6,0
        {&p48.r, AST_KEYWORD_SACSIC, 0, "025/014"},
        {&p48.r, AST_KEYWORD_TIMESTAMP, 0, "00:00:01.000"},
        {&p48.r, AST_KEYWORD_TYPE, 0, "Plot"},
        {&p48.r, AST_KEYWORD_TRACK_NUMBER, 0, "(false)"},
        {&p48.r, AST_KEYWORD_MODE3A, 0, "7700GS"},
        {&p48.r, AST_KEYWORD_FLIGHT_LEVEL, 0, "-00025"},
        {&p48.r, AST_KEYWORD_CALLSIGN, 0, ""},              // blanks only: valid, empty
        {&t62.r, AST_KEYWORD_TYPE, 0, "Track"},
        {&t62.r, AST_KEYWORD_FLIGHT_LEVEL, 0, "08000"},
        {&t62.r, AST_KEYWORD_CALLSIGN, 0, "BAW123"},
        {&t62.r, AST_KEYWORD_WGS84, 0, "450000N0223000W"},
        {&t62.r, AST_KEYWORD_WGS84, AST_KEYWORD_FORMAT_DECIMAL, "45.000000, -22.500000"},
        {&t62.r, AST_KEYWORD_SPEED, 0, "68.73"},
        {&t62.r, AST_KEYWORD_HEADING, 0, "T:045.00"},
        {&t62.r, AST_KEYWORD_CARTESIAN_VELOCITY, 0, "VX:+025.00 VY:+025.00"},
        {&t62.r, AST_KEYWORD_VERTICAL_RATE, 0, "-0100.00"},
        {&t62.r, AST_KEYWORD_POLAR, 0, "(false)"},
        {&t62.r, AST_KEYWORD_SELECTED_ALTITUDE, 0, "(false)"},
        {&s34.r, AST_KEYWORD_TYPE, 0, "Sector"},
        {&s34.r, AST_KEYWORD_TIMESTAMP, 0, "12:34:56.789"},
        {&s34.r, AST_KEYWORD_CALLSIGN, 0, "(false)"},
        {&s34.r, 15, 0, "(false)"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(keyword_text(*c.record, c.id, c.flags), c.expected)
            << "CAT" << c.record->category << " keyword " << c.id << " flags " << c.flags;

    // The finer position forms are chosen by flag, VERY_HIGH first.
    char want[64];
    ast_latlong_to_str_high(want, sizeof want, 45.0, -22.5);
    EXPECT_EQ(keyword_text(t62.r, AST_KEYWORD_WGS84, AST_KEYWORD_FORMAT_HIGH | AST_KEYWORD_FORMAT_DECIMAL), want);
    ast_latlong_to_str_very_high(want, sizeof want, 45.0, -22.5);
    EXPECT_EQ(keyword_text(t62.r, AST_KEYWORD_WGS84, AST_KEYWORD_FORMAT_VERY_HIGH | AST_KEYWORD_FORMAT_HIGH), want);
    EXPECT_NE(std::string(want), "450000N0223000W");
}

TEST(Keyword, TextFormFailuresAndCuts) {
    const Rec t48 = cat048_track();
    char text[8] = "keep";
    EXPECT_FALSE(ast_datarecord_get_keyword(nullptr, 8, &t48.r, AST_KEYWORD_SACSIC, 0));
    EXPECT_FALSE(ast_datarecord_get_keyword(text, sizeof text, nullptr, AST_KEYWORD_SACSIC, 0));

    // Cut to the buffer, still true.
    EXPECT_TRUE(ast_datarecord_get_keyword(text, 5, &t48.r, AST_KEYWORD_TIMESTAMP, 0));
    EXPECT_STREQ(text, "12:3");
    EXPECT_TRUE(ast_datarecord_get_keyword(text, 1, &t48.r, AST_KEYWORD_CALLSIGN, 0));
    EXPECT_STREQ(text, "");

    // A record that did not decode answers nothing, though its items are readable.
    Octets cut = {0xC0, 0x19, 0x0D, 0x58};  // I048/140 announced, one octet of it there
    AstDataRecord r;
    ast_datarecord_decode(&r, cut.data(), cut.size(), 48, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 0);
    ASSERT_EQ(r.item_count, 1u);
    EXPECT_FALSE(ast_datarecord_get_keyword(text, sizeof text, &r, AST_KEYWORD_SACSIC, 0));
    EXPECT_FALSE(ast_datarecord_contain_keyword(&r, AST_KEYWORD_SACSIC));
    EXPECT_FALSE(ast_datarecord_match_keyword(&r, AST_KEYWORD_SACSIC, "25/13", 0));
    // The same octets whole: the SAC/SIC is there.
    cut.insert(cut.end(), {0x00, 0x00});
    ast_datarecord_decode(&r, cut.data(), cut.size(), 48, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    EXPECT_TRUE(ast_datarecord_match_keyword(&r, AST_KEYWORD_SACSIC, "25/13", 0));
}

TEST(Keyword, ContainedKeywords) {
    const Rec t48 = cat048_track(), p48 = cat048_plot(), t62 = cat062_track(), s34 = cat034_sector();
    // Bit per keyword, 0 to 14.
    auto contained = [](const AstDataRecord &r) {
        unsigned bits = 0;
        for (uint32_t k = 0; k < AST_KEYWORD_COUNT + 2; ++k)
            if (ast_datarecord_contain_keyword(&r, k)) bits |= 1u << k;
        return bits;
    };
    // SAC/SIC, time, type, track, 3/A, FL, selected, callsign, address, polar.
    EXPECT_EQ(contained(t48.r), 0x05FFu);
    // The blank callsign is not a callsign found.
    EXPECT_EQ(contained(p48.r), 0x0037u);
    // All but the selected altitude, the address and the polar position.
    EXPECT_EQ(contained(t62.r), 0x7ABFu);
    EXPECT_EQ(contained(s34.r), 0x0007u);
    EXPECT_FALSE(ast_datarecord_contain_keyword(nullptr, AST_KEYWORD_SACSIC));
}

TEST(Keyword, MatchingRecords) {
    const Rec t48 = cat048_track(), p48 = cat048_plot(), t62 = cat062_track(), s34 = cat034_sector();
    struct Case {
        const AstDataRecord *record;
        uint32_t id;
        const char *search;
        uint8_t case_sensitive;
        bool expected;
    } cases[] = {
        // SAC/SIC: both numbers, or the SAC alone.
        {&t48.r, AST_KEYWORD_SACSIC, "025/013", 0, true},
        {&t48.r, AST_KEYWORD_SACSIC, "25/13", 0, true},
        {&t48.r, AST_KEYWORD_SACSIC, "25/14", 0, false},
        {&t48.r, AST_KEYWORD_SACSIC, "25", 0, true},
        {&p48.r, AST_KEYWORD_SACSIC, "25", 0, true},
        {&t48.r, AST_KEYWORD_SACSIC, "13", 0, false},
        {&t48.r, AST_KEYWORD_SACSIC, "x", 0, false},
        // Time: four numbers, all equal.
        {&t48.r, AST_KEYWORD_TIMESTAMP, "12:34:56.789", 0, true},
        {&t48.r, AST_KEYWORD_TIMESTAMP, "12:34:56.788", 0, false},
        {&t48.r, AST_KEYWORD_TIMESTAMP, "12:34:56", 0, false},
        {&p48.r, AST_KEYWORD_TIMESTAMP, "0:0:1.0", 0, true},
        // Type: the first word of the name.
        {&t48.r, AST_KEYWORD_TYPE, "track", 0, true},
        {&t48.r, AST_KEYWORD_TYPE, "track", 1, false},
        {&t48.r, AST_KEYWORD_TYPE, "Tra", 0, false},
        {&p48.r, AST_KEYWORD_TYPE, "Plot", 1, true},
        {&s34.r, AST_KEYWORD_TYPE, "sector", 0, true},
        {&s34.r, AST_KEYWORD_TYPE, "north", 0, false},
        // Track number, Mode 3/A, address.
        {&t48.r, AST_KEYWORD_TRACK_NUMBER, "1234", 0, true},
        {&t48.r, AST_KEYWORD_TRACK_NUMBER, "01234", 0, true},
        {&t48.r, AST_KEYWORD_TRACK_NUMBER, "1235", 0, false},
        {&p48.r, AST_KEYWORD_TRACK_NUMBER, "0", 0, false},
        {&t48.r, AST_KEYWORD_MODE3A, "7700", 0, true},
        {&p48.r, AST_KEYWORD_MODE3A, "7700", 0, true},
        {&t48.r, AST_KEYWORD_MODE3A, "4032", 0, false},  // 7700 read as decimal
        {&t48.r, AST_KEYWORD_MODE3A, "", 0, false},
        {&t48.r, AST_KEYWORD_ICAO_ADDRESS, "4CA1FF", 0, true},
        {&t48.r, AST_KEYWORD_ICAO_ADDRESS, "4ca1ff", 0, true},
        {&t48.r, AST_KEYWORD_ICAO_ADDRESS, "4CA1FE", 0, false},
        {&t48.r, AST_KEYWORD_ICAO_ADDRESS, "zz", 0, false},
        // Feet, truncated as shown.
        {&t48.r, AST_KEYWORD_FLIGHT_LEVEL, "35000", 0, true},
        {&t48.r, AST_KEYWORD_FLIGHT_LEVEL, "35025", 0, false},
        {&p48.r, AST_KEYWORD_FLIGHT_LEVEL, "-25", 0, true},
        {&t48.r, AST_KEYWORD_SELECTED_ALTITUDE, "35008", 0, true},
        {&t48.r, AST_KEYWORD_SELECTED_ALTITUDE, "35000", 0, false},
        {&t62.r, AST_KEYWORD_SELECTED_ALTITUDE, "0", 0, false},
        // Callsign: the first word, case by flag.
        {&t48.r, AST_KEYWORD_CALLSIGN, "dlh4ab", 0, true},
        {&t48.r, AST_KEYWORD_CALLSIGN, "dlh4ab", 1, false},
        {&t48.r, AST_KEYWORD_CALLSIGN, "DLH4", 0, false},
        {&t62.r, AST_KEYWORD_CALLSIGN, " BAW123 extra", 1, true},
        {&s34.r, AST_KEYWORD_CALLSIGN, "", 0, false},
        // Positions.
        {&t62.r, AST_KEYWORD_WGS84, "45.0, -22.5", 0, true},
        {&t62.r, AST_KEYWORD_WGS84, " 45.000001 ,-22.4999995", 0, true},
        {&t62.r, AST_KEYWORD_WGS84, "45.0000021, -22.5", 0, false},
        {&t62.r, AST_KEYWORD_WGS84, "45.0", 0, false},
        {&t48.r, AST_KEYWORD_POLAR, "R:12.5 T:90", 0, true},
        {&t48.r, AST_KEYWORD_POLAR, " R:12.50004 T:90.004", 0, true},
        {&t48.r, AST_KEYWORD_POLAR, "R:12.5001 T:90", 0, false},
        {&t48.r, AST_KEYWORD_POLAR, "R:12.5 T:90.006", 0, false},
        {&t48.r, AST_KEYWORD_POLAR, "R:12.5", 0, false},
        // Speed within 0.5 kt of 68.7253.
        {&t62.r, AST_KEYWORD_SPEED, "68.73", 0, true},
        {&t62.r, AST_KEYWORD_SPEED, "69", 0, true},
        {&t62.r, AST_KEYWORD_SPEED, "68.23", 0, true},
        {&t62.r, AST_KEYWORD_SPEED, "69.2", 0, true},
        {&t62.r, AST_KEYWORD_SPEED, "68.2", 0, false},
        {&t62.r, AST_KEYWORD_SPEED, "69.3", 0, false},
        {&t62.r, AST_KEYWORD_SPEED, "fast", 0, false},
        // Heading 45: both labels compare with the one value.
        {&t62.r, AST_KEYWORD_HEADING, "T:45", 0, true},
        {&t62.r, AST_KEYWORD_HEADING, "M:45.004", 0, true},
        {&t62.r, AST_KEYWORD_HEADING, " M:45 T:45", 0, true},
        {&t62.r, AST_KEYWORD_HEADING, "M:45 T:46", 0, false},
        {&t62.r, AST_KEYWORD_HEADING, "T:45.006", 0, false},
        {&t62.r, AST_KEYWORD_HEADING, "45", 0, false},
        {&t48.r, AST_KEYWORD_HEADING, "T:0", 0, false},
        // Cartesian velocity 25/25 m/s, within 0.25.
        {&t62.r, AST_KEYWORD_CARTESIAN_VELOCITY, "VX:25 VY:25", 0, true},
        {&t62.r, AST_KEYWORD_CARTESIAN_VELOCITY, "VX:25.25 VY:24.75", 0, true},
        {&t62.r, AST_KEYWORD_CARTESIAN_VELOCITY, "VX:25.3", 0, false},
        {&t62.r, AST_KEYWORD_CARTESIAN_VELOCITY, "VY:25.2", 0, true},
        {&t62.r, AST_KEYWORD_CARTESIAN_VELOCITY, "VX:25 VY:-25", 0, false},
        {&t62.r, AST_KEYWORD_CARTESIAN_VELOCITY, "25 25", 0, false},
        // Vertical rate -100 ft/min, within 6.25.
        {&t62.r, AST_KEYWORD_VERTICAL_RATE, "-100", 0, true},
        {&t62.r, AST_KEYWORD_VERTICAL_RATE, "-106.25", 0, true},
        {&t62.r, AST_KEYWORD_VERTICAL_RATE, "-93.75", 0, true},
        {&t62.r, AST_KEYWORD_VERTICAL_RATE, "-107", 0, false},
        {&t62.r, AST_KEYWORD_VERTICAL_RATE, "100", 0, false},
        // Nothing beyond the table.
        {&t62.r, 15, "", 0, false},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ast_datarecord_match_keyword(c.record, c.id, c.search, c.case_sensitive), c.expected)
            << "CAT" << c.record->category << " keyword " << c.id << " search '" << c.search << "' flag "
            << int(c.case_sensitive);
    EXPECT_FALSE(ast_datarecord_match_keyword(&t48.r, AST_KEYWORD_SACSIC, nullptr, 0));

    // Numbers are read from the first 63 characters; a longer text never matches.
    const std::string padded = "25/13" + std::string(58, ' ');
    EXPECT_TRUE(ast_datarecord_match_keyword(&t48.r, AST_KEYWORD_SACSIC, padded.c_str(), 0));
    EXPECT_FALSE(ast_datarecord_match_keyword(&t48.r, AST_KEYWORD_SACSIC, (padded + " ").c_str(), 0));
    // Words are compared however long the text.
    const std::string word = "dlh4ab" + std::string(100, ' ') + "x";
    EXPECT_TRUE(ast_datarecord_match_keyword(&t48.r, AST_KEYWORD_CALLSIGN, word.c_str(), 0));
}

TEST(Keyword, HeadingComparedRoundTheCircle) {
    // vx -0.25 m/s, vy 2000 m/s: a course just short of north (359.99284 deg).
    const Rec r(62, record_of({{1, {0x19, 0x0D}}, {7, {0xFF, 0xFF, 0x1F, 0x40}}}));
    ASSERT_EQ(r.r.valid, 1);
    EXPECT_EQ(keyword_text(r.r, AST_KEYWORD_HEADING), "T:359.99");
    EXPECT_FALSE(ast_datarecord_match_keyword(&r.r, AST_KEYWORD_HEADING, "T:0", 0));   // 0.0072 away
    EXPECT_TRUE(ast_datarecord_match_keyword(&r.r, AST_KEYWORD_HEADING, "T:-0.003", 0));
    EXPECT_TRUE(ast_datarecord_match_keyword(&r.r, AST_KEYWORD_HEADING, "T:359.995", 0));
    EXPECT_TRUE(ast_datarecord_match_keyword(&r.r, AST_KEYWORD_HEADING, "T:719.993", 0));
}
