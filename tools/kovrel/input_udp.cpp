#include "input_udp.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace kovrel_tool {
namespace {

constexpr size_t kDatagramRoom = 65536;  // the largest UDP payload fits
constexpr size_t kControlRoom = 256;     // time stamp, destination, drop count

socklen_t to_sockaddr(const NetAddress &a, sockaddr_storage &out, uint32_t scope = 0) {
    std::memset(&out, 0, sizeof out);
    if (a.family == 4) {
        auto *in = reinterpret_cast<sockaddr_in *>(&out);
        in->sin_family = AF_INET;
        in->sin_port = htons(a.port);
        std::memcpy(&in->sin_addr, a.octets, 4);
        return sizeof *in;
    }
    auto *in6 = reinterpret_cast<sockaddr_in6 *>(&out);
    in6->sin6_family = AF_INET6;
    in6->sin6_port = htons(a.port);
    std::memcpy(&in6->sin6_addr, a.octets, 16);
    in6->sin6_scope_id = scope;
    return sizeof *in6;
}

NetAddress from_sockaddr(const sockaddr_storage &s) {
    NetAddress a;
    if (s.ss_family == AF_INET) {
        const auto *in = reinterpret_cast<const sockaddr_in *>(&s);
        a.family = 4;
        a.port = ntohs(in->sin_port);
        std::memcpy(a.octets, &in->sin_addr, 4);
    } else if (s.ss_family == AF_INET6) {
        const auto *in6 = reinterpret_cast<const sockaddr_in6 *>(&s);
        a.family = 6;
        a.port = ntohs(in6->sin6_port);
        std::memcpy(a.octets, &in6->sin6_addr, 16);
    }
    return a;
}

std::string system_error(const char *what) { return std::string(what) + ": " + std::strerror(errno); }

// A socket option that must be set.
bool set(int fd, int level, int name, const void *value, socklen_t size, const char *what, std::string &error) {
    if (setsockopt(fd, level, name, value, size) == 0) return true;
    error = system_error(what);
    return false;
}

bool join(int fd, const UdpEndpoint &e, uint32_t ifindex, std::string &error) {
    const int level = e.address.family == 4 ? IPPROTO_IP : IPPROTO_IPV6;
    NetAddress group = e.address;
    group.port = 0;
    if (e.source.known()) {
        group_source_req req{};
        req.gsr_interface = ifindex;
        to_sockaddr(group, req.gsr_group);
        to_sockaddr(e.source, req.gsr_source);
        return set(fd, level, MCAST_JOIN_SOURCE_GROUP, &req, sizeof req, "cannot join the group from that source",
                   error);
    }
    group_req req{};
    req.gr_interface = ifindex;
    to_sockaddr(group, req.gr_group);
    return set(fd, level, MCAST_JOIN_GROUP, &req, sizeof req, "cannot join the group", error);
}

}  // namespace

int open_udp_socket(const UdpEndpoint &e, uint16_t &port, std::string &error) {
    uint32_t ifindex = 0;
    if (!e.iface.empty() && (ifindex = if_nametoindex(e.iface.c_str())) == 0) {
        error = "no interface named '" + e.iface + "'";
        return -1;
    }
    const bool v4 = e.address.family == 4;
    const int fd = socket(v4 ? AF_INET : AF_INET6, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd < 0) {
        error = system_error("cannot open a socket");
        return -1;
    }
    const int on = 1;
    bool ok = set(fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on, "SO_REUSEADDR", error) &&
              set(fd, SOL_SOCKET, SO_TIMESTAMPNS, &on, sizeof on, "SO_TIMESTAMPNS", error) &&
              set(fd, SOL_SOCKET, SO_RXQ_OVFL, &on, sizeof on, "SO_RXQ_OVFL", error) &&
              (v4 ? set(fd, IPPROTO_IP, IP_PKTINFO, &on, sizeof on, "IP_PKTINFO", error)
                  : set(fd, IPPROTO_IPV6, IPV6_RECVPKTINFO, &on, sizeof on, "IPV6_RECVPKTINFO", error) &&
                        set(fd, IPPROTO_IPV6, IPV6_V6ONLY, &on, sizeof on, "IPV6_V6ONLY", error));
    if (ok) {
        // Beyond the system's limit when allowed to (privileged), else up to it.
        const int size = kReceiveBuffer;
        if (setsockopt(fd, SOL_SOCKET, SO_RCVBUFFORCE, &size, sizeof size) != 0)
            setsockopt(fd, SOL_SOCKET, SO_RCVBUF, &size, sizeof size);
        // Only the groups this socket joined, not those of others on the host.
        if (v4 && e.multicast) {
            const int off = 0;
            setsockopt(fd, IPPROTO_IP, IP_MULTICAST_ALL, &off, sizeof off);
        }
        sockaddr_storage local;
        const socklen_t length = to_sockaddr(e.address, local, e.multicast ? ifindex : 0);
        if (bind(fd, reinterpret_cast<sockaddr *>(&local), length) != 0) {
            error = system_error("cannot bind");
            ok = false;
        }
    }
    if (ok && e.multicast) ok = join(fd, e, ifindex, error);
    if (ok) {
        sockaddr_storage bound;
        socklen_t length = sizeof bound;
        if (getsockname(fd, reinterpret_cast<sockaddr *>(&bound), &length) == 0)
            port = from_sockaddr(bound).port;
        else
            port = e.address.port;
        return fd;
    }
    close(fd);
    return -1;
}

