// The built tool on inputs that arrive on standard input or grow: every
// kind of input and framing, records coming out before the input ends,
// following a file, bad framings.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <string>
#include <unistd.h>

#include "support/run_tool.h"
#include "tools/capture_builder.h"

using namespace kovrel_tool_test;
using kovrel_test::ToolProcess;
using kovrel_test::ToolRun;

namespace {

class ToolStream : public ::testing::Test {
protected:
    void SetUp() override {
        if (!kovrel_test::tool_available()) GTEST_SKIP() << "the kovrel binary is not built";
    }
};

std::string text(const Octets &o) { return std::string(o.begin(), o.end()); }

bool has(const std::string &s, const std::string &part) { return s.find(part) != std::string::npos; }

std::string hex_lines(const Octets &o) {
    std::string s;
    char b[4];
    for (size_t i = 0; i < o.size(); ++i) {
        std::snprintf(b, sizeof b, "%02x", o[i]);
        s += b;
        s += (i % 8 == 7) ? "\n" : ":";
    }
    return s + "\n";
}

const Octets kA = sacsic_block(1), kB = sacsic_block(2, 2), kC = sacsic_block(3);

// The record lines' SIC, offset, packet and time, "sic@offset/packet/time".
std::vector<std::string> records(const std::string &json_lines) {
    std::vector<std::string> out;
    size_t start = 0;
    while (start < json_lines.size()) {
        const size_t end = json_lines.find('\n', start);
        const auto j = nlohmann::json::parse(json_lines.substr(start, end - start));
        std::string r = std::to_string(j["fields"].value("sic", -1)) + "@" + std::to_string(j["offset"].get<int>());
        if (j.contains("packet"))
            r += "/" + std::to_string(j["packet"].get<int>()) + "/" + std::to_string(j["time"].get<double>());
        out.push_back(r);
        if (end == std::string::npos) break;
        start = end + 1;
    }
    return out;
}

}  // namespace

