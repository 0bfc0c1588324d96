// CAT002's own structures from their wire octets: the ASR-10SS station
// status fields and summary, the station configuration octets, and the
// record level (members, accessors, assembling back to the same octets).
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/cat002.h"
#include "kovrel/core.h"
#include "kovrel/datarecord.h"
#include "kovrel/fields.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/record_walk.h"

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

AstDataItem span(const Octets &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

std::string json(const AstDataItem &item) {
    std::vector<char> buf(8192, '#');
    const size_t n = ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    const std::string text(buf.data());
    EXPECT_EQ(n, text.size()) << item.id;
    return text;
}

struct StatusCase {
    Octets wire;
    const char *summary;
    // A few fields by name, read from the field JSON, and the decoded length.
    std::vector<const char *> fields;
    uint32_t length;
};

Octets sixteen() {
    Octets o(16, 0x55);
    o.back() = 0x54;
    return o;
}

// Each octet ends with its FX bit.
const StatusCase kStatus[] = {
    {{0x40}, "PSR_A", {R"("psr_a_state":1,"psr_a_tx":0,"psr_a_rx":0,"psr_b_state":0)"}, 1},
    {{0x41, 0x40}, "PSR_A PSR_B", {R"("psr_b_state":1)"}, 2},
    // States 2 and 3 are not "on line"; the 5-bit mode of octet 3; the
    // seven alarm flags of octet 5.
    {{0x81, 0xC1, 0xF9, 0x01, 0xAB, 0x41, 0x40},
     "MSSR_A MSSR_B",
     {R"("psr_a_state":2)", R"("psr_b_state":3)", R"("psr_mode":31)",
      R"("alm_azimuth":1,"alm_north":0,"alm_drive":1,"alm_waveguide":0,"alm_rf_power":1,"alm_cooling":0,)"
      R"("alm_supply":1,"mssr_a_state":1)"},
     7},
    {{0x81, 0xC1, 0x01, 0x01, 0x01, 0x01, 0x00}, "UNKNOWN", {R"("mssr_a_state":0)"}, 7},
    {sixteen(),
     "PSR_A PSR_B MSSR_A MSSR_B",
     {R"("psr_mode":10)", R"("alm_azimuth":0,"alm_north":1,"alm_drive":0,"alm_waveguide":1)",
      R"("ups":1,"mains_fail":0,"generator_on":1,"environment":1)",
      R"("cms":1,"local_control":0,"maintenance":1,"test_target":0,"blanking":1,"fault_reset":0)",
      R"("time_source":1,"time_sync_lost":0,"clock":2)", R"("rotation_stopped":0,"line_a":2,"line_b":2,"line_c":2)",
      R"("aux_4":1,"aux_5":1,"aux_6":1})"},
     16},
};

}  // namespace

TEST(Cat002Items, StationStatusOfBothVariants) {
    for (const auto &c : kStatus) {
        SCOPED_TRACE(::testing::PrintToString(c.wire));
        for (AstItemId id : {2901u, 2902u}) {
            AstDataItem item;
            ast_dataitem_scan(&item, c.wire.data(), c.wire.size(), id);
            ASSERT_EQ(item.length, c.wire.size());
            AstItem002_901 d;
            std::memset(&d, 0x77, sizeof d);
            if (id == 2901)
                ast_dataitem_002_901_decode(&d, &item);
            else
                ast_dataitem_002_902_decode(&d, &item);
            EXPECT_EQ(d.valid, 1u);
            EXPECT_EQ(d.length, c.length);
            char text[64];
            ast_dataitem_get_summary(text, sizeof text, &item);
            EXPECT_STREQ(text, c.summary);
            const std::string fields = json(item);
            for (const char *f : c.fields) EXPECT_NE(fields.find(f), std::string::npos) << f << "\n" << fields;
        }
    }
    // Octets the item does not carry leave their fields at 0.
    const Octets one = {0xFE};
    AstItem002_901 d;
    const AstDataItem item = span(one, 2901);
    ast_dataitem_002_901_decode(&d, &item);
    EXPECT_EQ(d.psr_a_state, 3u);
    EXPECT_EQ(d.psr_a_tx, 3u);
    EXPECT_EQ(d.psr_a_rx, 3u);
    EXPECT_EQ(d.psr_b_state, 0u);
    EXPECT_EQ(d.aux_6, 0u);

    // Empty, longer than sixteen, of the other variant or not valid: nothing.
    const Octets seventeen(17, 0x41);
    const Octets none;
    for (const AstDataItem &bad : {span(seventeen, 2901), span(none, 2901), span(one, 2902), span(one, 2050),
                                   AstDataItem{one.data(), 1, 2901, 0}}) {
        ast_dataitem_002_901_decode(&d, &bad);
        EXPECT_EQ(d.valid, 0u);
        EXPECT_EQ(d.psr_a_state, 0u);
        char text[16] = "x";
        ast_dataitem_002_901_get_summary(text, sizeof text, &bad);
        EXPECT_STREQ(text, "");
    }
}

