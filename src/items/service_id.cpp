// Service identification: one octet naming the service a report belongs to.
// Same layout as the message type, with a summary of its own.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/items_ident.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 1;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_service_id_init(AstServiceId *out) {
    if (out) *out = AstServiceId{0, 0};
}

KOVREL_API void ast_dataitem_service_id_decode(AstServiceId *out, const AstDataItem *item) {
    if (!out) return;
    ast_dataitem_service_id_init(out);
    if (!items::span_ok(item, kLength)) return;
    out->value = item->data[0];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_service_id_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstServiceId *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1 || in->value > 0xFF) return;
    buffer[0] = static_cast<uint8_t>(in->value);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_service_id_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_service_id_decode,
                    [](TextWriter &w, const auto &svc) { w.appendf("SVC_ID:%03d", static_cast<int>(svc.value)); });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstServiceId;
constexpr FieldRow kServiceRows[] = {
    integer("sid", KOVREL_MEMBER(T, value)).width(8),
};
}  // namespace

constinit const FieldDesc kServiceId = describe<T, init_valid<T, ast_dataitem_service_id_init>>(kServiceRows);

}  // namespace kovrel::fields
