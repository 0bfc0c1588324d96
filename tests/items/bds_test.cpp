// Mode S registers: spans, code texts, names, dispatch, the nine decoders
// from hand-packed MB octets, and the detail views.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "kovrel/bds.h"
#include "kovrel/html.h"
#include "support/log_capture.h"

namespace {

using kovrel_test::LogCapture;
using Mb = std::vector<uint8_t>;
using Fill = std::function<void(char *, size_t)>;

constexpr char kCanary = '\x5A';
constexpr size_t kGuard = 16;

AstDataItem span(const Mb &mb, uint32_t code) {
    AstDataItem reg;
    ast_bds_decode(&reg, mb.data(), mb.size(), code);
    return reg;
}

const AstDataItem *ptr(const AstDataItem &reg) { return &reg; }

// mb with octet i replaced by v.
Mb with(Mb mb, size_t i, unsigned v) {
    mb[i] = static_cast<uint8_t>(v);
    return mb;
}

// Runs fill on a buffer of `size` followed by canaries; fails on any write
// past the buffer or a missing terminator.
std::string run_bounded(size_t size, const Fill &fill) {
    std::vector<char> mem(size + kGuard, kCanary);
    fill(mem.data(), size);
    EXPECT_EQ(std::string(mem.begin() + size, mem.end()), std::string(kGuard, kCanary)) << "wrote past " << size;
    if (size == 0) return "";
    EXPECT_NE(std::memchr(mem.data(), '\0', size), nullptr) << "no terminator, size " << size;
    return std::string(mem.data(), strnlen(mem.data(), size));
}

// The full text, and its cut forms at sizes 0, 1 and one short of the text.
std::string full_and_cut(const Fill &fill) {
    const std::string full = run_bounded(4096, fill);
    EXPECT_EQ(run_bounded(0, fill), "");
    EXPECT_EQ(run_bounded(1, fill), "");
    EXPECT_EQ(run_bounded(full.size(), fill), full.substr(0, full.size() - 1));
    return full;
}

std::string view(AstBdsGetDetailHtmlFn fn, const AstDataItem &reg) {
    return run_bounded(4096, [&](char *b, size_t n) { fn(b, n, &reg); });
}

// Fails for every piece that is not part of s.
void expect_in(const std::string &s, std::initializer_list<const char *> pieces) {
    for (const char *p : pieces) EXPECT_NE(s.find(p), std::string::npos) << p << " not in " << s;
}

// 0,5: TC 11, surveillance status 2, single antenna, Q 0 with N 20, time
// flag, odd format, CPR latitude 0x1ABCD and longitude 0x10203.
const Mb k05{0x5D, 0x02, 0x4F, 0x57, 0x9B, 0x02, 0x03};
// 4,0: MCP 2000 x 16 ft; FMS status clear over all-ones value bits; baro
// 2132; modes VNAV and approach; target altitude source 2.
const Mb k40{0xBE, 0x83, 0xFF, 0xF0, 0xA8, 0x01, 0xA6};

TEST(BdsCommon, SpanCodeTextsAndNames) {
    const AstDataItem reg = span(k05, 0x05);
    EXPECT_TRUE(reg.data == k05.data() && reg.length == 7 && reg.id == 0x05 && reg.valid == 1);
    EXPECT_EQ(span(Mb(6, 0), 0x05).valid, 0);
    ast_bds_decode(nullptr, k05.data(), 7, 0x05);

    char buf[16];
    EXPECT_EQ(ast_bds_type_to_str_simple(buf, sizeof buf, 0x40), buf);
    EXPECT_STREQ(buf, "4,0");
    EXPECT_STREQ(ast_bds_type_to_str(buf, sizeof buf, 0x05), "BDS 0,5");
    EXPECT_STREQ(ast_bds_type_to_str(buf, sizeof buf, 0xE1), "BDS E,1");
    EXPECT_EQ(ast_bds_type_to_str_simple(nullptr, 8, 0x40), nullptr);
    EXPECT_EQ(ast_bds_type_to_str(buf, 0, 0x40), nullptr);
    EXPECT_EQ(full_and_cut([](char *b, size_t n) { ast_bds_type_to_str(b, n, 0x60); }), "BDS 6,0");
    EXPECT_EQ(full_and_cut([](char *b, size_t n) { ast_bds_type_to_str_simple(b, n, 0x17); }), "1,7");

    EXPECT_STREQ(ast_bds_get_name(0x11), "UNKNOWN NAME");
    EXPECT_STREQ(ast_bds_get_name(0xE1), "Reserved for Mode S BITE");
    EXPECT_STREQ(ast_bds_get_name(0x65), "Extended Squitter Aircraft Operational Status");
}

TEST(BdsCommon, DispatchAndUnsupportedCodes) {
    LogCapture log;
    EXPECT_EQ(ast_bds_get_func(0x40), &ast_bds_40_get_detail_html);
    EXPECT_EQ(ast_bds_get_func(0x09), &ast_bds_09_get_detail_html);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ast_bds_get_func(0x11), nullptr);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unsupported BDS 1,1"));

