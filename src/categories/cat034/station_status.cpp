// I034/050 Station Configuration & Status: the compound item split into its
// subfields, with the common part (COM) and the SSR part decoded. The
// monitoring and time source bits are set on the wire when something is
// wrong; the structure keeps them the other way round (1: connected, 1:
// valid), as users of the older decoders compare them. PSR and MDS stay
// spans.
#include "categories/cat034/item_fields.h"
#include "categories/cat034/subfields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat034.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 34050;
enum : size_t { kCom = 0, kPsr = 3, kSsr = 4, kMds = 5 };  // span positions of the subfields

using kovrel::items::subfield_octet;

void decode_com(AstItem034_050 *out, uint8_t o) {
    out->com_present = 1;
    out->com_nogo = (o >> 7) & 1;
    out->com_rdpc = (o & 0x40) ? 2 : 1;
    out->com_rdpr = (o >> 5) & 1;
    out->com_ovl_rdp = (o >> 4) & 1;
    out->com_ovl_xmt = (o >> 3) & 1;
    out->com_msc = (o & 0x04) ? 0 : 1;
    out->com_tsv = (o & 0x02) ? 0 : 1;
}

void decode_ssr(AstItem034_050 *out, uint8_t o) {
    out->ssr_present = 1;
    out->ssr_ant = (o & 0x80) ? 2 : 1;
    out->ssr_ch_ab = (o >> 5) & 3;
    out->ssr_ovl = (o >> 4) & 1;
    out->ssr_msc = (o & 0x08) ? 0 : 1;
}

const char *channels(uint32_t ch_ab) {
    static constexpr const char *kText[] = {"NONE", "A", "B", "AB"};
    return kText[ch_ab & 3];
}

void word(TextWriter &w, bool on, const char *text) {
    if (!on) return;
    w.append(" ");
    w.append(text);
}

}  // namespace

namespace kovrel::cat034 {

void status_com_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t o = 0;
    if (!subfield_octet(span, &o)) return;
    AstItem034_050 d{};
    decode_com(&d, o);
    w.append("RDPC:");
    w.append_uint(d.com_rdpc);
    word(w, d.com_nogo, "NOGO");
    word(w, d.com_rdpr, "RDPR");
    word(w, d.com_ovl_rdp, "OVL_RDP");
    word(w, d.com_ovl_xmt, "OVL_XMT");
    word(w, !d.com_msc, "MSC_DISCONNECTED");
    word(w, !d.com_tsv, "TSV_INVALID");
}

void status_com_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t o = 0;
    if (!subfield_octet(span, &o)) return;
    AstItem034_050 d{};
    decode_com(&d, o);
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[8]", "NOGO", "%u (%s)", d.com_nogo, d.com_nogo ? "NOT RELEASED" : "OPERATIONAL");
    t.rowf("Bit[7]", "RDPC", "CHAIN %u", d.com_rdpc);
    t.rowf("Bit[6]", "RDPR", "%u", d.com_rdpr);
    t.rowf("Bit[5]", "OVL_RDP", "%u", d.com_ovl_rdp);
    t.rowf("Bit[4]", "OVL_XMT", "%u", d.com_ovl_xmt);
    t.rowf("Bit[3]", "MSC", "%s", d.com_msc ? "CONNECTED" : "DISCONNECTED");
    t.rowf("Bit[2]", "TSV", "%s", d.com_tsv ? "VALID" : "INVALID");
    t.end();
}

void status_ssr_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t o = 0;
    if (!subfield_octet(span, &o)) return;
    AstItem034_050 d{};
    decode_ssr(&d, o);
    w.append("ANT:");
    w.append_uint(d.ssr_ant);
    w.append(" CH:");
    w.append(channels(d.ssr_ch_ab));
    word(w, d.ssr_ovl, "OVL");
    word(w, !d.ssr_msc, "MSC_DISCONNECTED");
}

