// Writes a CAT048 recording for timing `kovrel decode`: raw data blocks back
// to back, as a Mode S radar sends them. A few hundred aircraft fly straight
// lines at cruise and approach levels; every four-second scan reports each
// of them once, the reports of one sector sharing a block.
//
// Each report holds I048/010, 140, 020, 040, 070, 090, 130, 220, 240, 250
// (two or three of BDS 4,0, 5,0 and 6,0), 161, 200 and 170. The items the
// library can encode are written by its encoders; the others (130, 170,
// 250) are laid out here octet by octet.
//
//   kovrel_make_recording OUT [MEGABYTES]   (default 56)
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <kovrel/kovrel.h>

namespace {

using Octets = std::vector<uint8_t>;

constexpr double kPi = 3.14159265358979323846;
constexpr unsigned kAircraft = 420;
constexpr double kScan = 4.0;    // seconds per antenna turn
constexpr unsigned kSectors = 16;  // blocks per scan

// A small deterministic generator, so that every run writes the same file.
struct Random {
    uint64_t state = 0x9E3779B97F4A7C15ull;
    uint32_t next() {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return static_cast<uint32_t>(state >> 11);
    }
    double uniform(double lo, double hi) { return lo + (hi - lo) * (next() % 1000000) / 1e6; }
};

struct Aircraft {
    double x, y;      // NM east and north of the radar
    double heading;   // degrees
    double speed;     // knots
    double fl;        // flight level
    double vrate;     // ft/min
    unsigned squawk;  // octal digits as a number
    uint32_t address;
    char callsign[9];
    unsigned track;
};

// Appends an item written by one of the library's encoders.
template <typename T, typename Encode>
void encoded(Octets &out, Encode encode, const T &value) {
    uint8_t buffer[64];
    AstDataItem item;
    encode(&item, buffer, sizeof buffer, &value);
    if (item.valid != 1) {
        std::fprintf(stderr, "kovrel_make_recording: the library refused an item\n");
        std::exit(1);
    }
    out.insert(out.end(), buffer, buffer + item.length);
}

// Bits of a 56-bit Comm-B message, numbered from 1 at the most significant.
void put_bits(uint8_t *mb, unsigned first, unsigned width, uint32_t value) {
    for (unsigned i = 0; i < width; ++i) {
        const unsigned bit = first + i - 1;
        if (value >> (width - 1 - i) & 1u) mb[bit / 8] |= static_cast<uint8_t>(0x80u >> (bit % 8));
    }
}

uint32_t twos(long value, unsigned width) { return static_cast<uint32_t>(value) & ((1u << width) - 1); }

// BDS 4,0: selected altitude (MCP/FCU and FMS), barometric setting.
void bds40(uint8_t *mb, const Aircraft &a) {
    const unsigned selected = static_cast<unsigned>(std::lround(a.fl / 10.0)) * 1000;
    put_bits(mb, 1, 1, 1);
    put_bits(mb, 2, 12, selected / 16);
    put_bits(mb, 14, 1, 1);
    put_bits(mb, 15, 12, selected / 16);
    put_bits(mb, 27, 1, 1);
    put_bits(mb, 28, 12, static_cast<uint32_t>((1013.2 - 800.0) / 0.1));
    put_bits(mb, 48, 1, 1);
    put_bits(mb, 50, 1, 1);  // altitude hold
}

// BDS 5,0: roll, true track, ground speed, track rate, true airspeed.
void bds50(uint8_t *mb, const Aircraft &a) {
    const double track = a.heading > 180 ? a.heading - 360 : a.heading;
    put_bits(mb, 1, 1, 1);
    put_bits(mb, 2, 10, twos(0, 10));
    put_bits(mb, 12, 1, 1);
    put_bits(mb, 13, 11, twos(std::lround(track / (90.0 / 512)), 11));
    put_bits(mb, 24, 1, 1);
    put_bits(mb, 25, 10, static_cast<uint32_t>(a.speed / 2));
    put_bits(mb, 35, 1, 1);
    put_bits(mb, 36, 10, twos(0, 10));
    put_bits(mb, 46, 1, 1);
    put_bits(mb, 47, 10, static_cast<uint32_t>((a.speed - 20) / 2));
}

// BDS 6,0: magnetic heading, indicated airspeed, Mach, vertical rates.
void bds60(uint8_t *mb, const Aircraft &a) {
    const double heading = a.heading > 180 ? a.heading - 360 : a.heading;
    put_bits(mb, 1, 1, 1);
    put_bits(mb, 2, 11, twos(std::lround(heading / (90.0 / 512)), 11));
    put_bits(mb, 13, 1, 1);
    put_bits(mb, 14, 10, static_cast<uint32_t>(a.speed * 0.62));
    put_bits(mb, 24, 1, 1);
    put_bits(mb, 25, 10, static_cast<uint32_t>(a.speed / 580.0 / (2.048 / 512)));
    put_bits(mb, 35, 1, 1);
    put_bits(mb, 36, 10, twos(std::lround(a.vrate / 32), 10));
    put_bits(mb, 46, 1, 1);
    put_bits(mb, 47, 10, twos(std::lround(a.vrate / 32), 10));
}

Octets report(const Aircraft &a, double tod, Random &random) {
    Octets items;
    // FRN 1-7: 010 140 020 040 070 090 130; FRN 8-14: 220 240 250 161 (042) 200 170.
    uint8_t fspec[2] = {0x01, 0x00};
    for (uint32_t frn : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 14}) ast_fspec_set(fspec, sizeof fspec, frn, true);