    log.clear();
    const AstDataItem unknown = span(k40, 0x17);
    EXPECT_EQ(full_and_cut([&](char *b, size_t n) { ast_bds_get_detail_html(b, n, &unknown); }), "");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unsupported BDS 1,7"));

    // An invalid span is not looked up at all, so its unknown code is not logged.
    log.clear();
    const AstDataItem short_span = span(Mb(k40.begin(), k40.end() - 1), 0x17);
    EXPECT_EQ(view(ast_bds_get_detail_html, short_span), "");
    EXPECT_EQ(view(ast_bds_get_detail_html_dummy, span(k40, 0x40)), "");
    EXPECT_EQ(log.size(), 0u);

    ast_html_set_flavor(0);
    const AstDataItem reg = span(k40, 0x40);
    const std::string full = full_and_cut([&](char *b, size_t n) { ast_bds_get_detail_html(b, n, &reg); });
    EXPECT_EQ(full, view(ast_bds_40_get_detail_html, reg));
    EXPECT_NE(full.find("<td>Approach Mode</td>"), std::string::npos);
}

TEST(BdsDecode, WrongSpansGiveZeroRecords) {
    Mb ok40 = k40;
    AstDataItem wrong_code = span(ok40, 0x50);
    AstDataItem long_span = span(ok40, 0x40);
    long_span.length = 8;
    AstDataItem invalid = span(ok40, 0x40);
    invalid.valid = 0;
    for (const AstDataItem *reg : {&wrong_code, &long_span, &invalid, static_cast<AstDataItem *>(nullptr)}) {
        const AstBds40 r = ast_bds_40_decode(reg);
        EXPECT_TRUE(r.valid == 0 && r.mcp_alt_status == 0 && r.mcp_alt == 0);
    }
    EXPECT_EQ(view(ast_bds_40_get_detail_html, wrong_code) + view(ast_bds_40_get_detail_html, long_span), "");
    const AstDataItem as05 = span(k05, 0x08);
    EXPECT_TRUE(ast_bds_05_decode(&as05).valid == 0 && ast_bds_05_decode(&as05).type_code == 0);
    EXPECT_EQ(ast_bds_60_decode(&as05).valid, 0);
}

TEST(BdsDecode, AirbornePosition05) {
    AstBds05 r = ast_bds_05_decode(ptr(span(k05, 0x05)));
    EXPECT_TRUE(r.valid == 1 && r.type_code == 11 && r.gnss_height == 0 && r.surveillance_status == 2);
    EXPECT_TRUE(r.single_antenna == 1 && r.time_flag == 1 && r.cpr_format == 1);
    EXPECT_EQ(r.altitude, 1000);  // Q 0: 20 x 100 - 1000
    EXPECT_TRUE(r.cpr_latitude == 0x1ABCD && r.cpr_longitude == 0x10203);

    EXPECT_EQ(ast_bds_05_decode(ptr(span(with(k05, 1, k05[1] | 1), 0x05))).altitude, -500);  // Q 1: 20 x 25 - 1000

    // Accepted type codes 9-18 and 20-22 (GNSS height); others keep only TC.
    for (uint32_t tc = 0; tc < 32; ++tc) {
        r = ast_bds_05_decode(ptr(span(with(k05, 0, tc << 3), 0x05)));
        const bool accepted = (tc >= 9 && tc <= 18) || (tc >= 20 && tc <= 22);
        EXPECT_TRUE(r.valid == accepted && r.type_code == tc && r.gnss_height == (tc >= 20 && accepted)) << tc;
        EXPECT_EQ(r.altitude, accepted ? 1000 : 0) << tc;
    }

    expect_in(view(ast_bds_05_get_detail_html, span(k05, 0x05)),
              {"<tr><th>Item</th><th>Value</th></tr><tr><td>Format Type Code</td><td>11</td></tr>",
               "<td>Surveillance Status</td><td>TEMPORARY_ALERT</td>", "<td>CPR Format</td><td>ODD</td>",
               "<td>CPR Encoded Longitude</td><td>66051</td>"});
}

