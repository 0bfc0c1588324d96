// The field mechanism on a structure of its own: every kind of row, the
// JSON text they give, and setting them by name.
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "kovrel/kovrel.h"
#include "record/field_desc.h"
#include "record/field_read.h"

namespace {

using namespace kovrel::fields;

struct Inner {
    uint8_t present;
    int32_t level;  // quarters
};

struct Element {
    uint16_t dop;
    int8_t amb;
};

struct Sample {
    uint32_t valid;
    uint8_t validated;  // the wire's V bit, inverted
    uint32_t code;      // octal
    uint32_t address;   // 24 bits
    uint32_t typ;
    int32_t x;          // 1/2 m
    double speed;
    char text[9];
    uint8_t raw[3];
    Inner inner;
    uint32_t count;
    uint32_t values[4];
    uint32_t element_count;
    Element elements[2];
    const uint8_t *data;
    uint64_t length;
};

const char *typ_name(uint32_t code) { return code == 1 ? "PSR" : nullptr; }

constexpr FieldRow kInnerRows[] = {scaled("fl", KOVREL_MEMBER(Inner, level), 0.25, "FL")};
constexpr FieldDesc kInner = describe<Inner>(kInnerRows);
constexpr FieldRow kValueRows[] = {integer(nullptr, Member{Store::U32, 0, 4})};
constexpr FieldDesc kValue = describe<uint32_t>(kValueRows);
constexpr FieldRow kElementRows[] = {integer("dop", KOVREL_MEMBER(Element, dop), "m/s"),
                                     integer("amb", KOVREL_MEMBER(Element, amb))};
constexpr FieldDesc kElement = describe<Element>(kElementRows);

constexpr FieldRow kRows[] = {
    flag("v", KOVREL_MEMBER(Sample, validated)).inverted(),
    integer("mode3a", KOVREL_MEMBER(Sample, code)).width(12).shown(AST_FIELD_FORMAT_OCTAL4),
    integer("aa", KOVREL_MEMBER(Sample, address)).width(24).shown(AST_FIELD_FORMAT_HEX6),
    enumeration("typ", KOVREL_MEMBER(Sample, typ), typ_name).width(3),
    scaled("x", KOVREL_MEMBER(Sample, x), 0.5, "m").width(16),
    real("speed", KOVREL_MEMBER(Sample, speed), "kt"),
    text("acid", KOVREL_MEMBER(Sample, text)),
    octets("tid", KOVREL_MEMBER(Sample, raw)),
    group("inner", KOVREL_MEMBER(Sample, inner), kInner).when(KOVREL_MEMBER(Sample, inner.present)),
    array("codes", KOVREL_MEMBER(Sample, values), KOVREL_MEMBER(Sample, count), sizeof(uint32_t), 4, kValue),
    array("rds", KOVREL_MEMBER(Sample, elements), KOVREL_MEMBER(Sample, element_count), sizeof(Element), 2,
          kElement),
    octets_at("data", KOVREL_MEMBER(Sample, data), KOVREL_MEMBER(Sample, length)),
};
constexpr FieldDesc kSample = describe<Sample>(kRows);

std::string json_of(const Sample &s, size_t size = 1024) {
    std::vector<char> buf(size + 1, '#');
    const size_t n = write_json(buf.data(), size, kSample, &s);
    return std::to_string(n) + " " + std::string(buf.data());
}

Sample full() {
    static const uint8_t data[] = {0xDE, 0xAD};
    Sample s{};
    s.valid = 1;
    s.validated = 1;
    s.code = 07700;
    s.address = 0x3C654A;
    s.typ = 1;
    s.x = -3;
    s.speed = 250.5;
    std::memcpy(s.text, "A\"B\\\x01\xE9", 7);
    s.raw[0] = 0x0A;
    s.raw[2] = 0xFF;
    s.inner = Inner{1, -5};
    s.count = 2;
    s.values[0] = 7;
    s.values[1] = 9;
    s.values[2] = 11;  // beyond count: not shown
    s.element_count = 1;
    s.elements[0] = Element{300, -1};
    s.data = data;
    s.length = 2;
    return s;
}

TEST(FieldMechanism, EveryKindOfRowAsJson) {
    const std::string all =
        R"({"v":0,"mode3a":"7700","aa":"3C654A","typ":1,"x":-1.5,"speed":250.5,"acid":"A\"B\\\u0001\u00e9",)"
        R"("tid":"0A00FF","inner":{"fl":-1.25},"codes":[7,9],"rds":[{"dop":300,"amb":-1}],"data":"DEAD"})";
    Sample s = full();
    EXPECT_EQ(json_of(s), std::to_string(all.size()) + " " + all);

