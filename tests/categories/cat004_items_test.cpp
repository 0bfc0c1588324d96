// CAT004 items from their wire octets: the alert items' texts, the function
// status with its unread extension, the compound items decoded subfield by
// subfield, their fields, the disassembled record and the accessors, and
// what bad spans give.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/cat004.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/fields.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

AstDataItem span(const Octets &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

// The address of a span that lives to the end of the full expression.
const AstDataItem *at(const AstDataItem &item) { return &item; }

using TextFn = void (*)(char *, size_t, const AstDataItem *);

std::string text(TextFn fn, const AstDataItem &item) {
    std::vector<char> buf(4096, '#');
    fn(buf.data(), buf.size(), &item);
    return buf.data();
}

std::string json(const AstDataItem &item) {
    std::vector<char> buf(8192, '#');
    ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    return buf.data();
}

// I004/170 with all ten subfields (48 octets).
const Octets kAircraft = {
    0xFF, 0xE0,                                                  // primary: subfields 1-10
    0x42, 0x41, 0x57, 0x31, 0x32, 0x33, 0x20,                    // AI "BAW123 "
    0xF9, 0x4F,                                                  // M3, spare bits set: 4517
    0x00, 0x80, 0x00, 0x00, 0xFF, 0x80, 0x00, 0x00, 0x01, 0x90,  // CPW 45, -45 deg, 10000 ft
    0xFF, 0xFC, 0x18, 0x00, 0x07, 0xD0, 0x00, 0x28,              // CPC -500 m, 1000 m, 1000 ft
    0x00, 0x02, 0x80,                                            // TT 5 s
    0x01, 0x90,                                                  // DT 200 m
    0x67, 0xA0,                                                  // AC, two octets
    0x10, 0xC2, 0x34, 0x2D, 0x88, 0x20,                          // MS "DLH4KX  "
    0xF8, 0x01, 0x86, 0xA0,                                      // FP 100000, spare bits set
    0x01, 0x5E,                                                  // CF 87.5 FL
};

// I004/120: CN of three octets (MAS CAS; RRC; AIW), CC, CP, CD.
const Octets kConflict = {0xF0, 0xC1, 0x81, 0x04, 0x5A, 0xC8, 0x00, 0x0E, 0x40};

// I004/100: AN, RT1 and G.
const Octets kArea = {0xA4, 0x05, 0x21, 0x41, 0xD7, 0x18, 0x20, 0x45, 0x47, 0x4C, 0x4C,
                      0x30, 0x39, 0x4C, 0x41, 0x31, 0x32, 0x20, 0x20, 0x20, 0x20};

}  // namespace

TEST(Cat004Items, AlertTexts) {
    const struct {
        AstItemId id;
        Octets wire;
        const char *summary;
    } cases[] = {
        {4000, {0x07}, "MSG_TYPE:STCA"},
        {4000, {0xC9}, "MSG_TYPE:MRVA"},
        {4000, {0xFE}, "MSG_TYPE:UNDEFINED"},
        {4040, {0x00, 0x2A}, "ALERT_ID:0042"},
        {4040, {0xFF, 0xFF}, "ALERT_ID:65535"},
        {4060, {0x81, 0x00}, "FUNCTIONS:1"},
        {4060, {0xFE}, "FUNCTIONS:7"},
        {4060, {0x00}, "FUNCTIONS:0"},
        {4060, {0x55, 0x80}, "FUNCTIONS:3"},  // an octet beyond the chain's end is not read
    };
    for (const auto &c : cases) {
        AstDataItem item;
        ast_dataitem_scan(&item, c.wire.data(), c.wire.size(), c.id);
        char buf[64];
        ast_dataitem_get_summary(buf, sizeof buf, &item);
        EXPECT_STREQ(buf, c.summary) << c.id << " " << int(c.wire[0]);
    }

    EXPECT_EQ(text(ast_dataitem_004_000_get_detail_html, span({0x07}, 4000)),
              "<p>Message type: STCA (Short Term Conflict Alert)</p>");
    EXPECT_EQ(text(ast_dataitem_004_000_get_detail_html, span({0xFE}, 4000)),
              "<p>Message type: UNDEFINED (UNDEFINED)</p>");
    // Cut to size, NUL included.
    char small[8];
    ast_dataitem_004_040_get_summary(small, sizeof small, at(span({0, 42}, 4040)));
    EXPECT_STREQ(small, "ALERT_I");
}