struct UdpReceiver::Buffers {
    std::vector<uint8_t> data = std::vector<uint8_t>(kBatch * kDatagramRoom);
    alignas(cmsghdr) uint8_t control[kBatch][kControlRoom];
    sockaddr_storage from[kBatch];
    iovec iov[kBatch];
    mmsghdr messages[kBatch];
};

UdpReceiver::UdpReceiver() : buffers_(new Buffers) {}
UdpReceiver::~UdpReceiver() = default;

int UdpReceiver::receive(int fd, const NetAddress &local, Datagram *out, std::string &error) {
    Buffers &b = *buffers_;
    for (size_t i = 0; i < kBatch; ++i) {
        b.iov[i] = {b.data.data() + i * kDatagramRoom, kDatagramRoom};
        msghdr &h = b.messages[i].msg_hdr;
        h = msghdr{};
        h.msg_name = &b.from[i];
        h.msg_namelen = sizeof b.from[i];
        h.msg_iov = &b.iov[i];
        h.msg_iovlen = 1;
        h.msg_control = b.control[i];
        h.msg_controllen = kControlRoom;
        b.messages[i].msg_len = 0;
    }
    const int n = recvmmsg(fd, b.messages, kBatch, MSG_DONTWAIT, nullptr);
    if (n < 0) {
        if (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR) return 0;
        error = system_error("cannot receive");
        return -1;
    }
    timespec now{};
    bool have_now = false;
    for (int i = 0; i < n; ++i) {
        const msghdr &h = b.messages[i].msg_hdr;
        Datagram &d = out[i];
        d = Datagram{};
        d.data = b.data.data() + static_cast<size_t>(i) * kDatagramRoom;
        d.size = b.messages[i].msg_len;
        d.truncated = (h.msg_flags & MSG_TRUNC) != 0;
        d.src = from_sockaddr(b.from[i]);
        d.dst = local;
        bool stamped = false;
        for (cmsghdr *c = CMSG_FIRSTHDR(const_cast<msghdr *>(&h)); c; c = CMSG_NXTHDR(const_cast<msghdr *>(&h), c)) {
            if (c->cmsg_level == SOL_SOCKET && c->cmsg_type == SCM_TIMESTAMPNS) {
                timespec ts;
                std::memcpy(&ts, CMSG_DATA(c), sizeof ts);
                d.seconds = ts.tv_sec;
                d.nanoseconds = static_cast<uint32_t>(ts.tv_nsec);
                stamped = true;
            } else if (c->cmsg_level == SOL_SOCKET && c->cmsg_type == SO_RXQ_OVFL) {
                std::memcpy(&dropped_, CMSG_DATA(c), sizeof dropped_);
            } else if (c->cmsg_level == IPPROTO_IP && c->cmsg_type == IP_PKTINFO) {
                in_pktinfo info;
                std::memcpy(&info, CMSG_DATA(c), sizeof info);
                d.dst.family = 4;
                std::memcpy(d.dst.octets, &info.ipi_addr, 4);
            } else if (c->cmsg_level == IPPROTO_IPV6 && c->cmsg_type == IPV6_PKTINFO) {
                in6_pktinfo info;
                std::memcpy(&info, CMSG_DATA(c), sizeof info);
                d.dst.family = 6;
                std::memcpy(d.dst.octets, &info.ipi6_addr, 16);
            }
        }
        if (!stamped) {
            // No kernel time stamp: the time the batch was taken.
            if (!have_now) clock_gettime(CLOCK_REALTIME, &now), have_now = true;
            d.seconds = now.tv_sec;
            d.nanoseconds = static_cast<uint32_t>(now.tv_nsec);
        }
    }
    return n;
}

}  // namespace kovrel_tool
