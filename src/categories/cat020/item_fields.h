// The field descriptions of CAT020's own structures (fields.h), each defined
// beside its structure's decoder; the dispatch rows point at them. The
// description of AstItem020_NNN is kovrel::fields::k020_NNN; each takes its
// structure's init marked valid (init_valid) as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k020_020;
extern const FieldDesc k020_030;
extern const FieldDesc k020_055;
extern const FieldDesc k020_170;
extern const FieldDesc k020_210;
extern const FieldDesc k020_230;
extern const FieldDesc k020_260;
extern const FieldDesc k020_300;
extern const FieldDesc k020_310;
extern const FieldDesc k020_400;
extern const FieldDesc k020_500;

}  // namespace kovrel::fields
