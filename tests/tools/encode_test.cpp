// `kovrel encode`: JSON Lines to blocks, from record fields and from items
// given by their named fields or their octets.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <memory>
#include <set>

#include "encode_json.h"
#include "encoder.h"
#include "profiles.h"
#include "sample.h"
#include "support/sample_packets.h"
#include "tools/decoded.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;
using nlohmann::json;

namespace {

struct Encoded {
    Octets blocks;
    std::string messages;
    EncodeCounts counts;
};

Encoded encode(const std::string &text, size_t block_records = 64) {
    std::FILE *in = std::tmpfile();
    std::fputs(text.c_str(), in);
    std::rewind(in);
    Capture out, messages;
    Encoded e;
    e.counts = encode_lines(in, "in", out.file(), messages.file(), block_records);
    std::fclose(in);
    const std::string octets = out.text();
    e.blocks.assign(octets.begin(), octets.end());
    e.messages = messages.text();
    return e;
}

std::string record_line(const std::string &fields) { return R"({"cat":48,"fields":)" + fields + "}\n"; }

// Octets as upper-case hexadecimal pairs separated by blanks.
std::string hex(const uint8_t *data, size_t n) {
    std::string s;
    char two[4];
    for (size_t i = 0; i < n; ++i) {
        std::snprintf(two, sizeof two, i ? " %02X" : "%02X", data[i]);
        s += two;
    }
    return s;
}
std::string hex(const Octets &o) { return hex(o.data(), o.size()); }

// The blocks written back to back, each as its octets.
std::vector<Octets> split_blocks(const Octets &blocks) {
    std::vector<Octets> out;
    for (size_t at = 0; at + 3 <= blocks.size();) {
        const size_t length = static_cast<size_t>(blocks[at + 1]) << 8 | blocks[at + 2];
        if (length < 3 || at + length > blocks.size()) {
            ADD_FAILURE() << "block at " << at << " claims " << length << " octets";
            break;
        }
        out.emplace_back(blocks.begin() + static_cast<ptrdiff_t>(at), blocks.begin() + static_cast<ptrdiff_t>(at + length));
        at += length;
    }
    return out;
}

// The fields of each record decoded from the blocks, without the message
// type the decoder derives.
std::vector<json> fields_back(const Octets &blocks) {
    std::vector<json> out;
    for (auto &record : decode_json(blocks)) {
        EXPECT_EQ(record["valid"], true);
        record["fields"].erase("msgtype");
        out.push_back(record["fields"]);
    }
    return out;
}

const char *const kGoodLine = R"({"cat":48,"items":[{"id":"I048/010","hex":"19 0D"}]})";
const char *const kGoodBlock = "30 00 06 80 19 0D";

}  // namespace

TEST(ToolEncode, RecordFieldsBecomeItems) {
    // CAT048 FRNs: 1 010, 2 140, 3 020, 4 040, 5 070, 6 090, 7 130; 8 220,
    // 9 240, 10 250, 11 161, 12 042, 13 200.
    const struct {
        const char *fields;
        const char *block;
    } cases[] = {
        // TYP 2 (single SSR detection) without an address, chain 1.
        {R"({"sac":25,"sic":1})", "30 00 07 A0 19 01 40"},
        // Every item; TYP 5 (Mode S roll-call) with an address. TOD
        // 45296.789 s = 5797989/128; RHO 3200/256; THETA 8192 x 360/65536;
        // FL 1400 quarters; callsign in six-bit characters; speed 1911 x
        // 2^-14 NM/s; heading 90 degrees.
        {R"({"sac":25,"sic":1,"tod":"12:34:56.789","rho":12.5,"theta":45,"mode3a":"5077","fl":35000,)"
         R"("icao":"3c654a","callsign":"DLH123","track":77,"speed":420,"heading":90})",
         "30 00 22 FD D4 19 01 58 78 65 A0 0C 80 20 00 0A 3F 05 78 3C 65 4A 10 C2 31 CB 38 20 00 4D 07 77 40 00"},
        // Values between steps go to the nearest step; -90 degrees is 270;
        // -1010 ft is -40 quarters in 14 bits; TYP as given.
        {R"({"sac":1,"sic":2,"typ":1,"tod":1.0,"rho":0.001,"theta":-90,"fl":-1010})",
         "30 00 10 F4 01 02 00 00 80 20 00 00 C0 00 3F D8"},
        // What the decoder shows but no CAT048 item carries is left out, a
        // heading alone too.
        {R"({"sac":1,"sic":2,"heading":90,"msgtype":"Track","sel_alt":9000,"lat":1,"lon":2,"vx":3,"vy":4,"vrate":5})",
         "30 00 07 A0 01 02 40"},
    };
    for (const auto &c : cases) {
        const Encoded e = encode(record_line(c.fields));
        EXPECT_EQ(e.messages, "") << c.fields;
        EXPECT_EQ(hex(e.blocks), c.block) << c.fields;
    }
}

