// CAT010 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {10010, 10000, 10020, 10140, 10041, 10040, 10042, 10200, 10202, 10161,
                                   10170, 10060, 10220, 10245, 10250, 10300, 10090, 10091, 10270, 10550,
                                   10310, 10500, 10280, 10131, 10210, 0,     10999, 10998};
}
const UapTable kUap010Standard = make_uap_table(10, 28, kStandard);
}  // namespace kovrel
