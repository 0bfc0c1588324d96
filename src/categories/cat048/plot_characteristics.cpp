// I048/130 Radar Plot Characteristics: the compound item split into its
// subfields, one octet each: SSR plot runlength (SRL), number of received
// replies (SRR), reply amplitude (SAM), primary plot runlength (PRL),
// primary plot amplitude (PAM) and the range and azimuth differences between
// the PSR and SSR plots (RPD, APD). Only the SSR subfields have summaries.
#include "categories/cat048/plot_characteristics.h"

#include "categories/cat048/item_fields.h"
#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat048.h"

namespace {

constexpr AstItemId kId = 48130;
constexpr double kRunlengthLsb = 360.0 / 8192.0;  // degrees (SRL, PRL)
constexpr double kRangeLsb = 1.0 / 256.0;         // NM (RPD)
constexpr double kAzimuthLsb = 360.0 / 16384.0;   // degrees (APD)
enum : size_t { kSrl, kSrr, kSam, kPrl, kPam, kRpd, kApd };  // span positions of the subfields

using kovrel::items::subfield_octet;

// The octet of subfield `at` of a split item, when it is there.
bool octet_at(const AstSubfieldList &list, size_t at, uint8_t *octet) {
    return list.span_count > at && subfield_octet(&list.spans[at], octet);
}

}  // namespace

namespace kovrel::cat048 {

void srl_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t raw = 0;
    if (!subfield_octet(span, &raw)) return;
    w.append_fixed(raw * kRunlengthLsb, 2);
    w.append(" LSB=DEG");
}

void srr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t count = 0;
    if (subfield_octet(span, &count)) w.append_int(count);
}

void sam_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t raw = 0;
    if (!subfield_octet(span, &raw)) return;
    w.append_int(static_cast<int8_t>(raw));
    w.append(" LSB=DBM");
}

}  // namespace kovrel::cat048

extern "C" {

KOVREL_API void ast_dataitem_048_130_init(AstItem048_130 *out) {
    if (out) *out = AstItem048_130{};
}

KOVREL_API void ast_dataitem_048_130_decode(AstItem048_130 *out, const AstDataItem *item) {
    ast_dataitem_048_130_init(out);
    if (!out || !item || item->valid != 1 || item->id != kId) return;
    ast_dataitem_subfields_decode(&out->subfields, item);
    if (out->subfields.valid != 1) return;
    const AstSubfieldList &list = out->subfields;
    uint8_t octet = 0;
    if (octet_at(list, kSrl, &octet)) {
        out->srl_present = 1;
        out->srl_raw = octet;
        out->srl = octet * kRunlengthLsb;
    }
    if (octet_at(list, kSrr, &octet)) {
        out->srr_present = 1;
        out->srr = octet;
    }
    if (octet_at(list, kSam, &octet)) {
        out->sam_present = 1;
        out->sam = static_cast<int8_t>(octet);
    }
    if (octet_at(list, kPrl, &octet)) {
        out->prl_present = 1;
        out->prl_raw = octet;
        out->prl = octet * kRunlengthLsb;
    }
    if (octet_at(list, kPam, &octet)) {
        out->pam_present = 1;
        out->pam = static_cast<int8_t>(octet);
    }
    if (octet_at(list, kRpd, &octet)) {
        out->rpd_present = 1;
        out->rpd_raw = static_cast<int8_t>(octet);
        out->rpd = out->rpd_raw * kRangeLsb;
    }
    if (octet_at(list, kApd, &octet)) {
        out->apd_present = 1;
        out->apd_raw = static_cast<int8_t>(octet);
        out->apd = out->apd_raw * kAzimuthLsb;
    }
    out->valid = 1;
}

}  // extern "C"

KOVREL_DECODE_EX(048_130, AstItem048_130, ast_dataitem_048_130_decode)

namespace kovrel::fields {

namespace {

using T = AstItem048_130;

// One group per subfield, each holding the subfield's value; scaled values
// come from their raw octet.
constexpr FieldRow kSrlRows[] = {scaled("srl", KOVREL_MEMBER(T, srl_raw), kRunlengthLsb, "deg").width(8)};
constexpr FieldRow kSrrRows[] = {integer("srr", KOVREL_MEMBER(T, srr)).width(8)};
constexpr FieldRow kSamRows[] = {integer("sam", KOVREL_MEMBER(T, sam), "dBm").width(8)};
constexpr FieldRow kPrlRows[] = {scaled("prl", KOVREL_MEMBER(T, prl_raw), kRunlengthLsb, "deg").width(8)};
constexpr FieldRow kPamRows[] = {integer("pam", KOVREL_MEMBER(T, pam), "dBm").width(8)};
constexpr FieldRow kRpdRows[] = {scaled("rpd", KOVREL_MEMBER(T, rpd_raw), kRangeLsb, "NM").width(8)};
constexpr FieldRow kApdRows[] = {scaled("apd", KOVREL_MEMBER(T, apd_raw), kAzimuthLsb, "deg").width(8)};

constinit const FieldDesc kSrlFields = describe<T>(kSrlRows);
constinit const FieldDesc kSrrFields = describe<T>(kSrrRows);
constinit const FieldDesc kSamFields = describe<T>(kSamRows);
constinit const FieldDesc kPrlFields = describe<T>(kPrlRows);
constinit const FieldDesc kPamFields = describe<T>(kPamRows);
constinit const FieldDesc kRpdFields = describe<T>(kRpdRows);
constinit const FieldDesc kApdFields = describe<T>(kApdRows);

constexpr FieldRow kRows[] = {
    subfield_group("srl", KOVREL_MEMBER(T, srl_present), kSrlFields, sizeof(T)),
    subfield_group("srr", KOVREL_MEMBER(T, srr_present), kSrrFields, sizeof(T)),
    subfield_group("sam", KOVREL_MEMBER(T, sam_present), kSamFields, sizeof(T)),
    subfield_group("prl", KOVREL_MEMBER(T, prl_present), kPrlFields, sizeof(T)),
    subfield_group("pam", KOVREL_MEMBER(T, pam_present), kPamFields, sizeof(T)),
    subfield_group("rpd", KOVREL_MEMBER(T, rpd_present), kRpdFields, sizeof(T)),
    subfield_group("apd", KOVREL_MEMBER(T, apd_present), kApdFields, sizeof(T)),
};

}  // namespace

constinit const FieldDesc k048_130 = describe<T, init_valid<T, ast_dataitem_048_130_init>>(kRows);

}  // namespace kovrel::fields
