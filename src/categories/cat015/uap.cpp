// CAT015 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {15010, 15000, 15015, 15020, 15030, 15145, 15161, 15170, 15050,
                                   15270, 15300, 15400, 15600, 15601, 15602, 15603, 15604, 15605,
                                   15480, 15625, 15626, 15627, 15628, 15630, 15631};
}
const UapTable kUap015Standard = make_uap_table(15, 25, kStandard);
}  // namespace kovrel