TEST(ToolEncode, RadarRecordFieldsBecomeItems) {
    const struct {
        const char *line;
        const char *block;
    } cases[] = {
        // CAT001 track (standard profile, FRNs 1 010, 2 020, 3 161, 4 040,
        // 6 200, 7 070, 8 090, 9 141): TYP track with SSR and PSR; RHO
        // 1600/128; THETA and heading 16384 x 360/65536; speed 1911 x 2^-14
        // NM/s; FL 1400 quarters; time 1.5 s = 192/128.
        {R"({"cat":1,"fields":{"sac":25,"sic":2,"track":300,"rho":12.5,"theta":90,"mode3a":"1234","fl":35000,)"
         R"("tod":1.5,"speed":420,"heading":90}})",
         "01 00 18 F7 C0 19 02 B0 01 2C 06 40 40 00 07 77 40 00 02 9C 05 78 00 C0"},
        // A plot in the plot profile (FRN 3 is I001/040): PSR alone.
        {R"({"cat":1,"uap":"cat001_plot","fields":{"sac":1,"sic":2,"msgtype":"Plot","rho":1,"theta":0}})",
         "01 00 0B E0 01 02 10 00 80 00 00"},
        // The truncated time keeps the low 16 bits: 10:00:00 is 4608000/128.
        {R"({"cat":1,"fields":{"sac":1,"sic":2,"tod":"10:00:00"}})", "01 00 0A C1 40 01 02 10 50 00"},
        // Service messages: a sector crossing at 90 degrees (64 x 360/256),
        // a north marker.
        {R"({"cat":34,"fields":{"sac":25,"sic":1,"msgtype":"Sector","sector":90,"tod":"10:00:00"}})",
         "22 00 0B F0 19 01 02 46 50 00 40"},
        {R"({"cat":2,"fields":{"sac":25,"sic":2,"msgtype":"North","tod":1}})", "02 00 0A D0 19 02 01 00 00 80"},
    };
    for (const auto &c : cases) {
        const Encoded e = encode(std::string(c.line) + "\n");
        EXPECT_EQ(e.messages, "") << c.line;
        EXPECT_EQ(hex(e.blocks), c.block) << c.line;
    }
}

TEST(ToolEncode, ItemFieldCategoriesComeBackFromTheDecoder) {
    // Record fields of CAT008/010/015/016/019/020, written as fields of
    // their items and read back by the decoder's accessors, at values each
    // item holds exactly (positions on whole steps, 1/16 or 1/4 m/s
    // velocities, flight levels in quarters).
    const char *const lines[] = {
        R"({"cat":10,"fields":{"sac":1,"sic":2,"tod":"01:00:00.500","track":77,"mode3a":"1234","fl":3525,)"
        R"("icao":"3C654A","callsign":"DLH123","lat":45.0,"lon":-22.5,"x":100,"y":-200,"vx":3.25,"vy":-4}})",
        R"({"cat":20,"fields":{"sac":3,"sic":4,"tod":"23:59:59.000","track":4095,"mode3a":"7700","fl":-100,)"
        R"("icao":"ABCDEF","callsign":"SWR94K","lat":-45.0,"lon":90.0,"x":-0.5,"y":8000,"vx":-0.25,"vy":10}})",
        R"({"cat":8,"fields":{"sac":5,"sic":6,"tod":"00:00:01.000"}})",
        R"({"cat":15,"fields":{"sac":7,"sic":8,"tod":"12:00:00.250","track":300}})",
        R"({"cat":16,"fields":{"sac":9,"sic":10,"tod":"00:10:00.000"}})",
        R"({"cat":19,"fields":{"sac":11,"sic":12,"tod":"06:00:00.000"}})",
    };
    for (const char *line : lines) {
        const json given = json::parse(line)["fields"];
        const Encoded e = encode(std::string(line) + "\n");
        EXPECT_EQ(e.messages, "") << line;
        const auto back = fields_back(e.blocks);
        ASSERT_EQ(back.size(), 1u) << line;
        for (auto it = given.begin(); it != given.end(); ++it)
            EXPECT_EQ(back[0].value(it.key(), json()), it.value()) << line << " " << it.key();
    }
    // The fields the decoder shows but no item takes are accepted: a
    // decoded line encodes again.
    const Encoded e = encode(R"({"cat":20,"fields":{"sac":1,"sic":2,"msgtype":"Mlat","speed":9.7,"heading":45,)"
                             R"("vrate":-1024,"sel_alt":4000,"rho":1,"theta":2}})" "\n");
    EXPECT_EQ(e.messages, "");
    EXPECT_EQ(hex(e.blocks), "14 00 06 80 01 02");
}

