// CAT063 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {63010, 63015, 63030, 63050, 63060, 63070, 63080,
                                   63081, 63090, 63091, 63092, 0,     63998, 63999};
}
const UapTable kUap063Standard = make_uap_table(63, 14, kStandard);
}  // namespace kovrel
