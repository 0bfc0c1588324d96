// The named fields of the common items and the Mode S registers, reached
// through the category items that carry them: the JSON of hand-packed wire
// octets, the kinds, units and formats a walk reports, the values a setter
// refuses, and encoding back from the values set by name.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "kovrel/kovrel.h"

namespace {

using Octets = std::vector<uint8_t>;

// Whether the wire octets are what the item's encoder writes for them.
enum Trip { kTrips, kNoTrip };

struct Case {
    AstItemId id;
    Octets wire;
    const char *json;
    Trip trip = kTrips;
};

AstDataItem span(AstItemId id, const Octets &wire) { return AstDataItem{wire.data(), wire.size(), id, 1}; }

// The JSON text, checked against the length the call reports.
std::string json_of(const AstDataItem &item) {
    const size_t n = ast_dataitem_get_fields_json(nullptr, 0, &item);
    std::vector<char> buf(n + 1, '#');
    EXPECT_EQ(ast_dataitem_get_fields_json(buf.data(), buf.size(), &item), n);
    EXPECT_EQ(std::strlen(buf.data()), n);
    return std::string(buf.data());
}

void expect_json(const std::vector<Case> &cases) {
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "item " << c.id);
        const AstDataItem item = span(c.id, c.wire);
        EXPECT_EQ(ast_dataitem_has_fields(c.id), 1);
        EXPECT_EQ(json_of(item), c.json);
    }
}

// ---- Wire tables ------------------------------------------------------------

const std::vector<Case> kIdentAndTime = {
    {62010, {0x19, 0x0D}, R"({"sac":25,"sic":13})"},
    {34000, {0x02}, R"({"mt":2})"},
    {62015, {0x07}, R"({"sid":7})"},
    {34020, {0x20}, R"({"sector":45})"},
    // 12:00:00.5 and the last count of the day.
    {34030, {0x54, 0x60, 0x40}, R"({"tod":43200.5})"},
    {62070, {0xFF, 0xFF, 0xFF}, R"({"tod":131071.9921875})"},
    {34041, {0x02, 0x40}, R"({"arp":4.5})"},
    // FSI 10 is the previous second; FSI 01 the next, with one LSB.
    {21074, {0xA0, 0x00, 0x00, 0x00}, R"({"fsi":-1,"tomr":0.5})"},
    {21076, {0x40, 0x00, 0x00, 0x01}, R"({"fsi":1,"tomr":9.313225746154785e-10})"},
    // 16 bits for I062/040; 12 under spare bits for I021/161.
    {62040, {0xAB, 0xCD}, R"({"trn":43981})"},
    {21161, {0x0F, 0xFF}, R"({"trn":4095})"},
    {21161, {0xF1, 0x23}, R"({"trn":291})", kNoTrip},
};

const std::vector<Case> kMotion = {
    {21130, {0xE0, 0x00, 0x00, 0xB0, 0x00, 0x00}, R"({"lat":-45,"lon":-112.5})"},
    {20041, {0x00, 0x80, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00}, R"({"lat":45,"lon":-90})"},
    {62105, {0xFF, 0x80, 0x00, 0x00, 0x01, 0x00, 0x00, 0x01}, R"({"lat":-45,"lon":90.00000536441803})"},
    // 180/2^30 per LSB here; the encoder writes every position at 180/2^25.
    {21131, {0x20, 0x00, 0x00, 0x00, 0xC0, 0x00, 0x00, 0x01}, R"({"lat":90,"lon":-179.99999983236194})", kNoTrip},
    {62100, {0xFF, 0xFF, 0xFD, 0x00, 0x02, 0x00}, R"({"x":-1.5,"y":256})"},
    {62185, {0xFF, 0xFF, 0x01, 0x90}, R"({"vx":-0.25,"vy":100})"},
    {10200, {0x08, 0x00, 0x40, 0x00}, R"({"gsp":450,"hdg":90})"},
    {10091, {0xFF, 0xF0}, R"({"height":-100})"},
    // RE above a 15-bit rate; the old-edition rate fills 16 bits.
    {21155, {0xFF, 0xF8}, R"({"re":1,"vr":-50})"},
    {21157, {0x3F, 0xFF}, R"({"re":0,"vr":102393.75})"},
    {21909, {0x80, 0x00}, R"({"vr":-204800})"},
};

