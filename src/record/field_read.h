// Reading and writing described members by their storage.
#pragma once

#include <cstdint>
#include <cstring>

#include "record/field_desc.h"

namespace kovrel::fields {

template <typename V>
inline V load(const void *base, uint32_t offset) {
    V v;
    std::memcpy(&v, static_cast<const uint8_t *>(base) + offset, sizeof v);
    return v;
}

template <typename V>
inline void store(void *base, uint32_t offset, V v) {
    std::memcpy(static_cast<uint8_t *>(base) + offset, &v, sizeof v);
}

inline int64_t read_signed(const Member &m, const void *base) {
    switch (m.store) {
    case Store::I8: return load<int8_t>(base, m.offset);
    case Store::I16: return load<int16_t>(base, m.offset);
    case Store::I32: return load<int32_t>(base, m.offset);
    case Store::I64: return load<int64_t>(base, m.offset);
    case Store::U8: return load<uint8_t>(base, m.offset);
    case Store::U16: return load<uint16_t>(base, m.offset);
    case Store::U32: return load<uint32_t>(base, m.offset);
    case Store::U64: return static_cast<int64_t>(load<uint64_t>(base, m.offset));
    default: return 0;
    }
}

inline uint64_t read_unsigned(const Member &m, const void *base) {
    // Flags and codes are almost all one octet or 32 bits: tested before
    // the jump table, which the walk's mix of rows predicts poorly.
    if (m.store == Store::U8) return load<uint8_t>(base, m.offset);
    if (m.store == Store::U32) return load<uint32_t>(base, m.offset);
    switch (m.store) {
    case Store::U8: return load<uint8_t>(base, m.offset);
    case Store::U16: return load<uint16_t>(base, m.offset);
    case Store::U32: return load<uint32_t>(base, m.offset);
    case Store::U64: return load<uint64_t>(base, m.offset);
    case Store::I8:
    case Store::I16:
    case Store::I32:
    case Store::I64: return static_cast<uint64_t>(read_signed(m, base));
    default: return 0;
    }
}

inline bool is_signed_store(Store s) { return s == Store::I8 || s == Store::I16 || s == Store::I32 || s == Store::I64; }

// A REAL row's value: a double member, or an integer member times its scale.
inline double read_real(const FieldRow &row, const void *base) {
    if (row.m.store == Store::F64) return load<double>(base, row.m.offset);
    const double scale = row.scale != 0 ? row.scale : 1.0;
    if (is_signed_store(row.m.store)) return static_cast<double>(read_signed(row.m, base)) * scale;
    return static_cast<double>(read_unsigned(row.m, base)) * scale;
}

// True when the row's presence condition holds over the structure at base.
inline bool row_present(const FieldRow &row, const void *base) {
    return row.present.store == Store::None || read_unsigned(row.present, base) != 0;
}

// Smallest and largest integer a member can hold, narrowed to `bits` when
// the row gives a wire width.
inline void integer_limits(const Member &m, uint8_t bits, int64_t &lo, uint64_t &hi) {
    const bool sig = is_signed_store(m.store);
    uint32_t width = m.size * 8;
    if (bits > 0 && bits < width) width = bits;
    if (width >= 64) {
        lo = sig ? INT64_MIN : 0;
        hi = sig ? static_cast<uint64_t>(INT64_MAX) : UINT64_MAX;
        return;
    }
    if (sig) {
        lo = -(int64_t{1} << (width - 1));
        hi = (uint64_t{1} << (width - 1)) - 1;
    } else {
        lo = 0;
        hi = (uint64_t{1} << width) - 1;
    }
}

// Writes an integer that fits the member (checked by the caller).
inline void write_integer(const Member &m, void *base, int64_t value) {
    switch (m.store) {
    case Store::U8: store<uint8_t>(base, m.offset, static_cast<uint8_t>(value)); break;
    case Store::U16: store<uint16_t>(base, m.offset, static_cast<uint16_t>(value)); break;
    case Store::U32: store<uint32_t>(base, m.offset, static_cast<uint32_t>(value)); break;
    case Store::U64: store<uint64_t>(base, m.offset, static_cast<uint64_t>(value)); break;
    case Store::I8: store<int8_t>(base, m.offset, static_cast<int8_t>(value)); break;
    case Store::I16: store<int16_t>(base, m.offset, static_cast<int16_t>(value)); break;
    case Store::I32: store<int32_t>(base, m.offset, static_cast<int32_t>(value)); break;
    case Store::I64: store<int64_t>(base, m.offset, value); break;
    default: break;
    }
}

// Runs a walk of d over value (field_walk.cpp).
int walk_value(const FieldDesc &d, const void *value, AstFieldVisitor visitor, void *context);
// Writes the JSON object of the structure at value (field_json.cpp); the
// length it needs, 0 when the walk did not finish.
size_t write_json(char *buffer, size_t size, const FieldDesc &d, const void *value);
// Sets the field at path ("inner.fl") of the structure at storage
// (field_set.cpp); an AstFieldSetResult.
int set_field(const FieldDesc &d, void *storage, const char *path, const AstField &value);

}  // namespace kovrel::fields
