// CAT048 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {48010, 48140, 48020, 48040, 48070, 48090, 48130, 48220, 48240, 48250,
                                   48161, 48042, 48200, 48170, 48210, 48030, 48080, 48100, 48110, 48120,
                                   48230, 48260, 48055, 48050, 48065, 48060, 48999, 48998};
}
const UapTable kUap048Standard = make_uap_table(48, 28, kStandard);
}  // namespace kovrel
