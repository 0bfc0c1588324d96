#include <cstring>

#include "encode_fields.h"

namespace kovrel_tool::record_fields {

// CAT048: the record fields as the decoder shows them, each its item.
void read_fields_048(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    // What the items take, then what the decoder shows but the items do not carry.
    only_known(f, {"sac", "sic", "tod", "typ", "rho", "theta", "x", "y", "mode3a", "fl", "icao", "callsign", "track", "speed",
                   "heading", "msgtype", "sel_alt", "lat", "lon", "vx", "vy", "vrate"});
    AstRecord048 &v = out.make<AstRecord048>();
    auto add = [&](AstItemId id, void *value) { out.add(id, value); };

    if (pair(f, "sac", "sic")) {
        v.i010 = {1, static_cast<uint32_t>(whole(f, "sac", 0, 255)), static_cast<uint32_t>(whole(f, "sic", 0, 255))};
        add(48010, &v.i010);
    } else if (!with_items) {
        throw BadField("sac and sic are required");
    }

    if (f.contains("tod")) {
        const uint32_t raw = time_of_day_raw(f);
        v.i140 = {1, raw, 1.0 / 128, raw / 128 / 3600, raw / 128 / 60 % 60, raw / 128 % 60, raw % 128 * 1000 / 128};
        add(48140, &v.i140);
    }

    if (f.contains("typ") || !with_items) {
        v.i020.valid = 1;
        v.i020.rdp = 1;
        v.i020.typ = f.contains("typ") ? static_cast<uint32_t>(whole(f, "typ", 0, 7)) : f.contains("icao") ? 5 : 2;
        add(48020, &v.i020);
    }

    if (pair(f, "rho", "theta")) {
        const uint32_t rho = static_cast<uint32_t>(steps(f, "rho", 1.0 / 256, 0, 0xFFFF));
        const uint32_t theta = azimuth(f, "theta");
        v.i040 = {1, rho, 1.0 / 256, rho / 256.0, theta, 360.0 / 65536, theta * 360.0 / 65536};
        add(48040, &v.i040);
    }
    if (pair(f, "x", "y")) {
        // Metres, in steps of 1/128 NM.
        const double lsb = 1852.0 / 128;
        v.i042 = {1, static_cast<int32_t>(steps(f, "x", lsb, -32768, 32767)),
                  static_cast<int32_t>(steps(f, "y", lsb, -32768, 32767))};
        add(48042, &v.i042);
    }
    if (f.contains("mode3a")) {
        v.i070.valid = 1;
        v.i070.code = digits(f, "mode3a", 8, 4);
        add(48070, &v.i070);
    }
    if (f.contains("fl")) {
        // Quarters of a flight level in 14 bits.
        v.i090 = {1, 1, 0, static_cast<int32_t>(steps(f, "fl", 25, -8192, 8191))};
        add(48090, &v.i090);
    }
    if (f.contains("icao")) {
        v.i220 = {1, digits(f, "icao", 16, 6)};
        if (v.i220.address == 0) bad("icao", "000000 cannot be written");
        add(48220, &v.i220);
    }
    if (f.contains("callsign")) {
        const std::string s = callsign(f, "callsign");
        v.i240.valid = 1;
        std::memcpy(v.i240.chars, s.c_str(), s.size() + 1);
        add(48240, &v.i240);
    }
    if (f.contains("track")) {
        v.i161 = {1, static_cast<uint32_t>(whole(f, "track", 0, 4095)), 1};
        add(48161, &v.i161);
    }
    // A heading alone is what the decoder reads from Mode S registers
    // (I048/250), which are not written: it is left out.
    if (f.contains("speed")) {
        if (!f.contains("heading")) throw BadField("speed needs heading");
        const double speed_lsb = 3600.0 / 16384;  // 2^-14 NM/s in knots
        const int32_t speed = static_cast<int32_t>(steps(f, "speed", speed_lsb, 0, 0xFFFF));
        const int32_t heading = static_cast<int32_t>(azimuth(f, "heading"));
        v.i200 = {1, speed, speed_lsb, speed * speed_lsb, heading, 360.0 / 65536, heading * 360.0 / 65536};
        add(48200, &v.i200);
    }
}

}  // namespace kovrel_tool::record_fields
