#include "output_html.h"

#include <cstring>
#include <vector>

#include "decode.h"
#include "session.h"

namespace kovrel_tool {
namespace {

// Kept short: the page is meant to be opened from disk, often by the
// dozen, and must look right without anything fetched.
constexpr const char kStyle[] =
    "body{margin:0;background:#f4f5f7;color:#1f2933;font:14px/1.45 system-ui,-apple-system,'Segoe UI',sans-serif}"
    ".page{display:flex;flex-direction:column;gap:6px;max-width:1280px;margin:0 auto;padding:16px}"
    ".page>header{order:-2}.counts{order:-1}"
    "h1{font-size:20px;margin:0;word-break:break-all}.tool{margin:2px 0 0;color:#616e7c}"
    ".counts{display:flex;flex-wrap:wrap;gap:6px 18px;padding:8px 12px;background:#fff;"
    "border:1px solid #cbd2d9;border-radius:4px}"
    ".counts b{font-variant-numeric:tabular-nums}.counts .bad b{color:#b42318}"
    "details.record{background:#fff;border:1px solid #cbd2d9;border-radius:4px}"
    "details.record>summary{cursor:pointer;padding:5px 10px;font-family:ui-monospace,monospace;font-size:13px}"
    "details.record[open]>summary{border-bottom:1px solid #e4e7eb;background:#f0f4f8}"
    "details.invalid{border-color:#d92d20}details.invalid>summary{color:#b42318}"
    ".sep{color:#9aa5b1;padding:0 4px}"
    ".body{padding:8px 12px;overflow-x:auto}"
    ".item{border-top:1px solid #e4e7eb;padding:6px 0 4px}"
    ".item h3{margin:0;font-size:14px}.item .id{font-family:ui-monospace,monospace;margin-right:8px;color:#3e4c59}"
    ".item .len{margin-left:8px;font-weight:normal;color:#7b8794;font-size:12px}"
    ".item-summary{margin:2px 0 6px;font-family:ui-monospace,monospace;white-space:pre-wrap;word-break:break-word}"
    ".view h4{margin:8px 0 3px;font-size:13px}.view p:empty{display:none}"
    ".octets{display:flex;flex-wrap:wrap;gap:12px;align-items:flex-start}"
    ".note{margin:2px 0;color:#616e7c;font-style:italic}"
    ".problem{margin:0;padding:4px 10px;background:#fef3f2;border-left:4px solid #d92d20;color:#912018;"
    "font-family:ui-monospace,monospace;font-size:13px;word-break:break-word}"
    "table{border-collapse:collapse;font-size:12px}"
    ".detail_table th,.detail_table td{border:1px solid #cbd2d9;padding:2px 6px;text-align:left;vertical-align:top}"
    ".detail_table th{background:#e4e7eb}.detail_table tr.even_row td{background:#f5f7fa}"
    ".hex_table th,.hex_table td,.bin_table th,.bin_table td{border:1px solid #cbd2d9;padding:1px 4px;"
    "text-align:center;font-family:ui-monospace,monospace}"
    ".hex_table th,.bin_table tr.caption_row th{background:#e4e7eb;font-weight:normal;font-family:inherit}"
    ".hex_table td{min-width:1.6em}.bin_table tr.data_row td{min-width:.9em;padding:1px 2px}"
    ".bin_table tr.caption_row th{border-bottom:0}";

constexpr size_t kSummary = 4096;

// A view that fills its buffer may have been cut inside a tag; it is left
// out rather than written broken.
bool filled(const char *text, size_t size) { return std::strlen(text) + 1 >= size; }

std::string id_text(AstItemId id) {
    char buf[16];
    ast_dataitem_type_to_str(buf, sizeof buf, id);
    return buf;
}

std::string count_span(uint64_t n, const char *one, const char *many, bool bad = false) {
    return std::string(bad && n > 0 ? "<span class=\"bad\"><b>" : "<span><b>") + std::to_string(n) + "</b> " +
           (n == 1 ? one : many) + "</span>";
}


// ---- The sweep of a CAT240 video record --------------------------------

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

// An inline SVG of the record's radial: range from left to right, the
// amplitude of each cell as a grey level (black: no echo), the sector and
// the range scale written beneath. Empty for a video summary; a note for a
// video message that cannot be drawn.
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

}  // namespace

struct HtmlPage::Buffers {
    char record[64 * 1024];
    char detail[256 * 1024];
    char table[32 * 1024];
    char summary[kSummary];
    char summary_html[kSummary * 5];  // every character may become "&amp;"
};

HtmlPage::HtmlPage(std::FILE *out, std::string_view input)
    : out_(out), input_(input), buf_(std::make_unique<Buffers>()) {}

HtmlPage::~HtmlPage() = default;

void HtmlPage::put(std::string_view text) { std::fwrite(text.data(), 1, text.size(), out_); }

void HtmlPage::begin() {
    // The library tables carry their classes only; the page's style sheet dresses them.
    ast_html_set_flavor(0);
    const std::string name = html_escape(input_);
    put("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>");
    put(name);
    put(" - kovrel</title>\n<style>");
    put(kStyle);
    put("</style>\n</head>\n<body>\n<div class=\"page\">\n<header><h1>");
    put(name);
    put("</h1><p class=\"tool\">decoded by kovrel ");
    put(html_escape(ast_library_version()));
    put("</p></header>\n");
}

void HtmlPage::problem(std::string_view text) {
    put("<p class=\"problem\">");
    put(html_escape(text));
    put("</p>\n");
}

void HtmlPage::record(const RecordView &v) {
    const AstDataRecord &r = *v.record;
    const bool bad = !r.valid;
    char head[512];
    int n = std::snprintf(head, sizeof head,
                          "<details class=\"record%s\" id=\"b%llur%zu\"%s><summary>Block %llu at %s"
                          "<span class=\"sep\">|</span>record %zu<span class=\"sep\">|</span>CAT%03u %s",
                          bad ? " invalid" : "", static_cast<unsigned long long>(v.block), v.number,
                          shown_ == 0 ? " open" : "", static_cast<unsigned long long>(v.block),
                          format_location(v.where).c_str(), v.number, r.category,
                          r.uap.get_dataitem ? profile_label(r.uap, r.category) : "-");
    put(std::string_view(head, static_cast<size_t>(n) < sizeof head ? static_cast<size_t>(n) : sizeof head - 1));

    AstDataSourceIdentifier src;
    ast_datarecord_get_sacsic(&src, &r);
    if (src.valid) {
        std::snprintf(head, sizeof head, "<span class=\"sep\">|</span>SAC %u SIC %u", src.sac, src.sic);
        put(head);
    }
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    if (tod.valid) {
        std::snprintf(head, sizeof head, "<span class=\"sep\">|</span>%02u:%02u:%02u.%03u", tod.hour, tod.minute,
                      tod.second, tod.millisecond);
        put(head);
    }
    // What a controller looks for first: the track, who it is, where.
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &r);
    if (track.valid) {
        std::snprintf(head, sizeof head, "<span class=\"sep\">|</span>TRK %u", track.number);
        put(head);
    }
    AstRecordCallsign callsign;
    ast_datarecord_get_callsign(&callsign, &r);
    AstMode3aCode squawk;
    ast_datarecord_get_squawk(&squawk, &r);
    if (callsign.valid && callsign.callsign[0] != '\0') {
        put("<span class=\"sep\">|</span>");
        put(html_escape(std::string_view(callsign.callsign, strnlen(callsign.callsign, sizeof callsign.callsign))));
    } else if (squawk.valid) {
        std::snprintf(head, sizeof head, "<span class=\"sep\">|</span>A%04o", squawk.code & 07777u);
        put(head);
    }
    AstRecordWgs84 wgs;
    ast_datarecord_get_wgs84coord(&wgs, &r);
    AstRecordPolar polar;
    ast_datarecord_get_polarcoord(&polar, &r);
    if (wgs.valid) {
        std::snprintf(head, sizeof head, "<span class=\"sep\">|</span>%.5f %.5f", wgs.latitude, wgs.longitude);
        put(head);
    } else if (polar.valid) {
        std::snprintf(head, sizeof head, "<span class=\"sep\">|</span>%.2f NM %.2f&deg;", polar.rho, polar.theta);
        put(head);
    }
    std::snprintf(head, sizeof head, "<span class=\"sep\">|</span>%llu item%s",
                  static_cast<unsigned long long>(r.item_count), r.item_count == 1 ? "" : "s");
    put(head);
    if (bad)
        put("<span class=\"sep\">|</span>INVALID: the block stops here");
    else if (!v.block_valid)
        put("<span class=\"sep\">|</span>in a bad block");
    put("</summary>\n<div class=\"body\">");

