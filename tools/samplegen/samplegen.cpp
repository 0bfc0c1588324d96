// kovrel_samplegen: composes the sample recording built into the kovrel tool.
//
// The recording is a classic pcap (Ethernet / IPv4 / UDP, microsecond time
// stamps) of 48 seconds of traffic around one site, with every octet
// written here by hand:
//
//   - a Mode S radar (SAC 25, SIC 1, 4 s scan) sending CAT034 north markers
//     and sector crossings and CAT048 target reports (plots and tracks with
//     Mode S registers 2,0 4,0 5,0 and 6,0), one datagram per sector
//     holding the CAT034 message and the CAT048 block back to back;
//   - an older radar (SAC 25, SIC 2) sending CAT002 service messages and
//     CAT001 blocks, some plots only and some plots and tracks mixed;
//   - a tracker (SAC 25, SIC 100) sending CAT062 system tracks every 4 s;
//   - an ADS-B ground station (SIC 50) on CAT021 edition 0.26 every 2 s,
//     and a newer one (SIC 51) on edition 2.1 every 8 s.
//
// Usage: kovrel_samplegen OUT.pcap OUT.cpp
// The .cpp holds the same octets as a byte array for the tool to embed.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

using Octets = std::vector<uint8_t>;

// ---- Octet and bit writers ---------------------------------------------

// Big-endian writer; signed values are written as two's complement of the
// given width.
class Writer {
public:
    Writer &u8(uint32_t v) { return put(v, 1); }
    Writer &u16(uint32_t v) { return put(v, 2); }
    Writer &u24(uint32_t v) { return put(v, 3); }
    Writer &u32(uint32_t v) { return put(v, 4); }
    Writer &s16(int32_t v) { return put(static_cast<uint32_t>(v), 2); }
    Writer &s24(int32_t v) { return put(static_cast<uint32_t>(v), 3); }
    Writer &s32(int32_t v) { return put(static_cast<uint32_t>(v), 4); }
    Writer &bytes(const Octets &o) {
        out_.insert(out_.end(), o.begin(), o.end());
        return *this;
    }
    Writer &text(const std::string &s, size_t width) {
        for (size_t i = 0; i < width; ++i) out_.push_back(i < s.size() ? static_cast<uint8_t>(s[i]) : ' ');
        return *this;
    }
    Octets done() const { return out_; }

private:
    Writer &put(uint32_t v, int n) {
        for (int i = n - 1; i >= 0; --i) out_.push_back(static_cast<uint8_t>(v >> (8 * i)));
        return *this;
    }
    Octets out_;
};

// Writes fields of any width most significant bit first (Mode S registers,
// six-bit characters).
class Bits {
public:
    Bits &put(uint64_t v, int width) {
        for (int i = width - 1; i >= 0; --i) {
            if (bit_ % 8 == 0) out_.push_back(0);
            if ((v >> i) & 1u) out_.back() |= static_cast<uint8_t>(0x80u >> (bit_ % 8));
            ++bit_;
        }
        return *this;
    }
    Octets done() const { return out_; }

private:
    Octets out_;
    int bit_ = 0;
};

int32_t round_to(double v) { return static_cast<int32_t>(std::lround(v)); }

// ---- FSPEC, records, compound items and blocks -------------------------

// An FSPEC (or the primary subfield of a compound item): bit 8 of octet k
// is field 7k+1, bit 1 is FX.
Octets fspec(const std::vector<unsigned> &fields) {
    unsigned highest = 0;
    for (unsigned f : fields) highest = std::max(highest, f);
    const size_t n = highest == 0 ? 1 : (highest - 1) / 7 + 1;
    Octets o(n, 0);
    for (unsigned f : fields) o[(f - 1) / 7] |= static_cast<uint8_t>(0x80u >> ((f - 1) % 7));
    for (size_t i = 0; i + 1 < n; ++i) o[i] |= 0x01;
    return o;
}

// Fields keyed by their number (FRN or subfield number), written in order
// behind their FSPEC.
class Fields {
public:
    Fields &set(unsigned number, Octets value) {
        fields_[number] = std::move(value);
        return *this;
    }
    Octets build() const {
        std::vector<unsigned> numbers;
        for (const auto &f : fields_) numbers.push_back(f.first);
        Octets o = fspec(numbers);
        for (const auto &f : fields_) o.insert(o.end(), f.second.begin(), f.second.end());
        return o;
    }
    bool empty() const { return fields_.empty(); }

private:
    std::map<unsigned, Octets> fields_;
};

using Record = Fields;
using Compound = Fields;

