// CAT048 items served by the common items (summaries, capabilities, the
// structured decode and encode reached through the item dispatch), and the
// record level: disassemble, assemble and the record accessors.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "kovrel/cat048.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/enums.h"
#include "support/log_capture.h"
#include "support/record_walk.h"
#include "support/served.h"

using kovrel_test::expect_served;
using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

AstDataRecord decode48(const Octets &o) {
    AstDataRecord r;
    ast_datarecord_decode(&r, o.data(), o.size(), 48, &AST_UAP_STANDARD);
    return r;
}
// The record points into the octets: they must outlive it.
AstDataRecord decode48(Octets &&) = delete;

template <typename T>
bool all_zero(const T &v) {
    const auto *p = reinterpret_cast<const uint8_t *>(&v);
    for (size_t i = 0; i < sizeof v; ++i)
        if (p[i] != 0) return false;
    return true;
}

// What an accessor answers for r, written over garbage.
template <typename T>
T get(void (*accessor)(T *, const AstDataRecord *), const AstDataRecord &r) {
    T out;
    std::memset(&out, 0x5A, sizeof out);
    accessor(&out, &r);
    return out;
}

// True when the accessor writes all zero octets (padding too) over garbage;
// checked in place, as a copy need not keep the padding.
template <typename T>
bool nothing(void (*accessor)(T *, const AstDataRecord *), const AstDataRecord &r) {
    T out;
    std::memset(&out, 0x5A, sizeof out);
    accessor(&out, &r);
    return all_zero(out);
}

// Disassembles r into d filled with garbage first.
void disassemble(AstRecord048 &d, const AstDataRecord *r) {
    std::memset(&d, 0x5A, sizeof d);
    ast_datarecord_048_disassemble(&d, r);
}

std::vector<AstItemId> ids_of(const AstDataRecord &r) {
    std::vector<AstItemId> ids;
    for (uint64_t i = 0; i < r.item_count; ++i) ids.push_back(r.items[i].id);
    return ids;
}

// Mode S registers: 4,0 with an MCP/FCU selected altitude of 1500 x 16 ft,
// 5,0 with a true track of 256 x 90/512 degrees, 6,0 with a magnetic heading
// of 512 x 90/512 degrees; 5,0 without its track status bit.
const Octets kBds40 = {0xAE, 0xE0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x40};
const Octets kBds50 = {0x00, 0x12, 0x00, 0x00, 0x00, 0x00, 0x00, 0x50};
const Octets kBds60 = {0xA0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x60};
const Octets kBds50NoTrack = {0x00, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00, 0x50};
constexpr double kSelected = 1500 * 16.0;
constexpr double kTrueTrack = 256 * 90.0 / 512;
constexpr double kMagnetic = 512 * 90.0 / 512;

Octets cat(std::initializer_list<Octets> parts) {
    Octets o;
    for (const Octets &p : parts) o.insert(o.end(), p.begin(), p.end());
    return o;
}

// I048/250 with the given registers.
Octets mb(std::initializer_list<Octets> registers) {
    Octets o = {static_cast<uint8_t>(registers.size())};
    for (const Octets &r : registers) o.insert(o.end(), r.begin(), r.end());
    return o;
}

// A plot: 010, 140, 020, 040, 070, 090, 130, 220, 240, 250 (4,0 and 6,0), 120.
Octets plot() {
    return cat({{0xFF, 0xE1, 0x04},
                {0x19, 0x0D},                          // 010: SAC 25, SIC 13
                {0x35, 0x6B, 0x01},                    // 140
                {0xA0},                                // 020: TYP 5
                {0x4E, 0x20, 0x55, 0x00},              // 040
                {0x0A, 0x3F},                          // 070
                {0x01, 0x40},                          // 090: 320 quarter FL
                {0xE0, 0x1A, 0x08, 0xB5},              // 130: SRL, SRR, SAM
                {0x3C, 0x66, 0x01},                    // 220
                {0x20, 0xC3, 0x1C, 0x76, 0x08, 0x20},  // 240
                mb({kBds40, kBds60}),                  // 250
                {0x80, 0x00, 0x10}});                  // 120: CAL
}

