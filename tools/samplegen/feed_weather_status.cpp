// The weather radar and the non-cooperative and multilateration systems of
// the sample: CAT008 weather pictures, CAT015 target reports of a passive
// radar, its CAT016 configuration, and CAT019 status of the
// multilateration system.
#include "sample_kit.h"

namespace samplegen {

namespace {

constexpr uint16_t kWeatherPort = 50040, kIncsPort = 50041, kConfigPort = 50042, kMlatStatusPort = 50043;
constexpr uint8_t kWeatherSic = 40, kIncsSic = 41, kMlatSic = 43;

// ---- CAT008: one weather picture per scan -------------------------------

std::vector<Octets> weather_picture(double t, int scan) {
    std::vector<Octets> records;
    // Start of picture: processing status (scaling factor -1) and the
    // station's status words.
    Record sop;
    sop.set(1, sac_sic(kSac, kWeatherSic)).set(2, {254}).set(8, time_of_day(kDayStart + t));
    sop.set(9, Writer().u8(0xF8 | 0x00).u8(0x00).u8(0x0C).done());  // f = -1, q = 6
    sop.set(10, {0x03, 0x05, 0x0E});
    if (scan == 0) sop.set(13, {0x03, 0x57, 0x58});  // special purpose
    records.push_back(sop.build());
    // A band of rain north-east of the radar as polar vectors.
    Record polar;
    polar.set(1, sac_sic(kSac, kWeatherSic)).set(2, {1}).set(3, {0x30});  // intensity 3
    Writer pv;
    pv.u8(4);
    for (int i = 0; i < 4; ++i) pv.u8(40 + scan).u8(70 + scan).u16(angle16(30.0 + 2.5 * i));
    polar.set(5, pv.done()).set(8, time_of_day(kDayStart + t + 0.1));
    records.push_back(polar.build());
    // The same cell as Cartesian vectors of a start point and a length, in
    // system co-ordinates with shading to the east.
    Record cart;
    cart.set(1, sac_sic(kSac, kWeatherSic)).set(2, {2}).set(3, {0xA9, 0x06});
    cart.set(4, Writer().u8(3).u8(20).u8(30).u8(12).u8(20).u8(31).u8(14).u8(0xEC).u8(0xE2).u8(8).done());
    cart.set(8, time_of_day(kDayStart + t + 0.2));
    records.push_back(cart.build());
    // Its outline as a contour of one record.
    Record contour;
    contour.set(1, sac_sic(kSac, kWeatherSic)).set(2, {3}).set(6, Writer().u8(0x33).u8(static_cast<uint8_t>(scan)).done());
    contour.set(7, {0x04, 0x14, 0x1E, 0x22, 0x1E, 0x22, 0x2C, 0x14, 0x2C});
    contour.set(8, time_of_day(kDayStart + t + 0.3));
    records.push_back(contour.build());
    // A squall line as start/end vectors.
    Record line;
    line.set(1, sac_sic(kSac, kWeatherSic)).set(2, {4}).set(3, {0x50});
    line.set(12, {0x02, 0xD8, 0x10, 0xE2, 0x28, 0xE2, 0x28, 0xF0, 0x3C});
    line.set(8, time_of_day(kDayStart + t + 0.4));
    records.push_back(line.build());
    // End of picture with its item count.
    Record eop;
    eop.set(1, sac_sic(kSac, kWeatherSic)).set(2, {255}).set(8, time_of_day(kDayStart + t + 0.5));
    eop.set(11, Writer().u16(static_cast<uint32_t>(records.size() + 1)).done());
    records.push_back(eop.build());
    return records;
}

// ---- CAT015: a passive radar's reports of one aircraft ------------------

Octets incs_report(const Aircraft &a, double t, bool first) {
    Record r;
    r.set(1, sac_sic(kSac, kIncsSic));
    r.set(2, {static_cast<uint8_t>(first ? 0x04 : 0x08)});  // measurement track, sensor centric track
    r.set(3, {0x07});
    r.set(4, {0x44});  // multi-static, actual, forward
    r.set(6, time_of_day(kDayStart + t));
    r.set(7, Writer().u16(0x0100 + a.squawk % 256).done());
    r.set(8, {0x00});
    r.set(9, Writer().u16(512).done());  // 4 s
    r.set(12, Writer().u16(3).u24(static_cast<uint32_t>(t * 10)).done());
    Compound pos;
    pos.set(1, Writer()
                   .s32(round_to(a.lat(t) * 2147483648.0 / 180.0))
                   .s32(round_to(a.lon(t) * 2147483648.0 / 180.0))
                   .done());
    pos.set(2, Writer().u16(60).u16(80).u8(0x10).done());
    pos.set(3, Writer().u16(100).u16(120).u8(0xF0).done());
    r.set(13, pos.build());
    Compound height;
    height.set(1, Writer().s24(round_to(a.level(t) * 100 * 0.3048 * 100)).done());
    height.set(3, Writer().u24(2500).done());
    r.set(14, height.build());
    Compound vel;
    vel.set(1, Writer().u8(0x00).u16(0x7D0F).u16(0xE0C8).done());  // HV: 20 m/s east, -12.5 m/s north
    vel.set(3, Writer().u16(150).u16(150).u8(0x00).done());
    r.set(15, vel.build());
    Compound vv;
    vv.set(1, Writer().s24(-250).done());
    vv.set(2, Writer().u16(50).done());
    r.set(17, vv.build());
    if (first) {
        r.set(5, {0x41, 0x40});  // warnings 32, 32
        Compound size;
        size.set(1, Writer().u16(3800).done()).set(2, Writer().u16(3500).done());
        size.set(3, Writer().u16(1200).done()).set(4, Writer().u16(angle16(125.0)).done());
        r.set(10, size.build());
        r.set(11, {0x02, 0x80, 0xD0, 0x01, 0x0A});  // class 257 at 80 %, class 2 at 10 %
        Compound acc;
        acc.set(1, Writer().u8(0x01).u8(0x0F).u8(0xFF).done());
        acc.set(2, Writer().u8(0x01).u8(0x00).u8(0x10).u8(0x20).done());
        acc.set(3, {0x10, 0x20, 0x30, 0x40});
        acc.set(4, {0xF0, 0xE0, 0xD0, 0xC0});
        r.set(16, acc.build());
        Compound va;
        for (unsigned i = 1; i <= 5; ++i) va.set(i, i == 2 ? Octets{0x00, 0x20, 0x10, 0x08} : Octets{0x01, 0x02});
        r.set(18, va.build());
        r.set(19, {0x02, 0x00, 0x03, 0x00, 0x00, 0x10, 0x00, 0x04, 0x00, 0x00, 0x11});
        Compound range;
        range.set(1, Writer().s24(round_to(a.range(t) * 18520)).done());
        for (unsigned i = 2; i <= 8; ++i) {
            const unsigned octets = (i == 6 || i == 8) ? 4 : (i == 7 ? 2 : 3);
            range.set(i, Octets(octets, static_cast<uint8_t>(i)));
        }
        r.set(20, range.build());
        Compound doppler;
        for (unsigned i = 1; i <= 10; ++i) {
            const unsigned octets = i == 1 || i == 4 ? 3 : (i <= 3 ? 2 : 1);
            doppler.set(i, Octets(octets, static_cast<uint8_t>(0x10 + i)));
        }
        r.set(21, doppler.build());
        Compound az;
        az.set(1, Writer().u16(angle16(a.azimuth(t))).done());
        for (unsigned i = 2; i <= 6; ++i) az.set(i, Octets(i == 5 ? 3 : (i == 6 ? 4 : 2), 0x21));
        r.set(22, az.build());
        Compound el;
        el.set(1, Writer().s16(round_to(2.5 * 65536.0 / 180.0)).done());
        for (unsigned i = 2; i <= 6; ++i) el.set(i, Octets(i == 5 ? 3 : (i == 6 ? 4 : 2), 0x12));
        r.set(23, el.build());
        Compound path;
        path.set(1, {0x3C}).set(2, {0x14}).set(3, {0x00, 0x28}).set(4, {0x0A});
        r.set(24, path.build());
        r.set(25, Writer().u8(1).u16(angle16(a.azimuth(t))).s16(700).u16(6554).u16(5898).done());
    }
    return r.build();
}

// ---- CAT016: the passive radar's configuration --------------------------

Octets incs_configuration(double t, bool pairs) {
    Record r;
    r.set(1, sac_sic(kSac, kIncsSic)).set(2, {0x07}).set(3, {static_cast<uint8_t>(pairs ? 2 : 1)});
    r.set(4, time_of_day(kDayStart + t));
    if (!pairs) {
        r.set(5, {60});
        r.set(7, Writer()
                     .s32(round_to(kSiteLat * 2147483648.0 / 180.0))
                     .s32(round_to(kSiteLon * 2147483648.0 / 180.0))
                     .done());
        r.set(8, Writer().s16(540 * 4).done());
        return r.build();
    }
    r.set(6, Writer().u8(2).u16(1).u16(10).u16(20).u16(2).u16(11).u16(20).done());
    Writer tx;
    tx.u8(2);
    for (unsigned i = 0; i < 2; ++i) {
        tx.u16(10 + i)
            .s32(round_to((kSiteLat + 0.1 * (i + 1)) * 2147483648.0 / 180.0))
            .s32(round_to((kSiteLon - 0.2 * i) * 2147483648.0 / 180.0))
            .s16(round_to((900 + 100 * i) * 4.0))
            .s32(i == 0 ? 0 : -125)
            .u24(20 + i)
            .u16(i);
    }
    r.set(9, tx.done());
    r.set(10, Writer()
                  .u8(1)
                  .u16(20)
                  .s32(round_to(kSiteLat * 2147483648.0 / 180.0))
                  .s32(round_to(kSiteLon * 2147483648.0 / 180.0))
                  .s16(545 * 4)
                  .done());
    return r.build();
}

// ---- CAT019: status of the multilateration system -----------------------

Octets mlat_status(double t, int cycle) {
    Record r;
    r.set(1, sac_sic(kSac, kMlatSic)).set(2, {static_cast<uint8_t>(cycle == 0 ? 1 : 2)});
    r.set(3, time_of_day(kDayStart + t));
    if (cycle == 0) return r.build();
    r.set(4, {static_cast<uint8_t>(cycle == 3 ? 0x40 : 0x00)});  // degraded once
    r.set(5, {0xF0});                                            // processors 1 and 2 running
    r.set(6, {0x03, 0x01, 0x7C, 0x02, 0x7C, 0x03, static_cast<uint8_t>(cycle == 3 ? 0x70 : 0x7C)});
    r.set(7, {0xCD, 0xC8});
    if (cycle == 1) {
        r.set(8, Writer()
                     .s32(round_to(kSiteLat * 1073741824.0 / 180.0))
                     .s32(round_to(kSiteLon * 1073741824.0 / 180.0))
                     .done());
        r.set(9, Writer().s16(540 * 4).done());
        r.set(10, {49});
        r.set(13, {0x03, 0x01, 0x02});  // reserved expansion
        r.set(14, {0x02, 0x19});        // special purpose
    }
    return r.build();
}

}  // namespace

void weather_and_status(std::vector<Datagram> &out) {
    const uint32_t wx = 0x0A000E01, incs = 0x0A000E02, mlat_ip = 0x0A000E03;
    const uint32_t dst = 0xEF010107;  // 239.1.1.7
    const auto &ac = traffic();
    for (int scan = 0; scan * kScan < kDuration; ++scan) {
        const double t = scan * kScan + 0.75;
        out.push_back({t, wx, dst, kWeatherPort, 8607, block(8, weather_picture(t, scan))});
        std::vector<Octets> reports;
        for (size_t i = 0; i < 2 && i < ac.size(); ++i) reports.push_back(incs_report(ac[i], t + 0.2, scan == 0));
        out.push_back({t + 0.2, incs, dst, kIncsPort, 8607, block(15, reports)});
        if (scan % 4 == 0)
            out.push_back({t + 0.3, incs, dst, kConfigPort, 8607,
                           block(16, {incs_configuration(t + 0.3, false), incs_configuration(t + 0.3, true)})});
        out.push_back({t + 0.4, mlat_ip, dst, kMlatStatusPort, 8607, block(19, {mlat_status(t + 0.4, scan % 4)})});
    }
}

}  // namespace samplegen
