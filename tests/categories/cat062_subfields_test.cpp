// CAT062 compound items subfield by subfield: the summary of every subfield
// of I062/110, 290, 295, 340, 380, 390 and 500 from its wire octets, the
// spans that give no text, the detail views that reach the lookups and the
// Mode S views, and the items' decoded structures.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/cat062.h"
#include "kovrel/core.h"
#include "kovrel/fields.h"
#include "support/record_walk.h"

using kovrel_test::Octets;

namespace {

AstSubfield span_of(uint32_t id, const Octets &o) { return AstSubfield{1, o.data(), o.size(), id, 1}; }

std::string subfield_summary(uint32_t id, const Octets &o) {
    const AstSubfield s = span_of(id, o);
    char text[128];
    std::memset(text, '#', sizeof text);
    ast_subfield_get_summary(text, sizeof text, &s, id);
    return text;
}

std::string subfield_detail(uint32_t id, const Octets &o) {
    const AstSubfield s = span_of(id, o);
    std::vector<char> html(65536);
    ast_subfield_get_detail_html(html.data(), html.size(), &s, id);
    return html.data();
}

Octets text_octets(const char *t) { return Octets(t, t + std::strlen(t)); }

Octets with(Octets head, const Octets &tail) {
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

struct Case {
    uint32_t id;
    Octets wire;
    const char *text;
};

// One trajectory change point: TCP 3 (compliant, available), 35000 ft,
// 45N 45W, fly-over waypoint, right turn, turn radius and time given.
const Octets kTcp = {0x03, 0x0D, 0xAC, 0x20, 0x00, 0x00, 0xE0, 0x00, 0x00, 0x26, 0x00, 0x0E, 0x10, 0x01, 0xF4};

// Register 4,0 with an MCP/FCU selected altitude of 35008 ft (status set,
// 2188 x 16 ft) and nothing else.
const Octets kBds40 = {0xC4, 0x60, 0x00, 0x00, 0x00, 0x00, 0x00, 0x40};

const Case kCases[] = {
    // I062/110
    {62110001, {0xFF}, "M5 ID DA M1 M2 M3 MC X"},
    {62110001, {0x81}, "M5 X"},
    {62110001, {0x00}, "NO_INFO"},
    {62110002, {0x3F, 0xFF, 0x1F, 0x3F}, "PIN:16383 NAT:31 MIS:63"},
    {62110002, {0xC0, 0x01, 0xE0, 0xC0}, "PIN:1 NAT:0 MIS:0"},  // spare bits ignored
    {62110003, {0x20, 0x00, 0x00, 0xE0, 0x00, 0x00}, "LAT:45.00000 LON:-45.00000"},
    {62110004, {0x40, 0x28}, "GA:1000 LSB:FT"},
    {62110004, {0x3F, 0xFF}, "GA:-25 LSB:FT"},
    {62110005, {0xF2, 0x9C}, "EM1:1234"},
    {62110006, {0x80}, "TOS:-1.000 LSB:S"},
    {62110006, {0x02}, "TOS:0.016 LSB:S"},
    {62110007, {0x1F}, "X5 XC X3 X2 X1"},
    {62110007, {0x0A}, "XC X2"},
    {62110007, {0xE0}, "NO_INFO"},
    // I062/290 and 295: quarters of a second; the ADS-C age takes two octets.
    {62290001, {0x06}, "AGE:1.50 LSB:S"},
    {62290005, {0x01, 0x00}, "AGE:64.00 LSB:S"},
    {62290010, {0xFF}, "AGE:63.75 LSB:S"},
    {62295001, {0x00}, "AGE:0.00 LSB:S"},
    {62295031, {0x03}, "AGE:0.75 LSB:S"},
    // I062/340
    {62340001, {0x19, 0x0C}, "SAC:025 SIC:012"},
    {62340002, {0x10, 0x80, 0x40, 0x00}, "RHO:16.500 THETA:90.000"},
    {62340003, {0x00, 0x64}, "HEIGHT:2500 LSB:FT"},
    {62340003, {0xFF, 0xFF}, "HEIGHT:-25 LSB:FT"},
    {62340004, {0xC0, 0x64}, "FL:25.00 V G"},
    {62340004, {0x3F, 0xFC}, "FL:-1.00"},
    {62340005, {0x2A, 0x3F}, "MODE_3/A:5077 L"},
    {62340005, {0xC0, 0x00}, "MODE_3/A:0000 V G"},
    {62340006, {0x7C}, "TYP:SSR_PSR SIM RAB TST"},
    {62340006, {0xA0}, "TYP:MODES_ROLL_CALL"},
    // I062/380
    {62380001, {0x3C, 0x65, 0xAC}, "ADR:3C65AC"},
    {62380002, {0x2C, 0xC3, 0x71, 0xCB, 0x38, 0x20}, "ID:KLM123"},
    {62380003, {0x40, 0x00}, "MHG:90.00"},
    {62380004, {0x04, 0x00}, "IAS:225.0 LSB:KT"},
    {62380004, {0x83, 0x20}, "MACH:0.800"},
    {62380005, {0x01, 0xC2}, "TAS:450 LSB:KT"},
    {62380006, {0xE0, 0xC8}, "SAL:5000 LSB:FT SRC:FMS_SELECTED"},
    {62380006, {0x00, 0xC8}, "SAL:5000 LSB:FT"},
    {62380006, {0x1F, 0xFF}, "SAL:-25 LSB:FT"},
    {62380007, {0xE0, 0x64}, "FSS:2500 LSB:FT MV AH AM"},
    {62380008, {0xC0}, "NAV:1 NVB:1"},
    {62380009, with({0x01}, kTcp), "TCP:1"},
    {62380009, {0x00}, "TCP:0"},
    {62380010, {0x24, 0xF5}, "COM:COMM-A COMM-B STAT:GND"},
    {62380011, {0x96, 0x05}, "AC:OPERATIONAL MN:NOT_OPERATIONAL DC:DIFFERENTIAL GBS STAT:UNLAWFUL"},
    {62380012, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}, "BDS:3,0"},
    {62380013, {0xFF, 0xF0}, "BVR:-100.00 LSB:FT/MIN"},
    {62380014, {0x00, 0x10}, "GVR:100.00 LSB:FT/MIN"},
    {62380015, {0xFC, 0x18}, "RAN:-10.00"},
    {62380016, {0x80, 0x0C}, "TI:RIGHT ROT:1.50"},
    {62380016, {0x40, 0xFE}, "TI:LEFT ROT:-0.25"},
    {62380017, {0x80, 0x00}, "TAN:180.00"},
    {62380018, {0x04, 0x00}, "GS:225.0 LSB:KT"},
    {62380018, {0xFC, 0x00}, "GS:-225.0 LSB:KT"},
    {62380019, {0x03}, "VUN:3"},
    {62380020, {0xF0, 0x00, 0x32, 0x01, 0x0E, 0xFF, 0xD8, 0x05}, "WS:50 WD:270 TMP:-10.00 TRB:5"},
    {62380020, {0x40, 0x00, 0x32, 0x01, 0x0E, 0xFF, 0xD8, 0x05}, "WD:270"},
    {62380020, {0x00, 0x00, 0x32, 0x01, 0x0E, 0xFF, 0xD8, 0x05}, "NO_INFO"},
    {62380021, {0x05}, "EMC:5"},
    {62380022, {0x20, 0x00, 0x00, 0xE0, 0x00, 0x00}, "LAT:45.00000 LON:-45.00000"},
    {62380023, {0x00, 0xC8}, "GAL:1250.00 LSB:FT"},
    {62380024, {0xF7}, "PUN:7"},
    {62380025, with({0x01}, kBds40), "BDS:4,0"},
    {62380026, {0x00, 0xFA}, "IAR:250 LSB:KT"},
    {62380027, {0x00, 0x64}, "MACH:0.800"},
    {62380028, {0xF0, 0xD5}, "BPS:821.3 LSB:HPA"},
    // I062/390
    {62390001, {0x19, 0x78}, "SAC:025 SIC:120"},
    {62390002, text_octets("AFR123 "), "CS:AFR123"},
    {62390003, {0x40, 0x00, 0x30, 0x39}, "TYP:1 NBR:12345"},
    {62390004, {0x66}, "GAT_OAT:GAT FR:NOT_APPLICABLE RVSM:APPROVED HPR"},
    {62390005, text_octets("A320"), "TYPE:A320"},
    {62390006, text_octets("M"), "WTC:M"},
    {62390007, text_octets("LSZH"), "DEP:LSZH"},
    {62390008, text_octets("LFPG"), "DST:LFPG"},
    {62390009, text_octets("27L"), "RWY:27L"},
    {62390010, {0x01, 0x40}, "CFL:80.00"},
    {62390011, {0x05, 0x11}, "CENTRE:5 POSITION:17"},
    {62390012, {0x02, 0x08, 0x0C, 0x1E, 0x80, 0x10, 0x0C, 0x2D, 0x0A}, "TIMES:2 EOBT:12:30 ETOT:12:45:10"},
    {62390012, {0x01, 0x6A, 0x17, 0x3B, 0x3B}, "TIMES:1 AIBT:23:59:59"},
    {62390013, text_octets("B12   "), "STAND:B12"},
    {62390014, {0x50}, "EMP:OCCUPIED AVL:NOT_AVAILABLE"},
    {62390015, text_octets("VEBIT2A"), "SID:VEBIT2A"},
    {62390016, text_octets("BANOX1L"), "STAR:BANOX1L"},
    {62390017, {0x1E, 0x00}, "MODE_3/A:7000"},
    {62390017, {0x0E, 0x00}, "NO_CODE"},
    {62390018, text_octets("DLH4AB "), "CS:DLH4AB"},
    // I062/500
    {62500001, {0x00, 0x3C, 0x00, 0x3C}, "X:30.0 Y:30.0 LSB:M"},
    {62500002, {0xFF, 0xFE}, "COV:-1.0 LSB:M"},
    {62500003, {0x00, 0x0A, 0x00, 0x0E}, "LAT:0.0000536 LON:0.0000751"},
    {62500004, {0x10}, "AGA:100.00 LSB:FT"},
    {62500005, {0x02}, "ABA:0.50 LSB:FL"},
    {62500006, {0x06, 0x06}, "X:1.50 Y:1.50 LSB:M/S"},
    {62500007, {0x01, 0x02}, "X:0.25 Y:0.50 LSB:M/S2"},
    {62500008, {0x10}, "ARC:100.00 LSB:FT/MIN"},
};

}  // namespace

