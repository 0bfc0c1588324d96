// I063/060 Sensor Configuration and Status: the connection state of the
// sensor, the NOGO flags of its parts and, in a second octet, the overload
// and time-source flags.
#include "categories/cat063/status.h"

#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat063.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 63060;

// The third state is spelled with STS: consumers match on these exact words.
constexpr const char *kConSummary[4] = {"CON:OPE", "CON:DGD", "STS:INI", "CON:DIS"};
// "INITLIZATION" is the text existing displays show.
constexpr const char *kConDetail[4] = {"OPERATIONAL", "DEGRADED", "INITLIZATION", "NOT_CONNECTED"};

uint8_t bit(uint8_t octet, int n) { return static_cast<uint8_t>(octet >> (n - 1) & 1u); }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_063_060_init(AstItem063_060 *out) {
    if (out) *out = AstItem063_060{};
}

KOVREL_API void ast_dataitem_063_060_decode(AstItem063_060 *out, const AstDataItem *item) {
    ast_dataitem_063_060_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kId) return;
    const uint8_t *d = item->data;
    out->con = d[0] >> 6;
    out->psr = bit(d[0], 6);
    out->ssr = bit(d[0], 5);
    out->mds = bit(d[0], 4);
    out->ads = bit(d[0], 3);
    out->mlt = bit(d[0], 2);
    if (item->length > 1) {
        out->fx = 1;
        out->ops = bit(d[1], 8);
        out->odp = bit(d[1], 7);
        out->oxt = bit(d[1], 6);
        out->msc = bit(d[1], 5);
        out->tsv = bit(d[1], 4);
        out->npw = bit(d[1], 3);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_063_060_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_063_060_decode, [](TextWriter &w, const auto &d) {
        w.append(kConSummary[d.con & 3u]);
        if (d.odp) w.append(" ODP");
        if (d.oxt) w.append(" OXT");
        if (d.tsv) w.append(" TSV");
    });
}

KOVREL_API void ast_dataitem_063_060_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_063_060_decode, [](TextWriter &w, const auto &d) {
        auto go = [](uint8_t nogo) { return nogo ? "NOGO" : "GO"; };
        auto yes = [](uint8_t set) { return set ? "YES" : "NO"; };
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0-1]", "CON", kConDetail[d.con & 3u]);
        t.row("Bit[2]", "PSR", go(d.psr));
        t.row("Bit[3]", "SSR", go(d.ssr));
        t.row("Bit[4]", "MDS", go(d.mds));
        t.row("Bit[5]", "ADS", go(d.ads));
        t.row("Bit[6]", "MLT", go(d.mlt));
        t.rowf("Bit[7]", "FX", "%d", d.fx);
        if (d.fx) {
            t.row("Bit[8]", "OPS", yes(d.ops));
            t.row("Bit[9]", "ODP", yes(d.odp));
            t.row("Bit[10]", "OXT", yes(d.oxt));
            t.row("Bit[11]", "MSC", yes(d.msc));
            t.row("Bit[12]", "TSV", yes(d.tsv));
            t.row("Bit[13]", "NPW", yes(d.npw));
        }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(063_060, AstItem063_060, ast_dataitem_063_060_decode)

namespace kovrel::fields {

namespace {

using T = AstItem063_060;
constexpr FieldRow kRows[] = {
    integer("con", KOVREL_MEMBER(T, con)).width(2),
    flag("psr", KOVREL_MEMBER(T, psr)),
    flag("ssr", KOVREL_MEMBER(T, ssr)),
    flag("mds", KOVREL_MEMBER(T, mds)),
    flag("ads", KOVREL_MEMBER(T, ads)),
    flag("mlt", KOVREL_MEMBER(T, mlt)),
    flag("ops", KOVREL_MEMBER(T, ops)).when(KOVREL_MEMBER(T, fx)),
    flag("odp", KOVREL_MEMBER(T, odp)).when(KOVREL_MEMBER(T, fx)),
    flag("oxt", KOVREL_MEMBER(T, oxt)).when(KOVREL_MEMBER(T, fx)),
    flag("msc", KOVREL_MEMBER(T, msc)).when(KOVREL_MEMBER(T, fx)),
    flag("tsv", KOVREL_MEMBER(T, tsv)).when(KOVREL_MEMBER(T, fx)),
    flag("npw", KOVREL_MEMBER(T, npw)).when(KOVREL_MEMBER(T, fx)),
};

}  // namespace

constinit const FieldDesc k063_060 = describe<T, init_valid<T, ast_dataitem_063_060_init>>(kRows);

}  // namespace kovrel::fields
