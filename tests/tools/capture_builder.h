// Test helper: small captures and data blocks composed octet by octet.
#pragma once

#include <cstdint>
#include <cstdio>
#include <vector>

namespace kovrel_tool_test {

using Octets = std::vector<uint8_t>;

inline void put16(Octets &o, uint32_t v) {
    o.push_back(static_cast<uint8_t>(v >> 8));
    o.push_back(static_cast<uint8_t>(v));
}

inline void put32(Octets &o, uint32_t v, bool big_endian) {
    for (int i = 0; i < 4; ++i) {
        const int shift = big_endian ? 24 - 8 * i : 8 * i;
        o.push_back(static_cast<uint8_t>(v >> shift));
    }
}

inline void put16e(Octets &o, uint32_t v, bool big_endian) {
    if (big_endian) {
        put16(o, v);
    } else {
        o.push_back(static_cast<uint8_t>(v));
        o.push_back(static_cast<uint8_t>(v >> 8));
    }
}

inline Octets concat(std::initializer_list<Octets> parts) {
    Octets o;
    for (const auto &p : parts) o.insert(o.end(), p.begin(), p.end());
    return o;
}

// A CAT048 block of records holding I048/010 alone (FSPEC 80, SAC, SIC).
// Frames around blocks, as recorders write them: ORADIS (length counting the
// 6-octet header, then a time stamp in ms), FINAL (length counting header and
// trailer, board, line, day, time of day in 10 ms; trailer A5 x 4) and the
// plain 2-octet length.
inline Octets oradis(const Octets &blocks, uint32_t ms) {
    Octets o;
    put16(o, static_cast<uint32_t>(blocks.size() + 6));
    put32(o, ms, true);
    return concat({o, blocks});
}

inline Octets final_frame(const Octets &blocks, uint8_t day, uint32_t tod10ms, uint8_t board = 1, uint8_t line = 2) {
    Octets o;
    put16(o, static_cast<uint32_t>(blocks.size() + 12));
    o.insert(o.end(), {board, line, day, static_cast<uint8_t>(tod10ms >> 16), static_cast<uint8_t>(tod10ms >> 8),
                       static_cast<uint8_t>(tod10ms)});
    return concat({o, blocks, {0xA5, 0xA5, 0xA5, 0xA5}});
}

inline Octets length_frame(const Octets &blocks) {
    Octets o;
    put16(o, static_cast<uint32_t>(blocks.size()));
    return concat({o, blocks});
}

inline Octets sacsic_block(uint8_t sic, size_t records = 1) {
    Octets b = {48, 0, 0};
    for (size_t i = 0; i < records; ++i) {
        b.push_back(0x80);
        b.push_back(25);
        b.push_back(sic);
    }
    b[1] = static_cast<uint8_t>(b.size() >> 8);
    b[2] = static_cast<uint8_t>(b.size());
    return b;
}

inline Octets udp(const Octets &payload, uint16_t src_port = 4000, uint16_t dst_port = 8600) {
    Octets o;
    put16(o, src_port);
    put16(o, dst_port);
    put16(o, static_cast<uint32_t>(8 + payload.size()));
    put16(o, 0);
    o.insert(o.end(), payload.begin(), payload.end());
    return o;
}

// An IPv4 header around a transport payload; fragment is the flags and
// offset word (0x4000: don't fragment).
inline Octets ipv4(const Octets &transport, uint8_t protocol = 17, uint16_t fragment = 0x4000) {
    Octets o = {0x45, 0x00};
    put16(o, static_cast<uint32_t>(20 + transport.size()));
    put16(o, 0x1234);
    put16(o, fragment);
    o.push_back(64);
    o.push_back(protocol);
    put16(o, 0);
    for (uint8_t a : {10, 0, 0, 1, 239, 1, 1, 1}) o.push_back(a);
    o.insert(o.end(), transport.begin(), transport.end());
    return o;
}

// An IPv6 header; `headers` are extension headers already laid out, the
// first of type next_header.
inline Octets ipv6(const Octets &rest, uint8_t next_header = 17) {
    Octets o = {0x60, 0x00, 0x00, 0x00};
    put16(o, static_cast<uint32_t>(rest.size()));
    o.push_back(next_header);
    o.push_back(64);
    for (int i = 0; i < 32; ++i) o.push_back(static_cast<uint8_t>(i == 15 || i == 31 ? 1 : 0));
    o.insert(o.end(), rest.begin(), rest.end());
    return o;
}

inline Octets ethernet(uint16_t type, const Octets &network, std::initializer_list<uint16_t> vlan_tpids = {}) {
    Octets o = {0x01, 0x00, 0x5E, 0x01, 0x01, 0x01, 0x02, 0x00, 0x00, 0x00, 0x00, 0x01};
    for (uint16_t tpid : vlan_tpids) {
        put16(o, tpid);
        put16(o, 0x0064);  // VLAN 100
    }
    put16(o, type);
    o.insert(o.end(), network.begin(), network.end());
    return o;
}

inline Octets pcap_file(uint32_t linktype, const std::vector<Octets> &frames, bool big_endian = false,
                        bool nano = false) {
    Octets o;
    put32(o, nano ? 0xA1B23C4D : 0xA1B2C3D4, big_endian);
    put16e(o, 2, big_endian);
    put16e(o, 4, big_endian);
    put32(o, 0, big_endian);
    put32(o, 0, big_endian);
    put32(o, 65535, big_endian);
    put32(o, linktype, big_endian);
    uint32_t sec = 1715680800;
    for (const auto &f : frames) {
        put32(o, sec++, big_endian);
        put32(o, 500, big_endian);
        put32(o, static_cast<uint32_t>(f.size()), big_endian);
        put32(o, static_cast<uint32_t>(f.size()), big_endian);
        o.insert(o.end(), f.begin(), f.end());
    }
    return o;
}

// pcapng: section header, one interface, one enhanced packet block per frame.
inline Octets pcapng_file(uint16_t linktype, const std::vector<Octets> &frames) {
    Octets o;
    auto block = [&o](uint32_t type, const Octets &body) {
        const uint32_t total = static_cast<uint32_t>(12 + body.size());
        put32(o, type, false);
        put32(o, total, false);
        o.insert(o.end(), body.begin(), body.end());
        put32(o, total, false);
    };
    Octets shb;
    put32(shb, 0x1A2B3C4D, false);
    put16e(shb, 1, false);
    put16e(shb, 0, false);
    for (int i = 0; i < 8; ++i) shb.push_back(0xFF);  // section length unknown
    block(0x0A0D0D0A, shb);
    Octets idb;
    put16e(idb, linktype, false);
    put16e(idb, 0, false);
    put32(idb, 65535, false);
    block(0x00000001, idb);
    for (const auto &f : frames) {
        Octets epb;
        put32(epb, 0, false);  // interface
        put32(epb, 0, false);  // time high
        put32(epb, 0, false);  // time low
        put32(epb, static_cast<uint32_t>(f.size()), false);
        put32(epb, static_cast<uint32_t>(f.size()), false);
        epb.insert(epb.end(), f.begin(), f.end());
        while (epb.size() % 4) epb.push_back(0);
        block(0x00000006, epb);
    }
    return o;
}

// A temporary file holding the octets, positioned at its start.
inline std::FILE *temp_file(const Octets &o) {
    std::FILE *f = std::tmpfile();
    if (!f) return nullptr;
    std::fwrite(o.data(), 1, o.size(), f);
    std::rewind(f);
    return f;
}

}  // namespace kovrel_tool_test
