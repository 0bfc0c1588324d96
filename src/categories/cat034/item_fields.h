// The field descriptions of CAT034's own structures (fields.h), each defined
// beside its structure's decoder; the dispatch rows point at them. Each takes
// its structure's init marked valid as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k034_050;
extern const FieldDesc k034_060;
extern const FieldDesc k034_070;
extern const FieldDesc k034_120;

}  // namespace kovrel::fields
