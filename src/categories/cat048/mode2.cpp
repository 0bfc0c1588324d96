// I048/050 Mode-2 Code in Octal Representation: the 12-bit code and its
// validation, garbling and smoothing flags.
#include "categories/cat048/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat048.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId = 48050;
constexpr uint64_t kLength = 2;
constexpr uint32_t kMaxCode = 07777;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_050_init(AstItem048_050 *out) {
    if (out) *out = AstItem048_050{};
}

KOVREL_API void ast_dataitem_048_050_decode(AstItem048_050 *out, const AstDataItem *item) {
    ast_dataitem_048_050_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != kId) return;
    const uint8_t *p = item->data;
    out->v = p[0] >> 7;
    out->g = (p[0] >> 6) & 1u;
    out->l = (p[0] >> 5) & 1u;
    out->code = (static_cast<uint32_t>(p[0] & 0x0Fu) << 8) | p[1];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_048_050_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_050 *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1 || in->code > kMaxCode) return;
    buffer[0] = static_cast<uint8_t>((in->v ? 0x80u : 0u) | (in->g ? 0x40u : 0u) | (in->l ? 0x20u : 0u) |
                                     (in->code >> 8));
    buffer[1] = static_cast<uint8_t>(in->code & 0xFFu);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_048_050_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_050_decode, [](TextWriter &w, const auto &c) {
        w.append("MODE_2:");
        w.append_octal(c.code, 4);
        if (c.v) w.append(" NOT_VALIDATED");
        if (c.g) w.append(" GARBLED");
        if (c.l) w.append(" SMOOTHED");
    });
}

KOVREL_API void ast_dataitem_048_050_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_050_decode, [](TextWriter &w, const auto &c) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "NOT_VALIDATED", "%d", c.v);
        t.rowf("Bit[1]", "GARBLED", "%d", c.g);
        t.rowf("Bit[2]", "SMOOTHED", "%d", c.l);
        t.rowf("Bit[4-15]", "MODE_2_CODE", "%04o", c.code);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(048_050, AstItem048_050, ast_dataitem_048_050_decode)
KOVREL_ENCODE_EX(048_050, AstItem048_050, ast_dataitem_048_050_encode)

namespace kovrel::fields {

namespace {

using T = AstItem048_050;

// V is kept as the wire has it: 1 when the code is not validated.
constexpr FieldRow kRows[] = {
    flag("v", KOVREL_MEMBER(T, v)),
    flag("g", KOVREL_MEMBER(T, g)),
    flag("l", KOVREL_MEMBER(T, l)),
    integer("mode2", KOVREL_MEMBER(T, code)).width(12).shown(AST_FIELD_FORMAT_OCTAL4),
};

}  // namespace

constinit const FieldDesc k048_050 = describe<T, init_valid<T, ast_dataitem_048_050_init>>(kRows);

}  // namespace kovrel::fields
