// CAT010's own items from their wire octets: summaries, named fields,
// spans that must not decode, encoders (round trips and refusals), and the
// record: accessors, disassembly and assembly.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "kovrel/cat010.h"
#include "kovrel/datarecord.h"
#include "kovrel/fields.h"
#include "kovrel/uap.h"
#include "support/field_leaves.h"
#include "support/record_walk.h"

using kovrel_test::Octets;

namespace {

AstDataItem span(const Octets &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

std::string summary(const AstDataItem &item, size_t size = 512) {
    std::vector<char> buf(size + 1, '#');
    ast_dataitem_get_summary(buf.data(), size, &item);
    EXPECT_EQ(buf[size], '#') << item.id;  // nothing past the size
    return size ? std::string(buf.data()) : std::string();
}

std::string json(const AstDataItem &item) {
    std::vector<char> buf(16384, '#');
    ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    return buf.data();
}

struct Case {
    AstItemId id;
    Octets wire;
    const char *summary;
    const char *json;
};

// Values by hand from the layouts: 1 m and 360/2^16 deg (040), 1 m (042),
// 1/16 m/s (202), 1/16 m/s2 (210), 360/128 deg (270), 0.15 deg (280), 1/4 m
// (500).
const Case kCases[] = {
    {10020, {0x20}, "TYP:MODE_S_MLAT", R"({"typ":1,"dcr":0,"chn":0,"gbs":0,"crt":0})"},
    {10020, {0xFF, 0xFF, 0x80}, "TYP:OTHER DCR CHAIN2 GBS CRT SIM TST RAB HELICOPTER SPI",
     R"({"typ":7,"dcr":1,"chn":1,"gbs":1,"crt":1,"sim":1,"tst":1,"rab":1,"lop":3,"tot":3,"spi":1})"},
    {10020, {0x61, 0x0C}, "TYP:PSR LOOP_START GROUND_VEHICLE",
     R"({"typ":3,"dcr":0,"chn":0,"gbs":0,"crt":0,"sim":0,"tst":0,"rab":0,"lop":1,"tot":2})"},
    {10040, {0x03, 0xE8, 0x40, 0x00}, "RHO:1000 THETA:90.00", R"({"rho":1000,"theta":90})"},
    {10040, {0xFF, 0xFF, 0xFF, 0xFF}, "RHO:65535 THETA:359.99",
     R"({"rho":65535,"theta":359.9945068359375})"},
    {10042, {0xFC, 0x18, 0x00, 0x64}, "X:-1000 Y:100 LSB:M", R"({"x":-1000,"y":100})"},
    {10131, {0xC8}, "PAM:200", R"({"pam":200})"},
    {10170, {0x7E}, "TRACK:CONFIRMED LAST EXTRAPOLATED MANOEUVRE SMOOTHED",
     R"({"cnf":0,"tre":1,"cst":3,"mah":1,"tcc":1,"sth":1})"},
    {10170, {0x81, 0x5B, 0x80}, "TRACK:TENTATIVE TAKE_OFF DOUBTFUL MERGED GHOST",
     R"({"cnf":1,"tre":0,"cst":0,"mah":0,"tcc":0,"sth":0,"tom":1,"dou":3,"mrs":1,"gho":1})"},
    {10170, {0x01, 0xF6}, "TRACK:CONFIRMED OTHER_MOVEMENT DOUBTFUL SPLIT",
     R"({"cnf":0,"tre":0,"cst":0,"mah":0,"tcc":0,"sth":0,"tom":3,"dou":6,"mrs":3})"},
    {10202, {0x00, 0x28, 0xFF, 0xF0}, "VX:2.50 VY:-1.00 LSB:M/S", R"({"vx":2.5,"vy":-1})"},
    {10210, {0x80, 0x7F}, "AX:-8.00 AY:7.94 LSB:M/S2", R"({"ax":-8,"ay":7.9375})"},
    {10270, {0x4C}, "LEN:38", R"({"length":38})"},
    {10270, {0x4D, 0x41, 0x22}, "LEN:38 ORI:90.0 WID:17", R"({"length":38,"orientation":90,"width":17})"},
    {10280, {0x02, 0x05, 0xFB, 0x80, 0x7F}, "PRESENCES:2",
     R"({"presences":[{"drho":5,"dtheta":-0.75},{"drho":-128,"dtheta":19.05}]})"},
    {10300, {0x10}, "VFI:FOLLOW_ME", R"({"vfi":16})"},
    {10300, {0x11}, "VFI:17", R"({"vfi":17})"},
    {10310, {0x84}, "MSG:EMERGENCY IN_TROUBLE", R"({"trb":1,"msg":4})"},
    {10310, {0x00}, "MSG:0", R"({"trb":0,"msg":0})"},
    {10500, {0x0C, 0xFF, 0xFF, 0xFC}, "SX:3.00 SY:63.75 COV:-1.00", R"({"devx":3,"devy":63.75,"covxy":-1})"},
    {10550, {0x00}, "STATUS:OPERATIONAL", R"({"nogo":0,"ovl":0,"tsv":0,"div":0,"ttf":0})"},
    {10550, {0xBC}, "STATUS:NOGO OVERLOAD TIME_SOURCE_INVALID DIVERSITY_DEGRADED TEST_TARGET_FAILURE",
     R"({"nogo":2,"ovl":1,"tsv":1,"div":1,"ttf":1})"},
    {10550, {0xC0}, "STATUS:UNDEFINED", R"({"nogo":3,"ovl":0,"tsv":0,"div":0,"ttf":0})"},
};

}  // namespace

TEST(Cat010Items, SummariesAndFieldsFromTheWire) {
    for (const Case &c : kCases) {
        SCOPED_TRACE(testing::Message() << c.id << " " << c.summary);
        const AstDataItem item = span(c.wire, c.id);
        EXPECT_EQ(summary(item), c.summary);
        EXPECT_EQ(json(item), c.json);
        // The detail view is a table, cut to any size without overrun.
        char html[8192];
        ast_dataitem_get_detail_html(html, sizeof html, &item);
        EXPECT_NE(std::strstr(html, "<table"), nullptr);
        for (size_t small : {0u, 1u, 9u, 40u}) {
            std::vector<char> buf(small + 1, '#');
            ast_dataitem_get_detail_html(buf.data(), small, &item);
            EXPECT_EQ(buf[small], '#');
            if (small) EXPECT_LT(std::strlen(buf.data()), small);
        }
        // Cut summaries end inside the buffer.
        EXPECT_EQ(summary(item, 5), std::string(c.summary).substr(0, 4));
        EXPECT_EQ(summary(item, 0), "");
    }
}

TEST(Cat010Items, SpansThatDoNotDecodeGiveEmptyTexts) {
    const struct {
        AstItemId id;
        Octets wire;
    } bad[] = {
        {10040, {0x00, 0x01, 0x02}}, {10042, {0x00, 0x01, 0x02, 0x03, 0x04}}, {10131, {}},
        {10131, {0x01, 0x02}},       {10202, {0x00}},                         {10210, {0x01}},
        {10280, {0x02, 0x01, 0x02}},  // two presences announced, one there
        {10280, {0x00, 0x01}},        // no presence but an octet left over
        {10300, {0x01, 0x02}},       {10310, {}},                             {10500, {0x01, 0x02, 0x03}},
        {10550, {0x00, 0x00}},       {10020, {}},                             {10170, {}},
        {10270, {}},
    };
    for (const auto &b : bad) {
        SCOPED_TRACE(b.id);
        AstDataItem item = span(b.wire, b.id);
        if (b.wire.empty()) item.data = nullptr;
        EXPECT_EQ(summary(item), "");
        char html[256] = "#";
        ast_dataitem_get_detail_html(html, sizeof html, &item);
        EXPECT_STREQ(html, "");
        alignas(16) unsigned char storage[8192];
        AstDataItemValue v;
        ast_dataitem_decode(&v, storage, sizeof storage, &item);
        EXPECT_EQ(v.valid, 0);
    }
    // The right octets under another identifier, or a span marked invalid.
    const Octets four = {0x01, 0x02, 0x03, 0x04};
    AstItem010_040 polar;
    AstDataItem other = span(four, 10042);
    ast_dataitem_010_040_decode(&polar, &other);
    EXPECT_EQ(polar.valid, 0u);
    EXPECT_EQ(polar.theta_lsb, 360.0 / 65536.0);
    AstDataItem invalid = span(four, 10040);
    invalid.valid = 0;
    ast_dataitem_010_040_decode(&polar, &invalid);
    EXPECT_EQ(polar.valid, 0u);
    AstItem010_202 velocity;
    ast_dataitem_010_202_decode(&velocity, nullptr);
    EXPECT_EQ(velocity.valid, 0u);
    EXPECT_EQ(velocity.vx_lsb, 0.0625);
}

// Decoded, then encoded from the structure: the same octets.
TEST(Cat010Items, EncodersWriteBackTheWire) {
    for (const Case &c : kCases) {
        SCOPED_TRACE(testing::Message() << c.id << " " << c.summary);
        const AstDataItem item = span(c.wire, c.id);
        alignas(16) unsigned char storage[8192];
        AstDataItemValue v;
        ast_dataitem_decode(&v, storage, sizeof storage, &item);
        ASSERT_EQ(v.valid, 1);
        uint8_t out[600];
        AstDataItem written;
        ast_dataitem_encode(&written, out, sizeof out, &v);
        ASSERT_EQ(written.valid, 1);
        EXPECT_EQ(Octets(out, out + written.length), c.wire);
        // One octet short: nothing written.
        std::memset(out, 0xEE, sizeof out);
        ast_dataitem_encode(&written, out, c.wire.size() - 1, &v);
        EXPECT_EQ(written.valid, 0);
        EXPECT_EQ(written.length, 0u);
        EXPECT_EQ(out[0], 0xEE);
    }
    // The WGS-84 position at 180/2^31: decoded values come back exactly.
    const Octets wgs = {0x21, 0x5C, 0x5B, 0x6D, 0xFA, 0xAD, 0x01, 0x74};
    AstPositionWgs84 p;
    const AstDataItem pos = span(wgs, 10041);
    ast_dataitem_position_wgs84_decode(&p, &pos);
    ASSERT_EQ(p.valid, 1u);
    uint8_t out[8];
    AstDataItem written;
    ast_dataitem_010_041_encode(&written, out, sizeof out, &p);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Octets(out, out + 8), wgs);
}

