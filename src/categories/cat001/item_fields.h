// The field descriptions of CAT001's own structures (fields.h), each defined
// beside its structure's decoder; the dispatch rows point at them. Each
// takes its structure's init marked valid (init_valid) as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k001_020;
extern const FieldDesc k001_030;
extern const FieldDesc k001_040;
extern const FieldDesc k001_042;
extern const FieldDesc k001_120;
extern const FieldDesc k001_130;
extern const FieldDesc k001_131;
extern const FieldDesc k001_141;
extern const FieldDesc k001_150;
extern const FieldDesc k001_170;
extern const FieldDesc k001_210;
extern const FieldDesc k001_901;
extern const FieldDesc k001_902;
extern const FieldDesc k001_903;
extern const FieldDesc k001_904;

}  // namespace kovrel::fields