TEST(Cat002Items, StationStatusDetailViews) {
    const Octets wire = {0x41, 0x80};
    std::vector<char> html(8192);
    const AstDataItem mk1 = span(wire, 2901);
    ast_dataitem_get_detail_html(html.data(), html.size(), &mk1);
    const std::string one(html.data());
    const AstDataItem mk2 = span(wire, 2902);
    ast_dataitem_get_detail_html(html.data(), html.size(), &mk2);
    const std::string two(html.data());
    EXPECT_NE(one.find("ASR-10SS"), std::string::npos);
    EXPECT_EQ(one.find("Mk2"), std::string::npos);
    EXPECT_NE(two.find("ASR-10SS Mk2"), std::string::npos);
    // Rows of the octets present only.
    EXPECT_NE(one.find("PSR_B_RX"), std::string::npos);
    EXPECT_EQ(one.find("PSR_MODE"), std::string::npos);
    EXPECT_NE(one.find("Bit[8-7]"), std::string::npos);
    // Cut one octet short, still terminated.
    std::vector<char> small(one.size(), '#');
    ast_dataitem_002_901_get_detail_html(small.data(), small.size(), &mk1);
    EXPECT_EQ(std::strlen(small.data()), one.size() - 1);
}

TEST(Cat002Items, StationConfigurationOctets) {
    struct Case {
        Octets wire;
        uint32_t valid, length;
        const char *fields;
    };
    const Case cases[] = {
        {{0x80}, 1, 1, R"({"octets":[128]})"},
        {{0x81, 0x03, 0x02}, 1, 3, R"({"octets":[129,3,2]})"},
        {{0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0xFE}, 1, 8, R"({"octets":[1,1,1,1,1,1,1,254]})"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(::testing::PrintToString(c.wire));
        const AstDataItem item = span(c.wire, 2050);
        AstItem002_050 d;
        ast_dataitem_002_050_decode(&d, &item);
        EXPECT_EQ(d.valid, c.valid);
        EXPECT_EQ(d.length, c.length);
        EXPECT_EQ(Octets(d.octets, d.octets + d.length), c.wire);
        EXPECT_EQ(json(item), c.fields);
    }
    const Octets nine(9, 0x01);
    const Octets one = {0x80};
    const Octets none;
    for (const AstDataItem &bad : {span(nine, 2050), span(none, 2050), span(one, 2901)}) {
        AstItem002_050 d;
        ast_dataitem_002_050_decode(&d, &bad);
        EXPECT_EQ(d.valid, 0u);
        EXPECT_EQ(d.length, 0u);
    }
}

TEST(Cat002Record, MessageTypesAndAccessors) {
    struct Case {
        uint8_t type;
        const char *summary;
        uint32_t msg_valid;
    };
    const Case cases[] = {
        {1, "MSG_TYPE:NORTH_MARKER", 1},      {2, "MSG_TYPE:SECTOR_CROSSING", 1},
        {3, "MSG_TYPE:SOUTH_MARKER", 0},      {4, "MSG_TYPE:UNDEFINED", 0},
        {7, "MSG_TYPE:UNDEFINED", 0},         {8, "MSG_TYPE:BLIND_ZONE_START", 0},
        {9, "MSG_TYPE:BLIND_ZONE_STOP", 0},   {128, "MSG_TYPE:STATUS", 0},
        {0, "MSG_TYPE:UNDEFINED", 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(int(c.type));
        // 010, 000, 030.
        const Octets wire = {0xD0, 0x08, 0x11, c.type, 0x6A, 0x2B, 0x40};
        AstDataRecord r;
        ast_datarecord_decode(&r, wire.data(), wire.size(), 2, &AST_UAP_STANDARD);
        ASSERT_EQ(r.valid, 1);
        char text[32];
        ast_dataitem_get_summary(text, sizeof text, &r.items[1]);
        EXPECT_STREQ(text, c.summary);
        AstRecordMsgType m;
        ast_datarecord_002_get_msgtype(&m, &r);
        EXPECT_EQ(m.valid, c.msg_valid);
        EXPECT_EQ(m.value, c.msg_valid ? c.type : 0u);
        AstDataSourceIdentifier id;
        ast_datarecord_002_get_sacsic(&id, &r);
        EXPECT_EQ(id.valid, 1u);
        EXPECT_EQ(id.sac, 8u);
        EXPECT_EQ(id.sic, 17u);
        AstTimeOfDay tod;
        ast_datarecord_002_get_timeofday(&tod, &r);
        EXPECT_EQ(tod.valid, 1u);
        EXPECT_EQ(tod.raw, 0x6A2B40u);
    }
    // A record without those items answers nothing.
    const Octets sector = {0x20, 0x40};
    AstDataRecord r;
    ast_datarecord_decode(&r, sector.data(), sector.size(), 2, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    AstRecordMsgType m;
    ast_datarecord_002_get_msgtype(&m, &r);
    EXPECT_EQ(m.valid, 0u);
    AstDataSourceIdentifier id;
    ast_datarecord_002_get_sacsic(&id, &r);
    EXPECT_EQ(id.valid, 0u);
}

TEST(Cat002Record, DisassembleAndAssembleBack) {
    const Octets records[] = {
        {0xF8, 0x19, 0x0D, 0x01, 0x20, 0x6A, 0x2B, 0x40, 0x02, 0x00},  // 010, 000, 020, 030, 041
        {0x40, 0x03},                                                  // South marker alone
        {0x90, 0xFF, 0xFF, 0xA8, 0xBF, 0xFF},                          // 010 and 030 at their top
    };
    for (const Octets &wire : records) {
        SCOPED_TRACE(::testing::PrintToString(wire));
        AstDataRecord r;
        ast_datarecord_decode(&r, wire.data(), wire.size(), 2, &AST_UAP_STANDARD);
        ASSERT_EQ(r.valid, 1);
        AstRecord002 d;
        std::memset(&d, 0x5A, sizeof d);
        ast_datarecord_002_disassemble(&d, &r);
        ASSERT_EQ(d.valid, 1u);
        std::vector<uint8_t> buffer(wire.size() + 2, 0xEE);
        AstDataRecord out;
        ast_datarecord_002_assemble(&out, buffer.data(), wire.size(), &d, &AST_UAP_STANDARD);
        ASSERT_EQ(out.valid, 1);
        EXPECT_EQ(Octets(buffer.begin(), buffer.begin() + out.length), wire);
        ast_datarecord_002_assemble(&out, buffer.data(), wire.size() - 1, &d, &AST_UAP_STANDARD);
        EXPECT_EQ(out.valid, 0);
        EXPECT_EQ(buffer[wire.size() - 1 + 1], 0xEE);
    }

    // ASR-10SS: 010, 000 and the station status, which has no member.
    const Octets asr = {0xC4, 0x08, 0x11, 0x80, 0x41, 0x40};
    AstDataRecord r;
    ast_datarecord_decode(&r, asr.data(), asr.size(), 2, &AST_UAP_ASR10SS);
    ASSERT_EQ(r.valid, 1);
    LogCapture log;
    AstRecord002 d;
    ast_datarecord_002_disassemble(&d, &r);
    EXPECT_EQ(d.valid, 1u);
    EXPECT_EQ(d.i000.value, 128u);
    EXPECT_EQ(d.i020.valid, 0u);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Failed to disassemble dataitem : I002/050."));
    EXPECT_EQ(log.size(), 1u);
    char text[32];
    ast_dataitem_get_summary(text, sizeof text, &r.items[2]);
    EXPECT_STREQ(text, "PSR_A PSR_B");
    // The assembled record keeps what has a member, in the profile it is given.
    std::vector<uint8_t> buffer(16, 0x00);
    AstDataRecord out;
    ast_datarecord_002_assemble(&out, buffer.data(), buffer.size(), &d, &AST_UAP_ASR10SS);
    ASSERT_EQ(out.valid, 1);
    EXPECT_EQ(Octets(buffer.begin(), buffer.begin() + out.length), (Octets{0xC0, 0x08, 0x11, 0x80}));

    // Another category's record disassembles to nothing.
    r.category = 34;
    ast_datarecord_002_disassemble(&d, &r);
    EXPECT_EQ(d.valid, 0u);
    EXPECT_EQ(d.i010.valid, 0u);
}

TEST(Cat002Record, SpareFrnGivesNoItem) {
    // FRN 12 has no item, and the look-up says nothing about it.
    LogCapture log;
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 2, 12), 0u);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 2, 15), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP CAT002: Undefined FRN 15"));
    // A record announcing it cannot be read past it; what came before stays.
    const Octets wire = {0x81, 0x08, 0x19, 0x0D};
    AstDataRecord r;
    ast_datarecord_decode(&r, wire.data(), wire.size(), 2, &AST_UAP_STANDARD);
    EXPECT_EQ(r.valid, 0);
    ASSERT_EQ(r.item_count, 1u);
    EXPECT_EQ(r.items[0].id, 2010u);
}

TEST(Cat002Items, StationStatusFieldsKeepTheirWidth) {
    AstField two{};
    two.kind = AST_FIELD_UNSIGNED;
    two.u = 2;
    AstField four = two;
    four.u = 4;
    AstField big = two;
    big.u = 32;
    alignas(16) uint8_t storage[4096];
    ASSERT_EQ(ast_dataitem_fields_init(storage, sizeof storage, 2902), 1);
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 2902, "mssr_b_state", &two), AST_FIELD_SET_OK);
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 2902, "mssr_b_state", &four),
              AST_FIELD_SET_OUT_OF_RANGE);
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 2902, "alm_north", &two), AST_FIELD_SET_OUT_OF_RANGE);
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 2902, "psr_mode", &four), AST_FIELD_SET_OK);
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 2902, "psr_mode", &big), AST_FIELD_SET_OUT_OF_RANGE);
    EXPECT_EQ(reinterpret_cast<const AstItem002_902 *>(storage)->psr_mode, 4u);
    EXPECT_EQ(reinterpret_cast<const AstItem002_902 *>(storage)->mssr_b_state, 2u);
}
