// Identification and time items: wire octets in, values and exact texts out;
// encoders at their range boundaries; text producers cut to any buffer.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "kovrel/core.h"
#include "kovrel/html.h"
#include "kovrel/items_ident.h"

namespace {

using Octets = std::vector<uint8_t>;
using Producer = void (*)(char *, size_t, const AstDataItem *);

AstDataItem span(const Octets &o, AstItemId id = 0, uint8_t valid = 1) { return {o.data(), o.size(), id, valid}; }

// Text of f in a buffer of `size` followed by canaries; fails when anything
// past the buffer changed or a non-empty buffer holds no terminator.
std::string text(Producer f, const AstDataItem *item, size_t size = 8192) {
    std::vector<char> mem(size + 16, '\x5A');
    f(mem.data(), size, item);
    EXPECT_EQ(std::string(mem.begin() + size, mem.end()), std::string(16, '\x5A')) << "wrote past " << size;
    if (size == 0) return "<untouched>";
    EXPECT_NE(std::memchr(mem.data(), '\0', size), nullptr) << "size " << size;
    return std::string(mem.data(), strnlen(mem.data(), size));
}

// The octets an encoder wrote into a buffer of `size`, or none; on failure
// the span must be {buffer, 0, 0, 0} and the buffer untouched.
template <typename T, typename Encode>
Octets encode(Encode fn, const T &in, size_t size = 8) {
    uint8_t buf[8];
    std::memset(buf, 0xEE, sizeof buf);
    AstDataItem out{nullptr, 99, 99, 99};
    fn(&out, buf, size, &in);
    EXPECT_EQ(out.data, buf);
    EXPECT_EQ(out.id, 0u);
    if (out.valid == 1) return Octets(buf, buf + out.length);
    EXPECT_EQ(out.valid + out.length, 0u);
    EXPECT_EQ(Octets(buf, buf + 8), Octets(8, 0xEE));
    return {};
}

// Fails for every piece that is not part of s.
void expect_in(const std::string &s, std::initializer_list<const char *> pieces) {
    for (const char *p : pieces) EXPECT_NE(s.find(p), std::string::npos) << p << " not in " << s;
}

}  // namespace

TEST(IdentItems, TextProducersRejectWrongSpansAndCutToAnySize) {
    ast_html_set_flavor(0);
    const Octets dsi{0x19, 0xC9}, sector{0x2B}, tod{0x54, 0xF9, 0xC0}, high{0x60, 0, 0, 0}, arp{0x02, 0x00};
    const std::pair<Producer, Octets> cases[] = {
        {ast_dataitem_data_source_identifier_get_summary, dsi},
        {ast_dataitem_data_source_identifier_get_detail_html, dsi},
        {ast_dataitem_service_id_get_summary, {0x07}},         {ast_dataitem_sector_number_get_summary, sector},
        {ast_dataitem_sector_number_get_detail_html, sector},  {ast_dataitem_time_of_day_get_summary, tod},
        {ast_dataitem_time_of_day_get_detail_html, tod},       {ast_dataitem_time_of_day_high_get_summary, high},
        {ast_dataitem_time_of_day_high_get_detail_html, high}, {ast_dataitem_track_number_get_summary, {0xF1, 0x23}},
        {ast_dataitem_antenna_rotation_period_get_summary, arp},
        {ast_dataitem_antenna_rotation_period_get_detail_html, arp}};
    for (const auto &[fn, ok] : cases) {
        SCOPED_TRACE(testing::Message() << "case " << (&fn - &cases[0].first) / 2);
        const AstDataItem good = span(ok);
        const std::string full = text(fn, &good);
        ASSERT_FALSE(full.empty());
        EXPECT_EQ(text(fn, &good, 0), "<untouched>");
        EXPECT_EQ(text(fn, &good, 1), "");
        EXPECT_EQ(text(fn, &good, full.size()), full.substr(0, full.size() - 1));
        EXPECT_EQ(text(fn, &good, full.size() + 1), full);

        Octets longer = ok;
        longer.push_back(0);
        const Octets shorter(ok.begin(), ok.end() - 1);
        for (const AstDataItem &bad : {span(longer), span(shorter), span(ok, 0, 0), span(ok, 0, 2)})
            EXPECT_EQ(text(fn, &bad), "");
        EXPECT_EQ(text(fn, nullptr), "");
        fn(nullptr, 64, &good);  // must not crash
    }
}

