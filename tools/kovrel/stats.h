// Counts for `kovrel decode --stats`.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <tuple>

#include <kovrel/kovrel.h>

#include "input.h"

namespace kovrel_tool {

struct CategoryCounts {
    uint64_t blocks = 0;   // valid blocks
    uint64_t invalid = 0;  // bad blocks
    uint64_t records = 0;  // records of valid blocks
    uint64_t items = 0;
    uint64_t octets = 0;   // octets of all blocks, bad ones included
};

struct Stats {
    uint64_t inputs = 0;
    uint64_t unreadable = 0;  // inputs that could not be opened or read
    uint64_t blocks = 0;      // valid blocks
    uint64_t invalid = 0;     // bad blocks (and unusable octets at the end of a chunk)
    uint64_t records = 0;
    uint64_t items = 0;
    uint64_t octets = 0;
    CaptureStats capture;     // summed over the captures read
    bool any_capture = false;

    std::map<uint32_t, CategoryCounts> categories;
    std::map<std::string, uint64_t> profiles;                         // records per profile
    std::map<std::tuple<uint32_t, uint32_t, uint32_t>, uint64_t> sources;  // (cat, SAC, SIC) -> records
    std::map<std::pair<uint32_t, std::string>, uint64_t> message_types;    // (cat, type) -> records

    // A decoded block; its records are counted when it is valid.
    void count_block(const AstDataBlock &block, uint32_t category, size_t octets, bool valid);
    // A run of octets in which no block could be found.
    void count_unusable(int category, size_t octets);
    void add_capture(const CaptureStats &c);

    // Prints the counts, the time taken and the throughput.
    void print(std::FILE *out, double seconds) const;
};

}  // namespace kovrel_tool
