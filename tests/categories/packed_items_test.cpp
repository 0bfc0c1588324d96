#include "categories/packed_items.h"

#include <gtest/gtest.h>

#include "support/field_leaves.h"

namespace kovrel_test {

namespace {

AstDataItem span(const Wire &o, AstItemId id) { return AstDataItem{o.data(), o.size(), id, 1}; }

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
    std::string failed;
    const Wire out = encode_through_fields(span(wire, id), &failed);
    EXPECT_EQ(failed, "") << id;
    return out;
}

void expect_items(const std::vector<ItemCase> &cases, bool encodes) {
    for (const ItemCase &c : cases) {
        SCOPED_TRACE(testing::Message() << "item " << c.id << " of " << c.wire.size() << " octets");
        if (c.summary) EXPECT_EQ(summary_of(c.id, c.wire), c.summary);
        if (c.json) EXPECT_EQ(json_of(c.id, c.wire), c.json);
        if (!encodes) continue;
        EXPECT_EQ(through_structure(c.id, c.wire), c.wire);
        EXPECT_EQ(through_fields(c.id, c.wire), c.wire);
    }
}

AstField unsigned_value(uint64_t u) {
    AstField f{};
    f.kind = AST_FIELD_UNSIGNED;
    f.u = u;
    return f;
}

AstField signed_value(int64_t i) {
    AstField f{};
    f.kind = AST_FIELD_SIGNED;
    f.i = i;
    return f;
}

AstField real_value(double real) {
    AstField f{};
    f.kind = AST_FIELD_REAL;
    f.real = real;
    return f;
}

AstField flag_value(bool set) {
    AstField f{};
    f.kind = AST_FIELD_FLAG;
    f.u = set ? 1 : 0;
    return f;
}

void expect_sets(const std::vector<SetCase> &cases) {
    for (const SetCase &c : cases) {
        SCOPED_TRACE(testing::Message() << "item " << c.id << " set " << c.path);
        const AstDataItem item = span(c.before, c.id);
        std::vector<unsigned char> storage(65536);
        AstDataItemValue value;
        ast_dataitem_decode(&value, storage.data(), storage.size(), &item);
        ASSERT_EQ(value.valid, 1);
        const size_t size = ast_dataitem_fields_storage_size(c.id);
        EXPECT_EQ(ast_dataitem_fields_set(value.value, size, c.id, c.path, &c.value), c.result);
        std::vector<uint8_t> out(c.after.size() + 16);
        AstDataItem written{};
        ast_dataitem_encode(&written, out.data(), out.size(), &value);
        ASSERT_EQ(written.valid, 1);
        EXPECT_EQ(Wire(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(written.length)), c.after);
    }
}

Wire repeated(size_t rep, Wire (*element)(size_t index)) {
    Wire out{static_cast<uint8_t>(rep)};
    for (size_t i = 0; i < rep; ++i) {
        const Wire e = element(i);
        out.insert(out.end(), e.begin(), e.end());
    }
    return out;
}

void expect_long(const std::vector<LongCase> &cases) {
    for (const LongCase &c : cases) {
        SCOPED_TRACE(testing::Message() << "item " << c.id << " of " << c.wire.size() << " octets");
        EXPECT_EQ(summary_of(c.id, c.wire).rfind(c.summary_start, 0), 0u);
        const std::string json = json_of(c.id, c.wire);
        const std::string end = c.json_end;
        ASSERT_GT(json.size(), end.size());
        EXPECT_EQ(json.substr(json.size() - end.size()), end);
        EXPECT_EQ(through_structure(c.id, c.wire), c.wire);
        EXPECT_EQ(through_fields(c.id, c.wire), c.wire);
    }
}

}  // namespace kovrel_test