TEST(IdentItems, DecodersGiveDefaultsOnWrongSpans) {
    const Octets five(5, 0xFF);
    const AstDataItem wrong = span(five);
    AstServiceId svc{9, 9};
    AstSectorNumber sn{9, 9, 9, 9};
    AstTimeOfDay tod{9, 9, 9, 9, 9, 9, 9};
    AstTimeOfDayHigh high{9, 9, 9, 9, 9};
    AstTrackNumber tn{9, 9, 9};
    AstAntennaRotationPeriod arp{9, 9, 9, 9};
    ast_dataitem_service_id_decode(&svc, &wrong);
    ast_dataitem_sector_number_decode(&sn, &wrong);
    ast_dataitem_time_of_day_decode(&tod, &wrong);
    ast_dataitem_time_of_day_high_decode(&high, &wrong);
    ast_dataitem_track_number_decode(&tn, nullptr);
    ast_dataitem_antenna_rotation_period_decode(&arp, &wrong);
    const AstMessageType mt = ast_dataitem_message_type_decode(&wrong);
    const AstDataSourceIdentifier d = ast_dataitem_data_source_identifier_decode(&wrong);
    EXPECT_EQ(mt.valid + mt.value + d.valid + d.sac + d.sic + svc.valid + svc.value + tn.valid + tn.number, 0u);
    EXPECT_EQ(tn.twelve_bit, 0u);
    // All 0 but the LSBs.
    EXPECT_TRUE(sn.valid + sn.raw + sn.azimuth == 0.0 && sn.lsb == 1.40625);
    EXPECT_EQ(tod.valid + tod.raw + tod.hour + tod.minute + tod.second + tod.millisecond, 0u);
    EXPECT_EQ(tod.lsb, 0.0078125);
    EXPECT_TRUE(high.valid + high.raw + high.fsi + high.fraction == 0.0 && high.lsb == std::ldexp(1.0, -30));
    EXPECT_TRUE(arp.valid + arp.raw + arp.period == 0.0 && arp.lsb == 0.0078125);

    ast_dataitem_message_type_init(nullptr), ast_dataitem_data_source_identifier_init(nullptr);  // no crash
    ast_dataitem_service_id_init(nullptr), ast_dataitem_sector_number_init(nullptr);
    ast_dataitem_time_of_day_init(nullptr), ast_dataitem_time_of_day_high_init(nullptr);
    ast_dataitem_track_number_init(nullptr), ast_dataitem_antenna_rotation_period_init(nullptr);
    ast_dataitem_time_of_day_decode(nullptr, &wrong);
}

