// CAT021 one-octet status items: aircraft operational status (008), service
// management (016), emitter category (020), time of day accuracy (032),
// velocity accuracy (095), signal and message amplitude (21904, 132),
// target status of both generations (200, 21908), MOPS version (210), link
// technology of the early editions (21906) and receiver ID (400).
#include "categories/cat021/support.h"
#include "items/item_ex.h"
#include "kovrel/cat021.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
using kovrel::cat021::Detail;
using kovrel::cat021::FlagList;
namespace items = kovrel::items;

// The octet of a one-octet item of identifier id, when the span is one.
bool octet_of(const AstDataItem *item, AstItemId id, uint8_t *octet) {
    if (!items::span_ok(item, 1) || item->id != id) return false;
    *octet = item->data[0];
    return true;
}

// Starts a one-octet encoder: false (nothing written) without room or a valid value.
template <typename T>
bool begin1(AstDataItem *out, uint8_t *buffer, size_t size, const T *in) {
    return items::encode_begin(out, buffer, size, 1) && in && in->valid == 1;
}

void done1(AstDataItem *out, uint8_t *buffer, uint8_t octet) {
    buffer[0] = octet;
    items::encode_done(out, buffer, 1);
}

constexpr double kPeriodLsb = 0.5;         // s
constexpr double kAccuracyLsb = 1.0 / 256;  // s
constexpr double kMaxPeriod = 127.5;        // s, the largest the octet holds

const char *const kSurveillance[4] = {" SUR:NO_RPT", " SUR:PERM_ALR", " SUR:TEMP_ALR", " SUR:SPI"};
const char *const kLinks[5] = {" LINK:OTHER", " LINK:UAT", " LINK:1090ES", " LINK:VDL4", " LINK:UNKNOWN"};
constexpr uint32_t kUnknownLink = 4;

}  // namespace

extern "C" {

// ---- I021/008 Aircraft Operational Status -----------------------------------

KOVREL_API void ast_dataitem_021_008_init(AstItem021_008 *out) {
    if (out) *out = AstItem021_008{};
}

// TC is two bits wide in the standard; only its upper bit is kept, as a
// flag, which is what the reports of the ground stations in use carry.
KOVREL_API void ast_dataitem_021_008_decode(AstItem021_008 *out, const AstDataItem *item) {
    ast_dataitem_021_008_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21008, &o)) return;
    out->ra = o >> 7;
    out->tc = (o >> 6) & 1u;
    out->ts = (o >> 4) & 1u;
    out->arv = (o >> 3) & 1u;
    out->cdti_a = (o >> 2) & 1u;
    out->not_tcas = (o >> 1) & 1u;
    out->sa = o & 1u;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_008_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_008 *in) {
    if (!begin1(out, buffer, size, in)) return;
    done1(out, buffer,
          static_cast<uint8_t>((in->ra ? 0x80u : 0u) | (in->tc ? 0x40u : 0u) | (in->ts ? 0x10u : 0u) |
                               (in->arv ? 0x08u : 0u) | (in->cdti_a ? 0x04u : 0u) | (in->not_tcas ? 0x02u : 0u) |
                               (in->sa ? 0x01u : 0u)));
}

KOVREL_API void ast_dataitem_021_008_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_008_decode, [](TextWriter &w, const auto &d) {
        FlagList f(w);
        f.add(d.ra, "RA ");
        f.add(d.tc, "TC0 ");
        f.add(d.ts, "TS ");
        f.add(d.arv, "ARV ");
        f.add(d.cdti_a, "CDTI ");
        f.add(d.not_tcas, "NO_TCAS ");
        f.add(d.sa, "SA ");
        f.finish("NO_INFO");
    });
}

KOVREL_API void ast_dataitem_021_008_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_008_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.flag("Bit[1]", "RA", "TCAS_RESOLUTION_ADVISORY_ACTIVE", d.ra);
        t.flag("Bit[2]", "TC", "TRAJECTORY_CHANGE_REPORT_CAPABILITY", d.tc);
        t.flag("Bit[4]", "TS", "TARGET_STATE_REPORT_CAPABILITY", d.ts);
        t.flag("Bit[5]", "ARV", "AIR_REFERENCED_VELOCITY_REPORT_CAPABILITY", d.arv);
        t.flag("Bit[6]", "CDTI/A", "CDTI_AIRBORNE_OPERATIONAL", d.cdti_a);
        t.flag("Bit[7]", "NOT_TCAS", "TCAS_NOT_OPERATIONAL", d.not_tcas);
        t.flag("Bit[8]", "SA", "SINGLE_ANTENNA", d.sa);
        t.end();
    });
}

