// What the library remembers, on each thread, of the CAT240 video read last.
//
// A video block's summary counts its cells with the resolution of the last
// I240/048 decoded on the thread, and its detail view uses the start range
// and cell duration of the last video header (I240/040 or I240/041). When
// records are formatted on several threads, the thread that formats a
// stretch of blocks must first know what the blocks before the stretch
// left behind: a VideoMemory follows the items as they are formatted and
// brings another thread to the same state.
#pragma once

#include <cstdint>

#include <kovrel/kovrel.h>

namespace kovrel_tool {

// Which of the items that set the state an output decodes.
enum VideoItems : unsigned {
    kVideoHeaderNano = 1,   // I240/040
    kVideoHeaderFemto = 2,  // I240/041
    kVideoResolution = 4,   // I240/048
    kVideoAll = 7,
};

struct VideoMemory {
    uint32_t header = 0;     // 240040 or 240041 of the last header; 0 before the first
    uint8_t range[8] = {};   // its start range and cell duration (octets 5 to 12)
    uint8_t res = 0;         // RES of the last I240/048; 0 before the first

    bool operator==(const VideoMemory &other) const = default;

    // Follows the items of a record that the output decoded (`items`: a set
    // of VideoItems), in their order.
    void note(const AstDataRecord &record, unsigned items);
    // Brings the calling thread's video state to what this memory describes
    // (decodes a header and a resolution item made for it).
    void restore() const;
};

}  // namespace kovrel_tool