TEST(ToolEncode, TrackAndRadarRecordFieldsComeBackFromTheDecoder) {
    // Each line's fields, encoded and decoded again: every field comes back
    // (at values its item holds exactly: positions on whole steps, speeds in
    // whole 2^-14 NM/s, flight levels in quarters), but for those listed as
    // left out, which the decoder then does not show.
    const struct {
        const char *line;
        std::vector<const char *> left_out;
    } cases[] = {
        // CAT062: the items the library writes, and what it accepts and leaves out.
        {R"({"cat":62,"fields":{"sac":1,"sic":2,"tod":"12:00:00.250","track":65535,"mode3a":"7700","msgtype":"Track",)"
         R"("lat":45.0,"lon":-22.5,"x":-1000.5,"y":2500,"vx":-100.25,"vy":50,"fl":100,"callsign":"AB",)"
         R"("icao":"ABCDEF","speed":1,"heading":2,"vrate":3,"sel_alt":4}})",
         {"lat", "lon", "x", "y", "vx", "vy", "fl", "callsign", "icao", "speed", "heading", "vrate", "sel_alt"}},
        // CAT001 has no time of its own in the decoder (I001/141 is cut to 16 bits).
        {R"({"cat":1,"fields":{"sac":25,"sic":2,"msgtype":"Track","track":300,"rho":12.5,"theta":90,"mode3a":"1234",)"
         R"("fl":35000,"x":2315,"y":-2315,"tod":1.5,"speed":450,"heading":90}})",
         {"tod", "speed", "heading"}},
        {R"({"cat":1,"uap":"cat001_plot","fields":{"sac":1,"sic":2,"msgtype":"Plot","rho":1,"theta":0,"mode3a":"0007",)"
         R"("fl":-100}})",
         {}},
        {R"({"cat":34,"fields":{"sac":25,"sic":1,"msgtype":"Sector","sector":90,"tod":"10:00:00.000"}})", {"sector"}},
        {R"({"cat":2,"fields":{"sac":25,"sic":2,"msgtype":"North","tod":"00:00:01.000"}})", {}},
        {R"({"cat":21,"fields":{"sac":1,"sic":2,"tod":"12:00:00.000","track":7,"mode3a":"7700","fl":35000,)"
         R"("sel_alt":9000,"icao":"3C654A","callsign":"DLH123","lat":45.0,"lon":-22.5,"speed":450,"heading":90,)"
         R"("vrate":-1250}})",
         {}},
        {R"({"cat":21,"uap":"cat021_ver026","fields":{"sac":1,"sic":2,"tod":"12:00:00.000","mode3a":"7700",)"
         R"("fl":35000,"sel_alt":9000,"icao":"3C654A","callsign":"DLH123","lat":45.0,"lon":-22.5,"speed":450,)"
         R"("heading":90,"vrate":-1250}})",
         {}},
        {R"({"cat":48,"fields":{"sac":25,"sic":1,"tod":"12:34:56.789","msgtype":"Track","rho":12.5,"theta":45,)"
         R"("mode3a":"5077","fl":35000,"icao":"3C654A","callsign":"DLH123","track":77,"x":1446.875,)"
         R"("y":-14.46875,"lat":1,"lon":2,"vx":3,"vy":4,"vrate":5}})",
         {"lat", "lon", "vx", "vy", "vrate"}},
    };
    for (const auto &c : cases) {
        const json given = json::parse(c.line)["fields"];
        const Encoded e = encode(std::string(c.line) + "\n");
        EXPECT_EQ(e.messages, "") << c.line;
        const auto back = decode_json(e.blocks);
        ASSERT_EQ(back.size(), 1u) << c.line;
        EXPECT_EQ(back[0]["valid"], true) << c.line;
        const json &fields = back[0]["fields"];
        for (auto it = given.begin(); it != given.end(); ++it) {
            const bool left_out = std::any_of(c.left_out.begin(), c.left_out.end(),
                                              [&](const char *k) { return it.key() == k; });
            if (left_out)
                EXPECT_FALSE(fields.contains(it.key())) << c.line << " " << it.key();
            else
                EXPECT_EQ(fields.value(it.key(), json()), it.value()) << c.line << " " << it.key();
        }
    }
}

