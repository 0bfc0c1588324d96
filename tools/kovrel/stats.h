// Counts for `kovrel decode --stats`.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include <kovrel/kovrel.h>

#include "fields.h"
#include "input.h"
#include "output.h"
#include "record_keys.h"

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

    // Records filtered (--filter, --cat, --time): when `filtered`, `matched`
    // counts the records of valid blocks that the filter kept, and only
    // those are counted per profile, source and message type.
    bool filtered = false;
    uint64_t matched = 0;
    // Records written out (in every format, the records bad blocks stopped
    // at included; none when the records are only counted).
    uint64_t printed = 0;

    std::map<uint32_t, CategoryCounts> categories;
    // Bad blocks per reason, with the numbers of each case left out
    // ("record N at octet N: after I048/010, I048/130 (FRN N) cannot be
    // delimited in the N octets left").
    std::map<std::string, uint64_t> invalid_reasons;

    // A decoded block; its records are counted when it is valid. Bit i of
    // `kept` tells whether record i passed the filter (records 64 and on are
    // never filtered out). `keys`, when given, holds what the filter read
    // of the block's records (started on the block), and the counts read
    // the rest through it.
    void count_block(const AstDataBlock &block, uint32_t category, size_t octets, bool valid,
                     uint64_t kept = ~uint64_t{0}, BlockKeys *keys = nullptr);
    // A run of octets in which no block could be found.
    void count_unusable(int category, size_t octets);
    // Why a block was bad (counted in invalid_reasons).
    void count_reason(const std::string &reason);
    void add_capture(const CaptureStats &c);
    // Adds the block and record counts of `other` (counted over other
    // blocks of the same run; its inputs and captures are not added).
    void merge(const Stats &other);

    // Records per source with the earliest and latest time of day met
    // (milliseconds of the day; has_time false when no record of the
    // source told its time).
    struct SourceSpan {
        uint64_t records = 0;
        bool has_time = false;
        uint32_t first_ms = 0, last_ms = 0;
    };

    // Records per profile name, per (category, SAC, SIC) and per
    // (category, message type name, or its number when it has none).
    std::map<std::string, uint64_t> profiles() const;
    std::map<std::tuple<uint32_t, uint32_t, uint32_t>, uint64_t> sources() const;
    std::map<std::tuple<uint32_t, uint32_t, uint32_t>, SourceSpan> source_spans() const;
    std::map<std::pair<uint32_t, std::string>, uint64_t> message_types() const;

    // Prints the counts, the time taken and the throughput.
    void print(std::FILE *out, double seconds) const;
    // The same as one JSON object on one line.
    void print_json(std::FILE *out, double seconds) const;

private:
    // Counted per record: keyed by what is at hand (the label's pointer, the
    // numbers), with the last key kept, as records of one source come in
    // runs; turned into names only when asked.
    struct Key {
        uint32_t a = 0, b = 0, c = 0;
        bool operator==(const Key &o) const { return a == o.a && b == o.b && c == o.c; }
    };
    struct KeyHash {
        size_t operator()(const Key &k) const {
            return (static_cast<size_t>(k.a) * 0x9E3779B97F4A7C15ull) ^ (static_cast<size_t>(k.b) << 21) ^ k.c;
        }
    };
    struct Tally {
        Tally() = default;
        // A copy starts without a last key: it points into its own counts.
        Tally(const Tally &o) : counts(o.counts) {}
        Tally &operator=(const Tally &o) {
            counts = o.counts;
            last_count = nullptr;
            return *this;
        }

        std::unordered_map<Key, uint64_t, KeyHash> counts;
        Key last{};
        uint64_t *last_count = nullptr;
        void add(const Key &k) {
            if (!last_count || !(k == last)) {
                last = k;
                last_count = &counts[k];
            }
            ++*last_count;
        }
    };

    // Sources keep their time span beside the count.
    struct SourceTally {
        SourceTally() = default;
        SourceTally(const SourceTally &o) : spans(o.spans) {}
        SourceTally &operator=(const SourceTally &o) {
            spans = o.spans;
            last_span = nullptr;
            return *this;
        }

        std::unordered_map<Key, SourceSpan, KeyHash> spans;
        Key last{};
        SourceSpan *last_span = nullptr;
        void add(const Key &k, bool has_time, uint32_t ms) {
            if (!last_span || !(k == last)) {
                last = k;
                last_span = &spans[k];
            }
            SourceSpan &s = *last_span;
            ++s.records;
            if (!has_time) return;
            if (!s.has_time || ms < s.first_ms) s.first_ms = ms;
            if (!s.has_time || ms > s.last_ms) s.last_ms = ms;
            s.has_time = true;
        }
    };

    std::vector<const char *> labels_;  // profile labels met, indexed by the `a` of label_counts_
    Tally label_counts_, type_counts_;
    SourceTally source_counts_;
    ProfileLabels label_;
    RecordFieldReader reader_;  // for records counted without keys
};

}  // namespace kovrel_tool
