// `kovrel decode` end to end on inputs held in memory: what it prints, what
// it reports, and how it goes on after bad blocks.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <cerrno>
#include <nlohmann/json.hpp>
#include <string>
#include <unistd.h>

#include "sample.h"
#include "session.h"
#include "tools/capture_builder.h"
#include "tools/memory_stream.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

struct ToolRun {
    Capture out, messages;
    DecodeSession session;
    explicit ToolRun(SessionSettings s = {}) : session(s, out.file(), messages.file()) {}
    bool decode(const Octets &o, const std::string &name = "input") {
        return session.decode_memory(name, o.data(), o.size());
    }
};

bool has(const std::string &text, const std::string &part) { return text.find(part) != std::string::npos; }

const Octets kBad = {0x30, 0x00, 0x09, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06};  // I048/130 cut short

}  // namespace

TEST(ToolSession, RawInputGoesOnAfterABadBlock) {
    ToolRun run;
    const Octets a = sacsic_block(1), c = sacsic_block(3, 2);
    ASSERT_TRUE(run.decode(concat({a, kBad, c}), "feed.ast"));
    const auto lines = run.out.lines();
    ASSERT_EQ(lines.size(), 4u);
    const std::string first = "blk 1     @0             CAT048 standard      rec 1  len 3    items 1  valid  sac 25 sic 1";
    EXPECT_EQ(lines[0].rfind(first, 0), 0u) << lines[0];
    EXPECT_TRUE(has(lines[1], "blk 2     @6 ") && has(lines[1], "INVALID") && has(lines[1], "len -")) << lines[1];
    EXPECT_TRUE(has(lines[2], "blk 3     @15") && has(lines[2], "rec 1")) << lines[2];
    EXPECT_TRUE(has(lines[3], "rec 2")) << lines[3];
    EXPECT_EQ(run.messages.text(),
              "kovrel: feed.ast: block 2 at @6 (CAT048, LEN 9): no profile reads the whole block; furthest with "
              "standard: record 1 at octet 3: after I048/010, I048/130 (FRN 7) cannot be delimited in the 3 "
              "octets left\n");
    const Stats &st = run.session.stats();
    EXPECT_EQ(st.blocks, 2u);
    EXPECT_EQ(st.invalid, 1u);
    EXPECT_EQ(st.records, 3u);
    EXPECT_EQ(st.octets, a.size() + kBad.size() + c.size());
    EXPECT_EQ(st.categories.at(48).invalid, 1u);
}

TEST(ToolSession, RawInputStopsWhereNoBlockCanFollow) {
    {
        ToolRun run;
        run.decode(concat({sacsic_block(1), {0x30, 0x00, 0x50, 0x80, 0x19}}), "cut.ast");
        const std::string m = run.messages.text();
        EXPECT_TRUE(has(m, "kovrel: cut.ast: block 2 at @6 (CAT048, LEN 80): LEN 80 exceeds the 5 octets available"))
            << m;
        EXPECT_TRUE(has(m, "the next block cannot be found; 5 octets from @6 on are skipped")) << m;
        EXPECT_EQ(run.out.lines().size(), 1u);
    }
    {
        ToolRun run;
        run.decode(concat({sacsic_block(1), {0x30, 0x00, 0x01}, sacsic_block(2)}), "zero.ast");
        const std::string m = run.messages.text();
        EXPECT_TRUE(has(m, "block 2 at @6 (CAT048): LEN 1 is below 3")) << m;
        EXPECT_TRUE(has(m, "9 octets from @6 on are skipped")) << m;
        EXPECT_EQ(run.session.stats().blocks, 1u);
        EXPECT_EQ(run.session.stats().invalid, 1u);
    }
    {
        ToolRun run;
        run.decode(concat({sacsic_block(1), {0x30, 0x00}}), "tail.ast");
        EXPECT_TRUE(has(run.messages.text(), "block 2 at @6: 2 octets left, too few for a block header"));
    }
}

