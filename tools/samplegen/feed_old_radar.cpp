// The older radars of the sample: CAT002 service messages and CAT001
// plots and tracks, from a radar on the standard layouts (SIC 2) and from
// an ASR-10SS (SIC 3) and an ASR-10SS Mk2 (SIC 4) on their own. Every item
// of both categories that the library can write back appears at least once.
//
// The ASR-10SS items have the same size rules as the standard items whose
// places they take, so a decoder can only tell them apart by the profile:
// decode those two sources with --uap asr10ss or --uap asr10ss_mk2.
#include "sample_kit.h"

namespace samplegen {

// ---- CAT001 and CAT002: the older radar ---------------------------------

Octets cat001_plot(const Aircraft &a, double t) {
    Record r;  // plot profile FRNs
    r.set(1, sac_sic(kSac, 2));
    const bool psr_only = a.callsign.empty();
    r.set(2, Writer().u8(psr_only ? 0x10 : 0x30).done());  // TYP plot, PSR only or combined
    r.set(3, Writer().u16(static_cast<uint32_t>(std::lround(a.range(t) * 128))).u16(angle16(a.azimuth(t))).done());
    if (!psr_only) {
        r.set(4, mode_3a(a.squawk));
        r.set(5, flight_level_14(a.level(t)));
    }
    r.set(6, {0x40});  // radar plot characteristics, one octet
    r.set(7, Writer().u16(static_cast<uint32_t>(std::lround((kDayStart + t) * 128)) & 0xFFFF).done());
    if (!psr_only && a.mode_s) {
        // Military-capable transponders: the second descriptor octet (ME),
        // Mode 2 with its confidence, the Mode 3/A confidence.
        r.set(2, Writer().u8(0x31).u8(0x10).done());
        r.set(8, mode_3a(a.squawk ^ 07));
        r.set(11, Writer().u16(0).done());
        r.set(13, Writer().u16(0).done());
    }
    // Doppler speed (-1: the factor shows), received power, X pulses, and a
    // warning (code 3: reflection) on the slow ones.
    r.set(9, Writer().u8(static_cast<uint32_t>(psr_only ? 0xFF : 0x04)).done());
    r.set(10, Writer().u8(static_cast<uint32_t>(-70 + static_cast<int>(a.range(t) / 4)) & 0xFF).done());
    if (a.speed < 200) {
        r.set(14, {static_cast<uint8_t>(3 << 1)});
        r.set(15, {0xA4});  // XA, XC, X2
    }
    return r.build();
}

Octets cat001_track(const Aircraft &a, double t, unsigned track_number) {
    Record r;  // standard (track) profile FRNs
    r.set(1, sac_sic(kSac, 2));
    r.set(2, Writer().u8(0xB0).done());  // TYP track, combined PSR and SSR
    r.set(3, Writer().u16(track_number).done());
    r.set(4, Writer().u16(static_cast<uint32_t>(std::lround(a.range(t) * 128))).u16(angle16(a.azimuth(t))).done());
    r.set(5, Writer().s16(round_to(a.x(t) * 64)).s16(round_to(a.y(t) * 64)).done());
    r.set(6, Writer().u16(speed_nms14(a.speed)).u16(angle16(a.track)).done());
    r.set(7, mode_3a(a.squawk));
    r.set(8, flight_level_14(a.level(t)));
    r.set(9, Writer().u16(static_cast<uint32_t>(std::lround((kDayStart + t) * 128)) & 0xFFFF).done());
    r.set(13, Writer().u8(a.vrate != 0 ? 0x20 : 0x00).done());  // track status: manoeuvring when climbing
    // Plot characteristics (two octets), power, Doppler, track quality
    // (two figures), Mode 2 and the confidences, a warning; the track
    // status of descending tracks says the track ends (TRE).
    r.set(10, {0x51, 0x08});
    r.set(11, Writer().u8(static_cast<uint32_t>(-60) & 0xFF).done());
    r.set(12, Writer().u8(static_cast<uint32_t>(round_to(-a.vrate / 400.0)) & 0xFF).done());
    r.set(14, {static_cast<uint8_t>(5 << 1 | 1), static_cast<uint8_t>(track_number % 100 << 1)});
    if (a.vrate < 0) r.set(13, {0x21, 0x80});
    r.set(15, mode_3a(a.squawk ^ 07));
    r.set(16, Writer().u16(0).done());
    r.set(18, Writer().u16(0x0001).done());
    r.set(19, {static_cast<uint8_t>(1 << 1)});
    return r.build();
}

// ---- ASR-10SS and ASR-10SS Mk2 ----------------------------------------------

// A track in the ASR-10SS layouts (FRN 10 and 14 carry the station items).
Octets cat001_station_track(const Aircraft &a, double t, unsigned track_number, uint8_t sic, bool mk2) {
    Record r;
    r.set(1, sac_sic(kSac, sic));
    r.set(2, Writer().u8(0xB0).done());
    r.set(3, Writer().u16(track_number).done());
    r.set(4, Writer().u16(static_cast<uint32_t>(std::lround(a.range(t) * 128))).u16(angle16(a.azimuth(t))).done());
    r.set(6, Writer().u16(speed_nms14(a.speed)).u16(angle16(a.track)).done());
    r.set(7, mode_3a(a.squawk));
    r.set(8, flight_level_14(a.level(t)));
    r.set(9, Writer().u16(static_cast<uint32_t>(std::lround((kDayStart + t) * 128)) & 0xFFFF).done());
    r.set(13, Writer().u8(0x80).done());  // confirmed
    const uint8_t amp = static_cast<uint8_t>(40 + track_number % 20);
    if (!mk2) {
        // TSM and PE, then one octet more; the amplitude.
        r.set(10, {static_cast<uint8_t>(0xC1), 0x06});
        r.set(14, {static_cast<uint8_t>(amp << 1)});
    } else {
        // PE, A3; SPL; amplitude and confidence. Track quality, peak
        // amplitude and azimuth extent.
        r.set(10, {0x49, 0x81, static_cast<uint8_t>(amp << 1 | 1), static_cast<uint8_t>(90 << 1)});
        r.set(14, {static_cast<uint8_t>(6 << 1 | 1), static_cast<uint8_t>((amp + 3) << 1 | 1), static_cast<uint8_t>(12 << 1)});
    }
    return r.build();
}

// A north marker with the station status (16 octets, FX-chained): PSR A and
// MSSR A in service on the first, B channels on the second station.
Octets cat002_station_status(double t, uint8_t sic, bool channel_b) {
    Record r;
    r.set(1, sac_sic(kSac, sic));
    r.set(2, {0x01});
    r.set(4, time_of_day(kDayStart + t));
    Octets status = {0x40, 0x80, 0xA8, 0x24, 0xFE, 0x40, 0x80, 0x14, 0x28, 0xA0, 0xDC, 0x7C, 0xE8, 0xAA, 0x54, 0xF0};
    if (channel_b) std::swap(status[0], status[1]), std::swap(status[5], status[6]);
    for (size_t i = 0; i + 1 < status.size(); ++i) status[i] |= 0x01;
    r.set(6, status);
    return r.build();
}

void station_radars(std::vector<Datagram> &out) {
    const auto &ac = traffic();
    for (int scan = 0; scan * kScan + 2.0 < kDuration; ++scan) {
        const double start = scan * kScan + 2.0;
        for (const bool mk2 : {false, true}) {
            const uint8_t sic = mk2 ? 4 : 3;
            std::vector<Octets> tracks;
            for (size_t i = 0; i < ac.size(); ++i)
                if (!ac[i].callsign.empty() && i % 2 == (mk2 ? 1u : 0u))
                    tracks.push_back(cat001_station_track(ac[i], start + 0.5, 300 + static_cast<unsigned>(i), sic, mk2));
            // The station status first: a decoder that remembers the
            // profile of the last block reads the tracks with it.
            Octets payload = block(2, {cat002_station_status(start, sic, mk2)});
            const Octets b = block(1, tracks);
            payload.insert(payload.end(), b.begin(), b.end());
            const uint32_t src = mk2 ? 0x0A000A04 : 0x0A000A03;
            out.push_back({start + (mk2 ? 0.02 : 0.01), src, 0xEF010103, static_cast<uint16_t>(mk2 ? 50007 : 50006), 8602, payload});
        }
    }
}

Octets cat002_message(double t, uint8_t type, unsigned sector) {
    Record r;
    r.set(1, sac_sic(kSac, 2));
    r.set(2, Writer().u8(type).done());
    if (type == 2) r.set(3, Writer().u8(sector).done());
    r.set(4, time_of_day(kDayStart + t));
    if (type == 1) {
        r.set(5, Writer().u16(static_cast<uint32_t>(kScan * 128)).done());
        // Station configuration: both channels serviceable. (The plot
        // counts of I002/070 and the other items from FRN 7 on are not
        // sized by the library, so the sample leaves them out.)
        r.set(6, {0x00});
    }
    return r.build();
}

void old_radar(std::vector<Datagram> &out) {
    station_radars(out);
    const auto &ac = traffic();
    const uint32_t src = 0x0A000A02, dst = 0xEF010102;  // 10.0.10.2 -> 239.1.1.2
    for (int scan = 0; scan * kScan + 1.0 < kDuration; ++scan) {
        const double start = scan * kScan + 1.0;
        out.push_back({start, src, dst, 50002, 8601, block(2, {cat002_message(start, 1, 0)})});
        for (unsigned half = 0; half < 2; ++half) {
            std::vector<std::pair<double, Octets>> reports;
            for (size_t i = 0; i < ac.size(); ++i) {
                const Aircraft &a = ac[i];
                const double az = a.azimuth(start);
                if (az < half * 180.0 || az >= (half + 1) * 180.0) continue;
                const double seen = start + az / 360.0 * kScan;
                // Slow and primary-only targets are reported as plots; the
                // first half-scan of every other scan carries plots only.
                const bool plot = a.speed < 200 || a.callsign.empty() || (scan % 2 == 0 && half == 0);
                reports.push_back({seen, plot ? cat001_plot(a, seen) : cat001_track(a, seen, 200 + static_cast<unsigned>(i))});
            }
            std::sort(reports.begin(), reports.end(),
                      [](const auto &l, const auto &r) { return l.first < r.first; });
            const double crossing = start + (half + 1) * kScan / 2.0;
            Octets payload;
            if (half == 0) payload = block(2, {cat002_message(crossing, 2, 128)});
            if (!reports.empty()) {
                std::vector<Octets> records;
                for (auto &rep : reports) records.push_back(std::move(rep.second));
                const Octets b = block(1, records);
                payload.insert(payload.end(), b.begin(), b.end());
            }
            if (!payload.empty()) out.push_back({crossing - 0.003, src, dst, 50002, 8601, payload});
        }
    }
}

}  // namespace samplegen
