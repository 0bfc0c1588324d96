// Packed bit layouts, described once and read, written, printed and named
// from the description.
//
// The items of the sensor status, weather and non-cooperative surveillance
// categories (CAT008, CAT015, CAT016, CAT019) are runs of plain bit fields:
// flags, small codes, two's complement numbers and quantities with an LSB.
// Each such run is a constexpr table of Elements over the decoded structure,
// first bit first; one table gives
//   - the decoder (every element into its raw member; a quantity also into
//     its LSB and value members),
//   - the encoder (every element from its raw member, refused when a value
//     does not fit its bits; spare bits written as 0),
//   - the summary ("NAME:value" pairs and flag words),
//   - the rows of the detail table ("Bit[a-b]", "NAME", value), and
//   - the field description (rows_of), so that nothing is written twice.
//
// Compound items are a table of Subfields (a fixed octet count and the
// elements of each); repetitive items a Repeated (the elements of one entry
// over an array of entry structures).
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/dataitem.h"
#include "kovrel/items_motion.h"
#include "kovrel/subfield.h"
#include "record/field_desc.h"

namespace kovrel::packed {

using fields::FieldDesc;
using fields::FieldRow;
using fields::Member;
using fields::Store;

enum class Kind : uint8_t {
    Spare,     // bits written as 0 and never shown
    Unsigned,  // raw integer
    Signed,    // raw two's complement integer
    Flag,      // one bit, shown as a flag word in the summary
    Enum,      // a code with names
    Octal,     // a code shown in octal (Mode 3/A style)
    Quantity,  // raw x LSB, unsigned or two's complement as the raw member is stored
};

struct Element {
    const char *name = nullptr;  // lower-case field name; upper-cased in the texts
    Kind kind = Kind::Spare;
    uint8_t bits = 0;
    Member raw;                  // the wire value
    double lsb = 0;              // Quantity
    const char *unit = "";       // Quantity: unit of the value
    Member lsb_m;                // Quantity: the LSB member (double)
    Member value_m;              // Quantity: the value member (double)
    fields::EnumNameFn names = nullptr;  // Enum
    Member present;              // when set: the element exists only when this member is non-zero
};

constexpr Element spare(uint8_t bits) {
    Element e;
    e.bits = bits;
    return e;
}

constexpr Element num(const char *name, Member raw, uint8_t bits) {
    Element e;
    e.name = name;
    const bool sig = raw.store == Store::I8 || raw.store == Store::I16 || raw.store == Store::I32;
    e.kind = sig ? Kind::Signed : Kind::Unsigned;
    e.bits = bits;
    e.raw = raw;
    return e;
}

constexpr Element bit(const char *name, Member raw) {
    Element e = num(name, raw, 1);
    e.kind = Kind::Flag;
    return e;
}

constexpr Element coded(const char *name, Member raw, uint8_t bits, fields::EnumNameFn names) {
    Element e = num(name, raw, bits);
    e.kind = Kind::Enum;
    e.names = names;
    return e;
}

constexpr Element octal_code(const char *name, Member raw, uint8_t bits) {
    Element e = num(name, raw, bits);
    e.kind = Kind::Octal;
    return e;
}

constexpr Element quantity(const char *name, Member raw, Member lsb_m, Member value_m, uint8_t bits, double lsb,
                           const char *unit) {
    Element e = num(name, raw, bits);
    e.kind = Kind::Quantity;
    e.lsb = lsb;
    e.unit = unit;
    e.lsb_m = lsb_m;
    e.value_m = value_m;
    return e;
}

// The element exists only when member p is non-zero (a later FX part).
constexpr Element when(Element e, Member p) {
    e.present = p;
    return e;
}

// Total bits of a table.
template <size_t N>
constexpr size_t bit_count(const Element (&e)[N]) {
    size_t n = 0;
    for (size_t i = 0; i < N; ++i) n += e[i].bits;
    return n;
}

// Reads the elements from `octets` octets at p into the structure at base.
// False (nothing meaningful written) when the table does not cover exactly
// those octets.
bool decode(const Element *e, size_t n, const uint8_t *p, size_t octets, void *base);
// Writes the elements from base into `octets` octets at out. False when a
// raw value does not fit its bits or the table does not cover the octets;
// the octets are then unspecified.
bool encode(const Element *e, size_t n, const void *base, uint8_t *out, size_t octets);
// "NAME:value" for every value element and the name of every set flag,
// blank-separated, after a blank when the text is not empty. Elements whose
// presence member is 0 are left out.
void summary(TextWriter &w, const Element *e, size_t n, const void *base);
// One detail row per element: "Bit[a-b]" counted from the first bit of the
// run at first_bit, the name (with " LSB=UNIT" for a quantity), the value.
void detail_rows(items::DetailTable &t, const Element *e, size_t n, const void *base, size_t first_bit = 0);

template <size_t N>
bool decode(const Element (&e)[N], const uint8_t *p, size_t octets, void *base) {
    return decode(e, N, p, octets, base);
}
template <size_t N>
bool encode(const Element (&e)[N], const void *base, uint8_t *out, size_t octets) {
    return encode(e, N, base, out, octets);
}
template <size_t N>
void summary(TextWriter &w, const Element (&e)[N], const void *base) {
    summary(w, e, N, base);
}
template <size_t N>
void detail_rows(items::DetailTable &t, const Element (&e)[N], const void *base, size_t first_bit = 0) {
    detail_rows(t, e, N, base, first_bit);
}

// ---- Field descriptions -------------------------------------------------------

// The field row of one element.
constexpr FieldRow row_of(const Element &e) {
    FieldRow r;
    switch (e.kind) {
    case Kind::Flag: r = fields::flag(e.name, e.raw); break;
    case Kind::Enum: r = fields::enumeration(e.name, e.raw, e.names).width(e.bits); break;
    case Kind::Octal: r = fields::integer(e.name, e.raw).width(e.bits).shown(AST_FIELD_FORMAT_OCTAL4); break;
    case Kind::Quantity: r = fields::scaled(e.name, e.raw, e.lsb, e.unit).width(e.bits); break;
    default: r = fields::integer(e.name, e.raw).width(e.bits); break;
    }
    if (e.present.store != Store::None) r = r.when(e.present);
    return r;
}

template <size_t N>
constexpr size_t named_count(const Element (&e)[N]) {
    size_t n = 0;
    for (size_t i = 0; i < N; ++i) n += e[i].kind != Kind::Spare ? 1 : 0;
    return n;
}

template <size_t M>
struct RowSet {
    FieldRow rows[M];
};

// The field rows of a table, spares left out: rows_of<named_count(t)>(t).
template <size_t M, size_t N>
constexpr RowSet<M> rows_of(const Element (&e)[N]) {
    RowSet<M> s{};
    size_t j = 0;
    for (size_t i = 0; i < N; ++i)
        if (e[i].kind != Kind::Spare) s.rows[j++] = row_of(e[i]);
    return s;
}

// ---- Repetitive items ---------------------------------------------------------

// A one-octet repetition factor, then `count` entries of `octets` octets,
// each read by `elements` into one entry structure of an array (element
// members are relative to the entry).
struct Repeated {
    const Element *elements;
    size_t element_count;
    uint32_t octets;   // of one entry
    Member count;      // the number of entries in use (in the item structure)
    uint32_t first;    // offset of entry 0 in the item structure
    uint32_t stride;   // octets from one entry structure to the next
    uint32_t max;      // entries the array holds
};

// Decodes a span of exactly 1 + REP x octets octets with REP <= max.
bool decode_repeated(const Repeated &r, const AstDataItem *item, void *base);
// Writes the entries in use; fails when count exceeds max or 255, or an
// entry does not fit.
void encode_repeated(const Repeated &r, const void *base, AstDataItem *out, uint8_t *buffer, size_t size);
// "NAME:count" summary prefix and the entries' detail rows.
void detail_repeated(items::DetailTable &t, const Repeated &r, const void *base);

// ---- Compound items -----------------------------------------------------------

struct Subfield {
    const char *name;   // lower-case field name of the subfield's group
    uint32_t octets;    // fixed length
    Member present;     // set by the decoder, read by the encoder
    const Element *elements;
    size_t element_count;
};

struct Compound {
    AstItemId id;
    const Subfield *subfields;  // subfield 1 first
    size_t count;
};

// Reads the primary subfield and every present subfield. A bit set beyond
// the subfields of the item adds nothing, as in the item's size rule; a
// subfield cut short makes the item invalid.
bool decode_compound(const Compound &c, const AstDataItem *item, void *base);
// Writes the primary subfield (FX-extended as far as the last present
// subfield) and the present subfields in order; fails when none is present
// or a value does not fit.
void encode_compound(const Compound &c, const void *base, AstDataItem *out, uint8_t *buffer, size_t size);

// Summary and detail of one subfield span, decoded into scratch of `size`
// octets: nothing for a span that is absent, of another length or of
// another item.
void subfield_summary(const Compound &c, void *scratch, size_t scratch_size, char *buffer, size_t size,
                      const AstSubfield *span, uint32_t subfield_id);
void subfield_detail(const Compound &c, void *scratch, size_t scratch_size, char *buffer, size_t size,
                     const AstSubfield *span, uint32_t subfield_id);

// The exported subfield views of compound C over structure T.
template <typename T, const Compound &C>
void subfield_summary_of(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    T scratch{};
    subfield_summary(C, &scratch, sizeof scratch, buffer, size, span, subfield_id);
}
template <typename T, const Compound &C>
void subfield_detail_of(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id) {
    T scratch{};
    subfield_detail(C, &scratch, sizeof scratch, buffer, size, span, subfield_id);
}

// ---- Extended items -----------------------------------------------------------

// One octet run of an FX-extended item: its elements, the last bit being
// the FX bit (a spare element: the writer sets it), and the member that
// marks it present (none for the first part).
struct Part {
    const Element *elements;
    size_t element_count;
    Member present;
};

template <size_t N>
constexpr Part part(const Element (&e)[N], Member present = {}) {
    return Part{e, N, present};
}

struct Extended {
    const Part *parts;
    size_t count;
};

// Reads the first part and every part its predecessor's FX bit announces;
// the span must end with the last part read. An FX bit set in the last part
// the item defines is taken as the end.
bool decode_extended(const Extended &x, const AstDataItem *item, void *base);
// Writes the parts up to the last present one, each but the last with its
// FX bit set.
void encode_extended(const Extended &x, const void *base, AstDataItem *out, uint8_t *buffer, size_t size);
void summary_extended(TextWriter &w, const Extended &x, const void *base);
void detail_extended(items::DetailTable &t, const Extended &x, const void *base);

// "REP:n", then the summary of every entry.
void summary_repeated(TextWriter &w, const Repeated &r, const void *base);

// ---- Per-item functions -----------------------------------------------------

// The summary of a value whose set of shown fields came out empty (flags
// all clear).
inline constexpr const char *kNoFlags = "NONE";

// An item of a fixed number of octets read by one element table E into T
// (T's first member is its 32-bit valid flag).
template <typename T, const auto &E, AstItemId Id>
struct FixedItem {
    static constexpr size_t kOctets = bit_count(E) / 8;
    static_assert(bit_count(E) % 8 == 0, "a fixed item covers whole octets");

