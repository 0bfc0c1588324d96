// I034/050 and I034/060: the summaries and detail tables of the decoded
// subfields, for the subfield rows of the dispatch table. Each gives the
// empty text when the span is not a present, delimited subfield of its size.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/subfield.h"

namespace kovrel::cat034 {

void status_com_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void status_com_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void status_ssr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void status_ssr_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);

void mode_com_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void mode_com_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void mode_psr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void mode_psr_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void mode_ssr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void mode_ssr_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void mode_mds_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void mode_mds_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);

}  // namespace kovrel::cat034
