// The older radar of the sample: CAT002 service messages and CAT001
// plots and tracks.
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
    return r.build();
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
