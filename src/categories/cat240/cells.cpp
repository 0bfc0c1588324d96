// Video cells: the non-empty cells of a block of 8-bit cells with their
// ranges, and their detail table.
#include <cstdio>
#include <cstring>

#include "categories/cat240/video_state.h"
#include "items/item_support.h"
#include "kovrel/core.h"
#include "kovrel/html.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

// The RES code of 8-bit cells, the one resolution a cell list holds.
constexpr uint32_t kRes8Bits = 4;

// The paragraphs and table of a cell list, written row by row.
class CellTable {
public:
    CellTable(TextWriter &w, uint64_t count, uint32_t bits)
        : table_(w), full_scale_(static_cast<double>((uint64_t{1} << bits) - 1)), open_(count > 0) {
        ast_html_gen_para(w.end(), w.end_size(), "%d valid (non empty) video cells.", static_cast<int>(count));
        w.resync();
        ast_html_gen_para(w.end(), w.end_size(), "Video resolution is %d-bits.", static_cast<int>(bits));
        w.resync();
        // "Amptitude" is the spelling that existing viewers match on.
        if (open_) table_.header("Number", "Range", "Amptitude Value", "Amptitude Relative");
    }
    ~CellTable() {
        if (open_) table_.end();
    }
    CellTable(const CellTable &) = delete;
    CellTable &operator=(const CellTable &) = delete;

    void row(const AstVideoCell &c) {
        char number[16], range[48], value[16], relative[48];
        std::snprintf(number, sizeof number, "%u", c.number);
        std::snprintf(range, sizeof range, "%.2f", c.range);
        std::snprintf(value, sizeof value, "%u", c.amplitude);
        std::snprintf(relative, sizeof relative, "%.2f%%", c.amplitude * 100.0 / full_scale_);
        table_.row(number, range, value, relative);
    }

private:
    items::DetailTable table_;
    double full_scale_;
    bool open_;
};

}  // namespace

namespace kovrel::cat240 {

void block_cells_detail(TextWriter &w, const uint8_t *octets, size_t count, uint32_t start_range,
                        double cell_duration) {
    uint64_t cells = 0;
    for (size_t i = 0; i < count; ++i) cells += octets[i] != 0;
    if (cells > AST_VIDEO_MAX_CELLS) return;
    CellTable table(w, cells, 8);
    const double cell_length = cell_duration * kHalfLightSpeed;
    for (size_t i = 0; i < count && !w.full(); ++i) {
        if (octets[i] == 0) continue;
        const AstVideoCell c{static_cast<uint32_t>(i + 1),
                             (static_cast<double>(start_range) + static_cast<double>(i)) * cell_length, octets[i]};
        table.row(c);
    }
}

}  // namespace kovrel::cat240

namespace {

}  // namespace

extern "C" {

KOVREL_API void ast_videocell_decode(AstVideoCells *out, const uint8_t *octets, size_t count, uint32_t res,
                                     uint32_t start_range, double cell_duration) {
    if (!out) return;
    std::memset(static_cast<void *>(out), 0, sizeof *out);
    out->res = res;
    if (res != kRes8Bits) {
        ast_log(AST_LOG_CRITICAL, "Unsupported video resolution %d-bits.", static_cast<int>(res));
        return;
    }
    if (!octets) count = 0;
    const double cell_length = cell_duration * kovrel::cat240::kHalfLightSpeed;
    uint64_t n = 0;
    for (size_t i = 0; i < count; ++i) {
        if (octets[i] == 0) continue;  // an empty cell
        if (n == AST_VIDEO_MAX_CELLS) {
            out->count = n;
            ast_log(AST_LOG_PANIC, "Number of videocells %zu exceeds the limit %u.", static_cast<size_t>(n + 1),
                    static_cast<unsigned>(AST_VIDEO_MAX_CELLS));
            return;
        }
        AstVideoCell &cell = out->cells[n++];
        cell.number = static_cast<uint32_t>(i + 1);
        cell.range = (static_cast<double>(start_range) + static_cast<double>(i)) * cell_length;
        cell.amplitude = octets[i];
    }
    out->count = n;
    out->valid = 1;
}

KOVREL_API void ast_videocells_get_detail_html(char *buffer, size_t size, const AstVideoCells *cells) {
    TextWriter w = TextWriter::continuing(buffer, size);
    if (!cells || cells->valid != 1) return;
    const uint64_t count = cells->count < AST_VIDEO_MAX_CELLS ? cells->count : AST_VIDEO_MAX_CELLS;
    CellTable table(w, count, ast_video_resolution_bits(cells->res));
    for (uint64_t i = 0; i < count && !w.full(); ++i) table.row(cells->cells[i]);
}

}  // extern "C"