TEST(Cat004Items, FunctionStatusReadsTheFirstOctetOnly) {
    LogCapture log;
    const Octets wire = {0x81, 0x00};
    AstItem004_060 d;
    ast_dataitem_004_060_decode(&d, at(span(wire, 4060)));
    ASSERT_EQ(d.valid, 1u);
    EXPECT_EQ(d.count, 14u);
    const uint32_t types[7] = {201, 2, 3, 4, 5, 6, 7};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(d.functions[i].type, types[i]) << i;
        EXPECT_EQ(d.functions[i].activated, i == 0 ? 1 : 0) << i;
    }
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Unimplemented octects detected in I004/060"));
    log.clear();
    ast_dataitem_004_060_decode(&d, at(span({0x02}, 4060)));
    EXPECT_TRUE(d.valid == 1 && d.count == 7 && d.functions[6].activated == 1);
    EXPECT_EQ(log.size(), 0u);

    const std::string html = text(ast_dataitem_004_060_get_detail_html, span(wire, 4060));
    EXPECT_EQ(html.rfind("<table class=\"detail_table\"><tr><th>Function</th><th>Name</th><th>Status</th></tr>"
                         "<tr><td>MRVA</td><td>Minimum Radar Vectoring Altitude Infringement</td>"
                         "<td>ACTIVATED</td></tr><tr class=\"even_row\"><td>RAMLD</td>",
                         0),
              0u)
        << html;
    EXPECT_NE(html.find("<tr><td>STCA</td><td>Short Term Conflict Alert</td><td>-</td></tr></table>"),
              std::string::npos);
    EXPECT_EQ(json(span(wire, 4060)),
              R"({"count":14,"mrva":1,"ramld":0,"ramhd":0,"msaw":0,"apw":0,"clam":0,"stca":0})");
}

TEST(Cat004Items, AlertIdentifierEncodes) {
    const struct {
        uint32_t valid, value;
        Octets expected;  // empty: refused
    } cases[] = {
        {1, 42, {0x00, 0x2A}},
        {1, 0xFFFF, {0xFF, 0xFF}},
        {1, 0x10000, {}},
        {0, 42, {}},
    };
    for (const auto &c : cases) {
        const AstItem004_040 in{c.valid, c.value};
        uint8_t buf[3] = {0xEE, 0xEE, 0xEE};
        AstDataItem out;
        ast_dataitem_004_040_encode(&out, buf, sizeof buf, &in);
        if (c.expected.empty()) {
            EXPECT_TRUE(out.valid == 0 && out.length == 0) << c.value;
            continue;
        }
        ASSERT_EQ(out.valid, 1) << c.value;
        EXPECT_EQ(Octets(buf, buf + out.length), c.expected);
        EXPECT_EQ(buf[2], 0xEE);
        // One octet short is refused.
        ast_dataitem_004_040_encode(&out, buf, 1, &in);
        EXPECT_EQ(out.valid, 0);
    }
}