TEST(IdentItems, MessageTypeServiceIdAndDataSource) {
    const Octets one = {0xFE}, two = {0x19, 0xC9};
    const AstDataItem it1 = span(one), it2 = span(two);
    const AstMessageType mt = ast_dataitem_message_type_decode(&it1);
    AstServiceId svc;
    ast_dataitem_service_id_decode(&svc, &it1);
    EXPECT_TRUE(mt.valid * mt.value == 254 && svc.valid * svc.value == 254);
    EXPECT_EQ(text(ast_dataitem_service_id_get_summary, &it1), "SVC_ID:254");
    const AstDataSourceIdentifier d = ast_dataitem_data_source_identifier_decode(&it2);
    EXPECT_TRUE(d.valid == 1 && d.sac == 25 && d.sic == 201);
    EXPECT_EQ(text(ast_dataitem_data_source_identifier_get_summary, &it2), "SAC:025 SIC:201");

    EXPECT_EQ(encode(ast_dataitem_message_type_encode, AstMessageType{1, 255}), Octets{0xFF});
    EXPECT_EQ(encode(ast_dataitem_message_type_encode, AstMessageType{1, 256}), Octets{});
    EXPECT_EQ(encode(ast_dataitem_message_type_encode, AstMessageType{2, 1}), Octets{});
    EXPECT_EQ(encode(ast_dataitem_message_type_encode, AstMessageType{1, 1}, 0), Octets{});
    EXPECT_EQ(encode(ast_dataitem_service_id_encode, AstServiceId{1, 0}), Octets{0x00});
    EXPECT_EQ(encode(ast_dataitem_service_id_encode, AstServiceId{1, 256}), Octets{});
    const std::pair<AstDataSourceIdentifier, Octets> sources[] = {
        {{1, 255, 0}, {0xFF, 0x00}}, {{1, 0, 255}, {0x00, 0xFF}}, {{1, 256, 0}, {}}, {{1, 0, 256}, {}}};
    for (const auto &[in, out] : sources) EXPECT_EQ(encode(ast_dataitem_data_source_identifier_encode, in), out);
    EXPECT_EQ(encode(ast_dataitem_data_source_identifier_encode, AstDataSourceIdentifier{1, 1, 2}, 1), Octets{});

    AstDataItem out{nullptr, 9, 9, 9};
    ast_dataitem_data_source_identifier_encode(&out, nullptr, 8, &d);
    EXPECT_EQ(out.valid + out.length, 0u);
    ast_dataitem_message_type_encode(nullptr, nullptr, 0, nullptr);  // must not crash
}

namespace {
uint32_t g_asked_sac, g_asked_sic;

struct CallbackReset {
    ~CallbackReset() {
        ast_reg_callback_sac_get_info(nullptr);
        ast_reg_callback_sacsic_get_sensor(nullptr);
    }
};

// Entries 0 and 2 valid; entry 0's country name fills its field without a NUL.
void fake_sac(AstSacInfo *info, uint32_t sac) {
    g_asked_sac = sac;
    info->count = 3;
    info->entries[0] = {1, "Europe", {}, "FR"};
    std::memset(info->entries[0].country_name, 'N', sizeof info->entries[0].country_name);
    info->entries[1] = {0, "Hidden", "Hidden", "HD"};
    info->entries[2] = {1, "Asia", "Japan", "JP"};
}

// Claims more entries than the list holds, all of them valid.
void fake_sensor(AstSensorList *list, uint32_t sac, uint32_t sic) {
    g_asked_sac = sac;
    g_asked_sic = sic;
    list->count = 1000;
    for (AstSensorEntry &e : list->entries) e = {1, "France", "FR", "S", "PSR", "M", "X", "A<B"};
}
}  // namespace

