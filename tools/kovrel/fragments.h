// Putting IP fragments back together (IPv4 and IPv6), in bounded memory.
// Pure: the capture reader hands in the fragments it finds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kovrel_tool {

// One fragment as its IP header describes it.
struct IpFragment {
    uint8_t version = 4;     // 4 or 6
    uint8_t protocol = 0;    // IPv4 protocol, or the IPv6 fragment header's next header
    uint32_t id = 0;         // identification
    uint8_t source[16] = {};  // IPv4 addresses use the first 4 octets
    uint8_t destination[16] = {};
    size_t offset = 0;       // octets from the start of the datagram's payload
    bool more = false;       // more fragments follow
    const uint8_t *data = nullptr;  // the fragment's part of the payload
    size_t size = 0;
};

// What adding a fragment did.
enum class FragmentResult {
    Pending,   // kept, the datagram is not whole yet
    Complete,  // the datagram is whole: see datagram()
    Refused,   // overlaps a part already held or contradicts the datagram's
               // length: the datagram is given up
};

class Reassembler {
public:
    // At most max_datagrams datagrams are held at once (the oldest is given
    // up to make room) and none grows past max_size octets.
    explicit Reassembler(size_t max_datagrams = 64, size_t max_size = 65535);

    FragmentResult add(const IpFragment &fragment);
    // After Complete: the datagram's payload (protocol, octets); valid until
    // the next add().
    uint8_t protocol() const { return done_protocol_; }
    uint8_t version() const { return done_version_; }
    const std::vector<uint8_t> &datagram() const { return done_; }

    uint64_t refused() const { return refused_; }        // datagrams given up as inconsistent
    uint64_t evicted() const { return evicted_; }        // datagrams given up for room
    size_t pending() const { return held_.size(); }      // datagrams still incomplete

private:
    struct Held {
        uint8_t version, protocol;
        uint32_t id;
        uint8_t source[16], destination[16];
        size_t total = 0;  // payload length once the last fragment came (0: not yet)
        std::vector<uint8_t> octets;
        std::vector<std::pair<size_t, size_t>> parts;  // [begin, end) received
        uint64_t age = 0;
    };
    bool same(const Held &h, const IpFragment &f) const;

    size_t max_datagrams_, max_size_;
    std::vector<Held> held_;
    std::vector<uint8_t> done_;
    uint8_t done_protocol_ = 0, done_version_ = 0;
    uint64_t refused_ = 0, evicted_ = 0, clock_ = 0;
};

}  // namespace kovrel_tool
