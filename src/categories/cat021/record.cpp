// CAT021 disassembled record: one structure for every edition, and five
// member tables over it: every item, and the items each edition's
// disassembler reads. Each edition's assembler writes the members of its
// table with its edition's profile.
#include <cstring>

#include "kovrel/cat021.h"
#include "kovrel/core.h"
#include "kovrel/uap.h"
#include "categories/cat021/support.h"
#include "record/record_members.h"

namespace kovrel {
namespace {

#define M(FIELD, ID) KOVREL_RECORD_MEMBER(AstRecord021, FIELD, ID)
// Members whose items have no encoder of their own.
#define W(FIELD, ID, ENCODE) KOVREL_RECORD_MEMBER_ENCODED(AstRecord021, FIELD, ID, cat021::ENCODE)

constexpr RecordMember kAll[] = {
    M(i008, 21008), M(i010, 21010), M(i015, 21015), M(i016, 21016), M(i020, 21020), M(i030, 21030),
    M(i032, 21032), M(i040, 21040), M(i070, 21070), M(i071, 21071), M(i072, 21072), M(i073, 21073),
    W(i074, 21074, time_high_encode_ex), M(i075, 21075), W(i076, 21076, time_high_encode_ex), M(i077, 21077), M(i080, 21080), M(i090, 21090),
    M(i095, 21095), M(i110, 21110), M(i130, 21130), M(i131, 21131), M(i132, 21132), M(i140, 21140),
    M(i145, 21145), M(i146, 21146), M(i150, 21150), M(i151, 21151), M(i152, 21152), M(i155, 21155),
    M(i157, 21157), M(i160, 21160), M(i161, 21161), M(i170, 21170), M(i200, 21200), M(i210, 21210),
    M(i220, 21220), M(i230, 21230), W(i250, 21250, modes_mb_encode_ex), M(i260, 21260), M(i271, 21271), M(i295, 21295),
    M(i400, 21400), M(iA02, 21902), M(iA03, 21903), M(iA04, 21904), M(iA05, 21905), M(iA06, 21906),
    M(iA07, 21907), M(iA08, 21908), M(iA09, 21909), M(iA10, 21910), M(iA11, 21911), W(ref, 21998, explicit_encode_ex),
    W(spf, 21999, explicit_encode_ex),
};

// Editions 2.7 and 2.1 share their items but for the surface capabilities
// (21271 against 21907); only 2.7 keeps the data ages and the receiver.
constexpr RecordMember kV27[] = {
    M(i008, 21008), M(i010, 21010), M(i015, 21015), M(i016, 21016), M(i020, 21020), M(i040, 21040),
    M(i070, 21070), M(i071, 21071), M(i072, 21072), M(i073, 21073), W(i074, 21074, time_high_encode_ex), M(i075, 21075),
    W(i076, 21076, time_high_encode_ex), M(i077, 21077), M(i080, 21080), M(i090, 21090), M(i130, 21130), M(i131, 21131),
    M(i132, 21132), M(i140, 21140), M(i145, 21145), M(i146, 21146), M(i150, 21150), M(i151, 21151),
    M(i152, 21152), M(i155, 21155), M(i157, 21157), M(i160, 21160), M(i161, 21161), M(i170, 21170),
    M(i200, 21200), M(i210, 21210), M(i230, 21230), W(i250, 21250, modes_mb_encode_ex), M(i271, 21271), M(i295, 21295),
    M(i400, 21400),
};

constexpr RecordMember kV21[] = {
    M(i008, 21008), M(i010, 21010), M(i015, 21015), M(i016, 21016), M(i020, 21020), M(i040, 21040),
    M(i070, 21070), M(i071, 21071), M(i072, 21072), M(i073, 21073), W(i074, 21074, time_high_encode_ex), M(i075, 21075),
    W(i076, 21076, time_high_encode_ex), M(i077, 21077), M(i080, 21080), M(i090, 21090), M(i130, 21130), M(i131, 21131),
    M(i132, 21132), M(i140, 21140), M(i145, 21145), M(i146, 21146), M(i150, 21150), M(i151, 21151),
    M(i152, 21152), M(i155, 21155), M(i157, 21157), M(i160, 21160), M(i161, 21161), M(i170, 21170),
    M(i200, 21200), M(i210, 21210), M(i230, 21230), W(i250, 21250, modes_mb_encode_ex), M(iA07, 21907),
};

// The early editions: 0.26 reports its position at 180/2^25 (21902) and
// the signal amplitude; 0.23 has the 6-octet position.
constexpr RecordMember kV026[] = {
    M(i010, 21010), M(i020, 21020), M(i030, 21030), M(i032, 21032), M(i080, 21080), M(i095, 21095),
    M(i140, 21140), M(i145, 21145), M(i146, 21146), M(i150, 21150), M(i151, 21151), M(i152, 21152),
    M(i170, 21170), M(i230, 21230), M(iA02, 21902), M(iA03, 21903), M(iA04, 21904), M(iA05, 21905),
    M(iA06, 21906), M(iA07, 21907), M(iA08, 21908), M(iA09, 21909), M(iA10, 21910), M(iA11, 21911),
};

constexpr RecordMember kV023[] = {
    M(i010, 21010), M(i020, 21020), M(i030, 21030), M(i032, 21032), M(i080, 21080), M(i095, 21095),
    M(i130, 21130), M(i140, 21140), M(i145, 21145), M(i146, 21146), M(i150, 21150), M(i151, 21151),
    M(i152, 21152), M(i170, 21170), M(i230, 21230), M(iA03, 21903), M(iA05, 21905), M(iA06, 21906),
    M(iA07, 21907), M(iA08, 21908), M(iA09, 21909), M(iA10, 21910), M(iA11, 21911),
};

// What the early editions write: their members but 21907, which has no
// FRN in their profiles (it is read only when a later edition's record is
// handed to their disassemblers).
constexpr RecordMember kV026Write[] = {
    M(i010, 21010), M(i020, 21020), M(i030, 21030), M(i032, 21032), M(i080, 21080), M(i095, 21095),
    M(i140, 21140), M(i145, 21145), M(i146, 21146), M(i150, 21150), M(i151, 21151), M(i152, 21152),
    M(i170, 21170), M(i230, 21230), M(iA02, 21902), M(iA03, 21903), M(iA04, 21904), M(iA05, 21905),
    M(iA06, 21906), M(iA08, 21908), M(iA09, 21909), M(iA10, 21910), M(iA11, 21911),
};

constexpr RecordMember kV023Write[] = {
    M(i010, 21010), M(i020, 21020), M(i030, 21030), M(i032, 21032), M(i080, 21080), M(i095, 21095),
    M(i130, 21130), M(i140, 21140), M(i145, 21145), M(i146, 21146), M(i150, 21150), M(i151, 21151),
    M(i152, 21152), M(i170, 21170), M(i230, 21230), M(iA03, 21903), M(iA05, 21905), M(iA06, 21906),
    M(iA08, 21908), M(iA09, 21909), M(iA10, 21910), M(iA11, 21911),
};

#undef M
#undef W

constexpr const char *kSkip = "Failed to disassemble dataitem %s.";
constinit const RecordLayout kLayoutAll = make_record_layout<AstRecord021>(21, kAll, AST_LOG_DEBUG, kSkip);
constinit const RecordLayout kLayoutV27 = make_record_layout<AstRecord021>(21, kV27, AST_LOG_DEBUG, kSkip);
constinit const RecordLayout kLayoutV21 = make_record_layout<AstRecord021>(21, kV21, AST_LOG_DEBUG, kSkip);
constinit const RecordLayout kLayoutV026 = make_record_layout<AstRecord021>(21, kV026, AST_LOG_DEBUG, kSkip);
constinit const RecordLayout kLayoutV023 = make_record_layout<AstRecord021>(21, kV023, AST_LOG_DEBUG, kSkip);
constinit const RecordLayout kWriteV026 = make_record_layout<AstRecord021>(21, kV026Write, AST_LOG_DEBUG, kSkip);
constinit const RecordLayout kWriteV023 = make_record_layout<AstRecord021>(21, kV023Write, AST_LOG_DEBUG, kSkip);

// The record encoder leaves FSPEC bits beyond the profile's last FRN as the
// buffer held them; edition 0.23 ends at FRN 26, inside its fourth FSPEC
// octet, so the octets the FSPEC may take are cleared first.
void assemble(const RecordLayout &layout, AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord021 *in,
              const AstUap *uap) {
    const uint32_t max = uap ? ast_uap_max_frn(uap, 21) : 0;
    const size_t fspec = max == 0 ? 0 : (max - 1) / 7 + 1;
    if (buffer) std::memset(buffer, 0, fspec < size ? fspec : size);
    assemble_record(layout, out, buffer, size, in, uap);
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_021_disassemble(AstRecord021 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayoutAll, out, record);
}

KOVREL_API void ast_datarecord_021_v27_disassemble(AstRecord021 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayoutV27, out, record);
}

KOVREL_API void ast_datarecord_021_v21_disassemble(AstRecord021 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayoutV21, out, record);
}

