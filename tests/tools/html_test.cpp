// `kovrel decode --format html`: the data a page embeds, read back (rows,
// item texts, overview, problems), its compression, and that the page is
// whole and offline. What the page's script draws is checked in a browser
// (tests/browser/check_report.py).
#ifdef KOVREL_HAVE_TOOL_CORE

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>

#include "deflate.h"
#include "output_html.h"
#include "profiles.h"
#include "sample.h"
#include "session.h"
#include "support/html_page.h"
#include "tools/capture_builder.h"

using namespace kovrel_tool;
using namespace kovrel_tool_test;
using nlohmann::json;

namespace {

size_t count(const std::string &text, const std::string &part) {
    size_t n = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++n;
    return n;
}

bool has(const std::string &text, const std::string &part) { return text.find(part) != std::string::npos; }

// The document is one, and nothing in it is fetched.
void expect_whole_and_offline(const EmbeddedPage &p) {
    const std::string &page = p.text;
    EXPECT_EQ(page.rfind("<!DOCTYPE html>\n<html", 0), 0u);
    EXPECT_EQ(page.substr(page.size() - 8), "</html>\n");
    EXPECT_EQ(count(page, "<html"), 1u);
    // Every group, the meta data and the script, and no text closing one early.
    EXPECT_EQ(count(page, "<script"), p.groups + 2);
    EXPECT_EQ(count(page, "</script>"), p.groups + 2);
    for (const char *fetch : {"<link", "@import", "url(", "<img", "<iframe", " src=", "fetch(", "XMLHttpRequest"})
        EXPECT_FALSE(has(page, fetch)) << fetch;
    EXPECT_TRUE(p.readable);
    EXPECT_FALSE(p.meta.is_null());
}

// The JSON lines of the same octets, for what the page should hold.
std::vector<json> json_lines(const Octets &octets) {
    char *buf = nullptr;
    size_t size = 0;
    std::FILE *out = open_memstream(&buf, &size);
    std::FILE *messages = std::fopen("/dev/null", "w");
    {
        SessionSettings settings;
        settings.format = RecordFormat::Json;
        DecodeSession session(settings, out, messages);
        session.decode_memory("x", octets.data(), octets.size());
    }
    std::fclose(out);
    std::fclose(messages);
    std::vector<json> lines;
    std::string text(buf, size);
    std::free(buf);
    for (size_t at = 0, end; (end = text.find('\n', at)) != std::string::npos; at = end + 1)
        lines.push_back(json::parse(text.substr(at, end - at)));
    return lines;
}

std::string without_blanks(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

const Octets kBad = {0x30, 0x00, 0x09, 0x82, 0x19, 0x01, 0xE0, 0x29, 0x06};  // I048/130 cut short
// CAT048 FRNs 1 010, 4 040, 5 070, 9 240, 11 161: SAC 25 SIC 1, RHO
// 3200/256 NM, THETA 45 degrees, Mode 3/A 5077, callsign DLH123, track 77.
const Octets kTrack = {0x30, 0x00, 0x15, 0x99, 0x50, 0x19, 0x01, 0x0C, 0x80, 0x20, 0x00,
                       0x0A, 0x3F, 0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20, 0x00, 0x4D};
// CAT001 plot FRNs 1 010, 2 020, 3 040, 4 070, 5 090: SAC 25 SIC 2, RHO
// 12.5 NM, THETA 180 degrees, Mode 3/A 5077, flight level 350.
const Octets kPlot = {0x01, 0x00, 0x0F, 0xF8, 0x19, 0x02, 0x30, 0x06, 0x40, 0x80, 0x00, 0x0A, 0x3F, 0x05, 0x78};

}  // namespace

TEST(ToolHtml, DeflateAndBase64ReadBack) {
    std::mt19937 random(7);
    std::string noise(70000, '\0');
    for (char &c : noise) c = static_cast<char>(random());
    std::string markup;
    for (int i = 0; i < 3000; ++i)
        markup += "<tr class=\"even_row\"><td>I048/" + std::to_string(i % 250) + "</td><td>Track Number</td></tr>";
    // A run repeated just inside and just past the window.
    std::string far = noise.substr(0, 40000);
    far += far.substr(40000 - 32768, 300) + far.substr(40000 - 32769 + 300, 300);
    const struct {
        const char *name;
        std::string input;
        double most;  // compressed size / input size at most
    } cases[] = {
        {"empty", "", 10},
        {"one octet", "a", 10},
        {"every octet value", [] { std::string s; for (int i = 0; i < 256; ++i) s += static_cast<char>(i); return s; }(), 1.2},
        {"noise", noise, 1.2},
        {"markup", markup, 0.1},
        {"a long run", std::string(100000, 'x'), 0.01},
        {"at the window's edge", far, 1.2},
    };
    for (const auto &c : cases) {
        std::string packed, back;
        deflate_raw(reinterpret_cast<const uint8_t *>(c.input.data()), c.input.size(), packed);
        ASSERT_TRUE(inflate_fixed(packed, back)) << c.name;
        EXPECT_EQ(back, c.input) << c.name;
        if (!c.input.empty()) {
            EXPECT_LE(packed.size(), c.input.size() * c.most + 8) << c.name;
        }
        std::string text;
        append_base64(reinterpret_cast<const uint8_t *>(packed.data()), packed.size(), text);
        EXPECT_EQ(base64_decode(text), packed) << c.name;
    }
    const struct {
        const char *in, *out;
    } vectors[] = {{"", ""}, {"f", "Zg=="}, {"fo", "Zm8="}, {"foo", "Zm9v"}, {"foob", "Zm9vYg=="},
                   {"fooba", "Zm9vYmE="}, {"foobar", "Zm9vYmFy"}, {"\xff\xfe", "//4="}};
    for (const auto &v : vectors) {
        std::string text = ">";
        append_base64(reinterpret_cast<const uint8_t *>(v.in), std::strlen(v.in), text);
        EXPECT_EQ(text, std::string(">") + v.out) << v.in;
    }
}

TEST(ToolHtml, SamplePageHoldsEveryRecordSmall) {
    const Octets sample(kSamplePcap, kSamplePcap + kSamplePcapSize);
    const EmbeddedPage p = render_page("sample", sample);
    expect_whole_and_offline(p);
    EXPECT_EQ(p.messages, "");
    const std::vector<json> lines = json_lines(sample);
    ASSERT_GT(lines.size(), 500u);
    ASSERT_EQ(p.rows.size(), lines.size());
    ASSERT_EQ(p.records.size(), lines.size());
    EXPECT_EQ(p.meta["counts"]["records"], lines.size());
    EXPECT_EQ(p.meta["embedded"], lines.size());
    EXPECT_EQ(p.meta["left_out"], 0);
    // Groups close at kGroupRecords records, or sooner when their texts are large.
    EXPECT_GE(p.groups, (lines.size() + kGroupRecords - 1) / kGroupRecords);
    EXPECT_LT(p.groups, lines.size() / 8);
    // Each record's items as the JSON output has them: identifier, name,
    // length, octets and summary.
    for (size_t i = 0; i < lines.size(); ++i) {
        const json &items = p.records[i][3], &want = lines[i]["items"];
        ASSERT_EQ(items.size(), want.size()) << i;
        for (size_t k = 0; k < items.size(); ++k) {
            EXPECT_EQ(items[k][0], want[k]["id"]) << i;
            EXPECT_EQ(items[k][1], want[k]["name"]) << i;
            EXPECT_EQ(items[k][2], want[k]["len"]) << i;
            EXPECT_EQ(items[k][3], without_blanks(want[k]["hex"]).substr(0, 2 * kHexTableOctets)) << i;
            EXPECT_EQ(items[k][4], want[k]["summary"]) << i;
        }
        EXPECT_EQ(p.rows[i][2], lines[i]["cat"]) << i;
        EXPECT_EQ(p.rows[i][0], lines[i]["block"]) << i;
    }
    // The sources add up to the records.
    uint64_t records = 0;
    for (const json &s : p.meta["sources"]) records += s["records"].get<uint64_t>();
    EXPECT_EQ(records, lines.size());
    // A small constant per record, the script and style sheet aside.
    EXPECT_LT(p.text.size(), 40000 + lines.size() * 2048) << p.text.size() / lines.size() << " octets per record";
}

TEST(ToolHtml, RowsAndTextsOfARecord) {
    const struct {
        Octets block;
        const char *row;
        const char *types;  // the names the rows' message types point at
    } cases[] = {
        {kTrack, "[1,1,48,25,1,null,0,77,2623,\"DLH123\",null,null,null,null,12.5,45,0]", "[\"Track\"]"},
        {kPlot, "[1,1,1,25,2,null,0,null,2623,null,null,35000,null,null,12.5,180,0]", "[\"Plot\"]"},
    };
    for (const auto &c : cases) {
        const EmbeddedPage p = render_page("one", c.block);
        expect_whole_and_offline(p);
        ASSERT_EQ(p.rows.size(), 1u);
        EXPECT_EQ(p.rows[0].dump(), c.row);
        EXPECT_EQ(p.meta["types"].dump(), c.types);
        // The item texts are the library's own, detail views exactly, under
        // the profile the page names.
        const AstUap *profile = find_profile(p.records.at(0)[1].get<std::string>());
        ASSERT_NE(profile, nullptr) << p.records[0][1];
        AstDataRecord record;
        ast_datarecord_decode(&record, c.block.data() + 3, c.block.size() - 3, c.block[0], profile);
        const json &items = p.records.at(0)[3];
        ASSERT_EQ(items.size(), record.item_count);
        EXPECT_EQ(p.records[0][0], "@0");
        for (size_t k = 0; k < items.size(); ++k) {
            static char detail[kDetailSize], summary[4096];
            ast_dataitem_get_detail_html(detail, sizeof detail, &record.items[k]);
            ast_dataitem_get_summary(summary, sizeof summary, &record.items[k]);
            EXPECT_EQ(items[k][4], summary);
            EXPECT_EQ(items[k][5], detail);
        }
    }
}

TEST(ToolHtml, ProblemsPointAtTheirRecordAndNamesAreEscaped) {
    const EmbeddedPage p = render_page("a</script><b&c>.ast", concat({sacsic_block(1), kBad, sacsic_block(3, 2)}));
    expect_whole_and_offline(p);
    EXPECT_TRUE(has(p.text, "<title>a&lt;/script&gt;&lt;b&amp;c&gt;.ast - kovrel</title>"));
    EXPECT_TRUE(has(p.text, "<h1>a&lt;/script&gt;&lt;b&amp;c&gt;.ast</h1>"));
    EXPECT_EQ(p.meta["input"], "a</script><b&c>.ast");
    EXPECT_TRUE(has(p.messages, "kovrel: a</script><b&c>.ast: block 2 at @6 (CAT048, LEN 9)"));
    ASSERT_EQ(p.meta["problems"].size(), 1u);
    const json &problem = p.meta["problems"][0];
    EXPECT_EQ(problem["text"].get<std::string>().rfind("block 2 at @6 (CAT048, LEN 9): no profile reads", 0), 0u);
    // The record the block failed at follows its message: row 1.
    EXPECT_EQ(problem["row"], 1);
    ASSERT_EQ(p.rows.size(), 4u);
    const int flags[] = {0, 3, 0, 0};  // 1: where its block failed, 2: in a bad block
    const int blocks[] = {1, 2, 3, 3};
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(p.rows[i][16], flags[i]) << i;
        EXPECT_EQ(p.rows[i][0], blocks[i]) << i;
    }
    EXPECT_EQ(p.meta["counts"]["blocks"], 2);
    EXPECT_EQ(p.meta["counts"]["invalid"], 1);

