// CAT021 compound items, shared by the dispatch rows and the subfield functions.
#pragma once

#include "record/item_table.h"

namespace kovrel {

extern const CompoundItem kCompound021_110;
extern const CompoundItem kCompound021_220;
extern const CompoundItem kCompound021_295;

namespace cat021 {
// Summary of one age of I021/295.
void age_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
}  // namespace cat021

}  // namespace kovrel