    // An absent group, empty arrays, no octets, and numbers that JSON cannot hold.
    s.validated = 0;
    s.code = 5;
    s.address = 0xA;
    s.inner.present = 0;
    s.count = 0;
    s.element_count = 9;  // more than the array holds: cut to its size
    s.elements[1] = Element{1, 2};
    s.data = nullptr;
    s.speed = std::numeric_limits<double>::quiet_NaN();
    s.text[0] = '\0';
    const std::string some = R"({"v":1,"mode3a":"0005","aa":"00000A","typ":1,"x":-1.5,"speed":null,"acid":"",)"
                             R"("tid":"0A00FF","codes":[],"rds":[{"dop":300,"amb":-1},{"dop":1,"amb":2}],"data":""})";
    EXPECT_EQ(json_of(s), std::to_string(some.size()) + " " + some);
    s.speed = -std::numeric_limits<double>::infinity();
    EXPECT_NE(json_of(s).find(R"("speed":null)"), std::string::npos);
}

TEST(FieldMechanism, JsonIsCutToItsBufferAndTellsTheSizeNeeded) {
    const Sample s = full();
    const std::string whole = json_of(s);
    const size_t n = std::stoul(whole);
    EXPECT_EQ(json_of(s, n + 1), whole);
    // One short, one octet, none: the size needed is still told.
    EXPECT_EQ(json_of(s, n), std::to_string(n) + " " + whole.substr(whole.find(' ') + 1, n - 1));
    EXPECT_EQ(json_of(s, 1), std::to_string(n) + " ");
    char untouched = '#';
    EXPECT_EQ(write_json(&untouched, 0, kSample, &s), n);
    EXPECT_EQ(untouched, '#');
    EXPECT_EQ(write_json(nullptr, 100, kSample, &s), n);
}

struct Seen {
    std::vector<std::string> lines;
    size_t stop_after = 1000;
};

int record_field(void *context, const AstField *f) {
    auto &seen = *static_cast<Seen *>(context);
    seen.lines.push_back(std::to_string(f->depth) + ":" + std::to_string(f->kind) + ":" +
                         (f->name ? f->name : "-") + ":" + std::to_string(f->index) + ":" + f->unit);
    return seen.lines.size() < seen.stop_after;
}

TEST(FieldMechanism, WalkGivesDepthIndexAndUnitAndStopsWhenAsked) {
    const Sample s = full();
    Seen seen;
    ASSERT_EQ(walk_value(kSample, &s, record_field, &seen), AST_FIELDS_DONE);
    const std::vector<std::string> expected = {
        "0:1:v:0:",        "0:2:mode3a:0:",  "0:2:aa:0:",      "0:6:typ:0:",    "0:4:x:0:m",
        "0:4:speed:0:kt",  "0:5:acid:0:",    "0:7:tid:0:",     "0:8:inner:0:",  "1:4:fl:0:FL",
        "0:9:-:0:",        "0:10:codes:0:",  "1:2:-:0:",       "1:2:-:1:",      "0:11:-:0:",
        "0:10:rds:0:",     "1:8:-:0:",       "2:2:dop:0:m/s",  "2:3:amb:0:",    "1:9:-:0:",
        "0:11:-:0:",       "0:7:data:0:",
    };
    EXPECT_EQ(seen.lines, expected);
    Seen stopped;
    stopped.stop_after = 10;
    EXPECT_EQ(walk_value(kSample, &s, record_field, &stopped), AST_FIELDS_STOPPED);
    EXPECT_EQ(stopped.lines.size(), 10u);
}

AstField number(uint32_t kind, double v) {
    AstField f{};
    f.kind = kind;
    if (kind == AST_FIELD_REAL) f.real = v;
    if (kind == AST_FIELD_SIGNED) f.i = static_cast<int64_t>(v);
    if (kind == AST_FIELD_UNSIGNED || kind == AST_FIELD_FLAG || kind == AST_FIELD_ENUM) f.u = static_cast<uint64_t>(v);
    return f;
}

