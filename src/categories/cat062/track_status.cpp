// I062/080 Track Status: how the tracker rates a system track, in up to six
// FX-chained octets (track type and height source; simulation and life
// cycle; military codes; coasting per sensor type; surveillance and
// emergency status; duplicate and inconsistency flags).
#include "categories/cat062/item_fields.h"
#include "categories/cat062/support.h"
#include "items/item_ex.h"
#include "kovrel/cat062.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 62080;
constexpr uint64_t kMaxOctets = 6;

// Mode 4 and Mode 5 replies, as this item's detail view names them.
constexpr const char *kIffText[4] = {"NO_INTERROGATION", "FRIENDLY_TARGET", "UNKNOWN_TARGET", "NO_REPLY"};
// Which kinds of surveillance the track is made of.
constexpr const char *kSdsText[4] = {"COMBINED", "COOPERATIVE_ONLY", "NON_COOPERATIVE_ONLY", "NOT_DEFINED"};

const char *iff_text(uint32_t code) { return kIffText[ast_iff_status_from_int(code) & 3u]; }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_062_080_init(AstItem062_080 *out) {
    if (out) *out = AstItem062_080{};
}

KOVREL_API void ast_dataitem_062_080_decode(AstItem062_080 *out, const AstDataItem *item) {
    ast_dataitem_062_080_init(out);
    if (!out || !items::span_at_least(item, 1) || item->length > kMaxOctets || item->id != kId) return;
    const uint8_t *p = item->data;
    const uint64_t n = item->length;
    out->octets = static_cast<uint32_t>(n);
    out->mon = p[0] >> 7;
    out->spi = (p[0] >> 6) & 1u;
    out->mrh = (p[0] >> 5) & 1u;
    out->src = (p[0] >> 2) & 7u;
    out->cnf = (p[0] >> 1) & 1u;
    if (n >= 2) {
        out->ext2 = 1;
        out->sim = p[1] >> 7;
        out->tse = (p[1] >> 6) & 1u;
        out->tsb = (p[1] >> 5) & 1u;
        out->fpc = (p[1] >> 4) & 1u;
        out->aff = (p[1] >> 3) & 1u;
        out->stp = (p[1] >> 2) & 1u;
        out->kos = (p[1] >> 1) & 1u;
    }
    if (n >= 3) {
        out->ext3 = 1;
        out->ama = p[2] >> 7;
        out->md4 = (p[2] >> 5) & 3u;
        out->me = (p[2] >> 4) & 1u;
        out->mi = (p[2] >> 3) & 1u;
        out->md5 = (p[2] >> 1) & 3u;
    }
    if (n >= 4) {
        out->ext4 = 1;
        out->cst = p[3] >> 7;
        out->psr = (p[3] >> 6) & 1u;
        out->ssr = (p[3] >> 5) & 1u;
        out->mds = (p[3] >> 4) & 1u;
        out->ads = (p[3] >> 3) & 1u;
        out->suc = (p[3] >> 2) & 1u;
        out->aac = (p[3] >> 1) & 1u;
    }
    if (n >= 5) {
        out->ext5 = 1;
        out->sds = p[4] >> 6;
        out->ems = (p[4] >> 3) & 7u;
        out->pft = (p[4] >> 2) & 1u;
        out->fplt = (p[4] >> 1) & 1u;
    }
    if (n >= 6) {
        out->ext6 = 1;
        out->dupt = p[5] >> 7;
        out->dupf = (p[5] >> 6) & 1u;
        out->dupm = (p[5] >> 5) & 1u;
        out->sfc = (p[5] >> 4) & 1u;
        out->idd = (p[5] >> 3) & 1u;
        out->iec = (p[5] >> 2) & 1u;
        out->mlat = (p[5] >> 1) & 1u;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_062_080_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_080_decode, [](TextWriter &w, const auto &s) {
        w.append("TRACK_STS:");
        w.append(s.mon ? "MONO " : "MULTI ");
        w.drop_last();
    });
}

