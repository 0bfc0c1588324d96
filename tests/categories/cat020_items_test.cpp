// CAT020's own items from their wire octets: summaries, named fields, the
// subfields of I020/500, spans that must not decode, encoders, and the
// record: accessors, disassembly and assembly.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "kovrel/cat020.h"
#include "kovrel/datarecord.h"
#include "kovrel/fields.h"
#include "kovrel/subfield.h"
#include "kovrel/uap.h"
#include "support/field_leaves.h"
#include "support/record_walk.h"

using kovrel_test::Octets;

namespace {

AstDataItem span(const Octets &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

std::string summary(const AstDataItem &item, size_t size = 512) {
    std::vector<char> buf(size + 1, '#');
    ast_dataitem_get_summary(buf.data(), size, &item);
    EXPECT_EQ(buf[size], '#') << item.id;
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

// Values by hand: 1/4 m/s2 (210), 1/4 for DOP and SDP, 1/2 m for SDH (500).
const Case kCases[] = {
    {20020, {0xBE}, "TYP:MS", R"({"ssr":1,"ms":0,"hf":1,"vdl4":1,"uat":1,"dme":1,"ot":1})"},
    {20020, {0xFE}, "TYP:NONE", R"({"ssr":1,"ms":1,"hf":1,"vdl4":1,"uat":1,"dme":1,"ot":1})"},
    {20020, {0x3F, 0xFF, 0x80}, "TYP:SSR+MS RAB SPI CHAIN2 GBS CRT SIM TST NON_ADSB",
     R"({"ssr":0,"ms":0,"hf":1,"vdl4":1,"uat":1,"dme":1,"ot":1,"rab":1,"spi":1,"chn":1,"gbs":1,"crt":1,)"
     R"("sim":1,"tst":1,"cf":2})"},
    {20020, {0x01, 0x01, 0x00}, "TYP:SSR+MS+HF+VDL4+UAT+DME+OT",
     R"({"ssr":0,"ms":0,"hf":0,"vdl4":0,"uat":0,"dme":0,"ot":0,"rab":0,"spi":0,"chn":0,"gbs":0,"crt":0,)"
     R"("sim":0,"tst":0,"cf":0})"},
    {20030, {0x03, 0x05, 0x22}, "ERRCODE:1+ERRCODE:2+ERRCODE:17", R"({"codes":[1,2,17]})"},
    {20055, {0xF5}, "MODE_1:51 NOT_VALIDATED GARBLED SMOOTHED", R"({"v":1,"g":1,"l":1,"mode1":21})"},
    {20055, {0x1F}, "MODE_1:73", R"({"v":0,"g":0,"l":0,"mode1":31})"},
    {20170, {0xFE}, "TRACK:TENTATIVE LAST COASTED CDM_INVALID MANOEUVRE SMOOTHED",
     R"({"cnf":1,"tre":1,"cst":1,"cdm":3,"mah":1,"sth":1})"},
    {20170, {0x11, 0x80}, "TRACK:CONFIRMED DESCENDING GHOST",
     R"({"cnf":0,"tre":0,"cst":0,"cdm":2,"mah":0,"sth":0,"gho":1})"},
    {20210, {0x04, 0xF8}, "AX:1.00 AY:-2.00 LSB:M/S2", R"({"ax":1,"ay":-2})"},
    {20230, {0x3F, 0xFA}, "COM:1 STAT:NOT_EXTRACTED ARC:25FT",
     R"({"com":1,"stat":7,"casevn":3,"mssc":1,"arc":1,"aic":1,"b1a":1,"b1b":10})"},
    {20230, {0x90, 0x00}, "COM:4 STAT:ALERT_SPI ARC:100FT",
     R"({"com":4,"stat":4,"casevn":0,"mssc":0,"arc":0,"aic":0,"b1a":0,"b1b":0})"},
    // MTE set, threat type 1: a Mode S address in the top 24 of TID's 26 bits.
    {20260, {0x30, 0x00, 0x00, 0x14, 0x12, 0x34, 0x56}, "BDS:3,0 MULTIPLE_THREAT",
     R"({"bds1":3,"bds2":0,"ara":0,"rac":0,"rat":0,"mte":1,"tti":1,"tid":1193046})"},
    {20260, {0x30, 0xFF, 0xFF, 0xEF, 0xFF, 0xFF, 0xFF}, "BDS:3,0 RA_TERMINATED",
     R"({"bds1":3,"bds2":0,"ara":16383,"rac":15,"rat":1,"mte":0,"tti":3,"tid":67108863})"},
    {20300, {0x03}, "VFI:FIRE", R"({"vfi":3})"},
    {20310, {0x05}, "MSG:WORK_IN_PROGRESS", R"({"trb":0,"msg":5})"},
    {20400, {0x02, 0x82, 0x01}, "DEVICES:1,7,16", R"({"devices":[130,1]})"},
    {20400, {0x01, 0x00}, "DEVICES:NONE", R"({"devices":[0]})"},
    {20500, {0xE0, 0x00, 0x06, 0x00, 0x05, 0x00, 0x02, 0x00, 0x1E, 0x00, 0x1A, 0x00, 0x04, 0x00, 0x14},
     "SUBFIELDS:03/03",
     R"({"dop":{"x":1.5,"y":1.25,"xy":0.5},"sdp":{"x":7.5,"y":6.5,"xy":1},"sdh":{"sdh":10}})"},
    {20500, {0x20, 0xFF, 0xFF}, "SUBFIELDS:01/03", R"({"sdh":{"sdh":32767.5}})"},
};

}  // namespace

TEST(Cat020Items, SummariesAndFieldsFromTheWire) {
    for (const Case &c : kCases) {
        SCOPED_TRACE(testing::Message() << c.id << " " << c.summary);
        const AstDataItem item = span(c.wire, c.id);
        EXPECT_EQ(summary(item), c.summary);
        EXPECT_EQ(json(item), c.json);
        char html[8192];
        ast_dataitem_get_detail_html(html, sizeof html, &item);
        EXPECT_NE(std::strstr(html, "<table"), nullptr);
        for (size_t small : {0u, 1u, 9u, 40u}) {
            std::vector<char> buf(small + 1, '#');
            ast_dataitem_get_detail_html(buf.data(), small, &item);
            EXPECT_EQ(buf[small], '#');
        }
        EXPECT_EQ(summary(item, 5), std::string(c.summary).substr(0, 4));
    }
}

TEST(Cat020Items, PositionAccuracySubfields) {
    const Octets wire = {0xE0, 0x00, 0x06, 0x00, 0x05, 0xFF, 0xFF, 0x00, 0x1E, 0x00, 0x1A, 0x00, 0x04, 0x00, 0x15};
    const AstDataItem item = span(wire, 20500);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    const char *expected[3] = {"DOP_X:1.50 DOP_Y:1.25 DOP_XY:16383.75", "SDP_X:7.50 SDP_Y:6.50 SDP_XY:1.00",
                               "SDH:10.5"};
    for (int i = 0; i < 3; ++i) {
        char text[256];
        ast_subfield_get_summary(text, sizeof text, &list.spans[i], list.spans[i].id);
        EXPECT_STREQ(text, expected[i]);
        ast_subfield_get_detail_html(text, sizeof text, &list.spans[i], list.spans[i].id);
        EXPECT_NE(std::strstr(text, "<table"), nullptr);
    }
    // A subfield span of the wrong length, or absent, says nothing.
    AstSubfield cut = list.spans[2];
    cut.length = 1;
    char text[64] = "#";
    ast_subfield_get_summary(text, sizeof text, &cut, cut.id);
    EXPECT_STREQ(text, "");
    AstSubfield absent{0, nullptr, 0, 20500001, 1};
    ast_subfield_get_summary(text, sizeof text, &absent, absent.id);
    EXPECT_STREQ(text, "");
    // The item's detail view lists the subfields and shows each.
    std::vector<char> html(16384);
    ast_dataitem_get_detail_html(html.data(), html.size(), &item);
    EXPECT_NE(std::strstr(html.data(), "SDH:10.5"), nullptr);
}

TEST(Cat020Items, SpansThatDoNotDecodeGiveEmptyTexts) {
    const struct {
        AstItemId id;
        Octets wire;
    } bad[] = {
        {20055, {0x01, 0x02}}, {20210, {0x01}},   {20230, {0x01}},       {20260, {0x30, 0, 0, 0, 0, 0}},
        {20300, {}},           {20310, {0, 0}},   {20400, {0x02, 0x01}}, {20400, {0x00, 0x01}},
        {20020, {}},           {20170, {}},       {20030, {}},
        {20500, {0x80, 0x00, 0x01}},  // DOP announced, two octets of six there
        {20500, {0x20, 0x00, 0x01, 0x55}},  // an octet beyond the subfields
    };
    for (const auto &b : bad) {
        SCOPED_TRACE(testing::Message() << b.id << " " << b.wire.size());
        AstDataItem item = span(b.wire, b.id);
        if (b.wire.empty()) item.data = nullptr;
        if (b.id != 20500) EXPECT_EQ(summary(item), "");
        alignas(16) unsigned char storage[8192];
        AstDataItemValue v;
        ast_dataitem_decode(&v, storage, sizeof storage, &item);
        EXPECT_EQ(v.valid, 0);
    }
    // Warning codes beyond what the structure holds.
    Octets many(AST_ITEM020_030_MAX + 1, 0x03);
    many.back() = 0x02;
    const AstDataItem long_item = span(many, 20030);
    EXPECT_EQ(summary(long_item), "");
    many.resize(AST_ITEM020_030_MAX);
    many.back() = 0x02;
    const AstDataItem full = span(many, 20030);
    AstItem020_030 codes;
    ast_dataitem_020_030_decode(&codes, &full);
    EXPECT_EQ(codes.count, static_cast<uint32_t>(AST_ITEM020_030_MAX));
    // The Mode 2 summary only for I020/050.
    const Octets code = {0x0A, 0x3F};
    const AstDataItem other = span(code, 20070);
    char text[32] = "#";
    ast_dataitem_020_050_get_summary(text, sizeof text, &other);
    EXPECT_STREQ(text, "");
}

TEST(Cat020Items, EncodersWriteBackTheWire) {
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
        std::memset(out, 0xEE, sizeof out);
        ast_dataitem_encode(&written, out, c.wire.size() - 1, &v);
        EXPECT_EQ(written.valid, 0);
        EXPECT_EQ(out[0], 0xEE);
    }
}

TEST(Cat020Items, EncodersRefuseWhatTheWireCannotHold) {
    uint8_t out[32];
    AstDataItem w;
    AstItem020_020 d;
    ast_dataitem_020_020_init(&d);
    d.valid = 1;
    d.cf = 4;
    ast_dataitem_020_020_encode(&w, out, sizeof out, &d);
    EXPECT_EQ(w.valid, 0);
    AstItem020_030 codes{};
    codes.valid = 1;
    ast_dataitem_020_030_encode(&w, out, sizeof out, &codes);  // no code
    EXPECT_EQ(w.valid, 0);
    codes.count = 2;
    codes.codes[1] = 128;
    ast_dataitem_020_030_encode(&w, out, sizeof out, &codes);
    EXPECT_EQ(w.valid, 0);
    codes.codes[1] = 127;
    ast_dataitem_020_030_encode(&w, out, sizeof out, &codes);
    ASSERT_EQ(w.valid, 1);
    EXPECT_EQ(Octets(out, out + w.length), (Octets{0x01, 0xFE}));
    AstItem020_055 m1{1, 0, 0, 0, 32};
    ast_dataitem_020_055_encode(&w, out, sizeof out, &m1);
    EXPECT_EQ(w.valid, 0);
    AstItem020_170 s{1, 0, 0, 0, 4, 0, 0, 0, 0};
    ast_dataitem_020_170_encode(&w, out, sizeof out, &s);
    EXPECT_EQ(w.valid, 0);
    AstItem020_230 cap{1, 8, 0, 0, 0, 0, 0, 0, 0};
    ast_dataitem_020_230_encode(&w, out, sizeof out, &cap);
    EXPECT_EQ(w.valid, 0);
    cap.com = 0;
    cap.b1b = 16;
    ast_dataitem_020_230_encode(&w, out, sizeof out, &cap);
    EXPECT_EQ(w.valid, 0);
    AstItem020_500 acc;
    ast_dataitem_020_500_init(&acc);
    acc.valid = 1;
    ast_dataitem_020_500_encode(&w, out, sizeof out, &acc);  // no subfield
    EXPECT_EQ(w.valid, 0);
    acc.sdp_present = 1;
    acc.sdp_xy_raw = 65536;
    ast_dataitem_020_500_encode(&w, out, sizeof out, &acc);
    EXPECT_EQ(w.valid, 0);
    acc.sdp_xy_raw = 3;
    ast_dataitem_020_500_encode(&w, out, sizeof out, &acc);
    ASSERT_EQ(w.valid, 1);
    EXPECT_EQ(Octets(out, out + w.length), (Octets{0x40, 0, 0, 0, 0, 0, 3}));
    auto dev = std::make_unique<AstItem020_400>();
    ast_dataitem_020_400_init(dev.get());
    dev->valid = 1;
    ast_dataitem_020_400_encode(&w, out, sizeof out, dev.get());
    EXPECT_EQ(w.valid, 0);
}

// Wire -> fields -> a fresh structure set field by field (array elements
// by their positions) -> wire.
TEST(Cat020Items, EncodersRoundTripThroughTheFields) {
    for (const Case &c : kCases) {
        SCOPED_TRACE(testing::Message() << c.id << " " << c.summary);
        std::string failed;
        EXPECT_EQ(kovrel_test::encode_through_fields(span(c.wire, c.id), &failed), c.wire) << failed;
        EXPECT_EQ(failed, "");
    }
}

namespace {

const Octets kReport = {
    0xE5, 0xE5, 0xC5, 0x08,                          // FSPEC: 1-3, 6, 8-10, 13, 15-16, 20, 26
    0x19, 0x1F,                                      // 010
    0xBE,                                            // 020 Mode S
    0x00, 0x96, 0x00,                                // 140
    0x01, 0x23,                                      // 161
    0x02, 0x22,                                      // 070 1042
    0x00, 0x0C, 0x00, 0x10,                          // 202 3, 4 m/s
    0x00, 0x08,                                      // 090 FL 2
    0x00, 0x4D, 0x74, 0xB9, 0xD0, 0xB8, 0x20,        // 245 SWR94K
    0x00, 0x10,                                      // 105 100 ft
    0x01, 0xFF,                                      // 210
    0x01, 0x80,                                      // 400
    0x02, 0x9C,                                      // 050
};

AstDataRecord decoded(const Octets &o) {
    AstDataRecord r;
    ast_datarecord_decode(&r, o.data(), o.size(), 20, &AST_UAP_STANDARD);
    return r;
}

}  // namespace

TEST(Cat020Record, AccessorsReadTheirItems) {
    const AstDataRecord r = decoded(kReport);
    ASSERT_EQ(r.valid, 1);
    ASSERT_EQ(r.length, kReport.size());
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &r);
    EXPECT_EQ(type.value, 6u);
    AstRecordValue v;
    ast_datarecord_get_speed(&v, &r);
    EXPECT_NEAR(v.value, 5.0 * 3600.0 / 1852.0, 1e-9);
    ast_datarecord_get_heading(&v, &r);
    EXPECT_NEAR(v.value, 36.86989764584402, 1e-9);
    ast_datarecord_get_flightlevel(&v, &r);
    EXPECT_DOUBLE_EQ(v.value, 200.0);
    AstRecordCallsign cs;
    ast_datarecord_get_callsign(&cs, &r);
    EXPECT_STREQ(cs.callsign, "SWR94K");
    AstMode3aCode sq;
    ast_datarecord_get_squawk(&sq, &r);
    EXPECT_EQ(sq.code, 01042u);
    AstRecordPolar polar;
    ast_datarecord_get_polarcoord(&polar, &r);
    EXPECT_EQ(polar.valid, 0u);
    AstRecordWgs84 pos;
    ast_datarecord_get_wgs84coord(&pos, &r);
    EXPECT_EQ(pos.valid, 0u);
    AstTargetAddress a;
    ast_datarecord_get_icaoaddr(&a, &r);
    EXPECT_EQ(a.valid, 0u);
    AstDataSourceIdentifier sid;
    ast_datarecord_get_sacsic(&sid, &r);
    EXPECT_EQ(sid.sic, 31u);

