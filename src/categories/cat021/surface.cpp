// Surface capabilities and characteristics: I021/271 (editions 2.2 and
// later) and 21907 (editions 1.0 to 2.1). Both hold the same flags in their
// first octet; the length/width code of the optional second octet sits in
// its upper half in I021/271 and in its lower half in 21907.
#include "categories/cat021/support.h"
#include "items/item_ex.h"
#include "kovrel/cat021.h"

namespace {

using kovrel::TextWriter;
using kovrel::cat021::Detail;
using kovrel::cat021::FlagList;
namespace items = kovrel::items;

// Where the code sits in octet 2.
constexpr unsigned kShift271 = 4;
constexpr unsigned kShift907 = 0;

void decode(AstItem021_271 *out, const AstDataItem *item, AstItemId id, unsigned shift) {
    *out = AstItem021_271{};
    if (!items::span_at_least(item, 1) || item->length > 2 || item->id != id) return;
    const uint8_t o = item->data[0];
    out->poa = (o >> 5) & 1u;
    out->cdti_s = (o >> 4) & 1u;
    out->b2_low = (o >> 3) & 1u;
    out->ras = (o >> 2) & 1u;
    out->ident = (o >> 1) & 1u;
    if ((o & 1u) && item->length == 2) {
        out->lw_present = 1;
        out->lw = (item->data[1] >> shift) & 0x0Fu;
    }
    out->valid = 1;
}

void encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_271 *in, unsigned shift) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->lw > 15) return;
    const size_t length = in->lw_present ? 2 : 1;
    if (size < length) return;
    buffer[0] = static_cast<uint8_t>((in->poa ? 0x20u : 0u) | (in->cdti_s ? 0x10u : 0u) | (in->b2_low ? 0x08u : 0u) |
                                     (in->ras ? 0x04u : 0u) | (in->ident ? 0x02u : 0u) | (length == 2 ? 1u : 0u));
    if (length == 2) buffer[1] = static_cast<uint8_t>(in->lw << shift);
    items::encode_done(out, buffer, length);
}

void summary(TextWriter &w, const AstItem021_271 &d) {
    FlagList f(w);
    f.add(d.poa, "POA ");
    f.add(d.cdti_s, "CDTI_OP ");
    f.add(d.b2_low, "B2_LOW ");
    f.add(d.ras, "RAS ");
    f.add(d.ident, "IDENT ");
    if (d.lw_present) f.words().appendf("LW:%u ", d.lw);
    f.finish("NO_INFO");
}

void detail(TextWriter &w, const AstItem021_271 &d, const char *lw_bits) {
    Detail t(w);
    t.flag("Bit[3]", "POA", "POSITION_OFFSET_APPLIED", d.poa);
    t.flag("Bit[4]", "CDTI/S", "CDTI_SURFACE_OPERATIONAL", d.cdti_s);
    t.flag("Bit[5]", "B2_LOW", "CLASS_B2_POWER_BELOW_70W", d.b2_low);
    t.flag("Bit[6]", "RAS", "RECEIVING_ATC_SERVICES", d.ras);
    t.flag("Bit[7]", "IDENT", "IDENT_SWITCH_ACTIVE", d.ident);
    if (d.lw_present) t.rowf(lw_bits, "LW", "LENGTH_AND_WIDTH", "%u", d.lw);
    t.end();
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_021_271_init(AstItem021_271 *out) {
    if (out) *out = AstItem021_271{};
}

KOVREL_API void ast_dataitem_021_271_decode(AstItem021_271 *out, const AstDataItem *item) {
    if (out) decode(out, item, 21271, kShift271);
}

KOVREL_API void ast_dataitem_021_271_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_271 *in) {
    encode(out, buffer, size, in, kShift271);
}

KOVREL_API void ast_dataitem_021_271_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_271_decode, summary);
}

KOVREL_API void ast_dataitem_021_271_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_271_decode,
                    [](TextWriter &w, const auto &d) { detail(w, d, "Bit[9-12]"); });
}

KOVREL_API void ast_dataitem_021_A07_init(AstItem021_A07 *out) {
    if (out) *out = AstItem021_A07{};
}

KOVREL_API void ast_dataitem_021_A07_decode(AstItem021_A07 *out, const AstDataItem *item) {
    if (out) decode(out, item, 21907, kShift907);
}

KOVREL_API void ast_dataitem_021_A07_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A07 *in) {
    encode(out, buffer, size, in, kShift907);
}

KOVREL_API void ast_dataitem_021_A07_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A07_decode, summary);
}

KOVREL_API void ast_dataitem_021_A07_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A07_decode,
                    [](TextWriter &w, const auto &d) { detail(w, d, "Bit[13-16]"); });
}

}  // extern "C"

KOVREL_DECODE_EX(021_271, AstItem021_271, ast_dataitem_021_271_decode)
KOVREL_ENCODE_EX(021_271, AstItem021_271, ast_dataitem_021_271_encode)
KOVREL_DECODE_EX(021_A07, AstItem021_A07, ast_dataitem_021_A07_decode)
KOVREL_ENCODE_EX(021_A07, AstItem021_A07, ast_dataitem_021_A07_encode)

namespace kovrel::fields {

namespace {

using T = AstItem021_271;
constexpr FieldRow kRows[] = {
    flag("poa", KOVREL_MEMBER(T, poa)),
    flag("cdti_s", KOVREL_MEMBER(T, cdti_s)),
    flag("b2_low", KOVREL_MEMBER(T, b2_low)),
    flag("ras", KOVREL_MEMBER(T, ras)),
    flag("ident", KOVREL_MEMBER(T, ident)),
    integer("lw", KOVREL_MEMBER(T, lw)).width(4).when(KOVREL_MEMBER(T, lw_present)),
};

}  // namespace

constinit const FieldDesc k021_271 = describe<T, init_valid<T, ast_dataitem_021_271_init>>(kRows);
constinit const FieldDesc k021_A07 = describe<T, init_valid<T, ast_dataitem_021_A07_init>>(kRows);

}  // namespace kovrel::fields
