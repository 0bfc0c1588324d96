// CAT001 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it. Assemble picks the UAP from the
// record's content unless the caller names an ASR-10SS layout: station items
// need their sensor's layout, a record with a track number is a track, any
// other a plot.
#include "kovrel/cat001.h"
#include "kovrel/core.h"
#include "kovrel/uap.h"
#include "categories/cat001/station_encode.h"
#include "items/item_ex.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M001(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord001, FIELD, ID)
constexpr RecordMember kMembers001[] = {
    M001(i010, 1010), M001(i020, 1020), M001(i030, 1030), M001(i040, 1040), M001(i042, 1042),
    M001(i050, 1050), M001(i060, 1060), M001(i070, 1070), M001(i080, 1080), M001(i090, 1090),
    M001(i100, 1100), M001(i120, 1120), M001(i130, 1130), M001(i131, 1131), M001(i141, 1141),
    M001(i150, 1150), M001(i161, 1161), M001(i170, 1170), M001(i200, 1200), M001(i210, 1210),
#define S001(N) \
    KOVREL_RECORD_MEMBER_ENCODED(AstRecord001, i##N, 1##N, (&encode_ex<AstItem001_##N, cat001::encode_##N>))
    S001(901), S001(902), S001(903), S001(904),
#undef S001
};
#undef M001

constinit const RecordLayout kLayout001 =
    make_record_layout<AstRecord001>(1, kMembers001, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_001_disassemble(AstRecord001 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout001, out, record);
}

KOVREL_API void ast_datarecord_001_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord001 *in,
                                            const AstUap *uap) {
    // Profiles are compared by their tables, since callers hold copies.
    auto is = [uap](const AstUap &profile) { return uap && uap->get_dataitem == profile.get_dataitem; };
    const AstUap *chosen;
    if (is(AST_UAP_ASR10SS) || is(AST_UAP_ASR10SS_MK2))
        chosen = uap;
    else if (in && (in->i903.valid == 1 || in->i904.valid == 1))
        chosen = &AST_UAP_ASR10SS_MK2;
    else if (in && (in->i901.valid == 1 || in->i902.valid == 1))
        chosen = &AST_UAP_ASR10SS;
    else
        chosen = (in && in->i161.valid == 1) ? &AST_UAP_STANDARD : &AST_UAP_CAT001_PLOT;
    kovrel::assemble_record(kovrel::kLayout001, out, buffer, size, in, chosen);
}

}  // extern "C"