TEST(Cat010Items, EncodersRefuseWhatTheWireCannotHold) {
    uint8_t out[16];
    AstDataItem w;
    AstItem010_020 d;
    ast_dataitem_010_020_init(&d);
    d.valid = 1;
    d.tot = 4;
    ast_dataitem_010_020_encode(&w, out, sizeof out, &d);
    EXPECT_EQ(w.valid, 0);
    d.tot = 0;
    d.spi = 1;
    d.ext2_present = 1;  // octet 3 brings octet 2 along
    ast_dataitem_010_020_encode(&w, out, sizeof out, &d);
    ASSERT_EQ(w.valid, 1);
    EXPECT_EQ(Octets(out, out + w.length), (Octets{0x01, 0x01, 0x80}));
    d.valid = 0;
    ast_dataitem_010_020_encode(&w, out, sizeof out, &d);
    EXPECT_EQ(w.valid, 0);

    AstItem010_040 polar;
    ast_dataitem_010_040_init(&polar);
    polar.valid = 1;
    polar.rho_raw = 65536;
    ast_dataitem_010_040_encode(&w, out, sizeof out, &polar);
    EXPECT_EQ(w.valid, 0);

    AstItem010_042 xy;
    ast_dataitem_010_042_init(&xy);
    xy.valid = 1;
    xy.y_raw = -32769;
    ast_dataitem_010_042_encode(&w, out, sizeof out, &xy);
    EXPECT_EQ(w.valid, 0);
    xy.y_raw = -32768;
    ast_dataitem_010_042_encode(&w, out, sizeof out, &xy);
    EXPECT_EQ(Octets(out, out + w.length), (Octets{0x00, 0x00, 0x80, 0x00}));

    AstItem010_210 acc;
    ast_dataitem_010_210_init(&acc);
    acc.valid = 1;
    acc.ax_raw = 128;
    ast_dataitem_010_210_encode(&w, out, sizeof out, &acc);
    EXPECT_EQ(w.valid, 0);

    AstItem010_270 size;
    ast_dataitem_010_270_init(&size);
    size.valid = 1;
    size.width_present = 1;  // a width needs the orientation octet
    ast_dataitem_010_270_encode(&w, out, sizeof out, &size);
    EXPECT_EQ(w.valid, 0);
    size.length = 128;
    size.width_present = 0;
    ast_dataitem_010_270_encode(&w, out, sizeof out, &size);
    EXPECT_EQ(w.valid, 0);

    auto presence = std::make_unique<AstItem010_280>();
    ast_dataitem_010_280_init(presence.get());
    presence->valid = 1;
    ast_dataitem_010_280_encode(&w, out, sizeof out, presence.get());  // no presence
    EXPECT_EQ(w.valid, 0);
    presence->count = 1;
    presence->presences[0].dtheta_raw = -129;
    ast_dataitem_010_280_encode(&w, out, sizeof out, presence.get());
    EXPECT_EQ(w.valid, 0);

    AstItem010_310 msg{1, 0, 128};
    ast_dataitem_010_310_encode(&w, out, sizeof out, &msg);
    EXPECT_EQ(w.valid, 0);
    AstItem010_300 fleet{1, 256};
    ast_dataitem_010_300_encode(&w, out, sizeof out, &fleet);
    EXPECT_EQ(w.valid, 0);
    AstItem010_550 status{1, 4, 0, 0, 0, 0};
    ast_dataitem_010_550_encode(&w, out, sizeof out, &status);
    EXPECT_EQ(w.valid, 0);
    AstItem010_131 amp{1, 256};
    ast_dataitem_010_131_encode(&w, out, sizeof out, &amp);
    EXPECT_EQ(w.valid, 0);

    AstPositionWgs84 p;
    ast_dataitem_position_wgs84_init(&p);
    p.valid = 1;
    p.longitude = 180.0;  // 2^31 LSB does not fit
    ast_dataitem_010_041_encode(&w, out, sizeof out, &p);
    EXPECT_EQ(w.valid, 0);
    p.longitude = -180.0;
    p.latitude = 90.0;
    ast_dataitem_010_041_encode(&w, out, sizeof out, &p);
    ASSERT_EQ(w.valid, 1);
    EXPECT_EQ(Octets(out, out + 8), (Octets{0x40, 0, 0, 0, 0x80, 0, 0, 0}));
    p.latitude = 90.001;
    ast_dataitem_010_041_encode(&w, out, sizeof out, &p);
    EXPECT_EQ(w.valid, 0);
}

