// What the overview at the top of the HTML page says about the sources of
// an input: per category and SAC/SIC, the records, the first and last time
// of day and the message types. Every record counts, those left out of the
// page by --html-limit too.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "fields.h"
#include "out_buffer.h"

namespace kovrel_tool {

class SourceOverview {
public:
    // Counts a record of `category` whose accessors answered `fields`
    // (kAskSource, kAskTime and kAskType are looked at).
    void add(uint32_t category, const RecordFields &fields);

    // The sources as a JSON array, ordered by category then SAC/SIC (records
    // without SAC/SIC last in their category):
    //   [{"cat":48,"sac":25,"sic":1,"records":512,"first":45296789,
    //     "last":45310000,"types":[["Target Report",500],["North Marker",12]]}, ...]
    // sac and sic are null when the records carry none; first and last are
    // milliseconds of the day, null when no record had a time.
    void write_json(OutBuffer &out) const;

    size_t size() const { return sources_.size(); }

private:
    struct Source {
        uint64_t records = 0;
        uint32_t first = UINT32_MAX, last = 0;
        std::map<std::string, uint64_t> types;
    };
    // cat << 17 | has source << 16 | sac << 8 | sic
    std::map<uint32_t, Source> sources_;
};

// Milliseconds of the day of a time of day.
uint32_t day_milliseconds(const AstTimeOfDay &tod);

}  // namespace kovrel_tool
