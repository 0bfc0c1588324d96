// Captured frames: the UDP payload behind the link, IP and UDP headers.
#include <cstring>

#include "input.h"

namespace kovrel_tool {
namespace {

// Link types by number (as libpcap names them on Linux), so that this file
// needs no libpcap.
constexpr int kDltNull = 0;
constexpr int kDltEn10mb = 1;
constexpr int kDltRaw = 12;
constexpr int kLinktypeRaw = 101;  // LINKTYPE_RAW as stored in files
constexpr int kDltIpv4 = 228;
constexpr int kDltIpv6 = 229;
constexpr int kDltLinuxSll = 113;
constexpr int kDltLinuxSll2 = 276;
constexpr int kDltLoop = 108;

uint16_t be16(const uint8_t *p) { return static_cast<uint16_t>(p[0] << 8 | p[1]); }

FrameResult udp(const uint8_t *p, size_t n, Payload &out) {
    if (n < 8) return FrameResult::Truncated;
    const size_t length = be16(p + 4);
    if (length < 8 || length > n) return FrameResult::Truncated;
    out.data = p + 8;
    out.size = length - 8;
    out.src.port = be16(p);
    out.dst.port = be16(p + 2);
    return FrameResult::Udp;
}

FrameResult ipv4(const uint8_t *p, size_t n, Payload &out, IpFragment *fragment) {
    if (n < 20) return FrameResult::Truncated;
    const size_t header = static_cast<size_t>(p[0] & 0x0F) * 4;
    const size_t total = be16(p + 2);
    // Captures cut by the snap length end before the datagram does; frames
    // padded to the Ethernet minimum end after it.
    if (header < 20 || total < header || total > n) return FrameResult::Truncated;
    const uint16_t flags = be16(p + 6);
    if ((flags & 0x2000) != 0 || (flags & 0x1FFF) != 0) {
        if (fragment) {
            *fragment = IpFragment{};
            fragment->version = 4;
            fragment->protocol = p[9];
            fragment->id = be16(p + 4);
            std::memcpy(fragment->source, p + 12, 4);
            std::memcpy(fragment->destination, p + 16, 4);
            fragment->offset = static_cast<size_t>(flags & 0x1FFF) * 8;
            fragment->more = (flags & 0x2000) != 0;
            fragment->data = p + header;
            fragment->size = total - header;
        }
        return FrameResult::Fragment;
    }
    if (p[9] != 17) return FrameResult::NotUdp;
    set_payload_addresses(out, 4, p + 12, p + 16);
    return udp(p + header, total - header, out);
}

// Walks IPv6 extension headers from `next` at p + off up to the UDP header.
// ip is the IPv6 header (for a fragment's addresses), nullptr inside a
// reassembled datagram (where a fragment header cannot be).
FrameResult ipv6_transport(uint8_t next, const uint8_t *p, size_t off, size_t end, Payload &out,
                           const uint8_t *ip, IpFragment *fragment) {
    for (int hops = 0; hops < 32; ++hops) {
        switch (next) {
        case 17:
            // A reassembled datagram has no header here: its reader sets
            // the addresses from the fragments'.
            if (ip) set_payload_addresses(out, 6, ip + 8, ip + 24);
            return udp(p + off, end - off, out);
        case 0:    // hop-by-hop options
        case 43:   // routing
        case 60:   // destination options
        case 135:  // mobility
            if (off + 8 > end) return FrameResult::Truncated;
            next = p[off];
            off += (static_cast<size_t>(p[off + 1]) + 1) * 8;
            break;
        case 51:  // authentication header
            if (off + 8 > end) return FrameResult::Truncated;
            next = p[off];
            off += (static_cast<size_t>(p[off + 1]) + 2) * 4;
            break;
        case 44: {  // fragment: an atomic fragment (offset 0, no more) is whole
            if (off + 8 > end || !ip) return FrameResult::Truncated;
            const uint16_t fo = be16(p + off + 2);
            if ((fo & 0xFFF8) != 0 || (fo & 0x0001) != 0) {
                if (fragment) {
                    *fragment = IpFragment{};
                    fragment->version = 6;
                    fragment->protocol = p[off];
                    fragment->id = static_cast<uint32_t>(be16(p + off + 4)) << 16 | be16(p + off + 6);
                    std::memcpy(fragment->source, ip + 8, 16);
                    std::memcpy(fragment->destination, ip + 24, 16);
                    fragment->offset = fo & 0xFFF8;
                    fragment->more = (fo & 0x0001) != 0;
                    fragment->data = p + off + 8;
                    fragment->size = end - off - 8;
                }
                return FrameResult::Fragment;
            }
            next = p[off];
            off += 8;
            break;
        }
        default:
            return FrameResult::NotUdp;
        }
        if (off > end) return FrameResult::Truncated;
    }
    return FrameResult::NotUdp;
}

FrameResult ipv6(const uint8_t *p, size_t n, Payload &out, IpFragment *fragment) {
    if (n < 40) return FrameResult::Truncated;
    const size_t payload = be16(p + 4);
    size_t end = 40 + payload;
    if (payload == 0) end = n;  // jumbogram: the length is in an option
    if (end > n) return FrameResult::Truncated;
    return ipv6_transport(p[6], p, 40, end, out, p, fragment);
}

FrameResult ip(const uint8_t *p, size_t n, Payload &out, IpFragment *fragment) {
    if (n < 1) return FrameResult::Truncated;
    switch (p[0] >> 4) {
    case 4:
        return ipv4(p, n, out, fragment);
    case 6:
        return ipv6(p, n, out, fragment);
    default:
        return FrameResult::NotUdp;
    }
}

// The network layer behind an EtherType, skipping VLAN tags.
FrameResult by_ethertype(uint16_t type, const uint8_t *p, size_t off, size_t n, Payload &out,
                         IpFragment *fragment) {
    while (type == 0x8100 || type == 0x88A8 || type == 0x9100) {
        if (off + 4 > n) return FrameResult::Truncated;
        type = be16(p + off + 2);
        off += 4;
    }
    if (type == 0x0800 || type == 0x86DD) return ip(p + off, n - off, out, fragment);
    return FrameResult::NotUdp;
}

}  // namespace

bool linktype_supported(int linktype) {
    switch (linktype) {
    case kDltEn10mb:
    case kDltLinuxSll:
    case kDltLinuxSll2:
    case kDltRaw:
    case kLinktypeRaw:
    case kDltIpv4:
    case kDltIpv6:
    case kDltNull:
    case kDltLoop:
        return true;
    default:
        return false;
    }
}

FrameResult udp_payload(int linktype, const uint8_t *frame, size_t caplen, Payload &out, IpFragment *fragment) {
    out = Payload{};
    switch (linktype) {
    case kDltEn10mb:
        if (caplen < 14) return FrameResult::Truncated;
        return by_ethertype(be16(frame + 12), frame, 14, caplen, out, fragment);
    case kDltLinuxSll:
        if (caplen < 16) return FrameResult::Truncated;
        return by_ethertype(be16(frame + 14), frame, 16, caplen, out, fragment);
    case kDltLinuxSll2:
        if (caplen < 20) return FrameResult::Truncated;
        return by_ethertype(be16(frame), frame, 20, caplen, out, fragment);
    case kDltNull:
    case kDltLoop:
        // A 4-octet address family (host or network order, and its values
        // differ between systems): the IP version nibble tells enough.
        if (caplen < 4) return FrameResult::Truncated;
        return ip(frame + 4, caplen - 4, out, fragment);
    case kDltIpv4:
    case kDltIpv6:
    case kDltRaw:
    case kLinktypeRaw:
        return ip(frame, caplen, out, fragment);
    default:
        return FrameResult::NotUdp;
    }
}

FrameResult reassembled_udp(uint8_t version, uint8_t protocol, const uint8_t *data, size_t size, Payload &out) {
    out = Payload{};
    if (version == 6) return ipv6_transport(protocol, data, 0, size, out, nullptr, nullptr);
    if (protocol != 17) return FrameResult::NotUdp;
    return udp(data, size, out);
}

void set_payload_addresses(Payload &out, uint8_t family, const uint8_t *src, const uint8_t *dst) {
    const size_t n = family == 4 ? 4 : 16;
    out.src.family = out.dst.family = family;
    std::memcpy(out.src.octets, src, n);
    std::memcpy(out.dst.octets, dst, n);
}

}  // namespace kovrel_tool
