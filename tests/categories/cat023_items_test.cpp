// CAT023 ground station and service reports from their wire octets: every
// summary and field, the detail tables, the encoders and their limits, the
// statistics counters and the accessors.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kovrel/cat023.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/fields.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

AstDataItem span(const Octets &o, AstItemId id, uint8_t valid = 1) {
    return AstDataItem{o.data(), o.size(), id, valid};
}

std::string text(void (*fn)(char *, size_t, const AstDataItem *), const AstDataItem &item) {
    std::vector<char> buf(4096, '#');
    fn(buf.data(), buf.size(), &item);
    return buf.data();
}

std::string json(const AstDataItem &item) {
    std::vector<char> buf(4096, '#');
    ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    return buf.data();
}

// The address of a span that lives to the end of the full expression.
const AstDataItem *at(const AstDataItem &item) { return &item; }

const Octets kTwoCounters = {0x02, 0x03, 0x80, 0x00, 0x00, 0x01, 0x00, 0x15, 0x00, 0xFF, 0xFF, 0xFF, 0xFF};

}  // namespace

TEST(Cat023Items, SummariesAndFields) {
    const struct {
        AstItemId id;
        Octets wire;
        const char *summary;
        const char *json;
    } cases[] = {
        {23000, {0x01}, "RPT_TYPE:STATION_STATUS", R"({"mt":1})"},
        {23000, {0x02}, "RPT_TYPE:SERVICE_STATUS", R"({"mt":2})"},
        {23000, {0x03}, "RPT_TYPE:SERVICE_STATISTICS", R"({"mt":3})"},
        {23000, {0x00}, "RPT_TYPE:UNDEFINED", R"({"mt":0})"},
        {23000, {0x04}, "RPT_TYPE:UNDEFINED", R"({"mt":4})"},
        // STYP 10 and 0 are kept as 0: nothing appended.
        {23015, {0x1A}, "SID:1", R"({"sid":1,"styp":0})"},
        {23015, {0x12}, "SID:1 STYP:ADSB_ES", R"({"sid":1,"styp":2})"},
        {23015, {0xF9}, "SID:15 STYP:MLT", R"({"sid":15,"styp":9})"},
        {23015, {0x01}, "SID:0 STYP:ADSB_VDL4", R"({"sid":0,"styp":1})"},
        // The TSV bit clear means the time source is valid.
        {23100, {0x00}, "STS:GO TSV", R"({"nogo":0,"odp":0,"oxt":0,"msc":0,"tsv":0,"spo":0,"rn":0})"},
        {23100, {0xFE}, "STS:NOGO ODP OXT MSC SPO RN", R"({"nogo":1,"odp":1,"oxt":1,"msc":1,"tsv":1,"spo":1,"rn":1})"},
        {23100, {0x09, 0x14}, "STS:GO GSSP:10S",
         R"({"nogo":0,"odp":0,"oxt":0,"msc":0,"tsv":1,"spo":0,"rn":0,"gssp":10})"},
        {23100, {0x01, 0x00}, "STS:GO TSV", R"({"nogo":0,"odp":0,"oxt":0,"msc":0,"tsv":0,"spo":0,"rn":0,"gssp":0})"},
        {23101, {0x00, 0x21, 0x14}, "RP:DATA_DRIVEN SSRP:10S", R"({"rp":0,"sc":1,"ssrp":10})"},
        {23101, {0x05, 0x00}, "RP:2.5S", R"({"rp":2.5,"sc":0})"},
        {23101, {0x02, 0x40}, "RP:1S", R"({"rp":1,"sc":2})"},
        {23101, {0xFF, 0xFF, 0xFE}, "RP:127.5S SSRP:127S", R"({"rp":127.5,"sc":7,"ssrp":127})"},
        {23110, {0x00}, "UNKNOWN", R"({"stat":0})"},
        {23110, {0x03, 0x00}, "FAILED", R"({"stat":1})"},
        {23110, {0x04}, "DISABLED", R"({"stat":2})"},
        {23110, {0x06}, "DEGRADED", R"({"stat":3})"},
        {23110, {0x08}, "NORMAL", R"({"stat":4})"},
        {23110, {0xFA}, "INIT", R"({"stat":5})"},
        {23110, {0x0C}, "RESERVED", R"({"stat":6})"},
        {23110, {0x0E}, "RESERVED", R"({"stat":7})"},
        {23120, {0x00}, "COUNTERS:0", R"({"counters":[]})"},
        // The spare bits beside REF are not read.
        {23120, {0x01, 0x21, 0x7F, 0x00, 0x00, 0x00, 0x09}, "COUNTERS:1",
         R"({"counters":[{"type":33,"ref":0,"counter":9}]})"},
        {23120, kTwoCounters, "COUNTERS:2",
         R"({"counters":[{"type":3,"ref":1,"counter":256},{"type":21,"ref":0,"counter":4294967295}]})"},
        {23200, {0x00}, "RNG:0NM", R"({"value":0})"},
        {23200, {0xFF}, "RNG:255NM", R"({"value":255})"},
    };
    for (const auto &c : cases) {
        AstDataItem item;
        ast_dataitem_scan(&item, c.wire.data(), c.wire.size(), c.id);
        ASSERT_EQ(item.valid, 1) << c.id;
        char buf[64];
        ast_dataitem_get_summary(buf, sizeof buf, &item);
        EXPECT_STREQ(buf, c.summary) << c.id << " " << int(c.wire[0]);
        EXPECT_EQ(json(item), c.json) << c.id << " " << int(c.wire[0]);
    }
}

