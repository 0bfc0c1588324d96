// I001/210 Track Quality and the ASR-10SS station items that stand in the
// places of I001/130 and I001/210 (1901 to 1904). All are FX-extended
// fields of seven-bit octets.
#include "categories/cat001/chain.h"
#include "categories/cat001/item_fields.h"
#include "categories/cat001/station_encode.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat001.h"

#include <initializer_list>

namespace {

using kovrel::TextWriter;
using kovrel::cat001::read_chain;
namespace items = kovrel::items;

constexpr uint32_t kMaxQuality = 12;

// Reads the chain of an item of identifier id into a scratch array.
struct Chain {
    uint32_t values[kMaxQuality] = {};
    uint32_t count = 0;
};

Chain chain_of(const AstDataItem *item, AstItemId id, size_t max) {
    Chain c;
    if (item && item->id == id) c.count = read_chain(c.values, max, item);
    return c;
}

// Copies the values past the first `named` into extra[].
template <size_t N>
void keep_extra(uint32_t (&extra)[N], uint32_t *extra_count, const Chain &c, uint32_t named) {
    *extra_count = 0;
    for (uint32_t i = named; i < c.count && *extra_count < N; ++i) extra[(*extra_count)++] = c.values[i];
}

// Writes the named values, then the extra ones, as one FX chain of at most
// max octets; an invalid value, a flag above 1 or a short buffer leaves the
// span invalid.
template <size_t N>
void encode_chain(AstDataItem *out, uint8_t *buffer, size_t size, const uint32_t *named, uint32_t named_count,
                  const uint32_t (&extra)[N], uint32_t extra_count, size_t max) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (extra_count > N || named_count + extra_count > max) return;
    uint32_t values[kMaxQuality] = {};
    for (uint32_t i = 0; i < named_count; ++i) values[i] = named[i];
    for (uint32_t i = 0; i < extra_count; ++i) values[named_count + i] = extra[i];
    const uint32_t count = named_count + extra_count;
    if (!kovrel::cat001::write_chain(buffer, size, values, count, max)) return;
    items::encode_done(out, buffer, count);
}

// Flag bits of a seven-bit octet, most significant first; false when one
// is not 0 or 1.
bool pack_flags(uint32_t *octet, std::initializer_list<uint32_t> flags) {
    uint32_t v = 0;
    int shift = 6;
    for (uint32_t f : flags) {
        if (f > 1) return false;
        v |= f << shift--;
    }
    *octet = v;
    return true;
}

void octet_label(char (&label)[16], uint32_t index) {
    TextWriter w(label, sizeof label);
    w.appendf("Octet[%u]", index + 1);
}

void extra_rows(items::DetailTable &t, const uint32_t *extra, uint32_t count, uint32_t first) {
    char label[16];
    for (uint32_t i = 0; i < count; ++i) {
        octet_label(label, first + i);
        t.rowf(label, "SPARE_VALUE", "%u", extra[i]);
    }
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_001_210_init(AstItem001_210 *out) {
    if (out) *out = AstItem001_210{};
}

KOVREL_API void ast_dataitem_001_210_decode(AstItem001_210 *out, const AstDataItem *item) {
    ast_dataitem_001_210_init(out);
    if (!out || !item || item->id != 1210) return;
    out->count = read_chain(out->quality, kMaxQuality, item);
    out->valid = out->count > 0 ? 1 : 0;
}

KOVREL_API void ast_dataitem_001_210_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_210 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || !kovrel::cat001::write_chain(buffer, size, in->quality, in->count, kMaxQuality))
        return;
    items::encode_done(out, buffer, in->count);
}

KOVREL_API void ast_dataitem_001_210_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_210_decode, [](TextWriter &w, const auto &d) {
        w.appendf("Q1:%u", d.quality[0]);
        if (d.count >= 2) w.appendf(" Q2:%u", d.quality[1]);
    });
}

KOVREL_API void ast_dataitem_001_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_210_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Octet", "Item", "Value");
        char label[16];
        for (uint32_t i = 0; i < d.count; ++i) {
            octet_label(label, i);
            t.rowf(label, "QUALITY", "%u", d.quality[i]);
        }
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_901_init(AstItem001_901 *out) {
    if (out) *out = AstItem001_901{};
}

