// Test helper: captures everything the library logs while it is alive.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "kovrel/core.h"

namespace kovrel_test {

struct LogLine {
    uint32_t level;
    std::string text;
};

// Registers a capturing handler on construction and switches logging off
// again on destruction (tests never print to standard output).
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    const std::vector<LogLine> &lines() const;
    void clear();
    // True when some captured line has this level and exactly this text.
    bool contains(uint32_t level, const std::string &text) const;
    size_t size() const { return lines().size(); }
};

}  // namespace kovrel_test