TEST(Cat062Subfields, EverySubfieldSummary) {
    for (const auto &c : kCases) EXPECT_EQ(subfield_summary(c.id, c.wire), c.text) << c.id;
    // Every subfield of the seven items has its summary.
    const uint32_t items[] = {62110, 62290, 62295, 62340, 62380, 62390, 62500};
    for (uint32_t item : items) {
        for (uint32_t n = 1; n <= ast_dataitem_subfields_get_number(item); ++n) {
            bool seen = false;
            for (const auto &c : kCases) seen = seen || c.id == item * 1000 + n;
            EXPECT_TRUE(seen || item == 62290 || item == 62295) << item * 1000 + n;
            EXPECT_EQ(ast_subfield_get_capabilities(item * 1000 + n), 0x6u) << item * 1000 + n;
        }
    }
}

TEST(Cat062Subfields, SpansThatGiveNoText) {
    // Wrong lengths, a REP that does not match, an absent span, a span asked
    // as another item's subfield: all empty.
    EXPECT_EQ(subfield_summary(62380001, {0x3C, 0x65}), "");
    EXPECT_EQ(subfield_summary(62380009, with({0x02}, kTcp)), "");
    EXPECT_EQ(subfield_summary(62380025, {0x01, 0x00}), "");
    EXPECT_EQ(subfield_summary(62390012, {0x01, 0x08, 0x0C}), "");
    EXPECT_EQ(subfield_summary(62290005, {0x06}), "");
    EXPECT_EQ(subfield_summary(62500001, {0x00, 0x3C, 0x00}), "");
    const Octets adr = {0x3C, 0x65, 0xAC};
    AstSubfield absent{0, nullptr, 0, 62380001, 1};
    char text[32] = "#";
    ast_subfield_062_380_get_summary(text, sizeof text, &absent, 62380001);
    EXPECT_STREQ(text, "");
    const AstSubfield s = span_of(62380001, adr);
    ast_subfield_062_390_get_summary(text, sizeof text, &s, 62380001);
    EXPECT_STREQ(text, "NOT_IMPLEMENTED");  // not a subfield of I062/390
    ast_subfield_062_380_get_summary(text, sizeof text, nullptr, 62380001);
    EXPECT_STREQ(text, "");
    ast_subfield_062_380_get_summary(text, 5, &s, 62380001);
    EXPECT_STREQ(text, "ADR:");
    // More Mode S registers than a structure keeps: the subfield is shown
    // as present, its registers not decoded.
    Octets nine = {0x09};
    for (int i = 0; i < 9; ++i) nine.insert(nine.end(), kBds40.begin(), kBds40.end());
    EXPECT_EQ(subfield_summary(62380025, nine), "");
}

