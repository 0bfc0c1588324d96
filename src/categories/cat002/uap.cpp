// CAT002 FRN tables: standard and the ASR-10SS sensor profiles.
#include "record/uap_table.h"

namespace kovrel {
namespace {
constexpr AstItemId kStandard[] = {2010, 2000, 2020, 2030, 2041, 2050, 2060,
                                   2070, 2100, 2090, 2080, 0,    2999, 2997};
constexpr AstItemId kAsr10ss[] = {2010, 2000, 2020, 2030, 0, 2901};
constexpr AstItemId kAsr10ssMk2[] = {2010, 2000, 2020, 2030, 0, 2902};
}  // namespace

const UapTable kUap002Standard = make_uap_table(2, 14, kStandard);
const UapTable kUap002Asr10ss = make_uap_table(2, 6, kAsr10ss);
const UapTable kUap002Asr10ssMk2 = make_uap_table(2, 6, kAsr10ssMk2);
}  // namespace kovrel