// Wire -> fields -> a fresh structure set field by field (array elements
// by their positions) -> wire.
TEST(Cat010Items, EncodersRoundTripThroughTheFields) {
    for (const Case &c : kCases) {
        SCOPED_TRACE(testing::Message() << c.id << " " << c.summary);
        std::string failed;
        EXPECT_EQ(kovrel_test::encode_through_fields(span(c.wire, c.id), &failed), c.wire) << failed;
        EXPECT_EQ(failed, "");
    }
}

namespace {

// A CAT010 target report of every item with an accessor, and its octets.
const Octets kReport = {
    0xFF, 0xFF, 0xE1, 0x80,                          // FSPEC: FRN 1-17, 22
    0x19, 0x1E,                                      // 010 SAC 25 SIC 30
    0x01,                                            // 000 target report
    0x00,                                            // 020 SSR mlat
    0x00, 0x96, 0x00,                                // 140 00:05:00
    0x10, 0x00, 0x00, 0x00, 0xF0, 0x00, 0x00, 0x00,  // 041 22.5 N, 22.5 W
    0x07, 0x3C, 0x40, 0x00,                          // 040 1852 m, 90 deg
    0x00, 0x64, 0xFF, 0x9C,                          // 042 100, -100 m
    0x00, 0x80, 0x80, 0x00,                          // 200 28.125 kt, 180 deg
    0x00, 0x30, 0x00, 0x40,                          // 202 3, 4 m/s
    0x01, 0x23,                                      // 161 291
    0x00,                                            // 170 confirmed
    0x02, 0x22,                                      // 060 1042
    0x4B, 0x1A, 0x22,                                // 220
    0x00, 0x4D, 0x74, 0xB9, 0xD0, 0xB8, 0x20,        // 245 SWR94K
    0x01, 0x87, 0xD4, 0x3E, 0xB0, 0xA8, 0x01, 0x87, 0x40,  // 250 BDS 4,0: MCP 4000 ft
    0x0A,                                            // 300 tug
    0x00, 0x08,                                      // 090 FL 2
    0x0C, 0x0A, 0x00, 0x00,                          // 500
};

AstDataRecord decoded(const Octets &o) {
    AstDataRecord r;
    ast_datarecord_decode(&r, o.data(), o.size(), 10, &AST_UAP_STANDARD);
    return r;
}

}  // namespace

