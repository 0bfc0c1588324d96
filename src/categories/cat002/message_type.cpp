// I002/000 Message Type: the common message type octet, summarised with
// the CAT002 meanings of its values.
#include "core/text.h"
#include "kovrel/cat002.h"
#include "kovrel/items_ident.h"

namespace {

constexpr AstItemId kMessageType = 2000;

// Values 4 to 7 are not assigned and read as undefined like any other.
const char *message_type_text(uint32_t value) {
    switch (value) {
        case 1: return "MSG_TYPE:NORTH_MARKER";
        case 2: return "MSG_TYPE:SECTOR_CROSSING";
        case 3: return "MSG_TYPE:SOUTH_MARKER";
        case 8: return "MSG_TYPE:BLIND_ZONE_START";
        case 9: return "MSG_TYPE:BLIND_ZONE_STOP";
        case 128: return "MSG_TYPE:STATUS";
        default: return "MSG_TYPE:UNDEFINED";
    }
}

}  // namespace

extern "C" KOVREL_API void ast_dataitem_002_000_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    if (!item || item->id != kMessageType) return;
    const AstMessageType type = ast_dataitem_message_type_decode(item);
    if (type.valid == 1) w.append(message_type_text(type.value));
}
