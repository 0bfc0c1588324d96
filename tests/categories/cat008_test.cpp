#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "categories/packed_items.h"
#include "kovrel/cat008.h"
#include "kovrel/datarecord.h"
#include "kovrel/enums.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

namespace {

uint64_t size_of(std::vector<uint8_t> o, AstItemId id, size_t available = SIZE_MAX) {
    return ast_dataitem_get_size(o.data(), available == SIZE_MAX ? o.size() : available, id);
}

}  // namespace

TEST(Cat008, ProcessingStatusHasAThreeOctetFirstPart) {
    LogCapture log;
    // Bit 1 of the first two octets belongs to R and Q, not to an FX bit:
    // clear bits there must not end the item early, set ones must not extend it.
    EXPECT_EQ(size_of({0x00, 0x00, 0x00, 0xEE}, 8100), 3u);
    EXPECT_EQ(size_of({0x01, 0x01, 0x00, 0xEE}, 8100), 3u);
    EXPECT_EQ(size_of({0x00, 0x00}, 8100), 0u);
    EXPECT_EQ(ast_dataitem_008_100_get_size(nullptr, 8), 0u);
    EXPECT_EQ(log.size(), 0u);
    // FX of the third octet: cut off when nothing follows, else the record
    // goes on after the three octets defined.
    EXPECT_EQ(size_of({0x00, 0x00, 0x01}, 8100), 0u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(size_of({0x00, 0x00, 0x01, 0x00}, 8100), 3u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 3"));
}

TEST(Cat008, VariableAndRepetitiveItems) {
    LogCapture log;
    // I008/020: two octets at most.
    EXPECT_EQ(size_of({0x10, 0xFF}, 8020), 1u);
    EXPECT_EQ(size_of({0x11, 0x02, 0xFF}, 8020), 2u);
    EXPECT_EQ(size_of({0x11, 0x03}, 8020), 0u);
    EXPECT_EQ(size_of({0x11, 0x03, 0x00}, 8020), 2u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 2"));
    // I008/110: a status chain of any length, undelimitable while it runs on.
    std::vector<uint8_t> chain(40, 0x03);
    chain.back() = 0x02;
    EXPECT_EQ(size_of(chain, 8110), 40u);
    EXPECT_EQ(size_of(chain, 8110, 39), 0u);
    // Cartesian vectors are three octets, polar and weather vectors four,
    // contour points two.
    EXPECT_EQ(size_of({2, 1, 2, 3, 4, 5, 6}, 8036), 7u);
    EXPECT_EQ(size_of({2, 1, 2, 3, 4, 5, 6}, 8034), 0u);
    EXPECT_EQ(size_of({2, 1, 2, 3, 4, 5, 6, 7, 8}, 8034), 9u);
    EXPECT_EQ(size_of({2, 1, 2, 3, 4, 5, 6, 7, 8}, 8038), 9u);
    EXPECT_EQ(size_of({3, 1, 2, 3, 4, 5, 6}, 8050), 7u);
    EXPECT_EQ(size_of({0}, 8036), 1u);
}

TEST(Cat008, ExplicitFieldsAndNames) {
    LogCapture log;
    // SP and RFS fields report their length octet; the scan refuses what
    // ends beyond the data.
    const uint8_t sp[] = {0x05, 0xAA};
    EXPECT_EQ(ast_dataitem_get_size(sp, sizeof sp, 8999), 5u);
    EXPECT_EQ(ast_dataitem_get_size(sp, sizeof sp, 8997), 5u);
    AstDataItem item;
    ast_dataitem_scan(&item, sp, sizeof sp, 8997);
    EXPECT_EQ(item.valid, 0);
    const uint8_t rfs[] = {0x02, 0xAA, 0xBB};
    ast_dataitem_scan(&item, rfs, sizeof rfs, 8997);
    EXPECT_EQ(item.valid, 1);
    EXPECT_EQ(item.length, 2u);

    EXPECT_STREQ(ast_dataitem_get_name(8120), "Total Number of Items Constituting One Weather Picture");
    EXPECT_STREQ(ast_dataitem_008_get_name(8997), "Random Field Sequencing");
    EXPECT_STREQ(ast_dataitem_008_get_name(8036), "Sequence of Cartesian Vectors in SPF Notation");
    EXPECT_EQ(log.size(), 0u);
    // CAT008 has no Reserved Expansion Field.
    EXPECT_STREQ(ast_dataitem_008_get_name(8998), "Unknown CAT008 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I008/REF."));
    EXPECT_STREQ(ast_dataitem_008_get_name(48010), "Unknown CAT008 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I048/010."));
}

TEST(Cat008, RecordScansBackToBack) {
    // One item per FRN of the standard UAP, in FRN order.
    const std::vector<std::vector<uint8_t>> items = {
        {0x19, 0x01},                                      // I008/010
        {0x01},                                            // I008/000
        {0x13, 0x02},                                      // I008/020
        {0x01, 0x10, 0x20, 0x05},                          // I008/036
        {0x01, 0x0A, 0x14, 0x40, 0x00},                    // I008/034
        {0x91, 0x07},                                      // I008/040
        {0x02, 0x01, 0x02, 0x03, 0x04},                    // I008/050
        {0x01, 0x02, 0x03},                                // I008/090
        {0x20, 0x00, 0x10},                                // I008/100
        {0x01, 0x01, 0x00},                                // I008/110
        {0x00, 0x2A},                                      // I008/120
        {0x01, 0x0A, 0x14, 0x1E, 0x28},                    // I008/038
        {0x03, 0xAB, 0xCD},                                // I008/SPF
        {0x02, 0x00},                                      // I008/RFS
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 8), items.size());
    kovrel_test::expect_frn_items(8, items);
}