Octets block(uint8_t category, const std::vector<Octets> &records) {
    size_t length = 3;
    for (const auto &r : records) length += r.size();
    Writer w;
    w.u8(category).u16(static_cast<uint32_t>(length));
    for (const auto &r : records) w.bytes(r);
    return w.done();
}

// ---- Common item layouts -----------------------------------------------

Octets sac_sic(uint8_t sac, uint8_t sic) { return Writer().u8(sac).u8(sic).done(); }
// Time of day, 1/128 s since midnight.
Octets time_of_day(double seconds) { return Writer().u24(static_cast<uint32_t>(std::lround(seconds * 128.0))).done(); }
// Mode 3/A code given as four octal digits (V, G, L clear).
Octets mode_3a(unsigned octal) { return Writer().u16(octal & 0x0FFF).done(); }
// Mode C / flight level: V, G clear, 14-bit two's complement in 1/4 FL.
Octets flight_level_14(double fl) { return Writer().u16(static_cast<uint32_t>(round_to(fl * 4)) & 0x3FFF).done(); }
Octets address24(uint32_t address) { return Writer().u24(address).done(); }

// Eight characters in the six-bit ICAO alphabet.
uint32_t icao_char(char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<uint32_t>(c - 'A' + 1);
    if (c >= '0' && c <= '9') return static_cast<uint32_t>(c);
    return 32;  // blank
}
Octets icao_chars(const std::string &s) {
    Bits b;
    for (size_t i = 0; i < 8; ++i) b.put(icao_char(i < s.size() ? s[i] : ' '), 6);
    return b.done();
}

uint32_t angle16(double degrees) { return static_cast<uint32_t>(std::lround(std::fmod(degrees + 360.0, 360.0) * 65536.0 / 360.0)) & 0xFFFF; }
// Ground speed in 2^-14 NM/s.
uint32_t speed_nms14(double knots) { return static_cast<uint32_t>(std::lround(knots / 3600.0 * 16384.0)); }

// ---- Mode S Comm-B registers (56 bits each) ----------------------------

Octets bds20(const std::string &callsign) {
    Octets o{0x20};
    Octets c = icao_chars(callsign);
    o.insert(o.end(), c.begin(), c.end());
    return o;
}

// Selected vertical intention: MCP/FCU altitude and baro setting.
Octets bds40(unsigned mcp_alt_ft, double baro_mb) {
    Bits b;
    b.put(1, 1).put(mcp_alt_ft / 16, 12);                    // MCP/FCU selected altitude
    b.put(1, 1).put(mcp_alt_ft / 16, 12);                    // FMS selected altitude
    b.put(1, 1).put(static_cast<uint64_t>(std::lround((baro_mb - 800.0) * 10.0)), 12);
    b.put(0, 8);                                             // reserved
    b.put(1, 1).put(1, 1).put(0, 1).put(0, 1);               // mode status, VNAV, ALT HOLD, APP
    b.put(0, 2);                                             // reserved
    b.put(1, 1).put(3, 2);                                   // target altitude source: FCU/MCP
    return b.done();
}

// Track and turn report (level flight, wings level).
Octets bds50(double track_deg, double gs_kt, double tas_kt) {
    Bits b;
    b.put(1, 1).put(0, 1).put(0, 9);                                           // roll 0
    b.put(1, 1).put(0, 1).put(static_cast<uint64_t>(std::lround(track_deg * 512.0 / 90.0)), 10);
    b.put(1, 1).put(static_cast<uint64_t>(std::lround(gs_kt / 2.0)), 10);
    b.put(1, 1).put(0, 1).put(0, 9);                                           // track angle rate 0
    b.put(1, 1).put(static_cast<uint64_t>(std::lround(tas_kt / 2.0)), 10);
    return b.done();
}

// Heading and speed report; heading in two's complement over 11 bits. The
// vertical rates are marked available only when climbing or level.
Octets bds60(double heading_deg, unsigned ias_kt, double mach, int vrate_fpm) {
    Bits b;
    double h = heading_deg > 180.0 ? heading_deg - 360.0 : heading_deg;
    const int32_t raw_h = round_to(h * 512.0 / 90.0) & 0x7FF;
    b.put(1, 1).put(static_cast<uint64_t>(raw_h), 11);
    b.put(1, 1).put(ias_kt, 10);
    b.put(1, 1).put(static_cast<uint64_t>(std::lround(mach * 512.0 / 2.048)), 10);
    const bool rate = vrate_fpm >= 0;
    const uint64_t raw_v = rate ? static_cast<uint64_t>(round_to(vrate_fpm / 32.0)) : 0;
    b.put(rate, 1).put(raw_v, 10);  // barometric altitude rate
    b.put(rate, 1).put(raw_v, 10);  // inertial vertical velocity
    return b.done();
}

