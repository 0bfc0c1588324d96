// The field description of CAT063's own structure (fields.h).
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k063_060;

}  // namespace kovrel::fields
