// Reads arbitrary octets the ways the kovrel tool reads its inputs, without
// I/O: as plain or framed recordings cut into chunks (whole, and arriving
// in pieces of every size), as hexadecimal text (whole and in pieces), and
// as captured frames and a run of IP fragments to put together. The first octet picks the
// reader and the size of the pieces.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "chunk_stream.h"
#include "fragments.h"
#include "framing.h"
#include "input.h"

using namespace kovrel_tool;

namespace {

void check(bool ok) {
    if (!ok) std::abort();
}

// What a stream hands out: the octets of its chunks one after the other,
// and the octets it skipped.
struct Taken {
    std::vector<std::vector<uint8_t>> chunks;
    uint64_t skipped = 0;
};

void take(ChunkStream &stream, Taken &taken, const uint8_t *lo, const uint8_t *hi) {
    Piece piece;
    while (stream.next(piece)) {
        if (piece.kind == Piece::Kind::Skipped) {
            check(piece.skipped > 0);
            taken.skipped += piece.skipped;
            continue;
        }
        // A chunk lies inside the octets it was cut from (or the stream's copy).
        if (lo) check(piece.chunk.data >= lo && piece.chunk.data + piece.chunk.size <= hi);
        taken.chunks.emplace_back(piece.chunk.data, piece.chunk.data + piece.chunk.size);
    }
}

void streams(Framing framing, size_t step, const uint8_t *data, size_t size) {
    detect_framing(data, size, true);
    detect_framing(data, size / 2, false);
    Taken whole, pieces;
    ChunkStream at_once(framing, data, size, 0, 0);
    take(at_once, whole, data, data + size);
    ChunkStream streamed(framing);
    for (size_t i = 0; i < size; i += step) {
        streamed.append(data + i, std::min(step, size - i));
        take(streamed, pieces, nullptr, nullptr);
        check(streamed.held() <= 512 * 1024);
    }
    streamed.finish();
    take(streamed, pieces, nullptr, nullptr);
    // In windows of a few blocks, as mapped files are read: the same blocks.
    Taken windows;
    ChunkStream windowed(framing, data, size, 0, 0);
    windowed.limit_chunks(step * 8);
    take(windowed, windows, data, data + size);
    if (framing == Framing::None) {
        std::vector<uint8_t> a, b;
        for (const auto &c : whole.chunks) a.insert(a.end(), c.begin(), c.end());
        for (const auto &c : windows.chunks) b.insert(b.end(), c.begin(), c.end());
        check(a == b && windows.skipped == whole.skipped);
    } else {
        check(windows.chunks == whole.chunks);
    }
    uint64_t octets = whole.skipped;
    for (const auto &c : whole.chunks) octets += c.size();
    check(octets <= size);
    if (framing != Framing::None) {
        // Frames come out the same however the octets arrive.
        check(pieces.chunks == whole.chunks);
        check(pieces.skipped == whole.skipped);
    } else {
        // Blocks too, but a lost block ends the chunks sooner in pieces.
        std::vector<uint8_t> a, b;
        for (const auto &c : whole.chunks) a.insert(a.end(), c.begin(), c.end());
        for (const auto &c : pieces.chunks) b.insert(b.end(), c.begin(), c.end());
        check(b.size() + pieces.skipped == a.size() + whole.skipped);
        check(std::equal(b.begin(), b.end(), a.begin()));
    }
}

void hex(size_t step, const uint8_t *data, size_t size) {
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    std::vector<uint8_t> whole, pieces;
    std::string error;
    const bool ok = parse_hex(text, whole, error);
    HexReader reader;
    bool ok_pieces = true;
    for (size_t i = 0; i < size && ok_pieces; i += step) ok_pieces = reader.feed(text.substr(i, step), pieces);
    ok_pieces = ok_pieces && reader.finish(pieces);
    check(ok == ok_pieces);
    if (ok) check(whole == pieces);
    detect_input(data, size);
}

void fragments(const uint8_t *data, size_t size) {
    // Four octets a fragment: id, offset / 8, size, flags (bit 0: more).
    static const std::vector<uint8_t> payload(4096, 0x5A);
    Reassembler r(4, 1024);
    // The octets as a captured frame of every link type read.
    for (int linktype : {0, 1, 12, 101, 108, 113, 228, 229, 276}) {
        Payload p;
        IpFragment f;
        const FrameResult result = udp_payload(linktype, data, size, p, &f);
        if (result == FrameResult::Udp) check(p.data >= data && p.data + p.size <= data + size);
        if (result == FrameResult::Fragment) {
            check(f.data >= data && f.data + f.size <= data + size);
            r.add(f);
        }
    }
    for (size_t i = 0; i + 4 <= size; i += 4) {
        IpFragment f;
        f.version = (data[i + 3] & 2) ? 6 : 4;
        f.protocol = 17;
        f.id = data[i];
        f.offset = static_cast<size_t>(data[i + 1]) * 8;
        f.size = data[i + 2];
        f.more = (data[i + 3] & 1) != 0;
        f.data = payload.data();
        if (r.add(f) == FragmentResult::Complete) {
            check(!r.datagram().empty() && r.datagram().size() <= 1024);
            Payload p;
            reassembled_udp(r.version(), r.protocol(), r.datagram().data(), r.datagram().size(), p);
            if (p.data) check(p.data >= r.datagram().data() && p.data + p.size <= r.datagram().data() + r.datagram().size());
        }
        check(r.pending() <= 4);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < 1) return 0;
    const uint8_t mode = data[0];
    const size_t step = 1 + (mode >> 3);  // 1 to 32 octets a piece
    ++data;
    --size;
    switch (mode & 7) {
    case 0: return streams(Framing::None, step, data, size), 0;
    case 1: return streams(Framing::Oradis, step, data, size), 0;
    case 2: return streams(Framing::Final, step, data, size), 0;
    case 3: return streams(Framing::Length, step, data, size), 0;
    case 4: return hex(step, data, size), 0;
    case 5: return fragments(data, size), 0;
    default: {
        // The framing that detection picks, as the tool reads it.
        const Framing framing = detect_framing(data, size, true);
        return streams(framing, step, data, size), 0;
    }
    }
}
