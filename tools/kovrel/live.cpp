#include "live.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <memory>
#include <poll.h>
#include <unistd.h>

#include "datagram_recorder.h"
#include "input_udp.h"

namespace kovrel_tool {
namespace {

volatile std::sig_atomic_t g_stop = 0;

void on_stop_signal(int) { g_stop = 1; }

// SIGINT and SIGTERM end the loop instead of the program: they are blocked
// but while waiting for datagrams (ppoll), so none is missed between a
// check of the flag and the wait.
class StopSignals {
public:
    StopSignals() {
        g_stop = 0;
        struct sigaction action {};
        action.sa_handler = on_stop_signal;
        sigemptyset(&action.sa_mask);
        sigaction(SIGINT, &action, &old_int_);
        sigaction(SIGTERM, &action, &old_term_);
        sigset_t stop;
        sigemptyset(&stop);
        sigaddset(&stop, SIGINT);
        sigaddset(&stop, SIGTERM);
        sigprocmask(SIG_BLOCK, &stop, &wait_mask_);
        sigdelset(&wait_mask_, SIGINT);
        sigdelset(&wait_mask_, SIGTERM);
    }
    ~StopSignals() {
        sigprocmask(SIG_SETMASK, &wait_mask_, nullptr);
        sigaction(SIGINT, &old_int_, nullptr);
        sigaction(SIGTERM, &old_term_, nullptr);
    }
    const sigset_t *wait_mask() const { return &wait_mask_; }

private:
    struct sigaction old_int_ {}, old_term_ {};
    sigset_t wait_mask_{};
};

struct Socket {
    std::string name;  // the URL with the port bound
    int fd = -1;
    NetAddress local;
    std::unique_ptr<UdpReceiver> receiver;
    uint64_t datagrams = 0, octets = 0, blocks = 0;
};

uint64_t records_so_far(const Stats &stats) { return stats.filtered ? stats.matched : stats.records; }

}  // namespace

int decode_live(DecodeSession &session, const LiveOptions &options, std::FILE *messages) {
    std::vector<Socket> sockets(options.endpoints.size());
    auto close_all = [&] {
        for (Socket &s : sockets)
            if (s.fd >= 0) close(s.fd), s.fd = -1;
    };
    for (size_t i = 0; i < sockets.size(); ++i) {
        const UdpEndpoint &e = options.endpoints[i];
        Socket &s = sockets[i];
        std::string error;
        uint16_t port = 0;
        s.fd = open_udp_socket(e, port, error);
        if (s.fd < 0) {
            std::fprintf(messages, "kovrel: %s: %s\n", e.text.c_str(), error.c_str());
            close_all();
            return 1;
        }
        s.local = e.address;
        s.local.port = port;
        s.name = udp_url(e, port);
        s.receiver = std::make_unique<UdpReceiver>();
    }
    DatagramRecorder recorder;
    std::string error;
    if (!options.record.empty() && !recorder.open(options.record, error)) {
        std::fprintf(messages, "kovrel: cannot write %s: %s\n", options.record.c_str(), error.c_str());
        close_all();
        return 1;
    }

    int status = 0;
    std::vector<pollfd> polls(sockets.size());
    for (size_t i = 0; i < sockets.size(); ++i) polls[i] = {sockets[i].fd, POLLIN, 0};
    Datagram batch[UdpReceiver::kBatch];
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::duration<double>(options.duration);
    bool done = false;
    {
        // Caught from before the sockets are told, so that a signal sent on
        // seeing them ends the run as any other.
        StopSignals signals;
        for (const Socket &s : sockets) std::fprintf(messages, "kovrel: listening on %s\n", s.name.c_str());
        std::fflush(messages);
        while (!done && !g_stop) {
            timespec wait{};
            timespec *timeout = nullptr;
            if (options.duration > 0) {
                const auto left = deadline - std::chrono::steady_clock::now();
                if (left <= std::chrono::steady_clock::duration::zero()) break;
                const auto ns = std::chrono::duration_cast<std::chrono::nanoseconds>(left).count();
                wait.tv_sec = static_cast<time_t>(ns / 1000000000);
                wait.tv_nsec = static_cast<long>(ns % 1000000000);
                timeout = &wait;
            }
            const int ready = ppoll(polls.data(), polls.size(), timeout, signals.wait_mask());
            if (ready < 0) {
                if (errno == EINTR) continue;
                std::fprintf(messages, "kovrel: waiting for datagrams failed: %s\n", std::strerror(errno));
                status = 1;
                break;
            }
            for (size_t i = 0; i < sockets.size() && !done; ++i) {
                if (!(polls[i].revents & (POLLIN | POLLERR))) continue;
                Socket &s = sockets[i];
                // A few batches per socket in turn, so that a busy one does not starve the others.
                for (int round = 0; round < 8 && !done; ++round) {
                    const int n = s.receiver->receive(s.fd, s.local, batch, error);
                    if (n < 0) {
                        std::fprintf(messages, "kovrel: %s: %s\n", s.name.c_str(), error.c_str());
                        status = 1;
                        done = true;
                        break;
                    }
                    for (int k = 0; k < n && !done; ++k) {
                        const Datagram &d = batch[k];
                        ++s.datagrams;
                        s.octets += d.size;
                        if (!recorder.write(d, error)) {
                            std::fprintf(messages, "kovrel: writing %s failed: %s\n", options.record.c_str(),
                                         error.c_str());
                            status = 1;
                            done = true;
                            break;
                        }
                        Chunk chunk;
                        chunk.where = Location{s.datagrams, 0};
                        chunk.data = d.data;
                        chunk.size = d.size;
                        chunk.time = static_cast<double>(d.seconds) + static_cast<double>(d.nanoseconds) * 1e-9;
                        chunk.src = d.src;
                        chunk.dst = d.dst;
                        chunk.received = true;
                        if (!session.decode_datagram(s.name, chunk, s.blocks)) done = true;
                        if (options.count && records_so_far(session.stats()) >= options.count) done = true;
                    }
                    // The records of a batch go out together, as soon as it is decoded.
                    if (!session.write_out()) done = true;
                    if (!done && !recorder.flush(error)) {
                        std::fprintf(messages, "kovrel: writing %s failed: %s\n", options.record.c_str(),
                                     error.c_str());
                        status = 1;
                        done = true;
                    }
                    if (n < static_cast<int>(UdpReceiver::kBatch)) break;
                }
            }
        }
    }
    if (!recorder.close(error) && status == 0) {
        std::fprintf(messages, "kovrel: writing %s failed: %s\n", options.record.c_str(), error.c_str());
        status = 1;
    }
    for (Socket &s : sockets) {
        CaptureStats counts;
        counts.packets = counts.udp = s.datagrams;
        session.add_live_input(counts);
        if (s.datagrams == 0) std::fprintf(messages, "kovrel: %s: nothing received\n", s.name.c_str());
        if (s.receiver->dropped())
            std::fprintf(messages, "kovrel: %s: %u datagrams dropped by the system (receive buffer full)\n",
                         s.name.c_str(), s.receiver->dropped());
    }
    close_all();
    return status;
}

}  // namespace kovrel_tool
