#include "output_html.h"

#include <cmath>
#include <cstring>
#include <unordered_map>
#include <vector>

#include "decode.h"
#include "deflate.h"
#include "html/report_assets.h"
#include "html_overview.h"
#include "html_video.h"
#include "json_writer.h"
#include "session.h"

namespace kovrel_tool {
namespace {

// A view that fills its buffer may have been cut inside a tag; it is left
// out rather than embedded broken.
bool filled(const char *text, size_t size) { return std::strlen(text) + 1 >= size; }

// What the rows read of a record.
constexpr uint32_t kRowFields = kAskSource | kAskTime | kAskType | kAskTrack | kAskMode3a | kAskLevel |
                                kAskCallsign | kAskAddress | kAskWgs84 | kAskPolar;

// A real with at most `decimals` decimals, trailing zeros dropped; null
// when it is not a finite number.
void put_real(OutBuffer &out, double value, int decimals) {
    char text[48];
    const int n = std::isfinite(value) ? std::snprintf(text, sizeof text, "%.*f", decimals, value) : -1;
    if (n <= 0 || static_cast<size_t>(n) >= sizeof text) {
        out.put("null");
        return;
    }
    size_t end = static_cast<size_t>(n);
    if (std::memchr(text, '.', end)) {
        while (text[end - 1] == '0') --end;
        if (text[end - 1] == '.') --end;
    }
    if (end == 2 && text[0] == '-' && text[1] == '0') {
        out.put('0');
        return;
    }
    out.put(text, end);
}

void put_hex_run(OutBuffer &out, const uint8_t *data, size_t size) {
    static const char kDigits[] = "0123456789abcdef";
    char *p = out.room(size * 2);
    for (size_t i = 0; i < size; ++i) {
        p[2 * i] = kDigits[data[i] >> 4];
        p[2 * i + 1] = kDigits[data[i] & 15];
    }
    out.advance(size * 2);
}

void put_string(OutBuffer &out, const char *text) { put_json_string(out, text, std::strlen(text)); }

// How many items, and octets of them, the page remembers to write again
// as a number.
constexpr size_t kSeenItems = size_t{1} << 18;
constexpr size_t kSeenOctets = size_t{16} << 20;

uint64_t item_hash(const void *profile, const AstDataItem &item) {
    uint64_t h = 1469598103934665603ull;
    auto mix = [&h](const void *p, size_t n) {
        const auto *o = static_cast<const uint8_t *>(p);
        for (size_t i = 0; i < n; ++i) h = (h ^ o[i]) * 1099511628211ull;
    };
    mix(&profile, sizeof profile);
    mix(&item.id, sizeof item.id);
    mix(&item.length, sizeof item.length);
    if (item.valid && item.data) mix(item.data, static_cast<size_t>(item.length));
    return h;
}

}  // namespace

struct HtmlPage::State {
    OutBuffer rows{nullptr, 1};    // rows of the open group, without the brackets
    OutBuffer texts{nullptr, 1};   // texts of the open group, from its '['
    size_t in_group = 0;           // records in the open group
    std::string chunk;             // what goes out next
    std::string packed;            // deflate stream of a group
    uint64_t embedded = 0;         // records embedded
    uint64_t left_out = 0;         // records past the limit
    RecordFieldReader reader;
    RecordFields fields;
    SourceOverview sources;
    std::vector<std::string> types;  // message type names, as rows refer to them
    // The items written in full so far on the page, by a hash of their
    // profile, identifier and octets: an item met again is written as the
    // number of its first appearance (items written in full count from 0).
    // Once kSeenItems are kept or their octets pass kSeenOctets, new ones
    // are still numbered but no longer kept.
    struct Seen {
        const void *profile;
        AstItemId id;
        bool valid;
        uint32_t number;
        size_t at, length;  // its octets in `octets`
    };
    std::unordered_map<uint64_t, uint32_t> seen;  // into `distinct`
    std::vector<Seen> distinct;
    std::string octets;
    uint32_t written = 0;        // items written in full
    uint32_t group_first = 0;    // the number of the open group's first one
    OutBuffer problems{nullptr, 1};  // the problems' JSON objects, comma-separated
    std::vector<char> detail = std::vector<char>(kDetailSize);
    std::vector<char> summary = std::vector<char>(kSummarySize);

