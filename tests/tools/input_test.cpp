// The tool's inputs: kind detection, hexadecimal text, and UDP payloads out
// of captured frames and capture files.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <string>

#include "input.h"
#include "tools/capture_builder.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

InputKind kind_of(const Octets &o) { return detect_input(o.data(), o.size()); }
InputKind kind_of(const std::string &s) { return detect_input(reinterpret_cast<const uint8_t *>(s.data()), s.size()); }

std::string as_text(const Payload &p) { return std::string(reinterpret_cast<const char *>(p.data), p.size); }

// Every UDP payload read from a capture, with its location.
struct Captured {
    bool ok = false;
    std::string error;
    CaptureStats stats;
    std::vector<Chunk> chunks;
    std::vector<Octets> payloads;
};

Captured read_all(const Octets &file) {
    Captured c;
    c.ok = read_capture(
        temp_file(file),
        [&c](const Chunk &chunk) {
            c.chunks.push_back(chunk);
            c.payloads.emplace_back(chunk.data, chunk.data + chunk.size);
            return true;
        },
        c.stats, c.error);
    return c;
}

}  // namespace

TEST(ToolInput, DetectsKindByContent) {
    const Octets frame = ethernet(0x0800, ipv4(udp(sacsic_block(1))));
    // Captures in both byte orders, micro- and nanosecond.
    EXPECT_EQ(kind_of(pcap_file(1, {frame}, false, false)), InputKind::Pcap);
    EXPECT_EQ(kind_of(pcap_file(1, {frame}, true, false)), InputKind::Pcap);
    EXPECT_EQ(kind_of(pcap_file(1, {frame}, false, true)), InputKind::Pcap);
    EXPECT_EQ(kind_of(pcap_file(1, {frame}, true, true)), InputKind::Pcap);
    EXPECT_EQ(kind_of(pcapng_file(1, {frame})), InputKind::Pcapng);
    // Data blocks: binary, whatever their category.
    EXPECT_EQ(kind_of(sacsic_block(1)), InputKind::Raw);
    // Hexadecimal text in its usual shapes.
    EXPECT_EQ(kind_of(std::string("30 00 06 80 19 01\n")), InputKind::Hex);
    EXPECT_EQ(kind_of(std::string("# radar feed, 10:00\n0x30,0x00,0x06\r\n0x80, 0x19, 0x01\n")), InputKind::Hex);
    EXPECT_EQ(kind_of(std::string("300006801901")), InputKind::Hex);
    // Hex text with a bad token further on is still hex: the parser names
    // the line. Text that does not start like hex, a comment alone,
    // nothing at all: raw.
    EXPECT_EQ(kind_of(std::string("30 00 06 zz\n")), InputKind::Hex);
    EXPECT_EQ(kind_of(std::string("hello world\n")), InputKind::Raw);
    EXPECT_EQ(kind_of(std::string("1x30\n")), InputKind::Raw);
    EXPECT_EQ(kind_of(std::string("# nothing here\n")), InputKind::Raw);
    EXPECT_EQ(kind_of(Octets{}), InputKind::Raw);
    // A control character anywhere makes it binary after all.
    EXPECT_EQ(kind_of(std::string("30 00 03 # x\x01y\n")), InputKind::Raw);
    EXPECT_EQ(kind_of(Octets{'3', '0', ' ', 0x00, 0x06}), InputKind::Raw);
}

TEST(ToolInput, HexTextToleratesCommonShapes) {
    std::vector<uint8_t> out;
    std::string error;
    ASSERT_TRUE(parse_hex("# a comment line\n  # an indented one\n30 00 0C, 0x80;0x19\t0X1\n"
                          "8002abCD # trailing comment\n\n",
                          out, error))
        << error;
    EXPECT_EQ(out, (Octets{0x30, 0x00, 0x0C, 0x80, 0x19, 0x01, 0x80, 0x02, 0xAB, 0xCD}));

    out.clear();
    EXPECT_TRUE(parse_hex("", out, error));
    EXPECT_TRUE(out.empty());
}

