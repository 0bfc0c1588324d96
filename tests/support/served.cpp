#include "support/served.h"

#include <gtest/gtest.h>

namespace kovrel_test {

void expect_served(const AstDataRecord &r, const std::vector<Served> &cases) {
    ASSERT_EQ(r.item_count, cases.size());
    for (size_t i = 0; i < cases.size(); ++i) {
        const AstDataItem &item = r.items[i];
        const Served &c = cases[i];
        ASSERT_EQ(item.id, c.id);
        char text[128];
        ast_dataitem_get_summary(text, sizeof text, &item);
        EXPECT_STREQ(text, c.summary) << c.id;
        EXPECT_EQ(ast_dataitem_get_capabilities(c.id), c.caps) << c.id;
        if (c.storage == 0) continue;
        alignas(std::max_align_t) unsigned char mem[4096];
        AstDataItemValue v;
        ast_dataitem_decode(&v, mem, c.storage - 1, &item);
        EXPECT_EQ(v.value, nullptr) << c.id;
        ast_dataitem_decode(&v, mem, c.storage, &item);
        EXPECT_EQ(v.valid, 1) << c.id;
        if ((c.caps & AST_DATAITEM_CAP_ENCODE) == 0) continue;
        uint8_t buf[16];
        AstDataItem out;
        ast_dataitem_encode(&out, buf, sizeof buf, &v);
        EXPECT_EQ(out.id, c.id);
        EXPECT_EQ(Octets(buf, buf + out.length), Octets(item.data, item.data + item.length)) << c.id;
    }
}

void expect_row(AstItemId id, const Octets &o, const char *text, uint32_t caps) {
    AstDataItem item;
    ast_dataitem_scan(&item, o.data(), o.size(), id);
    char summary[128];
    ast_dataitem_get_summary(summary, sizeof summary, &item);
    if (text) {
        EXPECT_STREQ(summary, text) << id;
    }
    EXPECT_EQ(ast_dataitem_get_capabilities(id) & (text ? ~0u : ~AST_DATAITEM_CAP_SUMMARY), caps) << id;
    if (!(caps & AST_DATAITEM_CAP_ENCODE)) return;
    alignas(std::max_align_t) unsigned char storage[4096];
    AstDataItemValue value;
    ast_dataitem_decode(&value, storage, sizeof storage, &item);
    uint8_t buffer[16];
    AstDataItem out;
    ast_dataitem_encode(&out, buffer, sizeof buffer, &value);
    EXPECT_EQ(Octets(buffer, buffer + out.length), o) << id;
}

}  // namespace kovrel_test