TEST(ToolEncode, ItemsByFieldsAndByOctets) {
    const struct {
        const char *line;
        const char *block;
    } cases[] = {
        // FRN order whatever the list order; keys besides id, fields and hex
        // are ignored; the id in any case.
        {R"({"cat":48,"items":[{"id":"I048/020","hex":"40"},{"id":"i048/010","name":"Data Source Identifier",)"
         R"("len":2,"summary":"SAC:025 SIC:013","fields":{"sac":25,"sic":13}}]})",
         "30 00 07 A0 19 0D 40"},
        // Fields win over octets.
        {R"({"cat":48,"items":[{"id":"I048/010","fields":{"sac":25,"sic":13},"hex":"01 02"}]})", kGoodBlock},
        // Octets without blanks, in either case.
        {R"({"cat":48,"items":[{"id":"I048/010","hex":"190d"},{"id":"I048/040","hex":"0c8020AB"}]})",
         "30 00 0A 90 19 0D 0C 80 20 AB"},
        // Reals, an integer for a real.
        {R"({"cat":48,"items":[{"id":"I048/010","hex":"19 0D"},{"id":"I048/040","fields":{"rho":12.5,"theta":45}}]})",
         "30 00 0A 90 19 0D 0C 80 20 00"},
        // An enumeration by its code, flags as booleans and numbers, a field
        // that brings its extension octet, a null that leaves its group out.
        {R"({"cat":48,"items":[{"id":"I048/010","hex":"19 0D"},{"id":"I048/020","fields":{"typ":5,"sim":true,)"
         R"("rdp":2,"spi":0,"rab":false,"tst":true,"mi":1,"adsb":{"ep":null}}}]})",
         "30 00 08 A0 19 0D B9 88"},
        // A Mode 3/A code as octal digits (CAT062 FRN 1 and 9).
        {R"({"cat":62,"items":[{"id":"I062/010","hex":"19 64"},{"id":"I062/060","fields":{"v":0,"g":0,"ch":0,)"
         R"("mode3a":"7700"}}]})",
         "3E 00 09 81 40 19 64 0F C0"},
        {R"({"cat":62,"items":[{"id":"I062/010","hex":"19 64"},{"id":"I062/060","fields":{"mode3a":"17"}}]})",
         "3E 00 09 81 40 19 64 00 0F"},
        // An address as hexadecimal digits, an identification as text (CAT021
        // edition 0.26 FRN 1, 5 and 18).
        {R"({"cat":21,"uap":"cat021_ver026","items":[{"id":"I021/010","hex":"19 32"},{"id":"I021/080","fields":{"aa":"3c654a"}}]})",
         "15 00 09 88 19 32 3C 65 4A"},
        {R"({"cat":21,"uap":"cat021_ver026","items":[{"id":"I021/010","hex":"19 32"},{"id":"I021/170","fields":{"acid":"DLH123"}}]})",
         "15 00 0E 81 01 10 19 32 10 C2 31 CB 38 20"},
        // Without a profile CAT021 goes out in edition 2.1 (I021/080 at FRN 11).
        {R"({"cat":21,"items":[{"id":"I021/010","hex":"19 32"},{"id":"I021/080","fields":{"aa":"3c654a"}}]})",
         "15 00 0A 81 10 19 32 3C 65 4A"},
        // A category without structured encoders, in a variant profile: the
        // plot profile has I001/040 at FRN 3.
        {R"({"cat":1,"uap":"cat001_plot","items":[{"id":"I001/010","hex":"19 02"},{"id":"I001/020","hex":"20"},)"
         R"({"id":"I001/040","hex":"0C 80 20 00"}]})",
         "01 00 0B E0 19 02 20 0C 80 20 00"},
        // Items win over record fields; with items, I048/020 comes from the
        // fields only with typ.
        {R"({"cat":48,"fields":{"sac":1,"sic":2,"tod":1},"items":[{"id":"I048/010","fields":{"sac":25,"sic":13}}]})",
         "30 00 09 C0 19 0D 00 00 80"},
        {R"({"cat":48,"fields":{"typ":1},"items":[{"id":"I048/010","hex":"19 0D"}]})", "30 00 07 A0 19 0D 20"},
        {R"({"cat":48,"fields":{"tod":1},"items":[{"id":"I048/020","hex":"40"}]})", "30 00 08 60 00 00 80 40"},
    };
    for (const auto &c : cases) {
        const Encoded e = encode(std::string(c.line) + "\n");
        EXPECT_EQ(e.messages, "") << c.line;
        EXPECT_EQ(hex(e.blocks), c.block) << c.line;
    }
    // A text takes octets as the decoder escapes them: U+00E9 is the octet
    // E9, so eight of them fit the eight characters (nine do not).
    const Encoded e = encode(R"({"cat":21,"items":[{"id":"I021/170","fields":{"acid":)"
                             R"("\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9"}}]})");
    EXPECT_EQ(e.messages, "");
    EXPECT_EQ(e.counts.records, 1u);
}

