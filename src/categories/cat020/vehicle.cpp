// I020/210 Calculated Acceleration, I020/300 Vehicle Fleet Identification
// and I020/310 Pre-programmed Message: laid out as in CAT010, the
// acceleration at 1/4 m/s2 instead of 1/16.
#include "categories/cat010/surface_support.h"
#include "categories/cat020/item_fields.h"
#include "items/item_ex.h"
#include "kovrel/cat020.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
namespace surface = kovrel::surface;

constexpr AstItemId kAccelerationId = 20210;
constexpr AstItemId kFleetId = 20300;
constexpr AstItemId kMessageId = 20310;
constexpr double kAccelerationLsb = 0.25;  // m/s2

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_020_210_init(AstItem020_210 *out) { surface::acceleration_init(out, kAccelerationLsb); }

KOVREL_API void ast_dataitem_020_210_decode(AstItem020_210 *out, const AstDataItem *item) {
    surface::acceleration_decode(out, item, kAccelerationId, kAccelerationLsb);
}

KOVREL_API void ast_dataitem_020_210_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_210 *in) {
    surface::acceleration_encode(out, buffer, size, in);
}

KOVREL_API void ast_dataitem_020_210_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_210_decode,
                    [](TextWriter &w, const auto &a) { surface::acceleration_summary(w, a); });
}

KOVREL_API void ast_dataitem_020_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_210_decode, [](TextWriter &w, const auto &a) {
        surface::acceleration_detail(w, a, "AX LSB=1/4M/S2", "AY LSB=1/4M/S2");
    });
}

KOVREL_API void ast_dataitem_020_300_init(AstItem020_300 *out) {
    if (out) *out = AstItem020_300{};
}

KOVREL_API void ast_dataitem_020_300_decode(AstItem020_300 *out, const AstDataItem *item) {
    surface::fleet_decode(out, item, kFleetId);
}

KOVREL_API void ast_dataitem_020_300_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_300 *in) {
    surface::fleet_encode(out, buffer, size, in);
}

KOVREL_API void ast_dataitem_020_300_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_300_decode,
                    [](TextWriter &w, const auto &f) { surface::fleet_summary(w, f); });
}

KOVREL_API void ast_dataitem_020_300_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_300_decode,
                    [](TextWriter &w, const auto &f) { surface::fleet_detail(w, f); });
}

KOVREL_API void ast_dataitem_020_310_init(AstItem020_310 *out) {
    if (out) *out = AstItem020_310{};
}

KOVREL_API void ast_dataitem_020_310_decode(AstItem020_310 *out, const AstDataItem *item) {
    surface::message_decode(out, item, kMessageId);
}

KOVREL_API void ast_dataitem_020_310_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_310 *in) {
    surface::message_encode(out, buffer, size, in);
}

KOVREL_API void ast_dataitem_020_310_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_310_decode,
                    [](TextWriter &w, const auto &m) { surface::message_summary(w, m); });
}

KOVREL_API void ast_dataitem_020_310_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_310_decode,
                    [](TextWriter &w, const auto &m) { surface::message_detail(w, m); });
}

}  // extern "C"

KOVREL_DECODE_EX(020_210, AstItem020_210, ast_dataitem_020_210_decode)
KOVREL_ENCODE_EX(020_210, AstItem020_210, ast_dataitem_020_210_encode)
KOVREL_DECODE_EX(020_300, AstItem020_300, ast_dataitem_020_300_decode)
KOVREL_ENCODE_EX(020_300, AstItem020_300, ast_dataitem_020_300_encode)
KOVREL_DECODE_EX(020_310, AstItem020_310, ast_dataitem_020_310_decode)
KOVREL_ENCODE_EX(020_310, AstItem020_310, ast_dataitem_020_310_encode)

namespace kovrel::fields {

namespace {

using Acceleration = AstItem020_210;
using Fleet = AstItem020_300;
using Message = AstItem020_310;

constexpr FieldRow kAccelerationRows[] = {
    scaled("ax", KOVREL_MEMBER(Acceleration, ax_raw), kAccelerationLsb, "m/s2").width(8),
    scaled("ay", KOVREL_MEMBER(Acceleration, ay_raw), kAccelerationLsb, "m/s2").width(8),
};

constexpr FieldRow kFleetRows[] = {
    enumeration("vfi", KOVREL_MEMBER(Fleet, vfi), surface::fleet_name).width(8),
};

constexpr FieldRow kMessageRows[] = {
    flag("trb", KOVREL_MEMBER(Message, trb)),
    enumeration("msg", KOVREL_MEMBER(Message, msg), surface::message_name).width(7),
};

}  // namespace

constinit const FieldDesc k020_210 =
    describe<Acceleration, init_valid<Acceleration, ast_dataitem_020_210_init>>(kAccelerationRows);
constinit const FieldDesc k020_300 = describe<Fleet, init_valid<Fleet, ast_dataitem_020_300_init>>(kFleetRows);
constinit const FieldDesc k020_310 = describe<Message, init_valid<Message, ast_dataitem_020_310_init>>(kMessageRows);

}  // namespace kovrel::fields
