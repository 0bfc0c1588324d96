// One run of `kovrel convert`: CAT048 records become CAT001 records and
// CAT034 records CAT002 records; other categories pass unchanged (or are
// dropped). Captures give a capture, any other input raw blocks.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <kovrel/kovrel.h>

#include "blocks.h"
#include "decode.h"
#include "input.h"
#include "pcap_writer.h"

namespace kovrel_tool {

struct ConvertCounts {
    uint64_t inputs = 0;
    uint64_t unreadable = 0;     // inputs that could not be opened or read
    uint64_t converted_001 = 0;  // CAT048 records written as CAT001
    uint64_t converted_002 = 0;  // CAT034 records written as CAT002
    uint64_t passed = 0;         // records of other categories written unchanged
    uint64_t dropped = 0;        // records of other categories left out
    uint64_t failed = 0;         // CAT048 / CAT034 records reported and left out
    uint64_t blocks_read = 0;
    uint64_t blocks_written = 0;
    uint64_t packets_read = 0;     // UDP packets of captures
    uint64_t packets_written = 0;  // pcap output
    uint64_t skipped = 0;          // packets or inputs that do not fit the output (reported)

    uint64_t converted() const { return converted_001 + converted_002; }
};

// The counts as the lines `kovrel convert --stats` prints.
std::string stats_text(const ConvertCounts &counts, bool capture_output);

// Converts the data blocks of one run of octets (a raw input, or one UDP
// payload) and appends the blocks to write to `out`:
//  - a CAT048 block gives one CAT001 block of its records, a CAT034 block
//    one CAT002 block (the records of a block stay together; a CAT001
//    block may hold plots and tracks, each with its own FSPEC);
//  - a block of any other category is copied unchanged, or dropped;
//  - a record that cannot be converted is reported, "kovrel: NAME: block 3
//    at pkt 12+40, record 2 (CAT048): not converted: ...", and left out;
//    so is the rest of a CAT048 / CAT034 block that cannot be read;
//  - octets after a block whose LEN is unusable are reported and dropped.
// Blocks are numbered from 1 within each input (start_input).
class BlockConverter {
public:
    BlockConverter(bool drop_others, std::FILE *messages);
    ~BlockConverter();
    BlockConverter(const BlockConverter &) = delete;
    BlockConverter &operator=(const BlockConverter &) = delete;

    void start_input() { block_no_ = 0; }
    void convert(const std::string &name, const Chunk &chunk, std::vector<uint8_t> &out);

    ConvertCounts &counts() { return counts_; }
    // Prints "kovrel: NAME: text" on the messages stream.
    void message(const std::string &name, const std::string &text);

private:
    void convert_records(const std::string &name, const std::string &at, const BlockSlice &slice,
                         const BlockOutcome &outcome, std::vector<uint8_t> &out);
    bool convert_record(const AstDataRecord &record, std::string &why);
    bool to_001(std::string &why);
    bool to_002(std::string &why);

    bool drop_others_;
    std::FILE *messages_;
    BlockDecoder decoder_;
    ConvertCounts counts_;
    uint64_t block_no_ = 0;
    std::unique_ptr<AstRecord048> r048_;
    std::unique_ptr<AstRecord034> r034_;
    std::vector<uint8_t> record_;  // the converted record
    size_t record_size_ = 0;
};

struct ConvertSettings {
    bool drop_others = false;
};

// Converts inputs one after the other into one output. The first input
// that can be read decides its kind: a pcap or pcapng capture makes a pcap
// output (nanosecond time stamps, the link type of that capture), in which
// each UDP packet of the inputs keeps its time stamp and headers and gets
// the converted payload (packets left without a payload are not written;
// packets that are not UDP and packets cut short are not written either;
// a datagram put together from IP fragments is written whole, as one
// packet at its last fragment); any other input makes raw blocks written
// back to back.
// Into a pcap output a raw or hex input, or a capture of another link type,
// cannot go: it is reported and skipped. Into raw output the UDP payloads
// of a capture go as blocks.
class ConvertSession {
public:
    ConvertSession(const ConvertSettings &settings, std::FILE *out, std::FILE *messages);
    ~ConvertSession();
    ConvertSession(const ConvertSession &) = delete;
    ConvertSession &operator=(const ConvertSession &) = delete;

    // "-" is standard input. False when it cannot be opened or read at all.
    bool convert_file(const std::string &path);
    bool convert_memory(const std::string &name, const uint8_t *data, size_t size);

    const ConvertCounts &counts() { return converter_.counts(); }
    bool capture_output() const { return kind_ == Output::Pcap; }
    bool output_failed() const { return output_failed_; }
    int output_errno() const { return output_errno_; }

private:
    enum class Output { Unset, Pcap, Raw };

    bool convert_octets(const std::string &name, const uint8_t *data, size_t size);
    bool convert_capture(const std::string &name, std::FILE *file);
    void write_raw(const std::vector<uint8_t> &blocks);
    void failed_write();
    void unreadable(const std::string &name, const std::string &why);

    std::FILE *out_;
    BlockConverter converter_;
    PcapWriter pcap_;
    Output kind_ = Output::Unset;
    std::vector<uint8_t> blocks_;
    std::vector<uint8_t> frame_;
    bool output_failed_ = false;
    int output_errno_ = 0;
};

}  // namespace kovrel_tool
