// CAT001's own items and records: summaries and the spans that must not
// decode, encode and field round trips, refused values, the disassembled
// record with its UAP choice, and the record accessors.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kovrel/cat001.h"
#include "kovrel/datarecord.h"
#include "kovrel/fields.h"
#include "kovrel/uap.h"
#include "support/log_capture.h"
#include "support/served.h"

using kovrel_test::LogCapture;
using kovrel_test::Octets;

namespace {

struct Summary {
    AstItemId id;
    Octets wire;
    const char *text;
};

std::string summary_of(const AstDataItem &item) {
    char text[256];
    ast_dataitem_get_summary(text, sizeof text, &item);
    return text;
}

AstDataItem scanned(AstItemId id, const Octets &o) {
    AstDataItem item;
    ast_dataitem_scan(&item, o.data(), o.size(), id);
    return item;
}

TEST(Cat001Items, SummariesFromTheWire) {
    const Summary cases[] = {
        // TYP, SSR/PSR 3, ANT bit; octet 2: TST and ME.
        {1020, {0xb9, 0x90}, "TYPE:TRACK PSR+SSR ANT2 TST ME"},
        {1020, {0x46}, "TYPE:PLOT NO_DETECTION SIM ANT1 SPI RAB"},
        {1020, {0x21, 0x08}, "TYPE:PLOT SSR ANT1 MI"},
        {1030, {0x00}, "W/E:NO_ERROR"},
        // Only octet 1's code is read.
        {1030, {0x0b, 0x02}, "W/E:5"},
        {1040, {0x01, 0x00, 0x40, 0x00}, "RHO:2.0 THETA:90.0"},
        {1040, {0xff, 0xff, 0xff, 0xff}, "RHO:512.0 THETA:360.0"},
        // X and Y are signed, 1/64 NM, printed in metres.
        {1042, {0xff, 0xc0, 0x00, 0x40}, "X:-1852.0 Y:1852.0 LSB:M"},
        {1120, {0xff}, "DOP:-14.1KT"},
        {1120, {0x7f}, "DOP:1785.9KT"},
        {1120, {0x80}, "DOP:-1800.0KT"},
        {1131, {0xf6}, "PWR:-10 dBm"},
        {1131, {0x7f}, "PWR:127 dBm"},
        {1141, {0x00, 0x80}, "TTOD:001.000"},
        {1141, {0xff, 0xff}, "TTOD:511.992"},
        {1141, {0x00, 0x40}, "TTOD:000.500"},
        {1150, {0x00}, "X:NONE"},
        {1150, {0xa4}, "X:XA XC X2"},
        {1150, {0x20}, "X:XC"},
        {1150, {0x5b}, "X:NONE"},  // spare bits only
        {1170, {0x40}, "TYPE:SSR_CMB"},
        {1170, {0xbf, 0x80}, "TYPE:PSR"},
        {1210, {0x0a}, "Q1:5"},
        {1210, {0x0b, 0x14}, "Q1:5 Q2:10"},
        {1210, {0x03, 0x05, 0x06}, "Q1:1 Q2:2"},
        {1901, {0xc0}, "PLOT TSM PE"},
        {1901, {0x03, 0x10}, "PLOT"},
        {1902, {0x50}, "AMP:40dB"},
        {1903, {0xff, 0x81, 0x29, 0x0e}, "PLOT MNT PE WET RAG A3 AAZ AEO SPL AMP:20dB CONF:7"},
        {1903, {0x80}, "PLOT MNT"},
        {1903, {0x05, 0x00}, "PLOT AAZ"},
        {1904, {0x15, 0x51, 0x0c}, "TQ:10 PEAK:40dB AZEXT:6"},
        {1904, {0x15, 0x50}, "TQ:10 PEAK:40dB"},
        {1904, {0x14}, "TQ:10"},
    };
    LogCapture log;
    for (const Summary &c : cases) {
        const AstDataItem item = scanned(c.id, c.wire);
        ASSERT_EQ(item.valid, 1) << c.id;
        ASSERT_EQ(item.length, c.wire.size()) << c.id;
        EXPECT_EQ(summary_of(item), c.text) << c.id;
    }
}

// Spans of a wrong length or identifier decode to nothing: no summary, no
// detail view, no structured value.
TEST(Cat001Items, SpansThatDoNotDecode) {
    struct Bad {
        AstItemId id;
        Octets wire;
    };
    const Bad cases[] = {
        {1040, {0x00, 0x01, 0x02}},
        {1040, {0x00, 0x01, 0x02, 0x03, 0x04}},
        {1042, {0x00, 0x01, 0x02}},
        {1120, {0x01, 0x02}},
        {1131, {}},
        {1150, {0xa4, 0x00}},
        {1141, {0x00}},
        {1141, {0x00, 0x80, 0x00}},
        {1130, {0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x00}},  // seven octets
        {1130, {}},
        {1030, {0x01, 0x01, 0x00}},
        {1020, {0x01, 0x01, 0x00}},
        {1170, {0x01, 0x01, 0x00}},
        {1210, Octets(13, 0x01)},
        {1904, Octets(12, 0x01)},
        {1901, Octets(7, 0x01)},
    };
    LogCapture log;
    for (const Bad &c : cases) {
        const AstDataItem item{c.wire.data(), c.wire.size(), c.id, 1};
        EXPECT_EQ(summary_of(item), "") << c.id;
        char detail[1024];
        ast_dataitem_get_detail_html(detail, sizeof detail, &item);
        EXPECT_STREQ(detail, "") << c.id;
        alignas(16) unsigned char storage[512];
        AstDataItemValue v;
        ast_dataitem_decode(&v, storage, sizeof storage, &item);
        EXPECT_EQ(v.valid, 0) << c.id;
    }

    // The right length under another identifier, and a span not marked valid.
    const Octets four{0x01, 0x00, 0x40, 0x00};
    AstItem001_040 polar;
    const AstDataItem foreign{four.data(), four.size(), 48040, 1};
    ast_dataitem_001_040_decode(&polar, &foreign);
    EXPECT_EQ(polar.valid, 0);
    EXPECT_EQ(polar.rho.raw, 0u);
    const AstDataItem unread{four.data(), four.size(), 1040, 0};
    ast_dataitem_001_040_decode(&polar, &unread);
    EXPECT_EQ(polar.valid, 0);

    // The seven-octet I001/130 through its own decoder.
    const Octets seven(7, 0x03);
    AstItem001_130 characteristics;
    const AstDataItem long_chain{seven.data(), seven.size(), 1130, 1};
    ast_dataitem_001_130_decode(&characteristics, &long_chain);
    EXPECT_EQ(characteristics.valid, 0);
    EXPECT_EQ(characteristics.count, 0u);
}

TEST(Cat001Items, DecodedValues) {
    AstItem001_020 d;
    const Octets descriptor{0xb9, 0x90};
    const AstDataItem di = scanned(1020, descriptor);
    ast_dataitem_001_020_decode(&d, &di);
    EXPECT_EQ((std::vector<uint32_t>{d.valid, d.typ, d.sim, d.ssr_psr, d.ant, d.spi, d.rab, d.tst, d.ds1ds2, d.me,
                                     d.mi, d.ext1_present}),
              (std::vector<uint32_t>{1, 1, 0, 3, 2, 0, 0, 1, 0, 1, 0, 1}));

    AstItem001_170 s;
    const Octets status{0x49, 0x80};
    const AstDataItem si = scanned(1170, status);
    ast_dataitem_001_170_decode(&s, &si);
    EXPECT_EQ((std::vector<uint32_t>{s.valid, s.con, s.rad, s.man, s.dou, s.rdpc, s.gho, s.tre}),
              (std::vector<uint32_t>{1, 0, 1, 0, 0, 2, 0, 1}));

    AstItem001_141 t;
    const Octets ttod{0x01, 0xc1};  // 3 s and 65/128 s
    const AstDataItem ti = scanned(1141, ttod);
    ast_dataitem_001_141_decode(&t, &ti);
    EXPECT_EQ((std::vector<uint32_t>{t.raw, t.seconds, t.milliseconds}), (std::vector<uint32_t>{0x1c1, 3, 507}));

    AstItem001_042 c;
    const Octets cartesian{0x80, 0x00, 0x7f, 0xff};
    const AstDataItem ci = scanned(1042, cartesian);
    ast_dataitem_001_042_decode(&c, &ci);
    EXPECT_EQ(c.x.raw, -32768);
    EXPECT_DOUBLE_EQ(c.x.value, -512.0);
    EXPECT_EQ(c.y.raw, 32767);
    EXPECT_DOUBLE_EQ(c.y.lsb, 1.0 / 64.0);

    AstItem001_120 dop;
    const Octets doppler{0xfe};
    const AstDataItem dpi = scanned(1120, doppler);
    ast_dataitem_001_120_decode(&dop, &dpi);
    EXPECT_EQ(dop.raw, -2);
    EXPECT_DOUBLE_EQ(dop.value, -28.125);
}

// Field visitor: the item's own leaves by name, as they were walked.
struct Leaf {
    std::string name;
    AstField field;
    std::string text;
};

int collect(void *context, const AstField *f) {
    auto *leaves = static_cast<std::vector<Leaf> *>(context);
    if (f->name && f->depth == 0) leaves->push_back({f->name, *f, f->text ? std::string(f->text, f->length) : ""});
    return 1;
}

// Every encodable item gives back its octets twice: from its decoded
// structure, and from nothing but its named fields set over the defaults.
TEST(Cat001Items, EncodeAndFieldRoundTrips) {
    struct Trip {
        AstItemId id;
        Octets wire;
    };
    const Trip cases[] = {
        {1020, {0x46}},
        {1020, {0xb9, 0x90}},
        {1020, {0x21, 0x00}},  // octet 2 of zeros stays
        {1030, {0x0a}},
        {1040, {0xff, 0xfe, 0x80, 0x01}},
        {1042, {0xff, 0xc0, 0x7f, 0xff}},
        {1120, {0x80}},
        {1120, {0x7f}},
        {1130, {0x41, 0x20}},
        {1130, {0x03, 0x05, 0x07, 0x09, 0x0b, 0xfe}},
        {1131, {0xf6}},
        {1141, {0xff, 0xff}},
        {1150, {0xa4}},
        {1150, {0x80}},
        {1170, {0x49, 0x80}},
        {1170, {0xfa}},
        {1210, {0x0a}},
        {1210, {0x0b, 0x15, 0x17, 0x19, 0x1b, 0x1d, 0x1f, 0x21, 0x23, 0x25, 0x27, 0xfe}},
        {1010, {0x08, 0x11}},
        {1161, {0xf1, 0x23}},
        {1070, {0x0f, 0xff}},
    };
    for (const Trip &c : cases) {
        SCOPED_TRACE(testing::Message() << "item " << c.id);
        const AstDataItem item = scanned(c.id, c.wire);
        ASSERT_EQ(item.length, c.wire.size());
        alignas(16) unsigned char storage[512];
        AstDataItemValue v;
        ast_dataitem_decode(&v, storage, sizeof storage, &item);
        ASSERT_EQ(v.valid, 1);
        uint8_t buffer[32];
        AstDataItem out;
        ast_dataitem_encode(&out, buffer, sizeof buffer, &v);
        ASSERT_EQ(out.valid, 1);
        EXPECT_EQ(Octets(buffer, buffer + out.length), c.wire);
        // One octet short writes nothing.
        ast_dataitem_encode(&out, buffer, c.wire.size() - 1, &v);
        EXPECT_EQ(out.valid, 0);

        std::vector<Leaf> leaves;
        ASSERT_EQ(ast_dataitem_walk_fields(&item, collect, &leaves), AST_FIELDS_DONE);
        ASSERT_FALSE(leaves.empty());
        alignas(16) unsigned char fresh[512];
        ASSERT_EQ(ast_dataitem_fields_init(fresh, sizeof fresh, c.id), 1);
        for (Leaf &leaf : leaves) {
            AstField value = leaf.field;
            value.text = leaf.text.c_str();
            EXPECT_EQ(ast_dataitem_fields_set(fresh, sizeof fresh, c.id, leaf.name.c_str(), &value), AST_FIELD_SET_OK)
                << leaf.name;
        }
        const AstDataItemValue named{1, c.id, fresh};
        ast_dataitem_encode(&out, buffer, sizeof buffer, &named);
        ASSERT_EQ(out.valid, 1);
        EXPECT_EQ(Octets(buffer, buffer + out.length), c.wire);
    }
}

// Values a field cannot carry are refused by the encoders, and by the
// fields where the wire width says so.
TEST(Cat001Items, OutOfRangeValuesAreRefused) {
    uint8_t buffer[32];
    AstDataItem out;
    auto refused = [&](AstItemId id, const void *value) {
        const AstDataItemValue v{1, id, const_cast<void *>(value)};
        std::memset(buffer, 0x5a, sizeof buffer);
        ast_dataitem_encode(&out, buffer, sizeof buffer, &v);
        return out.valid == 0 && out.length == 0 && buffer[0] == 0x5a;
    };
    AstItem001_020 d{};
    d.valid = 1;
    d.ant = 3;
    EXPECT_TRUE(refused(1020, &d));
    d.ant = 1;
    d.ssr_psr = 4;
    EXPECT_TRUE(refused(1020, &d));
    const AstItem001_030 w{1, 128};
    EXPECT_TRUE(refused(1030, &w));
    AstItem001_040 p{};
    p.valid = 1;
    p.theta.raw = 0x10000;
    EXPECT_TRUE(refused(1040, &p));
    AstItem001_042 c{};
    c.valid = 1;
    c.y.raw = -32769;
    EXPECT_TRUE(refused(1042, &c));
    const AstItem001_120 dop{1, 128, 0.0};
    EXPECT_TRUE(refused(1120, &dop));
    const AstItem001_131 pwr{1, -129};
    EXPECT_TRUE(refused(1131, &pwr));
    const AstItem001_150 x{1, 2, 0, 0};
    EXPECT_TRUE(refused(1150, &x));
    AstItem001_170 s{};
    s.valid = 1;  // RDPC 0 is no chain
    EXPECT_TRUE(refused(1170, &s));
    AstItem001_130 ch{};
    ch.valid = 1;
    EXPECT_TRUE(refused(1130, &ch));  // no octet at all
    ch.count = 7;
    EXPECT_TRUE(refused(1130, &ch));
    ch.count = 2;
    ch.values[1] = 128;
    EXPECT_TRUE(refused(1130, &ch));
    AstItem001_210 q{};
    q.valid = 1;
    q.count = 13;
    EXPECT_TRUE(refused(1210, &q));

    alignas(16) unsigned char storage[512];
    ASSERT_EQ(ast_dataitem_fields_init(storage, sizeof storage, 1120), 1);
    AstField f{};
    f.kind = AST_FIELD_REAL;
    f.real = 128 * 14.0625;
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 1120, "dop", &f), AST_FIELD_SET_OUT_OF_RANGE);
    f.real = -128 * 14.0625;
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 1120, "dop", &f), AST_FIELD_SET_OK);
    ASSERT_EQ(ast_dataitem_fields_init(storage, sizeof storage, 1040), 1);
    f.real = 512.0;
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 1040, "rho", &f), AST_FIELD_SET_OUT_OF_RANGE);
    f.real = 511.0;
    EXPECT_EQ(ast_dataitem_fields_set(storage, sizeof storage, 1040, "rho", &f), AST_FIELD_SET_OK);
}

