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

// ---- Every item of every edition --------------------------------------------
//
// The records below complete the ones above so that the sample holds every
// item of the four editions at least once, each with values its decoder and
// encoder agree on. They travel in datagrams of their own.

// A trajectory intent of one change point ahead of the aircraft.
Octets trajectory_intent(const Aircraft &a, double t) {
    return Compound()
        .set(1, {0x00})  // intent data available and valid
        .set(2, Writer()
                    .u8(1)
                    .u8(0x05)  // TCP number 5 available, compliant
                    .s16(round_to(a.level(t) * 10.0))
                    .s24(round_to((a.lat(t) + 0.2) * 8388608.0 / 180.0))
                    .s24(round_to((a.lon(t) + 0.1) * 8388608.0 / 180.0))
                    .u8(0x9C)  // top of descent, no turn, turn radius not available
                    .u24(static_cast<uint32_t>(kDayStart + t + 300))
                    .u16(0)
                    .done())
        .build();
}

Octets met_information() {
    return Compound()
        .set(1, Writer().u16(42).done())
        .set(2, Writer().u16(250).done())
        .set(3, Writer().s16(-180).done())
        .set(4, {0x02})
        .build();
}

// Edition 0.23: the 6-octet position at FRN 4 and the rate of turn. Its
// reserved and special purpose fields (FRNs 34 and 35) are left out: the
// profile reads them but writes only up to FRN 26.
Octets cat021_v023(const Aircraft &a, double t) {
    Record r;
    r.set(1, sac_sic(kSac, 52));
    r.set(2, Writer().u8(0x40).u8(0x08).done());  // descriptor: ground bit, 24-bit address, 25 ft
    r.set(3, time_of_day(kDayStart + t));
    r.set(4, Writer()
                 .s24(round_to(a.lat(t) * 8388608.0 / 180.0))
                 .s24(round_to(a.lon(t) * 8388608.0 / 180.0))
                 .done());
    r.set(5, address24(a.address));
    r.set(6, Writer().s16(round_to(a.level(t) * 100.0 / 6.25 + 32)).done());
    r.set(7, Writer().u8(0x50).u8(0x05).done());  // figure of merit: PA 5
    r.set(8, {0x04});                             // link technology: UAT
    r.set(9, Writer().s16(-150).done());          // roll angle -1.5 degrees
    r.set(10, Writer().s16(round_to(a.level(t) * 4)).done());
    r.set(11, Writer().u16(0x8000u | 780).done());  // Mach 0.780
    r.set(12, Writer().u16(static_cast<uint32_t>(a.speed - 25)).done());
    r.set(13, Writer().u16(angle16(a.track - 3.0)).done());
    r.set(14, Writer().s16(round_to(a.vrate / 6.25)).done());
    r.set(15, Writer().s16(round_to(a.vrate / 6.25) + 2).done());
    r.set(16, Writer().s16(static_cast<int32_t>(speed_nms14(a.speed))).u16(angle16(a.track)).done());
    r.set(17, Writer().u16(0x0010).done());  // rate of turn, carried as it is
    r.set(18, icao_chars(a.callsign));
    r.set(19, {0x03});
    r.set(20, {0x20});
    r.set(21, {0x01});  // general emergency
    r.set(22, Writer().u8(a.emitter).done());
    r.set(23, met_information());
    r.set(24, Writer().u16(0x8000u | (2u << 13) | ((a.selected / 25) & 0x1FFF)).done());
    r.set(25, Writer().u16(0x8000u | ((a.selected / 25) & 0x1FFF)).done());  // final state selected altitude
    r.set(26, trajectory_intent(a, t));
    return r.build();
}

// Edition 0.26 items the regular reports leave out.
Octets cat021_v026_rest(const Aircraft &a, double t) {
    Record r;
    r.set(1, sac_sic(kSac, 50));
    r.set(2, Writer().u8(0x10).u8(0x20).done());  // test target, duplicate address
    r.set(3, time_of_day(kDayStart + t));
    r.set(4, Writer()
                 .s32(round_to(a.lat(t) * 33554432.0 / 180.0))
                 .s32(round_to(a.lon(t) * 33554432.0 / 180.0))
                 .done());
    r.set(11, Writer().u16(static_cast<uint32_t>(std::lround((a.speed - 60) / 0.2197265625))).done());  // IAS
    r.set(15, Writer().s16(round_to(a.vrate / 6.25) - 4).done());
    r.set(17, Writer().u16(0x0020).done());
    r.set(23, met_information());
    r.set(25, Writer().u16((a.selected / 25) & 0x1FFF).done());
    r.set(26, trajectory_intent(a, t));
    r.set(28, {0xA0});  // signal amplitude: an edition 0.23 reader stops here
    return r.build();
}