KOVREL_API void ast_dataitem_001_901_decode(AstItem001_901 *out, const AstDataItem *item) {
    ast_dataitem_001_901_init(out);
    if (!out) return;
    const Chain c = chain_of(item, 1901, 6);
    if (c.count == 0) return;
    out->tsm = (c.values[0] >> 6) & 1u;
    out->pe = (c.values[0] >> 5) & 1u;
    keep_extra(out->extra, &out->extra_count, c, 1);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_001_901_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_901_decode, [](TextWriter &w, const auto &d) {
        w.append("PLOT");
        if (d.tsm) w.append(" TSM");
        if (d.pe) w.append(" PE");
    });
}

KOVREL_API void ast_dataitem_001_901_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_901_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Octet", "Item", "Value");
        t.rowf("Octet[1] Bit[0]", "TSM", "%u", d.tsm);
        t.rowf("Octet[1] Bit[1]", "PE", "%u", d.pe);
        extra_rows(t, d.extra, d.extra_count, 1);
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_902_init(AstItem001_902 *out) {
    if (out) *out = AstItem001_902{};
}

KOVREL_API void ast_dataitem_001_902_decode(AstItem001_902 *out, const AstDataItem *item) {
    ast_dataitem_001_902_init(out);
    if (!out) return;
    const Chain c = chain_of(item, 1902, 12);
    if (c.count == 0) return;
    out->amp = c.values[0];
    keep_extra(out->extra, &out->extra_count, c, 1);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_001_902_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_902_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("AMP:%udB", d.amp); });
}

KOVREL_API void ast_dataitem_001_902_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_902_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Octet", "Item", "Value");
        t.rowf("Octet[1]", "AMPLITUDE LSB=DB", "%u", d.amp);
        extra_rows(t, d.extra, d.extra_count, 1);
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_903_init(AstItem001_903 *out) {
    if (out) *out = AstItem001_903{};
}

KOVREL_API void ast_dataitem_001_903_decode(AstItem001_903 *out, const AstDataItem *item) {
    ast_dataitem_001_903_init(out);
    if (!out) return;
    const Chain c = chain_of(item, 1903, 6);
    if (c.count == 0) return;
    const uint32_t f = c.values[0];
    out->mnt = (f >> 6) & 1u;
    out->pe = (f >> 5) & 1u;
    out->wet = (f >> 4) & 1u;
    out->rag = (f >> 3) & 1u;
    out->a3 = (f >> 2) & 1u;
    out->aaz = (f >> 1) & 1u;
    out->aeo = f & 1u;
    if (c.count >= 2) {
        out->ext1_present = 1;
        out->spl = (c.values[1] >> 6) & 1u;
    }
    if (c.count >= 3) {
        out->amp_present = 1;
        out->amp = c.values[2];
    }
    if (c.count >= 4) {
        out->conf_present = 1;
        out->conf = c.values[3];
    }
    keep_extra(out->extra, &out->extra_count, c, 4);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_001_903_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_903_decode, [](TextWriter &w, const auto &d) {
        w.append("PLOT");
        if (d.mnt) w.append(" MNT");
        if (d.pe) w.append(" PE");
        if (d.wet) w.append(" WET");
        if (d.rag) w.append(" RAG");
        if (d.a3) w.append(" A3");
        if (d.aaz) w.append(" AAZ");
        if (d.aeo) w.append(" AEO");
        if (d.spl) w.append(" SPL");
        if (d.amp_present) w.appendf(" AMP:%udB", d.amp);
        if (d.conf_present) w.appendf(" CONF:%u", d.conf);
    });
}

KOVREL_API void ast_dataitem_001_903_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_903_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Octet", "Item", "Value");
        t.rowf("Octet[1] Bit[0]", "MNT", "%u", d.mnt);
        t.rowf("Octet[1] Bit[1]", "PE", "%u", d.pe);
        t.rowf("Octet[1] Bit[2]", "WET", "%u", d.wet);
        t.rowf("Octet[1] Bit[3]", "RAG", "%u", d.rag);
        t.rowf("Octet[1] Bit[4]", "A3", "%u", d.a3);
        t.rowf("Octet[1] Bit[5]", "AAZ", "%u", d.aaz);
        t.rowf("Octet[1] Bit[6]", "AEO", "%u", d.aeo);
        t.rowf("Octet[2] Bit[0]", "SPL", "%u", d.spl);
        if (d.amp_present) t.rowf("Octet[3]", "AMPLITUDE LSB=DB", "%u", d.amp);
        if (d.conf_present) t.rowf("Octet[4]", "CONFIDENCE", "%u", d.conf);
        extra_rows(t, d.extra, d.extra_count, 4);
        t.end();
    });
}

