// The field descriptions of CAT002's own structures (fields.h), defined
// beside their decoders; the dispatch rows point at them.
#pragma once

#include "items/item_fields.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k002_050;
extern const FieldDesc k002_901;  // also the layout of 2902

}  // namespace kovrel::fields
