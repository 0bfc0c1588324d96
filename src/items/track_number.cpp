// Track number: two octets. Most categories give the number 12 bits under
// four spare bits; a few items use all 16 bits.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_ident.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 2;

// Items whose track number fills all 16 bits: I001/161, I004/030,
// I004/035, I015/161 and I062/040.
bool sixteen_bit_item(AstItemId id) {
    switch (id) {
    case 1161:
    case 4030:
    case 4035:
    case 15161:
    case 62040: return true;
    default: return false;
    }
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_track_number_init(AstTrackNumber *out) {
    if (out) *out = AstTrackNumber{0, 0, 0};
}

KOVREL_API void ast_dataitem_track_number_decode(AstTrackNumber *out, const AstDataItem *item) {
    if (!out) return;
    ast_dataitem_track_number_init(out);
    if (!items::span_ok(item, kLength)) return;
    uint32_t number = 0;
    if (sixteen_bit_item(item->id)) {
        ast_unsigned_decode(&number, item->data, 2);
    } else {
        ast_unsigned_decode_ex(&number, item->data, 2, 4);  // top 4 bits spare
        out->twelve_bit = 1;
    }
    out->number = number;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_track_number_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                 const AstTrackNumber *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    const uint32_t limit = in->twelve_bit == 1 ? 0x0FFFu : 0xFFFFu;
    if (in->number > limit) return;
    // Within the limit the spare bits of the 12-bit form come out as 0.
    ast_unsigned_encode(buffer, 2, in->number);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_track_number_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_track_number_decode,
                    [](TextWriter &w, const auto &tn) {
                        w.append("TRACK_NUM:");
                        w.append_int(static_cast<int>(tn.number), 4);
                    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstTrackNumber;
// twelve_bit is not a field: a number that fits 12 bits is written the same
// in both layouts, and the decoder sets it from the item.
constexpr FieldRow kTrackRows[] = {
    integer("trn", KOVREL_MEMBER(T, number)).width(16),
};
}  // namespace

constinit const FieldDesc kTrackNumber = describe<T, init_valid<T, ast_dataitem_track_number_init>>(kTrackRows);

}  // namespace kovrel::fields