TEST(ToolInput, HexTextErrorsNameTheLine) {
    std::vector<uint8_t> out;
    std::string error;
    EXPECT_FALSE(parse_hex("30 00\n# fine\n0c 8\n", out, error));
    EXPECT_NE(error.find("line 3"), std::string::npos) << error;
    EXPECT_NE(error.find("odd number"), std::string::npos) << error;
    EXPECT_EQ(out, (Octets{0x30, 0x00, 0x0C}));  // what came before stays

    out.clear();
    EXPECT_FALSE(parse_hex("0x\n", out, error));
    EXPECT_NE(error.find("line 1"), std::string::npos) << error;
    EXPECT_FALSE(parse_hex("30 0g\n", out, error));
    EXPECT_NE(error.find("'g'"), std::string::npos) << error;
    EXPECT_FALSE(parse_hex("0x123\n", out, error));  // prefixed, but neither one digit nor pairs
}

TEST(ToolInput, HexDumpsOfCommonTools) {
    struct Case {
        const char *what;
        std::string text;
        Octets octets;      // read before the first bad line
        const char *error;  // "" when the whole text is read
    };
    const Case cases[] = {
        {"colon-separated octets", "30:00:06\n80:19:01\n", {0x30, 0x00, 0x06, 0x80, 0x19, 0x01}, ""},
        // xxd: the offset column and the ASCII column (which may hold hex
        // digits, blanks and '#') are left out; the last line is short.
        {"xxd", "00000000: 3000 0980 1901 8019  0...ab # .\n00000008: 02                    .\n",
         {0x30, 0x00, 0x09, 0x80, 0x19, 0x01, 0x80, 0x19, 0x02}, ""},
        {"xxd -g1", "00000000: 30 00 06 80 19 01  0.....\n", {0x30, 0x00, 0x06, 0x80, 0x19, 0x01}, ""},
        {"hexdump -C, closing offset line",
         "00000000  30 00 06 80 19 01 30 00  06 80 19 02              |0.....0.....|\n0000000c\n",
         {0x30, 0x00, 0x06, 0x80, 0x19, 0x01, 0x30, 0x00, 0x06, 0x80, 0x19, 0x02}, ""},
        {"hexdump -C with lines left out",
         "00000000  30 00 03 30 00 03 30 00  03 30 00 03 30 00 03 30  |0..0..0..0..0..0|\n*\n00000020\n",
         {0x30, 0x00, 0x03, 0x30, 0x00, 0x03, 0x30, 0x00, 0x03, 0x30, 0x00, 0x03, 0x30, 0x00, 0x03, 0x30},
         "line 2: \"*\": repeated lines are left out of this dump (hexdump -v prints them)"},
        {"xxd then a line that is not", "00000000: 3000 03  0..\n30 00 03\n", {0x30, 0x00, 0x03},
         "line 2: \"30\": not a line of xxd output (no offset column)"},
        {"od", "0000000 000060 100006 000431\n0000006\n", {},
         "line 1: \"0000000\": looks like od or hexdump output (offset column, words): dump with xxd, hexdump -C "
         "or od -An -tx1"},
        {"hexdump without -C", "0000000 0030 8006 0119\n", {},
         "line 1: \"0000000\": looks like od or hexdump output (offset column, words): dump with xxd, hexdump -C "
         "or od -An -tx1"},
        {"od -An -tx1", " 30 00 06 80 19 01\n", {0x30, 0x00, 0x06, 0x80, 0x19, 0x01}, ""},
        {"plain, a comment after the octets", "30 00 03 # 30 00\n", {0x30, 0x00, 0x03}, ""},
    };
    for (const Case &c : cases) {
        std::vector<uint8_t> out;
        std::string error;
        EXPECT_EQ(parse_hex(c.text, out, error), *c.error == 0) << c.what;
        EXPECT_EQ(error, c.error) << c.what;
        EXPECT_EQ(out, c.octets) << c.what;
        EXPECT_EQ(kind_of(c.text), InputKind::Hex) << c.what;
    }
}