// ---- I021/016 Service Management ---------------------------------------------

KOVREL_API void ast_dataitem_021_016_init(AstItem021_016 *out) {
    if (!out) return;
    *out = AstItem021_016{};
    out->lsb = kPeriodLsb;
}

KOVREL_API void ast_dataitem_021_016_decode(AstItem021_016 *out, const AstDataItem *item) {
    ast_dataitem_021_016_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21016, &o)) return;
    out->raw = o;
    out->period = o * kPeriodLsb;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_016_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_016 *in) {
    if (!begin1(out, buffer, size, in) || in->raw > 0xFFu) return;
    done1(out, buffer, static_cast<uint8_t>(in->raw));
}

KOVREL_API void ast_dataitem_021_016_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_016_decode, [](TextWriter &w, const auto &d) {
        if (d.period <= 0)
            w.append("DATA_DRIVEN_MODE");
        else if (d.period >= kMaxPeriod)
            w.append("PR:>=127.50SEC");
        else
            w.appendf("PR:%.2fSEC", d.period);
    });
}

KOVREL_API void ast_dataitem_021_016_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_016_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-8]", "RP", "REPORT_PERIOD", "%.2f s", d.period);
        t.end();
    });
}

// ---- I021/020 Emitter Category -------------------------------------------------

KOVREL_API void ast_dataitem_021_020_init(AstItem021_020 *out) {
    if (out) *out = AstItem021_020{};
}

KOVREL_API void ast_dataitem_021_020_decode(AstItem021_020 *out, const AstDataItem *item) {
    ast_dataitem_021_020_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21020, &o)) return;
    out->ecat = ast_emitter_category_from_int(o);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_020 *in) {
    if (!begin1(out, buffer, size, in) || in->ecat > 24) return;
    done1(out, buffer, static_cast<uint8_t>(in->ecat));
}

KOVREL_API void ast_dataitem_021_020_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_020_decode, [](TextWriter &w, const auto &d) {
        w.append("EMITTER:");
        w.append(ast_emitter_category_to_str(d.ecat, 0));
    });
}

KOVREL_API void ast_dataitem_021_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_020_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.row("Bit[1-8]", "ECAT", "EMITTER_CATEGORY", ast_emitter_category_to_str(d.ecat, 1));
        t.end();
    });
}

// ---- I021/032 Time of Day Accuracy ---------------------------------------------

KOVREL_API void ast_dataitem_021_032_init(AstItem021_032 *out) {
    if (!out) return;
    *out = AstItem021_032{};
    out->lsb = kAccuracyLsb;
}

KOVREL_API void ast_dataitem_021_032_decode(AstItem021_032 *out, const AstDataItem *item) {
    ast_dataitem_021_032_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21032, &o)) return;
    out->raw = o;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_032_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_032 *in) {
    if (!begin1(out, buffer, size, in) || in->raw > 0xFFu) return;
    done1(out, buffer, static_cast<uint8_t>(in->raw));
}

KOVREL_API void ast_dataitem_021_032_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_032_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("TOD_ACCU:%.2fS", d.raw * d.lsb); });
}

KOVREL_API void ast_dataitem_021_032_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_032_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-8]", "TDA", "TIME_OF_DAY_ACCURACY", "%.8f s", d.raw * d.lsb);
        t.end();
    });
}

// ---- I021/095 Velocity Accuracy, 21904 Signal Amplitude, I021/132 Message
// Amplitude, I021/400 Receiver ID: one number each ------------------------------

KOVREL_API void ast_dataitem_021_095_init(AstItem021_095 *out) {
    if (out) *out = AstItem021_095{};
}

KOVREL_API void ast_dataitem_021_095_decode(AstItem021_095 *out, const AstDataItem *item) {
    ast_dataitem_021_095_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21095, &o)) return;
    out->va = o;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_095_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_095 *in) {
    if (!begin1(out, buffer, size, in) || in->va > 0xFFu) return;
    done1(out, buffer, static_cast<uint8_t>(in->va));
}

KOVREL_API void ast_dataitem_021_095_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_095_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("VA:%d", static_cast<int>(d.va)); });
}

