// Positions as compact degrees-minutes-seconds texts, in three precisions:
// "483000N0021500E", "483000.00N0021500.00E" and "483000.000000N0021500.000000E".
//
// The arithmetic is kept exactly as existing callers know it: seconds (and
// their fractions) are never carried into the next unit, so 60 seconds or
// 100 hundredths can appear, and an angle of exactly 0 is written 'S' or 'W'.
#include <cmath>
#include <cstring>

#include "kovrel/codec.h"

namespace kovrel {
namespace {

// Whole number to int for printing; NaN and values beyond the int range
// (only hostile input produces them) are pinned instead of overflowing.
int to_int(double v) {
    if (std::isnan(v)) return 0;
    if (v >= 2147483647.0) return 2147483647;
    if (v <= -2147483648.0) return -2147483647 - 1;
    return static_cast<int>(v);
}

struct Dms {
    int deg;
    int min;
    int sec;
    int frac;  // sub-second part in units of 1/scale; 0 when scale is 0
};

// Splits |angle| into degrees, minutes and seconds. With scale 0 the
// seconds are rounded half away from zero; otherwise they are truncated and
// the remainder is rounded to 1/scale of a second.
Dms split(double angle, double scale) {
    const double a = std::fabs(angle);
    const double d = std::floor(a);
    const double f = a - d;
    const double m = std::floor(f * 60.0);
    Dms r{to_int(d), to_int(m), 0, 0};
    if (scale == 0.0) {
        r.sec = to_int(std::round((f - m / 60.0) * 3600.0));
        return r;
    }
    const double s = std::floor((f - m / 60.0) * 3600.0);
    r.sec = to_int(s);
    r.frac = to_int(std::round((a * 3600.0 - d * 3600.0 - m * 60.0 - s) * scale));
    return r;
}

char lat_letter(double lat) { return lat > 0.0 ? 'N' : 'S'; }
char lon_letter(double lon) { return lon > 0.0 ? 'E' : 'W'; }

// Writes v as printf's "%0<width>d" does (a sign counts in the width).
char *zero_padded(char *p, int v, int width) {
    unsigned magnitude = v < 0 ? 0u - static_cast<unsigned>(v) : static_cast<unsigned>(v);
    if (v < 0) {
        *p++ = '-';
        --width;
    }
    char digits[10];
    int n = 0;
    do {
        digits[n++] = static_cast<char>('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    for (int i = n; i < width; ++i) *p++ = '0';
    while (n > 0) *p++ = digits[--n];
    return p;
}

// One coordinate: degrees (deg_width digits), minutes, seconds, the
// fraction of a second in frac_width digits (none when 0) and the letter.
char *coordinate(char *p, const Dms &d, int deg_width, int frac_width, char letter) {
    p = zero_padded(p, d.deg, deg_width);
    p = zero_padded(p, d.min, 2);
    p = zero_padded(p, d.sec, 2);
    if (frac_width > 0) {
        *p++ = '.';
        p = zero_padded(p, d.frac, frac_width);
    }
    *p++ = letter;
    return p;
}

// The text of a position, cut to the buffer like snprintf cuts it.
char *position_text(char *buffer, size_t size, double latitude, double longitude, double scale, int frac_width) {
    if (!buffer || size == 0) return nullptr;
    const Dms la = split(latitude, scale);
    const Dms lo = split(longitude, scale);
    char text[128];  // two coordinates of at most eight numbers of eleven characters
    char *p = coordinate(text, la, 2, frac_width, lat_letter(latitude));
    p = coordinate(p, lo, 3, frac_width, lon_letter(longitude));
    size_t n = static_cast<size_t>(p - text);
    if (n > size - 1) n = size - 1;
    std::memcpy(buffer, text, n);
    buffer[n] = '\0';
    return buffer;
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API char *ast_latlong_to_str(char *buffer, size_t size, double latitude, double longitude) {
    return kovrel::position_text(buffer, size, latitude, longitude, 0.0, 0);
}

KOVREL_API char *ast_latlong_to_str_high(char *buffer, size_t size, double latitude,
                                         double longitude) {
    return kovrel::position_text(buffer, size, latitude, longitude, 100.0, 2);
}

KOVREL_API char *ast_latlong_to_str_very_high(char *buffer, size_t size, double latitude,
                                              double longitude) {
    return kovrel::position_text(buffer, size, latitude, longitude, 1e6, 6);
}

}  // extern "C"