// ---- The category's own items ----------------------------------------------

using kovrel_test::expect_items;
using kovrel_test::Wire;

// Ranges and coordinates at 1/64 NM (scaling factor 0), azimuths at
// 360/2^16 degrees.
TEST(Cat008Items, DecodeShowAndWriteBack) {
    expect_items({
        {8020, {0x5C}, "ORG:LOCAL I:5 S:6", R"({"org":0,"i":5,"s":6})"},
        {8020, {0xA5, 0x06}, "ORG:SYSTEM I:2 S:2 TST ER", R"({"org":1,"i":2,"s":2,"tst":1,"er":1})"},
        {8020, {0x01, 0x00}, "ORG:LOCAL I:0 S:0", R"({"org":0,"i":0,"s":0,"tst":0,"er":0})"},
        {8034, {0x01, 0x40, 0x80, 0x20, 0x00}, "REP:1 STR:1.000 ENDR:2.000 AZ:45.0000",
         R"({"vectors":[{"str":1,"endr":2,"az":45}]})"},
        {8036, {0x02, 0xC0, 0x40, 0x10, 0x7F, 0x80, 0xFF},
         "REP:2 X:-1.000 Y:1.000 LENGTH:0.250 X:1.984 Y:-2.000 LENGTH:3.984",
         R"({"vectors":[{"x":-1,"y":1,"length":0.25},{"x":1.984375,"y":-2,"length":3.984375}]})"},
        {8038, {0x01, 0x00, 0x00, 0x40, 0xC0}, "REP:1 X1:0.000 Y1:0.000 X2:1.000 Y2:-1.000",
         R"({"vectors":[{"x1":0,"y1":0,"x2":1,"y2":-1}]})"},
        {8040, {0xA2, 0x0C}, "ORG:SYSTEM I:2 FSTLST:FIRST CSN:12", R"({"org":1,"i":2,"fstlst":2,"csn":12})"},
        {8040, {0x73, 0xFF}, "ORG:LOCAL I:7 FSTLST:ONLY CSN:255", R"({"org":0,"i":7,"fstlst":3,"csn":255})"},
        {8050, {0x02, 0x20, 0xE0, 0xF0, 0x10}, "REP:2 X1:0.500 Y1:-0.500 X1:-0.250 Y1:0.250",
         R"({"points":[{"x1":0.5,"y1":-0.5},{"x1":-0.25,"y1":0.25}]})"},
        {8100, {0xF0, 0x04, 0xD2}, "F:-2 R:0 Q:617", R"({"f":-2,"r":0,"q":617})"},
        {8100, {0x7F, 0xFF, 0xFE}, "F:15 R:7 Q:32767", R"({"f":15,"r":7,"q":32767})"},
        {8110, {0x03, 0x05, 0xFE}, "STATUS:01 02 7F", R"({"status":[1,2,127]})"},
        {8110, {0x00}, "STATUS:00", R"({"status":[0]})"},
        {8120, {0x01, 0x2C}, "TOTAL:300", R"({"total":300})"},
    });
}

