#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "categories/packed_items.h"
#include "kovrel/cat015.h"
#include "kovrel/datarecord.h"
#include "kovrel/enums.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/subfield.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

namespace {

uint64_t size_of(std::vector<uint8_t> o, AstItemId id, size_t available = SIZE_MAX) {
    return ast_dataitem_get_size(o.data(), available == SIZE_MAX ? o.size() : available, id);
}

}  // namespace

TEST(Cat015, CompoundSubfieldCounts) {
    LogCapture log;
    const std::pair<AstItemId, uint32_t> counts[] = {
        {15600, 3}, {15601, 8}, {15602, 4}, {15604, 6}, {15625, 8},  {15626, 10},
        {15627, 6}, {15270, 4}, {15603, 4}, {15605, 5}, {15628, 6}, {15630, 4},
    };
    for (auto [id, n] : counts) EXPECT_EQ(ast_dataitem_subfields_get_number(id), n) << id;
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(15631), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Undefined Subfield I015/631"));
}

TEST(Cat015, SubfieldIdsAndNames) {
    EXPECT_STREQ(ast_subfield_get_id(15600001), "P84");
    EXPECT_STREQ(ast_subfield_get_name(15600003), "Horizontal Position Precision");
    EXPECT_STREQ(ast_subfield_get_id(15601008), "COGHHA");
    EXPECT_STREQ(ast_subfield_get_name(15601004), "Confidence Interval for Geometric Height (67%)");
    EXPECT_STREQ(ast_subfield_get_id(15602004), "COHVHP");
    EXPECT_STREQ(ast_subfield_get_name(15604002), "Vertical Velocity Resolution");
    EXPECT_STREQ(ast_subfield_015_625_get_id(15625008), "SDRA");
    EXPECT_STREQ(ast_subfield_015_625_get_name(15625006), "Range Rate Precision");
    EXPECT_STREQ(ast_subfield_get_id(15626010), "CODARA");
    EXPECT_STREQ(ast_subfield_get_name(15626010), "Correlation of Doppler Acceleration and Range Acceleration");
    EXPECT_STREQ(ast_subfield_get_id(15627003), "SDASZ");
    EXPECT_STREQ(ast_subfield_get_name(15630002), "Direct Path - Signal to Noise Ratio (SNR)");
    // Beyond an item's subfields, or asked of another item's function.
    EXPECT_STREQ(ast_subfield_get_id(15626011), "---");
    EXPECT_STREQ(ast_subfield_get_name(15600004), "UNKNOWN_SUBFIELD_NAME");
    EXPECT_STREQ(ast_subfield_015_625_get_name(15626001), "UNKNOWN_SUBFIELD_NAME");
}

TEST(Cat015, CompoundSizesFromTheWire) {
    struct Case {
        AstItemId id;
        std::vector<uint8_t> primary;
        uint64_t length;
    };
    const Case cases[] = {
        {15600, {0xE0}, 1 + 8 + 5 + 5},
        {15600, {0x40}, 1 + 5},
        {15601, {0xFF, 0x80}, 2 + 3 * 5 + 2 * 3},
        {15601, {0x10}, 1 + 3},
        {15602, {0xF0}, 1 + 5 + 5 + 5 + 4},
        {15603, {0xF0}, 1 + 3 + 4 + 4 + 4},
        {15604, {0xFC}, 1 + 3 + 2 + 3 + 2 + 2 + 2},
        {15605, {0xF8}, 1 + 2 + 4 + 2 + 2 + 2},
        {15625, {0xFF, 0x80}, 2 + 3 * 5 + 4 + 2 + 4},
        {15626, {0xFF, 0xE0}, 2 + 3 + 2 + 2 + 3 + 6 * 1},
        {15626, {0x81, 0x60}, 2 + 3 + 1 + 1},
        {15627, {0xFC}, 1 + 2 * 4 + 3 + 4},
        {15628, {0x0C}, 1 + 3 + 4},
        {15630, {0xF0}, 1 + 1 + 1 + 2 + 1},
        {15270, {0xF0}, 1 + 4 * 2},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.id);
        std::vector<uint8_t> octets = c.primary;
        octets.resize(64, 0x00);
        EXPECT_EQ(ast_dataitem_get_size(octets.data(), octets.size(), c.id), c.length);
        EXPECT_EQ(ast_dataitem_get_size(octets.data(), c.length, c.id), c.length);
        // One octet short: the last subfield cannot be delimited and adds
        // nothing, so the item never reaches past the octets given.
        EXPECT_LE(ast_dataitem_get_size(octets.data(), c.length - 1, c.id), c.length - 1);
    }
    // A primary subfield that never ends.
    EXPECT_EQ(size_of({0x81, 0x81}, 15626), 0u);
    EXPECT_EQ(ast_dataitem_015_600_get_size(nullptr, 8), 0u);
}

