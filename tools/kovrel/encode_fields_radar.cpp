// `kovrel encode`: the record fields of the older radar categories and of
// the radar service messages.
//
// CAT001 (plot or track; the profile "standard" is the track layout,
// "cat001_plot" the plot layout):
//   sac, sic (both)   I001/010; required without items
//   msgtype           "Plot" or "Track": TYP of I001/020, which is written
//                     without items (SSR + PSR detection when mode3a or fl is
//                     given, PSR alone otherwise); "Track" needs track
//   track (0..65535)  I001/161 (makes the record a track)
//   rho, theta        I001/040: NM (1/128), degrees
//   x, y              I001/042: metres, in steps of 1/64 NM
//   mode3a            I001/070: octal digits
//   fl                I001/090: feet, in quarters of a flight level
//   tod               I001/141: the time of day's low 16 bits (1/128 s)
//   speed, heading    I001/200: knots, degrees
// CAT002 and CAT034 (service messages):
//   sac, sic (both)   I002/010, I034/010; required without items
//   msgtype           "North" (1) or "Sector" (2): I002/000, I034/000;
//                     required without items
//   tod               I002/030, I034/030
//   sector            I002/020, I034/020: degrees, in steps of 360/256
#include "encode_fields.h"

#include <cmath>

namespace kovrel_tool::record_fields {
namespace {

AstDataSourceIdentifier *sac_sic(const json &f, bool with_items, FieldValues &out) {
    if (!pair(f, "sac", "sic")) {
        if (!with_items) throw BadField("sac and sic are required");
        return nullptr;
    }
    auto &v = out.make<AstDataSourceIdentifier>();
    v = {1, static_cast<uint32_t>(whole(f, "sac", 0, 255)), static_cast<uint32_t>(whole(f, "sic", 0, 255))};
    return &v;
}

AstTimeOfDay *time_of_day(const json &f, FieldValues &out) {
    if (!f.contains("tod")) return nullptr;
    auto &v = out.make<AstTimeOfDay>();
    const uint32_t raw = time_of_day_raw(f);
    v = {1, raw, 1.0 / 128, raw / 128 / 3600, raw / 128 / 60 % 60, raw / 128 % 60, raw % 128 * 1000 / 128};
    return &v;
}

// North marker or sector crossing, with the sector's azimuth.
void service_message(const json &f, bool with_items, FieldValues &out, AstItemId base) {
    only_known(f, {"sac", "sic", "tod", "msgtype", "sector"});
    if (AstDataSourceIdentifier *v = sac_sic(f, with_items, out)) out.add(base + 10, v);
    if (f.contains("msgtype")) {
        const std::string type = text(f, "msgtype");
        if (type != "North" && type != "Sector") bad("msgtype", "not North or Sector (give other types as items)");
        auto &v = out.make<AstMessageType>();
        v = {1, type == "North" ? 1u : 2u};
        out.add(base, &v);
    } else if (!with_items) {
        throw BadField("msgtype is required");
    }
    if (f.contains("sector")) {
        const double lsb = 360.0 / 256;
        const double d = std::fmod(std::fmod(number(f, "sector"), 360.0) + 360.0, 360.0);
        const auto raw = static_cast<uint32_t>(std::lround(d / lsb)) & 0xFF;
        auto &v = out.make<AstSectorNumber>();
        v = {1, raw, lsb, raw * lsb};
        out.add(base + 20, &v);
    }
    if (AstTimeOfDay *v = time_of_day(f, out)) out.add(base + 30, v);
}

}  // namespace

void read_fields_001(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    only_known(f, {"sac", "sic", "msgtype", "track", "rho", "theta", "x", "y", "mode3a", "fl", "tod", "speed",
                   "heading"});
    if (AstDataSourceIdentifier *v = sac_sic(f, with_items, out)) out.add(1010, v);
    const bool ssr = f.contains("mode3a") || f.contains("fl");
    if (f.contains("msgtype") || !with_items) {
        bool track = f.contains("track");
        if (f.contains("msgtype")) {
            const std::string type = text(f, "msgtype");
            if (type != "Plot" && type != "Track") bad("msgtype", "not Plot or Track");
            if (type == "Track" && !track) bad("msgtype", "a Track needs track");
            track = type == "Track";
        }
        auto &v = out.make<AstItem001_020>();
        ast_dataitem_001_020_init(&v);
        v.valid = 1;
        v.typ = track ? 1 : 0;
        v.ssr_psr = ssr ? 3 : 1;
        out.add(1020, &v);
    }
    if (f.contains("track")) {
        auto &v = out.make<AstTrackNumber>();
        v = {1, static_cast<uint32_t>(whole(f, "track", 0, 65535)), 0};
        out.add(1161, &v);
    }
    if (pair(f, "rho", "theta")) {
        auto &v = out.make<AstItem001_040>();
        const auto rho = static_cast<uint32_t>(steps(f, "rho", 1.0 / 128, 0, 0xFFFF));
        const uint32_t theta = azimuth(f, "theta");
        v = {1, {rho, 1.0 / 128, rho / 128.0}, {theta, 360.0 / 65536, theta * 360.0 / 65536}};
        out.add(1040, &v);
    }
    if (pair(f, "x", "y")) {
        const double lsb = 1852.0 / 64;
        auto &v = out.make<AstItem001_042>();
        const auto x = static_cast<int32_t>(steps(f, "x", lsb, -32768, 32767));
        const auto y = static_cast<int32_t>(steps(f, "y", lsb, -32768, 32767));
        v = {1, {x, 1.0 / 64, x / 64.0}, {y, 1.0 / 64, y / 64.0}};
        out.add(1042, &v);
    }
    if (f.contains("mode3a")) {
        auto &v = out.make<AstMode3aCode>();
        v.valid = 1;
        v.code = digits(f, "mode3a", 8, 4);
        out.add(1070, &v);
    }
    if (f.contains("fl")) {
        auto &v = out.make<AstModeCCode>();
        v = {1, 1, 0, static_cast<int32_t>(steps(f, "fl", 25, -8192, 8191))};
        out.add(1090, &v);
    }
    if (f.contains("tod")) {
        auto &v = out.make<AstItem001_141>();
        const uint32_t raw = time_of_day_raw(f) & 0xFFFF;
        v = {1, raw, raw >> 7, (raw & 127) * 1000 >> 7};
        out.add(1141, &v);
    }
    if (pair(f, "speed", "heading")) {
        const double speed_lsb = 3600.0 / 16384;  // 2^-14 NM/s in knots
        auto &v = out.make<AstVelocityPolar>();
        const auto speed = static_cast<int32_t>(steps(f, "speed", speed_lsb, 0, 0xFFFF));
        const auto heading = static_cast<int32_t>(azimuth(f, "heading"));
        v = {1, speed, speed_lsb, speed * speed_lsb, heading, 360.0 / 65536, heading * 360.0 / 65536};
        out.add(1200, &v);
    }
}

void read_fields_002(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    service_message(f, with_items, out, 2000);
}

void read_fields_034(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    service_message(f, with_items, out, 34000);
}

}  // namespace kovrel_tool::record_fields
