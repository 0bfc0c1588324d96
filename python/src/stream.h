// Records of one input, read a block at a time on demand.
//
// The tool's decode session pushes every record of an input through its
// formatter in one go; Python wants to pull them (a generator that stops
// whenever its consumer does, with memory bounded by one block). A
// RecordStream reads the same inputs the same way (pcap and pcapng through
// libpcap with IP fragments put back together, raw blocks mapped from
// disk, hexadecimal text, recorder framings around the blocks of a file or
// of a UDP payload), numbers blocks and reports bad ones with the tool's
// wording, but hands the records of one block to a sink per call of
// next_block().
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <kovrel/kovrel.h>

#include "blocks.h"
#include "capture_reader.h"
#include "chunk_stream.h"
#include "decode.h"
#include "filter.h"
#include "framing.h"
#include "input.h"
#include "output.h"

namespace kovrel_py {

// Receives the records of a block, in order, the record a bad block stopped
// at last. The view is good during the call only.
class RecordSink {
public:
    virtual ~RecordSink() = default;
    virtual void record(const kovrel_tool::RecordView &view) = 0;
};

class RecordStream {
public:
    // uap nullptr: smart decoding, as `--uap auto`.
    explicit RecordStream(const AstUap *uap);
    ~RecordStream();
    RecordStream(const RecordStream &) = delete;
    RecordStream &operator=(const RecordStream &) = delete;

    // Opens a file. False, with the reason in error, when it cannot be
    // opened or read at all.
    bool open_path(const std::string &path, std::string &error);
    // Opens a descriptor (taken over and closed), read from `position` on.
    bool open_fd(const std::string &name, int fd, uint64_t position, std::string &error);
    // Reads octets the caller keeps alive until the stream is closed.
    bool open_memory(const std::string &name, const uint8_t *data, size_t size, std::string &error);

    // Keeps only the records that match (the tool's --filter KEYWORD=VALUE,
    // all must match). False, with the reason and the keywords in error,
    // when the text cannot be a filter.
    bool add_filter(const std::string &text, std::string &error) { return filter_.add_condition(text, error); }

    // The recorder framing of the inputs opened from now on (the tool's
    // --framing): "auto" tells it from the octets of each file and each UDP
    // payload, "none", "oradis", "final" or "length" holds throughout.
    // False for any other name.
    bool set_framing(const std::string &name);

    // Decodes the next block and gives its records to sink. False when the
    // input has no block left.
    bool next_block(RecordSink &sink);

    // Problems met since the last call, each "NAME: text" as the tool
    // reports them (without its "kovrel: " prefix).
    std::vector<std::string> take_messages();

    uint64_t blocks() const { return block_no_; }
    // Octets of a raw or hexadecimal input, and those of them decoded so
    // far; both 0 for captures (their payloads are not known ahead).
    uint64_t octets_total() const { return capturing_ ? 0 : octets_size_; }
    uint64_t octets_done() const;

private:
    kovrel_tool::RecordFilter filter_;
    bool open_file(const std::string &name, std::FILE *file, uint64_t position, std::string &error);
    bool open_capture(std::FILE *file, std::string &error);
    void start_octets(kovrel_tool::InputKind kind, const uint8_t *data, size_t size);
    kovrel_tool::Framing framing_of(const uint8_t *data, size_t size, bool at_end, bool payload) const;
    bool next_chunk();
    bool next_piece();
    void finish_capture();
    void message(const std::string &text);
    void close();
    void release_behind();

    kovrel_tool::BlockDecoder decoder_;
    std::string name_;
    std::vector<std::string> messages_;

    // The input's octets (raw and hex inputs): mapped, owned or borrowed.
    void *map_ = nullptr;
    size_t map_size_ = 0;
    size_t released_ = 0;  // octets from the start of the map given back
    std::vector<uint8_t> owned_;

    bool framing_auto_ = true;
    kovrel_tool::Framing framing_ = kovrel_tool::Framing::None;
    // The octets of a file or of a UDP payload, cut into chunks of blocks.
    std::unique_ptr<kovrel_tool::ChunkStream> pieces_;
    const uint8_t *octets_ = nullptr;  // a file's octets (not for captures)
    size_t octets_size_ = 0;

    // Captures.
    kovrel_tool::CaptureReader capture_;
    bool capturing_ = false;
    kovrel_tool::Chunk payload_;  // the UDP payload being read

    kovrel_tool::Chunk chunk_;
    size_t pos_ = 0;          // next block's offset in the chunk
    bool chunk_left_ = false;  // the chunk has octets not cut into blocks yet
    uint64_t block_no_ = 0;
};

}  // namespace kovrel_py
