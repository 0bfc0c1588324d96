// The field descriptions of CAT015's own structures (fields.h): the
// description of AstItem015_NNN is kovrel::fields::k015_NNN, with the
// structure's init marked valid as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k015_000;
extern const FieldDesc k015_020;
extern const FieldDesc k015_030;
extern const FieldDesc k015_050;
extern const FieldDesc k015_170;
extern const FieldDesc k015_270;
extern const FieldDesc k015_300;
extern const FieldDesc k015_400;
extern const FieldDesc k015_480;
extern const FieldDesc k015_600;
extern const FieldDesc k015_601;
extern const FieldDesc k015_602;
extern const FieldDesc k015_603;
extern const FieldDesc k015_604;
extern const FieldDesc k015_605;
extern const FieldDesc k015_625;
extern const FieldDesc k015_626;
extern const FieldDesc k015_627;
extern const FieldDesc k015_628;
extern const FieldDesc k015_630;
extern const FieldDesc k015_631;

// A subfield of a compound item as a group of the item's own structure:
// shown, named by the subfield's mnemonic, when `present` is set. The rows
// of `fields` are over the whole structure.
constexpr FieldRow subfield_group(const char *name, Member present, const FieldDesc &fields, uint32_t size) {
    return group(name, Member{Store::Struct, 0, size}, fields).when(present);
}

}  // namespace kovrel::fields
