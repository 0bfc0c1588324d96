// The UDP payloads of the sample recording that the benchmarks run over
// (classic pcap, Ethernet, IPv4, UDP as tools/samplegen writes them).
#pragma once

#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <vector>

#include "kovrel/kovrel.h"

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

// The sample's records of one category, smart-decoded; they point into
// datagrams kept for the life of the program.
inline const std::vector<AstDataRecord> &sample_records(uint32_t category) {
    static const auto datagrams = sample_datagrams();
    static const auto by_category = [] {
        std::map<uint32_t, std::vector<AstDataRecord>> out;
        auto block = std::make_unique<AstDataBlock>();
        for (const auto &d : datagrams) {
            for (size_t p = 0; p + 3 <= d.size(); p += block->length) {
                ast_datablock_smart_decode_into(block.get(), d.data() + p, d.size() - p);
                if (block->valid != 1) break;
                auto &to = out[block->category];
                to.insert(to.end(), block->records, block->records + block->record_count);
            }
        }
        return out;
    }();
    static const std::vector<AstDataRecord> none;
    const auto it = by_category.find(category);
    return it == by_category.end() ? none : it->second;
}

}  // namespace kovrel_bench
