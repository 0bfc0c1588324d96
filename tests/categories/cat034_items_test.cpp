// CAT034's own items from their wire octets: the message counters with
// their REP limit, the decoded subfields of the station status and
// processing mode, the position of the station, their field JSON, and the
// spans that must decode to nothing.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/cat034.h"
#include "kovrel/core.h"
#include "kovrel/fields.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

AstDataItem span(const Octets &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

std::string json(const AstDataItem &item) {
    std::vector<char> buf(8192, '#');
    const size_t n = ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    const std::string text(buf.data());
    EXPECT_EQ(n, text.size()) << item.id;
    return text;
}

// A subfield summary of the split item: the subfield at `position` (from 1).
std::string subfield_summary(const Octets &wire, AstItemId id, size_t position) {
    AstDataItem item;
    ast_dataitem_scan(&item, wire.data(), wire.size(), id);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    char text[80];
    ast_subfield_get_summary(text, sizeof text, &list.spans[position - 1], list.spans[position - 1].id);
    return text;
}

struct Pair {
    uint32_t typ, count;
};

struct CounterCase {
    Octets wire;
    uint32_t valid;
    uint32_t count;
    std::vector<Pair> counters;  // the first ones, checked
    const char *summary;
};

Octets sixteen_counters() {
    Octets o = {16};
    for (uint8_t i = 0; i < 16; ++i) {
        o.push_back(static_cast<uint8_t>(i << 3 | 0x05));
        o.push_back(i);
    }
    return o;
}

}  // namespace

TEST(Cat034Items, MessageCountValues) {
    const CounterCase cases[] = {
        {{0x00}, 1, 0, {}, "COUNTERS:0"},
        // Type in the five high bits, count in the eleven low ones.
        {{0x02, 0x08, 0x01, 0xA7, 0xFF}, 1, 2, {{1, 1}, {20, 2047}}, "COUNTERS:2"},
        {sixteen_counters(), 1, 16, {{0, 0x500}, {1, 0x501}, {15, 0x50F}}, "COUNTERS:16"},
        // A span whose length does not match its REP is not read.
        {{0x02, 0x08, 0x01, 0xA7}, 0, 0, {}, ""},
        {{0x01, 0x08, 0x01, 0xA7, 0xFF}, 0, 0, {}, ""},
        {{}, 0, 0, {}, ""},
    };
    LogCapture log;
    for (const auto &c : cases) {
        SCOPED_TRACE(::testing::PrintToString(c.wire));
        const AstDataItem item = span(c.wire, 34070);
        AstItem034_070 d;
        std::memset(&d, 0xAB, sizeof d);
        ast_dataitem_034_070_decode(&d, &item);
        EXPECT_EQ(d.valid, c.valid);
        EXPECT_EQ(d.count, c.count);
        for (size_t i = 0; i < c.counters.size() && i < 16; ++i) {
            const size_t at = (c.count == 16 && i == 2) ? 15 : i;
            EXPECT_EQ(d.counters[at].typ, c.counters[i].typ) << at;
            EXPECT_EQ(d.counters[at].count, c.counters[i].count) << at;
        }
        char text[32];
        ast_dataitem_034_070_get_summary(text, sizeof text, &item);
        EXPECT_STREQ(text, c.summary);
    }
    EXPECT_TRUE(log.lines().empty());

    // More counters than the structure holds: logged, nothing decoded.
    Octets seventeen(35, 0x11);
    seventeen[0] = 17;
    const AstDataItem item = span(seventeen, 34070);
    AstItem034_070 d;
    ast_dataitem_034_070_decode(&d, &item);
    EXPECT_EQ(d.valid, 0u);
    EXPECT_EQ(d.count, 0u);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "I034/070 counter count 17 exceeds max 16."));
    char text[32] = "x";
    ast_dataitem_034_070_get_summary(text, sizeof text, &item);
    EXPECT_STREQ(text, "");

    // The counters as fields, as many as REP says.
    const Octets two = {0x02, 0x08, 0x01, 0xA7, 0xFF};
    EXPECT_EQ(json(span(two, 34070)), R"({"counters":[{"typ":1,"count":1},{"typ":20,"count":2047}]})");
    EXPECT_EQ(json(span({0x00}, 34070)), R"({"counters":[]})");

    // Octets of I034/070 under another identifier are not this item.
    const Octets one = {0x01, 0x08, 0x01};
    const AstDataItem other = span(one, 34060);
    ast_dataitem_034_070_decode(&d, &other);
    EXPECT_EQ(d.valid, 0u);
}

