#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "categories/packed_items.h"
#include "kovrel/cat019.h"
#include "kovrel/datarecord.h"
#include "kovrel/enums.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

TEST(Cat019, TransponderAndSensorStatus) {
    LogCapture log;
    // I019/553: two octets, each with the status of two transponders.
    const uint8_t one[] = {0x44, 0x55};
    EXPECT_EQ(ast_dataitem_get_size(one, sizeof one, 19553), 1u);
    const uint8_t two[] = {0x45, 0x44, 0x55};
    EXPECT_EQ(ast_dataitem_get_size(two, sizeof two, 19553), 2u);
    const uint8_t open[] = {0x45, 0x45};
    EXPECT_EQ(ast_dataitem_get_size(open, sizeof open, 19553), 0u);
    EXPECT_EQ(log.size(), 0u);
    const uint8_t more[] = {0x45, 0x45, 0x44};
    EXPECT_EQ(ast_dataitem_get_size(more, sizeof more, 19553), 2u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 2"));
    // I019/552: identifier and status octet per remote sensor.
    const uint8_t sensors[] = {0x03, 1, 0x70, 2, 0x70, 3, 0x70};
    EXPECT_EQ(ast_dataitem_get_size(sensors, sizeof sensors, 19552), 7u);
    EXPECT_EQ(ast_dataitem_get_size(sensors, 6, 19552), 0u);
    // The RE field reports its length octet; the scan refuses it when short.
    const uint8_t re[] = {0x04, 0x01, 0x02};
    EXPECT_EQ(ast_dataitem_get_size(re, sizeof re, 19998), 4u);
    AstDataItem item;
    ast_dataitem_scan(&item, re, sizeof re, 19998);
    EXPECT_EQ(item.valid, 0);
}

TEST(Cat019, NamesAndSpareFrns) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(19620), "WGS-84 Undulation");
    EXPECT_STREQ(ast_dataitem_019_get_name(19600), "Position of the MLT System Reference Point");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_019_get_name(19997), "Unknown CAT019 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I019/RFS."));
    // FRNs 11 and 12 are spare: nothing there can be scanned.
    const uint8_t o[] = {0x00, 0x00};
    AstDataItem item;
    ast_dataitem_scan(&item, o, sizeof o, ast_uap_get_dataitem(&AST_UAP_STANDARD, 19, 11));
    EXPECT_EQ(item.valid, 0);
}

TEST(Cat019, RecordScansBackToBack) {
    // One item per FRN of the standard UAP (FRNs 11 and 12 are spare).
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x13},                                      // I019/010
        {0x02},                                            // I019/000
        {0x00, 0x96, 0x00},                                // I019/140
        {0x80},                                            // I019/550
        {0x80},                                            // I019/551
        {0x02, 0x01, 0x70, 0x02, 0x70},                    // I019/552
        {0x45, 0x44},                                      // I019/553
        {0x1F, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00},  // I019/600
        {0x00, 0x80},                                      // I019/610
        {0xF0},                                            // I019/620
        {},                                                // spare
        {},                                                // spare
        {0x03, 0x01, 0x02},                                // I019/REF
        {0x01},                                            // I019/SPF
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 19), items.size());
    kovrel_test::expect_frn_items(19, items);
}

// ---- The category's own items ----------------------------------------------

using kovrel_test::expect_items;
using kovrel_test::Wire;