KOVREL_API void ast_datarecord_021_v026_disassemble(AstRecord021 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayoutV026, out, record);
}

KOVREL_API void ast_datarecord_021_v023_disassemble(AstRecord021 *out, const AstDataRecord *record) {
    kovrel::disassemble_record(kovrel::kLayoutV023, out, record);
}

KOVREL_API void ast_datarecord_021_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord021 *in,
                                            const AstUap *uap) {
    kovrel::assemble(kovrel::kLayoutAll, out, buffer, size, in, uap);
}

KOVREL_API void ast_datarecord_021_v27_assemble(AstDataRecord *out, uint8_t *buffer, size_t size,
                                                const AstRecord021 *in) {
    kovrel::assemble(kovrel::kLayoutV27, out, buffer, size, in, &AST_UAP_CAT021_VER27);
}

KOVREL_API void ast_datarecord_021_v21_assemble(AstDataRecord *out, uint8_t *buffer, size_t size,
                                                const AstRecord021 *in) {
    kovrel::assemble(kovrel::kLayoutV21, out, buffer, size, in, &AST_UAP_CAT021_VER21);
}

KOVREL_API void ast_datarecord_021_v026_assemble(AstDataRecord *out, uint8_t *buffer, size_t size,
                                                 const AstRecord021 *in) {
    kovrel::assemble(kovrel::kWriteV026, out, buffer, size, in, &AST_UAP_CAT021_VER026);
}

KOVREL_API void ast_datarecord_021_v023_assemble(AstDataRecord *out, uint8_t *buffer, size_t size,
                                                 const AstRecord021 *in) {
    kovrel::assemble(kovrel::kWriteV023, out, buffer, size, in, &AST_UAP_CAT021_VER023);
}

}  // extern "C"
