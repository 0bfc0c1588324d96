// The field descriptions of CAT019's own structures (fields.h): the
// description of AstItem019_NNN is kovrel::fields::k019_NNN, with the
// structure's init marked valid as its defaults.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k019_550;
extern const FieldDesc k019_551;
extern const FieldDesc k019_552;
extern const FieldDesc k019_553;
extern const FieldDesc k019_610;
extern const FieldDesc k019_620;

}  // namespace kovrel::fields
