// CAT034 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {34010, 34000, 34030, 34020, 34041, 34050, 34060,
                                   34070, 34100, 34110, 34120, 34090, 34998, 34999};
}
const UapTable kUap034Standard = make_uap_table(34, 14, kStandard);
}  // namespace kovrel
