// Position, velocity and height items: wire octets in, records and texts out,
// and records back to octets.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "kovrel/core.h"
#include "kovrel/html.h"
#include "kovrel/items_motion.h"

namespace {

using Octets = std::vector<uint8_t>;
using TextFn = void (*)(char *, size_t, const AstDataItem *);
using LatLon = std::pair<double, double>;

constexpr double kLsb23 = 180.0 / (1 << 23);
constexpr double kLsb25 = 180.0 / (1 << 25);

AstDataItem span(const Octets &o, AstItemId id = 0) { return AstDataItem{o.data(), o.size(), id, 1}; }

// Decodes o as item id into a record pre-filled with garbage.
template <typename T>
T decode(void (*fn)(T *, const AstDataItem *), const Octets &o, AstItemId id = 0) {
    const AstDataItem item = span(o, id);
    T out;
    std::memset(&out, 0x55, sizeof out);
    fn(&out, &item);
    return out;
}

template <typename T>
LatLon wgs84(void (*fn)(T *, const AstDataItem *), const Octets &o, AstItemId id = 0) {
    const T p = decode(fn, o, id);
    EXPECT_EQ(p.valid, 1u);
    return {p.latitude, p.longitude};
}

// Text written at a buffer of `size` octets followed by canary octets; fails
// when a canary changed or the text is not terminated inside the buffer.
std::string text_at(TextFn fn, const AstDataItem &item, size_t size) {
    std::vector<char> mem(size + 16, '#');
    fn(mem.data(), size, &item);
    EXPECT_EQ(std::string(mem.begin() + size, mem.end()), std::string(16, '#')) << "wrote past " << size;
    const size_t len = strnlen(mem.data(), size);
    EXPECT_TRUE(size == 0 || len < size) << "not terminated, buffer size " << size;
    return std::string(mem.data(), len < size ? len : 0);
}

// The full text, after checking that the sizes 0, 1 and one short of it cut it.
std::string text(TextFn fn, const AstDataItem &item) {
    const std::string full = text_at(fn, item, 4096);
    EXPECT_EQ(text_at(fn, item, 0) + text_at(fn, item, 1), "");
    if (!full.empty()) {
        EXPECT_EQ(text_at(fn, item, full.size()), full.substr(0, full.size() - 1));
    }
    return full;
}

// Fails for every piece that is not part of s.
void expect_in(const std::string &s, std::initializer_list<std::string> pieces) {
    for (const std::string &p : pieces) EXPECT_NE(s.find(p), std::string::npos) << p << " not in " << s;
}

// Expected detail table (flavor 0): header cells, then data rows alternating
// plain and even.
std::string table(const std::vector<std::vector<std::string>> &rows) {
    std::string s = "<table class=\"detail_table\"><tr>";
    for (const auto &c : rows[0]) s += "<th>" + c + "</th>";
    s += "</tr>";
    for (size_t r = 1; r < rows.size(); ++r) {
        s += (r % 2 == 0) ? "<tr class=\"even_row\">" : "<tr>";
        for (const auto &c : rows[r]) s += "<td>" + c + "</td>";
        s += "</tr>";
    }
    return s + "</table><br/>";
}

// Encodes into a buffer pre-filled with 0xAA (so a field written without
// clearing its octets first shows) and returns the octets written; checks
// the result span and that nothing beyond it was touched.
template <typename T, typename Fn>
Octets encode(Fn fn, const T &in, size_t size = 8) {
    uint8_t buf[16];
    std::memset(buf, 0xAA, sizeof buf);
    AstDataItem out{nullptr, 99, 99, 99};
    fn(&out, buf, size, &in);
    EXPECT_TRUE(out.data == buf && out.id == 0 && out.valid == (out.length ? 1 : 0));
    for (size_t i = out.length; i < sizeof buf; ++i) EXPECT_EQ(buf[i], 0xAA) << "octet " << i;
    return Octets(buf, buf + out.length);
}

struct OptionGuard {
    bool was = ast_library_test_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE);
    ~OptionGuard() {
        if (was) ast_library_set_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE);
        else ast_library_unset_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE);
    }
};

