// Register 0,5: extended squitter airborne position.
#include "items/bds_support.h"
#include "items/item_fields.h"
#include "kovrel/bds.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr const char *kSurveillanceStatus[] = {"NO_CONDITION", "PERMANENT_ALERT", "TEMPORARY_ALERT", "SPI_CONDITION"};

// Type codes 9-18 carry a barometric altitude, 20-22 a GNSS height.
bool airborne_position_code(uint32_t tc) { return (tc >= 9 && tc <= 18) || (tc >= 20 && tc <= 22); }

}  // namespace

extern "C" {

KOVREL_API AstBds05 ast_bds_05_decode(const AstDataItem *reg) {
    AstBds05 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x05);
    if (!octets) return r;
    const items::MbBits mb(octets);
    r.type_code = mb.field(1, 5);
    if (!airborne_position_code(r.type_code)) return r;
    r.gnss_height = r.type_code >= 20 ? 1 : 0;
    r.surveillance_status = mb.field(6, 2);
    r.single_antenna = mb.bit(8);
    // The 12-bit altitude field (bits 9-20) less its Q bit (bit 16). The
    // Q-clear form is Gillham-coded on the air but is scaled as a plain
    // number here; existing consumers rely on that, so it is kept.
    const int32_t n = static_cast<int32_t>((mb.field(9, 7) << 4) | mb.field(17, 4));
    r.altitude = mb.bit(16) ? n * 25 - 1000 : n * 100 - 1000;
    r.time_flag = mb.bit(21);
    r.cpr_format = mb.bit(22);
    r.cpr_latitude = mb.field(23, 17);
    r.cpr_longitude = mb.field(40, 17);
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_05_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_05_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Value");
        t.valuef("Format Type Code", "%d", static_cast<int>(r.type_code));
        t.row("Surveillance Status", kSurveillanceStatus[r.surveillance_status & 3u]);
        t.valuef("NIC Supplement-B", "%d", r.single_antenna);
        t.row("Altitude Source", r.gnss_height ? "GNSS" : "BARO");
        t.valuef("Altitude", "%d", r.altitude);
        t.valuef("Time", "%d", r.time_flag);
        t.row("CPR Format", r.cpr_format ? "ODD" : "EVEN");
        t.valuef("CPR Encoded Latitude", "%d", static_cast<int>(r.cpr_latitude));
        t.valuef("CPR Encoded Longitude", "%d", static_cast<int>(r.cpr_longitude));
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstBds05;
constexpr FieldRow kRows[] = {
    integer("tc", KOVREL_MEMBER(T, type_code)).width(5),
    flag("gnss", KOVREL_MEMBER(T, gnss_height)),
    integer("ss", KOVREL_MEMBER(T, surveillance_status)).width(2),
    flag("saf", KOVREL_MEMBER(T, single_antenna)),
    integer("alt", KOVREL_MEMBER(T, altitude), "ft"),
    flag("t", KOVREL_MEMBER(T, time_flag)),
    flag("f", KOVREL_MEMBER(T, cpr_format)),
    integer("lat_cpr", KOVREL_MEMBER(T, cpr_latitude)).width(17),
    integer("lon_cpr", KOVREL_MEMBER(T, cpr_longitude)).width(17),
};
}  // namespace

constinit const FieldDesc kBds05 = describe<T>(kRows);

}  // namespace kovrel::fields