// A track of every item with a member but 110 and 130.
Octets track() {
    return cat({{0xFD, 0xFF, 0xF3, 0xA0},
                {0x19, 0x01},                                // 010
                {0x58, 0x78, 0x65},                          // 140: 12:34:56.789
                {0x41, 0x80},                                // 020: TYP 2, TST
                {0x2A, 0x80, 0x40, 0x00},                    // 040: RHO 42.5 NM, THETA 90
                {0x0A, 0x3F},                                // 070
                {0x05, 0x78},                                // 090: FL 350
                {0x3C, 0x65, 0x4A},                          // 220
                {0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20},        // 240: "DLH123  "
                mb({kBds60, kBds50}),                        // 250
                {0x01, 0x23},                                // 161
                {0x01, 0x00, 0xFF, 0x00},                    // 042: X 256, Y -256
                {0x08, 0x00, 0x40, 0x00},                    // 200
                {0x40},                                      // 170: RAD 2
                {0x04, 0x08, 0x10, 0x20},                    // 210
                {0x2F, 0x50},                                // 030: codes 23, 40
                {0x08, 0x00},                                // 080
                {0x84, 0x40, 0x00, 0x00},                    // 100
                {0x20, 0x80},                                // 230
                {0x30, 0x80, 0x00, 0x00, 0x00, 0x00, 0x00},  // 260
                {0xA1, 0x23}});                              // 050: V, L, code 0443
}

// Only items that have encoders: 010, 140, 020, 040, 070, 090, 220, 240,
// 161, 200 and 050.
Octets encodable() {
    return cat({{0xFD, 0xD5, 0x01, 0x20},
                {0x19, 0x0D},
                {0x35, 0x6B, 0x01},
                {0x41, 0x80},
                {0x4E, 0x20, 0x55, 0x00},
                {0x0A, 0x3F},
                {0x01, 0x40},
                {0x3C, 0x66, 0x01},
                {0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20},
                {0x0F, 0x01},
                {0x07, 0xD0, 0x40, 0x00},
                {0xA1, 0x23}});
}

// Assembles into a buffer of `size` octets followed by a canary, and
// expects the canary untouched.
AstDataRecord assemble_guarded(const AstRecord048 &in, size_t size, Octets *written) {
    Octets buffer(size + 16, 0xA5);
    AstDataRecord out;
    ast_datarecord_048_assemble(&out, buffer.data(), size, &in, &AST_UAP_STANDARD);
    for (size_t i = size; i < buffer.size(); ++i) EXPECT_EQ(buffer[i], 0xA5) << "octet " << i << " past the buffer";
    if (written) written->assign(buffer.begin(), buffer.begin() + static_cast<ptrdiff_t>(out.valid ? out.length : 0));
    return out;
}

}  // namespace

