// HTML builders: exact texts, row parity, escaping and cutting to size.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "kovrel/html.h"

namespace {

constexpr char kCanary = '\x5A';
constexpr size_t kGuard = 32;

using Fill = std::function<void(char *, size_t)>;

// Runs fill on a buffer of the given size followed by a guard zone; fails if
// anything outside the buffer changed or the text is not terminated inside.
std::string run_bounded(size_t size, const Fill &fill) {
    std::vector<char> mem(size + kGuard, kCanary);
    fill(mem.data(), size);
    for (size_t i = size; i < mem.size(); ++i)
        if (mem[i] != kCanary) {
            ADD_FAILURE() << "octet " << i << " written, buffer size " << size;
            break;
        }
    if (size == 0) return "";
    const void *nul = std::memchr(mem.data(), '\0', size);
    EXPECT_NE(nul, nullptr) << "no terminator, buffer size " << size;
    return nul ? std::string(mem.data()) : std::string();
}

// The full text at ample size, and the prefix of size - 1 characters at every
// smaller size (0, 1 and one short included).
void expect_cut_text(const std::string &full, const Fill &fill) {
    EXPECT_EQ(run_bounded(full.size() + 100, fill), full);
    for (size_t size = 0; size <= full.size() + 1; ++size)
        EXPECT_EQ(run_bounded(size, fill), full.substr(0, size ? size - 1 : 0)) << "size " << size;
}

std::string repeat(const std::string &s, int n) {
    std::string out;
    while (n-- > 0) out += s;
    return out;
}

// "<td>b</td>" for each character of a string of bit digits.
std::string bit_cells(const std::string &bits) {
    std::string out;
    for (char b : bits) out += std::string("<td>") + b + "</td>";
    return out;
}

std::string data_row(const char *cell) {
    char buf[256];
    ast_html_gen_table_row(buf, sizeof buf, 0, cell, AST_HTML_TABLE_END_OF_ROW);
    return buf;
}

struct FlavorReset {
    ~FlavorReset() { ast_html_set_flavor(0); }
};

}  // namespace

TEST(Html, TitleAndParagraph) {
    char buf[64];
    std::strcpy(buf, "old text that is longer than the new one");
    EXPECT_EQ(ast_html_gen_title_h4(buf, sizeof buf, "Data Item I%03d/%03d", 48, 10), buf);
    EXPECT_STREQ(buf, "<h4>Data Item I048/010</h4>");
    EXPECT_EQ(ast_html_gen_para(buf, sizeof buf, "%s=%d", "SAC", 7), buf);
    EXPECT_STREQ(buf, "<p>SAC=7</p>");

    expect_cut_text("<h4>Track 0042</h4>",
                    [](char *d, size_t n) { ast_html_gen_title_h4(d, n, "Track %04d", 42); });
    expect_cut_text("<p>a &amp; b</p>",
                    [](char *d, size_t n) { ast_html_gen_para(d, n, "a &amp; %c", 'b'); });
}

TEST(Html, EscapeNeverCutsAnEntity) {
    char buf[64];
    ast_html_escape_text(buf, sizeof buf, "x & y <z> \"q\" 'r'");
    EXPECT_STREQ(buf, "x &amp; y &lt;z&gt; \"q\" 'r'");

    auto escape = [](const char *src) {
        return [src](char *d, size_t n) { ast_html_escape_text(d, n, src); };
    };
    // a, then "&lt;" (1 + 4 = 5, below 6); no room is left for b.
    EXPECT_EQ(run_bounded(6, escape("a<b&c")), "a&lt;");
    EXPECT_EQ(run_bounded(5, escape("a<b&c")), "a");
    EXPECT_EQ(run_bounded(7, escape("a<b&c")), "a&lt;b");
    EXPECT_EQ(run_bounded(11, escape("a<b&c")), "a&lt;b");
    EXPECT_EQ(run_bounded(12, escape("a<b&c")), "a&lt;b&amp;");
    EXPECT_EQ(run_bounded(13, escape("a<b&c")), "a&lt;b&amp;c");
    // "ab&gt;" is 6 long: one short drops the whole entity.
    EXPECT_EQ(run_bounded(6, escape("ab>")), "ab");
    EXPECT_EQ(run_bounded(7, escape("ab>")), "ab&gt;");
    EXPECT_EQ(run_bounded(1, escape("abc")), "");
    EXPECT_EQ(run_bounded(0, escape("abc")), "");
    EXPECT_EQ(run_bounded(3, escape("abc")), "ab");

    std::strcpy(buf, "stale");
    ast_html_escape_text(buf, sizeof buf, "");
    EXPECT_STREQ(buf, "");
    std::strcpy(buf, "stale");
    ast_html_escape_text(buf, sizeof buf, nullptr);
    EXPECT_STREQ(buf, "");
}

