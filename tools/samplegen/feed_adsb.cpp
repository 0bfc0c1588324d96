// The ADS-B ground stations of the sample: CAT021 reports.
#include "sample_kit.h"

namespace samplegen {

// ---- CAT021: ADS-B ground stations ------------------------------------------

// Edition 0.26, the layout of the standard profile.
Octets cat021_v026(const Aircraft &a, double t) {
    Record r;
    r.set(1, sac_sic(kSac, 50));
    r.set(2, Writer().u8(0x00).u8(0x08).done());  // descriptor: 24-bit address, 25 ft altitude
    r.set(3, time_of_day(kDayStart + t));
    r.set(4, Writer()
                 .s32(round_to(a.lat(t) * 33554432.0 / 180.0))
                 .s32(round_to(a.lon(t) * 33554432.0 / 180.0))
                 .done());
    r.set(5, address24(a.address));
    r.set(6, Writer().s16(round_to(a.level(t) * 100.0 / 6.25 + 40)).done());  // geometric altitude
    r.set(7, Writer().u8(0x54).u8(0x07).done());  // figure of merit: AC, MN, DC, PA 7
    r.set(8, {0x08});                             // link technology: Mode S ES
    r.set(9, Writer().s16(0).done());             // roll angle
    r.set(10, Writer().s16(round_to(a.level(t) * 4)).done());
    r.set(12, Writer().u16(static_cast<uint32_t>(a.speed - 20)).done());  // true airspeed
    r.set(13, Writer().u16(angle16(a.track - 2.0)).done());              // magnetic heading
    r.set(14, Writer().s16(round_to(a.vrate / 6.25)).done());
    r.set(16, Writer().s16(static_cast<int32_t>(speed_nms14(a.speed))).u16(angle16(a.track)).done());
    r.set(18, icao_chars(a.callsign));
    r.set(19, {0x02});  // velocity accuracy
    r.set(20, {0x10});  // time of day accuracy
    r.set(21, {0x00});  // target status: no emergency
    r.set(22, Writer().u8(a.emitter).done());
    r.set(24, Writer().u16(0x8000u | (3u << 13) | ((a.selected / 25) & 0x1FFF)).done());
    r.set(27, mode_3a(a.squawk));
    r.set(28, {0xB4});  // signal amplitude
    return r.build();
}

// Edition 2.1: several fields moved and many new ones.
Octets cat021_v21(const Aircraft &a, double t, unsigned track_number) {
    Record r;
    const double tod = kDayStart + t;
    r.set(1, sac_sic(kSac, 51));
    r.set(2, Writer().u8(0x09).u8(0x00).done());  // ATP 24-bit, ARC 25 ft; first extension empty
    r.set(3, Writer().u16(track_number).done());
    r.set(4, {0x02});                             // service identification
    r.set(5, time_of_day(tod - 0.3));             // applicability of the position
    r.set(6, Writer()
                 .s24(round_to(a.lat(t) * 8388608.0 / 180.0))
                 .s24(round_to(a.lon(t) * 8388608.0 / 180.0))
                 .done());
    r.set(7, Writer()
                 .s32(round_to(a.lat(t) * 1073741824.0 / 180.0))
                 .s32(round_to(a.lon(t) * 1073741824.0 / 180.0))
                 .done());
    r.set(8, time_of_day(tod - 0.3));             // applicability of the velocity
    r.set(10, Writer().u16(static_cast<uint32_t>(a.speed - 20)).done());
    r.set(11, address24(a.address));
    r.set(12, time_of_day(tod - 0.2));            // reception of the position
    r.set(13, Writer().u32(0x26666666u).done());  // high-precision part, FSI 0
    r.set(14, time_of_day(tod - 0.2));            // reception of the velocity
    r.set(15, Writer().u32(0x26666666u).done());
    r.set(16, Writer().s16(round_to(a.level(t) * 100.0 / 6.25 + 40)).done());
    r.set(17, Writer().u8(0x3F).u8(0x97).u8(0x2C).done());  // quality indicators, three octets
    r.set(18, {0x12});                                      // MOPS version 2, 1090 ES
    r.set(19, mode_3a(a.squawk));
    r.set(20, Writer().s16(0).done());
    r.set(21, Writer().s16(round_to(a.level(t) * 4)).done());
    r.set(22, Writer().u16(angle16(a.track - 2.0)).done());
    r.set(23, {0x00});                                      // target status
    r.set(24, Writer().s16(round_to(a.vrate / 6.25) & 0x7FFF).done());
    r.set(25, Writer().s16(round_to(a.vrate / 6.25) & 0x7FFF).done());
    r.set(26, Writer().u16(speed_nms14(a.speed) & 0x7FFF).u16(angle16(a.track)).done());
    r.set(28, time_of_day(tod));                            // report transmission
    r.set(29, icao_chars(a.callsign));
    r.set(30, Writer().u8(a.emitter).done());
    r.set(31, Compound().set(1, Writer().u16(85).done()).set(2, Writer().u16(270).done()).set(3, Writer().s16(-220).done()).build());
    r.set(32, Writer().u16(0x8000u | (3u << 13) | ((a.selected / 25) & 0x1FFF)).done());
    r.set(35, {0x02});                                      // service management: 1 s
    r.set(36, {0x00});                                      // operational status
    r.set(38, {0xB6});                                      // message amplitude, -74 dBm
    r.set(39, Writer().u8(1).bytes(bds60(a.track, static_cast<unsigned>(a.speed * 0.62), 0.78,
                                         static_cast<int>(a.vrate))).u8(0x60).done());
    r.set(41, {0x03});                                      // receiver
    r.set(42, Compound().set(1, {0x05}).set(6, {0x03}).set(10, {0x04}).build());  // data ages
    return r.build();
}

void adsb(std::vector<Datagram> &out) {
    const auto &ac = traffic();
    for (int tick = 0; tick * 2.0 + 0.5 < kDuration; ++tick) {
        const double t = tick * 2.0 + 0.5;
        std::vector<Octets> records;
        for (const auto &a : ac)
            if (a.adsb) records.push_back(cat021_v026(a, t));
        out.push_back({t, 0x0A000C01, 0xEF010104, 50004, 8603, block(21, records)});
        if (tick % 4 == 1) {
            std::vector<Octets> newer;
            for (size_t i = 0; i < ac.size(); ++i)
                if (ac[i].adsb && ac[i].track < 200) newer.push_back(cat021_v21(ac[i], t + 0.1, 500 + static_cast<unsigned>(i)));
            out.push_back({t + 0.1, 0x0A000C02, 0xEF010104, 50005, 8603, block(21, newer)});
        }
    }
}

}  // namespace samplegen
