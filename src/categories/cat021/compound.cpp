// The values of CAT021's compound items: trajectory intent (110), met
// information (220) and data ages (295), decoded from their subfields and
// written back behind a primary subfield.
#include "categories/cat021/subfields.h"
#include "categories/cat021/support.h"
#include "items/item_ex.h"
#include "kovrel/cat021.h"
#include "kovrel/fspec.h"

namespace {

using kovrel::TextWriter;
using kovrel::cat021::fits_signed;
using kovrel::cat021::fits_unsigned;
using kovrel::cat021::sign_extend;
namespace items = kovrel::items;

constexpr uint64_t kPointOctets = 15;
constexpr double kAgeLsb = 0.1;              // s
constexpr double kTemperatureLsb = 0.25;     // degrees Celsius
constexpr double kPointAltitudeLsb = 10.0;   // ft
constexpr double kPointLatLonLsb = 180.0 / 8388608.0;  // degrees
constexpr double kTurnRadiusLsb = 0.01;      // NM

// The span of subfield `at` (0-based) when it is present and delimited.
const AstSubfield *span_at(const AstSubfieldList &list, size_t at) {
    if (list.span_count <= at) return nullptr;
    const AstSubfield &s = list.spans[at];
    return s.present == 1 && s.valid == 1 && s.data && s.length > 0 ? &s : nullptr;
}

// True when every subfield the primary subfield announces exists and was
// delimited inside the item: an announced subfield that the item does not
// have, or that is cut off, spoils the item.
bool all_delimited(const AstSubfieldList &list, uint32_t subfields) {
    if (list.valid != 1) return false;
    for (uint64_t frn = subfields + 1; frn <= list.primary.frn_count; ++frn)
        if (ast_fspec_is_set(&list.primary, static_cast<uint32_t>(frn))) return false;
    for (uint64_t i = 0; i < list.span_count && i < AST_SUBFIELD_MAX; ++i) {
        const AstSubfield &s = list.spans[i];
        if (s.present == 1 && (s.valid != 1 || !s.data || s.length == 0)) return false;
    }
    return true;
}

uint32_t be(const uint8_t *p, int n) {
    uint32_t v = 0;
    for (int i = 0; i < n; ++i) v = (v << 8) | p[i];
    return v;
}

void put(uint8_t *p, uint32_t v, int n) {
    for (int i = n - 1; i >= 0; --i) {
        p[i] = static_cast<uint8_t>(v);
        v >>= 8;
    }
}

// Writes the primary subfield of the `present` subfields (count of them) at
// buffer; its length, 0 when it does not fit size.
size_t write_primary(uint8_t *buffer, size_t size, const bool *present, size_t count) {
    size_t last = 0;  // 1-based position of the last present subfield
    for (size_t i = 0; i < count; ++i)
        if (present[i]) last = i + 1;
    const size_t octets = last == 0 ? 1 : (last - 1) / 7 + 1;
    if (size < octets) return 0;
    for (size_t k = 0; k < octets; ++k) {
        uint8_t o = k + 1 < octets ? 1u : 0u;
        for (size_t j = 0; j < 7; ++j) {
            const size_t i = k * 7 + j;
            if (i < count && present[i]) o = static_cast<uint8_t>(o | (0x80u >> j));
        }
        buffer[k] = o;
    }
    return octets;
}

}  // namespace

namespace kovrel::cat021 {

// Age subfield summary: "%.2f LSB=SEC".
void age_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t raw = 0;
    if (!items::subfield_octet(span, &raw)) return;
    w.append_fixed(raw * kAgeLsb, 2);
    w.append(" LSB=SEC");
}

}  // namespace kovrel::cat021

