// The record assembly's encoders of I034/050, 060, 070 and 120: the inverse
// of their decoders, the inverted flags (MSC, TSV, CLU) and the chain and
// antenna numbers turned back into their wire bits.
#include "categories/cat034/record_encode.h"

#include "items/item_support.h"

namespace kovrel::cat034 {
namespace {

namespace items = kovrel::items;

// Primary subfield bits of the compound items: position n is bit 9 - n.
constexpr uint8_t kCom = 0x80, kPsr = 0x10, kSsr = 0x08, kMds = 0x04;

bool flag(uint32_t v) { return v <= 1; }
bool number_1_or_2(uint32_t v) { return v == 1 || v == 2; }

// The octets of a split subfield of `length`, or nullptr when it is not a
// present, delimited span of that length.
const uint8_t *span_octets(const AstSubfieldList &list, size_t position, uint64_t length) {
    if (list.valid != 1 || list.span_count <= position) return nullptr;
    const AstSubfield &s = list.spans[position];
    return s.present == 1 && s.valid == 1 && s.data && s.length == length ? s.data : nullptr;
}

// Writes the primary octet and the given subfield octets. A compound item
// without any subfield cannot be delimited, so none is written.
void write_compound(AstDataItem *out, uint8_t *buffer, size_t size, uint8_t primary, const uint8_t *octets,
                    size_t count) {
    if (primary == 0 || !items::encode_begin(out, buffer, size, 1 + count)) return;
    buffer[0] = primary;
    for (size_t i = 0; i < count; ++i) buffer[1 + i] = octets[i];
    items::encode_done(out, buffer, 1 + count);
}

}  // namespace

void encode_050(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem034_050 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1) return;
    uint8_t primary = 0;
    uint8_t octets[5];
    size_t n = 0;
    if (in->com_present) {
        if (!flag(in->com_nogo) || !number_1_or_2(in->com_rdpc) || !flag(in->com_rdpr) || !flag(in->com_ovl_rdp) ||
            !flag(in->com_ovl_xmt) || !flag(in->com_msc) || !flag(in->com_tsv))
            return;
        primary |= kCom;
        octets[n++] = static_cast<uint8_t>(in->com_nogo << 7 | (in->com_rdpc == 2) << 6 | in->com_rdpr << 5 |
                                           in->com_ovl_rdp << 4 | in->com_ovl_xmt << 3 | (in->com_msc ? 0 : 1) << 2 |
                                           (in->com_tsv ? 0 : 1) << 1);
    }
    if (const uint8_t *psr = span_octets(in->subfields, 3, 1)) {
        primary |= kPsr;
        octets[n++] = psr[0];
    }
    if (in->ssr_present) {
        if (!number_1_or_2(in->ssr_ant) || in->ssr_ch_ab > 3 || !flag(in->ssr_ovl) || !flag(in->ssr_msc)) return;
        primary |= kSsr;
        octets[n++] = static_cast<uint8_t>((in->ssr_ant == 2) << 7 | in->ssr_ch_ab << 5 | in->ssr_ovl << 4 |
                                           (in->ssr_msc ? 0 : 1) << 3);
    }
    if (const uint8_t *mds = span_octets(in->subfields, 5, 2)) {
        primary |= kMds;
        octets[n++] = mds[0];
        octets[n++] = mds[1];
    }
    write_compound(out, buffer, size, primary, octets, n);
}

void encode_060(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem034_060 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1) return;
    uint8_t primary = 0;
    uint8_t octets[4];
    size_t n = 0;
    if (in->com_present) {
        if (in->com_red_rdp > 7 || in->com_red_xmt > 7) return;
        primary |= kCom;
        octets[n++] = static_cast<uint8_t>(in->com_red_rdp << 4 | in->com_red_xmt << 1);
    }
    if (in->psr_present) {
        if (!flag(in->psr_pol) || in->psr_red_rad > 7 || in->psr_stc > 3) return;
        primary |= kPsr;
        octets[n++] = static_cast<uint8_t>(in->psr_pol << 7 | in->psr_red_rad << 4 | in->psr_stc << 2);
    }
    if (in->ssr_present) {
        if (in->ssr_red_rad > 7) return;
        primary |= kSsr;
        octets[n++] = static_cast<uint8_t>(in->ssr_red_rad << 5);
    }
    if (in->mds_present) {
        if (in->mds_red_rad > 7 || !flag(in->mds_clu)) return;
        primary |= kMds;
        octets[n++] = static_cast<uint8_t>(in->mds_red_rad << 5 | (in->mds_clu ? 0 : 1) << 4);
    }
    write_compound(out, buffer, size, primary, octets, n);
}

void encode_070(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem034_070 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->count > AST_ITEM034_070_MAX_COUNTERS) return;
    const size_t length = 1 + 2 * static_cast<size_t>(in->count);
    for (uint32_t i = 0; i < in->count; ++i)
        if (in->counters[i].typ > 0x1F || in->counters[i].count > 0x7FF) return;
    if (!items::encode_begin(out, buffer, size, length)) return;
    buffer[0] = static_cast<uint8_t>(in->count);
    for (uint32_t i = 0; i < in->count; ++i) {
        const AstItem034Counter &c = in->counters[i];
        buffer[1 + 2 * i] = static_cast<uint8_t>(c.typ << 3 | c.count >> 8);
        buffer[2 + 2 * i] = static_cast<uint8_t>(c.count);
    }
    items::encode_done(out, buffer, length);
}

void encode_120(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem034_120 *in) {
    if (!items::encode_begin(out, buffer, size, 8)) return;
    if (!in || in->valid != 1) return;
    const int32_t h = in->height.raw, lat = in->latitude.raw, lon = in->longitude.raw;
    constexpr int32_t k24 = 1 << 23;
    if (h < -32768 || h > 32767 || lat < -k24 || lat >= k24 || lon < -k24 || lon >= k24) return;
    const auto u = [](int32_t v) { return static_cast<uint32_t>(v); };
    buffer[0] = static_cast<uint8_t>(u(h) >> 8);
    buffer[1] = static_cast<uint8_t>(u(h));
    for (int i = 0; i < 3; ++i) {
        buffer[2 + i] = static_cast<uint8_t>(u(lat) >> (16 - 8 * i));
        buffer[5 + i] = static_cast<uint8_t>(u(lon) >> (16 - 8 * i));
    }
    items::encode_done(out, buffer, 8);
}

}  // namespace kovrel::cat034
