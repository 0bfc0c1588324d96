// Service identification: one octet naming the service a report belongs to.
// Same layout as the message type, with a summary of its own.
#include "items/ident_support.h"
#include "kovrel/items_ident.h"

namespace {
constexpr uint64_t kLength = 1;
}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_service_id_init(AstServiceId *out) {
    if (out) *out = AstServiceId{0, 0};
}

KOVREL_API void ast_dataitem_service_id_decode(AstServiceId *out, const AstDataItem *item) {
    if (!out) return;
    ast_dataitem_service_id_init(out);
    if (!kovrel::ident::span_ok(item, kLength)) return;
    out->value = item->data[0];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_service_id_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstServiceId *in) {
    if (!out) return;
    kovrel::ident::encode_failed(out, buffer);
    if (!in || !buffer || size < kLength || in->valid != 1 || in->value > 0xFF) return;
    buffer[0] = static_cast<uint8_t>(in->value);
    kovrel::ident::encoded(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_service_id_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    AstServiceId svc;
    ast_dataitem_service_id_decode(&svc, item);
    if (!svc.valid) return;
    w.appendf("SVC_ID:%03d", static_cast<int>(svc.value));
}

}  // extern "C"