KOVREL_API void ast_dataitem_021_095_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_095_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-8]", "VA", "VELOCITY_ACCURACY", "%u", d.va);
        t.end();
    });
}

KOVREL_API void ast_dataitem_021_A04_init(AstItem021_A04 *out) {
    if (out) *out = AstItem021_A04{};
}

KOVREL_API void ast_dataitem_021_A04_decode(AstItem021_A04 *out, const AstDataItem *item) {
    ast_dataitem_021_A04_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21904, &o)) return;
    out->sam = o;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_A04_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A04 *in) {
    if (!begin1(out, buffer, size, in) || in->sam > 0xFFu) return;
    done1(out, buffer, static_cast<uint8_t>(in->sam));
}

KOVREL_API void ast_dataitem_021_A04_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A04_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("SAM:%d", static_cast<int>(d.sam)); });
}

KOVREL_API void ast_dataitem_021_A04_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A04_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-8]", "SAM", "SIGNAL_AMPLITUDE", "%u", d.sam);
        t.end();
    });
}

KOVREL_API void ast_dataitem_021_132_init(AstItem021_132 *out) {
    if (out) *out = AstItem021_132{};
}

KOVREL_API void ast_dataitem_021_132_decode(AstItem021_132 *out, const AstDataItem *item) {
    ast_dataitem_021_132_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21132, &o)) return;
    out->mam = static_cast<int8_t>(o);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_132_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_132 *in) {
    if (!begin1(out, buffer, size, in) || in->mam < -128 || in->mam > 127) return;
    done1(out, buffer, static_cast<uint8_t>(in->mam & 0xFF));
}

KOVREL_API void ast_dataitem_021_132_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_132_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("MAM:%d", static_cast<int>(d.mam)); });
}

KOVREL_API void ast_dataitem_021_132_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_132_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-8]", "MAM", "MESSAGE_AMPLITUDE", "%d dBm", static_cast<int>(d.mam));
        t.end();
    });
}

KOVREL_API void ast_dataitem_021_400_init(AstItem021_400 *out) {
    if (out) *out = AstItem021_400{};
}

KOVREL_API void ast_dataitem_021_400_decode(AstItem021_400 *out, const AstDataItem *item) {
    ast_dataitem_021_400_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21400, &o)) return;
    out->rid = o;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_400_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_400 *in) {
    if (!begin1(out, buffer, size, in) || in->rid > 0xFFu) return;
    done1(out, buffer, static_cast<uint8_t>(in->rid));
}

KOVREL_API void ast_dataitem_021_400_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_400_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("RID:%u", d.rid); });
}

KOVREL_API void ast_dataitem_021_400_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_400_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-8]", "RID", "RECEIVER_ID", "%u", d.rid);
        t.end();
    });
}

// ---- I021/200 Target Status and 21908, its form in editions up to 0.26 ---------

KOVREL_API void ast_dataitem_021_200_init(AstItem021_200 *out) {
    if (out) *out = AstItem021_200{};
}

KOVREL_API void ast_dataitem_021_200_decode(AstItem021_200 *out, const AstDataItem *item) {
    ast_dataitem_021_200_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21200, &o)) return;
    out->icf = o >> 7;
    out->lnav = (o >> 6) & 1u;
    out->me = (o >> 5) & 1u;
    out->ps = ast_emergency_status_from_int((o >> 2) & 7u);
    out->ss = o & 3u;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_200_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_200 *in) {
    if (!begin1(out, buffer, size, in) || in->ps > 7 || in->ss > 3) return;
    done1(out, buffer,
          static_cast<uint8_t>((in->icf ? 0x80u : 0u) | (in->lnav ? 0x40u : 0u) | (in->me ? 0x20u : 0u) |
                               (in->ps << 2) | in->ss));
}

KOVREL_API void ast_dataitem_021_200_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_200_decode, [](TextWriter &w, const auto &d) {
        w.append("EMG:");
        w.append(ast_emergency_status_to_str(d.ps));
        w.append(kSurveillance[d.ss & 3u]);
    });
}

KOVREL_API void ast_dataitem_021_200_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_200_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.flag("Bit[1]", "ICF", "INTENT_CHANGE_FLAG", d.icf);
        t.flag("Bit[2]", "LNAV", "LNAV_MODE_NOT_ENGAGED", d.lnav);
        t.flag("Bit[3]", "ME", "MILITARY_EMERGENCY", d.me);
        t.row("Bit[4-6]", "PS", "PRIORITY_STATUS", ast_emergency_status_to_str(d.ps));
        t.row("Bit[7-8]", "SS", "SURVEILLANCE_STATUS", kSurveillance[d.ss & 3u] + 5);
        t.end();
    });
}

