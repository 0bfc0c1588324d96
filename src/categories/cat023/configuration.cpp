// I023/101 Ground Station Configuration: the report period, the service
// class and, in an optional third octet, the service status report period.
// The FX chain starts in octet 2: the report period fills octet 1 whole.
#include <cstdio>

#include "categories/cat023/item_fields.h"
#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat023.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr double kPeriodLsb = 0.5;  // s

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_023_101_init(AstItem023_101 *out) {
    if (out) *out = AstItem023_101{};
}

KOVREL_API void ast_dataitem_023_101_decode(AstItem023_101 *out, const AstDataItem *item) {
    ast_dataitem_023_101_init(out);
    if (!out || !items::span_at_least(item, 2) || item->id != 23101 || item->length > 3) return;
    const uint8_t *d = item->data;
    const bool extended = (d[1] & 0x01u) != 0;
    if (extended != (item->length == 3)) return;
    out->rp_raw = d[0];
    out->rp = d[0] * kPeriodLsb;
    out->sc = d[1] >> 5;
    if (extended) {
        out->ssrp_present = 1;
        out->ssrp = d[2] >> 1;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_023_101_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstItem023_101 *in) {
    const size_t length = in && in->ssrp_present ? 3 : 2;
    if (!items::encode_begin(out, buffer, size, length)) return;
    if (!in || in->valid != 1 || in->rp_raw > 255 || in->sc > 7 || in->ssrp > 127) return;
    buffer[0] = static_cast<uint8_t>(in->rp_raw);
    buffer[1] = static_cast<uint8_t>(in->sc << 5 | (length == 3 ? 1u : 0u));
    if (length == 3) buffer[2] = static_cast<uint8_t>(in->ssrp << 1);
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_023_101_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_101_decode, [](TextWriter &w, const auto &d) {
        if (d.rp_raw == 0)
            w.append("RP:DATA_DRIVEN");
        else
            w.appendf("RP:%gS", d.rp_raw * kPeriodLsb);
        if (d.ssrp_present) w.appendf(" SSRP:%uS", d.ssrp);
    });
}

KOVREL_API void ast_dataitem_023_101_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_023_101_decode, [&item](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Octet", "Bit", "ID", "Name", "Value");
        char value[48];
        if (d.rp_raw == 0)
            std::snprintf(value, sizeof value, "DATA_DRIVEN");
        else
            std::snprintf(value, sizeof value, "%u (%g S)", d.rp_raw, d.rp_raw * kPeriodLsb);
        t.row("Octet[1]", "Bit[1-8]", "RP", "REPORT_PERIOD", value);
        // Service class 0 is any octet 2 below 32 (SC bits clear).
        t.row("Octet[2]", "Bit[1-3]", "SC", "SERVICE_CLASS", d.sc == 0 ? "NONE" : d.sc == 1 ? "NRA" : "RESERVED");
        std::snprintf(value, sizeof value, "%u", static_cast<unsigned>(item->data[1] >> 1 & 0x0Fu));
        t.row("Octet[2]", "Bit[4-7]", "SPARE", "SPARE", value);
        t.row("Octet[2]", "Bit[8]", "FX", "FIELD_EXTENSION_INDICATOR", d.ssrp_present ? "1" : "0");
        if (d.ssrp_present) {
            std::snprintf(value, sizeof value, "%u S", d.ssrp);
            t.row("Octet[3]", "Bit[1-7]", "SSRP", "SERVICE_STATUS_REPORT_PERIOD", value);
            t.row("Octet[3]", "Bit[8]", "FX", "FIELD_EXTENSION_INDICATOR", "0");
        }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(023_101, AstItem023_101, ast_dataitem_023_101_decode)
KOVREL_ENCODE_EX(023_101, AstItem023_101, ast_dataitem_023_101_encode)

namespace kovrel::fields {

namespace {

using T = AstItem023_101;
constexpr FieldRow kRows[] = {
    scaled("rp", KOVREL_MEMBER(T, rp_raw), kPeriodLsb, "s").width(8),
    integer("sc", KOVREL_MEMBER(T, sc)).width(3),
    integer("ssrp", KOVREL_MEMBER(T, ssrp), "s").width(7).when(KOVREL_MEMBER(T, ssrp_present)),
};

}  // namespace

constinit const FieldDesc k023_101 = describe<T, init_valid<T, ast_dataitem_023_101_init>>(kRows);

}  // namespace kovrel::fields
