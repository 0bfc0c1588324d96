// The dotted path of the field a walk over an item's fields is at
// ("rho", "vectors.2.x"): pushed on entering a field, popped on leaving it,
// without allocating. A path too deep or too long for its buffer stops
// matching anything below the level that did not fit.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstring>
#include <string_view>

#include <kovrel/kovrel.h>

namespace kovrel_tool {

struct FieldPath {
    static constexpr size_t kDepth = 40;
    char path[512];
    size_t length = 0;          // of the path
    size_t starts[kDepth];      // where the segment of each open level starts
    size_t depth = 0;
    size_t overflow_at = 0;     // the level whose segment did not fit (0: none); nothing below it matches

    // Appends the segment of a field (its name, or its position in an array).
    void push(const AstField &f) {
        if (depth < kDepth) starts[depth] = length;
        ++depth;
        if (overflow_at) return;
        char seg[24];
        const char *s = f.name;
        size_t n;
        if (s) {
            n = std::strlen(s);
        } else {
            n = static_cast<size_t>(std::to_chars(seg, seg + sizeof seg, f.index).ptr - seg);
            s = seg;
        }
        if (depth > kDepth || length + 1 + n > sizeof path) {
            overflow_at = depth;
            return;
        }
        if (length) path[length++] = '.';
        std::memcpy(path + length, s, n);
        length += n;
    }
    void pop() {
        if (depth == 0) return;
        if (overflow_at == depth) overflow_at = 0;
        --depth;
        if (!overflow_at && depth < kDepth) length = starts[depth];
    }
    // The path of the field the walk is at (meaningless while overflow_at).
    std::string_view view() const { return std::string_view(path, length); }
};

}  // namespace kovrel_tool