TEST(Cat048, CommonItemsOfATrackReport) {
    const Octets track = {0xcd, 0xf5, 0x31, 0x06,              // FSPEC
                          0x19, 0x01,                          // 010
                          0x58, 0x78, 0x65,                    // 140
                          0x0a, 0x3f,                          // 070
                          0x05, 0x78,                          // 090
                          0x3c, 0x65, 0x4a,                    // 220
                          0x10, 0xc2, 0x31, 0xcb, 0x38, 0x20,  // 240
                          0x02,                                // 250: BDS 2,0 and 6,0
                          0x20, 0x10, 0xc2, 0x31, 0xcb, 0x38, 0x20, 0x20,
                          0x80, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x60,
                          0x01, 0x23,                          // 161
                          0x08, 0x00, 0x40, 0x00,              // 200
                          0x08, 0x00,                          // 080
                          0x84, 0x40, 0x00, 0x00,              // 100
                          0x03, 0xab, 0xcd,                    // SPF
                          0x02, 0x00};                         // REF
    AstDataRecord r;
    ast_datarecord_decode(&r, track.data(), track.size(), 48, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    expect_served(r, {{48010, "SAC:025 SIC:001", 0xf, sizeof(AstDataSourceIdentifier)},
                      {48140, "TOD:12:34:56.789", 0xf, sizeof(AstTimeOfDay)},
                      {48070, "MODE_3/A:5077", 0xf, sizeof(AstMode3aCode)},
                      {48090, "MODE_C:0350", 0xf, sizeof(AstModeCCode)},
                      {48220, "ADDR:3C654A", 0xf, sizeof(AstTargetAddress)},
                      {48240, "ACID:DLH123  ", 0xf, sizeof(AstAircraftId)},
                      {48250, "BDS:2,0 6,0", 0x7, sizeof(AstModesMb)},
                      {48161, "TRACK_NUM:0291", 0xb, sizeof(AstTrackNumber)},  // no detail view
                      {48200, "SPD:450.00 HDG:90.00", 0xf, sizeof(AstVelocityPolar)},
                      {48080, "QTY:aBCD", 0x7, sizeof(AstMode3aConfidence)},
                      {48100, "CODE:5000 QTY:ABCD NOT_VALIDATED", 0x7, sizeof(AstModeCConfidence)},
                      {48999, "SPECIAL_PURPOSE", 0x3, sizeof(AstSpecialPurposeField)},
                      {48998, "RESERVED_EXPANSION", 0x3, sizeof(AstReservedExpansionField)}});

    // The decoded structures point into the record.
    AstModesMb mb;
    AstDataItemValue v;
    ast_dataitem_decode(&v, &mb, sizeof mb, &r.items[6]);
    EXPECT_TRUE(mb.rep == 2 && mb.bds[1].id == 0x60 && mb.bds[1].data == r.items[6].data + 9);
    AstTrackNumber number;
    ast_dataitem_decode(&v, &number, sizeof number, &r.items[7]);
    EXPECT_TRUE(number.number == 0x123 && number.twelve_bit == 1);
    AstSpecialPurposeField spf;
    ast_dataitem_decode(&v, &spf, sizeof spf, &r.items[11]);
    EXPECT_TRUE(spf.length == 2 && spf.data == r.items[11].data + 1);
}

TEST(Cat048Record, DisassemblesPlotsAndTracksIntoTheirMembers) {
    const Octets track_wire = track(), plot_wire = plot();
    const AstDataRecord t = decode48(track_wire), p = decode48(plot_wire);
    ASSERT_EQ(t.valid, 1);
    ASSERT_EQ(p.valid, 1);
    AstRecord048 d;
    disassemble(d, &t);
    const uint32_t filled[] = {d.valid,       d.i010.valid, d.i020.valid, d.i030.valid, d.i040.valid, d.i042.valid,
                               d.i050.valid,  d.i070.valid, d.i080.valid, d.i090.valid, d.i100.valid, d.i140.valid,
                               d.i161.valid,  d.i170.valid, d.i200.valid, d.i210.valid, d.i220.valid, d.i230.valid,
                               d.i240.valid,  d.i250.valid, d.i260.valid};
    for (uint32_t valid : filled) EXPECT_EQ(valid, 1u);
    // Each member holds its own item (I048/050 after a one-octet valid flag).
    EXPECT_TRUE(d.i010.sic == 1 && d.i020.tst == 1 && d.i042.y == -256 && d.i161.number == 0x123);
    EXPECT_TRUE(d.i030.codes[1] == 0x50 >> 1 && d.i250.bds[1].id == 0x50 && d.i050.v == 1 && d.i050.code == 0443);
    EXPECT_DOUBLE_EQ(d.i040.rho, 0x2A80 / 256.0);
    EXPECT_TRUE(all_zero(d.i110) && all_zero(d.i130));

    // The plot's I048/120 has no member: logged, skipped, the rest decoded.
    LogCapture log;
    disassemble(d, &p);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to disassemble dataitem I048/120."));
    EXPECT_EQ(log.size(), 1u);
    EXPECT_TRUE(d.valid == 1 && d.i130.srr == 0x08 && d.i250.bds[0].id == 0x40);
    EXPECT_TRUE(all_zero(d.i161) && all_zero(d.i170) && all_zero(d.i050) && all_zero(d.i260));
}

TEST(Cat048Record, RefusesRecordsItCannotDisassemble) {
    AstRecord048 d;
    Octets truncated = encodable();
    truncated.resize(12);  // the FSPEC announces I048/040 that is not there
    AstDataRecord r = decode48(truncated);
    ASSERT_TRUE(r.valid == 0 && r.item_count > 0);
    disassemble(d, &r);
    EXPECT_TRUE(all_zero(d));
    const Octets marker = {0xE0, 0x19, 0x0D, 0x01, 0x35, 0x6B, 0x01};  // a CAT034 record
    ast_datarecord_decode(&r, marker.data(), marker.size(), 34, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    disassemble(d, &r);
    EXPECT_TRUE(all_zero(d));
    disassemble(d, nullptr);
    EXPECT_TRUE(all_zero(d));

    // A valid record without items: valid and nothing else.
    const Octets wire = encodable();
    r = decode48(wire);
    r.item_count = 0;
    disassemble(d, &r);
    EXPECT_EQ(d.valid, 1u);
    d.valid = 0;
    EXPECT_TRUE(all_zero(d));
}

TEST(Cat048Record, AssembleReproducesTheRecord) {
    const Octets wire = encodable();
    const AstDataRecord r = decode48(wire);
    ASSERT_EQ(r.valid, 1);
    AstRecord048 d;
    ast_datarecord_048_disassemble(&d, &r);
    Octets written;
    AstDataRecord out = assemble_guarded(d, wire.size(), &written);
    ASSERT_EQ(out.valid, 1);
    EXPECT_EQ(out.category, 48u);
    EXPECT_EQ(written, wire);
    EXPECT_EQ(assemble_guarded(d, wire.size() - 1, nullptr).valid, 0);

    // Members whose valid flag is not 1 are left out, the others stay.
    d.i161.valid = 0;
    d.i050.valid = 0;
    out = assemble_guarded(d, wire.size(), &written);
    ASSERT_EQ(out.valid, 1);
    EXPECT_EQ(out.length, wire.size() - 2 - 2 - 2);  // two items, and the FSPEC octets only 050 needed
    std::vector<AstItemId> expected = ids_of(r);
    std::erase(expected, 48161u);
    std::erase(expected, 48050u);
    EXPECT_EQ(ids_of(decode48(written)), expected);
}

TEST(Cat048Record, AssembleFailsOnWhatItCannotWrite) {
    AstRecord048 d{};
    d.valid = 1;
    d.i010 = AstDataSourceIdentifier{1, 300, 1};
    d.i161 = AstTrackNumber{1, 4095, 1};
    EXPECT_EQ(assemble_guarded(d, 8, nullptr).valid, 0);
    d.i010.sac = 30;
    EXPECT_EQ(assemble_guarded(d, 8, nullptr).valid, 1);
    d.i161.number = 4096;  // beyond the 12-bit form
    EXPECT_EQ(assemble_guarded(d, 8, nullptr).valid, 0);

    // An item without an encoder makes the record invalid; it is not dropped.
    const Octets wire = track();
    const AstDataRecord r = decode48(wire);
    ast_datarecord_048_disassemble(&d, &r);
    LogCapture log;
    EXPECT_EQ(assemble_guarded(d, 256, nullptr).valid, 0);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to encode dataitem I048/250."));

    AstRecord048 empty{};
    empty.valid = 1;
    EXPECT_EQ(assemble_guarded(empty, 64, nullptr).valid, 0);
    AstDataRecord out;
    uint8_t buffer[64];
    ast_datarecord_048_assemble(&out, buffer, sizeof buffer, nullptr, &AST_UAP_STANDARD);
    EXPECT_EQ(out.valid, 0);
    ast_datarecord_048_assemble(&out, buffer, sizeof buffer, &d, nullptr);
    EXPECT_EQ(out.valid, 0);
}

TEST(Cat048Record, Accessors) {
    const Octets track_wire = track(), plot_wire = plot();
    const AstDataRecord t = decode48(track_wire);
    AstDataRecord p = decode48(plot_wire);
    const AstDataSourceIdentifier sacsic = get(ast_datarecord_048_get_sacsic, t);
    EXPECT_TRUE(sacsic.sac == 25 && sacsic.sic == 1);
    EXPECT_EQ(get(ast_datarecord_048_get_timeofday, t).raw, 0x587865u);
    EXPECT_STREQ(ast_msgtype_to_str(get(ast_datarecord_048_get_msgtype, t).value), "Track");
    EXPECT_STREQ(ast_msgtype_to_str(get(ast_datarecord_048_get_msgtype, p).value), "Plot");
    EXPECT_EQ(get(ast_datarecord_048_get_tracknum, t).number, 0x123u);
    EXPECT_TRUE(nothing(ast_datarecord_048_get_tracknum, p));
    EXPECT_EQ(get(ast_datarecord_048_get_squawk, t).code, 05077u);
    EXPECT_STREQ(get(ast_datarecord_048_get_callsign, t).callsign, "DLH123  ");
    EXPECT_EQ(get(ast_datarecord_048_get_icaoaddr, t).address, 0x3C654Au);
    EXPECT_DOUBLE_EQ(get(ast_datarecord_048_get_flightlevel, t).value, 0x578 * 25.0);
    EXPECT_DOUBLE_EQ(get(ast_datarecord_048_get_selaltitude, p).value, kSelected);
    EXPECT_TRUE(nothing(ast_datarecord_048_get_selaltitude, t));  // no BDS 4,0
    const AstRecordPolar polar = get(ast_datarecord_048_get_polarcoord, t);
    EXPECT_DOUBLE_EQ(polar.rho, 0x2A80 / 256.0);
    EXPECT_DOUBLE_EQ(polar.theta, 0x4000 * 360.0 / 65536);

    // The plot answers every accessor but the track number; once without
    // items, and once invalid, none does (SAC/SIC all ones). A record
    // without items is still a plot, an invalid one has no type.
    for (int round = 0; round < 3; ++round) {
        const uint32_t found = round == 0;
        if (round == 1) p.item_count = 0;
        if (round == 2) p.valid = 0;
        const AstDataSourceIdentifier ss = get(ast_datarecord_048_get_sacsic, p);
        EXPECT_TRUE(ss.valid == found && ss.sac == (found ? 25 : ~0u) && ss.sic == (found ? 13 : ~0u)) << round;
        const auto answers = [&](auto accessor) {
            EXPECT_TRUE(get(accessor, p).valid == found && nothing(accessor, p) == !found) << round;
        };
        answers(ast_datarecord_048_get_timeofday), answers(ast_datarecord_048_get_squawk);
        answers(ast_datarecord_048_get_callsign), answers(ast_datarecord_048_get_icaoaddr);
        answers(ast_datarecord_048_get_polarcoord), answers(ast_datarecord_048_get_flightlevel);
        answers(ast_datarecord_048_get_selaltitude), answers(ast_datarecord_048_get_heading);
        const AstRecordMsgType type = get(ast_datarecord_048_get_msgtype, p);
        EXPECT_TRUE(type.valid == (round < 2) && type.value == (round < 2 ? 3u : 0u)) << round;
    }
}

TEST(Cat048Record, HeadingPrefersTheTrueTrackOfBds50) {
    struct Case {
        std::initializer_list<Octets> registers;
        double heading;  // 0: none
    };
    const Case cases[] = {
        {{kBds60, kBds50}, kTrueTrack}, {{kBds50, kBds60}, kTrueTrack}, {{kBds60}, kMagnetic},
        {{kBds50}, kTrueTrack},         {{kBds50NoTrack, kBds60}, kMagnetic},  // 5,0 without a track angle
        {{kBds50NoTrack}, 0.0},         {{kBds40}, 0.0},
    };
    for (const Case &c : cases) {
        const Octets wire = cat({{0x01, 0x20}, mb(c.registers)});  // FRN 10 only: I048/250
        const AstDataRecord r = decode48(wire);
        ASSERT_EQ(r.valid, 1);
        const AstRecordValue heading = get(ast_datarecord_048_get_heading, r);
        EXPECT_EQ(heading.valid, c.heading != 0.0 ? 1u : 0u);
        EXPECT_DOUBLE_EQ(heading.value, c.heading);
    }
}

TEST(Cat048Record, FlightLevelFallsBackToTheHeightOf110) {
    // FRN 6 (090) and 19 (110); 110 raw 0x3FF0 is -16 x 25 ft, the two top
    // bits of its first octet are not part of the height.
    const Octets both = {0x05, 0x01, 0x08, 0x01, 0x40, 0xFF, 0xF0};
    AstDataRecord r = decode48(both);
    ASSERT_EQ(r.valid, 1);
    EXPECT_DOUBLE_EQ(get(ast_datarecord_048_get_flightlevel, r).value, 0x140 * 25.0);
    r.items[0].length = 3;  // an I048/090 that does not decode
    AstRecordValue v = get(ast_datarecord_048_get_flightlevel, r);
    EXPECT_EQ(v.valid, 1u);
    EXPECT_DOUBLE_EQ(v.value, -16 * 25.0);

    const Octets height_only = {0x01, 0x01, 0x08, 0x00, 0x64};
    v = get(ast_datarecord_048_get_flightlevel, decode48(height_only));
    EXPECT_EQ(v.valid, 1u);
    EXPECT_DOUBLE_EQ(v.value, 100 * 25.0);
}

TEST(Cat048Record, GenericAccessorsAnswerForCat048) {
    AstDataRecordFuncs f;
    ast_datarecord_get_func(&f, 48);
    const AstDataRecordFuncs expected = {
        ast_datarecord_048_get_sacsic,      ast_datarecord_048_get_timeofday, ast_datarecord_048_get_msgtype,
        ast_datarecord_048_get_tracknum,    ast_datarecord_048_get_squawk,    ast_datarecord_048_get_callsign,
        ast_datarecord_048_get_icaoaddr,    nullptr,                          ast_datarecord_048_get_flightlevel,
        ast_datarecord_048_get_selaltitude, ast_datarecord_048_get_polarcoord, ast_datarecord_048_get_heading,
        nullptr,                            nullptr,                          nullptr};
    EXPECT_EQ(std::memcmp(&f, &expected, sizeof f), 0);

    const Octets wire = track();
    const AstDataRecord r = decode48(wire);
    EXPECT_EQ(get(ast_datarecord_get_sacsic, r).sac, 25u);
    EXPECT_STREQ(get(ast_datarecord_get_callsign, r).callsign, "DLH123");  // padding cut
    EXPECT_DOUBLE_EQ(get(ast_datarecord_get_heading, r).value, kTrueTrack);
    EXPECT_TRUE(nothing(ast_datarecord_get_wgs84coord, r));  // not a CAT048 fact
}
