// CAT062 elementary items of the category's own: summaries from wire
// octets, the I062/080 detail rows octet by octet, the decoded structures,
// and the spans that give no text.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kovrel/cat062.h"
#include "kovrel/dataitem.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::Octets;
using kovrel_test::scanned;

namespace {

std::string summary_of(AstItemId id, const Octets &o) {
    const AstDataItem item = scanned(id, o);
    EXPECT_EQ(item.valid, 1) << id;
    char text[128];
    ast_dataitem_get_summary(text, sizeof text, &item);
    return text;
}

std::string detail_of(AstItemId id, const Octets &o) {
    const AstDataItem item = scanned(id, o);
    std::vector<char> html(16384);
    ast_dataitem_get_detail_html(html.data(), html.size(), &item);
    return html.data();
}

struct SummaryCase {
    AstItemId id;
    Octets wire;
    const char *text;
};

// Values worked by hand: 6.25 ft (130), 25 ft per quarter FL (135, 136),
// 0.25 m/s2 (210), 6.25 ft/min (220), 360/128 deg (270).
const SummaryCase kSummaries[] = {
    {62080, {0x80}, "TRACK_STS:MONO"},
    {62080, {0x7F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE}, "TRACK_STS:MULTI"},
    {62130, {0x00, 0xC8}, "LEVEL:1250.00 LSB:FT"},
    {62130, {0xFF, 0xFF}, "LEVEL:-6.25 LSB:FT"},
    {62135, {0x80, 0x64}, "ALTITUDE:2500 LSB:FT QNH"},
    {62135, {0x00, 0x64}, "ALTITUDE:2500 LSB:FT"},
    {62135, {0x7F, 0xFC}, "ALTITUDE:-100 LSB:FT"},   // 15-bit two's complement, QNH clear
    {62135, {0xC0, 0x00}, "ALTITUDE:-409600 LSB:FT QNH"},
    {62136, {0x01, 0x40}, "LEVEL:8000 LSB:FT"},
    {62136, {0xFF, 0xFC}, "LEVEL:-100 LSB:FT"},
    {62200, {0x48}, "TRANS:RIGHT LONG:CONSTANT VERT:DESCENT"},
    {62200, {0x94}, "TRANS:LEFT LONG:INCREASING VERT:CLIMB"},
    {62200, {0xFE}, "TRANS:UNDETERMINED LONG:UNDETERMINED VERT:UNDETERMINED ADF"},
    {62200, {0x00}, "TRANS:CONSTANT LONG:CONSTANT VERT:LEVEL"},
    {62210, {0x04, 0xF8}, "AX:1.00 AY:-2.00"},
    {62210, {0x7F, 0x80}, "AX:31.75 AY:-32.00"},
    {62220, {0xFF, 0xF0}, "VH:-100.00"},
    {62220, {0x00, 0x01}, "VH:6.25"},
    {62270, {0x14}, "L:10"},
    {62270, {0x15, 0x40}, "L:10 O:90.00"},
    {62270, {0x15, 0x41, 0x08}, "L:10 O:90.00 W:4"},
    {62270, {0xFF, 0xFF, 0xFE}, "L:127 O:357.19 W:127"},
    {62300, {0x03}, "FIRE"},
    {62300, {0x10}, "FOLLOW_ME"},
    {62300, {0x11}, "UNDEFINED"},
    {62510, {0x01, 0x00, 0x10}, "NUM_TRACKS:1"},
    {62510, {0x01, 0x00, 0x11, 0x02, 0x00, 0x23, 0x03, 0xFF, 0xFE}, "NUM_TRACKS:3"},
};

}  // namespace

TEST(Cat062Items, SummariesFromWireOctets) {
    kovrel_test::LogCapture log;
    for (const auto &c : kSummaries) EXPECT_EQ(summary_of(c.id, c.wire), c.text) << c.id;
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat062Items, SpansThatGiveNoText) {
    char text[64];
    const uint8_t two[] = {0x01, 0x40};
    // Another item's identifier, a wrong length, an invalid span: empty.
    const AstDataItem other{two, 2, 62130, 1};
    ast_dataitem_062_136_get_summary(text, sizeof text, &other);
    EXPECT_STREQ(text, "");
    const AstDataItem short_span{two, 1, 62136, 1};
    ast_dataitem_062_136_get_summary(text, sizeof text, &short_span);
    EXPECT_STREQ(text, "");
    const AstDataItem invalid{two, 2, 62136, 0};
    ast_dataitem_062_136_get_summary(text, sizeof text, &invalid);
    EXPECT_STREQ(text, "");
    const uint8_t seven[7] = {0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x00};
    const AstDataItem too_long{seven, 7, 62080, 1};
    ast_dataitem_062_080_get_summary(text, sizeof text, &too_long);
    EXPECT_STREQ(text, "");
    const AstDataItem four_270{seven, 4, 62270, 1};
    ast_dataitem_062_270_get_summary(text, sizeof text, &four_270);
    EXPECT_STREQ(text, "");
    // Buffers of 1 and "one short" hold what fits.
    const Octets qnh_wire = {0x80, 0x64};
    const AstDataItem qnh = scanned(62135, qnh_wire);
    ast_dataitem_062_135_get_summary(text, 1, &qnh);
    EXPECT_STREQ(text, "");
    ast_dataitem_062_135_get_summary(text, 24, &qnh);
    EXPECT_STREQ(text, "ALTITUDE:2500 LSB:FT QN");
}

