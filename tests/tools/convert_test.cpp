// `kovrel convert`: blocks in, converted blocks out, for raw inputs and for
// captures (whose packets keep their time stamps, addresses and ports), with
// other categories passed or dropped, failures reported with their location,
// and the counts of --stats.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <pcap/pcap.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "convert.h"
#include "pcap_writer.h"
#include "sample.h"
#include "tools/capture_builder.h"
#include "tools/memory_stream.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

struct Converted {
    Octets out;
    std::string messages;
    ConvertCounts counts;
    bool capture = false;
};

Converted convert(const std::vector<Octets> &inputs, bool drop_others = false) {
    Capture out, messages;
    ConvertSettings settings;
    settings.drop_others = drop_others;
    Converted c;
    {
        ConvertSession session(settings, out.file(), messages.file());
        for (size_t i = 0; i < inputs.size(); ++i)
            session.convert_memory("in" + std::to_string(i + 1), inputs[i].data(), inputs[i].size());
        c.counts = session.counts();
        c.capture = session.capture_output();
    }
    const std::string octets = out.text();
    c.out.assign(octets.begin(), octets.end());
    c.messages = messages.text();
    return c;
}

Octets from_hex(const std::string &text) {
    Octets o;
    std::string error;
    EXPECT_TRUE(parse_hex(text, o, error)) << error;
    return o;
}

std::string hex(const Octets &o) {
    std::string s;
    char two[4];
    for (size_t i = 0; i < o.size(); ++i) {
        std::snprintf(two, sizeof two, i ? " %02X" : "%02X", o[i]);
        s += two;
    }
    return s;
}

// A CAT048 block of a track (010 140 020 161 042) and a plot (010 140 020).
const char *kBlock048 =
    "30 00 18  E1 18 19 0D 54 60 A5 A0 00 07 FF FD 00 03  E0 19 0E 00 00 80 80";
// As CAT001: the track (010 020 161 042 | 141) and the plot (010 020 | 141).
const char *kBlock001 =
    "01 00 16  E9 40 19 0D A0 00 07 FF FF 00 01 60 A5  C2 19 0E 20 00 80";

struct Case {
    const char *what;
    std::string input;
    bool drop_others;
    std::string expected;  // output octets
    const char *message;   // all messages, "" for none
};

TEST(ConvertTool, RawBlocksInRawBlocksOut) {
    const std::string block062 = "3E 00 06 80 19 0D";
    const Case cases[] = {
        {"CAT048 plot and track", kBlock048, false, kBlock001, ""},
        {"another category passes", std::string(kBlock048) + block062, false, std::string(kBlock001) + block062, ""},
        {"or is dropped", block062 + kBlock048, true, kBlock001, ""},
        {"nothing of CAT048", block062, true, "", ""},
        // 034: 010 000 030 020 -> 002: 010 000 020 030.
        {"CAT034 north marker", "22 00 0B F0 19 0D 01 54 60 A5 40", false, "02 00 0B F0 19 0D 01 40 54 60 A5", ""},
        // Type 3 loses its I002/000; 050 alone gives nothing to convert.
        {"CAT034 without a CAT002 counterpart", "22 00 09 C4 19 0D 03 80 40  22 00 06 04 80 40", false,
         "02 00 06 80 19 0D",
         "kovrel: in1: block 2 at @9, record 1 (CAT034): not converted: none of its items has a CAT002 "
         "counterpart\n"},
        // Record 2 is a plot (no I048/161) with I048/042: CAT001 plots have no place for it.
        // Record 2 holds I048/220 alone: nothing of it is carried.
        {"a record that fails", "30 00 0E  80 19 0D  01 80 4C A1 23  80 19 0F", false,
         "01 00 09 80 19 0D 80 19 0F",
         "kovrel: in1: block 1 at @0, record 2 (CAT048): not converted: none of its items has a CAT001 "
         "counterpart\n"},
        // A plot (no I048/161) keeps no track item: I001/042 is left out.
        {"a plot with a track item", "30 00 0B 81 08 19 0E 00 10 00 20", false, "01 00 06 80 19 0E", ""},
        // The second record announces I048/140 but the block ends first.
        {"a block that stops", "30 00 08  80 19 0D  C0 19", false, "01 00 06 80 19 0D",
         "kovrel: in1: block 1 at @0 (CAT048, LEN 8): no profile reads the whole block; furthest with standard: "
         "record 2 at octet 6: after the FSPEC, I048/010 (FRN 1) cannot be delimited in the 1 octet left; the "
         "rest of the block is not converted\n"},
        {"LEN past the end", "30 00 20 80 19 0D", false, "",
         "kovrel: in1: block 1 at @0: (CAT048) LEN 32 exceeds the octets left; 6 octets from @0 on are "
         "dropped\n"},
        {"hexadecimal text in", "# one block\n30 00 06 80 19 0D\n", false, "01 00 06 80 19 0D", ""},
    };
    for (const Case &c : cases) {
        const Octets input = c.input[0] == '#' ? Octets(c.input.begin(), c.input.end()) : from_hex(c.input);
        const Converted r = convert({input}, c.drop_others);
        EXPECT_EQ(hex(r.out), hex(from_hex(c.expected))) << c.what;
        EXPECT_EQ(r.messages, c.message) << c.what;
        EXPECT_FALSE(r.capture) << c.what;
    }
}