    static void init(T *out) {
        if (out) *out = T{};
    }
    static void decode(T *out, const AstDataItem *item) {
        init(out);
        if (!out || !items::span_ok(item, kOctets) || item->id != Id) return;
        if (packed::decode(E, item->data, kOctets, out))
            out->valid = 1;
        else
            init(out);
    }
    static void encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
        if (!items::encode_begin(out, buffer, size, kOctets)) return;
        if (!in || in->valid != 1 || !packed::encode(E, in, buffer, kOctets)) return;
        items::encode_done(out, buffer, kOctets);
    }
    static void summary(char *buffer, size_t size, const AstDataItem *item) {
        items::describe(buffer, size, item, decode, [](TextWriter &w, const T &v) {
            packed::summary(w, E, &v);
            if (w.length() == 0) w.append(kNoFlags);
        });
    }
    static void detail(char *buffer, size_t size, const AstDataItem *item) {
        items::describe(buffer, size, item, decode, [](TextWriter &w, const T &v) {
            items::DetailTable t(w);
            t.header("Bit", "Item", "Value");
            packed::detail_rows(t, E, &v);
            t.end();
        });
    }
};

// A repetitive item read by R into T; Defaults (when given) sets what the
// zeroed structure holds besides (LSBs).
template <typename T, const Repeated &R, AstItemId Id, auto Defaults = nullptr>
struct RepeatedItem {
    static void init(T *out) {
        if (!out) return;
        *out = T{};
        if constexpr (!std::is_null_pointer_v<decltype(Defaults)>) Defaults(out);
    }
    static void decode(T *out, const AstDataItem *item) {
        init(out);
        if (!out || !item || item->id != Id) return;
        if (decode_repeated(R, item, out))
            out->valid = 1;
        else
            init(out);
    }
    static void encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
        if (!out) return;
        items::encode_failed(out, buffer);
        if (in && in->valid == 1) encode_repeated(R, in, out, buffer, size);
    }
    static void summary(char *buffer, size_t size, const AstDataItem *item) {
        items::describe(buffer, size, item, decode, [](TextWriter &w, const T &v) { summary_repeated(w, R, &v); });
    }
    static void detail(char *buffer, size_t size, const AstDataItem *item) {
        items::describe(buffer, size, item, decode, [](TextWriter &w, const T &v) {
            items::DetailTable t(w);
            t.header("Bit", "Item", "Value");
            detail_repeated(t, R, &v);
            t.end();
        });
    }
};