namespace {

struct StatusCase {
    Octets wire;
    uint8_t com_present, nogo;
    uint32_t rdpc;
    uint8_t rdpr, ovl_rdp, ovl_xmt, msc, tsv;
    uint8_t ssr_present;
    uint32_t ant, ch_ab;
    uint8_t ovl, ssr_msc;
    const char *com_summary;
    const char *ssr_summary;
    const char *fields;
};

// The MSC and TSV bits are set on the wire when something is wrong; the
// structure holds 1 for connected and valid, the fields show the wire bit.
const StatusCase kStatus[] = {
    {{0x80, 0x00}, 1, 0, 1, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0, "RDPC:1", "",
     R"({"com":{"nogo":0,"rdpc":1,"rdpr":0,"ovlrdp":0,"ovlxmt":0,"msc":0,"tsv":0}})"},
    {{0x80, 0xFE}, 1, 1, 2, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0,
     "RDPC:2 NOGO RDPR OVL_RDP OVL_XMT MSC_DISCONNECTED TSV_INVALID", "",
     R"({"com":{"nogo":1,"rdpc":2,"rdpr":1,"ovlrdp":1,"ovlxmt":1,"msc":1,"tsv":1}})"},
    {{0x08, 0xD8}, 0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 2, 1, 0, "", "ANT:2 CH:B OVL MSC_DISCONNECTED",
     R"({"ssr":{"ant":2,"chab":2,"ovl":1,"msc":1}})"},
    // All four sensor subfields: PSR and MDS stay undecoded octets.
    {{0x9C, 0x41, 0x7F, 0x20, 0x12, 0x34}, 1, 0, 2, 0, 0, 0, 1, 1, 1, 1, 1, 0, 1, "RDPC:2", "ANT:1 CH:A",
     R"({"com":{"nogo":0,"rdpc":2,"rdpr":0,"ovlrdp":0,"ovlxmt":0,"msc":0,"tsv":0},"psr":{"data":"7F"},)"
     R"("ssr":{"ant":1,"chab":1,"ovl":0,"msc":0},"mds":{"data":"1234"}})"},
    {{0x08, 0x60}, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 3, 0, 1, "", "ANT:1 CH:AB", R"({"ssr":{"ant":1,"chab":3,"ovl":0,"msc":0}})"},
    {{0x10, 0xFF}, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "", "", R"({"psr":{"data":"FF"}})"},
};

}  // namespace

