// The field descriptions of CAT004's own structures (fields.h), each defined
// beside its structure's decoder; the dispatch rows point at them.
#pragma once

#include "items/item_fields.h"
#include "kovrel/subfield.h"
#include "record/field_desc.h"

namespace kovrel::fields {

extern const FieldDesc k004_040;
extern const FieldDesc k004_060;
extern const FieldDesc k004_100;
extern const FieldDesc k004_120;
extern const FieldDesc k004_170;

}  // namespace kovrel::fields

namespace kovrel::cat004 {

// Subfield summaries of the compound items (compound.cpp).
void an_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void cc_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void m3_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
// "NOT_IMPLEMENTED" for a present subfield, the empty text otherwise.
void raw_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);

}  // namespace kovrel::cat004