TEST(ConvertTool, StatsCountEveryRecord) {
    // Two CAT048 records, one CAT062 block of two records, a failing CAT048
    // record and a CAT034 message.
    const Octets input = from_hex(std::string(kBlock048) + "3E 00 09 80 19 0D 80 19 0E" +
                                  "30 00 08 01 80 4C A1 23" + "22 00 0B F0 19 0D 01 54 60 A5 40");
    for (const bool drop : {false, true}) {
        const Converted r = convert({input, input}, drop);
        EXPECT_EQ(stats_text(r.counts, r.capture),
                  std::string("inputs:            2\n"
                              "blocks read:       8\n") +
                      (drop ? "blocks written:    4\n" : "blocks written:    6\n") +
                      "records converted: 6 (CAT048 to CAT001: 4, CAT034 to CAT002: 2)\n" +
                      (drop ? "records passed:    0\nrecords dropped:   4\n"
                            : "records passed:    4\nrecords dropped:   0\n") +
                      "records failed:    2\n");
    }
    EXPECT_EQ(stats_text(ConvertCounts{}, true),
              "inputs:            0\nblocks read:       0\nblocks written:    0\n"
              "records converted: 0 (CAT048 to CAT001: 0, CAT034 to CAT002: 0)\nrecords passed:    0\n"
              "records dropped:   0\nrecords failed:    0\npackets read:      0\npackets written:   0\n");
}

// ---- Captures ----------------------------------------------------------

struct Packet {
    int64_t seconds;
    uint32_t nanoseconds;
    Octets frame;
};

// Reads a capture back through libpcap.
std::vector<Packet> read_packets(const Octets &capture, int &linktype) {
    std::vector<Packet> packets;
    std::FILE *f = fmemopen(const_cast<uint8_t *>(capture.data()), capture.size(), "rb");
    char errbuf[PCAP_ERRBUF_SIZE];
    pcap_t *p = f ? pcap_fopen_offline_with_tstamp_precision(f, PCAP_TSTAMP_PRECISION_NANO, errbuf) : nullptr;
    if (!p) {
        ADD_FAILURE() << "not a capture";
        if (f) std::fclose(f);
        return packets;
    }
    linktype = pcap_datalink(p);
    pcap_pkthdr *h;
    const u_char *d;
    while (pcap_next_ex(p, &h, &d) == 1) {
        EXPECT_EQ(h->caplen, h->len);
        packets.push_back({h->ts.tv_sec, static_cast<uint32_t>(h->ts.tv_usec), Octets(d, d + h->caplen)});
    }
    pcap_close(p);
    return packets;
}