TEST(Cat034Items, StationConfigurationAndStatus) {
    for (const auto &c : kStatus) {
        SCOPED_TRACE(::testing::PrintToString(c.wire));
        AstDataItem item;
        ast_dataitem_scan(&item, c.wire.data(), c.wire.size(), 34050);
        ASSERT_EQ(item.length, c.wire.size());
        AstItem034_050 d;
        ast_dataitem_034_050_decode(&d, &item);
        ASSERT_EQ(d.valid, 1u);
        EXPECT_EQ(d.com_present, c.com_present);
        EXPECT_EQ(d.com_nogo, c.nogo);
        EXPECT_EQ(d.com_rdpc, c.rdpc);
        EXPECT_EQ(d.com_rdpr, c.rdpr);
        EXPECT_EQ(d.com_ovl_rdp, c.ovl_rdp);
        EXPECT_EQ(d.com_ovl_xmt, c.ovl_xmt);
        EXPECT_EQ(d.com_msc, c.msc);
        EXPECT_EQ(d.com_tsv, c.tsv);
        EXPECT_EQ(d.ssr_present, c.ssr_present);
        EXPECT_EQ(d.ssr_ant, c.ant);
        EXPECT_EQ(d.ssr_ch_ab, c.ch_ab);
        EXPECT_EQ(d.ssr_ovl, c.ovl);
        EXPECT_EQ(d.ssr_msc, c.ssr_msc);
        EXPECT_EQ(subfield_summary(c.wire, 34050, 1), c.com_summary);
        EXPECT_EQ(subfield_summary(c.wire, 34050, 5), c.ssr_summary);
        EXPECT_EQ(json(item), c.fields);
    }
    // Undecoded subfields keep the generic text.
    EXPECT_EQ(subfield_summary({0x9C, 0x41, 0x7F, 0x20, 0x12, 0x34}, 34050, 4), "NOT_IMPLEMENTED");
    EXPECT_EQ(subfield_summary({0x9C, 0x41, 0x7F, 0x20, 0x12, 0x34}, 34050, 6), "NOT_IMPLEMENTED");

    // A span of another identifier, an invalid span, a truncated item.
    const Octets wire = {0x80, 0x00};
    AstItem034_050 d;
    for (const AstDataItem &bad : {AstDataItem{wire.data(), 2, 34060, 1}, AstDataItem{wire.data(), 2, 34050, 0},
                                   AstDataItem{wire.data(), 1, 34050, 1}}) {
        ast_dataitem_034_050_decode(&d, &bad);
        EXPECT_EQ(d.valid, 0u);
        EXPECT_EQ(d.com_present, 0);
        EXPECT_EQ(d.com_msc, 0);
    }
}

namespace {

struct ModeCase {
    Octets wire;
    const char *summaries[4];  // COM, PSR, SSR, MDS
    uint8_t present[4];
    uint32_t red_rdp, red_xmt;
    uint8_t pol;
    uint32_t psr_red, stc, ssr_red, mds_red;
    uint8_t clu;
    const char *fields;
};

const ModeCase kModes[] = {
    {{0x9C, 0x7E, 0xBC, 0xE0, 0x10},
     {"RED_RDP:7 RED_XMT:7", "POL:CIRC RED_RAD:3 STC:3", "RED_RAD:7", "RED_RAD:0 CLU:CLUSTER"},
     {1, 1, 1, 1}, 7, 7, 1, 3, 3, 7, 0, 0,
     R"({"com":{"redrdp":7,"redxmt":7},"psr":{"pol":1,"redrad":3,"stc":3},"ssr":{"redrad":7},)"
     R"("mds":{"redrad":0,"clu":1}})"},
    {{0x84, 0x22, 0xC0}, {"RED_RDP:2 RED_XMT:1", "", "", "RED_RAD:6 CLU:AUTONOMOUS"}, {1, 0, 0, 1}, 2, 1, 0, 0, 0, 0,
     6, 1, R"({"com":{"redrdp":2,"redxmt":1},"mds":{"redrad":6,"clu":0}})"},
    {{0x10, 0x4A}, {"", "POL:LIN RED_RAD:4 STC:2", "", ""}, {0, 1, 0, 0}, 0, 0, 0, 4, 2, 0, 0, 0,
     R"({"psr":{"pol":0,"redrad":4,"stc":2}})"},
    // Bit 8 and bit 1 of COM are spare.
    {{0x80, 0x81}, {"RED_RDP:0 RED_XMT:0", "", "", ""}, {1, 0, 0, 0}, 0, 0, 0, 0, 0, 0, 0, 0,
     R"({"com":{"redrdp":0,"redxmt":0}})"},
};

}  // namespace