TEST(BdsDecode, Identification08And20) {
    // TC 4 with all three category bits set: only the low two are read.
    const Mb m08{0x27, 0x2C, 0xC3, 0x71, 0xC3, 0x2C, 0xE0};
    const AstBds08 r = ast_bds_08_decode(ptr(span(m08, 0x08)));
    EXPECT_TRUE(r.valid == 1 && r.type_code == 4 && r.category == 3);
    EXPECT_STREQ(r.chars, "KLM1023 ");
    expect_in(view(ast_bds_08_get_detail_html, span(m08, 0x08)),
              {"<td>Emitter Category Set</td><td>SET_A</td>", "<td>Emitter Category</td><td>MEDIUM_AIRCRAFT</td>",
               "<td>CHAR_1</td><td>K</td>", "<td>CHAR_8</td><td> </td></tr></table><br/>"});
    expect_in(view(ast_bds_08_get_detail_html, span(with(m08, 0, 6 << 3), 0x08)),
              {"<td>Emitter Category Set</td><td>UNDEFINED</td>"});

    const Mb m20 = with(m08, 0, 0x20);
    EXPECT_STREQ(ast_bds_20_decode(ptr(span(m20, 0x20))).chars, "KLM1023 ");
    expect_in(view(ast_bds_20_get_detail_html, span(m20, 0x20)), {"<td>CHAR_4</td><td>1</td>"});
    const AstBds20 bad = ast_bds_20_decode(ptr(span(with(m08, 0, 0x21), 0x20)));
    EXPECT_TRUE(bad.valid == 0 && bad.chars[0] == '\0');
}

TEST(BdsDecode, AirborneVelocity09) {
    // Subtype 2: intent change, NACv 5, west, E-W raw 2, N-S raw 11, baro
    // vertical rate down raw 5, geometric height below baro raw 3.
    const Mb m{0x9A, 0xAC, 0x02, 0x81, 0x78, 0x14, 0x83};
    AstBds09 r = ast_bds_09_decode(ptr(span(m, 0x09)));
    EXPECT_TRUE(r.valid == 1 && r.type_code == 19 && r.subtype == 2 && r.nac == 5);
    EXPECT_TRUE(r.ew_speed == 4 && r.ns_speed == 40 && r.vertical_rate == 256 && r.height_diff == 50);
    // Flags, last bit first: intent change, west, velocity, N-S direction
    // (never kept), rate source, rate sign, rate present, height sign, height present.
    const int flags = r.intent_change | r.ew_direction << 1 | r.velocity_present << 2 | r.ns_direction << 3 |
                      r.vertical_rate_source << 4 | r.vertical_rate_sign << 5 | r.vertical_rate_present << 6 |
                      r.height_diff_sign << 7 | r.height_diff_present << 8;
    EXPECT_EQ(flags, 0x1F7);

    r = ast_bds_09_decode(ptr(span(with(m, 0, 0x99), 0x09)));  // subtype 1
    EXPECT_TRUE(r.ew_speed == 1 && r.ns_speed == 10);

    Mb no_ns = m;  // N-S raw 0: no velocity at all
    no_ns[3] = 0x80;
    no_ns[4] &= 0x1F;
    r = ast_bds_09_decode(ptr(span(no_ns, 0x09)));
    EXPECT_TRUE(r.valid == 1 && r.velocity_present == 0 && r.ew_speed == 0);

    // Airspeed subtype 3: no ground speed, vertical rate still read.
    r = ast_bds_09_decode(ptr(span(with(m, 0, 0x9B), 0x09)));
    EXPECT_TRUE(r.velocity_present == 0 && r.ew_direction == 0 && r.vertical_rate == 256);

    for (unsigned first : {0x98, 0x9D, 0x92, 0xA2})  // subtype 0, subtype 5, TC 18, TC 20
        EXPECT_EQ(ast_bds_09_decode(ptr(span(with(m, 0, first), 0x09))).valid, 0) << first;

    expect_in(view(ast_bds_09_get_detail_html, span(m, 0x09)),
              {"<td>Ground Speed E-W</td><td>4</td>", "<td>Vertical Rate Source</td><td>BARO</td>",
               "<td>Vertical Rate Sign</td><td>DOWN</td>",
               "<td>Geometric Height Difference Sign</td><td>BELOW_BARO</td>"});
}

