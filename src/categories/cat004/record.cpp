// CAT004 disassembled record: its members and the disassemble operation the
// member table gives it.
#include "kovrel/cat004.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M004(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord004, FIELD, ID)
constexpr RecordMember kMembers004[] = {
    M004(i000, 4000), M004(i010, 4010), M004(i020, 4020), M004(i030, 4030), M004(i035, 4035), M004(i040, 4040),
    M004(i060, 4060), M004(i100, 4100), M004(i120, 4120), M004(i170, 4170), M004(i171, 4171),
};
#undef M004

constinit const RecordLayout kLayout004 =
    make_record_layout<AstRecord004>(4, kMembers004, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" KOVREL_API void ast_datarecord_004_disassemble(AstRecord004 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout004, out, record);
}
