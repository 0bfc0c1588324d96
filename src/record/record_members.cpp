// Disassemble and assemble, driven by a category's table of members.
#include "record/record_members.h"

#include <cstring>

#include "core/state.h"
#include "record/record_encode.h"

namespace kovrel {

void malformed_record_layout() {}

namespace {

bool flag_set(const uint8_t *flag, uint8_t width) {
    if (width == 1) return *flag == 1;
    uint32_t v;
    std::memcpy(&v, flag, sizeof v);
    return v == 1;
}

void set_flag(uint8_t *flag, uint8_t width) {
    const uint32_t one = 1;
    if (width == 1)
        *flag = 1;
    else
        std::memcpy(flag, &one, sizeof one);
}

const RecordMember *find_member(const RecordLayout &layout, AstItemId id) {
    for (size_t i = 0; i < layout.member_count; ++i)
        if (layout.members[i].id == id) return &layout.members[i];
    return nullptr;
}

}  // namespace

void disassemble_record(const RecordLayout &layout, void *out, const AstDataRecord *record) {
    if (!out) return;
    uint8_t *base = static_cast<uint8_t *>(out);
    std::memset(base, 0, layout.record_size);
    if (!record || record->valid != 1 || record->category != layout.category) return;
    set_flag(base + layout.valid_offset, layout.valid_width);
    const uint64_t count =
        record->item_count < AST_DATARECORD_MAX_ITEMS ? record->item_count : AST_DATARECORD_MAX_ITEMS;
    for (uint64_t i = 0; i < count; ++i) {
        const AstDataItem &item = record->items[i];
        const RecordMember *m = find_member(layout, item.id);
        if (!m) {
            if (logging_enabled()) {
                char text[16];
                ast_dataitem_type_to_str(text, sizeof text, item.id);
                ast_log(layout.skip_level, layout.skip_text, text);
            }
            continue;
        }
        // The item's own decoder fills the member, and refuses storage
        // smaller than its structure.
        AstDataItemValue value;
        ast_dataitem_decode(&value, base + m->offset, m->size, &item);
    }
}

void assemble_record(const RecordLayout &layout, AstDataRecord *out, uint8_t *buffer, size_t size, const void *in,
                     const AstUap *uap) {
    if (!out) return;
    AstDataRecordInput input;
    input.category = layout.category;
    input.uap = uap ? *uap : AstUap{nullptr, nullptr};
    input.item_count = 0;
    AstDataItemEncodeExFn encoders[AST_DATARECORD_MAX_ITEMS];
    const uint8_t *base = static_cast<const uint8_t *>(in);
    for (size_t i = 0; base && i < layout.member_count; ++i) {
        const RecordMember &m = layout.members[i];
        if (!flag_set(base + m.offset, m.flag_width)) continue;
        if (input.item_count == AST_DATARECORD_MAX_ITEMS) {
            // More items than a record holds: the encoder reports the
            // record it cannot write.
            ast_datarecord_encode(out, nullptr, 0, &input);
            return;
        }
        // The encoders only read through the pointer.
        encoders[input.item_count] = m.encode;
        input.items[input.item_count++] = AstDataItemValue{1, m.id, const_cast<uint8_t *>(base + m.offset)};
    }
    // A member the profile has no place for makes the record invalid.
    encode_record(out, buffer, size, &input, encoders, true);
}

}  // namespace kovrel