TEST(Cat023Items, DetailTables) {
    const std::string open4 = "<table class=\"detail_table\"><tr><th>Bit</th><th>ID</th><th>Name</th><th>Value</th></tr>";
    EXPECT_EQ(text(ast_dataitem_023_015_get_detail_html, span({0x23}, 23015)),
              open4 + "<tr><td>Bit[1-4]</td><td>SID</td><td>SERVICE_IDENTIFICATION</td><td>2</td></tr>"
                      "<tr class=\"even_row\"><td>Bit[5-8]</td><td>STYP</td><td>TYPE_OF_SERVICE</td><td>ADSB_UAT</td></tr></table><br/>");
    EXPECT_NE(text(ast_dataitem_023_015_get_detail_html, span({0x2F}, 23015))
                  .find("<td>TYPE_OF_SERVICE</td><td>UNKNOWN</td>"),
              std::string::npos);

    // TSV shows validity: 1 when the wire bit is clear.
    const std::string status = text(ast_dataitem_023_100_get_detail_html, span({0x81, 0x14}, 23100));
    EXPECT_EQ(status.rfind(open4 + "<tr><td>Bit[1]</td><td>NOGO</td><td>DATA_NOT_USED_OPERATIONALLY</td><td>1</td></tr>", 0),
              0u)
        << status;
    EXPECT_NE(status.find("<tr><td>Bit[5]</td><td>TSV</td><td>TIME_SOURCE_VALID</td><td>1</td></tr>"),
              std::string::npos);
    EXPECT_NE(status.find("<tr><td>Bit[9-15]</td><td>GSSP</td><td>STATUS_REPORT_PERIOD</td><td>10</td></tr>"),
              std::string::npos);
    EXPECT_EQ(text(ast_dataitem_023_100_get_detail_html, span({0x08}, 23100)).find("GSSP"), std::string::npos);

    const std::string config = text(ast_dataitem_023_101_get_detail_html, span({0x00, 0x21, 0x14}, 23101));
    EXPECT_EQ(config,
              "<table class=\"detail_table\"><tr><th>Octet</th><th>Bit</th><th>ID</th><th>Name</th><th>Value</th></tr>"
              "<tr><td>Octet[1]</td><td>Bit[1-8]</td><td>RP</td><td>REPORT_PERIOD</td><td>DATA_DRIVEN</td></tr>"
              "<tr class=\"even_row\"><td>Octet[2]</td><td>Bit[1-3]</td><td>SC</td><td>SERVICE_CLASS</td><td>NRA</td></tr>"
              "<tr><td>Octet[2]</td><td>Bit[4-7]</td><td>SPARE</td><td>SPARE</td><td>0</td></tr>"
              "<tr class=\"even_row\"><td>Octet[2]</td><td>Bit[8]</td><td>FX</td><td>FIELD_EXTENSION_INDICATOR</td><td>1</td></tr>"
              "<tr><td>Octet[3]</td><td>Bit[1-7]</td><td>SSRP</td><td>SERVICE_STATUS_REPORT_PERIOD</td><td>10 S</td></tr>"
              "<tr class=\"even_row\"><td>Octet[3]</td><td>Bit[8]</td><td>FX</td><td>FIELD_EXTENSION_INDICATOR</td><td>0</td></tr>"
              "</table><br/>");
    const std::string period = text(ast_dataitem_023_101_get_detail_html, span({0x05, 0x9E}, 23101));
    EXPECT_NE(period.find("<td>REPORT_PERIOD</td><td>5 (2.5 S)</td>"), std::string::npos) << period;
    EXPECT_NE(period.find("<td>SERVICE_CLASS</td><td>RESERVED</td>"), std::string::npos);
    EXPECT_NE(period.find("<td>SPARE</td><td>15</td>"), std::string::npos);
    EXPECT_EQ(period.find("Octet[3]"), std::string::npos);

    const std::string counters = text(ast_dataitem_023_120_get_detail_html, span(kTwoCounters, 23120));
    EXPECT_NE(counters.find("<tr><td>#1</td><td>3</td><td>TOTAL_RECEIVED</td><td>FROM_LAST_REPORT</td><td>256</td></tr>"
                            "<tr class=\"even_row\"><td>#2</td><td>21</td><td>BASIC</td><td>FROM_MIDNIGHT</td><td>4294967295</td></tr>"),
              std::string::npos)
        << counters;
    EXPECT_EQ(text(ast_dataitem_023_200_get_detail_html, span({0xC8}, 23200)),
              open4 + "<tr><td>Bit[1-8]</td><td>RNG</td><td>OPERATIONAL_RANGE</td><td>200 NM</td></tr></table><br/>");

    const struct {
        uint32_t type;
        const char *name;
    } names[] = {{0, "UNKNOWN_MESSAGES"}, {4, "TOTAL_TRANSMITTED"}, {5, "RESERVED"}, {19, "RESERVED"},
                 {20, "TISB_MANAGEMENT"}, {32, "TCP_TWO_SLOT"},    {33, "RESERVED"}, {255, "RESERVED"}};
    for (const auto &n : names) EXPECT_STREQ(ast_dataitem_023_120_type_name(n.type), n.name) << n.type;
}

