// Positions as compact degrees-minutes-seconds texts, in three precisions:
// "483000N0021500E", "483000.00N0021500.00E" and "483000.000000N0021500.000000E".
//
// The arithmetic is kept exactly as existing callers know it: seconds (and
// their fractions) are never carried into the next unit, so 60 seconds or
// 100 hundredths can appear, and an angle of exactly 0 is written 'S' or 'W'.
#include <cmath>
#include <cstdio>

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

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API char *ast_latlong_to_str(char *buffer, size_t size, double latitude, double longitude) {
    if (!buffer || size == 0) return nullptr;
    const kovrel::Dms la = kovrel::split(latitude, 0.0);
    const kovrel::Dms lo = kovrel::split(longitude, 0.0);
    std::snprintf(buffer, size, "%02d%02d%02d%c%03d%02d%02d%c", la.deg, la.min, la.sec,
                  kovrel::lat_letter(latitude), lo.deg, lo.min, lo.sec,
                  kovrel::lon_letter(longitude));
    return buffer;
}

KOVREL_API char *ast_latlong_to_str_high(char *buffer, size_t size, double latitude,
                                         double longitude) {
    if (!buffer || size == 0) return nullptr;
    const kovrel::Dms la = kovrel::split(latitude, 100.0);
    const kovrel::Dms lo = kovrel::split(longitude, 100.0);
    std::snprintf(buffer, size, "%02d%02d%02d.%02d%c%03d%02d%02d.%02d%c", la.deg, la.min, la.sec,
                  la.frac, kovrel::lat_letter(latitude), lo.deg, lo.min, lo.sec, lo.frac,
                  kovrel::lon_letter(longitude));
    return buffer;
}

KOVREL_API char *ast_latlong_to_str_very_high(char *buffer, size_t size, double latitude,
                                              double longitude) {
    if (!buffer || size == 0) return nullptr;
    const kovrel::Dms la = kovrel::split(latitude, 1e6);
    const kovrel::Dms lo = kovrel::split(longitude, 1e6);
    std::snprintf(buffer, size, "%02d%02d%02d.%06d%c%03d%02d%02d.%06d%c", la.deg, la.min, la.sec,
                  la.frac, kovrel::lat_letter(latitude), lo.deg, lo.min, lo.sec, lo.frac,
                  kovrel::lon_letter(longitude));
    return buffer;
}

}  // extern "C"