TEST_F(ToolStream, EveryInputKindOnStandardInput) {
    const Octets blocks = concat({kA, kB, kC});
    struct Case {
        const char *what;
        std::string input;
        std::vector<std::string> args;
        std::vector<std::string> expected;
    };
    const Case cases[] = {
        {"raw", text(blocks), {}, {"1@0", "2@6", "2@6", "3@15"}},
        {"hex", hex_lines(blocks), {}, {"1@0", "2@6", "2@6", "3@15"}},
        {"xxd", "00000000: 3000 0680 1901  0.....\n", {}, {"1@0"}},
        {"oradis", text(concat({oradis(kA, 1500), oradis(kB, 86399999), oradis(kC, 0)})), {},
         {"1@6/1/1.500000", "2@6/2/86399.999000", "2@6/2/86399.999000", "3@6/3/0.000000"}},
        {"final", text(concat({final_frame(concat({kA, kB}), 2, 50, 3, 1), final_frame(kC, 2, 60, 3, 1)})), {},
         {"1@8/1/172800.500000", "2@14/1/172800.500000", "2@14/1/172800.500000", "3@8/2/172800.600000"}},
        {"length", text(concat({length_frame(kA), length_frame(kB), length_frame(kC)})), {},
         {"1@2", "2@10", "2@10", "3@21"}},
        {"oradis inside UDP payloads",
         text(pcap_file(1, {ethernet(0x0800, ipv4(udp(concat({oradis(kA, 1), oradis(kC, 2)}))))})), {},
         {"1@6/1/1715680800.000500", "3@18/1/1715680800.000500"}},
        {"pcapng", text(pcapng_file(1, {ethernet(0x0800, ipv4(udp(kA)))})), {}, {"1@0/1/0.000000"}},
        // Forced: plain blocks read as length frames are garbage.
        {"--framing none on oradis", text(oradis(kA, 1)), {"--framing", "none"}, {}},
        {"--framing length", text(length_frame(kA)), {"--framing", "length"}, {"1@2"}},
    };
    for (const Case &c : cases) {
        std::vector<std::string> args = {"decode", "-", "--format", "json"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        const ToolRun run = kovrel_test::run_tool(args, c.input);
        EXPECT_EQ(records(run.out), c.expected) << c.what << "\n" << run.err;
    }
}

TEST_F(ToolStream, RecordsComeOutBeforeTheInputEnds) {
    // Each input: the octets of the first record, then the rest; the first
    // record must be printed while the tool still waits for the rest.
    const Octets pcap = pcap_file(1, {ethernet(0x0800, ipv4(udp(kA))), ethernet(0x0800, ipv4(udp(kC)))});
    const size_t first_packet = 24 + 16 + ethernet(0x0800, ipv4(udp(kA))).size();
    struct Case {
        const char *what;
        std::string first, rest;
    };
    const Case cases[] = {
        {"raw", text(kA), text(kC)},
        {"hex", hex_lines(kA), hex_lines(kC)},
        {"pcap", text(Octets(pcap.begin(), pcap.begin() + static_cast<std::ptrdiff_t>(first_packet))),
         text(Octets(pcap.begin() + static_cast<std::ptrdiff_t>(first_packet), pcap.end()))},
        {"oradis", text(concat({oradis(kA, 1), oradis(kC, 2)})), text(oradis(kC, 3))},
    };
    for (const Case &c : cases) {
        ToolProcess tool({"decode", "-"});
        ASSERT_TRUE(tool.running());
        ASSERT_TRUE(tool.write(c.first)) << c.what;
        std::string line;
        ASSERT_TRUE(tool.read_line(line, 10000)) << c.what << ": nothing while the input is open";
        EXPECT_TRUE(has(line, "blk 1 ") && has(line, "sic 1 ")) << c.what << ": " << line;
        ASSERT_TRUE(tool.write(c.rest)) << c.what;
        ASSERT_TRUE(tool.read_line(line, 10000)) << c.what;
        EXPECT_TRUE(has(line, "blk 2 ") && has(line, "sic 3 ")) << c.what << ": " << line;
        const ToolRun run = tool.finish();
        EXPECT_EQ(run.status, 0) << c.what << "\n" << run.err;
    }
}

TEST_F(ToolStream, FollowsAGrowingFile) {
    char path[] = "/tmp/kovrel-follow-XXXXXX";
    const int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    // A capture that grows packet by packet, the last one cut short when
    // following stops.
    const Octets frame = ethernet(0x0800, ipv4(udp(kA)));
    const Octets pcap = pcap_file(1, {frame, frame});
    const size_t one = 24 + 16 + frame.size();
    ASSERT_EQ(write(fd, pcap.data(), one), static_cast<ssize_t>(one));
    ToolProcess tool({"decode", "--follow", "--stats", "--format", "text", path});
    std::string line;
    ASSERT_TRUE(tool.read_line(line, 10000));
    EXPECT_TRUE(has(line, "blk 1     pkt 1+0")) << line;
    ASSERT_EQ(write(fd, pcap.data() + one, 30), 30);
    // The tool waits for the rest of packet 2; SIGINT ends the run.
    EXPECT_FALSE(tool.read_line(line, 500)) << line;
    tool.send_signal(SIGINT);
    const ToolRun run = tool.finish();
    close(fd);
    unlink(path);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(has(run.err, "capture ends early: truncated dump file")) << run.err;
    EXPECT_TRUE(has(run.err, "packets         1 read")) << run.err;
}

TEST_F(ToolStream, BadFramingsAndOptions) {
    // A frame header that lies: reported with its location, the next
    // frame decoded.
    Octets lying = concat({oradis(kA, 1), oradis(kB, 2), oradis(kC, 3)});
    lying[1] = 0x20;
    ToolRun run = kovrel_test::run_tool({"decode", "-", "--framing", "oradis"}, text(lying));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(has(run.err, "kovrel: (standard input): 12 octets from @0 on are skipped: frame header at @0: frame "
                             "length does not match its blocks, and no frame follows it"))
        << run.err;
    EXPECT_TRUE(has(run.out, "blk 1     pkt 1+6 ") && has(run.out, "sic 2")) << run.out;
    // A datagram cut inside its second block, and one with garbage after
    // its blocks: the blocks before are decoded, the rest reported.
    const Octets pcap = pcap_file(1, {ethernet(0x0800, ipv4(udp(concat({kA, {48, 0, 9, 0x80}})))),
                                      ethernet(0x0800, ipv4(udp(concat({kC, {0xDE, 0xAD}}))))});
    run = kovrel_test::run_tool({"decode", "-"}, text(pcap));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(has(run.err, "block 2 at pkt 1+6 (CAT048, LEN 9): LEN 9 exceeds the 4 octets available")) << run.err;
    EXPECT_TRUE(has(run.err, "block 4 at pkt 2+6: 2 octets left, too few for a block header")) << run.err;
    EXPECT_TRUE(has(run.out, "sic 1") && has(run.out, "sic 3")) << run.out;

    run = kovrel_test::run_tool({"decode", "-", "--framing", "asterisk"}, text(kA));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "kovrel: unknown framing 'asterisk'; use auto, none, oradis, final or length\n");
}

#endif  // KOVREL_HAVE_TOOL_CORE