    AstDataSourceIdentifier source{1, 25, 1};
    encoded(items, ast_dataitem_data_source_identifier_encode, source);

    AstTimeOfDay time;
    ast_dataitem_time_of_day_init(&time);
    time.valid = 1;
    time.raw = static_cast<uint32_t>(tod * 128) & 0xFFFFFF;
    encoded(items, ast_dataitem_time_of_day_encode, time);

    const bool primary = random.next() % 4 == 0;  // PSR + SSR/Mode S roll-call
    AstItem048_020 descriptor;
    ast_dataitem_048_020_init(&descriptor);
    descriptor.valid = 1;
    descriptor.typ = primary ? 7 : 5;
    encoded(items, ast_dataitem_048_020_encode, descriptor);

    AstItem048_040 polar;
    ast_dataitem_048_040_init(&polar);
    polar.valid = 1;
    polar.rho = std::hypot(a.x, a.y);
    polar.theta = std::fmod(std::atan2(a.x, a.y) * 180 / kPi + 360, 360);
    if (polar.theta >= 359.995) polar.theta = 0;
    encoded(items, ast_dataitem_048_040_encode, polar);

    AstMode3aCode squawk;
    ast_dataitem_mode_3a_code_init(&squawk);
    squawk.valid = 1;
    squawk.code = a.squawk;
    encoded(items, ast_dataitem_mode_3a_code_encode, squawk);

    AstModeCCode level;
    ast_dataitem_mode_c_code_init(&level);
    level.valid = 1;
    level.validated = 1;
    level.flight_level = static_cast<int32_t>(std::lround(a.fl * 4));
    encoded(items, ast_dataitem_mode_c_code_encode, level);

    // I048/130: SRL, SRR, SAM; PRL and PAM too for a primary plot.
    const auto run_length = static_cast<uint8_t>(20 + random.next() % 30);
    const auto replies = static_cast<uint8_t>(6 + random.next() % 12);
    const auto amplitude = static_cast<uint8_t>(twos(-40 - static_cast<long>(random.next() % 30), 8));
    if (primary)
        items.insert(items.end(), {0xF8, run_length, replies, amplitude, static_cast<uint8_t>(run_length + 4),
                                   static_cast<uint8_t>(twos(-60 - static_cast<long>(random.next() % 20), 8))});
    else
        items.insert(items.end(), {0xE0, run_length, replies, amplitude});

    AstTargetAddress address{1, a.address};
    encoded(items, ast_dataitem_target_address_encode, address);

    AstAircraftId id;
    ast_dataitem_aircraft_id_init(&id);
    id.valid = 1;
    std::memcpy(id.chars, a.callsign, sizeof id.chars);
    encoded(items, ast_dataitem_aircraft_id_encode, id);

    // I048/250: two or three registers, each 56 bits of MB data and the BDS code.
    const unsigned registers = 2 + random.next() % 2;
    items.push_back(static_cast<uint8_t>(registers));
    void (*const layouts[])(uint8_t *, const Aircraft &) = {bds40, bds50, bds60};
    const uint8_t codes[] = {0x40, 0x50, 0x60};
    const unsigned first = registers == 3 ? 0 : random.next() % 2;  // 4,0 and 5,0, or 5,0 and 6,0
    for (unsigned r = 0; r < registers; ++r) {
        uint8_t mb[7] = {};
        layouts[first + r](mb, a);
        items.insert(items.end(), mb, mb + 7);
        items.push_back(codes[first + r]);
    }

    AstTrackNumber track{1, a.track, 1};
    encoded(items, ast_dataitem_track_number_encode, track);

    AstVelocityPolar velocity;
    ast_dataitem_velocity_polar_init(&velocity);
    velocity.valid = 1;
    velocity.speed = a.speed;
    velocity.heading = a.heading;
    encoded(items, ast_dataitem_velocity_polar_encode, velocity);

    // I048/170: confirmed SSR/Mode S track, climbing, descending or level.
    const uint8_t mode = a.vrate > 300 ? 1 : a.vrate < -300 ? 2 : 0;
    items.push_back(static_cast<uint8_t>(0x40 | mode << 1));