TEST(MotionWgs84, DecodeLsbFollowsItem) {
    const auto dec = ast_dataitem_position_wgs84_decode;
    const Octets o = {0x20, 0x00, 0x00, 0x00, 0xC0, 0x00, 0x00, 0x00};
    // No range check: the default LSB gives 2880 degrees.
    for (const auto &[id, ll] : {std::pair{21131, LatLon(90.0, -180.0)}, {19600, LatLon(90.0, -180.0)},
                                 {10041, LatLon(45.0, -90.0)}, {16400, LatLon(45.0, -90.0)},
                                 {48999, LatLon(2880.0, -5760.0)}})
        EXPECT_EQ(wgs84(dec, o, id), ll) << id;
    const AstPositionWgs84 p = decode(dec, o, 21131);
    EXPECT_TRUE(p.lat_raw == 0x20000000 && p.lat_lsb == 180.0 / (1 << 30) && p.lon_lsb == p.lat_lsb);
    EXPECT_EQ(decode(dec, o, 62105).lon_lsb, kLsb25);

    const Octets o6 = {0x20, 0x00, 0x00, 0xF0, 0x00, 0x00};
    EXPECT_EQ(wgs84(ast_dataitem_position_wgs84_low_decode, o6, 21131), LatLon(45.0, -22.5));
    EXPECT_EQ(decode(ast_dataitem_position_wgs84_low_decode, o6).lon_raw, -0x100000);
}

TEST(MotionWgs84, WestLongitudeOptionOnlyForI062105) {
    OptionGuard guard;
    const auto dec = ast_dataitem_position_wgs84_decode;
    const Octets o = {0x00, 0x00, 0x01, 0x00, 0xFF, 0xFF, 0xFF, 0x00};
    ast_library_unset_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE);
    EXPECT_EQ(decode(dec, o, 62105).lon_raw, -256);
    ast_library_set_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE);
    const AstPositionWgs84 p = decode(dec, o, 62105);
    EXPECT_TRUE(p.lon_raw == 256 && p.longitude == 256 * kLsb25 && p.lat_raw == 256);
    EXPECT_EQ(decode(dec, o, 21131).lon_raw, -256);
    EXPECT_EQ(decode(ast_dataitem_position_wgs84_low_decode, Octets{0, 0, 1, 0xFF, 0xFF, 0}, 62105).lon_raw, -256);
    // The most negative raw value has no positive counterpart and stays.
    EXPECT_EQ(wgs84(dec, Octets{0, 0, 0, 0, 0x80, 0, 0, 0}, 62105), LatLon(0.0, -11520.0));
}

TEST(MotionWgs84, EncodeRangeTruncationAndFixedLsb) {
    const auto enc8 = ast_dataitem_position_wgs84_encode;
    const auto enc6 = ast_dataitem_position_wgs84_low_encode;
    EXPECT_EQ(encode(enc8, AstPositionWgs84{1, 0, 0, 90.0, 0, 0, 180.0}), (Octets{1, 0, 0, 0, 2, 0, 0, 0}));
    EXPECT_EQ(encode(enc8, AstPositionWgs84{1, 0, 0, -90.0, 0, 0, -180.0}),
              (Octets{0xFF, 0, 0, 0, 0xFE, 0, 0, 0}));
    // Truncation towards zero: -1.5 LSB gives -1, 2.99 LSB gives 2.
    EXPECT_EQ(encode(enc8, AstPositionWgs84{1, 0, 0, -1.5 * kLsb25, 0, 0, 2.99 * kLsb25}),
              (Octets{0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 2}));
    for (const auto &bad : {AstPositionWgs84{1, 0, 0, 90.000001, 0, 0, 0.0},
                            AstPositionWgs84{1, 0, 0, 0.0, 0, 0, -180.000001},
                            AstPositionWgs84{1, 0, 0, NAN, 0, 0, 0.0}, AstPositionWgs84{0, 0, 0, 1.0, 0, 0, 1.0},
                            AstPositionWgs84{2, 0, 0, 1.0, 0, 0, 1.0}}) {
        EXPECT_EQ(encode(enc8, bad), Octets{});
    }
    EXPECT_EQ(encode(enc8, AstPositionWgs84{1, 0, 0, 1.0, 0, 0, 1.0}, 7), Octets{});
    // A position decoded with a finer LSB is written back at 180/2^25.
    const Octets fine = {0x20, 0, 0, 0, 0xC0, 0, 0, 0};
    EXPECT_EQ(encode(enc8, decode(ast_dataitem_position_wgs84_decode, fine, 10041)),
              (Octets{0x00, 0x80, 0, 0, 0xFF, 0, 0, 0}));

    // +180 does not fit 24 bits and reads back as -180; -180 and +-90 round-trip.
    const Octets max6 = encode(enc6, AstPositionWgs84Low{1, 0, 0, 90.0, 0, 0, 180.0});
    EXPECT_EQ(max6, (Octets{0x40, 0, 0, 0x80, 0, 0}));
    EXPECT_EQ(wgs84(ast_dataitem_position_wgs84_low_decode, max6), LatLon(90.0, -180.0));
    EXPECT_EQ(encode(enc6, AstPositionWgs84Low{1, 0, 0, -90.0, 0, 0, -180.0}), (Octets{0xC0, 0, 0, 0x80, 0, 0}));
    EXPECT_EQ(encode(enc6, AstPositionWgs84Low{1, 0, 0, -1.5 * kLsb23, 0, 0, 0.0}),
              (Octets{0xFF, 0xFF, 0xFF, 0, 0, 0}));
    EXPECT_EQ(encode(enc6, AstPositionWgs84Low{1, 0, 0, 0.0, 0, 0, 180.0001}), Octets{});
    EXPECT_EQ(encode(enc6, AstPositionWgs84Low{1, 0, 0, 0.0, 0, 0, 0.0}, 5), Octets{});
}

