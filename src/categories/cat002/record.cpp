// CAT002 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat002.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M002(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord002, FIELD, ID)
constexpr RecordMember kMembers002[] = {
    M002(i000, 2000), M002(i010, 2010), M002(i020, 2020), M002(i030, 2030), M002(i041, 2041),
};
#undef M002

// The skipped item is reported at WARNING, with a blank before the colon:
// the text service monitors already filter on.
constinit const RecordLayout kLayout002 =
    make_record_layout<AstRecord002>(2, kMembers002, AST_LOG_WARNING, "Failed to disassemble dataitem : %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_002_disassemble(AstRecord002 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout002, out, record);
}

KOVREL_API void ast_datarecord_002_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord002 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout002, out, buffer, size, in, uap);
}

}  // extern "C"
