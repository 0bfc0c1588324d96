#include "categories/packed_items.h"

#include <gtest/gtest.h>

namespace kovrel_test {

namespace {

AstDataItem span(const Wire &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

struct Leaf {
    std::string path;
    AstField value;
    std::string text;
};

struct Collector {
    std::vector<std::string> groups;
    std::vector<Leaf> leaves;
    int in_array = 0;
};

int collect(void *context, const AstField *f) {
    auto &c = *static_cast<Collector *>(context);
    switch (f->kind) {
    case AST_FIELD_ARRAY_BEGIN: ++c.in_array; return 1;
    case AST_FIELD_ARRAY_END: --c.in_array; return 1;
    case AST_FIELD_GROUP_BEGIN:
        if (c.in_array == 0) c.groups.push_back(f->name ? f->name : "");
        return 1;
    case AST_FIELD_GROUP_END:
        if (c.in_array == 0) c.groups.pop_back();
        return 1;
    default: break;
    }
    if (c.in_array > 0 || f->kind == AST_FIELD_OCTETS) return 1;
    std::string path;
    for (const std::string &g : c.groups) path += g + ".";
    c.leaves.push_back(Leaf{path + f->name, *f, f->text ? std::string(f->text, f->length) : std::string()});
    return 1;
}

}  // namespace

std::string summary_of(AstItemId id, const Wire &wire) {
    const AstDataItem item = span(wire, id);
    char buf[512] = "junk";
    ast_dataitem_get_summary(buf, sizeof buf, &item);
    return buf;
}

std::string detail_of(AstItemId id, const Wire &wire) {
    const AstDataItem item = span(wire, id);
    std::vector<char> buf(65536, '#');
    ast_dataitem_get_detail_html(buf.data(), buf.size(), &item);
    return buf.data();
}

std::string json_of(AstItemId id, const Wire &wire) {
    const AstDataItem item = span(wire, id);
    std::vector<char> buf(65536, '#');
    const size_t n = ast_dataitem_get_fields_json(buf.data(), buf.size(), &item);
    const std::string text(buf.data());
    EXPECT_EQ(n, text.size()) << id;
    return text;
}

Wire through_structure(AstItemId id, const Wire &wire) {
    const AstDataItem item = span(wire, id);
    std::vector<unsigned char> storage(65536);
    AstDataItemValue value;
    ast_dataitem_decode(&value, storage.data(), storage.size(), &item);
    if (value.valid != 1) return {};
    std::vector<uint8_t> out(wire.size() + 16, 0xEE);
    AstDataItem written{};
    ast_dataitem_encode(&written, out.data(), out.size(), &value);
    if (written.valid != 1) return {};
    EXPECT_EQ(out[written.length], 0xEE) << id;  // nothing past the item
    return Wire(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(written.length));
}

Wire through_fields(AstItemId id, const Wire &wire) {
    Collector c;
    const AstDataItem item = span(wire, id);
    EXPECT_EQ(ast_dataitem_walk_fields(&item, collect, &c), AST_FIELDS_DONE) << id;
    std::vector<unsigned char> storage(65536);
    const size_t size = ast_dataitem_fields_storage_size(id);
    EXPECT_TRUE(size > 0 && size <= storage.size()) << id;
    EXPECT_EQ(ast_dataitem_fields_init(storage.data(), size, id), 1) << id;
    for (Leaf &leaf : c.leaves) {
        leaf.value.text = leaf.text.data();
        const int r = ast_dataitem_fields_set(storage.data(), size, id, leaf.path.c_str(), &leaf.value);
        EXPECT_EQ(r, AST_FIELD_SET_OK) << id << " " << leaf.path;
        if (r != AST_FIELD_SET_OK) return {};
    }
    std::vector<uint8_t> out(wire.size() + 16);
    AstDataItem written{};
    const AstDataItemValue value{1, id, storage.data()};
    ast_dataitem_encode(&written, out.data(), out.size(), &value);
    if (written.valid != 1) return {};
    return Wire(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(written.length));
}

void expect_items(const std::vector<ItemCase> &cases, bool encodes) {
    for (const ItemCase &c : cases) {
        SCOPED_TRACE(testing::Message() << "item " << c.id << " of " << c.wire.size() << " octets");
        if (c.summary) EXPECT_EQ(summary_of(c.id, c.wire), c.summary);
        if (c.json) EXPECT_EQ(json_of(c.id, c.wire), c.json);
        if (!encodes) continue;
        EXPECT_EQ(through_structure(c.id, c.wire), c.wire);
        bool has_array = c.json && std::string(c.json).find('[') != std::string::npos;
        if (!has_array) EXPECT_EQ(through_fields(c.id, c.wire), c.wire);
    }
}

}  // namespace kovrel_test
