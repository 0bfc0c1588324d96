// Filling a described structure by field name, for encoders fed with named
// values (JSON, Python dictionaries).
#include <cmath>
#include <cstddef>
#include <cstring>

#include "record/field_desc.h"
#include "record/field_read.h"

namespace {

using namespace kovrel::fields;

// The row named by the first `n` characters of name in d.
const FieldRow *find_row(const FieldDesc &d, const char *name, size_t n) {
    for (size_t i = 0; i < d.row_count; ++i) {
        const char *row_name = d.rows[i].name;
        if (row_name && std::strlen(row_name) == n && std::memcmp(row_name, name, n) == 0) return &d.rows[i];
    }
    return nullptr;
}

// The value as an integer when it is one exactly; false otherwise.
bool integral(const AstField &v, bool &negative, uint64_t &magnitude) {
    switch (v.kind) {
    case AST_FIELD_FLAG:
    case AST_FIELD_UNSIGNED:
    case AST_FIELD_ENUM:
        negative = false;
        magnitude = v.u;
        return true;
    case AST_FIELD_SIGNED:
        negative = v.i < 0;
        magnitude = negative ? static_cast<uint64_t>(0) - static_cast<uint64_t>(v.i) : static_cast<uint64_t>(v.i);
        return true;
    case AST_FIELD_REAL:
        if (!std::isfinite(v.real) || v.real != std::trunc(v.real) || std::fabs(v.real) >= 9.2e18) return false;
        negative = v.real < 0;
        magnitude = static_cast<uint64_t>(std::fabs(v.real));
        return true;
    default:
        return false;
    }
}

bool as_real(const AstField &v, double &out) {
    switch (v.kind) {
    case AST_FIELD_FLAG:
    case AST_FIELD_UNSIGNED:
    case AST_FIELD_ENUM: out = static_cast<double>(v.u); return true;
    case AST_FIELD_SIGNED: out = static_cast<double>(v.i); return true;
    case AST_FIELD_REAL: out = v.real; return true;
    default: return false;
    }
}

// Writes an integer into the member when it fits its range (and wire width).
int set_integer(const FieldRow &row, void *base, bool negative, uint64_t magnitude) {
    int64_t lo;
    uint64_t hi;
    integer_limits(row.m, row.bits, lo, hi);
    if (negative) {
        if (lo >= 0 || magnitude > static_cast<uint64_t>(0) - static_cast<uint64_t>(lo)) return AST_FIELD_SET_OUT_OF_RANGE;
        write_integer(row.m, base, static_cast<int64_t>(static_cast<uint64_t>(0) - magnitude));
    } else {
        if (magnitude > hi) return AST_FIELD_SET_OUT_OF_RANGE;
        write_integer(row.m, base, static_cast<int64_t>(magnitude));
    }
    return AST_FIELD_SET_OK;
}

int set_value(const FieldRow &row, void *base, const AstField &v) {
    bool negative = false;
    uint64_t magnitude = 0;
    switch (row.kind) {
    case AST_FIELD_FLAG:
        if (!integral(v, negative, magnitude)) return AST_FIELD_SET_WRONG_KIND;
        if (negative || magnitude > 1) return AST_FIELD_SET_OUT_OF_RANGE;
        return set_integer(row, base, false, row.invert ? 1 - magnitude : magnitude);
    case AST_FIELD_UNSIGNED:
    case AST_FIELD_SIGNED:
    case AST_FIELD_ENUM:
        if (!integral(v, negative, magnitude)) return AST_FIELD_SET_WRONG_KIND;
        return set_integer(row, base, negative, magnitude);
    case AST_FIELD_REAL: {
        double value;
        if (!as_real(v, value)) return AST_FIELD_SET_WRONG_KIND;
        if (!std::isfinite(value)) return AST_FIELD_SET_OUT_OF_RANGE;
        if (row.m.store == Store::F64) {
            store<double>(base, row.m.offset, value);
            return AST_FIELD_SET_OK;
        }
        const double raw = std::round(value / (row.scale != 0 ? row.scale : 1.0));
        if (std::fabs(raw) >= 9.2e18) return AST_FIELD_SET_OUT_OF_RANGE;
        return set_integer(row, base, raw < 0, static_cast<uint64_t>(std::fabs(raw)));
    }
    case AST_FIELD_TEXT: {
        if (v.kind != AST_FIELD_TEXT || (!v.text && v.length > 0)) return AST_FIELD_SET_WRONG_KIND;
        if (row.m.size == 0 || v.length >= row.m.size) return AST_FIELD_SET_OUT_OF_RANGE;
        if (v.length > 0 && std::memchr(v.text, '\0', v.length)) return AST_FIELD_SET_OUT_OF_RANGE;
        auto *chars = static_cast<char *>(base) + row.m.offset;
        std::memset(chars, 0, row.m.size);
        if (v.length > 0) std::memcpy(chars, v.text, v.length);
        return AST_FIELD_SET_OK;
    }
    default:
        return AST_FIELD_SET_READ_ONLY;
    }
}

}  // namespace

