// Cartesian velocity: VX and VY as 16-bit two's complement fields, LSB 0.25 m/s.
#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/items_motion.h"

namespace kovrel {
namespace {

constexpr double kLsb = 0.25;

void decode(AstVelocityCartesian *out, const AstDataItem *item) {
    if (!out) return;
    *out = AstVelocityCartesian{0, 0, kLsb, 0.0, 0, kLsb, 0.0};
    if (!motion::exact_span(item, 4)) return;
    int32_t vx = 0, vy = 0;
    ast_twos_complement_decode(&vx, item->data, 2);
    ast_twos_complement_decode(&vy, item->data + 2, 2);
    *out = AstVelocityCartesian{1, vx, kLsb, vx * kLsb, vy, kLsb, vy * kLsb};
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_dataitem_velocity_cartesian_init(AstVelocityCartesian *out) { kovrel::decode(out, nullptr); }

KOVREL_API void ast_dataitem_velocity_cartesian_decode(AstVelocityCartesian *out, const AstDataItem *item) {
    kovrel::decode(out, item);
}

KOVREL_API void ast_dataitem_velocity_cartesian_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    kovrel::TextWriter w(buffer, size);
    AstVelocityCartesian v;
    kovrel::decode(&v, item);
    if (v.valid != 1) return;
    w.appendf("VX:%.2f VY:%.2f LSB:M/S", v.vx, v.vy);
}

}  // extern "C"
