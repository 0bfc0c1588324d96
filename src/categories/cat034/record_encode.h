// Encoders of the CAT034 items that offer no structured encode of their own
// (I034/050, I034/060, I034/070 and I034/120), used by the record assembly
// so that a disassembled record can be written back whole. Each leaves *out
// invalid, writing nothing past size, when a value does not fit its field or
// the buffer is short.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/cat034.h"

namespace kovrel::cat034 {

// The subfields that are present (COM and SSR from their fields; PSR and
// MDS, which are kept only as spans, from the octets of their spans); an
// item without any of them is not written (it could not be read back).
void encode_050(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem034_050 *in);
void encode_060(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem034_060 *in);
// REP (count, at most 16) and the counters (TYP 5 bits, COUNT 11 bits).
void encode_070(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem034_070 *in);
// The raw height (16 bits) and latitude and longitude (24 bits each).
void encode_120(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem034_120 *in);

}  // namespace kovrel::cat034
