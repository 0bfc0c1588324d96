// CAT240 items of the category's own: summaries from wire octets in the
// order a record gives them (the block summaries read the thread's video
// state), detail rows, the video cell list and its table, the refused
// spans, and the named fields.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "kovrel/cat240.h"
#include "kovrel/core.h"
#include "kovrel/fields.h"
#include "support/log_capture.h"
#include "support/record_walk.h"
#include "support/served.h"

using kovrel_test::LogCapture;
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
    std::vector<char> html(65536);
    ast_dataitem_get_detail_html(html.data(), html.size(), &item);
    return html.data();
}

// A span as a caller may hand it over, whatever the size rule says.
const AstDataItem *span(const uint8_t *data, uint64_t length, AstItemId id, uint8_t valid) {
    static AstDataItem item;
    item = AstDataItem{data, length, id, valid};
    return &item;
}

Octets block(uint8_t rep, size_t unit, uint8_t fill) {
    Octets o(1 + rep * unit, fill);
    o[0] = rep;
    return o;
}

struct SummaryCase {
    AstItemId id;
    Octets wire;
    const char *text;
};

const Octets kNano = {0x40, 0x00, 0x80, 0x00, 0x00, 0x00, 0x00, 0x0A, 0x00, 0x00, 0x03, 0xE8};
const Octets kText17 = {17, '0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'A', 'B', 'C', 'D', 'E', 'F', 'G'};

// In order, on a thread of their own: the first block is seen before any
// resolution. Ranges worked by hand: 10 cells of 1000 ns at c/2 are
// 1498.96 m; azimuths in units of 360/2^16 deg.
const std::vector<SummaryCase> kSequence = {
    {240050, {0x01, 0x01, 0x02, 0x03, 0x04}, "OCTET:4"},
    {240000, {0x01}, "MSG_TYPE:VIDEO_SUMMARY"},
    {240000, {0x02}, "MSG_TYPE:VIDEO_MESSAGE"},
    {240000, {0x03}, "MSG_TYPE:UNDEFINED"},
    {240000, {0x00}, "MSG_TYPE:UNDEFINED"},
    {240020, {0x00, 0x00, 0x01, 0x00}, "MSG_INDEX:256"},
    {240020, {0xFF, 0xFF, 0xFF, 0xFF}, "MSG_INDEX:4294967295"},
    {240030, {0x04, 'S', 'C', 'A', 'N'}, "SUM:SCAN"},
    {240030, {0x00}, "SUM:"},
    {240030, {16, '0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'},
     "SUM:0123456789ABCDEF"},
    {240030, kText17, "SUM:0123456789ABCDEF...[17]"},
    {240040, kNano, "AZ:90.00-180.00 RG:1498.96"},
    {240041, {0xFF, 0xFF, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x0F, 0x42, 0x40}, "AZ:359.99-0.01 RG:0.00"},
    // 2^32 - 1 cells of 1 fs: 643.80 m.
    {240041, {0x00, 0x00, 0x00, 0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x01}, "AZ:0.00-0.00 RG:643.80"},
    {240048, {0x00, 0x01}, "RES:1-BITS"},
    {240050, {0x01, 0x01, 0x02, 0x03, 0x04}, "OCTET:4, CELL:32"},
    {240048, {0x80, 0x03}, "RES:4-BITS DCI"},
    {240051, block(1, 64, 0x11), "OCTET:64, CELL:128"},
    {240048, {0x7F, 0x06}, "RES:32-BITS"},  // spare bits are not read
    {240050, block(2, 4, 0x22), "OCTET:8, CELL:2"},
    {240052, block(1, 256, 0x33), "OCTET:256, CELL:64"},
    {240048, {0x00, 0x07}, "RES:1-BITS"},
    {240050, block(1, 4, 0x44), "OCTET:4, CELL:32"},
    {240048, {0x00, 0x04}, "RES:8-BITS"},
    {240050, block(0, 4, 0), "OCTET:0, CELL:0"},
    {240052, block(254, 256, 0x55), "OCTET:65024, CELL:65024"},
    {240049, {0x01, 0x00, 0x00, 0x02, 0x00}, "OCTET:256 CELL:512"},
    {240049, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, "OCTET:65535 CELL:16777215"},
};

std::vector<std::string> summaries_on_new_thread(const std::vector<SummaryCase> &cases) {
    std::vector<std::string> texts;
    std::thread([&] {
        for (const auto &c : cases) texts.push_back(summary_of(c.id, c.wire));
    }).join();
    return texts;
}

}  // namespace

