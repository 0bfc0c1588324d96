// CAT021's own items from their wire octets: summaries, decoded values and
// the normalisations that make the two generations agree, detail tables,
// spans that do not decode, and the encoders written back through the
// decoded structures and through the named fields.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/cat021.h"
#include "kovrel/fields.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::Octets;

namespace {

AstDataItem span(const Octets &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

std::string summary(AstItemId id, const Octets &wire) {
    const AstDataItem item = span(wire, id);
    char text[128] = "junk";
    ast_dataitem_get_summary(text, sizeof text, &item);
    return text;
}

struct SummaryCase {
    AstItemId id;
    Octets wire;
    const char *expected;
};

const SummaryCase kSummaries[] = {
    // 008: bit 6 (the lower TC bit) is not read.
    {21008, {0x00}, "NO_INFO"},
    {21008, {0xFF}, "RA TC0 TS ARV CDTI NO_TCAS SA"},
    {21008, {0x20}, "NO_INFO"},
    {21008, {0x41}, "TC0 SA"},
    // 016: LSB 0.5 s; 0 is data driven, the largest value is open-ended.
    {21016, {0x00}, "DATA_DRIVEN_MODE"},
    {21016, {0xFF}, "PR:>=127.50SEC"},
    {21016, {0xFE}, "PR:127.00SEC"},
    {21016, {0x03}, "PR:1.50SEC"},
    // 020: reserved codes and codes above 24 fold to "unknown".
    {21020, {0x01}, "EMITTER:LIGHT_AIRCRAFT"},
    {21020, {0x04}, "EMITTER:UNKNOWN_EMITTER"},
    {21020, {0x18}, "EMITTER:LINE_OBSTACLE"},
    {21020, {0x19}, "EMITTER:UNKNOWN_EMITTER"},
    // 032: 1/256 s.
    {21032, {0x80}, "TOD_ACCU:0.50S"},
    {21032, {0xFF}, "TOD_ACCU:1.00S"},
    // 040: one, two, three and four octets (the fourth is not read).
    {21040, {0x00}, "TARGET:NORMAL"},
    {21040, {0x01, 0x60}, "TARGET:GBS SIM"},
    {21040, {0x01, 0x11, 0x3E}, "TARGET:TST"},
    {21040, {0x01, 0x01, 0x01, 0xFE}, "TARGET:NORMAL"},
    // 21903: SPI after TST.
    {21903, {0x00, 0x00}, "TARGET:NORMAL"},
    {21903, {0x72, 0x00}, "TARGET:GBS SIM TST SPI"},
    {21903, {0x02, 0xE0}, "TARGET:SPI"},
    // 090: the first octet only.
    {21090, {0x5C}, "NUCR:2 NUCP:14"},
    {21090, {0x3F, 0x97, 0x2D, 0xF0}, "NUCR:1 NUCP:15"},
    {21905, {0x54, 0x07}, "PA:7"},
    {21905, {0xFF, 0xF0}, "PA:0"},
    {21095, {0x02}, "VA:2"},
    {21904, {0xB4}, "SAM:180"},
    {21132, {0xB6}, "MAM:-74"},
    {21132, {0x7F}, "MAM:127"},
    // 140: 6.25 ft, two's complement.
    {21140, {0x00, 0x10}, "ALTITUDE:100.00FT"},
    {21140, {0xFF, 0xFF}, "ALTITUDE:-6.25FT"},
    // 145: 1/4 FL.
    {21145, {0x01, 0x40}, "LEVEL:80.00FL"},
    {21145, {0xFF, 0xFE}, "LEVEL:-0.50FL"},
    // 146: 13-bit altitude under SAS and source.
    {21146, {0xE0, 0x8C}, "SELECTED_ALTITUDE:35.00FL"},
    {21146, {0x1F, 0xFF}, "SELECTED_ALTITUDE:-0.25FL"},
    // 150: IM chooses Mach or IAS (2^-14 NM/s in knots).
    {21150, {0x80, 0x01}, "MACH:0.001"},
    {21150, {0x83, 0x20}, "MACH:0.800"},
    {21150, {0x00, 0x01}, "IAS:0.22KT"},
    {21150, {0x01, 0x00}, "IAS:56.25KT"},
    {21151, {0x01, 0xC2}, "TAS:450KT"},
    {21151, {0x81, 0xC2}, "TAS:450KT"},
    {21152, {0x40, 0x00}, "HDG:90.00DEG"},
    {21152, {0x00, 0x01}, "HDG:0.01DEG"},
    // 160 with and without RE, and 21911's signed speed.
    {21160, {0x07, 0xD0, 0x80, 0x00}, "SPD:439.45KT AGL:180.00DEG"},
    {21160, {0x87, 0xD0, 0x80, 0x00}, "SPD:439.45KT AGL:180.00DEG"},
    {21911, {0x07, 0xD0, 0x80, 0x00}, "SPD:439.45KT AGL:180.00DEG"},
    {21911, {0xFF, 0xFF, 0x00, 0x00}, "SPD:-0.22KT AGL:0.00DEG"},
    // 200 and 21908: emergency status and surveillance status.
    {21200, {0x00}, "EMG:NO_EMG SUR:NO_RPT"},
    {21200, {0xE7}, "EMG:GENERAL SUR:SPI"},
    {21200, {0x1D}, "EMG:UNDEFINED SUR:PERM_ALR"},
    {21200, {0x0A}, "EMG:MEDICAL SUR:TEMP_ALR"},
    {21908, {0x02}, "EMG:MEDICAL"},
    {21908, {0x09}, "EMG:UNDEFINED"},
    // 210: link technologies from 4 up are unknown.
    {21210, {0x12}, "VN:2 LINK:1090ES"},
    {21210, {0x41}, "VN:0 LINK:UAT"},
    {21210, {0x3B}, "VN:7 LINK:VDL4"},
    {21210, {0x00}, "VN:0 LINK:OTHER"},
    {21210, {0x07}, "VN:0 LINK:UNKNOWN"},
    {21906, {0x08}, "LINK: MODE_S"},
    {21906, {0x00}, "LINK: NONE"},
    {21906, {0xFF}, "LINK: CDTI MODE_S UAT VDL4 OTHER"},
    {21230, {0xFF, 0x9C}, "RA:-1.00DEG"},
    {21230, {0x11, 0x94}, "RA:45.00DEG"},
    // 260: broadcast (TYP 28, STYP 2) with an active advisory; terminated;
    // a Mode S threat on the wire gives no threat text (TTI is not decoded).
    {21260, {0xE2, 0x80, 0x00, 0x00, 0x00, 0x00, 0x00}, "BCAST RA_ACTIVE"},
    {21260, {0xE1, 0x00, 0x00, 0x20, 0x00, 0x00, 0x00}, "RA_TERM"},
    {21260, {0x00, 0x00, 0x04, 0x20, 0x00, 0x00, 0x00}, "RA_ACTIVE"},
    {21260, {0x00, 0x00, 0x00, 0x04, 0x3C, 0x65, 0x86}, "NO_INFO"},
    // 271 and 21907: the LW code in either half of octet 2.
    {21271, {0x00}, "NO_INFO"},
    {21271, {0x3E}, "POA CDTI_OP B2_LOW RAS IDENT"},
    {21271, {0x01, 0x50}, "LW:5"},
    {21271, {0x23, 0xF0}, "POA IDENT LW:15"},
    {21907, {0x01, 0x05}, "LW:5"},
    {21907, {0x01, 0x50}, "LW:0"},
    {21907, {0x04}, "RAS"},
    {21400, {0x03}, "RID:3"},
    {21400, {0xFF}, "RID:255"},
};

TEST(Cat021Items, SummariesFromTheWire) {
    for (const SummaryCase &c : kSummaries) EXPECT_EQ(summary(c.id, c.wire), c.expected) << c.id;
}

TEST(Cat021Items, SummariesCutToTheirBuffer) {
    const Octets wire = {0xFF};
    const AstDataItem item = span(wire, 21008);
    char text[8];
    std::memset(text, '#', sizeof text);
    ast_dataitem_021_008_get_summary(text, 5, &item);
    EXPECT_STREQ(text, "RA T");
    EXPECT_EQ(text[5], '#');
    ast_dataitem_021_008_get_summary(text, 1, &item);
    EXPECT_STREQ(text, "");
    ast_dataitem_021_008_get_summary(nullptr, 0, &item);  // nothing to write into
}

TEST(Cat021Items, DescriptorsOfBothGenerationsAgree) {
    // 21903 exchanges address types 0 and 1 and keeps ARC as it is; 040
    // keeps the address type and maps ARC 0, 1, 2 to 1, 2, 0.
    const struct {
        Octets wire;
        uint32_t atp, arc;
    } old_cases[] = {
        {{0x00, 0x00}, 1, 0}, {{0x00, 0x20}, 0, 0}, {{0x00, 0x48}, 2, 1},
        {{0x00, 0x70}, 3, 2}, {{0x00, 0x98}, 4, 3}, {{0x00, 0xE0}, 4, 0},
    };
    for (const auto &c : old_cases) {
        AstItem021_A03 d;
        const AstDataItem item = span(c.wire, 21903);
        ast_dataitem_021_A03_decode(&d, &item);
        ASSERT_EQ(d.valid, 1);
        EXPECT_EQ(d.atp, c.atp) << int(c.wire[1]);
        EXPECT_EQ(d.arc, c.arc) << int(c.wire[1]);
    }
    const struct {
        Octets wire;
        uint32_t atp, arc;
    } new_cases[] = {
        {{0x00}, 0, 1}, {{0x28}, 1, 2}, {{0x50}, 2, 0}, {{0x78}, 3, 3}, {{0x80}, 4, 1}, {{0xE0}, 4, 1},
    };
    for (const auto &c : new_cases) {
        AstItem021_040 d;
        const AstDataItem item = span(c.wire, 21040);
        ast_dataitem_021_040_decode(&d, &item);
        ASSERT_EQ(d.valid, 1);
        EXPECT_EQ(d.atp, c.atp) << int(c.wire[0]);
        EXPECT_EQ(d.arc, c.arc) << int(c.wire[0]);
    }

    // One octet: only octet 1's fields; two: the second extension stays 0.
    AstItem021_040 d;
    Octets wire = {0xFF};
    AstDataItem item = span(wire, 21040);
    ast_dataitem_021_040_decode(&d, &item);
    EXPECT_EQ(d.rc + d.rab, 2);
    EXPECT_EQ(d.dcr + d.gbs + d.sim + d.tst + d.saa + d.cl + d.ext1_present, 0u);
    wire = {0x01, 0xFF};
    item = span(wire, 21040);
    ast_dataitem_021_040_decode(&d, &item);
    EXPECT_EQ(d.cl, 3u);
    EXPECT_EQ(d.dcr + d.gbs + d.sim + d.tst + d.saa, 5);
    EXPECT_EQ(d.bit7 + d.ipc + d.nogo + d.cpr + d.ldpj + d.rcf + d.ext2_present, 0);
    wire = {0x01, 0x01, 0x7E, 0xFF};
    item = span(wire, 21040);
    ast_dataitem_021_040_decode(&d, &item);
    EXPECT_EQ(d.bit7 + d.ipc + d.nogo + d.cpr + d.ldpj + d.rcf, 6);
}

TEST(Cat021Items, DecodedValues) {
    AstItem021_150 speed;
    Octets wire = {0x80, 0x01};
    AstDataItem item = span(wire, 21150);
    ast_dataitem_021_150_decode(&speed, &item);
    EXPECT_EQ(speed.mach, 0.001);
    EXPECT_EQ(speed.mach_valid, 1);
    EXPECT_EQ(speed.ias, 0.0);
    EXPECT_EQ(speed.ias_valid, 0);
    wire = {0x00, 0x01};
    item = span(wire, 21150);
    ast_dataitem_021_150_decode(&speed, &item);
    EXPECT_EQ(speed.ias, 0.2197265625);
    EXPECT_EQ(speed.mach_valid, 0);

    AstItem021_145 level;
    wire = {0x80, 0x01};
    item = span(wire, 21145);
    ast_dataitem_021_145_decode(&level, &item);
    EXPECT_EQ(level.raw, -32767);
    EXPECT_EQ(level.value, -819175);
    EXPECT_EQ(level.lsb, 25.0);

    // The advisory's fields from the octets, TTI left 0.
    AstItem021_260 ra;
    wire = {0xE2, 0xAB, 0xCD, 0xF7, 0x3C, 0x65, 0x86};
    item = span(wire, 21260);
    ast_dataitem_021_260_decode(&ra, &item);
    ASSERT_EQ(ra.valid, 1);
    EXPECT_EQ(ra.typ, 28u);
    EXPECT_EQ(ra.styp, 2u);
    EXPECT_EQ(ra.broadcast, 1);
    EXPECT_EQ(ra.ra_active, 1);
    EXPECT_EQ(ra.ara, (0xABu << 6) | (0xCDu >> 2));
    EXPECT_EQ(ra.rac, 1u * 4 + 3);
    EXPECT_EQ(ra.rat, 1);
    EXPECT_EQ(ra.mte, 1);
    EXPECT_EQ(ra.tti, 0u);
    EXPECT_EQ(ra.tid, 0x033C6586u);

    AstItem021_016 period;
    wire = {0x07};
    item = span(wire, 21016);
    ast_dataitem_021_016_decode(&period, &item);
    EXPECT_EQ(period.raw, 7u);
    EXPECT_EQ(period.lsb, 0.5);
    EXPECT_EQ(period.period, 3.5);

    AstItem021_032 accuracy;
    wire = {0x03};
    item = span(wire, 21032);
    ast_dataitem_021_032_decode(&accuracy, &item);
    EXPECT_EQ(accuracy.lsb, 0.00390625);
    EXPECT_EQ(accuracy.raw, 3u);
}

// The value cells of a detail table, in order.
std::vector<std::string> cells(const std::string &html) {
    std::vector<std::string> out;
    for (size_t at = 0; (at = html.find("<td", at)) != std::string::npos;) {
        const size_t open = html.find('>', at) + 1;
        const size_t close = html.find("</td>", open);
        out.push_back(html.substr(open, close - open));
        at = close;
    }
    return out;
}

TEST(Cat021Items, DetailTables) {
    const Octets wire = {0x29, 0xFB, 0x3E};
    const AstDataItem item = span(wire, 21040);
    std::vector<char> buf(8192);
    ast_dataitem_get_detail_html(buf.data(), buf.size(), &item);
    const std::string html(buf.data());
    for (const char *header : {"Bit", "ID", "Name", "Value"}) EXPECT_NE(html.find(header), std::string::npos);
    const std::vector<std::string> expected = {
        "Bit[1-3]",   "ATP",  "ADDRESS_TYPE",                       "1",
        "Bit[4-5]",   "ARC",  "ALTITUDE_REPORT_CAPABILITY",         "100FT",
        "Bit[6]",     "RC",   "RANGE_CHECK",                        "0",
        "Bit[7]",     "RAB",  "FIXED_TRANSPONDER_REPORT",           "0",
        "Bit[9]",     "DCR",  "DIFFERENTIAL_CORRECTION",            "1",
        "Bit[10]",    "GBS",  "GROUND_BIT_SET",                     "1",
        "Bit[11]",    "SIM",  "SIMULATED_TARGET_REPORT",            "1",
        "Bit[12]",    "TST",  "TEST_TARGET",                        "1",
        "Bit[13]",    "SAA",  "NO_SELECTED_ALTITUDE_CAPABILITY",    "1",
        "Bit[14-15]", "CL",   "CONFIDENCE_LEVEL",                   "1",
        "Bit[17-18]", "---",  "SPARE",                              "0",
        "Bit[19]",    "IPC",  "INDEPENDENT_PONSITION_CHECK_FAILED", "1",
        "Bit[20]",    "NOGO", "NOGO_BIT_SET",                       "1",
        "Bit[21]",    "CPR",  "CPR_VALIDATION_FAILED",              "1",
        "Bit[22]",    "LDPJ", "LDPJ_DETECTED",                      "1",
        "Bit[23]",    "RCF",  "RANGE_CHECK_FAILED",                 "1",
    };
    EXPECT_EQ(cells(html), expected);

    // Every own item has a table with one row per field; a span that does
    // not decode gives the empty text.
    const struct {
        AstItemId id;
        Octets wire;
        std::vector<std::string> values;  // the Value column
    } tables[] = {
        {21008, {0x81}, {"1", "0", "0", "0", "0", "0", "1"}},
        {21020, {0x05}, {"Heavy aircraft (300000+ lbs)"}},
        {21146, {0xC0, 0x8C}, {"1", "FCU/MCP Selected Altitude", "3500 ft"}},
        {21150, {0x83, 0x20}, {"MACH", "0.800"}},
        {21200, {0x05}, {"0", "0", "0", "GENERAL", "PERM_ALR"}},
        {21210, {0x13}, {"0", "2", "VDL4"}},
        {21271, {0x05, 0x30}, {"0", "0", "0", "1", "0", "3"}},
        {21907, {0x05, 0x03}, {"0", "0", "0", "1", "0", "3"}},
        {21903, {0x80, 0x38}, {"1", "0", "0", "0", "0", "0", "0", "0", "RESERVED"}},
    };
    for (const auto &t : tables) {
        const AstDataItem it = span(t.wire, t.id);
        ast_dataitem_get_detail_html(buf.data(), buf.size(), &it);
        const std::vector<std::string> all = cells(buf.data());
        std::vector<std::string> values;
        for (size_t i = 3; i < all.size(); i += 4) values.push_back(all[i]);
        EXPECT_EQ(values, t.values) << t.id;
    }
    const Octets short_wire = {0x05};
    const AstDataItem bad = span(short_wire, 21146);
    buf[0] = 'x';
    ast_dataitem_get_detail_html(buf.data(), buf.size(), &bad);
    EXPECT_STREQ(buf.data(), "");
}

// Each own item, its length, and a span that must not decode.
struct BadCase {
    AstItemId id;
    AstItemId other;  // an identifier the octets must not be read under
    size_t length;    // its fixed length (0: variable)
};

const BadCase kBad[] = {
    {21008, 21016, 1}, {21016, 21008, 1}, {21020, 21095, 1}, {21032, 21020, 1}, {21903, 21905, 2},
    {21905, 21903, 2}, {21095, 21904, 1}, {21904, 21095, 1}, {21132, 21400, 1}, {21140, 21145, 2},
    {21145, 21140, 2}, {21146, 21145, 2}, {21150, 21151, 2}, {21151, 21150, 2}, {21152, 21230, 2},
    {21160, 21911, 4}, {21911, 21160, 4}, {21200, 21908, 1}, {21908, 21200, 1}, {21210, 21906, 1},
    {21906, 21210, 1}, {21230, 21152, 2}, {21260, 48260, 7}, {21400, 21132, 1},
};

TEST(Cat021Items, SpansThatDoNotDecode) {
    alignas(16) unsigned char storage[4096];
    for (const BadCase &b : kBad) {
        const Octets wire(b.length + 1, 0x55);
        // Wrong length (one more and one less), wrong identifier, invalid span.
        const AstDataItem spans[] = {
            AstDataItem{wire.data(), b.length + 1, b.id, 1},
            AstDataItem{wire.data(), b.length - 1, b.id, 1},
            AstDataItem{wire.data(), b.length, b.other, 1},
            AstDataItem{wire.data(), b.length, b.id, 0},
            AstDataItem{nullptr, b.length, b.id, 1},
        };
        AstDataItemFuncs f;
        ast_dataitem_get_func(&f, b.id);
        ASSERT_NE(f.get_summary, nullptr) << b.id;
        ASSERT_NE(f.decode_ex, nullptr) << b.id;
        for (const AstDataItem &s : spans) {
            if (s.id != b.id) continue;  // the other identifier is tried below
            char text[64] = "junk";
            f.get_summary(text, sizeof text, &s);
            EXPECT_STREQ(text, "") << b.id << " length " << s.length;
            std::memset(storage, 0xAA, sizeof storage);
            AstDataItemValue v;
            ast_dataitem_decode(&v, storage, sizeof storage, &s);
            EXPECT_EQ(v.valid, 0) << b.id << " length " << s.length;
        }
        // The item's own decoder refuses octets of another item.
        AstDataItemValue v;
        f.decode_ex(&v, storage, sizeof storage, &spans[2]);
        EXPECT_EQ(v.valid, 0) << b.id;
        EXPECT_EQ(storage[0], 0) << b.id;  // the zeroed structure's valid flag
    }
    // Variable items: no octets, or another identifier.
    const Octets one = {0x00};
    for (AstItemId id : {21040u, 21090u, 21271u, 21907u}) {
        AstDataItemFuncs f;
        ast_dataitem_get_func(&f, id);
        AstDataItemValue v;
        const AstDataItem empty{one.data(), 0, id, 1};
        f.decode_ex(&v, storage, sizeof storage, &empty);
        EXPECT_EQ(v.valid, 0) << id;
        const AstDataItem other{one.data(), 1, 48020, 1};
        f.decode_ex(&v, storage, sizeof storage, &other);
        EXPECT_EQ(v.valid, 0) << id;
    }
}

// Items the wire gives back unchanged through the decoded structure, the
// named fields and the encoder.
struct RoundCase {
    AstItemId id;
    Octets wire;
};

const RoundCase kRound[] = {
    {21008, {0xDF}}, {21008, {0x00}}, {21016, {0xFF}}, {21020, {0x18}}, {21020, {0x00}}, {21032, {0x80}},
    {21040, {0x00}}, {21040, {0x86}}, {21040, {0x29, 0x00}}, {21040, {0x51, 0xFF, 0x7E}},
    {21040, {0x01, 0x01, 0x00}},
    {21903, {0x00, 0x00}}, {21903, {0xFE, 0x38}}, {21903, {0x40, 0x98}},
    {21090, {0x5C}}, {21090, {0x3F, 0x97, 0x2C}}, {21090, {0xFF, 0xFF, 0x3F, 0xF0}}, {21090, {0x01, 0x00}},
    {21905, {0x54, 0x07}}, {21905, {0xFC, 0x0F}}, {21095, {0xFF}}, {21904, {0xB4}}, {21132, {0x80}},
    {21140, {0x80, 0x00}}, {21140, {0x7F, 0xFF}}, {21145, {0xFF, 0xFE}}, {21146, {0xE0, 0x8C}},
    {21146, {0x1F, 0xFF}}, {21150, {0x83, 0x20}}, {21150, {0x7F, 0xFF}}, {21151, {0x81, 0xC2}},
    {21152, {0xFF, 0xFF}}, {21160, {0x87, 0xD0, 0x80, 0x00}}, {21911, {0xFF, 0xFF, 0x12, 0x34}},
    {21200, {0xE7}}, {21200, {0x1E}}, {21908, {0x07}}, {21210, {0x54}}, {21210, {0x04}}, {21906, {0x1F}},
    {21230, {0xFF, 0x9C}}, {21260, {0xE2, 0xAB, 0xCD, 0xF3, 0x3C, 0x65, 0x86}}, {21260, {0, 0, 0, 0, 0, 0, 0}},
    {21271, {0x3E}}, {21271, {0x01, 0xF0}}, {21907, {0x2B, 0x0F}}, {21907, {0x00}}, {21400, {0x03}},
    // Compound items: subfields in any mix.
    {21110, {0xC0, 0x80, 0x01, 0x85, 0x00, 0x64, 0x20, 0x00, 0x00, 0x04, 0x00, 0x00, 0x9F, 0x00, 0x0E, 0x10,
             0x01, 0xF4}},
    {21110, {0x80, 0x40}},
    {21220, {0xF0, 0x00, 0x55, 0x01, 0x0E, 0xFF, 0x24, 0x07}},
    {21220, {0x10, 0x0F}},
    {21295, {0x85, 0x01, 0x01, 0x40, 0x05, 0x0A, 0xFF}},
    {21295, {0x04, 0x03}},
    {21295, {0xFF, 0xFF, 0xFF, 0xC0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21,
             22, 23}},
};

Octets through_structure(AstItemId id, const Octets &wire) {
    alignas(16) unsigned char storage[8192];
    const AstDataItem item = kovrel_test::scanned(id, wire);
    EXPECT_EQ(item.length, wire.size()) << id;
    AstDataItemValue value;
    ast_dataitem_decode(&value, storage, sizeof storage, &item);
    EXPECT_EQ(value.valid, 1) << id;
    uint8_t out[512];
    AstDataItem written;
    ast_dataitem_encode(&written, out, sizeof out, &value);
    EXPECT_EQ(written.id, id);
    if (written.valid != 1) return {};
    // One octet short writes nothing.
    AstDataItem cut;
    uint8_t small[512];
    std::memset(small, 0xEE, sizeof small);
    ast_dataitem_encode(&cut, small, written.length - 1, &value);
    EXPECT_EQ(cut.valid, 0) << id;
    EXPECT_EQ(cut.length, 0u) << id;
    for (uint8_t o : small) EXPECT_EQ(o, 0xEE) << id;
    return Octets(out, out + written.length);
}

// A leaf of a walk: its dotted path and its value (texts copied).
struct Leaf {
    std::string path;
    AstField value;
    std::string text;
};

struct Collector {
    std::vector<std::string> groups;
    std::vector<Leaf> leaves;
    int in_array = 0;
};

int collect(void *context, const AstField *f) {
    auto &c = *static_cast<Collector *>(context);
    switch (f->kind) {
    case AST_FIELD_ARRAY_BEGIN: ++c.in_array; return 1;
    case AST_FIELD_ARRAY_END: --c.in_array; return 1;
    case AST_FIELD_GROUP_BEGIN: c.groups.push_back(f->name ? f->name : ""); return 1;
    case AST_FIELD_GROUP_END: c.groups.pop_back(); return 1;
    default: break;
    }
    if (c.in_array > 0 || f->kind == AST_FIELD_OCTETS) return 1;
    std::string path;
    for (const std::string &g : c.groups) path += g + ".";
    c.leaves.push_back(Leaf{path + f->name, *f, f->text ? std::string(f->text, f->length) : std::string()});
    return 1;
}

Octets through_fields(AstItemId id, const Octets &wire) {
    Collector c;
    const AstDataItem item = span(wire, id);
    EXPECT_EQ(ast_dataitem_walk_fields(&item, collect, &c), AST_FIELDS_DONE) << id;
    alignas(16) unsigned char storage[8192];
    const size_t size = ast_dataitem_fields_storage_size(id);
    EXPECT_TRUE(size > 0 && size <= sizeof storage) << id;
    EXPECT_EQ(ast_dataitem_fields_init(storage, size, id), 1) << id;
    for (Leaf &leaf : c.leaves) {
        leaf.value.text = leaf.text.data();
        EXPECT_EQ(ast_dataitem_fields_set(storage, size, id, leaf.path.c_str(), &leaf.value), AST_FIELD_SET_OK)
            << id << " " << leaf.path;
    }
    uint8_t out[512];
    AstDataItem written{};
    const AstDataItemValue value{1, id, storage};
    ast_dataitem_encode(&written, out, sizeof out, &value);
    if (written.valid != 1) return {};
    return Octets(out, out + written.length);
}

TEST(Cat021Items, EncodersGiveTheWireBack) {
    for (const RoundCase &c : kRound) EXPECT_EQ(through_structure(c.id, c.wire), c.wire) << c.id;
}

TEST(Cat021Items, EncodersRoundTripThroughTheFields) {
    for (const RoundCase &c : kRound) EXPECT_EQ(through_fields(c.id, c.wire), c.wire) << c.id;
}

TEST(Cat021Items, JsonNamesTheValues) {
    const struct {
        AstItemId id;
        Octets wire;
        const char *json;
    } cases[] = {
        {21008, {0x81}, R"({"ra":1,"tc":0,"ts":0,"arv":0,"cdti_a":0,"not_tcas":0,"sa":1})"},
        {21040, {0x29, 0x00}, R"({"atp":1,"arc":2,"rc":0,"rab":0,"dcr":0,"gbs":0,"sim":0,"tst":0,"saa":0,"cl":0})"},
        {21090, {0x5D, 0x00}, R"({"nucr_nacv":2,"nucp_nic":14,"nic_baro":0,"sil":0,"nacp":0})"},
        {21145, {0x01, 0x40}, R"({"fl":80})"},
        {21146, {0xE0, 0x8C}, R"({"sas":1,"src":3,"alt":35})"},
        {21150, {0x83, 0x20}, R"({"im":1,"mach":0.8})"},
        {21160, {0x87, 0xD0, 0x80, 0x00}, R"({"re":1,"gs":439.453125,"ta":180})"},
        {21220, {0xA0, 0x00, 0x55, 0xFF, 0x24}, R"({"ws":85,"tmp":-55})"},
        {21295, {0x04, 0x03}, R"({"mam":0.3})"},
        {21110, {0x40, 0x01, 0x85, 0x00, 0x64, 0x20, 0x00, 0x00, 0x04, 0x00, 0x00, 0x9F, 0x00, 0x0E, 0x10, 0x01, 0xF4},
         R"({"tid":{"p1":{"tca":1,"nc":0,"tcpn":5,"alt":1000,"lat":45,"lon":5.625,"pt":9,"td":3,"tra":1,)"
         R"("toa":1,"tov":3600,"ttr":5}}})"},
    };
    for (const auto &c : cases) {
        const AstDataItem item = span(c.wire, c.id);
        std::vector<char> buf(4096);
        ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
        EXPECT_STREQ(buf.data(), c.json) << c.id;
    }
}

TEST(Cat021Items, EncodersRefuseWhatTheWireCannotHold) {
    uint8_t out[64];
    AstDataItem written;
    AstItem021_020 ecat{1, 25};
    ast_dataitem_021_020_encode(&written, out, sizeof out, &ecat);
    EXPECT_EQ(written.valid, 0);
    AstItem021_040 d{};
    d.valid = 1;
    d.atp = 5;
    ast_dataitem_021_040_encode(&written, out, sizeof out, &d);
    EXPECT_EQ(written.valid, 0);
    d.atp = 4;
    d.cl = 4;
    ast_dataitem_021_040_encode(&written, out, sizeof out, &d);
    EXPECT_EQ(written.valid, 0);
    // A field of octet 3 brings octets 2 and 3 along, FX bits set.
    d.cl = 0;
    d.rcf = 1;
    ast_dataitem_021_040_encode(&written, out, sizeof out, &d);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Octets(out, out + written.length), (Octets{0x81 | 0x10, 0x01, 0x02}));
    AstItem021_146 sel{1, 0, 0, 4096};
    ast_dataitem_021_146_encode(&written, out, sizeof out, &sel);
    EXPECT_EQ(written.valid, 0);
    sel.altitude = -4096;
    ast_dataitem_021_146_encode(&written, out, sizeof out, &sel);
    EXPECT_EQ(written.valid, 1);
    AstItem021_A08 status{1, 8};
    ast_dataitem_021_A08_encode(&written, out, sizeof out, &status);
    EXPECT_EQ(written.valid, 0);
    AstItem021_295 ages{};
    ages.valid = 1;
    ages.ages[3] = AstItem021Age{1, 25.6};
    ast_dataitem_021_295_encode(&written, out, sizeof out, &ages);
    EXPECT_EQ(written.valid, 0);
    ages.ages[3].age = 25.5;
    ast_dataitem_021_295_encode(&written, out, sizeof out, &ages);
    ASSERT_EQ(written.valid, 1);
    EXPECT_EQ(Octets(out, out + written.length), (Octets{0x10, 0xFF}));
    // A structure that is not marked valid is never written.
    AstItem021_400 rid{0, 3};
    ast_dataitem_021_400_encode(&written, out, sizeof out, &rid);
    EXPECT_EQ(written.valid, 0);
    EXPECT_EQ(written.length, 0u);
    // Setting refuses a value wider than the wire field.
    alignas(16) unsigned char storage[256];
    ASSERT_EQ(ast_dataitem_fields_init(storage, sizeof storage, 21271), 1);
    AstField lw{};
    lw.kind = AST_FIELD_UNSIGNED;
    lw.u = 16;
    EXPECT_NE(ast_dataitem_fields_set(storage, sizeof storage, 21271, "lw", &lw), AST_FIELD_SET_OK);
    lw.u = 15;
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 21271, "lw", &lw), AST_FIELD_SET_OK);
}

