// Mode codes and Mode S items: wire octets in, structures and exact texts out.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "kovrel/items_mode.h"
#include "support/log_capture.h"

namespace {

using Bytes = std::vector<uint8_t>;
using Producer = void (*)(char *, size_t, const AstDataItem *);

AstDataItem span(const Bytes &b, uint32_t id = 48070) { return AstDataItem{b.data(), b.size(), id, 1}; }

// Text written at a buffer of `size` octets followed by canary octets; fails
// when a canary changed or the text is not terminated inside the buffer.
std::string text_at(Producer fn, const AstDataItem &item, size_t size) {
    std::vector<char> mem(size + 16, '\x5A');
    fn(mem.data(), size, &item);
    EXPECT_EQ(std::string(mem.begin() + size, mem.end()), std::string(16, '\x5A')) << "wrote past " << size;
    const size_t len = strnlen(mem.data(), size);
    EXPECT_TRUE(size == 0 || len < size) << "not terminated, buffer size " << size;
    return std::string(mem.data(), len < size ? len : 0);
}

// The full text, after checking the sizes 0, 1 and one short of it.
std::string text(Producer fn, const AstDataItem &item) {
    const std::string full = text_at(fn, item, 1 << 16);
    EXPECT_EQ(text_at(fn, item, 0), "");
    EXPECT_EQ(text_at(fn, item, 1), "");
    if (!full.empty()) {
        EXPECT_EQ(text_at(fn, item, full.size()), full.substr(0, full.size() - 1));
    }
    return full;
}

// Fails for every piece that is not part of s.
void expect_in(const std::string &s, std::initializer_list<const char *> pieces) {
    for (const char *p : pieces) EXPECT_NE(s.find(p), std::string::npos) << p << " not in " << s;
}

// A "Bit, Item, Value" detail table with alternating row classes.
std::string table(const std::vector<std::array<std::string, 3>> &rows) {
    std::string s = "<table class=\"detail_table\"><tr><th>Bit</th><th>Item</th><th>Value</th></tr>";
    for (size_t i = 0; i < rows.size(); ++i)
        s += (i % 2 ? "<tr class=\"even_row\"><td>" : "<tr><td>") + rows[i][0] + "</td><td>" + rows[i][1] +
             "</td><td>" + rows[i][2] + "</td></tr>";
    return s + "</table><br/>";
}

template <typename T, typename Dec>
T decoded(Dec dec, const Bytes &b, uint32_t id = 48070) {
    T out;
    const AstDataItem item = span(b, id);
    dec(&out, &item);
    return out;
}

// The octets written, or none when the encode failed (then nothing is written).
template <typename T, typename Enc>
Bytes encoded(Enc enc, const T &in, size_t size = 16) {
    Bytes buf(size, 0xEE);
    AstDataItem out{};
    enc(&out, buf.data(), buf.size(), &in);
    EXPECT_EQ(out.data, buf.data());
    if (out.valid == 1) return Bytes(buf.begin(), buf.begin() + static_cast<long>(out.length));
    EXPECT_EQ(out.length, 0u);
    EXPECT_EQ(buf, Bytes(size, 0xEE)) << "a failed encode wrote";
    return {};
}

}  // namespace