    Octets record(fspec, fspec + sizeof fspec);
    record.insert(record.end(), items.begin(), items.end());
    return record;
}

void start(Aircraft &a, unsigned n, Random &random) {
    const double range = random.uniform(8, 180), bearing = random.uniform(0, 2 * kPi);
    a.x = range * std::sin(bearing);
    a.y = range * std::cos(bearing);
    a.heading = random.uniform(0, 359.9);
    a.fl = random.next() % 3 ? 250 + 10 * (random.next() % 16) : random.uniform(30, 120);
    a.speed = a.fl > 200 ? random.uniform(420, 480) : random.uniform(180, 260);
    a.vrate = a.fl > 200 ? 0 : (random.next() % 2 ? -1 : 1) * random.uniform(600, 1800);
    a.squawk = (random.next() % 8) << 9 | (random.next() % 8) << 6 | (random.next() % 8) << 3 | (random.next() % 8);
    a.address = 0x300000 + random.next() % 0x4FFFF;
    static const char *const airlines[] = {"DLH", "BAW", "AFR", "KLM", "EZY", "RYR", "SWR", "AUA", "IBE", "SAS"};
    std::snprintf(a.callsign, sizeof a.callsign, "%s%u", airlines[random.next() % 10], 100 + random.next() % 8900);
    a.track = 1 + n;
}

void fly(Aircraft &a, double seconds) {
    const double nm = a.speed * seconds / 3600;
    a.x += nm * std::sin(a.heading * kPi / 180);
    a.y += nm * std::cos(a.heading * kPi / 180);
    a.fl += a.vrate * seconds / 60 / 100;
    if (a.fl < 20 || a.fl > 400) a.vrate = -a.vrate;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc < 2 || argc > 3) {
        std::fprintf(stderr, "usage: kovrel_make_recording OUT [MEGABYTES]\n");
        return 2;
    }
    const double megabytes = argc == 3 ? std::atof(argv[2]) : 56;
    std::FILE *out = std::fopen(argv[1], "wb");
    if (!out) {
        std::fprintf(stderr, "kovrel_make_recording: cannot write %s: %s\n", argv[1], std::strerror(errno));
        return 1;
    }
    Random random;
    std::vector<Aircraft> aircraft(kAircraft);
    for (unsigned i = 0; i < kAircraft; ++i) start(aircraft[i], i, random);

    const auto target = static_cast<uint64_t>(megabytes * 1e6);
    uint64_t written = 0, records = 0, blocks = 0;
    double tod = 8 * 3600;
    Octets block;
    while (written < target) {
        // One scan: the aircraft by sector of azimuth, one block per sector.
        std::vector<std::vector<const Aircraft *>> sectors(kSectors);
        for (const Aircraft &a : aircraft) {
            const double theta = std::fmod(std::atan2(a.x, a.y) * 180 / kPi + 360, 360);
            sectors[static_cast<unsigned>(theta / (360.0 / kSectors)) % kSectors].push_back(&a);
        }
        for (unsigned s = 0; s < kSectors; ++s) {
            const double seen = tod + kScan * s / kSectors;
            for (size_t i = 0; i < sectors[s].size(); i += AST_DATABLOCK_MAX_RECORDS) {
                block.assign({48, 0, 0});
                for (size_t j = i; j < sectors[s].size() && j < i + AST_DATABLOCK_MAX_RECORDS; ++j) {
                    const Octets r = report(*sectors[s][j], seen, random);
                    block.insert(block.end(), r.begin(), r.end());
                    ++records;
                }
                block[1] = static_cast<uint8_t>(block.size() >> 8);
                block[2] = static_cast<uint8_t>(block.size());
                if (std::fwrite(block.data(), 1, block.size(), out) != block.size()) {
                    std::fprintf(stderr, "kovrel_make_recording: writing %s failed: %s\n", argv[1],
                                 std::strerror(errno));
                    return 1;
                }
                written += block.size();
                ++blocks;
            }
        }
        tod += kScan;
        if (tod >= 86400) tod -= 86400;
        for (unsigned i = 0; i < kAircraft; ++i) {
            fly(aircraft[i], kScan);
            // Aircraft that leave the coverage are replaced by new ones.
            if (std::hypot(aircraft[i].x, aircraft[i].y) > 240) start(aircraft[i], i, random);
        }
    }
    if (std::fclose(out) != 0) {
        std::fprintf(stderr, "kovrel_make_recording: writing %s failed: %s\n", argv[1], std::strerror(errno));
        return 1;
    }
    std::printf("%s: %llu octets, %llu blocks, %llu records\n", argv[1], static_cast<unsigned long long>(written),
                static_cast<unsigned long long>(blocks), static_cast<unsigned long long>(records));
    return 0;
}