KOVREL_API void ast_dataitem_001_904_init(AstItem001_904 *out) {
    if (out) *out = AstItem001_904{};
}

KOVREL_API void ast_dataitem_001_904_decode(AstItem001_904 *out, const AstDataItem *item) {
    ast_dataitem_001_904_init(out);
    if (!out) return;
    const Chain c = chain_of(item, 1904, 11);
    if (c.count == 0) return;
    out->tq = c.values[0];
    if (c.count >= 2) {
        out->peak_present = 1;
        out->peak = c.values[1];
    }
    if (c.count >= 3) {
        out->azext_present = 1;
        out->azext = c.values[2];
    }
    keep_extra(out->extra, &out->extra_count, c, 3);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_001_904_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_904_decode, [](TextWriter &w, const auto &d) {
        w.appendf("TQ:%u", d.tq);
        if (d.peak_present) w.appendf(" PEAK:%udB", d.peak);
        if (d.azext_present) w.appendf(" AZEXT:%u", d.azext);
    });
}

KOVREL_API void ast_dataitem_001_904_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_001_904_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Octet", "Item", "Value");
        t.rowf("Octet[1]", "TRACK_QUALITY", "%u", d.tq);
        if (d.peak_present) t.rowf("Octet[2]", "PEAK_AMPLITUDE LSB=DB", "%u", d.peak);
        if (d.azext_present) t.rowf("Octet[3]", "AZIMUTH_EXTENT LSB=ACP", "%u", d.azext);
        extra_rows(t, d.extra, d.extra_count, 3);
        t.end();
    });
}

}  // extern "C"

// The station items are written only as members of a disassembled record:
// the record assembly calls these.
namespace kovrel::cat001 {

void encode_901(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_901 *in) {
    uint32_t octet = 0;
    if (!in || in->valid != 1 || !pack_flags(&octet, {in->tsm, in->pe})) {
        items::encode_begin(out, buffer, size, 1);
        return;
    }
    encode_chain(out, buffer, size, &octet, 1, in->extra, in->extra_count, 6);
}

void encode_902(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_902 *in) {
    if (!in || in->valid != 1) {
        items::encode_begin(out, buffer, size, 1);
        return;
    }
    encode_chain(out, buffer, size, &in->amp, 1, in->extra, in->extra_count, 12);
}

// Octets 2 to 4 are written up to the last one the structure holds: the
// extra octets need the confidence octet before them, the confidence the
// amplitude, the amplitude octet 2.
void encode_903(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_903 *in) {
    uint32_t named[4] = {};
    if (!in || in->valid != 1 || in->spl > 1 ||
        !pack_flags(&named[0], {in->mnt, in->pe, in->wet, in->rag, in->a3, in->aaz, in->aeo})) {
        items::encode_begin(out, buffer, size, 1);
        return;
    }
    named[1] = in->spl << 6;
    named[2] = in->amp;
    named[3] = in->conf;
    const uint32_t count = (in->extra_count > 0 || in->conf_present) ? 4
                           : in->amp_present                       ? 3
                           : (in->ext1_present || in->spl)         ? 2
                                                                   : 1;
    encode_chain(out, buffer, size, named, count, in->extra, count == 4 ? in->extra_count : 0, 6);
}

void encode_904(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_904 *in) {
    if (!in || in->valid != 1) {
        items::encode_begin(out, buffer, size, 1);
        return;
    }
    const uint32_t named[3] = {in->tq, in->peak, in->azext};
    const uint32_t count = (in->extra_count > 0 || in->azext_present) ? 3 : in->peak_present ? 2 : 1;
    encode_chain(out, buffer, size, named, count, in->extra, count == 3 ? in->extra_count : 0, 11);
}

}  // namespace kovrel::cat001

KOVREL_DECODE_EX(001_210, AstItem001_210, ast_dataitem_001_210_decode)
KOVREL_ENCODE_EX(001_210, AstItem001_210, ast_dataitem_001_210_encode)
KOVREL_DECODE_EX(001_901, AstItem001_901, ast_dataitem_001_901_decode)
KOVREL_DECODE_EX(001_902, AstItem001_902, ast_dataitem_001_902_decode)
KOVREL_DECODE_EX(001_903, AstItem001_903, ast_dataitem_001_903_decode)
KOVREL_DECODE_EX(001_904, AstItem001_904, ast_dataitem_001_904_decode)