TEST(Cat015, SplitOfATwoOctetPrimary) {
    // DV, then CODARR and CODARA from the primary's second octet.
    const uint8_t octets[] = {0x81, 0x60, 0x00, 0x01, 0x02, 0x7F, 0x80, 0xEE};
    AstDataItem item;
    ast_dataitem_scan(&item, octets, sizeof octets, 15626);
    ASSERT_EQ(item.valid, 1);
    ASSERT_EQ(item.length, 7u);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    ASSERT_EQ(list.span_count, 10u);
    EXPECT_EQ(list.spans[0].present, 1);
    EXPECT_EQ(list.spans[0].length, 3u);
    for (int i = 1; i < 8; ++i) EXPECT_EQ(list.spans[i].present, 0) << i;
    EXPECT_EQ(list.spans[8].data, octets + 5);
    EXPECT_EQ(list.spans[8].id, 15626009u);
    EXPECT_EQ(list.spans[9].data, octets + 6);
    EXPECT_EQ(list.spans[9].length, 1u);
    char text[32];
    ast_dataitem_get_summary(text, sizeof text, &item);
    EXPECT_STREQ(text, "SUBFIELDS:03/10");
}

TEST(Cat015, SimpleItemSizes) {
    LogCapture log;
    // Descriptor and status: one octet with an FX bit.
    for (AstItemId id : {15020u, 15170u}) {
        EXPECT_EQ(size_of({0x40, 0xFF}, id), 1u) << id;
        EXPECT_EQ(size_of({0x41}, id), 0u) << id;
    }
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(size_of({0x41, 0x00}, 15020), 1u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 1"));
    // Warning/error values chain on without bound.
    EXPECT_EQ(size_of({0x03, 0x05, 0x07, 0x09, 0x0B, 0x0C}, 15030), 6u);
    EXPECT_EQ(size_of({0x03, 0x05, 0x07}, 15030), 0u);
    // Associations are five octets, contour points eight, classes two.
    std::vector<uint8_t> rep(17, 0x00);
    rep[0] = 2;
    EXPECT_EQ(size_of(rep, 15480, 11), 11u);
    EXPECT_EQ(size_of(rep, 15480, 10), 0u);
    EXPECT_EQ(size_of(rep, 15631), 17u);
    EXPECT_EQ(size_of(rep, 15300), 5u);
    EXPECT_EQ(size_of(rep, 15400), 5u);
}

TEST(Cat015, Names) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(15270), "Target Size & Orientation");
    EXPECT_STREQ(ast_dataitem_015_get_name(15161), "Track/Plot Number");
    // I015/605 carries the vertical acceleration under I015/604's title.
    EXPECT_STREQ(ast_dataitem_015_get_name(15605), "Vertical Velocity Information");
    EXPECT_STREQ(ast_dataitem_015_get_name(15631), "Contour (Azimuth, Elevation Angle, Range Extent)");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_015_get_name(15998), "Unknown CAT015 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I015/REF."));
}

