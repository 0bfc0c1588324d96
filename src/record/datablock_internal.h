// Pieces shared by the block decoders.
#pragma once

#include "kovrel/datablock.h"

namespace kovrel {

// Resets the block and reads its header; false (block invalid) when octets
// is NULL, fewer than 3 octets or fewer than LEN are available.
bool begin_block(AstDataBlock *b, const uint8_t *octets, size_t available, const AstUap *uap, uint64_t *len);
// Where the next record is decoded: the block's next entry, or spare.
AstDataRecord *record_slot(AstDataBlock *b, AstDataRecord *spare);
// Counts the record just decoded; false after logging when the block is full.
bool accept_record(AstDataBlock *b, bool dump, const uint8_t *octets, size_t available);

}  // namespace kovrel
