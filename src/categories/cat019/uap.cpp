// CAT019 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {19010, 19000, 19140, 19550, 19551, 19552, 19553,
                                   19600, 19610, 19620, 0,     0,     19998, 19999};
}
const UapTable kUap019Standard = make_uap_table(19, 14, kStandard);
}  // namespace kovrel
