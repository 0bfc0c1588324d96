// The views of the subfields of I020/500 Position Accuracy, for the item's
// subfield rows.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/subfield.h"

namespace kovrel::cat020 {

void dop_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void dop_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void sdp_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void sdp_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void sdh_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
void sdh_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);

}  // namespace kovrel::cat020