TEST(BdsDecode, DataLinkCapability10) {
    const Mb m{0x10, 0x81, 0x07, 0x91, 0xA0, 0x00, 0x00};
    const AstBds10 r = ast_bds_10_decode(ptr(span(m, 0x10)));
    EXPECT_TRUE(r.valid == 1 && r.subnetwork_version == 3 && r.uelm_throughput == 1 && r.delm_throughput == 1);
    // Flags, last bit first: continuation, overlay, enhanced protocol,
    // specific services, identification, squitter, SIC, GICB.
    const int flags = r.continuation | r.overlay_command_capability << 1 | r.enhanced_protocol << 2 |
                      r.specific_services << 3 | r.aircraft_ident_capability << 4 | r.squitter_capability << 5 |
                      r.sic_capability << 6 | r.gicb_capability << 7;
    EXPECT_EQ(flags, 0x5F);

    expect_in(view(ast_bds_10_get_detail_html, span(m, 0x10)),
              {"<td>Mode-S Subnetwork Version Number</td><td>ICAO(ANNEX10 2002)</td>",
               "<td>Transponder Enhanced Protocol Indicator</td><td>LEVEL 5</td>",
               "<td>16 UELM SEGMENTS IN 1 SEC)</td>", "<td>4 DELM SEGMENTS IN 1 SEC)</td>"});

    // Version 0, the longest version text, and codes past every table.
    expect_in(view(ast_bds_10_get_detail_html, span(with(m, 2, 0x00), 0x10)), {"<td>NOT AVALIABLE</td>"});
    expect_in(view(ast_bds_10_get_detail_html, span(with(m, 2, 0x08), 0x10)),
              {"<td>ICAO(ANNEX10 2007, DOC9871 ED1) RTCA(DO-181D) EUROCAE(ED-73C)</td>"});
    const Mb edge = with(with(m, 2, 0x0A), 3, 0x7F);  // UELM 7, DELM 15
    expect_in(view(ast_bds_10_get_detail_html, span(edge, 0x10)),
              {"Version Number</td><td>UNASSIGNED</td>", "Average Throughput Capability</td><td>UNASSIGNED</td>",
               "Downlink ELM Throughput Capability</td><td>UNASSIGNED</td>"});
}

TEST(BdsDecode, ResolutionAdvisory30) {
    // ARA bit, RAC 01, RAT, threat type 1 with identity ABCDEF.
    const Mb m{0x30, 0x80, 0x00, 0x66, 0xAF, 0x37, 0xBC};
    AstBds30 r = ast_bds_30_decode(ptr(span(m, 0x30)));
    EXPECT_EQ(r.valid, 1);
    EXPECT_EQ(r.ara_present + 2 * r.rac_present + 4 * r.ra_terminated + 8 * r.multiple_threat, 7);
    EXPECT_EQ(r.threat_type, 1u);
    EXPECT_EQ(r.tid[0] << 16 | r.tid[1] << 8 | r.tid[2], 0xABCDEF);
    expect_in(view(ast_bds_30_get_detail_html, span(m, 0x30)),
              {"<td>Threat Type Indicator (TTI)</td><td>MODE-S</td>", "<td>Threat Mode-S Address</td><td>ABCDEF</td>",
               "<td>Resolution Advisory Terminated Indicator (RAT)</td><td>TRUE</td>"});

    // Only the last ARA bit (bit 22), MTE, threat type 2: identity not kept.
    const Mb m2{0x30, 0x00, 0x04, 0x1A, 0xAF, 0x37, 0xBC};
    r = ast_bds_30_decode(ptr(span(m2, 0x30)));
    EXPECT_TRUE(r.ara_present == 1 && r.rac_present == 0 && r.multiple_threat == 1 && r.threat_type == 2);
    EXPECT_EQ(r.tid[0] | r.tid[1] | r.tid[2], 0);
    expect_in(view(ast_bds_30_get_detail_html, span(m2, 0x30)), {"<td>NON MODE-S</td>"});
    const Mb m3{0x30, 0x00, 0x00, 0x0E, 0xAF, 0x37, 0xBC};  // threat type 3
    r = ast_bds_30_decode(ptr(span(m3, 0x30)));
    EXPECT_TRUE(r.ara_present == 0 && r.threat_type == 0);
    expect_in(view(ast_bds_30_get_detail_html, span(m3, 0x30)), {"<td>UNKNOWN</td>"});
}

