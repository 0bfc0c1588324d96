#include <gtest/gtest.h>

#include "kovrel/dataitem.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;

TEST(SizeRules, Fixed) {
    const uint8_t o[12] = {};
    EXPECT_EQ(ast_dataitem_get_size_fixed_3_byte(o, 3), 3u);
    EXPECT_EQ(ast_dataitem_get_size_fixed_3_byte(o, 2), 0u);
    EXPECT_EQ(ast_dataitem_get_size_fixed_12_byte(o, 12), 12u);
    EXPECT_EQ(ast_dataitem_get_size_fixed_12_byte(o, 11), 0u);
    EXPECT_EQ(ast_dataitem_get_size_fixed(o, 100, 9), 9u);
}

TEST(SizeRules, VariableStopsAtTheBound) {
    LogCapture log;
    const uint8_t ends[] = {0x01, 0x01, 0x00};
    EXPECT_EQ(ast_dataitem_get_size_var_3_byte(ends, 3), 3u);
    const uint8_t first[] = {0x02};
    EXPECT_EQ(ast_dataitem_get_size_var_3_byte(first, 1), 1u);
    EXPECT_EQ(ast_dataitem_get_size_var_3_byte(first, 0), 0u);
    EXPECT_EQ(log.size(), 0u);

    // The last allowed octet still has FX set: cut off when nothing follows...
    const uint8_t chain[] = {0x01, 0x01, 0x01, 0x00};
    EXPECT_EQ(ast_dataitem_get_size_var_3_byte(chain, 3), 0u);
    EXPECT_EQ(log.size(), 0u);
    // ...otherwise the record goes on after the bound, with a CRITICAL line.
    EXPECT_EQ(ast_dataitem_get_size_var_3_byte(chain, 4), 3u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 3"));

    // Octets run out before an octet with FX 0.
    EXPECT_EQ(ast_dataitem_get_size_var_23_byte(chain, 3), 0u);
    uint8_t longer[30];
    for (auto &b : longer) b = 0x01;
    log.clear();
    EXPECT_EQ(ast_dataitem_get_size_var_unlimited(longer, sizeof longer), 0u);
    EXPECT_EQ(log.size(), 0u);
    longer[29] = 0;
    EXPECT_EQ(ast_dataitem_get_size_var_unlimited(longer, sizeof longer), 30u);
    EXPECT_EQ(ast_dataitem_get_size_var_1_byte(longer, 2), 1u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Dataitem length exceed max: 1"));
    EXPECT_EQ(ast_dataitem_get_size_variable(nullptr, 5, 3), 0u);
}

TEST(SizeRules, Repetitive) {
    const uint8_t rep2[9] = {0x02};
    EXPECT_EQ(ast_dataitem_get_size_rep_4_byte(rep2, 9), 9u);
    EXPECT_EQ(ast_dataitem_get_size_rep_4_byte(rep2, 8), 0u);
    const uint8_t rep0[1] = {0x00};
    EXPECT_EQ(ast_dataitem_get_size_rep_8_byte(rep0, 1), 1u);
    EXPECT_EQ(ast_dataitem_get_size_rep_8_byte(rep0, 0), 0u);
    // 255 repetitions of 256 octets cannot overflow the arithmetic.
    const uint8_t rep255[1] = {0xFF};
    EXPECT_EQ(ast_dataitem_get_size_rep_256_byte(rep255, 65281), 65281u);
    EXPECT_EQ(ast_dataitem_get_size_rep_256_byte(rep255, 65280), 0u);
}

TEST(SizeRules, ExplicitLengthIsTakenAsItStands) {
    const uint8_t re[] = {0x05, 0x00};
    EXPECT_EQ(ast_dataitem_reserved_expansion_field_get_size(re, 2), 5u);
    EXPECT_EQ(ast_dataitem_special_purpose_field_get_size(re, 2), 5u);
    EXPECT_EQ(ast_dataitem_random_field_sequencing_get_size(re, 2), 5u);
    EXPECT_EQ(ast_dataitem_special_purpose_field_get_size(re, 0), 0u);
    const uint8_t zero[] = {0x00};
    EXPECT_EQ(ast_dataitem_reserved_expansion_field_get_size(zero, 1), 0u);

    // The scan never hands out a span that ends past the data.
    AstDataItem item;
    ast_dataitem_scan(&item, re, 2, 48998);
    EXPECT_EQ(item.valid, 0);
    EXPECT_EQ(item.length, 0u);
    const uint8_t fits[] = {0x02, 0xAB};
    ast_dataitem_scan(&item, fits, 2, 48998);
    EXPECT_EQ(item.valid, 1);
    EXPECT_EQ(item.length, 2u);
    EXPECT_EQ(item.data, fits);
}
