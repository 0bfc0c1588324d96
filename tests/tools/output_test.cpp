// What `kovrel decode` writes for a record: the JSON writer's texts, JSON
// lines, text lines and item lines, to the character.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <cstring>
#include <limits>
#include <nlohmann/json.hpp>
#include <random>
#include <string>

#include "json_writer.h"
#include "sample.h"
#include "session.h"
#include "tools/capture_builder.h"
#include "tools/decoded.h"
#include "tools/memory_stream.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

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

// How nlohmann-json, which wrote the tool's JSON before, dumps a value.
template <typename T>
std::string nlohmann_dump(const T &v) {
    return nlohmann::json(v).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

// A CAT048 record: I048/010, 140, 070 and 240 (SAC 25 SIC 1, 12:34:56.789,
// Mode 3/A 5077, DLH123).
const Octets kRecord = {0xC9, 0x40, 0x19, 0x01, 0x58, 0x78, 0x65, 0x0A, 0x3F, 0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20};

Octets block_of(std::initializer_list<Octets> records) {
    Octets b = {48, 0, 0};
    for (const auto &r : records) b.insert(b.end(), r.begin(), r.end());
    b[1] = static_cast<uint8_t>(b.size() >> 8);
    b[2] = static_cast<uint8_t>(b.size());
    return b;
}

// The "fields" member the library gives an item, or nothing.
std::string fields_member(const Octets &octets, AstItemId id) {
    AstDataItem item;
    ast_dataitem_scan(&item, octets.data(), octets.size(), id);
    char text[2048];
    const size_t n = ast_dataitem_get_fields_json(text, sizeof text, &item);
    EXPECT_LT(n, sizeof text);
    return n ? ",\"fields\":" + std::string(text, n) : "";
}

}  // namespace

TEST(ToolOutBuffer, PadsGrowsAndFlushes) {
    OutBuffer out(nullptr, 16);
    out.put_left("blk", 5);
    out.put_left(123456, 5);  // wider than its column: written whole
    out.put('|');
    out.put_left(42, 4);
    out.put_zero_padded(7, 3);
    out.put_zero_padded(12345, 3);
    out.put_signed(-9);
    out.put_unsigned(18446744073709551615ull);
    EXPECT_EQ(out.view(), "blk  123456|42  00712345-918446744073709551615");
    EXPECT_TRUE(out.full());
    out.truncate(3);
    out.truncate(10);  // never longer
    EXPECT_EQ(out.view(), "blk");

    // Far beyond the first capacity, in pieces of every size.
    std::string expected = "blk";
    for (size_t n = 0; n < 3000; ++n) {
        const std::string piece(n % 97, static_cast<char>('a' + n % 26));
        out.put(piece);
        expected += piece;
        if (n % 500 == 0) {
            char *room = out.room(70000);
            std::memset(room, 'z', 70000);
            out.advance(70000);
            expected.append(70000, 'z');
        }
    }
    EXPECT_EQ(out.view(), expected);

    // Flushing writes all and empties; a failing write says so.
    Capture file;
    out.set_file(file.file());
    EXPECT_TRUE(out.flush());
    EXPECT_EQ(out.size(), 0u);
    EXPECT_EQ(file.text(), expected);
    std::FILE *full = std::fopen("/dev/full", "w");
    if (!full) GTEST_SKIP() << "no /dev/full";
    std::setvbuf(full, nullptr, _IONBF, 0);
    out.set_file(full);
    out.put("x", 1);
    EXPECT_FALSE(out.flush());
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_EQ(out.size(), 0u);
    std::fclose(full);
}