TEST(Cat034Items, SystemProcessingMode) {
    for (const auto &c : kModes) {
        SCOPED_TRACE(::testing::PrintToString(c.wire));
        AstDataItem item;
        ast_dataitem_scan(&item, c.wire.data(), c.wire.size(), 34060);
        ASSERT_EQ(item.length, c.wire.size());
        AstItem034_060 d;
        ast_dataitem_034_060_decode(&d, &item);
        ASSERT_EQ(d.valid, 1u);
        EXPECT_EQ(d.com_present, c.present[0]);
        EXPECT_EQ(d.psr_present, c.present[1]);
        EXPECT_EQ(d.ssr_present, c.present[2]);
        EXPECT_EQ(d.mds_present, c.present[3]);
        EXPECT_EQ(d.com_red_rdp, c.red_rdp);
        EXPECT_EQ(d.com_red_xmt, c.red_xmt);
        EXPECT_EQ(d.psr_pol, c.pol);
        EXPECT_EQ(d.psr_red_rad, c.psr_red);
        EXPECT_EQ(d.psr_stc, c.stc);
        EXPECT_EQ(d.ssr_red_rad, c.ssr_red);
        EXPECT_EQ(d.mds_red_rad, c.mds_red);
        EXPECT_EQ(d.mds_clu, c.clu);
        const size_t positions[] = {1, 4, 5, 6};
        for (size_t i = 0; i < 4; ++i)
            EXPECT_EQ(subfield_summary(c.wire, 34060, positions[i]), c.summaries[i]) << positions[i];
        EXPECT_EQ(json(item), c.fields);
    }
    const Octets wire = {0x80, 0x00};
    AstItem034_060 d;
    const AstDataItem other{wire.data(), 2, 34050, 1};
    ast_dataitem_034_060_decode(&d, &other);
    EXPECT_EQ(d.valid, 0u);
}

TEST(Cat034Items, SubfieldsAnswerSummaryAndDetail) {
    // Decoded subfields have both; a subfield that is not decoded has neither.
    EXPECT_EQ(ast_subfield_get_capabilities(34050001), 0x6u);
    EXPECT_EQ(ast_subfield_get_capabilities(34060006), 0x6u);
    const Octets wire = {0x80, 0x04};
    AstDataItem item;
    ast_dataitem_scan(&item, wire.data(), wire.size(), 34050);
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    std::vector<char> html(4096);
    ast_subfield_034_050_get_detail_html(html.data(), html.size(), &list.spans[0], 34050001);
    const std::string text(html.data());
    EXPECT_NE(text.find("DISCONNECTED"), std::string::npos) << text;
    EXPECT_NE(text.find("CHAIN 1"), std::string::npos) << text;
    // The item's view carries the subfield's table and summary.
    std::vector<char> page(16384);
    ast_dataitem_get_detail_html(page.data(), page.size(), &item);
    EXPECT_NE(std::string(page.data()).find("RDPC:1 MSC_DISCONNECTED"), std::string::npos);
    // One octet short of the text: cut, still terminated.
    std::vector<char> small(text.size(), '#');
    ast_subfield_034_050_get_detail_html(small.data(), small.size(), &list.spans[0], 34050001);
    EXPECT_EQ(std::strlen(small.data()), text.size() - 1);
    // An absent subfield has no text.
    ast_subfield_034_050_get_detail_html(html.data(), html.size(), &list.spans[4], 34050005);
    EXPECT_STREQ(html.data(), "");
}

namespace {

struct PositionCase {
    Octets wire;
    int32_t height;
    double latitude, longitude;
    const char *fields;
};

// LSB of the angles: 180/2^23 degrees.
const PositionCase kPositions[] = {
    {{0x00, 0x64, 0x28, 0x00, 0x00, 0x05, 0x00, 0x00}, 100, 56.25, 7.03125,
     R"({"hgt":100,"lat":56.25,"lon":7.03125})"},
    {{0xFF, 0x9C, 0xD8, 0x00, 0x00, 0xFF, 0xFF, 0xFF}, -100, -56.25, -2.1457672119140625e-05,
     R"({"hgt":-100,"lat":-56.25,"lon":-2.1457672119140625e-05})"},
    {{0x80, 0x00, 0x80, 0x00, 0x00, 0x7F, 0xFF, 0xFF}, -32768, -180.0, 179.99997854232788,
     R"({"hgt":-32768,"lat":-180,"lon":179.99997854232788})"},
};

}  // namespace

