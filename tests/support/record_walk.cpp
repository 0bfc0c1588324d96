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
