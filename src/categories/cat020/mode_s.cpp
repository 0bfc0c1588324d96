// I020/230 Communications/ACAS Capability and Flight Status, I020/260 ACAS
// Resolution Advisory Report and I020/400 Contributing Devices: what the
// Mode S replies tell of the transponder, and which receivers heard them.
#include <cstdio>

#include "categories/cat010/surface_support.h"
#include "categories/cat020/item_fields.h"
#include "items/item_ex.h"
#include "kovrel/cat020.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using kovrel::surface::bit;
using kovrel::surface::flag_bit;

constexpr AstItemId kCapabilityId = 20230;
constexpr AstItemId kAdvisoryId = 20260;
constexpr AstItemId kDevicesId = 20400;
constexpr uint64_t kAdvisoryLength = 7;
constexpr uint32_t kRegister = 0x30;
constexpr uint32_t kThreatModeS = 1;  // a threat Mode S address follows

constexpr const char *kStatText[8] = {"AIRBORNE",  "ON_GROUND", "ALERT_AIRBORNE", "ALERT_ON_GROUND",
                                      "ALERT_SPI", "SPI",       "NOT_ASSIGNED",   "NOT_EXTRACTED"};

}  // namespace

extern "C" {

// ---- I020/230 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_020_230_init(AstItem020_230 *out) {
    if (out) *out = AstItem020_230{};
}

KOVREL_API void ast_dataitem_020_230_decode(AstItem020_230 *out, const AstDataItem *item) {
    ast_dataitem_020_230_init(out);
    if (!out || !items::span_ok(item, 2) || item->id != kCapabilityId) return;
    const uint8_t *p = item->data;
    *out = AstItem020_230{1,
                          static_cast<uint8_t>(p[0] >> 5),
                          static_cast<uint8_t>((p[0] >> 2) & 7u),
                          static_cast<uint8_t>(p[0] & 3u),
                          bit(p[1], 7),
                          bit(p[1], 6),
                          bit(p[1], 5),
                          bit(p[1], 4),
                          static_cast<uint8_t>(p[1] & 0x0Fu)};
}

KOVREL_API void ast_dataitem_020_230_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_230 *in) {
    if (!items::encode_begin(out, buffer, size, 2)) return;
    if (!in || in->valid != 1 || in->com > 7 || in->stat > 7 || in->casevn > 3 || in->b1b > 15) return;
    buffer[0] = static_cast<uint8_t>((in->com << 5) | (in->stat << 2) | in->casevn);
    buffer[1] = static_cast<uint8_t>(flag_bit(in->mssc, 7) | flag_bit(in->arc, 6) | flag_bit(in->aic, 5) |
                                     flag_bit(in->b1a, 4) | in->b1b);
    items::encode_done(out, buffer, 2);
}

KOVREL_API void ast_dataitem_020_230_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_230_decode, [](TextWriter &w, const auto &c) {
        w.append("COM:");
        w.append_uint(c.com);
        w.append(" STAT:");
        w.append(kStatText[c.stat & 7u]);
        w.append(c.arc ? " ARC:25FT" : " ARC:100FT");
    });
}

KOVREL_API void ast_dataitem_020_230_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_230_decode, [](TextWriter &w, const auto &c) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-2]", "COMMUNICATIONS_CAPABILITY", "%u", c.com);
        t.row("Bit[3-5]", "FLIGHT_STATUS", kStatText[c.stat & 7u]);
        t.rowf("Bit[6-7]", "CAS_EXTENDED_VERSION", "%u", c.casevn);
        t.rowf("Bit[8]", "MODE_S_SPECIFIC_SERVICE", "%d", c.mssc);
        t.rowf("Bit[9]", "ALTITUDE_25FT", "%d", c.arc);
        t.rowf("Bit[10]", "IDENTIFICATION_CAPABILITY", "%d", c.aic);
        t.rowf("Bit[11]", "BDS_1,0_BIT_16", "%d", c.b1a);
        t.rowf("Bit[12-15]", "BDS_1,0_BITS_37-40", "%u", c.b1b);
        t.end();
    });
}

// ---- I020/260 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_020_260_init(AstItem020_260 *out) {
    if (out) *out = AstItem020_260{};
}