TEST(Cat008Items, PictureScaleAndBadSpans) {
    // The coordinates scale by 2^f of the start-of-picture processing status.
    AstItem008_100 status;
    const Wire f = {0xF0, 0x04, 0xD2};
    const AstDataItem item{f.data(), f.size(), 8100, 1};
    ast_dataitem_008_100_decode(&status, &item);
    ASSERT_EQ(status.valid, 1u);
    EXPECT_DOUBLE_EQ(ast_dataitem_008_vector_lsb(&status), 1.0 / 256.0);
    status.f = 3;
    EXPECT_DOUBLE_EQ(ast_dataitem_008_vector_lsb(&status), 1.0 / 8.0);
    EXPECT_DOUBLE_EQ(ast_dataitem_008_vector_lsb(nullptr), 1.0 / 64.0);
    status.valid = 0;
    EXPECT_DOUBLE_EQ(ast_dataitem_008_vector_lsb(&status), 1.0 / 64.0);

    // The LSBs stand in the structure, whatever the wire.
    AstItem008_034 polar;
    ast_dataitem_008_034_init(&polar);
    EXPECT_DOUBLE_EQ(polar.range_lsb, 1.0 / 64.0);
    EXPECT_DOUBLE_EQ(polar.az_lsb, 360.0 / 65536.0);

    // An FX bit set after the three octets: read to the end, written clear.
    EXPECT_EQ(kovrel_test::summary_of(8100, {0xF0, 0x04, 0xD3}), "F:-2 R:0 Q:617");
    EXPECT_EQ(kovrel_test::through_structure(8100, {0xF0, 0x04, 0xD3}), f);
    const struct {
        AstItemId id;
        Wire wire;
    } bad[] = {
        {8110, {0x03}},                           // the last word announces another
        {8110, {0x02, 0x04}},                     // a word that nobody announced
        {8034, {0x02, 0x40, 0x80, 0x20, 0x00}},   // two vectors announced, one there
        {8050, {0x01, 0x20}},                     // a point cut short
        {8020, {0x5D}},                           // FX with nothing after it
        {8040, {0xA2}},
    };
    for (const auto &b : bad) {
        EXPECT_EQ(kovrel_test::summary_of(b.id, b.wire), "") << b.id;
        EXPECT_TRUE(kovrel_test::through_structure(b.id, b.wire).empty()) << b.id;
    }
    Wire words(AST_ITEM008_110_MAX + 1, 0x01);
    words.back() = 0x00;
    EXPECT_EQ(kovrel_test::summary_of(8110, words), "");
    words.erase(words.begin());
    EXPECT_EQ(kovrel_test::through_structure(8110, words), words);

    // Encoders refuse values their bits cannot hold.
    uint8_t buf[16];
    AstDataItem out;
    AstItem008_040 contour{};
    contour.valid = 1;
    contour.i = 8;
    ast_dataitem_008_040_encode(&out, buf, sizeof buf, &contour);
    EXPECT_EQ(out.valid, 0);
    auto cart = std::make_unique<AstItem008_036>();
    ast_dataitem_008_036_init(cart.get());
    cart->valid = 1;
    cart->rep = 1;
    cart->vectors[0].x = -129;
    ast_dataitem_008_036_encode(&out, buf, sizeof buf, cart.get());
    EXPECT_EQ(out.valid, 0);
    cart->vectors[0].x = -128;
    ast_dataitem_008_036_encode(&out, buf, 3, cart.get());
    EXPECT_EQ(out.valid, 0);  // one short
    ast_dataitem_008_036_encode(&out, buf, 4, cart.get());
    ASSERT_EQ(out.valid, 1);
    EXPECT_EQ(Wire(buf, buf + 4), Wire({0x01, 0x80, 0x00, 0x00}));
    AstItem008_110 station{};
    station.valid = 1;
    ast_dataitem_008_110_encode(&out, buf, sizeof buf, &station);
    EXPECT_EQ(out.valid, 0);  // no word
    station.count = 1;
    station.status[0] = 0x80;
    ast_dataitem_008_110_encode(&out, buf, sizeof buf, &station);
    EXPECT_EQ(out.valid, 0);  // eight bits

    const std::string d = kovrel_test::detail_of(8034, {0x01, 0x40, 0x80, 0x20, 0x00});
    EXPECT_NE(d.find("<td>#1 Bit[16-31]</td><td>AZ LSB=DEG</td><td>45.0000</td>"), std::string::npos) << d;
    const std::string q = kovrel_test::detail_of(8020, {0x5C});
    EXPECT_EQ(q.find("TST"), std::string::npos) << q;  // the second octet is absent
}

