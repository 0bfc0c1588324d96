// I048/130 Radar Plot Characteristics: the compound item split into its
// subfields, of which SSR plot runlength (SRL), number of received replies
// (SRR) and reply amplitude (SAM) are decoded. The primary plot subfields
// (PRL, PAM, RPD, APD) are delimited but not decoded.
#include "categories/cat048/plot_characteristics.h"

#include "core/text.h"
#include "items/item_ex.h"
#include "kovrel/cat048.h"

namespace {

constexpr AstItemId kId = 48130;
constexpr double kSrlLsb = 360.0 / 8192.0;  // degrees
enum : size_t { kSrl, kSrr, kSam };         // span positions of the decoded subfields

// The octet of a one-octet subfield, when its bit is set and it was delimited.
bool subfield_octet(const AstSubfield *span, uint8_t *octet) {
    if (!span || span->present != 1 || span->valid != 1 || !span->data || span->length != 1) return false;
    *octet = span->data[0];
    return true;
}

}  // namespace

namespace kovrel::cat048 {

void srl_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t raw = 0;
    if (subfield_octet(span, &raw)) w.appendf("%.2f LSB=DEG", raw * kSrlLsb);
}

void srr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t count = 0;
    if (subfield_octet(span, &count)) w.appendf("%d", count);
}

void sam_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t raw = 0;
    if (subfield_octet(span, &raw)) w.appendf("%d LSB=DBM", static_cast<int8_t>(raw));
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
    if (list.span_count > kSrl && subfield_octet(&list.spans[kSrl], &octet)) {
        out->srl_present = 1;
        out->srl_raw = octet;
        out->srl = octet * kSrlLsb;
    }
    if (list.span_count > kSrr && subfield_octet(&list.spans[kSrr], &octet)) {
        out->srr_present = 1;
        out->srr = octet;
    }
    if (list.span_count > kSam && subfield_octet(&list.spans[kSam], &octet)) {
        out->sam_present = 1;
        out->sam = static_cast<int8_t>(octet);
    }
    out->valid = 1;
}

}  // extern "C"

KOVREL_DECODE_EX(048_130, AstItem048_130, ast_dataitem_048_130_decode)
