// The library's printf against the C library's, and the texts built with it.
#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/format.h"
#include "core/text.h"
#include "kovrel/codec.h"
#include "kovrel/core.h"
#include "kovrel/dataitem.h"
#include "kovrel/subfield.h"

namespace {

constexpr size_t kRoom = 512;

// Formats with both at the buffer sizes that matter (0, 1, one short of the
// text, exactly the text, plenty) and compares the results, the texts and
// every octet behind them: nothing may be written past the NUL either.
template <typename... Args>
void expect_like_printf(const char *format, Args... args) {
    SCOPED_TRACE(format);
    char reference[kRoom];
    const int n = std::snprintf(reference, sizeof reference, format, args...);
    ASSERT_GE(n, 0);
    ASSERT_LT(static_cast<size_t>(n), kRoom - 2);
    const size_t full = static_cast<size_t>(n);
    for (size_t size : {size_t{0}, size_t{1}, full, full + 1, kRoom - 1}) {
        SCOPED_TRACE(size);
        char expected[kRoom], actual[kRoom];
        std::memset(expected, '#', sizeof expected);
        std::memset(actual, '#', sizeof actual);
        EXPECT_EQ(std::snprintf(size ? expected : nullptr, size, format, args...), n);
        EXPECT_EQ(kovrel::format_into(size ? actual : nullptr, size, format, args...), n);
        EXPECT_EQ(std::string(actual, sizeof actual), std::string(expected, sizeof expected));
    }
}

TEST(Format, IntegersEveryFlagAgainstPrintf) {
    const char *formats[] = {
        "%d",    "%i",      "%5d",    "%-5d|",  "%05d",   "%+d",    "% d",   "%+ d",   "% +5d", "%-+6d|",
        "%0-5d|", "%.3d",   "%8.3d",  "%-8.3d|", "%08.3d", "%.0d",   "%5.0d", "%+.0d",  "%02d",  "%03d",
        "%u",    "%+u",     "% u",    "%x",     "%#x",    "%#08x",  "%#.0x", "%#5x",   "%X",    "%#X",
        "%.2X",  "%02X",    "%.6X",   "%o",     "%#o",    "%#.0o",  "%#.3o", "%04o",   "%.4o",  "%#5o",
        "%hhd",  "%hhu",    "%hd",    "%hu",    "%hhx",   "%hX",    "[%c]",  "[%5c]",  "[%-3c]", "[%05c]",
        "%64d",  "%-64d|",  "%.64d",  "%064x",
    };
    const int values[] = {0, 1, -1, 7, 9, 10, 42, -42, 99, 100, 255, 256, 4095, 65535, 70000, -70000,
                          INT_MAX, INT_MIN};
    for (const char *format : formats)
        for (int v : values) expect_like_printf(format, v);
}

TEST(Format, WideIntegersAgainstPrintf) {
    const long long values[] = {0, 1, -1, 1234567890123LL, -1234567890123LL, LLONG_MAX, LLONG_MIN};
    for (const char *format : {"%lld", "%lli", "%+lld", "%25lld", "%-25lld|", "%025lld", "%.20lld", "%llx", "%#llX",
                               "%llo", "%llu"})
        for (long long v : values) expect_like_printf(format, v);
    for (const char *format : {"%ld", "%lu", "%lx", "%08lX"})
        for (long long v : values) expect_like_printf(format, static_cast<long>(v));
    for (const char *format : {"%zu", "%.2zu", "%zx", "%5zu"})
        for (size_t v : {size_t{0}, size_t{7}, size_t{123456}, SIZE_MAX}) expect_like_printf(format, v);
    for (const char *format : {"%zd", "%+zd"})
        for (long long v : values) expect_like_printf(format, static_cast<std::make_signed_t<size_t>>(v));
    expect_like_printf("%u %x", UINT_MAX, UINT_MAX);
}

TEST(Format, FixedPointAgainstPrintf) {
    const char *formats[] = {"%f",    "%.0f",  "%.1f",   "%.2f",    "%.3f",  "%.4f",  "%.6f",    "%.8f",
                             "%.18f", "%.19f", "%.30f",  "%.64f",   "%#.0f", "%#f",   "%+.2f",   "% .2f",
                             "%10.2f", "%-10.2f|", "%010.2f", "%+010.2f", "%013.8f", "%F",  "%lf",     "%64.1f"};
    const double values[] = {0.0,
                             -0.0,
                             0.05,
                             0.125,
                             0.375,
                             2.5,
                             -2.5,
                             0.5,
                             1.5,
                             1.005,
                             -0.004,
                             123.456,
                             359.99999,
                             48.123456789,
                             -33.999999,
                             1e-7,
                             DBL_MIN,
                             5e-324,
                             4503599627370495.5,
                             9223372036854774784.0,  // the largest double below 2^63
                             9223372036854775808.0,  // 2^63
                             1e20,
                             -1e300,
                             DBL_MAX,
                             std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN(),
                             -std::numeric_limits<double>::quiet_NaN()};
    for (const char *format : formats)
        for (double v : values) expect_like_printf(format, v);
}

TEST(Format, TextsAgainstPrintf) {
    const char *null_text = nullptr;
    for (const char *format : {"[%s]", "[%10s]", "[%-10s]", "[%010s]", "[%.3s]", "[%.0s]", "[%10.2s]", "[%-4.6s]",
                               "[%.5s]", "[%.6s]", "[%64s]"})
        for (const char *text : {"", "a", "MODE_3/A", " NOT_VALIDATED", "exactly ten", null_text})
            expect_like_printf(format, text);
    // The precision bounds what is read: the text needs no terminator.
    const char unterminated[4] = {'A', 'B', 'C', 'D'};
    expect_like_printf("[%.3s]", unterminated);
    expect_like_printf("%.*s|%.*s", 2, unterminated, -1, "all");
    expect_like_printf("100%% %s%%", "sure");
    expect_like_printf("%%", 0);  // arguments beyond the format are ignored
    expect_like_printf("", 0);
}

TEST(Format, StarsAgainstPrintf) {
    for (int width : {-70, -64, -9, -1, 0, 3, 12, 64, 65, 200})
        for (int precision : {-5, 0, 2, 7, 64, 65}) {
            expect_like_printf("[%*.*d]", width, precision, -1234);
            expect_like_printf("[%*.*f]", width, precision, 2.675);
            expect_like_printf("[%*.*s]", width, precision, "summary");
            expect_like_printf("[%-*d]", width, 77);
        }
    expect_like_printf("[%.*s]", 1000, "a precision larger than the text");
}

// Formats the library does not write itself go to the C library, whole,
// with every argument where it was: before, between and after them.
TEST(Format, OtherConversionsStillWork) {
    expect_like_printf("%d %g %s", 7, 0.1, "after");
    expect_like_printf("%e|%E|%a|%G", 1234.5, -0.00012, 1.0, 1e-10);
    expect_like_printf("%s=%p", "at", static_cast<void *>(nullptr));
    expect_like_printf("%2$s %1$s", "world", "hello");
    expect_like_printf("%ls", L"wide");
    expect_like_printf("%lc", static_cast<wint_t>(L'w'));
    expect_like_printf("%jd %td", static_cast<intmax_t>(-5), static_cast<ptrdiff_t>(6));
    expect_like_printf("%Lf", 1.5L);
    expect_like_printf("%5% %d", 3);
    expect_like_printf("%'d %d", 1234567, 8);
    expect_like_printf("%100d|%.100f|%0100.3f", 5, 0.1, -2.5);
    expect_like_printf("%d %d %*d", 1, 2, 300, 3);
}

// Cases whose digits are easy to get wrong, pinned to the text as well so
// that the reference itself is checked.
TEST(Format, RoundingAndSignsPinned) {
    struct Case {
        const char *format;
        double value;
        const char *text;
    };
    const Case cases[] = {
        {"%.1f", 0.05, "0.1"},       // 0.05 is stored a little above 0.05
        {"%.2f", 0.125, "0.12"},     // exactly half way: to even
        {"%.2f", 0.375, "0.38"},     // exactly half way: to even
        {"%.0f", 0.5, "0"},          {"%.0f", 1.5, "2"},          {"%.0f", 2.5, "2"},
        {"%.2f", 1.005, "1.00"},     // stored a little below 1.005
        {"%.1f", -0.0, "-0.0"},      {"%+.1f", 0.0, "+0.0"},      {"%.1f", -0.04, "-0.0"},
        {"%05.1f", -1.25, "-01.2"},  {"%#.0f", 3.0, "3."},        {"%.1f", 9.96, "10.0"},
        {"%.3f", 999.9995, "1000.000"},
        {"%.2f", 1e20, "100000000000000000000.00"},
        {"%.20f", 0.1, "0.10000000000000000555"},
        {"%5f", -std::numeric_limits<double>::infinity(), " -inf"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.format);
        char ours[64], theirs[64];
        kovrel::format_into(ours, sizeof ours, c.format, c.value);
        std::snprintf(theirs, sizeof theirs, c.format, c.value);
        EXPECT_STREQ(ours, c.text);
        EXPECT_STREQ(theirs, c.text);
    }
    char text[16];
    kovrel::format_into(text, sizeof text, "%d", INT_MIN);
    EXPECT_STREQ(text, "-2147483648");
    kovrel::format_into(text, sizeof text, "%lld", LLONG_MIN);
    EXPECT_STREQ(text, "-92233720368547");  // cut to 15 characters
    EXPECT_EQ(kovrel::format_into(text, sizeof text, "%lld", LLONG_MIN), 20);
}

// Summaries are composed piece by piece into one buffer; every piece is cut
// to the room left and the text stays terminated.
TEST(Format, TextWriterAppendsAndCuts) {
    for (size_t size : {size_t{0}, size_t{1}, size_t{2}, size_t{9}, size_t{10}, size_t{11}, size_t{12}, size_t{32}}) {
        SCOPED_TRACE(size);
        char expected[40], actual[40];
        std::memset(expected, '#', sizeof expected);
        std::memset(actual, '#', sizeof actual);
        std::snprintf(size ? expected : nullptr, size, "%s%03d %.1f%c", "AB", 7, 2.25, 'Z');
        kovrel::TextWriter w(size ? actual : nullptr, size);
        w.append("AB");
        w.appendf("%03d", 7);
        w.appendf(" %.1f", 2.25);
        w.append_char('Z');
        EXPECT_EQ(std::string(actual, sizeof actual), std::string(expected, sizeof expected));
        EXPECT_EQ(w.length(), size ? std::strlen(actual) : 0u);
    }
    // A text continued later starts behind what is already there.
    char text[12] = "SAC:";
    kovrel::TextWriter more = kovrel::TextWriter::continuing(text, sizeof text);
    more.appendf("%03d SIC:%03d", 25, 50);
    EXPECT_STREQ(text, "SAC:025 SIC");
    EXPECT_TRUE(more.full());
}

// The single-number appenders stand for one printf conversion each. Every
// value of a table is appended behind "AB" at every buffer size that cuts
// it somewhere (and with plenty of room), and compared, octet by octet,
// with snprintf writing "AB" and the conversion.
template <typename Append, typename... Args>
void expect_append_like_printf(Append append, const char *format, Args... args) {
    char reference[kRoom];
    const int n = std::snprintf(reference, sizeof reference, format, args...);
    ASSERT_GT(n, 0);
    ASSERT_LT(static_cast<size_t>(n) + 2, kRoom - 1);
    const std::string whole = std::string("AB") + reference;
    for (size_t size = 0; size <= whole.size() + 1; ++size) {
        if (size > 4 && size + 2 < whole.size()) continue;  // the middle cuts are all alike
        SCOPED_TRACE(size);
        char expected[kRoom], actual[kRoom];
        std::memset(expected, '#', sizeof expected);
        std::memset(actual, '#', sizeof actual);
        std::snprintf(size ? expected : nullptr, size, "%s", whole.c_str());
        kovrel::TextWriter w(size ? actual : nullptr, size);
        w.append("AB");
        append(w);
        EXPECT_EQ(std::string(actual, sizeof actual), std::string(expected, sizeof expected));
        EXPECT_EQ(w.length(), size ? std::strlen(expected) : 0u);
    }
    char plenty[kRoom];
    kovrel::TextWriter w(plenty, sizeof plenty);
    w.append("AB");
    append(w);
    EXPECT_EQ(std::string(plenty), whole);
}

// Widths 0 to 64 are built in the field; wider ones go to the C library.
constexpr unsigned kWidths[] = {0, 1, 2, 3, 4, 6, 8, 19, 20, 21, 23, 64, 65, 80};

TEST(Format, AppendIntegerAgainstPrintf) {
    const long long signed_values[] = {0,   1,    -1,    7,     -7,     9,      10,        -10,       99,
                                       -99, 100,  -100,  999,   -1000,  -12345, INT_MAX,   INT_MIN,   LLONG_MAX,
                                       LLONG_MIN, LLONG_MIN + 1};
    for (unsigned width : kWidths) {
        for (long long v : signed_values) {
            SCOPED_TRACE(testing::Message() << "int " << v << " width " << width);
            expect_append_like_printf([&](kovrel::TextWriter &w) { w.append_int(v, width); }, "%0*lld",
                                      static_cast<int>(width), v);
        }
    }
    const unsigned long long unsigned_values[] = {0, 1, 7, 8, 9, 10, 15, 16, 63, 64, 255, 256, 4095, 07777,
                                                  0xABCDEF, 0xFFFFFF, UINT_MAX, 1ULL << 63, ULLONG_MAX};
    for (unsigned width : kWidths) {
        for (unsigned long long v : unsigned_values) {
            SCOPED_TRACE(testing::Message() << "unsigned " << v << " width " << width);
            const int star = static_cast<int>(width);
            expect_append_like_printf([&](kovrel::TextWriter &w) { w.append_uint(v, width); }, "%0*llu", star, v);
            expect_append_like_printf([&](kovrel::TextWriter &w) { w.append_octal(v, width); }, "%0*llo", star, v);
            expect_append_like_printf([&](kovrel::TextWriter &w) { w.append_hex(v, width); }, "%0*llX", star, v);
        }
    }
}

TEST(Format, AppendFixedAgainstPrintf) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const double values[] = {
        0.0, -0.0, 0.5, 1.5, 2.5, -0.5, -2.5,          // ties to even at 0 decimals
        0.05, 0.15, 0.25, 0.35, -0.25, 2.675, 1.005,   // near-ties that are not ties in binary
        0.125, 0.375, -0.625, 99.95, 99.995, 359.99,   // exact ties, carries into the integer part
        0.04999999999999999, 1e-7, -1e-7, 5e-324, 1e-300,
        123456.789, -987654.321, 4294967295.5, 9007199254740993.0,
        9223372036854774784.0, 9223372036854775808.0, -9223372036854775808.0,  // around 2^63
        1e20, -1e22, 1.7976931348623157e308, -1.7976931348623157e308,
        nan, -nan, inf, -inf,
    };
    for (unsigned decimals : {0u, 1u, 2u, 3u, 6u, 17u, 18u, 19u, 30u, 64u, 65u}) {
        for (double v : values) {
            SCOPED_TRACE(testing::Message() << "value " << v << " decimals " << decimals);
            expect_append_like_printf([&](kovrel::TextWriter &w) { w.append_fixed(v, decimals); }, "%.*f",
                                      static_cast<int>(decimals), v);
        }
    }
}

