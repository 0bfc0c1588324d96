#include <gtest/gtest.h>

#include <string>

#include "kovrel/cat048.h"
#include "kovrel/core.h"
#include "kovrel/subfield.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;

TEST(Subfield, CompoundSizes) {
    ast_library_init(nullptr);
    // I048/130 with SRL and SAM: primary octet, then one octet each.
    const uint8_t srl_sam[] = {0xA0, 0x11, 0x22, 0x99};
    EXPECT_EQ(ast_dataitem_048_130_get_size(srl_sam, sizeof srl_sam), 3u);
    // A cut item is refused, not delimited short.
    EXPECT_EQ(ast_dataitem_048_130_get_size(srl_sam, 2), 0u);
    // I048/120 CAL (2) and RDS (7 octets, no repetition factor read).
    const uint8_t doppler[10] = {0xC0};
    EXPECT_EQ(ast_dataitem_048_120_get_size(doppler, 10), 10u);
    EXPECT_EQ(ast_dataitem_048_120_get_size(doppler, 9), 0u);
    // A bit beyond the subfield count still adds its size (0 here)...
    const uint8_t beyond[] = {0x21, 0x80, 0x00, 0x00};
    EXPECT_EQ(ast_dataitem_048_120_get_size(beyond, sizeof beyond), 2u);
    // ...and an unterminated primary subfield cannot be delimited.
    const uint8_t open[] = {0x81};
    EXPECT_EQ(ast_dataitem_048_130_get_size(open, 1), 0u);
    // An empty primary subfield is one octet long only with the option.
    const uint8_t empty[] = {0x00};
    EXPECT_EQ(ast_dataitem_048_130_get_size(empty, 1), 0u);
    ast_library_set_option(AST_OPTION_ACCEPT_EMPTY_FSPEC);
    EXPECT_EQ(ast_dataitem_048_130_get_size(empty, 1), 1u);
    ast_library_reset_option();
}