KOVREL_API void ast_dataitem_062_080_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_062_080_decode, [item](TextWriter &w, const auto &s) {
        const uint8_t *p = item->data;
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0]", "TRACK_TYPE", s.mon ? "MONO_SENSOR_TRACK" : "MULTI_SENSOR_TRACK");
        t.rowf("Bit[1]", "SPI", "%d", s.spi);
        t.rowf("Bit[2]", "MORE_RELIABLE_HEIGHT", "%d", s.mrh);
        t.row("Bit[3-5]", "ALTITUDE_SOURCE",
              ast_geometric_altitude_source_to_str(ast_geometric_altitude_source_from_int(s.src)));
        t.rowf("Bit[6]", "TENTATIVE", "%d", s.cnf);
        t.rowf("Bit[7]", "FX", "%d", p[0] & 1);
        if (s.ext2) {
            t.rowf("Bit[8]", "SIMULATED", "%d", s.sim);
            t.rowf("Bit[9]", "TRACK_END", "%d", s.tse);
            t.rowf("Bit[10]", "TRACK_BEGIN", "%d", s.tsb);
            t.rowf("Bit[11]", "FP_CORRELATED", "%d", s.fpc);
            t.rowf("Bit[12]", "ADSB_INCONSISTENT", "%d", s.aff);
            t.rowf("Bit[13]", "SLAVE_TRACK_PROMOTION", "%d", s.stp);
            t.rowf("Bit[14]", "BACKGROUND_SERVICE", "%d", s.kos);
            t.rowf("Bit[15]", "FX", "%d", p[1] & 1);
        }
        if (s.ext3) {
            t.rowf("Bit[16]", "AMALGAMATION", "%d", s.ama);
            t.row("Bit[17-18]", "MODE-4", iff_text(s.md4));
            t.rowf("Bit[19]", "MIL_EMERGENCY", "%d", s.me);
            t.rowf("Bit[20]", "MIL_IDENTIFICATION", "%d", s.mi);
            t.row("Bit[21-22]", "MODE-5", iff_text(s.md5));
            t.rowf("Bit[23]", "FX", "%d", p[2] & 1);
        }
        if (s.ext4) {
            t.rowf("Bit[24]", "COASTING", "%d", s.cst);
            t.rowf("Bit[25]", "PSR_COASTING", "%d", s.psr);
            t.rowf("Bit[26]", "SSR_COASTING", "%d", s.ssr);
            t.rowf("Bit[27]", "MODES_COASTING", "%d", s.mds);
            t.rowf("Bit[28]", "ADSB_COASTING", "%d", s.ads);
            t.rowf("Bit[29]", "SPECIAL_MODEA_CODE", "%d", s.suc);
            t.rowf("Bit[30]", "CONFLICT_MODEA_CODE", "%d", s.aac);
            t.rowf("Bit[31]", "FX", "%d", p[3] & 1);
        }
        if (s.ext5) {
            t.row("Bit[32-33]", "SUR_STATUS", kSdsText[s.sds & 3u]);
            t.row("Bit[34-36]", "EMG_STATUS", ast_emergency_status_to_str(ast_emergency_status_from_int(s.ems)));
            t.rowf("Bit[37]", "POTENTIAL_FALSE_TRACK", "%d", s.pft);
            t.rowf("Bit[38]", "FPL_TRACK", "%d", s.fplt);
            t.rowf("Bit[39]", "FX", "%d", p[4] & 1);
        }
        if (s.ext6) {
            t.rowf("Bit[40]", "DUP_MODEA", "%d", s.dupt);
            t.rowf("Bit[41]", "DUP_FP", "%d", s.dupf);
            t.rowf("Bit[42]", "DUP_FP_DUE_TO_MANUAL_CORRELATION", "%d", s.dupm);
            t.rowf("Bit[43]", "SURFACE_TARGET", "%d", s.sfc);
            t.rowf("Bit[44]", "DUP_FLIGHT_ID", "%d", s.idd);
            t.rowf("Bit[45]", "INCONSISTENT_EMG_CODE", "%d", s.iec);
            t.rowf("Bit[46]", "MLAT_COASTING", "%d", s.mlat);
            t.rowf("Bit[47]", "FX", "%d", p[5] & 1);
        }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(062_080, AstItem062_080, ast_dataitem_062_080_decode)