// ---- The scene ----------------------------------------------------------

constexpr double kSiteLat = 46.9125;
constexpr double kSiteLon = 7.4983;
constexpr double kPi = 3.14159265358979323846;
constexpr uint8_t kSac = 25;
constexpr uint32_t kEpoch = 1715680800;  // 2024-05-14 10:00:00 UTC
constexpr double kDayStart = 10 * 3600;  // seconds since midnight at kEpoch
constexpr double kDuration = 48.0;
constexpr double kScan = 4.0;

struct Aircraft {
    std::string callsign;
    uint32_t address;
    unsigned squawk;    // octal digits
    double x0, y0;      // NM east and north of the site at t = 0
    double track;       // degrees
    double speed;       // knots
    double fl;          // flight level at t = 0
    double vrate;       // ft/min
    bool mode_s;        // replies in Mode S and carries registers
    bool adsb;          // transmits extended squitters
    uint8_t emitter;    // ADS-B emitter category
    unsigned selected;  // selected altitude, ft

    double x(double t) const { return x0 + std::sin(track * kPi / 180) * speed * t / 3600.0; }
    double y(double t) const { return y0 + std::cos(track * kPi / 180) * speed * t / 3600.0; }
    double level(double t) const { return fl + vrate * t / 60.0 / 100.0; }
    double range(double t) const { return std::hypot(x(t), y(t)); }
    double azimuth(double t) const {
        double a = std::atan2(x(t), y(t)) * 180.0 / kPi;
        return a < 0 ? a + 360.0 : a;
    }
    double lat(double t) const { return kSiteLat + y(t) / 60.0; }
    double lon(double t) const { return kSiteLon + x(t) / (60.0 * std::cos(kSiteLat * kPi / 180.0)); }
};

const std::vector<Aircraft> &traffic() {
    static const std::vector<Aircraft> list = {
        {"SWR123", 0x4B1801, 01000, -30.0, 12.0, 95.0, 440, 350, 0, true, true, 5, 35000},
        {"EZY45KP", 0x4CA7B2, 02743, 18.0, -25.0, 20.0, 280, 120, 1500, true, true, 3, 21000},
        {"DLH9AB", 0x3C6421, 06152, 40.0, 35.0, 215.0, 460, 370, 0, true, true, 5, 37000},
        {"AFR71", 0x39856C, 04011, -15.0, -40.0, 160.0, 250, 90, -1200, true, true, 3, 5000},
        {"HBZUA", 0x4B2A7F, 07000, 6.0, 9.0, 300.0, 110, 45, 0, false, false, 1, 0},
        {"BAW22C", 0x400F2A, 05521, 55.0, -5.0, 280.0, 470, 390, 0, true, true, 5, 39000},
        {"RYR8TQ", 0x4CA2D1, 03306, -45.0, -20.0, 60.0, 420, 330, 800, true, true, 3, 36000},
        {"", 0, 0, 22.0, 28.0, 135.0, 150, 0, 0, false, false, 0, 0},  // primary-only target
    };
    return list;
}

struct Datagram {
    double time;  // seconds since kEpoch
    uint32_t src_ip, dst_ip;
    uint16_t src_port, dst_port;
    Octets payload;
};

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

// ---- pcap ----------------------------------------------------------------------

uint16_t ip_checksum(const uint8_t *p, size_t n) {
    uint32_t sum = 0;
    for (size_t i = 0; i + 1 < n; i += 2) sum += static_cast<uint32_t>(p[i] << 8 | p[i + 1]);
    if (n & 1) sum += static_cast<uint32_t>(p[n - 1] << 8);
    while (sum >> 16) sum = (sum & 0xFFFF) + (sum >> 16);
    return static_cast<uint16_t>(~sum);
}

