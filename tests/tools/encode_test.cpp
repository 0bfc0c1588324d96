// `kovrel encode`: JSON objects to item values, lines to blocks, and the
// blocks back through the decoder.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <set>

#include "encode_json.h"
#include "encoder.h"
#include "sample.h"
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

std::set<uint32_t> item_ids(const RecordRequest &r) {
    std::set<uint32_t> ids;
    for (uint64_t i = 0; i < r.input.item_count; ++i) ids.insert(r.input.items[i].id);
    return ids;
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

}  // namespace

TEST(ToolEncode, FieldsBecomeItemValues) {
    RecordRequest r;
    std::string error;
    ASSERT_TRUE(record_from_json(json::parse(record_line(R"({"sac":25,"sic":1,"tod":"12:34:56.787","fl":35010,
        "rho":12.5,"theta":-90,"mode3a":"5077","icao":"3c654a","callsign":"DLH123","track":4095,"speed":420,
        "heading":360})")),
                                 r, error))
        << error;
    const AstRecord048 &v = r.values;
    EXPECT_EQ(r.input.category, 48u);
    EXPECT_EQ(item_ids(r), (std::set<uint32_t>{48010, 48140, 48020, 48040, 48070, 48090, 48220, 48240, 48161, 48200}));
    EXPECT_EQ(v.i010.sac, 25u);
    EXPECT_EQ(v.i010.sic, 1u);
    EXPECT_EQ(v.i140.raw, 5797989u);  // 45296.787 s x 128 = 5797988.736, rounded
    EXPECT_EQ(v.i090.flight_level, 1400);  // 35010 ft: the nearest quarter FL is 350
    EXPECT_EQ(v.i040.rho_raw, 3200u);
    EXPECT_EQ(v.i040.theta_raw, 49152u);  // -90 is 270 degrees
    EXPECT_EQ(v.i070.code, 05077u);
    EXPECT_EQ(v.i220.address, 0x3C654Au);
    EXPECT_STREQ(v.i240.chars, "DLH123");
    EXPECT_EQ(v.i161.number, 4095u);
    EXPECT_EQ(v.i200.speed_raw, 1911);  // 420 kt / (3600/16384 kt) = 1911.47
    EXPECT_EQ(v.i200.heading_raw, 0);   // 360 is 0
    EXPECT_EQ(v.i020.typ, 5u);          // Mode S roll-call: there is an address

    // Without an address SSR; an explicit TYP wins. Keys the decoder shows
    // but CAT048 items cannot carry are left out.
    ASSERT_TRUE(record_from_json(json::parse(record_line(R"({"sac":1,"sic":2,"msgtype":"Track","sel_alt":9000,
        "lat":1,"lon":2,"vx":3,"vy":4,"vrate":5})")),
                                 r, error))
        << error;
    EXPECT_EQ(item_ids(r), (std::set<uint32_t>{48010, 48020}));
    EXPECT_EQ(r.values.i020.typ, 2u);
    ASSERT_TRUE(record_from_json(json::parse(record_line(R"({"sac":1,"sic":2,"icao":"1","typ":1})")), r, error));
    EXPECT_EQ(r.values.i020.typ, 1u);
    EXPECT_EQ(r.values.i220.address, 1u);
}

TEST(ToolEncode, RefusesWhatCannotBeARecord) {
    const std::pair<std::string, std::string> cases[] = {
        {R"([48])", "not a JSON object"},
        {R"({"fields":{"sac":1,"sic":2}})", "no cat"},
        {R"({"cat":62,"fields":{"sac":1,"sic":2}})", "cat: category 62"},
        {R"({"cat":48,"items":[]})", "no fields"},
        {record_line(R"({})"), "sac and sic are required"},
        {record_line(R"({"sic":1})"), "sac and sic go together"},
        {record_line(R"({"sac":256,"sic":1})"), "sac: "},
        {record_line(R"({"sac":1.5,"sic":1})"), "sac: "},
        {record_line(R"({"sac":1,"sic":1,"squawk":"1234"})"), "squawk: unknown field"},
        {record_line(R"({"sac":1,"sic":1,"mode3a":"5078"})"), "mode3a: "},
        {record_line(R"({"sac":1,"sic":1,"mode3a":5077})"), "mode3a: not a string"},
        {record_line(R"({"sac":1,"sic":1,"icao":"000000"})"), "icao: "},
        {record_line(R"({"sac":1,"sic":1,"icao":"3C654AB"})"), "icao: "},
        {record_line(R"({"sac":1,"sic":1,"callsign":"dlh123"})"), "callsign: "},
        {record_line(R"({"sac":1,"sic":1,"callsign":"ABCDEFGHI"})"), "callsign: "},
        {record_line(R"({"sac":1,"sic":1,"tod":"24:00:00"})"), "tod: "},
        {record_line(R"({"sac":1,"sic":1,"tod":"12:34"})"), "tod: "},
        {record_line(R"({"sac":1,"sic":1,"tod":"12:34:56."})"), "tod: "},
        {record_line(R"({"sac":1,"sic":1,"tod":86400})"), "tod: not within the day"},
        {record_line(R"({"sac":1,"sic":1,"rho":1})"), "rho and theta go together"},
        {record_line(R"({"sac":1,"sic":1,"rho":256,"theta":0})"), "rho: out of range"},
        {record_line(R"({"sac":1,"sic":1,"fl":205000})"), "fl: out of range"},
        {record_line(R"({"sac":1,"sic":1,"fl":"350"})"), "fl: not a number"},
        {record_line(R"({"sac":1,"sic":1,"track":4096})"), "track: "},
        {record_line(R"({"sac":1,"sic":1,"typ":8})"), "typ: "},
        {record_line(R"({"sac":1,"sic":1,"speed":-1,"heading":0})"), "speed: out of range"},
        {record_line(R"({"sac":1,"sic":1,"speed":1})"), "speed needs heading"},
    };
    for (const auto &[line, reason] : cases) {
        RecordRequest r;
        std::string error;
        EXPECT_FALSE(record_from_json(json::parse(line), r, error)) << line;
        EXPECT_EQ(error.rfind(reason, 0), 0u) << line << " -> " << error;
    }
}