    // An input that cannot be read still gets a whole page saying so.
    EmbeddedPage missing;
    {
        char *buf = nullptr;
        size_t size = 0;
        std::FILE *out = open_memstream(&buf, &size), *messages = std::fopen("/dev/null", "w");
        {
            DecodeSession session{SessionSettings{}, out, messages};
            write_page(session, out, "/nonexistent/x.pcap", [&] { session.decode_file("/nonexistent/x.pcap"); });
        }
        std::fclose(out);
        std::fclose(messages);
        missing.text.assign(buf, size);
        std::free(buf);
    }
    EXPECT_EQ(missing.text.substr(missing.text.size() - 8), "</html>\n");
    EXPECT_TRUE(has(missing.text, "{\"text\":\"cannot open: "));
    EXPECT_FALSE(has(missing.text, "<script type=\"application/x-kovrel-group\">"));
}

TEST(ToolHtml, LimitEmbedsTheFirstRecordsAndCountsAll) {
    PageOptions options;
    options.limit = 2;
    options.settings = "profile auto, --cat 48";
    const EmbeddedPage p = render_page("limit", concat({sacsic_block(1, 3), sacsic_block(2, 2), kBad}), options);
    expect_whole_and_offline(p);
    EXPECT_EQ(p.rows.size(), 2u);
    EXPECT_EQ(p.records.size(), 2u);
    EXPECT_EQ(p.meta["embedded"], 2);
    EXPECT_EQ(p.meta["left_out"], 4);  // the failed record of the bad block too
    EXPECT_EQ(p.meta["limit"], 2);
    EXPECT_EQ(p.meta["settings"], "profile auto, --cat 48");
    EXPECT_TRUE(has(p.text, ", profile auto, --cat 48</p>"));
    // The record the bad block failed at answers for no source.
    EXPECT_EQ(p.meta["sources"],
              json::parse("[{\"cat\":48,\"sac\":25,\"sic\":1,\"records\":3,\"first\":null,\"last\":null,"
                          "\"types\":[[\"Plot\",3]]},"
                          "{\"cat\":48,\"sac\":25,\"sic\":2,\"records\":2,\"first\":null,\"last\":null,"
                          "\"types\":[[\"Plot\",2]]},"
                          "{\"cat\":48,\"sac\":null,\"sic\":null,\"records\":1,\"first\":null,\"last\":null,"
                          "\"types\":[]}]"));
    // A problem past the limit has no record to point at.
    ASSERT_EQ(p.meta["problems"].size(), 1u);
    EXPECT_EQ(p.meta["problems"][0]["row"], -1);
}

