// The UDP datagrams of the sample recording built into the tool (a classic
// little-endian pcap of Ethernet frames carrying IPv4), with the source port
// that tells the sample's sensors apart.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kovrel_test {

struct SamplePacket {
    uint16_t src_port;
    std::vector<uint8_t> payload;
};

// Every UDP datagram of the pcap at `pcap`; a capture that is not a
// little-endian Ethernet pcap gives none and fails the running test.
std::vector<SamplePacket> udp_packets(const uint8_t *pcap, size_t size);

// The same for the built-in sample.
std::vector<SamplePacket> sample_packets();

}  // namespace kovrel_test