KOVREL_API void ast_dataitem_020_260_decode(AstItem020_260 *out, const AstDataItem *item) {
    ast_dataitem_020_260_init(out);
    if (!out || !items::span_ok(item, kAdvisoryLength) || item->id != kAdvisoryId) return;
    const uint8_t *p = item->data;
    // Bits 1-8 the register number, 9-22 ARA, 23-26 RAC, 27 RAT, 28 MTE,
    // 29-30 TTI, 31-56 TID (bit 1 the most significant of the item).
    uint64_t v = 0;
    for (uint64_t i = 0; i < kAdvisoryLength; ++i) v = (v << 8) | p[i];
    out->bds1 = static_cast<uint8_t>(p[0] >> 4);
    out->bds2 = static_cast<uint8_t>(p[0] & 0x0Fu);
    out->ara = static_cast<uint32_t>((v >> 34) & 0x3FFFu);
    out->rac = static_cast<uint8_t>((v >> 30) & 0x0Fu);
    out->rat = static_cast<uint8_t>((v >> 29) & 1u);
    out->mte = static_cast<uint8_t>((v >> 28) & 1u);
    out->tti = static_cast<uint8_t>((v >> 26) & 3u);
    out->tid = static_cast<uint32_t>(v & 0x3FFFFFFu);
    AstDataItem reg;
    ast_bds_decode(&reg, p, kAdvisoryLength, kRegister);
    out->bds = ast_bds_30_decode(&reg);
    out->valid = out->bds.valid == 1 ? 1 : 0;
}

KOVREL_API void ast_dataitem_020_260_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_260 *in) {
    if (!items::encode_begin(out, buffer, size, kAdvisoryLength)) return;
    if (!in || in->valid != 1 || in->bds1 > 15 || in->bds2 > 15 || in->ara > 0x3FFFu || in->rac > 15 ||
        in->rat > 1 || in->mte > 1 || in->tti > 3 || in->tid > 0x3FFFFFFu)
        return;
    const uint64_t v = (static_cast<uint64_t>((in->bds1 << 4) | in->bds2) << 48) |
                       (static_cast<uint64_t>(in->ara) << 34) | (static_cast<uint64_t>(in->rac) << 30) |
                       (static_cast<uint64_t>(in->rat) << 29) | (static_cast<uint64_t>(in->mte) << 28) |
                       (static_cast<uint64_t>(in->tti) << 26) | in->tid;
    for (uint64_t i = 0; i < kAdvisoryLength; ++i)
        buffer[i] = static_cast<uint8_t>(v >> (8 * (kAdvisoryLength - 1 - i)));
    items::encode_done(out, buffer, kAdvisoryLength);
}

KOVREL_API void ast_dataitem_020_260_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_260_decode, [](TextWriter &w, const auto &a) {
        char code[8];
        w.append("BDS:");
        w.append(ast_bds_type_to_str_simple(code, sizeof code, kRegister));
        if (a.bds.ra_terminated) w.append(" RA_TERMINATED");
        if (a.bds.multiple_threat) w.append(" MULTIPLE_THREAT");
    });
}

KOVREL_API void ast_dataitem_020_260_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_260_decode, [](TextWriter &w, const auto &a) {
        const AstBds30 &r = a.bds;
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[8-21]", "ACTIVE_RESOLUTION_ADVISORIES", "%d", r.ara_present);
        t.rowf("Bit[22-25]", "RESOLUTION_ADVISORY_COMPLEMENTS", "%d", r.rac_present);
        t.rowf("Bit[26]", "RESOLUTION_ADVISORY_TERMINATED", "%d", r.ra_terminated);
        t.rowf("Bit[27]", "MULTIPLE_THREAT_ENCOUNTER", "%d", r.multiple_threat);
        t.rowf("Bit[28-29]", "THREAT_TYPE", "%u", static_cast<unsigned>(r.threat_type));
        if (r.threat_type == kThreatModeS)
            t.rowf("Bit[30-53]", "THREAT_MODE_S_ADDRESS", "%02X%02X%02X", r.tid[0], r.tid[1], r.tid[2]);
        t.end();
    });
}

// ---- I020/400 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_020_400_init(AstItem020_400 *out) {
    if (out) *out = AstItem020_400{};
}

KOVREL_API void ast_dataitem_020_400_decode(AstItem020_400 *out, const AstDataItem *item) {
    ast_dataitem_020_400_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kDevicesId) return;
    const uint32_t count = item->data[0];
    if (item->length != 1ull + count) return;
    out->count = count;
    for (uint32_t i = 0; i < count; ++i) out->devices[i] = item->data[1 + i];
    out->valid = 1;
}

KOVREL_API void ast_dataitem_020_400_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_400 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->count == 0 || in->count > AST_ITEM020_400_MAX || size < 1 + in->count) return;
    buffer[0] = static_cast<uint8_t>(in->count);
    for (uint32_t i = 0; i < in->count; ++i) buffer[1 + i] = in->devices[i];
    items::encode_done(out, buffer, 1 + in->count);
}