extern "C" {

// ---- I021/110 Trajectory Intent ----------------------------------------------------

KOVREL_API void ast_dataitem_021_110_init(AstItem021_110 *out) {
    if (out) *out = AstItem021_110{};
}

KOVREL_API void ast_dataitem_021_110_decode(AstItem021_110 *out, const AstDataItem *item) {
    ast_dataitem_021_110_init(out);
    if (!out || !item || item->valid != 1 || item->id != 21110) return;
    ast_dataitem_subfields_decode(&out->subfields, item);
    if (!all_delimited(out->subfields, 2)) {
        out->subfields = AstSubfieldList{};
        return;
    }
    if (const AstSubfield *tis = span_at(out->subfields, 0)) {
        out->tis_present = 1;
        out->nav = tis->data[0] >> 7;
        out->nvb = (tis->data[0] >> 6) & 1u;
    }
    if (const AstSubfield *tid = span_at(out->subfields, 1)) {
        // The span was delimited as 1 + 15 x REP octets.
        out->tid_present = 1;
        out->tid_rep = tid->data[0];
        const uint64_t fit = (tid->length - 1) / kPointOctets;
        uint64_t n = out->tid_rep < fit ? out->tid_rep : fit;
        if (n > AST_021_TID_MAX) n = AST_021_TID_MAX;
        out->tid_count = static_cast<uint32_t>(n);
        for (uint64_t i = 0; i < n; ++i) {
            const uint8_t *p = tid->data + 1 + i * kPointOctets;
            AstItem021TcpPoint &t = out->tid[i];
            t.present = 1;
            t.tca = p[0] >> 7;
            t.nc = (p[0] >> 6) & 1u;
            t.tcpn = p[0] & 0x3Fu;
            t.alt = sign_extend(be(p + 1, 2), 16);
            t.lat = sign_extend(be(p + 3, 3), 24);
            t.lon = sign_extend(be(p + 6, 3), 24);
            t.pt = p[9] >> 4;
            t.td = (p[9] >> 2) & 3u;
            t.tra = (p[9] >> 1) & 1u;
            t.toa = p[9] & 1u;
            t.tov = be(p + 10, 3);
            t.ttr = be(p + 13, 2);
        }
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_110_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_110 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->tid_count > AST_021_TID_MAX) return;
    uint32_t points = in->tid_count;
    for (uint32_t i = 0; i < AST_021_TID_MAX; ++i)
        if (in->tid[i].present && i + 1 > points) points = i + 1;
    for (uint32_t i = 0; i < points; ++i) {
        const AstItem021TcpPoint &t = in->tid[i];
        if (t.tcpn > 63 || !fits_signed(t.alt, 16) || !fits_signed(t.lat, 24) || !fits_signed(t.lon, 24) ||
            t.pt > 15 || t.td > 3 || !fits_unsigned(t.tov, 24) || t.ttr > 0xFFFFu)
            return;
    }
    const bool tid = in->tid_present || points > 0;
    const bool present[2] = {in->tis_present != 0, tid};
    if (!present[0] && !present[1]) return;  // a primary subfield without a bit is not one
    const size_t length = 1 + (present[0] ? 1 : 0) + (tid ? 1 + points * kPointOctets : 0);
    if (size < length) return;
    size_t pos = write_primary(buffer, size, present, 2);
    if (present[0]) buffer[pos++] = static_cast<uint8_t>((in->nav ? 0x80u : 0u) | (in->nvb ? 0x40u : 0u));
    if (tid) {
        buffer[pos++] = static_cast<uint8_t>(points);
        for (uint32_t i = 0; i < points; ++i) {
            const AstItem021TcpPoint &t = in->tid[i];
            uint8_t *p = buffer + pos;
            p[0] = static_cast<uint8_t>((t.tca ? 0x80u : 0u) | (t.nc ? 0x40u : 0u) | t.tcpn);
            put(p + 1, static_cast<uint32_t>(t.alt), 2);
            put(p + 3, static_cast<uint32_t>(t.lat), 3);
            put(p + 6, static_cast<uint32_t>(t.lon), 3);
            p[9] = static_cast<uint8_t>((t.pt << 4) | (t.td << 2) | (t.tra ? 2u : 0u) | (t.toa ? 1u : 0u));
            put(p + 10, t.tov, 3);
            put(p + 13, t.ttr, 2);
            pos += kPointOctets;
        }
    }
    items::encode_done(out, buffer, pos);
}

// ---- I021/220 Met Information -------------------------------------------------------

KOVREL_API void ast_dataitem_021_220_init(AstItem021_220 *out) {
    if (out) *out = AstItem021_220{};
}

KOVREL_API void ast_dataitem_021_220_decode(AstItem021_220 *out, const AstDataItem *item) {
    ast_dataitem_021_220_init(out);
    if (!out || !item || item->valid != 1 || item->id != 21220) return;
    ast_dataitem_subfields_decode(&out->subfields, item);
    if (!all_delimited(out->subfields, 4)) {
        out->subfields = AstSubfieldList{};
        return;
    }
    const AstSubfieldList &list = out->subfields;
    if (const AstSubfield *s = span_at(list, 0); s && s->length == 2) {
        out->ws_present = 1;
        out->ws = be(s->data, 2);
    }
    if (const AstSubfield *s = span_at(list, 1); s && s->length == 2) {
        out->wd_present = 1;
        out->wd = be(s->data, 2);
    }
    if (const AstSubfield *s = span_at(list, 2); s && s->length == 2) {
        out->tmp_present = 1;
        out->tmp_raw = sign_extend(be(s->data, 2), 16);
        out->tmp = out->tmp_raw * kTemperatureLsb;
    }
    if (const AstSubfield *s = span_at(list, 3); s && s->length == 1) {
        out->trb_present = 1;
        out->trb = s->data[0];
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_220_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_220 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->ws > 0xFFFFu || in->wd > 0xFFFFu || !fits_signed(in->tmp_raw, 16) ||
        in->trb > 0xFFu)
        return;
    const bool present[4] = {in->ws_present != 0, in->wd_present != 0, in->tmp_present != 0, in->trb_present != 0};
    if (!(present[0] || present[1] || present[2] || present[3])) return;
    const size_t length = 1 + (present[0] ? 2 : 0) + (present[1] ? 2 : 0) + (present[2] ? 2 : 0) + (present[3] ? 1 : 0);
    if (size < length) return;
    size_t pos = write_primary(buffer, size, present, 4);
    if (present[0]) put(buffer + pos, in->ws, 2), pos += 2;
    if (present[1]) put(buffer + pos, in->wd, 2), pos += 2;
    if (present[2]) put(buffer + pos, static_cast<uint32_t>(in->tmp_raw), 2), pos += 2;
    if (present[3]) buffer[pos++] = static_cast<uint8_t>(in->trb);
    items::encode_done(out, buffer, pos);
}

// ---- I021/295 Data Ages -------------------------------------------------------------

KOVREL_API void ast_dataitem_021_295_init(AstItem021_295 *out) {
    if (out) *out = AstItem021_295{};
}

KOVREL_API void ast_dataitem_021_295_decode(AstItem021_295 *out, const AstDataItem *item) {
    ast_dataitem_021_295_init(out);
    if (!out || !item || item->valid != 1 || item->id != 21295) return;
    ast_dataitem_subfields_decode(&out->subfields, item);
    if (!all_delimited(out->subfields, AST_021_AGE_COUNT)) {
        out->subfields = AstSubfieldList{};
        return;
    }
    for (size_t i = 0; i < AST_021_AGE_COUNT; ++i) {
        uint8_t raw = 0;
        if (out->subfields.span_count > i && items::subfield_octet(&out->subfields.spans[i], &raw)) {
            out->ages[i].present = 1;
            out->ages[i].age = raw / 10.0;  // tenths of a second, correctly rounded
        }
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_295_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_295 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1) return;
    bool present[AST_021_AGE_COUNT];
    uint8_t raw[AST_021_AGE_COUNT];
    size_t count = 0;
    for (size_t i = 0; i < AST_021_AGE_COUNT; ++i) {
        present[i] = in->ages[i].present != 0;
        raw[i] = 0;
        if (!present[i]) continue;
        const double r = in->ages[i].age * 10.0 + 0.5;
        if (!(r >= 0.0 && r < 256.0)) return;  // also refuses NaN
        raw[i] = static_cast<uint8_t>(r);
        ++count;
    }
    size_t last = 0;
    for (size_t i = 0; i < AST_021_AGE_COUNT; ++i)
        if (present[i]) last = i + 1;
    if (last == 0) return;
    const size_t primary = (last - 1) / 7 + 1;
    if (size < primary + count) return;
    size_t pos = write_primary(buffer, size, present, AST_021_AGE_COUNT);
    for (size_t i = 0; i < AST_021_AGE_COUNT; ++i)
        if (present[i]) buffer[pos++] = raw[i];
    items::encode_done(out, buffer, pos);
}

}  // extern "C"

