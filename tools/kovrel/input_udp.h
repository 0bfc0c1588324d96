// Live UDP input: sockets bound to an endpoint (see udp_url.h), and the
// datagrams waiting on them, with their receive time and addresses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "input.h"
#include "udp_url.h"

namespace kovrel_tool {

// The receive buffer asked for each socket (the system may grant less).
constexpr int kReceiveBuffer = 8 << 20;

// Opens a non-blocking socket for an endpoint: SO_REUSEADDR (listeners
// share a group's port), a large receive buffer, kernel receive time
// stamps, the destination address of each datagram; binds it (a group is
// bound by its own address, so that the socket gets that group only) and
// joins the group, source-specific when the endpoint names a source.
// Returns the descriptor, with `port` set to the port bound (the one
// picked for port 0), or -1 with error set.
int open_udp_socket(const UdpEndpoint &endpoint, uint16_t &port, std::string &error);

// One datagram received. data stays valid until the next receive.
struct Datagram {
    const uint8_t *data = nullptr;
    size_t size = 0;
    bool truncated = false;  // longer than the buffer (not possible for UDP over IP)
    int64_t seconds = 0;     // receive time, since 1970
    uint32_t nanoseconds = 0;
    NetAddress src, dst;     // dst: the datagram's destination (the group, or the local address)
};

// Takes the datagrams waiting on sockets, many per system call.
class UdpReceiver {
public:
    static constexpr size_t kBatch = 32;

    UdpReceiver();
    ~UdpReceiver();
    UdpReceiver(const UdpReceiver &) = delete;
    UdpReceiver &operator=(const UdpReceiver &) = delete;

    // Takes at most kBatch datagrams waiting on fd without blocking into
    // out. Returns how many (0 when none waits), or -1 with error set.
    // `local` fills dst when the system does not tell the destination.
    int receive(int fd, const NetAddress &local, Datagram *out, std::string &error);

    // Datagrams the system dropped on fd because its receive buffer was
    // full, as last reported (a running count per socket).
    uint32_t dropped() const { return dropped_; }

private:
    struct Buffers;
    std::unique_ptr<Buffers> buffers_;
    uint32_t dropped_ = 0;
};

}  // namespace kovrel_tool