TEST(Format, PositionTextsKeepTheirDigits) {
    struct Case {
        double latitude, longitude;
        const char *low, *high, *very_high;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {nan, nan, "000000S0000000W", "000000.00S0000000.00W", "000000.000000S0000000.000000W"},
        {inf, -inf, "21474836470000N21474836470000W", "21474836470000.00N21474836470000.00W",
         "21474836470000.000000N21474836470000.000000W"},
        {3e9, -1e300, "21474836470000N21474836470000W", "21474836470000.00N21474836470000.00W",
         "21474836470000.000000N21474836470000.000000W"},
        {-0.0, -0.0, "000000S0000000W", "000000.00S0000000.00W", "000000.000000S0000000.000000W"},
        {90.0, -180.0, "900000N1800000W", "900000.00N1800000.00W", "900000.000000N1800000.000000W"},
        {-89.9999999, 179.9999999, "895960S1795960E", "895959.100S1795959.100E", "895959.999640S1795959.999640E"},
        {0.5 / 3600, -0.5 / 3600, "000001N0000001W", "000000.50N0000000.50W", "000000.500000N0000000.500000W"},
        {45.00000001, -7.25, "450000N0071500W", "450000.00N0071500.00W", "450000.000036N0071500.000000W"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.low);
        char text[64];
        EXPECT_STREQ(ast_latlong_to_str(text, sizeof text, c.latitude, c.longitude), c.low);
        EXPECT_STREQ(ast_latlong_to_str_high(text, sizeof text, c.latitude, c.longitude), c.high);
        EXPECT_STREQ(ast_latlong_to_str_very_high(text, sizeof text, c.latitude, c.longitude), c.very_high);
        // Cut like snprintf cuts: one short loses the last letter, nothing is written past the NUL.
        const size_t n = std::strlen(c.very_high);
        std::string cut(n + 4, '#');
        ast_latlong_to_str_very_high(cut.data(), n, c.latitude, c.longitude);
        EXPECT_EQ(cut, std::string(c.very_high, n - 1) + '\0' + "####");
    }
}