KOVREL_DECODE_EX(021_110, AstItem021_110, ast_dataitem_021_110_decode)
KOVREL_ENCODE_EX(021_110, AstItem021_110, ast_dataitem_021_110_encode)
KOVREL_DECODE_EX(021_220, AstItem021_220, ast_dataitem_021_220_decode)
KOVREL_ENCODE_EX(021_220, AstItem021_220, ast_dataitem_021_220_encode)
KOVREL_DECODE_EX(021_295, AstItem021_295, ast_dataitem_021_295_decode)
KOVREL_ENCODE_EX(021_295, AstItem021_295, ast_dataitem_021_295_encode)

namespace kovrel::fields {

namespace {

// ---- 110
using T110 = AstItem021_110;
using P = AstItem021TcpPoint;
constexpr FieldRow kPointRows[] = {
    flag("tca", KOVREL_MEMBER(P, tca)),
    flag("nc", KOVREL_MEMBER(P, nc)),
    integer("tcpn", KOVREL_MEMBER(P, tcpn)).width(6),
    scaled("alt", KOVREL_MEMBER(P, alt), kPointAltitudeLsb, "ft").width(16),
    scaled("lat", KOVREL_MEMBER(P, lat), kPointLatLonLsb, "deg").width(24),
    scaled("lon", KOVREL_MEMBER(P, lon), kPointLatLonLsb, "deg").width(24),
    integer("pt", KOVREL_MEMBER(P, pt)).width(4),
    integer("td", KOVREL_MEMBER(P, td)).width(2),
    flag("tra", KOVREL_MEMBER(P, tra)),
    flag("toa", KOVREL_MEMBER(P, toa)),
    integer("tov", KOVREL_MEMBER(P, tov), "s").width(24),
    scaled("ttr", KOVREL_MEMBER(P, ttr), kTurnRadiusLsb, "NM").width(16),
};
constinit const FieldDesc kPoint = describe<P>(kPointRows);

#define KOVREL_021_POINT(N, I) group(N, KOVREL_MEMBER(T110, tid[I]), kPoint).when(KOVREL_MEMBER(T110, tid[I].present))
constexpr FieldRow kTidRows[] = {
    KOVREL_021_POINT("p1", 0),   KOVREL_021_POINT("p2", 1),   KOVREL_021_POINT("p3", 2),
    KOVREL_021_POINT("p4", 3),   KOVREL_021_POINT("p5", 4),   KOVREL_021_POINT("p6", 5),
    KOVREL_021_POINT("p7", 6),   KOVREL_021_POINT("p8", 7),   KOVREL_021_POINT("p9", 8),
    KOVREL_021_POINT("p10", 9),  KOVREL_021_POINT("p11", 10), KOVREL_021_POINT("p12", 11),
    KOVREL_021_POINT("p13", 12), KOVREL_021_POINT("p14", 13), KOVREL_021_POINT("p15", 14),
    KOVREL_021_POINT("p16", 15),
};
#undef KOVREL_021_POINT
static_assert(sizeof kTidRows / sizeof kTidRows[0] == AST_021_TID_MAX, "one group per point");
constinit const FieldDesc kTid = describe<T110>(kTidRows);

constexpr FieldRow kTisRows[] = {
    flag("nav", KOVREL_MEMBER(T110, nav)),
    flag("nvb", KOVREL_MEMBER(T110, nvb)),
};
constinit const FieldDesc kTis = describe<T110>(kTisRows);

constexpr FieldRow k110[] = {
    group("tis", Member{Store::Struct, 0, sizeof(T110)}, kTis).when(KOVREL_MEMBER(T110, tis_present)),
    group("tid", Member{Store::Struct, 0, sizeof(T110)}, kTid).when(KOVREL_MEMBER(T110, tid_present)),
};

// ---- 220
using T220 = AstItem021_220;
constexpr FieldRow k220[] = {
    integer("ws", KOVREL_MEMBER(T220, ws), "kt").width(16).when(KOVREL_MEMBER(T220, ws_present)),
    integer("wd", KOVREL_MEMBER(T220, wd), "deg").width(16).when(KOVREL_MEMBER(T220, wd_present)),
    scaled("tmp", KOVREL_MEMBER(T220, tmp_raw), kTemperatureLsb, "degC").width(16).when(KOVREL_MEMBER(T220, tmp_present)),
    integer("trb", KOVREL_MEMBER(T220, trb)).width(8).when(KOVREL_MEMBER(T220, trb_present)),
};

// ---- 295
using T295 = AstItem021_295;
#define KOVREL_021_AGE(N, I) real(N, KOVREL_MEMBER(T295, ages[I].age), "s").when(KOVREL_MEMBER(T295, ages[I].present))
constexpr FieldRow k295[] = {
    KOVREL_021_AGE("aos", 0),  KOVREL_021_AGE("trd", 1),  KOVREL_021_AGE("m3a", 2),  KOVREL_021_AGE("qi", 3),
    KOVREL_021_AGE("ti1", 4),  KOVREL_021_AGE("mam", 5),  KOVREL_021_AGE("gh", 6),   KOVREL_021_AGE("fl", 7),
    KOVREL_021_AGE("sal", 8),  KOVREL_021_AGE("fsa", 9),  KOVREL_021_AGE("as", 10),  KOVREL_021_AGE("tas", 11),
    KOVREL_021_AGE("mh", 12),  KOVREL_021_AGE("bvr", 13), KOVREL_021_AGE("gvr", 14), KOVREL_021_AGE("gv", 15),
    KOVREL_021_AGE("tar", 16), KOVREL_021_AGE("ti2", 17), KOVREL_021_AGE("ts", 18),  KOVREL_021_AGE("met", 19),
    KOVREL_021_AGE("roa", 20), KOVREL_021_AGE("ara", 21), KOVREL_021_AGE("scc", 22),
};
#undef KOVREL_021_AGE
static_assert(sizeof k295 / sizeof k295[0] == AST_021_AGE_COUNT, "one field per age");

}  // namespace

constinit const FieldDesc k021_110 = describe<T110, init_valid<T110, ast_dataitem_021_110_init>>(k110);
constinit const FieldDesc k021_220 = describe<T220, init_valid<T220, ast_dataitem_021_220_init>>(k220);
constinit const FieldDesc k021_295 = describe<T295, init_valid<T295, ast_dataitem_021_295_init>>(k295);

}  // namespace kovrel::fields