TEST(Cat019Items, DecodeShowAndWriteBack) {
    expect_items({
        {19550, {0x40}, "NOGO:DEGRADED", R"({"nogo":1,"ovl":0,"tsv":0,"ttf":0})"},
        {19550, {0xB8}, "NOGO:NOGO OVL TSV TTF", R"({"nogo":2,"ovl":1,"tsv":1,"ttf":1})"},
        {19550, {0xC0}, "NOGO:UNDEFINED", R"({"nogo":3,"ovl":0,"tsv":0,"ttf":0})"},
        {19551, {0xC3}, "TP1A TP1B TP4A TP4B",
         R"({"tp1a":1,"tp1b":1,"tp2a":0,"tp2b":0,"tp3a":0,"tp3b":0,"tp4a":1,"tp4b":1})"},
        {19551, {0x00}, "NONE", R"({"tp1a":0,"tp1b":0,"tp2a":0,"tp2b":0,"tp3a":0,"tp3b":0,"tp4a":0,"tp4b":0})"},
        // Sensor 1 with its three radio parts, sensor 2 good and online.
        {19552, {0x02, 0x01, 0x70, 0x02, 0x0C}, "REP:2 RSI:1 RS1090 TX1030 TX1090 RSI:2 RSS RSO",
         R"({"rs":[{"rsi":1,"rs1090":1,"tx1030":1,"tx1090":1,"rss":0,"rso":0},)"
         R"({"rsi":2,"rs1090":0,"tx1030":0,"tx1090":0,"rss":1,"rso":1}]})"},
        {19552, {0x00}, "REP:0", R"({"rs":[]})"},
        {19553, {0xC8}, "REFTR1:GOOD REFTR2:FAULTED", R"({"reftr1":3,"reftr2":2})"},
        {19553, {0x45, 0x48}, "REFTR1:WARNING REFTR2:WARNING REFTR3:WARNING REFTR4:FAULTED",
         R"({"reftr1":1,"reftr2":1,"reftr3":1,"reftr4":2})"},
        // State 0 has no name: its number is shown.
        {19553, {0x00}, "REFTR1:0 REFTR2:0", R"({"reftr1":0,"reftr2":0})"},
        {19610, {0xFF, 0xFE}, "HEIGHT:-0.50", R"({"height":-0.5})"},
        {19610, {0x7F, 0xFF}, "HEIGHT:8191.75", R"({"height":8191.75})"},
        {19620, {0xF0}, "UND:-16", R"({"und":-16})"},
        {19620, {0x2A}, "UND:42", R"({"und":42})"},
        // Latitude and longitude at 180/2^30 degrees, written back at the same LSB.
        {19600, {0x1F, 0x00, 0x00, 0x00, 0xF0, 0x00, 0x00, 0x00}, nullptr, R"({"lat":87.1875,"lon":-45})"},
        {19600, {0x00, 0x00, 0x00, 0x01, 0xFF, 0xFF, 0xFF, 0xFF}, nullptr,
         R"({"lat":1.6763806343078613e-07,"lon":-1.6763806343078613e-07})"},
    });
}

TEST(Cat019Items, DetailViewsNameEveryBit) {
    const std::string d = kovrel_test::detail_of(19550, {0x58});
    EXPECT_NE(d.find("<td>Bit[0-1]</td><td>NOGO</td><td>DEGRADED</td>"), std::string::npos) << d;
    EXPECT_NE(d.find("<td>Bit[3]</td><td>TSV</td><td>1</td>"), std::string::npos) << d;
    EXPECT_EQ(d.find("Bit[5-7]"), std::string::npos) << d;  // spare bits are not shown
    const std::string h = kovrel_test::detail_of(19610, {0x00, 0x05});
    EXPECT_NE(h.find("<td>Bit[0-15]</td><td>HEIGHT LSB=M</td><td>1.25</td>"), std::string::npos) << h;
    const std::string r = kovrel_test::detail_of(19552, {0x01, 0x07, 0x08});
    EXPECT_NE(r.find("<td>Octet[0]</td><td>REP</td><td>1</td>"), std::string::npos) << r;
    EXPECT_NE(r.find("<td>#1 Bit[0-7]</td><td>RSI</td><td>7</td>"), std::string::npos) << r;
    EXPECT_NE(r.find("<td>#1 Bit[12]</td><td>RSS</td><td>1</td>"), std::string::npos) << r;
    EXPECT_NE(kovrel_test::detail_of(19553, {0x45, 0x00}).find("<td>Bit[8-9]</td><td>REFTR3</td><td>0</td>"),
              std::string::npos);
    EXPECT_EQ(kovrel_test::detail_of(19553, {0x44}).find("REFTR3"), std::string::npos);
}

