// CAT062 disassembled record: its members and the disassemble operation the
// member table gives it. Tracks are produced by trackers, not re-encoded
// here: there is no assembler.
#include "kovrel/cat062.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M062(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord062, FIELD, ID)
constexpr RecordMember kMembers062[] = {
    M062(i010, 62010), M062(i015, 62015), M062(i070, 62070), M062(i105, 62105), M062(i100, 62100),
    M062(i185, 62185), M062(i210, 62210), M062(i060, 62060), M062(i245, 62245), M062(i380, 62380),
    M062(i040, 62040), M062(i080, 62080), M062(i290, 62290), M062(i200, 62200), M062(i295, 62295),
    M062(i136, 62136), M062(i130, 62130), M062(i135, 62135), M062(i220, 62220), M062(i390, 62390),
    M062(i270, 62270), M062(i300, 62300), M062(i110, 62110), M062(i120, 62120), M062(i510, 62510),
    M062(i500, 62500), M062(i340, 62340),
};
#undef M062

constinit const RecordLayout kLayout062 =
    make_record_layout<AstRecord062>(62, kMembers062, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" KOVREL_API void ast_datarecord_062_disassemble(AstRecord062 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout062, out, record);
}
