// Register 6,0: heading and speed report.
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

// Sign bit at MB bit `sign`, 9-bit magnitude behind it, 32 ft/min steps.
double signed_rate(const items::MbBits &mb, int sign) {
    const double rate = mb.field(sign + 1, 9) * 32.0;
    return mb.bit(sign) ? -rate : rate;
}

}  // namespace

extern "C" {

KOVREL_API AstBds60 ast_bds_60_decode(const AstDataItem *reg) {
    AstBds60 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x60);
    if (!octets) return r;
    const items::MbBits mb(octets);
    if ((r.magnetic_heading_status = mb.bit(1))) {
        const double heading = mb.field(3, 10) * 90.0 / 512.0;
        r.magnetic_heading = mb.bit(2) ? heading + 180.0 : heading;
    }
    if ((r.indicated_airspeed_status = mb.bit(13))) r.indicated_airspeed = mb.field(14, 10);
    if ((r.mach_status = mb.bit(24))) r.mach = mb.field(25, 10) * 2.048 / 512.0;
    if ((r.baro_alt_rate_status = mb.bit(35))) r.baro_alt_rate = signed_rate(mb, 36);
    if ((r.inertial_vv_status = mb.bit(46))) r.inertial_vv = signed_rate(mb, 47);
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_60_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_60_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Status", "Value");
        items::status_row(t, "Magnetic Heading", r.magnetic_heading_status, "%.2f DEG", r.magnetic_heading);
        // "%.d" prints nothing for 0 knots; existing consumers see it that way.
        items::status_row(t, "Indicated Airspeed", r.indicated_airspeed_status, "%.d KNOT",
                          static_cast<int>(r.indicated_airspeed));
        items::status_row(t, "Mach", r.mach_status, "%.2f MACH", r.mach);
        items::status_row(t, "Barometric Altitude Rate", r.baro_alt_rate_status, "%.2f FEET/MIN", r.baro_alt_rate);
        // "Intertial" is spelled as existing consumers have always seen it.
        items::status_row(t, "Intertial Vertical Velocity", r.inertial_vv_status, "%.2f FEET/MIN", r.inertial_vv);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
// Each value exists only when its status bit is set.
using T = AstBds60;
constexpr FieldRow kRows[] = {
    real("mhg", KOVREL_MEMBER(T, magnetic_heading), "deg").when(KOVREL_MEMBER(T, magnetic_heading_status)),
    integer("ias", KOVREL_MEMBER(T, indicated_airspeed), "kt").when(KOVREL_MEMBER(T, indicated_airspeed_status)),
    real("mach", KOVREL_MEMBER(T, mach)).when(KOVREL_MEMBER(T, mach_status)),
    real("bvr", KOVREL_MEMBER(T, baro_alt_rate), "ft/min").when(KOVREL_MEMBER(T, baro_alt_rate_status)),
    real("ivv", KOVREL_MEMBER(T, inertial_vv), "ft/min").when(KOVREL_MEMBER(T, inertial_vv_status)),
};
}  // namespace

constinit const FieldDesc kBds60 = describe<T>(kRows);

}  // namespace kovrel::fields