TEST(Cat015, RecordScansBackToBack) {
    // One item per FRN of the standard UAP, in FRN order; compound items
    // carry some of their subfields.
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x10},                                            // I015/010
        {0x03},                                                  // I015/000
        {0x07},                                                  // I015/015
        {0x40},                                                  // I015/020
        {0x41, 0x40},                                            // I015/030
        {0x00, 0x96, 0x00},                                      // I015/145
        {0x12, 0x34},                                            // I015/161
        {0x80},                                                  // I015/170
        {0x00, 0x04},                                            // I015/050
        {0x90, 0x00, 0x64, 0x10, 0x00},                          // I015/270 LEN ORT
        {0x01, 0x03, 0x50},                                      // I015/300
        {0x00, 0x01, 0x00, 0x00, 0x2A},                          // I015/400
        {0xA0, 1, 2, 3, 4, 5, 6, 7, 8, 0, 0, 0, 0, 1},           // I015/600 P84 HPP
        {0x81, 0x80, 0x00, 0x03, 0xE8, 0x00, 0x00},              // I015/601 GH COGHHA
        {0x10, 0x01, 0x02, 0x03, 0x04},                          // I015/602 COHVHP
        {0x40, 0x00, 0x00, 0x00, 0x10},                          // I015/603 SDHA
        {0x28, 0x00, 0x10, 0x00, 0x00, 0x05},                    // I015/604 SDVV COVVHV
        {0x48, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00},              // I015/605 RSVA COVAHA
        {0x01, 0x00, 0x01, 0x00, 0x00, 0x02},                    // I015/480
        {0x83, 0x80, 1, 2, 3, 0x00, 0x04, 0, 0, 0, 5},           // I015/625 R RA SDRA
        {0x11, 0x20, 0x00, 0x10, 0x00, 0x7F},                    // I015/626 SDDA CODARA
        {0x04, 0x00, 0x00, 0x10, 0x00},                          // I015/627 AZEX
        {0x80, 0x10, 0x00},                                      // I015/628 EL
        {0x30, 0x00, 0x00, 0x20},                                // I015/630 RPP RPS
        {0x01, 1, 2, 3, 4, 5, 6, 7, 8},                          // I015/631
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 15), items.size());
    kovrel_test::expect_frn_items(15, items);
}

// ---- The category's own items ----------------------------------------------

using kovrel_test::expect_items;
using kovrel_test::Wire;

TEST(Cat015Items, SimpleItemsDecodeShowAndWriteBack) {
    expect_items({
        {15000, {0x03}, "MT:MEASUREMENT_PLOT RG", R"({"mt":1,"rg":1})"},
        {15000, {0x0A}, "MT:TRACK_END", R"({"mt":5,"rg":0})"},
        {15000, {0x0C}, "MT:6", R"({"mt":6,"rg":0})"},  // no name: the number
        {15020, {0x58}, "MOMU:MULTI_STATIC TTAX:REFERENCE SCD:BACKWARD", R"({"momu":1,"ttax":1,"scd":2})"},
        {15020, {0xFC}, "MOMU:UNKNOWN TTAX:SIMULATED SCD:STATIC", R"({"momu":3,"ttax":3,"scd":3})"},
        {15030, {0x41, 0x40}, "WE:20 20", R"({"codes":[32,32]})"},
        {15050, {0x01, 0x00}, "UPD:2.0000", R"({"upd":2})"},
        {15050, {0x3F, 0xFF}, "UPD:127.9922", R"({"upd":127.9921875})"},
        {15170, {0xA4}, "BIZ TUR CSTH", R"({"biz":1,"baz":0,"tur":1,"cstp":0,"csth":1,"cnf":0})"},
        {15170, {0x00}, "NONE", R"({"biz":0,"baz":0,"tur":0,"cstp":0,"csth":0,"cnf":0})"},
        {15300, {0x01, 0x80, 0xE4}, "REP:1 CLS:257 PRB:100", R"({"classes":[{"cls":257,"prb":100}]})"},
        {15400, {0x00, 0x2A, 0x01, 0x00, 0x00}, "PID:42 ON:65536", R"({"pid":42,"on":65536})"},
        {15480, {0x01, 0x00, 0x2A, 0x00, 0x00, 0x07}, "REP:1 PID:42 ON:7",
         R"({"associations":[{"pid":42,"on":7}]})"},
        {15631, {0x01, 0x40, 0x00, 0xF0, 0x00, 0x01, 0x00, 0x00, 0x80},
         "REP:1 AZCON:90.0000 ELCON:-11.2500 RGCONSTOP:39.06 RGCONSTART:19.53",
         R"({"points":[{"azcon":90,"elcon":-11.25,"rgconstop":39.0625,"rgconstart":19.53125}]})"},
    });
}

