// Live input names (udp:// URLs), datagram addresses as text, and the raw
// IP packets --record writes, read back by the capture reader.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <pcap/pcap.h>
#include <string>
#include <vector>

#include "datagram_recorder.h"
#include "input.h"
#include "pcap_writer.h"
#include "tools/capture_builder.h"
#include "udp_url.h"

using namespace kovrel_tool;

namespace {

struct UrlCase {
    const char *url;
    const char *address;  // format_address of the address and port; nullptr: refused
    bool multicast;
    const char *source;   // "" for none
    const char *iface;
    const char *error;    // part of the error when refused
};

NetAddress v4(uint8_t a, uint8_t b, uint8_t c, uint8_t d, uint16_t port) {
    NetAddress n;
    n.family = 4;
    n.octets[0] = a, n.octets[1] = b, n.octets[2] = c, n.octets[3] = d;
    n.port = port;
    return n;
}

NetAddress v6(std::initializer_list<uint8_t> octets, uint16_t port) {
    NetAddress n;
    n.family = 6;
    size_t i = 0;
    for (uint8_t o : octets) n.octets[i++] = o;
    n.port = port;
    return n;
}

}  // namespace

TEST(UdpUrl, ReadsAddressesPortsSourcesAndInterfaces) {
    const std::vector<UrlCase> cases = {
        {"udp://127.0.0.1:8600", "127.0.0.1:8600", false, "", "", ""},
        {"udp://0.0.0.0:0", "0.0.0.0:0", false, "", "", ""},
        {"udp://239.255.1.2:50000", "239.255.1.2:50000", true, "", "", ""},
        {"udp://224.0.0.1:1", "224.0.0.1:1", true, "", "", ""},
        {"udp://239.1.2.3:65535?iface=eth0", "239.1.2.3:65535", true, "", "eth0", ""},
        {"udp://10.1.2.3@232.1.1.1:8600", "232.1.1.1:8600", true, "10.1.2.3:0", "", ""},
        {"udp://[::]:9000", "[::]:9000", false, "", "", ""},
        {"udp://[::1]:9000", "[::1]:9000", false, "", "", ""},
        {"udp://[ff02::1234]:50000?iface=lo", "[ff02::1234]:50000", true, "", "lo", ""},
        {"udp://[ff3e::8000:1]:50000", "[ff3e::8000:1]:50000", true, "", "", ""},
        {"udp://[2001:db8::5]@[ff3e::1]:7?iface=eth1", "[ff3e::1]:7", true, "[2001:db8::5]:0", "eth1", ""},
        // Refused, each with what is wrong.
        {"udp://", nullptr, false, "", "", "the port is missing"},
        {"udp://127.0.0.1", nullptr, false, "", "", "the port is missing"},
        {"udp://[::1]", nullptr, false, "", "", "the port is missing"},
        {"udp://127.0.0.1:", nullptr, false, "", "", "the port is missing"},
        {"udp://127.0.0.1:65536", nullptr, false, "", "", "'65536' is not 0 to 65535"},
        {"udp://127.0.0.1:123456", nullptr, false, "", "", "is not 0 to 65535"},
        {"udp://127.0.0.1:80x", nullptr, false, "", "", "'80x' is not a number"},
        {"udp://:8600", nullptr, false, "", "", "the address is missing"},
        {"udp://localhost:8600", nullptr, false, "", "", "'localhost' is not a numeric IPv4 address"},
        {"udp://256.1.1.1:8600", nullptr, false, "", "", "is not a numeric IPv4 address"},
        {"udp://ff02::1:8600", nullptr, false, "", "", "goes in brackets"},
        {"udp://[ff02::1:8600", nullptr, false, "", "", "lacks its closing ']'"},
        {"udp://[fg::1]:8600", nullptr, false, "", "", "'fg::1' is not an IPv6 address"},
        {"udp://[ff02::1234]:50000", nullptr, false, "", "", "link-local group needs its interface"},
        {"udp://127.0.0.1:8600?iface=lo", nullptr, false, "", "", "is not a group"},
        {"udp://239.1.1.1:8600?port=3", nullptr, false, "", "", "unknown option 'port=3'"},
        {"udp://239.1.1.1:8600?iface=", nullptr, false, "", "", "is not an interface name"},
        {"udp://239.1.1.1:8600?iface=averyveryverylongname", nullptr, false, "", "", "is not an interface name"},
        {"udp://10.0.0.1@127.0.0.1:8600", nullptr, false, "", "", "a source goes with a multicast group"},
        {"udp://[2001:db8::1]@232.1.1.1:8600", nullptr, false, "", "", "not of the same IP version"},
        {"udp://239.9.9.9@232.1.1.1:8600", nullptr, false, "", "", "must be a unicast address"},
        {"udp://0.0.0.0@232.1.1.1:8600", nullptr, false, "", "", "must be a unicast address"},
        {"udp://x@232.1.1.1:8600", nullptr, false, "", "", "the source 'x'"},
        {"tcp://127.0.0.1:8600", nullptr, false, "", "", "starts with udp://"},
    };
    for (const UrlCase &c : cases) {
        SCOPED_TRACE(c.url);
        UdpEndpoint e;
        std::string error;
        const bool ok = parse_udp_url(c.url, e, error);
        ASSERT_EQ(ok, c.address != nullptr) << error;
        if (!ok) {
            EXPECT_NE(error.find(c.error), std::string::npos) << error;
            continue;
        }
        EXPECT_EQ(format_address(e.address), c.address);
        EXPECT_EQ(e.multicast, c.multicast);
        EXPECT_EQ(format_address(e.source), c.source);
        EXPECT_EQ(e.iface, c.iface);
        // The URL written back, with the port bound, reads the same.
        UdpEndpoint again;
        ASSERT_TRUE(parse_udp_url(udp_url(e, 4242), again, error)) << udp_url(e, 4242) << ": " << error;
        EXPECT_EQ(again.address.port, 4242);
        EXPECT_EQ(format_address(again.source), c.source);
        EXPECT_EQ(again.iface, c.iface);
    }
    EXPECT_TRUE(is_udp_url("udp://x"));
    EXPECT_FALSE(is_udp_url("udp:/x"));
    EXPECT_FALSE(is_udp_url("capture.pcap"));
}

