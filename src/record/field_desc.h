// How a decoded structure describes its members, once, beside its decoder.
//
// A FieldDesc is a constexpr table of FieldRows over one C structure: each
// row names a member, says what kind of value it holds and in which unit,
// and where it sits in the structure. The field walk, the JSON writer, the
// setter used by encoders from named values, the tool and the Python package
// all read these tables; nobody writes a printer per item.
//
// Writing the rows of a structure T:
//
//   using T = AstItem048_040;
//   constexpr FieldRow kRows[] = {
//       real("rho", KOVREL_MEMBER(T, rho), "NM"),
//       real("theta", KOVREL_MEMBER(T, theta), "deg"),
//   };
//   constinit const FieldDesc kFields048_040 = describe<T, ast_dataitem_048_040_init>(kRows);
//
// and the dispatch row of the item points at kFields048_040.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "kovrel/fields.h"

namespace kovrel::fields {

// The largest structure a walk decodes into (on the stack).
inline constexpr size_t kMaxStorage = 8192;
// Groups and arrays nest at most this deep.
inline constexpr uint32_t kMaxDepth = 12;

// How a member is stored.
enum class Store : uint8_t { None, U8, U16, U32, U64, I8, I16, I32, I64, F64, Chars, Bytes, Struct };

// A member of a structure: its storage, offset and size.
struct Member {
    Store store = Store::None;
    uint32_t offset = 0;
    uint32_t size = 0;
};

template <typename M>
constexpr Member member_of(size_t offset) {
    using V = std::remove_cv_t<M>;
    Store s = Store::Struct;
    if constexpr (std::is_same_v<V, double>) s = Store::F64;
    else if constexpr (std::is_array_v<V> && std::is_same_v<std::remove_extent_t<V>, char>) s = Store::Chars;
    else if constexpr (std::is_array_v<V> && std::is_same_v<std::remove_extent_t<V>, uint8_t>) s = Store::Bytes;
    else if constexpr (std::is_integral_v<V> || std::is_enum_v<V>) {
        constexpr bool sig = std::is_signed_v<V>;
        if constexpr (sizeof(V) == 1) s = sig ? Store::I8 : Store::U8;
        else if constexpr (sizeof(V) == 2) s = sig ? Store::I16 : Store::U16;
        else if constexpr (sizeof(V) == 4) s = sig ? Store::I32 : Store::U32;
        else s = sig ? Store::I64 : Store::U64;
    }
    return Member{s, static_cast<uint32_t>(offset), static_cast<uint32_t>(sizeof(V))};
}

}  // namespace kovrel::fields

// The member m of structure T.
#define KOVREL_MEMBER(T, m) ::kovrel::fields::member_of<decltype(T::m)>(offsetof(T, m))

namespace kovrel::fields {

struct FieldDesc;
struct FieldRow;
class Walker;

using EnumNameFn = const char *(*)(uint32_t code);
// A member walked by its own code (Mode S MB registers): emits what it
// holds through the walker; false when the visitor stopped.
using CustomWalkFn = bool (*)(Walker &w, const FieldRow &row, const void *base);

// Internal kind of a row beyond the public AstFieldKind values.
inline constexpr uint8_t kKindGroup = AST_FIELD_GROUP_BEGIN;
inline constexpr uint8_t kKindArray = AST_FIELD_ARRAY_BEGIN;
inline constexpr uint8_t kKindCustom = 100;
inline constexpr uint8_t kKindOctetsPtr = 101;  // a pointer member and a length member

struct FieldRow {
    const char *name = nullptr;
    uint8_t kind = 0;        // AstFieldKind, kKindGroup, kKindArray, kKindCustom or kKindOctetsPtr
    uint8_t format = AST_FIELD_FORMAT_DECIMAL;
    uint8_t bits = 0;        // wire width of an integer field, checked when setting (0: the member's width)
    bool invert = false;     // a flag whose member holds the opposite (validated for the V bit)
    Member m;                // the value (for a group: the nested structure; for an array: its first element)
    const char *unit = "";
    double scale = 0;        // a REAL held as an integer member: value = member x scale
    Member present;          // when set: the field exists only when this member is non-zero
    EnumNameFn enum_name = nullptr;
    const FieldDesc *nested = nullptr;  // group: the nested structure; array: one element
    Member count;            // array: number of elements; octets: number of octets
    uint32_t stride = 0;     // array: octets from one element to the next
    uint32_t max = 0;        // array: most elements
    CustomWalkFn custom = nullptr;

