// Recorder framings and cutting arriving octets into chunks: frame headers,
// telling a framing by content, whole blocks out of pieces, bad frames.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <string>

#include "chunk_stream.h"
#include "framing.h"
#include "tools/capture_builder.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

// Everything a stream hands out, one line per piece:
// "blocks LOCATION SIZE TIME" or "skipped LOCATION COUNT: WHY".
std::vector<std::string> pieces(ChunkStream &s) {
    std::vector<std::string> out;
    Piece p;
    while (s.next(p)) {
        if (p.kind == Piece::Kind::Blocks)
            out.push_back("blocks " + format_location(p.chunk.where) + " " + std::to_string(p.chunk.size) + " " +
                          std::to_string(static_cast<long long>(p.chunk.time * 1000)));
        else
            out.push_back("skipped " + format_location(p.where) + " " + std::to_string(p.skipped) + ": " + p.why);
    }
    return out;
}

// Feeds the octets in pieces of `step` and collects every piece.
std::vector<std::string> streamed(Framing framing, const Octets &o, size_t step) {
    ChunkStream s(framing);
    std::vector<std::string> out;
    for (size_t i = 0; i < o.size(); i += step) {
        s.append(o.data() + i, std::min(step, o.size() - i));
        for (auto &p : pieces(s)) out.push_back(p);
    }
    s.finish();
    for (auto &p : pieces(s)) out.push_back(p);
    return out;
}

const Octets kA = sacsic_block(1);     // 6 octets
const Octets kB = sacsic_block(2, 3);  // 12 octets

}  // namespace

TEST(ToolFraming, FrameHeaders) {
    struct Case {
        Framing framing;
        Octets octets;
        FrameStatus status;
        size_t header, payload, size;
        double time;
        const char *why;
    };
    const Octets final_bad_pad = [] {
        Octets f = final_frame(kA, 2, 100);
        f.back() = 0xA4;
        return f;
    }();
    const Case cases[] = {
        {Framing::Oradis, oradis(kA, 36000500), FrameStatus::Whole, 6, 6, 12, 36000.5, ""},
        {Framing::Oradis, Octets{0x00, 0x0C, 0, 0, 0}, FrameStatus::NeedMore, 0, 0, 0, 0, ""},
        {Framing::Oradis, {0x00, 0x0C, 0, 0, 0, 0, 48}, FrameStatus::NeedMore, 6, 6, 12, 0, ""},
        {Framing::Oradis, {0x00, 0x08, 0, 0, 0, 0, 48, 0}, FrameStatus::Bad, 0, 0, 0, 0,
         "frame length shorter than its header and a block header"},
        {Framing::Final, final_frame(kB, 2, 360000), FrameStatus::Whole, 8, 12, 24, 2 * 86400.0 + 3600, ""},
        {Framing::Final, final_bad_pad, FrameStatus::Bad, 0, 0, 0, 0, "frame trailer is not A5 A5 A5 A5"},
        {Framing::Final, {0x00, 0x0E, 1, 2, 3, 0, 0, 0}, FrameStatus::Bad, 0, 0, 0, 0,
         "frame length shorter than its header, a block header and its trailer"},
        {Framing::Length, length_frame(kA), FrameStatus::Whole, 2, 6, 8, 0, ""},
        {Framing::Length, {0x00, 0x02, 48, 0}, FrameStatus::Bad, 0, 0, 0, 0, "frame length shorter than a block header"},
        {Framing::Length, {0x00}, FrameStatus::NeedMore, 0, 0, 0, 0, ""},
        {Framing::None, kA, FrameStatus::Whole, 0, 6, 6, 0, ""},
        {Framing::None, {48, 0, 2}, FrameStatus::Bad, 0, 0, 0, 0, "LEN below 3"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(framing_name(c.framing)) + " case of " + std::to_string(c.octets.size()) + " octets");
        Frame f;
        const char *why = "";
        ASSERT_EQ(read_frame(c.framing, c.octets.data(), c.octets.size(), f, &why), c.status);
        EXPECT_STREQ(why, c.why);
        if (c.status == FrameStatus::Bad) continue;
        EXPECT_EQ(f.header, c.header);
        EXPECT_EQ(f.payload, c.payload);
        EXPECT_EQ(f.size, c.size);
        EXPECT_DOUBLE_EQ(f.time, c.time);
    }
}

