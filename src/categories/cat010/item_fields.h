// The field descriptions of CAT010's own structures (fields.h), each defined
// beside its structure's decoder; the dispatch rows point at them. The
// description of AstItem010_NNN is kovrel::fields::k010_NNN; each takes its
// structure's init marked valid (init_valid) as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k010_020;
extern const FieldDesc k010_040;
extern const FieldDesc k010_042;
extern const FieldDesc k010_131;
extern const FieldDesc k010_170;
extern const FieldDesc k010_202;
extern const FieldDesc k010_210;
extern const FieldDesc k010_270;
extern const FieldDesc k010_280;
extern const FieldDesc k010_300;
extern const FieldDesc k010_310;
extern const FieldDesc k010_500;
extern const FieldDesc k010_550;

}  // namespace kovrel::fields
