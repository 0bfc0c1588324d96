// CAT063 disassembled record and record accessors: the sensor status report
// decoded into one structure, and the source and time of the report.
#include "kovrel/cat063.h"
#include "kovrel/core.h"
#include "record/record_access.h"
#include "record/record_funcs.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M063(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord063, FIELD, ID)
constexpr RecordMember kMembers063[] = {
    M063(i010, 63010), M063(i015, 63015), M063(i030, 63030), M063(i050, 63050), M063(i060, 63060),
};
#undef M063

constinit const RecordLayout kLayout063 =
    make_record_layout<AstRecord063>(63, kMembers063, AST_LOG_WARNING, "Failed to disassemble dataitem : %s.");

}  // namespace
}  // namespace kovrel

using namespace kovrel::access;

extern "C" {

KOVREL_API void ast_datarecord_063_disassemble(AstRecord063 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout063, out, record);
}

KOVREL_API void ast_datarecord_063_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 63010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_063_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 63030, ast_dataitem_time_of_day_decode);
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs063 = {
    ast_datarecord_063_get_sacsic,
    ast_datarecord_063_get_timeofday,
    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    nullptr,
};

}  // namespace kovrel