// The UDP checksum of a datagram checks (or is 0, "none", over IPv4).
bool udp_checksum_ok(const Octets &frame, size_t ip) {
    const bool v4 = (frame[ip] >> 4) == 4;
    const size_t udp = ip + (v4 ? (frame[ip] & 0x0Fu) * 4u : 40u);
    const size_t length = static_cast<size_t>(frame[udp + 4]) << 8 | frame[udp + 5];
    if (v4 && frame[udp + 6] == 0 && frame[udp + 7] == 0) return true;
    Octets pseudo(frame.begin() + static_cast<std::ptrdiff_t>(ip + (v4 ? 12 : 8)),
                  frame.begin() + static_cast<std::ptrdiff_t>(ip + (v4 ? 20 : 40)));
    put16(pseudo, 17);
    put16(pseudo, static_cast<uint32_t>(length));
    pseudo.insert(pseudo.end(), frame.begin() + static_cast<std::ptrdiff_t>(udp),
                  frame.begin() + static_cast<std::ptrdiff_t>(udp + length));
    return internet_checksum(pseudo.data(), pseudo.size()) == 0;
}

Octets payload_of(int linktype, const Octets &frame) {
    Payload p;
    EXPECT_EQ(udp_payload(linktype, frame.data(), frame.size(), p), FrameResult::Udp);
    return p.data ? Octets(p.data, p.data + p.size) : Octets{};
}

// UDP over IPv4 with a checksum the sender set (any non-zero value: it is
// computed again for the new payload).
Octets udp_checked(const Octets &payload, uint16_t src, uint16_t dst) {
    Octets o = udp(payload, src, dst);
    o[6] = 0x12;
    o[7] = 0x34;
    return o;
}

TEST(ConvertTool, CapturesKeepTimeStampsAndAddressing) {
    const Octets b048 = from_hex(kBlock048), b001 = from_hex(kBlock001);
    const Octets b021 = from_hex("15 00 06 80 19 0D");
    const Octets arp = ethernet(0x0806, Octets(28, 0));
    // Packet 1: CAT048 (ports 4000 -> 8600, no checksum); 2: CAT021 only;
    // 3: ARP; 4: CAT048 + CAT021 (ports 5000 -> 9600, checksummed), padded
    // as short Ethernet frames are.
    Octets padded = ethernet(0x0800, ipv4(udp_checked(concat({from_hex("30 00 06 80 19 0D"), b021}), 5000, 9600)));
    padded.resize(padded.size() + 10, 0);
    const std::vector<Octets> frames = {
        ethernet(0x0800, ipv4(udp(b048))),
        ethernet(0x0800, ipv4(udp(b021))),
        arp,
        padded,
    };
    const Octets capture = pcap_file(1, frames);

    struct Expect {
        bool drop;
        std::vector<size_t> packets;  // input packets written (0-based)
        std::vector<Octets> payloads;
    };
    const Expect cases[] = {
        {false, {0, 1, 3}, {b001, b021, concat({from_hex("01 00 06 80 19 0D"), b021})}},
        {true, {0, 3}, {b001, from_hex("01 00 06 80 19 0D")}},
    };
    for (const Expect &e : cases) {
        const Converted r = convert({capture}, e.drop);
        ASSERT_TRUE(r.capture);
        EXPECT_EQ(r.messages, "kovrel: in1: 1 packets are not whole UDP datagrams (other protocols or packets cut "
                              "short) and are not converted\n");
        int linktype = -1;
        const std::vector<Packet> packets = read_packets(r.out, linktype);
        EXPECT_EQ(linktype, 1);
        ASSERT_EQ(packets.size(), e.packets.size());
        EXPECT_EQ(r.counts.packets_read, 3u);
        EXPECT_EQ(r.counts.packets_written, e.packets.size());
        for (size_t i = 0; i < packets.size(); ++i) {
            const Octets &in = frames[e.packets[i]];
            const Octets &out = packets[i].frame;
            // The builder stamps packet n at 1715680800 + n s and 500 us.
            EXPECT_EQ(packets[i].seconds, 1715680800 + static_cast<int64_t>(e.packets[i]));
            EXPECT_EQ(packets[i].nanoseconds, 500000u);
            EXPECT_EQ(payload_of(1, out), e.payloads[i]) << i;
            // Link header, addresses, protocol and ports as they came.
            EXPECT_EQ(Octets(out.begin(), out.begin() + 14), Octets(in.begin(), in.begin() + 14));
            EXPECT_EQ(Octets(out.begin() + 26, out.begin() + 38), Octets(in.begin() + 26, in.begin() + 38));
            EXPECT_EQ(out[23], 17);
            // Lengths and checksums of the new datagram.
            EXPECT_EQ(out.size(), 14 + 20 + 8 + e.payloads[i].size());
            EXPECT_EQ(static_cast<size_t>(out[16] << 8 | out[17]), 20 + 8 + e.payloads[i].size());
            EXPECT_EQ(static_cast<size_t>(out[38] << 8 | out[39]), 8 + e.payloads[i].size());
            EXPECT_EQ(internet_checksum(out.data() + 14, 20), 0u);
            EXPECT_TRUE(udp_checksum_ok(out, 14));
            const bool had_checksum = in[40] != 0 || in[41] != 0;
            EXPECT_EQ(out[40] != 0 || out[41] != 0, had_checksum);
        }
    }
}