TEST(MotionWgs84, SummaryAndDetailTexts) {
    ast_html_set_flavor(0);
    const Octets o8 = {0x00, 0x80, 0x00, 0x00, 0xFF, 0xE0, 0x00, 0x00};  // 45, -11.25
    EXPECT_EQ(text(ast_dataitem_position_wgs84_get_summary, span(o8)), "WGS84:450000N0111500W");
    // Out-of-range positions are cut to the 19 characters of the position text.
    EXPECT_EQ(text(ast_dataitem_position_wgs84_get_summary, span(Octets{0x7F, 0xFF, 0xFF, 0xFF, 0x80, 0, 0, 0})),
              "WGS84:115195960N115200000");
    const char *l8 = "Octet[1-8]", *w = "WGS84_COORDINATES";
    EXPECT_EQ(text(ast_dataitem_position_wgs84_get_detail_html, span(o8)),
              table({{"Octet", "Item", "Value"},
                     {l8, w, "450000N0111500W"},
                     {l8, w, "450000.00N0111500.00W"},
                     {l8, w, "450000.000000N0111500.000000W"},
                     {l8, w, "045.00000000, -011.25000000"},
                     {"Octet[1-6]", w, "8388608, -2097152"},
                     {l8, w, "<a href=\"https://www.google.com/maps/place/45.000000,-11.250000\">Google Maps</a>"},
                     {l8, w, "<a href=\"http://www.openstreetmap.org/?mlat=45.000000&mlon=-11.250000\">"
                             "OpenStreetMap</a>"},
                     {l8, w, "<a href=\"https://uri.amap.com/marker?position=-11.250000,45.000000\">AMap</a>"},
                     {l8, w, "<a href=\"https://api.map.baidu.com/marker?location=45.000000,-11.250000"
                             "&title=450000N0111500W&content=450000N0111500W&output=html&coord_type=wgs84"
                             "&src=kovrel.dev\">Baidu Map</a>"}}));

    const Octets o6 = {0x20, 0x00, 0x00, 0xF0, 0x00, 0x00};  // 45, -22.5
    EXPECT_EQ(text(ast_dataitem_position_wgs84_low_get_summary, span(o6)), "WGS84:450000N0223000W");
    const std::string low = text(ast_dataitem_position_wgs84_low_get_detail_html, span(o6));
    const std::string cell = "<td>Octet[1-6]</td><td>WGS84_COORDINATES</td><td>";
    expect_in(low, {"<tr><th>Octet</th><th>Item</th><th>Value</th></tr><tr>" + cell + "450000N0223000W</td>",
                    cell + "450000.00N0223000.00W<", cell + "450000.000000N0223000.000000W<",
                    cell + "045.000000, -022.500000<", cell + "2097152, -1048576<", "mlat=45.000000&mlon=-22.500000",
                    "location=45.000000,-22.500000&title=450000N0223000W", "Baidu Map</a></td></tr></table><br/>"});
    EXPECT_EQ(low.find("Octet[1-8]"), std::string::npos);
}

