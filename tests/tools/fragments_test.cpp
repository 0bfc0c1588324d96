// IP fragments put back together: in any order, refused when they overlap
// or contradict each other, bounded in number; in captures, IPv4 and IPv6.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <string>

#include "fragments.h"
#include "input.h"
#include "tools/capture_builder.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

// A datagram of 24 octets 0, 1, 2, ... cut at 8 and 16.
const Octets kWhole = [] {
    Octets o(24);
    for (size_t i = 0; i < o.size(); ++i) o[i] = static_cast<uint8_t>(i);
    return o;
}();

struct Part {
    uint32_t id;
    size_t offset, size;
    bool more;
};

IpFragment fragment(const Part &p) {
    IpFragment f;
    f.protocol = 17;
    f.id = p.id;
    f.source[0] = 10;
    f.offset = p.offset;
    f.size = p.size;
    f.more = p.more;
    f.data = kWhole.data() + p.offset;
    return f;
}

// Adds the parts in order; one letter per part: P pending, C complete, R refused.
std::string results(Reassembler &r, const std::vector<Part> &parts) {
    std::string out;
    for (const Part &p : parts) {
        const IpFragment f = fragment(p);
        switch (r.add(f)) {
        case FragmentResult::Pending: out += 'P'; break;
        case FragmentResult::Complete: out += 'C'; break;
        case FragmentResult::Refused: out += 'R'; break;
        }
    }
    return out;
}

}  // namespace

TEST(ToolFragments, PutTogetherOrRefused) {
    struct Case {
        const char *what;
        std::vector<Part> parts;
        std::string expected;
        size_t whole;  // size of the last datagram completed (0: none)
    };
    const Case cases[] = {
        {"in order", {{1, 0, 8, true}, {1, 8, 8, true}, {1, 16, 8, false}}, "PPC", 24},
        {"last first", {{1, 16, 8, false}, {1, 0, 8, true}, {1, 8, 8, true}}, "PPC", 24},
        {"a short last fragment", {{1, 0, 16, true}, {1, 16, 5, false}}, "PC", 21},
        {"two datagrams interleaved", {{1, 0, 8, true}, {2, 0, 8, true}, {2, 8, 4, false}, {1, 8, 16, false}},
         "PPCC", 24},
        {"a repeated fragment", {{1, 0, 8, true}, {1, 0, 8, true}}, "PR", 0},
        {"overlapping fragments", {{1, 0, 16, true}, {1, 8, 16, false}}, "PR", 0},
        {"a fragment beyond the last one", {{1, 8, 8, false}, {1, 16, 8, true}}, "PR", 0},
        {"a last fragment before what came", {{1, 16, 8, true}, {1, 0, 8, false}}, "PR", 0},
        {"two last fragments that disagree", {{1, 16, 8, false}, {1, 8, 4, false}}, "PR", 0},
        {"a middle fragment not a multiple of 8", {{1, 0, 7, true}}, "R", 0},
        {"an empty fragment", {{1, 8, 0, false}}, "R", 0},
        // After a refusal the datagram starts afresh.
        {"refused, then whole", {{1, 0, 8, true}, {1, 0, 8, true}, {1, 0, 8, true}, {1, 8, 16, false}}, "PRPC", 24},
    };
    for (const Case &c : cases) {
        Reassembler r;
        EXPECT_EQ(results(r, c.parts), c.expected) << c.what;
        if (c.whole) {
            EXPECT_EQ(r.datagram(), Octets(kWhole.begin(), kWhole.begin() + static_cast<std::ptrdiff_t>(c.whole)))
                << c.what;
            EXPECT_EQ(r.protocol(), 17) << c.what;
        }
        EXPECT_EQ(r.refused(), static_cast<uint64_t>(std::count(c.expected.begin(), c.expected.end(), 'R')))
            << c.what;
        EXPECT_EQ(r.pending(), 0u) << c.what;
    }
}

TEST(ToolFragments, BoundedInNumberAndSize) {
    // Two datagrams at most: a third gives up the oldest (id 1).
    Reassembler r(2, 20);
    EXPECT_EQ(results(r, {{1, 0, 8, true}, {2, 0, 8, true}, {3, 0, 8, true}}), "PPP");
    EXPECT_EQ(r.evicted(), 1u);
    EXPECT_EQ(r.pending(), 2u);
    EXPECT_EQ(results(r, {{1, 8, 4, false}}), "P");  // id 1 starts again, giving up id 2
    EXPECT_EQ(results(r, {{3, 8, 4, false}}), "C");
    EXPECT_EQ(r.evicted(), 2u);
    // Nothing grows past 20 octets.
    EXPECT_EQ(results(r, {{4, 16, 8, false}}), "R");
}

TEST(ToolFragments, CapturesOfFragmentedDatagrams) {
    // A UDP datagram of two blocks (8 + 6 + 6 octets with its header) cut
    // into fragments of 8 and 12 octets, over IPv4 and IPv6.
    const Octets blocks = concat({sacsic_block(1), sacsic_block(2)});
    const Octets datagram = udp(blocks);
    const Octets head(datagram.begin(), datagram.begin() + 8), tail(datagram.begin() + 8, datagram.end());
    auto v6 = [](const Octets &part, uint16_t offset, bool more) {
        Octets header = {17, 0};
        put16(header, static_cast<uint32_t>(offset | (more ? 1 : 0)));
        put32(header, 0x55, true);
        return ipv6(concat({header, part}), 44);
    };
    const std::vector<Octets> frames = {
        ethernet(0x0800, ipv4(tail, 17, 0x0001)),  // offset 8, last: arrives first
        ethernet(0x86DD, v6(head, 0, true)),
        ethernet(0x0800, ipv4(head, 17, 0x2000)),  // completes the IPv4 datagram
        ethernet(0x86DD, v6(tail, 8, false)),      // completes the IPv6 one
        ethernet(0x0800, ipv4(head, 17, 0x2000)),  // never completed
    };
    CaptureStats stats;
    std::string error;
    std::vector<std::pair<uint64_t, Octets>> payloads;
    ASSERT_TRUE(read_capture(
        temp_file(pcap_file(1, frames)),
        [&](const Chunk &c) {
            payloads.emplace_back(c.where.packet, Octets(c.data, c.data + c.size));
            return true;
        },
        stats, error));
    ASSERT_EQ(payloads.size(), 2u);
    EXPECT_EQ(payloads[0], std::make_pair(uint64_t{3}, blocks));
    EXPECT_EQ(payloads[1], std::make_pair(uint64_t{4}, blocks));
    EXPECT_EQ(stats.fragments, 5u);
    EXPECT_EQ(stats.reassembled, 2u);
    EXPECT_EQ(stats.udp, 2u);
    EXPECT_EQ(stats.fragments_incomplete, 1u);
    EXPECT_EQ(stats.fragments_refused, 0u);
}

#endif  // KOVREL_HAVE_TOOL_CORE