TEST(ConvertTool, CapturesOfOtherLinkTypesAndMixedInputs) {
    const Octets b048 = from_hex("30 00 06 80 19 0D"), b001 = from_hex("01 00 06 80 19 0D");
    // Raw IPv6 (link type 101) with a hop-by-hop header before UDP, and
    // pcapng over Ethernet.
    Octets hop = {17, 0, 0, 0, 0, 0, 0, 0};
    const Octets v6 = ipv6(concat({hop, udp(b048, 7000, 7001)}), 0);
    const Octets raw_ip = pcap_file(101, {v6}, true, true);
    Converted r = convert({raw_ip});
    int linktype = -1;
    std::vector<Packet> packets = read_packets(r.out, linktype);
    EXPECT_EQ(linktype, DLT_RAW);
    EXPECT_EQ(r.out[20], 101);  // the number files use for raw IP
    ASSERT_EQ(packets.size(), 1u);
    EXPECT_EQ(payload_of(101, packets[0].frame), b001);
    const Octets &f = packets[0].frame;
    EXPECT_EQ(static_cast<size_t>(f[4] << 8 | f[5]), 8 + 8 + b001.size());  // hop-by-hop, UDP, payload
    EXPECT_EQ(Octets(f.begin() + 8, f.begin() + 40), Octets(v6.begin() + 8, v6.begin() + 40));
    EXPECT_EQ(f[48] << 8 | f[49], 7000);
    // The IPv6 pseudo header counts from the UDP header: check by hand.
    Octets pseudo(f.begin() + 8, f.begin() + 40);
    put16(pseudo, 17);
    put16(pseudo, static_cast<uint32_t>(8 + b001.size()));
    pseudo.insert(pseudo.end(), f.begin() + 48, f.end());
    EXPECT_EQ(internet_checksum(pseudo.data(), pseudo.size()), 0u);

    // Several inputs: the first decides. A capture then raw blocks: the raw
    // input is skipped; so is a capture of another link type.
    const Octets eth = pcapng_file(1, {ethernet(0x0800, ipv4(udp(b048)))});
    r = convert({eth, b048, raw_ip});
    EXPECT_EQ(read_packets(r.out, linktype).size(), 1u);
    EXPECT_EQ(r.counts.skipped, 2u);
    EXPECT_EQ(r.messages,
              "kovrel: in2: raw blocks cannot go into the capture written for the first input; skipped\n"
              "kovrel: in3: link type 101 differs from the 1 of the capture written for the first input; skipped\n");
    // Raw blocks then a capture: the capture's payloads go out as blocks.
    r = convert({b048, eth, raw_ip});
    EXPECT_FALSE(r.capture);
    EXPECT_EQ(r.out, concat({b001, b001, b001}));
    EXPECT_EQ(r.messages, "");
    EXPECT_EQ(r.counts.converted_001, 3u);
}

// IPv4 fragments of a datagram, `size` octets of it each (the last one
// what is left).
std::vector<Octets> ipv4_fragments(const Octets &datagram, size_t size) {
    std::vector<Octets> frames;
    for (size_t at = 0; at < datagram.size(); at += size) {
        const size_t end = std::min(datagram.size(), at + size);
        const Octets part(datagram.begin() + static_cast<std::ptrdiff_t>(at),
                          datagram.begin() + static_cast<std::ptrdiff_t>(end));
        const uint16_t word = static_cast<uint16_t>((end < datagram.size() ? 0x2000 : 0) | at / 8);
        frames.push_back(ethernet(0x0800, ipv4(part, 17, word)));
    }
    return frames;
}

