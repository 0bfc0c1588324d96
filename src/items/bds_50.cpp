// Register 5,0: track and turn report.
//
// The signed fields are read as a sign bit and a magnitude rather than as
// two's complement numbers; existing consumers depend on these values, so
// the reading is kept.
#include "items/bds_internal.h"
#include "kovrel/bds.h"

extern "C" {

KOVREL_API AstBds50 ast_bds_50_decode(const AstDataItem *reg) {
    AstBds50 r{};
    const uint8_t *octets = kovrel::bds_octets(reg, 0x50);
    if (!octets) return r;
    const kovrel::MbBits mb(octets);
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
    kovrel::BdsTable t(buffer, size);
    const AstBds50 r = ast_bds_50_decode(reg);
    if (r.valid != 1) return;
    t.begin(true);
    t.status_row("Roll Angle", r.roll_angle_status, "%.2f DEG", r.roll_angle);
    t.status_row("True Track Angle", r.true_track_status, "%.2f DEG", r.true_track);
    t.status_row("Ground Speed", r.ground_speed_status, "%.2f KNOT", r.ground_speed);
    t.status_row("Track Angle Rate", r.track_rate_status, "%.2f DEG/SEC", r.track_rate);
    t.status_row("True Airspeed", r.true_airspeed_status, "%d KNOTS", static_cast<int>(r.true_airspeed));
    t.end();
}

}  // extern "C"
