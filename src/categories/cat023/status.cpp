// CAT023 status items: the report type's summary (I023/000), the service
// type (I023/015), the ground station status (I023/100), the service status
// (I023/110) and the operational range (I023/200).
#include "categories/cat023/item_fields.h"
#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat023.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr const char *kServiceTypes[10] = {nullptr,     "ADSB_VDL4", "ADSB_ES",   "ADSB_UAT",  "TISB_VDL4",
                                           "TISB_ES",   "TISB_UAT",  "FISB_VDL4", "GRAS_VDL4", "MLT"};
constexpr const char *kServiceStatus[6] = {"UNKNOWN", "FAILED", "DISABLED", "DEGRADED", "NORMAL", "INIT"};

uint8_t bit(uint8_t octet, int n) { return static_cast<uint8_t>(octet >> (n - 1) & 1u); }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_023_000_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_message_type_decode, [](TextWriter &w, const auto &d) {
        switch (d.value) {
            case 1: w.append("RPT_TYPE:STATION_STATUS"); break;
            case 2: w.append("RPT_TYPE:SERVICE_STATUS"); break;
            case 3: w.append("RPT_TYPE:SERVICE_STATISTICS"); break;
            default: w.append("RPT_TYPE:UNDEFINED"); break;
        }
    });
}

KOVREL_API void ast_dataitem_023_015_init(AstItem023_015 *out) {
    if (out) *out = AstItem023_015{};
}

KOVREL_API void ast_dataitem_023_015_decode(AstItem023_015 *out, const AstDataItem *item) {
    ast_dataitem_023_015_init(out);
    if (!out || !items::span_ok(item, 1) || item->id != 23015) return;
    out->sid = item->data[0] >> 4;
    const uint32_t styp = item->data[0] & 0x0Fu;
    out->styp = styp >= 1 && styp <= 9 ? styp : 0;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_023_015_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_015_decode, [](TextWriter &w, const auto &d) {
        w.appendf("SID:%u", d.sid);
        if (d.styp >= 1 && d.styp <= 9) {
            w.append(" STYP:");
            w.append(kServiceTypes[d.styp]);
        }
    });
}

KOVREL_API void ast_dataitem_023_015_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_015_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "ID", "Name", "Value");
        char sid[16];
        std::snprintf(sid, sizeof sid, "%d", static_cast<int>(d.sid));
        t.row("Bit[1-4]", "SID", "SERVICE_IDENTIFICATION", sid);
        t.row("Bit[5-8]", "STYP", "TYPE_OF_SERVICE",
              d.styp >= 1 && d.styp <= 9 ? kServiceTypes[d.styp] : "UNKNOWN");
        t.end();
    });
}

KOVREL_API void ast_dataitem_023_100_init(AstItem023_100 *out) {
    if (out) *out = AstItem023_100{};
}

KOVREL_API void ast_dataitem_023_100_decode(AstItem023_100 *out, const AstDataItem *item) {
    ast_dataitem_023_100_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != 23100) return;
    const uint8_t *d = item->data;
    out->nogo = bit(d[0], 8);
    out->odp = bit(d[0], 7);
    out->oxt = bit(d[0], 6);
    out->msc = bit(d[0], 5);
    // The wire bit says "time source not valid"; the structure keeps validity.
    out->tsv = static_cast<uint8_t>(bit(d[0], 4) ^ 1u);
    out->spo = bit(d[0], 3);
    out->rn = bit(d[0], 2);
    if (item->length > 1) {
        out->gssp_present = 1;
        out->gssp = d[1] >> 1;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_023_100_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_100_decode, [](TextWriter &w, const auto &d) {
        w.append(d.nogo ? "STS:NOGO" : "STS:GO");
        if (d.odp) w.append(" ODP");
        if (d.oxt) w.append(" OXT");
        if (d.msc) w.append(" MSC");
        if (d.tsv) w.append(" TSV");
        if (d.spo) w.append(" SPO");
        if (d.rn) w.append(" RN");
        if (d.gssp) w.appendf(" GSSP:%dS", static_cast<int>(d.gssp));
    });
}

KOVREL_API void ast_dataitem_023_100_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_100_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "ID", "Name", "Value");
        auto flag_row = [&t](const char *bits, const char *id, const char *name, unsigned value) {
            char text[8];
            std::snprintf(text, sizeof text, "%d", static_cast<int>(value));
            t.row(bits, id, name, text);
        };
        flag_row("Bit[1]", "NOGO", "DATA_NOT_USED_OPERATIONALLY", d.nogo);
        flag_row("Bit[2]", "ODP", "DATA_PROCESSOR_OVERLOAD", d.odp);
        flag_row("Bit[3]", "OXT", "DATA_COMMUNICATION_OVERLOAD", d.oxt);
        flag_row("Bit[4]", "MSC", "MONITORING_SYSTEM_CONNECTED", d.msc);
        flag_row("Bit[5]", "TSV", "TIME_SOURCE_VALID", d.tsv);
        flag_row("Bit[6]", "SPO", "POTENTIAL_SPOOFING_ATTACK", d.spo);
        flag_row("Bit[7]", "RN", "TRACK_NUMBERING_RESTARTED", d.rn);
        flag_row("Bit[8]", "FX", "FIELD_EXTENSION_INDICATOR", d.gssp_present);
        if (d.gssp_present) {
            flag_row("Bit[9-15]", "GSSP", "STATUS_REPORT_PERIOD", d.gssp);
            flag_row("Bit[16]", "FX", "FIELD_EXTENSION_INDICATOR", 0);
        }
        t.end();
    });
}