TEST(Cat015Items, CompoundItemsDecodeShowAndWriteBack) {
    expect_items({
        {15270, {0xF0, 0x03, 0xE8, 0x01, 0xF4, 0x00, 0xC8, 0x40, 0x00}, "SUBFIELDS:04/04",
         R"({"len":{"len":10},"wdt":{"wdt":5},"hgt":{"hgt":2},"ort":{"ort":90}})"},
        {15600, {0x80, 0x20, 0x00, 0x00, 0x00, 0xE0, 0x00, 0x00, 0x00}, "SUBFIELDS:01/03",
         R"({"p84":{"latitude":45,"longitude":-45}})"},
        {15600, {0x60, 0x00, 0x0A, 0x00, 0x14, 0x40, 0x00, 0x04, 0x00, 0x08, 0xC0}, "SUBFIELDS:02/03",
         R"({"hpr":{"rshpx":5,"rshpy":10,"corshpxy":0.5},"hpp":{"sdhpx":1,"sdhpy":2,"cosdhpxy":-0.5}})"},
        // Subfield 8 stands in the second octet of the primary subfield.
        {15601, {0x81, 0x80, 0xFF, 0xFF, 0x9C, 0x80, 0x7F}, "SUBFIELDS:02/08",
         R"({"gh":{"gh":-1},"coghha":{"x":-1,"y":0.9921875}})"},
        {15601, {0x10, 0x00, 0x10, 0x02}, "SUBFIELDS:01/07", R"({"ci6":{"uci6":16,"lci6":32}})"},
        {15602, {0x80, 0x00, 0x3E, 0x8F, 0xFC, 0x18}, "SUBFIELDS:01/04", R"({"hv":{"x":10,"y":-10}})"},
        {15603, {0x80, 0x01, 0x0F, 0xFF}, "SUBFIELDS:01/04", R"({"ha":{"x":1,"y":-0.0625}})"},
        {15604, {0x80, 0xFF, 0xFF, 0x9C}, "SUBFIELDS:01/06", R"({"vv":{"vv":-1}})"},
        {15605, {0x80, 0x01, 0x00}, "SUBFIELDS:01/05", R"({"va":{"va":2.56}})"},
        {15625, {0x80, 0x00, 0x01, 0x00}, "SUBFIELDS:01/07", R"({"r":{"r":25.6}})"},
        {15626, {0x08, 0xC0}, "SUBFIELDS:01/07", R"({"codvr":{"codvr":-0.5}})"},
        {15627, {0x84, 0x80, 0x00, 0x00, 0x00, 0x40, 0x00}, "SUBFIELDS:02/06",
         R"({"az":{"az":180},"azex":{"s":0,"e":90}})"},
        {15628, {0x80, 0xC0, 0x00}, "SUBFIELDS:01/06", R"({"el":{"el":-45}})"},
        {15630, {0x20, 0x01, 0xFF}, "SUBFIELDS:01/04", R"({"rpp":{"rpp":-1}})"},
        {15630, {0xD0, 0x05, 0xFB, 0x0A}, "SUBFIELDS:03/04", R"({"dpp":{"dpp":5},"dps":{"dps":-5},"rps":{"rps":10}})"},
    });
}

namespace {

// The summary and detail view of subfield `number` of a compound item.
std::string subfield_text(AstItemId id, const Wire &wire, uint32_t number, bool detail = false) {
    const AstDataItem item{wire.data(), wire.size(), id, 1};
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    if (list.valid != 1 || number > list.span_count) return "<no split>";
    std::vector<char> buf(4096);
    if (detail)
        ast_subfield_get_detail_html(buf.data(), buf.size(), &list.spans[number - 1], id * 1000 + number);
    else
        ast_subfield_get_summary(buf.data(), buf.size(), &list.spans[number - 1], id * 1000 + number);
    return buf.data();
}

}  // namespace

