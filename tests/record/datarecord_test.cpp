#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/datarecord.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;

namespace {

// A CAT048 plot: I048/010, 140, 020, 040.
const std::vector<uint8_t> kPlot = {0xF0, 0x01, 0x02, 0x00, 0x00, 0x80, 0xA0, 0x10, 0x00, 0x20, 0x00};

AstDataRecord decode(const std::vector<uint8_t> &o, size_t available, uint32_t cat = 48,
                     const AstUap &uap = AST_UAP_STANDARD) {
    AstDataRecord r;
    ast_datarecord_decode(&r, o.data(), available, cat, &uap);
    return r;
}

// A profile of the application's own: every FRN up to 56 is I048/010.
uint32_t all_max(uint32_t) { return 56; }
AstItemId all_sacsic(uint32_t, uint32_t frn) { return frn <= 56 ? 48010 : 0; }
const AstUap kAllSacSic = {all_max, all_sacsic};

}  // namespace

TEST(DataRecord, DecodeSplitsItemsInFrnOrder) {
    AstDataRecord r = decode(kPlot, kPlot.size() + 5);  // trailing octets are not read
    ASSERT_EQ(r.valid, 1);
    EXPECT_EQ(r.length, 11u);
    EXPECT_EQ(r.category, 48u);
    EXPECT_EQ(r.fspec.length, 1u);
    ASSERT_EQ(r.item_count, 4u);
    const AstItemId ids[] = {48010, 48140, 48020, 48040};
    const uint64_t lengths[] = {2, 3, 1, 4};
    const uint8_t *p = kPlot.data() + 1;
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(r.items[i].id, ids[i]);
        EXPECT_EQ(r.items[i].length, lengths[i]);
        EXPECT_EQ(r.items[i].data, p);
        p += lengths[i];
    }
}

TEST(DataRecord, DecodeFailures) {
    LogCapture log;
    // I048/140 announced with only two octets left.
    const std::vector<uint8_t> short140 = {0x40, 0x00, 0x00};
    AstDataRecord r = decode(short140, short140.size());
    EXPECT_EQ(r.valid, 0);
    EXPECT_EQ(r.item_count, 0u);
    // Cut after two items: those found stay readable.
    r = decode(kPlot, 6);
    EXPECT_EQ(r.valid, 0);
    EXPECT_EQ(r.item_count, 2u);
    // A spare FRN (CAT062 FRN 2) and an item without a size rule (I048/055).
    const std::vector<uint8_t> spare = {0x40, 0x00, 0x00};
    EXPECT_EQ(decode(spare, 3, 62).valid, 0);
    const std::vector<uint8_t> frn23 = {0x01, 0x01, 0x01, 0x40, 0x00, 0x00};
    EXPECT_EQ(decode(frn23, frn23.size()).valid, 0);
    // Unterminated FSPEC, empty FSPEC, no octets.
    EXPECT_EQ(decode({0x01}, 1).valid, 0);
    EXPECT_EQ(decode({0x00}, 1).valid, 0);
    AstDataRecord none;
    ast_datarecord_decode(&none, nullptr, 10, 48, &AST_UAP_STANDARD);
    EXPECT_EQ(none.valid, 0);
    ast_datarecord_decode(&none, kPlot.data(), kPlot.size(), 48, nullptr);
    EXPECT_EQ(none.valid, 0);
}

TEST(DataRecord, AtMost48Items) {
    LogCapture log;
    std::vector<uint8_t> o = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0x00};
    o.resize(8 + 2 * 56, 0x01);
    // 48 items exactly: the 49th bit is cleared.
    // Octet 6 holds FRNs 43 to 49; without FRN 49 there are 48 items.
    std::vector<uint8_t> ok = o;
    ok[6] = 0xFC;
    AstDataRecord r = decode(ok, ok.size(), 48, kAllSacSic);
    EXPECT_EQ(r.valid, 1);
    EXPECT_EQ(r.item_count, 48u);
    EXPECT_EQ(log.size(), 0u);

    r = decode(o, o.size(), 48, kAllSacSic);
    EXPECT_EQ(r.valid, 0);
    EXPECT_EQ(r.item_count, 48u);
    EXPECT_TRUE(log.contains(AST_LOG_PANIC, "Too many dataitems in record: 48"));
}

TEST(DataRecord, EncodeFailuresAreLogged) {
    LogCapture log;
    AstDataRecordInput in{};
    in.category = 48;
    in.uap = AST_UAP_STANDARD;
    uint8_t value = 1;
    in.items[0] = {1, 62010, &value};  // not in the CAT048 profile: left out
    in.item_count = 1;
    uint8_t buffer[32];
    AstDataRecord r;
    ast_datarecord_encode(&r, buffer, sizeof buffer, &in);
    EXPECT_EQ(r.valid, 0);
    EXPECT_EQ(r.data, buffer);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to encode FSPEC."));

    log.clear();
    in.category = 3;  // no profile table at all
    ast_datarecord_encode(&r, buffer, sizeof buffer, &in);
    EXPECT_EQ(r.valid, 0);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to encode FSPEC."));

    log.clear();
    in.category = 48;
    in.items[0] = {1, 48030, &value};  // I048/030 has no encoder
    ast_datarecord_encode(&r, buffer, sizeof buffer, &in);
    EXPECT_EQ(r.valid, 0);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to encode dataitem I048/030."));
    // FRN 16 lives in the third FSPEC octet: FX bits set in the first two.
    EXPECT_EQ(buffer[0], 0x01);
    EXPECT_EQ(buffer[1], 0x01);
    EXPECT_EQ(buffer[2], 0x40);
}