const std::vector<Case> kModeCodes = {
    {62060, {0xA1, 0xFF}, R"({"v":1,"g":0,"ch":1,"mode3a":"0777"})"},
    {10060, {0x4F, 0xC0}, R"({"v":0,"g":1,"l":0,"mode3a":"7700"})"},
    {62120, {0x0A, 0xBC}, R"({"v":0,"g":0,"l":0,"mode2":"5274"})"},
    {1050, {0x21, 0x00}, R"({"v":0,"g":0,"l":1,"mode2":"0400"})"},
    {21070, {0x0E, 0x00}, R"({"v":0,"g":0,"l":0,"mode3a":"7000"})"},
    {1080, {0x08, 0x81},
     R"({"qa4":1,"qa2":0,"qa1":0,"qb4":0,"qb2":1,"qb1":0,"qc4":0,"qc2":0,"qc1":0,"qd4":0,"qd2":0,"qd1":1})"},
    // V set over FL -12.5 (-50 quarters in 14 bits); G over FL 25.
    {10090, {0xBF, 0xCE}, R"({"v":1,"g":0,"fl":-12.5})"},
    {20090, {0x40, 0x64}, R"({"v":0,"g":1,"fl":25})"},
    // Pulses A1 B2 C4 (code 1240) in wire order C1 A1 C2 A2 C4 A4 B1 D1 B2
    // D2 B4 D4; QA1 and QD4 marked.
    {20100, {0x44, 0x88, 0x04, 0x01},
     R"({"v":0,"g":1,"modec":"1240","qc1":0,"qa1":1,"qc2":0,"qa2":0,"qc4":0,"qa4":0,"qb1":0,"qd1":0,)"
     R"("qb2":0,"qd2":0,"qb4":0,"qd4":1})"},
    {21080, {0x3C, 0x65, 0x4A}, R"({"aa":"3C654A"})"},
    {21170, {0x10, 0xC2, 0x34, 0x04, 0x2C, 0x72}, R"({"acid":"DLH4AB12"})"},
    {10245, {0x80, 0x08, 0x15, 0xF1, 0xCB, 0x38, 0x20}, R"({"sti":2,"tid":"BAW123  "})"},
};

// Registers as they sit in the item: 7 MB octets, then the BDS code.
Octets registers(std::initializer_list<Octets> regs) {
    Octets out{static_cast<uint8_t>(regs.size())};
    for (const Octets &r : regs) out.insert(out.end(), r.begin(), r.end());
    return out;
}

// 4,0: MCP 32000 ft, FMS status clear over all-ones bits, 1013.2 hPa, VNAV
// and approach, target altitude source 2.
const Octets k40{0xBE, 0x83, 0xFF, 0xF0, 0xA8, 0x01, 0xA6, 0x40};
// 5,0: roll -11.25 deg, track status clear over all-ones bits, 450 kt
// ground speed, no track rate, 460 kt true airspeed.
const Octets k50{0xC8, 0x0F, 0xFF, 0x38, 0x40, 0x04, 0xE6, 0x50};
// 6,0: heading 90 deg, airspeed status clear over a value, Mach 0.8,
// -320 ft/min barometric rate, no inertial rate.
const Octets k60{0xA0, 0x02, 0x59, 0x32, 0x30, 0x50, 0x00, 0x60};
// 0,5: TC 11, status 2, single antenna, 1000 ft, T, odd, CPR 0x1ABCD/0x10203.
const Octets k05{0x5D, 0x02, 0x4F, 0x57, 0x9B, 0x02, 0x03, 0x05};
// 0,8: TC 4 category 3, "KLM1023 ".
const Octets k08{0x23, 0x2C, 0xC3, 0x71, 0xC3, 0x2C, 0xE0, 0x08};
// 0,9: TC 19 subtype 1, IC, NACv 2, west 100 kt, north 200 kt, barometric
// rate down 640 ft/min, no height difference.
const Octets k09{0x99, 0x94, 0x65, 0x99, 0x38, 0x2C, 0x00, 0x09};
// 1,0: OCC, version 3, level 5, specific services, UELM 2, DELM 5, AIC, SIC.
const Octets k10{0x10, 0x01, 0x07, 0xA5, 0xA0, 0x00, 0x00, 0x10};
// 2,0: "BAW123  ".
const Octets k20{0x20, 0x08, 0x15, 0xF1, 0xCB, 0x38, 0x20, 0x20};
// 3,0: an ARA bit, MTE, threat type 1 with address 3C654A.
const Octets k30{0x30, 0x80, 0x00, 0x14, 0xF1, 0x95, 0x28, 0x30};