TEST(ToolJson, StringsAreEscapedAsBefore) {
    const char kFffd[] = "\xEF\xBF\xBD";
    const struct {
        std::string in, out;
    } cases[] = {
        {"", R"("")"},
        {"ACID:DLH123  ", R"("ACID:DLH123  ")"},
        {"a\"b\\c/", R"("a\"b\\c/")"},
        {"\b\f\n\r\t", R"("\b\f\n\r\t")"},
        {std::string("a\0b\x01\x1f", 5), R"("a\u0000b\u0001\u001f")"},
        {"\x7f", "\"\x7f\""},                                   // DEL is not a control character to JSON
        {"\xC3\xA9 \xE2\x82\xAC \xF0\x9D\x84\x9E", "\"\xC3\xA9 \xE2\x82\xAC \xF0\x9D\x84\x9E\""},  // UTF-8 kept
        {"ok\xFFok", std::string("\"ok") + kFffd + "ok\""},    // not a lead octet
        {"\x80", std::string("\"") + kFffd + "\""},            // a continuation alone
        {"\xC0\x80", std::string("\"") + kFffd + kFffd + "\""},  // overlong: both octets refused
        {"\xE2\x82", std::string("\"") + kFffd + "\""},        // cut off at the end: one replacement
        {"\xE2(\xA1", std::string("\"") + kFffd + "(" + kFffd + "\""},  // the breaking octet is read again
        {"\xED\xA0\x80", std::string("\"") + kFffd + kFffd + kFffd + "\""},  // a surrogate
        {"\xF4\x90\x80\x80", std::string("\"") + kFffd + kFffd + kFffd + kFffd + "\""},  // above U+10FFFF
        {"\xF0\x9D\x84", std::string("\"") + kFffd + "\""},
    };
    for (const auto &c : cases) {
        const std::string text = json_string(c.in);
        EXPECT_EQ(text, c.out) << c.out;
        EXPECT_EQ(text, nlohmann_dump(c.in)) << c.out;
        EXPECT_TRUE(nlohmann::json::accept(text)) << text;
    }
}