// The summary of a compound item counts the subfields of its split without
// building it; both must agree on the same octets, including the refusals.
TEST(Format, CompoundSummariesFollowTheSplit) {
    struct Case {
        AstItemId id;
        std::vector<uint8_t> octets;
        const char *summary;             // "" when the item cannot be split
        std::vector<uint32_t> present;   // positions of the present subfields
    };
    ast_library_init(nullptr);  // an empty primary subfield is refused
    const Case cases[] = {
        {48130, {0xA0, 0x11, 0x22}, "SUBFIELDS:02/07", {1, 3}},
        {48130, {0xFE, 1, 2, 3, 4, 5, 6, 7}, "SUBFIELDS:07/07", {1, 2, 3, 4, 5, 6, 7}},
        // FRN 8 is announced but I048/130 has seven subfields: not sized, not counted.
        {48130, {0x41, 0x80, 0x33}, "SUBFIELDS:01/07", {2}},
        {48130, {0x01, 0x80}, "SUBFIELDS:00/07", {}},
        {48130, {0xE0, 0x11, 0x22}, "", {}},  // the third subfield ends past the item
        {48130, {0x00, 0x11}, "", {}},        // no subfield announced
        {48130, {0x81}, "", {}},              // the primary subfield never ends
        // Data ages: FRNs 1, 8, 15 and 22 over four primary octets.
        {21295, {0x81, 0x81, 0x81, 0x80, 1, 2, 3, 4}, "SUBFIELDS:04/23", {1, 8, 15, 22}},
        {21295, {0x01, 0x01, 0x03, 0x00, 9}, "SUBFIELDS:01/23", {21}},
        {48120, {0x81, 0x80, 0x00, 0x00}, "SUBFIELDS:01/02", {1}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.summary);
        const AstDataItem item{c.octets.data(), c.octets.size(), c.id, 1};
        char text[32];
        ast_dataitem_subfields_get_summary(text, sizeof text, &item);
        EXPECT_STREQ(text, c.summary);

        AstSubfieldList list;
        ast_dataitem_subfields_decode(&list, &item);
        EXPECT_EQ(list.valid, c.summary[0] != '\0' ? 1 : 0);
        if (list.valid != 1) continue;
        std::vector<uint32_t> present;
        for (uint64_t i = 0; i < list.span_count; ++i) {
            EXPECT_EQ(list.spans[i].id, c.id * 1000 + static_cast<uint32_t>(i) + 1);
            EXPECT_EQ(list.spans[i].valid, 1);
            if (list.spans[i].present) present.push_back(static_cast<uint32_t>(i) + 1);
        }
        EXPECT_EQ(present, c.present);
        char counted[32];
        std::snprintf(counted, sizeof counted, "SUBFIELDS:%02zu/%02u", present.size(),
                      static_cast<unsigned>(list.span_count));
        EXPECT_STREQ(counted, c.summary);
    }
}

// Every summary starts as "NOT_IMPLEMENTED", cut to the buffer, and keeps it
// when the item has nothing to show.
TEST(Format, SummaryPlaceholderIsCut) {
    const uint8_t octets[] = {0x01, 0x02};
    const AstDataItem invalid{octets, 2, 48010, 0};
    const std::pair<size_t, const char *> cases[] = {
        {1, ""}, {2, "N"}, {15, "NOT_IMPLEMENTE"}, {16, "NOT_IMPLEMENTED"}, {17, "NOT_IMPLEMENTED"}};
    for (const auto &[size, text] : cases) {
        std::string buffer(size + 4, '#');
        ast_dataitem_get_summary(buffer.data(), size, &invalid);
        EXPECT_EQ(buffer.substr(0, std::strlen(text) + 1), std::string(text) + '\0');
        EXPECT_EQ(buffer.substr(size), "####");
    }
    char untouched[4] = {'x', 'x', 'x', 'x'};
    ast_dataitem_get_summary(untouched, 0, &invalid);
    EXPECT_EQ(untouched[0], 'x');
}

}  // namespace