const std::vector<Case> kModeS = {
    {21250, registers({k40, k50, k60}),
     R"({"rep":3,"bds40":{"bds":"4,0","mcp_alt":32000,"bps":1013.2,"vnav":1,"alt_hold":0,"app":1,"tars":2},)"
     R"("bds50":{"bds":"5,0","ran":-11.25,"gs":450,"tas":460},"bds60":{"bds":"6,0","mhg":90,"mach":0.8,"bvr":-320}})"},
    {10250, registers({k05, k08, k09, k10, k20, k30}),
     R"({"rep":6,"bds05":{"bds":"0,5","tc":11,"gnss":0,"ss":2,"saf":1,"alt":1000,"t":1,"f":1,"lat_cpr":109517,)"
     R"("lon_cpr":66051},"bds08":{"bds":"0,8","tc":4,"ca":3,"acid":"KLM1023 "},)"
     R"("bds09":{"bds":"0,9","tc":19,"st":1,"ic":1,"nac":2,"dew":1,"vew":100,"vns":200,"vrsrc":1,"svr":1,"vr":640},)"
     R"("bds10":{"bds":"1,0","cf":0,"occ":1,"snv":3,"epi":1,"ssc":1,"uelm":2,"delm":5,"aic":1,"scs":0,"sic":1,)"
     R"("gicb":0},"bds20":{"bds":"2,0","acid":"BAW123  "},)"
     R"("bds30":{"bds":"3,0","ara":1,"rac":0,"rat":0,"mte":1,"tti":1,"tid":"3C654A"}})"},
    // A code the library does not decode and a 2,0 without its leading
    // 0x20 give their MB octets; a repeated code is numbered.
    {20250,
     registers({{0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0xE1},
                {0x00, 0x08, 0x15, 0xF1, 0xCB, 0x38, 0x20, 0x20},
                {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x40},
                {0x80, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x40}}),
     R"({"rep":4,"bdse1":{"bds":"E,1","mb":"01020304050607"},"bds20":{"bds":"2,0","mb":"000815F1CB3820"},)"
     R"("bds40":{"bds":"4,0"},"bds40_2":{"bds":"4,0","mcp_alt":0}})"},
};

const std::vector<Case> kExplicit = {
    {62998, {0x04, 0xDE, 0xAD, 0x01}, R"({"data":"DEAD01"})"},
    {21999, {0x01}, R"({"data":""})"},
    {1997, {0x03, 0x0A, 0x0B}, R"({"data":"0A0B"})"},
};

TEST(ItemFields, IdentificationAndTime) { expect_json(kIdentAndTime); }
TEST(ItemFields, PositionsVelocitiesAndHeights) { expect_json(kMotion); }
TEST(ItemFields, ModeCodesAndIdentities) { expect_json(kModeCodes); }
TEST(ItemFields, ModeSRegistersOneGroupEach) { expect_json(kModeS); }
TEST(ItemFields, ExplicitLengthFieldsAsOctets) { expect_json(kExplicit); }

// ---- Walks ------------------------------------------------------------------

struct Leaf {
    std::string path;
    AstField field;
    std::string text;  // TEXT and ENUM names, copied while the walk lasts
};

struct Collected {
    std::vector<Leaf> leaves;
    std::vector<std::string> names;  // open groups
    bool in_array = false;
    size_t stop_at = 0;  // 0: never stop
    size_t visited = 0;
};

