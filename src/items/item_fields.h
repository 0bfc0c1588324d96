// The field descriptions of the common items' structures (fields.h), one
// per structure, defined beside each structure's decoder. Category dispatch
// rows point at them for the items the common items serve.
#pragma once

#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc kDataSourceIdentifier;  // AstDataSourceIdentifier

}  // namespace kovrel::fields