TEST(Cat004Items, AircraftSubfieldsDecode) {
    AstItem004_170 d;
    ast_dataitem_004_170_decode(&d, at(span(kAircraft, 4170)));
    ASSERT_EQ(d.valid, 1u);
    EXPECT_EQ(d.subfields.span_count, 10u);
    EXPECT_STREQ(d.ai, "BAW123 ");
    EXPECT_EQ(d.mode3a, 04517u);
    EXPECT_DOUBLE_EQ(d.lat, 45.0);
    EXPECT_DOUBLE_EQ(d.lon, -45.0);
    EXPECT_DOUBLE_EQ(d.alt, 10000.0);
    EXPECT_EQ(d.x_raw, -1000);
    EXPECT_DOUBLE_EQ(d.x, -500.0);
    EXPECT_DOUBLE_EQ(d.y, 1000.0);
    EXPECT_DOUBLE_EQ(d.z, 1000.0);
    EXPECT_DOUBLE_EQ(d.tt, 5.0);
    EXPECT_DOUBLE_EQ(d.dt, 200.0);
    EXPECT_TRUE(d.ac_octets == 2 && d.gatoat == 1 && d.fr1fr2 == 2 && d.rvsm == 1 && d.hpr == 1);
    EXPECT_TRUE(d.cdm == 2 && d.pri == 1 && d.gv == 0);
    EXPECT_STREQ(d.ms, "DLH4KX  ");
    EXPECT_EQ(d.fp, 100000u);
    EXPECT_DOUBLE_EQ(d.cf, 87.5);
    EXPECT_EQ(json(span(kAircraft, 4170)),
              R"({"ai":"BAW123 ","mode3a":"4517","cpw":{"lat":45,"lon":-45,"alt":10000},)"
              R"("cpc":{"x":-500,"y":1000,"z":1000},"tt":5,"dt":200,)"
              R"("ac":{"gatoat":1,"fr1fr2":2,"rvsm":1,"hpr":1,"cdm":2,"pri":1,"gv":0},)"
              R"("ms":"DLH4KX  ","fp":100000,"cf":87.5})");

    // The second aircraft decodes alike; only M3 and a one-octet AC here.
    const Octets second = {0x42, 0x0F, 0xFF, 0xC0};
    ast_dataitem_004_170_decode(&d, at(span(second, 4171)));
    ASSERT_EQ(d.valid, 1u);
    EXPECT_TRUE(d.m3_present == 1 && d.mode3a == 07777 && d.ai_present == 0 && d.cf_present == 0);
    EXPECT_TRUE(d.ac_present == 1 && d.ac_octets == 1 && d.gatoat == 3 && d.cdm == 0);
    EXPECT_EQ(json(span(second, 4171)),
              R"({"mode3a":"7777","ac":{"gatoat":3,"fr1fr2":0,"rvsm":0,"hpr":0,"cdm":0,"pri":0,"gv":0}})");
}

TEST(Cat004Items, ConflictAndAreaSubfieldsDecode) {
    AstItem004_120 c;
    ast_dataitem_004_120_decode(&c, at(span(kConflict, 4120)));
    ASSERT_EQ(c.valid, 1u);
    EXPECT_TRUE(c.cn_octets == 3 && c.mas == 1 && c.cas == 1 && c.fld == 0 && c.div == 0);
    EXPECT_TRUE(c.rrc == 1 && c.rtc == 0 && c.hamhd == 0 && c.aiw == 1 && c.dbpsmtl == 0);
    EXPECT_TRUE(c.cc_present == 1 && c.tab == 5 && c.prop == 5 && c.cs == 0);
    EXPECT_DOUBLE_EQ(c.cp, 100.0);
    EXPECT_EQ(c.cd_raw, 3648u);
    EXPECT_DOUBLE_EQ(c.cd, 28.5);
    EXPECT_EQ(json(span(kConflict, 4120)),
              R"({"cn":{"mas":1,"cas":1,"fld":0,"fvd":0,"type":0,"cross":0,"div":0,"rrc":1,"rtc":0,"mrva":0,)"
              R"("vramcrm":0,"vramvrm":0,"vramvtm":0,"hamhd":0,"hamrd":0,"hamvd":0,"dbpsmarr":0,"dbpsmdep":0,)"
              R"("dbpsmtl":0,"aiw":1},"cc":{"tab":5,"prop":5,"cs":0},"cp":{"cp":100},"cd":{"cd":28.5}})");

    AstItem004_100 a;
    ast_dataitem_004_100_decode(&a, at(span(kArea, 4100)));
    ASSERT_EQ(a.valid, 1u);
    EXPECT_STREQ(a.an, "AREA51  ");
    EXPECT_STREQ(a.rt1, "EGLL09L");
    EXPECT_STREQ(a.g, "A12    ");
    EXPECT_TRUE(a.can_present == 0 && a.rt2_present == 0 && a.sb_present == 0 && a.g_present == 1);
    EXPECT_EQ(json(span(kArea, 4100)), R"({"an":"AREA51  ","rt1":"EGLL09L","g":"A12    "})");
}

