// Only where the tests link the tool's core, which holds the sample.
#ifdef KOVREL_HAVE_TOOL_CORE
#include "support/sample_packets.h"

#include <gtest/gtest.h>

#include "sample.h"

namespace kovrel_test {

std::vector<SamplePacket> udp_packets(const uint8_t *pcap, size_t size) {
    std::vector<SamplePacket> out;
    auto le32 = [&](size_t at) {
        return static_cast<uint32_t>(pcap[at]) | static_cast<uint32_t>(pcap[at + 1]) << 8 |
               static_cast<uint32_t>(pcap[at + 2]) << 16 | static_cast<uint32_t>(pcap[at + 3]) << 24;
    };
    if (size < 24 || le32(0) != 0xA1B2C3D4u || le32(20) != 1) {
        ADD_FAILURE() << "not a little-endian Ethernet pcap";
        return out;
    }
    for (size_t at = 24; at + 16 <= size;) {
        const size_t captured = le32(at + 8);
        const uint8_t *frame = pcap + at + 16;
        at += 16 + captured;
        if (at > size || captured < 14 + 20 + 8 || frame[12] != 0x08 || frame[13] != 0x00) continue;
        const uint8_t *ip = frame + 14;
        const size_t ip_header = (ip[0] & 0x0Fu) * 4u;
        if (ip[9] != 17 || 14 + ip_header + 8 > captured) continue;
        const uint8_t *udp = ip + ip_header;
        const size_t udp_length = static_cast<size_t>(udp[4]) << 8 | udp[5];
        if (udp_length < 8 || 14 + ip_header + udp_length > captured) continue;
        out.push_back({static_cast<uint16_t>(udp[0] << 8 | udp[1]), {udp + 8, udp + udp_length}});
    }
    return out;
}

std::vector<SamplePacket> sample_packets() {
    return udp_packets(kovrel_tool::kSamplePcap, kovrel_tool::kSamplePcapSize);
}

}  // namespace kovrel_test

#endif  // KOVREL_HAVE_TOOL_CORE
