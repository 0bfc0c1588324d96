// Data records: decode into item spans, encode from item values, copy and
// modify.
#include <cstring>

#include "core/state.h"
#include "kovrel/datarecord.h"
#include "record/item_table.h"
#include "record/record_encode.h"

namespace {

void log_item(uint32_t level, const char *format, AstItemId id) {
    if (!kovrel::logging_enabled()) return;
    char text[16];
    ast_dataitem_type_to_str(text, sizeof text, id);
    ast_log(level, format, text);
}

// Starts a record description. The item array is not cleared: only the
// first item_count entries are meaningful.
void begin_record(AstDataRecord *r, const uint8_t *data, uint32_t category, const AstUap *uap) {
    r->data = data;
    r->length = 0;
    r->category = category;
    r->uap = uap ? *uap : AstUap{nullptr, nullptr};
    r->fspec = AstFspec{data, 0, 0, 0, 0};
    r->item_count = 0;
    r->valid = 0;
}

const AstDataItemValue *find_value(const AstDataItemValue *items, uint64_t count, AstItemId id) {
    if (id == 0) return nullptr;
    if (count > AST_DATARECORD_MAX_ITEMS) count = AST_DATARECORD_MAX_ITEMS;
    for (uint64_t i = 0; i < count; ++i)
        if (items[i].id == id) return &items[i];
    return nullptr;
}

}  // namespace

namespace kovrel {

void encode_record(AstDataRecord *out, uint8_t *buffer, size_t size, const AstDataRecordInput *input,
                   const AstDataItemEncodeExFn *encoders, bool every_item) {
    if (!out) return;
    begin_record(out, buffer, input ? input->category : 0, input ? &input->uap : nullptr);
    if (!input) return;
    out->item_count = input->item_count;
    const uint32_t category = input->category;
    const uint32_t max_frn = ast_uap_max_frn(&input->uap, category);
    if (max_frn == 0 || !buffer) {
        ast_log(AST_LOG_DEBUG, "Failed to encode FSPEC.");
        return;
    }

    // FSPEC: clear every FRN bit the profile knows, set those of the items.
    uint64_t fspec_length = 0;
    uint64_t placed = 0;
    for (uint32_t frn = 1; frn <= max_frn; ++frn) {
        ast_fspec_set(buffer, size, frn, false);
        const AstItemId id = ast_uap_get_dataitem(&input->uap, category, frn);
        if (!find_value(input->items, input->item_count, id)) continue;
        ++placed;
        if (!ast_fspec_set(buffer, size, frn, true)) {
            ast_log(AST_LOG_DEBUG, "Failed to encode FSPEC.");
            return;
        }
        fspec_length = (frn - 1) / 7 + 1;
    }
    if (every_item && placed != (input->item_count < AST_DATARECORD_MAX_ITEMS ? input->item_count
                                                                              : AST_DATARECORD_MAX_ITEMS)) {
        // An item the profile has no FRN for would be lost without a word.
        for (uint64_t i = 0; i < input->item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) {
            bool found = false;
            for (uint32_t frn = 1; frn <= max_frn && !found; ++frn)
                found = ast_uap_get_dataitem(&input->uap, category, frn) == input->items[i].id;
            if (!found) log_item(AST_LOG_DEBUG, "Failed to encode dataitem %s.", input->items[i].id);
        }
        return;
    }
    if (fspec_length == 0) {
        ast_log(AST_LOG_DEBUG, "Failed to encode FSPEC.");
        return;
    }
    // The last FSPEC octet may hold FRNs past the profile's highest: they
    // are cleared too, so that what the buffer held before does not show.
    for (uint32_t frn = max_frn + 1; frn <= 7 * fspec_length; ++frn) ast_fspec_set(buffer, size, frn, false);
    for (uint64_t i = 0; i + 1 < fspec_length; ++i) buffer[i] = static_cast<uint8_t>(buffer[i] | 0x01u);
    buffer[fspec_length - 1] = static_cast<uint8_t>(buffer[fspec_length - 1] & ~0x01u);

    uint64_t pos = fspec_length;
    for (uint32_t frn = 1; frn <= max_frn; ++frn) {
        const AstItemId id = ast_uap_get_dataitem(&input->uap, category, frn);
        const AstDataItemValue *value = find_value(input->items, input->item_count, id);
        if (!value) continue;
        AstDataItem item;
        const AstDataItemEncodeExFn own = encoders ? encoders[value - input->items] : nullptr;
        if (own)
            own(&item, buffer + pos, static_cast<size_t>(size - pos), value);
        else
            ast_dataitem_encode(&item, buffer + pos, static_cast<size_t>(size - pos), value);
        if (item.valid != 1 || item.length > size - pos) {
            log_item(AST_LOG_DEBUG, "Failed to encode dataitem %s.", id);
            return;
        }
        pos += item.length;
    }
    out->length = pos;
    out->valid = 1;
}

}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datarecord_decode(AstDataRecord *out, const uint8_t *octets, size_t available,
                                      uint32_t category, const AstUap *uap) {
    if (!out) return;
    begin_record(out, octets, category, uap);
    if (!octets) return;
    ast_fspec_decode(&out->fspec, octets, available);
    if (out->fspec.valid != 1) return;

    uint64_t pos = out->fspec.length;
    const uint8_t *fspec = out->fspec.octets;
    for (uint64_t k = 0; k < out->fspec.length; ++k) {
        // Visit only the FRN bits that are set, most significant first.
        for (uint32_t bits = fspec[k] & 0xFEu; bits != 0;) {
            const int top = 31 - __builtin_clz(bits);  // 7 for bit 8 (the first FRN of the octet)
            bits &= ~(1u << top);
            const uint32_t frn = static_cast<uint32_t>(7 * k) + static_cast<uint32_t>(7 - top) + 1;
            const AstItemId id = ast_uap_get_dataitem(&out->uap, category, frn);
            const size_t left = static_cast<size_t>(available - pos);
            AstDataItem item{octets + pos, 0, id, 0};
            // Known items are sized straight from their row; anything else
            // goes through the generic scan, which reports it.
            const kovrel::ItemRow *row = kovrel::find_item_row(id);
            if (row && row->get_size) {
                const uint64_t n = row->get_size(octets + pos, left);
                if (n != 0 && n <= left) {
                    item.length = n;
                    item.valid = 1;
                }
            } else {
                ast_dataitem_scan(&item, octets + pos, left, id);
            }
            if (item.valid != 1) return;
            if (out->item_count >= AST_DATARECORD_MAX_ITEMS) {
                ast_log(AST_LOG_PANIC, "Too many dataitems in record: %zu",
                        static_cast<size_t>(AST_DATARECORD_MAX_ITEMS));
                return;
            }
            out->items[out->item_count++] = item;
            pos += item.length;
        }
    }
    out->length = pos;
    out->valid = 1;
}