TEST(Cat001Items, DetailViews) {
    struct Detail {
        AstItemId id;
        Octets wire;
        std::vector<const char *> has;
    };
    const Detail cases[] = {
        {1020, {0xb9, 0x90}, {"ANTENNA", "ANT2", "TEST_TARGET", "DS1_DS2"}},
        {1040, {0x01, 0x00, 0x40, 0x00}, {"RHO LSB=1/128NM", "256", "90.000"}},
        {1042, {0xff, 0xc0, 0x00, 0x40}, {"X LSB=1/64NM", "-64", "-1852.0"}},
        {1141, {0x00, 0x80}, {"SECONDS", "MILLISECONDS"}},
        {1170, {0x49, 0x80}, {"CHN2", "TRACK_END", "SSR_CMB"}},
        {1130, {0x41, 0x20}, {"Octet[2]", "CHARACTERISTIC"}},
        {1903, {0xff, 0x81, 0x29, 0x0e}, {"SPL", "AMPLITUDE LSB=DB", "CONFIDENCE"}},
        {1904, {0x15, 0x51, 0x0d, 0x02}, {"AZIMUTH_EXTENT", "Octet[4]"}},
    };
    for (const Detail &c : cases) {
        const AstDataItem item = scanned(c.id, c.wire);
        char text[4096];
        ast_dataitem_get_detail_html(text, sizeof text, &item);
        for (const char *s : c.has) EXPECT_NE(std::strstr(text, s), nullptr) << c.id << " lacks " << s;
    }
    // Rows of octet 2 of I001/020 only when it is there.
    const Octets plot{0x46};
    const AstDataItem one = scanned(1020, plot);
    char text[4096];
    ast_dataitem_get_detail_html(text, sizeof text, &one);
    EXPECT_NE(std::strstr(text, "ANT1"), nullptr);
    EXPECT_EQ(std::strstr(text, "TEST_TARGET"), nullptr);
}