// An IPv6 fragment (fragment header, then the part).
Octets ipv6_fragment(const Octets &part, size_t offset, bool more) {
    Octets header = {17, 0};
    put16(header, static_cast<uint32_t>(offset | (more ? 1 : 0)));
    put32(header, 0x77, true);
    return ethernet(0x86DD, ipv6(concat({header, part}), 44));
}

TEST(ConvertTool, FragmentedDatagramsGoOutWhole) {
    const Octets b048 = from_hex(kBlock048), b001 = from_hex(kBlock001);
    // A CAT021 block passed unchanged makes the IPv4 datagram longer than
    // an Ethernet frame: it goes out as one packet all the same.
    Octets b021 = {0x15, 0x0B, 0xB8};
    b021.resize(3000, 0x80);
    const Octets v4 = udp_checked(concat({b048, b021}), 5000, 9600);
    const Octets v6 = udp_checked(b048, 6000, 9700);
    const Octets v6_head(v6.begin(), v6.begin() + 16), v6_tail(v6.begin() + 16, v6.end());
    std::vector<Octets> frames = ipv4_fragments(v4, 1480);  // packets 1 to 3
    ASSERT_EQ(frames.size(), 3u);
    frames.insert(frames.begin() + 1, ethernet(0x0800, ipv4(udp(b048))));  // a whole datagram between them
    frames.push_back(ipv6_fragment(v6_tail, 16, false));  // the IPv6 datagram's fragments out of order
    frames.push_back(ipv6_fragment(v6_head, 0, true));
    frames.push_back(ipv4_fragments(v4, 1480)[0]);  // a datagram never completed

    struct Expect {
        size_t packet;  // the input packet written (0-based)
        int version;
        Octets payload;
        Octets ports;
    };
    const Expect expected[] = {
        {1, 4, b001, {0x0F, 0xA0, 0x21, 0x98}},
        {3, 4, concat({b001, b021}), {0x13, 0x88, 0x25, 0x80}},
        {5, 6, b001, {0x17, 0x70, 0x25, 0xE4}},
    };
    const Converted r = convert({pcap_file(1, frames)});
    EXPECT_EQ(r.messages, "kovrel: in1: 1 fragmented datagram incomplete at the end of the capture\n");
    EXPECT_EQ(r.counts.packets_read, 3u);
    int linktype = -1;
    const std::vector<Packet> packets = read_packets(r.out, linktype);
    ASSERT_EQ(packets.size(), std::size(expected));
    for (size_t i = 0; i < packets.size(); ++i) {
        const Expect &e = expected[i];
        const Octets &out = packets[i].frame;
        EXPECT_EQ(packets[i].seconds, 1715680800 + static_cast<int64_t>(e.packet)) << i;
        EXPECT_EQ(payload_of(1, out), e.payload) << i;
        const size_t udp_at = 14 + (e.version == 4 ? 20 : 40);
        EXPECT_EQ(out.size(), udp_at + 8 + e.payload.size()) << i;
        EXPECT_EQ(Octets(out.begin() + static_cast<std::ptrdiff_t>(udp_at), out.begin() + static_cast<std::ptrdiff_t>(udp_at + 4)),
                  e.ports)
            << i;
        EXPECT_TRUE(udp_checksum_ok(out, 14)) << i;
        if (e.version == 4) {
            EXPECT_EQ(out[20] << 8 | out[21], i == 0 ? 0x4000 : 0) << i;  // no fragment flag or offset left
            EXPECT_EQ(static_cast<size_t>(out[16] << 8 | out[17]), 20 + 8 + e.payload.size()) << i;
            EXPECT_EQ(internet_checksum(out.data() + 14, 20), 0u) << i;
        } else {
            EXPECT_EQ(out[20], 17);  // the fragment header is gone
            EXPECT_EQ(static_cast<size_t>(out[18] << 8 | out[19]), 8 + e.payload.size());
        }
    }
}

