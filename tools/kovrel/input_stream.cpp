// Reading an input as it arrives.
#include "input_stream.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <unistd.h>

namespace kovrel_tool {
namespace {

volatile std::sig_atomic_t g_stop = 0;

void on_stop_signal(int) { g_stop = 1; }

constexpr int kFollowPollMs = 200;  // how often a followed file is looked at again
constexpr int kHeadPauseMs = 300;   // a pause this long ends the head early

}  // namespace

void follow_signals() {
    struct sigaction action;
    std::memset(&action, 0, sizeof action);
    action.sa_handler = on_stop_signal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = 0;  // no SA_RESTART: a waiting read or poll returns at once
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

bool follow_stopped() { return g_stop != 0; }

StreamSource::StreamSource(int fd, bool follow, std::function<void()> on_wait)
    : fd_(fd), follow_(follow), on_wait_(std::move(on_wait)) {}

long StreamSource::read_fd(uint8_t *out, size_t size, int wait_ms) {
    for (;;) {
        if (follow_ && g_stop) return 0;
        pollfd p{fd_, POLLIN, 0};
        const int ready = poll(&p, 1, 0);
        if (ready == 0) {
            // Nothing to read now: what was decoded goes out before waiting.
            if (on_wait_) on_wait_();
            if (wait_ms >= 0) {
                if (poll(&p, 1, wait_ms) == 0) return -2;  // a pause
            }
        }
        const ssize_t n = ::read(fd_, out, size);
        if (n > 0) return static_cast<long>(n);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return -1;
        // The end of the input; a followed file may grow later.
        if (!follow_) return 0;
        if (wait_ms >= 0) return -2;
        if (on_wait_) on_wait_();
        if (g_stop) return 0;
        poll(nullptr, 0, kFollowPollMs);
    }
}

bool StreamSource::read_head(size_t want, size_t enough, std::string &error) {
    head_.resize(want);
    size_t got = 0;
    while (got < want) {
        const long n = read_fd(head_.data() + got, want - got, got >= enough ? kHeadPauseMs : -1);
        if (n == -2) break;
        if (n < 0) {
            error = std::strerror(errno);
            head_.resize(got);
            return false;
        }
        if (n == 0) {
            ended_ = true;
            break;
        }
        got += static_cast<size_t>(n);
    }
    head_.resize(got);
    return true;
}

long StreamSource::read(uint8_t *out, size_t size) {
    if (head_pos_ < head_.size()) {
        const size_t n = std::min(size, head_.size() - head_pos_);
        std::memcpy(out, head_.data() + head_pos_, n);
        head_pos_ += n;
        if (head_pos_ == head_.size()) {
            head_.clear();
            head_.shrink_to_fit();
            head_pos_ = 0;
        }
        consumed_ += n;
        return static_cast<long>(n);
    }
    if (ended_ && !follow_) return 0;
    const long n = read_fd(out, size, -1);
    if (n > 0) consumed_ += static_cast<uint64_t>(n);
    return n;
}

std::FILE *StreamSource::as_file() {
    cookie_io_functions_t io{};
    io.read = [](void *cookie, char *buf, size_t size) -> ssize_t {
        return static_cast<StreamSource *>(cookie)->read(reinterpret_cast<uint8_t *>(buf), size);
    };
    return fopencookie(this, "rb", io);
}

}  // namespace kovrel_tool