int collect(void *context, const AstField *f) {
    auto &c = *static_cast<Collected *>(context);
    ++c.visited;
    const bool end = f->kind == AST_FIELD_GROUP_END || f->kind == AST_FIELD_ARRAY_END;
    EXPECT_EQ(f->depth + (end ? 1 : 0), c.names.size());
    const std::string prefix = [&] {
        std::string p;
        for (const std::string &n : c.names) p += n + ".";
        return p;
    }();
    switch (f->kind) {
    case AST_FIELD_GROUP_BEGIN:
    case AST_FIELD_ARRAY_BEGIN:
        c.leaves.push_back({prefix + (f->name ? f->name : ""), *f, ""});
        c.names.push_back(f->name ? f->name : "");
        c.in_array = c.in_array || f->kind == AST_FIELD_ARRAY_BEGIN;
        break;
    case AST_FIELD_GROUP_END:
    case AST_FIELD_ARRAY_END:
        if (!c.names.empty()) c.names.pop_back();
        break;
    default:
        c.leaves.push_back({prefix + (f->name ? f->name : "#"), *f, f->text ? std::string(f->text, f->length) : ""});
        break;
    }
    return c.stop_at == 0 || c.visited < c.stop_at;
}

Collected walk(const Case &c) {
    Collected out;
    const AstDataItem item = span(c.id, c.wire);
    EXPECT_EQ(ast_dataitem_walk_fields(&item, collect, &out), AST_FIELDS_DONE);
    EXPECT_TRUE(out.names.empty());
    return out;
}

const Leaf *find(const Collected &c, const std::string &path) {
    for (const Leaf &l : c.leaves)
        if (l.path == path) return &l;
    return nullptr;
}