TEST(Cat023Items, StatisticsAreReadOnlyWhenWhole) {
    // REP 33 is refused even with a matching length; REP is kept.
    Octets many(1 + 6 * 33, 0x00);
    many[0] = 33;
    AstItem023_120 d;
    ast_dataitem_023_120_decode(&d, at(span(many, 23120)));
    EXPECT_TRUE(d.valid == 0 && d.rep == 33);
    // 32 is the most.
    Octets full(1 + 6 * 32, 0x00);
    full[0] = 32;
    full[full.size() - 1] = 0x07;
    ast_dataitem_023_120_decode(&d, at(span(full, 23120)));
    EXPECT_TRUE(d.valid == 1 && d.rep == 32 && d.counters[31].counter == 7);
    // A length that does not match REP.
    const Octets shorter(kTwoCounters.begin(), kTwoCounters.end() - 1);
    ast_dataitem_023_120_decode(&d, at(span(shorter, 23120)));
    EXPECT_TRUE(d.valid == 0 && d.rep == 2);
    EXPECT_EQ(text(ast_dataitem_023_120_get_summary, span(shorter, 23120)), "");
}

TEST(Cat023Items, BadSpansGiveNothing) {
    const Octets one = {0x12};
    const Octets two = {0x12, 0x00};
    const Octets three = {0x00, 0x01, 0x00};
    const Octets fx_without_octet = {0x00, 0x01};
    const Octets unannounced = {0x00, 0x00, 0x00};
    const Octets four = {0x00, 0x01, 0x00, 0x00};
    const struct {
        AstDataItem item;
        void (*fn)(char *, size_t, const AstDataItem *);
    } cases[] = {
        {span(one, 23015, 0), ast_dataitem_023_015_get_summary},
        {span(two, 23015), ast_dataitem_023_015_get_detail_html},
        {span(one, 23016), ast_dataitem_023_015_get_summary},
        {span(one, 23100, 0), ast_dataitem_023_100_get_detail_html},
        {AstDataItem{one.data(), 0, 23100, 1}, ast_dataitem_023_100_get_summary},
        {span(one, 23101), ast_dataitem_023_101_get_summary},    // one octet
        {span(two, 23101, 0), ast_dataitem_023_101_get_summary},
        {span(fx_without_octet, 23101), ast_dataitem_023_101_get_summary},  // FX set, no third octet
        {span(unannounced, 23101), ast_dataitem_023_101_get_detail_html},    // a third octet unannounced
        {span(four, 23101), ast_dataitem_023_101_get_summary},
        {span(three, 23110, 0), ast_dataitem_023_110_get_summary},
        {span(two, 23200), ast_dataitem_023_200_get_summary},
        {span(one, 23200, 0), ast_dataitem_023_200_get_detail_html},
        {span(two, 23000), ast_dataitem_023_000_get_summary},
        {AstDataItem{nullptr, 1, 23200, 1}, ast_dataitem_023_200_get_summary},
    };
    for (const auto &c : cases) EXPECT_EQ(text(c.fn, c.item), "") << c.item.id << " " << c.item.length;
}