KOVREL_API void ast_dataitem_020_400_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_400_decode, [](TextWriter &w, const auto &d) {
        w.append("DEVICES:");
        bool any = false;
        for (uint32_t i = 0; i < d.count && !w.full(); ++i)
            for (unsigned b = 0; b < 8; ++b) {
                if (!(d.devices[i] & (0x80u >> b))) continue;
                if (any) w.append(",");
                w.append_uint(8 * i + b + 1);
                any = true;
            }
        if (!any) w.append("NONE");
    });
}

KOVREL_API void ast_dataitem_020_400_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_400_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        for (uint32_t i = 0; i < d.count && !w.full(); ++i)
            for (unsigned b = 0; b < 8; ++b) {
                if (!(d.devices[i] & (0x80u >> b))) continue;
                char bits[24], name[32];
                std::snprintf(bits, sizeof bits, "Bit[%u]", 8 + 8 * i + b);
                std::snprintf(name, sizeof name, "TU%u/RU%u", 8 * i + b + 1, 8 * i + b + 1);
                t.rowf(bits, name, "%d", 1);
            }
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(020_230, AstItem020_230, ast_dataitem_020_230_decode)
KOVREL_ENCODE_EX(020_230, AstItem020_230, ast_dataitem_020_230_encode)
KOVREL_DECODE_EX(020_260, AstItem020_260, ast_dataitem_020_260_decode)
KOVREL_ENCODE_EX(020_260, AstItem020_260, ast_dataitem_020_260_encode)
KOVREL_DECODE_EX(020_400, AstItem020_400, ast_dataitem_020_400_decode)
KOVREL_ENCODE_EX(020_400, AstItem020_400, ast_dataitem_020_400_encode)

namespace kovrel::fields {

namespace {

using Capability = AstItem020_230;
using Advisory = AstItem020_260;
using Devices = AstItem020_400;

const char *stat_name(uint32_t c) { return surface::name_of(kStatText, c); }

constexpr FieldRow kCapabilityRows[] = {
    integer("com", KOVREL_MEMBER(Capability, com)).width(3),
    enumeration("stat", KOVREL_MEMBER(Capability, stat), stat_name).width(3),
    integer("casevn", KOVREL_MEMBER(Capability, casevn)).width(2),
    flag("mssc", KOVREL_MEMBER(Capability, mssc)),
    flag("arc", KOVREL_MEMBER(Capability, arc)),
    flag("aic", KOVREL_MEMBER(Capability, aic)),
    flag("b1a", KOVREL_MEMBER(Capability, b1a)),
    integer("b1b", KOVREL_MEMBER(Capability, b1b)).width(4),
};

// The wire fields of the register, which the encoder writes.
constexpr FieldRow kAdvisoryRows[] = {
    integer("bds1", KOVREL_MEMBER(Advisory, bds1)).width(4),
    integer("bds2", KOVREL_MEMBER(Advisory, bds2)).width(4),
    integer("ara", KOVREL_MEMBER(Advisory, ara)).width(14),
    integer("rac", KOVREL_MEMBER(Advisory, rac)).width(4),
    flag("rat", KOVREL_MEMBER(Advisory, rat)),
    flag("mte", KOVREL_MEMBER(Advisory, mte)),
    integer("tti", KOVREL_MEMBER(Advisory, tti)).width(2),
    integer("tid", KOVREL_MEMBER(Advisory, tid)).width(26),
};

constexpr FieldRow kOctetRows[] = {integer(nullptr, member_of<uint8_t>(0)).width(8)};
constinit const FieldDesc kOctet = describe<uint8_t>(kOctetRows);

constexpr FieldRow kDevicesRows[] = {
    array("devices", KOVREL_MEMBER(Devices, devices), KOVREL_MEMBER(Devices, count), 1, AST_ITEM020_400_MAX, kOctet),
};

}  // namespace

constinit const FieldDesc k020_230 =
    describe<Capability, init_valid<Capability, ast_dataitem_020_230_init>>(kCapabilityRows);
constinit const FieldDesc k020_260 = describe<Advisory, init_valid<Advisory, ast_dataitem_020_260_init>>(kAdvisoryRows);
constinit const FieldDesc k020_400 = describe<Devices, init_valid<Devices, ast_dataitem_020_400_init>>(kDevicesRows);

}  // namespace kovrel::fields
