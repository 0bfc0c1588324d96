#include "html_video.h"

#include <cstdio>
#include <vector>

namespace kovrel_tool {
namespace {

// Columns of the drawing: one per cell up to this many, then the strongest
// echo of each group of cells, so that a target one cell long still shows.
constexpr size_t kVideoColumns = 720;
constexpr int kVideoWidth = 720;
constexpr int kVideoStrip = 32;
constexpr double kMetresPerNm = 1852.0;

const char *video_problem(uint32_t status) {
    switch (status) {
    case AST_VIDEO_NO_MESSAGE_TYPE: return "it is neither a video message nor a video summary";
    case AST_VIDEO_NO_HEADER: return "it has no video header";
    case AST_VIDEO_TWO_HEADERS: return "it has both a nano and a femto video header";
    case AST_VIDEO_NO_RESOLUTION: return "it gives no cell resolution (I240/048)";
    case AST_VIDEO_BAD_RESOLUTION: return "its cell resolution is not a standard one";
    case AST_VIDEO_WIDE_CELLS: return "its cells of 16 or 32 bits are not drawn";
    case AST_VIDEO_COMPRESSED: return "its video is compressed";
    case AST_VIDEO_NO_BLOCK: return "it has no video block";
    case AST_VIDEO_TWO_BLOCKS: return "it has more than one video block";
    case AST_VIDEO_BLOCK_NOT_VALID: return "its video block is shorter than its REP says";
    case AST_VIDEO_BLOCK_TOO_LONG: return "its high-volume video block has REP 255";
    default: return "it is not a readable video record";
    }
}

}  // namespace

std::string video_figure(const AstDataRecord &r) {
    static AstRecord240 video;
    ast_datarecord_240_disassemble(&video, &r);
    AstVideoVector v = ast_datarecord_240_get_vector(&video, nullptr, 0);
    if (v.status == AST_VIDEO_IS_SUMMARY || v.status == AST_VIDEO_RECORD_NOT_VALID) return "";
    std::vector<uint32_t> cells;
    if (v.status == AST_VIDEO_NO_ROOM) {
        cells.resize(static_cast<size_t>(v.cell_count) + 1);
        v = ast_datarecord_240_get_vector(&video, cells.data(), cells.size());
    }
    if (v.status != AST_VIDEO_OK)
        return std::string("<p class=\"note\">The video of this record is not drawn: ") + video_problem(v.status) +
               ".</p>\n";

    const size_t count = static_cast<size_t>(v.cell_count);
    const size_t columns = count < kVideoColumns ? count : kVideoColumns;
    std::string svg;
    char text[320];
    std::snprintf(text, sizeof text,
                  "<svg class=\"video\" role=\"img\" width=\"%d\" height=\"%d\" style=\"display:block;margin:6px 0;"
                  "font:11px ui-monospace,monospace\"><title>Video, azimuth %.2f to %.2f deg</title>",
                  kVideoWidth, kVideoStrip + 16, v.start_az, v.end_az);
    svg += text;
    std::snprintf(text, sizeof text,
                  "<svg width=\"%d\" height=\"%d\" viewBox=\"0 0 %zu 1\" preserveAspectRatio=\"none\">"
                  "<rect width=\"%zu\" height=\"1\" fill=\"#000\"/>",
                  kVideoWidth, kVideoStrip, columns == 0 ? size_t{1} : columns, columns == 0 ? size_t{1} : columns);
    svg += text;
    // Runs of columns of one grey become one rectangle.
    size_t run_start = 0;
    uint32_t run_grey = 0;
    for (size_t c = 0; c <= columns; ++c) {
        uint32_t grey = 0;
        if (c < columns) {
            const size_t first = c * count / columns, last = (c + 1) * count / columns;
            uint32_t strongest = 0;
            for (size_t i = first; i < last; ++i) strongest = cells[i] > strongest ? cells[i] : strongest;
            grey = v.cell_mask ? strongest * 255u / v.cell_mask : 0;
        }
        if (c < columns && c > run_start && grey == run_grey) continue;
        if (c > run_start && run_grey != 0) {
            std::snprintf(text, sizeof text, "<rect x=\"%zu\" width=\"%zu\" height=\"1\" fill=\"#%02x%02x%02x\"/>",
                          run_start, c - run_start, run_grey, run_grey, run_grey);
            svg += text;
        }
        run_start = c;
        run_grey = grey;
    }
    svg += "</svg>";
    const double end_range = v.start_range + v.cell_count * v.cell_length;
    std::snprintf(text, sizeof text,
                  "<text x=\"0\" y=\"%d\">%.2f NM</text>"
                  "<text x=\"%d\" y=\"%d\" text-anchor=\"middle\">AZ %.2f-%.2f&deg; %llu cells of %u bit%s</text>"
                  "<text x=\"%d\" y=\"%d\" text-anchor=\"end\">%.2f NM</text></svg>\n",
                  kVideoStrip + 12, v.start_range / kMetresPerNm, kVideoWidth / 2, kVideoStrip + 12, v.start_az,
                  v.end_az, static_cast<unsigned long long>(v.cell_count), ast_video_resolution_bits(v.res),
                  v.res == 1 ? "" : "s", kVideoWidth, kVideoStrip + 12, end_range / kMetresPerNm);
    svg += text;
    return svg;
}


}  // namespace kovrel_tool