TEST(Cat023Items, EncodersWriteTheLayoutsAndRefuseWhatDoesNotFit) {
    const auto bytes = [](const AstDataItem &out, const uint8_t *buf) {
        return out.valid == 1 ? Octets(buf, buf + out.length) : Octets{};
    };
    uint8_t buf[256];
    AstDataItem out;

    const struct {
        AstItem023_101 in;
        Octets expected;
    } configs[] = {
        {{1, 0, 0.0, 1, 1, 10}, {0x00, 0x21, 0x14}},
        {{1, 5, 2.5, 0, 0, 0}, {0x05, 0x00}},
        {{1, 255, 0.0, 7, 1, 127}, {0xFF, 0xE1, 0xFE}},
        {{1, 256, 0.0, 0, 0, 0}, {}},
        {{1, 0, 0.0, 8, 0, 0}, {}},
        {{1, 0, 0.0, 0, 1, 128}, {}},
        {{0, 5, 0.0, 0, 0, 0}, {}},
    };
    for (const auto &c : configs) {
        ast_dataitem_023_101_encode(&out, buf, sizeof buf, &c.in);
        EXPECT_EQ(bytes(out, buf), c.expected) << c.in.rp_raw << " " << c.in.sc << " " << c.in.ssrp;
        if (c.expected.empty()) continue;
        ast_dataitem_023_101_encode(&out, buf, c.expected.size() - 1, &c.in);
        EXPECT_EQ(out.valid, 0);
    }

    const struct {
        uint32_t valid, stat;
        Octets expected;
    } statuses[] = {{1, 4, {0x08}}, {1, 7, {0x0E}}, {1, 8, {}}, {0, 1, {}}};
    for (const auto &c : statuses) {
        const AstItem023_110 in{c.valid, c.stat};
        ast_dataitem_023_110_encode(&out, buf, sizeof buf, &in);
        EXPECT_EQ(bytes(out, buf), c.expected) << c.stat;
    }

    const struct {
        uint32_t valid, value;
        Octets expected;
    } ranges[] = {{1, 0, {0x00}}, {1, 255, {0xFF}}, {1, 256, {}}, {0, 10, {}}};
    for (const auto &c : ranges) {
        const AstItem023_200 in{c.valid, c.value};
        ast_dataitem_023_200_encode(&out, buf, sizeof buf, &in);
        EXPECT_EQ(bytes(out, buf), c.expected) << c.value;
        ast_dataitem_023_200_encode(&out, buf, 0, &in);
        EXPECT_EQ(out.valid, 0);
    }

    AstItem023_120 stats;
    ast_dataitem_023_120_decode(&stats, at(span(kTwoCounters, 23120)));
    ASSERT_EQ(stats.valid, 1u);
    ast_dataitem_023_120_encode(&out, buf, sizeof buf, &stats);
    EXPECT_EQ(bytes(out, buf), kTwoCounters);
    ast_dataitem_023_120_encode(&out, buf, kTwoCounters.size() - 1, &stats);
    EXPECT_EQ(out.valid, 0);
    stats.counters[1].ref = 2;
    ast_dataitem_023_120_encode(&out, buf, sizeof buf, &stats);
    EXPECT_EQ(out.valid, 0);
    stats.counters[1].ref = 0;
    stats.rep = 33;
    ast_dataitem_023_120_encode(&out, buf, sizeof buf, &stats);
    EXPECT_EQ(out.valid, 0);
}

