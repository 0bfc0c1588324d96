// CAT015 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat015.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M015(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord015, FIELD, ID)
constexpr RecordMember kMembers015[] = {
    M015(i010, 15010), M015(i000, 15000), M015(i015, 15015), M015(i020, 15020), M015(i030, 15030),
    M015(i145, 15145), M015(i161, 15161), M015(i170, 15170), M015(i050, 15050), M015(i270, 15270),
    M015(i300, 15300), M015(i400, 15400), M015(i600, 15600), M015(i601, 15601), M015(i602, 15602),
    M015(i603, 15603), M015(i604, 15604), M015(i605, 15605), M015(i480, 15480), M015(i625, 15625),
    M015(i626, 15626), M015(i627, 15627), M015(i628, 15628), M015(i630, 15630), M015(i631, 15631),
};
#undef M015

constinit const RecordLayout kLayout015 =
    make_record_layout<AstRecord015>(15, kMembers015, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_015_disassemble(AstRecord015 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout015, out, record);
}

KOVREL_API void ast_datarecord_015_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord015 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout015, out, buffer, size, in, uap);
}

}  // extern "C"
