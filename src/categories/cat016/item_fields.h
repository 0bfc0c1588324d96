// The field descriptions of CAT016's own structures (fields.h): the
// description of AstItem016_NNN is kovrel::fields::k016_NNN, with the
// structure's init marked valid as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k016_200;
extern const FieldDesc k016_300;
extern const FieldDesc k016_405;
extern const FieldDesc k016_410;
extern const FieldDesc k016_420;

}  // namespace kovrel::fields
