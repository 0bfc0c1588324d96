// I001/020 Target Report Descriptor, I001/030 Warning/Error Conditions and
// I001/170 Track Status: the flag octets of a plot or track.
#include "categories/cat001/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat001.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId k020 = 1020;
constexpr AstItemId k030 = 1030;
constexpr AstItemId k170 = 1170;

// Detection by SSR/PSR, as the summary and the detail view show it.
constexpr const char *kDetection[4] = {"NO_DETECTION", "PSR", "SSR", "PSR+SSR"};

uint8_t bit(uint32_t set, uint8_t mask) { return set ? mask : 0u; }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_001_020_init(AstItem001_020 *out) {
    if (!out) return;
    *out = AstItem001_020{};
    out->ant = 1;
}

KOVREL_API void ast_dataitem_001_020_decode(AstItem001_020 *out, const AstDataItem *item) {
    ast_dataitem_001_020_init(out);
    if (!out || !items::span_at_least(item, 1) || item->length > 2 || item->id != k020) return;
    const uint8_t *p = item->data;
    out->typ = p[0] >> 7;
    out->sim = (p[0] >> 6) & 1u;
    out->ssr_psr = (p[0] >> 4) & 3u;
    out->ant = (p[0] & 0x08u) ? 2 : 1;
    out->spi = (p[0] >> 2) & 1u;
    out->rab = (p[0] >> 1) & 1u;
    if (item->length == 2) {
        out->ext1_present = 1;
        out->tst = p[1] >> 7;
        out->ds1ds2 = (p[1] >> 5) & 3u;
        out->me = (p[1] >> 4) & 1u;
        out->mi = (p[1] >> 3) & 1u;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_001_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_020 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->typ > 1 || in->sim > 1 || in->ssr_psr > 3 || (in->ant != 1 && in->ant != 2) ||
        in->spi > 1 || in->rab > 1 || in->tst > 1 || in->ds1ds2 > 3 || in->me > 1 || in->mi > 1)
        return;
    const size_t length = (in->ext1_present || in->tst || in->ds1ds2 || in->me || in->mi) ? 2 : 1;
    if (size < length) return;
    buffer[0] = static_cast<uint8_t>(bit(in->typ, 0x80) | bit(in->sim, 0x40) | (in->ssr_psr << 4) |
                                     bit(in->ant == 2, 0x08) | bit(in->spi, 0x04) | bit(in->rab, 0x02) |
                                     bit(length == 2, 0x01));
    if (length == 2)
        buffer[1] = static_cast<uint8_t>(bit(in->tst, 0x80) | (in->ds1ds2 << 5) | bit(in->me, 0x10) |
                                         bit(in->mi, 0x08));
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_001_020_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_020_decode, [](TextWriter &w, const auto &d) {
        w.append(d.typ ? "TYPE:TRACK " : "TYPE:PLOT ");
        w.append(kDetection[d.ssr_psr & 3u]);
        if (d.sim) w.append(" SIM");
        w.append(d.ant == 2 ? " ANT2" : " ANT1");
        if (d.spi) w.append(" SPI");
        if (d.rab) w.append(" RAB");
        if (d.tst) w.append(" TST");
        if (d.me) w.append(" ME");
        if (d.mi) w.append(" MI");
    });
}

KOVREL_API void ast_dataitem_001_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_020_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0]", "REPORT_TYPE", d.typ ? "TRACK" : "PLOT");
        t.rowf("Bit[1]", "SIMULATED", "%u", d.sim);
        t.row("Bit[2-3]", "DETECTION", kDetection[d.ssr_psr & 3u]);
        t.row("Bit[4]", "ANTENNA", d.ant == 2 ? "ANT2" : "ANT1");
        t.rowf("Bit[5]", "SPECIAL_POSITION_IDENTIFICATION", "%u", d.spi);
        t.rowf("Bit[6]", "FIXED_TRANSPONDER", "%u", d.rab);
        if (d.ext1_present) {
            t.rowf("Bit[8]", "TEST_TARGET", "%u", d.tst);
            t.rowf("Bit[9-10]", "DS1_DS2", "%u", d.ds1ds2);
            t.rowf("Bit[11]", "MILITARY_EMERGENCY", "%u", d.me);
            t.rowf("Bit[12]", "MILITARY_IDENTIFICATION", "%u", d.mi);
        }
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_030_init(AstItem001_030 *out) {
    if (out) *out = AstItem001_030{};
}

KOVREL_API void ast_dataitem_001_030_decode(AstItem001_030 *out, const AstDataItem *item) {
    ast_dataitem_001_030_init(out);
    if (!out || !items::span_at_least(item, 1) || item->length > 2 || item->id != k030) return;
    out->code = item->data[0] >> 1;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_001_030_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_030 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->code > 0x7F) return;
    buffer[0] = static_cast<uint8_t>(in->code << 1);
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_001_030_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_030_decode, [](TextWriter &w, const auto &d) {
        if (d.code == 0)
            w.append("W/E:NO_ERROR");
        else
            w.appendf("W/E:%u", d.code);
    });
}

KOVREL_API void ast_dataitem_001_030_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_030_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-6]", "WARNING_ERROR_CODE", "%u", d.code);
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_170_init(AstItem001_170 *out) {
    if (!out) return;
    *out = AstItem001_170{};
    out->rdpc = 1;
}

