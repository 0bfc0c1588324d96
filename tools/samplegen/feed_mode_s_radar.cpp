// The Mode S radar of the sample: CAT034 service messages and CAT048
// target reports.
#include "sample_kit.h"

namespace samplegen {

// ---- CAT048 and CAT034: the Mode S radar --------------------------------

Octets cat048_report(const Aircraft &a, double t, unsigned track_number, bool first_scan) {
    Record r;
    const double tod = kDayStart + t;
    r.set(1, sac_sic(kSac, 1));
    r.set(2, time_of_day(tod));
    const bool psr_only = a.callsign.empty();
    // TYP: 1 single PSR, 2 single SSR, 5 Mode S roll-call; plus the PSR
    // where the target is close enough to be seen by both.
    uint8_t typ = psr_only ? 1 : (a.mode_s ? 5 : 2);
    if (!psr_only && a.range(t) < 40.0) typ = a.mode_s ? 7 : 3;
    r.set(3, Writer().u8(static_cast<uint32_t>(typ << 5)).done());
    r.set(4, Writer().u16(static_cast<uint32_t>(std::lround(a.range(t) * 256))).u16(angle16(a.azimuth(t))).done());
    if (!psr_only) {
        r.set(5, mode_3a(a.squawk));
        r.set(6, flight_level_14(a.level(t)));
    }
    // Radar plot characteristics: SSR run length, replies and amplitude, or
    // the primary run length and amplitude.
    if (psr_only)
        r.set(7, Compound().set(4, {0x12}).set(5, {0x2C}).build());
    else if (typ == 7 || typ == 3)
        r.set(7, Compound().set(1, {0x2B}).set(2, {0x05}).set(3, {0xBE}).set(4, {0x14}).set(5, {0x30}).build());
    else
        r.set(7, Compound().set(1, {0x29}).set(2, {0x06}).set(3, {0xC4}).build());
    if (a.mode_s) {
        r.set(8, address24(a.address));
        r.set(9, icao_chars(a.callsign));
        // Mode S MB data: the registers the radar extracted this scan.
        Writer mb;
        const bool climbing = a.vrate != 0;
        std::vector<std::pair<Octets, uint8_t>> regs;
        regs.push_back({bds40(a.selected, 1013.2), 0x40});
        // Track and turn only for level flight on an eastern track: the
        // registers carry angles over 180 degrees as negative values.
        if (!climbing && a.track < 180) regs.push_back({bds50(a.track, a.speed, a.speed - 20), 0x50});
        regs.push_back({bds60(a.track, static_cast<unsigned>(a.speed * 0.62), 0.78, static_cast<int>(a.vrate)), 0x60});
        if (first_scan) regs.push_back({bds20(a.callsign), 0x20});
        mb.u8(static_cast<uint32_t>(regs.size()));
        for (const auto &reg : regs) mb.bytes(reg.first).u8(reg.second);
        r.set(10, mb.done());
    }
    if (!psr_only) {
        r.set(11, Writer().u16(track_number & 0x0FFF).done());
        r.set(12, Writer()
                      .s16(round_to(a.x(t) * 128))
                      .s16(round_to(a.y(t) * 128))
                      .done());
        r.set(13, Writer().u16(speed_nms14(a.speed)).u16(angle16(a.track)).done());
        // Track status: RAD = SSR/Mode S track, CDM from the vertical rate;
        // tentative on the first scan.
        uint8_t status = 0x40;
        if (first_scan) status |= 0x80;
        if (a.vrate > 0) status |= 0x02;
        if (a.vrate < 0) status |= 0x04;
        r.set(14, Writer().u8(status).done());
        if (a.mode_s) r.set(21, Writer().u16(0x20E0).done());  // COM 1, STAT 0; MSSC, ARC 25 ft, AIC
    }
    return r.build();
}

Octets cat034_north_marker(double t, unsigned plots_last_scan) {
    Record r;
    r.set(1, sac_sic(kSac, 1));
    r.set(2, {0x01});
    r.set(3, time_of_day(kDayStart + t));
    r.set(5, Writer().u16(static_cast<uint32_t>(kScan * 128)).done());
    // Station configuration and processing mode: common part, SSR and
    // Mode S sensors, all channels A, no fault.
    r.set(6, Compound().set(1, {0x00}).set(5, {0x20}).set(6, {0x20, 0x00}).build());
    r.set(7, Compound().set(1, {0x00}).set(5, {0x00}).set(6, {0x00}).build());
    // Every third scan the primary radar reports too, in circular
    // polarization with STC map 2, and the processor runs on chain 2 with
    // reduction step 1.
    if (plots_last_scan % 3 == 1) {
        r.set(6, Compound().set(1, {0x40}).set(4, {0x40}).set(5, {0xA0}).set(6, {0x20, 0x00}).build());
        r.set(7, Compound().set(1, {0x10}).set(4, {0x94}).set(5, {0x20}).set(6, {0x10}).build());
    }
    // Message counts: single SSR reports and Mode S roll-call reports.
    r.set(8, Writer().u8(2).u16((2u << 11) | 2u).u16((5u << 11) | (plots_last_scan & 0x7FF)).done());
    // 3D position of the radar: 560 m, lat/lon in 180/2^23.
    r.set(11, Writer()
                  .s16(560)
                  .s24(round_to(kSiteLat * 8388608.0 / 180.0))
                  .s24(round_to(kSiteLon * 8388608.0 / 180.0))
                  .done());
    return r.build();
}

Octets cat034_sector(double t, unsigned sector) {
    Record r;
    r.set(1, sac_sic(kSac, 1));
    r.set(2, {0x02});
    r.set(3, time_of_day(kDayStart + t));
    r.set(4, Writer().u8(sector).done());
    return r.build();
}

void mode_s_radar(std::vector<Datagram> &out) {
    const auto &ac = traffic();
    const uint32_t src = 0x0A000A01, dst = 0xEF010101;  // 10.0.10.1 -> 239.1.1.1
    unsigned plots_last_scan = 0;
    for (int scan = 0; scan * kScan < kDuration; ++scan) {
        const double start = scan * kScan;
        out.push_back({start, src, dst, 50001, 8600, block(34, {cat034_north_marker(start, plots_last_scan)})});
        plots_last_scan = 0;
        for (unsigned sector = 1; sector <= 4; ++sector) {
            // Targets seen while the antenna swept the last quarter.
            std::vector<std::pair<double, Octets>> reports;
            for (size_t i = 0; i < ac.size(); ++i) {
                const Aircraft &a = ac[i];
                const double az = a.azimuth(start);
                if (az < (sector - 1) * 90.0 || az >= sector * 90.0) continue;
                const double seen = start + az / 360.0 * kScan;
                reports.push_back({seen, cat048_report(a, seen, 100 + static_cast<unsigned>(i), scan == 0)});
            }
            std::sort(reports.begin(), reports.end(),
                      [](const auto &l, const auto &r) { return l.first < r.first; });
            const double crossing = start + sector * kScan / 4.0;
            Octets payload;
            if (sector < 4) payload = block(34, {cat034_sector(crossing, sector * 64)});
            if (!reports.empty()) {
                std::vector<Octets> records;
                for (auto &rep : reports) records.push_back(std::move(rep.second));
                const Octets b = block(48, records);
                payload.insert(payload.end(), b.begin(), b.end());
                plots_last_scan += static_cast<unsigned>(records.size());
            }
            if (!payload.empty()) out.push_back({crossing - 0.002, src, dst, 50001, 8600, payload});
        }
    }
}

}  // namespace samplegen