TEST(Subfield, NamesAndIdentifiers) {
    LogCapture log;
    EXPECT_STREQ(ast_subfield_get_id(48130001), "SRL");
    EXPECT_STREQ(ast_subfield_get_name(48130005), "Amplitude of Primary Plot ");
    EXPECT_STREQ(ast_subfield_get_id(48130008), "---");
    EXPECT_STREQ(ast_subfield_get_name(48130008), "UNKNOWN_SUBFIELD_NAME");
    EXPECT_STREQ(ast_subfield_048_120_get_name(48130001), "UNKNOWN_SUBFIELD_NAME");  // not its item
    EXPECT_STREQ(ast_subfield_get_name(48010001), "UNKNOWN_SUBFIELD_NAME");
    EXPECT_STREQ(ast_subfield_get_id(48010001), "---");
    EXPECT_EQ(ast_subfield_get_size(nullptr, 4, 48130001), 0u);
    const uint8_t one[] = {0x01};
    EXPECT_EQ(ast_subfield_get_size(one, 1, 48120002), 7u);  // the layout's length
    EXPECT_EQ(ast_subfield_get_size(one, 1, 48130007), 1u);

    EXPECT_EQ(ast_dataitem_subfields_get_number(48130), 7u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(48120), 2u);
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(ast_dataitem_subfields_get_number(48010), 0u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Undefined Subfield I048/010"));

    char b[32];
    ast_subfield_get_summary(b, sizeof b, nullptr, 48130004);
    EXPECT_STREQ(b, "NOT_IMPLEMENTED");
    ast_subfield_get_summary(b, sizeof b, nullptr, 48010001);
    EXPECT_STREQ(b, "NOT_IMPLEMENTED");
    // A compound item's exported subfield functions fill both slots, whether
    // or not its rows have summaries and views of their own.
    EXPECT_EQ(ast_subfield_get_capabilities(48130001), 0x6u);
    EXPECT_EQ(ast_subfield_get_capabilities(48120002), 0x6u);
    EXPECT_EQ(ast_subfield_get_capabilities(48010001), 0u);
}

TEST(Subfield, VariableAndRepeatedRules) {
    LogCapture log;
    const uint8_t chain[] = {0x01, 0x01, 0x00};
    EXPECT_EQ(ast_subfield_get_size_variable(chain, 3, 3), 3u);
    EXPECT_EQ(ast_subfield_get_size_variable(chain, 2, 2), 0u);
    EXPECT_EQ(ast_subfield_get_size_variable(chain, 3, 2), 2u);
    EXPECT_TRUE(log.contains(AST_LOG_CRITICAL, "Subfield length exceed max: 2"));
    const uint8_t rep[] = {0x02, 0, 0, 0, 0};
    EXPECT_EQ(ast_subfield_get_size_repeated(rep, 5, 2), 5u);
    EXPECT_EQ(ast_subfield_get_size_repeated(rep, 4, 2), 0u);
    EXPECT_EQ(ast_subfield_get_size_repeated(rep, 5, 0), 0u);
    EXPECT_EQ(ast_subfield_get_size_repeated(rep, 0, 2), 0u);
}

TEST(Subfield, SplitSummaryAndDetail) {
    ast_library_init(nullptr);
    const uint8_t o[] = {0xA0, 0x11, 0x22};
    AstDataItem item = {o, 3, 48130, 1};
    AstSubfieldList list;
    ast_dataitem_subfields_decode(&list, &item);
    ASSERT_EQ(list.valid, 1);
    EXPECT_EQ(list.span_count, 7u);
    EXPECT_EQ(list.spans[0].present, 1);
    EXPECT_EQ(list.spans[0].data, o + 1);
    EXPECT_EQ(list.spans[0].id, 48130001u);
    EXPECT_EQ(list.spans[1].present, 0);
    EXPECT_EQ(list.spans[1].data, nullptr);
    EXPECT_EQ(list.spans[1].valid, 1);
    EXPECT_EQ(list.spans[2].data, o + 2);
    EXPECT_EQ(list.spans[6].id, 48130007u);

    char b[16];
    ast_dataitem_subfields_get_summary(b, sizeof b, &item);
    EXPECT_STREQ(b, "SUBFIELDS:02/07");
    ast_dataitem_subfields_get_summary(b, 10, &item);
    EXPECT_STREQ(b, "SUBFIELDS");

    // The split stops at the item's subfield count (2 for I048/120).
    const uint8_t d[] = {0x81, 0x80, 0x00, 0x00};
    AstDataItem doppler = {d, 4, 48120, 1};
    ast_dataitem_subfields_decode(&list, &doppler);
    ASSERT_EQ(list.valid, 1);
    EXPECT_EQ(list.span_count, 2u);

    AstDataItemValue v;
    ast_dataitem_subfields_decode_ex(&v, &list, sizeof list - 1, &item);
    EXPECT_EQ(v.valid, 0);
    EXPECT_EQ(v.value, nullptr);
    ast_dataitem_subfields_decode_ex(&v, &list, sizeof list, &item);
    EXPECT_EQ(v.valid, 1);
    EXPECT_EQ(v.value, &list);

    std::string html(8192, '\0');
    ast_dataitem_subfields_get_detail_html(html.data(), html.size(), &item);
    html.resize(html.find('\0'));
    EXPECT_EQ(html.find("<h4>Primary Subfield</h4><table class=\"detail_table\"><tr><th>Subfield</th><th>ID</th>"), 0u);
    EXPECT_NE(html.find("<tr><td>1</td><td>SRL</td><td>SSR Plot Runlength</td><td>1</td><td>1</td>"
                        "<td>0.75 LSB=DEG</td></tr>"),
              std::string::npos);
    EXPECT_NE(html.find("<tr class=\"even_row\"><td>2</td><td>SRR</td>"), std::string::npos);
    EXPECT_NE(html.find("<h4>Subfield #3 - Amplitude of (M)SSR Reply</h4><table class=\"bin_table\">"), std::string::npos);
    EXPECT_EQ(html.find("Subfield #2 -"), std::string::npos);
    // Cut anywhere, the view stays inside the buffer and terminated.
    for (size_t n : {0, 1, 50, 333}) {
        std::string small(n + 8, '#');
        ast_dataitem_subfields_get_detail_html(small.data(), n, &item);
        if (n > 0) {
            EXPECT_EQ(small.find('\0'), std::min(n - 1, html.size()));
        }
        EXPECT_EQ(small.substr(n), "########");
    }

    item.valid = 0;
    ast_dataitem_subfields_get_summary(b, sizeof b, &item);
    EXPECT_STREQ(b, "");
}