Octets frame(const Datagram &d, uint16_t ip_id) {
    const size_t udp_len = 8 + d.payload.size();
    Writer eth;
    // Multicast destination MAC from the group address.
    eth.u8(0x01).u8(0x00).u8(0x5E).u8((d.dst_ip >> 16) & 0x7F).u8((d.dst_ip >> 8) & 0xFF).u8(d.dst_ip & 0xFF);
    eth.u8(0x02).u8(0x00).u8(0x5E).u8(0x10).u8((d.src_ip >> 8) & 0xFF).u8(d.src_ip & 0xFF);
    eth.u16(0x0800);
    Writer ip;
    ip.u8(0x45).u8(0x00).u16(static_cast<uint32_t>(20 + udp_len)).u16(ip_id).u16(0x4000);  // DF
    ip.u8(16).u8(17).u16(0).u32(d.src_ip).u32(d.dst_ip);
    Octets iph = ip.done();
    const uint16_t csum = ip_checksum(iph.data(), iph.size());
    iph[10] = static_cast<uint8_t>(csum >> 8);
    iph[11] = static_cast<uint8_t>(csum);
    // UDP checksum over the pseudo header, header and payload.
    Writer pseudo;
    pseudo.u32(d.src_ip).u32(d.dst_ip).u8(0).u8(17).u16(static_cast<uint32_t>(udp_len));
    pseudo.u16(d.src_port).u16(d.dst_port).u16(static_cast<uint32_t>(udp_len)).u16(0).bytes(d.payload);
    const Octets ps = pseudo.done();
    uint16_t ucsum = ip_checksum(ps.data(), ps.size());
    if (ucsum == 0) ucsum = 0xFFFF;
    Writer udp;
    udp.u16(d.src_port).u16(d.dst_port).u16(static_cast<uint32_t>(udp_len)).u16(ucsum).bytes(d.payload);
    Octets f = eth.done();
    f.insert(f.end(), iph.begin(), iph.end());
    const Octets u = udp.done();
    f.insert(f.end(), u.begin(), u.end());
    return f;
}

void put_le32(Octets &o, uint32_t v) {
    for (int i = 0; i < 4; ++i) o.push_back(static_cast<uint8_t>(v >> (8 * i)));
}
void put_le16(Octets &o, uint16_t v) {
    o.push_back(static_cast<uint8_t>(v));
    o.push_back(static_cast<uint8_t>(v >> 8));
}

Octets pcap(std::vector<Datagram> datagrams) {
    std::stable_sort(datagrams.begin(), datagrams.end(),
                     [](const Datagram &l, const Datagram &r) { return l.time < r.time; });
    Octets o;
    put_le32(o, 0xA1B2C3D4);  // microsecond time stamps, written little-endian
    put_le16(o, 2);
    put_le16(o, 4);
    put_le32(o, 0);       // time zone
    put_le32(o, 0);       // accuracy
    put_le32(o, 65535);   // snap length
    put_le32(o, 1);       // Ethernet
    uint16_t id = 0x2F10;
    for (const auto &d : datagrams) {
        const Octets f = frame(d, id++);
        const double ts = kEpoch + d.time;
        const auto sec = static_cast<uint32_t>(std::floor(ts));
        const auto usec = static_cast<uint32_t>(std::lround((ts - std::floor(ts)) * 1e6)) % 1000000u;
        put_le32(o, sec);
        put_le32(o, usec);
        put_le32(o, static_cast<uint32_t>(f.size()));
        put_le32(o, static_cast<uint32_t>(f.size()));
        o.insert(o.end(), f.begin(), f.end());
    }
    return o;
}

bool write_file(const char *path, const void *data, size_t size) {
    std::FILE *f = std::fopen(path, "wb");
    if (!f) return false;
    const bool ok = std::fwrite(data, 1, size, f) == size;
    return std::fclose(f) == 0 && ok;
}

std::string as_cpp(const Octets &o) {
    std::string s =
        "// Generated by kovrel_samplegen from tools/samplegen/samplegen.cpp; do not edit.\n"
        "#include <cstddef>\n\n"
        "#include \"sample.h\"\n\n"
        "namespace kovrel_tool {\n\n"
        "const unsigned char kSamplePcap[] = {";
    char buf[8];
    for (size_t i = 0; i < o.size(); ++i) {
        if (i % 16 == 0) s += "\n   ";
        std::snprintf(buf, sizeof buf, " 0x%02x,", o[i]);
        s += buf;
    }
    s += "\n};\nconst std::size_t kSamplePcapSize = sizeof kSamplePcap;\n\n}  // namespace kovrel_tool\n";
    return s;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s OUT.pcap OUT.cpp\n", argv[0]);
        return 2;
    }
    std::vector<Datagram> datagrams;
    mode_s_radar(datagrams);
    old_radar(datagrams);
    tracker(datagrams);
    adsb(datagrams);
    const Octets capture = pcap(datagrams);
    const std::string source = as_cpp(capture);
    if (!write_file(argv[1], capture.data(), capture.size()) || !write_file(argv[2], source.data(), source.size())) {
        std::fprintf(stderr, "%s: cannot write the sample files\n", argv[0]);
        return 1;
    }
    return 0;
}
