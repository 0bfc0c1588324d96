// Recorder framings: headers that recording systems put around the data
// blocks they store. Pure functions over octets (no I/O), shared by the
// file, stream and capture readers.
//
//   oradis  per frame a 6-octet header: a 2-octet big-endian length that
//           counts the header too, then a 4-octet big-endian time stamp in
//           milliseconds since midnight (UTC); then the block(s).
//   final   per frame an 8-octet header: a 2-octet big-endian length that
//           counts header and trailer, board number, line number, day of
//           the recording (1 octet each), a 3-octet time of day in units
//           of 10 ms; then the block(s); then a 4-octet trailer A5 A5 A5 A5.
//   length  per frame a 2-octet big-endian length of what follows (the
//           header not counted), then the block(s).
//   none    data blocks back to back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace kovrel_tool {

enum class Framing { None, Oradis, Final, Length };

const char *framing_name(Framing framing);

// Reads "none", "oradis", "final" or "length"; false for any other name.
bool parse_framing(const std::string &name, Framing &out);

// Octets of a frame header (0 for None).
size_t frame_header_size(Framing framing);

// One frame at the start of some octets.
struct Frame {
    size_t header = 0;   // octets before the blocks
    size_t payload = 0;  // octets of the blocks
    size_t size = 0;     // the whole frame: header, blocks and trailer
    bool has_time = false;
    double time = 0;     // oradis: seconds since midnight; final: day * 86400 + seconds of the day
};

enum class FrameStatus {
    Whole,     // frame holds a frame that fits
    NeedMore,  // the octets end inside the header or the frame
    Bad,       // the header cannot be right (why tells the reason)
};

// Reads the frame header at data (size octets available) and checks what
// the header alone can tell: its length covers at least the header, the
// trailer and a block header; a final frame's trailer is A5 A5 A5 A5.
// With framing None, the frame is the data block there (header 0).
FrameStatus read_frame(Framing framing, const uint8_t *data, size_t size, Frame &frame, const char **why);

// True when the octets are whole data blocks back to back, each LEN at
// least 3, the last one ending exactly at size (size 0: false).
bool blocks_fill(const uint8_t *data, size_t size);

// True when a whole frame lies at data and its blocks fill it exactly.
bool frame_checks_out(Framing framing, const uint8_t *data, size_t size, Frame &frame);

// Tells the framing of an input from its first octets. Plain data blocks
// win when they chain over the head; a framing is chosen only when its
// first frames (three, or every frame of a shorter head; a frame cut by the
// end of the head is not held against it) check out one after the other.
// at_end: the head is the whole input.
Framing detect_framing(const uint8_t *head, size_t size, bool at_end);

}  // namespace kovrel_tool