TEST(Cat062Items, TrackStatusOctetByOctet) {
    AstItem062_080 s;
    // MON SPI MRH SRC=5 CNF; SIM TSE TSB FPC AFF STP KOS; AMA MD4=1 ME MI MD5=2;
    // CST PSR SSR MDS ADS SUC AAC; SDS=2 EMS=5 PFT FPLT; DUPT .. MLAT.
    const Octets all = {0xF7, 0xFF, 0xBD, 0xFF, 0xAF, 0xFE};
    const AstDataItem item = scanned(62080, all);
    ast_dataitem_062_080_decode(&s, &item);
    ASSERT_EQ(s.valid, 1u);
    EXPECT_EQ(s.octets, 6u);
    EXPECT_EQ(s.mon + s.spi + s.mrh + s.cnf, 4);
    EXPECT_EQ(s.src, 5u);
    EXPECT_EQ(s.sim + s.tse + s.tsb + s.fpc + s.aff + s.stp + s.kos, 7);
    EXPECT_EQ(s.ama, 1);
    EXPECT_EQ(s.md4, 1u);
    EXPECT_EQ(s.me + s.mi, 2);
    EXPECT_EQ(s.md5, 2u);
    EXPECT_EQ(s.cst + s.psr + s.ssr + s.mds + s.ads + s.suc + s.aac, 7);
    EXPECT_EQ(s.sds, 2u);
    EXPECT_EQ(s.ems, 5u);
    EXPECT_EQ(s.pft + s.fplt, 2);
    EXPECT_EQ(s.dupt + s.dupf + s.dupm + s.sfc + s.idd + s.iec + s.mlat, 7);

    const std::string html = detail_of(62080, all);
    for (const char *cell : {"MONO_SENSOR_TRACK", "Bit[3-5]", "SPEED_LOOKUP_TABLE", "Bit[8]", "SIMULATED",
                             "Bit[17-18]", "FRIENDLY_TARGET", "UNKNOWN_TARGET", "Bit[29]", "SPECIAL_MODEA_CODE",
                             "NON_COOPERATIVE_ONLY", "UNLAWFUL", "Bit[46]", "MLAT_COASTING", "Bit[47]"})
        EXPECT_NE(html.find(cell), std::string::npos) << cell;

    // One octet: the first six rows and its FX, nothing of the extensions.
    const std::string one = detail_of(62080, {0x00});
    EXPECT_NE(one.find("MULTI_SENSOR_TRACK"), std::string::npos);
    EXPECT_NE(one.find("NO_SOURCE"), std::string::npos);
    EXPECT_NE(one.find("Bit[7]"), std::string::npos);
    EXPECT_EQ(one.find("Bit[8]"), std::string::npos);
    // Three octets: the Mode 4 reply "no reply" and no coasting rows.
    const std::string three = detail_of(62080, {0x01, 0x01, 0x60});
    EXPECT_NE(three.find("NO_REPLY"), std::string::npos);
    EXPECT_NE(three.find("NO_INTERROGATION"), std::string::npos);
    EXPECT_EQ(three.find("COASTING"), std::string::npos);

    // The rows after the first octet's are there only for a longer span.
    const Octets two_wire = {0x01, 0x40};
    const AstDataItem two = scanned(62080, two_wire);
    ast_dataitem_062_080_decode(&s, &two);
    EXPECT_EQ(s.ext2, 1);
    EXPECT_EQ(s.ext3, 0);
    EXPECT_EQ(s.tse, 1);
}

