// The field descriptions of CAT023's own structures (fields.h), each defined
// beside its structure's decoder; the dispatch rows point at them.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k023_015;
extern const FieldDesc k023_100;
extern const FieldDesc k023_101;
extern const FieldDesc k023_110;
extern const FieldDesc k023_120;
extern const FieldDesc k023_200;

}  // namespace kovrel::fields