// ---- FX chains of seven-bit values ------------------------------------------

// An item of seven-bit values, one per octet, each octet extended by its FX
// bit: `count` values in use in a uint32_t array at `first` of `max`.
struct Chain {
    Member count;
    uint32_t first;
    uint32_t max;
};

bool decode_chain(const Chain &c, const AstDataItem *item, void *base);
void encode_chain(const Chain &c, const void *base, AstDataItem *out, uint8_t *buffer, size_t size);
// `tag`, ':' and the values in hexadecimal, blank-separated.
void summary_chain(TextWriter &w, const Chain &c, const void *base, const char *tag);
void detail_chain(items::DetailTable &t, const Chain &c, const void *base, const char *name);

template <typename T, const Chain &C, AstItemId Id, const char *Tag>
struct ChainItem {
    static void init(T *out) {
        if (out) *out = T{};
    }
    static void decode(T *out, const AstDataItem *item) {
        init(out);
        if (!out || !item || item->id != Id) return;
        if (decode_chain(C, item, out))
            out->valid = 1;
        else
            init(out);
    }
    static void encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
        if (!out) return;
        items::encode_failed(out, buffer);
        if (in && in->valid == 1) encode_chain(C, in, out, buffer, size);
    }
    static void summary(char *buffer, size_t size, const AstDataItem *item) {
        items::describe(buffer, size, item, decode, [](TextWriter &w, const T &v) { summary_chain(w, C, &v, Tag); });
    }
    static void detail(char *buffer, size_t size, const AstDataItem *item) {
        items::describe(buffer, size, item, decode, [](TextWriter &w, const T &v) {
            items::DetailTable t(w);
            t.header("Bit", "Item", "Value");
            detail_chain(t, C, &v, Tag);
            t.end();
        });
    }
};