TEST(BdsDecode, SelectedVerticalIntention40) {
    const AstBds40 r = ast_bds_40_decode(ptr(span(k40, 0x40)));
    EXPECT_TRUE(r.valid == 1 && r.mcp_alt == 32000 && r.fms_alt_status == 0 && r.fms_alt == 0);
    EXPECT_DOUBLE_EQ(r.baro_setting, 1013.2);
    EXPECT_EQ(r.vnav_mode + 2 * r.alt_hold_mode + 4 * r.approach_mode, 5);
    EXPECT_EQ(r.target_alt_source, 2u);

    ast_html_set_flavor(0);
    EXPECT_EQ(view(ast_bds_40_get_detail_html, span(k40, 0x40)),
              "<table class=\"detail_table\"><tr><th>Item</th><th>Status</th><th>Value</th></tr>"
              "<tr><td>MCP/FCU Selected Altitude</td><td>valid</td><td>32000 FT</td></tr>"
              "<tr class=\"even_row\"><td>FMS Selected Altitude</td><td>invalid</td><td>--</td></tr>"
              "<tr><td>Barometric Pressure Setting</td><td>valid</td><td>1013.2 MB</td></tr>"
              "<tr class=\"even_row\"><td>Vnav Mode</td><td>valid</td><td>1</td></tr>"
              "<tr><td>Alt Hold Mode</td><td>valid</td><td>0</td></tr>"
              "<tr class=\"even_row\"><td>Approach Mode</td><td>valid</td><td>1</td></tr>"
              "<tr><td>Target Altitude Source</td><td>valid</td><td>FCU_MCP_SELECTED</td></tr>"
              "</table><br/>");
}

TEST(BdsDecode, TrackTurn50AndHeadingSpeed60) {
    // Roll: sign set, magnitude 256; track: sign set, magnitude 256; ground
    // speed 240; track rate +16; true airspeed 250.
    const Mb m50{0xE0, 0x1A, 0x01, 0x3C, 0x20, 0x84, 0xFA};
    // All these values are exact binary fractions.
    const AstBds50 t = ast_bds_50_decode(ptr(span(m50, 0x50)));
    EXPECT_TRUE(t.valid == 1 && t.roll_angle == -45.0 && t.true_track == 315.0 && t.ground_speed == 480.0);
    EXPECT_TRUE(t.track_rate == 0.5 && t.true_airspeed == 500);
    expect_in(view(ast_bds_50_get_detail_html, span(m50, 0x50)),
              {"<td>Roll Angle</td><td>valid</td><td>-45.00 DEG</td>",
               "<td>Track Angle Rate</td><td>valid</td><td>0.50 DEG/SEC</td>",
               "<td>True Airspeed</td><td>valid</td><td>500 KNOTS</td>"});

    // Heading: sign set, magnitude 256; IAS 0; Mach 200; baro rate -10;
    // inertial status clear over set value bits.
    const Mb m60{0xD0, 0x08, 0x01, 0x32, 0x30, 0x53, 0xFF};
    const AstBds60 s = ast_bds_60_decode(ptr(span(m60, 0x60)));
    EXPECT_TRUE(s.valid == 1 && s.magnetic_heading == 225.0 && s.indicated_airspeed_status == 1);
    EXPECT_TRUE(s.indicated_airspeed == 0 && s.baro_alt_rate == -320.0 && s.inertial_vv_status == 0);
    EXPECT_DOUBLE_EQ(s.mach, 0.8);
    EXPECT_EQ(s.inertial_vv, 0.0);
    expect_in(view(ast_bds_60_get_detail_html, span(m60, 0x60)),
              {"<td>Indicated Airspeed</td><td>valid</td><td> KNOT</td>",
               "<td>Mach</td><td>valid</td><td>0.80 MACH</td>",
               "<td>Barometric Altitude Rate</td><td>valid</td><td>-320.00 FEET/MIN</td>",
               "<td>Intertial Vertical Velocity</td><td>invalid</td><td>--</td>"});
}

}  // namespace