KOVREL_API void ast_dataitem_021_A08_init(AstItem021_A08 *out) {
    if (out) *out = AstItem021_A08{};
}

KOVREL_API void ast_dataitem_021_A08_decode(AstItem021_A08 *out, const AstDataItem *item) {
    ast_dataitem_021_A08_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21908, &o)) return;
    out->status = ast_emergency_status_from_int(o);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_A08_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A08 *in) {
    if (!begin1(out, buffer, size, in) || in->status > 7) return;
    done1(out, buffer, static_cast<uint8_t>(in->status));
}

KOVREL_API void ast_dataitem_021_A08_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A08_decode, [](TextWriter &w, const auto &d) {
        w.append("EMG:");
        w.append(ast_emergency_status_to_str(d.status));
    });
}

KOVREL_API void ast_dataitem_021_A08_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A08_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.row("Bit[1-8]", "TS", "TARGET_STATUS", ast_emergency_status_to_str(d.status));
        t.end();
    });
}

// ---- I021/210 MOPS Version and 21906 Link Technology Indicator -----------------

KOVREL_API void ast_dataitem_021_210_init(AstItem021_210 *out) {
    if (out) *out = AstItem021_210{};
}

KOVREL_API void ast_dataitem_021_210_decode(AstItem021_210 *out, const AstDataItem *item) {
    ast_dataitem_021_210_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21210, &o)) return;
    out->vns = (o >> 6) & 1u;
    out->vn = (o >> 3) & 7u;
    out->ltt = (o & 7u) < kUnknownLink ? (o & 7u) : kUnknownLink;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_210_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_210 *in) {
    if (!begin1(out, buffer, size, in) || in->vn > 7 || in->ltt > kUnknownLink) return;
    done1(out, buffer, static_cast<uint8_t>((in->vns ? 0x40u : 0u) | (in->vn << 3) | in->ltt));
}

KOVREL_API void ast_dataitem_021_210_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_210_decode, [](TextWriter &w, const auto &d) {
        w.appendf("VN:%u", d.vn);
        w.append(kLinks[d.ltt < kUnknownLink ? d.ltt : kUnknownLink]);
    });
}

KOVREL_API void ast_dataitem_021_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_210_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.flag("Bit[2]", "VNS", "VERSION_NOT_SUPPORTED", d.vns);
        t.rowf("Bit[3-5]", "VN", "VERSION_NUMBER", "%u", d.vn);
        t.row("Bit[6-8]", "LTT", "LINK_TECHNOLOGY_TYPE", kLinks[d.ltt < kUnknownLink ? d.ltt : kUnknownLink] + 6);
        t.end();
    });
}

KOVREL_API void ast_dataitem_021_A06_init(AstItem021_A06 *out) {
    if (out) *out = AstItem021_A06{};
}

KOVREL_API void ast_dataitem_021_A06_decode(AstItem021_A06 *out, const AstDataItem *item) {
    ast_dataitem_021_A06_init(out);
    uint8_t o = 0;
    if (!out || !octet_of(item, 21906, &o)) return;
    out->dti = (o >> 4) & 1u;
    out->mds = (o >> 3) & 1u;
    out->uat = (o >> 2) & 1u;
    out->vdl = (o >> 1) & 1u;
    out->otr = o & 1u;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_A06_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A06 *in) {
    if (!begin1(out, buffer, size, in)) return;
    done1(out, buffer,
          static_cast<uint8_t>((in->dti ? 0x10u : 0u) | (in->mds ? 0x08u : 0u) | (in->uat ? 0x04u : 0u) |
                               (in->vdl ? 0x02u : 0u) | (in->otr ? 0x01u : 0u)));
}

KOVREL_API void ast_dataitem_021_A06_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A06_decode, [](TextWriter &w, const auto &d) {
        w.append("LINK:");
        if (d.dti) w.append(" CDTI");
        if (d.mds) w.append(" MODE_S");
        if (d.uat) w.append(" UAT");
        if (d.vdl) w.append(" VDL4");
        if (d.otr) w.append(" OTHER");
        if (!(d.dti || d.mds || d.uat || d.vdl || d.otr)) w.append(" NONE");
    });
}

