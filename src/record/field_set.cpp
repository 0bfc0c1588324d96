// Filling a described structure by field name, for encoders fed with named
// values (JSON, Python dictionaries).
#include <cmath>
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

int set_field(const FieldDesc &desc, void *storage, const char *path, const AstField &value) {
    const FieldDesc *d = &desc;
    void *base = storage;
    // Presence flags of the groups on the way, set only when the value is.
    const FieldRow *groups[kMaxDepth];
    void *group_bases[kMaxDepth];
    uint32_t group_count = 0;
    for (;;) {
        const char *dot = std::strchr(path, '.');
        const size_t n = dot ? static_cast<size_t>(dot - path) : std::strlen(path);
        const FieldRow *row = find_row(*d, path, n);
        if (!row) return AST_FIELD_SET_UNKNOWN;
        if (!dot) {
            const int r = set_value(*row, base, value);
            if (r != AST_FIELD_SET_OK) return r;
            if (row->present.store != Store::None) write_integer(row->present, base, 1);
            for (uint32_t i = 0; i < group_count; ++i)
                if (groups[i]->present.store != Store::None) write_integer(groups[i]->present, group_bases[i], 1);
            return AST_FIELD_SET_OK;
        }
        if (row->kind != kKindGroup || !row->nested) {
            return row->kind == kKindArray || row->kind == kKindCustom ? AST_FIELD_SET_READ_ONLY
                                                                       : AST_FIELD_SET_UNKNOWN;
        }
        if (group_count == kMaxDepth) return AST_FIELD_SET_UNKNOWN;
        groups[group_count] = row;
        group_bases[group_count++] = base;
        base = static_cast<uint8_t *>(base) + row->m.offset;
        d = row->nested;
        path = dot + 1;
    }
}

}  // namespace kovrel::fields

extern "C" KOVREL_API int ast_dataitem_fields_set(void *storage, size_t size, AstItemId id, const char *path,
                                                  const AstField *value) {
    const FieldDesc *d = find_fields(id);
    if (!d || !storage || size < d->size || !path || !value) return AST_FIELD_SET_UNKNOWN;
    return set_field(*d, storage, path, *value);
}