TEST(Html, TableBeginFollowsFlavor) {
    FlavorReset reset;
    char buf[128];
    ast_html_gen_table_begin(buf, sizeof buf);
    EXPECT_STREQ(buf, "<table class=\"detail_table\">");
    ast_html_set_flavor(1);
    ast_html_gen_table_begin(buf, sizeof buf);
    EXPECT_STREQ(buf, "<table class=\"detail_table\" border=\"1\" cellspacing=\"0\">");
    expect_cut_text(buf, [](char *d, size_t n) { ast_html_gen_table_begin(d, n); });
    ast_html_set_flavor(2);
    ast_html_gen_table_begin(buf, sizeof buf);
    EXPECT_STREQ(buf, "<table class=\"detail_table\">");

    expect_cut_text("</table><br/>", [](char *d, size_t n) { ast_html_gen_table_end(d, n); });
}

TEST(Html, RowParity) {
    char buf[256];
    ast_html_gen_table_begin(buf, sizeof buf);
    ast_html_gen_table_row(buf, sizeof buf, 1, "Name", "Value", AST_HTML_TABLE_END_OF_ROW);
    EXPECT_STREQ(buf, "<tr><th>Name</th><th>Value</th></tr>");
    EXPECT_EQ(data_row("1"), "<tr><td>1</td></tr>");
    EXPECT_EQ(data_row("2"), "<tr class=\"even_row\"><td>2</td></tr>");
    EXPECT_EQ(data_row("3"), "<tr><td>3</td></tr>");

    // A header row anywhere, and a table begin, start the alternation again.
    ast_html_gen_table_row(buf, sizeof buf, 1, AST_HTML_TABLE_END_OF_ROW);
    EXPECT_STREQ(buf, "<tr></tr>");
    EXPECT_EQ(data_row("4"), "<tr><td>4</td></tr>");
    EXPECT_EQ(data_row("5"), "<tr class=\"even_row\"><td>5</td></tr>");
    EXPECT_EQ(data_row("6"), "<tr><td>6</td></tr>");
    ast_html_gen_table_begin(buf, sizeof buf);
    EXPECT_EQ(data_row("7"), "<tr><td>7</td></tr>");

    // A row that does not fit still counts.
    ast_html_gen_table_row(nullptr, 0, 0, "lost", AST_HTML_TABLE_END_OF_ROW);
    EXPECT_EQ(data_row("8"), "<tr><td>8</td></tr>");
}

TEST(Html, RowCellsAndEndMarker) {
    char buf[256];
    ast_html_gen_table_begin(buf, sizeof buf);
    EXPECT_EQ(data_row(AST_HTML_TABLE_END_OF_ROW), "<tr></tr>");
    ast_html_gen_table_begin(buf, sizeof buf);
    // Text that merely begins with the marker is a cell; cells go in unescaped.
    EXPECT_EQ(data_row(AST_HTML_TABLE_END_OF_ROW "X"), "<tr><td>AST_HTML_TABLE_END_OF_ROWX</td></tr>");
    ast_html_gen_table_begin(buf, sizeof buf);
    EXPECT_EQ(data_row("<b>x</b>"), "<tr><td><b>x</b></td></tr>");

    // The marker is recognised by its text, not by its address: cells after
    // a copy of it are not read.
    char marker[] = AST_HTML_TABLE_END_OF_ROW;
    ast_html_gen_table_begin(buf, sizeof buf);
    ast_html_gen_table_row(buf, sizeof buf, 0, "a", marker, "b", AST_HTML_TABLE_END_OF_ROW);
    EXPECT_STREQ(buf, "<tr><td>a</td></tr>");

    expect_cut_text("<tr><th>SAC</th><th>SIC</th></tr>", [](char *d, size_t n) {
        ast_html_gen_table_row(d, n, 1, "SAC", "SIC", AST_HTML_TABLE_END_OF_ROW);
    });
    expect_cut_text("<tr><td>7</td><td>12</td></tr>", [](char *d, size_t n) {
        ast_html_gen_table_begin(nullptr, 0);
        ast_html_gen_table_row(d, n, 0, "7", "12", AST_HTML_TABLE_END_OF_ROW);
    });
}