TEST(ToolEncode, BadLinesSayWhereAndAreSkipped) {
    auto items = [](const std::string &list) { return R"({"cat":48,"items":[)" + list + "]}"; };
    const std::string dsi = R"({"id":"I048/010","fields":)";
    const std::string descriptor = R"({"id":"I048/020","fields":)";
    const std::string mode3a = R"({"cat":62,"items":[{"id":"I062/060","fields":{"mode3a":)";
    const std::string address = R"({"cat":21,"items":[{"id":"I021/080","fields":{"aa":)";
    const std::pair<std::string, std::string> cases[] = {
        // The object and its record fields.
        {R"([48])", "not a JSON object"},
        {R"({"fields":{"sac":1,"sic":2}})", "no cat"},
        {R"({"cat":48})", "no fields or items"},
        {R"({"cat":48,"items":[]})", "no fields or items"},
        {R"({"cat":99,"items":[]})", "cat: category 99 is not supported"},
        {R"({"cat":65,"fields":{"sac":1,"sic":2}})", "cat: category 65 takes items (it has no record fields to write)"},
        {R"({"cat":62,"fields":{"tod":1}})", "sac and sic are required"},
        {R"({"cat":62,"fields":{"sac":1,"sic":2,"rho":1,"sector":2}})", "sector: unknown field"},
        // The radar categories' record fields.
        {R"({"cat":1,"fields":{"sac":1,"sic":2,"msgtype":"Track"}})", "msgtype: a Track needs track"},
        {R"({"cat":1,"fields":{"sac":1,"sic":2,"msgtype":"North"}})", "msgtype: not Plot or Track"},
        {R"({"cat":1,"fields":{"sac":1,"sic":2,"speed":300}})", "speed and heading go together"},
        {R"({"cat":1,"fields":{"sac":1,"sic":2,"track":65536}})", "track: not a whole number from 0 to 65535"},
        {R"({"cat":1,"uap":"cat001_plot","fields":{"sac":1,"sic":2,"track":7}})", "I001/161: not in profile cat001_plot"},
        {R"({"cat":34,"fields":{"sac":1,"sic":2}})", "msgtype is required"},
        // The categories whose record fields are set as item fields.
        {R"({"cat":10,"fields":{"sac":1}})", "sac and sic go together"},
        {R"({"cat":20,"fields":{"tod":1}})", "sac and sic are required"},
        {R"({"cat":20,"fields":{"sac":1,"sic":2,"x":1}})", "x and y go together"},
        {R"({"cat":19,"fields":{"sac":1,"sic":2,"trk":3}})", "trk: unknown field"},
        {R"({"cat":10,"fields":{"sac":1,"sic":2,"fl":1e9}})", "fl: value out of range"},
        {R"({"cat":20,"fields":{"sac":1,"sic":2,"x":1e9,"y":0}})", "x: value out of range"},
        {R"({"cat":15,"fields":{"sac":256,"sic":2}})", "sac: value out of range"},
        {R"({"cat":2,"fields":{"sac":1,"sic":2,"msgtype":"South"}})",
         "msgtype: not North or Sector (give other types as items)"},
        {R"({"cat":2,"fields":{"sac":1,"sic":2,"msgtype":"North","fl":100}})", "fl: unknown field"},
        {R"({"cat":48,"uap":"nonesuch","fields":{"sac":1,"sic":2}})", "uap: no profile nonesuch"},
        {R"({"cat":48,"fields":[1]})", "fields: not an object"},
        {record_line(R"({})"), "sac and sic are required"},
        {record_line(R"({"sic":1})"), "sac and sic go together"},
        {record_line(R"({"sac":256,"sic":1})"), "sac: not a whole number from 0 to 255"},
        {record_line(R"({"sac":1.5,"sic":1})"), "sac: not a whole number from 0 to 255"},
        {record_line(R"({"sac":1,"sic":1,"squawk":"1234"})"), "squawk: unknown field"},
        {record_line(R"({"sac":1,"sic":1,"mode3a":"5078"})"), "mode3a: not 1 to 4 octal digits"},
        {record_line(R"({"sac":1,"sic":1,"mode3a":5077})"), "mode3a: not a string"},
        {record_line(R"({"sac":1,"sic":1,"icao":"000000"})"), "icao: 000000 cannot be written"},
        {record_line(R"({"sac":1,"sic":1,"icao":"3C654AB"})"), "icao: not 1 to 6 hexadecimal digits"},
        {record_line(R"({"sac":1,"sic":1,"callsign":"dlh123"})"), "callsign: not up to 8 characters A-Z, 0-9 or blank"},
        {record_line(R"({"sac":1,"sic":1,"tod":"24:00:00"})"), "tod: not a time HH:MM:SS or HH:MM:SS.fff"},
        {record_line(R"({"sac":1,"sic":1,"tod":"12:34:56."})"), "tod: not a time HH:MM:SS or HH:MM:SS.fff"},
        {record_line(R"({"sac":1,"sic":1,"tod":86400})"), "tod: not within the day"},
        {record_line(R"({"sac":1,"sic":1,"rho":1})"), "rho and theta go together"},
        {record_line(R"({"sac":1,"sic":1,"rho":256,"theta":0})"), "rho: out of range"},
        {record_line(R"({"sac":1,"sic":1,"fl":205000})"), "fl: out of range"},
        {record_line(R"({"sac":1,"sic":1,"fl":"350"})"), "fl: not a number"},
        {record_line(R"({"sac":1,"sic":1,"track":4096})"), "track: not a whole number from 0 to 4095"},
        {record_line(R"({"sac":1,"sic":1,"typ":8})"), "typ: not a whole number from 0 to 7"},
        {record_line(R"({"sac":1,"sic":1,"speed":-1,"heading":0})"), "speed: out of range"},
        {record_line(R"({"sac":1,"sic":1,"speed":1})"), "speed needs heading"},
        // The list and its objects.
        {R"({"cat":48,"items":{}})", "items: not a list"},
        {items("1"), "items[0]: not an object"},
        {items(R"({"hex":"19 0D"})"), "items[0]: no id"},
        {items(R"({"id":"I048/777","hex":"00"})"), "I048/777: not an item of CAT048 in profile standard"},
        {items(R"({"id":"I062/010","hex":"19 0D"})"), "I062/010: not an item of CAT048 in profile standard"},
        {items(R"({"id":"I048/010","hex":"19 0D"},{"id":"I048/010","hex":"19 0E"})"), "I048/010: given twice"},
        {items(R"({"id":"I048/010"})"), "I048/010: neither fields nor hex"},
        {items(R"({"id":"I048/250","fields":{}})"), "I048/250: the library cannot encode this item from fields; give its hex"},
        {items(dsi + "[25]}"), "I048/010: fields is not an object"},
        // Named fields.
        {items(dsi + R"({"sac":25,"sic":13,"sacc":1}})"), "I048/010.sacc: unknown field"},
        {items(dsi + R"({"sac":{"x":1}}})"), "I048/010.sac.x: unknown field"},
        {items(descriptor + R"({"adsb":{"ep":1,"xx":1}}})"), "I048/020.adsb.xx: unknown field"},
        {items(dsi + R"({"sac":"25"}})"), "I048/010.sac: wrong kind of value"},
        {items(dsi + R"({"sac":1.5}})"), "I048/010.sac: wrong kind of value"},
        {items(dsi + R"({"sac":[25]}})"), "I048/010.sac: wrong kind of value"},
        {items(dsi + R"({"xyz":[1]}})"), "I048/010.xyz: unknown field"},
        {items(descriptor + R"({"typ":"5"}})"), "I048/020.typ: wrong kind of value"},
        {items(dsi + R"({"sac":256}})"), "I048/010.sac: value out of range"},
        {items(dsi + R"({"sic":-1}})"), "I048/010.sic: value out of range"},
        {items(descriptor + R"({"sim":2}})"), "I048/020.sim: value out of range"},
        {mode3a + R"("7780"}}]})", "I062/060.mode3a: not octal digits"},
        {mode3a + R"("10000"}}]})", "I062/060.mode3a: value out of range"},
        {mode3a + R"("1111111111111111111111111"}}]})", "I062/060.mode3a: value out of range"},
        {mode3a + R"(""}}]})", "I062/060.mode3a: not octal digits"},
        {mode3a + R"(7700}}]})", "I062/060.mode3a: value out of range"},
        {address + R"("3C654G"}}]})", "I021/080.aa: not hexadecimal digits"},
        {address + R"("1000000"}}]})", "I021/080.aa: value out of range"},
        // Nine octets for eight characters (see ItemsByFieldsAndByOctets).
        {R"({"cat":21,"items":[{"id":"I021/170","fields":{"acid":"\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9"}}]})",
         "I021/170.acid: value out of range"},
        // Values the encoder refuses: RHO beyond 16 bits, no RDP chain 0.
        {items(R"({"id":"I048/040","fields":{"rho":256,"theta":0}})"), "I048/040: the library cannot encode these values"},
        {items(descriptor + R"({"typ":2,"rdp":0}})"), "I048/020: the library cannot encode these values"},
        // Octet 3 is written, but the item is delimited at octet 2.
        {items(descriptor + R"({"typ":2,"adsb":{"ep":1}}})"), "I048/020: the library writes these values in 3 octets but reads 2 back"},
        // Octets.
        {items(R"({"id":"I048/250","hex":"zz"})"), "I048/250: bad hex: not hexadecimal digits"},
        {items(R"({"id":"I048/250","hex":"C 00"})"), "I048/250: bad hex: an odd number of digits"},
        {items(R"({"id":"I048/250","hex":" "})"), "I048/250: bad hex: no octets"},
        {items(R"({"id":"I048/250","hex":250})"), "I048/250: bad hex: not a string"},
        {items(R"({"id":"I048/010","hex":"19"})"), "I048/010: bad hex: 1 octet is not one I048/010"},
        {items(R"({"id":"I048/010","hex":"19 0D 00"})"), "I048/010: bad hex: 3 octets are not one I048/010"},
        // REP 1 announces eight octets.
        {items(R"({"id":"I048/250","hex":"01 00 00 00 00 00 00 40"})"), "I048/250: bad hex: 8 octets are not one I048/250"},
    };
    for (const auto &[line, reason] : cases) {
        const Encoded e = encode(line + (line.back() == '\n' ? "" : "\n") + kGoodLine + "\n");
        EXPECT_EQ(e.messages, "kovrel: in:1: " + reason + "\n") << line;
        EXPECT_EQ(e.counts.bad, 1u) << line;
        EXPECT_EQ(hex(e.blocks), kGoodBlock) << line;
    }

    // Lines that are not JSON, blank lines, and the count of each.
    const Encoded e = encode(std::string(kGoodLine) + "\nnot json\n\n" + record_line(R"({"sac":1})") + kGoodLine);
    EXPECT_EQ(e.counts.lines, 5u);
    EXPECT_EQ(e.counts.bad, 2u);
    EXPECT_EQ(e.counts.records, 2u);
    EXPECT_EQ(e.messages.rfind("kovrel: in:2: not JSON: ", 0), 0u) << e.messages;
    EXPECT_NE(e.messages.find("\nkovrel: in:4: sac and sic go together\n"), std::string::npos) << e.messages;
    EXPECT_EQ(std::count(e.messages.begin(), e.messages.end(), '\n'), 2);
    EXPECT_EQ(hex(e.blocks), "30 00 09 80 19 0D 80 19 0D");

    // Nothing to write: no line, blank lines only, bad lines only.
    for (const char *text : {"", "\n  \n", "{}\n[]\n"}) {
        const Encoded none = encode(text);
        EXPECT_EQ(none.counts.records, 0u) << text;
        EXPECT_TRUE(none.blocks.empty()) << text;
    }
}

