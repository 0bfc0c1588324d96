// I048/020 Target Report Descriptor: report type and flags of a plot, with
// an optional second octet (test target, extended range, X-pulse, military
// flags, FOE/FRI) and the later extensions of Mode S stations (octets 3 to 6:
// on-site ADS-B, cluster network and passive acquisition information, ACAS
// version, phase overlay, dataflash and IRM).
#include "categories/cat048/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat048.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 48020;

// Report types by TYP, as the summary and the detail view show them.
constexpr const char *kTypeText[8] = {"NO_DETECTION", "PSR",       "SSR",          "PSR+SSR",
                                      "ALL_CALL",     "ROLL_CALL", "PSR+ALL_CALL", "PSR+ROLL_CALL"};

// The FOE/FRI bits are taken in place (masked, not shifted down), so the
// pattern 01 reads as IFF status 2 and 10/11 fold to 0. Existing consumers
// rely on these values; kept for compatibility.
constexpr uint8_t kFoeFriMask = 0x06;

// Octets the decoder reads: the first and five extensions.
constexpr uint64_t kMaxOctets = 6;
constexpr uint32_t kMaxVersion = 15;  // ACASXV value, four bits

// An element of the later extensions: EP at bit `at` (0 the least
// significant), its value at the bit below.
AstItem048_020Element element(uint8_t octet, unsigned at) {
    return AstItem048_020Element{static_cast<uint8_t>((octet >> at) & 1u),
                                 static_cast<uint8_t>((octet >> (at - 1)) & 1u)};
}

