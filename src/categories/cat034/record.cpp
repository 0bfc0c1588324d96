// CAT034 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat034.h"
#include "kovrel/core.h"
#include "categories/cat034/record_encode.h"
#include "items/item_ex.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M034(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord034, FIELD, ID)
// The items without a structured encode of their own are written by the
// record's encoders.
#define E034(N) \
    KOVREL_RECORD_MEMBER_ENCODED(AstRecord034, i##N, 34##N, (&encode_ex<AstItem034_##N, cat034::encode_##N>))
constexpr RecordMember kMembers034[] = {
    M034(i000, 34000), M034(i010, 34010), M034(i020, 34020), M034(i030, 34030), M034(i041, 34041),
    E034(050),         E034(060),         E034(070),         E034(120),
};
#undef M034
#undef E034

// The skipped item is reported at WARNING, with a blank before the colon:
// the text service monitors already filter on.
constinit const RecordLayout kLayout034 =
    make_record_layout<AstRecord034>(34, kMembers034, AST_LOG_WARNING, "Failed to disassemble dataitem : %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_034_disassemble(AstRecord034 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout034, out, record);
}

KOVREL_API void ast_datarecord_034_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord034 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout034, out, buffer, size, in, uap);
}

}  // extern "C"
