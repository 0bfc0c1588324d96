// CAT004 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {4010, 4000, 4015, 4020, 4040, 4045, 4060, 4030, 4170, 4120, 4070,
                                   4076, 4074, 4075, 4100, 4035, 4171, 4110, 0,    4998, 4999};
}
const UapTable kUap004Standard = make_uap_table(4, 21, kStandard);
}  // namespace kovrel
