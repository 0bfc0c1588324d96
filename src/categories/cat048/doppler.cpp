// I048/120 Radial Doppler Speed: a compound item with the Doppler speed the
// radar calculated for the plot (CAL) and the raw Doppler measurement (RDS).
//
// RDS is repetitive on the wire, but the item's size rule takes it as one
// block of 7 octets (repetition factor and one repetition), as existing
// recordings are cut; the decoded structure follows the size rule.
#include "categories/cat048/item_fields.h"
#include "items/item_ex.h"
#include "kovrel/cat048.h"
#include "kovrel/codec.h"

namespace {

constexpr AstItemId kId = 48120;
enum : size_t { kCalAt, kRdsAt };  // span positions of the subfields
constexpr uint64_t kCalLength = 2;
constexpr uint64_t kRdsLength = 7;

// The octets of subfield `at` when its bit is set and it was delimited with
// its length.
const uint8_t *subfield_data(const AstSubfieldList &list, size_t at, uint64_t length) {
    if (list.span_count <= at) return nullptr;
    const AstSubfield &span = list.spans[at];
    if (span.present != 1 || span.valid != 1 || !span.data || span.length != length) return nullptr;
    return span.data;
}

uint32_t u16(const uint8_t *p) {
    uint32_t v = 0;
    ast_unsigned_decode(&v, p, 2);
    return v;
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_120_init(AstItem048_120 *out) {
    if (out) *out = AstItem048_120{};
}

KOVREL_API void ast_dataitem_048_120_decode(AstItem048_120 *out, const AstDataItem *item) {
    ast_dataitem_048_120_init(out);
    if (!out || !item || item->valid != 1 || item->id != kId) return;
    ast_dataitem_subfields_decode(&out->subfields, item);
    if (out->subfields.valid != 1) return;
    if (const uint8_t *p = subfield_data(out->subfields, kCalAt, kCalLength)) {
        // D, five spare bits, then a 10-bit two's complement speed.
        out->cal_present = 1;
        out->d = p[0] >> 7;
        ast_twos_complement_decode_ex(&out->cal, p, 2, 6);
    }
    if (const uint8_t *p = subfield_data(out->subfields, kRdsAt, kRdsLength)) {
        out->rds_present = 1;
        out->rep = p[0];
        out->dop = u16(p + 1);
        out->amb = u16(p + 3);
        out->frq = u16(p + 5);
    }
    out->valid = 1;
}

}  // extern "C"

KOVREL_DECODE_EX(048_120, AstItem048_120, ast_dataitem_048_120_decode)

namespace kovrel::fields {

namespace {

using T = AstItem048_120;

constexpr FieldRow kCalRows[] = {
    flag("d", KOVREL_MEMBER(T, d)),
    integer("cal", KOVREL_MEMBER(T, cal), "m/s").width(10),
};
constexpr FieldRow kRdsRows[] = {
    integer("rep", KOVREL_MEMBER(T, rep)).width(8),
    integer("dop", KOVREL_MEMBER(T, dop), "m/s").width(16),
    integer("amb", KOVREL_MEMBER(T, amb), "m/s").width(16),
    integer("frq", KOVREL_MEMBER(T, frq), "MHz").width(16),
};
constinit const FieldDesc kCal = describe<T>(kCalRows);
constinit const FieldDesc kRds = describe<T>(kRdsRows);

constexpr FieldRow kRows[] = {
    subfield_group("cal", KOVREL_MEMBER(T, cal_present), kCal, sizeof(T)),
    subfield_group("rds", KOVREL_MEMBER(T, rds_present), kRds, sizeof(T)),
};

}  // namespace

constinit const FieldDesc k048_120 = describe<T, init_valid<T, ast_dataitem_048_120_init>>(kRows);

}  // namespace kovrel::fields
