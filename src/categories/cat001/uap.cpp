// CAT001 FRN tables: standard (track and plot), plot-only, and the ASR-10SS
// sensor profiles.
#include "record/uap_table.h"

namespace kovrel {
namespace {
// 22 entries although the highest FRN is 21: FRN 22 (I001/150) is answered
// when a decoder asks for it, but the encoder stops at 21.
constexpr AstItemId kStandard[] = {1010, 1020, 1161, 1040, 1042, 1200, 1070, 1090, 1141, 1130, 1131,
                                   1120, 1170, 1210, 1050, 1080, 1100, 1060, 1030, 1999, 1997, 1150};
constexpr AstItemId kPlot[] = {1010, 1020, 1040, 1070, 1090, 1130, 1141, 1050, 1120, 1131, 1080,
                               1100, 1060, 1030, 1150, 0,    0,    0,    0,    1999, 1997};
// ASR-10SS sends its own layouts of I001/130 and I001/210.
constexpr AstItemId kAsr10ss[] = {1010, 1020, 1161, 1040, 0, 1200, 1070, 1090,
                                  1141, 1901, 0,    0,    1170, 1902, 1050};
constexpr AstItemId kAsr10ssMk2[] = {1010, 1020, 1161, 1040, 0, 1200, 1070, 1090,
                                     1141, 1903, 0,    0,    1170, 1904, 1050};
}  // namespace

const UapTable kUap001Standard = make_uap_table(1, 21, kStandard);
const UapTable kUap001Plot = make_uap_table(1, 21, kPlot);
const UapTable kUap001Asr10ss = make_uap_table(1, 15, kAsr10ss);
const UapTable kUap001Asr10ssMk2 = make_uap_table(1, 15, kAsr10ssMk2);
}  // namespace kovrel