TEST(Cat015Items, SubfieldViews) {
    const Wire pos = {0xE0, 0x20, 0x00, 0x00, 0x00, 0xE0, 0x00, 0x00, 0x00, 0x00, 0x0A, 0x00, 0x14,
                      0x40, 0x00, 0x04, 0x00, 0x08, 0xC0};
    EXPECT_EQ(subfield_text(15600, pos, 1), "LATITUDE:45.00000000 LONGITUDE:-45.00000000");
    EXPECT_EQ(subfield_text(15600, pos, 2), "RSHPX:5.0 RSHPY:10.0 CORSHPXY:0.5000");
    EXPECT_EQ(subfield_text(15600, pos, 3), "SDHPX:1.00 SDHPY:2.00 COSDHPXY:-0.5000");
    const std::string d = subfield_text(15600, pos, 2, true);
    EXPECT_NE(d.find("<td>Bit[32-39]</td><td>CORSHPXY</td><td>0.5000</td>"), std::string::npos) << d;
    EXPECT_NE(d.find("<td>Bit[0-15]</td><td>RSHPX LSB=M</td><td>5.0</td>"), std::string::npos) << d;
    // An absent subfield and one of another item show nothing.
    const Wire len = {0x80, 0x03, 0xE8};
    EXPECT_EQ(subfield_text(15270, len, 2), "");
    EXPECT_EQ(subfield_text(15270, len, 1), "LEN:10.00");
    const AstDataItem item{len.data(), len.size(), 15270, 1};
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    char buf[64] = "junk";
    AstSubfield cut = list.spans[0];
    cut.length = 1;
    ast_subfield_015_270_get_summary(buf, sizeof buf, &cut, 15270001);
    EXPECT_STREQ(buf, "");
    ast_subfield_015_270_get_summary(buf, sizeof buf, &list.spans[0], 15270001);
    EXPECT_STREQ(buf, "LEN:10.00");
    // The item's detail view names every subfield with its summary.
    const std::string all = kovrel_test::detail_of(15270, len);
    EXPECT_NE(all.find("LEN:10.00"), std::string::npos) << all;
}

TEST(Cat015Items, CompoundEdges) {
    // A subfield cut short, an octet past the last subfield, an FX chain
    // that never ends: nothing decodes.
    const struct {
        AstItemId id;
        Wire wire;
    } bad[] = {
        {15270, {0x80, 0x03}},
        {15270, {0x80, 0x03, 0xE8, 0x00}},
        {15601, {0x81}},
        {15601, {0x81, 0x81}},
        {15300, {0x02, 0x80, 0xE4}},
        {15030, {0x41}},
    };
    for (const auto &b : bad) {
        EXPECT_EQ(kovrel_test::json_of(b.id, b.wire), "") << b.id;
        EXPECT_TRUE(kovrel_test::through_structure(b.id, b.wire).empty()) << b.id;
    }
    // A bit beyond the item's subfields adds nothing, as its size rule; it
    // is not written back.
    EXPECT_EQ(kovrel_test::json_of(15270, {0x88, 0x03, 0xE8}), R"({"len":{"len":10}})");
    EXPECT_EQ(kovrel_test::through_structure(15270, {0x88, 0x03, 0xE8}), Wire({0x80, 0x03, 0xE8}));

    // Encoding: nothing present is refused; the primary subfield grows to
    // the last present subfield; a value too wide is refused.
    uint8_t buf[32];
    AstDataItem out;
    AstItem015_601 h;
    ast_dataitem_015_601_init(&h);
    h.valid = 1;
    ast_dataitem_015_601_encode(&out, buf, sizeof buf, &h);
    EXPECT_EQ(out.valid, 0);
    h.coghha_present = 1;
    h.coghha_x_raw = -128;
    h.coghha_y_raw = 127;
    ast_dataitem_015_601_encode(&out, buf, 3, &h);
    EXPECT_EQ(out.valid, 0);  // one short
    ast_dataitem_015_601_encode(&out, buf, 4, &h);
    ASSERT_EQ(out.valid, 1);
    EXPECT_EQ(Wire(buf, buf + 4), Wire({0x01, 0x80, 0x80, 0x7F}));
    h.coghha_y_raw = 128;
    ast_dataitem_015_601_encode(&out, buf, sizeof buf, &h);
    EXPECT_EQ(out.valid, 0);
}

// ---- Repetitions: empty, full, and set element by element -------------------