void status_ssr_detail(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t o = 0;
    if (!subfield_octet(span, &o)) return;
    AstItem034_050 d{};
    decode_ssr(&d, o);
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[8]", "ANT", "ANTENNA %u", d.ssr_ant);
    t.rowf("Bit[7-6]", "CH-A/B", "%u (%s)", d.ssr_ch_ab, channels(d.ssr_ch_ab));
    t.rowf("Bit[5]", "OVL", "%u", d.ssr_ovl);
    t.rowf("Bit[4]", "MSC", "%s", d.ssr_msc ? "CONNECTED" : "DISCONNECTED");
    t.end();
}

}  // namespace kovrel::cat034

extern "C" {

KOVREL_API void ast_dataitem_034_050_init(AstItem034_050 *out) {
    if (out) *out = AstItem034_050{};
}

KOVREL_API void ast_dataitem_034_050_decode(AstItem034_050 *out, const AstDataItem *item) {
    ast_dataitem_034_050_init(out);
    if (!out || !item || item->valid != 1 || item->id != kId) return;
    ast_dataitem_subfields_decode(&out->subfields, item);
    if (out->subfields.valid != 1) return;
    const AstSubfieldList &list = out->subfields;
    uint8_t o = 0;
    if (list.span_count > kCom && subfield_octet(&list.spans[kCom], &o)) decode_com(out, o);
    if (list.span_count > kSsr && subfield_octet(&list.spans[kSsr], &o)) decode_ssr(out, o);
    out->valid = 1;
}

}  // extern "C"

KOVREL_DECODE_EX(034_050, AstItem034_050, ast_dataitem_034_050_decode)

namespace kovrel::fields {

namespace {

using T = AstItem034_050;

// RDPC and ANT are shown as the chain and antenna number (1 or 2); MSC and
// TSV as the wire bit (1: disconnected, 1: invalid).
constexpr FieldRow kComRows[] = {
    flag("nogo", KOVREL_MEMBER(T, com_nogo)),
    integer("rdpc", KOVREL_MEMBER(T, com_rdpc)).width(2),
    flag("rdpr", KOVREL_MEMBER(T, com_rdpr)),
    flag("ovlrdp", KOVREL_MEMBER(T, com_ovl_rdp)),
    flag("ovlxmt", KOVREL_MEMBER(T, com_ovl_xmt)),
    flag("msc", KOVREL_MEMBER(T, com_msc)).inverted(),
    flag("tsv", KOVREL_MEMBER(T, com_tsv)).inverted(),
};
constexpr FieldRow kSsrRows[] = {
    integer("ant", KOVREL_MEMBER(T, ssr_ant)).width(2),
    integer("chab", KOVREL_MEMBER(T, ssr_ch_ab)).width(2),
    flag("ovl", KOVREL_MEMBER(T, ssr_ovl)),
    flag("msc", KOVREL_MEMBER(T, ssr_msc)).inverted(),
};

// PSR and MDS are not decoded: their octets as received, read only.
constexpr FieldRow kPsrRows[] = {
    octets_at("data", KOVREL_MEMBER(T, subfields.spans[kPsr].data), KOVREL_MEMBER(T, subfields.spans[kPsr].length)),
};
constexpr FieldRow kMdsRows[] = {
    octets_at("data", KOVREL_MEMBER(T, subfields.spans[kMds].data), KOVREL_MEMBER(T, subfields.spans[kMds].length)),
};

constinit const FieldDesc kComFields = describe<T>(kComRows);
constinit const FieldDesc kPsrFields = describe<T>(kPsrRows);
constinit const FieldDesc kSsrFields = describe<T>(kSsrRows);
constinit const FieldDesc kMdsFields = describe<T>(kMdsRows);

constexpr Member kWhole{Store::Struct, 0, sizeof(T)};
constexpr FieldRow kRows[] = {
    group("com", kWhole, kComFields).when(KOVREL_MEMBER(T, com_present)),
    group("psr", kWhole, kPsrFields).when(KOVREL_MEMBER(T, subfields.spans[kPsr].present)),
    group("ssr", kWhole, kSsrFields).when(KOVREL_MEMBER(T, ssr_present)),
    group("mds", kWhole, kMdsFields).when(KOVREL_MEMBER(T, subfields.spans[kMds].present)),
};

}  // namespace

constinit const FieldDesc k034_050 = describe<T, init_valid<T, ast_dataitem_034_050_init>>(kRows);

}  // namespace kovrel::fields
