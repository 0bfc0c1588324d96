// Cutting octets that arrive in pieces (a pipe, a growing file) or lie in
// memory (a mapped file, a UDP payload) into chunks for decoding: whole
// data blocks for plain inputs, the blocks of one frame for recorder
// framings (framing.h). No I/O: the reader hands the octets in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "framing.h"
#include "input.h"

namespace kovrel_tool {

// What comes out of a ChunkStream.
struct Piece {
    enum class Kind {
        Blocks,   // chunk: octets to decode (blocks back to back)
        Skipped,  // octets given up: `skipped` octets at `where`, for `why`
    };
    Kind kind = Kind::Blocks;
    Chunk chunk;
    Location where;  // Skipped: the first octet given up
    uint64_t skipped = 0;
    std::string why;
};

// Locations of what comes out:
//   plain, streamed or whole   "@N", N the octet offset in the input;
//   framed input with a time   "pkt F+N": frame F (from 1), octet N of the
//   stamp (oradis, final)      frame (N is the header size for its first
//                              block); the chunk's time is the frame's;
//   framed input without       "@N" as plain inputs;
//   inside a packet            "pkt P+N": octet N of the packet's payload.
// Skipped octets of a framed input are located "@N" in the input.
class ChunkStream {
public:
    // Octets arriving in pieces: append them, take the pieces, and call
    // finish() at the end of the input.
    explicit ChunkStream(Framing framing);
    // Octets all in memory (kept by the caller while the stream is used);
    // packet != 0 locates the pieces in that packet, with its time.
    ChunkStream(Framing framing, const uint8_t *data, size_t size, uint64_t packet = 0, double time = 0);

    // Adds octets read. Pieces taken before are no longer valid.
    void append(const uint8_t *data, size_t size);
    // The input has ended: what is left comes out too (a cut block as it
    // is, for the decoder to report; a cut frame as skipped).
    void finish();
    // The next piece; false when more octets are needed (or, after
    // finish(), when everything came out).
    bool next(Piece &piece);

    // Plain blocks: hand on at most about this many octets a chunk (whole
    // blocks still; one block may exceed it).
    void limit_chunks(size_t octets) { max_chunk_ = octets ? octets : SIZE_MAX; }

    // Octets handed on (or skipped) so far, counted from the first octet
    // held: for octets in memory, the offset of the next piece.
    size_t position() const { return pos_; }

    // Octets taken in so far.
    uint64_t received() const { return base_ + size_; }
    // Octets held while waiting for the rest of a block or frame.
    size_t held() const { return size_ - pos_; }

private:
    const uint8_t *data() const { return owned_.empty() ? view_ : owned_.data(); }
    bool next_plain(Piece &piece);
    bool next_framed(Piece &piece);
    Location here(size_t pos) const;
    void skip(Piece &piece, size_t count, std::string why);

    Framing framing_;
    std::vector<uint8_t> owned_;  // streamed octets not yet handed on
    const uint8_t *view_ = nullptr;
    size_t size_ = 0;   // octets in owned_ or view_
    size_t pos_ = 0;    // first octet not handed on yet
    uint64_t base_ = 0; // input offset of owned_[0]
    uint64_t packet_ = 0;
    double time_ = 0;
    uint64_t frames_ = 0;
    size_t max_chunk_ = SIZE_MAX;
    bool finished_ = false;
    bool lost_ = false;    // plain: a LEN below 3 left the next block unknown
    uint64_t lost_octets_ = 0;  // octets received after that
    bool strict_ = false;  // framed: looking for the next frame after bad octets
};

}  // namespace kovrel_tool
