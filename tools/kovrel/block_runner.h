// One block of `kovrel decode`, from its octets to its records written:
// decoded, counted, its records formatted, its problems told. A session
// decoding on one thread has one; each decoding thread has its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <kovrel/kovrel.h>

#include "blocks.h"
#include "decode.h"
#include "out_buffer.h"
#include "output.h"
#include "output_csv.h"
#include "record_keys.h"
#include "stats.h"
#include "video_memory.h"

namespace kovrel_tool {

struct SessionSettings;

// A block as cut from its chunk.
struct BlockTask {
    uint64_t number = 0;  // from 1 in its input
    BlockSlice slice;
    double time = 0;      // of the chunk (captures)
    NetAddress src, dst;  // of the chunk's datagram (captures, live input)
    bool received = false;  // live input: time is the receive time
    uint64_t rest = 0;    // octets of the chunk from the block on
};

// The VideoItems that an output with these settings decodes.
unsigned video_items_decoded(const SessionSettings &settings);

class BlockRunner {
public:
    // Records are written into `out` as the settings say (the CSV header is
    // not: the session writes it once).
    BlockRunner(const SessionSettings &settings, OutBuffer &out);
    ~BlockRunner();
    BlockRunner(const BlockRunner &) = delete;
    BlockRunner &operator=(const BlockRunner &) = delete;

    // Decodes one block of input `name` and counts it in `stats`.
    void run(std::string_view name, const BlockTask &task, Stats &stats);

    BlockDecoder &decoder() { return decoder_; }
    // The video state the records written so far left on this thread.
    VideoMemory video;

    // Bit i set when record i of the block passes the filter.
    std::function<uint64_t(const AstDataBlock &, BlockKeys &)> kept_records;
    // A problem with a block ("block 3 at @120 (CAT048, LEN 30): ...").
    std::function<void(const std::string &text)> on_message;
    // Set: records go here instead of being formatted; returns false once
    // writing failed.
    std::function<bool(const RecordView &)> on_record;
    // After each record formatted; returns false once writing failed.
    std::function<bool()> after_record;

private:
    void emit(std::string_view name, const BlockTask &task, const BlockOutcome &outcome, uint64_t kept,
              Stats &stats);

    const SessionSettings &settings_;
    OutBuffer &out_;
    RecordFormatter formatter_;
    std::unique_ptr<CsvWriter> csv_;
    BlockDecoder decoder_;
    unsigned video_items_;
    BlockKeys keys_;  // of the block being run (kept here: 64 records' worth)
};

}  // namespace kovrel_tool
