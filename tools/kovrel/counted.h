// A number with its noun in the right form: "1 octet", "2 octets".
#pragma once

#include <cstdint>
#include <string>

namespace kovrel_tool {

inline std::string counted(uint64_t n, const char *one, const char *many) {
    return std::to_string(n) + ' ' + (n == 1 ? one : many);
}

// The usual case: the plural adds an s.
inline std::string counted(uint64_t n, const std::string &noun) {
    return std::to_string(n) + ' ' + noun + (n == 1 ? "" : "s");
}

}  // namespace kovrel_tool
