// The tracker of the sample: CAT062 system tracks.
#include "sample_kit.h"

namespace samplegen {

// ---- CAT062: the tracker --------------------------------------------------

// What a track's first update carries besides the usual: every other item
// of the category and every subfield of its compound items, as a tracker
// fed by Mode 5 interrogators, multilateration and a flight plan system
// sends them once a track is born.
void cat062_track_begin(Record &r, Compound &acc, const Aircraft &a, double t, unsigned track_number) {
    r.set(8, Writer().u8(0x02).u8(0xFE).done());  // acceleration: 0.5, -0.5 m/s2
    r.set(13, {0x01, 0x31, 0x01, 0x01, 0x01, 0x00});       // track status: all six octets
    r.set(19, Writer().u16(static_cast<uint32_t>(round_to(a.level(t) * 4)) & 0x7FFF).done());  // barometric, no QNH
    r.set(22, Writer().u8(0x7F).u8(0x41).u8(0x28).done());  // 63 m long, 90 deg, 20 m wide
    r.set(23, Writer().u8(0).done());                       // fleet: unknown (not a ground vehicle)
    r.set(25, Writer().u16(01234).done());                  // Mode 2 code
    // Composed track: this unit's track and a slave track of unit 2.
    r.set(26, Writer().u8(1).u16((track_number << 1) | 1).u8(2).u16(track_number << 1).done());
    r.set(34, Writer().u8(3).u8(0x00).u8(0x00).done());     // reserved expansion
    r.set(35, Writer().u8(2).u8(0x5A).done());              // special purpose

    // Mode 5: every subfield.
    Compound m5;
    m5.set(1, {0xC0});
    m5.set(2, Writer().u16(1234).u8(7).u8(12).done());
    m5.set(3, Writer()
                  .s24(round_to(a.lat(t) * 8388608.0 / 180.0))
                  .s24(round_to(a.lon(t) * 8388608.0 / 180.0))
                  .done());
    m5.set(4, Writer().u16(0x4000u | (static_cast<uint32_t>(round_to(a.level(t) * 4)) & 0x3FFF)).done());
    m5.set(5, Writer().u16(07654).done());
    m5.set(6, Writer().u8(0xFE).done());
    m5.set(7, Writer().u8(0x10).done());
    r.set(24, m5.build());

    // Every update age, and every data age.
    Compound ages;
    for (unsigned i = 1; i <= 10; ++i) ages.set(i, i == 5 ? Octets{0x00, 0x28} : Octets{static_cast<uint8_t>(i)});
    r.set(14, ages.build());
    Compound data_ages;
    for (unsigned i = 1; i <= 31; ++i) data_ages.set(i, {static_cast<uint8_t>(2 * i)});
    r.set(16, data_ages.build());

    // The last measurement: sensor, polar position, height, codes, type.
    Compound m;
    m.set(1, sac_sic(kSac, 1));
    m.set(2, Writer().u16(static_cast<uint32_t>(a.range(t) * 256)).u16(angle16(a.azimuth(t))).done());
    m.set(3, Writer().s16(round_to(a.level(t) * 4)).done());
    m.set(4, flight_level_14(a.level(t)));
    m.set(5, mode_3a(a.squawk));
    m.set(6, Writer().u8(0x60).done());  // SSR + PSR
    r.set(28, m.build());

    // The rest of the accuracies.
    acc.set(2, Writer().s16(-4).done());
    acc.set(4, Writer().u8(8).done());
    acc.set(5, Writer().u8(2).done());
    acc.set(7, Writer().u8(1).u8(1).done());

    if (!a.mode_s) return;
    // Aircraft derived data: the subfields the usual updates do not carry.
    Compound adr;
    adr.set(1, address24(a.address));
    adr.set(2, icao_chars(a.callsign));
    adr.set(4, Writer().u16(speed_nms14(a.speed * 0.6) & 0x7FFF).done());
    adr.set(5, Writer().u16(static_cast<uint32_t>(a.speed)).done());
    adr.set(7, Writer().u16(0x4000u | ((a.selected / 25) & 0x1FFF)).done());
    adr.set(8, {0x00});
    adr.set(9, Writer()
                   .u8(1)
                   .u8(0x01)
                   .s16(static_cast<int32_t>(a.selected / 10))
                   .s24(round_to(a.lat(t + 600) * 8388608.0 / 180.0))
                   .s24(round_to(a.lon(t + 600) * 8388608.0 / 180.0))
                   .u8(0x20)
                   .u24(static_cast<uint32_t>(kDayStart + t + 600))
                   .u16(0)
                   .done());
    adr.set(10, {0x20, 0xA0});
    adr.set(11, {0x95, 0x00});
    adr.set(12, Octets(7, 0x00));
    adr.set(14, Writer().s16(round_to(a.vrate / 6.25)).done());
    adr.set(15, Writer().s16(0).done());
    adr.set(16, {0xC0, 0x00});
    adr.set(19, {0x02});
    adr.set(20, Writer().u8(0xE0).u16(45).u16(270).s16(-160).u8(0).done());
    adr.set(21, {a.emitter});
    adr.set(22, Writer()
                    .s24(round_to(a.lat(t) * 8388608.0 / 180.0))
                    .s24(round_to(a.lon(t) * 8388608.0 / 180.0))
                    .done());
    adr.set(23, Writer().s16(round_to(a.level(t) * 100.0 / 6.25 + 48)).done());
    adr.set(24, {0x08});
    Octets mb{0x01};
    const Octets reg = bds40(a.selected, 1013.2);
    mb.insert(mb.end(), reg.begin(), reg.end());
    mb.push_back(0x40);
    adr.set(25, mb);
    adr.set(26, Writer().u16(static_cast<uint32_t>(a.speed * 0.6)).done());
    adr.set(27, Writer().u16(static_cast<uint32_t>(a.speed / 600.0 * 125)).done());
    adr.set(28, Writer().u16(2132).done());  // 1013.2 hPa
    r.set(11, adr.build());
    r.set(10, Writer().u8(0x00).bytes(icao_chars(a.callsign)).done());

    // Flight plan data: every subfield.
    Compound fpl;
    fpl.set(1, sac_sic(kSac, 120));
    fpl.set(2, Writer().text(a.callsign, 7).done());
    fpl.set(3, Writer().u32(0x00000000u | (track_number * 7)).done());
    fpl.set(4, {0x40});
    fpl.set(5, Writer().text(a.emitter == 5 ? "A333" : "A320", 4).done());
    fpl.set(6, Writer().text(a.emitter == 5 ? "H" : "M", 1).done());
    fpl.set(7, Writer().text("LSZH", 4).done());
    fpl.set(8, Writer().text("LFPG", 4).done());
    fpl.set(9, Writer().text("28 ", 3).done());
    fpl.set(10, Writer().u16(a.selected / 25).done());
    fpl.set(11, {0x05, 0x11});
    fpl.set(12, {0x02, 0x08, 0x0A, 0x1E, 0x80, 0x38, 0x0B, 0x2D, 0x0A});
    fpl.set(13, Writer().text("B12", 6).done());
    fpl.set(14, {0x50});
    fpl.set(15, Writer().text("VEBIT2A", 7).done());
    fpl.set(16, Writer().text("BANOX1L", 7).done());
    fpl.set(17, Writer().u16(0x1000u | a.squawk).done());
    fpl.set(18, Writer().text(a.callsign, 7).done());
    r.set(21, fpl.build());
}

Octets cat062_track(const Aircraft &a, double t, unsigned track_number, bool first) {
    Record r;
    r.set(1, sac_sic(kSac, 100));
    r.set(3, {0x01});  // service identification
    r.set(4, time_of_day(kDayStart + t));
    r.set(5, Writer()
                 .s32(round_to(a.lat(t) * 33554432.0 / 180.0))
                 .s32(round_to(a.lon(t) * 33554432.0 / 180.0))
                 .done());
    r.set(6, Writer().s24(round_to(a.x(t) * 1852.0 * 2)).s24(round_to(a.y(t) * 1852.0 * 2)).done());
    const double v_ms = a.speed * 1852.0 / 3600.0;
    r.set(7, Writer()
                 .s16(round_to(std::sin(a.track * kPi / 180) * v_ms * 4))
                 .s16(round_to(std::cos(a.track * kPi / 180) * v_ms * 4))
                 .done());
    r.set(9, mode_3a(a.squawk));
    if (a.mode_s) {
        r.set(10, Writer().u8(0x00).bytes(icao_chars(a.callsign)).done());
        // Aircraft derived data: address, identification, magnetic heading,
        // selected altitude, barometric vertical rate, track angle, ground speed.
        Compound adr;
        adr.set(1, address24(a.address));
        adr.set(2, icao_chars(a.callsign));
        adr.set(3, Writer().u16(angle16(a.track - 2.0)).done());
        adr.set(6, Writer().u16(0x8000u | (3u << 13) | ((a.selected / 25) & 0x1FFF)).done());
        adr.set(13, Writer().s16(round_to(a.vrate / 6.25)).done());
        adr.set(17, Writer().u16(angle16(a.track)).done());
        adr.set(18, Writer().s16(static_cast<int32_t>(speed_nms14(a.speed))).done());
        r.set(11, adr.build());
    }
    r.set(12, Writer().u16(track_number).done());
    // Track status: multisensor, confirmed; flight plan correlated; track
    // begin on the first update.
    r.set(13, Writer().u8(0x01).u8(first ? 0x30 : 0x10).done());
    // Update ages (1/4 s): track, SSR, Mode S, and ES when transmitting.
    Compound ages;
    ages.set(1, {0x00}).set(3, {0x06}).set(4, {0x06});
    if (a.adsb) ages.set(6, {0x02});
    r.set(14, ages.build());
    r.set(15, Writer().u8(a.vrate > 0 ? 0x04 : a.vrate < 0 ? 0x08 : 0x00).done());  // mode of movement
    r.set(17, Writer().s16(round_to(a.level(t) * 4)).done());
    r.set(18, Writer().s16(round_to(a.level(t) * 100.0 / 6.25 + 48)).done());  // geometric, a little above
    r.set(20, Writer().s16(round_to(a.vrate / 6.25)).done());
    if (a.mode_s) {
        // Flight plan data: FPPS tag, callsign, aircraft type, wake category,
        // departure, destination and cleared flight level.
        Compound fpl;
        fpl.set(1, sac_sic(kSac, 120));
        fpl.set(2, Writer().text(a.callsign, 7).done());
        fpl.set(5, Writer().text(a.emitter == 5 ? "A333" : "A320", 4).done());
        fpl.set(6, Writer().text(a.emitter == 5 ? "H" : "M", 1).done());
        fpl.set(7, Writer().text("LSZH", 4).done());
        fpl.set(8, Writer().text("LFPG", 4).done());
        fpl.set(10, Writer().u16(a.selected / 25).done());
        r.set(21, fpl.build());
    }
    // Estimated accuracies: position (Cartesian, WGS-84), velocity, rate of climb.
    Compound acc;
    acc.set(1, Writer().u16(60).u16(60).done());
    acc.set(3, Writer().u16(10).u16(14).done());
    acc.set(6, Writer().u8(6).u8(6).done());
    acc.set(8, Writer().u8(16).done());
    if (first) cat062_track_begin(r, acc, a, t, track_number);
    r.set(27, acc.build());
    return r.build();
}

void tracker(std::vector<Datagram> &out) {
    const auto &ac = traffic();
    const uint32_t src = 0x0A000B01, dst = 0xEF010103;  // 10.0.11.1 -> 239.1.1.3
    for (int update = 0; update * kScan + 2.5 < kDuration; ++update) {
        const double t = update * kScan + 2.5;
        std::vector<Octets> records;
        for (size_t i = 0; i < ac.size(); ++i) {
            if (ac[i].callsign.empty()) continue;  // no track on the primary-only target
            records.push_back(cat062_track(ac[i], t, 3000 + static_cast<unsigned>(i), update == 0));
        }
        // Two blocks in one datagram, as trackers split their output.
        const size_t half = records.size() / 2;
        Octets payload = block(62, std::vector<Octets>(records.begin(), records.begin() + half));
        const Octets second = block(62, std::vector<Octets>(records.begin() + half, records.end()));
        payload.insert(payload.end(), second.begin(), second.end());
        out.push_back({t, src, dst, 50003, 8602, payload});
    }
}

}  // namespace samplegen
