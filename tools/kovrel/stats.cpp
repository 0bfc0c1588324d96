#include "stats.h"

#include "decode.h"

namespace kovrel_tool {

void Stats::count_block(const AstDataBlock &block, uint32_t category, size_t size, bool valid) {
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
    for (uint64_t i = 0; i < block.record_count; ++i) {
        const AstDataRecord &r = block.records[i];
        ++c.records;
        ++records;
        c.items += r.item_count;
        items += r.item_count;
        const char *label = label_(r);
        size_t l = 0;
        while (l < labels_.size() && labels_[l] != label) ++l;
        if (l == labels_.size()) labels_.push_back(label);
        label_counts_.add({static_cast<uint32_t>(l), 0, 0});
        RecordFields &f = fields_;
        reader_.read(f, r, kAskSource | kAskType);
        if (f.answered & kAskSource) source_counts_.add({category, f.sac, f.sic});
        if (f.answered & kAskType) type_counts_.add({category, f.msgtype, 0});
    }
}

std::map<std::string, uint64_t> Stats::profiles() const {
    std::map<std::string, uint64_t> out;
    for (const auto &[key, n] : label_counts_.counts) out[labels_[key.a]] += n;
    return out;
}

std::map<std::tuple<uint32_t, uint32_t, uint32_t>, uint64_t> Stats::sources() const {
    std::map<std::tuple<uint32_t, uint32_t, uint32_t>, uint64_t> out;
    for (const auto &[key, n] : source_counts_.counts) out[{key.a, key.b, key.c}] += n;
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

void Stats::add_capture(const CaptureStats &s) {
    any_capture = true;
    capture.packets += s.packets;
    capture.udp += s.udp;
    capture.not_udp += s.not_udp;
    capture.fragments += s.fragments;
    capture.truncated += s.truncated;
}

void Stats::print(std::FILE *out, double seconds) const {
    auto u = [](uint64_t v) { return static_cast<unsigned long long>(v); };
    std::fprintf(out, "statistics\n");
    std::fprintf(out, "  inputs          %llu (%llu unreadable)\n", u(inputs), u(unreadable));
    if (any_capture)
        std::fprintf(out,
                     "  packets         %llu read, %llu UDP, %llu other, %llu IP fragments skipped, "
                     "%llu truncated\n",
                     u(capture.packets), u(capture.udp), u(capture.not_udp), u(capture.fragments),
                     u(capture.truncated));
    std::fprintf(out, "  blocks          %llu\n", u(blocks));
    std::fprintf(out, "  invalid blocks  %llu\n", u(invalid));
    std::fprintf(out, "  records         %llu\n", u(records));
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
    const auto sources = this->sources();
    const auto message_types = this->message_types();
    const auto profiles = this->profiles();
    if (!sources.empty()) {
        std::fprintf(out, "  per source (SAC/SIC)       records\n");
        for (const auto &[key, n] : sources)
            std::fprintf(out, "    CAT%03u %03u/%03u         %10llu\n", std::get<0>(key), std::get<1>(key),
                         std::get<2>(key), u(n));
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
}

}  // namespace kovrel_tool
