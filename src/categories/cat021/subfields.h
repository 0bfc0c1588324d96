// CAT021 compound items, shared by the dispatch rows and the subfield functions.
#pragma once

#include "record/item_table.h"

namespace kovrel {

extern const CompoundItem kCompound021_110;
extern const CompoundItem kCompound021_220;
extern const CompoundItem kCompound021_295;

}  // namespace kovrel