TEST(ItemFields, KindsUnitsAndFormats) {
    struct Expect {
        const Case &item;
        const char *path;
        uint32_t kind;
        const char *unit;
        uint32_t format;
        const char *text;  // the display name of an enumeration, the characters of a text
    };
    const Case &tod = kIdentAndTime[4], &mode3a = kModeCodes[0], &fl = kModeCodes[6], &aa = kModeCodes[9],
               &tid = kModeCodes[11], &polar = kMotion[6], &rate = kMotion[8], &vx = kMotion[5],
               &mb = kModeS[0], &regs = kModeS[1], &ref = kExplicit[0];
    const Expect expects[] = {
        {tod, "tod", AST_FIELD_REAL, "s", AST_FIELD_FORMAT_DECIMAL, ""},
        {mode3a, "v", AST_FIELD_FLAG, "", AST_FIELD_FORMAT_DECIMAL, ""},
        {mode3a, "mode3a", AST_FIELD_UNSIGNED, "", AST_FIELD_FORMAT_OCTAL4, ""},
        {fl, "v", AST_FIELD_FLAG, "", AST_FIELD_FORMAT_DECIMAL, ""},
        {fl, "fl", AST_FIELD_REAL, "FL", AST_FIELD_FORMAT_DECIMAL, ""},
        {aa, "aa", AST_FIELD_UNSIGNED, "", AST_FIELD_FORMAT_HEX6, ""},
        {tid, "sti", AST_FIELD_ENUM, "", AST_FIELD_FORMAT_DECIMAL, "CALLSIGN"},
        {tid, "tid", AST_FIELD_TEXT, "", AST_FIELD_FORMAT_DECIMAL, "BAW123  "},
        {polar, "gsp", AST_FIELD_REAL, "kt", AST_FIELD_FORMAT_DECIMAL, ""},
        {polar, "hdg", AST_FIELD_REAL, "deg", AST_FIELD_FORMAT_DECIMAL, ""},
        {rate, "vr", AST_FIELD_REAL, "ft/min", AST_FIELD_FORMAT_DECIMAL, ""},
        {vx, "vx", AST_FIELD_REAL, "m/s", AST_FIELD_FORMAT_DECIMAL, ""},
        {mb, "rep", AST_FIELD_UNSIGNED, "", AST_FIELD_FORMAT_DECIMAL, ""},
        {mb, "bds40", AST_FIELD_GROUP_BEGIN, "", AST_FIELD_FORMAT_DECIMAL, ""},
        {mb, "bds40.bds", AST_FIELD_TEXT, "", AST_FIELD_FORMAT_DECIMAL, "4,0"},
        {mb, "bds40.mcp_alt", AST_FIELD_UNSIGNED, "ft", AST_FIELD_FORMAT_DECIMAL, ""},
        {mb, "bds40.bps", AST_FIELD_REAL, "hPa", AST_FIELD_FORMAT_DECIMAL, ""},
        {mb, "bds40.tars", AST_FIELD_ENUM, "", AST_FIELD_FORMAT_DECIMAL, "FCU_MCP_SELECTED"},
        {mb, "bds50.ran", AST_FIELD_REAL, "deg", AST_FIELD_FORMAT_DECIMAL, ""},
        {mb, "bds60.bvr", AST_FIELD_REAL, "ft/min", AST_FIELD_FORMAT_DECIMAL, ""},
        {regs, "bds30.tti", AST_FIELD_ENUM, "", AST_FIELD_FORMAT_DECIMAL, "MODE_S"},
        {regs, "bds30.tid", AST_FIELD_OCTETS, "", AST_FIELD_FORMAT_DECIMAL, ""},
        {regs, "bds09.vr", AST_FIELD_SIGNED, "ft/min", AST_FIELD_FORMAT_DECIMAL, ""},
        {ref, "data", AST_FIELD_OCTETS, "", AST_FIELD_FORMAT_DECIMAL, ""},
    };
    for (const Expect &e : expects) {
        SCOPED_TRACE(testing::Message() << "item " << e.item.id << " " << e.path);
        const Collected c = walk(e.item);
        const Leaf *leaf = find(c, e.path);
        ASSERT_NE(leaf, nullptr);
        EXPECT_EQ(leaf->field.kind, e.kind);
        EXPECT_STREQ(leaf->field.unit, e.unit);
        EXPECT_EQ(leaf->field.format, e.format);
        EXPECT_EQ(leaf->text, e.text);
        EXPECT_EQ(leaf->field.depth, static_cast<uint32_t>(std::count(leaf->path.begin(), leaf->path.end(), '.')));
    }
    // Register values whose status bit is clear are no fields at all.
    const Collected c = walk(mb);
    for (const char *absent : {"bds40.fms_alt", "bds50.tta", "bds50.tar", "bds60.ias", "bds60.ivv"})
        EXPECT_EQ(find(c, absent), nullptr) << absent;
}

// A visitor that stops the walk at any field stops it there, also inside the
// register groups, which are walked by their own code.
TEST(ItemFields, StoppingInsideRegisterGroups) {
    const AstDataItem item = span(kModeS[1].id, kModeS[1].wire);
    const size_t total = walk(kModeS[1]).visited;
    ASSERT_GT(total, 50u);
    for (size_t stop = 1; stop <= total; ++stop) {
        Collected c;
        c.stop_at = stop;
        ASSERT_EQ(ast_dataitem_walk_fields(&item, collect, &c), AST_FIELDS_STOPPED) << stop;
        EXPECT_EQ(c.visited, stop);
    }
}

TEST(ItemFields, SpansThatDoNotDecodeGiveNothing) {
    char text[64] = "#";
    int calls = 0;
    const AstFieldVisitor count = [](void *context, const AstField *) {
        ++*static_cast<int *>(context);
        return 1;
    };

    const Octets three{0x00, 0x01, 0x02};
    const AstDataItem wrong = span(62040, three);
    EXPECT_EQ(ast_dataitem_get_fields_json(text, sizeof text, &wrong), 0u);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(ast_dataitem_walk_fields(&wrong, count, &calls), AST_FIELDS_INVALID);

    const Octets two{0x00, 0x01};
    AstDataItem invalid = span(62040, two);
    invalid.valid = 0;
    EXPECT_EQ(ast_dataitem_walk_fields(&invalid, count, &calls), AST_FIELDS_INVALID);

    // REP 2 over the octets of one register.
    const Octets short_mb{0x02, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x40};
    const AstDataItem mb = span(21250, short_mb);
    EXPECT_EQ(ast_dataitem_walk_fields(&mb, count, &calls), AST_FIELDS_INVALID);
    EXPECT_EQ(ast_dataitem_get_fields_json(text, sizeof text, &mb), 0u);
    EXPECT_EQ(calls, 0);

    // Items that are only delimited and named describe nothing.
    EXPECT_EQ(ast_dataitem_has_fields(34090), 0);
    const AstDataItem named = span(34090, two);
    EXPECT_EQ(ast_dataitem_walk_fields(&named, count, &calls), AST_FIELDS_NONE);
}

