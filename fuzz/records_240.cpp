// CAT240 records: disassembled, every accessor asked, the video vector
// unpacked into arrays of every capacity from 0 to its cell count with a
// canary past the end, and the cell list of the block decoded and shown.
#include <cstring>
#include <initializer_list>

#include "fuzz_records.h"
#include "kovrel/cat240.h"

namespace fuzzing {

namespace {

constexpr uint32_t kCanary = 0xC0FFEE11u;
// Cells of the largest block a fuzz input can carry, with room for the canary.
uint32_t g_cells[(1 << 17) * 8 + 1];

// A text written into `size` octets must end inside them.
void check_text(const char *text, size_t size) {
    if (size > 0 && std::memchr(text, '\0', size) == nullptr) __builtin_trap();
}

void exercise_vector(const AstRecord240 &d) {
    const AstVideoVector first = ast_datarecord_240_get_vector(&d, nullptr, 0);
    if (first.status != AST_VIDEO_NO_ROOM) {
        if (first.valid == 1 && first.cell_count != 0) __builtin_trap();  // cells without an array
        if (first.valid == 1 && first.cells != nullptr) __builtin_trap();
        if (first.status != AST_VIDEO_OK) return;
    }
    const uint64_t count = first.cell_count;
    if (count + 1 > sizeof g_cells / sizeof g_cells[0]) __builtin_trap();  // more cells than the block has bits
    for (uint64_t capacity = 0; capacity <= count; ++capacity) {
        g_cells[capacity] = kCanary;
        const AstVideoVector v = ast_datarecord_240_get_vector(&d, g_cells, static_cast<size_t>(capacity));
        if (g_cells[capacity] != kCanary) __builtin_trap();  // written past the capacity
        if (v.cell_count != count) __builtin_trap();
        if ((capacity < count) != (v.status == AST_VIDEO_NO_ROOM)) __builtin_trap();
        if (v.status == AST_VIDEO_OK) {
            if (v.cells != g_cells) __builtin_trap();
            for (uint64_t i = 0; i < count; ++i)
                if (g_cells[i] > v.cell_mask) __builtin_trap();
        }
    }
}

void exercise_cells(const AstVideoBlock &block, const AstRecord240 &d) {
    if (block.valid != 1) return;
    static AstVideoCells cells;
    const AstVideoHeader &h = d.i040.valid == 1 ? d.i040 : d.i041;
    ast_videocell_decode(&cells, block.video, block.length, d.i048.res, h.start_rg, h.cell_dur);
    if (cells.count > AST_VIDEO_MAX_CELLS) __builtin_trap();
    for (uint64_t i = 0; i < cells.count; ++i)
        if (cells.cells[i].number == 0 || cells.cells[i].number > block.length || cells.cells[i].amplitude == 0)
            __builtin_trap();
    for (size_t small : {size_t{0}, size_t{1}, size_t{40}, size_t{200}, sizeof g_text - 1}) {
        g_text[0] = '\0';
        g_text[small] = '#';
        ast_videocells_get_detail_html(g_text, small, &cells);
        check_text(g_text, small);
        if (g_text[small] != '#') __builtin_trap();  // nothing written past the size
    }
}

}  // namespace

void exercise_record_240(const AstDataRecord &record) {
    static AstRecord240 d;
    ast_datarecord_240_disassemble(&d, &record);

    AstDataSourceIdentifier sid;
    ast_datarecord_240_get_sacsic(&sid, &record);
    AstTimeOfDay tod;
    ast_datarecord_240_get_timeofday(&tod, &record);
    AstRecordMsgType type;
    ast_datarecord_240_get_msgtype(&type, &record);
    if (type.valid == 1 && type.value != 7) __builtin_trap();

    if (d.valid != 1) return;
    if (d.i030.valid == 1 && std::memchr(d.i030.text, '\0', sizeof d.i030.text) == nullptr) __builtin_trap();
    exercise_vector(d);
    exercise_cells(d.i050, d);
    exercise_cells(d.i051, d);
    exercise_cells(d.i052, d);
}

}  // namespace fuzzing
