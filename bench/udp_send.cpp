// Sends the UDP payloads of the tool's sample recording, round after round,
// to 127.0.0.1:PORT at a steady rate, for the live input benchmark
// (live_bench.sh). Prints the datagrams sent.
//
//   kovrel_udp_send PORT RATE SECONDS
#include <arpa/inet.h>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

#include "input.h"
#include "sample.h"

namespace {

double now() {
    timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: kovrel_udp_send PORT RATE SECONDS\n");
        return 2;
    }
    const int port = std::atoi(argv[1]);
    const double rate = std::atof(argv[2]);
    const double seconds = std::atof(argv[3]);
    if (port <= 0 || port > 65535 || rate <= 0 || seconds <= 0) {
        std::fprintf(stderr, "kovrel_udp_send: bad PORT, RATE or SECONDS\n");
        return 2;
    }

    std::vector<std::vector<uint8_t>> payloads;
    kovrel_tool::CaptureStats stats;
    std::string error;
    std::FILE *sample = fmemopen(const_cast<uint8_t *>(kovrel_tool::kSamplePcap), kovrel_tool::kSamplePcapSize, "rb");
    kovrel_tool::read_capture(
        sample,
        [&](const kovrel_tool::Chunk &c) {
            payloads.emplace_back(c.data, c.data + c.size);
            return true;
        },
        stats, error);
    if (payloads.empty()) {
        std::fprintf(stderr, "kovrel_udp_send: no datagram in the sample: %s\n", error.c_str());
        return 1;
    }

    const int fd = socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(static_cast<uint16_t>(port));
    to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);  // loopback only
    constexpr size_t kBatch = 64;
    std::vector<mmsghdr> messages(kBatch);
    std::vector<iovec> iov(kBatch);

    const uint64_t total = static_cast<uint64_t>(rate * seconds);
    uint64_t sent = 0, failed = 0;
    size_t next = 0;
    const double start = now();
    while (sent + failed < total) {
        // Due by now, at most one batch at a time.
        const auto due = static_cast<uint64_t>((now() - start) * rate) + 1;
        uint64_t want = (due < total ? due : total) - sent - failed;
        if (due <= sent + failed) {
            const timespec pause{0, 50000};
            nanosleep(&pause, nullptr);
            continue;
        }
        if (want > kBatch) want = kBatch;
        for (size_t i = 0; i < want; ++i) {
            const auto &p = payloads[next];
            next = (next + 1) % payloads.size();
            iov[i] = {const_cast<uint8_t *>(p.data()), p.size()};
            messages[i] = mmsghdr{};
            messages[i].msg_hdr.msg_name = &to;
            messages[i].msg_hdr.msg_namelen = sizeof to;
            messages[i].msg_hdr.msg_iov = &iov[i];
            messages[i].msg_hdr.msg_iovlen = 1;
        }
        const int n = sendmmsg(fd, messages.data(), static_cast<unsigned>(want), 0);
        if (n < 0) {
            ++failed;
            continue;
        }
        sent += static_cast<uint64_t>(n);
    }
    std::printf("%llu\n", static_cast<unsigned long long>(sent));
    close(fd);
    return 0;
}