TEST(Cat023Items, EncodableItemsRoundTripThroughTheirFields) {
    const struct {
        AstItemId id;
        Octets wire;
        std::vector<std::pair<const char *, double>> fields;
    } cases[] = {
        {23101, {0x00, 0x21, 0x14}, {{"rp", 0}, {"sc", 1}, {"ssrp", 10}}},
        {23101, {0x07, 0xE0}, {{"rp", 3.5}, {"sc", 7}}},
        {23110, {0x0A}, {{"stat", 5}}},
        {23200, {0x96}, {{"value", 150}}},
        {23000, {0x03}, {{"mt", 3}}},
    };
    for (const auto &c : cases) {
        alignas(16) unsigned char storage[512];
        const size_t size = ast_dataitem_fields_storage_size(c.id);
        ASSERT_TRUE(size > 0 && size <= sizeof storage) << c.id;
        ASSERT_EQ(ast_dataitem_fields_init(storage, size, c.id), 1);
        for (const auto &[path, v] : c.fields) {
            AstField f{};
            f.kind = AST_FIELD_REAL;
            f.real = v;
            EXPECT_EQ(ast_dataitem_fields_set(storage, size, c.id, path, &f), AST_FIELD_SET_OK) << c.id << path;
        }
        uint8_t out[8];
        AstDataItem written{};
        const AstDataItemValue value{1, c.id, storage};
        ast_dataitem_encode(&written, out, sizeof out, &value);
        ASSERT_EQ(written.valid, 1) << c.id;
        EXPECT_EQ(Octets(out, out + written.length), c.wire) << c.id;
    }
    // The wire widths are enforced when setting.
    AstItem023_101 config;
    ASSERT_EQ(ast_dataitem_fields_init(&config, sizeof config, 23101), 1);
    AstField f{};
    f.kind = AST_FIELD_UNSIGNED;
    f.u = 8;
    EXPECT_EQ(ast_dataitem_fields_set(&config, sizeof config, 23101, "sc", &f), AST_FIELD_SET_OUT_OF_RANGE);
    f.u = 128;
    EXPECT_EQ(ast_dataitem_fields_set(&config, sizeof config, 23101, "ssrp", &f), AST_FIELD_SET_OUT_OF_RANGE);
    f.u = 127;
    ASSERT_EQ(ast_dataitem_fields_set(&config, sizeof config, 23101, "ssrp", &f), AST_FIELD_SET_OK);
    EXPECT_EQ(config.ssrp_present, 1);
}

TEST(Cat023Items, AccessorsReadTheFirstItems) {
    const Octets record = {
        0x99, 0x40,        // FSPEC: FRN 1 (I023/010), 4 (I023/070), 5 (I023/100), 9 (I023/120)
        0x19, 0x0C,        // I023/010
        0xA8, 0xBF, 0xFF,  // I023/070
        0x00,              // I023/100
        0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x2A,  // I023/120, one counter
    };
    AstDataRecord r;
    ast_datarecord_decode(&r, record.data(), record.size(), 23, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    ASSERT_EQ(r.item_count, 4u);
    AstDataSourceIdentifier sacsic;
    ast_datarecord_get_sacsic(&sacsic, &r);
    EXPECT_TRUE(sacsic.valid == 1 && sacsic.sac == 25 && sacsic.sic == 12);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_TRUE(tod.valid == 1 && tod.hour == 23 && tod.minute == 59 && tod.second == 59);
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &r);
    EXPECT_EQ(track.valid, 0u);

    const Octets bare = {0x08, 0x00};  // I023/100 alone
    ast_datarecord_decode(&r, bare.data(), bare.size(), 23, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    ast_datarecord_023_get_sacsic(&sacsic, &r);
    EXPECT_TRUE(sacsic.valid == 0 && sacsic.sac == 0xFFFFFFFFu && sacsic.sic == 0xFFFFFFFFu);
    ast_datarecord_023_get_timeofday(&tod, &r);
    EXPECT_EQ(tod.valid, 0u);
}
