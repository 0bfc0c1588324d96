// The facts the tool shows for a record: the `fields` object of the JSON
// output and the tags of the text line, as the record accessors answer
// them; and what --stats counts per record.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <random>

#include "blocks.h"
#include "decode.h"
#include "fields.h"
#include "sample.h"
#include "session.h"
#include "stats.h"
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

// The reader calls the accessors itself, once looked up per category: it
// must answer exactly as the library's ast_datarecord_get_* do, for good
// records, records cut short and records of every category.
TEST(ToolFields, ReaderAnswersAsTheAccessors) {
    using kovrel_tool::RecordField;
    kovrel_tool::RecordFieldReader reader;
    kovrel_tool::RecordFields f;
    size_t records = 0, answered = 0, cartesians = 0;
    auto check = [&](const AstDataRecord &r) {
        ++records;
        reader.read(f, r, kovrel_tool::kAskAll);
        if (f.answered) ++answered;
        AstDataSourceIdentifier source;
        ast_datarecord_get_sacsic(&source, &r);
        EXPECT_EQ(f.has(RecordField::Sac), source.valid == 1);
        if (source.valid == 1) {
            EXPECT_EQ(f.sac, source.sac);
            EXPECT_EQ(f.sic, source.sic);
        }
        AstTimeOfDay tod;
        ast_datarecord_get_timeofday(&tod, &r);
        EXPECT_EQ(f.has(RecordField::Tod), tod.valid != 0);
        if (tod.valid) {
            EXPECT_EQ(f.tod.raw, tod.raw);
        }
        AstRecordMsgType type;
        ast_datarecord_get_msgtype(&type, &r);
        EXPECT_EQ(f.has(RecordField::MsgType), type.valid != 0);
        if (type.valid) {
            EXPECT_EQ(f.msgtype, type.value);
        }
        AstRecordCallsign callsign;
        ast_datarecord_get_callsign(&callsign, &r);
        EXPECT_EQ(f.has(RecordField::Callsign), callsign.valid != 0);
        if (callsign.valid) {
            EXPECT_STREQ(f.callsign, callsign.callsign);
        }
        AstMode3aCode squawk;
        ast_datarecord_get_squawk(&squawk, &r);
        EXPECT_EQ(f.has(RecordField::Mode3a), squawk.valid != 0);
        if (squawk.valid) {
            EXPECT_EQ(f.mode3a, squawk.code & 07777u);
        }
        AstRecordValue level;
        ast_datarecord_get_flightlevel(&level, &r);
        EXPECT_EQ(f.has(RecordField::Fl), level.valid != 0);
        if (level.valid) {
            EXPECT_EQ(std::memcmp(&f.fl, &level.value, sizeof f.fl), 0);
        }
        AstRecordPolar polar;
        ast_datarecord_get_polarcoord(&polar, &r);
        EXPECT_EQ(f.has(RecordField::Rho), polar.valid != 0);
        AstRecordWgs84 wgs84;
        ast_datarecord_get_wgs84coord(&wgs84, &r);
        EXPECT_EQ(f.has(RecordField::Lat), wgs84.valid != 0);
        AstTargetAddress address;
        ast_datarecord_get_icaoaddr(&address, &r);
        EXPECT_EQ(f.has(RecordField::Icao), address.valid != 0);
        AstVerticalRate rate;
        ast_datarecord_get_vrate(&rate, &r);
        EXPECT_EQ(f.has(RecordField::Vrate), rate.valid != 0);
        AstRecordCartesian cartesian;
        ast_datarecord_get_cartesiancoord(&cartesian, &r);
        EXPECT_EQ(f.has(RecordField::X), cartesian.valid != 0);
        EXPECT_EQ(f.has(RecordField::Y), cartesian.valid != 0);
        if (cartesian.valid) {
            EXPECT_EQ(f.x, cartesian.x);
            EXPECT_EQ(f.y, cartesian.y);
            ++cartesians;
        }

        // The text line asks the Mode 3/A code only when no callsign shows.
        reader.read(f, r, kovrel_tool::kAskTags);
        const bool shown = callsign.valid && callsign.callsign[0] != '\0';
        EXPECT_EQ(f.has(RecordField::Mode3a), squawk.valid != 0 && !shown);
        EXPECT_FALSE(f.has(RecordField::Fl));
    };
    // Every block of a chunk as the tool decodes it, the record a bad block
    // stopped at included.
    kovrel_tool::BlockDecoder decoder(nullptr);
    auto check_chunk = [&](const uint8_t *data, size_t size) {
        kovrel_tool::Chunk chunk;
        chunk.data = data;
        chunk.size = size;
        for (const auto &slice : kovrel_tool::split_blocks(chunk)) {
            if (slice.problem != kovrel_tool::SliceProblem::None) continue;
            const auto outcome = decoder.decode(slice.data, slice.size);
            for (uint64_t i = 0; i < outcome.block->record_count; ++i) check(outcome.block->records[i]);
            if (outcome.failed) check(outcome.failed->record);
        }
    };
    std::FILE *sample =
        fmemopen(const_cast<unsigned char *>(kovrel_tool::kSamplePcap), kovrel_tool::kSamplePcapSize, "rb");
    ASSERT_NE(sample, nullptr);
    kovrel_tool::CaptureStats capture;
    std::string error;
    ASSERT_TRUE(kovrel_tool::read_capture(
        sample,
        [&](const kovrel_tool::Chunk &c) {
            check_chunk(c.data, c.size);
            return true;
        },
        capture, error));
    const Octets mine = cat048_block({kFull, kPadded, kSourceOnly, kCutShort});
    check_chunk(mine.data(), mine.size());
    std::mt19937 random(5);
    const uint8_t categories[] = {1, 2, 4, 8, 10, 20, 21, 34, 48, 62, 65};
    for (int i = 0; i < 2000; ++i) {
        Octets b(4 + random() % 40);
        b[0] = categories[random() % sizeof categories];
        b[1] = 0;
        b[2] = static_cast<uint8_t>(b.size());
        for (size_t k = 3; k < b.size(); ++k) b[k] = static_cast<uint8_t>(random());
        check_chunk(b.data(), b.size());
    }
    EXPECT_GT(records, 1000u);
    EXPECT_GT(answered, 150u);
    EXPECT_GT(cartesians, 0u);
}