TEST(Cat240Items, SummariesFollowTheThreadsVideoState) {
    LogCapture log;
    const std::vector<std::string> texts = summaries_on_new_thread(kSequence);
    ASSERT_EQ(texts.size(), kSequence.size());
    for (size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(texts[i], kSequence[i].text) << i;
    // RES 7 is kept, and said to be outside the standard's codes.
    ASSERT_EQ(log.size(), 1u);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "I240/048 video cells resolution 7 is not a standard value [1-6]."));

    // Another thread's resolution is not this one's.
    log.clear();
    EXPECT_EQ(summary_of(240048, {0x00, 0x00}), "RES:1-BITS");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "I240/048 video cells resolution 0 is not a standard value [1-6]."));
    EXPECT_EQ(summary_of(240050, block(1, 4, 0)), "OCTET:4");  // RES 0: as if none was seen
    summary_of(240048, {0x00, 0x02});
    EXPECT_EQ(summaries_on_new_thread({{240050, block(1, 4, 0), ""}}), std::vector<std::string>{"OCTET:4"});
    EXPECT_EQ(summary_of(240050, block(1, 4, 0)), "OCTET:4, CELL:16");
}

TEST(Cat240Items, HighVolumeBlockRefusesRep255) {
    LogCapture log;
    const Octets high = block(255, 256, 0x0F);
    const AstDataItem item = scanned(240052, high);
    ASSERT_EQ(item.valid, 1);
    AstVideoBlock b;
    ast_dataitem_240_052_decode(&b, &item);
    EXPECT_EQ(b.valid, 0);
    EXPECT_EQ(b.length, 65280u);
    EXPECT_EQ(b.video, nullptr);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "I240/052 REP 255 exceeds the maximum 254."));
    char text[64] = "x";
    ast_dataitem_get_summary(text, sizeof text, &item);
    EXPECT_STREQ(text, "");

    // Through the structured decode the length is kept, the flag says no.
    AstVideoBlock stored;
    AstDataItemValue value;
    ast_dataitem_decode(&value, &stored, sizeof stored, &item);
    EXPECT_EQ(value.valid, 0);
    EXPECT_EQ(stored.length, 65280u);

    // REP 255 is only refused in the high-volume block.
    const Octets medium = block(255, 64, 0x01);
    const AstDataItem m = scanned(240051, medium);
    ast_dataitem_240_051_decode(&b, &m);
    EXPECT_EQ(b.valid, 1);
    EXPECT_EQ(b.length, 255u * 64u);
    EXPECT_EQ(b.video, medium.data() + 1);
}

