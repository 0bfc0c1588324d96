// The video of a disassembled record as an array of cell amplitudes, with
// the azimuth sector and the range scale that place it.
#include "categories/cat240/video_state.h"
#include "kovrel/core.h"

namespace {

using kovrel::cat240::kHalfLightSpeed;

constexpr uint32_t kVideoSummary = 1;
constexpr uint32_t kVideoMessage = 2;
// REP 255 of 256-octet repetitions: beyond what a high-volume block may hold.
constexpr uint64_t kHighBlockLimit = 255u * 255u;

// A block counts as present when it decoded or announced octets.
bool present(const AstVideoBlock &b) { return b.valid == 1 || b.length != 0; }

bool usable(const AstVideoBlock &b) { return b.valid == 1 && (b.video != nullptr || b.length == 0); }

AstVideoVector fail(AstVideoVector v, uint32_t status) {
    v.valid = 0;
    v.status = status;
    v.cells = nullptr;
    return v;
}

}  // namespace

extern "C" KOVREL_API AstVideoVector ast_datarecord_240_get_vector(const AstRecord240 *record, uint32_t *cells,
                                                                   size_t capacity) {
    AstVideoVector v{};
    if (!record || record->valid != 1) return fail(v, AST_VIDEO_RECORD_NOT_VALID);
    if (record->i000.valid == 1 && record->i000.value == kVideoSummary) return fail(v, AST_VIDEO_IS_SUMMARY);
    if (record->i000.valid != 1 || record->i000.value != kVideoMessage) return fail(v, AST_VIDEO_NO_MESSAGE_TYPE);

    // What places the video: sequence, time, sector and range scale.
    if (record->i020.valid == 1) v.msg_index = record->i020.msg_index;
    if (record->i140.valid == 1) {
        v.tod_valid = 1;
        v.hour = record->i140.hour;
        v.minute = record->i140.minute;
        v.second = record->i140.second;
        v.millisecond = record->i140.millisecond;
    }
    const bool nano = record->i040.valid == 1;
    const bool femto = record->i041.valid == 1;
    if (!nano && !femto) return fail(v, AST_VIDEO_NO_HEADER);
    if (nano && femto) return fail(v, AST_VIDEO_TWO_HEADERS);
    const AstVideoHeader &h = nano ? record->i040 : record->i041;
    v.start_az = h.start_az;
    v.end_az = h.end_az;
    v.cell_duration = h.cell_dur;
    v.cell_length = h.cell_dur * kHalfLightSpeed;
    v.start_rg = h.start_rg;
    v.start_range = h.start_rg * v.cell_length;

    if (record->i048.valid != 1) return fail(v, AST_VIDEO_NO_RESOLUTION);
    v.res = record->i048.res;
    if (v.res == 0 || v.res > 6) return fail(v, AST_VIDEO_BAD_RESOLUTION);
    if (v.res >= 5) return fail(v, AST_VIDEO_WIDE_CELLS);
    if (record->i048.c) return fail(v, AST_VIDEO_COMPRESSED);

    const AstVideoBlock &low = record->i050, &medium = record->i051, &high = record->i052;
    const int blocks = present(low) + present(medium) + present(high);
    if (blocks == 0) return fail(v, AST_VIDEO_NO_BLOCK);
    if (blocks > 1) return fail(v, AST_VIDEO_TWO_BLOCKS);
    const AstVideoBlock &block = usable(low) ? low : usable(medium) ? medium : high;
    if (!usable(block)) {
        const bool too_long = &block == &high && low.length == 0 && medium.length == 0 &&
                              high.length >= kHighBlockLimit;
        return fail(v, too_long ? AST_VIDEO_BLOCK_TOO_LONG : AST_VIDEO_BLOCK_NOT_VALID);
    }

    const uint32_t bits = v.res == 2 ? 2 : v.res == 3 ? 4 : v.res == 4 ? 8 : 1;
    const uint32_t per_octet = 8 / bits;
    v.cell_mask = (1u << bits) - 1;
    uint64_t octets = block.length;
    v.cell_count = octets * per_octet;
    if (record->i049.valid == 1) {
        const AstItem240_049 &n = record->i049;
        if (block.length >= n.nb_vb && uint64_t{n.nb_vb} * per_octet >= n.nb_cells) {
            v.cell_count = n.nb_cells;
            octets = n.nb_vb;
        } else {
            ast_log(AST_LOG_WARNING, "I240/049 counters VB %u CELLS %u are inconsistent with the video block size %zu.",
                    n.nb_vb, n.nb_cells, static_cast<size_t>(block.length));
        }
    } else {
        ast_log(AST_LOG_CRITICAL, "I240/049 is missing, the extent of the video block is derived from its size.");
    }

    if (!cells || capacity < v.cell_count) return fail(v, AST_VIDEO_NO_ROOM);
    // Nearest cell first; within an octet the first cell is in the top bits.
    uint64_t n = 0;
    if (bits == 8) {
        // One octet a cell: the common case of live video, kept a plain copy.
        for (; n < v.cell_count; ++n) cells[n] = block.video[n];
    }
    for (uint64_t i = 0; i < octets && n < v.cell_count; ++i) {
        const uint32_t octet = block.video[i];
        for (uint32_t shift = 8 - bits;; shift -= bits) {
            if (n == v.cell_count) break;
            cells[n++] = (octet >> shift) & v.cell_mask;
            if (shift == 0) break;
        }
    }
    v.cells = cells;
    v.status = AST_VIDEO_OK;
    v.valid = 1;
    return v;
}