TEST(FieldMechanism, SettingByNameChecksNameKindAndRange) {
    // The setter is reached through a real item's description: I048/010.
    AstDataSourceIdentifier source;
    ASSERT_EQ(ast_dataitem_fields_init(&source, sizeof source, 48010), 1);
    struct Case {
        const char *path;
        AstField value;
        int result;
    } cases[] = {
        {"sac", number(AST_FIELD_UNSIGNED, 255), AST_FIELD_SET_OK},
        {"sac", number(AST_FIELD_UNSIGNED, 256), AST_FIELD_SET_OUT_OF_RANGE},
        {"sic", number(AST_FIELD_SIGNED, -1), AST_FIELD_SET_OUT_OF_RANGE},
        {"sic", number(AST_FIELD_REAL, 13.0), AST_FIELD_SET_OK},
        {"sic", number(AST_FIELD_REAL, 13.5), AST_FIELD_SET_WRONG_KIND},
        {"sac.x", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN},
        {"sa", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN},
        {"", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ast_dataitem_fields_set(&source, sizeof source, 48010, c.path, &c.value), c.result) << c.path;
    EXPECT_EQ(source.sac, 255u);
    EXPECT_EQ(source.sic, 13u);
    // Too small storage, no storage, and an identifier without a description.
    const AstField one = number(AST_FIELD_UNSIGNED, 1);
    EXPECT_EQ(ast_dataitem_fields_set(&source, sizeof source - 1, 48010, "sac", &one), AST_FIELD_SET_UNKNOWN);
    EXPECT_EQ(ast_dataitem_fields_init(&source, sizeof source - 1, 48010), 0);
    EXPECT_EQ(ast_dataitem_fields_init(nullptr, 64, 48010), 0);
    EXPECT_EQ(ast_dataitem_fields_storage_size(48010), sizeof(AstDataSourceIdentifier));
    EXPECT_EQ(ast_dataitem_fields_storage_size(48055), 0u);
    EXPECT_EQ(ast_dataitem_has_fields(48055), 0);
}

TEST(FieldMechanism, SettingEveryKindOfRow) {
    Sample s{};
    auto set = [&](const char *path, AstField v) { return set_field(kSample, &s, path, v); };
    AstField text{};
    text.kind = AST_FIELD_TEXT;
    text.text = "DLH123";
    text.length = 6;
    EXPECT_EQ(set("acid", text), AST_FIELD_SET_OK);
    EXPECT_STREQ(s.text, "DLH123");
    text.text = "123456789";
    text.length = 9;
    EXPECT_EQ(set("acid", text), AST_FIELD_SET_OUT_OF_RANGE);
    EXPECT_STREQ(s.text, "DLH123");
    EXPECT_EQ(set("acid", number(AST_FIELD_UNSIGNED, 1)), AST_FIELD_SET_WRONG_KIND);
    EXPECT_EQ(set("speed", text), AST_FIELD_SET_WRONG_KIND);

    EXPECT_EQ(set("v", number(AST_FIELD_FLAG, 1)), AST_FIELD_SET_OK);
    EXPECT_EQ(s.validated, 0);
    EXPECT_EQ(set("v", number(AST_FIELD_UNSIGNED, 2)), AST_FIELD_SET_OUT_OF_RANGE);
    EXPECT_EQ(set("mode3a", number(AST_FIELD_UNSIGNED, 07777)), AST_FIELD_SET_OK);
    EXPECT_EQ(set("mode3a", number(AST_FIELD_UNSIGNED, 010000)), AST_FIELD_SET_OUT_OF_RANGE);
    EXPECT_EQ(set("typ", number(AST_FIELD_ENUM, 7)), AST_FIELD_SET_OK);
    EXPECT_EQ(set("typ", number(AST_FIELD_ENUM, 8)), AST_FIELD_SET_OUT_OF_RANGE);
    // A scaled value is rounded to the nearest step; its wire width bounds it.
    EXPECT_EQ(set("x", number(AST_FIELD_REAL, -1.3)), AST_FIELD_SET_OK);
    EXPECT_EQ(s.x, -3);
    EXPECT_EQ(set("x", number(AST_FIELD_REAL, 16383.5)), AST_FIELD_SET_OK);
    EXPECT_EQ(s.x, 32767);
    EXPECT_EQ(set("x", number(AST_FIELD_REAL, 16384.0)), AST_FIELD_SET_OUT_OF_RANGE);
    EXPECT_EQ(set("x", number(AST_FIELD_REAL, -16384.0)), AST_FIELD_SET_OK);
    EXPECT_EQ(s.x, -32768);
    EXPECT_EQ(set("speed", number(AST_FIELD_REAL, std::nan(""))), AST_FIELD_SET_OUT_OF_RANGE);
    EXPECT_EQ(set("speed", number(AST_FIELD_SIGNED, -12)), AST_FIELD_SET_OK);
    EXPECT_EQ(s.speed, -12.0);
    // A field inside a group, arrays and octets.
    EXPECT_EQ(set("inner.fl", number(AST_FIELD_REAL, 350)), AST_FIELD_SET_OK);
    EXPECT_EQ(s.inner.level, 1400);
    EXPECT_EQ(s.inner.present, 1);
    EXPECT_EQ(set("codes", number(AST_FIELD_UNSIGNED, 1)), AST_FIELD_SET_WRONG_KIND);
    EXPECT_EQ(set("tid", number(AST_FIELD_UNSIGNED, 1)), AST_FIELD_SET_READ_ONLY);
    EXPECT_EQ(set("nothing", number(AST_FIELD_UNSIGNED, 1)), AST_FIELD_SET_UNKNOWN);
}

TEST(FieldMechanism, SettingArrayElementsByPosition) {
    // Each step sets one path on the same structure; the counts and
    // elements after the step, then what the JSON shows of them.
    struct Step {
        const char *path;
        AstField value;
        int result;
        uint32_t count, element_count;
    };
    const Step steps[] = {
        {"codes[0]", number(AST_FIELD_UNSIGNED, 7), AST_FIELD_SET_OK, 1, 0},
        {"codes[2]", number(AST_FIELD_UNSIGNED, 9), AST_FIELD_SET_OK, 3, 0},  // [1] takes its default
        {"codes[1]", number(AST_FIELD_SIGNED, 5), AST_FIELD_SET_OK, 3, 0},    // inside: count stays
        {"codes[4]", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_OUT_OF_RANGE, 3, 0},  // four at most
        {"codes[3]", number(AST_FIELD_SIGNED, -1), AST_FIELD_SET_OUT_OF_RANGE, 3, 0},   // nothing grows
        {"codes[3].x", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 0},
        {"codes[-1]", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 0},
        {"codes[]", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 0},
        {"codes[1", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 0},
        {"codes[1]x", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 0},
        {"codes[99999999999999999999]", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 0},
        {"speed[0]", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 0},
        {"rds[1].amb", number(AST_FIELD_SIGNED, -2), AST_FIELD_SET_OK, 3, 2},
        {"rds[0].dop", number(AST_FIELD_UNSIGNED, 300), AST_FIELD_SET_OK, 3, 2},
        {"rds[0].amb", number(AST_FIELD_SIGNED, 128), AST_FIELD_SET_OUT_OF_RANGE, 3, 2},
        {"rds[0].nothing", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 2},
        {"rds[0]", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_WRONG_KIND, 3, 2},
        {"rds[2].dop", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_OUT_OF_RANGE, 3, 2},
        {"rds.dop", number(AST_FIELD_UNSIGNED, 1), AST_FIELD_SET_UNKNOWN, 3, 2},
    };
    Sample s{};
    for (const Step &step : steps) {
        const Sample before = s;
        EXPECT_EQ(set_field(kSample, &s, step.path, step.value), step.result) << step.path;
        EXPECT_EQ(s.count, step.count) << step.path;
        EXPECT_EQ(s.element_count, step.element_count) << step.path;
        if (step.result != AST_FIELD_SET_OK) EXPECT_EQ(std::memcmp(&s, &before, sizeof s), 0) << step.path;
    }
    const std::string shown = json_of(s);
    EXPECT_NE(shown.find(R"("codes":[7,5,9],"rds":[{"dop":300,"amb":0},{"dop":0,"amb":-2}])"), std::string::npos)
        << shown;
}

TEST(FieldMechanism, SpansThatDoNotDecodeGiveNoFields) {
    const uint8_t octets[] = {0x19, 0x0D, 0x00};
    struct Case {
        AstDataItem item;
        int walk;
    } cases[] = {
        {{octets, 2, 48010, 1}, AST_FIELDS_DONE},
        {{octets, 3, 48010, 1}, AST_FIELDS_INVALID},  // wrong length
        {{octets, 1, 48010, 1}, AST_FIELDS_INVALID},
        {{octets, 2, 48010, 0}, AST_FIELDS_INVALID},  // span not valid
        {{nullptr, 2, 48010, 1}, AST_FIELDS_INVALID},
        {{octets, 2, 48055, 1}, AST_FIELDS_NONE},     // no row
        {{octets, 2, 99010, 1}, AST_FIELDS_NONE},     // no category
    };
    for (const Case &c : cases) {
        Seen seen;
        EXPECT_EQ(ast_dataitem_walk_fields(&c.item, record_field, &seen), c.walk) << c.item.length;
        char text[64] = "#";
        const size_t n = ast_dataitem_get_fields_json(text, sizeof text, &c.item);
        if (c.walk == AST_FIELDS_DONE) {
            EXPECT_EQ(std::string(text), R"({"sac":25,"sic":13})");
            EXPECT_EQ(n, 19u);
        } else {
            EXPECT_TRUE(seen.lines.empty());
            EXPECT_EQ(n, 0u);
            EXPECT_STREQ(text, "");
        }
    }
    EXPECT_EQ(ast_dataitem_walk_fields(nullptr, record_field, nullptr), AST_FIELDS_INVALID);
    AstDataItemValue missing{1, 48010, nullptr};
    EXPECT_EQ(ast_datavalue_walk_fields(&missing, record_field, nullptr), AST_FIELDS_INVALID);
    AstDataSourceIdentifier source{1, 7, 8};
    AstDataItemValue value{1, 48010, &source};
    char text[64];
    EXPECT_EQ(ast_datavalue_get_fields_json(text, sizeof text, &value), 17u);
    EXPECT_STREQ(text, R"({"sac":7,"sic":8})");
}

}  // namespace