    ast_datarecord_get_detail_html(buf_->record, sizeof buf_->record, &r);
    if (filled(buf_->record, sizeof buf_->record))
        put("<p class=\"note\">The item table of this record is too large to show.</p>");
    else
        put(buf_->record);
    put("\n");
    if (r.category == 240 && r.valid) put(video_figure(r));
    for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) item(r.items[i]);
    put("</div></details>\n");
    ++shown_;
}

void HtmlPage::item(const AstDataItem &item) {
    Buffers &b = *buf_;
    put("<div class=\"item\"><h3><span class=\"id\">");
    put(html_escape(id_text(item.id)));
    put("</span>");
    put(html_escape(ast_dataitem_get_name(item.id)));
    char len[48];
    std::snprintf(len, sizeof len, "<span class=\"len\">%llu octet%s</span></h3>",
                  static_cast<unsigned long long>(item.length), item.length == 1 ? "" : "s");
    put(len);

    ast_dataitem_get_summary(b.summary, sizeof b.summary, &item);
    ast_html_escape_text(b.summary_html, sizeof b.summary_html, b.summary);
    put("<p class=\"item-summary\">");
    put(b.summary_html);
    put("</p>");

    ast_dataitem_get_detail_html(b.detail, sizeof b.detail, &item);
    if (filled(b.detail, sizeof b.detail))
        put("<p class=\"note\">The detail view of this item is too large to show.</p>");
    else if (b.detail[0] != '\0') {
        put("<div class=\"view\">");
        put(b.detail);
        put("</div>");
    }

    put("<div class=\"octets\">");
    dump(false, item);
    dump(true, item);
    put("</div>");
    if (item.length > kBitTableOctets) {
        char note[128];
        std::snprintf(note, sizeof note, "<p class=\"note\">Of the %llu octets, the bit table shows the first %zu",
                      static_cast<unsigned long long>(item.length), kBitTableOctets);
        put(note);
        if (item.length > kHexTableOctets) {
            std::snprintf(note, sizeof note, ", the hexadecimal table the first %zu", kHexTableOctets);
            put(note);
        }
        put(".</p>");
    }
    put("</div>\n");
}

