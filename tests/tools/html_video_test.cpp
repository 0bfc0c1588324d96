// `kovrel decode --format html` on CAT240: a video message is embedded
// with an inline SVG of its radial (range left to right, amplitude as grey), a
// video summary is not, and a message that cannot be unpacked says why.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "output_html.h"
#include "sample.h"
#include "session.h"
#include "support/html_page.h"
#include "tools/capture_builder.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;

namespace {

size_t count(const std::string &text, const std::string &part) {
    size_t n = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++n;
    return n;
}

bool has(const std::string &text, const std::string &part) { return text.find(part) != std::string::npos; }

// What the page embeds for the records: each one's video drawing, then
// its items' summaries, one per line.
std::string render(const Octets &octets) {
    const EmbeddedPage page = render_page("video", octets);
    std::string text;
    for (const auto &record : page.records) {
        text += record[2].get<std::string>();
        for (const auto &item : record[3]) text += item[4].get<std::string>() + "\n";
    }
    return text;
}

// One CAT240 block of one record holding the items given by FRN (1 010,
// 2 000, 5 040, 7 048, 8 049, 9 050, 10 051), in FRN order.
Octets video_block(const std::vector<std::pair<unsigned, Octets>> &items) {
    Octets fspec = {0x01, 0x00};
    for (const auto &[frn, o] : items) fspec[(frn - 1) / 7] |= static_cast<uint8_t>(0x80u >> ((frn - 1) % 7));
    if (fspec[1] == 0) fspec = {static_cast<uint8_t>(fspec[0] & 0xFE)};
    Octets b = {240, 0, 0};
    for (uint8_t f : fspec) b.push_back(f);
    for (const auto &[frn, o] : items)
        for (uint8_t octet : o) b.push_back(octet);
    b[1] = static_cast<uint8_t>(b.size() >> 8);
    b[2] = static_cast<uint8_t>(b.size());
    return b;
}

// 90 to 180 deg from cell 10, cells of 1000 ns (149.896229 m).
const Octets kHeader = {0x40, 0x00, 0x80, 0x00, 0x00, 0x00, 0x00, 0x0A, 0x00, 0x00, 0x03, 0xE8};

Octets message(uint8_t res, const Octets &block_item, unsigned block_frn = 9) {
    return video_block({{1, {0x19, 0x3C}}, {2, {0x02}}, {5, kHeader}, {7, {0x00, res}}, {block_frn, block_item}});
}

}  // namespace

TEST(ToolHtmlVideo, EightBitCellsAsGreyRuns) {
    const std::string page = render(message(4, {0x02, 0x00, 0x00, 0x80, 0xFF, 0xFF, 0x00, 0x40, 0x00}));
    ASSERT_EQ(count(page, "<svg class=\"video\""), 1u) << page;
    const size_t at = page.find("<svg class=\"video\"");
    const std::string svg = page.substr(at, page.find("</svg>\n", at) - at);
    // Eight cells, one column each; black is the background, runs of one
    // grey are one rectangle.
    EXPECT_TRUE(has(svg, "viewBox=\"0 0 8 1\""));
    EXPECT_TRUE(has(svg, "<rect width=\"8\" height=\"1\" fill=\"#000\"/>"
                         "<rect x=\"2\" width=\"1\" height=\"1\" fill=\"#808080\"/>"
                         "<rect x=\"3\" width=\"2\" height=\"1\" fill=\"#ffffff\"/>"
                         "<rect x=\"6\" width=\"1\" height=\"1\" fill=\"#404040\"/></svg>"))
        << svg;
    EXPECT_EQ(count(svg, "<rect"), 4u);
    // 10 cells of 149.90 m start at 0.81 NM; 18 end at 1.46 NM.
    EXPECT_TRUE(has(svg, ">0.81 NM</text>"));
    EXPECT_TRUE(has(svg, ">AZ 90.00-180.00&deg; 8 cells of 8 bits</text>"));
    EXPECT_TRUE(has(svg, ">1.46 NM</text>"));
    // The drawing stays offline: no namespace address, nothing fetched.
    EXPECT_FALSE(has(page, "http"));
    EXPECT_FALSE(has(page, "url("));
}

