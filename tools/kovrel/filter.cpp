#include "filter.h"

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kovrel_tool {
namespace {

// Aliases in keyword order; the first one is the name shown in messages.
constexpr const char *kAliases[AST_KEYWORD_COUNT] = {
    "sacsic sac", "time tod", "type msgtype", "track", "mode3a squawk", "fl", "selalt",
    "callsign", "icao address", "position wgs84", "polar", "speed", "heading", "velocity", "vrate",
};

// Lower case, without blanks, '/', '-' and '_' ("Mode 3/A" gives "mode3a").
std::string squeeze(const std::string &text) {
    std::string out;
    for (char c : text)
        if (c != ' ' && c != '/' && c != '-' && c != '_' && c != '\t')
            out.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    return out;
}

std::string trim(const std::string &text) {
    const size_t a = text.find_first_not_of(" \t");
    if (a == std::string::npos) return "";
    const size_t b = text.find_last_not_of(" \t");
    return text.substr(a, b - a + 1);
}

// The whole text is one number (strtol/strtod), nothing after it but blanks.
bool whole_long(const std::string &text, int base, long &out) {
    if (text.empty()) return false;
    char *end = nullptr;
    errno = 0;
    out = std::strtol(text.c_str(), &end, base);
    if (end == text.c_str() || errno != 0) return false;
    while (*end == ' ') ++end;
    return *end == '\0';
}

bool whole_double(const std::string &text, double &out) {
    if (text.empty()) return false;
    char *end = nullptr;
    out = std::strtod(text.c_str(), &end);
    if (end == text.c_str() || !std::isfinite(out)) return false;
    while (*end == ' ') ++end;
    return *end == '\0';
}

// True when some message type's name starts with the word (any case).
bool known_type_word(const std::string &word) {
    for (uint32_t t = 0; t < 64; ++t) {
        const char *name = ast_msgtype_to_str(t);
        if (name && ast_keyword_match(name, word.c_str(), 0)) return true;
    }
    return false;
}

std::string type_words() {
    std::string out;
    for (uint32_t t = 0; t < 64; ++t) {
        const char *name = ast_msgtype_to_str(t);
        if (!name) continue;
        std::string word(name);
        word = word.substr(0, word.find(' '));
        if (out.find(" " + word + ",") != std::string::npos || out.rfind(word + ",", 0) == 0) continue;
        out += word + ", ";
    }
    return out.empty() ? out : out.substr(0, out.size() - 2);
}

// Checks a value as the library will read it; "" when it is readable,
// otherwise what is expected.
std::string check_value(uint32_t keyword, const std::string &v) {
    long n = 0;
    double x = 0, y = 0;
    char tail = 0;
    switch (keyword) {
        case AST_KEYWORD_SACSIC: {
            int sac = -1, sic = -1;
            const int got = std::sscanf(v.c_str(), "%d/%d %c", &sac, &sic, &tail);
            long only = 0;
            if (got == 2 && sac >= 0 && sac <= 255 && sic >= 0 && sic <= 255) return "";
            if (whole_long(v, 10, only) && only >= 0 && only <= 255) return "";
            return "SAC/SIC as 025/013 (0-255 each), or a SAC alone";
        }
        case AST_KEYWORD_TIMESTAMP: {
            int h = 0, m = 0, s = 0, ms = 0;
            if (std::sscanf(v.c_str(), "%d:%d:%d.%d %c", &h, &m, &s, &ms, &tail) == 4 && h >= 0 && m >= 0 &&
                s >= 0 && ms >= 0)
                return "";
            return "a time of day HH:MM:SS.mmm (or use --time FROM-TO)";
        }
        case AST_KEYWORD_TYPE:
            if (v.find(' ') == std::string::npos && known_type_word(v)) return "";
            return "a message type: " + type_words();
        case AST_KEYWORD_TRACK_NUMBER:
            if (whole_long(v, 10, n) && n >= 0 && n <= 65535) return "";
            return "a track number 0-65535";
        case AST_KEYWORD_MODE3A:
            if (!v.empty() && v.size() <= 4 && v.find_first_not_of("01234567") == std::string::npos) return "";
            return "a Mode 3/A code of up to four octal digits (7700)";
        case AST_KEYWORD_FLIGHT_LEVEL:
        case AST_KEYWORD_SELECTED_ALTITUDE:
            if (whole_long(v, 10, n)) return "";
            return "a whole number of feet (35000)";
        case AST_KEYWORD_CALLSIGN:
            if (!v.empty() && v.size() <= 8 && v.find(' ') == std::string::npos) return "";
            return "a callsign of one to eight characters";
        case AST_KEYWORD_ICAO_ADDRESS:
            if (!v.empty() && v.size() <= 6 && v.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos)
                return "";
            return "an address of up to six hexadecimal digits (4CA1FF)";
        case AST_KEYWORD_WGS84:
            if (std::sscanf(v.c_str(), " %lf , %lf %c", &x, &y, &tail) == 2 && std::fabs(x) <= 90 &&
                std::fabs(y) <= 180)
                return "";
            return "latitude, longitude in degrees (48.5, 11.25)";
        case AST_KEYWORD_POLAR:
            if (std::sscanf(v.c_str(), " R:%lf T:%lf %c", &x, &y, &tail) == 2) return "";
            return "R:RHO T:THETA (NM, degrees)";
        case AST_KEYWORD_SPEED:
        case AST_KEYWORD_VERTICAL_RATE:
            if (whole_double(v, x)) return "";
            return keyword == AST_KEYWORD_SPEED ? "a ground speed in knots (450)" : "a vertical rate in ft/min (-1200)";
        case AST_KEYWORD_HEADING:
            if (std::sscanf(v.c_str(), " M:%lf T:%lf %c", &x, &y, &tail) == 2 ||
                std::sscanf(v.c_str(), " M:%lf %c", &x, &tail) == 1 ||
                std::sscanf(v.c_str(), " T:%lf %c", &x, &tail) == 1)
                return "";
            return "T:DEG, M:DEG or M:DEG T:DEG";
        case AST_KEYWORD_CARTESIAN_VELOCITY:
            if (std::sscanf(v.c_str(), " VX:%lf VY:%lf %c", &x, &y, &tail) == 2 ||
                std::sscanf(v.c_str(), " VX:%lf %c", &x, &tail) == 1 ||
                std::sscanf(v.c_str(), " VY:%lf %c", &x, &tail) == 1)
                return "";
            return "VX:X VY:Y, VX:X or VY:Y (m/s)";
        default: return "a value";
    }
}

// "HH:MM", "HH:MM:SS" or "HH:MM:SS.mmm" as milliseconds of the day.
bool parse_clock(const std::string &text, uint32_t &ms) {
    unsigned h = 0, m = 0, s = 0;
    char frac[8] = {};
    char tail = 0;
    const std::string t = trim(text);
    int got = std::sscanf(t.c_str(), "%2u:%2u:%2u.%7[0-9]%c", &h, &m, &s, frac, &tail);
    if (got < 2 || got == 5 || t.find_first_not_of("0123456789:.") != std::string::npos) return false;
    if (got < 4 && t.find('.') != std::string::npos) return false;
    if (h > 23 || m > 59 || s > 59 || std::strlen(frac) > 3) return false;
    unsigned milli = 0;
    for (size_t i = 0; i < 3; ++i) milli = milli * 10 + (frac[i] ? static_cast<unsigned>(frac[i] - '0') : 0);
    if (got == 4 && frac[0] == '\0') return false;
    ms = ((h * 60 + m) * 60 + s) * 1000 + milli;
    return true;
}

}  // namespace

bool find_filter_keyword(const std::string &name, uint32_t &keyword) {
    const std::string key = squeeze(name);
    if (key.empty()) return false;
    char text[64];
    for (uint32_t k = 0; k < AST_KEYWORD_COUNT; ++k) {
        ast_keyword_name(text, sizeof text, k);
        if (squeeze(text) == key) return keyword = k, true;
        const std::string aliases = std::string(" ") + kAliases[k] + " ";
        if (aliases.find(" " + key + " ") != std::string::npos) return keyword = k, true;
    }
    return false;
}

const char *filter_keyword_aliases(uint32_t keyword) { return keyword < AST_KEYWORD_COUNT ? kAliases[keyword] : ""; }

std::string filter_keyword_list() {
    std::string out = "the keywords:";
    char name[64];
    for (uint32_t k = 0; k < AST_KEYWORD_COUNT; ++k) {
        ast_keyword_name(name, sizeof name, k);
        const std::string aliases = kAliases[k];
        out += std::string(k ? ", " : " ") + aliases.substr(0, aliases.find(' ')) + " (" + name + ")";
    }
    return out;
}

bool RecordFilter::add_condition(const std::string &text, std::string &error) {
    const size_t eq = text.find('=');
    if (eq == std::string::npos) {
        error = "--filter '" + text + "': expected KEYWORD=VALUE; " + filter_keyword_list();
        return false;
    }
    uint32_t keyword = 0;
    const std::string name = trim(text.substr(0, eq));
    if (!find_filter_keyword(name, keyword)) {
        error = "--filter '" + text + "': unknown keyword '" + name + "'; " + filter_keyword_list();
        return false;
    }
    const std::string value = trim(text.substr(eq + 1));
    const std::string expected = check_value(keyword, value);
    if (!expected.empty()) {
        char kw[64];
        ast_keyword_name(kw, sizeof kw, keyword);
        error = "--filter '" + text + "': cannot read '" + value + "' as " + kw + ": expected " + expected + "; " +
                filter_keyword_list();
        return false;
    }
    Condition c;
    c.keyword = keyword;
    c.value = value;
    switch (keyword) {
    case AST_KEYWORD_SACSIC: {
        int sac = 0, sic = 0;
        c.sac_only = std::sscanf(value.c_str(), "%d/%d", &sac, &sic) != 2;
        if (c.sac_only) sac = std::atoi(value.c_str());
        c.sac = static_cast<uint32_t>(sac);
        c.sic = static_cast<uint32_t>(sic);
        break;
    }
    case AST_KEYWORD_TIMESTAMP: {
        int h = 0, m = 0, sec = 0, ms = 0;
        std::sscanf(value.c_str(), "%d:%d:%d.%d", &h, &m, &sec, &ms);
        c.h = static_cast<uint32_t>(h);
        c.m = static_cast<uint32_t>(m);
        c.s = static_cast<uint32_t>(sec);
        c.ms = static_cast<uint32_t>(ms);
        break;
    }
    case AST_KEYWORD_TYPE:
        // Names are the library's, matched as ast_datarecord_match_keyword
        // matches them; numbers past 255 have none.
        for (uint32_t t = 0; t < c.types.size(); ++t) {
            const char *name = ast_msgtype_to_str(t);
            if (name && name[0] != '\0' && ast_keyword_match(name, value.c_str(), 0)) c.types.set(t);
        }
        break;
    default: break;
    }
    conditions_.push_back(std::move(c));
    return true;
}

bool RecordFilter::set_categories(const std::string &list, std::string &error) {
    std::bitset<256> cats;
    size_t start = 0;
    while (start <= list.size()) {
        size_t end = list.find(',', start);
        if (end == std::string::npos) end = list.size();
        const std::string part = trim(list.substr(start, end - start));
        long n = 0;
        if (part.find_first_not_of("0123456789") != std::string::npos || !whole_long(part, 10, n) || n > 255) {
            error = "--cat '" + list + "': expected categories 0-255 separated by commas (48,62)";
            return false;
        }
        cats.set(static_cast<size_t>(n));
        start = end + 1;
    }
    categories_ |= cats;
    by_category_ = true;
    return true;
}

bool RecordFilter::set_time_window(const std::string &text, std::string &error) {
    const size_t dash = text.find('-');
    uint32_t from = 0, to = 24u * 3600 * 1000 - 1;
    const std::string a = dash == std::string::npos ? text : trim(text.substr(0, dash));
    const std::string b = dash == std::string::npos ? "" : trim(text.substr(dash + 1));
    if (dash == std::string::npos || (a.empty() && b.empty()) || (!a.empty() && !parse_clock(a, from)) ||
        (!b.empty() && !parse_clock(b, to))) {
        error = "--time '" + text + "': expected FROM-TO, each HH:MM, HH:MM:SS or HH:MM:SS.mmm (12:00-12:30:15; "
                "an end may be left out)";
        return false;
    }
    if (!b.empty() && b.find(':') == b.rfind(':')) to += 59999;  // HH:MM ends with its last minute
    else if (!b.empty() && b.find('.') == std::string::npos) to += 999;  // HH:MM:SS with its last second
    from_ms_ = from;
    to_ms_ = to;
    by_time_ = true;
    return true;
}

bool RecordFilter::matches(const AstDataRecord &record) const {
    RecordFieldReader reader;
    RecordKeys keys;
    keys.start(record, reader);
    return matches(record, keys);
}

bool RecordFilter::matches(const AstDataRecord &record, RecordKeys &keys) const {
    if (by_category_ && (record.category > 255 || !categories_.test(record.category))) return false;
    if (by_time_) {
        const AstTimeOfDay &t = keys.time();
        if (t.valid != 1) return false;
        const uint64_t ms = ((uint64_t{t.hour} * 60 + t.minute) * 60 + t.second) * 1000 + t.millisecond;
        const bool inside = from_ms_ <= to_ms_ ? (ms >= from_ms_ && ms <= to_ms_) : (ms >= from_ms_ || ms <= to_ms_);
        if (!inside) return false;
    }
    for (const Condition &c : conditions_)
        if (!meets(c, record, keys)) return false;
    return true;
}

bool RecordFilter::meets(const Condition &c, const AstDataRecord &record, RecordKeys &keys) const {
    if (record.valid != 1) return false;
    switch (c.keyword) {
    case AST_KEYWORD_SACSIC: {
        const AstDataSourceIdentifier &v = keys.source();
        return v.valid == 1 && v.sac == c.sac && (c.sac_only || v.sic == c.sic);
    }
    case AST_KEYWORD_TIMESTAMP: {
        const AstTimeOfDay &v = keys.time();
        return v.valid == 1 && v.hour == c.h && v.minute == c.m && v.second == c.s && v.millisecond == c.ms;
    }
    case AST_KEYWORD_TYPE: {
        const AstRecordMsgType &v = keys.type();
        return v.valid == 1 && v.value < c.types.size() && c.types.test(v.value);
    }
    default: return ast_datarecord_match_keyword(&record, c.keyword, c.value.c_str(), 0);
    }
}

}  // namespace kovrel_tool