KOVREL_API void ast_dataitem_023_110_init(AstItem023_110 *out) {
    if (out) *out = AstItem023_110{};
}

KOVREL_API void ast_dataitem_023_110_decode(AstItem023_110 *out, const AstDataItem *item) {
    ast_dataitem_023_110_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != 23110) return;
    out->stat = item->data[0] >> 1 & 7u;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_023_110_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstItem023_110 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->stat > 7) return;
    buffer[0] = static_cast<uint8_t>(in->stat << 1);
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_023_110_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_110_decode, [](TextWriter &w, const auto &d) {
        w.append(d.stat <= 5 ? kServiceStatus[d.stat] : "RESERVED");
    });
}

KOVREL_API void ast_dataitem_023_200_init(AstItem023_200 *out) {
    if (out) *out = AstItem023_200{};
}

KOVREL_API void ast_dataitem_023_200_decode(AstItem023_200 *out, const AstDataItem *item) {
    ast_dataitem_023_200_init(out);
    if (!out || !items::span_ok(item, 1) || item->id != 23200) return;
    out->value = item->data[0];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_023_200_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstItem023_200 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->value > 255) return;
    buffer[0] = static_cast<uint8_t>(in->value);
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_023_200_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_200_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("RNG:%uNM", d.value); });
}

KOVREL_API void ast_dataitem_023_200_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_200_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "ID", "Name", "Value");
        char range[16];
        std::snprintf(range, sizeof range, "%u NM", d.value);
        t.row("Bit[1-8]", "RNG", "OPERATIONAL_RANGE", range);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(023_015, AstItem023_015, ast_dataitem_023_015_decode)
KOVREL_DECODE_EX(023_100, AstItem023_100, ast_dataitem_023_100_decode)
KOVREL_DECODE_EX(023_110, AstItem023_110, ast_dataitem_023_110_decode)
KOVREL_ENCODE_EX(023_110, AstItem023_110, ast_dataitem_023_110_encode)
KOVREL_DECODE_EX(023_200, AstItem023_200, ast_dataitem_023_200_decode)
KOVREL_ENCODE_EX(023_200, AstItem023_200, ast_dataitem_023_200_encode)

namespace kovrel::fields {

namespace {

using T015 = AstItem023_015;
constexpr FieldRow k015Rows[] = {
    integer("sid", KOVREL_MEMBER(T015, sid)).width(4),
    integer("styp", KOVREL_MEMBER(T015, styp)).width(4),
};

using T100 = AstItem023_100;
constexpr FieldRow k100Rows[] = {
    flag("nogo", KOVREL_MEMBER(T100, nogo)),
    flag("odp", KOVREL_MEMBER(T100, odp)),
    flag("oxt", KOVREL_MEMBER(T100, oxt)),
    flag("msc", KOVREL_MEMBER(T100, msc)),
    flag("tsv", KOVREL_MEMBER(T100, tsv)).inverted(),
    flag("spo", KOVREL_MEMBER(T100, spo)),
    flag("rn", KOVREL_MEMBER(T100, rn)),
    integer("gssp", KOVREL_MEMBER(T100, gssp), "s").width(7).when(KOVREL_MEMBER(T100, gssp_present)),
};

using T110 = AstItem023_110;
constexpr FieldRow k110Rows[] = {integer("stat", KOVREL_MEMBER(T110, stat)).width(3)};

using T200 = AstItem023_200;
constexpr FieldRow k200Rows[] = {integer("value", KOVREL_MEMBER(T200, value), "NM").width(8)};

}  // namespace

constinit const FieldDesc k023_015 = describe<T015, init_valid<T015, ast_dataitem_023_015_init>>(k015Rows);
constinit const FieldDesc k023_100 = describe<T100, init_valid<T100, ast_dataitem_023_100_init>>(k100Rows);
constinit const FieldDesc k023_110 = describe<T110, init_valid<T110, ast_dataitem_023_110_init>>(k110Rows);
constinit const FieldDesc k023_200 = describe<T200, init_valid<T200, ast_dataitem_023_200_init>>(k200Rows);

}  // namespace kovrel::fields