namespace {

using kovrel_test::real_value;
using kovrel_test::repeated;
using kovrel_test::unsigned_value;

// Element i of a full list; the last one holds the widest values.
Wire classification(size_t i) { return i + 1 == AST_ITEM015_300_MAX ? Wire{0xFF, 0xFF} : Wire{uint8_t(i), uint8_t(i)}; }
Wire association(size_t i) {
    return i + 1 == AST_ITEM015_480_MAX ? Wire{0xFF, 0xFF, 0xFF, 0xFF, 0xFF} : Wire{0, uint8_t(i), 0, 1, uint8_t(i)};
}
Wire contour(size_t i) {
    return i + 1 == AST_ITEM015_631_MAX ? Wire{0xFF, 0xFF, 0x80, 0x00, 0xFF, 0xFF, 0xFF, 0xFF}
                                        : Wire{uint8_t(i), 0, 0x7F, 0xFF, 0, uint8_t(i), 0, 0};
}

// As many warnings as the structure keeps, the last at 127.
Wire full_warnings() {
    Wire w(AST_ITEM015_030_MAX, 0x03);
    w.back() = 0xFE;
    return w;
}

}  // namespace

TEST(Cat015Items, RepetitionsRoundTripThroughTheFields) {
    expect_items({
        {15300, {0x00}, "REP:0", R"({"classes":[]})"},
        {15480, {0x00}, "REP:0", R"({"associations":[]})"},
        {15631, {0x00}, "REP:0", R"({"points":[]})"},
        {15300, {0x02, 0x00, 0x00, 0xFF, 0xFF}, "REP:2 CLS:0 PRB:0 CLS:511 PRB:127",
         R"({"classes":[{"cls":0,"prb":0},{"cls":511,"prb":127}]})"},
        {15030, {0x03, 0x05, 0xFE}, "WE:01 02 7F", R"({"codes":[1,2,127]})"},
    });
    kovrel_test::expect_long({
        {15030, full_warnings(), "WE:01 01 ", R"(1,1,127]})"},
        {15300, repeated(AST_ITEM015_300_MAX, classification), "REP:255 ", R"({"cls":511,"prb":127}]})"},
        {15480, repeated(AST_ITEM015_480_MAX, association), "REP:255 ", R"({"pid":65535,"on":16777215}]})"},
        {15631, repeated(AST_ITEM015_631_MAX, contour), "REP:255 ",
         R"({"azcon":359.9945068359375,"elcon":-90,"rgconstop":9999.847412109375,"rgconstart":9999.847412109375}]})"},
    });
}

