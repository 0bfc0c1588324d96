// CAT062 records: the disassembled record and the fourteen accessors, on a
// full track, on tracks that leave the accessors to their fallbacks, and on
// records that are cut short.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

#include "kovrel/cat062.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::Octets;

namespace {

// FSPEC and items, given as (FRN, octets) in FRN order.
Octets record_of(const std::vector<std::pair<unsigned, Octets>> &items) {
    unsigned highest = 0;
    for (const auto &i : items) highest = i.first > highest ? i.first : highest;
    Octets o((highest - 1) / 7 + 1, 0);
    for (const auto &i : items) o[(i.first - 1) / 7] |= static_cast<uint8_t>(0x80u >> ((i.first - 1) % 7));
    for (size_t k = 0; k + 1 < o.size(); ++k) o[k] |= 0x01;
    for (const auto &i : items) o.insert(o.end(), i.second.begin(), i.second.end());
    return o;
}

AstDataRecord decoded(const Octets &o) {
    AstDataRecord r;
    ast_datarecord_decode(&r, o.data(), o.size(), 62, &AST_UAP_STANDARD);
    return r;
}

Octets text(const char *t) { return Octets(t, t + std::strlen(t)); }

const Octets kBds40 = {0xC4, 0x60, 0x00, 0x00, 0x00, 0x00, 0x00, 0x40};  // MCP/FCU 35008 ft

// A track as a tracker sends it.
const Octets kFull = record_of({
    {1, {0x19, 0x0C}},
    {3, {0x04}},
    {4, {0x5A, 0x12, 0x34}},
    {5, {0x00, 0x80, 0x00, 0x00, 0xFF, 0xC0, 0x00, 0x00}},
    {7, {0x00, 0x64, 0x00, 0x64}},
    {9, {0x0A, 0x3F}},
    {11, {0xC4, 0x3C, 0x65, 0xAC, 0x2C, 0xC3, 0x71, 0xCB, 0x38, 0x20, 0xA0, 0x64}},
    {12, {0x0F, 0xA0}},
    {13, {0x01, 0x40}},
    {17, {0x01, 0x40}},
    {20, {0xFF, 0xF0}},
    {21, {0x40, 'A', 'F', 'R', '1', '2', '3', ' '}},
    {34, {0x02, 0xAA}},
});

// No velocity, no measured level, no rate: the accessors fall back to the
// aircraft derived data, the barometric altitude and the flight plan.
const Octets kFallbacks = [] {
    Octets adr = {0x01, 0x05, 0x31, 0x10, 0x00, 0x10, 0x40, 0x00, 0x04, 0x00, 0x01};
    adr.insert(adr.end(), kBds40.begin(), kBds40.end());
    Octets plan = {0x40};
    const Octets cs = text("DLH4AB ");
    plan.insert(plan.end(), cs.begin(), cs.end());
    return record_of({{1, {0x19, 0x0D}}, {11, adr}, {13, {0x00}}, {19, {0x80, 0x64}}, {21, plan}});
}();

}  // namespace

TEST(Cat062Record, AccessorsOfAFullTrack) {
    const AstDataRecord r = decoded(kFull);
    ASSERT_EQ(r.valid, 1);
    ASSERT_EQ(r.length, kFull.size());

    AstDataSourceIdentifier sid;
    ast_datarecord_get_sacsic(&sid, &r);
    EXPECT_EQ(sid.valid, 1u);
    EXPECT_EQ(sid.sac, 25u);
    EXPECT_EQ(sid.sic, 12u);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_EQ(tod.valid, 1u);
    EXPECT_EQ(tod.hour * 3600 + tod.minute * 60 + tod.second, 46116u);
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &r);
    EXPECT_EQ(type.value, 13u);  // the track-end bit of I062/080
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &r);
    EXPECT_EQ(track.number, 4000u);
    AstMode3aCode squawk;
    ast_datarecord_get_squawk(&squawk, &r);
    EXPECT_EQ(squawk.code, 05077u);
    AstRecordCallsign cs;
    ast_datarecord_get_callsign(&cs, &r);
    EXPECT_STREQ(cs.callsign, "KLM123");  // downlinked wins over the flight plan's AFR123
    AstTargetAddress address;
    ast_datarecord_get_icaoaddr(&address, &r);
    EXPECT_EQ(address.address, 0x3C65ACu);
    AstRecordWgs84 pos;
    ast_datarecord_get_wgs84coord(&pos, &r);
    EXPECT_DOUBLE_EQ(pos.latitude, 45.0);
    EXPECT_DOUBLE_EQ(pos.longitude, -22.5);
    AstRecordValue v;
    ast_datarecord_get_flightlevel(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 8000.0);
    ast_datarecord_get_selaltitude(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 2500.0);
    ast_datarecord_get_heading(&v, &r);
    EXPECT_NEAR(v.value, 45.0, 1e-9);
    ast_datarecord_get_speed(&v, &r);
    EXPECT_NEAR(v.value, std::hypot(25.0, 25.0) * 3600.0 / 1852.0, 1e-9);
    AstVelocityCartesian vel;
    ast_datarecord_get_cartesianvel(&vel, &r);
    EXPECT_DOUBLE_EQ(vel.vy, 25.0);
    AstVerticalRate rate;
    ast_datarecord_get_vrate(&rate, &r);
    EXPECT_EQ(rate.valid, 1u);
    EXPECT_DOUBLE_EQ(rate.value, -100.0);
    AstRecordPolar polar;
    ast_datarecord_get_polarcoord(&polar, &r);
    EXPECT_EQ(polar.valid, 0u);

    AstDataRecordFuncs f;
    ast_datarecord_get_func(&f, 62);
    EXPECT_EQ(f.get_polarcoord, nullptr);
    EXPECT_EQ(f.get_vrate, ast_datarecord_062_get_vrate);
}