TEST(MotionCartesian, PositionAndVelocity) {
    const Octets pos = {0x80, 0x00, 0x00, 0x7F, 0xFF, 0xFF};
    const AstPositionCartesian p = decode(ast_dataitem_position_cartesian_decode, pos);
    EXPECT_TRUE(p.valid == 1 && p.x_raw == -8388608 && p.y_raw == 8388607 && p.y == 4194303.5);
    EXPECT_EQ(text(ast_dataitem_position_cartesian_get_summary, span(pos)), "X:-4194304.0 Y:4194303.5 LSB:M");

    const Octets vel = {0xFF, 0xFF, 0x00, 0x05};
    const AstVelocityCartesian v = decode(ast_dataitem_velocity_cartesian_decode, vel);
    EXPECT_TRUE(v.valid == 1 && v.vx_raw == -1 && v.vx == -0.25 && v.vy_raw == 5);
    EXPECT_EQ(text(ast_dataitem_velocity_cartesian_get_summary, span(vel)), "VX:-0.25 VY:1.25 LSB:M/S");
}

TEST(MotionVelocityPolar, DecodeAndTexts) {
    ast_html_set_flavor(0);
    const Octets o = {0x04, 0x00, 0x80, 0x00};
    const AstVelocityPolar v = decode(ast_dataitem_velocity_polar_decode, o);
    EXPECT_TRUE(v.valid == 1 && v.speed_raw == 1024 && v.speed == 225.0 && v.heading == 180.0);
    EXPECT_EQ(text(ast_dataitem_velocity_polar_get_summary, span(o)), "SPD:225.00 HDG:180.00");
    expect_in(text(ast_dataitem_velocity_polar_get_detail_html, span(o)),
              {"<td>Octet[1-2]</td><td>GROUND_SPEED LSB:NM/S</td><td>0.062500</td>", "LSB:M/S</td><td>115.75<",
               "LSB:KNOT</td><td>225.00<", "LSB:KM/H</td><td>416.70<",
               "<td>Octet[3-4]</td><td>HEADING LSB:DEG</td><td>180.00</td></tr></table>"});
    // Both fields are unsigned.
    EXPECT_EQ(text(ast_dataitem_velocity_polar_get_summary, span(Octets{0xFF, 0xFF, 0xFF, 0xFF})),
              "SPD:14399.78 HDG:359.99");
}