namespace kovrel::fields {

namespace {

using Q = AstItem001_210;
using P1 = AstItem001_901;
using A1 = AstItem001_902;
using P2 = AstItem001_903;
using T2 = AstItem001_904;

constexpr FieldRow kSevenBitRows[] = {integer(nullptr, member_of<uint32_t>(0)).width(7)};
constinit const FieldDesc kSevenBit = describe<uint32_t>(kSevenBitRows);

#define KOVREL_EXTRA(S) \
    array("extra", KOVREL_MEMBER(S, extra), KOVREL_MEMBER(S, extra_count), sizeof(uint32_t), \
          sizeof(S::extra) / sizeof(uint32_t), kSevenBit)

// The count says how many octets the encoder writes; the figures past it
// are not sent. (Arrays cannot be set by name, so each figure is a field.)
#define KOVREL_Q(N) integer("q" #N, member_of<uint32_t>(offsetof(Q, quality) + (N - 1) * sizeof(uint32_t))).width(7)
constexpr FieldRow k210Rows[] = {
    integer("count", KOVREL_MEMBER(Q, count)).width(4),
    KOVREL_Q(1), KOVREL_Q(2), KOVREL_Q(3), KOVREL_Q(4),  KOVREL_Q(5),  KOVREL_Q(6),
    KOVREL_Q(7), KOVREL_Q(8), KOVREL_Q(9), KOVREL_Q(10), KOVREL_Q(11), KOVREL_Q(12),
};
#undef KOVREL_Q
constexpr FieldRow k901Rows[] = {
    flag("tsm", KOVREL_MEMBER(P1, tsm)),
    flag("pe", KOVREL_MEMBER(P1, pe)),
    KOVREL_EXTRA(P1),
};
constexpr FieldRow k902Rows[] = {
    integer("amp", KOVREL_MEMBER(A1, amp), "dB").width(7),
    KOVREL_EXTRA(A1),
};
constexpr FieldRow k903Rows[] = {
    flag("mnt", KOVREL_MEMBER(P2, mnt)),
    flag("pe", KOVREL_MEMBER(P2, pe)),
    flag("wet", KOVREL_MEMBER(P2, wet)),
    flag("rag", KOVREL_MEMBER(P2, rag)),
    flag("a3", KOVREL_MEMBER(P2, a3)),
    flag("aaz", KOVREL_MEMBER(P2, aaz)),
    flag("aeo", KOVREL_MEMBER(P2, aeo)),
    flag("spl", KOVREL_MEMBER(P2, spl)).when(KOVREL_MEMBER(P2, ext1_present)),
    integer("amp", KOVREL_MEMBER(P2, amp), "dB").width(7).when(KOVREL_MEMBER(P2, amp_present)),
    integer("conf", KOVREL_MEMBER(P2, conf)).width(7).when(KOVREL_MEMBER(P2, conf_present)),
    KOVREL_EXTRA(P2),
};
constexpr FieldRow k904Rows[] = {
    integer("tq", KOVREL_MEMBER(T2, tq)).width(7),
    integer("peak", KOVREL_MEMBER(T2, peak), "dB").width(7).when(KOVREL_MEMBER(T2, peak_present)),
    integer("azext", KOVREL_MEMBER(T2, azext)).width(7).when(KOVREL_MEMBER(T2, azext_present)),
    KOVREL_EXTRA(T2),
};

#undef KOVREL_EXTRA

}  // namespace

constinit const FieldDesc k001_210 = describe<Q, init_valid<Q, ast_dataitem_001_210_init>>(k210Rows);
constinit const FieldDesc k001_901 = describe<P1, init_valid<P1, ast_dataitem_001_901_init>>(k901Rows);
constinit const FieldDesc k001_902 = describe<A1, init_valid<A1, ast_dataitem_001_902_init>>(k902Rows);
constinit const FieldDesc k001_903 = describe<P2, init_valid<P2, ast_dataitem_001_903_init>>(k903Rows);
constinit const FieldDesc k001_904 = describe<T2, init_valid<T2, ast_dataitem_001_904_init>>(k904Rows);

}  // namespace kovrel::fields