TEST(Cat021Items, CompoundItemsStayInsideTheirSpan) {
    // A primary subfield announcing subfields the span does not hold, and
    // a TID repetition factor beyond the data: nothing decodes.
    alignas(16) unsigned char storage[8192];
    const struct {
        AstItemId id;
        Octets wire;
    } cases[] = {
        {21110, {0x40, 0x02, 0x00}},
        {21110, {0xC0}},
        {21220, {0xF0, 0x00}},
        {21295, {0x01, 0x01, 0x01}},
        {21295, {0xFF, 0xFF, 0xFF, 0xC0, 1, 2}},
        // Subfields the item does not have: the split skips them, the item
        // does not decode.
        {21110, {0x20}},
        {21220, {0x88, 0x00, 0x01}},
        {21295, {0x01, 0x01, 0x01, 0x21}},
    };
    for (const auto &c : cases) {
        const AstDataItem item = span(c.wire, c.id);
        AstDataItemValue v;
        ast_dataitem_decode(&v, storage, sizeof storage, &item);
        EXPECT_EQ(v.valid, 0) << c.id << " " << c.wire.size();
    }
    // A compound item without any subfield cannot be written: a primary
    // subfield needs a bit.
    uint8_t out[16];
    AstDataItem written;
    AstItem021_110 none110{};
    none110.valid = 1;
    ast_dataitem_021_110_encode(&written, out, sizeof out, &none110);
    EXPECT_EQ(written.valid, 0);
    AstItem021_220 none220{};
    none220.valid = 1;
    ast_dataitem_021_220_encode(&written, out, sizeof out, &none220);
    EXPECT_EQ(written.valid, 0);
    AstItem021_295 none295{};
    none295.valid = 1;
    ast_dataitem_021_295_encode(&written, out, sizeof out, &none295);
    EXPECT_EQ(written.valid, 0);

    // An intent data subfield without points is written back as it came.
    EXPECT_EQ(through_structure(21110, {0x40, 0x00}), (Octets{0x40, 0x00}));

    // More points than the structure holds: the first 16 are decoded, the
    // count on the wire is kept.
    Octets many = {0x40, 20};
    many.resize(2 + 20 * 15, 0x00);
    const AstDataItem item = span(many, 21110);
    AstItem021_110 ti;
    ast_dataitem_021_110_decode(&ti, &item);
    ASSERT_EQ(ti.valid, 1);
    EXPECT_EQ(ti.tid_rep, 20u);
    EXPECT_EQ(ti.tid_count, 16u);
}

}  // namespace