TEST(MotionVelocityPolar, Encode) {
    const auto enc = ast_dataitem_velocity_polar_encode;
    EXPECT_EQ(encode(enc, AstVelocityPolar{1, 100, 0, 0.0, 200, 0, 0.0}), (Octets{0x00, 0x64, 0x00, 0xC8}));
    EXPECT_EQ(encode(enc, AstVelocityPolar{1, 7, 0, 100.0, 9, 0, 90.0}), (Octets{0x01, 0xC7, 0x40, 0x00}));
    // Half an LSB rounds away from zero; the zero heading then counts as a value.
    EXPECT_EQ(encode(enc, AstVelocityPolar{1, 77, 0, 0.10986328125, 77, 0, 0.0}), (Octets{0, 1, 0, 0}));
    EXPECT_EQ(encode(enc, AstVelocityPolar{1, 77, 0, 0.0, 77, 0, 360.0}), (Octets{0, 0, 0, 0}));
    const Octets max = {0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(encode(enc, decode(ast_dataitem_velocity_polar_decode, max)), max);
    EXPECT_EQ(encode(enc, AstVelocityPolar{2, 1, 0, 0.0, 1, 0, 0.0}), Octets{});
    EXPECT_EQ(encode(enc, AstVelocityPolar{1, 1, 0, 0.0, 1, 0, 0.0}, 3), Octets{});
}

TEST(MotionHeight, DecodeAndTexts) {
    ast_html_set_flavor(0);
    EXPECT_EQ(decode(ast_dataitem_height_decode, Octets{0x7F, 0xFF}).value, 204793.75);
    EXPECT_EQ(text(ast_dataitem_height_get_summary, span(Octets{0xFF, 0xFF})), "H:-6.25 LSB:FT");
    EXPECT_EQ(text(ast_dataitem_height_get_detail_html, span(Octets{0x80, 0x00})),
              table({{"Bit", "Item", "Value"},
                     {"Bit[0-15]", "HEIGHT LSB=6.25FT", "-32768"},
                     {"Bit[0-15]", "HEIGHT LSB=FT", "-204800.00"},
                     {"Bit[0-15]", "HEIGHT LSB=M", "-62423.04"}}));
}

TEST(MotionVerticalRate, DecodeBothLayouts) {
    ast_html_set_flavor(0);
    const Octets o = {0x80, 0x01};
    const AstVerticalRate re = decode(ast_dataitem_vertical_rate_decode, o);
    EXPECT_TRUE(re.valid == 1 && re.re == 1 && re.raw == 1 && re.value == 6.25);
    const AstVerticalRate no_re = decode(ast_dataitem_vertical_rate_no_re_decode, o);
    EXPECT_TRUE(no_re.valid == 1 && no_re.re == 0 && no_re.value == -32767 * 6.25);
    EXPECT_EQ(text(ast_dataitem_vertical_rate_get_summary, span(o)), "VR:6.25FT/M");
    EXPECT_EQ(text(ast_dataitem_vertical_rate_no_re_get_summary, span(o)), "VR:-204793.75FT/M");
    const AstVerticalRate minus_one = decode(ast_dataitem_vertical_rate_decode, Octets{0x7F, 0xFF});
    EXPECT_TRUE(minus_one.re == 0 && minus_one.raw == -1);

    // 0xC000 reads as -16384 in both layouts.
    const Octets c0 = {0xC0, 0x00};
    const std::string html = text(ast_dataitem_vertical_rate_get_detail_html, span(c0));
    expect_in(html, {"<td>Bit[0-15]</td><td>VERTICAL_RATE LSB=6.25FT/M</td><td>-16384</td>", "FT/M</td><td>-102400.00<",
                     "<td>VERTICAL_RATE LSB=METER/M</td><td>-31211.52</td></tr></table>"});
    EXPECT_EQ(text(ast_dataitem_vertical_rate_no_re_get_detail_html, span(c0)), html);
}

TEST(MotionVerticalRate, Encode) {
    const auto re = ast_dataitem_vertical_rate_encode;
    const auto no_re = ast_dataitem_vertical_rate_no_re_encode;
    using Vr = AstVerticalRate;
    EXPECT_EQ(encode(re, Vr{1, 1, 0, 0, -102400.0}), (Octets{0xC0, 0x00}));
    EXPECT_EQ(encode(re, Vr{1, 0, 0, 0, 102393.75}), (Octets{0x3F, 0xFF}));
    EXPECT_EQ(encode(re, Vr{7, 1, 0, 0, 102393.75}), (Octets{0xBF, 0xFF}));  // any valid flag
    EXPECT_EQ(encode(re, Vr{1, 2, 0, 0, 12.4}), (Octets{0x00, 0x01}));       // re must be 1
    EXPECT_EQ(encode(re, Vr{1, 0, 0, 0, -12.4}), (Octets{0x7F, 0xFF}));      // truncated to -1
    EXPECT_EQ(encode(re, Vr{1, 0, 5, 0, 0.0}), (Octets{0x00, 0x05}));
    EXPECT_EQ(encode(re, Vr{1, 0, 5, 0, NAN}), (Octets{0x00, 0x00}));  // NaN is not zero
    EXPECT_EQ(encode(re, Vr{0, 0, 5, 0, 0.0}), Octets{});
    EXPECT_EQ(encode(re, Vr{1, 0, 5, 0, 0.0}, 1), Octets{});
    EXPECT_EQ(encode(no_re, Vr{1, 1, 0, 0, -204800.0}), (Octets{0x80, 0x00}));
    EXPECT_EQ(encode(no_re, Vr{1, 1, 1, 0, 0.0}), (Octets{0x00, 0x01}));
    EXPECT_EQ(encode(no_re, Vr{1, 0, 0, 0, -6.25}), (Octets{0xFF, 0xFF}));
    EXPECT_EQ(encode(no_re, Vr{1, 0, 9, 0, NAN}), (Octets{0x00, 0x00}));
    EXPECT_EQ(encode(no_re, Vr{1, 0, 9, 0, 0.0}, 1), Octets{});

    // Range boundaries round-trip.
    for (double v : {-102400.0, 102393.75, -6.25})
        EXPECT_EQ(decode(ast_dataitem_vertical_rate_decode, encode(re, Vr{1, 0, 0, 0, v})).value, v);
    for (double v : {-204800.0, 204793.75, -6.25})
        EXPECT_EQ(decode(ast_dataitem_vertical_rate_no_re_decode, encode(no_re, Vr{1, 0, 0, 0, v})).value, v);
}

// Every text producer with the length of its item.
const std::pair<size_t, TextFn> kProducers[] = {
    {6, ast_dataitem_position_wgs84_low_get_summary},  {6, ast_dataitem_position_wgs84_low_get_detail_html},
    {8, ast_dataitem_position_wgs84_get_summary},      {8, ast_dataitem_position_wgs84_get_detail_html},
    {6, ast_dataitem_position_cartesian_get_summary},  {4, ast_dataitem_velocity_cartesian_get_summary},
    {4, ast_dataitem_velocity_polar_get_summary},      {4, ast_dataitem_velocity_polar_get_detail_html},
    {2, ast_dataitem_height_get_summary},              {2, ast_dataitem_height_get_detail_html},
    {2, ast_dataitem_vertical_rate_get_summary},       {2, ast_dataitem_vertical_rate_get_detail_html},
    {2, ast_dataitem_vertical_rate_no_re_get_summary}, {2, ast_dataitem_vertical_rate_no_re_get_detail_html},
};

// Init defaults of a two-coordinate record: all 0 but the LSBs.
template <typename T>
void expect_defaults(const T &r, double lsb1, double lsb2) {
    const auto [valid, raw1, l1, v1, raw2, l2, v2] = r;
    EXPECT_TRUE(valid == 0 && raw1 == 0 && raw2 == 0 && v1 == 0.0 && v2 == 0.0);
    EXPECT_TRUE(l1 == lsb1 && l2 == lsb2) << l1 << " " << l2;
}

TEST(MotionItems, BadSpansGiveDefaultsAndEmptyText) {
    const Octets o(9, 0x11);
    for (const auto &[length, fn] : kProducers) {  // text() also cuts each to small buffers
        EXPECT_NE(text(fn, AstDataItem{o.data(), length, 0, 1}), "");
        for (const AstDataItem &bad : {AstDataItem{o.data(), length - 1, 0, 1}, AstDataItem{o.data(), length + 1, 0, 1},
                                       AstDataItem{o.data(), length, 0, 0}, AstDataItem{nullptr, length, 0, 1}})
            EXPECT_EQ(text(fn, bad), "") << "length " << length;
        char c = 'x';
        fn(&c, 1, nullptr);
        EXPECT_EQ(c, '\0');
    }

    // Decoders write the init defaults over whatever was there.
    const Octets three(3, 0x11);
    expect_defaults(decode(ast_dataitem_position_wgs84_low_decode, three), kLsb23, kLsb23);
    expect_defaults(decode(ast_dataitem_position_wgs84_decode, three), kLsb25, kLsb25);
    expect_defaults(decode(ast_dataitem_position_cartesian_decode, three), 0.5, 0.5);
    expect_defaults(decode(ast_dataitem_velocity_cartesian_decode, three), 0.25, 0.25);
    expect_defaults(decode(ast_dataitem_velocity_polar_decode, three), 0.2197265625, 0.0054931640625);
    const AstHeight h = decode(ast_dataitem_height_decode, three);
    EXPECT_TRUE(h.valid == 0 && h.raw == 0 && h.value == 0.0 && h.lsb == 6.25);
    for (const auto fn : {ast_dataitem_vertical_rate_decode, ast_dataitem_vertical_rate_no_re_decode}) {
        const AstVerticalRate vr = decode(fn, three);
        EXPECT_TRUE(vr.valid == 0 && vr.re == 0 && vr.raw == 0 && vr.value == 0.0 && vr.lsb == 6.25);
    }

    // Null records and buffers are ignored; a failed encode writes nothing.
    ast_dataitem_height_decode(nullptr, nullptr);
    ast_dataitem_velocity_polar_encode(nullptr, nullptr, 0, nullptr);
    AstDataItem out{nullptr, 9, 9, 9};
    const AstVerticalRate one{1, 0, 1, 0, 0.0};
    ast_dataitem_vertical_rate_encode(&out, nullptr, 2, &one);
    EXPECT_TRUE(out.length == 0 && out.valid == 0);
    uint8_t buf[8] = {0xAA};
    ast_dataitem_position_wgs84_encode(&out, buf, sizeof buf, nullptr);
    EXPECT_TRUE(out.data == buf && out.length == 0 && out.valid == 0 && buf[0] == 0xAA);
}

}  // namespace