TEST(Cat019Items, BadSpansGiveNothing) {
    const struct {
        AstItemId id;
        Wire wire;
    } bad[] = {
        {19550, {0x40, 0x00}},              // one octet too many
        {19610, {0x01}},                    // one short
        {19552, {0x02, 0x01, 0x70}},        // two sensors announced, one there
        {19552, {0x01, 0x01, 0x70, 0x00}},  // one octet past the sensor
        {19553, {0x45}},                    // FX announces an octet that is not there
        {19553, {0x44, 0x44}},              // an octet that no FX announced
    };
    for (const auto &b : bad) {
        EXPECT_EQ(kovrel_test::summary_of(b.id, b.wire), "") << b.id;
        EXPECT_EQ(kovrel_test::json_of(b.id, b.wire), "") << b.id;
        EXPECT_TRUE(kovrel_test::through_structure(b.id, b.wire).empty()) << b.id;
    }
    // The octets of one item under another's identifier.
    const uint8_t o[] = {0x40};
    const AstDataItem other{o, 1, 19620, 1};
    AstItem019_550 s;
    ast_dataitem_019_550_decode(&s, &other);
    EXPECT_EQ(s.valid, 0u);
    const AstDataItem marked_invalid{o, 1, 19550, 0};
    ast_dataitem_019_550_decode(&s, &marked_invalid);
    EXPECT_EQ(s.valid, 0u);
    // Spare bits are read past and written as 0.
    EXPECT_EQ(kovrel_test::summary_of(19550, {0x47}), "NOGO:DEGRADED");
    EXPECT_EQ(kovrel_test::through_structure(19550, {0x47}), Wire({0x40}));
}

TEST(Cat019Items, EncodersRefuseWhatDoesNotFit) {
    uint8_t buf[8] = {0};
    AstDataItem out;
    AstItem019_550 status;
    ast_dataitem_019_550_init(&status);
    status.nogo = 2;
    ast_dataitem_019_550_encode(&out, buf, sizeof buf, &status);
    EXPECT_EQ(out.valid, 0);  // not marked valid
    status.valid = 1;
    ast_dataitem_019_550_encode(&out, buf, 0, &status);
    EXPECT_EQ(out.valid, 0);  // no room
    ast_dataitem_019_550_encode(&out, buf, 1, &status);
    ASSERT_EQ(out.valid, 1);
    EXPECT_EQ(out.length, 1u);
    EXPECT_EQ(buf[0], 0x80);
    status.nogo = 4;
    ast_dataitem_019_550_encode(&out, buf, sizeof buf, &status);
    EXPECT_EQ(out.valid, 0);
    EXPECT_EQ(out.length, 0u);

    AstItem019_620 und{};
    und.valid = 1;
    und.und_raw = -128;
    ast_dataitem_019_620_encode(&out, buf, sizeof buf, &und);
    EXPECT_EQ(out.valid, 1);
    EXPECT_EQ(buf[0], 0x80);
    und.und_raw = 128;
    ast_dataitem_019_620_encode(&out, buf, sizeof buf, &und);
    EXPECT_EQ(out.valid, 0);

    // Transponders 3 and 4 need the second octet; it ends the FX chain.
    AstItem019_553 tr{};
    tr.valid = 1;
    tr.reftr1 = 3;
    tr.reftr4 = 1;
    ast_dataitem_019_553_encode(&out, buf, sizeof buf, &tr);
    ASSERT_EQ(out.length, 1u);
    EXPECT_EQ(buf[0], 0xC0);
    tr.ext = 1;
    ast_dataitem_019_553_encode(&out, buf, 1, &tr);
    EXPECT_EQ(out.valid, 0);  // one short
    ast_dataitem_019_553_encode(&out, buf, 2, &tr);
    ASSERT_EQ(out.length, 2u);
    EXPECT_EQ(buf[0], 0xC1);
    EXPECT_EQ(buf[1], 0x04);

    // The reference point: 180/2^30 degrees, 90 and -180 degrees still fit.
    AstPositionWgs84 pos{};
    pos.valid = 1;
    pos.latitude = 90.0;
    pos.longitude = -180.0;
    ast_dataitem_019_600_encode(&out, buf, sizeof buf, &pos);
    ASSERT_EQ(out.length, 8u);
    const Wire expected = {0x20, 0x00, 0x00, 0x00, 0xC0, 0x00, 0x00, 0x00};
    EXPECT_EQ(Wire(buf, buf + 8), expected);
    pos.latitude = 90.5;
    ast_dataitem_019_600_encode(&out, buf, sizeof buf, &pos);
    EXPECT_EQ(out.valid, 0);
}

// ---- Repetitions: empty, full, and set element by element -------------------

namespace {

// Sensor i of a full list; the last one with every bit set.
Wire sensor(size_t i) { return i + 1 == AST_ITEM019_552_MAX ? Wire{0xFF, 0x7C} : Wire{uint8_t(i), uint8_t(i & 0x7C)}; }

}  // namespace

