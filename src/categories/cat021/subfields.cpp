// CAT021 compound items: I021/110 Trajectory Intent, I021/220 Met
// Information and I021/295 Data Ages, with their subfield functions.
#include "categories/cat021/subfields.h"

#include "kovrel/cat021.h"
#include "kovrel/core.h"

namespace kovrel {
namespace {

// The intent status is FX-extended octet by octet; the intent data is a
// list of 15-octet trajectory change points behind a repetition factor.
constexpr SubfieldRow k110Subfields[] = {
    {"TIS", "Trajectory Intent Status", SubfieldRule::Variable, 999, nullptr, nullptr, nullptr},
    {"TID", "Trajectory Intent Data", SubfieldRule::Repeated, 15, nullptr, nullptr, nullptr},
};

constexpr SubfieldRow k220Subfields[] = {
    {"WS", "Wind Speed", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"WD", "Wind Direction", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"TMP", "Temperature", SubfieldRule::Fixed, 2, nullptr, nullptr, nullptr},
    {"TRB", "Turbulence", SubfieldRule::Fixed, 1, nullptr, nullptr, nullptr},
};

// Ages of the other items of the report, one octet each (LSB 0.1 s), named
// as in edition 2.7 of the category; each summarises as "%.2f LSB=SEC".
constexpr SubfieldRow k295Subfields[] = {
    {"AOS", "Aircraft Operational Status Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"TRD", "Target Report Descriptor Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"M3A", "Mode 3/A Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"QI", "Quality Indicators Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"TI1", "Trajectory Intent Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"MAM", "Message Amplitude Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"GH", "Geometric Height Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"FL", "Flight Level Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"SAL", "Selected Altitude Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"FSA", "Final State Selected Altitude Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"AS", "Air Speed Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"TAS", "True Air Speed Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"MH", "Magnetic Heading Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"BVR", "Barometric Vertical Rate Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"GVR", "Geometric Vertical Rate Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"GV", "Ground Vector Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"TAR", "Track Angle Rate Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"TI2", "Target Identification Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"TS", "Target Status Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"MET", "Met Information Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"ROA", "Roll Angle Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"ARA", "ACAS Resolution Advisory Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
    {"SCC", "Surface Capabilities and Characteristics Age", SubfieldRule::Fixed, 1, nullptr, cat021::age_summary, nullptr},
};

}  // namespace

constinit const CompoundItem kCompound021_110 = make_compound(2, k110Subfields, KOVREL_SUBFIELD_FUNCS(021_110));
constinit const CompoundItem kCompound021_220 = make_compound(4, k220Subfields, KOVREL_SUBFIELD_FUNCS(021_220));
constinit const CompoundItem kCompound021_295 = make_compound(23, k295Subfields, KOVREL_SUBFIELD_FUNCS(021_295));

}  // namespace kovrel

// I021/110 reports a subfield it does not have when asked for its size,
// which also happens when a primary subfield announces bits 3 and up;
// otherwise its functions are the row-driven ones of every compound item.
extern "C" {

KOVREL_API uint64_t ast_dataitem_021_110_get_size(const uint8_t *octets, size_t available) {
    return ast_dataitem_subfields_get_size(octets, available, 21110);
}

KOVREL_API uint64_t ast_subfield_021_110_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id) {
    if (subfield_id != 21110001 && subfield_id != 21110002) {
        ast_log(AST_LOG_CRITICAL, "Unsupported Subfield type %d", static_cast<int>(subfield_id));
        return 0;
    }
    return ::kovrel::subfield_row_size(::kovrel::kCompound021_110, 21110, octets, available, subfield_id);
}

KOVREL_API const char *ast_subfield_021_110_get_id(uint32_t subfield_id) {
    return ::kovrel::subfield_row_id(::kovrel::kCompound021_110, 21110, subfield_id);
}

KOVREL_API const char *ast_subfield_021_110_get_name(uint32_t subfield_id) {
    return ::kovrel::subfield_row_name(::kovrel::kCompound021_110, 21110, subfield_id);
}

KOVREL_API void ast_subfield_021_110_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id) {
    ::kovrel::subfield_row_summary(::kovrel::kCompound021_110, 21110, buffer, size, span, subfield_id);
}

KOVREL_API void ast_subfield_021_110_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id) {
    ::kovrel::subfield_row_detail(::kovrel::kCompound021_110, 21110, buffer, size, span, subfield_id);
}

}  // extern "C"

KOVREL_COMPOUND_ITEM(021_220, 21220, ::kovrel::kCompound021_220)
KOVREL_COMPOUND_ITEM(021_295, 21295, ::kovrel::kCompound021_295)