// The bit or hexadecimal table of an item, of its first octets when it is
// long.
void HtmlPage::dump(bool bits, const AstDataItem &item) {
    char *t = buf_->table;
    const size_t size = sizeof buf_->table;
    const size_t limit = bits ? kBitTableOctets : kHexTableOctets;
    if (item.length <= limit) {
        if (bits)
            ast_dataitem_get_bin_html(t, size, &item);
        else
            ast_dataitem_get_hex_html(t, size, &item);
    } else if (item.valid && item.data) {
        if (bits)
            ast_html_gen_bin_table(t, size, item.data, limit);
        else
            ast_html_gen_hex_table(t, size, item.data, limit);
    } else {
        t[0] = '\0';
    }
    if (!filled(t, size)) put(t);
}

void HtmlPage::end(const PageCounts &c) {
    if (shown_ == 0) put("<p class=\"note\">No record decoded.</p>\n");
    put("<section class=\"counts\">");
    put(count_span(c.blocks, "block", "blocks"));
    put(count_span(c.invalid, "bad block", "bad blocks", true));
    put(count_span(c.records, "record", "records"));
    put(count_span(c.items, "item", "items"));
    put(count_span(c.octets, "octet", "octets"));
    put("</section>\n</div>\n</body>\n</html>\n");
}

void write_page(DecodeSession &session, std::FILE *out, const std::string &input,
                const std::function<void()> &decode) {
    HtmlPage page(out, input);
    page.begin();
    const Stats before = session.stats();
    session.set_output(out, &page);
    decode();
    session.set_output(out);
    const Stats &after = session.stats();
    PageCounts counts;
    counts.blocks = after.blocks - before.blocks;
    counts.invalid = after.invalid - before.invalid;
    counts.records = after.records - before.records;
    counts.items = after.items - before.items;
    counts.octets = after.octets - before.octets;
    page.end(counts);
}

std::string page_file_name(const std::string &output, size_t index) {
    if (index == 0) return output;
    const std::string tag = "-" + std::to_string(index + 1);
    const size_t base = output.rfind('/') == std::string::npos ? 0 : output.rfind('/') + 1;
    const size_t dot = output.rfind('.');
    // A leading dot names a hidden file; it starts no extension.
    if (dot == std::string::npos || dot <= base) return output + tag;
    return output.substr(0, dot) + tag + output.substr(dot);
}

std::string html_escape(std::string_view text) {
    const std::string src(text);
    std::string out(src.size() * 5 + 1, '\0');
    ast_html_escape_text(out.data(), out.size(), src.c_str());
    out.resize(std::strlen(out.c_str()));
    return out;
}

}  // namespace kovrel_tool