TEST(ToolEncode, RecordFieldsComeBackFromTheDecoder) {
    const std::vector<std::string> exact = {
        R"({"sac":25,"sic":1,"tod":"12:34:56.789","mode3a":"5077","fl":35025,"icao":"3C654A","callsign":"DLH123",)"
        R"("track":77,"rho":12.50390625,"theta":45.0054931640625})",
        R"({"sac":25,"sic":2,"tod":"00:00:01.000","mode3a":"0007","icao":"000ABC","fl":-1000})",
        R"({"sac":7,"sic":9})",
    };
    std::string text;
    for (const auto &f : exact) text += record_line(f);
    // Values between two steps come back as the nearest step.
    text += record_line(R"({"sac":7,"sic":9,"tod":"12:34:56.787","fl":35010,"rho":12.5001,"theta":45.001})");
    const Encoded e = encode(text);
    EXPECT_EQ(e.messages, "");
    EXPECT_EQ(e.counts.records, 4u);
    const auto back = fields_back(e.blocks);
    ASSERT_EQ(back.size(), 4u);
    for (size_t i = 0; i < exact.size(); ++i) EXPECT_EQ(back[i], json::parse(exact[i])) << i;
    EXPECT_EQ(back[3], json::parse(R"({"sac":7,"sic":9,"tod":"12:34:56.789","fl":35000,"rho":12.5,"theta":45.0})"));

    // The decoder's own lines of the sample encode again to the same fields,
    // in every category that has record fields.
    text.clear();
    std::vector<json> originals;
    std::set<int> categories;
    for (auto &record : decode_json(Octets(kSamplePcap, kSamplePcap + kSamplePcapSize)))
        if (record["cat"] == 48 || record["cat"] == 1 || record["cat"] == 2 || record["cat"] == 34) {
            categories.insert(record["cat"].get<int>());
            record.erase("items");
            text += record.dump() + "\n";
            // Read from I048/250, which is not written.
            record["fields"].erase("sel_alt");
            record["fields"].erase("heading");
            originals.push_back(record["fields"]);
        }
    ASSERT_GT(originals.size(), 50u);
    EXPECT_EQ(categories, (std::set<int>{1, 2, 34, 48}));
    const Encoded sample = encode(text);
    EXPECT_EQ(sample.messages, "");
    const auto records = decode_json(sample.blocks);
    ASSERT_EQ(records.size(), originals.size());
    for (size_t i = 0; i < records.size(); ++i) EXPECT_EQ(records[i]["fields"], originals[i]) << i;
}