TEST(ToolInput, HexTextInPieces) {
    // The octets of a line come out once its end has arrived; a line cut
    // anywhere, a last line without its end and a line longer than the
    // reader keeps read the same as at once.
    const std::string text = "00000000: 3000 0680 1901  0.....\n00000006: 3000 03  0..";
    HexReader reader;
    std::vector<uint8_t> out;
    for (char c : text) ASSERT_TRUE(reader.feed(std::string_view(&c, 1), out));
    EXPECT_EQ(out.size(), 6u);
    ASSERT_TRUE(reader.finish(out));
    EXPECT_EQ(out, (Octets{0x30, 0x00, 0x06, 0x80, 0x19, 0x01, 0x30, 0x00, 0x03}));

    std::string long_line;
    for (int i = 0; i < 40000; ++i) long_line += "30 00 03 ";
    long_line += "zz\n";
    HexReader big;
    out.clear();
    for (size_t i = 0; i < long_line.size(); i += 4096)
        big.feed(std::string_view(long_line).substr(i, 4096), out);
    EXPECT_FALSE(big.finish(out));
    EXPECT_EQ(big.error(), "line 1: \"zz\": 'z' is not a hexadecimal digit");
    EXPECT_EQ(out.size(), 120000u);
    HexReader endless;  // digits run together, no separator at all
    out.clear();
    const std::string digits(200000, 'a');
    for (size_t i = 0; i < digits.size(); i += 777) endless.feed(std::string_view(digits).substr(i, 777), out);
    EXPECT_TRUE(endless.finish(out));
    EXPECT_EQ(out, Octets(100000, 0xAA));
}

TEST(ToolInput, UdpPayloadOverEthernetAndVlan) {
    const Octets data = {'a', 's', 't'};
    Payload p;
    Octets f = ethernet(0x0800, ipv4(udp(data)));
    EXPECT_EQ(udp_payload(1, f.data(), f.size(), p), FrameResult::Udp);
    EXPECT_EQ(as_text(p), "ast");

    // 802.1Q, and 802.1ad with an inner 802.1Q tag.
    f = ethernet(0x0800, ipv4(udp(data)), {0x8100});
    EXPECT_EQ(udp_payload(1, f.data(), f.size(), p), FrameResult::Udp);
    EXPECT_EQ(as_text(p), "ast");
    f = ethernet(0x86DD, ipv6(udp(data)), {0x88A8, 0x8100});
    EXPECT_EQ(udp_payload(1, f.data(), f.size(), p), FrameResult::Udp);
    EXPECT_EQ(as_text(p), "ast");

    // Ethernet pads short frames: the IP length decides where UDP ends.
    f = ethernet(0x0800, ipv4(udp(data)));
    f.resize(60, 0);
    EXPECT_EQ(udp_payload(1, f.data(), f.size(), p), FrameResult::Udp);
    EXPECT_EQ(p.size, 3u);

    // Not UDP: TCP, ARP, a VLAN tag cut off.
    f = ethernet(0x0800, ipv4(udp(data), 6));
    EXPECT_EQ(udp_payload(1, f.data(), f.size(), p), FrameResult::NotUdp);
    f = ethernet(0x0806, Octets(28, 0));
    EXPECT_EQ(udp_payload(1, f.data(), f.size(), p), FrameResult::NotUdp);
    f = ethernet(0x8100, Octets{0x00});
    EXPECT_EQ(udp_payload(1, f.data(), f.size(), p), FrameResult::Truncated);
}

