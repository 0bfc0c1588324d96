// The views of the subfields of CAT015's compound items, for the subfield
// rows of items.cpp.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/subfield.h"

namespace kovrel::cat015 {

void summary_270(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_270(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_600(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_600(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_601(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_601(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_602(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_602(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_603(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_603(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_604(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_604(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_605(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_605(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_625(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_625(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_626(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_626(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_627(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_627(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_628(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_628(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void summary_630(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void detail_630(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);

}  // namespace kovrel::cat015
