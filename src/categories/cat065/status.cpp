// CAT065 items of the processing system's own status: the message type's
// summary (I065/000), the batch number (I065/020) and the configuration and
// status of the processing system (I065/040).
#include "categories/cat065/status.h"

#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat065.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr const char *kNogoSummary[4] = {"STS:OPE", "STS:DGD", "STS:DIS", "STS:UKN"};
constexpr const char *kNogoDetail[4] = {"OPERATIONAL", "DEGRADED", "NOT_CONNECTED", "UNKNOWN"};

bool one_octet(const AstDataItem *item, AstItemId id) { return items::span_ok(item, 1) && item->id == id; }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_065_000_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_message_type_decode, [](TextWriter &w, const auto &d) {
        switch (d.value) {
            case 1: w.append("MSG_TYPE:SDPS_STATUS"); break;
            case 2: w.append("MSG_TYPE:END_OF_BATCH"); break;
            case 3: w.append("MSG_TYPE:SVC_STATUS_REPORT"); break;
            default: w.append("MSG_TYPE:UNDEFINED"); break;
        }
    });
}

KOVREL_API void ast_dataitem_065_020_init(AstItem065_020 *out) {
    if (out) *out = AstItem065_020{};
}

KOVREL_API void ast_dataitem_065_020_decode(AstItem065_020 *out, const AstDataItem *item) {
    ast_dataitem_065_020_init(out);
    if (!out || !one_octet(item, 65020)) return;
    out->value = item->data[0];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_065_020_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_065_020_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("BAT:%d", static_cast<int>(d.value)); });
}

KOVREL_API void ast_dataitem_065_040_init(AstItem065_040 *out) {
    if (out) *out = AstItem065_040{};
}

KOVREL_API void ast_dataitem_065_040_decode(AstItem065_040 *out, const AstDataItem *item) {
    ast_dataitem_065_040_init(out);
    if (!out || !one_octet(item, 65040)) return;
    const uint8_t o = item->data[0];
    out->nogo = o >> 6;
    out->ovl = o >> 5 & 1u;
    out->tsv = o >> 4 & 1u;
    out->pss = o >> 2 & 3u;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_065_040_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_065_040_decode, [](TextWriter &w, const auto &d) {
        w.append(kNogoSummary[d.nogo & 3u]);
        if (d.ovl) w.append(" OVL");
        if (d.tsv) w.append(" TSV");
        if (d.pss) w.appendf(" SDPS-%d", static_cast<int>(d.pss));
    });
}

KOVREL_API void ast_dataitem_065_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_065_040_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[1-2]", "NOGO", kNogoDetail[d.nogo & 3u]);
        // The labels overlap ("Bit[1-2]", then "Bit[2]"): displays key on them.
        t.row("Bit[2]", "OVL", d.ovl ? "YES" : "NO");
        t.row("Bit[3]", "TSV", d.tsv ? "YES" : "NO");
        if (d.pss)
            t.rowf("Bit[4-5]", "PSS", "SDPS-%d", static_cast<int>(d.pss));
        else
            t.row("Bit[4-5]", "PSS", "N/A");
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(065_020, AstItem065_020, ast_dataitem_065_020_decode)
KOVREL_DECODE_EX(065_040, AstItem065_040, ast_dataitem_065_040_decode)

namespace kovrel::fields {

namespace {

using T020 = AstItem065_020;
constexpr FieldRow k020Rows[] = {integer("value", KOVREL_MEMBER(T020, value)).width(8)};

using T040 = AstItem065_040;
constexpr FieldRow k040Rows[] = {
    integer("nogo", KOVREL_MEMBER(T040, nogo)).width(2),
    flag("ovl", KOVREL_MEMBER(T040, ovl)),
    flag("tsv", KOVREL_MEMBER(T040, tsv)),
    integer("pss", KOVREL_MEMBER(T040, pss)).width(2),
};

}  // namespace

constinit const FieldDesc k065_020 = describe<T020, init_valid<T020, ast_dataitem_065_020_init>>(k020Rows);
constinit const FieldDesc k065_040 = describe<T040, init_valid<T040, ast_dataitem_065_040_init>>(k040Rows);

}  // namespace kovrel::fields
