// Target identification: a source indicator and eight six-bit characters.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/items_mode.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 7;

const char *const kCharBits[8] = {"Bit[8-13]",  "Bit[14-19]", "Bit[20-25]", "Bit[26-31]",
                                  "Bit[32-37]", "Bit[38-43]", "Bit[44-49]", "Bit[50-55]"};

// Where the characters come from, by STI.
const char *const kSourceNames[4] = {"DOWNLINKED_TARGET_ID", "REGISTRATION", "CALLSIGN", "UNDEFINED"};

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_target_id_init(AstTargetId *out) {
    if (out) *out = AstTargetId{};
}

KOVREL_API void ast_dataitem_target_id_decode(AstTargetId *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstTargetId{};
    if (!items::span_ok(item, kLength)) return;
    out->sti = item->data[0] >> 6;
    items::chars_decode(out->chars, item->data + 1);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_target_id_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                              const AstTargetId *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1 || in->sti > 3) return;
    buffer[0] = static_cast<uint8_t>(in->sti << 6);
    items::chars_encode(buffer + 1, in->chars);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_target_id_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_target_id_decode, [](TextWriter &w, const auto &t) {
        switch (t.sti) {
            case 0: w.appendf("TARGET_ID:%s", t.chars); break;
            case 1: w.appendf("REGISTRATION:%s", t.chars); break;
            case 2: w.appendf("CALLSIGN:%s", t.chars); break;
            // Spelling kept: existing consumers match this exact text.
            default: w.append("TARGET_ID:UNDIFINED"); break;
        }
    });
}

KOVREL_API void ast_dataitem_target_id_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_target_id_decode, [](TextWriter &w, const auto &id) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-1]", "STI", "%u (%s)", id.sti, kSourceNames[id.sti & 3u]);
        t.char_rows(id.chars, kCharBits);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
const char *source_name(uint32_t sti) { return sti < 4 ? kSourceNames[sti] : nullptr; }

using T = AstTargetId;
constexpr FieldRow kTargetIdRows[] = {
    enumeration("sti", KOVREL_MEMBER(T, sti), source_name).width(2),
    text("tid", KOVREL_MEMBER(T, chars)),
};
}  // namespace

constinit const FieldDesc kTargetId = describe<T, init_valid<T, ast_dataitem_target_id_init>>(kTargetIdRows);

}  // namespace kovrel::fields
