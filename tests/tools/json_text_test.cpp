// The short cuts of the tool's JSON texts: the word-at-a-time scan for
// octets that need escaping, and the exact digits of reals that are a whole
// number of binary fractions. Each must give what the general path gives.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <random>
#include <string>

#include "fields.h"
#include "json_writer.h"

using namespace kovrel_tool;

namespace {

std::string json_string(const std::string &text) {
    OutBuffer out;
    put_json_string(out, text);
    return std::string(out.view());
}

std::string json_real(double v) {
    char text[40];
    return std::string(text, format_json_real(text, v));
}

// The significant digits of a JSON real ("0.00125" and "1.25e-03" both
// give "125").
std::string significant(const std::string &text) {
    std::string d;
    for (char c : text) {
        if (c == 'e' || c == 'E') break;
        if (c >= '0' && c <= '9') d += c;
    }
    const size_t first = d.find_first_not_of('0');
    d.erase(0, first == std::string::npos ? d.size() : first);
    while (!d.empty() && d.back() == '0') d.pop_back();
    return d;
}

}  // namespace

TEST(ToolJsonText, ScanStopsAtEveryOctetThatNeedsEscaping) {
    // Each octet at every place of a text of 19, across the words of eight
    // and in the tail: where the scan stops.
    const struct {
        unsigned char octet;
        bool stops;
    } octets[] = {
        {0x00, true}, {0x01, true}, {0x1F, true}, {'"', true}, {'\\', true}, {0x80, true}, {0xC3, true},
        {0xFF, true}, {0x20, false}, {0x21, false}, {'#', false}, {'[', false}, {']', false}, {0x7F, false},
        {'~', false},
    };
    for (const auto &o : octets) {
        for (size_t at = 0; at < 19; ++at) {
            std::string text(19, 'a');
            text[at] = static_cast<char>(o.octet);
            EXPECT_EQ(json_plain_prefix(text.data(), text.size()), o.stops ? at : text.size())
                << "octet " << int(o.octet) << " at " << at;
            // The text written from that place on is escaped as before.
            const std::string written = json_string(text);
            EXPECT_EQ(written, nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace))
                << "octet " << int(o.octet) << " at " << at;
        }
    }
    const struct {
        std::string text;
        size_t plain;
    } cases[] = {
        {"", 0},
        {"SAC:025", 7},
        {"SAC:025 SIC:001", 15},
        {"ACID:DLH123  \"x", 13},
        {"12345678\n", 8},
        {std::string("abcdefgh\0", 9), 8},
        {"abcdefghijklmnop\xE2\x82\xAC", 16},
    };
    for (const auto &c : cases) EXPECT_EQ(json_plain_prefix(c.text.data(), c.text.size()), c.plain) << c.text;
}

TEST(ToolJsonText, ExactRealsAsTheGeneralConversion) {
    const struct {
        double v;
        const char *text;
    } cases[] = {
        {139.578125, "139.578125"},
        {0.2911376953125, "0.2911376953125"},
        {-0.2911376953125, "-0.2911376953125"},
        {34000.0, "34000.0"},
        {39.0234375, "39.0234375"},
        {0.5, "0.5"},
        {0.0001220703125, "0.0001220703125"},       // 2^-13: the smallest kind with a point
        {0.00006103515625, "6.103515625e-05"},      // 2^-14: below 0.0001
        {1.0 / 1024 / 1024, "9.5367431640625e-07"},
        {123456789012345.0, "123456789012345.0"},   // 15 digits
        {12345678901234.5, "12345678901234.5"},
        {123456789012345.5, "123456789012345.5"},   // 16 digits: the general path
        {999999999999999.0, "999999999999999.0"},
        {1.0 + 1.0 / 1024 / 1024 / 1024 / 1024, "1.0000000000009095"},
        {0.1, "0.1"},                               // not a binary fraction
        {1e15, "1e+15"},
        {100.0, "100.0"},
        {7.0, "7.0"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(json_real(c.v), c.text) << c.text;
        EXPECT_EQ(std::strtod(json_real(c.v).c_str(), nullptr), c.v) << c.text;
    }

    // Whole numbers of 2^-s, as decoders make them: the digits are the
    // shortest the standard conversion finds.
    std::mt19937_64 random(3);
    for (int i = 0; i < 100000; ++i) {
        const int shift = static_cast<int>(random() % 54);
        const int bits = 1 + static_cast<int>(random() % 53);
        const uint64_t n = random() >> (64 - bits);
        const double v = std::ldexp(static_cast<double>(n), -shift) * (random() % 2 ? 1 : -1);
        char sci[40];
        char *end = std::to_chars(sci, sci + sizeof sci, v, std::chars_format::scientific).ptr;
        const std::string mine = json_real(v);
        ASSERT_EQ(significant(mine), significant(std::string(sci, end))) << mine;
        ASSERT_EQ(std::strtod(mine.c_str(), nullptr), v) << mine;
        const std::string theirs = nlohmann::json(v).dump();
        ASSERT_EQ(mine.find('e') == std::string::npos, theirs.find('e') == std::string::npos) << mine << " " << theirs;
    }
}

TEST(ToolJsonText, RecordFieldsObjectExactly) {
    RecordFields all;
    all.answered = kAskAll;
    all.sac = 25;
    all.sic = 1;
    all.tod = AstTimeOfDay{};
    all.tod.hour = 9;
    all.tod.minute = 5;
    all.tod.second = 7;
    all.tod.millisecond = 45;
    all.msgtype = 3;
    all.msgtype_name = "Target Report";
    all.track = 4095;
    all.mode3a = 05077;
    all.fl = 35025;
    all.sel_alt = 34000;
    std::memcpy(all.callsign, "DLH\"1\\", 6);
    all.callsign_length = 6;
    all.icao = 0x3C654A;
    all.lat = 48.5;
    all.lon = -2.25;
    all.rho = 139.578125;
    all.theta = 0.1;
    all.x = 1852.5;
    all.y = -0.5;
    all.speed = 420;
    all.heading = 39.0234375;
    all.vx = -0.25;
    all.vy = 0;
    all.vrate = -1250;

    RecordFields first_only = all;  // the first member written has no comma before it
    first_only.answered = kAskRate;
    RecordFields unnamed = all;
    unnamed.answered = kAskType | kAskAddress | kAskMode3a;
    unnamed.msgtype_name = nullptr;
    unnamed.icao = 0xA;
    unnamed.mode3a = 7;
    RecordFields none = all;
    none.answered = 0;

    const struct {
        const RecordFields *fields;
        const char *json;
    } cases[] = {
        {&all,
         R"({"sac":25,"sic":1,"tod":"09:05:07.045","msgtype":"Target Report","track":4095,"mode3a":"5077",)"
         R"("fl":35025.0,"sel_alt":34000.0,"callsign":"DLH\"1\\","icao":"3C654A","lat":48.5,"lon":-2.25,)"
         R"("rho":139.578125,"theta":0.1,"x":1852.5,"y":-0.5,"speed":420.0,"heading":39.0234375,"vx":-0.25,"vy":0.0,"vrate":-1250.0})"},
        {&first_only, R"({"vrate":-1250.0})"},
        {&unnamed, R"({"msgtype":3,"mode3a":"0007","icao":"00000A"})"},
        {&none, "{}"},
    };
    for (const auto &c : cases) {
        OutBuffer out;
        JsonWriter json(out);
        write_fields_json(json, *c.fields);
        EXPECT_EQ(out.view(), c.json);
    }
}

#endif  // KOVREL_HAVE_TOOL_CORE