TEST(Cat062Subfields, DetailViews) {
    // The SAC/SIC subfields go through the application's lookups.
    ast_reg_callback_sac_get_info([](AstSacInfo *info, uint32_t sac) {
        if (sac != 25) return;
        info->count = 1;
        info->entries[0].valid = 1;
        std::strcpy(info->entries[0].region, "Alpine Region");
    });
    EXPECT_NE(subfield_detail(62340001, {0x19, 0x0C}).find("Alpine Region"), std::string::npos);
    EXPECT_NE(subfield_detail(62390001, {0x19, 0x78}).find("Alpine Region"), std::string::npos);
    EXPECT_EQ(subfield_detail(62390001, {0x1A, 0x78}).find("Alpine Region"), std::string::npos);
    ast_reg_callback_sac_get_info(nullptr);

    struct DetailCase {
        uint32_t id;
        Octets wire;
        const char *cell;
    };
    const DetailCase cases[] = {
        {62110004, {0x40, 0x28}, "25_FT"},
        {62340006, {0x7C}, "FIELD_MONITOR"},
        {62380009, with({0x01}, kTcp), "TURN_RADIUS LSB=NM"},
        {62380009, with({0x01}, kTcp), "35000"},
        {62380012, {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}, "Threat Type Indicator"},
        {62380025, with({0x01}, kBds40), "35008"},
        {62380021, {0x05}, "HEAVY"},
        {62390012, {0x01, 0x6A, 0x17, 0x3B, 0x3B}, "YESTERDAY 23:59:59"},
        {62390002, text_octets("AFR123 "), "AFR123"},
        {62500003, {0x00, 0x0A, 0x00, 0x0E}, "SIGMA_LONGITUDE"},
        {62295012, {0x08}, "2.00"},
    };
    for (const auto &c : cases) EXPECT_NE(subfield_detail(c.id, c.wire).find(c.cell), std::string::npos) << c.id;
    EXPECT_EQ(subfield_detail(62380001, {0x3C}), "");
}