TEST(Cat010Record, AccessorsReadTheirItems) {
    const AstDataRecord r = decoded(kReport);
    ASSERT_EQ(r.valid, 1);
    ASSERT_EQ(r.length, kReport.size());
    AstDataSourceIdentifier sid;
    ast_datarecord_get_sacsic(&sid, &r);
    EXPECT_EQ(sid.sac, 25u);
    EXPECT_EQ(sid.sic, 30u);
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &r);
    EXPECT_EQ(type.valid, 1u);
    EXPECT_EQ(type.value, 6u);  // SSR multilateration
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_EQ(tod.valid, 1u);
    AstRecordWgs84 pos;
    ast_datarecord_get_wgs84coord(&pos, &r);
    EXPECT_EQ(pos.latitude, 22.5);
    EXPECT_EQ(pos.longitude, -22.5);
    AstRecordPolar polar;
    ast_datarecord_get_polarcoord(&polar, &r);
    EXPECT_DOUBLE_EQ(polar.rho, 1.0);
    EXPECT_DOUBLE_EQ(polar.theta, 90.0);
    AstRecordValue v;
    ast_datarecord_get_speed(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 28.125);  // I010/200 before I010/202
    ast_datarecord_get_heading(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 180.0);
    ast_datarecord_get_flightlevel(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 200.0);
    ast_datarecord_get_selaltitude(&v, &r);
    EXPECT_EQ(v.valid, 1u);
    EXPECT_DOUBLE_EQ(v.value, 4000.0);
    AstVelocityCartesian vel;
    ast_datarecord_get_cartesianvel(&vel, &r);
    EXPECT_EQ(vel.vx, 3.0);
    EXPECT_EQ(vel.vy, 4.0);
    AstRecordCallsign cs;
    ast_datarecord_get_callsign(&cs, &r);
    EXPECT_STREQ(cs.callsign, "SWR94K");
    AstTrackNumber tn;
    ast_datarecord_get_tracknum(&tn, &r);
    EXPECT_EQ(tn.number, 291u);
    AstMode3aCode sq;
    ast_datarecord_get_squawk(&sq, &r);
    EXPECT_EQ(sq.code, 01042u);
    AstTargetAddress a;
    ast_datarecord_get_icaoaddr(&a, &r);
    EXPECT_EQ(a.address, 0x4B1A22u);
    AstVerticalRate rate;
    ast_datarecord_get_vrate(&rate, &r);
    EXPECT_EQ(rate.valid, 0u);

    // Without I010/200 the speed and heading come from I010/202 (3-4-5 m/s).
    AstDataRecord no_polar = r;
    for (uint64_t i = 0; i < no_polar.item_count; ++i)
        if (no_polar.items[i].id == 10200) no_polar.items[i].id = 10999;
    ast_datarecord_get_speed(&v, &no_polar);
    EXPECT_NEAR(v.value, 5.0 * 3600.0 / 1852.0, 1e-9);
    ast_datarecord_get_heading(&v, &no_polar);
    EXPECT_NEAR(v.value, 36.86989764584402, 1e-9);
}

