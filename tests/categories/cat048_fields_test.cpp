// CAT048 items as named fields: the JSON of each item from its wire octets,
// spans that give no fields, the limits a field refuses when it is set, and
// the round trip wire -> fields -> structure -> wire for the items that
// encode.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/cat048.h"
#include "kovrel/fields.h"
#include "support/record_walk.h"

using kovrel_test::Octets;

namespace {

AstDataItem span(const Octets &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

// The JSON of a span; the length returned must be the text's.
std::string json(const AstDataItem &item) {
    std::vector<char> buf(8192, '#');
    const size_t n = ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    const std::string text(buf.data());
    EXPECT_EQ(n, text.size()) << item.id;
    return text;
}

struct JsonCase {
    AstItemId id;
    Octets wire;
    const char *expected;
};

// Decoded values by hand from the layouts: LSBs are 1/256 NM and 360/2^16
// deg (040), 1/128 NM shown in metres (042), 360/2^13 deg (SRL, PRL), 1/256
// NM (RPD), 360/2^14 deg (APD), 1/128 NM, 2^-14 NM/s in kt and 360/2^12 deg
// (210).
const JsonCase kJson[] = {
    // I048/020: one octet, octet 2 (FOE/FRI 01 is IFF status 2), all six octets.
    {48020, {0xA0}, R"({"typ":5,"sim":0,"rdp":1,"spi":0,"rab":0})"},
    {48020, {0x39, 0xDA},
     R"({"typ":1,"sim":1,"rdp":2,"spi":0,"rab":0,"tst":1,"err":1,"xpp":0,"me":1,"mi":1,"foe_fri":2})"},
    {48020, {0xA1, 0x21, 0xE9, 0x97, 0x55, 0xA0},
     R"({"typ":5,"sim":0,"rdp":1,"spi":0,"rab":0,"tst":0,"err":0,"xpp":1,"me":0,"mi":0,"foe_fri":0,)"
     R"("adsb":{"ep":1,"val":1},"scn":{"ep":1,"val":0},"pai":{"ep":1,"val":0},"acasxv":{"ep":1,"val":2},)"
     R"("poxpr":{"ep":1,"val":1},"poact":{"ep":0,"val":1},"dtfxpr":{"ep":0,"val":1},"dtfact":{"ep":0,"val":1},)"
     R"("irmxpr":{"ep":1,"val":0},"irmact":{"ep":1,"val":0}})"},
    // FOE/FRI 10 folds to 0; octet 3 present but empty.
    {48020, {0x07, 0x05, 0x00},
     R"({"typ":0,"sim":0,"rdp":1,"spi":1,"rab":1,"tst":0,"err":0,"xpp":0,"me":0,"mi":0,"foe_fri":0,)"
     R"("adsb":{"ep":0,"val":0},"scn":{"ep":0,"val":0},"pai":{"ep":0,"val":0}})"},
    // I048/030: the FX bit dropped from every code.
    {48030, {0x03, 0x05, 0x2C}, R"({"codes":[1,2,22]})"},
    {48030, {0xFE}, R"({"codes":[127]})"},
    // I048/040 at a middle value and at the top of both fields.
    {48040, {0x0C, 0x81, 0x20, 0x01}, R"({"rho":12.50390625,"theta":45.0054931640625})"},
    {48040, {0xFF, 0xFF, 0xFF, 0xFF}, R"({"rho":255.99609375,"theta":359.9945068359375})"},
    // I048/042: two's complement, in metres.
    {48042, {0xFF, 0x80, 0x00, 0x80}, R"({"x":-1852,"y":1852})"},
    {48042, {0x80, 0x00, 0x7F, 0xFF}, R"({"x":-474112,"y":474097.53125})"},
    // I048/050: flags as the wire has them, the code in octal.
    {48050, {0xE1, 0x23}, R"({"v":1,"g":1,"l":1,"mode2":"0443"})"},
    {48050, {0x1F, 0xFF}, R"({"v":0,"g":0,"l":0,"mode2":"7777"})"},
    // I048/110: 14 bits of two's complement, 25 ft each; the top bits spare.
    {48110, {0xFF, 0xFF}, R"({"3dh":-25})"},
    {48110, {0x1F, 0xFF}, R"({"3dh":204775})"},
    // I048/120: both subfields (D set, speed -1), CAL alone (spare bits set,
    // speed -512), RDS alone with a repetition factor it does not follow.
    {48120, {0xC0, 0x83, 0xFF, 0x01, 0x00, 0x64, 0x03, 0xE8, 0x13, 0x88},
     R"({"cal":{"d":1,"cal":-1},"rds":{"rep":1,"dop":100,"amb":1000,"frq":5000}})"},
    {48120, {0x80, 0x7E, 0x00}, R"({"cal":{"d":0,"cal":-512}})"},
    {48120, {0x80, 0x01, 0xFF}, R"({"cal":{"d":0,"cal":511}})"},
    {48120, {0x40, 0x03, 0xFF, 0xFF, 0x00, 0x00, 0x27, 0x10},
     R"({"rds":{"rep":3,"dop":65535,"amb":0,"frq":10000}})"},
    // I048/130: all seven subfields, two of the primary ones, none.
    {48130, {0xFE, 0x40, 0x05, 0xF6, 0x20, 0xEC, 0x80, 0x7F},
     R"({"srl":{"srl":2.8125},"srr":{"srr":5},"sam":{"sam":-10},"prl":{"prl":1.40625},"pam":{"pam":-20},)"
     R"("rpd":{"rpd":-0.5},"apd":{"apd":2.79052734375}})"},
    {48130, {0x12, 0xFF, 0xFF}, R"({"prl":{"prl":11.2060546875},"apd":{"apd":-0.02197265625}})"},
    {48130, {0x0C, 0x7F, 0x7F}, R"({"pam":{"pam":127},"rpd":{"rpd":0.49609375}})"},
    // I048/170: first octet only, then with the extension (TRE, SUP; GHO, TCC).
    {48170, {0xDC}, R"({"cnf":1,"rad":2,"dou":1,"mah":1,"cdm":2})"},
    {48170, {0x21, 0xA0}, R"({"cnf":0,"rad":1,"dou":0,"mah":0,"cdm":0,"tre":1,"gho":0,"sup":1,"tcc":0})"},
    {48170, {0x67, 0x5E}, R"({"cnf":0,"rad":3,"dou":0,"mah":0,"cdm":3,"tre":0,"gho":1,"sup":0,"tcc":1})"},
    // I048/210.
    {48210, {0x80, 0x01, 0x04, 0x10}, R"({"sigx":1,"sigy":0.0078125,"sigv":0.87890625,"sigh":1.40625})"},
    {48210, {0xFF, 0x00, 0xFF, 0xFF}, R"({"sigx":1.9921875,"sigy":0,"sigv":56.0302734375,"sigh":22.412109375})"},
    // I048/230: COM 4, STAT 5; then the codes that fold to "undefined" and SI.
    {48230, {0x94, 0xAD}, R"({"com":4,"stat":5,"si":0,"mssc":1,"arc":0,"aic":1,"b1a":0,"b1b":13})"},
    {48230, {0xFA, 0x50}, R"({"com":7,"stat":8,"si":1,"mssc":0,"arc":1,"aic":0,"b1a":1,"b1b":0})"},
    // I048/260: ARA bit 9, RAT, MTE, threat type 1 and its address in bits 31-54.
    {48260, {0x30, 0x80, 0x00, 0x36, 0xAF, 0x37, 0xBC},
     R"({"bds":{"ara":1,"rac":0,"rat":1,"mte":1,"tti":1,"tid":"ABCDEF"}})"},
    // Items served by the common items keep the common items' fields.
    {48010, {0x19, 0x0D}, R"({"sac":25,"sic":13})"},
    {48140, {0x58, 0x78, 0x65}, R"({"tod":45296.7890625})"},
    {48070, {0xCA, 0x3F}, R"({"v":1,"g":1,"l":0,"mode3a":"5077"})"},
    {48080, {0x08, 0x00},
     R"({"qa4":1,"qa2":0,"qa1":0,"qb4":0,"qb2":0,"qb1":0,"qc4":0,"qc2":0,"qc1":0,"qd4":0,"qd2":0,"qd1":0})"},
    {48090, {0x05, 0x78}, R"({"v":0,"g":0,"fl":350})"},
    {48100, {0x84, 0x40, 0x00, 0x00},
     R"({"v":1,"g":0,"modec":"5000","qc1":0,"qa1":0,"qc2":0,"qa2":0,"qc4":0,"qa4":0,"qb1":0,"qd1":0,"qb2":0,)"
     R"("qd2":0,"qb4":0,"qd4":0})"},
    {48161, {0x01, 0x23}, R"({"trn":291})"},
    {48200, {0x08, 0x00, 0x40, 0x00}, R"({"gsp":450,"hdg":90})"},
    {48220, {0x3C, 0x65, 0x4A}, R"({"aa":"3C654A"})"},
    {48240, {0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20}, R"({"acid":"DLH123  "})"},
    {48250, {0x01, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x44},
     R"({"rep":1,"bds44":{"bds":"4,4","mb":"11223344556677"}})"},
    {48999, {0x03, 0xAB, 0xCD}, R"({"data":"ABCD"})"},
    {48998, {0x02, 0x00}, R"({"data":"00"})"},
};

TEST(Cat048Fields, JsonFromTheWire) {
    for (const JsonCase &c : kJson) {
        EXPECT_EQ(ast_dataitem_has_fields(c.id), 1) << c.id;
        EXPECT_EQ(json(span(c.wire, c.id)), c.expected) << c.id;
    }
}

// Spans that do not decode as their item walk nothing and give no JSON.
TEST(Cat048Fields, SpansThatDoNotDecodeGiveNothing) {
    const struct {
        AstItemId id;
        Octets wire;
    } bad[] = {
        {48020, {}},                                      // empty
        {48030, Octets(24, 0x02)},                        // more codes than the item holds
        {48040, {0x00, 0x01, 0x02}},                      // fixed lengths, one short or one long
        {48042, {0x00, 0x01, 0x02, 0x03, 0x04}},
        {48050, {0x0F}},
        {48110, {0x00, 0x01, 0x02}},
        {48120, {0xC0, 0x00, 0x01, 0x02}},                // RDS beyond the item
        {48130, {0xE0, 0x40}},                            // SRR and SAM beyond the item
        {48130, {0x00}},                                  // a primary subfield without bits
        {48170, {}},
        {48210, {0x01, 0x02, 0x03}},
        {48230, {0x94}},
        {48260, {0x30, 0x80, 0x00, 0x34, 0xAB, 0xCD}},
    };
    int visits = 0;
    const auto count = [](void *n, const AstField *) {
        ++*static_cast<int *>(n);
        return 1;
    };
    for (const auto &b : bad) {
        const AstDataItem item = span(b.wire, b.id);
        char buf[64] = "junk";
        EXPECT_EQ(ast_dataitem_get_fields_json(buf, sizeof buf, &item), 0u) << b.id;
        EXPECT_STREQ(buf, "") << b.id;
        EXPECT_EQ(ast_dataitem_walk_fields(&item, count, &visits), AST_FIELDS_INVALID) << b.id;
    }
    // A span marked invalid, and octets of one item under another's id.
    const Octets o = {0xA0};
    for (const AstDataItem &item : {AstDataItem{o.data(), 1, 48020, 0}, AstDataItem{o.data(), 1, 48040, 1}}) {
        EXPECT_EQ(ast_dataitem_walk_fields(&item, count, &visits), AST_FIELDS_INVALID) << item.id;
    }
    EXPECT_EQ(visits, 0);
}

// A leaf of a walk: its dotted path and its value (texts copied).
struct Leaf {
    std::string path;
    AstField value;
    std::string text;
};

struct Collector {
    std::vector<std::string> groups;
    std::vector<Leaf> leaves;
    int in_array = 0;  // array elements cannot be set one by one
};

int collect(void *context, const AstField *f) {
    auto &c = *static_cast<Collector *>(context);
    switch (f->kind) {
    case AST_FIELD_ARRAY_BEGIN: ++c.in_array; return 1;
    case AST_FIELD_ARRAY_END: --c.in_array; return 1;
    case AST_FIELD_GROUP_BEGIN: c.groups.push_back(f->name ? f->name : ""); return 1;
    case AST_FIELD_GROUP_END: c.groups.pop_back(); return 1;
    default: break;
    }
    if (c.in_array > 0 || f->kind == AST_FIELD_OCTETS) return 1;
    std::string path;
    for (const std::string &g : c.groups) path += g + ".";
    Leaf leaf{path + f->name, *f, f->text ? std::string(f->text, f->length) : std::string()};
    c.leaves.push_back(leaf);
    return 1;
}

// Decodes the wire into fields, sets every field into a fresh structure and
// encodes it; the result must be the wire again.
Octets through_fields(AstItemId id, const Octets &wire) {
    Collector c;
    const AstDataItem item = span(wire, id);
    EXPECT_EQ(ast_dataitem_walk_fields(&item, collect, &c), AST_FIELDS_DONE) << id;
    alignas(16) unsigned char storage[8192];
    const size_t size = ast_dataitem_fields_storage_size(id);
    EXPECT_TRUE(size > 0 && size <= sizeof storage) << id;
    EXPECT_EQ(ast_dataitem_fields_init(storage, size, id), 1) << id;
    for (Leaf &leaf : c.leaves) {
        leaf.value.text = leaf.text.data();
        EXPECT_EQ(ast_dataitem_fields_set(storage, size, id, leaf.path.c_str(), &leaf.value), AST_FIELD_SET_OK)
            << id << " " << leaf.path;
    }
    uint8_t out[64];
    AstDataItem written{};
    const AstDataItemValue value{1, id, storage};
    ast_dataitem_encode(&written, out, sizeof out, &value);
    if (written.valid != 1) return {};
    return Octets(out, out + written.length);
}

TEST(Cat048Fields, EncodersRoundTripThroughTheFields) {
    const struct {
        AstItemId id;
        Octets wire;
    } cases[] = {
        {48020, {0xA0}},
        {48020, {0xFE}},
        {48020, {0x39, 0xDA}},
        {48020, {0x01, 0x00}},  // octet 2 with nothing set stays
        {48020, {0x01, 0x01, 0x00}},
        {48020, {0xA1, 0x21, 0xE9, 0x97, 0x55, 0xA0}},
        {48020, {0x01, 0x01, 0xFD, 0xFF, 0xFD, 0xF0}},  // spare bits clear
        {48040, {0x0C, 0x81, 0x20, 0x01}},
        {48040, {0x00, 0x00, 0x00, 0x00}},
        {48040, {0xFF, 0xFF, 0xFF, 0xFF}},
        {48040, {0x00, 0x01, 0x00, 0x01}},
        {48050, {0xE1, 0x23}},
        {48050, {0x0F, 0xFF}},
        {48050, {0x80, 0x00}},
        // The items served by the common items.
        {48010, {0x19, 0x0D}},
        {48140, {0x58, 0x78, 0x65}},
        {48070, {0xCA, 0x3F}},
        {48090, {0x05, 0x78}},
        {48090, {0xC0, 0x01}},
        {48161, {0x01, 0x23}},
        {48200, {0x08, 0x00, 0x40, 0x00}},
        {48220, {0x3C, 0x65, 0x4A}},
        {48240, {0x10, 0xC2, 0x31, 0xCB, 0x38, 0x20}},
    };
    for (const auto &c : cases) EXPECT_EQ(through_fields(c.id, c.wire), c.wire) << c.id << " " << c.wire.size();
}

// Values beyond a field's wire width are refused and change nothing;
// values at the edge are taken. Setting a field of a subfield or of an
// extension makes it present.
TEST(Cat048Fields, SettingChecksTheWireWidths) {
    const auto number = [](int64_t v) {
        AstField f{};
        f.kind = AST_FIELD_SIGNED;
        f.i = v;
        return f;
    };
    const auto real = [](double v) {
        AstField f{};
        f.kind = AST_FIELD_REAL;
        f.real = v;
        return f;
    };
    const struct {
        AstItemId id;
        const char *path;
        AstField value;
        int result;
    } cases[] = {
        {48020, "typ", number(7), AST_FIELD_SET_OK},
        {48020, "typ", number(8), AST_FIELD_SET_OUT_OF_RANGE},
        {48020, "rdp", number(4), AST_FIELD_SET_OUT_OF_RANGE},
        {48020, "foe_fri", number(3), AST_FIELD_SET_OK},
        {48020, "foe_fri", number(4), AST_FIELD_SET_OUT_OF_RANGE},
        {48020, "sim", number(2), AST_FIELD_SET_OUT_OF_RANGE},
        {48020, "acasxv.val", number(15), AST_FIELD_SET_OK},
        {48020, "acasxv.val", number(16), AST_FIELD_SET_OUT_OF_RANGE},
        {48020, "adsb.val", number(2), AST_FIELD_SET_OUT_OF_RANGE},
        {48020, "adsb.foe", number(0), AST_FIELD_SET_UNKNOWN},
        {48030, "codes", number(1), AST_FIELD_SET_WRONG_KIND},
        {48030, "codes[22]", number(127), AST_FIELD_SET_OK},
        {48030, "codes[23]", number(1), AST_FIELD_SET_OUT_OF_RANGE},
        {48030, "codes[0]", number(128), AST_FIELD_SET_OUT_OF_RANGE},
        {48042, "x", real(-32768 * 14.46875), AST_FIELD_SET_OK},
        {48042, "y", real(32768 * 14.46875), AST_FIELD_SET_OUT_OF_RANGE},
        {48050, "mode2", number(07777), AST_FIELD_SET_OK},
        {48050, "mode2", number(010000), AST_FIELD_SET_OUT_OF_RANGE},
        {48120, "cal.cal", number(-512), AST_FIELD_SET_OK},
        {48120, "cal.cal", number(512), AST_FIELD_SET_OUT_OF_RANGE},
        {48120, "rds.frq", number(65536), AST_FIELD_SET_OUT_OF_RANGE},
        {48120, "rds.rep", number(256), AST_FIELD_SET_OUT_OF_RANGE},
        {48130, "sam.sam", number(-128), AST_FIELD_SET_OK},
        {48130, "sam.sam", number(-129), AST_FIELD_SET_OUT_OF_RANGE},
        {48130, "srl.srl", real(256 * 360.0 / 8192), AST_FIELD_SET_OUT_OF_RANGE},
        {48130, "rpd.rpd", real(0.5), AST_FIELD_SET_OUT_OF_RANGE},
        {48130, "srr", number(1), AST_FIELD_SET_READ_ONLY},
        {48170, "rad", number(4), AST_FIELD_SET_OUT_OF_RANGE},
        {48170, "cdm", number(3), AST_FIELD_SET_OK},
        {48210, "sigh", real(256 * 0.087890625), AST_FIELD_SET_OUT_OF_RANGE},
        {48230, "com", number(8), AST_FIELD_SET_OUT_OF_RANGE},
        {48230, "b1b", number(16), AST_FIELD_SET_OUT_OF_RANGE},
    };
    for (const auto &c : cases) {
        const size_t size = ast_dataitem_fields_storage_size(c.id);
        std::vector<unsigned char> storage(size), before(size);
        ASSERT_EQ(ast_dataitem_fields_init(storage.data(), size, c.id), 1) << c.id;
        before = storage;
        EXPECT_EQ(ast_dataitem_fields_set(storage.data(), size, c.id, c.path, &c.value), c.result)
            << c.id << " " << c.path;
        if (c.result != AST_FIELD_SET_OK) {
            EXPECT_EQ(storage, before) << c.id << " " << c.path;
        }
    }

    // A field of an absent subfield or extension brings it along.
    AstItem048_130 plot;
    ASSERT_EQ(ast_dataitem_fields_init(&plot, sizeof plot, 48130), 1);
    const AstField apd = real(-0.5);
    ASSERT_EQ(ast_dataitem_fields_set(&plot, sizeof plot, 48130, "apd.apd", &apd), AST_FIELD_SET_OK);
    EXPECT_TRUE(plot.apd_present == 1 && plot.apd_raw == -23 && plot.rpd_present == 0);
    AstItem048_170 status;
    ASSERT_EQ(ast_dataitem_fields_init(&status, sizeof status, 48170), 1);
    EXPECT_TRUE(status.rad == 3 && status.cdm == 3 && status.ext_present == 0);
    const AstField one = number(1);
    ASSERT_EQ(ast_dataitem_fields_set(&status, sizeof status, 48170, "gho", &one), AST_FIELD_SET_OK);
    EXPECT_TRUE(status.ext_present == 1 && status.gho == 1);
}

// I048/020 written from fields set on its defaults: the item runs up to the
// last extension that holds something, FX bits following.
TEST(Cat048Fields, DescriptorEncodesItsExtensions) {
    const struct {
        std::vector<std::pair<const char *, int64_t>> fields;
        Octets wire;
    } cases[] = {
        {{}, {0x00}},
        {{{"typ", 7}, {"rdp", 2}}, {0xE8}},
        {{{"tst", 1}}, {0x01, 0x80}},
        {{{"foe_fri", 0}}, {0x01, 0x00}},
        {{{"err", 1}, {"xpp", 1}}, {0x01, 0x60}},
        {{{"pai.val", 1}}, {0x01, 0x01, 0x04}},
        {{{"acasxv.val", 9}}, {0x01, 0x01, 0x01, 0x48}},
        {{{"irmact.val", 1}}, {0x01, 0x01, 0x01, 0x01, 0x01, 0x10}},
        {{{"spi", 1}, {"dtfxpr.ep", 1}}, {0x05, 0x01, 0x01, 0x01, 0x20}},
    };
    for (const auto &c : cases) {
        AstItem048_020 d;
        ASSERT_EQ(ast_dataitem_fields_init(&d, sizeof d, 48020), 1);
        EXPECT_TRUE(d.valid == 1 && d.rdp == 1);  // defaults, ready to encode
        for (const auto &[path, v] : c.fields) {
            AstField f{};
            f.kind = AST_FIELD_UNSIGNED;
            f.u = static_cast<uint64_t>(v);
            ASSERT_EQ(ast_dataitem_fields_set(&d, sizeof d, 48020, path, &f), AST_FIELD_SET_OK) << path;
        }
        uint8_t out[8];
        AstDataItem written{};
        ast_dataitem_048_020_encode(&written, out, sizeof out, &d);
        ASSERT_EQ(written.valid, 1) << c.wire.size();
        EXPECT_EQ(Octets(out, out + written.length), c.wire);
        // The buffer one octet short writes nothing.
        ast_dataitem_048_020_encode(&written, out, c.wire.size() - 1, &d);
        EXPECT_EQ(written.valid, 0);
    }
}

// I048/120 decodes into its own structure through the dispatch.
TEST(Cat048Fields, DopplerSpeedStructure) {
    const Octets o = {0xC0, 0x83, 0xFF, 0x01, 0x00, 0x64, 0x03, 0xE8, 0x13, 0x88};
    const AstDataItem item = span(o, 48120);
    std::vector<unsigned char> storage(sizeof(AstItem048_120) + 8, 0xC3);
    AstDataItemValue v;
    ast_dataitem_decode(&v, storage.data(), sizeof(AstItem048_120) - 1, &item);
    EXPECT_TRUE(v.valid == 0 && v.value == nullptr);
    EXPECT_EQ(storage, std::vector<unsigned char>(sizeof(AstItem048_120) + 8, 0xC3));
    ast_dataitem_decode(&v, storage.data(), sizeof(AstItem048_120), &item);
    ASSERT_TRUE(v.valid == 1 && v.value == storage.data());
    AstItem048_120 d;
    std::memcpy(&d, storage.data(), sizeof d);
    EXPECT_TRUE(d.subfields.valid == 1 && d.subfields.span_count == 2 && d.subfields.spans[1].data == o.data() + 3);
    EXPECT_TRUE(d.cal_present == 1 && d.d == 1 && d.cal == -1 && d.rds_present == 1 && d.frq == 5000);
    EXPECT_EQ(storage.back(), 0xC3);

    // Another identifier, or a span marked invalid: the empty form.
    for (const AstDataItem &bad : {span(o, 48130), AstDataItem{o.data(), o.size(), 48120, 0}}) {
        AstItem048_120 x;
        std::memset(&x, 0xA5, sizeof x);
        ast_dataitem_048_120_decode(&x, &bad);
        EXPECT_TRUE(x.valid == 0 && x.subfields.valid == 0 && x.cal_present == 0 && x.rds_present == 0);
    }
}

}  // namespace
