// The field descriptions of CAT048's own structures (fields.h), each defined
// beside its structure's decoder; the dispatch rows point at them. The
// description of AstItem048_NNN is kovrel::fields::k048_NNN; like the common
// items' descriptions, each takes its structure's init marked valid
// (init_valid) as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k048_020;
extern const FieldDesc k048_030;
extern const FieldDesc k048_040;
extern const FieldDesc k048_042;
extern const FieldDesc k048_050;
extern const FieldDesc k048_110;
extern const FieldDesc k048_120;
extern const FieldDesc k048_130;
extern const FieldDesc k048_170;
extern const FieldDesc k048_210;
extern const FieldDesc k048_230;
extern const FieldDesc k048_260;

// A subfield of a compound item as a group of the item's own structure:
// shown, named by the subfield's short id, when `present` is set. The rows
// of `fields` are over the whole structure.
constexpr FieldRow subfield_group(const char *name, Member present, const FieldDesc &fields, uint32_t size) {
    return group(name, Member{Store::Struct, 0, size}, fields).when(present);
}

}  // namespace kovrel::fields