    // Writes the number of an item met before on the page and returns
    // true; otherwise numbers it as the next one written in full.
    bool repeated(const void *profile, const AstDataItem &item, OutBuffer &t) {
        const uint64_t h = item_hash(profile, item);
        const bool valid = item.valid && item.data;
        const size_t length = valid ? static_cast<size_t>(item.length) : 0;
        const auto found = seen.find(h);
        if (found != seen.end()) {
            const Seen &e = distinct[found->second];
            if (e.profile == profile && e.id == item.id && e.valid == valid && e.length == length &&
                (length == 0 || std::memcmp(octets.data() + e.at, item.data, length) == 0)) {
                t.put_unsigned(e.number);
                return true;
            }
        } else if (distinct.size() < kSeenItems && octets.size() + length <= kSeenOctets) {
            seen.emplace(h, static_cast<uint32_t>(distinct.size()));
            distinct.push_back({profile, item.id, valid, written, octets.size(), length});
            if (length) octets.append(reinterpret_cast<const char *>(item.data), length);
        }
        ++written;
        return false;
    }

    uint32_t type_index(const char *name) {
        for (size_t i = types.size(); i-- > 0;)
            if (types[i] == name) return static_cast<uint32_t>(i);
        types.emplace_back(name);
        return static_cast<uint32_t>(types.size() - 1);
    }
};

HtmlPage::HtmlPage(std::FILE *out, std::string_view input, const PageOptions &options)
    : out_(out), input_(input), options_(options), state_(std::make_unique<State>()) {}

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
    put(kReportCss);
    put("</style>\n</head>\n<body>\n<div class=\"page\">\n<header><h1>");
    put(name);
    put("</h1><p class=\"tool\">decoded by kovrel ");
    put(html_escape(ast_library_version()));
    put(", ");
    put(html_escape(options_.settings));
    put("</p></header>\n<noscript><p class=\"problem\">This page draws its overview, plot and records with "
        "JavaScript; allow scripts for this file to see them.</p></noscript>\n"
        "<section id=\"overview\"></section>\n<section id=\"plot\"></section>\n"
        "<section id=\"records\"></section>\n<section id=\"record\"></section>\n");
}

void HtmlPage::problem(std::string_view text) {
    State &s = *state_;
    OutBuffer &p = s.problems;
    if (p.size() > 0) p.put(',');
    p.put("{\"text\":");
    put_json_string(p, text.data(), text.size());
    p.put(",\"row\":");
    // The record that follows is where it occurred (a bad block's failed
    // record comes right after its message).
    if (s.embedded < options_.limit)
        p.put_unsigned(s.embedded);
    else
        p.put("-1");
    p.put('}');
}

void HtmlPage::record(const RecordView &v) {
    State &s = *state_;
    const AstDataRecord &r = *v.record;
    RecordFields &f = s.fields;
    s.reader.read(f, r, kRowFields);
    s.sources.add(r.category, f);
    if (s.embedded >= options_.limit) {
        ++s.left_out;
        return;
    }
    ++s.embedded;

    // The row.
    OutBuffer &o = s.rows;
    if (s.in_group > 0) o.put(',');
    o.put('[');
    o.put_unsigned(v.block);
    o.put(',');
    o.put_unsigned(v.number);
    o.put(',');
    o.put_unsigned(r.category);
    auto next = [&](bool has) {
        o.put(',');
        if (!has) o.put("null");
        return has;
    };
    if (next(f.answered & kAskSource)) o.put_unsigned(f.sac);
    if (next(f.answered & kAskSource)) o.put_unsigned(f.sic);
    if (next(f.answered & kAskTime)) o.put_unsigned(day_milliseconds(f.tod));
    if (next(f.answered & kAskType)) {
        if (f.msgtype_name) {
            o.put_unsigned(s.type_index(f.msgtype_name));
        } else {
            const std::string number = std::to_string(f.msgtype);
            o.put_unsigned(s.type_index(number.c_str()));
        }
    }
    if (next(f.answered & kAskTrack)) o.put_unsigned(f.track);
    if (next(f.answered & kAskMode3a)) o.put_unsigned(f.mode3a & 07777u);
    if (next((f.answered & kAskCallsign) && f.callsign_length > 0))
        put_json_string(o, f.callsign, f.callsign_length);
    if (next(f.answered & kAskAddress)) o.put_unsigned(f.icao);
    if (next(f.answered & kAskLevel)) put_real(o, f.fl, 2);
    if (next(f.answered & kAskWgs84)) put_real(o, f.lat, 6);
    if (next(f.answered & kAskWgs84)) put_real(o, f.lon, 6);
    if (next(f.answered & kAskPolar)) put_real(o, f.rho, 4);
    if (next(f.answered & kAskPolar)) put_real(o, f.theta, 4);
    o.put(',');
    o.put_unsigned((r.valid ? 0u : 1u) | (v.block_valid ? 0u : 2u));
    o.put(']');

    // The texts, shown when the record is opened.
    OutBuffer &t = s.texts;
    t.put(s.in_group == 0 ? '[' : ',');
    t.put('[');
    const std::string where = format_location(v.where);
    put_json_string(t, where.data(), where.size());
    t.put(',');
    put_string(t, r.uap.get_dataitem ? profile_label(r.uap, r.category) : "-");
    t.put(',');
    const std::string video = r.category == 240 && r.valid ? video_figure(r) : std::string();
    put_json_string(t, video.data(), video.size());
    t.put(",[");
    for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) {
        const AstDataItem &item = r.items[i];
        if (i > 0) t.put(',');
        if (s.repeated(r.uap.get_dataitem ? reinterpret_cast<const void *>(r.uap.get_dataitem) : nullptr, item, t))
            continue;
        char id[16];
        ast_dataitem_type_to_str(id, sizeof id, item.id);
        t.put('[');
        put_string(t, id);
        t.put(',');
        put_string(t, ast_dataitem_get_name(item.id));
        t.put(',');
        t.put_unsigned(item.length);
        t.put(",\"");
        if (item.valid && item.data)
            put_hex_run(t, item.data, item.length < kHexTableOctets ? static_cast<size_t>(item.length) : kHexTableOctets);
        t.put("\",");
        ast_dataitem_get_summary(s.summary.data(), s.summary.size(), &item);
        put_string(t, s.summary.data());
        t.put(',');
        ast_dataitem_get_detail_html(s.detail.data(), s.detail.size(), &item);
        if (filled(s.detail.data(), s.detail.size()))
            t.put("null");
        else
            put_string(t, s.detail.data());
        t.put(']');
    }
    t.put("]]");
    if (++s.in_group >= kGroupRecords || t.size() >= kGroupOctets) close_group();
}