TEST(UdpUrl, AddressesAsText) {
    const std::vector<std::pair<NetAddress, const char *>> cases = {
        {NetAddress{}, ""},
        {v4(192, 0, 2, 1, 8600), "192.0.2.1:8600"},
        {v4(0, 0, 0, 0, 0), "0.0.0.0:0"},
        {v6({0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 65535), "[2001:db8::1]:65535"},
        {v6({0xff, 0x02, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x12, 0x34}, 1), "[ff02::1234]:1"},
        // The longest text there is.
        {v6({0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff}, 65535),
         "[ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff]:65535"},
    };
    for (const auto &[address, text] : cases) EXPECT_EQ(format_address(address), text);
}

// A recorded datagram is a raw IP packet the capture reader takes apart
// again into the same addresses, ports and payload, with checksums that
// verify.
TEST(UdpUrl, RecordedPacketsReadBack) {
    struct Case {
        NetAddress src, dst;
        std::vector<uint8_t> payload;
    };
    const std::vector<Case> cases = {
        {v4(127, 0, 0, 1, 40000), v4(239, 255, 1, 2, 8600), {48, 0, 6, 0x80, 25, 1}},
        {v4(10, 0, 0, 1, 1), v4(10, 0, 0, 2, 2), {}},
        {v4(192, 0, 2, 7, 65535), v4(192, 0, 2, 8, 9), {1, 2, 3}},  // odd length
        {v6({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 5000),
         v6({0xff, 0x02, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x12, 0x34}, 50000),
         {48, 0, 6, 0x80, 25, 2, 0xff}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(format_address(c.src) + " -> " + format_address(c.dst));
        std::vector<uint8_t> packet;
        ASSERT_TRUE(build_udp_packet(c.src, c.dst, c.payload.data(), c.payload.size(), packet));
        Payload p;
        ASSERT_EQ(udp_payload(DLT_RAW, packet.data(), packet.size(), p), FrameResult::Udp);
        EXPECT_EQ(std::vector<uint8_t>(p.data, p.data + p.size), c.payload);
        EXPECT_EQ(format_address(p.src), format_address(c.src));
        EXPECT_EQ(format_address(p.dst), format_address(c.dst));
        const bool is4 = c.src.family == 4;
        const size_t ip = is4 ? 20 : 40, n = is4 ? 4 : 16;
        if (is4) EXPECT_EQ(internet_checksum(packet.data(), 20), 0);
        // The UDP checksum over the pseudo header sums to all ones.
        std::vector<uint8_t> pseudo(c.src.octets, c.src.octets + n);
        pseudo.insert(pseudo.end(), c.dst.octets, c.dst.octets + n);
        const size_t length = packet.size() - ip;
        pseudo.insert(pseudo.end(), {0, 17, static_cast<uint8_t>(length >> 8), static_cast<uint8_t>(length)});
        pseudo.insert(pseudo.end(), packet.begin() + static_cast<long>(ip), packet.end());
        EXPECT_EQ(internet_checksum(pseudo.data(), pseudo.size()), 0);
    }
    // Addresses of two IP versions make no packet.
    std::vector<uint8_t> packet;
    EXPECT_FALSE(build_udp_packet(cases[0].src, cases[3].dst, nullptr, 0, packet));
    std::vector<uint8_t> big(65528);
    EXPECT_FALSE(build_udp_packet(cases[0].src, cases[0].dst, big.data(), big.size(), packet));
    EXPECT_TRUE(build_udp_packet(cases[0].src, cases[0].dst, big.data(), 65507, packet));
}

// Captured frames give their datagram's addresses and ports too, whatever
// lies between the link layer and UDP.
TEST(UdpUrl, CapturedFramesTellTheirAddresses) {
    using namespace kovrel_tool_test;
    const Octets data = {48, 0, 3};
    const Octets hop = {17, 0, 0, 0, 0, 0, 0, 0};  // hop-by-hop options, then UDP
    const struct {
        int linktype;
        Octets frame;
        const char *src, *dst;
    } cases[] = {
        {DLT_EN10MB, ethernet(0x0800, ipv4(udp(data, 4001, 8601))), "10.0.0.1:4001", "239.1.1.1:8601"},
        {DLT_EN10MB, ethernet(0x0800, ipv4(udp(data)), {0x8100}), "10.0.0.1:4000", "239.1.1.1:8600"},
        {DLT_EN10MB, ethernet(0x86DD, ipv6(udp(data, 65535, 1))), "[::1]:65535", "[::1]:1"},
        {DLT_RAW, ipv6(concat({hop, udp(data, 7, 9)}), 0), "[::1]:7", "[::1]:9"},
        {DLT_RAW, ipv4(udp(data, 0, 0)), "10.0.0.1:0", "239.1.1.1:0"},
    };
    for (const auto &c : cases) {
        Payload p;
        ASSERT_EQ(udp_payload(c.linktype, c.frame.data(), c.frame.size(), p), FrameResult::Udp);
        EXPECT_EQ(format_address(p.src), c.src);
        EXPECT_EQ(format_address(p.dst), c.dst);
    }
}

#endif  // KOVREL_HAVE_TOOL_CORE
