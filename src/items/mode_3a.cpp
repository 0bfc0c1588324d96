// Mode 3/A (and Mode 2) code and the Mode 3/A code confidence.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "items/mode_support.h"
#include "kovrel/items_mode.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 2;

// I062/120 carries the Mode 2 code without flags; I001/050 is a Mode 2 code
// with the usual flags; I062/060 reads bit 6 as "code changed".
constexpr uint32_t kMode2NoFlags = 62120;
constexpr uint32_t kMode2 = 1050;
constexpr uint32_t kMode3aChanged = 62060;

// Octal digits A, B, C, D of a 12-bit code.
unsigned digit(uint32_t code, int index) { return (code >> (9 - 3 * index)) & 07u; }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_mode_3a_code_init(AstMode3aCode *out) {
    if (out) *out = AstMode3aCode{};
}

KOVREL_API void ast_dataitem_mode_3a_code_decode(AstMode3aCode *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstMode3aCode{};
    if (!items::span_ok(item, kLength)) return;
    const uint8_t *p = item->data;
    out->v = (p[0] >> 7) & 1u;
    out->g = (p[0] >> 6) & 1u;
    out->l = (p[0] >> 5) & 1u;
    out->changed = out->l;
    out->code = (static_cast<uint32_t>(p[0] & 0x0Fu) << 8) | p[1];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_mode_3a_code_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                 const AstMode3aCode *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    // Callers that keep codes in signed integers mark "no code" as negative.
    if (!in || in->valid != 1 || static_cast<int32_t>(in->code) < 0) return;
    buffer[0] = static_cast<uint8_t>((in->v ? 0x80u : 0u) | (in->g ? 0x40u : 0u) |
                                     ((in->l || in->changed) ? 0x20u : 0u) | ((in->code >> 8) & 0x0Fu));
    buffer[1] = static_cast<uint8_t>(in->code & 0xFFu);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_mode_3a_code_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_mode_3a_code_decode, [item](TextWriter &w, const auto &c) {
        if (item->id == kMode2NoFlags) {
            w.append("MODE_2:");
            w.append_octal(c.code, 4);
            return;
        }
        w.append(item->id == kMode2 ? "MODE_2:" : "MODE_3/A:");
        w.append_octal(c.code, 4);
        if (c.v) w.append(" NOT_VALIDATED");
        if (c.g) w.append(" GARBLED");
        if (item->id == kMode3aChanged) {
            if (c.changed) w.append(" CHANGED");
        } else if (c.l) {
            w.append(" SMOOTHED");
        }
    });
}

KOVREL_API void ast_dataitem_mode_3a_code_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_mode_3a_code_decode, [item](TextWriter &w, const auto &c) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "NOT_VALIDATED", "%d", c.v);
        t.rowf("Bit[1]", "GARBLED", "%d", c.g);
        // Mode 2 items have no third flag row.
        if (item->id == kMode3aChanged)
            t.rowf("Bit[2]", "CHANGED", "%d", c.changed);
        else if (item->id != kMode2NoFlags && item->id != kMode2)
            t.rowf("Bit[2]", "SMOOTHED", "%d", c.l);
        t.rowf("Bit[4-6]", "CODE-A", "%o", digit(c.code, 0));
        t.rowf("Bit[7-9]", "CODE-B", "%o", digit(c.code, 1));
        t.rowf("Bit[10-12]", "CODE-C", "%o", digit(c.code, 2));
        t.rowf("Bit[13-15]", "CODE-D", "%o", digit(c.code, 3));
        t.end();
    });
}

KOVREL_API void ast_dataitem_mode_3a_confidence_init(AstMode3aConfidence *out) {
    if (out) *out = AstMode3aConfidence{};
}

KOVREL_API void ast_dataitem_mode_3a_confidence_decode(AstMode3aConfidence *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstMode3aConfidence{};
    if (!items::span_ok(item, kLength)) return;
    const uint32_t bits = (static_cast<uint32_t>(item->data[0] & 0x0Fu) << 8) | item->data[1];
    uint8_t *flags[12] = {&out->qa4, &out->qa2, &out->qa1, &out->qb4, &out->qb2, &out->qb1,
                          &out->qc4, &out->qc2, &out->qc1, &out->qd4, &out->qd2, &out->qd1};
    for (int i = 0; i < 12; ++i) *flags[i] = (bits >> (11 - i)) & 1u;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_mode_3a_confidence_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                       const AstMode3aConfidence *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    const uint8_t flags[12] = {in->qa4, in->qa2, in->qa1, in->qb4, in->qb2, in->qb1,
                               in->qc4, in->qc2, in->qc1, in->qd4, in->qd2, in->qd1};
    uint32_t bits = 0;
    for (int i = 0; i < 12; ++i) bits = (bits << 1) | (flags[i] ? 1u : 0u);
    buffer[0] = static_cast<uint8_t>(bits >> 8);
    buffer[1] = static_cast<uint8_t>(bits & 0xFFu);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_mode_3a_confidence_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_mode_3a_confidence_decode,
                    [](TextWriter &w, const auto &q) { items::append_quality(w, q); });
}

