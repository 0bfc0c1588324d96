// CAT019 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat019.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M019(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord019, FIELD, ID)
constexpr RecordMember kMembers019[] = {
    M019(i010, 19010), M019(i000, 19000), M019(i140, 19140), M019(i550, 19550), M019(i551, 19551),
    M019(i552, 19552), M019(i553, 19553), M019(i600, 19600), M019(i610, 19610), M019(i620, 19620),
};
#undef M019

constinit const RecordLayout kLayout019 =
    make_record_layout<AstRecord019>(19, kMembers019, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_019_disassemble(AstRecord019 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout019, out, record);
}

KOVREL_API void ast_datarecord_019_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord019 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout019, out, buffer, size, in, uap);
}

}  // extern "C"
