// Generic operations over any data item, through its dispatch record.
#include <cstring>

#include "core/state.h"
#include "core/text.h"
#include "kovrel/codec.h"
#include "kovrel/html.h"
#include "record/dispatch.h"
#include "record/item_table.h"

namespace {

// Written before an item's own summary, which may leave it standing.
constexpr char kNotImplemented[] = "NOT_IMPLEMENTED";

AstDataItemFuncs funcs_of(AstItemId id) {
    AstDataItemFuncs f;
    ast_dataitem_get_func(&f, id);
    return f;
}

void log_with_id(uint32_t level, const char *format, AstItemId id) {
    if (!kovrel::logging_enabled()) return;
    char text[16];
    ast_dataitem_type_to_str(text, sizeof text, id);
    ast_log(level, format, text);
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_scan(AstDataItem *out, const uint8_t *octets, size_t available, AstItemId id) {
    if (!out) return;
    *out = AstDataItem{octets, 0, id, 0};
    if (!octets) return;
    const AstDataItemFuncs f = funcs_of(id);
    if (!f.get_size) return;
    const uint64_t length = f.get_size(octets, available);
    // Explicit-length fields report their length octet as it stands; an item
    // that would end past the data is never handed out as a span.
    if (length == 0 || length > available) return;
    out->length = length;
    out->valid = 1;
}

KOVREL_API uint64_t ast_dataitem_get_size(const uint8_t *octets, size_t available, AstItemId id) {
    const AstDataItemFuncs f = funcs_of(id);
    return f.get_size ? f.get_size(octets, available) : 0;
}

KOVREL_API void ast_dataitem_decode(AstDataItemValue *out, void *storage, size_t storage_size,
                                    const AstDataItem *item) {
    if (!out) return;
    const AstItemId id = item ? item->id : 0;
    *out = AstDataItemValue{0, id, nullptr};
    if (!item) return;
    const AstDataItemFuncs f = funcs_of(id);
    if (!f.decode_ex) {
        log_with_id(AST_LOG_WARNING, "Decoding function not implemented for dataitem %s.", id);
        return;
    }
    f.decode_ex(out, storage, storage_size, item);
}

KOVREL_API void ast_dataitem_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                    const AstDataItemValue *value) {
    if (!out) return;
    const AstItemId id = value ? value->id : 0;
    *out = AstDataItem{buffer, 0, id, 0};
    if (!buffer || !value || !value->value) return;
    const AstDataItemFuncs f = funcs_of(id);
    if (!f.encode_ex) {
        // The misspelling is kept: existing log filters match this text.
        log_with_id(AST_LOG_WARNING, "Enconding function not implemented for dataitem %s.", id);
        return;
    }
    f.encode_ex(out, buffer, size, value);
}

KOVREL_API void ast_dataitem_copy(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItem *item) {
    if (!out) return;
    *out = AstDataItem{buffer, 0, 0, 0};
    if (!item || item->valid != 1 || !buffer || item->length > size || (!item->data && item->length > 0)) return;
    if (item->length > 0) std::memmove(buffer, item->data, static_cast<size_t>(item->length));
    out->length = item->length;
    out->id = item->id;
    out->valid = item->valid;
}

KOVREL_API const char *ast_dataitem_get_name(AstItemId id) {
    const AstDataItemFuncs f = funcs_of(id);
    return f.get_name ? f.get_name(id) : "UNKNOWN NAME";
}

// Called once per item when a recording is listed: one row look-up, no copy
// of the function set.
KOVREL_API void ast_dataitem_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    if (!buffer || size == 0) return;
    if (size >= sizeof kNotImplemented) {
        std::memcpy(buffer, kNotImplemented, sizeof kNotImplemented);
    } else {
        std::memcpy(buffer, kNotImplemented, size - 1);
        buffer[size - 1] = '\0';
    }
    if (!item || item->valid != 1) return;
    const kovrel::ItemRow *row = kovrel::find_item_row_reported(item->id);
    if (row && row->get_summary) row->get_summary(buffer, size, item);
}

KOVREL_API void ast_dataitem_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    if (!buffer || size == 0) return;
    buffer[0] = '\0';
    if (!item || item->valid != 1) return;
    const AstDataItemFuncs f = funcs_of(item->id);
    if (f.get_detail_html) f.get_detail_html(buffer, size, item);
}

KOVREL_API void ast_dataitem_get_hex_str(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    if (!item || item->valid != 1 || item->length == 0 || !item->data) return;
    for (uint64_t i = 0; i < item->length && !w.full(); ++i) w.appendf(i == 0 ? "%.2x" : " %.2x", item->data[i]);
}

KOVREL_API void ast_dataitem_get_bin_str(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    // The valid flag is not consulted: any span with octets can be shown.
    if (!item || item->length == 0 || !item->data) return;
    char bits[9];
    for (uint64_t i = 0; i < item->length && !w.full(); ++i) {
        if (i != 0) w.append_char(' ');
        w.append(ast_hex_to_bin(bits, sizeof bits, item->data[i]));
    }
}

KOVREL_API void ast_dataitem_get_hex_html(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    if (!item || item->valid != 1) return;
    ast_html_gen_hex_table(buffer, size, item->data, static_cast<size_t>(item->length));
}

KOVREL_API void ast_dataitem_get_bin_html(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    if (!item || item->valid != 1) return;
    ast_html_gen_bin_table(buffer, size, item->data, static_cast<size_t>(item->length));
}

KOVREL_API uint32_t ast_dataitem_get_capabilities(AstItemId id) {
    const AstDataItemFuncs f = funcs_of(id);
    uint32_t caps = 0;
    if (f.decode_ex) caps |= AST_DATAITEM_CAP_DECODE;
    if (f.get_summary) caps |= AST_DATAITEM_CAP_SUMMARY;
    if (f.get_detail_html && f.get_detail_html != ast_dataitem_get_detail_html_dummy) caps |= AST_DATAITEM_CAP_DETAIL;
    if (f.encode_ex) caps |= AST_DATAITEM_CAP_ENCODE;
    return caps;
}

KOVREL_API void ast_dataitem_get_detail_html_dummy(char *buffer, size_t size, const AstDataItem *item) {
    (void)item;
    if (buffer && size != 0) buffer[0] = '\0';
}

}  // extern "C"