TEST(ToolJson, RealsKeepTheirValue) {
    const struct {
        double v;
        const char *text;
    } cases[] = {
        {0.0, "0.0"},
        {-0.0, "-0.0"},
        {35025.0, "35025.0"},  // a whole real keeps its point
        {12.50390625, "12.50390625"},
        {-2.5, "-2.5"},
        {0.1, "0.1"},
        {0.0001, "0.0001"},
        {0.00001, "1e-05"},
        {1715680800.0005, "1715680800.0005"},
        {1e14, "100000000000000.0"},
        {1e15, "1e+15"},
        {1.5e16, "1.5e+16"},
        {1.5e300, "1.5e+300"},
        {123456789012345678.0, "1.2345678901234568e+17"},
        {5e-324, "5e-324"},
        {std::numeric_limits<double>::quiet_NaN(), "null"},
        {std::numeric_limits<double>::infinity(), "null"},
        {-std::numeric_limits<double>::infinity(), "null"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(json_real(c.v), c.text) << c.text;
        if (std::isfinite(c.v)) {
            EXPECT_EQ(json_real(c.v), nlohmann_dump(c.v)) << c.text;
        }
    }
    // Any double reads back the same and is laid out as nlohmann-json lays
    // it out; nlohmann's digits are at times one longer than the shortest.
    std::mt19937_64 random(7);
    size_t same_text = 0, total = 0;
    for (int i = 0; i < 200000; ++i) {
        const uint64_t bits = random();
        double v;
        std::memcpy(&v, &bits, sizeof v);
        if (!std::isfinite(v)) continue;
        const std::string mine = json_real(v), theirs = nlohmann_dump(v);
        ++total;
        if (mine == theirs) ++same_text;
        ASSERT_EQ(std::strtod(mine.c_str(), nullptr), v) << mine;
        ASSERT_EQ(mine.find('e') == std::string::npos, theirs.find('e') == std::string::npos) << mine << " " << theirs;
        ASSERT_LE(mine.size(), theirs.size()) << mine << " " << theirs;
    }
    EXPECT_GT(same_text, total * 95 / 100);
}

TEST(ToolJson, WriterPlacesCommasAndKeys) {
    OutBuffer out;
    JsonWriter json(out);
    json.begin_object();
    json.key("a");
    json.unsigned_number(1);
    json.key("b");
    json.begin_array();
    json.signed_number(-2);
    json.string("x");
    json.begin_object();
    json.end_object();
    json.begin_array();
    json.end_array();
    json.raw(R"({"k":1})");
    json.end_array();
    json.key("c");
    json.null();
    json.key("d");
    json.boolean(false);
    json.key("e");
    json.real(0.5);
    json.end_object();
    EXPECT_EQ(out.view(), R"({"a":1,"b":[-2,"x",{},[],{"k":1}],"c":null,"d":false,"e":0.5})");
}

TEST(ToolJson, RecordLineExactly) {
    const Octets block = block_of({kRecord});
    SessionSettings s;
    s.format = RecordFormat::Json;
    Capture out, messages;
    DecodeSession session(s, out.file(), messages.file());
    const Octets capture = pcap_file(1, {ethernet(0x0800, ipv4(udp(block)))});
    session.decode_memory("in \"x\"", capture.data(), capture.size());
    const auto lines = out.lines();
    ASSERT_EQ(lines.size(), 1u);
    const std::string expected =
        R"({"input":"in \"x\"","block":1,"offset":0,"packet":1,"time":1715680800.0005,)"
        R"("src":"10.0.0.1:4000","dst":"239.1.1.1:8600","cat":48,"uap":"standard",)"
        R"("record":1,"length":15,"item_count":4,"valid":true,"block_valid":true,"fields":{"sac":25,"sic":1,)"
        R"("tod":"12:34:56.789","msgtype":"Plot","mode3a":"5077","callsign":"DLH123"},"items":[)"
        R"({"id":"I048/010","name":"Data Source Identifier","len":2,"hex":"19 01","summary":"SAC:025 SIC:001")" +
        fields_member({0x19, 0x01}, 48010) +
        R"(},{"id":"I048/140","name":"Time of Day","len":3,"hex":"58 78 65","summary":"TOD:12:34:56.789")" +
        fields_member({0x58, 0x78, 0x65}, 48140) +
        R"(},{"id":"I048/070","name":"Mode-3/A Code in Octal Representation","len":2,"hex":"0a 3f",)"
        R"("summary":"MODE_3/A:5077")" +
        fields_member({0x0A, 0x3F}, 48070) +
        R"(},{"id":"I048/240","name":"Aircraft Identification","len":6,"hex":"10 c2 31 cb 38 20",)"
        R"("summary":"ACID:DLH123  ")" +
        fields_member({0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20}, 48240) + "}]}";
    EXPECT_EQ(lines[0], expected);
    // The item's fields are the library's own, and are there for I048/010.
    EXPECT_EQ(fields_member({0x19, 0x01}, 48010), R"(,"fields":{"sac":25,"sic":1})");

    // A record the block stopped at: no length, why, its octets from where
    // decoding stopped, the items read before.
    const auto bad = decode_octets(block_of({{0x80, 0x19, 0x03}, {0x82, 0x19, 0x04, 0xE0, 0x29, 0x06}}), true);
    ASSERT_EQ(bad.lines.size(), 2u);
    EXPECT_EQ(bad.lines[1].substr(0, bad.lines[1].find(",\"items\":")),
              R"({"input":"in","block":1,"offset":0,"cat":48,"uap":"standard","record":2,"length":null,)"
              R"("item_count":1,"valid":false,"block_valid":false,"error":"no profile reads the whole block; )"
              R"(furthest with standard: record 2 at octet 6: after I048/010, I048/130 (FRN 7) cannot be )"
              R"(delimited in the 3 octets left","hex":"e0 29 06","fields":{})");
}

