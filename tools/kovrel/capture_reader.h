// Reading the UDP datagrams of a capture one at a time, IP fragments put
// back together: the one loop behind decoding, converting and the Python
// package's record streams.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "fragments.h"
#include "input.h"

struct pcap;

namespace kovrel_tool {

// One UDP datagram of a capture. For a datagram put together from
// fragments, the packet, frame and time stamp are those of the fragment
// that completed it, and the payload lies in the reader's memory (valid
// until the next call of next()).
struct CapturedUdp {
    uint64_t packet = 0;         // packet number, from 1
    int64_t seconds = 0;         // time stamp
    uint32_t nanoseconds = 0;
    const uint8_t *frame = nullptr;  // the captured frame
    size_t caplen = 0;
    Payload payload;
    bool reassembled = false;
    const uint8_t *udp_header = nullptr;  // reassembled: the datagram's 8-octet UDP header

    double time() const { return static_cast<double>(seconds) + static_cast<double>(nanoseconds) * 1e-9; }
    // The payload as a chunk located at the packet (offset 0).
    Chunk chunk() const;
};

class CaptureReader {
public:
    CaptureReader() = default;
    ~CaptureReader();
    CaptureReader(const CaptureReader &) = delete;
    CaptureReader &operator=(const CaptureReader &) = delete;

    // Takes the file over (closed by the reader, or here on failure). False,
    // with libpcap's reason in error, when it is no readable capture; the
    // link type is not checked here (see linktype_supported).
    bool open(std::FILE *file, std::string &error);
    // "link type NAME (N) is not supported".
    std::string linktype_problem() const;
    int linktype() const { return stats_.linktype; }

    // The next UDP datagram. False at the end of the capture: stats() is
    // then complete and read_error() tells a capture cut short ("" if not).
    bool next(CapturedUdp &out);
    // What became of the packets read so far (fragments still waiting
    // count as incomplete).
    CaptureStats stats() const;
    const std::string &read_error() const { return error_; }
    // Octets of the file read so far (-1 when not known).
    long position() const;
    void close();

private:
    pcap *pcap_ = nullptr;
    Reassembler fragments_;
    CaptureStats stats_;
    std::string error_;
};

// The messages about fragmented datagrams given up or left incomplete.
std::vector<std::string> fragment_messages(const CaptureStats &stats);

// The messages a decode gives about what became of a capture's packets
// (fragments given up or incomplete, packets cut short, no UDP at all),
// without the input's name.
std::vector<std::string> capture_messages(const CaptureStats &stats);

}  // namespace kovrel_tool