TEST(Html, ComposedDetailView) {
    char view[512];
    char *end = view;
    auto advance = [&]() { end += std::strlen(end); };
    auto left = [&]() { return sizeof view - static_cast<size_t>(end - view); };
    ast_html_gen_title_h4(end, left(), "I%03d/%03d", 48, 40);
    advance();
    ast_html_gen_table_begin(end, left());
    advance();
    ast_html_gen_table_row(end, left(), 1, "Field", "Value", AST_HTML_TABLE_END_OF_ROW);
    advance();
    ast_html_gen_table_row(end, left(), 0, "RHO", "12.5", AST_HTML_TABLE_END_OF_ROW);
    advance();
    ast_html_gen_table_row(end, left(), 0, "THETA", "90.0", AST_HTML_TABLE_END_OF_ROW);
    advance();
    ast_html_gen_table_end(end, left());
    EXPECT_STREQ(view,
                 "<h4>I048/040</h4><table class=\"detail_table\"><tr><th>Field</th><th>Value</th></tr>"
                 "<tr><td>RHO</td><td>12.5</td></tr><tr class=\"even_row\"><td>THETA</td>"
                 "<td>90.0</td></tr></table><br/>");
}

TEST(Html, HexTable) {
    FlavorReset reset;
    const std::string open = "<table class=\"hex_table\">";
    const std::string caption =
        "<tr><th colspan=8 align=\"left\">Octet 1</th><th colspan=8 align=\"right\">Octet 16</th></tr>";
    const uint8_t three[] = {0x00, 0xAB, 0x0F};
    const std::string full = open + caption + "<tr><td>00</td><td>AB</td><td>0F</td>" +
                             repeat("<td>--</td>", 13) + "</tr></table>";
    expect_cut_text(full, [&](char *d, size_t n) { ast_html_gen_hex_table(d, n, three, 3); });

    uint8_t octets[17];
    for (int i = 0; i < 17; ++i) octets[i] = static_cast<uint8_t>(0xF0 + i);
    std::string first_row = "<tr>";
    for (int i = 0; i < 16; ++i) first_row += std::string("<td>F") + "0123456789ABCDEF"[i] + "</td>";
    first_row += "</tr>";
    static char buf[4096];
    ast_html_gen_hex_table(buf, sizeof buf, octets, 16);
    EXPECT_EQ(buf, open + caption + first_row + "</table>");
    ast_html_gen_hex_table(buf, sizeof buf, octets, 17);
    EXPECT_EQ(buf, open + caption + first_row + "<tr><td>00</td>" + repeat("<td>--</td>", 15) +
                       "</tr></table>");

    ast_html_gen_hex_table(buf, sizeof buf, octets, 0);
    EXPECT_STREQ(buf, "");
    ast_html_set_flavor(1);
    ast_html_gen_hex_table(buf, sizeof buf, octets, 1);
    EXPECT_EQ(std::string(buf), "<table class=\"hex_table\" border=\"1\" cellspacing=\"0\">" + caption +
                                    "<tr><td>F0</td>" + repeat("<td>--</td>", 15) + "</tr></table>");
}

TEST(Html, BinTable) {
    FlavorReset reset;
    const uint8_t octets[] = {0xA5, 0x01, 0x80, 0xFF, 0x3C};
    const std::string full =
        "<table class=\"bin_table\"><tr class=\"caption_row\"><th colspan=8>Octet 1 - A5</th>"
        "<th colspan=8>Octet 2 - 01</th><th colspan=8>Octet 3 - 80</th><th colspan=8>Octet 4 - FF</th>"
        "</tr><tr class=\"data_row\">" +
        bit_cells("10100101000000011000000011111111") +
        "</tr><tr class=\"caption_row\"><th colspan=8>Octet 5 - 3C</th><th colspan=8>Octet 6 - --</th>"
        "<th colspan=8>Octet 7 - --</th><th colspan=8>Octet 8 - --</th></tr><tr class=\"data_row\">" +
        bit_cells("00111100") + repeat("<td>-</td>", 24) + "</tr></table>";
    expect_cut_text(full, [&](char *d, size_t n) { ast_html_gen_bin_table(d, n, octets, 5); });

    char buf[2048];
    std::strcpy(buf, "stale");
    ast_html_gen_bin_table(buf, sizeof buf, octets, 0);
    EXPECT_STREQ(buf, "");
    ast_html_set_flavor(1);
    ast_html_gen_bin_table(buf, sizeof buf, octets, 4);
    EXPECT_EQ(std::string(buf).substr(0, 64),
              "<table class=\"bin_table\" border=\"1\" cellspacing=\"0\"><tr class=\"c");
    EXPECT_EQ(std::string(buf).find("Octet 5"), std::string::npos);
}
