// The field descriptions of CAT065's own structures (fields.h).
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k065_020;
extern const FieldDesc k065_040;

}  // namespace kovrel::fields
