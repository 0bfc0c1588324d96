// The per-thread video state of CAT240 and what the items share.
//
// Video block items carry no resolution, start range or cell duration of
// their own: those come from the header (I240/040, I240/041) and resolution
// (I240/048) items that precede the block in the same record. Each thread
// remembers the last ones it decoded, so a block's summary can count its
// cells; two threads decoding different video streams never see each
// other's.
#pragma once

#include <cstdint>

#include "core/text.h"
#include "kovrel/cat240.h"
#include "record/field_desc.h"

namespace kovrel::cat240 {

struct VideoState {
    uint32_t start_range = 0;    // cell index of the first cell
    double cell_duration = 0.0;  // s
    uint32_t res = 0;            // RES code, 0 while no I240/048 was seen
};

// This thread's state.
VideoState &video_state();

// Half the speed of light: metres of range per second of echo delay.
inline constexpr double kHalfLightSpeed = 299792458.0 * 0.5;

// Octets of one repetition of the video blocks 050, 051, 052.
inline constexpr uint32_t kBlockUnit050 = 4;
inline constexpr uint32_t kBlockUnit051 = 64;
inline constexpr uint32_t kBlockUnit052 = 256;

// Appends the table of ast_videocells_get_detail_html for `count` octets of
// 8-bit cells, without a cell list of its own; nothing when more than 1024
// cells are not empty.
void block_cells_detail(TextWriter &w, const uint8_t *octets, size_t count, uint32_t start_range,
                        double cell_duration);

}  // namespace kovrel::cat240

namespace kovrel::fields {

// The field descriptions of CAT240's own structures.
extern const FieldDesc k240_020;
extern const FieldDesc k240_030;
extern const FieldDesc k240_040;
extern const FieldDesc k240_041;
extern const FieldDesc k240_048;
extern const FieldDesc k240_049;
extern const FieldDesc k240_block;

}  // namespace kovrel::fields
