// CAT023 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {23010, 23000, 23015, 23070, 23100, 23101, 23200,
                                   23110, 23120, 0,     0,     0,     23998, 23999};
}
const UapTable kUap023Standard = make_uap_table(23, 14, kStandard);
}  // namespace kovrel
