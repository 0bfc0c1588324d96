// Reading an input as it arrives: pipes, standard input, files that grow.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace kovrel_tool {

// The octets of a file descriptor, read in pieces. The first octets can be
// looked at (to tell the kind of input) without losing them: they come out
// of read() first.
class StreamSource {
public:
    // follow: at the end of the input wait for more (a file being
    // written) until SIGINT or SIGTERM (see follow_signals()). on_wait is
    // called each time a read would wait for the input (to flush what is
    // written). The descriptor stays open.
    StreamSource(int fd, bool follow, std::function<void()> on_wait = {});

    // Reads the first octets: until `want` octets, the end of the input,
    // or the input pausing for a moment with at least `enough` octets
    // read. Returns them (also afterwards, through head()); false with
    // error set on a read error.
    bool read_head(size_t want, size_t enough, std::string &error);
    const std::vector<uint8_t> &head() const { return head_; }
    // True when read_head met the end of the input.
    bool head_is_all() const { return ended_; }

    // Reads up to size octets (the head first); 0 at the end of the input
    // (or when following stops), -1 on a read error (errno set).
    long read(uint8_t *out, size_t size);

    // Octets handed out by read() so far.
    uint64_t consumed() const { return consumed_; }

    // A stdio stream over read() (for libpcap, which reads a FILE *); the
    // StreamSource must outlive it. nullptr on failure.
    std::FILE *as_file();

private:
    long read_fd(uint8_t *out, size_t size, int wait_ms);

    int fd_;
    bool follow_;
    std::function<void()> on_wait_;
    std::vector<uint8_t> head_;
    size_t head_pos_ = 0;
    bool ended_ = false;
    uint64_t consumed_ = 0;
};

// Catches SIGINT and SIGTERM so that following an input ends cleanly (the
// rest is decoded, counts are printed). Returns true once one arrived.
void follow_signals();
bool follow_stopped();

}  // namespace kovrel_tool
