// Reading recordings: what kind of input a file is, and the chunks of
// ASTERIX octets it holds.
//
// A chunk is a run of octets that should hold whole data blocks back to
// back: the whole file for raw and hexadecimal inputs, one UDP payload for
// captures. Where a chunk came from is its Location:
//   raw and hex inputs   the octet offset in the input (for hex text, in the
//                        octets the text stands for), printed "@1234";
//   captures             the packet number (from 1) and the offset inside
//                        the packet's UDP payload, printed "pkt 12+40".
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "fragments.h"

namespace kovrel_tool {

enum class InputKind { Pcap, Pcapng, Raw, Hex };

const char *input_kind_name(InputKind kind);

// Tells the kind of an input from its first octets (the more the better;
// 64 KiB is plenty). Captures are told by their magic numbers (pcap in both
// byte orders, micro- and nanosecond; pcapng); text made only of
// hexadecimal digits, separators and '#' comment lines is hex; anything
// else is taken as raw blocks.
InputKind detect_input(const uint8_t *head, size_t size);

struct Location {
    uint64_t packet = 0;  // 0 for raw and hex inputs
    uint64_t offset = 0;
};

std::string format_location(const Location &where);
// The same into text (at least kLocationSize characters); returns the
// characters written.
constexpr size_t kLocationSize = 48;
size_t format_location(char *text, const Location &where);

// An IPv4 or IPv6 address and UDP port, as the octets of the wire (network
// order). family 0: no address (raw and hex inputs).
struct NetAddress {
    uint8_t family = 0;  // 0, 4 or 6
    uint8_t octets[16] = {};  // IPv4: the first 4
    uint16_t port = 0;

    bool known() const { return family != 0; }
};

// "192.0.2.1:8600", "[2001:db8::1]:8600" (RFC 5952 text); "" for no
// address. text needs kAddressSize characters; returns the characters written.
constexpr size_t kAddressSize = 56;
size_t format_address(char *text, const NetAddress &address);
std::string format_address(const NetAddress &address);

// Octets of one chunk. For captures, time is the packet's time stamp in
// seconds since 1970, for live input the receive time (0 otherwise); src
// and dst are the datagram's sender and destination (captures and live
// input).
struct Chunk {
    Location where;
    const uint8_t *data = nullptr;
    size_t size = 0;
    double time = 0;
    NetAddress src, dst;
    bool received = false;  // live input: time is when the datagram was received
};

// Receives the chunks of an input; returns false to stop reading.
using ChunkSink = std::function<bool(const Chunk &)>;

// Progress callback: octets of the input consumed so far.
using ProgressFn = std::function<void(uint64_t done)>;

// ---- Raw blocks and text files -----------------------------------------

// Reads the rest of a stream into out (raw blocks and hex text are read
// whole). Returns false with error set on a read error.
bool read_stream(std::FILE *file, std::vector<uint8_t> &out, std::string &error,
                 const ProgressFn &progress = {});

// ---- Hexadecimal text --------------------------------------------------

// Reads hexadecimal text as it arrives, line by line. The first line with
// content tells the style:
//   plain      pairs of hex digits, alone or run together ("30000c",
//              "30 00 0c", "30:00:0c"), each token optionally prefixed by
//              "0x" (a prefixed token may also be a single digit, "0x5"),
//              separated by blanks, tabs, commas, semicolons or colons;
//              '#' starts a comment that runs to the end of the line;
//   xxd        "00000010: 3000 0c80 ...  0..." (offset and ASCII columns
//              left out);
//   hexdump -C "00000010  30 00 0c ...  |0..|" (the same; a '*' line,
//              which stands for repeated lines, is refused).
// od output and hexdump without -C (an offset column, then 16-bit or octal
// words) are refused. The first bad line stops the reader: error() then
// names it ("line 3: \"0g\": 'g' is not a hexadecimal digit").
class HexReader {
public:
    // Adds text; the octets of its whole lines are appended to out. False
    // once a line was refused (later text is ignored).
    bool feed(std::string_view text, std::vector<uint8_t> &out);
    // The text has ended: reads a last line without a line end.
    bool finish(std::vector<uint8_t> &out);
    const std::string &error() const { return error_; }

private:
    enum class Style { Unknown, Plain, Xxd, HexdumpC };
    void line(std::string_view text, std::vector<uint8_t> &out);
    void long_line(std::vector<uint8_t> &out);
    void fail(const std::string &token, const std::string &why);

    std::string partial_;    // a line without its end yet
    bool continued_ = false; // part of partial_'s line was read already
    size_t line_no_ = 0;
    Style style_ = Style::Unknown;
    bool failed_ = false;
    std::string error_;
};

// Turns hexadecimal text into octets (a HexReader over the whole text). On
// a bad line returns false and sets error to a message naming the line.
bool parse_hex(std::string_view text, std::vector<uint8_t> &out, std::string &error);

// ---- Captures ----------------------------------------------------------

// What became of the packets of a capture.
struct CaptureStats {
    uint64_t packets = 0;     // packets read
    uint64_t udp = 0;         // UDP payloads handed on
    uint64_t not_udp = 0;     // other protocols (ARP, TCP, ICMP, ...)
    uint64_t fragments = 0;   // IP fragments read
    uint64_t reassembled = 0;         // datagrams put together from fragments
    uint64_t fragments_refused = 0;   // datagrams given up: overlapping or inconsistent fragments
    uint64_t fragments_evicted = 0;   // datagrams given up: too many in reassembly at once
    uint64_t fragments_incomplete = 0;  // datagrams still missing fragments at the end
    uint64_t truncated = 0;   // cut by the capture's snap length or malformed
    int linktype = -1;
};

// Outcome of looking into one captured frame.
enum class FrameResult { Udp, NotUdp, Fragment, Truncated };

struct Payload {
    const uint8_t *data = nullptr;
    size_t size = 0;
    NetAddress src, dst;  // from the IP and UDP headers
};

// True for the link types whose frames udp_payload understands: Ethernet
// (with 802.1Q / 802.1ad tags), Linux cooked capture v1 and v2, raw IP
// (DLT_RAW, DLT_IPV4, DLT_IPV6) and BSD loopback (DLT_NULL, DLT_LOOP).
bool linktype_supported(int linktype);

// Finds the UDP payload of one captured frame of the given link type. For
// a fragment of an IP datagram (Fragment), fills *fragment when given.
FrameResult udp_payload(int linktype, const uint8_t *frame, size_t caplen, Payload &out,
                        IpFragment *fragment = nullptr);

// The UDP payload of a datagram put together from fragments (version 4
// or 6, the protocol or next header of its fragments, its payload).
FrameResult reassembled_udp(uint8_t version, uint8_t protocol, const uint8_t *data, size_t size, Payload &out);

// Sets the addresses of a payload (family 4 or 6; the address octets of an
// IP header; the ports stay as the UDP header gave them).
void set_payload_addresses(Payload &out, uint8_t family, const uint8_t *src, const uint8_t *dst);

// Reads a pcap or pcapng capture through libpcap and hands every UDP
// payload to sink (location: packet number, offset 0) until the sink
// returns false. Fragmented datagrams are put together (at most 64 at a
// time, the oldest given up for room) and handed on at their last
// fragment's packet. The file is taken
// over and closed. Returns false with error set when libpcap cannot read
// the capture at all or its link type is not supported; a capture cut
// short after some packets is read up to the cut (error then tells it, and
// true is returned).
bool read_capture(std::FILE *file, const ChunkSink &sink, CaptureStats &stats, std::string &error,
                  const ProgressFn &progress = {});

}  // namespace kovrel_tool