// ---- Records ------------------------------------------------------------

// A plot (plot UAP): 010 020 040 070 090 130 141 | 050 120 131 080 060 030 | 150.
const Octets kPlot = {0xff, 0xf7, 0x80, 0x08, 0x11, 0x26, 0x01, 0x00, 0x40, 0x00, 0x02, 0x9a, 0x00, 0xa0,
                      0x41, 0x20, 0x12, 0x34, 0x01, 0x23, 0xff, 0xf6, 0x00, 0x00, 0x00, 0x01, 0x0a, 0xa4};
// A track (standard UAP): 010 020 161 040 042 200 070 | 090 141 130 131 120 170 210 | 050 080 060 030.
const Octets kTrack = {0xff, 0xff, 0xd8, 0x08, 0x11, 0xb9, 0x90, 0x12, 0x34, 0x20, 0x00, 0x80, 0x00, 0xff,
                       0xc0, 0x00, 0x40, 0x00, 0x80, 0x20, 0x00, 0x0f, 0xff, 0x01, 0x40, 0x00, 0x80, 0x03,
                       0x05, 0x06, 0x7f, 0x80, 0x49, 0x80, 0x0b, 0x14, 0x01, 0x23, 0x00, 0x10, 0x00, 0x00,
                       0x0a};

AstDataRecord decoded(const Octets &o, const AstUap *uap) {
    AstDataRecord r;
    ast_datarecord_decode(&r, o.data(), o.size(), 1, uap);
    return r;
}