TEST(ToolHtmlVideo, NarrowCellsAndLongRadials) {
    // 1-bit cells: 32 of them from four octets, full scale white.
    std::string page = render(message(1, {0x01, 0xF0, 0x00, 0x00, 0x01}));
    EXPECT_TRUE(has(page, "<rect x=\"0\" width=\"4\" height=\"1\" fill=\"#ffffff\"/>"
                          "<rect x=\"31\" width=\"1\" height=\"1\" fill=\"#ffffff\"/></svg>"))
        << page;
    EXPECT_TRUE(has(page, "32 cells of 1 bit</text>"));
    // 2-bit cells: 01 is a third of full scale.
    page = render(message(2, {0x01, 0x40, 0x00, 0x00, 0x00}));
    EXPECT_TRUE(has(page, "<rect x=\"0\" width=\"1\" height=\"1\" fill=\"#555555\"/></svg>"));
    EXPECT_TRUE(has(page, "16 cells of 2 bits</text>"));

    // 1440 cells, counted by I240/049 in a medium block of 1472 octets, are
    // drawn in 720 columns of two cells: each shows the stronger, so a lone
    // echo in cell 1001 lights column 500.
    Octets medium(1 + 23 * 64, 0x00);
    medium[0] = 23;
    medium[1 + 1001] = 0xFF;
    medium[1 + 1440] = 0xFF;  // past the counted cells: not drawn
    page = render(video_block(
        {{2, {0x02}}, {5, kHeader}, {7, {0x00, 0x04}}, {8, {0x05, 0xA0, 0x00, 0x05, 0xA0}}, {10, medium}}));
    EXPECT_TRUE(has(page, "viewBox=\"0 0 720 1\""));
    EXPECT_TRUE(has(page, "<rect width=\"720\" height=\"1\" fill=\"#000\"/>"
                          "<rect x=\"500\" width=\"1\" height=\"1\" fill=\"#ffffff\"/></svg>"))
        << page.substr(page.find("<svg"), 400);
    EXPECT_TRUE(has(page, "1440 cells of 8 bits</text>"));
}

TEST(ToolHtmlVideo, SummariesAndRecordsThatCannotBeDrawn) {
    // A video summary has nothing to draw, and says nothing about it.
    std::string page = render(video_block({{1, {0x19, 0x3C}}, {2, {0x01}}, {4, {0x02, 'o', 'k'}}}));
    EXPECT_FALSE(has(page, "<svg"));
    EXPECT_FALSE(has(page, "not drawn"));
    EXPECT_TRUE(has(page, "MSG_TYPE:VIDEO_SUMMARY"));

    const struct {
        Octets block;
        const char *why;
    } cases[] = {
        {message(5, {0x01, 0x01, 0x02, 0x03, 0x04}), "its cells of 16 or 32 bits are not drawn"},
        {message(0, {0x01, 0x01, 0x02, 0x03, 0x04}), "its cell resolution is not a standard one"},
        {video_block({{2, {0x02}}, {5, kHeader}, {7, {0x80, 0x04}}, {9, {0x00}}}), "its video is compressed"},
        {video_block({{2, {0x02}}, {7, {0x00, 0x04}}, {9, {0x00}}}), "it has no video header"},
        {video_block({{2, {0x02}}, {5, kHeader}, {7, {0x00, 0x04}}}), "it has no video block"},
    };
    for (const auto &c : cases) {
        page = render(c.block);
        EXPECT_FALSE(has(page, "<svg")) << c.why;
        EXPECT_TRUE(has(page, std::string("<p class=\"note\">The video of this record is not drawn: ") + c.why +
                                  ".</p>"))
            << c.why;
    }
}

TEST(ToolHtmlVideo, TheSampleSweep) {
    const std::string page = render(Octets(kSamplePcap, kSamplePcap + kSamplePcapSize));
    // The sample's sweep: twelve radials, each drawn, one degree apart.
    EXPECT_EQ(count(page, "<svg class=\"video\""), 12u);
    EXPECT_TRUE(has(page, ">AZ 90.00-91.00&deg; 2048 cells of 1 bit</text>"));
    EXPECT_TRUE(has(page, ">AZ 101.00-102.00&deg; 4096 cells of 8 bits</text>"));
    EXPECT_FALSE(has(page, "not drawn"));
}

#endif  // KOVREL_HAVE_TOOL_CORE