TEST(ToolSession, HexInput) {
    ToolRun run;
    const std::string text = "# one CAT048 block\n30 00 06\n0x80,0x19,0x01\n30 00 03 zz\n";
    run.decode(Octets(text.begin(), text.end()), "paste.txt");
    EXPECT_EQ(run.session.stats().blocks, 2u);
    EXPECT_TRUE(has(run.messages.text(), "hexadecimal text stops at line 4")) << run.messages.text();
    ASSERT_EQ(run.out.lines().size(), 1u);
    EXPECT_TRUE(has(run.out.lines()[0], "@0"));
}

TEST(ToolSession, CaptureWithSeveralBlocksPerDatagram) {
    SessionSettings s;
    s.items = true;
    ToolRun run(s);
    const Octets a = sacsic_block(1), b = sacsic_block(2, 2);
    const Octets file = pcap_file(1, {
                                         ethernet(0x0800, ipv4(udp(concat({a, b})))),
                                         ethernet(0x0800, ipv4(udp(concat({kBad, a})))),
                                         ethernet(0x0800, ipv4(udp(a), 17, 0x2000)),
                                         ethernet(0x0800, ipv4(udp(b))),
                                         ethernet(0x0800, ipv4(udp(concat({{0x30, 0x00, 0x00}, a})))),
                                     });
    ASSERT_TRUE(run.decode(file, "cap.pcap"));
    const auto lines = run.out.lines();
    std::vector<std::string> records;
    for (const auto &l : lines)
        if (l.rfind("blk", 0) == 0) records.push_back(l);
    ASSERT_EQ(records.size(), 7u);
    EXPECT_TRUE(has(records[0], "blk 1     pkt 1+0 ")) << records[0];
    EXPECT_TRUE(has(records[1], "blk 2     pkt 1+6 ") && has(records[1], "rec 1")) << records[1];
    EXPECT_TRUE(has(records[2], "blk 2     pkt 1+6 ") && has(records[2], "rec 2")) << records[2];
    EXPECT_TRUE(has(records[3], "blk 3     pkt 2+0 ") && has(records[3], "INVALID")) << records[3];
    // The bad block ends where its LEN says; the next block is read.
    EXPECT_TRUE(has(records[4], "blk 4     pkt 2+9 ") && has(records[4], "valid")) << records[4];
    EXPECT_TRUE(has(records[5], "blk 5     pkt 4+0 ")) << records[5];
    // Item lines: id, name, length, octets.
    EXPECT_TRUE(has(lines[1], "    I048/010") && has(lines[1], "Data Source Identifier") && has(lines[1], "len 2") &&
                has(lines[1], "19 01  | "))
        << lines[1];
    const std::string m = run.messages.text();
    EXPECT_TRUE(has(m, "kovrel: cap.pcap: block 3 at pkt 2+0 (CAT048, LEN 9)")) << m;
    // A first fragment whose size is not a multiple of 8 cannot be one.
    EXPECT_TRUE(has(m, "1 fragmented datagram given up: overlapping or inconsistent fragments")) << m;
    EXPECT_TRUE(has(m, "block 6 at pkt 5+0 (CAT048): LEN 0 is below 3")) << m;
    EXPECT_TRUE(has(m, "the next block cannot be found; 9 octets from pkt 5+0 on are skipped")) << m;
    // Only there: the bad block of packet 2 has a LEN to step on by.
    EXPECT_EQ(m.find("cannot be found"), m.rfind("cannot be found")) << m;
    EXPECT_EQ(run.session.stats().capture.packets, 5u);
    EXPECT_EQ(run.session.stats().capture.fragments, 1u);
}