namespace {

// The UDP payloads of the sample.
std::vector<Octets> udp_payloads(const uint8_t *pcap, size_t size) {
    std::vector<Octets> out;
    for (auto &packet : kovrel_test::udp_packets(pcap, size)) out.push_back(std::move(packet.payload));
    return out;
}

// True when the library's encoder writes the item's own decoded structure
// back as the same octets. Only then can fields give the item back: what
// the encoder cannot reproduce is its matter, not the field setter's.
bool encoder_reproduces(const AstDataItem &item) {
    const size_t size = ast_dataitem_fields_storage_size(item.id);
    std::vector<std::max_align_t> storage(size / sizeof(std::max_align_t) + 1);
    AstDataItemValue value;
    ast_dataitem_decode(&value, storage.data(), size, &item);
    if (value.valid != 1) return false;
    std::vector<uint8_t> buffer(AST_DATABLOCK_MAX_LENGTH);
    AstDataItem written;
    ast_dataitem_encode(&written, buffer.data(), buffer.size(), &value);
    return written.valid == 1 && written.length == item.length &&
           std::equal(item.data, item.data + item.length, buffer.begin());
}

// The item objects of a decoded record: by fields where the library can
// encode the item from them, else by its octets.
struct ItemObjects {
    json list = json::array();
    size_t by_fields = 0;
};

ItemObjects item_objects(const AstDataRecord &record, bool fields_allowed) {
    ItemObjects out;
    for (uint64_t i = 0; i < record.item_count; ++i) {
        const AstDataItem &item = record.items[i];
        char id[16];
        ast_dataitem_type_to_str(id, sizeof id, item.id);
        json object = {{"id", id}};
        std::string fields(256, '\0');
        size_t need = ast_dataitem_get_fields_json(fields.data(), fields.size(), &item);
        if (need >= fields.size()) {
            fields.assign(need + 1, '\0');
            need = ast_dataitem_get_fields_json(fields.data(), fields.size(), &item);
        }
        fields.resize(need);
        const bool encodable = (ast_dataitem_get_capabilities(item.id) & AST_DATAITEM_CAP_ENCODE) != 0;
        if (fields_allowed && encodable && need > 0 && encoder_reproduces(item)) {
            object["fields"] = json::parse(fields);
            ++out.by_fields;
        } else {
            std::string octets(static_cast<size_t>(item.length) * 3 + 1, '\0');
            ast_dataitem_get_hex_str(octets.data(), octets.size(), &item);
            object["hex"] = octets.c_str();
        }
        out.list.push_back(object);
    }
    return out;
}

}  // namespace