// An FX-extended item read by X into T.
template <typename T, const Extended &X, AstItemId Id>
struct ExtendedItem {
    static void init(T *out) {
        if (out) *out = T{};
    }
    static void decode(T *out, const AstDataItem *item) {
        init(out);
        if (!out || !item || item->id != Id) return;
        if (decode_extended(X, item, out))
            out->valid = 1;
        else
            init(out);
    }
    static void encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
        if (!out) return;
        items::encode_failed(out, buffer);
        if (in && in->valid == 1) encode_extended(X, in, out, buffer, size);
    }
    static void summary(char *buffer, size_t size, const AstDataItem *item) {
        items::describe(buffer, size, item, decode, [](TextWriter &w, const T &v) {
            summary_extended(w, X, &v);
            if (w.length() == 0) w.append(kNoFlags);
        });
    }
    static void detail(char *buffer, size_t size, const AstDataItem *item) {
        items::describe(buffer, size, item, decode, [](TextWriter &w, const T &v) {
            items::DetailTable t(w);
            t.header("Bit", "Item", "Value");
            detail_extended(t, X, &v);
            t.end();
        });
    }
};

// A compound item read by C into T.
template <typename T, const Compound &C>
struct CompoundValue {
    static void init(T *out) {
        if (out) *out = T{};
    }
    static void decode(T *out, const AstDataItem *item) {
        init(out);
        if (!out) return;
        if (decode_compound(C, item, out))
            out->valid = 1;
        else
            init(out);
    }
    static void encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
        if (!out) return;
        items::encode_failed(out, buffer);
        if (in && in->valid == 1) encode_compound(C, in, out, buffer, size);
    }
};