TEST(Cat062Record, AccessorFallbacks) {
    const AstDataRecord r = decoded(kFallbacks);
    ASSERT_EQ(r.valid, 1);
    AstRecordCallsign cs;
    ast_datarecord_get_callsign(&cs, &r);
    EXPECT_STREQ(cs.callsign, "DLH4AB");
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &r);
    EXPECT_EQ(type.value, 4u);
    AstRecordValue v;
    ast_datarecord_get_flightlevel(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 2500.0);  // I062/135
    ast_datarecord_get_selaltitude(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 35008.0);  // BDS 4,0 of subfield 25
    ast_datarecord_get_heading(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 90.0);  // track angle
    ast_datarecord_get_speed(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 225.0);  // ground speed
    AstVerticalRate rate;
    ast_datarecord_get_vrate(&rate, &r);
    EXPECT_DOUBLE_EQ(rate.value, 100.0);  // barometric vertical rate
    AstTargetAddress address;
    ast_datarecord_get_icaoaddr(&address, &r);
    EXPECT_EQ(address.valid, 0u);
    AstVelocityCartesian vel;
    ast_datarecord_get_cartesianvel(&vel, &r);
    EXPECT_EQ(vel.valid, 0u);
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &r);
    EXPECT_EQ(track.valid, 0u);

    // Target identification stands between the downlinked identification
    // and the flight plan; magnetic heading after the track angle.
    const Octets other = record_of({{1, {0x19, 0x0D}},
                                    {10, {0x00, 0x2C, 0xC3, 0x71, 0xCB, 0x38, 0x20}},
                                    {11, {0x20, 0x80, 0x00}},
                                    {21, {0x40, 'D', 'L', 'H', '4', 'A', 'B', ' '}}});
    const AstDataRecord o = decoded(other);
    ASSERT_EQ(o.valid, 1);
    ast_datarecord_get_callsign(&cs, &o);
    EXPECT_STREQ(cs.callsign, "KLM123");
    ast_datarecord_get_heading(&v, &o);
    EXPECT_DOUBLE_EQ(v.value, 180.0);
    ast_datarecord_get_speed(&v, &o);
    EXPECT_EQ(v.valid, 0u);
}

TEST(Cat062Record, Disassemble) {
    kovrel_test::LogCapture log;
    const AstDataRecord r = decoded(kFull);
    static AstRecord062 d;
    ast_datarecord_062_disassemble(&d, &r);
    ASSERT_EQ(d.valid, 1u);
    EXPECT_EQ(d.i010.sic, 12u);
    EXPECT_EQ(d.i015.value, 4u);
    EXPECT_EQ(d.i040.number, 4000u);
    EXPECT_EQ(d.i060.changed, 0);
    EXPECT_EQ(d.i080.tse, 1);
    EXPECT_EQ(d.i136.level, 8000.0);
    EXPECT_EQ(d.i220.raw, -16);
    EXPECT_EQ(d.i380.adr, 0x3C65ACu);
    EXPECT_STREQ(d.i390.cs, "AFR123 ");
    EXPECT_EQ(d.i105.valid, 1u);
    EXPECT_EQ(d.i130.valid + d.i340.valid + d.i500.valid + d.i510.valid, 0u);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to disassemble dataitem I062/REF."));

    // Another category's record, an invalid record: nothing.
    AstDataRecord cat48 = r;
    cat48.category = 48;
    ast_datarecord_062_disassemble(&d, &cat48);
    EXPECT_EQ(d.valid, 0u);
    EXPECT_EQ(d.i010.valid, 0u);
    AstDataRecord bad = r;
    bad.valid = 0;
    ast_datarecord_062_disassemble(&d, &bad);
    EXPECT_EQ(d.valid, 0u);
}

TEST(Cat062Record, CutShortRecords) {
    // I062/380 announcing ID with the data ending inside it: the record
    // stops there, the items before it stay readable.
    Octets cut = record_of({{1, {0x19, 0x0C}}, {11, {0x40, 0x2C, 0xC3, 0x71}}});
    AstDataRecord r = decoded(cut);
    EXPECT_EQ(r.valid, 0);
    EXPECT_EQ(r.item_count, 1u);
    AstDataSourceIdentifier sid;
    ast_datarecord_get_sacsic(&sid, &r);
    EXPECT_EQ(sid.valid, 0u);  // the generic accessor refuses an invalid record
    EXPECT_EQ(sid.sac, 0xFFFFFFFFu);
    ast_datarecord_062_get_sacsic(&sid, &r);
    EXPECT_EQ(sid.sac, 0xFFFFFFFFu);
    AstRecordCallsign cs;
    ast_datarecord_062_get_callsign(&cs, &r);
    EXPECT_EQ(cs.valid, 0);

    // Every prefix of a full track decodes into a record or refuses it,
    // never reading past the octets given.
    for (size_t n = 0; n < kFull.size(); ++n) {
        const Octets prefix(kFull.begin(), kFull.begin() + static_cast<long>(n));
        AstDataRecord p;
        ast_datarecord_decode(&p, prefix.data(), prefix.size(), 62, &AST_UAP_STANDARD);
        EXPECT_EQ(p.valid, 0) << n;
        static AstRecord062 d;
        ast_datarecord_062_disassemble(&d, &p);
        EXPECT_EQ(d.valid, 0u);
    }
}