TEST(ToolEncode, SampleRecordsComeBackFromTheirItems) {
    // Every record of the sample, its items given by their fields where the
    // library encodes them (and writes them back as they came) and by their
    // octets otherwise, and then every item by its octets: each record is
    // written again octet for octet.
    const auto payloads = udp_payloads(kSamplePcap, kSamplePcapSize);
    ASSERT_GT(payloads.size(), 20u);
    auto block = std::make_unique<AstDataBlock>();
    for (const bool fields_allowed : {true, false}) {
        std::string lines;
        std::vector<std::string> line_of;
        std::vector<Octets> records;
        std::set<uint32_t> categories;
        size_t by_fields = 0;
        for (const Octets &payload : payloads) {
            for (size_t at = 0; at + 3 <= payload.size();) {
                const size_t length = static_cast<size_t>(payload[at + 1]) << 8 | payload[at + 2];
                ASSERT_GE(length, 3u);
                ast_datablock_smart_decode_into(block.get(), payload.data() + at, payload.size() - at);
                ASSERT_EQ(block->valid, 1) << "a sample block does not decode";
                for (uint64_t r = 0; r < block->record_count; ++r) {
                    const AstDataRecord &record = block->records[r];
                    const ItemObjects items = item_objects(record, fields_allowed);
                    by_fields += items.by_fields;
                    const json line = {{"cat", record.category},
                                       {"uap", profile_name(record.uap)},
                                       {"items", items.list}};
                    line_of.push_back(line.dump());
                    lines += line_of.back() + "\n";
                    records.emplace_back(record.data, record.data + record.length);
                    categories.insert(record.category);
                }
                at += length;
            }
        }
        const std::set<uint32_t> expected{1, 2, 21, 34, 48, 62, 240};
        EXPECT_TRUE(std::includes(categories.begin(), categories.end(), expected.begin(), expected.end()));
        if (fields_allowed)
            EXPECT_GT(by_fields, records.size());
        else
            EXPECT_EQ(by_fields, 0u);

        const Encoded e = encode(lines, 1);
        EXPECT_EQ(e.messages, "");
        const auto blocks = split_blocks(e.blocks);
        ASSERT_EQ(blocks.size(), records.size());
        for (size_t i = 0; i < records.size(); ++i)
            EXPECT_EQ(hex(blocks[i].data() + 3, blocks[i].size() - 3), hex(records[i]))
                << line_of[i];
    }
}

TEST(ToolEncode, DecodeOutputEncodesBackAsItCame) {
    // `kovrel decode --format json | kovrel encode` over the whole sample,
    // the lines exactly as the decoder writes them: the same records come
    // back octet for octet, in blocks of one category and one profile
    // (CAT021 editions are mixed in the sample). I021/131 is passed through
    // its octets since its fields are those of its hex.
    const Octets sample(kSamplePcap, kSamplePcap + kSamplePcapSize);
    const Decoded decoded = decode_octets(sample, true);
    std::string lines;
    std::multiset<std::string> before;
    for (const std::string &line : decoded.lines) {
        lines += line + "\n";
        const json record = json::parse(line);
        std::string items;
        for (const auto &item : record["items"]) items += item["id"].get<std::string>() + "=" + item["hex"].get<std::string>() + " ";
        before.insert(items);
    }
    const Encoded e = encode(lines);
    EXPECT_EQ(e.messages, "");
    std::multiset<std::string> after;
    for (const auto &record : decode_json(e.blocks)) {
        EXPECT_EQ(record["block_valid"], true);
        std::string items;
        for (const auto &item : record["items"]) items += item["id"].get<std::string>() + "=" + item["hex"].get<std::string>() + " ";
        after.insert(items);
    }
    EXPECT_EQ(after.size(), decoded.lines.size());
    std::vector<std::string> missing, extra;
    std::set_difference(before.begin(), before.end(), after.begin(), after.end(), std::back_inserter(missing));
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(), std::back_inserter(extra));
    EXPECT_EQ(missing, std::vector<std::string>{});
    EXPECT_EQ(extra, std::vector<std::string>{});
}

TEST(ToolEncode, GroupsRecordsIntoBlocks) {
    // One block per run of a category, at most block_records records each.
    std::string text;
    for (int sic = 1; sic <= 70; ++sic) text += record_line(R"({"sac":1,"sic":)" + std::to_string(sic) + "}");
    for (size_t per_block : {64, 2}) {
        const Encoded e = encode(text, per_block);
        EXPECT_EQ(e.counts.blocks, (70 + per_block - 1) / per_block);
        EXPECT_EQ(e.counts.records, 70u);
        const auto blocks = split_blocks(e.blocks);
        ASSERT_EQ(blocks.size(), e.counts.blocks);
        int sic = 0;
        for (const Octets &b : blocks) {
            ASSERT_EQ((b.size() - 3) % 4, 0u);  // A0 SAC SIC 40
            EXPECT_LE((b.size() - 3) / 4, per_block);
            for (size_t at = 3; at < b.size(); at += 4) EXPECT_EQ(b[at + 2], ++sic);
        }
        EXPECT_EQ(sic, 70);
    }
    const Encoded mixed = encode(std::string(kGoodLine) + "\n" + kGoodLine + "\n" +
                                 R"({"cat":62,"items":[{"id":"I062/010","hex":"19 64"}]})" + "\n" + kGoodLine);
    EXPECT_EQ(hex(mixed.blocks), "30 00 09 80 19 0D 80 19 0D 3E 00 06 80 19 64 30 00 06 80 19 0D");
}

TEST(ToolEncode, StopsWhenOutputFails) {
    std::FILE *full = std::fopen("/dev/full", "w");
    if (!full) GTEST_SKIP() << "no /dev/full";
    std::setvbuf(full, nullptr, _IONBF, 0);
    std::FILE *in = std::tmpfile();
    for (int i = 0; i < 3; ++i) std::fputs(record_line(R"({"sac":1,"sic":1})").c_str(), in);
    std::rewind(in);
    Capture messages;
    const EncodeCounts counts = encode_lines(in, "in", full, messages.file(), 1);
    EXPECT_TRUE(counts.output_failed);
    EXPECT_EQ(counts.output_errno, ENOSPC);
    EXPECT_EQ(counts.records, 0u);
    EXPECT_EQ(counts.lines, 2u);  // the third line is not read
    std::fclose(in);
    std::fclose(full);
}

#endif  // KOVREL_HAVE_TOOL_CORE