TEST(ToolHtml, GroupsAndItemsMetAgain) {
    // Records of one item each, alike, enough for three groups, the item written in
    // full once on the page, and the later groups start past it.
    const size_t records = 2 * kGroupRecords + 2;
    Octets blocks;
    for (size_t left = records; left > 0; left -= std::min<size_t>(left, 40))
        blocks = concat({blocks, sacsic_block(1, std::min<size_t>(left, 40))});
    const EmbeddedPage p = render_page("alike", blocks);
    expect_whole_and_offline(p);
    EXPECT_EQ(p.groups, 3u);
    ASSERT_EQ(p.records.size(), records);
    EXPECT_EQ(count(p.inflated, "\"I048/010\""), 1u);
    EXPECT_TRUE(has(p.text, "{\"f\":0,\"r\":"));
    EXPECT_EQ(count(p.text, "{\"f\":1,\"r\":"), 2u);
    for (const json &r : p.records) EXPECT_EQ(r[3], p.records[0][3]);
    EXPECT_EQ(p.records[0][3][0][3], "1901");

    // Items differing in one octet are each written.
    const EmbeddedPage two = render_page("two", concat({sacsic_block(1), sacsic_block(2), sacsic_block(1)}));
    EXPECT_EQ(count(two.inflated, "\"I048/010\""), 2u);
    EXPECT_EQ(two.records.at(2)[3], two.records.at(0)[3]);
    EXPECT_NE(two.records.at(1)[3], two.records.at(0)[3]);
}

TEST(ToolHtml, LongItemsEmbedTheirFirstOctets) {
    // One CAT048 record holding I048/250 with 200 registers: 1601 octets.
    Octets block = {48, 0x06, 0x46, 0x01, 0x20, 200};
    for (int i = 0; i < 1600; ++i) block.push_back(static_cast<uint8_t>(i));
    const EmbeddedPage p = render_page("long", block);
    expect_whole_and_offline(p);
    const json &item = p.records.at(0)[3].at(0);
    EXPECT_EQ(item[0], "I048/250");
    EXPECT_EQ(item[2], 1601);
    EXPECT_EQ(item[3].get<std::string>().size(), 2 * kHexTableOctets);
    EXPECT_EQ(item[3].get<std::string>().substr(0, 8), "c8000102");
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
