#include "support/record_walk.h"

namespace kovrel_test {

std::vector<Scanned> walk(const AstUap &uap, uint32_t category, const Octets &record, size_t *consumed) {
    AstDataRecord r;
    ast_datarecord_decode(&r, record.data(), record.size(), category, &uap);
    std::vector<Scanned> items;
    for (uint64_t i = 0; i < r.item_count; ++i) items.push_back({r.items[i].id, r.items[i].length});
    *consumed = r.valid == 1 ? static_cast<size_t>(r.length) : 0;
    return items;
}

}  // namespace kovrel_test

#include <gtest/gtest.h>

namespace kovrel_test {

void expect_frn_items(uint32_t category, const std::vector<Octets> &items) {
    Octets body;
    for (const auto &i : items) body.insert(body.end(), i.begin(), i.end());
    size_t pos = 0;
    for (uint32_t frn = 1; frn <= items.size(); ++frn) {
        const AstItemId id = ast_uap_get_dataitem(&AST_UAP_STANDARD, category, frn);
        if (items[frn - 1].empty()) {
            EXPECT_EQ(id, 0u) << "FRN " << frn;
            continue;
        }
        AstDataItem item;
        ast_dataitem_scan(&item, body.data() + pos, body.size() - pos, id);
        ASSERT_EQ(item.valid, 1) << "FRN " << frn;
        EXPECT_EQ(item.length, items[frn - 1].size()) << "FRN " << frn;
        pos += static_cast<size_t>(item.length);
    }
    EXPECT_EQ(pos, body.size());
}

}  // namespace kovrel_test