TEST(ToolSession, JsonLines) {
    SessionSettings s;
    s.format = RecordFormat::Json;
    ToolRun run(s);
    run.decode(pcap_file(1, {ethernet(0x0800, ipv4(udp(concat({sacsic_block(7), kBad}))))}), "j.pcap");
    const auto lines = run.out.lines();
    ASSERT_EQ(lines.size(), 2u);
    const auto good = nlohmann::json::parse(lines[0]);
    for (const char *key : {"input", "block", "offset", "packet", "time", "cat", "uap", "record", "length", "valid",
                            "block_valid", "fields", "items"})
        EXPECT_TRUE(good.contains(key)) << key;
    EXPECT_EQ(good["block"], 1);
    EXPECT_EQ(good["offset"], 0);
    EXPECT_EQ(good["packet"], 1);
    EXPECT_EQ(good["cat"], 48);
    EXPECT_EQ(good["uap"], "standard");
    EXPECT_EQ(good["record"], 1);
    EXPECT_EQ(good["length"], 3);
    EXPECT_EQ(good["valid"], true);
    ASSERT_EQ(good["items"].size(), 1u);
    const auto &item = good["items"][0];
    EXPECT_EQ(item["id"], "I048/010");
    EXPECT_EQ(item["name"], "Data Source Identifier");
    EXPECT_EQ(item["len"], 2);
    EXPECT_EQ(item["hex"], "19 07");
    EXPECT_TRUE(item["summary"].is_string());

    const auto bad = nlohmann::json::parse(lines[1]);
    EXPECT_EQ(bad["offset"], 6);
    EXPECT_EQ(bad["valid"], false);
    EXPECT_EQ(bad["block_valid"], false);
    EXPECT_TRUE(bad["length"].is_null());
    ASSERT_EQ(bad["items"].size(), 1u);  // read before the failure
    EXPECT_EQ(bad["items"][0]["hex"], "19 01");
}

TEST(ToolSession, FilesAndUnreadableInputs) {
    ToolRun run;
    EXPECT_FALSE(run.session.decode_file("/nonexistent/kovrel/input.pcap"));
    EXPECT_TRUE(has(run.messages.text(), "kovrel: /nonexistent/kovrel/input.pcap: cannot open:"));
    EXPECT_FALSE(run.decode(Octets{0xD4, 0xC3, 0xB2, 0xA1, 0x02}, "broken.pcap"));
    EXPECT_TRUE(has(run.messages.text(), "kovrel: broken.pcap: not a readable capture:"));
    EXPECT_TRUE(run.decode(Octets{}, "empty"));
    EXPECT_TRUE(has(run.messages.text(), "kovrel: empty: empty input"));

    char path[] = "/tmp/kovrel_session_XXXXXX";
    const int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    const Octets pcapng = pcapng_file(101, {ipv4(udp(sacsic_block(9, 3)))});
    ASSERT_EQ(write(fd, pcapng.data(), pcapng.size()), static_cast<ssize_t>(pcapng.size()));
    close(fd);
    EXPECT_TRUE(run.session.decode_file(path));
    unlink(path);
    const Stats &st = run.session.stats();
    EXPECT_EQ(st.inputs, 4u);
    EXPECT_EQ(st.unreadable, 2u);
    EXPECT_EQ(st.records, 3u);
    // Block numbers start again with every input.
    EXPECT_TRUE(has(run.out.text(), "blk 1     pkt 1+0 "));
}

TEST(ToolSession, FilesDecodeAsTheirOctets) {
    // Raw blocks and hex text from a file (mapped, not read) print what the
    // same octets print from memory; a file may end with a cut block.
    const Octets raw = concat({sacsic_block(1), kBad, sacsic_block(2, 3), {0x30, 0x00, 0x40, 0x80}});
    const std::string hex_text = "30 00 06 80 19 05\n30 00 09 82 19 01 e0 29 06\n";
    for (const Octets &octets : {raw, Octets(hex_text.begin(), hex_text.end())}) {
        char path[] = "/tmp/kovrel_mapped_XXXXXX";
        const int fd = mkstemp(path);
        ASSERT_GE(fd, 0);
        ASSERT_EQ(write(fd, octets.data(), octets.size()), static_cast<ssize_t>(octets.size()));
        close(fd);
        SessionSettings s;
        s.items = true;
        ToolRun from_file(s), from_memory(s);
        EXPECT_TRUE(from_file.session.decode_file(path));
        from_memory.decode(octets, path);
        unlink(path);
        EXPECT_EQ(from_file.out.text(), from_memory.out.text());
        EXPECT_EQ(from_file.messages.text(), from_memory.messages.text());
        EXPECT_EQ(from_file.session.stats().records, from_memory.session.stats().records);
        EXPECT_GT(from_file.out.lines().size(), 3u);
    }
}

