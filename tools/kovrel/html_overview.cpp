#include "html_overview.h"

#include "json_writer.h"

namespace kovrel_tool {

uint32_t day_milliseconds(const AstTimeOfDay &tod) {
    return ((tod.hour * 60 + tod.minute) * 60 + tod.second) * 1000 + tod.millisecond;
}

void SourceOverview::add(uint32_t category, const RecordFields &f) {
    const bool known = (f.answered & kAskSource) != 0;
    // Records without SAC/SIC sort after those with one.
    const uint32_t key = category << 17 | (known ? 0u : 1u << 16) | (known ? (f.sac & 0xFF) << 8 | (f.sic & 0xFF) : 0u);
    Source &s = sources_[key];
    ++s.records;
    if (f.answered & kAskTime) {
        const uint32_t ms = day_milliseconds(f.tod);
        if (ms < s.first) s.first = ms;
        if (ms > s.last) s.last = ms;
    }
    if (f.answered & kAskType) {
        if (f.msgtype_name)
            ++s.types[f.msgtype_name];
        else
            ++s.types[std::to_string(f.msgtype)];
    }
}

void SourceOverview::write_json(OutBuffer &out) const {
    JsonWriter json(out);
    json.begin_array();
    for (const auto &[key, s] : sources_) {
        json.begin_object();
        json.key("cat");
        json.unsigned_number(key >> 17);
        const bool known = (key >> 16 & 1) == 0;
        json.key("sac");
        known ? json.unsigned_number(key >> 8 & 0xFF) : json.null();
        json.key("sic");
        known ? json.unsigned_number(key & 0xFF) : json.null();
        json.key("records");
        json.unsigned_number(s.records);
        json.key("first");
        s.first == UINT32_MAX ? json.null() : json.unsigned_number(s.first);
        json.key("last");
        s.first == UINT32_MAX ? json.null() : json.unsigned_number(s.last);
        json.key("types");
        json.begin_array();
        for (const auto &[name, n] : s.types) {
            json.begin_array();
            json.string(name);
            json.unsigned_number(n);
            json.end_array();
        }
        json.end_array();
        json.end_object();
    }
    json.end_array();
}

}  // namespace kovrel_tool