TEST(Cat062Subfields, AircraftDerivedDataDecoded) {
    // ADR, ID, SAL; TID with one point; BVR; GS; MB with one register.
    Octets wire = {0xC5, 0x45, 0x11, 0x10};  // subfields 1, 2, 6 | 9 | 13 | 18 | 25
    wire = with(wire, {0x3C, 0x65, 0xAC, 0x2C, 0xC3, 0x71, 0xCB, 0x38, 0x20, 0xA0, 0x64});
    wire = with(wire, with({0x01}, kTcp));
    wire = with(wire, {0xFF, 0xF0, 0x04, 0x00});
    wire = with(wire, with({0x01}, kBds40));
    AstDataItem item;
    ast_dataitem_scan(&item, wire.data(), wire.size(), 62380);
    ASSERT_EQ(item.length, wire.size());

    AstItem062_380 d;
    ast_dataitem_062_380_decode(&d, &item);
    ASSERT_EQ(d.valid, 1u);
    EXPECT_EQ(d.adr, 0x3C65ACu);
    EXPECT_STREQ(d.id, "KLM123  ");
    EXPECT_EQ(d.sal_present, 1);
    EXPECT_EQ(d.sal_src, 1u);
    EXPECT_DOUBLE_EQ(d.sal, 2500.0);
    ASSERT_EQ(d.tid_count, 1u);
    EXPECT_EQ(d.tid[0].tcpn, 3u);
    EXPECT_DOUBLE_EQ(d.tid[0].alt, 35000.0);
    EXPECT_DOUBLE_EQ(d.tid[0].latitude, 45.0);
    EXPECT_DOUBLE_EQ(d.tid[0].longitude, -45.0);
    EXPECT_EQ(d.tid[0].pt, 2u);
    EXPECT_EQ(d.tid[0].td, 1u);
    EXPECT_EQ(d.tid[0].tra, 1);
    EXPECT_EQ(d.tid[0].tov, 3600u);
    EXPECT_DOUBLE_EQ(d.tid[0].ttr, 5.0);
    EXPECT_DOUBLE_EQ(d.bvr, -100.0);
    EXPECT_DOUBLE_EQ(d.gs, 225.0);
    ASSERT_EQ(d.mb.valid, 1u);
    EXPECT_EQ(d.mb.bds[0].id, 0x40u);
    EXPECT_EQ(d.mhg_present + d.tas_present + d.acs_present, 0);

    // The named fields reach into every subfield present.
    std::vector<char> json(16384);
    ast_dataitem_get_fields_json(json.data(), json.size(), &item);
    const std::string text = json.data();
    for (const char *part : {"\"adr\":{\"adr\":", "\"id\":{\"id\":\"KLM123  \"}", "\"sal\":{\"sas\":1,\"src\":1,\"alt\":2500",
                             "\"points\":[{\"tca\":0", "\"ttr\":5", "\"bvr\":{\"bvr\":-100}", "\"bds40\":"})
        EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
    EXPECT_EQ(text.find("\"mhg\""), std::string::npos);
}

