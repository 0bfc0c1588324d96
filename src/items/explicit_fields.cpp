// Reserved expansion, special purpose and random field sequencing fields:
// items whose first octet is their own length. Their contents belong to
// agreements outside the category, so only the octets are handed out.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/items_mode.h"

namespace {

constexpr uint32_t kRandomFieldSequencing = 997;
constexpr uint32_t kReservedExpansion = 998;
constexpr uint32_t kSpecialPurpose = 999;

void init(AstExplicitField *out) {
    if (out) *out = AstExplicitField{};
}

// Valid for a span of this field (item number `number`) holding at least
// its length octet; the contents are the octets after it.
void decode(AstExplicitField *out, const AstDataItem *item, uint32_t number) {
    if (!out) return;
    *out = AstExplicitField{};
    if (!kovrel::items::span_at_least(item, 1) || item->id % 1000 != number) return;
    out->length = item->length - 1;
    out->data = out->length > 0 ? item->data + 1 : nullptr;
    out->valid = 1;
}

void summary(char *buffer, size_t size, const AstDataItem *item, uint32_t number, const char *text) {
    kovrel::TextWriter w(buffer, size);
    AstExplicitField field;
    decode(&field, item, number);
    if (field.valid == 1) w.append(text);
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_reserved_expansion_field_init(AstReservedExpansionField *out) { init(out); }
KOVREL_API void ast_dataitem_reserved_expansion_field_decode(AstReservedExpansionField *out,
                                                             const AstDataItem *item) {
    decode(out, item, kReservedExpansion);
}
KOVREL_API void ast_dataitem_reserved_expansion_field_get_summary(char *buffer, size_t size,
                                                                  const AstDataItem *item) {
    summary(buffer, size, item, kReservedExpansion, "RESERVED_EXPANSION");
}

KOVREL_API void ast_dataitem_special_purpose_field_init(AstSpecialPurposeField *out) { init(out); }
KOVREL_API void ast_dataitem_special_purpose_field_decode(AstSpecialPurposeField *out, const AstDataItem *item) {
    decode(out, item, kSpecialPurpose);
}
KOVREL_API void ast_dataitem_special_purpose_field_get_summary(char *buffer, size_t size,
                                                               const AstDataItem *item) {
    summary(buffer, size, item, kSpecialPurpose, "SPECIAL_PURPOSE");
}

KOVREL_API void ast_dataitem_random_field_sequencing_init(AstRandomFieldSequencing *out) { init(out); }
KOVREL_API void ast_dataitem_random_field_sequencing_decode(AstRandomFieldSequencing *out,
                                                            const AstDataItem *item) {
    decode(out, item, kRandomFieldSequencing);
}
KOVREL_API void ast_dataitem_random_field_sequencing_get_summary(char *buffer, size_t size,
                                                                 const AstDataItem *item) {
    summary(buffer, size, item, kRandomFieldSequencing, "RANDOM_FIELD_SEQUENCING");
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstExplicitField;
// The contents after the length octet; what they mean is agreed outside
// the category.
constexpr FieldRow kExplicitRows[] = {
    octets_at("data", KOVREL_MEMBER(T, data), KOVREL_MEMBER(T, length)),
};
}  // namespace

constinit const FieldDesc kExplicitField = describe<T, init_valid<T, init>>(kExplicitRows);

}  // namespace kovrel::fields