// ---- Repetitions: empty, full, and set element by element -------------------

namespace {

using kovrel_test::real_value;
using kovrel_test::repeated;
using kovrel_test::unsigned_value;

constexpr size_t kFull = AST_ITEM008_VECTOR_MAX;

// Element i of a full list; the last one holds the widest values its fields
// take (the signed ones at their most negative, the others all ones).
Wire polar(size_t i) {
    return i + 1 == kFull ? Wire{0xFF, 0xFF, 0xFF, 0xFF} : Wire{uint8_t(i), uint8_t(i + 1), 0x12, uint8_t(i)};
}
Wire cartesian(size_t i) { return i + 1 == kFull ? Wire{0x80, 0x80, 0xFF} : Wire{uint8_t(i), uint8_t(~i), uint8_t(i)}; }
Wire segment(size_t i) { return i + 1 == kFull ? Wire{0x80, 0x7F, 0x80, 0x7F} : Wire{uint8_t(i), 1, 2, uint8_t(~i)}; }
Wire point(size_t i) { return i + 1 == kFull ? Wire{0x80, 0x80} : Wire{uint8_t(i), uint8_t(i * 3)}; }
Wire zeros3(size_t) { return {0, 0, 0}; }

// As many status words as the structure keeps, each at 127.
Wire full_status() {
    Wire w(AST_ITEM008_110_MAX, 0xFF);
    w.back() = 0xFE;
    return w;
}

const char *full_status_json() {
    static std::string json;
    json = R"({"status":[127)";
    for (size_t i = 1; i < AST_ITEM008_110_MAX; ++i) json += ",127";
    json += "]}";
    return json.c_str();
}

}  // namespace