TEST(Cat010Record, MessageTypes) {
    const struct {
        Octets record;
        uint32_t valid, value;
    } cases[] = {
        {{0xE0, 0x19, 0x1E, 0x01, 0x60}, 1, 8},  // PSR target report: surface
        {{0xE0, 0x19, 0x1E, 0x01, 0xA0}, 1, 6},  // HF multilateration
        {{0xC0, 0x19, 0x1E, 0x01}, 1, 8},        // no descriptor
        {{0xC0, 0x19, 0x1E, 0x02}, 1, 1},        // start of update cycle: north
        {{0xC0, 0x19, 0x1E, 0x03}, 1, 0},        // periodic status
        {{0x80, 0x19, 0x1E}, 0, 0},              // no message type
    };
    for (const auto &c : cases) {
        const AstDataRecord r = decoded(c.record);
        ASSERT_EQ(r.valid, 1);
        AstRecordMsgType t;
        ast_datarecord_get_msgtype(&t, &r);
        EXPECT_EQ(t.valid, c.valid);
        EXPECT_EQ(t.value, c.value);
    }
}

TEST(Cat010Record, DisassembleAndAssemble) {
    const AstDataRecord r = decoded(kReport);
    auto d = std::make_unique<AstRecord010>();
    ast_datarecord_010_disassemble(d.get(), &r);
    ASSERT_EQ(d->valid, 1u);
    EXPECT_EQ(d->i040.rho, 1852.0);
    EXPECT_EQ(d->i300.vfi, 10u);
    EXPECT_EQ(d->i202.vx_lsb, 0.0625);
    EXPECT_EQ(d->i270.valid, 0u);
    // I010/250 has no encoder: with it the record cannot be written.
    Octets out(256);
    AstDataRecord written;
    ast_datarecord_010_assemble(&written, out.data(), out.size(), d.get(), &AST_UAP_STANDARD);
    EXPECT_EQ(written.valid, 0);
    d->i250.valid = 0;
    ast_datarecord_010_assemble(&written, out.data(), out.size(), d.get(), &AST_UAP_STANDARD);
    ASSERT_EQ(written.valid, 1);
    Octets expected = kReport;
    expected[2] = 0x61;  // FRN 15 gone
    expected.erase(expected.begin() + 50, expected.begin() + 59);
    EXPECT_EQ(Octets(out.begin(), out.begin() + written.length), expected);
    // A record of another category or an invalid one disassembles to nothing.
    AstDataRecord other = r;
    other.category = 20;
    ast_datarecord_010_disassemble(d.get(), &other);
    EXPECT_EQ(d->valid, 0u);
    EXPECT_EQ(d->i010.valid, 0u);
}
