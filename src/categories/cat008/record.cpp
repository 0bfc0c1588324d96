// CAT008 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat008.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M008(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord008, FIELD, ID)
constexpr RecordMember kMembers008[] = {
    M008(i010, 8010), M008(i000, 8000), M008(i020, 8020), M008(i036, 8036), M008(i034, 8034), M008(i040, 8040),
    M008(i050, 8050), M008(i090, 8090), M008(i100, 8100), M008(i110, 8110), M008(i120, 8120), M008(i038, 8038),
};
#undef M008

constinit const RecordLayout kLayout008 =
    make_record_layout<AstRecord008>(8, kMembers008, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_008_disassemble(AstRecord008 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout008, out, record);
}

KOVREL_API void ast_datarecord_008_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord008 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout008, out, buffer, size, in, uap);
}

}  // extern "C"
