// Keywords: names, the word comparison, and searching decoded records.
//
// Every value is read through the generic record accessors, so nothing
// here knows a category: a category answers the keywords its accessor
// table serves.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "core/text.h"
#include "kovrel/codec.h"
#include "kovrel/enums.h"
#include "kovrel/keyword.h"

namespace {

struct Keyword {
    const char *name;
    const char *description;
};

constexpr Keyword kKeywords[AST_KEYWORD_COUNT] = {
    {"SAC/SIC", "SAC/SIC"},
    {"Timestamp Tx", "Timestamp, definition and time zone depends on sensor configuration"},
    {"Type", "Message Type"},
    {"Track Number", "Track Number"},
    {"Mode 3/A", "Mode 3/A"},
    {"Flight Level", "Flight level in foot"},
    {"Selected Altitude", "Selected Altitude in foot"},
    {"Callsign", "Callsign"},
    {"ICAO Address", "ICAO Address"},
    {"WGS84 Coordinates", "WGS-84 coordinate in degree, minute and second"},
    {"Polar Coordinates", "Rho in NM, theta in degree"},
    {"Speed", "Ground speed in Knot"},
    {"Heading", "Heading in degree"},
    {"Cartesian Velocity", "Cartesian or horizontal velocity in meters/second"},
    {"Vertical Rate", "Vertical rate in feet/min"},
};

// The accessor slot that serves each keyword, in keyword order.
bool has_slot(const AstDataRecordFuncs &f, uint32_t id) {
    switch (id) {
        case AST_KEYWORD_SACSIC: return f.get_sacsic != nullptr;
        case AST_KEYWORD_TIMESTAMP: return f.get_timeofday != nullptr;
        case AST_KEYWORD_TYPE: return f.get_msgtype != nullptr;
        case AST_KEYWORD_TRACK_NUMBER: return f.get_tracknum != nullptr;
        case AST_KEYWORD_MODE3A: return f.get_squawk != nullptr;
        case AST_KEYWORD_FLIGHT_LEVEL: return f.get_flightlevel != nullptr;
        case AST_KEYWORD_SELECTED_ALTITUDE: return f.get_selaltitude != nullptr;
        case AST_KEYWORD_CALLSIGN: return f.get_callsign != nullptr;
        case AST_KEYWORD_ICAO_ADDRESS: return f.get_icaoaddr != nullptr;
        case AST_KEYWORD_WGS84: return f.get_coordinate != nullptr;
        case AST_KEYWORD_POLAR: return f.get_polarcoord != nullptr;
        case AST_KEYWORD_SPEED: return f.get_speed != nullptr;
        case AST_KEYWORD_HEADING: return f.get_heading != nullptr;
        case AST_KEYWORD_CARTESIAN_VELOCITY: return f.get_cartesianvel != nullptr;
        case AST_KEYWORD_VERTICAL_RATE: return f.get_vrate != nullptr;
        default: return false;
    }
}

// Tolerances of the numeric keywords (see keyword.h).
constexpr double kDegreesTolerance = 1e-6;
constexpr double kRhoTolerance = 5e-5;
constexpr double kAngleTolerance = 0.005;
constexpr double kSpeedTolerance = 0.5;        // knots
constexpr double kVelocityTolerance = 0.25;    // m/s
constexpr double kRateTolerance = 6.25;        // ft/min
constexpr double kSlack = 1e-9;                // absorbs the binary rounding of the steps
constexpr size_t kSearchMax = 64;              // longest numeric search text read, NUL included

bool near(double value, double wanted, double tolerance) { return std::fabs(value - wanted) <= tolerance + kSlack; }

// Angles compared round the circle.
bool near_angle(double value, double wanted, double tolerance) {
    double d = std::fmod(std::fabs(value - wanted), 360.0);
    if (d > 180.0) d = 360.0 - d;
    return d <= tolerance + kSlack;
}

// Reads search texts the way sscanf reads the formats below ("%d/%d",
// " R:%lf T:%lf", ...): a blank in the format skips any white space, %d
// and %lf skip white space first, other characters must be there. Written
// out because sscanf is slow enough to show when every record of a long
// recording is searched.
class Scan {
public:
    explicit Scan(const char *text) : p_(text) {}
    Scan &blanks() {
        while (is_space(*p_)) ++p_;
        return *this;
    }
    Scan &lit(char c) {
        if (ok_ && *p_ == c) ++p_;
        else ok_ = false;
        return *this;
    }
    Scan &lit(const char *text) {
        while (*text) lit(*text++);
        return *this;
    }
    Scan &integer(int *out) {
        if (!ok_) return *this;
        blanks();
        const char *q = p_;
        bool negative = false;
        if (*q == '+' || *q == '-') negative = *q++ == '-';
        if (*q < '0' || *q > '9') return fail();
        long long v = 0;
        for (; *q >= '0' && *q <= '9'; ++q)
            if (v < 10000000000LL) v = v * 10 + (*q - '0');
        if (v > 2147483647LL) v = 2147483647LL;
        *out = static_cast<int>(negative ? -v : v);
        p_ = q;
        ++count_;
        return *this;
    }
    Scan &real(double *out) {
        if (!ok_) return *this;
        blanks();
        char *end = nullptr;
        const double v = std::strtod(p_, &end);
        if (end == p_) return fail();
        *out = v;
        p_ = end;
        ++count_;
        return *this;
    }
    // Conversions done before the first mismatch, as sscanf counts them.
    int count() const { return count_; }

private:
    static bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
    Scan &fail() {
        ok_ = false;
        return *this;
    }
    const char *p_;
    bool ok_ = true;
    int count_ = 0;
};

bool is_blank_or_end(char c) { return c == '\0' || c == ' '; }

char fold(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }

// A number at the start of text (blanks skipped); false when there is none.
bool read_long(const char *text, int base, long *out) {
    char *end = nullptr;
    const long v = std::strtol(text, &end, base);
    if (end == text) return false;
    *out = v;
    return true;
}

bool read_double(const char *text, double *out) {
    char *end = nullptr;
    const double v = std::strtod(text, &end);
    if (end == text || std::isnan(v)) return false;
    *out = v;
    return true;
}

// True when text, after blanks and one sign, starts with a digit of base 8
// or 10 (ast_atoi_oct weighs 8 and 9 too).
bool starts_with_digit(const char *text) {
    while (*text == ' ' || *text == '\t') ++text;
    if (*text == '+' || *text == '-') ++text;
    return *text >= '0' && *text <= '9';
}

bool match_heading(double heading, const char *search) {
    double m = 0, t = 0;
    const int n = Scan(search).blanks().lit("M:").real(&m).blanks().lit("T:").real(&t).count();
    if (n == 2) return near_angle(heading, m, kAngleTolerance) && near_angle(heading, t, kAngleTolerance);
    if (n == 1) return near_angle(heading, m, kAngleTolerance);
    if (Scan(search).blanks().lit("T:").real(&t).count() == 1) return near_angle(heading, t, kAngleTolerance);
    return false;
}

bool match_velocity(const AstVelocityCartesian &v, const char *search) {
    double x = 0, y = 0;
    const int n = Scan(search).blanks().lit("VX:").real(&x).blanks().lit("VY:").real(&y).count();
    if (n == 2) return near(v.vx, x, kVelocityTolerance) && near(v.vy, y, kVelocityTolerance);
    if (n == 1) return near(v.vx, x, kVelocityTolerance);
    if (Scan(search).blanks().lit("VY:").real(&y).count() == 1) return near(v.vy, y, kVelocityTolerance);
    return false;
}

// Feet as the text form shows them: truncated towards zero.
bool match_feet(const AstRecordValue &v, const char *search) {
    long wanted = 0;
    if (v.valid != 1 || !read_long(search, 10, &wanted)) return false;
    if (!(std::fabs(v.value) < 2147483647.0)) return false;
    return static_cast<long>(static_cast<int>(v.value)) == wanted;
}

}  // namespace

