#include <gtest/gtest.h>

#include <string>

#include "kovrel/uap.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;

namespace {
std::string text(AstItemId id) {
    char b[16];
    return ast_dataitem_type_to_str(b, sizeof b, id);
}
std::vector<std::string> frns(const AstUap &uap, uint32_t cat, uint32_t from, uint32_t to) {
    std::vector<std::string> out;
    for (uint32_t f = from; f <= to; ++f) {
        AstItemId id = ast_uap_get_dataitem(&uap, cat, f);
        out.push_back(id ? text(id) : "-");
    }
    return out;
}
}  // namespace

TEST(Uap, StandardHighestFrns) {
    const std::pair<uint32_t, uint32_t> expected[] = {
        {1, 21},  {2, 14},  {4, 21},  {8, 14},  {10, 28}, {15, 25}, {16, 10}, {19, 14}, {20, 28},
        {21, 28}, {23, 14}, {34, 14}, {48, 28}, {62, 35}, {63, 14}, {65, 14}, {240, 14}, {3, 0}, {0, 0}};
    for (auto [cat, max] : expected) EXPECT_EQ(ast_uap_max_frn(&AST_UAP_STANDARD, cat), max) << cat;
    EXPECT_EQ(ast_uap_max_frn(nullptr, 48), 0u);
    AstUap empty = {nullptr, nullptr};
    EXPECT_EQ(ast_uap_max_frn(&empty, 48), 0u);
    EXPECT_EQ(ast_uap_get_dataitem(&empty, 48, 1), 0u);
}

TEST(Uap, StandardLookupsAndTheirMessages) {
    LogCapture log;
    EXPECT_EQ(frns(AST_UAP_STANDARD, 48, 1, 3), (std::vector<std::string>{"I048/010", "I048/140", "I048/020"}));
    EXPECT_EQ(frns(AST_UAP_STANDARD, 48, 27, 28), (std::vector<std::string>{"I048/SPF", "I048/REF"}));
    EXPECT_EQ(frns(AST_UAP_STANDARD, 1, 20, 22), (std::vector<std::string>{"I001/SPF", "I001/RFS", "I001/150"}));
    EXPECT_EQ(frns(AST_UAP_STANDARD, 240, 12, 14), (std::vector<std::string>{"I240/140", "I240/REF", "I240/SPF"}));
    EXPECT_EQ(frns(AST_UAP_STANDARD, 62, 33, 35), (std::vector<std::string>{"-", "I062/REF", "I062/SPF"}));
    EXPECT_EQ(log.size(), 0u);

    // Spare and FRN 0 are silent; beyond the table and unknown categories log.
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 62, 2), 0u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 48, 0), 0u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 62, 36), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP CAT062: Undefined FRN 36"));
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 48, 29), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP CAT048: Undefined FRN 29"));
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 3, 1), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP STD: Unknown category 3"));
    // CAT021 is answered by edition 0.26 with its own message.
    EXPECT_EQ(text(ast_uap_get_dataitem(&AST_UAP_STANDARD, 21, 4)), "I021/130");
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 21, 4), 21902u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_STANDARD, 21, 29), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP ADS-B v0.26: Undefined FRN 29"));
}

TEST(Uap, Cat021Editions) {
    LogCapture log;
    // 0.23 encodes up to FRN 26 but answers REF and SPF at 34 and 35.
    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_CAT021_VER023, 21), 26u);
    EXPECT_EQ(frns(AST_UAP_CAT021_VER023, 21, 33, 35), (std::vector<std::string>{"-", "I021/REF", "I021/SPF"}));
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER023, 21, 2), 21903u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER023, 21, 4), 21130u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER023, 21, 36), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP ADS-B v0.23: Undefined FRN 36"));
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER023, 21, 0), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP ADS-B v0.23: Undefined FRN 0"));

    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER026, 21, 28), 21904u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER026, 21, 27), 21070u);

    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_CAT021_VER21, 21), 49u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER21, 21, 37), 21907u);
    EXPECT_EQ(text(21907), "I021/271");
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER27, 21, 37), 21271u);
    EXPECT_EQ(frns(AST_UAP_CAT021_VER27, 21, 42, 49),
              (std::vector<std::string>{"I021/295", "-", "-", "-", "-", "-", "I021/REF", "I021/SPF"}));
    log.clear();
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER27, 21, 50), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP ADS-B v2.7: Undefined FRN 50"));
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER21, 21, 50), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP ADS-B v2.1: Undefined FRN 50"));

    // Thales answers FRNs beyond its table silently.
    log.clear();
    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_THALES, 21), 28u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_THALES, 21, 27), 21904u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_THALES, 21, 29), 0u);
    EXPECT_EQ(log.size(), 0u);
    // Editions defer other categories to the standard profile.
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT021_VER21, 48, 1), 48010u);
    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_CAT021_VER21, 62), 35u);
}