namespace kovrel::fields {

namespace {

using T = AstItem062_080;

const char *src_name(uint32_t v) { return v < 8 ? ast_geometric_altitude_source_to_str(v) : nullptr; }
const char *iff_name(uint32_t v) { return v < 4 ? kIffText[v] : nullptr; }
const char *sds_name(uint32_t v) { return v < 4 ? kSdsText[v] : nullptr; }
const char *ems_name(uint32_t v) { return v < 8 ? ast_emergency_status_to_str(v) : nullptr; }

constexpr Member k2 = KOVREL_MEMBER(T, ext2);
constexpr Member k3 = KOVREL_MEMBER(T, ext3);
constexpr Member k4 = KOVREL_MEMBER(T, ext4);
constexpr Member k5 = KOVREL_MEMBER(T, ext5);
constexpr Member k6 = KOVREL_MEMBER(T, ext6);

constexpr FieldRow kRows[] = {
    flag("mon", KOVREL_MEMBER(T, mon)),
    flag("spi", KOVREL_MEMBER(T, spi)),
    flag("mrh", KOVREL_MEMBER(T, mrh)),
    enumeration("src", KOVREL_MEMBER(T, src), src_name).width(3),
    flag("cnf", KOVREL_MEMBER(T, cnf)),
    flag("sim", KOVREL_MEMBER(T, sim)).when(k2),
    flag("tse", KOVREL_MEMBER(T, tse)).when(k2),
    flag("tsb", KOVREL_MEMBER(T, tsb)).when(k2),
    flag("fpc", KOVREL_MEMBER(T, fpc)).when(k2),
    flag("aff", KOVREL_MEMBER(T, aff)).when(k2),
    flag("stp", KOVREL_MEMBER(T, stp)).when(k2),
    flag("kos", KOVREL_MEMBER(T, kos)).when(k2),
    flag("ama", KOVREL_MEMBER(T, ama)).when(k3),
    enumeration("md4", KOVREL_MEMBER(T, md4), iff_name).width(2).when(k3),
    flag("me", KOVREL_MEMBER(T, me)).when(k3),
    flag("mi", KOVREL_MEMBER(T, mi)).when(k3),
    enumeration("md5", KOVREL_MEMBER(T, md5), iff_name).width(2).when(k3),
    flag("cst", KOVREL_MEMBER(T, cst)).when(k4),
    flag("psr", KOVREL_MEMBER(T, psr)).when(k4),
    flag("ssr", KOVREL_MEMBER(T, ssr)).when(k4),
    flag("mds", KOVREL_MEMBER(T, mds)).when(k4),
    flag("ads", KOVREL_MEMBER(T, ads)).when(k4),
    flag("suc", KOVREL_MEMBER(T, suc)).when(k4),
    flag("aac", KOVREL_MEMBER(T, aac)).when(k4),
    enumeration("sds", KOVREL_MEMBER(T, sds), sds_name).width(2).when(k5),
    enumeration("ems", KOVREL_MEMBER(T, ems), ems_name).width(3).when(k5),
    flag("pft", KOVREL_MEMBER(T, pft)).when(k5),
    flag("fplt", KOVREL_MEMBER(T, fplt)).when(k5),
    flag("dupt", KOVREL_MEMBER(T, dupt)).when(k6),
    flag("dupf", KOVREL_MEMBER(T, dupf)).when(k6),
    flag("dupm", KOVREL_MEMBER(T, dupm)).when(k6),
    flag("sfc", KOVREL_MEMBER(T, sfc)).when(k6),
    flag("idd", KOVREL_MEMBER(T, idd)).when(k6),
    flag("iec", KOVREL_MEMBER(T, iec)).when(k6),
    flag("mlat", KOVREL_MEMBER(T, mlat)).when(k6),
};

}  // namespace

constinit const FieldDesc k062_080 = describe<T, init_valid<T, ast_dataitem_062_080_init>>(kRows);

}  // namespace kovrel::fields
