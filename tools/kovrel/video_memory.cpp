#include "video_memory.h"

#include <cstring>

#include "decode.h"

namespace kovrel_tool {

void VideoMemory::note(const AstDataRecord &record, unsigned items) {
    if (record.category != 240 || items == 0) return;
    for (uint64_t i = 0; i < record.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) {
        const AstDataItem &item = record.items[i];
        if (item.valid != 1 || !item.data) continue;
        const bool nano = item.id == 240040 && (items & kVideoHeaderNano);
        const bool femto = item.id == 240041 && (items & kVideoHeaderFemto);
        if ((nano || femto) && item.length == 12) {
            header = item.id;
            std::memcpy(range, item.data + 4, sizeof range);
        } else if (item.id == 240048 && (items & kVideoResolution) && item.length == 2) {
            res = item.data[1];
        }
    }
}

void VideoMemory::restore() const {
    // The azimuths of the header do not stay behind; zeros do for them. A
    // memory without a header restores a zero range and duration, what a
    // thread starts with; RES 0 likewise.
    uint8_t octets[12] = {};
    std::memcpy(octets + 4, range, sizeof range);
    AstDataItem item{octets, 12, header == 240041 ? 240041u : 240040u, 1};
    AstVideoHeader h;
    QuietLog quiet;  // RES 0 or above 6 is warned about when read from the wire
    if (item.id == 240041)
        ast_dataitem_240_041_decode(&h, &item);
    else
        ast_dataitem_240_040_decode(&h, &item);
    const uint8_t resolution[2] = {0, res};
    item = AstDataItem{resolution, 2, 240048, 1};
    AstItem240_048 r;
    ast_dataitem_240_048_decode(&r, &item);
}

}  // namespace kovrel_tool
