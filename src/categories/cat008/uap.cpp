// CAT008 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {8010, 8000, 8020, 8036, 8034, 8040, 8050,
                                   8090, 8100, 8110, 8120, 8038, 8999, 8997};
}
const UapTable kUap008Standard = make_uap_table(8, 14, kStandard);
}  // namespace kovrel
