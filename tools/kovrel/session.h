// One run of `kovrel decode`: inputs in, records out, problems reported.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <kovrel/kovrel.h>

#include "decode.h"
#include "chunk_stream.h"
#include "filter.h"
#include "input.h"
#include "out_buffer.h"
#include "output.h"
#include "output_csv.h"
#include "stats.h"

namespace kovrel_tool {

class BlockRunner;
class HtmlPage;
class StreamSource;
class ParallelDecoder;

// How records are written (without a page).
enum class RecordFormat {
    Text,  // one line per record (see output.h)
    Json,  // JSON Lines
    Csv,   // a header row, then one row per record (see output_csv.h)
    None,  // nothing: the records are decoded and counted only
};

struct SessionSettings {
    const AstUap *uap = nullptr;  // nullptr: smart decoding
    RecordFormat format = RecordFormat::Text;
    bool items = false;           // text: one line per item as well
    std::vector<CsvColumn> columns;  // csv
    // Records that do not pass it are neither written nor counted per
    // source, type and profile (nullptr or empty: every record is kept).
    const RecordFilter *filter = nullptr;
    // Recorder framing of raw inputs and of UDP payloads (framing.h):
    // told by content when framing_auto, else `framing` throughout.
    bool framing_auto = true;
    Framing framing = Framing::None;
    // Keep reading files and pipes at their end, as they grow, until
    // SIGINT or SIGTERM.
    bool follow = false;
    // Threads that decode and format blocks; 1: all on the calling thread.
    // Several give the same output, byte for byte (see parallel.h).
    unsigned threads = 1;
    // Octets of blocks a decoding thread takes at a time (several threads).
    size_t batch_octets = 256 * 1024;
};

// Decodes inputs one after the other, writes the records to `out` and
// reports bad blocks and unreadable inputs on `messages`, each message one
// line "kovrel: INPUT: ...". Blocks are numbered from 1 in each input.
// Records are formatted into a buffer that goes out in large writes: when
// it is full, before each message, and when an input is done (after every
// record when `out` is a terminal). With settings.threads above 1 the
// blocks are decoded and formatted on that many threads and written in
// input order (see parallel.h): the output is the same, byte for byte.
// Each input is decoded as if it were the only one.
//
// A bad block is reported and the next one decoded: the next block starts
// LEN octets further when LEN is at least 3 and fits the chunk; otherwise
// the rest of the chunk is given up, with a message (the rest of the input
// for raw and hex inputs, the rest of the UDP payload for captures).
class DecodeSession {
public:
    DecodeSession(const SessionSettings &settings, std::FILE *out, std::FILE *messages);
    ~DecodeSession();
    DecodeSession(const DecodeSession &) = delete;
    DecodeSession &operator=(const DecodeSession &) = delete;

    // Reads a file ("-" is standard input). Regular files of raw blocks
    // are mapped; pipes, standard input, hexadecimal text and followed
    // files are decoded as they are read, in pieces. Returns false when it
    // cannot be opened or read at all.
    bool decode_file(const std::string &path);
    // Decodes octets held in memory, of any kind decode_file accepts.
    bool decode_memory(const std::string &name, const uint8_t *data, size_t size);

    // Live input (session_live.cpp): one more input for the counts, and one
    // datagram of it decoded as a chunk (write_out() then writes its records).
    // `blocks` is the input's running block number, kept by the caller as
    // inputs interleave. False once writing failed.
    void add_live_input(const CaptureStats &datagrams);
    bool decode_datagram(const std::string &name, const Chunk &chunk, uint64_t &blocks);
    // Writes the records decoded so far to out at once (after each batch of
    // datagrams received). False once writing failed.
    bool write_out();

    // Writes what follows to out: records as lines, or, with a page, the
    // records and the messages (these still go to `messages` as well) into
    // the page, which writes on out too. Records not written yet go to the
    // output they were made for first.
    void set_output(std::FILE *out, HtmlPage *page = nullptr);
    // Writes the records held so far (decoding an input ends with it, and
    // so does every message; call it before closing `out`).
    void flush();

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
    // Decodes what a descriptor delivers as it arrives (total: its size
    // when known, for progress; 0 otherwise). Closes fd unless it is 0.
    bool decode_stream(const std::string &name, int fd, uint64_t total = 0);
    // The same for an opened file (its descriptor is taken over, the FILE closed).
    bool decode_file_stream(const std::string &path, std::FILE *file, uint64_t total = 0);
    bool decode_capture(const std::string &name, std::FILE *file);
    void decode_octets(const std::string &name, InputKind kind, const uint8_t *data, size_t size);
    // Decodes the pieces a stream has ready. mapped: the stream's octets
    // are a mapped file, whose pages are given back as they are decoded.
    // packet: the UDP payload the stream cuts (its sender and destination
    // go with every piece).
    void decode_pieces(const std::string &name, ChunkStream &stream, const uint8_t *mapped = nullptr,
                       const Chunk *packet = nullptr);
    // Octets of raw input: the framing to read them with.
    Framing framing_of(const uint8_t *head, size_t size, bool at_end) const;
    // A UDP payload, plain or framed.
    bool decode_payload(const std::string &name, const Chunk &chunk);
    void stream_hex(const std::string &name, StreamSource &source);
    void stream_raw(const std::string &name, StreamSource &source);
    // Decodes the blocks of a chunk; the octets are not used after it
    // returns (decoding threads get a copy). The first chunk of an input
    // comes with block_no_ 0.
    bool decode_chunk(const std::string &name, const Chunk &chunk, bool whole_input);
    // Bit i set when record i of the block passes the filter. Called by
    // several decoding threads at once: it must not change shared state.
    uint64_t kept_records(const AstDataBlock &block) const;
    void flush_buffer();
    // Prints a message (message() first writes every block handed over).
    void print_message(const std::string &name, const std::string &text);
    // The same, reading the records through `keys` (started on the block)
    // for the counts to use again.
    uint64_t kept_records(const AstDataBlock &block, BlockKeys &keys) const;
    void record_written();
    void check_output();
    void message(const std::string &name, const std::string &text);
    void unreadable(const std::string &name, const std::string &why);

    SessionSettings settings_;
    std::FILE *out_;
    std::FILE *messages_;
    HtmlPage *page_ = nullptr;
    OutBuffer buffer_;
    bool terminal_ = false;  // out is a terminal: records go out one by one
    std::unique_ptr<BlockRunner> runner_;      // decodes on this thread
    std::unique_ptr<ParallelDecoder> parallel_;  // with several threads
    Stats stats_;
    uint64_t block_no_ = 0;
    uint64_t total_ = 0;  // octets of the current input, for progress
    bool read_first_ = true;  // the input was read before it is decoded (not mapped)
    bool output_failed_ = false;
    int output_errno_ = 0;
};

}  // namespace kovrel_tool
