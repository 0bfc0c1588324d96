// CAT065 processing system status from its wire octets: the message type,
// batch number and configuration texts and fields, bad spans, the
// disassembled record and the accessors.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kovrel/cat065.h"
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
    std::vector<char> buf(1024, '#');
    ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    return buf.data();
}

}  // namespace

TEST(Cat065Items, SummariesAndFields) {
    const struct {
        AstItemId id;
        Octets wire;
        const char *summary;
        const char *json;
    } cases[] = {
        {65000, {0x01}, "MSG_TYPE:SDPS_STATUS", R"({"mt":1})"},
        {65000, {0x02}, "MSG_TYPE:END_OF_BATCH", R"({"mt":2})"},
        {65000, {0x03}, "MSG_TYPE:SVC_STATUS_REPORT", R"({"mt":3})"},
        {65000, {0x04}, "MSG_TYPE:UNDEFINED", R"({"mt":4})"},
        {65000, {0x00}, "MSG_TYPE:UNDEFINED", R"({"mt":0})"},
        {65020, {0x00}, "BAT:0", R"({"value":0})"},
        {65020, {0xFF}, "BAT:255", R"({"value":255})"},
        {65040, {0x00}, "STS:OPE", R"({"nogo":0,"ovl":0,"tsv":0,"pss":0})"},
        {65040, {0x40}, "STS:DGD", R"({"nogo":1,"ovl":0,"tsv":0,"pss":0})"},
        {65040, {0xA4}, "STS:DIS OVL SDPS-1", R"({"nogo":2,"ovl":1,"tsv":0,"pss":1})"},
        {65040, {0xDF}, "STS:UKN TSV SDPS-3", R"({"nogo":3,"ovl":0,"tsv":1,"pss":3})"},
        {65040, {0x33}, "STS:OPE OVL TSV", R"({"nogo":0,"ovl":1,"tsv":1,"pss":0})"},  // spare bits set
    };
    for (const auto &c : cases) {
        AstDataItem item;
        ast_dataitem_scan(&item, c.wire.data(), c.wire.size(), c.id);
        char buf[64];
        ast_dataitem_get_summary(buf, sizeof buf, &item);
        EXPECT_STREQ(buf, c.summary) << c.id << " " << int(c.wire[0]);
        EXPECT_EQ(json(item), c.json) << c.id << " " << int(c.wire[0]);
    }
}

TEST(Cat065Items, ConfigurationDetail) {
    const struct {
        uint8_t octet;
        const char *nogo, *ovl, *tsv, *pss;
    } cases[] = {
        {0x00, "OPERATIONAL", "NO", "NO", "N/A"},
        {0x68, "DEGRADED", "YES", "NO", "SDPS-2"},
        {0x9C, "NOT_CONNECTED", "NO", "YES", "SDPS-3"},
        {0xC4, "UNKNOWN", "NO", "NO", "SDPS-1"},
    };
    for (const auto &c : cases) {
        const Octets o = {c.octet};
        const std::string expected =
            std::string("<table class=\"detail_table\"><tr><th>Bit</th><th>Item</th><th>Value</th></tr>") +
            "<tr><td>Bit[1-2]</td><td>NOGO</td><td>" + c.nogo + "</td></tr>" +
            "<tr class=\"even_row\"><td>Bit[2]</td><td>OVL</td><td>" + c.ovl + "</td></tr>" +
            "<tr><td>Bit[3]</td><td>TSV</td><td>" + c.tsv + "</td></tr>" +
            "<tr class=\"even_row\"><td>Bit[4-5]</td><td>PSS</td><td>" + c.pss + "</td></tr></table><br/>";
        EXPECT_EQ(text(ast_dataitem_065_040_get_detail_html, span(o, 65040)), expected) << int(c.octet);
    }
}

TEST(Cat065Items, BadSpansGiveNothing) {
    const Octets one = {0x44};
    const Octets two = {0x44, 0x00};
    const AstDataItem bad[] = {span(one, 65040, 0), span(two, 65040), span(one, 65041), span(two, 65020),
                               span(one, 65021), AstDataItem{nullptr, 1, 65040, 1}};
    for (const AstDataItem &item : bad) {
        AstItem065_040 status;
        ast_dataitem_065_040_decode(&status, &item);
        AstItem065_020 batch;
        ast_dataitem_065_020_decode(&batch, &item);
        EXPECT_EQ(status.valid + batch.valid, 0u) << item.id << " " << item.length;
        EXPECT_EQ(text(ast_dataitem_065_040_get_summary, item), "");
        EXPECT_EQ(text(ast_dataitem_065_040_get_detail_html, item), "");
        EXPECT_EQ(text(ast_dataitem_065_020_get_summary, item), "");
    }
    EXPECT_EQ(text(ast_dataitem_065_000_get_summary, span(two, 65000)), "");
}

TEST(Cat065Items, RecordDisassemblesWithItsAccessors) {
    LogCapture log;
    const Octets record = {
        0xFF, 0x04,        // FSPEC: FRN 1-7, 13 (REF)
        0x19, 0x0C,        // I065/010
        0x02,              // I065/000
        0x11,              // I065/015
        0x54, 0x60, 0x80,  // I065/030
        0x03,              // I065/020
        0x68,              // I065/040
        0x05,              // I065/050
        0x02, 0xAA,        // I065/REF
    };
    AstDataRecord r;
    ast_datarecord_decode(&r, record.data(), record.size(), 65, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    AstRecord065 d;
    ast_datarecord_065_disassemble(&d, &r);
    ASSERT_EQ(d.valid, 1u);
    EXPECT_TRUE(d.i000.valid == 1 && d.i000.value == 2);
    EXPECT_TRUE(d.i010.sac == 25 && d.i010.sic == 12 && d.i015.valid == 1);
    EXPECT_TRUE(d.i020.valid == 1 && d.i020.value == 3);
    EXPECT_TRUE(d.i030.valid == 1 && d.i030.hour == 12 && d.i030.second == 1);
    EXPECT_TRUE(d.i040.valid == 1 && d.i040.nogo == 1 && d.i040.ovl == 1 && d.i040.pss == 2);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Failed to disassemble dataitem : I065/050."));
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Failed to disassemble dataitem : I065/REF."));

    AstDataSourceIdentifier sacsic;
    ast_datarecord_get_sacsic(&sacsic, &r);
    EXPECT_TRUE(sacsic.valid == 1 && sacsic.sac == 25 && sacsic.sic == 12);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_TRUE(tod.valid == 1 && tod.second == 1);
    AstRecordMsgType type;
    ast_datarecord_get_msgtype(&type, &r);
    EXPECT_EQ(type.valid, 0u);

    r.valid = 0;
    ast_datarecord_065_disassemble(&d, &r);
    EXPECT_EQ(d.valid, 0u);
    ast_datarecord_065_get_timeofday(&tod, &r);
    EXPECT_EQ(tod.valid, 0u);
}
