// CAT062 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {62010, 0,     62015, 62070, 62105, 62100, 62185, 62210, 62060,
                                   62245, 62380, 62040, 62080, 62290, 62200, 62295, 62136, 62130,
                                   62135, 62220, 62390, 62270, 62300, 62110, 62120, 62510, 62500,
                                   62340, 0,     0,     0,     0,     0,     62998, 62999};
}
const UapTable kUap062Standard = make_uap_table(62, 35, kStandard);
}  // namespace kovrel
