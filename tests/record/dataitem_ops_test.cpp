#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "kovrel/cat048.h"
#include "kovrel/dataitem.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;

namespace {
AstDataItem span(const uint8_t *o, uint64_t n, AstItemId id, uint8_t valid = 1) { return AstDataItem{o, n, id, valid}; }
}  // namespace

TEST(DataItem, DispatchKnownAndUnknown) {
    LogCapture log;
    AstDataItemFuncs f;
    ast_dataitem_get_func(&f, 48020);
    EXPECT_EQ(f.get_size, ast_dataitem_get_size_var_2_byte);
    EXPECT_NE(f.get_name, nullptr);
    EXPECT_EQ(log.size(), 0u);

    ast_dataitem_get_func(&f, 48055);  // in the UAP, but no row
    EXPECT_EQ(f.get_size, nullptr);
    EXPECT_EQ(f.get_name, nullptr);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Unsupported dataitem I048/055"));

    log.clear();
    ast_dataitem_get_func(&f, 0);  // spare FRN: silent
    EXPECT_EQ(f.get_size, nullptr);
    EXPECT_EQ(log.size(), 0u);

    EXPECT_STREQ(ast_dataitem_get_name(3010), "UNKNOWN NAME");
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Unsupported dataitem I003/010"));
    EXPECT_STREQ(ast_dataitem_get_name(48200), "Calculated Track Velocity in Ploar Co-ordinates");
    EXPECT_STREQ(ast_dataitem_get_name(4294967295u), "UNKNOWN NAME");
}

TEST(DataItem, CategoryNameFallbackLogs) {
    LogCapture log;
    EXPECT_STREQ(ast_dataitem_048_get_name(48055), "Unknown CAT048 Dataitem");
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Unknown dataitem name: I048/055."));
    EXPECT_STREQ(ast_dataitem_048_get_name(62010), "Unknown CAT048 Dataitem");
    EXPECT_STREQ(ast_dataitem_048_get_name(48999), "Special Purpose Field");
}

TEST(DataItem, ScanAndSize) {
    const uint8_t o[] = {0x01, 0x40, 0xFF};
    AstDataItem item;
    ast_dataitem_scan(&item, o, 3, 48020);
    EXPECT_EQ(item.valid, 1);
    EXPECT_EQ(item.length, 2u);
    EXPECT_EQ(item.id, 48020u);
    ast_dataitem_scan(&item, o, 1, 48020);
    EXPECT_EQ(item.valid, 0);
    EXPECT_EQ(item.data, o);
    ast_dataitem_scan(&item, o, 3, 0);
    EXPECT_EQ(item.valid, 0);
    EXPECT_EQ(ast_dataitem_get_size(o, 3, 48010), 2u);
    EXPECT_EQ(ast_dataitem_get_size(o, 3, 3010), 0u);
}

TEST(DataItem, DecodeEncodeWithoutFunctionsLog) {
    LogCapture log;
    const uint8_t o[] = {0x12, 0x34};
    AstDataItem item = span(o, 2, 34090);
    AstDataItemValue v;
    uint8_t storage[64];
    ast_dataitem_decode(&v, storage, sizeof storage, &item);
    EXPECT_EQ(v.valid, 0);
    EXPECT_EQ(v.id, 34090u);
    EXPECT_EQ(v.value, nullptr);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Decoding function not implemented for dataitem I034/090."));

    uint8_t buffer[8];
    uint32_t dummy = 1;
    AstDataItemValue in = {1, 48030, &dummy};
    AstDataItem out;
    ast_dataitem_encode(&out, buffer, sizeof buffer, &in);
    EXPECT_EQ(out.valid, 0);
    EXPECT_EQ(out.data, buffer);
    EXPECT_EQ(out.id, 48030u);
    EXPECT_TRUE(log.contains(AST_LOG_WARNING, "Enconding function not implemented for dataitem I048/030."));

    log.clear();
    in.value = nullptr;  // nothing to encode: returns before any look-up
    ast_dataitem_encode(&out, buffer, sizeof buffer, &in);
    EXPECT_EQ(out.valid, 0);
    EXPECT_EQ(log.size(), 0u);
}

