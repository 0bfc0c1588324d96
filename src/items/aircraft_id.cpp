// Aircraft identification: eight six-bit ICAO characters in 6 octets.
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/items_mode.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint64_t kLength = 6;

// The sixth label reads "Bit[30-25]"; kept as it is for existing consumers
// that match on the labels.
const char *const kCharBits[8] = {"Bit[0-5]",   "Bit[6-11]",  "Bit[12-17]", "Bit[18-23]",
                                  "Bit[24-29]", "Bit[30-25]", "Bit[36-41]", "Bit[42-47]"};

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_aircraft_id_init(AstAircraftId *out) {
    if (out) *out = AstAircraftId{};
}

KOVREL_API void ast_dataitem_aircraft_id_decode(AstAircraftId *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstAircraftId{};
    if (!items::span_ok(item, kLength)) return;
    items::chars_decode(out->chars, item->data);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_aircraft_id_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                const AstAircraftId *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1) return;
    items::chars_encode(buffer, in->chars);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_aircraft_id_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_aircraft_id_decode,
                    [](TextWriter &w, const auto &a) {
                        w.append("ACID:");
                        w.append(a.chars);
                    });
}

KOVREL_API void ast_dataitem_aircraft_id_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_aircraft_id_decode, [](TextWriter &w, const auto &a) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.char_rows(a.chars, kCharBits);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstAircraftId;
constexpr FieldRow kIdentRows[] = {
    text("acid", KOVREL_MEMBER(T, chars)),
};
}  // namespace

constinit const FieldDesc kAircraftId = describe<T, init_valid<T, ast_dataitem_aircraft_id_init>>(kIdentRows);

}  // namespace kovrel::fields
