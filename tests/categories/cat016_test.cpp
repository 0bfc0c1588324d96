#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "categories/packed_items.h"
#include "kovrel/cat016.h"
#include "kovrel/datarecord.h"
#include "kovrel/enums.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;

TEST(Cat016, PropertyListsAndTheirCounts) {
    // Transmitters take 21 octets each, receivers 12, pairs 6.
    std::vector<uint8_t> o(64, 0x00);
    o[0] = 2;
    EXPECT_EQ(ast_dataitem_get_size(o.data(), o.size(), 16410), 43u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 42, 16410), 0u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), o.size(), 16420), 25u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 24, 16420), 0u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), o.size(), 16300), 13u);
    // A count far beyond the data, and an empty list.
    o[0] = 0xFF;
    EXPECT_EQ(ast_dataitem_get_size(o.data(), o.size(), 16410), 0u);
    o[0] = 0;
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 1, 16410), 1u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 0, 16410), 0u);
    // The reference point: latitude and longitude, four octets each.
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 8, 16400), 8u);
    EXPECT_EQ(ast_dataitem_get_size(o.data(), 7, 16400), 0u);
}

TEST(Cat016, Names) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_get_name(16405), "Height of System Reference Point");
    EXPECT_STREQ(ast_dataitem_016_get_name(16200), "System Configuration Reporting Period");
    EXPECT_EQ(log.size(), 0u);
    EXPECT_STREQ(ast_dataitem_016_get_name(16020), "Unknown CAT016 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I016/020."));
}

TEST(Cat016, RecordScansBackToBack) {
    std::vector<uint8_t> tx(1 + 21, 0x11), rx(1 + 2 * 12, 0x22);
    tx[0] = 1;
    rx[0] = 2;
    // One item per FRN of the standard UAP, in FRN order.
    const std::vector<std::vector<uint8_t>> items = {
        {0x00, 0x16},                                      // I016/010
        {0x01},                                            // I016/015
        {0x01},                                            // I016/000
        {0x00, 0x96, 0x00},                                // I016/140
        {0x0A},                                            // I016/200
        {0x01, 0x00, 0x01, 0x00, 0x02, 0x00, 0x03},        // I016/300
        {0x1F, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00},  // I016/400
        {0x01, 0x00},                                      // I016/405
        tx,                                                // I016/410
        rx,                                                // I016/420
    };
    ASSERT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, 16), items.size());
    kovrel_test::expect_frn_items(16, items);
}

// ---- The category's own items ----------------------------------------------

using kovrel_test::expect_items;
using kovrel_test::Wire;

namespace {

// One transmitter: id 3 at 22.5 N 22.5 W, 1 m below the ellipsoid, 2 ns
// ahead of the reference, 100 ns accuracy, parallel index 258.
const Wire kTransmitter = {0x01, 0x00, 0x03, 0x10, 0x00, 0x00, 0x00, 0xF0, 0x00, 0x00, 0x00, 0xFF,
                           0xFC, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x64, 0x01, 0x02};
// One receiver: id 7 at 45 N 45 W, 10 m.
const Wire kReceiver = {0x01, 0x00, 0x07, 0x20, 0x00, 0x00, 0x00, 0xE0, 0x00, 0x00, 0x00, 0x00, 0x28};

}  // namespace

TEST(Cat016Items, DecodeShowAndWriteBack) {
    expect_items({
        {16200, {0x3C}, "PERIOD:60", R"({"period":60})"},
        {16200, {0xFF}, "PERIOD:255", R"({"period":255})"},
        {16300, {0x01, 0x00, 0x01, 0x00, 0x0A, 0x01, 0x00}, "REP:1 PID:1 TID:10 RID:256",
         R"({"pairs":[{"pid":1,"tid":10,"rid":256}]})"},
        {16300, {0x02, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x01, 0x00, 0x02, 0x00, 0x03, 0x00, 0x04},
         "REP:2 PID:65535 TID:0 RID:1 PID:2 TID:3 RID:4",
         R"({"pairs":[{"pid":65535,"tid":0,"rid":1},{"pid":2,"tid":3,"rid":4}]})"},
        {16405, {0x01, 0x00}, "HEIGHT:64.00", R"({"height":64})"},
        {16405, {0x80, 0x00}, "HEIGHT:-8192.00", R"({"height":-8192})"},
        {16410, kTransmitter, "REP:1 TID:3 LAT:22.50000000 LON:-22.50000000 ALT:-1.00 TTO:-2 ATO:100 PCI:258",
         R"({"tx":[{"tid":3,"lat":22.5,"lon":-22.5,"alt":-1,"tto":-2,"ato":100,"pci":258}]})"},
        {16420, kReceiver, "REP:1 RID:7 LAT:45.00000000 LON:-45.00000000 ALT:10.00",
         R"({"rx":[{"rid":7,"lat":45,"lon":-45,"alt":10}]})"},
        {16420, {0x00}, "REP:0", R"({"rx":[]})"},
        {16400, {0x20, 0x00, 0x00, 0x00, 0xC0, 0x00, 0x00, 0x00}, nullptr, R"({"lat":45,"lon":-90})"},
    });
}

