// The field walk: a decoded structure's values, by name, through its
// description.
#include <cstring>

#include "record/field_desc.h"
#include "record/field_read.h"
#include "record/item_table.h"

namespace kovrel::fields {

const FieldDesc *find_fields(AstItemId id) {
    const ItemRow *row = find_item_row(id);
    return row && row->decode_ex ? row->fields : nullptr;
}

bool Walker::emit(AstField &f) {
    if (stopped_) return false;
    f.depth = depth_;
    if (f.unit == nullptr) f.unit = "";
    if (visitor_(context_, &f) == 0) stopped_ = true;
    return !stopped_;
}

bool Walker::begin(uint32_t kind, const char *name) {
    AstField f{};
    f.name = name;
    f.kind = kind;
    f.index = index_;
    if (!emit(f)) return false;
    ++depth_;
    index_ = 0;
    return true;
}

bool Walker::end(uint32_t kind) {
    if (depth_ > 0) --depth_;
    AstField f{};
    f.kind = kind;
    return emit(f);
}

namespace {

// One array element: a value when the element description is a single
// nameless row, otherwise a group.
bool walk_element(Walker &w, const FieldDesc &element, const void *base) {
    if (element.row_count == 1 && element.rows[0].name == nullptr) return w.walk_row(element.rows[0], base);
    if (!w.begin(AST_FIELD_GROUP_BEGIN, nullptr)) return false;
    if (!w.walk(element, base)) return false;
    return w.end(AST_FIELD_GROUP_END);
}

}  // namespace

bool Walker::walk_row(const FieldRow &row, const void *base) {
    if (stopped_) return false;
    if (!row_present(row, base)) return true;
    const auto *at = static_cast<const uint8_t *>(base) + row.m.offset;
    const uint32_t index = index_;
    AstField f{};
    f.name = row.name;
    f.kind = row.kind;
    f.format = row.format;
    f.unit = row.unit;
    f.index = index;
    switch (row.kind) {
    case AST_FIELD_FLAG:
        f.u = (read_unsigned(row.m, base) != 0) != row.invert ? 1 : 0;
        return emit(f);
    case AST_FIELD_UNSIGNED:
        f.u = read_unsigned(row.m, base);
        return emit(f);
    case AST_FIELD_SIGNED:
        f.i = read_signed(row.m, base);
        return emit(f);
    case AST_FIELD_REAL:
        f.real = read_real(row, base);
        return emit(f);
    case AST_FIELD_ENUM: {
        f.u = read_unsigned(row.m, base);
        const char *name = row.enum_name ? row.enum_name(static_cast<uint32_t>(f.u)) : nullptr;
        f.text = name ? name : "";
        f.length = std::strlen(f.text);
        return emit(f);
    }
    case AST_FIELD_TEXT: {
        const auto *chars = reinterpret_cast<const char *>(at);
        f.text = chars;
        f.length = strnlen(chars, row.m.size);
        return emit(f);
    }
    case AST_FIELD_OCTETS:
        f.octets = at;
        f.length = row.m.size;
        return emit(f);
    case kKindOctetsPtr: {
        const uint8_t *data = nullptr;
        std::memcpy(&data, at, sizeof data);
        f.kind = AST_FIELD_OCTETS;
        f.octets = data;
        f.length = data ? static_cast<size_t>(read_unsigned(row.count, base)) : 0;
        return emit(f);
    }
    case kKindGroup:
        if (depth_ >= kMaxDepth || !row.nested) return true;
        if (!begin(AST_FIELD_GROUP_BEGIN, row.name)) return false;
        if (!walk(*row.nested, at)) return false;
        index_ = index;
        return end(AST_FIELD_GROUP_END);
    case kKindArray: {
        if (depth_ >= kMaxDepth || !row.nested) return true;
        uint64_t count = read_unsigned(row.count, base);
        if (count > row.max) count = row.max;
        if (!begin(AST_FIELD_ARRAY_BEGIN, row.name)) return false;
        for (uint64_t i = 0; i < count; ++i) {
            index_ = static_cast<uint32_t>(i);
            if (!walk_element(*this, *row.nested, at + i * row.stride)) return false;
        }
        index_ = index;
        return end(AST_FIELD_ARRAY_END);
    }
    case kKindCustom:
        if (depth_ >= kMaxDepth || !row.custom) return true;
        return row.custom(*this, row, base);
    default:
        return true;
    }
}

bool Walker::walk(const FieldDesc &d, const void *base) {
    if (stopped_) return false;
    if (direct_) {
        if (!direct_(context_, d, base)) stopped_ = true;
        return !stopped_;
    }
    const uint32_t index = index_;
    for (size_t i = 0; i < d.row_count; ++i) {
        index_ = 0;
        if (!walk_row(d.rows[i], base)) return false;
    }
    index_ = index;
    return !stopped_;
}

int walk_value(const FieldDesc &d, const void *value, AstFieldVisitor visitor, void *context) {
    Walker w(visitor, context);
    return w.walk(d, value) ? AST_FIELDS_DONE : AST_FIELDS_STOPPED;
}

}  // namespace kovrel::fields

using namespace kovrel::fields;

extern "C" {

KOVREL_API int ast_dataitem_has_fields(AstItemId id) { return find_fields(id) ? 1 : 0; }

KOVREL_API int ast_dataitem_walk_fields(const AstDataItem *item, AstFieldVisitor visitor, void *context) {
    if (!item || !visitor) return AST_FIELDS_INVALID;
    const kovrel::ItemRow *row = kovrel::find_item_row(item->id);
    if (!row || !row->decode_ex || !row->fields) return AST_FIELDS_NONE;
    if (item->valid != 1 || (!item->data && item->length > 0)) return AST_FIELDS_INVALID;
    alignas(std::max_align_t) unsigned char storage[kMaxStorage];
    AstDataItemValue value{};
    row->decode_ex(&value, storage, sizeof storage, item);
    if (value.valid != 1 || !value.value) return AST_FIELDS_INVALID;
    return walk_value(*row->fields, value.value, visitor, context);
}

KOVREL_API int ast_datavalue_walk_fields(const AstDataItemValue *value, AstFieldVisitor visitor, void *context) {
    if (!value || !visitor) return AST_FIELDS_INVALID;
    const FieldDesc *d = find_fields(value->id);
    if (!d) return AST_FIELDS_NONE;
    if (value->valid != 1 || !value->value) return AST_FIELDS_INVALID;
    return walk_value(*d, value->value, visitor, context);
}

KOVREL_API size_t ast_dataitem_fields_storage_size(AstItemId id) {
    const FieldDesc *d = find_fields(id);
    return d ? d->size : 0;
}

KOVREL_API int ast_dataitem_fields_init(void *storage, size_t size, AstItemId id) {
    const FieldDesc *d = find_fields(id);
    if (!d || !storage || size < d->size) return 0;
    d->init(storage);
    return 1;
}

}  // extern "C"