TEST(Cat062Subfields, CutShortAndOverlongSubfields) {
    // Primary announces ADR and ID, the data stops inside ID: refused.
    const Octets cut = {0xC0, 0x3C, 0x65, 0xAC, 0x2C, 0xC3};
    AstDataItem item;
    ast_dataitem_scan(&item, cut.data(), cut.size(), 62380);
    EXPECT_EQ(item.valid, 0);
    // A REP past the data: the repetitive rule gives the subfield no
    // octets, so the item ends after its primary and TID stays absent.
    const Octets rep = {0x01, 0x40, 0x05, 0x00};
    ast_dataitem_scan(&item, rep.data(), rep.size(), 62380);
    ASSERT_EQ(item.valid, 1);
    EXPECT_EQ(item.length, 2u);
    AstItem062_380 derived;
    ast_dataitem_062_380_decode(&derived, &item);
    EXPECT_EQ(derived.valid, 1u);
    EXPECT_EQ(derived.tid_present, 0);
    EXPECT_EQ(derived.tid_rep, 0u);
    // An FX chain that never ends.
    const Octets fx(12, 0xFF);
    ast_dataitem_scan(&item, fx.data(), fx.size(), 62390);
    EXPECT_EQ(item.valid, 0);

    // A caller's span shorter than what its primary announces decodes to
    // nothing rather than reading past it.
    AstItem062_390 plan;
    const Octets two = {0x40, 0x41, 0x46, 0x52};
    const AstDataItem short_span{two.data(), two.size(), 62390, 1};
    ast_dataitem_062_390_decode(&plan, &short_span);
    EXPECT_EQ(plan.valid, 0u);
    EXPECT_EQ(plan.cs_present, 0);

    // Ages: the decoded structure holds each age at its subfield.
    const Octets ages = {0x88, 0x00, 0x10, 0x04};  // TRK and ADS
    ast_dataitem_scan(&item, ages.data(), ages.size(), 62290);
    ASSERT_EQ(item.valid, 1);
    AstItem062_290 a;
    ast_dataitem_062_290_decode(&a, &item);
    ASSERT_EQ(a.valid, 1u);
    EXPECT_EQ(a.ages[0].present, 1);
    EXPECT_DOUBLE_EQ(a.ages[0].age, 0.0);
    EXPECT_EQ(a.ages[4].present, 1);
    EXPECT_EQ(a.ages[4].raw, 0x1004u);
    EXPECT_DOUBLE_EQ(a.ages[4].age, 1025.0);
    EXPECT_EQ(a.ages[1].present, 0);
}