// What --stats counts per record, and a copy of the counts going its own way.
TEST(ToolFields, StatsCountSourcesTypesAndProfiles) {
    const Octets input = concat({cat048_block({kFull, kPadded, kSourceOnly}), cat048_block({kSourceOnly}),
                                 {21, 0x00, 0x10, 0x81, 0x01, 0x01, 0x01, 0x80, 0x19, 0x33, 0x4D, 0x74, 0xB1, 0xCB,
                                  0x38, 0x20},
                                 cat048_block({kCutShort})});
    Capture out, messages;
    kovrel_tool::SessionSettings s;
    s.format = kovrel_tool::RecordFormat::None;
    kovrel_tool::DecodeSession session(s, out.file(), messages.file());
    session.decode_memory("in", input.data(), input.size());
    EXPECT_EQ(out.text(), "");
    const kovrel_tool::Stats &st = session.stats();
    EXPECT_EQ(st.records, 5u);
    EXPECT_EQ(st.invalid, 1u);
    using Sources = std::map<std::tuple<uint32_t, uint32_t, uint32_t>, uint64_t>;
    EXPECT_EQ(st.sources(), (Sources{{{21, 25, 51}, 1}, {{48, 25, 1}, 1}, {{48, 25, 2}, 1}, {{48, 25, 3}, 2}}));
    EXPECT_EQ(st.profiles(), (std::map<std::string, uint64_t>{{"cat021_ver21", 1}, {"standard", 4}}));
    uint64_t typed = 0;
    for (const auto &[key, n] : st.message_types()) {
        EXPECT_TRUE(key.first == 48u || key.first == 21u) << key.first;
        EXPECT_FALSE(key.second.empty());
        typed += n;
    }
    EXPECT_EQ(typed, 5u);

    // A copy keeps its counts when the original goes on, and counts on its own.
    kovrel_tool::Stats copy = st;
    session.decode_memory("more", input.data(), input.size());
    EXPECT_EQ(copy.sources().at({48, 25, 3}), 2u);
    EXPECT_EQ(session.stats().sources().at({48, 25, 3}), 4u);
    auto block = std::make_unique<AstDataBlock>();
    const Octets one = cat048_block({kSourceOnly});
    ast_datablock_decode_into(block.get(), one.data(), one.size(), &AST_UAP_STANDARD);
    copy.count_block(*block, 48, one.size(), true);
    EXPECT_EQ(copy.sources().at({48, 25, 3}), 3u);
    EXPECT_EQ(session.stats().sources().at({48, 25, 3}), 4u);
}

#endif  // KOVREL_HAVE_TOOL_CORE
