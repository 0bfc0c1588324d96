#include <gtest/gtest.h>

#include "kovrel/core.h"
#include "kovrel/fspec.h"

namespace {
AstFspec decode(const uint8_t *o, size_t n) {
    AstFspec f;
    ast_fspec_decode(&f, o, n);
    return f;
}
}  // namespace

TEST(Fspec, DecodeCompleteAndUnterminated) {
    ast_library_init(nullptr);
    const uint8_t o[] = {0x81, 0x00};
    AstFspec cut = decode(o, 1);
    EXPECT_EQ(cut.valid, 0);
    EXPECT_EQ(cut.length, 0u);
    EXPECT_EQ(cut.octets, o);

    AstFspec f = decode(o, 2);
    EXPECT_EQ(f.valid, 1);
    EXPECT_EQ(f.length, 2u);
    EXPECT_EQ(f.frn_count, 14u);
    EXPECT_EQ(f.set_count, 1u);
    EXPECT_TRUE(ast_fspec_is_set(&f, 1));
    EXPECT_FALSE(ast_fspec_is_set(&f, 8));
    EXPECT_FALSE(ast_fspec_is_set(&f, 15));  // beyond frn_count
    EXPECT_FALSE(ast_fspec_is_set(&f, 0));
    EXPECT_FALSE(ast_fspec_is_set(nullptr, 1));

    AstFspec none = decode(nullptr, 4);
    EXPECT_EQ(none.valid, 0);
    AstFspec empty = decode(o, 0);
    EXPECT_EQ(empty.valid, 0);
}

TEST(Fspec, EmptyFspecNeedsTheOption) {
    ast_library_init(nullptr);
    const uint8_t zero[] = {0x00};
    AstFspec f = decode(zero, 1);
    EXPECT_EQ(f.valid, 0);
    EXPECT_EQ(f.length, 1u);  // counts are filled even when invalid
    EXPECT_EQ(f.set_count, 0u);

    const uint8_t fx_only[] = {0x01, 0x00};
    f = decode(fx_only, 2);
    EXPECT_EQ(f.length, 2u);
    EXPECT_EQ(f.set_count, 0u);  // FX bits are not items
    EXPECT_EQ(f.valid, 0);

    ast_library_set_option(AST_OPTION_ACCEPT_EMPTY_FSPEC);
    EXPECT_EQ(decode(zero, 1).valid, 1);
    ast_library_reset_option();
}

TEST(Fspec, EveryBitOfALongChain) {
    ast_library_init(nullptr);
    const uint8_t o[] = {0xFF, 0xFF, 0xFE};
    AstFspec f = decode(o, sizeof o);
    ASSERT_EQ(f.valid, 1);
    EXPECT_EQ(f.set_count, 21u);
    for (uint32_t frn = 1; frn <= 21; ++frn) EXPECT_TRUE(ast_fspec_is_set(&f, frn)) << frn;
    // An invalid FSPEC answers nothing, whatever its octets.
    f.valid = 0;
    EXPECT_FALSE(ast_fspec_is_set(&f, 1));
}

TEST(Fspec, SetLeavesOtherBitsAlone) {
    uint8_t b[2] = {0x01, 0x00};
    EXPECT_FALSE(ast_fspec_set(b, 1, 8, true));
    EXPECT_FALSE(ast_fspec_set(b, 2, 0, true));
    EXPECT_FALSE(ast_fspec_set(nullptr, 2, 1, true));
    EXPECT_TRUE(ast_fspec_set(b, 1, 7, true));
    EXPECT_EQ(b[0], 0x03);  // FX untouched
    EXPECT_TRUE(ast_fspec_set(b, 2, 8, true));
    EXPECT_EQ(b[1], 0x80);
    EXPECT_TRUE(ast_fspec_set(b, 2, 14, true));
    EXPECT_EQ(b[1], 0x82);
    EXPECT_TRUE(ast_fspec_set(b, 2, 8, false));
    EXPECT_EQ(b[1], 0x02);
    EXPECT_TRUE(ast_fspec_set(b, 1, 1, true));
    EXPECT_EQ(b[0], 0x83);
}

TEST(Fspec, CopyNeedsRoomAndAValidSource) {
    ast_library_init(nullptr);
    const uint8_t o[] = {0x81, 0x40};
    AstFspec src = decode(o, 2);
    uint8_t dst[4] = {0xEE, 0xEE, 0xEE, 0xEE};
    AstFspec out;
    ast_fspec_copy(&out, dst, 1, &src);
    EXPECT_EQ(out.valid, 0);
    EXPECT_EQ(out.length, 0u);
    EXPECT_EQ(out.frn_count, 14u);
    EXPECT_EQ(dst[0], 0xEE);

    ast_fspec_copy(&out, dst, 2, &src);
    EXPECT_EQ(out.valid, 1);
    EXPECT_EQ(out.length, 2u);
    EXPECT_EQ(out.octets, dst);
    EXPECT_EQ(dst[0], 0x81);
    EXPECT_EQ(dst[1], 0x40);
    EXPECT_EQ(dst[2], 0xEE);
    EXPECT_TRUE(ast_fspec_is_set(&out, 9));

    AstFspec bad = src;
    bad.valid = 0;
    ast_fspec_copy(&out, dst, 4, &bad);
    EXPECT_EQ(out.valid, 0);
    ast_fspec_copy(&out, nullptr, 4, &src);
    EXPECT_EQ(out.valid, 0);
}
