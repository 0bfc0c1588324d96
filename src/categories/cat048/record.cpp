// CAT048 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat048.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M048(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord048, FIELD, ID)
constexpr RecordMember kMembers048[] = {
    M048(i010, 48010), M048(i020, 48020), M048(i030, 48030), M048(i040, 48040), M048(i042, 48042),
    M048(i050, 48050), M048(i070, 48070), M048(i080, 48080), M048(i090, 48090), M048(i100, 48100),
    M048(i110, 48110), M048(i130, 48130), M048(i140, 48140), M048(i161, 48161), M048(i170, 48170),
    M048(i200, 48200), M048(i210, 48210), M048(i220, 48220), M048(i230, 48230), M048(i240, 48240),
    M048(i250, 48250), M048(i260, 48260),
};
#undef M048

constinit const RecordLayout kLayout048 =
    make_record_layout<AstRecord048>(48, kMembers048, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_048_disassemble(AstRecord048 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout048, out, record);
}

KOVREL_API void ast_datarecord_048_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord048 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout048, out, buffer, size, in, uap);
}

}  // extern "C"