TEST(Cat016Items, LimitsAndBadSpans) {
    // More transmitters than the structure keeps: the item does not decode.
    Wire many(1 + 33 * 21, 0);
    many[0] = 33;
    EXPECT_EQ(kovrel_test::summary_of(16410, many), "");
    many.resize(1 + 32 * 21);
    many[0] = 32;
    EXPECT_EQ(kovrel_test::through_structure(16410, many), many);
    // A receiver cut short, an octet too many, and the spare bits before ATO.
    EXPECT_EQ(kovrel_test::summary_of(16420, Wire(kReceiver.begin(), kReceiver.end() - 1)), "");
    Wire longer = kReceiver;
    longer.push_back(0);
    EXPECT_EQ(kovrel_test::json_of(16420, longer), "");
    Wire spare = kTransmitter;
    spare[17] = 0xF0;
    EXPECT_EQ(kovrel_test::through_structure(16410, spare), kTransmitter);
    EXPECT_EQ(kovrel_test::summary_of(16200, {}), "");

    // The detail view: one row per field of every entry.
    const std::string d = kovrel_test::detail_of(16410, kTransmitter);
    EXPECT_NE(d.find("<td>#1 Bit[16-47]</td><td>LAT LSB=DEG</td><td>22.50000000</td>"), std::string::npos) << d;
    EXPECT_NE(d.find("<td>#1 Bit[132-151]</td><td>ATO LSB=NS</td><td>100</td>"), std::string::npos) << d;

    // The reference point at 180/2^31 degrees: -180 fits, 180 does not.
    uint8_t buf[8];
    AstDataItem out;
    AstPositionWgs84 pos{};
    pos.valid = 1;
    pos.latitude = -90.0;
    pos.longitude = -180.0;
    ast_dataitem_016_400_encode(&out, buf, sizeof buf, &pos);
    ASSERT_EQ(out.valid, 1);
    EXPECT_EQ(Wire(buf, buf + 8), Wire({0xC0, 0x00, 0x00, 0x00, 0x80, 0x00, 0x00, 0x00}));
    pos.longitude = 180.0;
    ast_dataitem_016_400_encode(&out, buf, sizeof buf, &pos);
    EXPECT_EQ(out.valid, 0);
    pos.longitude = 0.0;
    ast_dataitem_016_400_encode(&out, buf, 7, &pos);
    EXPECT_EQ(out.valid, 0);

    // A count beyond the array is refused by the encoder.
    auto tx = std::make_unique<AstItem016_410>();
    ast_dataitem_016_410_init(tx.get());
    tx->valid = 1;
    tx->rep = AST_ITEM016_410_MAX + 1;
    std::vector<uint8_t> big(2048);
    ast_dataitem_016_410_encode(&out, big.data(), big.size(), tx.get());
    EXPECT_EQ(out.valid, 0);
    tx->rep = 1;
    tx->transmitters[0].ato_raw = 1u << 20;  // 21 bits
    ast_dataitem_016_410_encode(&out, big.data(), big.size(), tx.get());
    EXPECT_EQ(out.valid, 0);
    tx->transmitters[0].ato_raw = (1u << 20) - 1;
    ast_dataitem_016_410_encode(&out, big.data(), 21, tx.get());
    EXPECT_EQ(out.valid, 0);  // one short
    ast_dataitem_016_410_encode(&out, big.data(), 22, tx.get());
    EXPECT_EQ(out.length, 22u);
}

// ---- Repetitions: empty, full, and set element by element -------------------

namespace {

using kovrel_test::real_value;
using kovrel_test::repeated;
using kovrel_test::unsigned_value;

// Element i of a full list; the last one holds the widest values (the
// signed ones at their most negative where that is exact in degrees).
Wire pair(size_t i) { return i + 1 == AST_ITEM016_300_MAX ? Wire(6, 0xFF) : Wire{0, uint8_t(i), 1, 0, 0, uint8_t(i)}; }
Wire transmitter(size_t i) {
    if (i + 1 == AST_ITEM016_410_MAX)
        return {0xFF, 0xFF, 0x80, 0, 0, 0, 0x80, 0, 0, 0, 0x80, 0x00, 0x7F, 0xFF, 0xFF, 0xFF, 0x0F, 0xFF, 0xFF, 0xFF, 0xFF};
    Wire w(21, 0);
    w[1] = uint8_t(i);
    w[20] = uint8_t(i);
    return w;
}
Wire receiver(size_t i) {
    if (i + 1 == AST_ITEM016_420_MAX) return {0xFF, 0xFF, 0x80, 0, 0, 0, 0x80, 0, 0, 0, 0x7F, 0xFF};
    Wire w(12, 0);
    w[1] = uint8_t(i);
    return w;
}
Wire zeros21(size_t) { return Wire(21, 0); }
Wire zeros12(size_t) { return Wire(12, 0); }

}  // namespace