TEST(Cat240Items, SpansThatDoNotDecode) {
    LogCapture log;
    const uint8_t five[] = {0x01, 0xAA, 0xBB, 0xCC, 0xDD};
    AstVideoBlock b;
    // The span must hold the REP octet and every octet it announces.
    ast_dataitem_240_050_decode(&b, span(five, 4, 240050, 1));
    EXPECT_EQ(b.valid, 0);
    ast_dataitem_240_050_decode(&b, span(five, 5, 240050, 1));
    EXPECT_EQ(b.valid, 1);
    EXPECT_EQ(b.length, 4u);
    ast_dataitem_240_050_decode(&b, span(five, 5, 240051, 1));  // another item
    EXPECT_EQ(b.valid, 0);
    ast_dataitem_240_050_decode(&b, span(five, 0, 240050, 1));
    EXPECT_EQ(b.valid, 0);
    ast_dataitem_240_050_decode(&b, nullptr);
    EXPECT_EQ(b.valid, 0);

    AstItem240_030 s;
    const uint8_t text[] = {0x03, 'A', 'B'};
    ast_dataitem_240_030_decode(&s, span(text, 3, 240030, 1));
    EXPECT_EQ(s.valid, 0);

    // Fixed lengths: one octet short or long gives nothing.
    AstVideoHeader h;
    ast_dataitem_240_040_decode(&h, span(kNano.data(), 11, 240040, 1));
    EXPECT_EQ(h.valid, 0);
    EXPECT_EQ(h.start_az_lsb, 360.0 / 65536.0);  // the defaults
    EXPECT_EQ(h.cell_dur_lsb, 0.0);
    ast_dataitem_240_041_decode(&h, span(kNano.data(), 12, 240040, 1));
    EXPECT_EQ(h.valid, 0);
    ast_dataitem_240_040_decode(&h, span(kNano.data(), 12, 240040, 1));
    EXPECT_EQ(h.valid, 1);
    EXPECT_EQ(h.cell_dur_lsb, 1e-9);
    EXPECT_EQ(h.start_rg, 10u);
    AstItem240_049 n;
    ast_dataitem_240_049_decode(&n, span(five, 4, 240049, 1));
    EXPECT_EQ(n.valid, 0);
    AstItem240_048 r;
    ast_dataitem_240_048_decode(&r, span(five, 2, 240048, 0));
    EXPECT_EQ(r.valid, 0);
    EXPECT_EQ(log.size(), 0u);

    // Summaries into buffers of 0, 1 and one short.
    const Octets wire = {0x00, 0x00, 0x01, 0x00};
    const AstDataItem index = scanned(240020, wire);
    char buf[16];
    std::memset(buf, 'x', sizeof buf);
    ast_dataitem_240_020_get_summary(buf, 0, &index);
    EXPECT_EQ(buf[0], 'x');
    ast_dataitem_240_020_get_summary(buf, 1, &index);
    EXPECT_STREQ(buf, "");
    ast_dataitem_240_020_get_summary(buf, 13, &index);
    EXPECT_STREQ(buf, "MSG_INDEX:25");
}

TEST(Cat240Items, DetailRows) {
    LogCapture log;
    const std::string header = detail_of(240040, kNano);
    for (const char *row : {"<td>Bit[0-15]</td><td>START_AZ</td><td>16384</td>",
                            "<td>Bit[0-15]</td><td>START_AZ DEG</td><td>90.0000</td>",
                            "<td>Bit[16-31]</td><td>END_AZ DEG</td><td>180.0000</td>",
                            "<td>Bit[32-63]</td><td>START_RG</td><td>10</td>",
                            "<td>Bit[32-63]</td><td>START_RG M</td><td>1498.96</td>",
                            "<td>Bit[64-95]</td><td>CELL_DUR NS</td><td>1000</td>",
                            "<td>Bit[64-95]</td><td>CELL_DUR S</td><td>1.000000e-06</td>"})
        EXPECT_NE(header.find(row), std::string::npos) << row;
    EXPECT_NE(detail_of(240041, kNano).find("<td>CELL_DUR FS</td><td>1000</td>"), std::string::npos);
    EXPECT_NE(detail_of(240041, kNano).find("<td>CELL_DUR S</td><td>1.000000e-12</td>"), std::string::npos);

    const std::string res = detail_of(240048, {0x80, 0x03});
    for (const char *row : {"<td>Bit[0]</td><td>C</td><td>1</td>", "<td>Bit[8-15]</td><td>RES</td><td>3</td>",
                            "<td>Bit[8-15]</td><td>RES BITS</td><td>4</td>"})
        EXPECT_NE(res.find(row), std::string::npos) << row;
    const std::string counters = detail_of(240049, {0x01, 0x00, 0x00, 0x02, 0x00});
    EXPECT_NE(counters.find("<td>Bit[0-15]</td><td>NB_VB</td><td>256</td>"), std::string::npos);
    EXPECT_NE(counters.find("<td>Bit[16-39]</td><td>NB_CELLS</td><td>512</td>"), std::string::npos);
    // Free text is escaped.
    EXPECT_NE(detail_of(240030, {0x03, 'a', '<', 'b'}).find("<td>TEXT</td><td>a&lt;b</td>"), std::string::npos);

    // A block: its counts, and with 8-bit cells the table of its cells, at
    // the range of the last header (10 cells of 1000 ns).
    detail_of(240040, kNano);
    detail_of(240048, {0x00, 0x04});
    const std::string cells = detail_of(240050, {0x01, 0x00, 0x05, 0x00, 0xFF});
    for (const char *part : {"<td>Bit[0-7]</td><td>REP</td><td>1</td>", "<td>OCTETS</td><td>4</td>",
                             "<td>CELLS</td><td>4</td>", "<p>2 valid (non empty) video cells.</p>",
                             "<p>Video resolution is 8-bits.</p>",
                             "<th>Number</th><th>Range</th><th>Amptitude Value</th><th>Amptitude Relative</th>",
                             "<td>2</td><td>1648.86</td><td>5</td><td>1.96%</td>",
                             "<td>4</td><td>1948.65</td><td>255</td><td>100.00%</td>"})
        EXPECT_NE(cells.find(part), std::string::npos) << part;
    // Other resolutions, and blocks longer than the cell list, show counts only.
    detail_of(240048, {0x00, 0x03});
    EXPECT_EQ(detail_of(240050, {0x01, 0x00, 0x05, 0x00, 0xFF}).find("video cells"), std::string::npos);
    detail_of(240048, {0x00, 0x04});
    const std::string big = detail_of(240051, block(17, 64, 0x01));
    EXPECT_NE(big.find("<td>OCTETS</td><td>1088</td>"), std::string::npos);
    EXPECT_EQ(big.find("video cells"), std::string::npos);
    EXPECT_NE(detail_of(240051, block(16, 64, 0x01)).find("<p>1024 valid (non empty) video cells.</p>"),
              std::string::npos);
    EXPECT_EQ(detail_of(240020, {0, 0, 0, 1}), "");  // the header has no view
    EXPECT_EQ(log.size(), 0u);
}