TEST(Cat062Items, DecodedStructures) {
    AstItem062_135 baro;
    const Octets b_wire = {0xFF, 0xFF};
    const AstDataItem b = scanned(62135, b_wire);
    ast_dataitem_062_135_decode(&baro, &b);
    EXPECT_EQ(baro.qnh, 1);
    EXPECT_EQ(baro.raw, -1);
    EXPECT_DOUBLE_EQ(baro.altitude, -25.0);

    AstItem062_270 size;
    const Octets s_wire = {0x15, 0x41, 0x08};
    const AstDataItem s = scanned(62270, s_wire);
    ast_dataitem_062_270_decode(&size, &s);
    EXPECT_EQ(size.length, 10u);
    EXPECT_EQ(size.orientation_raw, 32u);
    EXPECT_DOUBLE_EQ(size.orientation, 90.0);
    EXPECT_EQ(size.width_present, 1);
    EXPECT_EQ(size.width, 4u);

    // Composed track number: unit and 15-bit track of each group.
    AstItem062_510 c;
    const Octets tracks_wire = {0x01, 0x00, 0x11, 0x02, 0x00, 0x23, 0x03, 0xFF, 0xFE};
    const AstDataItem tracks = scanned(62510, tracks_wire);
    ast_dataitem_062_510_decode(&c, &tracks);
    ASSERT_EQ(c.valid, 1u);
    EXPECT_EQ(c.count, 3u);
    EXPECT_EQ(c.tracks[0].ident, 1u);
    EXPECT_EQ(c.tracks[0].track, 8u);
    EXPECT_EQ(c.tracks[1].track, 17u);
    EXPECT_EQ(c.tracks[2].ident, 3u);
    EXPECT_EQ(c.tracks[2].track, 0x7FFFu);
    const std::string html = detail_of(62510, {0x01, 0x00, 0x11, 0x02, 0x00, 0x23, 0x03, 0xFF, 0xFE});
    EXPECT_NE(html.find("MASTER"), std::string::npos);
    EXPECT_NE(html.find("32767"), std::string::npos);

    // A group in the middle that ends the chain, or a partial group: refused.
    const uint8_t broken[] = {0x01, 0x00, 0x10, 0x02, 0x00, 0x22};
    const AstDataItem early{broken, 6, 62510, 1};
    ast_dataitem_062_510_decode(&c, &early);
    EXPECT_EQ(c.valid, 0u);
    EXPECT_EQ(c.count, 0u);
    const AstDataItem partial{broken, 4, 62510, 1};
    ast_dataitem_062_510_decode(&c, &partial);
    EXPECT_EQ(c.valid, 0u);
    // A chain cut by the end of the data keeps its whole groups.
    const Octets cut_wire = {0x01, 0x00, 0x11, 0x02};
    const AstDataItem cut = scanned(62510, cut_wire);
    EXPECT_EQ(cut.length, 3u);
    ast_dataitem_062_510_decode(&c, &cut);
    EXPECT_EQ(c.valid, 1u);
    EXPECT_EQ(c.count, 1u);

    // Many groups: all counted, the first AST_ITEM062_510_MAX kept.
    Octets many;
    for (int i = 0; i < 20; ++i) many.insert(many.end(), {static_cast<uint8_t>(i), 0x00, 0x03});
    many.back() = 0x02;
    EXPECT_EQ(summary_of(62510, many), "NUM_TRACKS:20");
    const AstDataItem m = scanned(62510, many);
    ast_dataitem_062_510_decode(&c, &m);
    EXPECT_EQ(c.stored, static_cast<uint32_t>(AST_ITEM062_510_MAX));
    EXPECT_EQ(c.tracks[15].ident, 15u);
}

TEST(Cat062Items, DetailViewsOfTheSmallItems) {
    struct DetailCase {
        AstItemId id;
        Octets wire;
        const char *cell;
    };
    const DetailCase cases[] = {
        {62130, {0x00, 0xC8}, "1250.00"},   {62135, {0x80, 0x64}, "QNH_CORRECTION"},
        {62136, {0x01, 0x40}, "80.00"},     {62200, {0x48}, "RIGHT"},
        {62210, {0x04, 0xF8}, "-2.00"},     {62220, {0xFF, 0xF0}, "-100.00"},
        {62270, {0x15, 0x40}, "90.00"},     {62300, {0x05}, "SNOW_PLOUGH"},
    };
    for (const auto &c : cases) {
        const std::string html = detail_of(c.id, c.wire);
        EXPECT_NE(html.find(c.cell), std::string::npos) << c.id << ": " << html;
    }
    EXPECT_EQ(detail_of(62270, {0x14}).find("ORIENTATION"), std::string::npos);
}