TEST(Cat019Items, SensorListsRoundTripThroughTheFields) {
    kovrel_test::expect_long({
        {19552, kovrel_test::repeated(AST_ITEM019_552_MAX, sensor), "REP:255 ",
         R"({"rsi":255,"rs1090":1,"tx1030":1,"tx1090":1,"rss":1,"rso":1}]})"},
    });
    // Past the end the count grows and the sensors between stay zero;
    // past the array, and identifiers beyond eight bits, are refused.
    using kovrel_test::unsigned_value;
    kovrel_test::expect_sets({
        {19552, {0x01, 0x07, 0x08}, "rs[0].rsi", unsigned_value(255), AST_FIELD_SET_OK, {0x01, 0xFF, 0x08}},
        {19552, {0x01, 0x07, 0x08}, "rs[0].rsi", unsigned_value(256), AST_FIELD_SET_OUT_OF_RANGE, {0x01, 0x07, 0x08}},
        {19552, {0x00}, "rs[1].rso", kovrel_test::flag_value(true), AST_FIELD_SET_OK, {0x02, 0, 0, 0, 0x04}},
        {19552, {0x00}, "rs[1].tx1030", kovrel_test::flag_value(true), AST_FIELD_SET_OK, {0x02, 0, 0, 0, 0x20}},
        {19552, {0x00}, "rs[255].rsi", unsigned_value(1), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
    });
}

TEST(Cat019Record, DisassembleAssembleAndAccessors) {
    // I019/010, 000, 140, 550, 551, 552, 553, 600, 610 and 620.
    const Wire wire = {0xFF, 0xE0,                                     // FSPEC: FRNs 1-10
                       0x00, 0x13,                                     // SAC 0 SIC 19
                       0x02,                                           // periodic status
                       0x00, 0x96, 0x00,                               // 300 s
                       0x40,                                           // degraded
                       0x88,                                           // TP1A, TP3A
                       0x01, 0x05, 0x0C,                               // one sensor
                       0xC8,                                           // transponders
                       0x1F, 0x00, 0x00, 0x00, 0xF0, 0x00, 0x00, 0x00, // reference point
                       0x00, 0x80,                                     // 32 m
                       0xF0};                                          // -16 m
    AstDataRecord record;
    ast_datarecord_decode(&record, wire.data(), wire.size(), 19, &AST_UAP_STANDARD);
    ASSERT_EQ(record.valid, 1);
    ASSERT_EQ(record.item_count, 10u);
    auto d = std::make_unique<AstRecord019>();
    ast_datarecord_019_disassemble(d.get(), &record);
    ASSERT_EQ(d->valid, 1u);
    EXPECT_EQ(d->i552.rep, 1u);
    EXPECT_EQ(d->i552.sensors[0].rsi, 5u);
    EXPECT_EQ(d->i610.height, 32.0);
    EXPECT_EQ(d->i620.und, -16.0);
    EXPECT_DOUBLE_EQ(d->i600.latitude, 87.1875);
    Wire out(wire.size() + 8, 0);
    AstDataRecord written;
    ast_datarecord_019_assemble(&written, out.data(), out.size(), d.get(), &AST_UAP_STANDARD);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Wire(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(written.length)), wire);

    AstDataSourceIdentifier sid;
    ast_datarecord_get_sacsic(&sid, &record);
    EXPECT_EQ(sid.valid, 1u);
    EXPECT_EQ(sid.sic, 19u);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &record);
    EXPECT_EQ(tod.raw, 38400u);  // 300 s
    AstRecordMsgType mt;
    ast_datarecord_get_msgtype(&mt, &record);
    EXPECT_EQ(mt.valid, 1u);
    EXPECT_STREQ(ast_msgtype_to_str(mt.value), "Mlat");

    // Start of an update cycle; then a value with no type.
    Wire start = {0x40, 0x01};
    ast_datarecord_decode(&record, start.data(), start.size(), 19, &AST_UAP_STANDARD);
    ast_datarecord_get_msgtype(&mt, &record);
    EXPECT_STREQ(ast_msgtype_to_str(mt.value), "North");
    ast_datarecord_get_sacsic(&sid, &record);
    EXPECT_EQ(sid.valid, 0u);
    EXPECT_EQ(sid.sac, 0xFFFFFFFFu);
    start[1] = 4;
    ast_datarecord_decode(&record, start.data(), start.size(), 19, &AST_UAP_STANDARD);
    ast_datarecord_get_msgtype(&mt, &record);
    EXPECT_EQ(mt.valid, 0u);
    // A record of another category is not disassembled.
    record.category = 16;
    ast_datarecord_019_disassemble(d.get(), &record);
    EXPECT_EQ(d->valid, 0u);
}
