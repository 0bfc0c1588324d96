// The UDP payloads of the sample recording that the benchmarks run over
// (classic pcap, Ethernet, IPv4, UDP as tools/samplegen writes them).
#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "sample.h"

namespace kovrel_bench {

inline std::vector<std::vector<uint8_t>> sample_datagrams() {
    std::vector<std::vector<uint8_t>> out;
    const uint8_t *p = kovrel_tool::kSamplePcap;
    const size_t n = kovrel_tool::kSamplePcapSize;
    size_t pos = 24;
    while (pos + 16 <= n) {
        uint32_t caplen;
        std::memcpy(&caplen, p + pos + 8, 4);  // little-endian writer, little-endian host
        pos += 16;
        if (caplen > n - pos) break;
        const uint8_t *frame = p + pos;
        if (caplen > 14 + 20 + 8) {
            const size_t ihl = static_cast<size_t>(frame[14] & 0x0F) * 4;
            const size_t start = 14 + ihl + 8;
            if (start < caplen) out.emplace_back(frame + start, frame + caplen);
        }
        pos += caplen;
    }
    return out;
}

}  // namespace kovrel_bench
