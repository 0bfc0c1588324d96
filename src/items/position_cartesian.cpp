// Cartesian position: X and Y as 24-bit two's complement fields, LSB 0.5 m.
#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_motion.h"

namespace kovrel {
namespace {

constexpr double kLsb = 0.5;

void decode(AstPositionCartesian *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstPositionCartesian{0, 0, kLsb, 0.0, 0, kLsb, 0.0};
    if (!motion::exact_span(item, 6)) return;
    int32_t x = 0, y = 0;
    ast_twos_complement_decode(&x, item->data, 3);
    ast_twos_complement_decode(&y, item->data + 3, 3);
    *out = AstPositionCartesian{1, x, kLsb, x * kLsb, y, kLsb, y * kLsb};
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_dataitem_position_cartesian_init(AstPositionCartesian *out) { kovrel::decode(out, nullptr); }

KOVREL_API void ast_dataitem_position_cartesian_decode(AstPositionCartesian *out, const AstDataItem *item) {
    kovrel::decode(out, item);
}

KOVREL_API void ast_dataitem_position_cartesian_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    AstPositionCartesian pos;
    kovrel::decode(&pos, item);
    if (pos.valid != 1) return;
    w.appendf("X:%.1f Y:%.1f LSB:M", pos.x, pos.y);
}

}  // extern "C"
