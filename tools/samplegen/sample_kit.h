// Building blocks of the sample recording: octet and bit writers, FSPECs,
// blocks, common item layouts, Mode S registers, and the scene every feed
// draws its traffic from. Each feed (one file per sensor) appends its
// datagrams to the recording.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace samplegen {

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

inline int32_t round_to(double v) { return static_cast<int32_t>(std::lround(v)); }

// ---- FSPEC, records, compound items and blocks -------------------------

// An FSPEC (or the primary subfield of a compound item): bit 8 of octet k
// is field 7k+1, bit 1 is FX.
inline Octets fspec(const std::vector<unsigned> &fields) {
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

inline Octets block(uint8_t category, const std::vector<Octets> &records) {
    size_t length = 3;
    for (const auto &r : records) length += r.size();
    Writer w;
    w.u8(category).u16(static_cast<uint32_t>(length));
    for (const auto &r : records) w.bytes(r);
    return w.done();
}

// ---- Common item layouts -----------------------------------------------

inline Octets sac_sic(uint8_t sac, uint8_t sic) { return Writer().u8(sac).u8(sic).done(); }
// Time of day, 1/128 s since midnight.
inline Octets time_of_day(double seconds) { return Writer().u24(static_cast<uint32_t>(std::lround(seconds * 128.0))).done(); }
// Mode 3/A code given as four octal digits (V, G, L clear).
inline Octets mode_3a(unsigned octal) { return Writer().u16(octal & 0x0FFF).done(); }
// Mode C / flight level: V, G clear, 14-bit two's complement in 1/4 FL.
inline Octets flight_level_14(double fl) { return Writer().u16(static_cast<uint32_t>(round_to(fl * 4)) & 0x3FFF).done(); }
inline Octets address24(uint32_t address) { return Writer().u24(address).done(); }

// Eight characters in the six-bit ICAO alphabet.
inline uint32_t icao_char(char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<uint32_t>(c - 'A' + 1);
    if (c >= '0' && c <= '9') return static_cast<uint32_t>(c);
    return 32;  // blank
}
inline Octets icao_chars(const std::string &s) {
    Bits b;
    for (size_t i = 0; i < 8; ++i) b.put(icao_char(i < s.size() ? s[i] : ' '), 6);
    return b.done();
}

inline uint32_t angle16(double degrees) { return static_cast<uint32_t>(std::lround(std::fmod(degrees + 360.0, 360.0) * 65536.0 / 360.0)) & 0xFFFF; }
// Ground speed in 2^-14 NM/s.
inline uint32_t speed_nms14(double knots) { return static_cast<uint32_t>(std::lround(knots / 3600.0 * 16384.0)); }

// ---- Mode S Comm-B registers (56 bits each) ----------------------------

inline Octets bds20(const std::string &callsign) {
    Octets o{0x20};
    Octets c = icao_chars(callsign);
    o.insert(o.end(), c.begin(), c.end());
    return o;
}

// Selected vertical intention: MCP/FCU altitude and baro setting.
inline Octets bds40(unsigned mcp_alt_ft, double baro_mb) {
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
inline Octets bds50(double track_deg, double gs_kt, double tas_kt) {
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
inline Octets bds60(double heading_deg, unsigned ias_kt, double mach, int vrate_fpm) {
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

inline const std::vector<Aircraft> &traffic() {
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

// The feeds, one per sensor of the scene.
void mode_s_radar(std::vector<Datagram> &out);
void old_radar(std::vector<Datagram> &out);
void tracker(std::vector<Datagram> &out);
void adsb(std::vector<Datagram> &out);
void mlat(std::vector<Datagram> &out);
void radar_video(std::vector<Datagram> &out);
void safety_and_status(std::vector<Datagram> &out);
void weather_and_status(std::vector<Datagram> &out);

}  // namespace samplegen