uint8_t element_bits(const AstItem048_020Element &e, unsigned at) {
    return static_cast<uint8_t>((e.ep ? 1u << at : 0u) | (e.val ? 1u << (at - 1) : 0u));
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_020_init(AstItem048_020 *out) {
    if (!out) return;
    *out = AstItem048_020{};
    out->rdp = 1;
}

KOVREL_API void ast_dataitem_048_020_decode(AstItem048_020 *out, const AstDataItem *item) {
    ast_dataitem_048_020_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kId) return;
    // The item's length, not the FX bits, says which octets are there; an
    // octet after the sixth would be a later extension, not read here.
    const uint8_t *p = item->data;
    out->typ = p[0] >> 5;
    out->sim = (p[0] >> 4) & 1u;
    out->rdp = (p[0] & 0x08u) ? 2 : 1;
    out->spi = (p[0] >> 2) & 1u;
    out->rab = (p[0] >> 1) & 1u;
    if (item->length >= 2) {
        out->ext1_present = 1;
        out->tst = p[1] >> 7;
        out->err = (p[1] >> 6) & 1u;
        out->xpp = (p[1] >> 5) & 1u;
        out->me = (p[1] >> 4) & 1u;
        out->mi = (p[1] >> 3) & 1u;
        out->foe_fri = ast_iff_status_from_int(p[1] & kFoeFriMask);
    }
    if (item->length >= 3) {
        out->ext2_present = 1;
        out->adsb = element(p[2], 7);
        out->scn = element(p[2], 5);
        out->pai = element(p[2], 3);
    }
    if (item->length >= 4) {
        out->ext3_present = 1;
        out->acasxv.ep = p[3] >> 7;
        out->acasxv.val = (p[3] >> 3) & 0x0Fu;
        out->poxpr = element(p[3], 2);
    }
    if (item->length >= 5) {
        out->ext4_present = 1;
        out->poact = element(p[4], 7);
        out->dtfxpr = element(p[4], 5);
        out->dtfact = element(p[4], 3);
    }
    if (item->length >= kMaxOctets) {
        out->ext5_present = 1;
        out->irmxpr = element(p[5], 7);
        out->irmact = element(p[5], 5);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_048_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_020 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    // Only what decoding can yield is written: IFF status 0 or 2.
    if (!in || in->valid != 1 || in->typ > 7 || (in->rdp != 1 && in->rdp != 2)) return;
    if (in->foe_fri != 0 && in->foe_fri != 2) return;
    if (in->acasxv.val > kMaxVersion) return;
    // The item runs up to its last octet that is present or has something to
    // say; a set field of octet 2 brings octet 2 along even when the caller
    // did not mark it present.
    size_t length = 1;
    if (in->ext1_present || in->tst || in->err || in->xpp || in->me || in->mi || in->foe_fri) length = 2;
    if (in->ext2_present) length = 3;
    if (in->ext3_present) length = 4;
    if (in->ext4_present) length = 5;
    if (in->ext5_present) length = 6;
    if (size < length) return;
    uint8_t o[kMaxOctets] = {
        static_cast<uint8_t>((in->typ << 5) | (in->sim ? 0x10u : 0u) | (in->rdp == 2 ? 0x08u : 0u) |
                             (in->spi ? 0x04u : 0u) | (in->rab ? 0x02u : 0u)),
        static_cast<uint8_t>((in->tst ? 0x80u : 0u) | (in->err ? 0x40u : 0u) | (in->xpp ? 0x20u : 0u) |
                             (in->me ? 0x10u : 0u) | (in->mi ? 0x08u : 0u) | (in->foe_fri & kFoeFriMask)),
        static_cast<uint8_t>(element_bits(in->adsb, 7) | element_bits(in->scn, 5) | element_bits(in->pai, 3)),
        static_cast<uint8_t>((in->acasxv.ep ? 0x80u : 0u) | (in->acasxv.val << 3) | element_bits(in->poxpr, 2)),
        static_cast<uint8_t>(element_bits(in->poact, 7) | element_bits(in->dtfxpr, 5) | element_bits(in->dtfact, 3)),
        static_cast<uint8_t>(element_bits(in->irmxpr, 7) | element_bits(in->irmact, 5)),
    };
    for (size_t i = 0; i < length; ++i) buffer[i] = static_cast<uint8_t>(o[i] | (i + 1 < length ? 0x01u : 0u));
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_048_020_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    // Octet 2 fields of a one-octet item keep their defaults (clear).
    items::describe(buffer, size, item, ast_dataitem_048_020_decode, [](TextWriter &w, const auto &d) {
        w.append("TYPE:");
        w.append(kTypeText[d.typ & 7u]);
        if (d.sim) w.append(" SIM");
        w.append(d.rdp == 2 ? " CHN2" : " CHN1");
        if (d.spi) w.append(" SPI");
        if (d.rab) w.append(" RAB");
        if (d.tst) w.append(" TST");
        if (d.me) w.append(" ME");
        if (d.mi) w.append(" MI");
        if (d.foe_fri == 1) w.append(" FRIEND");  // never true: see kFoeFriMask
    });
}

KOVREL_API void ast_dataitem_048_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_020_decode, [item](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0-2]", "REPORT_TYPE", kTypeText[d.typ & 7u]);
        t.rowf("Bit[3]", "SIMULATED", "%d", d.sim);
        t.row("Bit[4]", "RDP_CHAIN", d.rdp == 2 ? "CHN2" : "CHN1");
        t.rowf("Bit[5]", "SPECIAL_POSITION_IDENTIFICATION", "%d", d.spi);
        t.rowf("Bit[6]", "FIXED_TRANSPONDER", "%d", d.rab);
        if (item->length >= 2) {
            t.rowf("Bit[8]", "TEST_TARGET", "%d", d.tst);
            t.rowf("Bit[11]", "MILITARY_EMERGENCY", "%d", d.me);
            t.rowf("Bit[12]", "MILITARY_IDENTIFICATION", "%d", d.mi);
            t.row("Bit[13-14]", "FOE_FRI", ast_iff_status_to_str(d.foe_fri));
        }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(048_020, AstItem048_020, ast_dataitem_048_020_decode)
KOVREL_ENCODE_EX(048_020, AstItem048_020, ast_dataitem_048_020_encode)

namespace kovrel::fields {

namespace {

using T = AstItem048_020;
using E = AstItem048_020Element;

const char *type_name(uint32_t typ) { return typ < 8 ? kTypeText[typ] : nullptr; }

// The structure keeps the chain number, 1 or 2, rather than the wire bit.
const char *chain_name(uint32_t rdp) { return rdp == 1 ? "CHN1" : rdp == 2 ? "CHN2" : nullptr; }

constexpr FieldRow kElementRows[] = {
    flag("ep", KOVREL_MEMBER(E, ep)),
    flag("val", KOVREL_MEMBER(E, val)),
};
constexpr FieldRow kVersionRows[] = {
    flag("ep", KOVREL_MEMBER(E, ep)),
    integer("val", KOVREL_MEMBER(E, val)).width(4),
};
constinit const FieldDesc kElement = describe<E>(kElementRows);
constinit const FieldDesc kVersion = describe<E>(kVersionRows);

constexpr Member kOctet2 = KOVREL_MEMBER(T, ext1_present);
constexpr Member kOctet3 = KOVREL_MEMBER(T, ext2_present);
constexpr Member kOctet4 = KOVREL_MEMBER(T, ext3_present);
constexpr Member kOctet5 = KOVREL_MEMBER(T, ext4_present);
constexpr Member kOctet6 = KOVREL_MEMBER(T, ext5_present);

constexpr FieldRow kRows[] = {
    enumeration("typ", KOVREL_MEMBER(T, typ), type_name).width(3),
    flag("sim", KOVREL_MEMBER(T, sim)),
    enumeration("rdp", KOVREL_MEMBER(T, rdp), chain_name).width(2),
    flag("spi", KOVREL_MEMBER(T, spi)),
    flag("rab", KOVREL_MEMBER(T, rab)),
    flag("tst", KOVREL_MEMBER(T, tst)).when(kOctet2),
    flag("err", KOVREL_MEMBER(T, err)).when(kOctet2),
    flag("xpp", KOVREL_MEMBER(T, xpp)).when(kOctet2),
    flag("me", KOVREL_MEMBER(T, me)).when(kOctet2),
    flag("mi", KOVREL_MEMBER(T, mi)).when(kOctet2),
    enumeration("foe_fri", KOVREL_MEMBER(T, foe_fri), ast_iff_status_to_str).width(2).when(kOctet2),
    group("adsb", KOVREL_MEMBER(T, adsb), kElement).when(kOctet3),
    group("scn", KOVREL_MEMBER(T, scn), kElement).when(kOctet3),
    group("pai", KOVREL_MEMBER(T, pai), kElement).when(kOctet3),
    group("acasxv", KOVREL_MEMBER(T, acasxv), kVersion).when(kOctet4),
    group("poxpr", KOVREL_MEMBER(T, poxpr), kElement).when(kOctet4),
    group("poact", KOVREL_MEMBER(T, poact), kElement).when(kOctet5),
    group("dtfxpr", KOVREL_MEMBER(T, dtfxpr), kElement).when(kOctet5),
    group("dtfact", KOVREL_MEMBER(T, dtfact), kElement).when(kOctet5),
    group("irmxpr", KOVREL_MEMBER(T, irmxpr), kElement).when(kOctet6),
    group("irmact", KOVREL_MEMBER(T, irmact), kElement).when(kOctet6),
};

}  // namespace

constinit const FieldDesc k048_020 = describe<T, init_valid<T, ast_dataitem_048_020_init>>(kRows);

}  // namespace kovrel::fields