TEST(Cat015Items, ElementsSetByName) {
    // Past the end the count grows and the elements between stay zero;
    // past the array, and values beyond a field's bits, are refused.
    const Wire cls = {0x01, 0x80, 0xE4};  // class 257 at 100 %
    kovrel_test::expect_sets({
        {15300, cls, "classes[0].cls", unsigned_value(511), AST_FIELD_SET_OK, {0x01, 0xFF, 0xE4}},
        {15300, cls, "classes[0].cls", unsigned_value(512), AST_FIELD_SET_OUT_OF_RANGE, cls},
        {15300, cls, "classes[0].prb", unsigned_value(127), AST_FIELD_SET_OK, {0x01, 0x80, 0xFF}},
        {15300, cls, "classes[0].prb", unsigned_value(128), AST_FIELD_SET_OUT_OF_RANGE, cls},
        {15300, cls, "classes[2].prb", unsigned_value(1), AST_FIELD_SET_OK, {0x03, 0x80, 0xE4, 0, 0, 0, 0x01}},
        {15300, cls, "classes[255].prb", unsigned_value(1), AST_FIELD_SET_OUT_OF_RANGE, cls},
        {15480, {0x00}, "associations[0].on", unsigned_value(16777215), AST_FIELD_SET_OK, {0x01, 0, 0, 0xFF, 0xFF, 0xFF}},
        {15480, {0x00}, "associations[0].on", unsigned_value(16777216), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {15480, {0x00}, "associations[1].pid", unsigned_value(65535), AST_FIELD_SET_OK,
         {0x02, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0, 0, 0}},
        {15480, {0x00}, "associations[0].pid", unsigned_value(65536), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {15631, {0x00}, "points[0].elcon", real_value(-90.0), AST_FIELD_SET_OK, {0x01, 0, 0, 0x80, 0, 0, 0, 0, 0}},
        {15631, {0x00}, "points[0].elcon", real_value(90.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {15631, {0x00}, "points[0].rgconstart", real_value(10000.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {15631, {0x00}, "points[0].rgconstop", real_value(-1.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {15030, {0x40}, "codes[2]", unsigned_value(127), AST_FIELD_SET_OK, {0x41, 0x01, 0xFE}},
        {15030, {0x40}, "codes[0]", unsigned_value(128), AST_FIELD_SET_OUT_OF_RANGE, {0x40}},
        {15030, {0x40}, "codes[64]", unsigned_value(1), AST_FIELD_SET_OUT_OF_RANGE, {0x40}},
    });
}

TEST(Cat015Record, DisassembleAssembleAndAccessors) {
    const Wire wire = {0xC7, 0x07, 0xA0,                                   // FSPEC
                       0x00, 0x0F,                                         // I015/010
                       0x02,                                               // measurement plot
                       0x00, 0x96, 0x00,                                   // I015/145
                       0x01, 0x02,                                         // I015/161
                       0x80, 0x20, 0x00, 0x00, 0x00, 0xE0, 0x00, 0x00, 0x00,  // I015/600
                       0x80, 0x00, 0x75, 0x30,                             // I015/601: 300 m
                       0x80, 0x00, 0x3E, 0x8F, 0xFC, 0x18,                 // I015/602
                       0x80, 0xFF, 0xFF, 0x9C};                            // I015/604: -1 m/s
    AstDataRecord record;
    ast_datarecord_decode(&record, wire.data(), wire.size(), 15, &AST_UAP_STANDARD);
    ASSERT_EQ(record.valid, 1);
    ASSERT_EQ(record.item_count, 8u);
    auto d = std::make_unique<AstRecord015>();
    ast_datarecord_015_disassemble(d.get(), &record);
    ASSERT_EQ(d->valid, 1u);
    EXPECT_EQ(d->i601.gh, 300.0);
    Wire out(wire.size() + 8, 0);
    AstDataRecord written;
    ast_datarecord_015_assemble(&written, out.data(), out.size(), d.get(), &AST_UAP_STANDARD);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Wire(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(written.length)), wire);

    AstRecordMsgType mt;
    ast_datarecord_get_msgtype(&mt, &record);
    EXPECT_STREQ(ast_msgtype_to_str(mt.value), "Measurement Plot");
    AstTrackNumber tn;
    ast_datarecord_get_tracknum(&tn, &record);
    EXPECT_EQ(tn.number, 258u);
    AstRecordWgs84 pos;
    ast_datarecord_get_wgs84coord(&pos, &record);
    EXPECT_EQ(pos.valid, 1u);
    EXPECT_DOUBLE_EQ(pos.latitude, 45.0);
    EXPECT_DOUBLE_EQ(pos.longitude, -45.0);
    AstRecordValue fl;
    ast_datarecord_get_flightlevel(&fl, &record);
    EXPECT_NEAR(fl.value, 984.25, 0.01);
    AstVelocityCartesian v;
    ast_datarecord_get_cartesianvel(&v, &record);
    EXPECT_EQ(v.valid, 1u);
    EXPECT_DOUBLE_EQ(v.vx, 10.0);
    EXPECT_DOUBLE_EQ(v.vy, -10.0);
    AstVerticalRate vr;
    ast_datarecord_get_vrate(&vr, &record);
    EXPECT_EQ(vr.raw, -100);
    EXPECT_NEAR(vr.value, -196.85, 0.01);
    AstDataSourceIdentifier sid;
    ast_datarecord_get_sacsic(&sid, &record);
    EXPECT_EQ(sid.sic, 15u);

    // A report without position subfield P84 has no coordinate.
    const Wire bare = {0x81, 0x04, 0x00, 0x0F, 0x40, 0x00, 0x0A, 0x00, 0x14, 0x40};
    ast_datarecord_decode(&record, bare.data(), bare.size(), 15, &AST_UAP_STANDARD);
    ASSERT_EQ(record.valid, 1);
    ast_datarecord_get_wgs84coord(&pos, &record);
    EXPECT_EQ(pos.valid, 0u);
    ast_datarecord_get_msgtype(&mt, &record);
    EXPECT_EQ(mt.valid, 0u);
}
