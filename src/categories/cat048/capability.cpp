// I048/230 Communications / ACAS Capability and Flight Status of a Mode S
// transponder.
#include "categories/cat048/item_fields.h"
#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat048.h"
#include "kovrel/core.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 48230;
constexpr uint64_t kLength = 2;
constexpr uint32_t kComUndefined = 7;
constexpr uint32_t kStatUndefined = 8;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_230_init(AstItem048_230 *out) {
    if (!out) return;
    *out = AstItem048_230{};
    out->com = kComUndefined;
    out->stat = kStatUndefined;
}

KOVREL_API void ast_dataitem_048_230_decode(AstItem048_230 *out, const AstDataItem *item) {
    ast_dataitem_048_230_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kId) return;
    const uint8_t *p = item->data;
    out->com = ast_transponder_comm_cap_from_int(p[0] >> 5);
    out->stat = ast_radar_flight_status_from_int((p[0] >> 2) & 7u);
    // Undefined codes are kept as they fold; they only warn.
    if (out->com == kComUndefined) ast_log(AST_LOG_WARNING, "I048/230: Communication Capability Undefined.");
    if (out->stat == kStatUndefined) ast_log(AST_LOG_WARNING, "I048/230: Flight Status Undefined.");
    out->mssc = p[1] >> 7;
    out->arc = (p[1] >> 6) & 1u;
    out->aic = (p[1] >> 5) & 1u;
    out->b1a = (p[1] >> 4) & 1u;
    out->b1b = p[1] & 0x0Fu;
    out->si = (p[0] >> 1) & 1u;
    out->valid = 1;
}

// The summary decodes the item, so it issues the same warnings as decoding.
KOVREL_API void ast_dataitem_048_230_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_230_decode, [](TextWriter &w, const auto &c) {
        w.append("FS:");
        w.append(ast_radar_flight_status_to_str(c.stat));
    });
}

KOVREL_API void ast_dataitem_048_230_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_230_decode, [](TextWriter &w, const auto &c) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0-2]", "COMMUNICATION_CAPABILITY", ast_transponder_comm_cap_to_str(c.com));
        t.row("Bit[3-5]", "FLIGHT_STATUS", ast_radar_flight_status_to_str(c.stat));
        t.rowf("Bit[8]", "MODE_S_SPECIFIC_SERVICE", "%d", c.mssc);
        t.row("Bit[9]", "ALTITUDE_REPORTING", c.arc ? "25FT" : "100FT");
        t.rowf("Bit[10]", "AIRCRAFT_IDENTIFICATION", "%d", c.aic);
        t.rowf("Bit[11]", "BDS_1,0_BIT_16", "%d", c.b1a);
        t.rowf("Bit[12-15]", "BDS_1,0_BITS_37-40", "%u", static_cast<unsigned>(c.b1b));
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(048_230, AstItem048_230, ast_dataitem_048_230_decode)

namespace kovrel::fields {

namespace {

using T = AstItem048_230;

// COM and STAT are kept as their conversions fold them: STAT is 8 for the
// wire codes 6 and 7, which takes four bits.
constexpr FieldRow kRows[] = {
    enumeration("com", KOVREL_MEMBER(T, com), ast_transponder_comm_cap_to_str).width(3),
    enumeration("stat", KOVREL_MEMBER(T, stat), ast_radar_flight_status_to_str).width(4),
    flag("si", KOVREL_MEMBER(T, si)),
    flag("mssc", KOVREL_MEMBER(T, mssc)),
    flag("arc", KOVREL_MEMBER(T, arc)),
    flag("aic", KOVREL_MEMBER(T, aic)),
    flag("b1a", KOVREL_MEMBER(T, b1a)),
    integer("b1b", KOVREL_MEMBER(T, b1b)).width(4),
};

}  // namespace

constinit const FieldDesc k048_230 = describe<T, init_valid<T, ast_dataitem_048_230_init>>(kRows);

}  // namespace kovrel::fields