TEST(ToolText, LinesAsBefore) {
    const Octets source_only = {0x80, 0x19, 0x03};
    const Octets squawk_only = {0x88, 0x19, 0x02, 0x00, 0x07};  // I048/010 and I048/070 0007
    const Octets cut_short = {0x82, 0x19, 0x04, 0xE0, 0x29, 0x06};
    const struct {
        Octets input;
        std::vector<std::string> lines;
    } cases[] = {
        {block_of({kRecord, squawk_only}),
         {"blk 1     @0             CAT048 standard      rec 1  len 15   items 4  valid  sac 25 sic 1  "
          "tod 12:34:56.789  Plot  callsign DLH123",
          "blk 1     @0             CAT048 standard      rec 2  len 5    items 2  valid  sac 25 sic 2  Plot  "
          "mode3a 0007"}},
        {concat({block_of({source_only}), block_of({source_only, cut_short})}),
         {"blk 1     @0             CAT048 standard      rec 1  len 3    items 1  valid  sac 25 sic 3  Plot",
          "blk 2     @6             CAT048 standard      rec 1  len 3    items 1  valid  sac 25 sic 3  Plot",
          "blk 2     @6             CAT048 standard      rec 2  len -    items 1  INVALID"}},
        {pcap_file(1, {ethernet(0x0800, ipv4(udp(concat({block_of({source_only}), block_of({source_only})}))))}),
         {"blk 1     pkt 1+0        CAT048 standard      rec 1  len 3    items 1  valid  sac 25 sic 3  Plot  "
          "src 10.0.0.1:4000",
          "blk 2     pkt 1+6        CAT048 standard      rec 1  len 3    items 1  valid  sac 25 sic 3  Plot  "
          "src 10.0.0.1:4000"}},
    };
    for (const auto &c : cases) EXPECT_EQ(decode_octets(c.input, false).lines, c.lines);

    // With --items, one line per item under its record.
    SessionSettings s;
    s.items = true;
    Capture out, messages;
    DecodeSession session(s, out.file(), messages.file());
    const Octets block = block_of({kRecord});
    session.decode_memory("in", block.data(), block.size());
    const std::vector<std::string> expected = {
        "blk 1     @0             CAT048 standard      rec 1  len 15   items 4  valid  sac 25 sic 1  "
        "tod 12:34:56.789  Plot  callsign DLH123",
        "    I048/010  Data Source Identifier                         len 2   19 01  | SAC:025 SIC:001",
        "    I048/140  Time of Day                                    len 3   58 78 65  | TOD:12:34:56.789",
        "    I048/070  Mode-3/A Code in Octal Representation          len 2   0a 3f  | MODE_3/A:5077",
        "    I048/240  Aircraft Identification                        len 6   10 c2 31 cb 38 20  | ACID:DLH123  ",
    };
    EXPECT_EQ(out.lines(), expected);
}

TEST(ToolJson, AnyOctetsGiveValidJson) {
    // Blocks of every category with random octets after a sensible start:
    // bad blocks, records cut short, items whose texts hold any octet.
    std::mt19937 random(11);
    const uint8_t categories[] = {1, 2, 4, 8, 10, 15, 16, 19, 20, 21, 23, 34, 48, 62, 63, 65, 240, 7, 255};
    Octets input;
    for (int i = 0; i < 3000; ++i) {
        const size_t size = 4 + random() % 60;
        Octets b(size);
        b[0] = categories[random() % sizeof categories];
        b[1] = 0;
        b[2] = static_cast<uint8_t>(size);
        for (size_t k = 3; k < size; ++k) b[k] = static_cast<uint8_t>(random());
        if (random() % 2) b[3] |= 0x80;  // mostly a first item
        input.insert(input.end(), b.begin(), b.end());
    }
    // Raw input goes on after bad blocks as long as LEN fits.
    const Decoded d = decode_octets(input, true);
    ASSERT_GT(d.lines.size(), 1000u);
    size_t with_fields = 0;
    for (const auto &line : d.lines) {
        nlohmann::json j;
        ASSERT_NO_THROW(j = nlohmann::json::parse(line)) << line;
        for (const auto &item : j["items"]) {
            if (item.contains("fields")) {
                ++with_fields;
                EXPECT_TRUE(item["fields"].is_object()) << line;
            }
        }
    }
    EXPECT_GT(with_fields, 100u);
}

#endif  // KOVREL_HAVE_TOOL_CORE
