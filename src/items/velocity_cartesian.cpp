// Cartesian velocity: VX and VY as 16-bit two's complement fields, LSB 0.25 m/s.
#include "items/item_fields.h"
#include "items/motion_support.h"
#include "kovrel/items_motion.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr int kFieldOctets = 2;
constexpr double kLsb = 0.25;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_velocity_cartesian_init(AstVelocityCartesian *out) {
    items::decode_signed_pair(out, nullptr, kFieldOctets, kLsb);
}

KOVREL_API void ast_dataitem_velocity_cartesian_decode(AstVelocityCartesian *out, const AstDataItem *item) {
    items::decode_signed_pair(out, item, kFieldOctets, kLsb);
}

KOVREL_API void ast_dataitem_velocity_cartesian_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_velocity_cartesian_decode,
                    [](TextWriter &w, const auto &v) { w.appendf("VX:%.2f VY:%.2f LSB:M/S", v.vx, v.vy); });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstVelocityCartesian;
constexpr FieldRow kVelocityRows[] = {
    scaled("vx", KOVREL_MEMBER(T, vx_raw), kLsb, "m/s").width(16),
    scaled("vy", KOVREL_MEMBER(T, vy_raw), kLsb, "m/s").width(16),
};
}  // namespace

constinit const FieldDesc kVelocityCartesian =
    describe<T, init_valid<T, ast_dataitem_velocity_cartesian_init>>(kVelocityRows);

}  // namespace kovrel::fields
