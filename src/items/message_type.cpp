// Message type: one octet whose meaning each category defines. Categories
// print it through their own enumeration names, so there is no summary here.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/items_ident.h"

namespace {

namespace items = kovrel::items;

constexpr uint64_t kLength = 1;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_message_type_init(AstMessageType *out) {
    if (out) *out = AstMessageType{0, 0};
}

KOVREL_API AstMessageType ast_dataitem_message_type_decode(const AstDataItem *item) {
    AstMessageType out;
    ast_dataitem_message_type_init(&out);
    if (!items::span_ok(item, kLength)) return out;
    out.value = item->data[0];
    out.valid = 1;
    return out;
}

KOVREL_API void ast_dataitem_message_type_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                 const AstMessageType *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1 || in->value > 0xFF) return;
    buffer[0] = static_cast<uint8_t>(in->value);
    items::encode_done(out, buffer, kLength);
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstMessageType;
constexpr FieldRow kMessageTypeRows[] = {
    integer("mt", KOVREL_MEMBER(T, value)).width(8),
};
}  // namespace

constinit const FieldDesc kMessageType = describe<T, init_valid<T, ast_dataitem_message_type_init>>(kMessageTypeRows);

}  // namespace kovrel::fields