    // The field exists only when member p is non-zero (a subfield's or a
    // register value's presence flag).
    constexpr FieldRow when(Member p) const {
        FieldRow r = *this;
        r.present = p;
        return r;
    }
    // The integer occupies `n` bits on the wire (checked when set).
    constexpr FieldRow width(uint8_t n) const {
        FieldRow r = *this;
        r.bits = n;
        return r;
    }
    // A flag shown as the opposite of its member: the wire's V bit ("not
    // validated") over a structure that keeps "validated".
    constexpr FieldRow inverted() const {
        FieldRow r = *this;
        r.invert = true;
        return r;
    }
    constexpr FieldRow shown(AstFieldFormat f) const {
        FieldRow r = *this;
        r.format = static_cast<uint8_t>(f);
        return r;
    }
};

// A structure's description.
struct FieldDesc {
    const FieldRow *rows = nullptr;
    size_t row_count = 0;
    size_t size = 0;                  // sizeof the structure
    void (*init)(void *) = nullptr;   // sets the structure's defaults
};

template <typename T, auto Init>
void init_thunk(void *storage) {
    Init(static_cast<T *>(storage));
}

template <typename T>
void zero_thunk(void *storage) {
    *static_cast<T *>(storage) = T{};
}

// The description of T with its init function: describe<T, init>(rows).
template <typename T, auto Init, size_t N>
constexpr FieldDesc describe(const FieldRow (&rows)[N]) {
    static_assert(sizeof(T) <= kMaxStorage, "a described structure fits the walk's storage");
    return FieldDesc{rows, N, sizeof(T), init_thunk<T, Init>};
}

// The description of T whose defaults are all zero: describe<T>(rows).
template <typename T, size_t N>
constexpr FieldDesc describe(const FieldRow (&rows)[N]) {
    static_assert(sizeof(T) <= kMaxStorage, "a described structure fits the walk's storage");
    return FieldDesc{rows, N, sizeof(T), zero_thunk<T>};
}

// ---- Row builders -----------------------------------------------------------

constexpr FieldRow flag(const char *name, Member m) {
    FieldRow r;
    r.name = name;
    r.kind = AST_FIELD_FLAG;
    r.m = m;
    r.bits = 1;
    return r;
}

// An integer; unsigned or signed as the member is stored.
constexpr FieldRow integer(const char *name, Member m, const char *unit = "") {
    FieldRow r;
    r.name = name;
    const bool sig = m.store == Store::I8 || m.store == Store::I16 || m.store == Store::I32 || m.store == Store::I64;
    r.kind = sig ? AST_FIELD_SIGNED : AST_FIELD_UNSIGNED;
    r.m = m;
    r.unit = unit;
    return r;
}

// A double member in its unit.
constexpr FieldRow real(const char *name, Member m, const char *unit = "") {
    FieldRow r;
    r.name = name;
    r.kind = AST_FIELD_REAL;
    r.m = m;
    r.unit = unit;
    return r;
}

// An integer member shown as member x scale in its unit.
constexpr FieldRow scaled(const char *name, Member m, double scale, const char *unit = "") {
    FieldRow r = real(name, m, unit);
    r.scale = scale;
    return r;
}

// A NUL-terminated character array.
constexpr FieldRow text(const char *name, Member m) {
    FieldRow r;
    r.name = name;
    r.kind = AST_FIELD_TEXT;
    r.m = m;
    return r;
}

// A code with display names (nullptr or "" for a code without one).
constexpr FieldRow enumeration(const char *name, Member m, EnumNameFn names) {
    FieldRow r;
    r.name = name;
    r.kind = AST_FIELD_ENUM;
    r.m = m;
    r.enum_name = names;
    return r;
}

// A fixed array of octets (uint8_t[n]) shown as hexadecimal.
constexpr FieldRow octets(const char *name, Member m) {
    FieldRow r;
    r.name = name;
    r.kind = AST_FIELD_OCTETS;
    r.m = m;
    return r;
}

// Octets behind a pointer member, `length` of them.
constexpr FieldRow octets_at(const char *name, Member pointer, Member length) {
    FieldRow r;
    r.name = name;
    r.kind = kKindOctetsPtr;
    r.m = pointer;
    r.count = length;
    return r;
}

// A nested structure member shown as a group.
constexpr FieldRow group(const char *name, Member m, const FieldDesc &nested) {
    FieldRow r;
    r.name = name;
    r.kind = kKindGroup;
    r.m = m;
    r.nested = &nested;
    return r;
}

// An array member of `max` elements of `stride` octets, `count` of them in
// use. An element description of one row without a name gives an array of
// values, otherwise an array of groups.
constexpr FieldRow array(const char *name, Member first, Member count, uint32_t stride, uint32_t max,
                         const FieldDesc &element) {
    FieldRow r;
    r.name = name;
    r.kind = kKindArray;
    r.m = first;
    r.count = count;
    r.stride = stride;
    r.max = max;
    r.nested = &element;
    return r;
}

// A member walked by its own function.
constexpr FieldRow custom(const char *name, Member m, CustomWalkFn fn) {
    FieldRow r;
    r.name = name;
    r.kind = kKindCustom;
    r.m = m;
    r.custom = fn;
    return r;
}

// ---- Walking ----------------------------------------------------------------

// Emits fields to a visitor, keeping depth and array positions.
class Walker {
public:
    // depth: how deep the fields emitted first stand (0 for an item's own).
    Walker(AstFieldVisitor visitor, void *context, uint32_t depth = 0)
        : visitor_(visitor), context_(context), depth_(depth) {}

    // Emits the rows of d over the structure at base. False when stopped.
    bool walk(const FieldDesc &d, const void *base);
    // Emits one row over the structure at base (nothing when absent).
    bool walk_row(const FieldRow &row, const void *base);

    // Emits one field at the current depth (f.depth is set); kind, name and
    // value as given.
    bool emit(AstField &f);
    bool begin(uint32_t kind, const char *name);  // GROUP_BEGIN or ARRAY_BEGIN
    bool end(uint32_t kind);                      // GROUP_END or ARRAY_END
    bool stopped() const { return stopped_; }

    // The position the next element of the innermost array gets.
    void set_index(uint32_t index) { index_ = index; }

    // A writer that renders descriptions itself (the JSON writer) handles
    // walk() directly; begin, end and emit still reach the visitor.
    using DirectWalk = bool (*)(void *context, const FieldDesc &d, const void *base);
    void set_direct(DirectWalk direct) { direct_ = direct; }

private:
    AstFieldVisitor visitor_;
    void *context_;
    uint32_t depth_;
    uint32_t index_ = 0;
    DirectWalk direct_ = nullptr;
    bool stopped_ = false;
};


// The description of an identifier's structure, or nullptr.
const FieldDesc *find_fields(AstItemId id);

}  // namespace kovrel::fields
