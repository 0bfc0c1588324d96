// CAT020 FRN table.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {20010, 20020, 20140, 20041, 20042, 20161, 20170, 20070, 20202, 20090,
                                   20100, 20220, 20245, 20110, 20105, 20210, 20300, 20310, 20500, 20400,
                                   20250, 20230, 20260, 20030, 20055, 20050, 20998, 20999};
}
const UapTable kUap020Standard = make_uap_table(20, 28, kStandard);
}  // namespace kovrel