KOVREL_API void ast_dataitem_021_A06_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A06_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.flag("Bit[4]", "DTI", "COCKPIT_DISPLAY_OF_TRAFFIC_INFORMATION", d.dti);
        t.flag("Bit[5]", "MDS", "MODE_S_EXTENDED_SQUITTER", d.mds);
        t.flag("Bit[6]", "UAT", "UNIVERSAL_ACCESS_TRANSCEIVER", d.uat);
        t.flag("Bit[7]", "VDL", "VDL_MODE_4", d.vdl);
        t.flag("Bit[8]", "OTR", "OTHER_TECHNOLOGY", d.otr);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(021_008, AstItem021_008, ast_dataitem_021_008_decode)
KOVREL_ENCODE_EX(021_008, AstItem021_008, ast_dataitem_021_008_encode)
KOVREL_DECODE_EX(021_016, AstItem021_016, ast_dataitem_021_016_decode)
KOVREL_ENCODE_EX(021_016, AstItem021_016, ast_dataitem_021_016_encode)
KOVREL_DECODE_EX(021_020, AstItem021_020, ast_dataitem_021_020_decode)
KOVREL_ENCODE_EX(021_020, AstItem021_020, ast_dataitem_021_020_encode)
KOVREL_DECODE_EX(021_032, AstItem021_032, ast_dataitem_021_032_decode)
KOVREL_ENCODE_EX(021_032, AstItem021_032, ast_dataitem_021_032_encode)
KOVREL_DECODE_EX(021_095, AstItem021_095, ast_dataitem_021_095_decode)
KOVREL_ENCODE_EX(021_095, AstItem021_095, ast_dataitem_021_095_encode)
KOVREL_DECODE_EX(021_A04, AstItem021_A04, ast_dataitem_021_A04_decode)
KOVREL_ENCODE_EX(021_A04, AstItem021_A04, ast_dataitem_021_A04_encode)
KOVREL_DECODE_EX(021_132, AstItem021_132, ast_dataitem_021_132_decode)
KOVREL_ENCODE_EX(021_132, AstItem021_132, ast_dataitem_021_132_encode)
KOVREL_DECODE_EX(021_400, AstItem021_400, ast_dataitem_021_400_decode)
KOVREL_ENCODE_EX(021_400, AstItem021_400, ast_dataitem_021_400_encode)
KOVREL_DECODE_EX(021_200, AstItem021_200, ast_dataitem_021_200_decode)
KOVREL_ENCODE_EX(021_200, AstItem021_200, ast_dataitem_021_200_encode)
KOVREL_DECODE_EX(021_A08, AstItem021_A08, ast_dataitem_021_A08_decode)
KOVREL_ENCODE_EX(021_A08, AstItem021_A08, ast_dataitem_021_A08_encode)
KOVREL_DECODE_EX(021_210, AstItem021_210, ast_dataitem_021_210_decode)
KOVREL_ENCODE_EX(021_210, AstItem021_210, ast_dataitem_021_210_encode)
KOVREL_DECODE_EX(021_A06, AstItem021_A06, ast_dataitem_021_A06_decode)
KOVREL_ENCODE_EX(021_A06, AstItem021_A06, ast_dataitem_021_A06_encode)

