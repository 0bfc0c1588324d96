// I021/260 ACAS Resolution Advisory Report: the 56 bits of the MB message a
// transponder broadcasts or replies with while TCAS advises. Message type
// and sub-type come from the first octet; the advisory itself is read as
// Mode S register 3,0.
#include "categories/cat021/support.h"
#include "items/item_ex.h"
#include "kovrel/bds.h"
#include "kovrel/cat021.h"
#include "kovrel/codec.h"

namespace {

using kovrel::TextWriter;
using kovrel::cat021::Detail;
using kovrel::cat021::FlagList;
namespace items = kovrel::items;

constexpr uint64_t kLength = 7;
constexpr uint32_t kRegister = 0x30;
constexpr uint32_t kBroadcastType = 28;
constexpr uint32_t kBroadcastSubtype = 2;
constexpr uint32_t kThreatModeS = 1;
constexpr uint32_t kThreatNotModeS = 2;

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_021_260_init(AstItem021_260 *out) {
    if (out) *out = AstItem021_260{};
}

// The threat type (TTI) is left 0: the reports in service never needed it,
// so the threat texts of the summary only appear for structures filled by
// the caller.
KOVREL_API void ast_dataitem_021_260_decode(AstItem021_260 *out, const AstDataItem *item) {
    ast_dataitem_021_260_init(out);
    if (!out || !items::span_ok(item, kLength) || item->id != 21260) return;
    const uint8_t *p = item->data;
    out->typ = p[0] >> 3;
    out->styp = p[0] & 7u;
    out->broadcast = (out->typ == kBroadcastType && out->styp == kBroadcastSubtype) ? 1 : 0;
    out->valid = 1;
    AstDataItem reg;
    ast_bds_decode(&reg, p, kLength, kRegister);
    const AstBds30 r = ast_bds_30_decode(&reg);
    if (r.valid != 1) return;
    out->ra_active = r.ara_present;
    out->rat = r.ra_terminated;
    out->mte = r.multiple_threat;
    out->ara = (uint32_t{p[1]} << 6) | (p[2] >> 2);
    out->rac = (p[2] & 3u) * 4 + (p[3] >> 6);
    uint32_t word = 0;
    ast_unsigned_decode(&word, p + 3, 4);
    out->tid = word & 0x03FFFFFFu;
}

KOVREL_API void ast_dataitem_021_260_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_260 *in) {
    if (!items::encode_begin(out, buffer, size, kLength)) return;
    if (!in || in->valid != 1 || in->typ > 31 || in->styp > 7 || in->ara > 0x3FFFu || in->rac > 15 ||
        in->tti > 3 || in->tid > 0x03FFFFFFu)
        return;
    buffer[0] = static_cast<uint8_t>((in->typ << 3) | in->styp);
    buffer[1] = static_cast<uint8_t>(in->ara >> 6);
    buffer[2] = static_cast<uint8_t>(((in->ara & 0x3Fu) << 2) | (in->rac >> 2));
    buffer[3] = static_cast<uint8_t>(((in->rac & 3u) << 6) | (in->rat ? 0x20u : 0u) | (in->mte ? 0x10u : 0u) |
                                     (in->tti << 2) | (in->tid >> 24));
    buffer[4] = static_cast<uint8_t>(in->tid >> 16);
    buffer[5] = static_cast<uint8_t>(in->tid >> 8);
    buffer[6] = static_cast<uint8_t>(in->tid);
    items::encode_done(out, buffer, kLength);
}

KOVREL_API void ast_dataitem_021_260_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_260_decode, [](TextWriter &w, const auto &d) {
        FlagList f(w);
        f.add(d.broadcast, "BCAST ");
        if (d.ra_active)
            f.add(true, "RA_ACTIVE ");
        else
            f.add(d.rat, "RA_TERM ");
        f.add(d.tti == kThreatNotModeS, "THRT:MODE_AC ");
        if (d.tti == kThreatModeS) f.words().appendf("THRT:%06X ", d.tid & 0xFFFFFFu);
        f.finish("NO_INFO");
    });
}

KOVREL_API void ast_dataitem_021_260_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_260_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-5]", "TYP", "MESSAGE_TYPE", "%u", d.typ);
        t.rowf("Bit[6-8]", "STYP", "MESSAGE_SUBTYPE", "%u", d.styp);
        t.rowf("Bit[9-22]", "ARA", "ACTIVE_RESOLUTION_ADVISORIES", "0x%04X", d.ara);
        t.rowf("Bit[23-26]", "RAC", "RA_COMPLEMENT", "0x%X", d.rac);
        t.flag("Bit[27]", "RAT", "RA_TERMINATED", d.rat);
        t.flag("Bit[28]", "MTE", "MULTIPLE_THREAT_ENCOUNTER", d.mte);
        t.rowf("Bit[29-30]", "TTI", "THREAT_TYPE_INDICATOR", "%u", d.tti);
        t.rowf("Bit[31-56]", "TID", "THREAT_IDENTITY_DATA", "0x%07X", d.tid);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(021_260, AstItem021_260, ast_dataitem_021_260_decode)
KOVREL_ENCODE_EX(021_260, AstItem021_260, ast_dataitem_021_260_encode)

namespace kovrel::fields {

namespace {

using T = AstItem021_260;
constexpr FieldRow kRows[] = {
    integer("typ", KOVREL_MEMBER(T, typ)).width(5),
    integer("styp", KOVREL_MEMBER(T, styp)).width(3),
    integer("ara", KOVREL_MEMBER(T, ara)).width(14),
    integer("rac", KOVREL_MEMBER(T, rac)).width(4),
    flag("rat", KOVREL_MEMBER(T, rat)),
    flag("mte", KOVREL_MEMBER(T, mte)),
    integer("tti", KOVREL_MEMBER(T, tti)).width(2),
    integer("tid", KOVREL_MEMBER(T, tid)).width(26),
};

}  // namespace

constinit const FieldDesc k021_260 = describe<T, init_valid<T, ast_dataitem_021_260_init>>(kRows);

}  // namespace kovrel::fields