namespace kovrel::fields {

namespace {

// Sets the presence flag of a row, when it has one.
void mark_present(const FieldRow &row, void *base) {
    if (row.present.store != Store::None) write_integer(row.present, base, 1);
}

// "[index]" at the start of text: the index and the characters after "]";
// false when text is not such a subscript (digits only, no sign).
bool parse_index(const char *text, uint64_t &index, const char *&after) {
    if (*text != '[' || text[1] < '0' || text[1] > '9') return false;
    index = 0;
    const char *p = text + 1;
    for (; *p >= '0' && *p <= '9'; ++p) {
        if (index > 0xFFFFFFFFu) return false;  // beyond any array; keeps the sum from overflowing
        index = index * 10 + static_cast<uint64_t>(*p - '0');
    }
    if (*p != ']') return false;
    after = p + 1;
    return true;
}

int set_in(const FieldDesc &desc, void *storage, const char *path, const AstField &value, uint32_t depth);

// Sets element `index` of the array row over base: `rest` is the path inside
// an element of groups, nullptr for an element that is one value. An index
// past the elements in use brings the count up to it, the elements skipped
// on the way taking their defaults. Nothing changes on failure: the element
// is set in a copy first.
int set_element(const FieldRow &row, void *base, uint64_t index, const char *rest, const AstField &value,
                uint32_t depth) {
    const FieldDesc *d = row.nested;
    if (!d || row.stride == 0 || row.stride > kMaxStorage || d->size > row.stride || depth >= kMaxDepth)
        return AST_FIELD_SET_UNKNOWN;
    int64_t lo;
    uint64_t hi;
    integer_limits(row.count, 0, lo, hi);
    if (index >= row.max || index >= hi) return AST_FIELD_SET_OUT_OF_RANGE;
    uint64_t count = read_unsigned(row.count, base);
    if (count > row.max) count = row.max;
    auto *first = static_cast<uint8_t *>(base) + row.m.offset;
    uint8_t *at = first + index * row.stride;

    alignas(std::max_align_t) uint8_t element[kMaxStorage];
    if (index < count)
        std::memcpy(element, at, row.stride);
    else if (d->init)
        d->init(element);
    else
        std::memset(element, 0, row.stride);
    int r;
    if (rest) {
        r = set_in(*d, element, rest, value, depth + 1);
    } else if (d->row_count == 1 && !d->rows[0].name) {
        r = set_value(d->rows[0], element, value);
        if (r == AST_FIELD_SET_OK) mark_present(d->rows[0], element);
    } else {
        r = AST_FIELD_SET_WRONG_KIND;  // an element of groups given one value
    }
    if (r != AST_FIELD_SET_OK) return r;
    for (uint64_t k = count; k < index; ++k) {
        uint8_t *skipped = first + k * row.stride;
        if (d->init)
            d->init(skipped);
        else
            std::memset(skipped, 0, row.stride);
    }
    std::memcpy(at, element, row.stride);
    if (index >= count) write_integer(row.count, base, static_cast<int64_t>(index + 1));
    return AST_FIELD_SET_OK;
}

int set_in(const FieldDesc &desc, void *storage, const char *path, const AstField &value, uint32_t depth) {
    const FieldDesc *d = &desc;
    void *base = storage;
    // Presence flags of the groups on the way, set only when the value is.
    const FieldRow *groups[kMaxDepth];
    void *group_bases[kMaxDepth];
    uint32_t group_count = 0;
    auto mark_groups = [&] {
        for (uint32_t i = 0; i < group_count; ++i) mark_present(*groups[i], group_bases[i]);
    };
    for (;;) {
        const size_t n = std::strcspn(path, ".[");
        const FieldRow *row = find_row(*d, path, n);
        if (!row) return AST_FIELD_SET_UNKNOWN;
        const char *next = path + n;
        if (*next == '[') {
            uint64_t index;
            const char *after;
            if (row->kind != kKindArray || !parse_index(next, index, after) || (*after != '\0' && *after != '.'))
                return AST_FIELD_SET_UNKNOWN;
            const int r = set_element(*row, base, index, *after == '.' ? after + 1 : nullptr, value,
                                      depth + group_count);
            if (r != AST_FIELD_SET_OK) return r;
            mark_present(*row, base);
            mark_groups();
            return AST_FIELD_SET_OK;
        }
        if (*next == '\0') {
            if (row->kind == kKindArray) return AST_FIELD_SET_WRONG_KIND;  // an array wants its elements
            const int r = set_value(*row, base, value);
            if (r != AST_FIELD_SET_OK) return r;
            mark_present(*row, base);
            mark_groups();
            return AST_FIELD_SET_OK;
        }
        if (row->kind != kKindGroup || !row->nested) {
            return row->kind == kKindCustom ? AST_FIELD_SET_READ_ONLY : AST_FIELD_SET_UNKNOWN;
        }
        if (group_count == kMaxDepth || depth + group_count >= kMaxDepth) return AST_FIELD_SET_UNKNOWN;
        groups[group_count] = row;
        group_bases[group_count++] = base;
        base = static_cast<uint8_t *>(base) + row->m.offset;
        d = row->nested;
        path = next + 1;
    }
}

}  // namespace

int set_field(const FieldDesc &desc, void *storage, const char *path, const AstField &value) {
    return set_in(desc, storage, path, value, 0);
}

}  // namespace kovrel::fields

extern "C" KOVREL_API int ast_dataitem_fields_set(void *storage, size_t size, AstItemId id, const char *path,
                                                  const AstField *value) {
    const FieldDesc *d = find_fields(id);
    if (!d || !storage || size < d->size || !path || !value) return AST_FIELD_SET_UNKNOWN;
    return set_field(*d, storage, path, *value);
}
