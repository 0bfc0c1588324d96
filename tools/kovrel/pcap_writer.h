// Writing captures: a pcap file of nanosecond time stamps, and captured
// frames given a new UDP payload with their headers made to match.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace kovrel_tool {

// Writes a classic pcap stream (little-endian, nanosecond time stamps, so
// that the time stamps of any capture are kept exactly) of one link type.
class PcapWriter {
public:
    explicit PcapWriter(std::FILE *out) : out_(out) {}

    // The file header; call once before the first packet. linktype is the
    // DLT value libpcap reports (pcap_datalink); the file gets the link
    // type number files use for it (DLT_RAW is 101 in files).
    bool begin(int linktype);
    bool started() const { return linktype_ >= 0; }
    int linktype() const { return linktype_; }

    // One packet record: the time stamp and the whole frame.
    bool packet(int64_t seconds, uint32_t nanoseconds, const uint8_t *frame, size_t size);

    uint64_t packets() const { return packets_; }

private:
    bool put(const uint8_t *data, size_t size);

    std::FILE *out_;
    int linktype_ = -1;
    uint64_t packets_ = 0;
};

// Gives a captured frame a new UDP payload: `out` becomes the frame's
// octets up to its UDP payload (link, IP and UDP headers as captured) then
// `payload`; octets after the old datagram (Ethernet padding) are dropped.
// The UDP length and the IPv4 total length or IPv6 payload length take the
// new size, the IPv4 header checksum and the UDP checksum are computed
// again (a UDP checksum of 0 over IPv4, "none", stays 0). `payload_offset`
// is where udp_payload found the old payload in the frame. False, with the
// reason in `error`, when the frame's headers cannot be found or the new
// datagram would be longer than IP allows.
bool rebuild_frame(int linktype, const uint8_t *frame, size_t caplen, size_t payload_offset,
                   const uint8_t *payload, size_t payload_size, std::vector<uint8_t> &out, std::string &error);

// The same for a datagram put together from fragments: `frame` is one of
// its fragments as captured, `udp_header` the datagram's 8-octet UDP
// header. The new frame has that fragment's link header and IP header
// (IPv4 without its fragment flag and offset; IPv6 its 40-octet header
// alone, the extension headers left out), then the UDP header and
// `payload`, lengths and checksums made to match: one packet, which may be
// longer than the link's MTU. False, with the reason in `error`, as
// rebuild_frame.
bool reassembled_frame(int linktype, const uint8_t *frame, size_t caplen, const uint8_t *udp_header,
                       const uint8_t *payload, size_t payload_size, std::vector<uint8_t> &out, std::string &error);

// The Internet checksum (ones' complement of the ones' complement sum of
// 16-bit words) of data, starting from a partial sum.
// The link type number a capture file stores for a DLT value.
int file_linktype(int dlt);

uint16_t internet_checksum(const uint8_t *data, size_t size, uint32_t sum = 0);

}  // namespace kovrel_tool