// Each category row points at the description of the structure its decoder
// fills: the storage the fields describe is that structure.
TEST(ItemFields, RowsDescribeTheStructureTheyDecode) {
    const struct {
        AstItemId id;
        size_t size;
    } rows[] = {
        {1010, sizeof(AstDataSourceIdentifier)}, {1060, sizeof(AstMode3aConfidence)},
        {1100, sizeof(AstModeCConfidence)},       {1161, sizeof(AstTrackNumber)},
        {1200, sizeof(AstVelocityPolar)},         {2000, sizeof(AstMessageType)},
        {2020, sizeof(AstSectorNumber)},          {2041, sizeof(AstAntennaRotationPeriod)},
        {4030, sizeof(AstTrackNumber)},           {4998, sizeof(AstExplicitField)},
        {8090, sizeof(AstTimeOfDay)},             {10041, sizeof(AstPositionWgs84)},
        {10220, sizeof(AstTargetAddress)},        {15015, sizeof(AstServiceId)},
        {16400, sizeof(AstPositionWgs84)},        {19600, sizeof(AstPositionWgs84)},
        {20042, sizeof(AstPositionCartesian)},    {20105, sizeof(AstHeight)},
        {20110, sizeof(AstHeight)},               {20202, sizeof(AstVelocityCartesian)},
        {21074, sizeof(AstTimeOfDayHigh)},        {21130, sizeof(AstPositionWgs84Low)},
        {21170, sizeof(AstAircraftId)},           {21250, sizeof(AstModesMb)},
        {21902, sizeof(AstPositionWgs84)},        {21910, sizeof(AstVerticalRateNoRe)},
        {34041, sizeof(AstAntennaRotationPeriod)}, {62245, sizeof(AstTargetId)},
        {63050, sizeof(AstDataSourceIdentifier)}, {65000, sizeof(AstMessageType)},
        {240140, sizeof(AstTimeOfDay)},           {240999, sizeof(AstExplicitField)},
    };
    for (const auto &r : rows) EXPECT_EQ(ast_dataitem_fields_storage_size(r.id), r.size) << r.id;
}

// ---- Setting by name --------------------------------------------------------

AstField unsigned_value(uint64_t u) {
    AstField f{};
    f.kind = AST_FIELD_UNSIGNED;
    f.u = u;
    return f;
}

AstField real_value(double v) {
    AstField f{};
    f.kind = AST_FIELD_REAL;
    f.real = v;
    return f;
}

AstField text_value(const char *t) {
    AstField f{};
    f.kind = AST_FIELD_TEXT;
    f.text = t;
    f.length = std::strlen(t);
    return f;
}

