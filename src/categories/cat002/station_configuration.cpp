// I002/050 Station Configuration Status: FX-extended status octets whose
// meaning depends on the station; kept whole, at most eight.
#include <cstring>

#include "categories/cat002/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat002.h"

namespace {

constexpr AstItemId kId = 2050;
constexpr uint64_t kMaxOctets = 8;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_002_050_init(AstItem002_050 *out) {
    if (out) *out = AstItem002_050{};
}

KOVREL_API void ast_dataitem_002_050_decode(AstItem002_050 *out, const AstDataItem *item) {
    ast_dataitem_002_050_init(out);
    if (!out || !kovrel::items::span_at_least(item, 1) || item->id != kId || item->length > kMaxOctets) return;
    std::memcpy(out->octets, item->data, static_cast<size_t>(item->length));
    out->length = static_cast<uint32_t>(item->length);
    out->valid = 1;
}

}  // extern "C"

KOVREL_DECODE_EX(002_050, AstItem002_050, ast_dataitem_002_050_decode)

namespace kovrel::fields {

namespace {

using T = AstItem002_050;

// Only the octets in use: a pointer-free copy is shown through its count.
constexpr FieldRow kByteRows[] = {integer(nullptr, member_of<uint8_t>(0))};
constinit const FieldDesc kByte = describe<uint8_t>(kByteRows);

constexpr FieldRow kRows[] = {
    array("octets", KOVREL_MEMBER(T, octets), KOVREL_MEMBER(T, length), 1, 8, kByte),
};

}  // namespace

constinit const FieldDesc k002_050 = describe<T, init_valid<T, ast_dataitem_002_050_init>>(kRows);

}  // namespace kovrel::fields
