// Decoding blocks on several threads with output that a single thread
// would have written, byte for byte.
//
// The session hands blocks over in input order; they are gathered into
// batches (batch_octets of block octets or a little more, copied: the reader may reuse
// its buffer) and each batch is decoded, counted and formatted by one of
// the decoding threads into its own text, messages and counts. Batches are
// written strictly in order, on the session's thread, messages where a
// single thread would have printed them.
//
// What one block leaves for the next (the profile smart decoding tries
// first, the video state of CAT240) is carried from batch to batch: a batch
// starts from what the batches before it had left when it was handed over,
// and records what it leaves itself. When its start turns out to differ
// from what the batch before it really left (a profile changed in a batch
// still being decoded), it is decoded again on the session's thread from
// the right start. Profiles rarely change, so this is rare.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "block_runner.h"
#include "out_buffer.h"

namespace kovrel_tool {

struct SessionSettings;

// Where written batches go (all called on the session's thread).
struct BatchWriter {
    std::function<void(std::string_view records)> write;
    std::function<void(const std::string &input, const std::string &text)> message;
    std::function<void(const Stats &counts)> count;
};

class ParallelDecoder {
public:
    // `threads` decoding threads (at least 1) start at once.
    ParallelDecoder(const SessionSettings &settings, unsigned threads, BatchWriter writer,
                    std::function<uint64_t(const AstDataBlock &, BlockKeys &)> kept_records);
    ~ParallelDecoder();
    ParallelDecoder(const ParallelDecoder &) = delete;
    ParallelDecoder &operator=(const ParallelDecoder &) = delete;

    // Adds a block of input `name`; `fresh` when it is the input's first (it
    // then starts as if nothing had been decoded before). Its octets are
    // copied. May write finished batches.
    void add(const std::string &name, const BlockTask &task, bool fresh);
    // Hands over the blocks added and writes every batch; returns when all
    // are written.
    void drain();

private:
    struct Start {
        const AstUap *profile = &AST_UAP_STANDARD;  // what smart decoding tries first
        VideoMemory video;
        bool operator==(const Start &other) const = default;
    };
    struct Batch {
        std::string name;
        std::vector<uint8_t> octets;
        std::vector<BlockTask> tasks;  // slice.data set when decoded
        std::vector<size_t> offsets;   // of each task's octets in octets
        Start start, end;
        bool fresh = false;
        OutBuffer out{nullptr, 0};
        std::vector<std::pair<size_t, std::string>> messages;  // at which character of out
        std::unique_ptr<Stats> stats;
        bool done = false;
    };
    struct Worker;

    void submit();
    void work(Worker &worker);
    void decode(Worker &worker, Batch &batch);
    // Writes the finished batches at the front; waits for the front one
    // while more than `in_flight` batches are out.
    void write_ready(size_t in_flight);

    const SessionSettings &settings_;
    BatchWriter writer_;
    std::function<uint64_t(const AstDataBlock &, BlockKeys &)> kept_records_;
    std::unique_ptr<Batch> filling_;
    size_t limit_;
    std::mutex mutex_;
    std::condition_variable work_ready_, batch_done_;
    std::deque<Batch *> queue_;                  // to decode
    std::deque<std::unique_ptr<Batch>> order_;   // handed over, not written, in input order
    bool stopping_ = false;
    std::vector<std::unique_ptr<Worker>> workers_;
    std::unique_ptr<Worker> own_;  // decodes again on the session's thread
    Start written_;                // what the last written batch left
};

}  // namespace kovrel_tool
