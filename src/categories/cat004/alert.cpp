// CAT004 items of the alert itself: the safety-net message type's views
// (I004/000), the alert identifier (I004/040) and the status of the
// safety-net functions (I004/060).
#include "categories/cat004/item_fields.h"
#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat004.h"
#include "kovrel/core.h"
#include "kovrel/enums.h"
#include "kovrel/html.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

// The functions of I004/060's first octet, bit 8 first. Minimum radar
// vectoring altitude is message type 201: its bit came after the first
// hundred message types were given out.
constexpr uint32_t kFunctionTypes[7] = {201, 2, 3, 4, 5, 6, 7};

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_004_000_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_message_type_decode, [](TextWriter &w, const auto &d) {
        w.append("MSG_TYPE:");
        w.append(ast_snet_message_type_get_id(d.value));
    });
}

KOVREL_API void ast_dataitem_004_000_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_message_type_decode, [](TextWriter &w, const auto &d) {
        ast_html_gen_para(w.end(), w.end_size(), "Message type: %s (%s)", ast_snet_message_type_get_id(d.value),
                          ast_snet_message_type_get_name(d.value));
        w.resync();
    });
}

KOVREL_API void ast_dataitem_004_040_init(AstItem004_040 *out) {
    if (out) *out = AstItem004_040{};
}

KOVREL_API void ast_dataitem_004_040_decode(AstItem004_040 *out, const AstDataItem *item) {
    ast_dataitem_004_040_init(out);
    if (!out || !items::span_ok(item, 2)) return;
    out->value = static_cast<uint32_t>(item->data[0]) << 8 | item->data[1];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_004_040_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstItem004_040 *in) {
    if (!items::encode_begin(out, buffer, size, 2)) return;
    if (!in || in->valid != 1 || in->value > 0xFFFFu) return;
    buffer[0] = static_cast<uint8_t>(in->value >> 8);
    buffer[1] = static_cast<uint8_t>(in->value);
    items::encode_done(out, buffer, 2);
}

KOVREL_API void ast_dataitem_004_040_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_004_040_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("ALERT_ID:%04d", static_cast<int>(d.value)); });
}

KOVREL_API void ast_dataitem_004_060_init(AstItem004_060 *out) {
    if (out) *out = AstItem004_060{};
}

KOVREL_API void ast_dataitem_004_060_decode(AstItem004_060 *out, const AstDataItem *item) {
    ast_dataitem_004_060_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != 4060) return;
    // Every octet of the chain announces seven functions; only the first
    // octet's are read.
    out->count = static_cast<uint32_t>(item->length * 7 > 0xFFFFFFFFu ? 0xFFFFFFFFu : item->length * 7);
    if (item->length > 1) ast_log(AST_LOG_DEBUG, "Unimplemented octects detected in I004/060");
    for (int i = 0; i < 7; ++i) {
        out->functions[i].type = kFunctionTypes[i];
        out->functions[i].activated = static_cast<uint8_t>(item->data[0] >> (7 - i) & 1u);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_004_060_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_004_060_decode, [](TextWriter &w, const auto &d) {
        size_t active = 0;
        for (const AstSnetFunction &f : d.functions) active += f.activated;
        w.append("FUNCTIONS:");
        w.append_uint(active);
    });
}

KOVREL_API void ast_dataitem_004_060_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_004_060_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Function", "Name", "Status");
        for (const AstSnetFunction &f : d.functions)
            t.row(ast_snet_message_type_get_id(f.type), ast_snet_message_type_get_name(f.type),
                  f.activated ? "ACTIVATED" : "-");
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(004_040, AstItem004_040, ast_dataitem_004_040_decode)
KOVREL_ENCODE_EX(004_040, AstItem004_040, ast_dataitem_004_040_encode)
KOVREL_DECODE_EX(004_060, AstItem004_060, ast_dataitem_004_060_decode)

namespace kovrel::fields {

namespace {

using T040 = AstItem004_040;
constexpr FieldRow k040Rows[] = {integer("value", KOVREL_MEMBER(T040, value)).width(16)};

using T060 = AstItem004_060;
#define KOVREL_FUNCTION(NAME, I) flag(NAME, KOVREL_MEMBER(T060, functions[I].activated))
constexpr FieldRow k060Rows[] = {
    integer("count", KOVREL_MEMBER(T060, count)),
    KOVREL_FUNCTION("mrva", 0), KOVREL_FUNCTION("ramld", 1), KOVREL_FUNCTION("ramhd", 2),
    KOVREL_FUNCTION("msaw", 3), KOVREL_FUNCTION("apw", 4),   KOVREL_FUNCTION("clam", 5),
    KOVREL_FUNCTION("stca", 6),
};
#undef KOVREL_FUNCTION

}  // namespace

constinit const FieldDesc k004_040 = describe<T040, init_valid<T040, ast_dataitem_004_040_init>>(k040Rows);
constinit const FieldDesc k004_060 = describe<T060, init_valid<T060, ast_dataitem_004_060_init>>(k060Rows);

}  // namespace kovrel::fields
