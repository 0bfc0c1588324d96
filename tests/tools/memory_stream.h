// Test helper: a stream whose text can be read back.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace kovrel_tool_test {

class Capture {
public:
    Capture() : file_(open_memstream(&buf_, &size_)) {}
    ~Capture() {
        std::fclose(file_);
        std::free(buf_);
    }
    Capture(const Capture &) = delete;
    Capture &operator=(const Capture &) = delete;
    std::FILE *file() { return file_; }
    std::string text() {
        std::fflush(file_);
        return std::string(buf_, size_);
    }
    std::vector<std::string> lines() {
        std::vector<std::string> out;
        std::istringstream in(text());
        for (std::string line; std::getline(in, line);) out.push_back(line);
        return out;
    }

private:
    char *buf_ = nullptr;
    size_t size_ = 0;
    std::FILE *file_;
};

}  // namespace kovrel_tool_test
