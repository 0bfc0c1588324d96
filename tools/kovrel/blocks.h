// Cutting a chunk of octets into data blocks by their LEN field.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "input.h"

namespace kovrel_tool {

// What the header of a slice says about it.
enum class SliceProblem {
    None,            // LEN fits: the slice is exactly LEN octets
    ShortHeader,     // fewer than 3 octets left: no block header at all
    LengthTooSmall,  // LEN below 3: the next block cannot be found
    LengthTooLarge,  // LEN beyond the octets left: the slice is what is left
};

struct BlockSlice {
    Location where;             // the block's first octet
    const uint8_t *data = nullptr;
    size_t size = 0;            // LEN, or the octets left when LEN does not fit
    uint32_t len = 0;           // the LEN field (0 with ShortHeader)
    SliceProblem problem = SliceProblem::None;
};

// Cuts a chunk into blocks: the first block starts at the chunk's first
// octet, each next one LEN octets further. The first slice with a problem
// is the last one: after it the next block's start is unknown.
std::vector<BlockSlice> split_blocks(const Chunk &chunk);

// A short text for a slice problem ("" for None).
const char *slice_problem_text(SliceProblem problem);

}  // namespace kovrel_tool
