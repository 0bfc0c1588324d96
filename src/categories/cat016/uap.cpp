// CAT016 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {16010, 16015, 16000, 16140, 16200, 16300, 16400, 16405, 16410, 16420};
}
const UapTable kUap016Standard = make_uap_table(16, 10, kStandard);
}  // namespace kovrel
