// I034/060 System Processing Mode: the compound item split into its
// subfields, each one octet: the reduction steps the station applies under
// overload (COM, PSR, SSR, MDS), the PSR polarization and STC map, and the
// Mode S cluster state. The cluster bit is set on the wire when the station
// works in a cluster; the structure keeps the opposite (1: autonomous).
#include "categories/cat034/item_fields.h"
#include "categories/cat034/subfields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat034.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 34060;
enum : size_t { kCom = 0, kPsr = 3, kSsr = 4, kMds = 5 };  // span positions

using kovrel::items::subfield_octet;

void decode_com(AstItem034_060 *out, uint8_t o) {
    out->com_present = 1;
    out->com_red_rdp = (o >> 4) & 7;
    out->com_red_xmt = (o >> 1) & 7;
}

void decode_psr(AstItem034_060 *out, uint8_t o) {
    out->psr_present = 1;
    out->psr_pol = (o >> 7) & 1;
    out->psr_red_rad = (o >> 4) & 7;
    out->psr_stc = (o >> 2) & 3;
}

void decode_ssr(AstItem034_060 *out, uint8_t o) {
    out->ssr_present = 1;
    out->ssr_red_rad = (o >> 5) & 7;
}

void decode_mds(AstItem034_060 *out, uint8_t o) {
    out->mds_present = 1;
    out->mds_red_rad = (o >> 5) & 7;
    out->mds_clu = (o & 0x10) ? 0 : 1;
}

// Decodes a one-octet subfield with `decode`; false when it is not there.
template <typename Decode>
bool decoded(AstItem034_060 *d, const AstSubfield *span, Decode decode) {
    *d = AstItem034_060{};
    uint8_t o = 0;
    if (!subfield_octet(span, &o)) return false;
    decode(d, o);
    return true;
}

}  // namespace

namespace kovrel::cat034 {

void mode_com_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    AstItem034_060 d;
    if (!decoded(&d, span, decode_com)) return;
    w.appendf("RED_RDP:%u RED_XMT:%u", d.com_red_rdp, d.com_red_xmt);
}

void mode_com_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    AstItem034_060 d;
    if (!decoded(&d, span, decode_com)) return;
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[7-5]", "RED-RDP", "%u", d.com_red_rdp);
    t.rowf("Bit[4-2]", "RED-XMT", "%u", d.com_red_xmt);
    t.end();
}

void mode_psr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    AstItem034_060 d;
    if (!decoded(&d, span, decode_psr)) return;
    w.appendf("POL:%s RED_RAD:%u STC:%u", d.psr_pol ? "CIRC" : "LIN", d.psr_red_rad, d.psr_stc);
}

void mode_psr_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    AstItem034_060 d;
    if (!decoded(&d, span, decode_psr)) return;
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[8]", "POL", "%u (%s)", d.psr_pol, d.psr_pol ? "CIRCULAR" : "LINEAR");
    t.rowf("Bit[7-5]", "RED-RAD", "%u", d.psr_red_rad);
    t.rowf("Bit[4-3]", "STC", "MAP %u", d.psr_stc + 1);
    t.end();
}

void mode_ssr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    AstItem034_060 d;
    if (!decoded(&d, span, decode_ssr)) return;
    w.appendf("RED_RAD:%u", d.ssr_red_rad);
}

void mode_ssr_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    AstItem034_060 d;
    if (!decoded(&d, span, decode_ssr)) return;
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[8-6]", "RED-RAD", "%u", d.ssr_red_rad);
    t.end();
}

void mode_mds_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    AstItem034_060 d;
    if (!decoded(&d, span, decode_mds)) return;
    w.appendf("RED_RAD:%u CLU:%s", d.mds_red_rad, d.mds_clu ? "AUTONOMOUS" : "CLUSTER");
}

void mode_mds_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    AstItem034_060 d;
    if (!decoded(&d, span, decode_mds)) return;
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[8-6]", "RED-RAD", "%u", d.mds_red_rad);
    t.rowf("Bit[5]", "CLU", "%s", d.mds_clu ? "AUTONOMOUS" : "CLUSTER");
    t.end();
}

}  // namespace kovrel::cat034

extern "C" {

KOVREL_API void ast_dataitem_034_060_init(AstItem034_060 *out) {
    if (out) *out = AstItem034_060{};
}

KOVREL_API void ast_dataitem_034_060_decode(AstItem034_060 *out, const AstDataItem *item) {
    ast_dataitem_034_060_init(out);
    if (!out || !item || item->valid != 1 || item->id != kId) return;
    ast_dataitem_subfields_decode(&out->subfields, item);
    if (out->subfields.valid != 1) return;
    const AstSubfieldList &list = out->subfields;
    uint8_t o = 0;
    if (list.span_count > kCom && subfield_octet(&list.spans[kCom], &o)) decode_com(out, o);
    if (list.span_count > kPsr && subfield_octet(&list.spans[kPsr], &o)) decode_psr(out, o);
    if (list.span_count > kSsr && subfield_octet(&list.spans[kSsr], &o)) decode_ssr(out, o);
    if (list.span_count > kMds && subfield_octet(&list.spans[kMds], &o)) decode_mds(out, o);
    out->valid = 1;
}

}  // extern "C"

KOVREL_DECODE_EX(034_060, AstItem034_060, ast_dataitem_034_060_decode)

namespace kovrel::fields {

namespace {

using T = AstItem034_060;

// CLU is shown as the wire bit (1: the station works in a cluster).
constexpr FieldRow kComRows[] = {
    integer("redrdp", KOVREL_MEMBER(T, com_red_rdp)).width(3),
    integer("redxmt", KOVREL_MEMBER(T, com_red_xmt)).width(3),
};
constexpr FieldRow kPsrRows[] = {
    flag("pol", KOVREL_MEMBER(T, psr_pol)),
    integer("redrad", KOVREL_MEMBER(T, psr_red_rad)).width(3),
    integer("stc", KOVREL_MEMBER(T, psr_stc)).width(2),
};
constexpr FieldRow kSsrRows[] = {integer("redrad", KOVREL_MEMBER(T, ssr_red_rad)).width(3)};
constexpr FieldRow kMdsRows[] = {
    integer("redrad", KOVREL_MEMBER(T, mds_red_rad)).width(3),
    flag("clu", KOVREL_MEMBER(T, mds_clu)).inverted(),
};

constinit const FieldDesc kComFields = describe<T>(kComRows);
constinit const FieldDesc kPsrFields = describe<T>(kPsrRows);
constinit const FieldDesc kSsrFields = describe<T>(kSsrRows);
constinit const FieldDesc kMdsFields = describe<T>(kMdsRows);

constexpr Member kWhole{Store::Struct, 0, sizeof(T)};
constexpr FieldRow kRows[] = {
    group("com", kWhole, kComFields).when(KOVREL_MEMBER(T, com_present)),
    group("psr", kWhole, kPsrFields).when(KOVREL_MEMBER(T, psr_present)),
    group("ssr", kWhole, kSsrFields).when(KOVREL_MEMBER(T, ssr_present)),
    group("mds", kWhole, kMdsFields).when(KOVREL_MEMBER(T, mds_present)),
};

}  // namespace

constinit const FieldDesc k034_060 = describe<T, init_valid<T, ast_dataitem_034_060_init>>(kRows);

}  // namespace kovrel::fields