TEST(IdentItems, DataSourceDetailWithAndWithoutCallbacks) {
    ast_html_set_flavor(0);
    CallbackReset reset;
    const Octets o = {0x19, 0xC9};
    const AstDataItem it = span(o);
    EXPECT_EQ(text(ast_dataitem_data_source_identifier_get_detail_html, &it),
              "<h4>System Area Code (SAC)</h4><table class=\"detail_table\"><tr><th>Octet</th><th>Name</th>"
              "<th>Hex</th><th>Dec</th><th>Region</th><th>Country</th></tr><tr><td>Octet[1]</td><td>SAC</td>"
              "<td>0x19</td><td>025</td><td>Unknown Region</td><td>Unknown Country</td></tr></table><br/>"
              "<h4>System Identification Code (SIC)</h4><table class=\"detail_table\"><tr><th>Octet</th>"
              "<th>Name</th><th>Hex</th><th>Dec</th><th>Country</th><th>System</th><th>Type</th>"
              "<th>Manufacturer</th><th>Model</th><th>Description</th></tr><tr><td>Octet[2]</td><td>SIC</td>"
              "<td>0xC9</td><td>201</td><td>Unknown</td><td>Unknown</td><td>Unknown</td><td>Unknown</td>"
              "<td>Unknown</td><td>Unknown System</td></tr></table><br/>");

    ast_reg_callback_sac_get_info(fake_sac);
    ast_reg_callback_sacsic_get_sensor(fake_sensor);
    const std::string html = text(ast_dataitem_data_source_identifier_get_detail_html, &it);
    EXPECT_TRUE(g_asked_sac == 25 && g_asked_sic == 201);
    const std::string sac_rows = "<tr><td>Octet[1]</td><td>SAC</td><td>0x19</td><td>025</td><td>Europe</td><td>" +
                                 std::string(64, 'N') +
                                 " [FR]</td></tr><tr class=\"even_row\"><td>Octet[1]</td><td>SAC</td><td>0x19</td>"
                                 "<td>025</td><td>Asia</td><td>Japan [JP]</td></tr></table><br/><h4>";
    expect_in(html, {sac_rows.c_str()});
    EXPECT_TRUE(html.find("Hidden") == std::string::npos && html.find("Unknown") == std::string::npos);
    const std::string sensor = "<td>Octet[2]</td><td>SIC</td><td>0xC9</td><td>201</td><td>France [FR]</td>"
                               "<td>S</td><td>PSR</td><td>M</td><td>X</td><td>A<B</td></tr>";
    size_t rows = 0;
    for (size_t p = html.find(sensor); p != std::string::npos; p = html.find(sensor, p + 1)) ++rows;
    EXPECT_EQ(rows, static_cast<size_t>(AST_SENSOR_LIST_MAX_ENTRIES));
}

TEST(IdentItems, SectorNumber) {
    ast_html_set_flavor(0);
    const Octets o = {0x2B}, top = {0xFF};
    const AstDataItem it = span(o), top_it = span(top);
    AstSectorNumber s;
    ast_dataitem_sector_number_decode(&s, &it);
    EXPECT_TRUE(s.valid * s.raw == 43 && s.azimuth == 60.46875);
    EXPECT_EQ(text(ast_dataitem_sector_number_get_summary, &it), "SECTOR:060DEG");
    EXPECT_EQ(text(ast_dataitem_sector_number_get_summary, &top_it), "SECTOR:359DEG");
    expect_in(text(ast_dataitem_sector_number_get_detail_html, &it),
              {"<tr><td>ANTENNA AZIMUTH LSB~=1.41DEG</td><td>43</td></tr>", "LSB=1DEG</td><td>60.4688</td>",
               "<td>SECTOR NUMBER LSB=1/32</td><td>05</td>", "LSB=1/16</td><td>02</td></tr></table>"});

    // The azimuth is encoded when inside one turn (half steps away from zero,
    // so 255.5 steps gives 256 and fails), raw otherwise; valid must be 1.
    const struct {
        double degrees;
        uint32_t raw, valid;
        Octets out;
    } encodes[] = {{359.5, 0, 1, {}},    {359.296875, 0, 1, {}}, {359.29, 0, 1, top}, {3.515625, 0, 1, {0x03}},
                   {0.0, 77, 1, {0x00}}, {400.0, 10, 1, {0x0A}}, {360.0, 255, 1, top}, {-1.0, 256, 1, {}},
                   {std::nan(""), 7, 1, {0x07}}, {1.0, 1, 0, {}}};
    for (const auto &c : encodes) {
        const AstSectorNumber in{c.valid, c.raw, 1.40625, c.degrees};
        EXPECT_EQ(encode(ast_dataitem_sector_number_encode, in), c.out) << c.degrees;
    }
}

