// Recorder framings: reading and recognising frame headers.
#include "framing.h"

namespace kovrel_tool {
namespace {

constexpr size_t kBlockHeader = 3;  // CAT and LEN
constexpr uint8_t kFinalPad = 0xA5;
constexpr size_t kFinalTrailer = 4;
constexpr int kFramesToAgree = 3;

size_t be16(const uint8_t *p) { return static_cast<size_t>(p[0]) << 8 | p[1]; }
uint32_t be24(const uint8_t *p) { return static_cast<uint32_t>(p[0]) << 16 | static_cast<uint32_t>(p[1]) << 8 | p[2]; }
uint32_t be32(const uint8_t *p) { return be24(p) << 8 | p[3]; }

}  // namespace

const char *framing_name(Framing framing) {
    switch (framing) {
    case Framing::None:
        return "none";
    case Framing::Oradis:
        return "oradis";
    case Framing::Final:
        return "final";
    case Framing::Length:
        return "length";
    }
    return "none";
}

size_t frame_header_size(Framing framing) {
    switch (framing) {
    case Framing::None:
        return 0;
    case Framing::Oradis:
        return 6;
    case Framing::Final:
        return 8;
    case Framing::Length:
        return 2;
    }
    return 0;
}

bool parse_framing(const std::string &name, Framing &out) {
    for (Framing f : {Framing::None, Framing::Oradis, Framing::Final, Framing::Length}) {
        if (name == framing_name(f)) {
            out = f;
            return true;
        }
    }
    return false;
}

FrameStatus read_frame(Framing framing, const uint8_t *data, size_t size, Frame &frame, const char **why) {
    frame = Frame{};
    const char *unused;
    if (!why) why = &unused;
    switch (framing) {
    case Framing::None: {
        if (size < kBlockHeader) return FrameStatus::NeedMore;
        frame.payload = frame.size = be16(data + 1);
        if (frame.size < kBlockHeader) {
            *why = "LEN below 3";
            return FrameStatus::Bad;
        }
        break;
    }
    case Framing::Oradis: {
        if (size < 6) return FrameStatus::NeedMore;
        frame.header = 6;
        frame.size = be16(data);
        if (frame.size < frame.header + kBlockHeader) {
            *why = "frame length shorter than its header and a block header";
            return FrameStatus::Bad;
        }
        frame.payload = frame.size - frame.header;
        frame.has_time = true;
        frame.time = static_cast<double>(be32(data + 2)) / 1000.0;
        break;
    }
    case Framing::Final: {
        if (size < 8) return FrameStatus::NeedMore;
        frame.header = 8;
        frame.size = be16(data);
        if (frame.size < frame.header + kBlockHeader + kFinalTrailer) {
            *why = "frame length shorter than its header, a block header and its trailer";
            return FrameStatus::Bad;
        }
        frame.payload = frame.size - frame.header - kFinalTrailer;
        frame.has_time = true;
        frame.time = static_cast<double>(data[4]) * 86400.0 + static_cast<double>(be24(data + 5)) / 100.0;
        if (size >= frame.size) {
            for (size_t i = frame.size - kFinalTrailer; i < frame.size; ++i) {
                if (data[i] != kFinalPad) {
                    *why = "frame trailer is not A5 A5 A5 A5";
                    return FrameStatus::Bad;
                }
            }
        }
        break;
    }
    case Framing::Length: {
        if (size < 2) return FrameStatus::NeedMore;
        frame.header = 2;
        frame.payload = be16(data);
        frame.size = frame.header + frame.payload;
        if (frame.payload < kBlockHeader) {
            *why = "frame length shorter than a block header";
            return FrameStatus::Bad;
        }
        break;
    }
    }
    return size < frame.size ? FrameStatus::NeedMore : FrameStatus::Whole;
}

bool blocks_fill(const uint8_t *data, size_t size) {
    if (size == 0) return false;
    size_t pos = 0;
    while (pos < size) {
        if (size - pos < kBlockHeader) return false;
        const size_t len = be16(data + pos + 1);
        if (len < kBlockHeader || len > size - pos) return false;
        pos += len;
    }
    return true;
}

bool frame_checks_out(Framing framing, const uint8_t *data, size_t size, Frame &frame) {
    if (read_frame(framing, data, size, frame, nullptr) != FrameStatus::Whole) return false;
    return blocks_fill(data + frame.header, frame.payload);
}

Framing detect_framing(const uint8_t *head, size_t size, bool at_end) {
    // A whole input of plain blocks is plain, whatever else it could be.
    if (at_end && blocks_fill(head, size)) return Framing::None;
    for (Framing framing : {Framing::Oradis, Framing::Final, Framing::Length}) {
        size_t pos = 0;
        int agreed = 0;
        bool cut = false;
        while (agreed < kFramesToAgree && pos < size) {
            Frame frame;
            const FrameStatus status = read_frame(framing, head + pos, size - pos, frame, nullptr);
            if (status == FrameStatus::NeedMore && !at_end) {
                cut = true;
                break;
            }
            if (!frame_checks_out(framing, head + pos, size - pos, frame)) break;
            ++agreed;
            pos += frame.size;
        }
        // Three frames agree, or every frame of a shorter input does: the
        // input ends there, or a frame cut by the end of the head follows.
        if (agreed >= kFramesToAgree || (agreed > 0 && (pos == size || cut))) return framing;
    }
    return Framing::None;
}

}  // namespace kovrel_tool
