// The field descriptions of CAT008's own structures (fields.h): the
// description of AstItem008_NNN is kovrel::fields::k008_NNN, with the
// structure's init marked valid as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k008_020;
extern const FieldDesc k008_034;
extern const FieldDesc k008_036;
extern const FieldDesc k008_038;
extern const FieldDesc k008_040;
extern const FieldDesc k008_050;
extern const FieldDesc k008_100;
extern const FieldDesc k008_110;
extern const FieldDesc k008_120;

}  // namespace kovrel::fields
