// The safety-net and status feeds of the sample: CAT004 alerts from the
// safety-net server, CAT063 sensor status and CAT065 processing system
// status from the tracker, and CAT023 reports of an ADS-B ground station.
#include "sample_kit.h"

namespace samplegen {
namespace {

constexpr uint8_t kSnetSic = 40;     // the safety-net server
constexpr uint8_t kSdpsSic = 41;     // the tracker, reporting on itself and its sensors
constexpr uint8_t kStationSic = 42;  // the ADS-B ground station, shared with
constexpr uint8_t kStationSac = 26;  // a neighbouring area whose SAC it carries

// Seven ASCII characters, blank padded.
Octets ascii7(const std::string &s) { return Writer().text(s, 7).done(); }

// One aircraft of a conflict: the I004/170 or I004/171 subfields.
Octets conflict_aircraft(const Aircraft &a, double t, bool all) {
    Compound c;
    c.set(1, ascii7(a.callsign));
    c.set(2, mode_3a(a.squawk));
    if (all) {
        c.set(3, Writer()
                     .s32(round_to(a.lat(t + 60) * 33554432.0 / 180.0))
                     .s32(round_to(a.lon(t + 60) * 33554432.0 / 180.0))
                     .s16(round_to(a.level(t + 60) * 100 / 25))
                     .done());
        c.set(4, Writer()
                     .s24(round_to(a.x(t + 60) * 1852.0 * 2))
                     .s24(round_to(a.y(t + 60) * 1852.0 * 2))
                     .s16(round_to(a.level(t + 60) * 100 / 25))
                     .done());
        c.set(5, Writer().u24(static_cast<uint32_t>(std::lround(95.5 * 128))).done());  // 95.5 s to the threshold
        c.set(6, Writer().u16(9260).done());                                           // 4630 m
        c.set(7, {0x55, 0x40});  // GAT, VFR, RVSM approved, FX; climbing
        c.set(8, icao_chars(a.callsign));
        c.set(9, Writer().u32(4711).done());
        c.set(10, Writer().u16(static_cast<uint32_t>(a.fl * 4)).done());
    } else {
        c.set(7, {0x14});  // traffic type unknown, VFR, RVSM approved; one octet
        c.set(10, Writer().u16(static_cast<uint32_t>(a.fl * 4)).done());
    }
    return c.build();
}

// An STCA alert between two aircraft, with every item the server sends.
Octets stca(const Aircraft &a, const Aircraft &b, double t, uint16_t alert, bool full) {
    Record r;
    r.set(1, sac_sic(kSac, kSnetSic));
    r.set(2, {0x07});  // STCA
    r.set(4, time_of_day(kDayStart + t));
    r.set(5, Writer().u16(alert).done());
    r.set(7, {0x03, 0x10});  // STCA activated; extension: NTCA
    r.set(8, Writer().u16(3000).done());
    r.set(9, conflict_aircraft(a, t, full));
    Compound cc;
    cc.set(1, {0x0B, 0x02});                                              // CN: TYPE, DIV; HAMHD
    cc.set(2, {0x13});                                                    // TAB 1, PROP 1, CS high
    cc.set(3, {0xB4});                                                    // 90 %
    cc.set(4, Writer().u24(static_cast<uint32_t>(std::lround(t * 128))).done());  // duration
    r.set(10, cc.build());
    r.set(16, Writer().u16(3006).done());
    r.set(17, conflict_aircraft(b, t, full));
    if (full) {
        r.set(3, {0x02, 0x19, 0x29, 0x19, 0x2A});  // two SDPS
        r.set(6, {0x00});                          // alert status
        Compound timing;
        timing.set(1, Writer().u24(60 * 128).done());
        timing.set(2, Writer().u24(75 * 128).done());
        timing.set(3, Writer().u24(18520).done());
        timing.set(4, Writer().u16(5556).done());
        timing.set(5, Writer().u16(40).done());
        timing.set(6, Writer().u16(20).done());
        r.set(11, timing.build());
        r.set(12, Writer().u16(8).done());    // vertical deviation
        r.set(13, Writer().u16(300).done());  // longitudinal deviation
        r.set(14, Writer().u24(1200).done()); // transversal deviation
        Compound area;
        area.set(1, icao_chars("LSZB TMA"));
        area.set(2, ascii7("XING1"));
        area.set(3, ascii7("LSZB14"));
        area.set(4, ascii7("LSZBA"));
        area.set(5, ascii7("SB14"));
        area.set(6, ascii7("G12"));
        r.set(15, area.build());
        r.set(18, {0x01, 0x05, 0x03});        // sector control position
        r.set(20, {0x03, 0x00, 0x01});        // reserved expansion
        r.set(21, {0x02, 0x5A});              // special purpose
    }
    return r.build();
}

// The server's heartbeat: message type alive, functions running.
Octets alive(double t) {
    Record r;
    r.set(1, sac_sic(kSac, kSnetSic));
    r.set(2, {0x01});
    r.set(4, time_of_day(kDayStart + t));
    r.set(7, {0xFE});  // every function of the first octet activated
    return r.build();
}

// A minimum safe altitude warning over a named area.
Octets msaw(const Aircraft &a, double t, uint16_t alert) {
    Record r;
    r.set(1, sac_sic(kSac, kSnetSic));
    r.set(2, {0x04});
    r.set(4, time_of_day(kDayStart + t));
    r.set(5, Writer().u16(alert).done());
    r.set(8, Writer().u16(3003).done());
    Compound one;
    one.set(2, mode_3a(a.squawk));
    r.set(9, one.build());
    Compound area;
    area.set(1, icao_chars("MSAW07"));
    r.set(15, area.build());
    return r.build();
}

// CAT063: the status of one sensor as the tracker sees it.
Octets sensor_status(uint8_t sensor_sic, double t, bool full) {
    Record r;
    r.set(1, sac_sic(kSac, kSdpsSic));
    r.set(2, {0x01});
    r.set(3, time_of_day(kDayStart + t));
    r.set(4, sac_sic(kSac, sensor_sic));
    if (full) {
        r.set(5, {0x41, 0x48});  // degraded; data processor overload, time source invalid
        r.set(6, Writer().s16(-12).done());
        r.set(7, Writer().s16(3).s16(-20).done());
        r.set(8, Writer().s16(-5).done());
        r.set(9, Writer().s16(2).s16(15).done());
        r.set(10, Writer().s16(7).done());
        r.set(11, Writer().s16(-1).done());
        r.set(13, {0x02, 0x00});
        r.set(14, {0x01});
    } else {
        r.set(5, {0x00});  // operational
    }
    return r.build();
}

// CAT065: the processing system's status, end of batch and service report.
Octets sdps(uint8_t type, double t, uint8_t batch, bool full) {
    Record r;
    r.set(1, sac_sic(kSac, kSdpsSic));
    r.set(2, {type});
    r.set(3, {0x01});
    r.set(4, time_of_day(kDayStart + t));
    r.set(5, {batch});
    if (type == 1) r.set(6, {0x24});  // operational, overload, SDPS-1
    if (type == 3) r.set(7, {0x01});
    if (full) {
        r.set(13, {0x02, 0x11});
        r.set(14, {0x02, 0x22});
    }
    return r.build();
}

// CAT023: station status, service status and service statistics.
Octets station(uint8_t type, double t, bool full) {
    Record r;
    r.set(1, sac_sic(kStationSac, kStationSic));
    r.set(2, {type});
    r.set(4, time_of_day(kDayStart + t));
    if (type == 1) {
        r.set(5, {0x11, 0x14});           // MSC connected, time source valid, FX; 10 s
        r.set(6, {0x02, 0x21, 0x14});     // 1 s, NRA, FX; 10 s
        r.set(7, {0xC8});                 // 200 NM
    } else if (type == 2) {
        r.set(3, {0x12});                 // service 1, 1090 ES
        r.set(8, {0x08});                 // normal
    } else {
        r.set(3, {0x12});
        const uint32_t n = static_cast<uint32_t>(t * 40);
        r.set(9, Writer().u8(3).u8(3).u8(0x80).u32(n).u8(23).u8(0x80).u32(n / 2).u8(5).u8(0x00).u32(1).done());
    }
    if (full) {
        r.set(13, {0x02, 0x33});
        r.set(14, {0x02, 0x44});
    }
    return r.build();
}

}  // namespace

void safety_and_status(std::vector<Datagram> &out) {
    const auto &ac = traffic();
    const uint32_t snet = 0x0A000D01, sdps_ip = 0x0A000B01, ground = 0x0A000C09;
    const uint32_t dst = 0xEF010106;  // 239.1.1.6
    uint16_t alert = 17;
    for (int second = 0; second < static_cast<int>(kDuration); second += 4) {
        const double t = second + 1.25;
        std::vector<Octets> alerts = {alive(t)};
        alerts.push_back(stca(ac[0], ac[6], t, alert, second == 8));
        if (second % 16 == 4) alerts.push_back(msaw(ac[3], t, ++alert));
        out.push_back({t, snet, dst, 50020, 8606, block(4, alerts)});

        if (second % 8 == 0) {
            const bool full = second == 0;
            out.push_back({t + 0.5, sdps_ip, dst, 50021, 8606,
                           block(63, {sensor_status(1, t, full), sensor_status(2, t, false)})});
            Octets payload = block(65, {sdps(1, t, 0, full)});
            const Octets end = block(65, {sdps(2, t, static_cast<uint8_t>(second / 8 % 4), false),
                                          sdps(3, t, static_cast<uint8_t>(second / 8 % 4), false)});
            payload.insert(payload.end(), end.begin(), end.end());
            out.push_back({t + 0.6, sdps_ip, dst, 50021, 8606, payload});
        }
        if (second % 12 == 0) {
            const bool full = second == 0;
            out.push_back({t + 0.75, ground, dst, 50022, 8606,
                           block(23, {station(1, t, full), station(2, t, false), station(3, t, full)})});
        }
    }
}

}  // namespace samplegen
