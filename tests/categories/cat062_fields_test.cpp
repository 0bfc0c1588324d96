// CAT062 structures as named fields: the JSON of each of the category's own
// items and compound items from wire octets, and the limits a field refuses
// when it is set.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kovrel/cat062.h"
#include "kovrel/fields.h"
#include "support/record_walk.h"

using kovrel_test::Octets;

namespace {

std::string json_of(AstItemId id, const Octets &o) {
    AstDataItem item;
    ast_dataitem_scan(&item, o.data(), o.size(), id);
    EXPECT_EQ(item.valid, 1) << id;
    std::vector<char> buf(8192, '#');
    const size_t n = ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    const std::string text(buf.data());
    EXPECT_EQ(n, text.size()) << id;
    return text;
}

struct JsonCase {
    AstItemId id;
    Octets wire;
    const char *expected;
};

// Worked by hand: 6.25 ft (130), 25 ft per quarter FL (135, 136), 0.25
// m/s2 (210), 6.25 ft/min (220), 360/128 deg (270), 1/128 s (110 TOS),
// 0.25 s (ages), 0.5 m (500 COV), 6.25 ft (500 AGA).
const JsonCase kJson[] = {
    // Octets 1 to 3 of the track status; the others are not there.
    {62080, {0x81, 0x41, 0x20},
     R"({"mon":1,"spi":0,"mrh":0,"src":0,"cnf":0,"sim":0,"tse":1,"tsb":0,"fpc":0,"aff":0,"stp":0,"kos":0,)"
     R"("ama":0,"md4":1,"me":0,"mi":0,"md5":0})"},
    {62130, {0xFF, 0xFF}, R"({"alt":-6.25})"},
    {62135, {0x80, 0x64}, R"({"qnh":1,"ctb":2500})"},
    {62136, {0x01, 0x40}, R"({"mfl":8000})"},
    {62200, {0x48}, R"({"trans":1,"long":0,"vert":2,"adf":0})"},
    {62210, {0x04, 0xF8}, R"({"ax":1,"ay":-2})"},
    {62220, {0xFF, 0xF0}, R"({"rocd":-100})"},
    {62270, {0x15, 0x40}, R"({"length":10,"orientation":90})"},
    {62300, {0x03}, R"({"vfi":3})"},
    {62510, {0x01, 0x00, 0x11, 0x02, 0x00, 0x22}, R"({"count":2,"tracks":[{"ident":1,"track":8},{"ident":2,"track":17}]})"},
    // SUM, TOS and XP of I062/110.
    {62110, {0x86, 0x40, 0x28, 0x02},
     R"({"sum":{"m5":0,"id":1,"da":0,"m1":0,"m2":0,"m3":0,"mc":0,"x":0},"tos":{"tos":0.3125},)"
     R"("xp":{"x5":0,"xc":0,"x3":0,"x2":1,"x1":0}})"},
    {62290, {0x88, 0x00, 0x10, 0x04}, R"({"trk":0,"ads":1025})"},
    {62295, {0x01, 0x01, 0x01, 0x01, 0x20, 0x07}, R"({"bps":1.75})"},
    {62340, {0x88, 0x19, 0x0C, 0x2A, 0x3F}, R"({"sid":{"sac":25,"sic":12},"mda":{"v":0,"g":0,"l":1,"mode3a":"5077"}})"},
    {62390, {0x41, 0x08, 'A', 'F', 'R', '1', '2', '3', ' ', 0x01, 0x08, 0x0C, 0x1E, 0x80},
     R"({"cs":{"cs":"AFR123 "},"tod":{"rep":1,"times":[{"typ":1,"day":0,"hor":12,"min":30,"avs":1,"sec":0}]}})"},
    {62500, {0x50, 0xFF, 0xFE, 0x10}, R"({"cov":{"cov":-1},"aga":{"aga":100}})"},
    {62380, {0x84, 0x3C, 0x65, 0xAC, 0xA0, 0x64}, R"({"adr":{"adr":"3C65AC"},"sal":{"sas":1,"src":1,"alt":2500}})"},
};

AstField unsigned_value(uint64_t u) {
    AstField f{};
    f.kind = AST_FIELD_UNSIGNED;
    f.u = u;
    return f;
}

AstField real_value(double r) {
    AstField f{};
    f.kind = AST_FIELD_REAL;
    f.real = r;
    return f;
}

}  // namespace

TEST(Cat062Fields, JsonFromWireOctets) {
    for (const auto &c : kJson) EXPECT_EQ(json_of(c.id, c.wire), c.expected) << c.id;
}

TEST(Cat062Fields, SettingKeepsValuesWithinTheirWireFields) {
    struct Limit {
        AstItemId id;
        const char *path;
        AstField ok;
        AstField too_large;
    };
    const Limit limits[] = {
        {62270, "length", unsigned_value(127), unsigned_value(128)},          // 7 bits
        {62200, "vert", unsigned_value(3), unsigned_value(4)},                // 2 bits
        {62510, "count", unsigned_value(3), unsigned_value(1ull << 32)},      // the member
        {62380, "adr.adr", unsigned_value(0xFFFFFF), unsigned_value(0x1000000)},  // 24 bits
        {62380, "sal.alt", real_value(102375.0), real_value(102400.0)},       // 13-bit signed, 25 ft
        {62390, "ifi.nbr", unsigned_value(99999999), unsigned_value(1u << 27)},
        {62110, "em1.em1", unsigned_value(07777), unsigned_value(010000)},
        {62135, "ctb", real_value(-409600.0), real_value(-409625.0)},         // 15-bit signed, 25 ft
    };
    std::vector<uint8_t> storage(8192);
    for (const auto &l : limits) {
        ASSERT_EQ(ast_dataitem_fields_init(storage.data(), storage.size(), l.id), 1) << l.id;
        EXPECT_EQ(ast_dataitem_fields_set(storage.data(), storage.size(), l.id, l.path, &l.ok), AST_FIELD_SET_OK)
            << l.id << " " << l.path;
        EXPECT_EQ(ast_dataitem_fields_set(storage.data(), storage.size(), l.id, l.path, &l.too_large),
                  AST_FIELD_SET_OUT_OF_RANGE)
            << l.id << " " << l.path;
    }
    // Setting a subfield's value marks the subfield present.
    ASSERT_EQ(ast_dataitem_fields_init(storage.data(), storage.size(), 62380), 1);
    const AstField alt = real_value(5000.0);
    ASSERT_EQ(ast_dataitem_fields_set(storage.data(), storage.size(), 62380, "sal.alt", &alt), AST_FIELD_SET_OK);
    const auto *d = reinterpret_cast<const AstItem062_380 *>(storage.data());
    EXPECT_EQ(d->sal_present, 1);
    EXPECT_EQ(d->sal_raw, 200);
    EXPECT_EQ(d->adr_present, 0);
    EXPECT_EQ(ast_dataitem_fields_storage_size(62380), sizeof(AstItem062_380));
}
