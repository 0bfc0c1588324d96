#include "stats.h"

#include <cctype>
#include <cstring>

#include <nlohmann/json.hpp>

#include "decode.h"

namespace kovrel_tool {
namespace {

// "HH:MM:SS.mmm" of milliseconds of the day.
std::string clock_text(uint32_t ms) {
    char text[24];
    std::snprintf(text, sizeof text, "%02u:%02u:%02u.%03u", ms / 3600000, ms / 60000 % 60, ms / 1000 % 60, ms % 1000);
    return text;
}

bool ends_with(const std::string &text, const char *tail) {
    const size_t n = std::strlen(tail);
    return text.size() >= n && text.compare(text.size() - n, n, tail) == 0;
}

// A reason with the numbers of the case written as N. Digits that are part
// of a word (I048/130, CAT048, cat021_ver23) stay, and so do the limits
// ("below 3", "more than 64").
std::string reason_kind(const std::string &reason) {
    std::string out;
    for (size_t i = 0; i < reason.size();) {
        const char c = reason[i];
        const bool digit = std::isdigit(static_cast<unsigned char>(c));
        const char before = i ? reason[i - 1] : ' ';
        if (digit && !std::isalnum(static_cast<unsigned char>(before)) && before != '_' && before != '/' &&
            !ends_with(out, "below ") && !ends_with(out, "more than ")) {
            const size_t from = i;
            while (i < reason.size() && std::isdigit(static_cast<unsigned char>(reason[i]))) ++i;
            out += 'N';
            // "1 octet" is counted with "2 octets".
            if (i - from == 1 && reason[from] == '1' && reason.compare(i, 6, " octet") == 0 &&
                (i + 6 == reason.size() || reason[i + 6] != 's')) {
                out += " octets";
                i += 6;
            }
            continue;
        }
        out += c;
        ++i;
    }
    return out;
}

}  // namespace

void Stats::count_reason(const std::string &reason) { ++invalid_reasons[reason_kind(reason)]; }

void Stats::count_block(const AstDataBlock &block, uint32_t category, size_t size, bool valid, uint64_t kept,
                        BlockKeys *keys) {
    CategoryCounts &c = categories[category];
    c.octets += size;
    octets += size;
    if (!valid) {
        ++c.invalid;
        ++invalid;
        return;
    }
    ++c.blocks;
    ++blocks;
    RecordKeys own;
    for (uint64_t i = 0; i < block.record_count; ++i) {
        const AstDataRecord &r = block.records[i];
        ++c.records;
        ++records;
        c.items += r.item_count;
        items += r.item_count;
        if (i < 64 && !(kept >> i & 1)) continue;
        ++matched;
        const char *label = label_(r);
        size_t l = 0;
        while (l < labels_.size() && labels_[l] != label) ++l;
        if (l == labels_.size()) labels_.push_back(label);
        label_counts_.add({static_cast<uint32_t>(l), 0, 0});
        RecordKeys *k = keys && i < AST_DATABLOCK_MAX_RECORDS ? &keys->records[i] : &own;
        if (k == &own) own.start(r, reader_);
        const AstDataSourceIdentifier &source = k->source();
        if (source.valid == 1) {
            const AstTimeOfDay &t = k->time();
            const bool has_time = t.valid != 0;
            const uint32_t ms = has_time ? ((t.hour * 60 + t.minute) * 60 + t.second) * 1000 + t.millisecond : 0;
            source_counts_.add({category, source.sac, source.sic}, has_time, ms);
        }
        const AstRecordMsgType &type = k->type();
        if (type.valid != 0) type_counts_.add({category, type.value, 0});
    }
}

std::map<std::string, uint64_t> Stats::profiles() const {
    std::map<std::string, uint64_t> out;
    for (const auto &[key, n] : label_counts_.counts) out[labels_[key.a]] += n;
    return out;
}

std::map<std::tuple<uint32_t, uint32_t, uint32_t>, uint64_t> Stats::sources() const {
    std::map<std::tuple<uint32_t, uint32_t, uint32_t>, uint64_t> out;
    for (const auto &[key, s] : source_counts_.spans) out[{key.a, key.b, key.c}] += s.records;
    return out;
}

std::map<std::tuple<uint32_t, uint32_t, uint32_t>, Stats::SourceSpan> Stats::source_spans() const {
    std::map<std::tuple<uint32_t, uint32_t, uint32_t>, SourceSpan> out;
    for (const auto &[key, s] : source_counts_.spans) out[{key.a, key.b, key.c}] = s;
    return out;
}

std::map<std::pair<uint32_t, std::string>, uint64_t> Stats::message_types() const {
    std::map<std::pair<uint32_t, std::string>, uint64_t> out;
    for (const auto &[key, n] : type_counts_.counts) {
        const char *name = ast_msgtype_to_str(key.b);
        out[{key.a, name ? name : std::to_string(key.b)}] += n;
    }
    return out;
}

void Stats::count_unusable(int category, size_t size) {
    ++invalid;
    octets += size;
    if (category >= 0) {
        CategoryCounts &c = categories[static_cast<uint32_t>(category)];
        ++c.invalid;
        c.octets += size;
    }
}

void Stats::merge(const Stats &o) {
    blocks += o.blocks;
    printed += o.printed;
    invalid += o.invalid;
    records += o.records;
    items += o.items;
    octets += o.octets;
    matched += o.matched;
    for (const auto &[cat, c] : o.categories) {
        CategoryCounts &mine = categories[cat];
        mine.blocks += c.blocks;
        mine.invalid += c.invalid;
        mine.records += c.records;
        mine.items += c.items;
        mine.octets += c.octets;
    }
    for (const auto &[reason, n] : o.invalid_reasons) invalid_reasons[reason] += n;
    for (const auto &[key, n] : o.label_counts_.counts) {
        const char *label = o.labels_[key.a];
        size_t l = 0;
        while (l < labels_.size() && labels_[l] != label) ++l;
        if (l == labels_.size()) labels_.push_back(label);
        label_counts_.counts[{static_cast<uint32_t>(l), 0, 0}] += n;
    }
    for (const auto &[key, n] : o.type_counts_.counts) type_counts_.counts[key] += n;
    for (const auto &[key, s] : o.source_counts_.spans) {
        SourceSpan &mine = source_counts_.spans[key];
        mine.records += s.records;
        if (!s.has_time) continue;
        if (!mine.has_time || s.first_ms < mine.first_ms) mine.first_ms = s.first_ms;
        if (!mine.has_time || s.last_ms > mine.last_ms) mine.last_ms = s.last_ms;
        mine.has_time = true;
    }
}

void Stats::add_capture(const CaptureStats &s) {
    any_capture = true;
    capture.packets += s.packets;
    capture.udp += s.udp;
    capture.not_udp += s.not_udp;
    capture.fragments += s.fragments;
    capture.reassembled += s.reassembled;
    capture.fragments_refused += s.fragments_refused;
    capture.fragments_evicted += s.fragments_evicted;
    capture.fragments_incomplete += s.fragments_incomplete;
    capture.truncated += s.truncated;
}

void Stats::print(std::FILE *out, double seconds) const {
    auto u = [](uint64_t v) { return static_cast<unsigned long long>(v); };
    std::fprintf(out, "statistics\n");
    std::fprintf(out, "  inputs          %llu (%llu unreadable)\n", u(inputs), u(unreadable));
    if (any_capture)
        std::fprintf(out,
                     "  packets         %llu read, %llu UDP, %llu other, %llu IP fragments (%llu datagrams "
                     "reassembled, %llu given up), %llu truncated\n",
                     u(capture.packets), u(capture.udp), u(capture.not_udp), u(capture.fragments),
                     u(capture.reassembled),
                     u(capture.fragments_refused + capture.fragments_evicted + capture.fragments_incomplete),
                     u(capture.truncated));
    std::fprintf(out, "  blocks          %llu read: %llu valid, %llu invalid\n", u(blocks + invalid), u(blocks),
                 u(invalid));
    std::fprintf(out, "  records         %llu read", u(records));
    if (filtered) std::fprintf(out, ", %llu matched the filter", u(matched));
    std::fprintf(out, ", %llu printed\n", u(printed));
    std::fprintf(out, "  items           %llu\n", u(items));
    std::fprintf(out, "  octets          %llu\n", u(octets));
    const double mb = static_cast<double>(octets) / 1e6;
    if (seconds > 0)
        std::fprintf(out, "  time            %.3f s, %.2f MB/s, %.0f blocks/s\n", seconds, mb / seconds,
                     static_cast<double>(blocks + invalid) / seconds);
    else
        std::fprintf(out, "  time            %.3f s\n", seconds);
    if (!categories.empty()) {
        std::fprintf(out, "  per category      blocks  invalid  records     items     octets\n");
        for (const auto &[cat, c] : categories)
            std::fprintf(out, "    CAT%03u      %10llu %8llu %8llu %9llu %10llu\n", cat, u(c.blocks), u(c.invalid),
                         u(c.records), u(c.items), u(c.octets));
    }
    const auto sources = source_spans();
    const auto message_types = this->message_types();
    const auto profiles = this->profiles();
    if (!sources.empty()) {
        std::fprintf(out, "  per source (SAC/SIC)       records  time of day\n");
        for (const auto &[key, s] : sources) {
            std::fprintf(out, "    CAT%03u %03u/%03u         %10llu", std::get<0>(key), std::get<1>(key),
                         std::get<2>(key), u(s.records));
            if (s.has_time)
                std::fprintf(out, "  %s - %s", clock_text(s.first_ms).c_str(), clock_text(s.last_ms).c_str());
            std::fprintf(out, "\n");
        }
    }
    if (!message_types.empty()) {
        std::fprintf(out, "  per message type           records\n");
        for (const auto &[key, n] : message_types)
            std::fprintf(out, "    CAT%03u %-18s %10llu\n", key.first, key.second.c_str(), u(n));
    }
    if (!profiles.empty()) {
        std::fprintf(out, "  per profile                records\n");
        for (const auto &[name, n] : profiles) std::fprintf(out, "    %-25s %10llu\n", name.c_str(), u(n));
    }
    if (!invalid_reasons.empty()) {
        std::fprintf(out, "  invalid blocks by reason    blocks\n");
        for (const auto &[reason, n] : invalid_reasons) std::fprintf(out, "    %10llu  %s\n", u(n), reason.c_str());
    }
}

void Stats::print_json(std::FILE *out, double seconds) const {
    using json = nlohmann::ordered_json;
    json j = json::object();
    j["inputs"] = inputs;
    j["unreadable"] = unreadable;
    if (any_capture)
        j["packets"] = {{"read", capture.packets},         {"udp", capture.udp},
                        {"other", capture.not_udp},        {"fragments", capture.fragments},
                        {"reassembled", capture.reassembled},
                        {"fragments_given_up",
                         capture.fragments_refused + capture.fragments_evicted + capture.fragments_incomplete},
                        {"truncated", capture.truncated}};
    j["blocks"] = {{"read", blocks + invalid}, {"valid", blocks}, {"invalid", invalid}};
    json records_json = {{"read", records}};
    if (filtered) records_json["matched"] = matched;
    records_json["printed"] = printed;
    j["records"] = records_json;
    j["items"] = items;
    j["octets"] = octets;
    j["seconds"] = seconds;
    if (seconds > 0) j["mb_per_s"] = static_cast<double>(octets) / 1e6 / seconds;
    json cats = json::array();
    for (const auto &[cat, c] : categories)
        cats.push_back({{"cat", cat}, {"blocks", c.blocks}, {"invalid", c.invalid}, {"records", c.records},
                        {"items", c.items}, {"octets", c.octets}});
    j["categories"] = cats;
    json srcs = json::array();
    for (const auto &[key, s] : source_spans()) {
        json o = {{"cat", std::get<0>(key)}, {"sac", std::get<1>(key)}, {"sic", std::get<2>(key)},
                  {"records", s.records}};
        if (s.has_time) {
            o["first"] = clock_text(s.first_ms);
            o["last"] = clock_text(s.last_ms);
        }
        srcs.push_back(o);
    }
    j["sources"] = srcs;
    json types = json::array();
    for (const auto &[key, n] : message_types()) types.push_back({{"cat", key.first}, {"type", key.second}, {"records", n}});
    j["message_types"] = types;
    json profs = json::array();
    for (const auto &[name, n] : profiles()) profs.push_back({{"profile", name}, {"records", n}});
    j["profiles"] = profs;
    json reasons = json::array();
    for (const auto &[reason, n] : invalid_reasons) reasons.push_back({{"reason", reason}, {"blocks", n}});
    j["invalid_reasons"] = reasons;
    const std::string text = json{{"stats", j}}.dump(-1, ' ', false, json::error_handler_t::replace);
    std::fprintf(out, "%s\n", text.c_str());
}

}  // namespace kovrel_tool