TEST(Cat004Items, SubfieldSummaries) {
    AstItem004_170 aircraft;
    ast_dataitem_004_170_decode(&aircraft, at(span(kAircraft, 4170)));
    AstItem004_120 conflict;
    ast_dataitem_004_120_decode(&conflict, at(span(kConflict, 4120)));
    AstItem004_100 area;
    ast_dataitem_004_100_decode(&area, at(span(kArea, 4100)));
    ASSERT_TRUE(aircraft.valid == 1 && conflict.valid == 1 && area.valid == 1);

    const struct {
        const AstSubfield *span;
        const char *summary;
    } cases[] = {
        {&area.subfields.spans[0], "AN:AREA51  "},
        {&area.subfields.spans[1], ""},  // CAN absent
        {&area.subfields.spans[2], "NOT_IMPLEMENTED"},
        {&conflict.subfields.spans[0], "NOT_IMPLEMENTED"},
        {&conflict.subfields.spans[1], "TAB:5 PROP:5 CS:LOW"},
        {&conflict.subfields.spans[3], "NOT_IMPLEMENTED"},
        {&aircraft.subfields.spans[1], "MODE_3/A:4517"},
        {&aircraft.subfields.spans[9], "NOT_IMPLEMENTED"},
    };
    for (const auto &c : cases) {
        char buf[64] = "junk";
        ast_subfield_get_summary(buf, sizeof buf, c.span, c.span->id);
        EXPECT_STREQ(buf, c.summary) << c.span->id;
    }

    // CS high; the second aircraft's Mode 3/A has no summary of its own.
    const uint8_t cc = 0x11;
    const AstSubfield high{1, &cc, 1, 4120002, 1};
    char buf[64];
    ast_subfield_get_summary(buf, sizeof buf, &high, 4120002);
    EXPECT_STREQ(buf, "TAB:1 PROP:0 CS:HIGH");
    const uint8_t m3[2] = {0x0A, 0x3F};
    const AstSubfield m32{1, m3, 2, 4171002, 1};
    ast_subfield_get_summary(buf, sizeof buf, &m32, 4171002);
    EXPECT_STREQ(buf, "NOT_IMPLEMENTED");
    const AstSubfield m31{1, m3, 2, 4170002, 1};
    ast_subfield_get_summary(buf, sizeof buf, &m31, 4170002);
    EXPECT_STREQ(buf, "MODE_3/A:5077");
    // A subfield of the wrong length is not read.
    const AstSubfield cut{1, m3, 1, 4170002, 1};
    ast_subfield_get_summary(buf, sizeof buf, &cut, 4170002);
    EXPECT_STREQ(buf, "");
}

TEST(Cat004Items, BadSpansDecodeToNothing) {
    LogCapture log;
    const Octets two = {0x00, 0x2A};
    const Octets three = {0x00, 0x2A, 0x00};
    struct Case {
        AstDataItem item;
        TextFn summary;
    };
    const Case cases[] = {
        {AstDataItem{two.data(), 2, 4040, 0}, ast_dataitem_004_040_get_summary},
        {AstDataItem{three.data(), 3, 4040, 1}, ast_dataitem_004_040_get_summary},
        {AstDataItem{nullptr, 2, 4040, 1}, ast_dataitem_004_040_get_summary},
        {AstDataItem{two.data(), 0, 4060, 1}, ast_dataitem_004_060_get_summary},
        {AstDataItem{two.data(), 1, 4061, 1}, ast_dataitem_004_060_get_summary},
        {AstDataItem{two.data(), 1, 4060, 0}, ast_dataitem_004_060_get_detail_html},
        {AstDataItem{two.data(), 1, 4000, 0}, ast_dataitem_004_000_get_summary},
        {AstDataItem{two.data(), 2, 4000, 1}, ast_dataitem_004_000_get_detail_html},
    };
    for (const Case &c : cases) EXPECT_EQ(text(c.summary, c.item), "") << c.item.id << " " << c.item.length;

    // Compound items under another identifier, invalid, or cut inside a subfield.
    AstItem004_170 aircraft;
    ast_dataitem_004_170_decode(&aircraft, at(span(kAircraft, 4120)));
    EXPECT_EQ(aircraft.valid, 0u);
    AstItem004_120 conflict;
    const AstDataItem invalid{kConflict.data(), kConflict.size(), 4120, 0};
    ast_dataitem_004_120_decode(&conflict, &invalid);
    EXPECT_EQ(conflict.valid, 0u);
    AstItem004_100 area;
    ast_dataitem_004_100_decode(&area, at(span({0x00}, 4100)));
    EXPECT_EQ(area.valid, 0u);
    // A span shorter than its subfields announce does not split.
    const Octets cut(kAircraft.begin(), kAircraft.end() - 1);
    ast_dataitem_004_170_decode(&aircraft, at(span(cut, 4170)));
    EXPECT_EQ(aircraft.valid, 0u);
}