TEST(Cat008Items, RepetitionsRoundTripThroughTheFields) {
    expect_items({
        {8034, {0x00}, "REP:0", R"({"vectors":[]})"},
        {8036, {0x00}, "REP:0", R"({"vectors":[]})"},
        {8038, {0x00}, "REP:0", R"({"vectors":[]})"},
        {8050, {0x00}, "REP:0", R"({"points":[]})"},
        {8034, {0x02, 0x00, 0x01, 0x00, 0x01, 0xFF, 0xFF, 0xFF, 0xFF}, "REP:2 STR:0.000 ENDR:0.016 AZ:0.0055 STR:3.984 ENDR:3.984 AZ:359.9945",
         R"({"vectors":[{"str":0,"endr":0.015625,"az":0.0054931640625},{"str":3.984375,"endr":3.984375,"az":359.9945068359375}]})"},
        {8038, {0x02, 0x7F, 0x80, 0x01, 0xFF, 0x80, 0x7F, 0x80, 0x7F},
         "REP:2 X1:1.984 Y1:-2.000 X2:0.016 Y2:-0.016 X1:-2.000 Y1:1.984 X2:-2.000 Y2:1.984",
         R"({"vectors":[{"x1":1.984375,"y1":-2,"x2":0.015625,"y2":-0.015625},{"x1":-2,"y1":1.984375,"x2":-2,"y2":1.984375}]})"},
        {8110, full_status(), nullptr, full_status_json()},
    });
    // The most the count octet announces, the last element at its widest.
    kovrel_test::expect_long({
        {8034, repeated(kFull, polar), "REP:255 ", R"({"str":3.984375,"endr":3.984375,"az":359.9945068359375}]})"},
        {8036, repeated(kFull, cartesian), "REP:255 ", R"({"x":-2,"y":-2,"length":3.984375}]})"},
        {8038, repeated(kFull, segment), "REP:255 ", R"({"x1":-2,"y1":1.984375,"x2":-2,"y2":1.984375}]})"},
        {8050, repeated(kFull, point), "REP:255 ", R"({"x1":-2,"y1":-2}]})"},
    });
}