extern "C" {

KOVREL_API void ast_keyword_name(char *buffer, size_t size, uint32_t id) {
    kovrel::TextWriter w(buffer, size);
    if (id < AST_KEYWORD_COUNT) w.append(kKeywords[id].name);
}

KOVREL_API void ast_keyword_description(char *buffer, size_t size, uint32_t id) {
    kovrel::TextWriter w(buffer, size);
    if (id < AST_KEYWORD_COUNT) w.append(kKeywords[id].description);
}

KOVREL_API bool ast_keyword_match(const char *value, const char *search, uint8_t case_sensitive) {
    if (!value || !search) return false;
    while (*value == ' ') ++value;
    while (*search == ' ') ++search;
    if (is_blank_or_end(*value)) return is_blank_or_end(*search);
    for (; !is_blank_or_end(*value); ++value, ++search) {
        if (is_blank_or_end(*search)) return false;  // the search word ends first
        const char a = case_sensitive ? *value : fold(*value);
        const char b = case_sensitive ? *search : fold(*search);
        if (a != b) return false;
    }
    return is_blank_or_end(*search);
}

KOVREL_API bool ast_datarecord_supports_keyword(uint32_t category, uint32_t id) {
    if (id >= AST_KEYWORD_COUNT) return false;
    AstDataRecordFuncs f;
    ast_datarecord_get_func(&f, category);
    return has_slot(f, id);
}

KOVREL_API bool ast_datarecord_contain_keyword(const AstDataRecord *record, uint32_t id) {
    if (!record || record->valid != 1 || id >= AST_KEYWORD_COUNT) return false;
    switch (id) {
        case AST_KEYWORD_SACSIC: {
            AstDataSourceIdentifier v;
            ast_datarecord_get_sacsic(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_TIMESTAMP: {
            AstTimeOfDay v;
            ast_datarecord_get_timeofday(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_TYPE: {
            AstRecordMsgType v;
            ast_datarecord_get_msgtype(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_TRACK_NUMBER: {
            AstTrackNumber v;
            ast_datarecord_get_tracknum(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_MODE3A: {
            AstMode3aCode v;
            ast_datarecord_get_squawk(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_FLIGHT_LEVEL:
        case AST_KEYWORD_SELECTED_ALTITUDE:
        case AST_KEYWORD_SPEED:
        case AST_KEYWORD_HEADING: {
            AstRecordValue v;
            if (id == AST_KEYWORD_FLIGHT_LEVEL) ast_datarecord_get_flightlevel(&v, record);
            else if (id == AST_KEYWORD_SELECTED_ALTITUDE) ast_datarecord_get_selaltitude(&v, record);
            else if (id == AST_KEYWORD_SPEED) ast_datarecord_get_speed(&v, record);
            else ast_datarecord_get_heading(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_CALLSIGN: {
            AstRecordCallsign v;
            ast_datarecord_get_callsign(&v, record);
            return v.valid == 1 && v.callsign[0] != '\0';
        }
        case AST_KEYWORD_ICAO_ADDRESS: {
            AstTargetAddress v;
            ast_datarecord_get_icaoaddr(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_WGS84: {
            AstRecordWgs84 v;
            ast_datarecord_get_wgs84coord(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_POLAR: {
            AstRecordPolar v;
            ast_datarecord_get_polarcoord(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_CARTESIAN_VELOCITY: {
            AstVelocityCartesian v;
            ast_datarecord_get_cartesianvel(&v, record);
            return v.valid == 1;
        }
        case AST_KEYWORD_VERTICAL_RATE: {
            AstVerticalRate v;
            ast_datarecord_get_vrate(&v, record);
            return v.valid == 1;
        }
        default: return false;
    }
}

KOVREL_API bool ast_datarecord_match_keyword(const AstDataRecord *record, uint32_t id, const char *search,
                                             uint8_t case_sensitive) {
    if (!record || !search || record->valid != 1 || id >= AST_KEYWORD_COUNT) return false;
    // Numbers are read from a bounded copy: the C library's readers may
    // allocate for very long texts, and no value needs more than a few
    // dozen characters.
    char bounded[kSearchMax];
    if (id != AST_KEYWORD_TYPE && id != AST_KEYWORD_CALLSIGN) {
        const size_t n = strnlen(search, sizeof bounded);
        if (n == sizeof bounded) return false;
        std::memcpy(bounded, search, n + 1);
        search = bounded;
    }
    switch (id) {
        case AST_KEYWORD_SACSIC: {
            AstDataSourceIdentifier v;
            ast_datarecord_get_sacsic(&v, record);
            if (v.valid != 1) return false;
            int sac = 0, sic = 0;
            const int n = Scan(search).integer(&sac).lit('/').integer(&sic).count();
            if (n == 2) return static_cast<uint32_t>(sac) == v.sac && static_cast<uint32_t>(sic) == v.sic;
            return n == 1 && static_cast<uint32_t>(sac) == v.sac;
        }
        case AST_KEYWORD_TIMESTAMP: {
            AstTimeOfDay v;
            ast_datarecord_get_timeofday(&v, record);
            if (v.valid != 1) return false;
            int h = 0, m = 0, s = 0, ms = 0;
            if (Scan(search).integer(&h).lit(':').integer(&m).lit(':').integer(&s).lit('.').integer(&ms).count() != 4)
                return false;
            return static_cast<uint32_t>(h) == v.hour && static_cast<uint32_t>(m) == v.minute &&
                   static_cast<uint32_t>(s) == v.second && static_cast<uint32_t>(ms) == v.millisecond;
        }
        case AST_KEYWORD_TYPE: {
            AstRecordMsgType v;
            ast_datarecord_get_msgtype(&v, record);
            if (v.valid != 1) return false;
            const char *name = ast_msgtype_to_str(v.value);
            return name && name[0] != '\0' && ast_keyword_match(name, search, case_sensitive);
        }
        case AST_KEYWORD_TRACK_NUMBER: {
            AstTrackNumber v;
            ast_datarecord_get_tracknum(&v, record);
            long wanted = 0;
            return v.valid == 1 && read_long(search, 10, &wanted) && wanted == static_cast<long>(v.number);
        }
        case AST_KEYWORD_MODE3A: {
            AstMode3aCode v;
            ast_datarecord_get_squawk(&v, record);
            return v.valid == 1 && starts_with_digit(search) &&
                   static_cast<uint32_t>(ast_atoi_oct(search)) == v.code;
        }
        case AST_KEYWORD_FLIGHT_LEVEL: {
            AstRecordValue v;
            ast_datarecord_get_flightlevel(&v, record);
            return match_feet(v, search);
        }
        case AST_KEYWORD_SELECTED_ALTITUDE: {
            AstRecordValue v;
            ast_datarecord_get_selaltitude(&v, record);
            return match_feet(v, search);
        }
        case AST_KEYWORD_CALLSIGN: {
            AstRecordCallsign v;
            ast_datarecord_get_callsign(&v, record);
            return v.valid == 1 && ast_keyword_match(v.callsign, search, case_sensitive);
        }
        case AST_KEYWORD_ICAO_ADDRESS: {
            AstTargetAddress v;
            ast_datarecord_get_icaoaddr(&v, record);
            long wanted = 0;
            return v.valid == 1 && read_long(search, 16, &wanted) && wanted == static_cast<long>(v.address);
        }
        case AST_KEYWORD_WGS84: {
            AstRecordWgs84 v;
            ast_datarecord_get_wgs84coord(&v, record);
            double lat = 0, lon = 0;
            return v.valid == 1 && Scan(search).blanks().real(&lat).blanks().lit(',').blanks().real(&lon).count() == 2 &&
                   near(v.latitude, lat, kDegreesTolerance) && near(v.longitude, lon, kDegreesTolerance);
        }
        case AST_KEYWORD_POLAR: {
            AstRecordPolar v;
            ast_datarecord_get_polarcoord(&v, record);
            double rho = 0, theta = 0;
            return v.valid == 1 && Scan(search).blanks().lit("R:").real(&rho).blanks().lit("T:").real(&theta).count() == 2 &&
                   near(v.rho, rho, kRhoTolerance) && near(v.theta, theta, kAngleTolerance);
        }
        case AST_KEYWORD_SPEED: {
            AstRecordValue v;
            ast_datarecord_get_speed(&v, record);
            double wanted = 0;
            return v.valid == 1 && read_double(search, &wanted) && near(v.value, wanted, kSpeedTolerance);
        }
        case AST_KEYWORD_HEADING: {
            AstRecordValue v;
            ast_datarecord_get_heading(&v, record);
            return v.valid == 1 && match_heading(v.value, search);
        }
        case AST_KEYWORD_CARTESIAN_VELOCITY: {
            AstVelocityCartesian v;
            ast_datarecord_get_cartesianvel(&v, record);
            return v.valid == 1 && match_velocity(v, search);
        }
        case AST_KEYWORD_VERTICAL_RATE: {
            AstVerticalRate v;
            ast_datarecord_get_vrate(&v, record);
            double wanted = 0;
            return v.valid == 1 && read_double(search, &wanted) && near(v.value, wanted, kRateTolerance);
        }
        default: return false;
    }
}

KOVREL_API bool ast_datarecord_get_keyword(char *buffer, size_t size, const AstDataRecord *record, uint32_t id,
                                           uint32_t flags) {
    if (!buffer || !record || record->valid != 1 || id >= AST_KEYWORD_COUNT) return false;
    kovrel::TextWriter w(buffer, size);
    switch (id) {
        case AST_KEYWORD_SACSIC: {
            AstDataSourceIdentifier v;
            ast_datarecord_get_sacsic(&v, record);
            if (v.valid != 1) return false;
            w.appendf("%.3d/%.3d", static_cast<int>(v.sac), static_cast<int>(v.sic));
            return true;
        }
        case AST_KEYWORD_TIMESTAMP: {
            AstTimeOfDay v;
            ast_datarecord_get_timeofday(&v, record);
            if (v.valid != 1) return false;
            w.appendf("%02d:%02d:%02d.%03d", static_cast<int>(v.hour), static_cast<int>(v.minute),
                      static_cast<int>(v.second), static_cast<int>(v.millisecond));
            return true;
        }
        case AST_KEYWORD_TYPE: {
            AstRecordMsgType v;
            ast_datarecord_get_msgtype(&v, record);
            const char *name = v.valid == 1 ? ast_msgtype_to_str(v.value) : nullptr;
            if (!name) return false;
            w.append(name);
            return true;
        }
        case AST_KEYWORD_TRACK_NUMBER: {
            AstTrackNumber v;
            ast_datarecord_get_tracknum(&v, record);
            if (v.valid != 1) return false;
            w.appendf("%d", static_cast<int>(v.number));
            return true;
        }
        case AST_KEYWORD_MODE3A: {
            AstMode3aCode v;
            ast_datarecord_get_squawk(&v, record);
            if (v.valid != 1) return false;
            w.appendf("%.4o", static_cast<unsigned>(v.code));
            if (v.g) w.append_char('G');
            if (v.l) w.append_char('S');
            return true;
        }
        case AST_KEYWORD_FLIGHT_LEVEL:
        case AST_KEYWORD_SELECTED_ALTITUDE: {
            AstRecordValue v;
            if (id == AST_KEYWORD_FLIGHT_LEVEL)
                ast_datarecord_get_flightlevel(&v, record);
            else
                ast_datarecord_get_selaltitude(&v, record);
            if (v.valid != 1 || !(std::fabs(v.value) < 2147483647.0)) return false;
            w.appendf("%.5d", static_cast<int>(v.value));
            return true;
        }
        case AST_KEYWORD_CALLSIGN: {
            AstRecordCallsign v;
            ast_datarecord_get_callsign(&v, record);
            w.append(v.callsign);
            return v.valid == 1;
        }
        case AST_KEYWORD_ICAO_ADDRESS: {
            AstTargetAddress v;
            ast_datarecord_get_icaoaddr(&v, record);
            if (v.valid != 1) return false;
            w.appendf("%.6X", static_cast<unsigned>(v.address));
            return true;
        }
        case AST_KEYWORD_WGS84: {
            AstRecordWgs84 v;
            ast_datarecord_get_wgs84coord(&v, record);
            if (v.valid != 1) return false;
            if (flags & AST_KEYWORD_FORMAT_VERY_HIGH)
                ast_latlong_to_str_very_high(buffer, size, v.latitude, v.longitude);
            else if (flags & AST_KEYWORD_FORMAT_HIGH)
                ast_latlong_to_str_high(buffer, size, v.latitude, v.longitude);
            else if (flags & AST_KEYWORD_FORMAT_DECIMAL)
                w.appendf("%09.6f, %010.6f", v.latitude, v.longitude);
            else
                ast_latlong_to_str(buffer, size, v.latitude, v.longitude);
            return true;
        }
        case AST_KEYWORD_POLAR: {
            AstRecordPolar v;
            ast_datarecord_get_polarcoord(&v, record);
            if (v.valid != 1) return false;
            w.appendf("R:%08.4f T:%06.2f", v.rho, v.theta);
            return true;
        }
        case AST_KEYWORD_SPEED: {
            AstRecordValue v;
            ast_datarecord_get_speed(&v, record);
            if (v.valid != 1) return false;
            w.appendf("%04.2f", v.value);
            return true;
        }
        case AST_KEYWORD_HEADING: {
            // One heading per record: labelled as the true-north value (see keyword.h).
            AstRecordValue v;
            ast_datarecord_get_heading(&v, record);
            if (v.valid != 1) return false;
            w.appendf("T:%06.2f", v.value);
            return true;
        }
        case AST_KEYWORD_CARTESIAN_VELOCITY: {
            AstVelocityCartesian v;
            ast_datarecord_get_cartesianvel(&v, record);
            if (v.valid != 1) return false;
            w.appendf("VX:%+07.2f VY:%+07.2f", v.vx, v.vy);
            return true;
        }
        case AST_KEYWORD_VERTICAL_RATE: {
            AstVerticalRate v;
            ast_datarecord_get_vrate(&v, record);
            if (v.valid != 1) return false;
            w.appendf("%+08.2f", v.value);
            return true;
        }
        default: return false;
    }
}

}  // extern "C"
