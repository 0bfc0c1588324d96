// I034/000 Message Type: the common message type octet, summarised with
// the CAT034 meanings of its values.
#include "core/text.h"
#include "kovrel/cat034.h"
#include "kovrel/items_ident.h"

namespace {

constexpr AstItemId kMessageType = 34000;

const char *message_type_text(uint32_t value) {
    switch (value) {
        case 1: return "MSG_TYPE:NORTH_MARKER";
        case 2: return "MSG_TYPE:SECTOR_CROSSING";
        case 3: return "MSG_TYPE:GEO_FILTERING";
        case 4: return "MSG_TYPE:JAMMING_STROBE";
        default: return "MSG_TYPE:UNDEFINED";
    }
}

}  // namespace

extern "C" KOVREL_API void ast_dataitem_034_000_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    if (!item || item->id != kMessageType) return;
    const AstMessageType type = ast_dataitem_message_type_decode(item);
    if (type.valid == 1) w.append(message_type_text(type.value));
}