TEST(ItemFields, SettingKeepsValuesWithinTheirWireFields) {
    const struct {
        AstItemId id;
        const char *path;
        AstField value;
        int result;
    } sets[] = {
        {62010, "sac", unsigned_value(255), AST_FIELD_SET_OK},
        {62010, "sac", unsigned_value(256), AST_FIELD_SET_OUT_OF_RANGE},
        {62040, "trn", unsigned_value(65535), AST_FIELD_SET_OK},
        {62040, "trn", unsigned_value(65536), AST_FIELD_SET_OUT_OF_RANGE},
        {62040, "track", unsigned_value(1), AST_FIELD_SET_UNKNOWN},
        {62070, "tod", real_value(131071.9921875), AST_FIELD_SET_OK},
        {62070, "tod", real_value(131072), AST_FIELD_SET_OUT_OF_RANGE},
        {34041, "arp", real_value(512), AST_FIELD_SET_OUT_OF_RANGE},
        {62060, "mode3a", unsigned_value(07777), AST_FIELD_SET_OK},
        {62060, "mode3a", unsigned_value(010000), AST_FIELD_SET_OUT_OF_RANGE},
        {62060, "ch", unsigned_value(2), AST_FIELD_SET_OUT_OF_RANGE},
        {10090, "fl", real_value(-2048), AST_FIELD_SET_OK},
        {10090, "fl", real_value(2048), AST_FIELD_SET_OUT_OF_RANGE},
        {21155, "vr", real_value(-102400), AST_FIELD_SET_OK},
        {21155, "vr", real_value(-102406.25), AST_FIELD_SET_OUT_OF_RANGE},
        {21909, "vr", real_value(-204800), AST_FIELD_SET_OK},
        {21909, "re", unsigned_value(1), AST_FIELD_SET_UNKNOWN},
        {21080, "aa", unsigned_value(0xFFFFFF), AST_FIELD_SET_OK},
        {21080, "aa", unsigned_value(0x1000000), AST_FIELD_SET_OUT_OF_RANGE},
        {10245, "sti", unsigned_value(4), AST_FIELD_SET_OUT_OF_RANGE},
        {21170, "acid", text_value("ABCDEFGH"), AST_FIELD_SET_OK},
        {21170, "acid", text_value("ABCDEFGHI"), AST_FIELD_SET_OUT_OF_RANGE},
        {21170, "acid", unsigned_value(1), AST_FIELD_SET_WRONG_KIND},
        {62998, "data", text_value("00"), AST_FIELD_SET_READ_ONLY},
        {21250, "rep", unsigned_value(1), AST_FIELD_SET_OK},
        {21250, "bds.mcp_alt", unsigned_value(1), AST_FIELD_SET_READ_ONLY},
        {21250, "bds40.mcp_alt", unsigned_value(1), AST_FIELD_SET_UNKNOWN},
    };
    alignas(16) uint8_t storage[4096];
    for (const auto &s : sets) {
        SCOPED_TRACE(testing::Message() << "item " << s.id << " " << s.path);
        ASSERT_EQ(ast_dataitem_fields_init(storage, sizeof storage, s.id), 1);
        EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, s.id, s.path, &s.value), s.result);
    }
}

// Every item with an encoder gives back its wire octets from nothing but
// its fields, set by name over the defaults.
TEST(ItemFields, EncodersWriteTheWireFromNamedValues) {
    size_t tripped = 0;
    for (const auto *table : {&kIdentAndTime, &kMotion, &kModeCodes, &kModeS, &kExplicit}) {
        for (const Case &c : *table) {
            if ((ast_dataitem_get_capabilities(c.id) & AST_DATAITEM_CAP_ENCODE) == 0) continue;
            SCOPED_TRACE(testing::Message() << "item " << c.id);
            const Collected fields = walk(c);
            ASSERT_FALSE(fields.in_array);
            alignas(16) uint8_t storage[4096];
            ASSERT_EQ(ast_dataitem_fields_init(storage, sizeof storage, c.id), 1);
            for (const Leaf &leaf : fields.leaves) {
                AstField value = leaf.field;
                value.text = leaf.text.c_str();
                EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, c.id, leaf.path.c_str(), &value),
                          AST_FIELD_SET_OK)
                    << leaf.path;
            }
            uint8_t buffer[64];
            AstDataItem out{};
            const AstDataItemValue value{1, c.id, storage};
            ast_dataitem_encode(&out, buffer, sizeof buffer, &value);
            ASSERT_EQ(out.valid, 1);
            const Octets written(buffer, buffer + out.length);
            if (c.trip == kTrips) {
                EXPECT_EQ(written, c.wire);
                ++tripped;
            } else {
                EXPECT_NE(written, c.wire);
            }
        }
    }
    EXPECT_EQ(tripped, 28u);
}

}  // namespace