TEST(ModeItems, Mode3aCode) {
    const Bytes plain{0x0A, 0x3F}, flags{0xE0, 0x01}, wire{0xAA, 0x3F};  // wire: V, L, code 5077
    auto c = decoded<AstMode3aCode>(ast_dataitem_mode_3a_code_decode, plain);
    EXPECT_EQ(c.valid * c.code, 0xA3Fu);
    // The item decides the name and what bit 6 means.
    const std::tuple<Bytes, uint32_t, const char *> summaries[] = {
        {plain, 48070, "MODE_3/A:5077"}, {flags, 48070, "MODE_3/A:0001 NOT_VALIDATED GARBLED SMOOTHED"},
        {flags, 62060, "MODE_3/A:0001 NOT_VALIDATED GARBLED CHANGED"},
        {flags, 1050, "MODE_2:0001 NOT_VALIDATED GARBLED SMOOTHED"}, {flags, 62120, "MODE_2:0001"}};
    for (const auto &[b, id, want] : summaries)
        EXPECT_EQ(text(ast_dataitem_mode_3a_code_get_summary, span(b, id)), want) << id;
    EXPECT_EQ(text(ast_dataitem_mode_3a_code_get_detail_html, span(wire)),
              table({{"Bit[0]", "NOT_VALIDATED", "1"}, {"Bit[1]", "GARBLED", "0"}, {"Bit[2]", "SMOOTHED", "1"},
                     {"Bit[4-6]", "CODE-A", "5"}, {"Bit[7-9]", "CODE-B", "0"}, {"Bit[10-12]", "CODE-C", "7"},
                     {"Bit[13-15]", "CODE-D", "7"}}));
    expect_in(text(ast_dataitem_mode_3a_code_get_detail_html, span(wire, 62060)), {"<td>Bit[2]</td><td>CHANGED"});
    EXPECT_EQ(text(ast_dataitem_mode_3a_code_get_detail_html, span(wire, 1050)).find("Bit[2]"), std::string::npos);

    const Bytes longer{0x0A, 0x3F, 0x00};
    c = decoded<AstMode3aCode>(ast_dataitem_mode_3a_code_decode, longer);
    EXPECT_EQ(c.valid + c.code, 0u);
    EXPECT_EQ(text_at(ast_dataitem_mode_3a_code_get_summary, span(longer), 32), "");
    EXPECT_EQ(text_at(ast_dataitem_mode_3a_code_get_detail_html, AstDataItem{plain.data(), 2, 48070, 0}, 32), "");

    const std::pair<AstMode3aCode, Bytes> encodes[] = {{{1, 0, 1, 0, 1, 07777}, {0x6F, 0xFF}},
                                                       {{1, 1, 0, 1, 0, 0}, {0xA0, 0x00}},
                                                       {{1, 1, 0, 1, 0, 0x80000000u}, {}},  // negative when signed
                                                       {{0, 0, 0, 0, 0, 01234}, {}}};
    for (const auto &[in, out] : encodes) EXPECT_EQ(encoded(ast_dataitem_mode_3a_code_encode, in), out);
    EXPECT_TRUE(encoded(ast_dataitem_mode_3a_code_encode, AstMode3aCode{1, 0, 0, 0, 0, 01234}, 1).empty());
}

