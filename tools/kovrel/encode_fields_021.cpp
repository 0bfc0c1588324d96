// `kovrel encode`: the record fields of CAT021 ADS-B reports, written as the
// items of the record's edition (its profile: cat021_ver21 and cat021_ver27
// the 2.x items, cat021_ver023 the items of 0.23, any other profile the
// items of 0.26, which the standard profile reads).
//   sac, sic (both)   I021/010; required without items
//   tod               2.x: I021/077 (time of report transmission); 0.2x: I021/030
//   msgtype           "ADS-B" only (not written: every CAT021 record is one)
//   track             I021/161 (2.x)
//   mode3a            I021/070: octal digits (2.x and 0.26)
//   fl                I021/145: feet, in quarters of a flight level
//   sel_alt           I021/146: feet, in steps of 25 ft (no source given)
//   icao              I021/080: hexadecimal digits
//   callsign          I021/170
//   lat, lon (both)   2.x and 0.23: I021/130 (180/2^23 degree); 0.26: 21902
//                     (180/2^25 degree)
//   speed, heading    2.x: I021/160 (knots in 2^-14 NM/s, 15 bits; degrees);
//                     0.2x: 21911 (signed speed)
//   vrate             2.x: I021/155; 0.2x: 21909 (ft/min, steps of 6.25)
// Without items a target report descriptor is added (I021/040 or 21903:
// 24-bit ICAO address, 25 ft altitude reporting).
#include <cstring>

#include "encode_fields.h"

namespace kovrel_tool::record_fields {
namespace {

enum class Edition { V023, V026, V2x };

Edition edition_of(const AstUap &uap) {
    if (uap.get_dataitem == AST_UAP_CAT021_VER21.get_dataitem || uap.get_dataitem == AST_UAP_CAT021_VER27.get_dataitem)
        return Edition::V2x;
    if (uap.get_dataitem == AST_UAP_CAT021_VER023.get_dataitem) return Edition::V023;
    return Edition::V026;
}

constexpr double kSpeedLsb = 3600.0 / 16384;  // 2^-14 NM/s in knots

}  // namespace

void read_fields_021(const json &f, bool with_items, const AstUap &uap, FieldValues &out) {
    only_known(f, {"sac", "sic", "tod", "msgtype", "track", "mode3a", "fl", "sel_alt", "icao", "callsign", "lat",
                   "lon", "speed", "heading", "vrate"});
    const Edition ed = edition_of(uap);
    AstRecord021 &v = out.make<AstRecord021>();
    auto add = [&](AstItemId id, void *value) { out.add(id, value); };

    if (pair(f, "sac", "sic")) {
        v.i010 = {1, static_cast<uint32_t>(whole(f, "sac", 0, 255)), static_cast<uint32_t>(whole(f, "sic", 0, 255))};
        add(21010, &v.i010);
    } else if (!with_items) {
        throw BadField("sac and sic are required");
    }
    if (f.contains("msgtype") && text(f, "msgtype") != "ADS-B") bad("msgtype", "not ADS-B");

    if (!with_items) {
        if (ed == Edition::V2x) {
            ast_dataitem_021_040_init(&v.i040);
            v.i040.valid = 1;
            v.i040.arc = 1;  // 25 ft
            add(21040, &v.i040);
        } else {
            ast_dataitem_021_A03_init(&v.iA03);
            v.iA03.valid = 1;
            v.iA03.arc = 1;
            add(21903, &v.iA03);
        }
    }

    if (f.contains("tod")) {
        const uint32_t raw = time_of_day_raw(f);
        AstTimeOfDay &t = ed == Edition::V2x ? v.i077 : v.i030;
        t = {1, raw, 1.0 / 128, raw / 128 / 3600, raw / 128 / 60 % 60, raw / 128 % 60, raw % 128 * 1000 / 128};
        add(ed == Edition::V2x ? 21077 : 21030, &t);
    }
    if (f.contains("track")) {
        v.i161 = {1, static_cast<uint32_t>(whole(f, "track", 0, 4095)), 1};
        add(21161, &v.i161);
    }
    if (f.contains("mode3a")) {
        v.i070.valid = 1;
        v.i070.code = digits(f, "mode3a", 8, 4);
        add(21070, &v.i070);
    }
    if (f.contains("fl")) {
        ast_dataitem_021_145_init(&v.i145);
        v.i145.valid = 1;
        v.i145.raw = static_cast<int32_t>(steps(f, "fl", 25, -32768, 32767));
        v.i145.value = int64_t{v.i145.raw} * 25;
        add(21145, &v.i145);
    }
    if (f.contains("sel_alt")) {
        ast_dataitem_021_146_init(&v.i146);
        v.i146.valid = 1;
        v.i146.altitude = static_cast<int32_t>(steps(f, "sel_alt", 25, -4096, 4095));
        add(21146, &v.i146);
    }
    if (f.contains("icao")) {
        v.i080 = {1, digits(f, "icao", 16, 6)};
        if (v.i080.address == 0) bad("icao", "000000 cannot be written");
        add(21080, &v.i080);
    }
    if (f.contains("callsign")) {
        const std::string s = callsign(f, "callsign");
        v.i170.valid = 1;
        std::memcpy(v.i170.chars, s.c_str(), s.size() + 1);
        add(21170, &v.i170);
    }
    if (pair(f, "lat", "lon")) {
        const double lat = number(f, "lat"), lon = number(f, "lon");
        if (ed == Edition::V026) {
            ast_dataitem_position_wgs84_init(&v.iA02);
            v.iA02.valid = 1;
            v.iA02.latitude = lat;
            v.iA02.longitude = lon;
            add(21902, &v.iA02);
        } else {
            ast_dataitem_position_wgs84_low_init(&v.i130);
            v.i130.valid = 1;
            v.i130.latitude = lat;
            v.i130.longitude = lon;
            add(21130, &v.i130);
        }
    }
    if (f.contains("speed")) {
        if (!f.contains("heading")) throw BadField("speed needs heading");
        const uint32_t heading = azimuth(f, "heading");
        if (ed == Edition::V2x) {
            ast_dataitem_021_160_init(&v.i160);
            v.i160.valid = 1;
            v.i160.speed_raw = static_cast<uint32_t>(steps(f, "speed", kSpeedLsb, 0, 0x7FFF));
            v.i160.angle_raw = heading;
            add(21160, &v.i160);
        } else {
            ast_dataitem_021_A11_init(&v.iA11);
            v.iA11.valid = 1;
            v.iA11.speed_raw = static_cast<int32_t>(steps(f, "speed", kSpeedLsb, -32768, 32767));
            v.iA11.angle_raw = heading;
            add(21911, &v.iA11);
        }
    }
    if (f.contains("vrate")) {
        AstVerticalRate &r = ed == Edition::V2x ? v.i155 : v.iA09;
        ast_dataitem_vertical_rate_init(&r);
        r.valid = 1;
        r.raw = static_cast<int32_t>(
            ed == Edition::V2x ? steps(f, "vrate", 6.25, -16384, 16383) : steps(f, "vrate", 6.25, -32768, 32767));
        add(ed == Edition::V2x ? 21155 : 21909, &r);
    }
}

}  // namespace kovrel_tool::record_fields