// Writes an 8-octet WGS-84 position at `lsb` degrees (180/2^30 or 180/2^31)
// from its degrees: refused when a coordinate is not a number, beyond
// +-90/+-180 degrees, or does not fit 32 bits at that LSB (180 degrees at
// 180/2^31).
void encode_position(AstDataItem *out, uint8_t *buffer, size_t size, const AstPositionWgs84 *in, double lsb);

}  // namespace kovrel::packed

// A quantity element over the members m_raw, m_lsb and m of structure T.
#define KOVREL_QUANTITY(T, NAME, m, BITS, LSB, UNIT)                                                     \
    ::kovrel::packed::quantity(NAME, KOVREL_MEMBER(T, m##_raw), KOVREL_MEMBER(T, m##_lsb), KOVREL_MEMBER(T, m), \
                               BITS, LSB, UNIT)

// Defines the exported _init, _decode, _encode, _get_summary,
// _get_detail_html, _decode_ex and _encode_ex of item P ("019_550") over
// structure T from IMPL (a FixedItem, RepeatedItem or ExtendedItem alias).
#define KOVREL_PACKED_ITEM(P, T, IMPL)                                                                        \
    extern "C" {                                                                                             \
    KOVREL_API void ast_dataitem_##P##_init(T *out) { IMPL::init(out); }                                     \
    KOVREL_API void ast_dataitem_##P##_decode(T *out, const AstDataItem *item) { IMPL::decode(out, item); }  \
    KOVREL_API void ast_dataitem_##P##_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) { \
        IMPL::encode(out, buffer, size, in);                                                                 \
    }                                                                                                        \
    KOVREL_API void ast_dataitem_##P##_get_summary(char *buffer, size_t size, const AstDataItem *item) {     \
        IMPL::summary(buffer, size, item);                                                                   \
    }                                                                                                        \
    KOVREL_API void ast_dataitem_##P##_get_detail_html(char *buffer, size_t size, const AstDataItem *item) { \
        IMPL::detail(buffer, size, item);                                                                    \
    }                                                                                                        \
    }                                                                                                        \
    KOVREL_DECODE_EX(P, T, ast_dataitem_##P##_decode)                                                        \
    KOVREL_ENCODE_EX(P, T, ast_dataitem_##P##_encode)

// The same for a compound item, whose summary and detail view are those of
// its subfields: _init, _decode, _encode, _decode_ex, _encode_ex.
#define KOVREL_PACKED_COMPOUND(P, T, IMPL)                                                                    \
    extern "C" {                                                                                             \
    KOVREL_API void ast_dataitem_##P##_init(T *out) { IMPL::init(out); }                                     \
    KOVREL_API void ast_dataitem_##P##_decode(T *out, const AstDataItem *item) { IMPL::decode(out, item); }  \
    KOVREL_API void ast_dataitem_##P##_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) { \
        IMPL::encode(out, buffer, size, in);                                                                 \
    }                                                                                                        \
    }                                                                                                        \
    KOVREL_DECODE_EX(P, T, ast_dataitem_##P##_decode)                                                        \
    KOVREL_ENCODE_EX(P, T, ast_dataitem_##P##_encode)
