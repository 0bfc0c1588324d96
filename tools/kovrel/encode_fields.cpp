#include "encode_fields.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace kovrel_tool::record_fields {

void bad(const std::string &key, const std::string &why) { throw BadField(key + ": " + why); }

double number(const json &f, const char *key) {
    const json &v = f.at(key);
    if (!v.is_number()) bad(key, "not a number");
    return v.get<double>();
}

long long whole(const json &f, const char *key, long long lo, long long hi) {
    const double d = number(f, key);
    if (d != std::floor(d) || d < static_cast<double>(lo) || d > static_cast<double>(hi))
        bad(key, "not a whole number from " + std::to_string(lo) + " to " + std::to_string(hi));
    return static_cast<long long>(d);
}

long long steps(const json &f, const char *key, double lsb, long long lo, long long hi) {
    const double d = std::round(number(f, key) / lsb);
    if (d < static_cast<double>(lo) || d > static_cast<double>(hi)) bad(key, "out of range");
    return static_cast<long long>(d);
}

uint32_t azimuth(const json &f, const char *key) {
    const double d = number(f, key);
    if (std::fabs(d) > 1e6) bad(key, "out of range");
    return static_cast<uint32_t>(std::llround(d * 65536.0 / 360.0) & 0xFFFF);
}

std::string text(const json &f, const char *key) {
    const json &v = f.at(key);
    if (!v.is_string()) bad(key, "not a string");
    return v.get<std::string>();
}

uint32_t digits(const json &f, const char *key, int base, size_t most) {
    const std::string s = text(f, key);
    const bool ok = !s.empty() && s.size() <= most && std::all_of(s.begin(), s.end(), [base](char c) {
        return base == 8 ? c >= '0' && c <= '7' : std::isxdigit(static_cast<unsigned char>(c)) != 0;
    });
    if (!ok) bad(key, "not 1 to " + std::to_string(most) + (base == 8 ? " octal" : " hexadecimal") + " digits");
    return static_cast<uint32_t>(std::stoul(s, nullptr, base));
}

double seconds_of_day(const json &f) {
    double seconds;
    if (f.at("tod").is_number()) {
        seconds = number(f, "tod");
    } else {
        const std::string s = text(f, "tod");
        auto digit = [&](size_t i) { return i < s.size() && std::isdigit(static_cast<unsigned char>(s[i])); };
        bool ok = digit(0) && digit(1) && s[2] == ':' && digit(3) && digit(4) && s[5] == ':' && digit(6) && digit(7);
        if (ok && s.size() > 8) {
            ok = s[8] == '.' && s.size() > 9;
            for (size_t i = 9; ok && i < s.size(); ++i) ok = digit(i);
        }
        const double h = ok ? std::stod(s.substr(0, 2)) : 0, m = ok ? std::stod(s.substr(3, 2)) : 0;
        const double sec = ok ? std::stod(s.substr(6)) : 0;
        if (!ok || h > 23 || m > 59 || sec >= 60) bad("tod", "not a time HH:MM:SS or HH:MM:SS.fff");
        seconds = h * 3600 + m * 60 + sec;
    }
    if (!(seconds >= 0 && seconds < 86400)) bad("tod", "not within the day");
    return seconds;
}

bool pair(const json &f, const char *a, const char *b) {
    if (f.contains(a) != f.contains(b)) throw BadField(std::string(a) + " and " + b + " go together");
    return f.contains(a);
}

uint32_t time_of_day_raw(const json &f) {
    // Rounded, not truncated: the decoder truncates to milliseconds, and
    // the nearest step keeps the time within half a step of what was given.
    return static_cast<uint32_t>(std::llround(seconds_of_day(f) * 128) % (86400 * 128));
}

void only_known(const json &f, std::initializer_list<const char *> known) {
    for (auto it = f.begin(); it != f.end(); ++it)
        if (std::none_of(known.begin(), known.end(), [&](const char *k) { return it.key() == k; }))
            bad(it.key(), "unknown field");
}

std::string callsign(const json &f, const char *key) {
    const std::string s = text(f, key);
    if (s.size() > 8 || s.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ") != std::string::npos)
        bad(key, "not up to 8 characters A-Z, 0-9 or blank");
    return s;
}

Reader reader_for(uint32_t category) {
    switch (category) {
    case 1: return read_fields_001;
    case 2: return read_fields_002;
    case 8: return read_fields_008;
    case 10: return read_fields_010;
    case 15: return read_fields_015;
    case 16: return read_fields_016;
    case 19: return read_fields_019;
    case 20: return read_fields_020;
    case 21: return read_fields_021;
    case 34: return read_fields_034;
    case 48: return read_fields_048;
    case 62: return read_fields_062;
    default: return nullptr;
    }
}

}  // namespace kovrel_tool::record_fields
