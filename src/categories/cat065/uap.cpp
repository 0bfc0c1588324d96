// CAT065 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {65010, 65000, 65015, 65030, 65020, 65040, 65050,
                                   0,     0,     0,     0,     0,     65998, 65999};
}
const UapTable kUap065Standard = make_uap_table(65, 14, kStandard);
}  // namespace kovrel