TEST(Uap, SensorProfiles) {
    LogCapture log;
    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_ASR10SS, 1), 15u);
    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_ASR10SS, 2), 6u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_ASR10SS, 1, 10), 1901u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_ASR10SS, 1, 14), 1902u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_ASR10SS, 1, 5), 0u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_ASR10SS, 2, 6), 2901u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_ASR10SS_MK2, 1, 10), 1903u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_ASR10SS_MK2, 1, 14), 1904u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_ASR10SS_MK2, 2, 6), 2902u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_ASR10SS_MK2, 2, 7), 0u);
    EXPECT_EQ(text(1903), "I001/130");
    EXPECT_EQ(text(2902), "I002/050");
    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_CAT001_PLOT, 1), 21u);
    EXPECT_EQ(frns(AST_UAP_CAT001_PLOT, 1, 14, 16), (std::vector<std::string>{"I001/030", "I001/150", "-"}));
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_CAT001_PLOT, 1, 22), 0u);
    EXPECT_EQ(log.size(), 0u);
}

TEST(Uap, ManagairFallsThroughToStandard) {
    LogCapture log;
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_MANAGAIR, 1, 5), 1951u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_MANAGAIR, 1, 23), 1951u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_MANAGAIR, 1, 6), 1200u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_MANAGAIR, 1, 22), 1150u);
    EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_MANAGAIR, 2, 23), 2951u);
    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_MANAGAIR, 48), 28u);
    EXPECT_EQ(ast_uap_max_frn(&AST_UAP_MANAGAIR, 2), 23u);
    EXPECT_EQ(text(1951), "I001/951");
    EXPECT_EQ(log.size(), 0u);
    // The encoder's walk over CAT002 meets FRNs beyond the standard table.
    for (uint32_t f = 15; f <= 22; ++f) EXPECT_EQ(ast_uap_get_dataitem(&AST_UAP_MANAGAIR, 2, f), 0u);
    EXPECT_EQ(log.size(), 8u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP CAT002: Undefined FRN 15"));
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "UAP CAT002: Undefined FRN 22"));
}

TEST(Uap, TextForms) {
    EXPECT_EQ(text(48010), "I048/010");
    EXPECT_EQ(text(240010), "I240/010");
    EXPECT_EQ(text(48998), "I048/REF");
    EXPECT_EQ(text(48999), "I048/SPF");
    EXPECT_EQ(text(1997), "I001/RFS");
    EXPECT_EQ(text(21911), "I021/160");
    EXPECT_EQ(text(0), "I000/000");
    char b[16] = "unchanged";
    EXPECT_EQ(ast_dataitem_type_to_str(b, 0, 48010), nullptr);
    EXPECT_STREQ(b, "unchanged");
    EXPECT_EQ(ast_dataitem_type_to_str(nullptr, 8, 48010), nullptr);
    EXPECT_STREQ(ast_dataitem_type_to_str(b, 1, 48010), "");
    EXPECT_STREQ(ast_dataitem_type_to_str(b, 8, 48010), "I048/01");  // one short
    EXPECT_STREQ(ast_category_to_str(b, sizeof b, 48), "I048");
    EXPECT_STREQ(ast_category_to_str(b, 4, 48), "I04");
    EXPECT_EQ(ast_category_to_str(b, 0, 48), nullptr);
}
