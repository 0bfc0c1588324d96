// DecodeSession: inputs decoded as they are read, and recorder framings.
#include <cerrno>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

#include "input_stream.h"
#include "session.h"

namespace kovrel_tool {
namespace {

constexpr size_t kHead = 64 * 1024;    // octets looked at to tell the kind of an input
constexpr size_t kEnough = 1;          // ... unless the input pauses after this many
constexpr size_t kPiece = 64 * 1024;   // octets read at a time

}  // namespace

Framing DecodeSession::framing_of(const uint8_t *head, size_t size, bool at_end) const {
    if (!settings_.framing_auto) return settings_.framing;
    return detect_framing(head, size, at_end);
}

void DecodeSession::decode_pieces(const std::string &name, ChunkStream &stream, const uint8_t *mapped,
                                  const Chunk *packet) {
    Piece piece;
    const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    size_t released = 0;
    auto release = [&] {
        // Everything before the next piece is decoded.
        if (on_progress) on_progress(stream.position());
        const size_t upto = stream.position() / page * page;
        if (upto >= released + (1u << 20)) {
            madvise(const_cast<uint8_t *>(mapped) + released, upto - released, MADV_DONTNEED);
            released = upto;
        }
    };
    while (!output_failed_ && stream.next(piece)) {
        if (piece.kind == Piece::Kind::Blocks) {
            if (packet) {
                piece.chunk.src = packet->src;
                piece.chunk.dst = packet->dst;
                piece.chunk.received = packet->received;
            }
            decode_chunk(name, piece.chunk, false);
            if (mapped) release();
            continue;
        }
        message(name, std::to_string(piece.skipped) + " octets from " + format_location(piece.where) +
                          " on are skipped: " + piece.why);
        stats_.count_unusable(-1, piece.skipped);
        // The reason without its location, for the counts.
        const size_t colon = piece.why.rfind(": ");
        stats_.count_reason(colon == std::string::npos ? piece.why : piece.why.substr(colon + 2));
    }
}

bool DecodeSession::decode_payload(const std::string &name, const Chunk &chunk) {
    // Most payloads are plain blocks: only the others are looked at closer.
    const Framing framing = settings_.framing_auto ? (blocks_fill(chunk.data, chunk.size)
                                                          ? Framing::None
                                                          : detect_framing(chunk.data, chunk.size, true))
                                                   : settings_.framing;
    if (framing == Framing::None) return decode_chunk(name, chunk, false);
    ChunkStream frames(framing, chunk.data, chunk.size, chunk.where.packet, chunk.time);
    decode_pieces(name, frames, nullptr, &chunk);
    return !output_failed_;
}

void DecodeSession::stream_raw(const std::string &name, StreamSource &source) {
    ChunkStream stream(framing_of(source.head().data(), source.head().size(), source.head_is_all()));
    std::vector<uint8_t> buffer(kPiece);
    for (;;) {
        const long n = source.read(buffer.data(), buffer.size());
        if (n < 0) {
            message(name, std::string("reading stopped: ") + std::strerror(errno));
            break;
        }
        if (n == 0) break;
        stream.append(buffer.data(), static_cast<size_t>(n));
        decode_pieces(name, stream);
        if (on_progress) on_progress(source.consumed());
        if (output_failed_) return;
    }
    stream.finish();
    decode_pieces(name, stream);
}

void DecodeSession::stream_hex(const std::string &name, StreamSource &source) {
    HexReader hex;
    std::vector<uint8_t> octets;
    std::vector<char> buffer(kPiece);
    std::unique_ptr<ChunkStream> stream;
    bool ok = true;
    bool ended = false;
    while (ok && !ended && !output_failed_) {
        const long n = source.read(reinterpret_cast<uint8_t *>(buffer.data()), buffer.size());
        if (n < 0) {
            message(name, std::string("reading stopped: ") + std::strerror(errno));
            break;
        }
        ended = n == 0;
        octets.clear();
        ok = ended ? hex.finish(octets) : hex.feed(std::string_view(buffer.data(), static_cast<size_t>(n)), octets);
        // The framing is told by the first octets the text stands for.
        if (!stream && (!octets.empty() || ended || !ok))
            stream = std::make_unique<ChunkStream>(framing_of(octets.data(), octets.size(), ended || !ok));
        if (stream) {
            stream->append(octets.data(), octets.size());
            decode_pieces(name, *stream);
        }
        if (on_progress) on_progress(source.consumed());
    }
    if (!ok) message(name, "hexadecimal text stops at " + hex.error() + "; decoding the octets before it");
    if (stream && !output_failed_) {
        stream->finish();
        decode_pieces(name, *stream);
    }
}

bool DecodeSession::decode_stream(const std::string &name, int fd, uint64_t total) {
    ++stats_.inputs;
    block_no_ = 0;
    if (settings_.follow) follow_signals();
    // Whenever the input makes us wait, the records decoded so far go out
    // (through stdio's buffer too), so that a reader down a pipe sees them.
    StreamSource source(fd, settings_.follow, [this] {
        flush();
        if (!output_failed_ && out_) std::fflush(out_);
    });
    std::string error;
    const bool ok = source.read_head(kHead, kEnough, error);
    if (!ok && source.head().empty()) {
        if (fd != STDIN_FILENO) close(fd);
        unreadable(name, "cannot read: " + error);
        return false;
    }
    total_ = total;
    if (on_start) on_start(name, total);
    if (source.head().empty()) {
        if (fd != STDIN_FILENO) close(fd);
        message(name, "empty input");
        return true;
    }
    const InputKind kind = detect_input(source.head().data(), source.head().size());
    bool result = true;
    if (kind == InputKind::Pcap || kind == InputKind::Pcapng) {
        std::FILE *file = source.as_file();
        if (!file) {
            unreadable(name, std::string("cannot read: ") + std::strerror(errno));
            result = false;
        } else {
            result = decode_capture(name, file);
        }
    } else if (kind == InputKind::Hex) {
        stream_hex(name, source);
    } else {
        stream_raw(name, source);
    }
    if (fd != STDIN_FILENO) close(fd);
    flush();
    return result;
}

}  // namespace kovrel_tool