KOVREL_API void ast_datarecord_encode(AstDataRecord *out, uint8_t *buffer, size_t size,
                                      const AstDataRecordInput *input) {
    kovrel::encode_record(out, buffer, size, input, nullptr, false);
}

KOVREL_API void ast_datarecord_copy(AstDataRecord *out, uint8_t *buffer, size_t size, const AstDataRecord *record) {
    if (!out) return;
    begin_record(out, buffer, record ? record->category : 0, record ? &record->uap : nullptr);
    if (!record) return;
    const uint64_t count = record->item_count > AST_DATARECORD_MAX_ITEMS ? AST_DATARECORD_MAX_ITEMS : record->item_count;
    out->item_count = record->item_count;
    if (!buffer || size < record->length) return;
    ast_fspec_copy(&out->fspec, buffer, size, &record->fspec);
    if (out->fspec.valid != 1) return;
    uint64_t pos = out->fspec.length;
    if (count == 0) {
        out->length = pos;
        out->valid = pos == record->length;
        return;
    }
    for (uint64_t i = 0; i < count; ++i) {
        ast_dataitem_copy(&out->items[i], buffer + pos, static_cast<size_t>(size - pos), &record->items[i]);
        if (out->items[i].valid != 1) return;
        pos += out->items[i].length;
    }
    out->length = pos;
    out->valid = pos == record->length;
}

KOVREL_API void ast_datarecord_modify(AstDataRecord *out, uint8_t *buffer, size_t size,
                                      const AstDataRecord *record, const AstDataItemList *replacements) {
    if (!out) return;
    begin_record(out, buffer, record ? record->category : 0, record ? &record->uap : nullptr);
    if (!record) return;
    const uint64_t count = record->item_count > AST_DATARECORD_MAX_ITEMS ? AST_DATARECORD_MAX_ITEMS : record->item_count;
    out->item_count = record->item_count;
    // The FSPEC is copied, so the set of items cannot change.
    ast_fspec_copy(&out->fspec, buffer, size, &record->fspec);
    if (out->fspec.valid != 1) return;
    uint64_t pos = out->fspec.length;
    for (uint64_t i = 0; i < count; ++i) {
        const AstDataItem &original = record->items[i];
        const AstDataItemValue *value =
            replacements ? find_value(replacements->items, replacements->item_count, original.id) : nullptr;
        AstDataItem &item = out->items[i];
        if (value)
            ast_dataitem_encode(&item, buffer + pos, static_cast<size_t>(size - pos), value);
        else
            ast_dataitem_copy(&item, buffer + pos, static_cast<size_t>(size - pos), &original);
        if (item.valid != 1 || item.length > size - pos) return;
        item.id = original.id;
        pos += item.length;
    }
    out->length = pos;
    out->valid = 1;
}

}  // extern "C"
