// Binary data: any item shown as its octets in binary digits.
#include "items/item_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_mode.h"

extern "C" {

KOVREL_API void ast_dataitem_binary_data_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    if (!kovrel::items::span_at_least(item, 1)) return;
    // Built as "BIN" and " %s" per octet, then the first blank becomes the
    // colon: "BIN:10100101 00000001".
    w.append("BIN");
    for (uint64_t i = 0; i < item->length && !w.full(); ++i) {
        char bits[9];
        ast_hex_to_bin(bits, sizeof bits, item->data[i]);
        w.appendf(" %s", bits);
    }
    if (w.length() > 3) buffer[3] = ':';
}

}  // extern "C"
