// `kovrel decode --format html`: the page of an input, whole, offline and
// escaped, with bad blocks where they occur.
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "output_html.h"
#include "sample.h"
#include "session.h"
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

// Every element the page opens is closed, and the document is one.
void expect_whole(const std::string &page) {
    EXPECT_EQ(page.rfind("<!DOCTYPE html>\n<html", 0), 0u);
    EXPECT_EQ(page.substr(page.size() - 8), "</html>\n");
    EXPECT_EQ(count(page, "<html"), 1u);
    for (const char *tag : {"body", "table", "tr", "details", "summary", "div", "p", "h3"})
        EXPECT_EQ(count(page, std::string("<") + tag + ">") + count(page, std::string("<") + tag + " "),
                  count(page, std::string("</") + tag + ">"))
            << tag;
}

struct Page {
    char *buf = nullptr;
    size_t size = 0;
    std::FILE *out = open_memstream(&buf, &size);
    char *mbuf = nullptr;
    size_t msize = 0;
    std::FILE *messages = open_memstream(&mbuf, &msize);
    DecodeSession session{SessionSettings{}, out, messages};
    std::string text, message_text;

    ~Page() {
        std::fclose(out);
        std::fclose(messages);
        std::free(buf);
        std::free(mbuf);
    }
    void write(const std::string &name, const Octets &octets) {
        write_page(session, out, name, [&] { session.decode_memory(name, octets.data(), octets.size()); });
        std::fflush(out);
        std::fflush(messages);
        text.assign(buf, size);
        message_text.assign(mbuf, msize);
    }
};

const Octets kBad = {0x30, 0x00, 0x09, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06};  // I048/130 cut short

}  // namespace

TEST(ToolHtml, SamplePageIsWholeAndOffline) {
    Page p;
    p.write("sample", Octets(kSamplePcap, kSamplePcap + kSamplePcapSize));
    const std::string &page = p.text;
    expect_whole(page);
    const uint64_t records = p.session.stats().records;
    ASSERT_GT(records, 100u);
    EXPECT_EQ(count(page, "<details class=\"record"), records);
    EXPECT_EQ(count(page, "<th>Dataitem</th>"), records);  // the item table of each record
    EXPECT_EQ(count(page, " open>"), 1u);  // the first record only
    EXPECT_EQ(count(page, "<div class=\"item\">"), p.session.stats().items);
    EXPECT_EQ(count(page, "<div class=\"octets\"><table class=\"hex_table\">"), p.session.stats().items);
    EXPECT_TRUE(has(page, "<span class=\"id\">I048/010</span>Data Source Identifier<span class=\"len\">2 octets"));
    EXPECT_TRUE(has(page, "<p class=\"item-summary\">"));
    EXPECT_TRUE(has(page, "<b>" + std::to_string(records) + "</b> records"));
    EXPECT_TRUE(has(page, "<span><b>0</b> bad blocks"));
    // Nothing is fetched: links of detail views are the only addresses.
    for (const char *fetch : {"<link", "<script", "@import", "url(", "<img", "<iframe"})
        EXPECT_FALSE(has(page, fetch)) << fetch;
    for (size_t at = page.find("http"); at != std::string::npos; at = page.find("http", at + 4))
        EXPECT_EQ(page.compare(at - 9, 9, "<a href=\""), 0) << page.substr(at - 40, 80);
    EXPECT_EQ(p.message_text, "");
}

TEST(ToolHtml, ProblemsShowWhereTheyOccurAndNamesAreEscaped) {
    Page p;
    p.write("a<b&c>.ast", concat({sacsic_block(1), kBad, sacsic_block(3, 2)}));
    const std::string &page = p.text;
    expect_whole(page);
    EXPECT_TRUE(has(page, "<title>a&lt;b&amp;c&gt;.ast - kovrel</title>"));
    EXPECT_TRUE(has(page, "<h1>a&lt;b&amp;c&gt;.ast</h1>"));
    EXPECT_FALSE(has(page, "a<b"));
    EXPECT_FALSE(has(page, "b&c"));

    // The bad block's line comes between block 1 and its own records, and
    // is on standard error as well.
    const size_t line = page.find("<p class=\"problem\">block 2 at @6 (CAT048, LEN 9): no profile reads");
    ASSERT_NE(line, std::string::npos);
    EXPECT_TRUE(has(p.message_text, "kovrel: a<b&c>.ast: block 2 at @6 (CAT048, LEN 9)"));
    EXPECT_LT(page.find("id=\"b1r1\""), line);
    const size_t failed = page.find("<details class=\"record invalid\" id=\"b2r1\">");
    EXPECT_GT(failed, line);
    EXPECT_LT(failed, page.find("id=\"b3r2\""));
    EXPECT_TRUE(has(page.substr(failed, 400), "INVALID"));
    EXPECT_EQ(count(page, "<details"), 4u);
    EXPECT_TRUE(has(page, "<span><b>2</b> blocks</span><span class=\"bad\"><b>1</b> bad block</span>"));

    // SAC/SIC lead the heading when the library reads them.
    AstDataRecord record;
    const Octets one = sacsic_block(1);
    ast_datarecord_decode(&record, one.data() + 3, one.size() - 3, 48, &AST_UAP_STANDARD);
    AstDataSourceIdentifier src;
    ast_datarecord_get_sacsic(&src, &record);
    EXPECT_EQ(has(page, "SAC 25 SIC 1<"), src.valid != 0);

    // An input that cannot be read still gets a whole page saying so.
    Page missing;
    write_page(missing.session, missing.out, "/nonexistent/x.pcap",
               [&] { missing.session.decode_file("/nonexistent/x.pcap"); });
    std::fflush(missing.out);
    const std::string none(missing.buf, missing.size);
    expect_whole(none);
    EXPECT_TRUE(has(none, "<p class=\"problem\">cannot open: "));
    EXPECT_TRUE(has(none, "No record decoded."));
}