    // Without I020/090 the geometric height stands in.
    AstDataRecord no_fl = r;
    for (uint64_t i = 0; i < no_fl.item_count; ++i)
        if (no_fl.items[i].id == 20090) no_fl.items[i].id = 20999;
    ast_datarecord_get_flightlevel(&v, &no_fl);
    EXPECT_DOUBLE_EQ(v.value, 100.0);

    // An invalid record answers nothing.
    AstDataRecord bad = r;
    bad.valid = 0;
    ast_datarecord_get_msgtype(&type, &bad);
    EXPECT_EQ(type.valid, 0u);
    ast_datarecord_get_sacsic(&sid, &bad);
    EXPECT_EQ(sid.sac, 0xFFFFFFFFu);
}

TEST(Cat020Record, DisassembleAndAssemble) {
    const AstDataRecord r = decoded(kReport);
    auto d = std::make_unique<AstRecord020>();
    ast_datarecord_020_disassemble(d.get(), &r);
    ASSERT_EQ(d->valid, 1u);
    EXPECT_EQ(d->i400.count, 1u);
    EXPECT_EQ(d->i050.code, 01234u);
    EXPECT_EQ(d->i210.ax, 0.25);
    Octets out(256);
    AstDataRecord written;
    ast_datarecord_020_assemble(&written, out.data(), out.size(), d.get(), &AST_UAP_STANDARD);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Octets(out.begin(), out.begin() + written.length), kReport);
    // Without I020/202 and I020/105.
    d->i202.valid = 0;
    d->i105.valid = 0;
    ast_datarecord_020_assemble(&written, out.data(), out.size(), d.get(), &AST_UAP_STANDARD);
    ASSERT_EQ(written.valid, 1);
    const Octets expected = {0xE5, 0xA5, 0x45, 0x08, 0x19, 0x1F, 0xBE, 0x00, 0x96, 0x00, 0x01, 0x23,
                             0x02, 0x22, 0x00, 0x08, 0x00, 0x4D, 0x74, 0xB9, 0xD0, 0xB8, 0x20, 0x01,
                             0xFF, 0x01, 0x80, 0x02, 0x9C};
    EXPECT_EQ(Octets(out.begin(), out.begin() + written.length), expected);
    // One octet short of the record: invalid, nothing past the size.
    Octets small(expected.size() - 1 + 1, 0xEE);
    ast_datarecord_020_assemble(&written, small.data(), expected.size() - 1, d.get(), &AST_UAP_STANDARD);
    EXPECT_EQ(written.valid, 0);
    EXPECT_EQ(small.back(), 0xEE);
}
