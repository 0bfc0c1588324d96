// CAT063 sensor status from its wire octets: I063/060's summary, detail
// table and fields, bad spans, the disassembled record and the accessors.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kovrel/cat063.h"
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

// The cells of a row (rows alternate their class, so the <tr> is left out).
std::string row(const char *bit, const char *item, const char *value) {
    return std::string("<td>") + bit + "</td><td>" + item + "</td><td>" + value + "</td></tr>";
}

}  // namespace

TEST(Cat063Items, SensorStatusTexts) {
    const struct {
        Octets wire;
        const char *summary;
        const char *con;  // detail value of CON
        const char *json;
    } cases[] = {
        {{0x00}, "CON:OPE", "OPERATIONAL", R"({"con":0,"psr":0,"ssr":0,"mds":0,"ads":0,"mlt":0})"},
        {{0x40}, "CON:DGD", "DEGRADED", R"({"con":1,"psr":0,"ssr":0,"mds":0,"ads":0,"mlt":0})"},
        {{0x80}, "STS:INI", "INITLIZATION", R"({"con":2,"psr":0,"ssr":0,"mds":0,"ads":0,"mlt":0})"},
        {{0xFE}, "CON:DIS", "NOT_CONNECTED", R"({"con":3,"psr":1,"ssr":1,"mds":1,"ads":1,"mlt":1})"},
        // Octet 2: ODP, OXT and TSV are summarised; OPS, MSC and NPW are not.
        {{0x01, 0x68}, "CON:OPE ODP OXT TSV", "OPERATIONAL",
         R"({"con":0,"psr":0,"ssr":0,"mds":0,"ads":0,"mlt":0,"ops":0,"odp":1,"oxt":1,"msc":0,"tsv":1,"npw":0})"},
        {{0x41, 0x94}, "CON:DGD", "DEGRADED",
         R"({"con":1,"psr":0,"ssr":0,"mds":0,"ads":0,"mlt":0,"ops":1,"odp":0,"oxt":0,"msc":1,"tsv":0,"npw":1})"},
        // A third octet of a later edition is not read.
        {{0x21, 0x01, 0xFE}, "CON:OPE", "OPERATIONAL",
         R"({"con":0,"psr":1,"ssr":0,"mds":0,"ads":0,"mlt":0,"ops":0,"odp":0,"oxt":0,"msc":0,"tsv":0,"npw":0})"},
    };
    for (const auto &c : cases) {
        const AstDataItem item = span(c.wire, 63060);
        EXPECT_EQ(text(ast_dataitem_063_060_get_summary, item), c.summary) << int(c.wire[0]);
        const std::string html = text(ast_dataitem_063_060_get_detail_html, item);
        EXPECT_EQ(html.rfind("<table class=\"detail_table\"><tr><th>Bit</th><th>Item</th><th>Value</th></tr><tr>" +
                                 row("Bit[0-1]", "CON", c.con),
                             0),
                  0u)
            << html;
        const bool two = c.wire.size() > 1;
        EXPECT_NE(html.find(row("Bit[7]", "FX", two ? "1" : "0")), std::string::npos) << html;
        EXPECT_EQ(html.find("Bit[8]") != std::string::npos, two) << html;
        EXPECT_EQ(json(item), c.json);
    }
    // Flag words of the detail view.
    const std::string html = text(ast_dataitem_063_060_get_detail_html, span({0x21, 0x80}, 63060));
    for (const std::string &r : {row("Bit[2]", "PSR", "NOGO"), row("Bit[3]", "SSR", "GO"), row("Bit[8]", "OPS", "YES"),
                                 row("Bit[9]", "ODP", "NO")})
        EXPECT_NE(html.find(r), std::string::npos) << r;
    EXPECT_NE(html.find(row("Bit[13]", "NPW", "NO") + "</table>"), std::string::npos);
}

TEST(Cat063Items, BadSpansGiveNothing) {
    const Octets o = {0x80, 0x00};
    for (const AstDataItem &bad : {span(o, 63060, 0), span(o, 63061), AstDataItem{o.data(), 0, 63060, 1},
                                   AstDataItem{nullptr, 1, 63060, 1}}) {
        AstItem063_060 d;
        ast_dataitem_063_060_decode(&d, &bad);
        EXPECT_EQ(d.valid, 0u);
        EXPECT_EQ(text(ast_dataitem_063_060_get_summary, bad), "");
        EXPECT_EQ(text(ast_dataitem_063_060_get_detail_html, bad), "");
    }
    char one[1] = {'#'};
    const AstDataItem item = span(o, 63060);
    ast_dataitem_063_060_get_summary(one, sizeof one, &item);
    EXPECT_EQ(one[0], '\0');
}

TEST(Cat063Items, RecordDisassemblesWithItsAccessors) {
    LogCapture log;
    const Octets record = {
        0xFA,              // FSPEC: FRN 1-5 and 7 (I063/080)
        0x01, 0x02,        // I063/010
        0x07,              // I063/015
        0x54, 0x60, 0x00,  // I063/030
        0x03, 0x04,        // I063/050
        0x81, 0x70,        // I063/060
        0x00, 0x01, 0xFF, 0xFE,  // I063/080
    };
    AstDataRecord r;
    ast_datarecord_decode(&r, record.data(), record.size(), 63, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    AstRecord063 d;
    ast_datarecord_063_disassemble(&d, &r);
    ASSERT_EQ(d.valid, 1u);
    EXPECT_TRUE(d.i010.sac == 1 && d.i010.sic == 2 && d.i015.valid == 1);
    EXPECT_TRUE(d.i030.valid == 1 && d.i030.hour == 12);
    EXPECT_TRUE(d.i050.sac == 3 && d.i050.sic == 4);
    EXPECT_TRUE(d.i060.valid == 1 && d.i060.con == 2 && d.i060.odp == 1);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Failed to disassemble dataitem : I063/080."));

    AstDataSourceIdentifier sacsic;
    ast_datarecord_get_sacsic(&sacsic, &r);
    EXPECT_TRUE(sacsic.valid == 1 && sacsic.sac == 1 && sacsic.sic == 2);
    AstTimeOfDay tod;
    ast_datarecord_get_timeofday(&tod, &r);
    EXPECT_TRUE(tod.valid == 1 && tod.hour == 12);
    AstTrackNumber track;
    ast_datarecord_get_tracknum(&track, &r);
    EXPECT_EQ(track.valid, 0u);

    const Octets bare = {0x08, 0x80};  // I063/060 alone
    ast_datarecord_decode(&r, bare.data(), bare.size(), 63, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    ast_datarecord_063_get_sacsic(&sacsic, &r);
    EXPECT_TRUE(sacsic.valid == 0 && sacsic.sac == 0xFFFFFFFFu);
    ast_datarecord_063_disassemble(&d, &r);
    EXPECT_TRUE(d.valid == 1 && d.i060.valid == 1 && d.i010.valid == 0);
}