TEST(ModeItems, Mode3aConfidence) {
    EXPECT_EQ(text(ast_dataitem_mode_3a_confidence_get_summary, span({0x08, 0x01})), "QTY:aBCd");
    EXPECT_EQ(text(ast_dataitem_mode_3a_confidence_get_summary, span({0x01, 0x20})), "QTY:AbcD");
    EXPECT_EQ(text(ast_dataitem_mode_3a_confidence_get_summary, span({0xF0, 0x00})), "QTY:ABCD");  // spare bits
    expect_in(text(ast_dataitem_mode_3a_confidence_get_detail_html, span({0x08, 0x01})),
              {"<tr><td>Bit[4]</td><td>QA4</td><td>1</td></tr>", "<td>Bit[15]</td><td>QD1</td><td>1</td>",
               "<td>Bit[14]</td><td>QD2</td><td>0</td>"});

    using Q = AstMode3aConfidence;
    const Q qb1{1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(encoded(ast_dataitem_mode_3a_confidence_encode, qb1), (Bytes{0x00, 0x40}));
    EXPECT_EQ(encoded(ast_dataitem_mode_3a_confidence_encode, Q{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 7}),
              (Bytes{0x0F, 0xFF}));
    const auto back = decoded<Q>(ast_dataitem_mode_3a_confidence_decode, {0x0F, 0xFF});
    EXPECT_EQ(back.qa4 + back.qb2 + back.qd1, 3);
}

TEST(ModeItems, ModeCCode) {
    EXPECT_EQ(text(ast_dataitem_mode_c_code_get_summary, span({0x80, 0x64})), "MODE_C:0025 NOT_VALIDATED");
    EXPECT_EQ(text(ast_dataitem_mode_c_code_get_summary, span({0x3F, 0xFF})), "MODE_C:0000");
    EXPECT_EQ(text(ast_dataitem_mode_c_code_get_summary, span({0x7F, 0xF9})), "MODE_C:-001 GARBLED");
    EXPECT_EQ(text(ast_dataitem_mode_c_code_get_summary, span({0x1F, 0xFF})), "MODE_C:2047");
    EXPECT_EQ(text(ast_dataitem_mode_c_code_get_detail_html, span({0x00, 0x64})),
              table({{"Bit[0]", "NOT_VALIDATED", "0"}, {"Bit[1]", "GARBLED", "0"},
                     {"Bit[2-15]", "FLIGHT_LEVEL (LSB=1/4FL)", "100"}, {"Bit[2-15]", "FLIGHT_LEVEL (LSB=FL)", "25.00"},
                     {"Bit[2-15]", "FLIGHT_LEVEL (LSB=FT)", "2500.00"},
                     {"Bit[2-15]", "FLIGHT_LEVEL (LSB=M)", "762.00"}}));

    for (int32_t fl : {-8192, -1, 0, 8191}) {  // any non-zero valid flag is accepted
        const Bytes wire = encoded(ast_dataitem_mode_c_code_encode, AstModeCCode{2, 0, 1, fl});
        const auto back = decoded<AstModeCCode>(ast_dataitem_mode_c_code_decode, wire);
        EXPECT_TRUE(back.valid == 1 && back.flight_level == fl && back.validated == 0 && back.garbled == 1) << fl;
    }
    EXPECT_TRUE(encoded(ast_dataitem_mode_c_code_encode, AstModeCCode{0, 1, 0, 4}).empty());
    EXPECT_TRUE(encoded(ast_dataitem_mode_c_code_encode, AstModeCCode{1, 1, 0, 4}, 1).empty());
}

TEST(ModeItems, ModeCConfidenceReassemblesPulses) {
    // Pulses A1 B2 C2 C1 D4 give the code 1234; QA2 and QD4 are of low quality.
    const Bytes wire{0x0E, 0x09, 0x01, 0x01};
    auto c = decoded<AstModeCConfidence>(ast_dataitem_mode_c_confidence_decode, wire);
    EXPECT_EQ(c.code, 01234u);
    EXPECT_EQ(c.a1 + c.b2 + c.c2 + c.c1 + c.d4, 5);
    EXPECT_EQ(c.qa2 + c.qd4, 2);
    EXPECT_EQ(text(ast_dataitem_mode_c_confidence_get_summary, span(wire)), "CODE:1234 QTY:aBCd");
    EXPECT_EQ(text(ast_dataitem_mode_c_confidence_get_summary, span({0xC0, 0x00, 0xF0, 0x00})),
              "CODE:0000 QTY:ABCD NOT_VALIDATED GARBLED");

    // Each wire bit on its own: the pulse's octal weight, the quality letter.
    const uint32_t weight[12] = {010, 01000, 020, 02000, 040, 04000, 0100, 01, 0200, 02, 0400, 04};
    const char *quality[12] = {"ABcD", "aBCD", "ABcD", "aBCD", "ABcD", "aBCD",
                               "AbCD", "ABCd", "AbCD", "ABCd", "AbCD", "ABCd"};
    for (int i = 0; i < 12; ++i) {
        const uint16_t bit = static_cast<uint16_t>(0x800 >> i);
        const Bytes one{uint8_t(bit >> 8), uint8_t(bit), uint8_t(bit >> 8), uint8_t(bit)};
        EXPECT_EQ(decoded<AstModeCConfidence>(ast_dataitem_mode_c_confidence_decode, one).code, weight[i]) << i;
        EXPECT_EQ(text_at(ast_dataitem_mode_c_confidence_get_summary, span(one), 64).substr(10),
                  std::string("QTY:") + quality[i])
            << "bit " << i;
    }
    expect_in(text(ast_dataitem_mode_c_confidence_get_detail_html, span(wire)),
              {"<td>Bit[4-15]</td><td>MODE_C_CODE</td><td>1234</td>", "<td>Bit[4]</td><td>C1</td><td>1</td>",
               "<td>Bit[31]</td><td>QD4</td><td>1</td>"});
    EXPECT_EQ(text_at(ast_dataitem_mode_c_confidence_get_summary, span({0x0E, 0x09}), 32), "");
}

namespace {
const AstDataItem *g_country_item = nullptr;
void country_of(AstCountryInfo *country, uint32_t address, const AstDataItem *item) {
    g_country_item = item;
    if (address >> 18 != 0x0F) return;  // 3C0000-3FFFFF
    country->valid = 1;
    std::strcpy(country->name, "Germany");
    std::strcpy(country->code, "DE");
}
const char *flag_of(const char *code) { return std::strcmp(code, "DE") == 0 ? "flags/de.png" : nullptr; }
}  // namespace

TEST(ModeItems, TargetAddress) {
    const Bytes de{0x3C, 0x65, 0xAC}, other{0x48, 0x40, 0xD6};
    EXPECT_EQ(text(ast_dataitem_target_address_get_summary, span(de)), "ADDR:3C65AC");
    const std::string rows = table({{"Bit[0-23]", "TARGET_ADDRESS (HEX)", "3C65AC"},
                                    {"Bit[0-23]", "TARGET_ADDRESS (OCT)", "17062654"},
                                    {"Bit[0-23]", "TARGET_ADDRESS (DEC)", "3958188"}});
    EXPECT_EQ(text(ast_dataitem_target_address_get_detail_html, span(de)), rows);

    ast_reg_callback_icao_addr_get_country(country_of);
    const AstDataItem item = span(de);
    const std::string germany = rows + "<p>This ICAO 24-bit address 3C65AC is allocated to Germany (DE).</p>";
    EXPECT_EQ(text_at(ast_dataitem_target_address_get_detail_html, item, 1024), germany);
    EXPECT_EQ(g_country_item, &item);
    ast_reg_callback_get_national_flag(flag_of);
    EXPECT_EQ(text(ast_dataitem_target_address_get_detail_html, span(de)),
              germany + "<p><img src=\"flags/de.png\" alt=\"DE\"/></p>");
    EXPECT_EQ(text(ast_dataitem_target_address_get_detail_html, span(other)).substr(rows.size()),
              "<p>This ICAO 24-bit address 4840D6 is allocated to unknown country/region.</p>");
    ast_reg_callback_icao_addr_get_country(nullptr);
    ast_reg_callback_get_national_flag(nullptr);

    EXPECT_EQ(encoded(ast_dataitem_target_address_encode, AstTargetAddress{1, 1}), (Bytes{0x00, 0x00, 0x01}));
    EXPECT_EQ(encoded(ast_dataitem_target_address_encode, AstTargetAddress{1, 0xFFFFFF}), (Bytes{0xFF, 0xFF, 0xFF}));
    EXPECT_TRUE(encoded(ast_dataitem_target_address_encode, AstTargetAddress{1, 0}).empty());
    EXPECT_TRUE(encoded(ast_dataitem_target_address_encode, AstTargetAddress{1, 1}, 2).empty());
}

TEST(ModeItems, AircraftAndTargetIdentification) {
    const Bytes klm{0x2C, 0xC3, 0x71, 0xC3, 0x2C, 0xE0};
    EXPECT_EQ(text(ast_dataitem_aircraft_id_get_summary, span(klm)), "ACID:KLM1023 ");
    expect_in(text(ast_dataitem_aircraft_id_get_detail_html, span(klm)),
              {"<td>Bit[30-25]</td><td>CHAR_6</td><td>2</td>", "<td>Bit[42-47]</td><td>CHAR_8</td><td> </td>"});
    const std::pair<AstAircraftId, Bytes> ids[] = {{{1, "klm1023"}, klm},
                                                   {{1, "ABCDEFGH"}, {0x04, 0x20, 0xC4, 0x14, 0x61, 0xC8}},
                                                   {{1, ""}, {0x82, 0x08, 0x20, 0x82, 0x08, 0x20}}};
    for (const auto &[in, out] : ids) EXPECT_EQ(encoded(ast_dataitem_aircraft_id_encode, in), out);
    EXPECT_TRUE(encoded(ast_dataitem_aircraft_id_encode, ids[2].first, 5).empty());

    // Target identification: STI in bits 8-7, spare bits ignored.
    Bytes tid{0x3F, 0x2C, 0xC3, 0x71, 0xC3, 0x2C, 0xE0};
    for (const auto &[sti, name] : {std::pair<uint8_t, std::string>{0x3F, "TARGET_ID"}, {0x40, "REGISTRATION"},
                                    {0x80, "CALLSIGN"}}) {
        tid[0] = sti;
        EXPECT_EQ(text(ast_dataitem_target_id_get_summary, span(tid)), name + ":KLM1023 ");
    }
    expect_in(text(ast_dataitem_target_id_get_detail_html, span(tid)), {"<td>STI</td><td>2 (CALLSIGN)</td>"});
    const Bytes undefined{0xC0, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(text(ast_dataitem_target_id_get_summary, span(undefined)), "TARGET_ID:UNDIFINED");
    EXPECT_EQ(text_at(ast_dataitem_target_id_get_summary, span(klm), 32), "");

    AstTargetId t{1, 3, "KLM1023"};
    Bytes expected{0xC0};
    expected.insert(expected.end(), klm.begin(), klm.end());
    EXPECT_EQ(encoded(ast_dataitem_target_id_encode, t), expected);
    t.sti = 4;
    EXPECT_TRUE(encoded(ast_dataitem_target_id_encode, t).empty());
}

TEST(ModeItems, ModesMb) {
    Bytes two{2, 0x80, 0, 0, 0, 0, 0, 0, 0x40, 0x80, 0, 0, 0, 0, 0, 0, 0x50};
    auto mb = decoded<AstModesMb>(ast_dataitem_modes_mb_decode, two);
    ASSERT_EQ(mb.valid, 1u);
    EXPECT_EQ(mb.rep, 2u);
    EXPECT_EQ(mb.bds[1].data, two.data() + 9);
    EXPECT_EQ(mb.bds[1].id, 0x50u);
    EXPECT_EQ(text(ast_dataitem_modes_mb_get_summary, span(two)), "BDS:4,0 5,0");
    const std::string detail = text(ast_dataitem_modes_mb_get_detail_html, span(two));
    EXPECT_EQ(detail.rfind("<h4>BDS List</h4><table class=\"detail_table\"><tr><th>BDS</th><th>Name</th></tr>"
                           "<tr><td>BDS 4,0</td><td>Selected Vertical Intention</td></tr>"
                           "<tr class=\"even_row\"><td>BDS 5,0</td><td>Track and Turn Report</td></tr></table><br/>"
                           "<h4>BDS 4,0 - Selected Vertical Intention</h4><table class=\"bin_table\">",
                           0),
              0u);
    char reg_view[4096];
    ast_bds_get_detail_html(reg_view, sizeof reg_view, &mb.bds[1]);
    const size_t second = detail.find("</table><p></p>", detail.find("<h4>BDS 5,0 - Track and Turn Report</h4>"));
    ASSERT_NE(second, std::string::npos);
    EXPECT_EQ(detail.substr(second + 15), reg_view);

    kovrel_test::LogCapture log;
    Bytes rep9(73, 0);
    rep9[0] = 9;
    EXPECT_EQ(decoded<AstModesMb>(ast_dataitem_modes_mb_decode, rep9).valid, 0u);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Mode-S MB BDS count 9 exceeds max 8."));
    log.clear();
    two[0] = 1;  // length no longer matches REP
    EXPECT_EQ(text_at(ast_dataitem_modes_mb_get_summary, span(two), 32), "");
    EXPECT_EQ(text_at(ast_dataitem_modes_mb_get_detail_html, span({0}), 32), "");
    EXPECT_EQ(log.size(), 0u);
}

TEST(ModeItems, BinaryDataAndExplicitFields) {
    EXPECT_EQ(text(ast_dataitem_binary_data_get_summary, span({0xA5, 0x01})), "BIN:10100101 00000001");
    EXPECT_EQ(text_at(ast_dataitem_binary_data_get_summary, span({0xFF}), 4), "BIN");
    EXPECT_EQ(text_at(ast_dataitem_binary_data_get_summary, span({0xFF}), 5), "BIN:");
    EXPECT_EQ(text_at(ast_dataitem_binary_data_get_summary, span({}), 16), "");

    const Bytes field{3, 0xAA, 0xBB}, bare{1};
    auto f = decoded<AstExplicitField>(ast_dataitem_reserved_expansion_field_decode, field, 48998);
    EXPECT_TRUE(f.valid == 1 && f.data == field.data() + 1 && f.length == 2);
    f = decoded<AstExplicitField>(ast_dataitem_special_purpose_field_decode, bare, 1999);
    EXPECT_TRUE(f.valid == 1 && f.data == nullptr && f.length == 0);
    EXPECT_EQ(decoded<AstExplicitField>(ast_dataitem_random_field_sequencing_decode, field, 1999).valid, 0u);
    EXPECT_EQ(text(ast_dataitem_reserved_expansion_field_get_summary, span(field, 62998)), "RESERVED_EXPANSION");
    EXPECT_EQ(text(ast_dataitem_special_purpose_field_get_summary, span(field, 48999)), "SPECIAL_PURPOSE");
    EXPECT_EQ(text(ast_dataitem_random_field_sequencing_get_summary, span(field, 2997)), "RANDOM_FIELD_SEQUENCING");
    EXPECT_EQ(text_at(ast_dataitem_special_purpose_field_get_summary, span(field, 48998), 32), "");
    EXPECT_EQ(text_at(ast_dataitem_reserved_expansion_field_get_summary, span({}, 48998), 32), "");
}

TEST(ModeItems, NullArgumentsAreHarmless) {
    char buf[8] = "x";
    for (Producer fn : {ast_dataitem_mode_3a_code_get_summary, ast_dataitem_mode_c_confidence_get_detail_html,
                        ast_dataitem_target_address_get_detail_html, ast_dataitem_modes_mb_get_summary,
                        ast_dataitem_binary_data_get_summary, ast_dataitem_random_field_sequencing_get_summary}) {
        fn(nullptr, 8, nullptr);
        fn(buf, sizeof buf, nullptr);
        EXPECT_STREQ(buf, "");
    }
    ast_dataitem_mode_3a_code_decode(nullptr, nullptr);
    ast_dataitem_modes_mb_decode(nullptr, nullptr);
    AstDataItem out{nullptr, 5, 5, 1};
    ast_dataitem_target_id_encode(&out, nullptr, 16, nullptr);
    EXPECT_TRUE(out.valid == 0 && out.length == 0);
    ast_dataitem_mode_c_code_encode(nullptr, reinterpret_cast<uint8_t *>(buf), sizeof buf, nullptr);
}
