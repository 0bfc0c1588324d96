// Which records `kovrel decode` keeps: --filter KEYWORD=VALUE (repeatable,
// all must match), --cat LIST and --time FROM-TO.
//
// A --filter names one of the library's keywords (keyword.h) by its name
// ("Track Number", "Mode 3/A"; case, blanks, '/', '-' and '_' do not count,
// so "tracknumber" and "mode3a" do) or by a short alias:
//   sacsic sac      SAC/SIC            025/013, or 25 for every SIC of SAC 25
//   time tod        Timestamp Tx       12:34:56.789
//   type msgtype    Type               Track, Plot, North ... (first word, any case)
//   track           Track Number       1234
//   mode3a squawk   Mode 3/A           7700 (octal digits)
//   fl              Flight Level       35000 (feet)
//   selalt          Selected Altitude  24000 (feet)
//   callsign        Callsign           DLH4AB (any case)
//   icao address    ICAO Address       4CA1FF (hexadecimal)
//   position wgs84  WGS84 Coordinates  "48.5, 11.25" (degrees)
//   polar           Polar Coordinates  "R:12.5 T:90"
//   speed           Speed              450 (knots, within 0.5)
//   heading         Heading            "T:270" or "M:270"
//   velocity        Cartesian Velocity "VX:120 VY:-35" (m/s)
//   vrate           Vertical Rate      -1200 (ft/min)
// and the record must have that value and match it as the library's
// ast_datarecord_match_keyword says. --cat keeps records of the listed
// categories; --time keeps records whose time of day lies in the window
// (both ends included; FROM later than TO wraps past midnight; either end
// may be left out).
#pragma once

#include <bitset>
#include <cstdint>
#include <string>
#include <vector>

#include <kovrel/kovrel.h>

#include "record_keys.h"

namespace kovrel_tool {

class RecordFilter {
public:
    // Adds one --filter; false with a message that lists the keywords
    // when the keyword is unknown or the value cannot be read.
    bool add_condition(const std::string &text, std::string &error);
    // --cat: a comma-separated list of categories (48,62 or 048,062).
    bool set_categories(const std::string &list, std::string &error);
    // --time: FROM-TO, each HH:MM, HH:MM:SS or HH:MM:SS.mmm.
    bool set_time_window(const std::string &text, std::string &error);

    // True when no condition is set (every record is kept).
    bool empty() const { return conditions_.empty() && !by_category_ && !by_time_; }
    bool matches(const AstDataRecord &record) const;
    // The same, reading the data source, time of day and message type
    // through `keys` (started on the record), which keeps them for the
    // counts that follow.
    bool matches(const AstDataRecord &record, RecordKeys &keys) const;

private:
    // A condition on SAC/SIC, time of day or message type is read once,
    // when it is added, and compared with the accessors' numbers; the
    // others go to ast_datarecord_match_keyword with their text.
    struct Condition {
        uint32_t keyword;
        std::string value;
        uint32_t sac = 0, sic = 0;   // SAC/SIC
        bool sac_only = false;
        uint32_t h = 0, m = 0, s = 0, ms = 0;  // time of day
        std::bitset<256> types;      // message types whose name matches
    };
    bool meets(const Condition &c, const AstDataRecord &record, RecordKeys &keys) const;
    std::vector<Condition> conditions_;
    bool by_category_ = false;
    std::bitset<256> categories_;
    bool by_time_ = false;
    uint32_t from_ms_ = 0, to_ms_ = 0;  // milliseconds of the day
};

// The keyword a --filter name or alias stands for; false when none.
bool find_filter_keyword(const std::string &name, uint32_t &keyword);
// The aliases of a keyword, blank-separated ("track"), for help texts.
const char *filter_keyword_aliases(uint32_t keyword);
// "the keywords: sacsic (SAC/SIC), time (Timestamp Tx), ...", for messages.
std::string filter_keyword_list();

}  // namespace kovrel_tool
