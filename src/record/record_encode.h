// Record encoding with encoders of the caller's choosing: a category's record
// assembly writes some items with encoders that are not the item's own
// public one (items whose structured encode is not offered item by item).
#pragma once

#include "kovrel/datarecord.h"

namespace kovrel {

// ast_datarecord_encode, where encoders (when not null) holds one entry per
// input item: a non-null entry encodes that item instead of the item
// dispatch. every_item: an item the profile has no FRN for makes the record
// invalid (logged at DEBUG "Failed to encode dataitem %s.") instead of
// being left out.
void encode_record(AstDataRecord *out, uint8_t *buffer, size_t size, const AstDataRecordInput *input,
                   const AstDataItemEncodeExFn *encoders, bool every_item);

}  // namespace kovrel
