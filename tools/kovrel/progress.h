// A progress bar on standard error for inputs that take a while.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace kovrel_tool {

// Drawn only when enabled (standard error is a terminal that the records
// are not written to) and only once an input has taken more than a second.
class Progress {
public:
    explicit Progress(bool enabled) : enabled_(enabled) {}
    ~Progress() { clear(); }

    // Starts a new input of `total` octets (0 when unknown).
    void start(const std::string &name, uint64_t total);
    void update(uint64_t done);
    // Removes the bar (before a message is printed, and at the end).
    void clear();

private:
    using Clock = std::chrono::steady_clock;
    bool enabled_;
    bool shown_ = false;
    std::string name_;
    uint64_t total_ = 0;
    Clock::time_point started_{};
    Clock::time_point drawn_{};
};

}  // namespace kovrel_tool