KOVREL_API void ast_dataitem_mode_3a_confidence_get_detail_html(char *buffer, size_t size,
                                                                const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_mode_3a_confidence_decode, [](TextWriter &w, const auto &q) {
        static const char *const bits[12] = {"Bit[4]",  "Bit[5]",  "Bit[6]",  "Bit[7]",  "Bit[8]",  "Bit[9]",
                                             "Bit[10]", "Bit[11]", "Bit[12]", "Bit[13]", "Bit[14]", "Bit[15]"};
        static const char *const names[12] = {"QA4", "QA2", "QA1", "QB4", "QB2", "QB1",
                                              "QC4", "QC2", "QC1", "QD4", "QD2", "QD1"};
        const uint8_t flags[12] = {q.qa4, q.qa2, q.qa1, q.qb4, q.qb2, q.qb1,
                                   q.qc4, q.qc2, q.qc1, q.qd4, q.qd2, q.qd1};
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        for (int i = 0; i < 12; ++i) t.rowf(bits[i], names[i], "%d", flags[i]);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using C = AstMode3aCode;
constexpr FieldRow kV = flag("v", KOVREL_MEMBER(C, v));
constexpr FieldRow kG = flag("g", KOVREL_MEMBER(C, g));
constexpr FieldRow kL = flag("l", KOVREL_MEMBER(C, l));
constexpr FieldRow kCode3a = integer("mode3a", KOVREL_MEMBER(C, code)).width(12).shown(AST_FIELD_FORMAT_OCTAL4);
constexpr FieldRow kCode2 = integer("mode2", KOVREL_MEMBER(C, code)).width(12).shown(AST_FIELD_FORMAT_OCTAL4);

// Items whose top four bits are spare (I021/070, I062/120) show the flags
// too: the decoder reads those bits as flags and the encoder writes them
// back, so only with the flags does such an item encode as it arrived.
constexpr FieldRow kMode3aRows[] = {kV, kG, kL, kCode3a};
constexpr FieldRow kMode2Rows[] = {kV, kG, kL, kCode2};
// Bit 6 as "code changed": the decoder fills both members alike and the
// encoder sets the bit for either, so `changed` alone stands for it.
constexpr FieldRow kChangedRows[] = {kV, kG, flag("ch", KOVREL_MEMBER(C, changed)), kCode3a};

using Q = AstMode3aConfidence;
constexpr FieldRow kConfidenceRows[] = {
    flag("qa4", KOVREL_MEMBER(Q, qa4)), flag("qa2", KOVREL_MEMBER(Q, qa2)), flag("qa1", KOVREL_MEMBER(Q, qa1)),
    flag("qb4", KOVREL_MEMBER(Q, qb4)), flag("qb2", KOVREL_MEMBER(Q, qb2)), flag("qb1", KOVREL_MEMBER(Q, qb1)),
    flag("qc4", KOVREL_MEMBER(Q, qc4)), flag("qc2", KOVREL_MEMBER(Q, qc2)), flag("qc1", KOVREL_MEMBER(Q, qc1)),
    flag("qd4", KOVREL_MEMBER(Q, qd4)), flag("qd2", KOVREL_MEMBER(Q, qd2)), flag("qd1", KOVREL_MEMBER(Q, qd1)),
};
}  // namespace

constinit const FieldDesc kMode3aCode = describe<C, init_valid<C, ast_dataitem_mode_3a_code_init>>(kMode3aRows);
constinit const FieldDesc kMode3aCodeChanged = describe<C, init_valid<C, ast_dataitem_mode_3a_code_init>>(kChangedRows);
constinit const FieldDesc kMode2Code = describe<C, init_valid<C, ast_dataitem_mode_3a_code_init>>(kMode2Rows);
constinit const FieldDesc kMode3aConfidence =
    describe<Q, init_valid<Q, ast_dataitem_mode_3a_confidence_init>>(kConfidenceRows);

}  // namespace kovrel::fields
