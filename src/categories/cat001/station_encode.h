// Encoders of the ASR-10SS station items, used by the record assembly only:
// the items themselves offer no structured encode. Each writes the named
// octets up to the last one the structure holds, then the extra octets, as
// an FX chain; a flag above 1, a value above 127 or a short buffer leaves
// *out invalid.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovrel/cat001.h"

namespace kovrel::cat001 {

void encode_901(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_901 *in);
void encode_902(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_902 *in);
void encode_903(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_903 *in);
void encode_904(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_904 *in);

}  // namespace kovrel::cat001