TEST(Cat008Items, ElementsSetByName) {
    // Past the end the count grows and the elements between stay zero;
    // past the array, and values beyond a field's bits, are refused.
    Wire full_cartesian = repeated(kFull, zeros3);
    full_cartesian[kFull * 3 - 2] = 0x40;  // the last vector's x
    const Wire cart = {0x01, 0x40, 0xC0, 0x10};  // x 1, y -1, length 0.25
    kovrel_test::expect_sets({
        {8036, cart, "vectors[0].x", real_value(1.984375), AST_FIELD_SET_OK, {0x01, 0x7F, 0xC0, 0x10}},
        {8036, cart, "vectors[0].y", real_value(-2.0), AST_FIELD_SET_OK, {0x01, 0x40, 0x80, 0x10}},
        {8036, cart, "vectors[0].x", real_value(2.0), AST_FIELD_SET_OUT_OF_RANGE, cart},
        {8036, cart, "vectors[0].y", real_value(-2.015625), AST_FIELD_SET_OUT_OF_RANGE, cart},
        {8036, cart, "vectors[0].length", real_value(4.0), AST_FIELD_SET_OUT_OF_RANGE, cart},
        {8036, cart, "vectors[0].length", real_value(-0.015625), AST_FIELD_SET_OUT_OF_RANGE, cart},
        {8036, cart, "vectors[2].y", real_value(0.5), AST_FIELD_SET_OK,
         {0x03, 0x40, 0xC0, 0x10, 0x00, 0x00, 0x00, 0x00, 0x20, 0x00}},
        {8036, {0x00}, "vectors[254].x", real_value(1.0), AST_FIELD_SET_OK, full_cartesian},
        {8036, {0x00}, "vectors[255].x", real_value(1.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {8034, {0x01, 0x40, 0x80, 0x20, 0x00}, "vectors[0].az", real_value(359.9945068359375), AST_FIELD_SET_OK,
         {0x01, 0x40, 0x80, 0xFF, 0xFF}},
        {8034, {0x01, 0x40, 0x80, 0x20, 0x00}, "vectors[0].endr", real_value(4.0), AST_FIELD_SET_OUT_OF_RANGE,
         {0x01, 0x40, 0x80, 0x20, 0x00}},
        {8034, {0x00}, "vectors[1].str", real_value(0.5), AST_FIELD_SET_OK, {0x02, 0, 0, 0, 0, 0x20, 0, 0, 0}},
        {8038, {0x00}, "vectors[0].y2", real_value(-0.015625), AST_FIELD_SET_OK, {0x01, 0, 0, 0, 0xFF}},
        {8038, {0x00}, "vectors[0].x2", real_value(2.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {8050, {0x01, 0x20, 0xE0}, "points[1].y1", real_value(-2.0), AST_FIELD_SET_OK, {0x02, 0x20, 0xE0, 0x00, 0x80}},
        {8050, {0x01, 0x20, 0xE0}, "points[0].x1", real_value(-3.0), AST_FIELD_SET_OUT_OF_RANGE, {0x01, 0x20, 0xE0}},
        {8110, {0x00}, "status[3]", unsigned_value(5), AST_FIELD_SET_OK, {0x01, 0x01, 0x01, 0x0A}},
        {8110, {0x00}, "status[0]", unsigned_value(127), AST_FIELD_SET_OK, {0xFE}},
        {8110, {0x00}, "status[0]", unsigned_value(128), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {8110, {0x00}, "status[64]", unsigned_value(1), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
    });
}

TEST(Cat008Record, DisassembleAssembleAndAccessors) {
    const Wire wire = {0xFF, 0xF8,                    // FRNs 1-12
                       0x00, 0x08,                    // I008/010
                       0x02,                          // Cartesian vectors
                       0xA5, 0x06,                    // I008/020
                       0x01, 0xC0, 0x40, 0x10,        // I008/036
                       0x01, 0x40, 0x80, 0x20, 0x00,  // I008/034
                       0xA2, 0x0C,                    // I008/040
                       0x01, 0x20, 0xE0,              // I008/050
                       0x00, 0x96, 0x00,              // I008/090
                       0xF0, 0x04, 0xD2,              // I008/100
                       0x03, 0x04,                    // I008/110
                       0x01, 0x2C,                    // I008/120
                       0x01, 0x00, 0x00, 0x40, 0xC0}; // I008/038
    AstDataRecord record;
    ast_datarecord_decode(&record, wire.data(), wire.size(), 8, &AST_UAP_STANDARD);
    ASSERT_EQ(record.valid, 1);
    ASSERT_EQ(record.item_count, 12u);
    auto d = std::make_unique<AstRecord008>();
    ast_datarecord_008_disassemble(d.get(), &record);
    ASSERT_EQ(d->valid, 1u);
    EXPECT_EQ(d->i036.vectors[0].x, -64);
    EXPECT_EQ(d->i038.vectors[0].y2, -64);
    EXPECT_EQ(d->i100.f, -2);
    EXPECT_EQ(d->i110.count, 2u);
    Wire out(wire.size() + 8, 0);
    AstDataRecord written;
    ast_datarecord_008_assemble(&written, out.data(), out.size(), d.get(), &AST_UAP_STANDARD);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Wire(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(written.length)), wire);

    AstDataSourceIdentifier sid;
    ast_datarecord_get_sacsic(&sid, &record);
    EXPECT_EQ(sid.sic, 8u);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &record);
    EXPECT_EQ(tod.raw, 38400u);
    AstRecordMsgType mt;
    ast_datarecord_get_msgtype(&mt, &record);
    EXPECT_STREQ(ast_msgtype_to_str(mt.value), "Video");
    const struct {
        uint8_t type;
        uint32_t valid;
        const char *name;
    } types[] = {{1, 1, "Video"}, {4, 1, "Video"}, {254, 1, "North"}, {255, 1, "North"}, {5, 0, "Unknown"}, {0, 0, "Unknown"}};
    for (const auto &t : types) {
        const Wire m = {0x40, t.type};
        ast_datarecord_decode(&record, m.data(), m.size(), 8, &AST_UAP_STANDARD);
        ast_datarecord_get_msgtype(&mt, &record);
        EXPECT_EQ(mt.valid, t.valid) << int(t.type);
        EXPECT_STREQ(ast_msgtype_to_str(mt.value), t.name) << int(t.type);
    }
}