TEST(Cat240Items, VideoCellsOfEightBitBlocks) {
    LogCapture log;
    static AstVideoCells cells;
    const uint8_t four[] = {0x00, 0x05, 0x00, 0xFF};
    ast_videocell_decode(&cells, four, sizeof four, 4, 0, 1e-6);
    ASSERT_EQ(cells.valid, 1);
    EXPECT_EQ(cells.res, 4u);
    ASSERT_EQ(cells.count, 2u);
    EXPECT_EQ(cells.cells[0].number, 2u);
    EXPECT_NEAR(cells.cells[0].range, 149.896229, 1e-6);
    EXPECT_EQ(cells.cells[0].amplitude, 5u);
    EXPECT_EQ(cells.cells[1].number, 4u);
    EXPECT_NEAR(cells.cells[1].range, 449.688687, 1e-6);
    EXPECT_EQ(cells.cells[1].amplitude, 255u);

    // The table appends to what the buffer holds.
    char html[1024] = "<h4>radial</h4>";
    ast_videocells_get_detail_html(html, sizeof html, &cells);
    EXPECT_EQ(std::string(html).rfind("<h4>radial</h4><p>2 valid (non empty) video cells.</p>", 0), 0u);
    EXPECT_NE(std::string(html).find("<td>4</td><td>449.69</td><td>255</td><td>100.00%</td>"), std::string::npos);

    ast_videocell_decode(&cells, four, 0, 4, 0, 1e-6);
    EXPECT_EQ(cells.valid, 1);
    EXPECT_EQ(cells.count, 0u);
    html[0] = '\0';
    ast_videocells_get_detail_html(html, sizeof html, &cells);
    EXPECT_STREQ(html, "<p>0 valid (non empty) video cells.</p><p>Video resolution is 8-bits.</p>");
    EXPECT_EQ(log.size(), 0u);

    // Only 8-bit cells.
    ast_videocell_decode(&cells, four, sizeof four, 3, 0, 1e-6);
    EXPECT_EQ(cells.valid, 0);
    EXPECT_EQ(cells.res, 3u);
    EXPECT_EQ(cells.count, 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Unsupported video resolution 3-bits."));
    html[0] = '\0';
    ast_videocells_get_detail_html(html, sizeof html, &cells);
    EXPECT_STREQ(html, "");

    // 1024 non-empty cells fit, with empty ones between; the 1025th does not.
    log.clear();
    Octets video(2048, 0);
    for (size_t i = 0; i < 1024; ++i) video[2 * i + 1] = 0x80;
    ast_videocell_decode(&cells, video.data(), video.size(), 4, 100, 1e-7);
    EXPECT_EQ(cells.valid, 1);
    EXPECT_EQ(cells.count, 1024u);
    EXPECT_EQ(cells.cells[1023].number, 2048u);
    EXPECT_EQ(log.size(), 0u);
    video.push_back(0x01);
    ast_videocell_decode(&cells, video.data(), video.size(), 4, 100, 1e-7);
    EXPECT_EQ(cells.valid, 0);
    EXPECT_EQ(cells.count, 1024u);
    EXPECT_TRUE(log.contains(AST_LOG_PANIC, "Number of videocells 1025 exceeds the limit 1024."));

    EXPECT_EQ(ast_video_resolution_bits(1), 1u);
    EXPECT_EQ(ast_video_resolution_bits(2), 2u);
    EXPECT_EQ(ast_video_resolution_bits(4), 8u);
    EXPECT_EQ(ast_video_resolution_bits(6), 32u);
    EXPECT_EQ(ast_video_resolution_bits(0), 1u);
    EXPECT_EQ(ast_video_resolution_bits(7), 1u);
    EXPECT_EQ(ast_video_resolution_bits(255), 1u);
}

namespace {

std::string json_of(AstItemId id, const Octets &o) {
    const AstDataItem item = scanned(id, o);
    std::vector<char> buf(4096, '#');
    const size_t n = ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    const std::string text(buf.data());
    EXPECT_EQ(n, text.size()) << id;
    return text;
}

}  // namespace

TEST(Cat240Items, NamedFields) {
    LogCapture log;
    EXPECT_EQ(json_of(240000, {0x02}), R"({"mt":2})");
    EXPECT_EQ(json_of(240020, {0x00, 0x00, 0x01, 0x00}), R"({"msg_index":256})");
    EXPECT_EQ(json_of(240030, {0x04, 'S', 'C', 'A', 'N'}), R"({"len":4,"text":"SCAN"})");
    EXPECT_EQ(json_of(240040, kNano),
              R"({"start_az":90,"end_az":180,"start_rg":10,"cell_dur_raw":1000,"cell_dur":1e-06})");
    EXPECT_EQ(json_of(240048, {0x80, 0x03}), R"({"c":1,"res":3})");
    EXPECT_EQ(json_of(240049, {0x01, 0x00, 0x00, 0x02, 0x00}), R"({"nb_vb":256,"nb_cells":512})");
    EXPECT_EQ(json_of(240050, {0x01, 0xDE, 0xAD, 0xBE, 0xEF}), R"({"len":4,"video":"DEADBEEF"})");
    EXPECT_EQ(json_of(240052, {0x00}), R"({"len":0,"video":""})");

    // Every own item serves its decode, summary and detail; storage one
    // octet short is refused.
    using kovrel_test::expect_row;
    const uint32_t own = kovrel_test::kShown | AST_DATAITEM_CAP_DECODE;
    expect_row(240030, {0x01, 'x'}, "SUM:x", own);
    expect_row(240040, kNano, "AZ:90.00-180.00 RG:1498.96", own);
    expect_row(240048, {0x00, 0x02}, "RES:2-BITS", own);
    expect_row(240049, {0x00, 0x01, 0x00, 0x00, 0x04}, "OCTET:1 CELL:4", own);
    expect_row(240051, block(1, 64, 0x01), nullptr, AST_DATAITEM_CAP_DETAIL | AST_DATAITEM_CAP_DECODE);
    expect_row(240020, {0, 0, 0, 7}, "MSG_INDEX:7", AST_DATAITEM_CAP_SUMMARY | AST_DATAITEM_CAP_DECODE);

    // Setting refuses what the wire cannot hold.
    AstItem240_049 n;
    ASSERT_EQ(ast_dataitem_fields_init(&n, sizeof n, 240049), 1);
    AstField v{};
    v.kind = AST_FIELD_UNSIGNED;
    v.u = 65536;
    EXPECT_EQ(ast_dataitem_fields_set(&n, sizeof n, 240049, "nb_vb", &v), AST_FIELD_SET_OUT_OF_RANGE);
    v.u = 65535;
    EXPECT_EQ(ast_dataitem_fields_set(&n, sizeof n, 240049, "nb_vb", &v), 1);
    EXPECT_EQ(n.nb_vb, 65535u);
    EXPECT_EQ(n.valid, 1);
}
