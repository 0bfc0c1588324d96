// I048/020 Target Report Descriptor: report type and flags of a plot, with
// an optional second octet (test target, military flags, FOE/FRI).
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
    // The item's length, not the FX bits, says whether octet 2 is there.
    const uint8_t *p = item->data;
    out->typ = p[0] >> 5;
    out->sim = (p[0] >> 4) & 1u;
    out->rdp = (p[0] & 0x08u) ? 2 : 1;
    out->spi = (p[0] >> 2) & 1u;
    out->rab = (p[0] >> 1) & 1u;
    if (item->length >= 2) {
        out->tst = p[1] >> 7;
        out->me = (p[1] >> 4) & 1u;
        out->mi = (p[1] >> 3) & 1u;
        out->foe_fri = ast_iff_status_from_int(p[1] & kFoeFriMask);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_048_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_020 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    // Only what decoding can yield is written: IFF status 0 or 2.
    if (!in || in->valid != 1 || in->typ > 7 || (in->rdp != 1 && in->rdp != 2)) return;
    if (in->foe_fri != 0 && in->foe_fri != 2) return;
    const bool second = in->tst || in->me || in->mi || in->foe_fri;
    const size_t length = second ? 2 : 1;
    if (size < length) return;
    buffer[0] = static_cast<uint8_t>((in->typ << 5) | (in->sim ? 0x10u : 0u) | (in->rdp == 2 ? 0x08u : 0u) |
                                     (in->spi ? 0x04u : 0u) | (in->rab ? 0x02u : 0u) | (second ? 0x01u : 0u));
    if (second)
        buffer[1] = static_cast<uint8_t>((in->tst ? 0x80u : 0u) | (in->me ? 0x10u : 0u) | (in->mi ? 0x08u : 0u) |
                                         (in->foe_fri & kFoeFriMask));
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_048_020_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    // Octet 2 fields of a one-octet item keep their defaults (clear).
    items::describe(buffer, size, item, ast_dataitem_048_020_decode, [](TextWriter &w, const auto &d) {
        w.appendf("TYPE:%s", kTypeText[d.typ & 7u]);
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