TEST(Cat034Items, PositionOfDataSource) {
    for (const auto &c : kPositions) {
        SCOPED_TRACE(::testing::PrintToString(c.wire));
        const AstDataItem item = span(c.wire, 34120);
        AstItem034_120 d;
        ast_dataitem_034_120_decode(&d, &item);
        ASSERT_EQ(d.valid, 1u);
        EXPECT_EQ(d.height.raw, c.height);
        EXPECT_EQ(d.height.value, c.height);
        EXPECT_DOUBLE_EQ(d.latitude.value, c.latitude);
        EXPECT_DOUBLE_EQ(d.longitude.value, c.longitude);
        EXPECT_EQ(d.latitude.lsb, 2.1457672119140625e-05);
        EXPECT_EQ(json(item), c.fields);
    }
    // Exactly eight octets, and only under its own identifier.
    const Octets seven = {0x00, 0x64, 0x28, 0x00, 0x00, 0x05, 0x00};
    const Octets nine = {0x00, 0x64, 0x28, 0x00, 0x00, 0x05, 0x00, 0x00, 0x00};
    const Octets eight = kPositions[0].wire;
    for (const AstDataItem &bad : {span(seven, 34120), span(nine, 34120), span(eight, 34110)}) {
        AstItem034_120 d;
        ast_dataitem_034_120_decode(&d, &bad);
        EXPECT_EQ(d.valid, 0u);
        EXPECT_EQ(d.height.raw, 0);
        EXPECT_EQ(d.height.lsb, 1.0);
        EXPECT_EQ(d.longitude.lsb, 2.1457672119140625e-05);
        char html[64] = "x";
        ast_dataitem_034_120_get_detail_html(html, sizeof html, &bad);
        EXPECT_STREQ(html, "");
    }
}

namespace {

AstField unsigned_value(uint64_t u) {
    AstField f{};
    f.kind = AST_FIELD_UNSIGNED;
    f.u = u;
    return f;
}

AstField real_value(double v) {
    AstField f{};
    f.kind = AST_FIELD_REAL;
    f.real = v;
    return f;
}

}  // namespace

// Setting a field by name keeps it within its wire field.
TEST(Cat034Items, FieldsRefuseValuesBeyondTheirWireWidth) {
    struct Set {
        AstItemId id;
        const char *path;
        AstField value;
        int result;
    };
    const Set sets[] = {
        {34050, "com.rdpc", unsigned_value(2), AST_FIELD_SET_OK},
        {34050, "com.rdpc", unsigned_value(4), AST_FIELD_SET_OUT_OF_RANGE},
        {34050, "ssr.chab", unsigned_value(3), AST_FIELD_SET_OK},
        {34050, "ssr.chab", unsigned_value(4), AST_FIELD_SET_OUT_OF_RANGE},
        {34050, "mds.data", unsigned_value(1), AST_FIELD_SET_READ_ONLY},
        {34050, "mds.ovl", unsigned_value(1), AST_FIELD_SET_UNKNOWN},
        {34060, "psr.stc", unsigned_value(3), AST_FIELD_SET_OK},
        {34060, "psr.stc", unsigned_value(4), AST_FIELD_SET_OUT_OF_RANGE},
        {34060, "com.redrdp", unsigned_value(8), AST_FIELD_SET_OUT_OF_RANGE},
        {34060, "mds.redrad", unsigned_value(7), AST_FIELD_SET_OK},
        {34120, "hgt", real_value(-32768), AST_FIELD_SET_OK},
        {34120, "hgt", real_value(32768), AST_FIELD_SET_OUT_OF_RANGE},
        {34120, "lat", real_value(-180), AST_FIELD_SET_OK},
        {34120, "lat", real_value(180), AST_FIELD_SET_OUT_OF_RANGE},
    };
    alignas(16) uint8_t storage[4096];
    for (const auto &s : sets) {
        SCOPED_TRACE(testing::Message() << "item " << s.id << " " << s.path);
        ASSERT_EQ(ast_dataitem_fields_init(storage, sizeof storage, s.id), 1);
        EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, s.id, s.path, &s.value), s.result);
    }
}