TEST(Cat016Items, RepetitionsRoundTripThroughTheFields) {
    expect_items({
        {16300, {0x00}, "REP:0", R"({"pairs":[]})"},
        {16410, {0x00}, "REP:0", R"({"tx":[]})"},
    });
    // As many as the structures keep: 255 pairs, 32 transmitters, 64 receivers.
    kovrel_test::expect_long({
        {16300, repeated(AST_ITEM016_300_MAX, pair), "REP:255 ", R"({"pid":65535,"tid":65535,"rid":65535}]})"},
        {16410, repeated(AST_ITEM016_410_MAX, transmitter), "REP:32 ",
         R"({"tid":65535,"lat":-180,"lon":-180,"alt":-8192,"tto":4294967294,"ato":1048575,"pci":65535}]})"},
        {16420, repeated(AST_ITEM016_420_MAX, receiver), "REP:64 ", R"({"rid":65535,"lat":-180,"lon":-180,"alt":8191.75}]})"},
    });
}

TEST(Cat016Items, ElementsSetByName) {
    // Past the end the count grows and the elements between stay zero;
    // past the array, and values beyond a field's bits, are refused.
    Wire last_tx = repeated(AST_ITEM016_410_MAX, zeros21);
    last_tx.back() = 0x01;
    Wire last_rx = repeated(AST_ITEM016_420_MAX, zeros12);
    last_rx[last_rx.size() - 12] = 0x01;  // the high octet of the last rid
    Wire one_tx = repeated(1, zeros21);
    one_tx[17] = 0x0F;
    one_tx[18] = one_tx[19] = 0xFF;
    kovrel_test::expect_sets({
        {16300, {0x00}, "pairs[0].rid", unsigned_value(65535), AST_FIELD_SET_OK, {0x01, 0, 0, 0, 0, 0xFF, 0xFF}},
        {16300, {0x00}, "pairs[0].rid", unsigned_value(65536), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {16300, {0x00}, "pairs[255].pid", unsigned_value(1), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {16410, {0x00}, "tx[0].ato", real_value(1048575.0), AST_FIELD_SET_OK, one_tx},
        {16410, {0x00}, "tx[0].ato", real_value(1048576.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {16410, {0x00}, "tx[0].lat", real_value(180.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {16410, {0x00}, "tx[0].tto", real_value(-4294967298.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {16410, {0x00}, "tx[31].pci", unsigned_value(1), AST_FIELD_SET_OK, last_tx},
        {16410, {0x00}, "tx[32].pci", unsigned_value(1), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {16420, {0x00}, "rx[63].rid", unsigned_value(256), AST_FIELD_SET_OK, last_rx},
        {16420, {0x00}, "rx[64].rid", unsigned_value(1), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
        {16420, {0x00}, "rx[0].alt", real_value(8192.0), AST_FIELD_SET_OUT_OF_RANGE, {0x00}},
    });
}

TEST(Cat016Record, DisassembleAssembleAndAccessors) {
    Wire wire = {0xFF, 0xE0, 0x00, 0x10, 0x07, 0x02, 0x00, 0x96, 0x00, 0x3C,
                 0x01, 0x00, 0x01, 0x00, 0x03, 0x00, 0x07,
                 0x20, 0x00, 0x00, 0x00, 0xC0, 0x00, 0x00, 0x00, 0x01, 0x00};
    wire.insert(wire.end(), kTransmitter.begin(), kTransmitter.end());
    wire.insert(wire.end(), kReceiver.begin(), kReceiver.end());
    AstDataRecord record;
    ast_datarecord_decode(&record, wire.data(), wire.size(), 16, &AST_UAP_STANDARD);
    ASSERT_EQ(record.valid, 1);
    ASSERT_EQ(record.item_count, 10u);
    auto d = std::make_unique<AstRecord016>();
    ast_datarecord_016_disassemble(d.get(), &record);
    ASSERT_EQ(d->valid, 1u);
    EXPECT_EQ(d->i300.pairs[0].rid, 7u);
    EXPECT_EQ(d->i410.transmitters[0].pci, 258u);
    EXPECT_DOUBLE_EQ(d->i420.receivers[0].lat, 45.0);
    EXPECT_DOUBLE_EQ(d->i400.longitude, -90.0);
    Wire out(wire.size() + 8, 0);
    AstDataRecord written;
    ast_datarecord_016_assemble(&written, out.data(), out.size(), d.get(), &AST_UAP_STANDARD);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Wire(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(written.length)), wire);

    AstDataSourceIdentifier sid;
    ast_datarecord_get_sacsic(&sid, &record);
    EXPECT_EQ(sid.sic, 16u);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &record);
    EXPECT_EQ(tod.raw, 38400u);
    AstRecordMsgType mt;
    ast_datarecord_get_msgtype(&mt, &record);
    EXPECT_EQ(mt.valid, 1u);
    EXPECT_STREQ(ast_msgtype_to_str(mt.value), "Unknown");
    wire[5] = 3;  // no such message type
    ast_datarecord_decode(&record, wire.data(), wire.size(), 16, &AST_UAP_STANDARD);
    ast_datarecord_get_msgtype(&mt, &record);
    EXPECT_EQ(mt.valid, 0u);
}