// Editions 2.1 and 2.7 with every item; they differ only at FRN 37.
Octets cat021_v2x(const Aircraft &a, double t, unsigned track_number, bool v27) {
    Record r;
    const double tod = kDayStart + t;
    r.set(1, sac_sic(kSac, v27 ? 53 : 51));
    r.set(2, Writer().u8(0x01).u8(0x03).u8(0x04).done());  // descriptor with both extensions
    r.set(3, Writer().u16(track_number).done());
    r.set(4, {0x04});
    r.set(5, time_of_day(tod - 0.3));
    r.set(6, Writer()
                 .s24(round_to(a.lat(t) * 8388608.0 / 180.0))
                 .s24(round_to(a.lon(t) * 8388608.0 / 180.0))
                 .done());
    r.set(7, Writer()
                 .s32(round_to(a.lat(t) * 1073741824.0 / 180.0))
                 .s32(round_to(a.lon(t) * 1073741824.0 / 180.0))
                 .done());
    r.set(8, time_of_day(tod - 0.3));
    r.set(9, Writer().u16(0x8000u | 790).done());  // Mach 0.790
    r.set(10, Writer().u16(static_cast<uint32_t>(a.speed - 20)).done());
    r.set(11, address24(a.address));
    r.set(12, time_of_day(tod - 0.2));
    r.set(13, Writer().u32(0x40000000u | 0x01000000u).done());  // FSI +1
    r.set(14, time_of_day(tod - 0.2));
    r.set(15, Writer().u32(0x80000000u | 0x00800000u).done());  // FSI -1
    r.set(16, Writer().s16(round_to(a.level(t) * 100.0 / 6.25 + 40)).done());
    r.set(17, Writer().u8(0x5D).u8(0x97).u8(0x2D).u8(0x70).done());  // quality indicators, four octets
    r.set(18, {0x13});                                                   // MOPS version 2, VDL 4
    r.set(19, mode_3a(a.squawk));
    r.set(20, Writer().s16(250).done());
    r.set(21, Writer().s16(round_to(a.level(t) * 4)).done());
    r.set(22, Writer().u16(angle16(a.track - 2.0)).done());
    r.set(23, {0x45});  // LNAV not engaged, general emergency, permanent alert
    r.set(24, Writer().s16(round_to(a.vrate / 6.25) & 0x7FFF).done());
    r.set(25, Writer().s16(round_to(a.vrate / 6.25) & 0x7FFF).done());
    r.set(26, Writer().u16(speed_nms14(a.speed) & 0x7FFF).u16(angle16(a.track)).done());
    r.set(27, Writer().u16(0x0000).done());  // track angle rate, carried as it is
    r.set(28, time_of_day(tod));
    r.set(29, icao_chars(a.callsign));
    r.set(30, Writer().u8(a.emitter).done());
    r.set(31, met_information());
    r.set(32, Writer().u16(0x8000u | (1u << 13) | ((a.selected / 25) & 0x1FFF)).done());
    r.set(33, Writer().u16((a.selected / 25) & 0x1FFF).done());
    r.set(34, trajectory_intent(a, t));
    r.set(35, {0x04});  // service management: 2 s
    r.set(36, {0x9C});  // operational status: RA, TS, ARV, CDTI/A
    r.set(37, v27 ? Octets{0x15, 0x70} : Octets{0x15, 0x07});  // surface capabilities, length/width 7
    r.set(38, {0xB0});
    r.set(39, Writer().u8(1).bytes(bds60(a.track, static_cast<unsigned>(a.speed * 0.62), 0.78,
                                         static_cast<int>(a.vrate))).u8(0x60).done());
    r.set(40, {0xE2, 0x42, 0x00, 0x13, 0x00, 0x00, 0x00});  // ACAS broadcast: an advisory, multiple threats
    r.set(41, {0x07});
    r.set(42, Compound()
                  .set(1, {0x05}).set(2, {0x03}).set(3, {0x0A}).set(4, {0x05}).set(5, {0x14})
                  .set(6, {0x01}).set(7, {0x02}).set(8, {0x03}).set(9, {0x04}).set(10, {0x05})
                  .set(11, {0x06}).set(12, {0x07}).set(13, {0x08}).set(14, {0x09}).set(15, {0x0A})
                  .set(16, {0x0B}).set(17, {0x0C}).set(18, {0x0D}).set(19, {0x0E}).set(20, {0x0F})
                  .set(21, {0x10}).set(22, {0x11}).set(23, {0x12})
                  .build());
    r.set(48, {0x04, 0x80, 0x01, 0x02});  // reserved expansion field
    r.set(49, {0x03, 0xAB, 0xCD});        // special purpose field
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
        // Every eighth tick, the other editions and the items the regular
        // reports leave out, each edition from a ground station of its own.
        if (tick % 8 == 3) {
            std::vector<Octets> v023, v026, v21, v27;
            for (size_t i = 0; i < ac.size(); ++i) {
                if (!ac[i].adsb) continue;
                v023.push_back(cat021_v023(ac[i], t + 0.2));
                if (v026.empty()) v026.push_back(cat021_v026_rest(ac[i], t + 0.2));
                if (v21.empty()) v21.push_back(cat021_v2x(ac[i], t + 0.3, 600 + static_cast<unsigned>(i), false));
                v27.push_back(cat021_v2x(ac[i], t + 0.3, 700 + static_cast<unsigned>(i), true));
            }
            out.push_back({t + 0.2, 0x0A000C03, 0xEF010104, 50023, 8603, block(21, v023)});
            out.push_back({t + 0.2, 0x0A000C01, 0xEF010104, 50004, 8603, block(21, v026)});
            out.push_back({t + 0.3, 0x0A000C02, 0xEF010104, 50005, 8603, block(21, v21)});
            out.push_back({t + 0.3, 0x0A000C04, 0xEF010104, 50027, 8603, block(21, v27)});
        }
    }
}

}  // namespace samplegen