TEST(ToolHtml, RecordHeadingsShowTrackIdentityAndPosition) {
    // CAT048 FRNs 1 010, 4 040, 5 070, 9 240, 11 161; CAT001 plot FRNs
    // 1 010, 2 020, 3 040, 4 070, 5 090.
    const struct {
        Octets block;
        const char *heading;
    } cases[] = {
        // A track with a callsign: the callsign wins over the code; RHO
        // 3200/256 NM, THETA 45 degrees.
        {{0x30, 0x00, 0x15, 0x99, 0x50, 0x19, 0x01, 0x0C, 0x80, 0x20, 0x00, 0x0A, 0x3F, 0x10, 0xC2, 0x31,
          0xCB, 0x38, 0x20, 0x00, 0x4D},
         "SAC 25 SIC 1<span class=\"sep\">|</span>TRK 77<span class=\"sep\">|</span>DLH123<span class=\"sep\">|"
         "</span>12.50 NM 45.00&deg;<span class=\"sep\">|</span>5 items"},
        // A plot: no track, the Mode 3/A code.
        {{0x01, 0x00, 0x0F, 0xF8, 0x19, 0x02, 0x30, 0x06, 0x40, 0x80, 0x00, 0x0A, 0x3F, 0x05, 0x78},
         "SAC 25 SIC 2<span class=\"sep\">|</span>A5077<span class=\"sep\">|</span>12.50 NM 180.00&deg;<span "
         "class=\"sep\">|</span>5 items"},
    };
    for (const auto &c : cases) {
        Page p;
        p.write("heading", c.block);
        EXPECT_TRUE(has(p.text, c.heading)) << p.text;
    }
}

TEST(ToolHtml, LongItemsShowTheirFirstOctets) {
    // One CAT048 record holding I048/250 with 200 registers: 1601 octets.
    Octets block = {48, 0x06, 0x46, 0x01, 0x20, 200};
    for (int i = 0; i < 1600; ++i) block.push_back(static_cast<uint8_t>(i));
    ASSERT_EQ(block.size(), 0x646u);
    Page p;
    p.write("long", block);
    const std::string &page = p.text;
    expect_whole(page);
    EXPECT_TRUE(has(page, "I048/250</span>"));
    EXPECT_TRUE(has(page, "1601 octets</span>"));
    EXPECT_TRUE(
        has(page, "Of the 1601 octets, the bit table shows the first 64, the hexadecimal table the first 1024."));
    EXPECT_TRUE(has(page, "<th colspan=8>Octet 64 - "));
    EXPECT_FALSE(has(page, "<th colspan=8>Octet 65 - "));
    const size_t hex = page.find("<div class=\"octets\"><table class=\"hex_table\">");
    const std::string table = page.substr(hex, page.find("</table>", hex) - hex);
    EXPECT_EQ(count(table, "<td>"), 1024u);
}

TEST(ToolHtml, PageFileNames) {
    EXPECT_EQ(page_file_name("out.html", 0), "out.html");
    EXPECT_EQ(page_file_name("out.html", 1), "out-2.html");
    EXPECT_EQ(page_file_name("/tmp/run/out.html", 9), "/tmp/run/out-10.html");
    EXPECT_EQ(page_file_name("page", 2), "page-3");
    EXPECT_EQ(page_file_name("run.d/page", 1), "run.d/page-2");
    EXPECT_EQ(page_file_name("run/.page", 1), "run/.page-2");
    EXPECT_EQ(page_file_name("a.tar.gz", 1), "a.tar-2.gz");
}

TEST(ToolHtml, StopsWhenThePageCannotBeWritten) {
    std::FILE *full = std::fopen("/dev/full", "w");
    if (!full) GTEST_SKIP() << "no /dev/full";
    std::setvbuf(full, nullptr, _IONBF, 0);
    std::FILE *messages = std::fopen("/dev/null", "w");
    DecodeSession session(SessionSettings{}, full, messages);
    write_page(session, full, "sample", [&] { session.decode_memory("sample", kSamplePcap, kSamplePcapSize); });
    EXPECT_TRUE(session.output_failed());
    EXPECT_LE(session.stats().blocks, 1u);
    std::fclose(messages);
    std::fclose(full);
}

#endif  // KOVREL_HAVE_TOOL_CORE