TEST(DataItem, CopyNeedsAValidItemAndRoom) {
    const uint8_t o[] = {0xAA, 0xBB, 0xCC};
    AstDataItem item = span(o, 3, 48220);
    uint8_t b[4] = {0, 0, 0, 0x55};
    AstDataItem out;
    ast_dataitem_copy(&out, b, 2, &item);
    EXPECT_EQ(out.valid, 0);
    EXPECT_EQ(out.id, 0u);
    EXPECT_EQ(b[0], 0);
    ast_dataitem_copy(&out, b, 3, &item);
    EXPECT_EQ(out.valid, 1);
    EXPECT_EQ(out.length, 3u);
    EXPECT_EQ(out.id, 48220u);
    EXPECT_EQ(0, std::memcmp(b, o, 3));
    EXPECT_EQ(b[3], 0x55);
    item.valid = 0;
    ast_dataitem_copy(&out, b, 4, &item);
    EXPECT_EQ(out.valid, 0);
}

TEST(DataItem, TextViews) {
    const uint8_t o[] = {0x30, 0x00, 0x0C};
    AstDataItem item = span(o, 3, 48220);
    char b[64];
    ast_dataitem_get_hex_str(b, sizeof b, &item);
    EXPECT_STREQ(b, "30 00 0c");
    ast_dataitem_get_hex_str(b, 5, &item);
    EXPECT_STREQ(b, "30 0");
    ast_dataitem_get_hex_str(b, 1, &item);
    EXPECT_STREQ(b, "");
    ast_dataitem_get_bin_str(b, sizeof b, &item);
    EXPECT_STREQ(b, "00110000 00000000 00001100");
    ast_dataitem_get_bin_str(b, 12, &item);
    EXPECT_STREQ(b, "00110000 00");

    // Bits are shown for any span with octets; hex only for valid ones.
    item.valid = 0;
    ast_dataitem_get_hex_str(b, sizeof b, &item);
    EXPECT_STREQ(b, "");
    ast_dataitem_get_bin_str(b, sizeof b, &item);
    EXPECT_STREQ(b, "00110000 00000000 00001100");
    ast_dataitem_get_hex_html(b, sizeof b, &item);
    EXPECT_STREQ(b, "");

    // The item's own summary, cut to the buffer.
    item.valid = 1;
    ast_dataitem_get_summary(b, sizeof b, &item);
    EXPECT_STREQ(b, "ADDR:30000C");
    ast_dataitem_get_summary(b, 4, &item);
    EXPECT_STREQ(b, "ADD");
    // I034/090 is sized and named only: the placeholder text and no view.
    item.id = 34090;
    item.length = 2;
    ast_dataitem_get_summary(b, sizeof b, &item);
    EXPECT_STREQ(b, "NOT_IMPLEMENTED");
    ast_dataitem_get_summary(b, 4, &item);
    EXPECT_STREQ(b, "NOT");
    std::strcpy(b, "x");
    ast_dataitem_get_detail_html(b, sizeof b, &item);
    EXPECT_STREQ(b, "");
    item.id = 48220;
    item.length = 17;
    const uint8_t many[17] = {};
    item.data = many;
    std::string html(4096, '\0');
    ast_dataitem_get_hex_html(html.data(), html.size(), &item);
    EXPECT_EQ(html.find("<table class=\"hex_table\">"), 0u);
}

TEST(DataItem, CapabilitiesAndDummy) {
    EXPECT_EQ(ast_dataitem_get_capabilities(48130),
              AST_DATAITEM_CAP_DECODE | AST_DATAITEM_CAP_SUMMARY | AST_DATAITEM_CAP_DETAIL);
    EXPECT_EQ(ast_dataitem_get_capabilities(3010), 0u);
    char b[4] = "abc";
    ast_dataitem_get_detail_html_dummy(b, sizeof b, nullptr);
    EXPECT_STREQ(b, "");
    b[0] = 'z';
    ast_dataitem_get_detail_html_dummy(b, 0, nullptr);
    EXPECT_EQ(b[0], 'z');
}
