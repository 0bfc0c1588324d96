// Register 3,0: ACAS active resolution advisory.
#include "items/bds_support.h"
#include "items/item_fields.h"
#include "kovrel/bds.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr uint32_t kThreatModeS = 1;
constexpr uint32_t kThreatNotModeS = 2;

const char *threat_type_name(uint32_t tti) {
    switch (tti) {
    case kThreatModeS: return "MODE-S";
    case kThreatNotModeS: return "NON MODE-S";
    default: return "UNKNOWN";
    }
}

}  // namespace

extern "C" {

// The first MB octet is not checked: the same 56 bits arrive inside ACAS
// reports whose first octet holds a message type instead.
KOVREL_API AstBds30 ast_bds_30_decode(const AstDataItem *reg) {
    AstBds30 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x30);
    if (!octets) return r;
    const items::MbBits mb(octets);
    r.ara_present = mb.field(9, 14) != 0 ? 1 : 0;
    r.rac_present = mb.field(23, 4) != 0 ? 1 : 0;
    r.ra_terminated = mb.bit(27);
    r.multiple_threat = mb.bit(28);
    const uint32_t tti = mb.field(29, 2);
    if (tti == kThreatModeS) {
        // The threat's 24-bit Mode S address, bits 31-54.
        const uint32_t tid = mb.field(31, 24);
        r.tid[0] = static_cast<uint8_t>(tid >> 16);
        r.tid[1] = static_cast<uint8_t>(tid >> 8);
        r.tid[2] = static_cast<uint8_t>(tid);
        r.threat_type = tti;
    } else if (tti == kThreatNotModeS) {
        // Altitude, range and bearing of a threat without Mode S are not decoded.
        r.threat_type = tti;
    }
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_30_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_30_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Value");
        t.valuef("Active Resolution Advisories (ARA)", "%d", r.ara_present);
        t.valuef("Resolution Advisory Complements (RAC)", "%d", r.rac_present);
        t.row("Resolution Advisory Terminated Indicator (RAT)", r.ra_terminated ? "TRUE" : "FALSE");
        t.valuef("Multiple Threat Encounter (MTE)", "%d", r.multiple_threat);
        t.row("Threat Type Indicator (TTI)", threat_type_name(r.threat_type));
        t.valuef("Threat Mode-S Address", "%.2X%.2X%.2X", r.tid[0], r.tid[1], r.tid[2]);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
// ARA and RAC say whether any of their bits is set; the threat identity is
// the threat's Mode S address (all zero unless the threat type is 1).
using T = AstBds30;
constexpr FieldRow kRows[] = {
    flag("ara", KOVREL_MEMBER(T, ara_present)),
    flag("rac", KOVREL_MEMBER(T, rac_present)),
    flag("rat", KOVREL_MEMBER(T, ra_terminated)),
    flag("mte", KOVREL_MEMBER(T, multiple_threat)),
    enumeration("tti", KOVREL_MEMBER(T, threat_type), ast_threat_type_to_str).width(2),
    octets("tid", KOVREL_MEMBER(T, tid)),
};
}  // namespace

constinit const FieldDesc kBds30 = describe<T>(kRows);

}  // namespace kovrel::fields
