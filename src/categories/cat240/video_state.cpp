// The per-thread video state, and the bits per cell of a RES code.
#include "categories/cat240/video_state.h"

#include "kovrel/export.h"

namespace kovrel::cat240 {

VideoState &video_state() {
    static thread_local VideoState state;
    return state;
}

}  // namespace kovrel::cat240

extern "C" KOVREL_API uint32_t ast_video_resolution_bits(uint32_t res) {
    // RES 1 and every code the standard does not define count one bit a
    // cell: the narrowest reading never claims more cells than there are bits.
    return res >= 2 && res <= 6 ? 1u << (res - 1) : 1u;
}
