// CAT020 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat020.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M020(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord020, FIELD, ID)
constexpr RecordMember kMembers020[] = {
    M020(i010, 20010), M020(i020, 20020), M020(i140, 20140), M020(i041, 20041), M020(i042, 20042),
    M020(i161, 20161), M020(i170, 20170), M020(i070, 20070), M020(i202, 20202), M020(i090, 20090),
    M020(i100, 20100), M020(i220, 20220), M020(i245, 20245), M020(i110, 20110), M020(i105, 20105),
    M020(i210, 20210), M020(i300, 20300), M020(i310, 20310), M020(i500, 20500), M020(i400, 20400),
    M020(i250, 20250), M020(i230, 20230), M020(i260, 20260), M020(i030, 20030), M020(i055, 20055),
    M020(i050, 20050),
};
#undef M020

constinit const RecordLayout kLayout020 =
    make_record_layout<AstRecord020>(20, kMembers020, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_020_disassemble(AstRecord020 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout020, out, record);
}

KOVREL_API void ast_datarecord_020_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord020 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout020, out, buffer, size, in, uap);
}

}  // extern "C"
