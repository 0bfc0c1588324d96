// Register 1,0: data link capability report.
#include "items/bds_support.h"
#include "items/item_fields.h"
#include "kovrel/bds.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

template <size_t N>
const char *name_or_unassigned(const char *const (&names)[N], uint32_t value) {
    return value < N ? names[value] : "UNASSIGNED";
}

// "AVALIABLE" is spelled as existing consumers have always seen it.
constexpr const char *kSubnetworkVersions[] = {
    "NOT AVALIABLE",
    "ICAO(ANNEX10 1996)",
    "ICAO(ANNEX10 1998)",
    "ICAO(ANNEX10 2002)",
    "ICAO(ANNEX10 2007, DOC9871 ED1) RTCA(DO-181D) EUROCAE(ED-73C)",
};

// The stray parenthesis of the 1 second texts is kept for the same reason.
constexpr const char *kUelmThroughput[] = {
    "NO UELM CAPABILITY",           "16 UELM SEGMENTS IN 1 SEC)",   "16 UELM SEGMENTS IN 500 MSEC",
    "16 UELM SEGMENTS IN 250 MSEC", "16 UELM SEGMENTS IN 125 MSEC", "16 UELM SEGMENTS IN 60 MSEC",
    "16 UELM SEGMENTS IN 30 MSEC",
};

constexpr const char *kDelmThroughput[] = {
    "NO DELM CAPABILITY",           "4 DELM SEGMENTS IN 1 SEC)",    "8 DELM SEGMENTS IN 1 SEC",
    "16 DELM SEGMENTS IN 1 SEC",    "16 DELM SEGMENTS IN 500 MSEC", "16 DELM SEGMENTS IN 250 MSEC",
    "16 DELM SEGMENTS IN 125 MSEC",
};

}  // namespace

extern "C" {

// The first MB octet (the register's own code) is not checked.
KOVREL_API AstBds10 ast_bds_10_decode(const AstDataItem *reg) {
    AstBds10 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x10);
    if (!octets) return r;
    const items::MbBits mb(octets);
    r.continuation = mb.bit(9);
    r.overlay_command_capability = mb.bit(16);
    r.subnetwork_version = mb.field(17, 7);
    r.enhanced_protocol = mb.bit(24);
    r.specific_services = mb.bit(25);
    r.uelm_throughput = static_cast<uint16_t>(mb.field(26, 3));
    r.delm_throughput = static_cast<uint16_t>(mb.field(29, 4));
    r.aircraft_ident_capability = mb.bit(33);
    r.squitter_capability = mb.bit(34);
    r.sic_capability = mb.bit(35);
    r.gicb_capability = mb.bit(36);
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_10_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_10_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Value");
        t.valuef("Continuation Flag", "%d", r.continuation);
        t.valuef("TCAS Interface Operational", "%d", r.overlay_command_capability);
        t.row("Mode-S Subnetwork Version Number", name_or_unassigned(kSubnetworkVersions, r.subnetwork_version));
        t.row("Transponder Enhanced Protocol Indicator", r.enhanced_protocol ? "LEVEL 5" : "LEVEL 2-4");
        t.valuef("Mode-S Specific Services Capability", "%d", r.specific_services);
        t.row("Uplink ELM Average Throughput Capability", name_or_unassigned(kUelmThroughput, r.uelm_throughput));
        t.row("Downlink ELM Throughput Capability", name_or_unassigned(kDelmThroughput, r.delm_throughput));
        t.valuef("Aircraft Identification Capability", "%d", r.aircraft_ident_capability);
        t.valuef("Squitter Capability Subfield (SCS)", "%d", r.squitter_capability);
        t.valuef("Surveillance Identifier Code (SIC)", "%d", r.sic_capability);
        t.valuef("Common Usage GICB Capability Report", "%d", r.gicb_capability);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstBds10;
constexpr FieldRow kRows[] = {
    flag("cf", KOVREL_MEMBER(T, continuation)),
    flag("occ", KOVREL_MEMBER(T, overlay_command_capability)),
    integer("snv", KOVREL_MEMBER(T, subnetwork_version)).width(7),
    flag("epi", KOVREL_MEMBER(T, enhanced_protocol)),
    flag("ssc", KOVREL_MEMBER(T, specific_services)),
    integer("uelm", KOVREL_MEMBER(T, uelm_throughput)).width(3),
    integer("delm", KOVREL_MEMBER(T, delm_throughput)).width(4),
    flag("aic", KOVREL_MEMBER(T, aircraft_ident_capability)),
    flag("scs", KOVREL_MEMBER(T, squitter_capability)),
    flag("sic", KOVREL_MEMBER(T, sic_capability)),
    flag("gicb", KOVREL_MEMBER(T, gicb_capability)),
};
}  // namespace

constinit const FieldDesc kBds10 = describe<T>(kRows);

}  // namespace kovrel::fields
