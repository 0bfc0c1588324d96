// I240/000 Message Type (its summary), I240/020 Video Record Header and
// I240/030 Video Summary.
#include <cstring>

#include "categories/cat240/video_state.h"
#include "items/item_ex.h"
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/html.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kId000 = 240000;
constexpr AstItemId kId020 = 240020;
constexpr AstItemId kId030 = 240030;
// A summary shows this many characters of a longer video summary text.
constexpr uint32_t kSummaryChars = 16;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_240_000_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    TextWriter w(buffer, size);
    if (!item || item->id != kId000) return;
    const AstMessageType t = ast_dataitem_message_type_decode(item);
    if (t.valid != 1) return;
    w.append(t.value == 1 ? "MSG_TYPE:VIDEO_SUMMARY" : t.value == 2 ? "MSG_TYPE:VIDEO_MESSAGE" : "MSG_TYPE:UNDEFINED");
}

KOVREL_API void ast_dataitem_240_020_init(AstItem240_020 *out) {
    if (out) *out = AstItem240_020{};
}

KOVREL_API void ast_dataitem_240_020_decode(AstItem240_020 *out, const AstDataItem *item) {
    ast_dataitem_240_020_init(out);
    if (!out || !items::span_ok(item, 4) || item->id != kId020) return;
    const uint8_t *p = item->data;
    out->msg_index = (static_cast<uint32_t>(p[0]) << 24) | (static_cast<uint32_t>(p[1]) << 16) |
                     (static_cast<uint32_t>(p[2]) << 8) | p[3];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_240_020_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_020_decode, [](TextWriter &w, const auto &h) {
        w.append("MSG_INDEX:");
        w.append_uint(h.msg_index);
    });
}

KOVREL_API void ast_dataitem_240_030_init(AstItem240_030 *out) {
    if (out) *out = AstItem240_030{};
}

KOVREL_API void ast_dataitem_240_030_decode(AstItem240_030 *out, const AstDataItem *item) {
    ast_dataitem_240_030_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kId030) return;
    const uint32_t rep = item->data[0];
    if (item->length < 1u + rep) return;
    out->length = rep;
    std::memcpy(out->text, item->data + 1, rep);
    out->text[rep] = '\0';
    out->valid = 1;
}

KOVREL_API void ast_dataitem_240_030_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_030_decode, [](TextWriter &w, const auto &s) {
        w.append("SUM:");
        if (s.length <= kSummaryChars) {
            w.append(s.text);
            return;
        }
        char head[kSummaryChars + 1];
        std::memcpy(head, s.text, kSummaryChars);
        head[kSummaryChars] = '\0';
        w.append(head);
        w.append("...[");
        w.append_uint(s.length);
        w.append("]");
    });
}

KOVREL_API void ast_dataitem_240_030_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_030_decode, [](TextWriter &w, const auto &s) {
        // Free text from the wire: every character may become "&amp;".
        char escaped[sizeof s.text * 5];
        ast_html_escape_text(escaped, sizeof escaped, s.text);
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-7]", "REP", "%u", s.length);
        t.row("", "TEXT", escaped);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(240_020, AstItem240_020, ast_dataitem_240_020_decode)
KOVREL_DECODE_EX(240_030, AstItem240_030, ast_dataitem_240_030_decode)

namespace kovrel::fields {

namespace {

constexpr FieldRow k020Rows[] = {
    integer("msg_index", KOVREL_MEMBER(AstItem240_020, msg_index)),
};

// The text as the decoder terminated it; len counts the wire's characters.
constexpr FieldRow k030Rows[] = {
    integer("len", KOVREL_MEMBER(AstItem240_030, length)).width(8),
    text("text", KOVREL_MEMBER(AstItem240_030, text)),
};

}  // namespace

constinit const FieldDesc k240_020 =
    describe<AstItem240_020, init_valid<AstItem240_020, ast_dataitem_240_020_init>>(k020Rows);
constinit const FieldDesc k240_030 =
    describe<AstItem240_030, init_valid<AstItem240_030, ast_dataitem_240_030_init>>(k030Rows);

}  // namespace kovrel::fields