namespace {

struct OneReal {
    double v;
};
constexpr FieldRow kRealRows[] = {real("v", KOVREL_MEMBER(OneReal, v))};
constexpr FieldDesc kOneReal = describe<OneReal>(kRealRows);

std::string real_text(double v) {
    char buf[64];
    const OneReal r{v};
    const size_t n = write_json(buf, sizeof buf, kOneReal, &r);
    return std::string(buf + 5, n - 6);  // inside {"v":...}
}

TEST(FieldMechanism, RealsAreShortAndReadBackExactly) {
    const struct {
        double v;
        const char *text;
    } cases[] = {
        {68.89453125, "68.89453125"},   {-0.5, "-0.5"},
        {1e6, "1000000"},               {0.00000095367431640625, "0.00000095367431640625"},
        {0.1, "0.1"},                   {-0.0, "-0"},
        {0.0, "0"},                     {2147483648.5, "2147483648.5"},
        {1013.2, "1013.2"},             {359.99450683593750, "359.9945068359375"},
        {1e300, "1e+300"},              {5.9604644775390625e-08, "5.960464477539063e-08"},
    };
    for (const auto &c : cases) EXPECT_EQ(real_text(c.v), c.text) << c.v;
    // Multiples of powers of two read back as the same double, with no more
    // significant digits than the shortest form needs.
    uint64_t seed = 88172645463325252ull;
    for (int i = 0; i < 20000; ++i) {
        seed ^= seed << 13, seed ^= seed >> 7, seed ^= seed << 17;
        const int64_t m = static_cast<int64_t>(seed % 4000000000ull) - 2000000000;
        const double v = std::ldexp(static_cast<double>(m), -static_cast<int>(seed >> 59));
        const std::string text = real_text(v);
        ASSERT_EQ(std::strtod(text.c_str(), nullptr), v) << text;
        char shortest[64];
        *std::to_chars(shortest, shortest + sizeof shortest, v).ptr = '\0';
        auto significant = [](const std::string &t) {
            const std::string mantissa = t.substr(0, t.find('e'));
            std::string digits;
            for (char c : mantissa)
                if (c >= '0' && c <= '9') digits += c;
            const size_t first = digits.find_first_not_of('0');
            if (first == std::string::npos) return size_t{0};
            const size_t last = digits.find_last_not_of('0');
            return last - first + 1;
        };
        ASSERT_LE(significant(text), significant(shortest)) << text << " " << shortest;
    }
}

}  // namespace
