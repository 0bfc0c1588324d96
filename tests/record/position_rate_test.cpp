// The Cartesian position accessor of every category that carries one, and
// the vertical rate CAT010 and CAT020 take from BDS 6,0 of their Mode S MB
// data: records from their wire octets and the values they must give.
#include <gtest/gtest.h>

#include "kovrel/cat001.h"
#include "kovrel/cat010.h"
#include "kovrel/cat020.h"
#include "kovrel/cat048.h"
#include "kovrel/cat062.h"
#include "kovrel/datarecord.h"
#include "kovrel/uap.h"
#include "support/record_walk.h"

using kovrel_test::Octets;

namespace {

AstDataRecord decoded(uint32_t category, const Octets &o) {
    AstDataRecord r;
    ast_datarecord_decode(&r, o.data(), o.size(), category, &AST_UAP_STANDARD);
    return r;
}

struct CartesianCase {
    const char *what;
    uint32_t category;
    Octets record;  // FSPEC and the Cartesian position item only
    double x, y;    // metres
};

const CartesianCase kCartesian[] = {
    {"I001/042 1/64 NM", 1, {0x08, 0x00, 0x40, 0xFF, 0xC0}, 1852.0, -1852.0},
    {"I001/042 extremes", 1, {0x08, 0x7F, 0xFF, 0x80, 0x00}, 32767 * 1852.0 / 64, -32768 * 1852.0 / 64},
    {"I010/042 1 m", 10, {0x02, 0x01, 0x00, 0xFF, 0x00}, 256.0, -256.0},
    {"I020/042 0.5 m", 20, {0x08, 0x00, 0x00, 0x64, 0xFF, 0xFF, 0x9C}, 50.0, -50.0},
    {"I048/042 1/128 NM", 48, {0x01, 0x08, 0x00, 0x80, 0xFF, 0x00}, 1852.0, -3704.0},
    {"I062/100 0.5 m", 62, {0x04, 0x00, 0x00, 0x03, 0x80, 0x00, 0x00}, 1.5, -4194304.0},
};

}  // namespace

TEST(RecordCartesian, EachCategoryScalesItsItemToMetres) {
    for (const auto &c : kCartesian) {
        const AstDataRecord r = decoded(c.category, c.record);
        ASSERT_EQ(r.valid, 1) << c.what;
        AstRecordCartesian p;
        ast_datarecord_get_cartesiancoord(&p, &r);
        EXPECT_EQ(p.valid, 1u) << c.what;
        EXPECT_NEAR(p.x, c.x, 1e-9) << c.what;
        EXPECT_NEAR(p.y, c.y, 1e-9) << c.what;

        // Without the item, or in a record that was not read whole: zeros.
        AstDataRecord without = r;
        without.items[0].id += 900;
        p.valid = 7;
        ast_datarecord_get_cartesiancoord(&p, &without);
        EXPECT_EQ(p.valid, 0u) << c.what;
        EXPECT_EQ(p.x, 0.0) << c.what;
        AstDataRecord invalid = r;
        invalid.valid = 0;
        ast_datarecord_get_cartesiancoord(&p, &invalid);
        EXPECT_EQ(p.valid, 0u) << c.what;

        // The record one octet short does not decode, so nothing answers.
        const Octets cut(c.record.begin(), c.record.end() - 1);
        const AstDataRecord short_record = decoded(c.category, cut);
        ast_datarecord_get_cartesiancoord(&p, &short_record);
        EXPECT_EQ(p.valid, 0u) << c.what;
    }
}

TEST(RecordCartesian, CategoriesWithoutOneAndBadArguments) {
    // A CAT021 record (data source only) and a category beyond the table.
    AstDataRecord r = decoded(21, {0x80, 0x01, 0x02});
    ASSERT_EQ(r.valid, 1);
    AstRecordCartesian p{1, 2.0, 3.0};
    ast_datarecord_get_cartesiancoord(&p, &r);
    EXPECT_EQ(p.valid, 0u);
    EXPECT_EQ(p.y, 0.0);
    r.category = 0x12345678u;
    p.valid = 1;
    ast_datarecord_get_cartesiancoord(&p, &r);
    EXPECT_EQ(p.valid, 0u);
    ast_datarecord_get_cartesiancoord(&p, nullptr);
    EXPECT_EQ(p.valid, 0u);
    ast_datarecord_get_cartesiancoord(nullptr, &r);  // must not crash

    // The per-category function answers the same as the generic one.
    const AstDataRecord r048 = decoded(48, kCartesian[4].record);
    ast_datarecord_048_get_cartesiancoord(&p, &r048);
    EXPECT_DOUBLE_EQ(p.y, -3704.0);
    ast_datarecord_010_get_cartesiancoord(&p, &r048);  // no I010/042 in it
    EXPECT_EQ(p.valid, 0u);
}

namespace {

struct RateCase {
    const char *what;
    Octets mb;  // the registers of the Mode S MB data item, REP first
    uint32_t valid;
    double fpm;
    int32_t raw;
};

const RateCase kRates[] = {
    {"barometric, sign and magnitude", {1, 0, 0, 0, 0, 0x31, 0, 0, 0x60}, 1, -1024.0, -32},
    {"inertial when the barometric rate is not announced",
     {1, 0, 0, 0, 0, 0, 0x04, 0x14, 0x60}, 1, 640.0, 20},
    {"barometric before inertial", {1, 0, 0, 0, 0, 0x20, 0x56, 0x03, 0x60}, 1, 320.0, 10},
    {"neither rate announced", {1, 0x80, 0, 0, 0, 0, 0, 0, 0x60}, 0, 0.0, 0},
    {"first register that gives one", {2, 0, 0, 0, 0, 0, 0, 0, 0x60, 0, 0, 0, 0, 0x31, 0, 0, 0x60}, 1, -1024.0, -32},
    {"not a BDS 6,0", {1, 0, 0, 0, 0, 0x31, 0, 0, 0x50}, 0, 0.0, 0},
    {"no register", {0}, 0, 0.0, 0},
};

}  // namespace

TEST(RecordVerticalRate, Cat010AndCat020ReadBds60OfTheirModeSData) {
    // I010/250 is FRN 15, I020/250 FRN 21.
    const struct {
        uint32_t category;
        Octets fspec;
    } kCategories[] = {{10, {0x01, 0x01, 0x80}}, {20, {0x01, 0x01, 0x02}}};
    for (const auto &cat : kCategories) {
        for (const auto &c : kRates) {
            Octets o = cat.fspec;
            o.insert(o.end(), c.mb.begin(), c.mb.end());
            const AstDataRecord r = decoded(cat.category, o);
            ASSERT_EQ(r.valid, 1) << cat.category << ' ' << c.what;
            AstVerticalRate v;
            ast_datarecord_get_vrate(&v, &r);
            EXPECT_EQ(v.valid, c.valid) << cat.category << ' ' << c.what;
            EXPECT_DOUBLE_EQ(v.value, c.fpm) << cat.category << ' ' << c.what;
            EXPECT_EQ(v.raw, c.raw) << cat.category << ' ' << c.what;
            EXPECT_DOUBLE_EQ(v.lsb, c.valid ? 32.0 : 0.0) << cat.category << ' ' << c.what;
        }
    }
    AstDataRecordFuncs f;
    ast_datarecord_get_func(&f, 10);
    EXPECT_EQ(f.get_vrate, &ast_datarecord_010_get_vrate);
    ast_datarecord_get_func(&f, 20);
    EXPECT_EQ(f.get_vrate, &ast_datarecord_020_get_vrate);
}