void HtmlPage::close_group() {
    State &s = *state_;
    if (s.in_group == 0) return;
    std::string &c = s.chunk;
    c.assign("<script type=\"application/x-kovrel-group\">{\"f\":");
    c.append(std::to_string(s.group_first));
    c.append(",\"r\":[");
    append_script_json(c, s.rows.view());
    c.append("],\"d\":\"");
    s.texts.put(']');
    s.packed.clear();
    deflate_raw(reinterpret_cast<const uint8_t *>(s.texts.view().data()), s.texts.size(), s.packed);
    append_base64(reinterpret_cast<const uint8_t *>(s.packed.data()), s.packed.size(), c);
    c.append("\"}</script>\n");
    put(c);
    s.rows.clear();
    s.texts.clear();
    s.group_first = s.written;
    s.in_group = 0;
}

void HtmlPage::end(const PageCounts &counts) {
    close_group();
    State &s = *state_;
    OutBuffer meta(nullptr, 1);
    meta.put("{\"input\":");
    put_json_string(meta, input_.data(), input_.size());
    meta.put(",\"version\":");
    put_string(meta, ast_library_version());
    meta.put(",\"settings\":");
    put_json_string(meta, options_.settings.data(), options_.settings.size());
    meta.put(",\"counts\":{\"blocks\":");
    meta.put_unsigned(counts.blocks);
    meta.put(",\"invalid\":");
    meta.put_unsigned(counts.invalid);
    meta.put(",\"records\":");
    meta.put_unsigned(counts.records);
    meta.put(",\"items\":");
    meta.put_unsigned(counts.items);
    meta.put(",\"octets\":");
    meta.put_unsigned(counts.octets);
    meta.put("},\"embedded\":");
    meta.put_unsigned(s.embedded);
    meta.put(",\"left_out\":");
    meta.put_unsigned(s.left_out);
    meta.put(",\"limit\":");
    meta.put_unsigned(options_.limit);
    meta.put(",\"types\":[");
    for (size_t i = 0; i < s.types.size(); ++i) {
        if (i > 0) meta.put(',');
        put_json_string(meta, s.types[i].data(), s.types[i].size());
    }
    meta.put("],\"sources\":");
    s.sources.write_json(meta);
    meta.put(",\"problems\":[");
    meta.put(s.problems.view());
    meta.put("]}");
    std::string &c = s.chunk;
    c.assign("<script type=\"application/x-kovrel-meta\" id=\"kovrel-meta\">");
    append_script_json(c, meta.view());
    c.append("</script>\n<script>");
    put(c);
    put(kReportJs);
    put("</script>\n</div>\n</body>\n</html>\n");
}

void write_page(DecodeSession &session, std::FILE *out, const std::string &input,
                const std::function<void()> &decode, const PageOptions &options) {
    HtmlPage page(out, input, options);
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

void append_script_json(std::string &out, std::string_view json) {
    size_t from = 0;
    for (size_t at = json.find('<'); at != std::string_view::npos; at = json.find('<', from)) {
        out.append(json.substr(from, at - from));
        out.append("\\u003c");
        from = at + 1;
    }
    out.append(json.substr(from));
}

}  // namespace kovrel_tool