TEST(ToolFraming, DetectsFramingByContent) {
    const Octets three_oradis = concat({oradis(kA, 1), oradis(kB, 2), oradis(kA, 3)});
    const Octets three_final = concat({final_frame(kA, 1, 1), final_frame(kB, 1, 2), final_frame(kA, 1, 3)});
    const Octets three_length = concat({length_frame(kA), length_frame(concat({kA, kB})), length_frame(kB)});
    struct Case {
        const char *what;
        Octets head;
        bool at_end;
        Framing expected;
    };
    Octets oradis_lie = three_oradis;
    oradis_lie[1] = 0x0D;  // the first frame claims one octet more than its block
    const Case cases[] = {
        {"plain blocks", concat({kA, kB, kA, kB}), true, Framing::None},
        {"plain blocks, head cut", concat({kA, kB, kA, {48, 0}}), false, Framing::None},
        {"oradis", three_oradis, true, Framing::Oradis},
        {"oradis, head cut inside the fourth frame", concat({three_oradis, {0x00, 0x0C, 0}}), false,
         Framing::Oradis},
        {"one oradis frame that is the whole input", oradis(kB, 7), true, Framing::Oradis},
        {"oradis frame whose length lies", oradis_lie, true, Framing::None},
        {"final", three_final, true, Framing::Final},
        {"length", three_length, true, Framing::Length},
        {"length, head cut", concat({length_frame(kA), length_frame(kB), {0x00}}), false, Framing::Length},
        {"one plain block", kB, true, Framing::None},
        // Frames of an unknown length hold no blocks.
        {"a length frame holding no block", Octets{0x00, 0x03, 0x00, 0x00, 0x07}, true, Framing::None},
        {"nothing", Octets{}, true, Framing::None},
        {"garbage", Octets{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, true, Framing::None},
    };
    for (const Case &c : cases)
        EXPECT_EQ(detect_framing(c.head.data(), c.head.size(), c.at_end), c.expected) << c.what;
}

TEST(ToolFraming, PlainStreamHandsOnWholeBlocks) {
    const Octets input = concat({kA, kB, kA});
    // However the octets arrive, the same blocks come out at the same
    // offsets; a block comes out as soon as its last octet has arrived.
    EXPECT_EQ(streamed(Framing::None, input, 1000), (std::vector<std::string>{"blocks @0 24 0"}));
    EXPECT_EQ(streamed(Framing::None, input, 1),
              (std::vector<std::string>{"blocks @0 6 0", "blocks @6 12 0", "blocks @18 6 0"}));
    EXPECT_EQ(streamed(Framing::None, input, 7), (std::vector<std::string>{"blocks @0 6 0", "blocks @6 12 0",
                                                                            "blocks @18 6 0"}));
    // A block cut by the end of the input goes on as it is (the decoder
    // reports it); so does a LEN below 3, after which the rest is counted.
    EXPECT_EQ(streamed(Framing::None, concat({kA, {48, 0, 9, 0x80}}), 4),
              (std::vector<std::string>{"blocks @0 6 0", "blocks @6 4 0"}));
    EXPECT_EQ(streamed(Framing::None, concat({kA, {48, 0, 1, 0x80}, kB, kA}), 5),
              (std::vector<std::string>{"blocks @0 6 0", "blocks @6 4 0",
                                        "skipped @10 18: the next block cannot be found"}));
}

TEST(ToolFraming, FramedStreamHandsOnFrames) {
    const Octets input = concat({oradis(kA, 1000), oradis(kB, 2500)});
    const std::vector<std::string> expected = {"blocks pkt 1+6 6 1000", "blocks pkt 2+6 12 2500"};
    EXPECT_EQ(streamed(Framing::Oradis, input, 1), expected);
    EXPECT_EQ(streamed(Framing::Oradis, input, 5000), expected);
    EXPECT_EQ(streamed(Framing::Final, concat({final_frame(kA, 1, 50), final_frame(kB, 1, 60)}), 3),
              (std::vector<std::string>{"blocks pkt 1+8 6 86400500", "blocks pkt 2+8 12 86400600"}));
    // Without a time stamp the blocks keep their offsets in the input.
    EXPECT_EQ(streamed(Framing::Length, concat({length_frame(kA), length_frame(kB)}), 2),
              (std::vector<std::string>{"blocks @2 6 0", "blocks @10 12 0"}));
    // Inside a packet: located in the packet, with the packet's time.
    const Octets payload = concat({oradis(kA, 1), oradis(kB, 2)});
    ChunkStream in_packet(Framing::Oradis, payload.data(), payload.size(), 7, 12.5);
    EXPECT_EQ(pieces(in_packet), (std::vector<std::string>{"blocks pkt 7+6 6 12500", "blocks pkt 7+18 12 12500"}));
}

TEST(ToolFraming, BadFramesAreSkippedUpToTheNextGoodOne) {
    struct Case {
        const char *what;
        Framing framing;
        Octets input;
        std::vector<std::string> expected;
    };
    Octets lying = concat({oradis(kA, 1), oradis(kB, 2), oradis(kA, 3)});
    lying[1] = 0x20;  // the first frame claims 32 octets: beyond the next header
    // LEN 6 in a frame of 5 octets.
    const Octets bad_block_inside = concat({oradis({48, 0, 6, 0x80, 25}, 4), oradis(kA, 5)});
    const Case cases[] = {
        {"garbage before the first frame", Framing::Oradis, concat({{0xFF, 0xFF, 0xFF}, oradis(kA, 1)}),
         {"skipped @0 3: frame header at @0: frame length 65535 runs past the end of the input",
          "blocks pkt 1+6 6 1"}},
        {"a length that swallows the next frame", Framing::Oradis, lying,
         {"skipped @0 12: frame header at @0: frame length does not match its blocks, and no frame follows it",
          "blocks pkt 1+6 12 2", "blocks pkt 2+6 6 3"}},
        // A frame whose header is believable but whose block is bad: the
        // decoder reports the block.
        {"a bad block inside a good frame", Framing::Oradis, bad_block_inside,
         {"blocks pkt 1+6 5 4", "blocks pkt 2+6 6 5"}},
        {"a frame cut by the end of the input", Framing::Final, concat({final_frame(kA, 0, 1), {0x00, 0x20, 1}}),
         {"blocks pkt 1+8 6 10", "skipped @18 3: the input ends inside a frame header"}},
        {"a trailer that is not padding", Framing::Final,
         [] {
             Octets f = concat({final_frame(kA, 0, 1), final_frame(kB, 0, 2)});
             f[15] = 0;
             return f;
         }(),
         {"skipped @0 18: frame header at @0: frame trailer is not A5 A5 A5 A5", "blocks pkt 1+8 12 20"}},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(streamed(c.framing, c.input, 3), c.expected) << c.what << " (in pieces)";
        EXPECT_EQ(streamed(c.framing, c.input, 1 << 16), c.expected) << c.what << " (at once)";
    }
}

#endif  // KOVREL_HAVE_TOOL_CORE
