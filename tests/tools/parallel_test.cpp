// `kovrel decode` on several threads writes what one thread writes, byte
// for byte: records, messages where they fall between the records, and
// counts; and each input is decoded as if it were the only one.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "sample.h"
#include "session.h"
#include "tools/capture_builder.h"
#include "tools/memory_stream.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

// CAT021 edition 2.1 only (I021/170 at FRN 29), and a block every edition
// reads (I021/010 alone).
const Octets kCat021v21 = {21, 0x00, 0x10, 0x81, 0x01, 0x01, 0x01, 0x80, 0x19, 0x33, 0x4D, 0x74, 0xB1, 0xCB, 0x38, 0x20};
const Octets kCat021Any = {21, 0x00, 0x06, 0x80, 0x19, 0x33};
const Octets kBad = {0x30, 0x00, 0x09, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06};  // I048/130 cut short
const Octets kCat030 = {0x1E, 0x00, 0x06, 0x80, 0x19, 0x01};                   // not supported
const Octets kCat001Mix = {1, 0x00, 0x0B, 0xC0, 0x19, 0x02, 0x30, 0xC0, 0x19, 0x02, 0xB0};

// CAT240: a video block (I240/050, four octets) whose cell count depends
// on the resolution (I240/048) of an earlier block, and a header.
const Octets kVideo = {0xF0, 0x00, 0x0C, 0x81, 0x40, 0x19, 0x01, 0x01, 0xAA, 0xBB, 0xCC, 0xDD};
Octets resolution(uint8_t res) { return {0xF0, 0x00, 0x08, 0x82, 0x19, 0x01, 0x00, res}; }

Octets repeat(const Octets &o, size_t n) {
    Octets out;
    for (size_t i = 0; i < n; ++i) out.insert(out.end(), o.begin(), o.end());
    return out;
}

// Profiles change in mid-stream, bad blocks among good ones, video whose
// resolution changes, and a block whose LEN stops the input.
const Octets kMixed = concat({sacsic_block(1), kBad, repeat(kCat021v21, 3), repeat(kCat021Any, 2), sacsic_block(2, 3),
                              kCat030, kCat021Any, kCat001Mix, kVideo, resolution(3), kVideo, kVideo, resolution(5),
                              kBad, kVideo, resolution(9), kVideo, sacsic_block(4, 2), kCat021Any,
                              Octets{0x30, 0x00, 0x01, 0x30}});

struct Input {
    std::string name;
    Octets octets;
};

// Everything a run writes: records and messages on one stream, as on a
// terminal, then the counts.
std::string run(SessionSettings settings, const std::vector<Input> &inputs) {
    Capture all, counts;
    {
        DecodeSession session(settings, all.file(), all.file());
        for (const Input &in : inputs) session.decode_memory(in.name, in.octets.data(), in.octets.size());
        session.flush();
        session.stats().print(counts.file(), 0.0);
    }
    return all.text() + "----\n" + counts.text();
}

}  // namespace

TEST(ToolParallel, SameOutputOnAnyNumberOfThreads) {
    const Octets sample(kSamplePcap, kSamplePcap + kSamplePcapSize);
    const std::vector<std::vector<Input>> inputs = {
        {{"mixed.ast", kMixed}},
        {{"sample.pcap", sample}},
        {{"a.ast", kCat021v21}, {"b.ast", concat({kCat021Any, kVideo})}, {"mixed.ast", kMixed}},
        {{"cap.pcap", pcap_file(1, {ethernet(0x0800, ipv4(udp(concat({kCat021v21, kBad, kCat021Any})))),
                                    ethernet(0x0800, ipv4(udp(concat({resolution(4), kVideo})))),
                                    ethernet(0x0800, ipv4(udp(kVideo), 17, 0x2000)),
                                    ethernet(0x0800, ipv4(udp(concat({kVideo, kCat021Any, {0x30, 0x00}}))))})}},
    };
    struct Format {
        const char *label;
        RecordFormat format;
        bool items;
        const char *columns;
        const char *filter;  // --filter condition, or nullptr
    };
    const Format formats[] = {
        {"text", RecordFormat::Text, false, nullptr, nullptr},
        {"text --items", RecordFormat::Text, true, nullptr, nullptr},
        {"json", RecordFormat::Json, false, nullptr, nullptr},
        {"json --filter", RecordFormat::Json, false, nullptr, "sacsic=25/1"},
        {"csv", RecordFormat::Csv, false, "block,offset,cat,uap,record,valid,sac,sic,I240/050.length,I240/048.res",
         nullptr},
        {"counts only", RecordFormat::None, false, nullptr, nullptr},
        {"counts only --filter", RecordFormat::None, false, nullptr, "sacsic=25/51"},
    };
    for (size_t i = 0; i < inputs.size(); ++i) {
        for (const Format &f : formats) {
            SessionSettings s;
            s.format = f.format;
            s.items = f.items;
            std::string error;
            ASSERT_TRUE(!f.columns || parse_csv_columns(f.columns, s.columns, error)) << error;
            RecordFilter filter;
            ASSERT_TRUE(!f.filter || filter.add_condition(f.filter, error)) << error;
            s.filter = &filter;
            const std::string one = run(s, inputs[i]);
            // Every block its own batch, a few blocks a batch, all in one.
            for (unsigned threads : {2u, 4u}) {
                for (size_t batch : {size_t{1}, size_t{40}, size_t{1} << 20}) {
                    SCOPED_TRACE("inputs " + std::to_string(i) + ", " + f.label + ", " + std::to_string(threads) +
                                 " threads, batches of " + std::to_string(batch) + " octets");
                    s.threads = threads;
                    s.batch_octets = batch;
                    EXPECT_EQ(run(s, inputs[i]), one);
                }
            }
        }
    }
}

TEST(ToolParallel, EachInputStartsAfresh) {
    // What a block shows after another input must be what it shows alone:
    // the profile smart decoding tries first, the video resolution.
    struct Case {
        Input before, input;
        RecordFormat format;
        bool items;
        const char *alone;  // in the input's lines
    };
    const Case cases[] = {
        {{"v21.ast", kCat021v21}, {"any.ast", kCat021Any}, RecordFormat::Text, false, "CAT021 standard"},
        {{"v21.ast", kCat021v21}, {"any.ast", kCat021Any}, RecordFormat::Json, false, R"("uap":"standard")"},
        {{"res.ast", resolution(3)}, {"video.ast", kVideo}, RecordFormat::Text, true, "| OCTET:4\n"},
        {{"res.ast", resolution(3)}, {"video.ast", kVideo}, RecordFormat::Json, false, R"("summary":"OCTET:4")"},
    };
    for (const Case &c : cases) {
        for (unsigned threads : {1u, 3u}) {
            SCOPED_TRACE(c.before.name + " then " + c.input.name + ", " + std::to_string(threads) + " threads");
            SessionSettings s;
            s.format = c.format;
            s.items = c.items;
            s.threads = threads;
            s.batch_octets = 1;
            auto records = [](const std::string &all) { return all.substr(0, all.find("----\n")); };
            const std::string alone = records(run(s, {c.input}));
            EXPECT_NE(alone.find(c.alone), std::string::npos) << alone;
            EXPECT_EQ(records(run(s, {c.before, c.input})), records(run(s, {c.before})) + alone);
            // And the same input after itself shows what it showed after
            // its own blocks: the state is carried within an input.
            const std::string twice = run(s, {{c.before.name, concat({c.before.octets, c.input.octets})}});
            EXPECT_EQ(twice.find(c.alone), std::string::npos) << twice;
        }
    }
}

#endif  // KOVREL_HAVE_TOOL_CORE
