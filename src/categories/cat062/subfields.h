// CAT062 compound items, shared by the dispatch rows and the subfield functions.
#pragma once

#include "record/item_table.h"

namespace kovrel {

extern const CompoundItem kCompound062_110;
extern const CompoundItem kCompound062_290;
extern const CompoundItem kCompound062_295;
extern const CompoundItem kCompound062_340;
extern const CompoundItem kCompound062_380;
extern const CompoundItem kCompound062_390;
extern const CompoundItem kCompound062_500;

}  // namespace kovrel
