// CAT240 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {240010, 240000, 240020, 240030, 240040, 240041, 240048,
                                   240049, 240050, 240051, 240052, 240140, 240998, 240999};
}
const UapTable kUap240Standard = make_uap_table(240, 14, kStandard);
}  // namespace kovrel