TEST(ToolInput, UdpPayloadOverCookedRawAndLoopback) {
    const Octets data = {0x30, 0x00, 0x03};
    const Octets v4 = ipv4(udp(data));
    const Octets v6 = ipv6(udp(data));
    Payload p;

    // Linux cooked v1: 16 octets, protocol last; v2: 20 octets, protocol first.
    Octets sll = {0x00, 0x00, 0x00, 0x01, 0x00, 0x06, 1, 2, 3, 4, 5, 6, 0, 0};
    put16(sll, 0x86DD);
    sll.insert(sll.end(), v6.begin(), v6.end());
    EXPECT_EQ(udp_payload(113, sll.data(), sll.size(), p), FrameResult::Udp);
    EXPECT_EQ(Octets(p.data, p.data + p.size), data);

    Octets sll2;
    put16(sll2, 0x0800);
    for (int i = 0; i < 18; ++i) sll2.push_back(0);
    sll2.insert(sll2.end(), v4.begin(), v4.end());
    EXPECT_EQ(udp_payload(276, sll2.data(), sll2.size(), p), FrameResult::Udp);
    EXPECT_EQ(Octets(p.data, p.data + p.size), data);

    // Raw IP under each of its link types, and BSD loopback.
    for (int linktype : {12, 101, 228, 229}) {
        const Octets &frame = linktype == 229 ? v6 : v4;
        EXPECT_EQ(udp_payload(linktype, frame.data(), frame.size(), p), FrameResult::Udp) << linktype;
        EXPECT_EQ(p.size, 3u) << linktype;
    }
    const Octets loop = concat({{0x02, 0x00, 0x00, 0x00}, v4});
    EXPECT_EQ(udp_payload(0, loop.data(), loop.size(), p), FrameResult::Udp);
    const Octets loop6 = concat({{0x00, 0x00, 0x00, 0x1E}, v6});
    EXPECT_EQ(udp_payload(108, loop6.data(), loop6.size(), p), FrameResult::Udp);
}

TEST(ToolInput, FragmentsAndDamagedFrames) {
    const Octets data(40, 0x55);
    Payload p;
    // IPv4: first fragment (more fragments), later fragment (offset).
    Octets f = ipv4(udp(data), 17, 0x2000);
    EXPECT_EQ(udp_payload(228, f.data(), f.size(), p), FrameResult::Fragment);
    f = ipv4(data, 17, 0x0005);
    EXPECT_EQ(udp_payload(228, f.data(), f.size(), p), FrameResult::Fragment);

    // IPv6 fragment header: a real fragment, and an atomic one (whole).
    Octets frag = {17, 0, 0x00, 0x01, 0, 0, 0, 1};  // offset 0, more fragments
    f = ipv6(concat({frag, udp(data)}), 44);
    EXPECT_EQ(udp_payload(229, f.data(), f.size(), p), FrameResult::Fragment);
    Octets atomic = {17, 0, 0x00, 0x00, 0, 0, 0, 1};
    f = ipv6(concat({atomic, udp(data)}), 44);
    EXPECT_EQ(udp_payload(229, f.data(), f.size(), p), FrameResult::Udp);
    EXPECT_EQ(p.size, data.size());
    // Hop-by-hop options before UDP.
    Octets hop = {17, 0, 1, 4, 0, 0, 0, 0};
    f = ipv6(concat({hop, udp(data)}), 0);
    EXPECT_EQ(udp_payload(229, f.data(), f.size(), p), FrameResult::Udp);
    EXPECT_EQ(p.size, data.size());

    // Cut by the snap length: IP says more than was captured.
    f = ipv4(udp(data));
    EXPECT_EQ(udp_payload(228, f.data(), f.size() - 1, p), FrameResult::Truncated);
    // UDP length below its header, or beyond the datagram.
    f = ipv4(udp(data));
    f[20 + 4] = 0;
    f[20 + 5] = 7;
    EXPECT_EQ(udp_payload(228, f.data(), f.size(), p), FrameResult::Truncated);
    f[20 + 5] = 200;
    EXPECT_EQ(udp_payload(228, f.data(), f.size(), p), FrameResult::Truncated);
    // Too short for any header.
    for (int linktype : {1, 113, 276, 0, 228, 229}) {
        EXPECT_EQ(udp_payload(linktype, f.data(), 3, p), FrameResult::Truncated) << linktype;
        EXPECT_EQ(udp_payload(linktype, f.data(), 0, p), FrameResult::Truncated) << linktype;
    }
}

