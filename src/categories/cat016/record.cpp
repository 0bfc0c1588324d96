// CAT016 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat016.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M016(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord016, FIELD, ID)
constexpr RecordMember kMembers016[] = {
    M016(i010, 16010), M016(i015, 16015), M016(i000, 16000), M016(i140, 16140), M016(i200, 16200),
    M016(i300, 16300), M016(i400, 16400), M016(i405, 16405), M016(i410, 16410), M016(i420, 16420),
};
#undef M016

constinit const RecordLayout kLayout016 =
    make_record_layout<AstRecord016>(16, kMembers016, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_016_disassemble(AstRecord016 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout016, out, record);
}

KOVREL_API void ast_datarecord_016_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord016 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout016, out, buffer, size, in, uap);
}

}  // extern "C"
