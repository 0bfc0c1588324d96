#include "pcap_writer.h"

#include <pcap/pcap.h>

namespace kovrel_tool {
namespace {

constexpr int kLinktypeRaw = 101;
constexpr int kDltIpv4 = 228;
constexpr int kDltIpv6 = 229;
constexpr int kDltLinuxSll = 113;
constexpr int kDltLinuxSll2 = 276;
constexpr int kDltLoop = 108;
constexpr uint32_t kSnapLength = 262144;

uint16_t be16(const uint8_t *p) { return static_cast<uint16_t>(p[0] << 8 | p[1]); }

void set_be16(uint8_t *p, size_t v) {
    p[0] = static_cast<uint8_t>(v >> 8);
    p[1] = static_cast<uint8_t>(v);
}

void le32(uint8_t *p, uint32_t v) {
    for (int i = 0; i < 4; ++i) p[i] = static_cast<uint8_t>(v >> (8 * i));
}

uint32_t add_words(const uint8_t *data, size_t size, uint32_t sum) {
    size_t i = 0;
    for (; i + 1 < size; i += 2) sum += be16(data + i);
    if (i < size) sum += static_cast<uint32_t>(data[i]) << 8;
    return sum;
}

// Where the IP header of a frame starts, or false when the link layer does
// not lead to IP.
bool network_offset(int linktype, const uint8_t *frame, size_t caplen, size_t &offset) {
    switch (linktype) {
    case DLT_EN10MB: {
        if (caplen < 14) return false;
        uint16_t type = be16(frame + 12);
        offset = 14;
        while (type == 0x8100 || type == 0x88A8 || type == 0x9100) {
            if (offset + 4 > caplen) return false;
            type = be16(frame + offset + 2);
            offset += 4;
        }
        return type == 0x0800 || type == 0x86DD;
    }
    case kDltLinuxSll:
        offset = 16;
        return caplen >= 16;
    case kDltLinuxSll2:
        offset = 20;
        return caplen >= 20;
    case DLT_NULL:
    case kDltLoop:
        offset = 4;
        return caplen >= 4;
    case DLT_RAW:
    case kLinktypeRaw:
    case kDltIpv4:
    case kDltIpv6:
        offset = 0;
        return true;
    default:
        return false;
    }
}

}  // namespace

int file_linktype(int dlt) {
    // DLT_RAW differs between systems (12 or 14); files always say 101.
    return dlt == DLT_RAW || dlt == 12 || dlt == 14 ? kLinktypeRaw : dlt;
}

uint16_t internet_checksum(const uint8_t *data, size_t size, uint32_t sum) {
    sum = add_words(data, size, sum);
    while (sum >> 16) sum = (sum & 0xFFFF) + (sum >> 16);
    return static_cast<uint16_t>(~sum);
}

bool PcapWriter::put(const uint8_t *data, size_t size) {
    return std::fwrite(data, 1, size, out_) == size && !std::ferror(out_);
}

bool PcapWriter::begin(int linktype) {
    uint8_t header[24] = {};
    le32(header, 0xA1B23C4D);  // nanosecond time stamps
    header[4] = 2;              // version 2.4
    header[6] = 4;
    le32(header + 16, kSnapLength);
    le32(header + 20, static_cast<uint32_t>(file_linktype(linktype)));
    linktype_ = linktype;
    return put(header, sizeof header);
}

bool PcapWriter::packet(int64_t seconds, uint32_t nanoseconds, const uint8_t *frame, size_t size) {
    uint8_t header[16];
    le32(header, static_cast<uint32_t>(seconds));
    le32(header + 4, nanoseconds);
    le32(header + 8, static_cast<uint32_t>(size));
    le32(header + 12, static_cast<uint32_t>(size));
    if (!put(header, sizeof header) || !put(frame, size)) return false;
    ++packets_;
    return true;
}

bool rebuild_frame(int linktype, const uint8_t *frame, size_t caplen, size_t payload_offset,
                   const uint8_t *payload, size_t payload_size, std::vector<uint8_t> &out, std::string &error) {
    size_t ip = 0;
    if (!network_offset(linktype, frame, caplen, ip) || payload_offset > caplen || payload_offset < ip + 28) {
        error = "the IP and UDP headers of the packet cannot be found";
        return false;
    }
    const size_t udp = payload_offset - 8;
    const size_t udp_length = 8 + payload_size;
    const int version = frame[ip] >> 4;
    const size_t ip_length = payload_offset - ip + payload_size;  // IPv4 total length, or IPv6 header + payload
    if (udp_length > 0xFFFF || (version == 4 && ip_length > 0xFFFF) || (version == 6 && ip_length - 40 > 0xFFFF)) {
        error = "the converted datagram would be longer than 65535 octets";
        return false;
    }
    if (version != 4 && version != 6) {
        error = "the packet is not IPv4 or IPv6";
        return false;
    }
    out.assign(frame, frame + payload_offset);
    out.insert(out.end(), payload, payload + payload_size);
    uint8_t *p = out.data();
    set_be16(p + udp + 4, udp_length);
    const bool had_checksum = be16(frame + udp + 6) != 0;
    set_be16(p + udp + 6, 0);
    // Pseudo header: the addresses, the protocol and the UDP length.
    uint32_t sum = 17 + static_cast<uint32_t>(udp_length);
    if (version == 4) {
        const size_t header = static_cast<size_t>(p[ip] & 0x0F) * 4;
        set_be16(p + ip + 2, ip_length);
        set_be16(p + ip + 10, 0);
        set_be16(p + ip + 10, internet_checksum(p + ip, header));
        sum = add_words(p + ip + 12, 8, sum);
    } else {
        set_be16(p + ip + 4, ip_length - 40);
        sum = add_words(p + ip + 8, 32, sum);
    }
    if (version == 6 || had_checksum) {
        uint16_t checksum = internet_checksum(p + udp, udp_length, sum);
        if (checksum == 0) checksum = 0xFFFF;  // 0 would mean "no checksum"
        set_be16(p + udp + 6, checksum);
    }
    return true;
}

bool reassembled_frame(int linktype, const uint8_t *frame, size_t caplen, const uint8_t *udp_header,
                       const uint8_t *payload, size_t payload_size, std::vector<uint8_t> &out, std::string &error) {
    size_t ip = 0;
    const int version = network_offset(linktype, frame, caplen, ip) && ip < caplen ? frame[ip] >> 4 : 0;
    const size_t header = version == 4 ? static_cast<size_t>(frame[ip] & 0x0F) * 4 : 40;
    if ((version != 4 && version != 6) || header < 20 || ip + header > caplen) {
        error = "the IP header of the packet cannot be found";
        return false;
    }
    std::vector<uint8_t> head(frame, frame + ip + header);
    if (version == 4) {
        head[ip + 6] &= 0xC0;  // keep the reserved and don't-fragment flags only
        head[ip + 7] = 0;
    } else {
        head[ip + 6] = 17;  // next header: UDP
    }
    head.insert(head.end(), udp_header, udp_header + 8);
    return rebuild_frame(linktype, head.data(), head.size(), head.size(), payload, payload_size, out, error);
}

}  // namespace kovrel_tool