TEST(ToolEncode, RoundTripGivesTheFieldsBack) {
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
}

TEST(ToolEncode, SpeedAndHeadingGoToTheVelocityItem) {
    // The decoder has no CAT048 speed and reads headings from Mode S
    // registers: I048/200 shows in the items only.
    const Encoded e = encode(record_line(R"({"sac":1,"sic":2,"speed":420,"heading":90.001})") +
                             record_line(R"({"sac":1,"sic":3,"heading":90})"));
    EXPECT_EQ(e.messages, "");
    const auto records = decode_json(e.blocks);
    ASSERT_EQ(records.size(), 2u);
    const auto &items = records[0]["items"];
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[2]["id"], "I048/200");
    EXPECT_EQ(items[2]["hex"], "07 77 40 00");  // 1911 x 3600/16384 kt, 16384 x 360/65536 degrees
    // A heading alone is left out.
    ASSERT_EQ(records[1]["items"].size(), 2u);
    EXPECT_EQ(records[1]["items"][1]["id"], "I048/020");
}

TEST(ToolEncode, SampleRecordsEncodeAgain) {
    std::string text;
    std::vector<json> originals;
    for (auto &record : decode_json(Octets(kSamplePcap, kSamplePcap + kSamplePcapSize)))
        if (record["cat"] == 48) {
            text += record.dump() + "\n";
            // Read from I048/250, which is not written.
            record["fields"].erase("sel_alt");
            record["fields"].erase("heading");
            originals.push_back(record["fields"]);
        }
    ASSERT_GT(originals.size(), 50u);
    const Encoded e = encode(text);
    EXPECT_EQ(e.messages, "");
    const auto records = decode_json(e.blocks);
    ASSERT_EQ(records.size(), originals.size());
    for (size_t i = 0; i < records.size(); ++i) EXPECT_EQ(records[i]["fields"], originals[i]) << i;
}

TEST(ToolEncode, BadLinesAreReportedAndSkipped) {
    const Encoded e = encode(record_line(R"({"sac":1,"sic":1})") + "not json\n\n" + record_line(R"({"sac":1})") +
                             R"({"cat":48,"fields":{"sac":1,"sic":5}})");
    EXPECT_EQ(e.counts.lines, 5u);
    EXPECT_EQ(e.counts.bad, 2u);
    EXPECT_EQ(e.counts.records, 2u);
    EXPECT_EQ(e.messages.rfind("kovrel: in:2: not JSON: ", 0), 0u) << e.messages;
    EXPECT_NE(e.messages.find("\nkovrel: in:4: sac and sic go together\n"), std::string::npos) << e.messages;
    EXPECT_EQ(std::count(e.messages.begin(), e.messages.end(), '\n'), 2);
    const auto back = fields_back(e.blocks);
    ASSERT_EQ(back.size(), 2u);
    EXPECT_EQ(back[0]["sic"], 1);
    EXPECT_EQ(back[1]["sic"], 5);

    // Nothing to write: no line, blank lines only, bad lines only.
    for (const char *text : {"", "\n  \n", "{}\n[]\n"}) {
        const Encoded none = encode(text);
        EXPECT_EQ(none.counts.records, 0u) << text;
        EXPECT_TRUE(none.blocks.empty()) << text;
    }
}

TEST(ToolEncode, GroupsRecordsIntoBlocks) {
    std::string text;
    for (int sic = 1; sic <= 70; ++sic) text += record_line(R"({"sac":1,"sic":)" + std::to_string(sic) + "}");
    for (size_t per_block : {64, 2}) {
        const Encoded e = encode(text, per_block);
        EXPECT_EQ(e.counts.blocks, (70 + per_block - 1) / per_block);
        const auto records = decode_json(e.blocks);
        ASSERT_EQ(records.size(), 70u);
        for (size_t i = 0; i < records.size(); ++i) {
            EXPECT_EQ(records[i]["block"], i / per_block + 1) << i;
            EXPECT_EQ(records[i]["record"], i % per_block + 1) << i;
            EXPECT_EQ(records[i]["fields"]["sic"], i + 1) << i;
        }
    }
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
