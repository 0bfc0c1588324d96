#include "encode_json.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstring>
#include <stdexcept>

namespace kovrel_tool {
namespace {

using nlohmann::json;

// A value that cannot be written; the text says why.
struct BadField : std::runtime_error {
    using std::runtime_error::runtime_error;
};

[[noreturn]] void bad(const std::string &key, const std::string &why) { throw BadField(key + ": " + why); }

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

// value / lsb rounded to the nearest step, which must lie in [lo, hi].
long long steps(const json &f, const char *key, double lsb, long long lo, long long hi) {
    const double d = std::round(number(f, key) / lsb);
    if (d < static_cast<double>(lo) || d > static_cast<double>(hi)) bad(key, "out of range");
    return static_cast<long long>(d);
}

// An azimuth in steps of 360/65536 degree, modulo 360.
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

// A string of 1 to `most` digits of `base` (8 or 16).
uint32_t digits(const json &f, const char *key, int base, size_t most) {
    const std::string s = text(f, key);
    const bool ok = !s.empty() && s.size() <= most && std::all_of(s.begin(), s.end(), [base](char c) {
        return base == 8 ? c >= '0' && c <= '7' : std::isxdigit(static_cast<unsigned char>(c)) != 0;
    });
    if (!ok) bad(key, "not 1 to " + std::to_string(most) + (base == 8 ? " octal" : " hexadecimal") + " digits");
    return static_cast<uint32_t>(std::stoul(s, nullptr, base));
}

// Seconds since midnight from "HH:MM:SS[.fff]" or a number.
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

// Both keys or neither.
bool pair(const json &f, const char *a, const char *b) {
    if (f.contains(a) != f.contains(b)) throw BadField(std::string(a) + " and " + b + " go together");
    return f.contains(a);
}

void add(RecordRequest &r, AstItemId id, void *value) {
    r.input.items[r.input.item_count++] = AstDataItemValue{1, id, value};
}

void fill(const json &f, RecordRequest &r) {
    // What the items take, then what the decoder shows but the items do not carry.
    static const char *const known[] = {"sac", "sic", "tod", "typ", "rho", "theta", "mode3a", "fl", "icao",
                                        "callsign", "track", "speed", "heading", "msgtype", "sel_alt", "lat",
                                        "lon", "vx", "vy", "vrate"};
    for (auto it = f.begin(); it != f.end(); ++it)
        if (std::none_of(std::begin(known), std::end(known), [&](const char *k) { return it.key() == k; }))
            bad(it.key(), "unknown field");
    AstRecord048 &v = r.values;

    if (!pair(f, "sac", "sic")) throw BadField("sac and sic are required");
    v.i010 = {1, static_cast<uint32_t>(whole(f, "sac", 0, 255)), static_cast<uint32_t>(whole(f, "sic", 0, 255))};
    add(r, 48010, &v.i010);

    if (f.contains("tod")) {
        // Rounded, not truncated: the decoder truncates to milliseconds, and
        // the nearest step keeps the time within half a step of what was given.
        const uint32_t raw = static_cast<uint32_t>(std::llround(seconds_of_day(f) * 128) % (86400 * 128));
        v.i140 = {1, raw, 1.0 / 128, raw / 128 / 3600, raw / 128 / 60 % 60, raw / 128 % 60, raw % 128 * 1000 / 128};
        add(r, 48140, &v.i140);
    }

    v.i020.valid = 1;
    v.i020.rdp = 1;
    v.i020.typ = f.contains("typ") ? static_cast<uint32_t>(whole(f, "typ", 0, 7)) : f.contains("icao") ? 5 : 2;
    add(r, 48020, &v.i020);

    if (pair(f, "rho", "theta")) {
        const uint32_t rho = static_cast<uint32_t>(steps(f, "rho", 1.0 / 256, 0, 0xFFFF));
        const uint32_t theta = azimuth(f, "theta");
        v.i040 = {1, rho, 1.0 / 256, rho / 256.0, theta, 360.0 / 65536, theta * 360.0 / 65536};
        add(r, 48040, &v.i040);
    }
    if (f.contains("mode3a")) {
        v.i070.valid = 1;
        v.i070.code = digits(f, "mode3a", 8, 4);
        add(r, 48070, &v.i070);
    }
    if (f.contains("fl")) {
        // Quarters of a flight level in 14 bits.
        v.i090 = {1, 1, 0, static_cast<int32_t>(steps(f, "fl", 25, -8192, 8191))};
        add(r, 48090, &v.i090);
    }
    if (f.contains("icao")) {
        v.i220 = {1, digits(f, "icao", 16, 6)};
        if (v.i220.address == 0) bad("icao", "000000 cannot be written");
        add(r, 48220, &v.i220);
    }
    if (f.contains("callsign")) {
        const std::string s = text(f, "callsign");
        if (s.size() > 8 || s.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ") != std::string::npos)
            bad("callsign", "not up to 8 characters A-Z, 0-9 or blank");
        v.i240.valid = 1;
        std::memcpy(v.i240.chars, s.c_str(), s.size() + 1);
        add(r, 48240, &v.i240);
    }
    if (f.contains("track")) {
        v.i161 = {1, static_cast<uint32_t>(whole(f, "track", 0, 4095)), 1};
        add(r, 48161, &v.i161);
    }
    // A heading alone is what the decoder reads from Mode S registers
    // (I048/250), which are not written: it is left out.
    if (f.contains("speed")) {
        if (!f.contains("heading")) throw BadField("speed needs heading");
        const double speed_lsb = 3600.0 / 16384;  // 2^-14 NM/s in knots
        const int32_t speed = static_cast<int32_t>(steps(f, "speed", speed_lsb, 0, 0xFFFF));
        const int32_t heading = static_cast<int32_t>(azimuth(f, "heading"));
        v.i200 = {1, speed, speed_lsb, speed * speed_lsb, heading, 360.0 / 65536, heading * 360.0 / 65536};
        add(r, 48200, &v.i200);
    }
}

}  // namespace

bool record_from_json(const json &object, RecordRequest &out, std::string &error) {
    try {
        if (!object.is_object()) throw BadField("not a JSON object");
        if (!object.contains("cat")) throw BadField("no cat");
        const long long cat = whole(object, "cat", 0, 255);
        if (cat != 48) bad("cat", "category " + std::to_string(cat) + " cannot be encoded (48 only)");
        if (!object.contains("fields") || !object["fields"].is_object()) throw BadField("no fields object");
        out.values = {};
        out.input = {};
        out.input.category = 48;
        out.input.uap = AST_UAP_STANDARD;
        fill(object["fields"], out);
        return true;
    } catch (const BadField &e) {
        error = e.what();
        return false;
    }
}

}  // namespace kovrel_tool