namespace kovrel::fields {

namespace {

const char *emitter_name(uint32_t v) { return ast_emitter_category_to_str(v, 0); }
const char *link_name(uint32_t v) { return v <= kUnknownLink ? kLinks[v] + 6 : nullptr; }
const char *surveillance_name(uint32_t v) { return v < 4 ? kSurveillance[v] + 5 : nullptr; }

using T008 = AstItem021_008;
constexpr FieldRow k008[] = {
    flag("ra", KOVREL_MEMBER(T008, ra)),         flag("tc", KOVREL_MEMBER(T008, tc)),
    flag("ts", KOVREL_MEMBER(T008, ts)),         flag("arv", KOVREL_MEMBER(T008, arv)),
    flag("cdti_a", KOVREL_MEMBER(T008, cdti_a)), flag("not_tcas", KOVREL_MEMBER(T008, not_tcas)),
    flag("sa", KOVREL_MEMBER(T008, sa)),
};
using T016 = AstItem021_016;
constexpr FieldRow k016[] = {scaled("rp", KOVREL_MEMBER(T016, raw), kPeriodLsb, "s").width(8)};
using T020 = AstItem021_020;
constexpr FieldRow k020[] = {enumeration("ecat", KOVREL_MEMBER(T020, ecat), emitter_name).width(5)};
using T032 = AstItem021_032;
constexpr FieldRow k032[] = {scaled("tda", KOVREL_MEMBER(T032, raw), kAccuracyLsb, "s").width(8)};
using T095 = AstItem021_095;
constexpr FieldRow k095[] = {integer("va", KOVREL_MEMBER(T095, va)).width(8)};
using TA04 = AstItem021_A04;
constexpr FieldRow kA04[] = {integer("sam", KOVREL_MEMBER(TA04, sam)).width(8)};
using T132 = AstItem021_132;
constexpr FieldRow k132[] = {integer("mam", KOVREL_MEMBER(T132, mam), "dBm").width(8)};
using T400 = AstItem021_400;
constexpr FieldRow k400[] = {integer("rid", KOVREL_MEMBER(T400, rid)).width(8)};
using T200 = AstItem021_200;
constexpr FieldRow k200[] = {
    flag("icf", KOVREL_MEMBER(T200, icf)),
    flag("lnav", KOVREL_MEMBER(T200, lnav)),
    flag("me", KOVREL_MEMBER(T200, me)),
    enumeration("ps", KOVREL_MEMBER(T200, ps), ast_emergency_status_to_str).width(3),
    enumeration("ss", KOVREL_MEMBER(T200, ss), surveillance_name).width(2),
};
using TA08 = AstItem021_A08;
constexpr FieldRow kA08[] = {enumeration("ts", KOVREL_MEMBER(TA08, status), ast_emergency_status_to_str).width(3)};
using T210 = AstItem021_210;
constexpr FieldRow k210[] = {
    flag("vns", KOVREL_MEMBER(T210, vns)),
    integer("vn", KOVREL_MEMBER(T210, vn)).width(3),
    enumeration("ltt", KOVREL_MEMBER(T210, ltt), link_name).width(3),
};
using TA06 = AstItem021_A06;
constexpr FieldRow kA06[] = {
    flag("dti", KOVREL_MEMBER(TA06, dti)), flag("mds", KOVREL_MEMBER(TA06, mds)),
    flag("uat", KOVREL_MEMBER(TA06, uat)), flag("vdl", KOVREL_MEMBER(TA06, vdl)),
    flag("otr", KOVREL_MEMBER(TA06, otr)),
};

}  // namespace

constinit const FieldDesc k021_008 = describe<T008, init_valid<T008, ast_dataitem_021_008_init>>(k008);
constinit const FieldDesc k021_016 = describe<T016, init_valid<T016, ast_dataitem_021_016_init>>(k016);
constinit const FieldDesc k021_020 = describe<T020, init_valid<T020, ast_dataitem_021_020_init>>(k020);
constinit const FieldDesc k021_032 = describe<T032, init_valid<T032, ast_dataitem_021_032_init>>(k032);
constinit const FieldDesc k021_095 = describe<T095, init_valid<T095, ast_dataitem_021_095_init>>(k095);
constinit const FieldDesc k021_A04 = describe<TA04, init_valid<TA04, ast_dataitem_021_A04_init>>(kA04);
constinit const FieldDesc k021_132 = describe<T132, init_valid<T132, ast_dataitem_021_132_init>>(k132);
constinit const FieldDesc k021_400 = describe<T400, init_valid<T400, ast_dataitem_021_400_init>>(k400);
constinit const FieldDesc k021_200 = describe<T200, init_valid<T200, ast_dataitem_021_200_init>>(k200);
constinit const FieldDesc k021_A08 = describe<TA08, init_valid<TA08, ast_dataitem_021_A08_init>>(kA08);
constinit const FieldDesc k021_210 = describe<T210, init_valid<T210, ast_dataitem_021_210_init>>(k210);
constinit const FieldDesc k021_A06 = describe<TA06, init_valid<TA06, ast_dataitem_021_A06_init>>(kA06);

}  // namespace kovrel::fields

// The one-number items keep to one 64-bit word, valid flag included.
static_assert(sizeof(AstItem021_020) <= 8 && sizeof(AstItem021_095) <= 8 && sizeof(AstItem021_A04) <= 8 &&
                  sizeof(AstItem021_132) <= 8 && sizeof(AstItem021_151) <= 8 && sizeof(AstItem021_A08) <= 8 &&
                  sizeof(AstItem021_400) <= 8,
              "one-number items fit a 64-bit word");