TEST(Cat004Items, RecordDisassemblesWithItsAccessors) {
    LogCapture log;
    Octets record = {
        0xDB, 0xE1, 0xE6,  // FSPEC: FRN 1 2 4 5 7, 8 9 10, 15 16 17 20 21
        0x12, 0x34,        // I004/010
        0x07,              // I004/000
        0x54, 0x60, 0x00,  // I004/020
        0x00, 0x2A,        // I004/040
        0x81, 0x00,        // I004/060
        0x01, 0x02,        // I004/030
    };
    record.insert(record.end(), kAircraft.begin(), kAircraft.end());    // I004/170
    record.insert(record.end(), kConflict.begin(), kConflict.end());    // I004/120
    record.insert(record.end(), kArea.begin(), kArea.end());            // I004/100
    record.insert(record.end(), {0x00, 0x05});                          // I004/035
    record.insert(record.end(), {0x40, 0x0A, 0x3F});                    // I004/171
    record.insert(record.end(), {0x03, 0xAA, 0xBB, 0x02, 0xCC});        // REF, SPF
    AstDataRecord r;
    ast_datarecord_decode(&r, record.data(), record.size(), 4, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    ASSERT_EQ(r.length, record.size());

    static AstRecord004 d;
    ast_datarecord_004_disassemble(&d, &r);
    ASSERT_EQ(d.valid, 1u);
    EXPECT_TRUE(d.i000.valid == 1 && d.i000.value == 7);
    EXPECT_TRUE(d.i010.sac == 0x12 && d.i010.sic == 0x34);
    EXPECT_TRUE(d.i030.number == 0x0102 && d.i035.number == 5);
    EXPECT_TRUE(d.i040.valid == 1 && d.i040.value == 42);
    EXPECT_TRUE(d.i060.valid == 1 && d.i060.count == 14);
    EXPECT_TRUE(d.i100.valid == 1 && d.i120.valid == 1 && d.i170.valid == 1);
    EXPECT_TRUE(d.i171.valid == 1 && d.i171.mode3a == 05077 && d.i171.ai_present == 0);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to disassemble dataitem I004/REF."));
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to disassemble dataitem I004/SPF."));

    AstDataSourceIdentifier sacsic;
    ast_datarecord_get_sacsic(&sacsic, &r);
    EXPECT_TRUE(sacsic.valid == 1 && sacsic.sac == 0x12 && sacsic.sic == 0x34);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_TRUE(tod.valid == 1 && tod.hour == 12 && tod.minute == 0);
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &r);
    EXPECT_TRUE(track.valid == 1 && track.number == 0x0102);
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &r);
    EXPECT_EQ(type.valid, 0u);

    // Without the items, and for a record of another category.
    const Octets bare = {0x40, 0x07};
    ast_datarecord_decode(&r, bare.data(), bare.size(), 4, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    ast_datarecord_get_sacsic(&sacsic, &r);
    EXPECT_TRUE(sacsic.valid == 0 && sacsic.sac == 0xFFFFFFFFu && sacsic.sic == 0xFFFFFFFFu);
    ast_datarecord_004_get_timeofday(&tod, &r);
    EXPECT_EQ(tod.valid, 0u);
    r.category = 48;
    ast_datarecord_004_disassemble(&d, &r);
    EXPECT_EQ(d.valid, 0u);
}

TEST(Cat004Items, AlertIdentifierRoundTripsThroughItsField) {
    const Octets wire = {0xBE, 0xEF};
    EXPECT_EQ(json(span(wire, 4040)), R"({"value":48879})");
    AstItem004_040 v;
    ASSERT_EQ(ast_dataitem_fields_init(&v, sizeof v, 4040), 1);
    AstField f{};
    f.kind = AST_FIELD_UNSIGNED;
    f.u = 0x10000;
    EXPECT_EQ(ast_dataitem_fields_set(&v, sizeof v, 4040, "value", &f), AST_FIELD_SET_OUT_OF_RANGE);
    f.u = 0xBEEF;
    ASSERT_EQ(ast_dataitem_fields_set(&v, sizeof v, 4040, "value", &f), AST_FIELD_SET_OK);
    uint8_t out[4];
    AstDataItem written;
    const AstDataItemValue value{1, 4040, &v};
    ast_dataitem_encode(&written, out, sizeof out, &value);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Octets(out, out + written.length), wire);
}