KOVREL_API void ast_dataitem_001_170_decode(AstItem001_170 *out, const AstDataItem *item) {
    ast_dataitem_001_170_init(out);
    if (!out || !items::span_at_least(item, 1) || item->length > 2 || item->id != k170) return;
    const uint8_t *p = item->data;
    out->con = p[0] >> 7;
    out->rad = (p[0] >> 6) & 1u;
    out->man = (p[0] >> 5) & 1u;
    out->dou = (p[0] >> 4) & 1u;
    out->rdpc = (p[0] & 0x08u) ? 2 : 1;
    out->gho = (p[0] >> 1) & 1u;
    if (item->length == 2) {
        out->ext1_present = 1;
        out->tre = p[1] >> 7;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_001_170_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_170 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->con > 1 || in->rad > 1 || in->man > 1 || in->dou > 1 ||
        (in->rdpc != 1 && in->rdpc != 2) || in->gho > 1 || in->tre > 1)
        return;
    const size_t length = (in->ext1_present || in->tre) ? 2 : 1;
    if (size < length) return;
    buffer[0] = static_cast<uint8_t>(bit(in->con, 0x80) | bit(in->rad, 0x40) | bit(in->man, 0x20) |
                                     bit(in->dou, 0x10) | bit(in->rdpc == 2, 0x08) | bit(in->gho, 0x02) |
                                     bit(length == 2, 0x01));
    if (length == 2) buffer[1] = bit(in->tre, 0x80);
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_001_170_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_170_decode,
                    [](TextWriter &w, const auto &d) { w.append(d.rad ? "TYPE:SSR_CMB" : "TYPE:PSR"); });
}

KOVREL_API void ast_dataitem_001_170_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_170_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0]", "CONFIRMED", d.con ? "TENTATIVE" : "CONFIRMED");
        t.row("Bit[1]", "TRACK_TYPE", d.rad ? "SSR_CMB" : "PSR");
        t.rowf("Bit[2]", "MANOEUVRE", "%u", d.man);
        t.rowf("Bit[3]", "DOUBTFUL", "%u", d.dou);
        t.row("Bit[4]", "RDP_CHAIN", d.rdpc == 2 ? "CHN2" : "CHN1");
        t.rowf("Bit[6]", "GHOST", "%u", d.gho);
        if (d.ext1_present) t.rowf("Bit[8]", "TRACK_END", "%u", d.tre);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(001_020, AstItem001_020, ast_dataitem_001_020_decode)
KOVREL_ENCODE_EX(001_020, AstItem001_020, ast_dataitem_001_020_encode)
KOVREL_DECODE_EX(001_030, AstItem001_030, ast_dataitem_001_030_decode)
KOVREL_ENCODE_EX(001_030, AstItem001_030, ast_dataitem_001_030_encode)
KOVREL_DECODE_EX(001_170, AstItem001_170, ast_dataitem_001_170_decode)
KOVREL_ENCODE_EX(001_170, AstItem001_170, ast_dataitem_001_170_encode)

namespace kovrel::fields {

namespace {

const char *detection_name(uint32_t v) { return v < 4 ? kDetection[v] : nullptr; }
const char *antenna_name(uint32_t v) { return v == 1 ? "ANT1" : v == 2 ? "ANT2" : nullptr; }
const char *chain_name(uint32_t v) { return v == 1 ? "CHN1" : v == 2 ? "CHN2" : nullptr; }

using D = AstItem001_020;
constexpr Member kDescriptorOctet2 = KOVREL_MEMBER(D, ext1_present);
constexpr FieldRow k020Rows[] = {
    flag("typ", KOVREL_MEMBER(D, typ)),
    flag("sim", KOVREL_MEMBER(D, sim)),
    enumeration("ssrpsr", KOVREL_MEMBER(D, ssr_psr), detection_name).width(2),
    enumeration("ant", KOVREL_MEMBER(D, ant), antenna_name).width(2),
    flag("spi", KOVREL_MEMBER(D, spi)),
    flag("rab", KOVREL_MEMBER(D, rab)),
    flag("tst", KOVREL_MEMBER(D, tst)).when(kDescriptorOctet2),
    integer("ds1ds2", KOVREL_MEMBER(D, ds1ds2)).width(2).when(kDescriptorOctet2),
    flag("me", KOVREL_MEMBER(D, me)).when(kDescriptorOctet2),
    flag("mi", KOVREL_MEMBER(D, mi)).when(kDescriptorOctet2),
};

using W = AstItem001_030;
constexpr FieldRow k030Rows[] = {integer("we", KOVREL_MEMBER(W, code)).width(7)};

using S = AstItem001_170;
constexpr FieldRow k170Rows[] = {
    flag("con", KOVREL_MEMBER(S, con)),
    flag("rad", KOVREL_MEMBER(S, rad)),
    flag("man", KOVREL_MEMBER(S, man)),
    flag("dou", KOVREL_MEMBER(S, dou)),
    enumeration("rdpc", KOVREL_MEMBER(S, rdpc), chain_name).width(2),
    flag("gho", KOVREL_MEMBER(S, gho)),
    flag("tre", KOVREL_MEMBER(S, tre)).when(KOVREL_MEMBER(S, ext1_present)),
};

}  // namespace

constinit const FieldDesc k001_020 = describe<D, init_valid<D, ast_dataitem_001_020_init>>(k020Rows);
constinit const FieldDesc k001_030 = describe<W, init_valid<W, ast_dataitem_001_030_init>>(k030Rows);
constinit const FieldDesc k001_170 = describe<S, init_valid<S, ast_dataitem_001_170_init>>(k170Rows);

}  // namespace kovrel::fields
