// I048/130 Radar Plot Characteristics: the summaries of the decoded
// subfields, for the subfield rows of the dispatch table.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/subfield.h"

namespace kovrel::cat048 {

// SRL "%.2f LSB=DEG", SRR "%d", SAM "%d LSB=DBM"; the empty text when the
// span is not a present, valid one-octet subfield.
void srl_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void srr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void sam_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);

}  // namespace kovrel::cat048
