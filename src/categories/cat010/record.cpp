// CAT010 disassembled record: its members, and the disassemble and assemble
// operations the member table gives it.
#include "kovrel/cat010.h"
#include "kovrel/core.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M010(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord010, FIELD, ID)
constexpr RecordMember kMembers010[] = {
    M010(i010, 10010), M010(i000, 10000), M010(i020, 10020), M010(i140, 10140), M010(i041, 10041),
    M010(i040, 10040), M010(i042, 10042), M010(i200, 10200), M010(i202, 10202), M010(i161, 10161),
    M010(i170, 10170), M010(i060, 10060), M010(i220, 10220), M010(i245, 10245), M010(i250, 10250),
    M010(i300, 10300), M010(i090, 10090), M010(i091, 10091), M010(i270, 10270), M010(i550, 10550),
    M010(i310, 10310), M010(i500, 10500), M010(i280, 10280), M010(i131, 10131), M010(i210, 10210),
};
#undef M010

constinit const RecordLayout kLayout010 =
    make_record_layout<AstRecord010>(10, kMembers010, AST_LOG_DEBUG, "Failed to disassemble dataitem %s.");

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_010_disassemble(AstRecord010 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayout010, out, record);
}

KOVREL_API void ast_datarecord_010_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord010 *in,
                                            const AstUap *uap) {
    kovrel::assemble_record(kovrel::kLayout010, out, buffer, size, in, uap);
}

}  // extern "C"