TEST(Cat001Record, DisassembleAndAssembleGiveTheSameOctets) {
    struct Case {
        const Octets *wire;
        const AstUap *uap;
        size_t items;
    };
    for (const Case &c : {Case{&kPlot, &AST_UAP_CAT001_PLOT, 14}, Case{&kTrack, &AST_UAP_STANDARD, 18}}) {
        const AstDataRecord r = decoded(*c.wire, c.uap);
        ASSERT_EQ(r.valid, 1);
        ASSERT_EQ(r.item_count, c.items);
        AstRecord001 rec;
        ast_datarecord_001_disassemble(&rec, &r);
        ASSERT_EQ(rec.valid, 1);
        // The assembler picks the UAP from the content, not from the caller.
        std::vector<uint8_t> buffer(c.wire->size() + 8, 0x5a);
        AstDataRecord out;
        ast_datarecord_001_assemble(&out, buffer.data(), buffer.size(), &rec, nullptr);
        ASSERT_EQ(out.valid, 1);
        EXPECT_EQ(Octets(out.data, out.data + out.length), *c.wire);
        // One octet short: invalid, nothing past the buffer.
        std::vector<uint8_t> tight(c.wire->size() + 4, 0x5a);
        ast_datarecord_001_assemble(&out, tight.data(), c.wire->size() - 1, &rec, nullptr);
        EXPECT_EQ(out.valid, 0);
        EXPECT_EQ(tight[c.wire->size() - 1], 0x5a);
    }

    const AstDataRecord track = decoded(kTrack, &AST_UAP_STANDARD);
    AstRecord001 rec;
    ast_datarecord_001_disassemble(&rec, &track);
    EXPECT_EQ(rec.i161.number, 0x1234u);
    EXPECT_EQ(rec.i020.ant, 2u);
    EXPECT_EQ(rec.i210.count, 2u);
    EXPECT_EQ(rec.i120.raw, -128);
    EXPECT_EQ(rec.i040.rho.raw, 0x2000u);
    EXPECT_EQ(rec.i150.valid, 0u);

    // A plot's content with a track number becomes a track: FRN 3 is I001/161.
    const AstDataRecord plot = decoded(kPlot, &AST_UAP_CAT001_PLOT);
    ast_datarecord_001_disassemble(&rec, &plot);
    rec.i150.valid = 0;  // FRN 22 of the track UAP is never written
    rec.i161 = AstTrackNumber{1, 7, 0};
    uint8_t buffer[64];
    AstDataRecord out;
    ast_datarecord_001_assemble(&out, buffer, sizeof buffer, &rec, nullptr);
    ASSERT_EQ(out.valid, 1);
    const Octets written(out.data, out.data + out.length);
    const AstDataRecord back = decoded(written, &AST_UAP_STANDARD);
    ASSERT_EQ(back.valid, 1);
    ASSERT_EQ(back.item_count, 14u);
    EXPECT_EQ(back.items[2].id, 1161u);
    EXPECT_EQ(back.items[3].id, 1040u);

    // A value out of its field makes the whole record invalid.
    rec.i131.power = 200;
    ast_datarecord_001_assemble(&out, buffer, sizeof buffer, &rec, nullptr);
    EXPECT_EQ(out.valid, 0);
    rec.i131.power = -20;

    // Members the chosen layout has no place for make the record invalid
    // rather than vanish: track items in a plot, I001/150 in a track, a
    // standard item in the ASR-10SS layout named by the caller.
    const struct {
        const char *what;
        void (*change)(AstRecord001 &);
        const AstUap *uap;
    } misplaced[] = {
        {"I001/042 in a plot", [](AstRecord001 &r) { r.i161.valid = 0; r.i042 = {1, {64, 0, 0}, {-64, 0, 0}}; }, nullptr},
        {"I001/170 in a plot", [](AstRecord001 &r) { r.i161.valid = 0; r.i170.valid = 1; r.i170.rdpc = 1; }, nullptr},
        {"I001/150 in a track", [](AstRecord001 &r) { r.i150 = {1, 1, 0, 0}; }, nullptr},
        {"I001/130 under ASR-10SS", [](AstRecord001 &) {}, &AST_UAP_ASR10SS},
    };
    for (const auto &m : misplaced) {
        AstRecord001 changed = rec;
        m.change(changed);
        ast_datarecord_001_assemble(&out, buffer, sizeof buffer, &changed, m.uap);
        EXPECT_EQ(out.valid, 0) << m.what;
    }
    ast_datarecord_001_assemble(&out, buffer, sizeof buffer, &rec, nullptr);
    EXPECT_EQ(out.valid, 1);
}

