// The tracker of the sample: CAT062 system tracks.
#include "sample_kit.h"

namespace samplegen {

// ---- CAT062: the tracker --------------------------------------------------

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
