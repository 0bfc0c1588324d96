// The video extractor of the sample: CAT240 radar video of the Mode S
// radar's primary channel over a short sector, one radial a record, with a
// video summary ahead of the sweep.
#include "sample_kit.h"

namespace samplegen {

namespace {

constexpr uint8_t kVideoSic = 60;
// 200 ns cells: 29.98 m each, so 4096 cells reach 66 NM.
constexpr uint32_t kCellNs = 200;
constexpr double kCellMetres = kCellNs * 1e-9 * 299792458.0 * 0.5;
constexpr double kMetresPerNm = 1852.0;

// FRNs of the category's standard profile.
enum Frn : unsigned {
    kSource = 1, kType = 2, kHeader = 3, kSummary = 4, kNano = 5, kFemto = 6, kRes = 7,
    kCounters = 8, kLow = 9, kMedium = 10, kHigh = 11, kTime = 12, kRe = 13, kSp = 14,
};

// The echo strength at a range and azimuth, 0..1: ground clutter that
// fades with range, a rain cell, the scene's aircraft, and a little noise.
double echo(double range_nm, double azimuth, double t, uint32_t seed) {
    double v = 0.55 * std::exp(-range_nm / 4.0);
    const double rain = std::hypot((range_nm - 28.0) / 4.0, (azimuth - 96.0) / 3.0);
    if (rain < 1.0) v += 0.45 * (1.0 - rain);
    for (const auto &a : traffic()) {
        const double da = std::fabs(a.azimuth(t) - azimuth);
        const double dr = std::fabs(a.range(t) - range_nm);
        if (da < 1.5 && dr < 0.15) v += 0.9 * (1.0 - da / 1.5);
    }
    seed = seed * 1103515245u + 12345u;
    v += ((seed >> 16) & 0xFF) / 255.0 * 0.08;
    return v > 1.0 ? 1.0 : v;
}

// The amplitudes of `cells` cells at `bits` bits each, packed the first
// cell in the top bits of its octet.
Octets video(double azimuth, double t, size_t cells, unsigned bits, uint32_t start_cell) {
    Bits b;
    const uint32_t full = (1u << bits) - 1;
    for (size_t i = 0; i < cells; ++i) {
        const double range_nm = (start_cell + i) * kCellMetres / kMetresPerNm;
        const double v = echo(range_nm, azimuth, t, static_cast<uint32_t>(i * 2654435761u) ^ static_cast<uint32_t>(azimuth * 100));
        // Below the threshold a cell stays empty, as extractors send it.
        const uint32_t a = v < 0.06 ? 0 : static_cast<uint32_t>(std::lround(v * full));
        b.put(a, static_cast<int>(bits));
    }
    return b.done();
}

Octets rep_block(const Octets &video, size_t unit) {
    Octets o{static_cast<uint8_t>(video.size() / unit)};
    o.insert(o.end(), video.begin(), video.end());
    return o;
}

struct Radial {
    unsigned res;        // RES code
    size_t cells;
    bool femto;          // header in femtoseconds
    unsigned block_frn;  // which of the three blocks carries it
    size_t unit;         // octets a repetition of that block
};

// Each resolution and each block size the category has, over a 12 deg sector.
const Radial kRadials[] = {
    {1, 2048, false, kLow, 4},     {2, 1024, false, kLow, 4},     {3, 1024, true, kMedium, 64},
    {3, 2048, true, kMedium, 64},  {4, 1024, false, kMedium, 64}, {4, 4096, false, kHigh, 256},
    {4, 4096, true, kHigh, 256},   {4, 4096, false, kHigh, 256},  {4, 2048, false, kMedium, 64},
    {3, 4096, true, kHigh, 256},   {2, 2048, false, kMedium, 64}, {4, 4096, false, kHigh, 256},
};

}  // namespace

void radar_video(std::vector<Datagram> &out) {
    const uint32_t src = 0x0A000A05, dst = 0xEF010105;  // 10.0.10.5 -> 239.1.1.5
    const double start = 6.0;

    Record summary;
    summary.set(kSource, sac_sic(kSac, kVideoSic));
    summary.set(kType, {0x01});
    const std::string text = "PSR VIDEO SECTOR 090-102 8BIT";
    summary.set(kSummary, Writer().u8(static_cast<uint32_t>(text.size())).text(text, text.size()).done());
    summary.set(kTime, time_of_day(kDayStart + start));
    out.push_back({start, src, dst, 50010, 8605, block(240, {summary.build()})});

    uint32_t sequence = 1;
    for (size_t i = 0; i < sizeof kRadials / sizeof kRadials[0]; ++i) {
        const Radial &r = kRadials[i];
        const double t = start + 0.01 + i * kScan / 360.0;
        const double az = 90.0 + static_cast<double>(i);
        const unsigned bits = r.res == 1 ? 1 : r.res == 2 ? 2 : r.res == 3 ? 4 : 8;
        const uint32_t start_cell = 16;
        const Octets v = video(az + 0.5, t, r.cells, bits, start_cell);

        Record rec;
        rec.set(kSource, sac_sic(kSac, kVideoSic));
        rec.set(kType, {0x02});
        rec.set(kHeader, Writer().u32(sequence++).done());
        Writer header;
        header.u16(angle16(az)).u16(angle16(az + 1.0)).u32(start_cell);
        header.u32(r.femto ? kCellNs * 1000000u : kCellNs);
        rec.set(r.femto ? kFemto : kNano, header.done());
        rec.set(kRes, {0x00, static_cast<uint8_t>(r.res)});
        rec.set(kCounters, Writer().u16(static_cast<uint32_t>(v.size())).u24(static_cast<uint32_t>(r.cells)).done());
        rec.set(r.block_frn, rep_block(v, r.unit));
        rec.set(kTime, time_of_day(kDayStart + t));
        if (i == 0) {
            rec.set(kRe, {0x03, 0x00, 0x00});
            rec.set(kSp, {0x02, 0x5A});
        }
        out.push_back({t, src, dst, 50010, 8605, block(240, {rec.build()})});
    }
}

}  // namespace samplegen
