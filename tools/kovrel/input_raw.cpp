// Raw inputs (data blocks back to back) and text inputs are read whole.
#include <cerrno>
#include <cstring>

#include "input.h"

namespace kovrel_tool {

bool read_stream(std::FILE *file, std::vector<uint8_t> &out, std::string &error, const ProgressFn &progress) {
    uint8_t buffer[1 << 16];
    for (;;) {
        const size_t n = std::fread(buffer, 1, sizeof buffer, file);
        out.insert(out.end(), buffer, buffer + n);
        if (progress) progress(out.size());
        if (n < sizeof buffer) break;
    }
    if (std::ferror(file)) {
        error = std::strerror(errno);
        return false;
    }
    return true;
}

}  // namespace kovrel_tool
