// CAT065 disassembled record and record accessors: the processing system's
// status message decoded into one structure, and its source and time.
#include "kovrel/cat065.h"
#include "kovrel/core.h"
#include "record/record_access.h"
#include "record/record_funcs.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M065(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord065, FIELD, ID)
constexpr RecordMember kMembers065[] = {
    M065(i000, 65000), M065(i010, 65010), M065(i015, 65015), M065(i020, 65020), M065(i030, 65030),
    M065(i040, 65040),
};
#undef M065

constinit const RecordLayout kLayout065 =
    make_record_layout<AstRecord065>(65, kMembers065, AST_LOG_WARNING, "Failed to disassemble dataitem : %s.");

}  // namespace
}  // namespace kovrel

using namespace kovrel::access;

extern "C" {

KOVREL_API void ast_datarecord_065_disassemble(AstRecord065 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout065, out, record);
}

KOVREL_API void ast_datarecord_065_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 65010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_065_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 65030, ast_dataitem_time_of_day_decode);
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs065 = {
    ast_datarecord_065_get_sacsic,
    ast_datarecord_065_get_timeofday,
    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    nullptr,
};

}  // namespace kovrel
