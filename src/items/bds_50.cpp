// Register 5,0: track and turn report.
//
// The signed fields are read as a sign bit and a magnitude rather than as
// two's complement numbers; existing consumers depend on these values, so
// the reading is kept.
#include "items/bds_support.h"
#include "items/item_fields.h"
#include "kovrel/bds.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

}  // namespace

extern "C" {

KOVREL_API AstBds50 ast_bds_50_decode(const AstDataItem *reg) {
    AstBds50 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x50);
    if (!octets) return r;
    const items::MbBits mb(octets);
    if ((r.roll_angle_status = mb.bit(1))) {
        const double roll = mb.field(3, 9) * 45.0 / 256.0;
        r.roll_angle = mb.bit(2) ? -roll : roll;
    }
    if ((r.true_track_status = mb.bit(12))) {
        const double track = mb.field(14, 10) * 90.0 / 512.0;
        r.true_track = mb.bit(13) ? 360.0 - track : track;
    }
    if ((r.ground_speed_status = mb.bit(24))) r.ground_speed = mb.field(25, 10) * 2.0;
    if ((r.track_rate_status = mb.bit(35))) {
        const double rate = mb.field(37, 9) / 32.0;
        r.track_rate = mb.bit(36) ? -rate : rate;
    }
    if ((r.true_airspeed_status = mb.bit(46))) r.true_airspeed = mb.field(47, 10) * 2;
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_50_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_50_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Status", "Value");
        items::status_row(t, "Roll Angle", r.roll_angle_status, "%.2f DEG", r.roll_angle);
        items::status_row(t, "True Track Angle", r.true_track_status, "%.2f DEG", r.true_track);
        items::status_row(t, "Ground Speed", r.ground_speed_status, "%.2f KNOT", r.ground_speed);
        items::status_row(t, "Track Angle Rate", r.track_rate_status, "%.2f DEG/SEC", r.track_rate);
        items::status_row(t, "True Airspeed", r.true_airspeed_status, "%d KNOTS", static_cast<int>(r.true_airspeed));
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
// Each value exists only when its status bit is set.
using T = AstBds50;
constexpr FieldRow kRows[] = {
    real("ran", KOVREL_MEMBER(T, roll_angle), "deg").when(KOVREL_MEMBER(T, roll_angle_status)),
    real("tta", KOVREL_MEMBER(T, true_track), "deg").when(KOVREL_MEMBER(T, true_track_status)),
    real("gs", KOVREL_MEMBER(T, ground_speed), "kt").when(KOVREL_MEMBER(T, ground_speed_status)),
    real("tar", KOVREL_MEMBER(T, track_rate), "deg/s").when(KOVREL_MEMBER(T, track_rate_status)),
    integer("tas", KOVREL_MEMBER(T, true_airspeed), "kt").when(KOVREL_MEMBER(T, true_airspeed_status)),
};
}  // namespace

constinit const FieldDesc kBds50 = describe<T>(kRows);

}  // namespace kovrel::fields
