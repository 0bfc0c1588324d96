// CAT240 disassembled record: its members, in the order of the category's
// items.
#include "categories/cat240/video_state.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M240(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord240, FIELD, ID)
constexpr RecordMember kMembers240[] = {
    M240(i000, 240000), M240(i010, 240010), M240(i020, 240020), M240(i030, 240030),
    M240(i040, 240040), M240(i041, 240041), M240(i048, 240048), M240(i049, 240049),
    M240(i050, 240050), M240(i051, 240051), M240(i052, 240052), M240(i140, 240140),
};
#undef M240

// The blank before the colon differs from the other categories' text; log
// filters written for video feeds match on it.
constinit const RecordLayout kLayout240 = make_record_layout<AstRecord240>(
    240, kMembers240, AST_LOG_WARNING, "Failed to disassemble dataitem : %s.");

}  // namespace
}  // namespace kovrel

extern "C" KOVREL_API void ast_datarecord_240_disassemble(AstRecord240 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout240, out, record);
}