TEST(Cat001Record, ItemsWithoutMemberOrEncoder) {
    // 010, then SPF: "Special" fields have no member and are skipped with a log.
    const Octets spf = {0x81, 0x01, 0x04, 0x08, 0x11, 0x02, 0xaa};
    AstDataRecord r = decoded(spf, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    LogCapture log;
    AstRecord001 rec;
    ast_datarecord_001_disassemble(&rec, &r);
    EXPECT_EQ(rec.valid, 1);
    EXPECT_EQ(rec.i010.sac, 8u);
    EXPECT_TRUE(log.contains(AST_LOG_DEBUG, "Failed to disassemble dataitem I001/SPF."));

    // I001/100 decodes into its member but cannot be written back.
    const Octets with100 = {0x81, 0x01, 0x20, 0x08, 0x11, 0x00, 0x50, 0x00, 0x00};
    r = decoded(with100, &AST_UAP_STANDARD);
    ASSERT_EQ(r.valid, 1);
    ast_datarecord_001_disassemble(&rec, &r);
    EXPECT_EQ(rec.i100.valid, 1u);
    uint8_t buffer[64];
    AstDataRecord out;
    ast_datarecord_001_assemble(&out, buffer, sizeof buffer, &rec, nullptr);
    EXPECT_EQ(out.valid, 0);

    // Another category disassembles to nothing.
    AstDataRecord other = decoded(kPlot, &AST_UAP_CAT001_PLOT);
    other.category = 48;
    ast_datarecord_001_disassemble(&rec, &other);
    EXPECT_EQ(rec.valid, 0);
}

TEST(Cat001Record, Accessors) {
    struct Case {
        const char *name;
        AstDataRecord record;
        uint32_t msgtype;
        uint32_t sac, sic;
        uint32_t tracknum_valid, tracknum;
        uint32_t squawk;
        double feet;
        double rho, theta;
    };
    const Case cases[] = {
        {"plot", decoded(kPlot, &AST_UAP_CAT001_PLOT), 3, 8, 17, 0, 0, 01232, 4000.0, 2.0, 90.0},
        // TYP says track in both, I001/161 decides.
        {"track", decoded(kTrack, &AST_UAP_STANDARD), 4, 8, 17, 1, 0x1234, 07777, 8000.0, 64.0, 180.0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_EQ(c.record.valid, 1);
        AstRecordMsgType m;
        ast_datarecord_001_get_msgtype(&m, &c.record);
        EXPECT_EQ(m.valid, 1u);
        EXPECT_EQ(m.value, c.msgtype);
        AstDataSourceIdentifier ds;
        ast_datarecord_001_get_sacsic(&ds, &c.record);
        EXPECT_EQ(ds.sac, c.sac);
        EXPECT_EQ(ds.sic, c.sic);
        AstTrackNumber tn;
        ast_datarecord_001_get_tracknum(&tn, &c.record);
        EXPECT_EQ(tn.valid, c.tracknum_valid);
        EXPECT_EQ(tn.number, c.tracknum);
        AstMode3aCode sq;
        ast_datarecord_001_get_squawk(&sq, &c.record);
        EXPECT_EQ(sq.valid, 1u);
        EXPECT_EQ(sq.code, c.squawk);
        AstRecordValue fl;
        ast_datarecord_001_get_flightlevel(&fl, &c.record);
        EXPECT_EQ(fl.valid, 1u);
        EXPECT_DOUBLE_EQ(fl.value, c.feet);
        AstRecordPolar pc;
        ast_datarecord_001_get_polarcoord(&pc, &c.record);
        EXPECT_EQ(pc.valid, 1u);
        EXPECT_DOUBLE_EQ(pc.rho, c.rho);
        EXPECT_DOUBLE_EQ(pc.theta, c.theta);
    }

    // An invalid record: every result invalid, SAC/SIC all ones.
    AstDataRecord bad = decoded(kPlot, &AST_UAP_CAT001_PLOT);
    bad.valid = 0;
    AstRecordMsgType m;
    ast_datarecord_001_get_msgtype(&m, &bad);
    EXPECT_EQ(m.valid, 0u);
    AstDataSourceIdentifier ds;
    ast_datarecord_001_get_sacsic(&ds, &bad);
    EXPECT_EQ(ds.sac, 0xFFFFFFFFu);
    EXPECT_EQ(ds.sic, 0xFFFFFFFFu);
    AstRecordPolar pc;
    ast_datarecord_001_get_polarcoord(&pc, &bad);
    EXPECT_EQ(pc.valid, 0u);
}

}  // namespace
