// One run of `kovrel encode`: JSON Lines in, data blocks out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace kovrel_tool {

struct EncodeCounts {
    uint64_t lines = 0;    // lines read, blank ones included
    uint64_t records = 0;  // records written
    uint64_t blocks = 0;   // blocks written
    uint64_t bad = 0;      // lines reported and skipped
    bool output_failed = false;
    int output_errno = 0;
};

// Reads one JSON object per line from `in` (blank lines are skipped; see
// encode_json.h for the objects) and writes the records as data blocks to
// `out`. A record is its FSPEC and its items in the profile's FRN order.
// Consecutive records of one category share a block of at most
// `block_records` records (1 to 64) and 65535 octets, whatever their
// profiles; a block is written when it is full, when the category changes
// and at the end. A line that is not a record is reported on `messages` as
// "kovrel: NAME:LINE: reason" ("kovrel: in:3: I048/040.rho: value out of
// range") and skipped. Stops when writing fails.
EncodeCounts encode_lines(std::FILE *in, const std::string &name, std::FILE *out, std::FILE *messages,
                          size_t block_records = 64);

}  // namespace kovrel_tool