TEST(IdentItems, TimeOfDay) {
    ast_html_set_flavor(0);
    const Octets last = {0xA8, 0xBF, 0xFF}, max = {0xFF, 0xFF, 0xFF}, noon = {0x54, 0xF9, 0xC0};
    const Octets small = {0x07, 0x45, 0x85};  // 1 h 2 min 3 s and 5/128 s: every part zero-padded
    const AstDataItem last_it = span(last), max_it = span(max), noon_it = span(noon), small_it = span(small);
    AstTimeOfDay t;
    ast_dataitem_time_of_day_decode(&t, &last_it);
    EXPECT_EQ(t.valid * t.raw, 11059199u);
    EXPECT_EQ(text(ast_dataitem_time_of_day_get_summary, &last_it), "TOD:23:59:59.992");
    EXPECT_EQ(text(ast_dataitem_time_of_day_get_summary, &max_it), "TOD:36:24:31.992");
    EXPECT_EQ(text(ast_dataitem_time_of_day_get_summary, &small_it), "TOD:01:02:03.039");
    EXPECT_EQ(text(ast_dataitem_time_of_day_get_detail_html, &noon_it),
              "<table class=\"detail_table\"><tr><th>Name</th><th>Value</th></tr>"
              "<tr><td>TIME LSB=1/128S</td><td>5568960</td></tr><tr class=\"even_row\"><td>TIME LSB=1S</td>"
              "<td>43507</td></tr><tr><td>HOUR</td><td>12</td></tr><tr class=\"even_row\"><td>MINUTE</td>"
              "<td> 5</td></tr><tr><td>SECOND</td><td> 7</td></tr><tr class=\"even_row\">"
              "<td>MILLISECOND</td><td>500</td></tr></table><br/>");

    auto enc = [](uint32_t raw, uint32_t h, uint32_t m, uint32_t s, uint32_t ms, size_t size = 8) {
        return encode(ast_dataitem_time_of_day_encode, AstTimeOfDay{1, raw, 0.0078125, h, m, s, ms}, size);
    };
    EXPECT_EQ(enc(5, 12, 0, 0, 0), (Octets{0x00, 0x00, 0x05}));
    EXPECT_EQ(enc(0, 23, 59, 59, 992), (Octets{0xA8, 0xBF, 0xFE}));  // 11059198.976 truncated
    EXPECT_EQ(enc(0, 12, 5, 7, 500), noon);
    EXPECT_EQ(enc(0x1ABCDEF, 0, 0, 0, 0), (Octets{0xAB, 0xCD, 0xEF}));
    EXPECT_EQ(enc(0xFFFFFF, 0, 0, 0, 0), max);
    EXPECT_EQ(enc(0, ~0u, ~0u, ~0u, ~0u).size(), 3u);
    EXPECT_EQ(enc(5, 0, 0, 0, 0, 2), Octets{});
    EXPECT_EQ(encode(ast_dataitem_time_of_day_encode, AstTimeOfDay{2, 5, 0, 0, 0, 0, 0}), Octets{});
}

TEST(IdentItems, TimeOfDayHighPrecision) {
    ast_html_set_flavor(0);
    const std::pair<Octets, const char *> cases[] = {{{0xC0, 0, 0, 0}, "FSI:0 TOMR:0.000000"},  // reserved FSI
                                                     {{0x80, 0, 0, 1}, "FSI:-1 TOMR:0.000000"},
                                                     {{0x60, 0, 0, 0}, "FSI:1 TOMR:0.500000"},
                                                     {{0x3F, 0xFF, 0xFF, 0xFF}, "FSI:0 TOMR:1.000000"}};
    for (const auto &[wire, summary] : cases) {
        const AstDataItem it = span(wire);
        EXPECT_EQ(text(ast_dataitem_time_of_day_high_get_summary, &it), summary);
    }
    const AstDataItem minus = span(cases[1].first), half = span(cases[2].first);
    AstTimeOfDayHigh t;
    ast_dataitem_time_of_day_high_decode(&t, &minus);
    EXPECT_TRUE(t.valid * t.raw == 1 && t.fsi == -1 && t.fraction == std::ldexp(1.0, -30));
    expect_in(text(ast_dataitem_time_of_day_high_get_detail_html, &half),
              {"<tr><td>FSI</td><td>1</td></tr>", "<td>TIME LSB=2^-30S</td><td>536870912</td>",
               "<td>TIME LSB=S</td><td>0.500000</td></tr></table>"});
}

