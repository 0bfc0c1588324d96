// Cutting arriving octets into whole blocks and frames.
#include "chunk_stream.h"

#include <cstring>

namespace kovrel_tool {
namespace {

constexpr size_t kBlockHeader = 3;
// Octets held at most while looking for a good frame after bad octets
// (a frame is at most 64 KiB).
constexpr size_t kResyncWindow = 256 * 1024;

size_t be16(const uint8_t *p) { return static_cast<size_t>(p[0]) << 8 | p[1]; }

}  // namespace

ChunkStream::ChunkStream(Framing framing) : framing_(framing) {}

ChunkStream::ChunkStream(Framing framing, const uint8_t *data, size_t size, uint64_t packet, double time)
    : framing_(framing), view_(data), size_(size), packet_(packet), time_(time), finished_(true) {}

void ChunkStream::append(const uint8_t *data, size_t size) {
    if (view_ || finished_ || size == 0) return;
    if (lost_) {
        // Nothing after a lost block can be placed: the octets are counted only.
        base_ += size_;
        owned_.clear();
        size_ = pos_ = 0;
        lost_octets_ += size;
        base_ += size;
        return;
    }
    if (pos_ > 0) {
        owned_.erase(owned_.begin(), owned_.begin() + static_cast<std::ptrdiff_t>(pos_));
        base_ += pos_;
        size_ -= pos_;
        pos_ = 0;
    }
    owned_.insert(owned_.end(), data, data + size);
    size_ += size;
}

void ChunkStream::finish() { finished_ = true; }

Location ChunkStream::here(size_t pos) const {
    if (packet_ != 0) return Location{packet_, pos};
    return Location{0, base_ + pos};
}

void ChunkStream::skip(Piece &piece, size_t count, std::string why) {
    piece.kind = Piece::Kind::Skipped;
    piece.chunk = Chunk{};
    piece.where = here(pos_);
    piece.skipped = count;
    piece.why = std::move(why);
    pos_ += count;
}

bool ChunkStream::next(Piece &piece) {
    piece = Piece{};
    return framing_ == Framing::None ? next_plain(piece) : next_framed(piece);
}

bool ChunkStream::next_plain(Piece &piece) {
    if (lost_) {
        if (!finished_ || lost_octets_ == 0) return false;
        piece.kind = Piece::Kind::Skipped;
        piece.where = Location{packet_, base_ - lost_octets_};
        piece.skipped = lost_octets_;
        piece.why = "the next block cannot be found";
        lost_octets_ = 0;
        return true;
    }
    const uint8_t *d = data();
    size_t p = pos_;
    bool bad_len = false;
    while (size_ - p >= kBlockHeader && p - pos_ < max_chunk_) {
        const size_t len = be16(d + p + 1);
        if (len < kBlockHeader) {
            bad_len = true;
            break;
        }
        if (len > size_ - p) break;
        p += len;
    }
    // Whole blocks go on at once; a block with a LEN below 3, or what is
    // left at the end of the input, goes on for the decoder to report.
    if (p == pos_ && (bad_len || finished_)) {
        p = size_;
        lost_ = bad_len && !finished_;
    }
    if (p == pos_) return false;
    piece.chunk.where = here(pos_);
    piece.chunk.data = d + pos_;
    piece.chunk.size = p - pos_;
    piece.chunk.time = time_;
    pos_ = p;
    return true;
}

bool ChunkStream::next_framed(Piece &piece) {
    const uint8_t *d = data();
    if (pos_ >= size_) return false;
    Frame frame;
    const char *why = "";
    const FrameStatus status = read_frame(framing_, d + pos_, size_ - pos_, frame, &why);
    std::string long_frame;
    if (status == FrameStatus::NeedMore) {
        if (!finished_) return false;
        if (frame.size == 0) {
            skip(piece, size_ - pos_, "the input ends inside a frame header");
            return true;
        }
        long_frame = "frame length " + std::to_string(frame.size) + " runs past the end of the input";
        why = long_frame.c_str();
    }
    if (status == FrameStatus::Whole && !blocks_fill(d + pos_ + frame.header, frame.payload)) {
        if (strict_) {
            why = "no frame header";
        } else {
            // A frame whose blocks do not fill it holds a bad block, or its
            // header lies about the length: believe the header when a good
            // frame (or the end of the input) follows it.
            const size_t next = pos_ + frame.size;
            Frame following;
            const FrameStatus then =
                next < size_ ? read_frame(framing_, d + next, size_ - next, following, nullptr) : FrameStatus::NeedMore;
            if (then == FrameStatus::NeedMore && !finished_) return false;
            if ((next == size_ && finished_) || frame_checks_out(framing_, d + next, size_ - next, following))
                why = nullptr;
            else
                why = "frame length does not match its blocks, and no frame follows it";
        }
    } else if (status == FrameStatus::Whole) {
        why = nullptr;
    }
    if (why) {
        // Look for the next frame that checks out; failing that, wait at
        // the first one that may be whole once more octets arrive.
        size_t j = pos_ + 1, wait_at = size_;
        for (; j < size_; ++j) {
            Frame candidate;
            const FrameStatus s = read_frame(framing_, d + j, size_ - j, candidate, nullptr);
            if (s == FrameStatus::NeedMore && wait_at == size_) wait_at = j;
            if (s == FrameStatus::Whole && blocks_fill(d + j + candidate.header, candidate.payload)) break;
        }
        if (wait_at < j && !finished_) {
            // A frame may start before the one found (or before the end),
            // once more octets arrive: wait for them, up to a bound.
            if (size_ - pos_ < kResyncWindow) return false;
            if (j == size_) j = wait_at;
        }
        skip(piece, j - pos_, std::string("frame header at ") + format_location(here(pos_)) + ": " + why);
        strict_ = true;
        return true;
    }
    strict_ = false;
    ++frames_;
    if (packet_ != 0)
        piece.chunk.where = Location{packet_, pos_ + frame.header};
    else if (frame.has_time)
        piece.chunk.where = Location{frames_, frame.header};
    else
        piece.chunk.where = here(pos_ + frame.header);
    piece.chunk.data = d + pos_ + frame.header;
    piece.chunk.size = frame.payload;
    piece.chunk.time = packet_ != 0 || !frame.has_time ? time_ : frame.time;
    pos_ += frame.size;
    return true;
}

}  // namespace kovrel_tool
