#include "blocks.h"

namespace kovrel_tool {

std::vector<BlockSlice> split_blocks(const Chunk &chunk) {
    std::vector<BlockSlice> slices;
    size_t pos = 0;
    while (pos < chunk.size) {
        BlockSlice s;
        s.where = chunk.where;
        s.where.offset += pos;
        s.data = chunk.data + pos;
        const size_t left = chunk.size - pos;
        if (left < 3) {
            s.size = left;
            s.problem = SliceProblem::ShortHeader;
            slices.push_back(s);
            break;
        }
        s.len = static_cast<uint32_t>(s.data[1]) << 8 | s.data[2];
        if (s.len < 3) {
            s.size = left;
            s.problem = SliceProblem::LengthTooSmall;
            slices.push_back(s);
            break;
        }
        if (s.len > left) {
            s.size = left;
            s.problem = SliceProblem::LengthTooLarge;
            slices.push_back(s);
            break;
        }
        s.size = s.len;
        slices.push_back(s);
        pos += s.len;
    }
    return slices;
}

const char *slice_problem_text(SliceProblem problem) {
    switch (problem) {
    case SliceProblem::None:
        return "";
    case SliceProblem::ShortHeader:
        return "too few octets for a block header";
    case SliceProblem::LengthTooSmall:
        return "LEN below 3";
    case SliceProblem::LengthTooLarge:
        return "LEN beyond the octets available";
    }
    return "";
}

}  // namespace kovrel_tool