TEST(IdentItems, TrackNumberTwelveOrSixteenBits) {
    const Octets o = {0xF1, 0x23};
    AstTrackNumber tn;
    const std::pair<AstItemId, bool> ids[] = {{1161, true},   {4030, true},   {4035, true},
                                              {15161, true},  {62040, true},  {48161, false},
                                              {21161, false}, {62041, false}, {0, false}};
    for (const auto &[id, wide] : ids) {
        const AstDataItem it = span(o, id);
        ast_dataitem_track_number_decode(&tn, &it);
        EXPECT_TRUE(tn.valid == 1 && tn.number == (wide ? 0xF123u : 0x123u) && tn.twelve_bit == !wide) << id;
        EXPECT_EQ(text(ast_dataitem_track_number_get_summary, &it), wide ? "TRACK_NUM:61731" : "TRACK_NUM:0291");
    }
    const std::pair<AstTrackNumber, Octets> encodes[] = {{{1, 4095, 1}, {0x0F, 0xFF}}, {{1, 4096, 1}, {}},
                                                         {{1, 65535, 0}, {0xFF, 0xFF}}, {{1, 65536, 0}, {}},
                                                         {{0, 1, 0}, {}}};
    for (const auto &[in, out] : encodes) EXPECT_EQ(encode(ast_dataitem_track_number_encode, in), out);
    EXPECT_EQ(encode(ast_dataitem_track_number_encode, AstTrackNumber{1, 1, 0}, 1), Octets{});
}

TEST(IdentItems, AntennaRotationPeriod) {
    ast_html_set_flavor(0);
    const Octets o = {0x02, 0x40};
    const AstDataItem it = span(o);
    AstAntennaRotationPeriod a;
    ast_dataitem_antenna_rotation_period_decode(&a, &it);
    EXPECT_TRUE(a.valid * a.raw == 576 && a.period == 4.5);
    EXPECT_EQ(text(ast_dataitem_antenna_rotation_period_get_summary, &it), "ROT:4.50");
    expect_in(text(ast_dataitem_antenna_rotation_period_get_detail_html, &it),
              {"<tr><td>Bit[0-15]</td><td>ROTATION_PERIOD LSB=1/128s</td><td>576</td></tr>",
               "<td>Bit[0-15]</td><td>ROTATION_PERIOD LSB=S</td><td>4.500</td></tr></table>"});

    // The period wins over raw unless it is 0 (NaN is not 0); any valid flag
    // but 0 is accepted.
    auto enc = [](uint32_t valid, double seconds, uint32_t raw) {
        return encode(ast_dataitem_antenna_rotation_period_encode,
                      AstAntennaRotationPeriod{valid, raw, 0.0078125, seconds});
    };
    EXPECT_EQ(enc(1, 4.5, 7), o);
    EXPECT_EQ(enc(1, 65535 / 128.0, 0), (Octets{0xFF, 0xFF}));
    EXPECT_EQ(enc(1, 0.0, 0x12345), (Octets{0x23, 0x45}));
    EXPECT_EQ(enc(2, 0.00390625, 0), (Octets{0x00, 0x01}));             // 0.5 count rounds away from zero
    EXPECT_EQ(enc(1, -0.00390625, 0), (Octets{0xFF, 0xFF}));            // -1 count, low 16 bits
    EXPECT_EQ(enc(1, 512.0, 0), (Octets{0x00, 0x00}));                  // 65536 counts
    EXPECT_EQ(enc(0xFFFFFFFFu, std::nan(""), 5), (Octets{0x00, 0x00}));  // NaN is not 0: raw ignored
    EXPECT_EQ(enc(0, 4.5, 7), Octets{});
}