TEST(ToolSession, StopsWhenOutputFails) {
    std::FILE *full = std::fopen("/dev/full", "w");
    if (!full) GTEST_SKIP() << "no /dev/full";
    std::setvbuf(full, nullptr, _IONBF, 0);
    Capture messages;
    // Records go out in large writes: the first one that fails stops the
    // session, long before the 200 blocks (about a megabyte of lines) are
    // all decoded.
    std::vector<Octets> blocks(200, sacsic_block(1, 64));
    const Octets many = [&] {
        Octets all;
        for (const auto &b : blocks) all.insert(all.end(), b.begin(), b.end());
        return all;
    }();
    {
        DecodeSession session(SessionSettings{}, full, messages.file());
        session.decode_memory("x", many.data(), many.size());
        EXPECT_TRUE(session.output_failed());
        EXPECT_EQ(session.output_errno(), ENOSPC);
        EXPECT_GT(session.stats().blocks, 0u);
        EXPECT_LT(session.stats().blocks, 100u);
    }
    // Counting alone writes nothing, so nothing fails.
    SessionSettings count;
    count.format = RecordFormat::None;
    DecodeSession counting(count, full, messages.file());
    counting.decode_memory("x", many.data(), many.size());
    EXPECT_FALSE(counting.output_failed());
    EXPECT_EQ(counting.stats().blocks, 200u);
    EXPECT_EQ(counting.stats().records, 200u * 64);
    std::fclose(full);
}

TEST(ToolSession, BuiltInSampleDecodesWhole) {
    SessionSettings s;
    s.format = RecordFormat::Json;
    ToolRun run(s);
    ASSERT_TRUE(run.session.decode_memory("sample", kSamplePcap, kSamplePcapSize));
    EXPECT_EQ(run.messages.text(), "");
    const Stats &st = run.session.stats();
    EXPECT_EQ(st.invalid, 0u);
    EXPECT_GE(st.records, 300u);
    for (uint32_t cat : {1u, 2u, 21u, 34u, 48u, 62u}) EXPECT_GT(st.categories.count(cat), 0u) << cat;
    // CAT021 from the edition 2.1 station (SIC 51) needs edition 2.1; the
    // other station's reports read with the standard profile (0.26), also
    // right after a 2.1 block; CAT001 mixes plots and tracks.
    size_t v21 = 0, v026 = 0, plots = 0, tracks = 0, described = 0;
    for (const auto &line : run.out.lines()) {
        // Every line is one JSON object, its keys in their fixed order.
        const auto j = nlohmann::ordered_json::parse(line);
        std::vector<std::string> keys;
        for (const auto &[key, value] : j.items()) keys.push_back(key);
        EXPECT_EQ(keys, (std::vector<std::string>{"input", "block", "offset", "packet", "time", "src", "dst", "cat",
                                                  "uap", "record", "length", "item_count", "valid", "block_valid",
                                                  "fields", "items"}));
        ASSERT_EQ(j["valid"], true);
        ASSERT_EQ(j["items"].size(), j["item_count"]);
        for (const auto &item : j["items"]) {
            keys.clear();
            for (const auto &[key, value] : item.items()) keys.push_back(key);
            if (keys.size() == 6 && item["fields"].is_object()) ++described;
            keys.resize(5);
            EXPECT_EQ(keys, (std::vector<std::string>{"id", "name", "len", "hex", "summary"}));
        }
        if (j["cat"] == 21) {
            // SIC 51 sends edition 2.1, 52 edition 0.23, 53 edition 2.7,
            // which the smart decoder reads as 2.1 (the two differ only in
            // an item of the same size rule), 50 edition 0.26.
            const std::string sic = j["items"][0]["hex"];
            if (sic == "19 33" || sic == "19 35") {
                EXPECT_EQ(j["uap"], "cat021_ver21");
                ++v21;
            } else if (sic == "19 34") {
                EXPECT_EQ(j["uap"], "cat021_ver023");
            } else {
                EXPECT_EQ(j["uap"], "standard");
                ++v026;
            }
        }
        if (j["cat"] == 1) ++(j["uap"] == "cat001_plot" ? plots : tracks);
    }
    EXPECT_GT(v21, 0u);
    EXPECT_GT(v026, v21);
    EXPECT_GT(plots, 0u);
    EXPECT_GT(tracks, 0u);
    EXPECT_GT(described, 0u);  // items the library describes carry their fields
}

#endif  // KOVREL_HAVE_TOOL_CORE
