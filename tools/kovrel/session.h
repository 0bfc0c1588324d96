// One run of `kovrel decode`: inputs in, records out, problems reported.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>

#include <kovrel/kovrel.h>

#include "decode.h"
#include "input.h"
#include "stats.h"

namespace kovrel_tool {

class HtmlPage;

struct SessionSettings {
    const AstUap *uap = nullptr;  // nullptr: smart decoding
    bool json = false;            // JSON Lines instead of text (without a page)
    bool items = false;           // text: one line per item as well
};

// Decodes inputs one after the other, writes the records to `out` and
// reports bad blocks and unreadable inputs on `messages`, each message one
// line "kovrel: INPUT: ...". Blocks are numbered from 1 in each input.
//
// A bad block is reported and the next one decoded: the next block starts
// LEN octets further when LEN is at least 3 and fits the chunk; otherwise
// the rest of the chunk is given up, with a message (the rest of the input
// for raw and hex inputs, the rest of the UDP payload for captures).
class DecodeSession {
public:
    DecodeSession(const SessionSettings &settings, std::FILE *out, std::FILE *messages);

    // Reads a file ("-" is standard input; pipes are read whole first).
    // Returns false when it cannot be opened or read at all.
    bool decode_file(const std::string &path);
    // Decodes octets held in memory, of any kind decode_file accepts.
    bool decode_memory(const std::string &name, const uint8_t *data, size_t size);

    // Writes what follows to out: records as lines, or, with a page, the
    // records and the messages (these still go to `messages` as well) into
    // the page, which writes on out too.
    void set_output(std::FILE *out, HtmlPage *page = nullptr);

    const Stats &stats() const { return stats_; }
    // True once writing a record failed (a closed pipe, a full disk): the
    // session then stops decoding.
    bool output_failed() const { return output_failed_; }
    // errno of the failed write (EPIPE when the reader went away).
    int output_errno() const { return output_errno_; }

    // Progress hooks: a new input of `total` octets (0 if unknown), octets
    // of it done, and a message about to be printed.
    std::function<void(const std::string &name, uint64_t total)> on_start;
    std::function<void(uint64_t done)> on_progress;
    std::function<void()> before_message;

private:
    bool decode_stream(const std::string &name, std::FILE *file);
    bool decode_capture(const std::string &name, std::FILE *file);
    void decode_octets(const std::string &name, InputKind kind, const uint8_t *data, size_t size);
    bool decode_chunk(const std::string &name, const Chunk &chunk, bool whole_input);
    void emit(const std::string &name, uint64_t block, const Chunk &chunk, const Location &where,
              const BlockOutcome &outcome);
    void write_line(const std::string &line);
    void check_output();
    void message(const std::string &name, const std::string &text);
    void unreadable(const std::string &name, const std::string &why);

    SessionSettings settings_;
    std::FILE *out_;
    std::FILE *messages_;
    HtmlPage *page_ = nullptr;
    BlockDecoder decoder_;
    Stats stats_;
    uint64_t block_no_ = 0;
    uint64_t total_ = 0;  // octets of the current input, for progress
    bool output_failed_ = false;
    int output_errno_ = 0;
};

}  // namespace kovrel_tool
