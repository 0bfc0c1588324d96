#include "support/field_leaves.h"

#include <cstddef>

#include "kovrel/dataitem.h"

namespace kovrel_test {
namespace {

struct Collector {
    std::vector<std::string> open;  // paths of the open groups and arrays
    std::vector<FieldLeaf> leaves;
};

int collect(void *context, const AstField *f) {
    auto &c = *static_cast<Collector *>(context);
    if (f->kind == AST_FIELD_GROUP_END || f->kind == AST_FIELD_ARRAY_END) {
        c.open.pop_back();
        return 1;
    }
    const std::string outer = c.open.empty() ? std::string() : c.open.back();
    const std::string path = f->name ? (outer.empty() ? std::string() : outer + ".") + f->name
                                     : outer + "[" + std::to_string(f->index) + "]";
    if (f->kind == AST_FIELD_GROUP_BEGIN || f->kind == AST_FIELD_ARRAY_BEGIN) {
        c.open.push_back(path);
        return 1;
    }
    if (f->kind == AST_FIELD_OCTETS) return 1;
    c.leaves.push_back(FieldLeaf{path, *f, f->text ? std::string(f->text, f->length) : std::string()});
    return 1;
}

}  // namespace

std::vector<FieldLeaf> field_leaves(const AstDataItem &item) {
    Collector c;
    if (ast_dataitem_walk_fields(&item, collect, &c) != AST_FIELDS_DONE) return {};
    return c.leaves;
}

Octets encode_through_fields(const AstDataItem &item, std::string *failed) {
    std::vector<FieldLeaf> leaves = field_leaves(item);
    const size_t size = ast_dataitem_fields_storage_size(item.id);
    std::vector<std::max_align_t> storage(size / sizeof(std::max_align_t) + 1);
    if (size == 0 || ast_dataitem_fields_init(storage.data(), size, item.id) != 1) return {};
    for (FieldLeaf &leaf : leaves) {
        leaf.value.text = leaf.text.data();
        if (ast_dataitem_fields_set(storage.data(), size, item.id, leaf.path.c_str(), &leaf.value) !=
            AST_FIELD_SET_OK) {
            if (failed) *failed = leaf.path;
            return {};
        }
    }
    Octets out(4096);
    AstDataItem written{};
    const AstDataItemValue value{1, item.id, storage.data()};
    ast_dataitem_encode(&written, out.data(), out.size(), &value);
    if (written.valid != 1 || written.length > out.size()) return {};
    out.resize(static_cast<size_t>(written.length));
    return out;
}

}  // namespace kovrel_test
