// The airport's multilateration system: CAT010 surface movement reports of
// the aircraft and vehicles on the aerodrome, and CAT020 multilateration
// reports of the traffic near the airport.
#include "sample_kit.h"

namespace samplegen {

namespace {

constexpr uint8_t kSurfaceSic = 30;
constexpr uint8_t kMlatSic = 31;
constexpr double kUpdate = 2.0;  // seconds between surface updates

// A mover on the aerodrome, in metres east and north of the site.
struct Mover {
    std::string callsign;
    uint32_t address;
    unsigned squawk;
    double x0, y0;
    double track;  // degrees
    double speed;  // m/s
    bool vehicle;
    uint8_t fleet;  // vehicle fleet
    uint8_t length, width;

    double x(double t) const { return x0 + std::sin(track * kPi / 180) * speed * t; }
    double y(double t) const { return y0 + std::cos(track * kPi / 180) * speed * t; }
    double lat(double t) const { return kSiteLat + y(t) / 1852.0 / 60.0; }
    double lon(double t) const { return kSiteLon + x(t) / 1852.0 / (60.0 * std::cos(kSiteLat * kPi / 180.0)); }
};

const std::vector<Mover> &movers() {
    static const std::vector<Mover> list = {
        {"SWR94K", 0x4B1A22, 01042, -850.0, 120.0, 85.0, 7.5, false, 0, 38, 34},
        {"TUG12", 0x4B7F01, 0, 300.0, -220.0, 265.0, 3.0, true, 10, 9, 3},
        {"FOLLOW1", 0x4B7F02, 0, -120.0, 410.0, 180.0, 6.0, true, 16, 5, 2},
    };
    return list;
}

Octets wgs84_31(double lat, double lon) {
    const double k = 2147483648.0 / 180.0;
    return Writer().s32(round_to(lat * k)).s32(round_to(lon * k)).done();
}

// ---- CAT010 ------------------------------------------------------------------

Octets cat010_report(const Mover &m, double t, unsigned track, bool first) {
    Record r;
    r.set(1, sac_sic(kSac, kSurfaceSic));
    r.set(2, {0x01});  // target report
    // Aircraft: Mode S multilateration; vehicles: PSR with the type of target.
    if (m.vehicle) r.set(3, {0x61, 0x05, 0x00});        // PSR, ground vehicle
    else r.set(3, {0x25, 0x03, 0x00});                   // Mode S mlat, GBS; aircraft
    r.set(4, time_of_day(kDayStart + t));
    r.set(5, wgs84_31(m.lat(t), m.lon(t)));
    const double rho = std::hypot(m.x(t), m.y(t));
    double theta = std::atan2(m.x(t), m.y(t)) * 180.0 / kPi;
    if (theta < 0) theta += 360.0;
    r.set(6, Writer().u16(static_cast<uint32_t>(std::lround(rho))).u16(angle16(theta)).done());
    r.set(7, Writer().s16(round_to(m.x(t))).s16(round_to(m.y(t))).done());
    r.set(8, Writer().u16(speed_nms14(m.speed * 3600.0 / 1852.0)).u16(angle16(m.track)).done());
    const double vx = std::sin(m.track * kPi / 180) * m.speed, vy = std::cos(m.track * kPi / 180) * m.speed;
    r.set(9, Writer().s16(round_to(vx * 16)).s16(round_to(vy * 16)).done());
    r.set(10, Writer().u16(track).done());
    r.set(11, Writer().u8(first ? 0x83 : 0x03).u8(0xC1).u8(0x00).done());  // smoothed, other movement
    if (!m.vehicle) {
        r.set(12, mode_3a(m.squawk));
        r.set(17, flight_level_14(0.0));
    }
    r.set(13, address24(m.address));
    r.set(14, Writer().u8(0x00).bytes(icao_chars(m.callsign)).done());
    r.set(18, Writer().s16(0).done());  // measured height
    r.set(19, Writer().u8(static_cast<uint8_t>(m.length << 1) | 1).u8(static_cast<uint8_t>(round_to(m.track / 360.0 * 128) & 0x7F) << 1 | 1).u8(static_cast<uint8_t>(m.width << 1)).done());
    r.set(22, Writer().u8(12).u8(10).s16(-3).done());
    r.set(25, Writer().u8(0x02).u8(0xFF).done());
    if (m.vehicle) {
        r.set(16, {m.fleet});
        if (first) r.set(21, {static_cast<uint8_t>(m.fleet == 16 ? 0x02 : 0x01)});
        // The primary plot: amplitude and its elementary presences.
        r.set(24, {0x5C});
        r.set(23, {0x03, 0x02, 0x01, 0xFE, 0xFF, 0x00, 0x02});
    } else if (first) {
        Octets mb{0x01};
        const Octets reg = bds40(4000, 1013.2);
        mb.insert(mb.end(), reg.begin(), reg.end());
        mb.push_back(0x40);
        r.set(15, mb);
    }
    if (first) {
        r.set(27, {0x02, 0x5A});  // special purpose
        r.set(28, {0x03, 0x00, 0x00});  // reserved expansion
    }
    return r.build();
}

Octets cat010_service(double t, uint8_t type) {
    Record r;
    r.set(1, sac_sic(kSac, kSurfaceSic));
    r.set(2, {type});
    r.set(4, time_of_day(kDayStart + t));
    r.set(20, {static_cast<uint8_t>(type == 4 ? 0x48 : 0x00)});  // event: degraded, diversity
    return r.build();
}

// ---- CAT020 ------------------------------------------------------------------

Octets cat020_report(const Aircraft &a, double t, unsigned track, bool first) {
    Record r;
    r.set(1, sac_sic(kSac, kMlatSic));
    r.set(2, {0xBF, 0x01, 0xC0});  // Mode S multilateration, CF not available
    r.set(3, time_of_day(kDayStart + t));
    r.set(4, Writer().s32(round_to(a.lat(t) * 33554432.0 / 180.0)).s32(round_to(a.lon(t) * 33554432.0 / 180.0)).done());
    r.set(5, Writer().s24(round_to(a.x(t) * 1852.0 * 2)).s24(round_to(a.y(t) * 1852.0 * 2)).done());
    r.set(6, Writer().u16(track).done());
    const int cdm = a.vrate > 0 ? 1 : (a.vrate < 0 ? 2 : 0);
    r.set(7, Writer().u8(static_cast<uint32_t>((cdm << 3) | 0x02)).done());
    r.set(8, mode_3a(a.squawk));
    const double ms = a.speed * 1852.0 / 3600.0;
    r.set(9, Writer()
                 .s16(round_to(std::sin(a.track * kPi / 180) * ms * 4))
                 .s16(round_to(std::cos(a.track * kPi / 180) * ms * 4))
                 .done());
    r.set(10, flight_level_14(a.level(t)));
    r.set(12, address24(a.address));
    r.set(13, Writer().u8(0x80).bytes(icao_chars(a.callsign)).done());
    r.set(15, Writer().s16(round_to(a.level(t) * 100.0 / 6.25)).done());
    Compound acc;
    acc.set(1, Writer().u16(6).u16(5).u16(2).done());
    acc.set(2, Writer().u16(30).u16(26).u16(4).done());
    acc.set(3, Writer().u16(20).done());
    r.set(19, acc.build());
    r.set(20, {0x02, 0xE4, 0x80});  // receivers 1, 2, 3, 6 and 9
    r.set(22, Writer().u8(0x20).u8(0xE0).done());  // Comm A/B, airborne; MSSC, 25 ft, AIC
    if (first) {
        r.set(11, Writer().u16(0x0000).u16(0x0000).done());
        r.set(14, Writer().s16(round_to(a.level(t) * 100.0 / 6.25 - 40)).done());
        r.set(16, Writer().u8(0x01).u8(0xFF).done());
        r.set(17, {0x00});
        r.set(18, {0x00});
        Octets mb{0x01};
        const Octets reg = bds40(a.selected, 1013.2);
        mb.insert(mb.end(), reg.begin(), reg.end());
        mb.push_back(0x40);
        r.set(21, mb);
        r.set(23, {0x30, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00});
        r.set(24, {0x03, 0x22});  // multipath, Mode S error correction
        r.set(25, {0x12});
        r.set(26, Writer().u16(01234).done());
        r.set(27, {0x02, 0x00});
        r.set(28, {0x01});
    }
    return r.build();
}

}  // namespace

void mlat(std::vector<Datagram> &out) {
    const uint32_t src = 0x0A000C01, dst = 0xEF010104;  // 10.0.12.1 -> 239.1.1.4
    const auto &m = movers();
    for (int update = 0; update * kUpdate + 0.5 < kDuration; ++update) {
        const double t = update * kUpdate + 0.5;
        std::vector<Octets> records{cat010_service(t, 2)};
        for (size_t i = 0; i < m.size(); ++i)
            records.push_back(cat010_report(m[i], t, 500 + static_cast<unsigned>(i), update == 0));
        if (update % 5 == 0) records.push_back(cat010_service(t, 3));
        if (update == 7) records.push_back(cat010_service(t, 4));
        out.push_back({t, src, dst, 50030, 8610, block(10, records)});
    }
    // The traffic near the airport: the two lowest aircraft, every second.
    const auto &ac = traffic();
    for (int update = 0; update + 0.8 < kDuration; ++update) {
        const double t = update + 0.8;
        std::vector<Octets> records;
        for (size_t i = 0; i < ac.size(); ++i) {
            if (!ac[i].mode_s || ac[i].fl > 150) continue;
            records.push_back(cat020_report(ac[i], t, 700 + static_cast<unsigned>(i), update == 0));
        }
        if (!records.empty()) out.push_back({t, src, dst, 50031, 8620, block(20, records)});
    }
}

}  // namespace samplegen