TEST(ToolInput, ReadsPcapAndPcapngCaptures) {
    const Octets b1 = sacsic_block(1), b2 = sacsic_block(2, 2);
    const std::vector<Octets> frames = {
        ethernet(0x0800, ipv4(udp(b1))),
        ethernet(0x0806, Octets(28, 0)),                       // ARP
        ethernet(0x0800, ipv4(udp(b1), 17, 0x2000)),           // fragment
        ethernet(0x0800, ipv4(udp(concat({b1, b2}))), {0x8100}),
    };
    for (bool big_endian : {false, true}) {
        for (bool nano : {false, true}) {
            const Captured c = read_all(pcap_file(1, frames, big_endian, nano));
            ASSERT_TRUE(c.ok) << c.error;
            EXPECT_TRUE(c.error.empty()) << c.error;
            EXPECT_EQ(c.stats.linktype, 1);
            EXPECT_EQ(c.stats.packets, 4u);
            EXPECT_EQ(c.stats.udp, 2u);
            EXPECT_EQ(c.stats.not_udp, 1u);
            EXPECT_EQ(c.stats.fragments, 1u);
            ASSERT_EQ(c.chunks.size(), 2u);
            EXPECT_EQ(c.chunks[0].where.packet, 1u);
            EXPECT_EQ(c.chunks[1].where.packet, 4u);
            EXPECT_EQ(c.payloads[1], concat({b1, b2}));
            // Time stamps: 500 micro- or nanoseconds after the second.
            EXPECT_NEAR(c.chunks[0].time, 1715680800.0 + (nano ? 500e-9 : 500e-6), 1e-6);
        }
    }
    const Captured ng = read_all(pcapng_file(113, {concat({{0, 0, 0, 1, 0, 6, 1, 2, 3, 4, 5, 6, 0, 0, 0x08, 0x00},
                                                          ipv4(udp(b2))})}));
    ASSERT_TRUE(ng.ok) << ng.error;
    ASSERT_EQ(ng.payloads.size(), 1u);
    EXPECT_EQ(ng.payloads[0], b2);
}

TEST(ToolInput, CaptureProblems) {
    // A link type without IP in it is refused with its name.
    Captured c = read_all(pcap_file(105, {Octets(30, 0)}));  // IEEE 802.11
    EXPECT_FALSE(c.ok);
    EXPECT_NE(c.error.find("not supported"), std::string::npos) << c.error;

    // Not a capture at all.
    c = read_all(Octets{0xA1, 0xB2, 0xC3});
    EXPECT_FALSE(c.ok);
    EXPECT_FALSE(c.error.empty());

    // Cut in the middle of the second packet: the first is still read.
    Octets file = pcap_file(1, {ethernet(0x0800, ipv4(udp(sacsic_block(1)))),
                                ethernet(0x0800, ipv4(udp(sacsic_block(2))))});
    file.resize(file.size() - 10);
    c = read_all(file);
    EXPECT_TRUE(c.ok);
    EXPECT_FALSE(c.error.empty());
    EXPECT_EQ(c.payloads.size(), 1u);

    // The sink stops the reading.
    size_t seen = 0;
    CaptureStats stats;
    std::string error;
    const Octets three = pcap_file(101, {ipv4(udp({1})), ipv4(udp({2})), ipv4(udp({3}))});
    EXPECT_TRUE(read_capture(
        temp_file(three), [&seen](const Chunk &) { return ++seen < 2; }, stats, error));
    EXPECT_EQ(seen, 2u);
}

TEST(ToolInput, LocationText) {
    EXPECT_EQ(format_location(Location{0, 1234}), "@1234");
    EXPECT_EQ(format_location(Location{12, 40}), "pkt 12+40");
}

#endif  // KOVREL_HAVE_TOOL_CORE