TEST(ConvertTool, RebuildRefusesWhatCannotBeAFrame) {
    const Octets frame = ethernet(0x0800, ipv4(udp(Octets{1, 2, 3})));
    std::vector<uint8_t> out;
    std::string error;
    const Octets big(65536 - 28, 0);
    EXPECT_FALSE(rebuild_frame(1, frame.data(), frame.size(), 42, big.data(), big.size(), out, error));
    EXPECT_EQ(error, "the converted datagram would be longer than 65535 octets");
    EXPECT_TRUE(rebuild_frame(1, frame.data(), frame.size(), 42, big.data(), big.size() - 1, out, error));
    EXPECT_EQ(out.size(), 14 + 65535u);
    // A payload offset that leaves no room for the IP and UDP headers.
    EXPECT_FALSE(rebuild_frame(1, frame.data(), frame.size(), 40, big.data(), 1, out, error));
    EXPECT_FALSE(rebuild_frame(1, frame.data(), frame.size(), frame.size() + 1, big.data(), 1, out, error));
    const Octets arp = ethernet(0x0806, Octets(40, 0));
    EXPECT_FALSE(rebuild_frame(1, arp.data(), arp.size(), 42, big.data(), 1, out, error));
}

// Every CAT048 record of the built-in sample comes out as a CAT001 record
// of the same source, time (modulo 512 s) and track number, in order.
TEST(ConvertTool, TheSampleConverts) {
    const Octets sample(kSamplePcap, kSamplePcap + kSamplePcapSize);
    // Dropping the others: the sample has CAT001 of its own.
    const Converted r = convert({sample}, true);
    ASSERT_TRUE(r.capture);
    EXPECT_EQ(r.counts.failed, 0u) << r.messages;
    EXPECT_GT(r.counts.converted_001, 10u);

    struct Facts {
        uint32_t sac, sic, tod, track;
        bool operator==(const Facts &o) const {
            return sac == o.sac && sic == o.sic && tod == o.tod && track == o.track;
        }
    };
    auto block = std::make_unique<AstDataBlock>();
    auto facts_of = [&](int linktype, const std::vector<Packet> &packets, uint32_t category) {
        std::vector<Facts> facts;
        for (const Packet &p : packets) {
            const Octets payload = payload_of(linktype, p.frame);
            for (size_t at = 0; at + 3 <= payload.size(); at += block->length) {
                ast_datablock_smart_decode_into(block.get(), payload.data() + at, payload.size() - at);
                if (block->valid != 1) {
                    ADD_FAILURE() << "a bad block";
                    break;
                }
                if (block->category != category) continue;
                for (uint64_t i = 0; i < block->record_count; ++i) {
                    const AstDataRecord &rec = block->records[i];
                    AstDataSourceIdentifier sid;
                    ast_datarecord_get_sacsic(&sid, &rec);
                    AstTrackNumber tn;
                    ast_datarecord_get_tracknum(&tn, &rec);
                    uint32_t tod = 0;
                    for (uint64_t k = 0; k < rec.item_count; ++k) {
                        const AstDataItem &item = rec.items[k];
                        if (item.id == 48140) tod = (item.data[1] << 8 | item.data[2]);
                        if (item.id == 1141) tod = (item.data[0] << 8 | item.data[1]);
                    }
                    facts.push_back({sid.sac, sid.sic, tod, tn.valid ? tn.number : 0xFFFFFFFFu});
                }
            }
        }
        return facts;
    };
    int in_link = -1, out_link = -1;
    const std::vector<Facts> before = facts_of(1, read_packets(sample, in_link), 48);
    const std::vector<Facts> after = facts_of(1, read_packets(r.out, out_link), 1);
    EXPECT_EQ(in_link, out_link);
    ASSERT_EQ(before.size(), r.counts.converted_001);
    for (size_t i = 0; i < before.size() && i < after.size(); ++i) {
        const Facts &a = before[i], &b = after[i];
        EXPECT_TRUE(a == b) << "record " << i << ": " << a.sac << "/" << a.sic << " " << a.tod << " " << a.track
                            << " became " << b.sac << "/" << b.sic << " " << b.tod << " " << b.track;
    }
}

}  // namespace

#endif  // KOVREL_HAVE_TOOL_CORE