// A profile whose highest FRN ends inside an FSPEC octet: the bits past it
// are cleared, whatever the buffer held (CAT002 in the ASR-10SS layout has
// six FRNs; CAT001 plots twenty-one, the end of their third octet).
TEST(DataRecord, EncodeWritesTheWholeFspecOverADirtyBuffer) {
    AstDataSourceIdentifier source{1, 25, 3};
    const struct {
        uint32_t category;
        const AstUap *uap;
        AstItemId id;
        std::vector<uint8_t> record;
    } cases[] = {
        {2, &AST_UAP_ASR10SS, 2010, {0x80, 0x19, 0x03}},
        {1, &AST_UAP_CAT001_PLOT, 1010, {0x80, 0x19, 0x03}},
        {16, &AST_UAP_STANDARD, 16010, {0x80, 0x19, 0x03}},
    };
    for (const auto &c : cases) {
        AstDataRecordInput in{};
        in.category = c.category;
        in.uap = *c.uap;
        in.items[0] = {1, c.id, &source};
        in.item_count = 1;
        uint8_t buffer[16];
        std::memset(buffer, 0xFF, sizeof buffer);
        AstDataRecord r;
        ast_datarecord_encode(&r, buffer, sizeof buffer, &in);
        ASSERT_EQ(r.valid, 1) << c.category;
        EXPECT_EQ(std::vector<uint8_t>(buffer, buffer + r.length), c.record) << c.category;
    }
}

TEST(DataRecord, CopyAndModifyWithoutReplacements) {
    AstDataRecord r = decode(kPlot, kPlot.size());
    ASSERT_EQ(r.valid, 1);
    std::vector<uint8_t> b(kPlot.size(), 0xEE);
    AstDataRecord c;
    ast_datarecord_copy(&c, b.data(), b.size() - 1, &r);
    EXPECT_EQ(c.valid, 0);
    ast_datarecord_copy(&c, b.data(), b.size(), &r);
    EXPECT_EQ(c.valid, 1);
    EXPECT_EQ(c.length, kPlot.size());
    EXPECT_EQ(b, kPlot);
    EXPECT_EQ(c.items[3].data, b.data() + 7);

    std::fill(b.begin(), b.end(), 0);
    AstDataItemList none{};
    AstDataRecord m;
    ast_datarecord_modify(&m, b.data(), b.size(), &r, &none);
    EXPECT_EQ(m.valid, 1);
    EXPECT_EQ(m.length, kPlot.size());
    EXPECT_EQ(b, kPlot);
    ast_datarecord_modify(&m, b.data(), b.size() - 2, &r, nullptr);
    EXPECT_EQ(m.valid, 0);
}

TEST(DataRecord, DetailHtmlShowsTwoDigitSizes) {
    // I048/SPF of 120 octets shows "12" in the size column, as 12 octets would.
    std::vector<uint8_t> o = {0x01, 0x01, 0x01, 0x04, 120};
    o.resize(4 + 120, 0x00);
    AstDataRecord r = decode(o, o.size());
    ASSERT_EQ(r.valid, 1);
    std::string html(2048, '\0');
    ast_datarecord_get_detail_html(html.data(), html.size(), &r);
    html.resize(html.find('\0'));
    EXPECT_EQ(html,
              "<table class=\"detail_table\"><tr><th>Dataitem</th><th>Name</th><th>Size</th><th>Summary</th></tr>"
              "<tr><td>I048/SPF</td><td>Special Purpose Field</td><td>12</td><td>SPECIAL_PURPOSE</td></tr>"
              "</table><br/>");

    r = decode(kPlot, kPlot.size());
    std::string hex(2048, '\0');
    ast_datarecord_get_hex_html(hex.data(), hex.size(), &r);
    EXPECT_NE(hex.find("<td>F0</td><td>01</td><td>02</td>"), std::string::npos);
    r.valid = 0;
    ast_datarecord_get_hex_html(hex.data(), hex.size(), &r);
    EXPECT_STREQ(hex.c_str(), "");
}

TEST(DataRecord, AccessorsFailSafely) {
    AstDataRecord r = decode(kPlot, kPlot.size());
    AstDataSourceIdentifier sacsic;
    ast_datarecord_get_sacsic(&sacsic, nullptr);
    EXPECT_EQ(sacsic.valid, 0u);
    EXPECT_EQ(sacsic.sac, 0xFFFFFFFFu);
    EXPECT_EQ(sacsic.sic, 0xFFFFFFFFu);
    AstRecordCallsign cs;
    std::memset(&cs, 0x55, sizeof cs);
    r.category = 3;  // a category without accessors
    ast_datarecord_get_callsign(&cs, &r);
    const AstRecordCallsign zero{};
    EXPECT_EQ(0, std::memcmp(&cs, &zero, sizeof cs));
    EXPECT_EQ(sizeof cs, 10u);
    AstRecordWgs84 pos;
    ast_datarecord_get_wgs84coord(&pos, &r);
    EXPECT_EQ(pos.valid, 0u);
    EXPECT_EQ(pos.latitude, 0.0);
    AstDataRecordFuncs f;
    ast_datarecord_get_func(&f, 3);
    EXPECT_EQ(f.get_sacsic, nullptr);
}
