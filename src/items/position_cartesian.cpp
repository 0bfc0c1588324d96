// Cartesian position: X and Y as 24-bit two's complement fields, LSB 0.5 m.
#include "items/item_fields.h"
#include "items/motion_support.h"
#include "kovrel/items_motion.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr int kFieldOctets = 3;
constexpr double kLsb = 0.5;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_position_cartesian_init(AstPositionCartesian *out) {
    items::decode_signed_pair(out, nullptr, kFieldOctets, kLsb);
}

KOVREL_API void ast_dataitem_position_cartesian_decode(AstPositionCartesian *out, const AstDataItem *item) {
    items::decode_signed_pair(out, item, kFieldOctets, kLsb);
}

KOVREL_API void ast_dataitem_position_cartesian_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_position_cartesian_decode,
                    [](TextWriter &w, const auto &pos) { w.appendf("X:%.1f Y:%.1f LSB:M", pos.x, pos.y); });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstPositionCartesian;
constexpr FieldRow kCartesianRows[] = {
    scaled("x", KOVREL_MEMBER(T, x_raw), kLsb, "m").width(24),
    scaled("y", KOVREL_MEMBER(T, y_raw), kLsb, "m").width(24),
};
}  // namespace

constinit const FieldDesc kPositionCartesian =
    describe<T, init_valid<T, ast_dataitem_position_cartesian_init>>(kCartesianRows);

}  // namespace kovrel::fields
