// CAT021 report descriptors and quality: the target report descriptor of
// editions 1.x/2.x (040) and of editions up to 0.26 (21903), the quality
// indicators (090) and the figure of merit of the early editions (21905).
//
// The two descriptors code the address type and the altitude reporting
// capability differently; both decode to one convention so that consumers
// compare reports of any edition: address type 0 is the 24-bit ICAO address
// (raw 0 and 1 are exchanged in 21903), and ARC 0 is unknown, 1 25 ft,
// 2 100 ft, 3 invalid (I021/040 sends 25 ft as 0, 100 ft as 1, unknown as 2).
#include "categories/cat021/support.h"
#include "items/item_ex.h"
#include "kovrel/cat021.h"

namespace {

using kovrel::TextWriter;
using kovrel::cat021::Detail;
using kovrel::cat021::FlagList;
namespace items = kovrel::items;

constexpr uint32_t kReservedAddress = 4;
constexpr uint32_t kArcFromWire[4] = {1, 2, 0, 3};  // I021/040 ARC to the common coding
constexpr uint32_t kArcToWire[4] = {2, 0, 1, 3};

const char *arc_text(uint32_t arc) {
    switch (arc) {
    case 0: return "UNKNOWN";
    case 1: return "25FT";
    case 2: return "100FT";
    default: return "RESERVED";
    }
}

// Address type as the detail view shows it.
void atp_row(Detail &t, const char *bits, uint32_t atp) {
    if (atp >= kReservedAddress)
        t.row(bits, "ATP", "ADDRESS_TYPE", "RESERVED");
    else
        t.rowf(bits, "ATP", "ADDRESS_TYPE", "%u", atp);
}

// 21903 exchanges the codes 0 and 1 against I021/040; 2 and 3 are the same.
constexpr uint32_t swap01(uint32_t v) { return v == 0 ? 1 : v == 1 ? 0 : v; }

// Sets the FX bit of every octet but the last of an n-octet chain.
void chain_fx(uint8_t *o, size_t n) {
    for (size_t i = 0; i < n; ++i) o[i] = static_cast<uint8_t>((o[i] & 0xFEu) | (i + 1 < n ? 1u : 0u));
}

}  // namespace

extern "C" {

// ---- I021/040 Target Report Descriptor -----------------------------------------

KOVREL_API void ast_dataitem_021_040_init(AstItem021_040 *out) {
    if (out) *out = AstItem021_040{};
}

// Up to three octets are read; the item's length says which are there.
KOVREL_API void ast_dataitem_021_040_decode(AstItem021_040 *out, const AstDataItem *item) {
    ast_dataitem_021_040_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != 21040) return;
    const uint8_t *p = item->data;
    const uint32_t atp = p[0] >> 5;
    out->atp = atp < kReservedAddress ? atp : kReservedAddress;
    out->arc = kArcFromWire[(p[0] >> 3) & 3u];
    out->rc = (p[0] >> 2) & 1u;
    out->rab = (p[0] >> 1) & 1u;
    if (item->length >= 2) {
        out->ext1_present = 1;
        out->dcr = p[1] >> 7;
        out->gbs = (p[1] >> 6) & 1u;
        out->sim = (p[1] >> 5) & 1u;
        out->tst = (p[1] >> 4) & 1u;
        out->saa = (p[1] >> 3) & 1u;
        out->cl = (p[1] >> 1) & 3u;
    }
    if (item->length >= 3) {
        out->ext2_present = 1;
        out->bit7 = (p[2] >> 6) & 1u;
        out->ipc = (p[2] >> 5) & 1u;
        out->nogo = (p[2] >> 4) & 1u;
        out->cpr = (p[2] >> 3) & 1u;
        out->ldpj = (p[2] >> 2) & 1u;
        out->rcf = (p[2] >> 1) & 1u;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_040 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->atp > kReservedAddress || in->arc > 3 || in->cl > 3) return;
    const bool third = in->ext2_present || in->bit7 || in->ipc || in->nogo || in->cpr || in->ldpj || in->rcf;
    const bool second = third || in->ext1_present || in->dcr || in->gbs || in->sim || in->tst || in->saa || in->cl;
    const size_t length = third ? 3 : second ? 2 : 1;
    if (size < length) return;
    uint8_t o[3] = {
        static_cast<uint8_t>((in->atp << 5) | (kArcToWire[in->arc] << 3) | (in->rc ? 0x04u : 0u) |
                             (in->rab ? 0x02u : 0u)),
        static_cast<uint8_t>((in->dcr ? 0x80u : 0u) | (in->gbs ? 0x40u : 0u) | (in->sim ? 0x20u : 0u) |
                             (in->tst ? 0x10u : 0u) | (in->saa ? 0x08u : 0u) | (in->cl << 1)),
        static_cast<uint8_t>((in->bit7 ? 0x40u : 0u) | (in->ipc ? 0x20u : 0u) | (in->nogo ? 0x10u : 0u) |
                             (in->cpr ? 0x08u : 0u) | (in->ldpj ? 0x04u : 0u) | (in->rcf ? 0x02u : 0u)),
    };
    chain_fx(o, length);
    for (size_t i = 0; i < length; ++i) buffer[i] = o[i];
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_021_040_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_040_decode, [](TextWriter &w, const auto &d) {
        w.append("TARGET:");
        FlagList f(w);
        f.add(d.gbs, "GBS ");
        f.add(d.sim, "SIM ");
        f.add(d.tst, "TST ");
        f.finish("NORMAL");
    });
}

KOVREL_API void ast_dataitem_021_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_040_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        atp_row(t, "Bit[1-3]", d.atp);
        t.row("Bit[4-5]", "ARC", "ALTITUDE_REPORT_CAPABILITY", arc_text(d.arc));
        t.flag("Bit[6]", "RC", "RANGE_CHECK", d.rc);
        t.flag("Bit[7]", "RAB", "FIXED_TRANSPONDER_REPORT", d.rab);
        t.flag("Bit[9]", "DCR", "DIFFERENTIAL_CORRECTION", d.dcr);
        t.flag("Bit[10]", "GBS", "GROUND_BIT_SET", d.gbs);
        t.flag("Bit[11]", "SIM", "SIMULATED_TARGET_REPORT", d.sim);
        t.flag("Bit[12]", "TST", "TEST_TARGET", d.tst);
        t.flag("Bit[13]", "SAA", "NO_SELECTED_ALTITUDE_CAPABILITY", d.saa);
        t.rowf("Bit[14-15]", "CL", "CONFIDENCE_LEVEL", "%u", d.cl);
        t.row("Bit[17-18]", "---", "SPARE", "0");
        // The misspelling is the text consumers have always matched on.
        t.flag("Bit[19]", "IPC", "INDEPENDENT_PONSITION_CHECK_FAILED", d.ipc);
        t.flag("Bit[20]", "NOGO", "NOGO_BIT_SET", d.nogo);
        t.flag("Bit[21]", "CPR", "CPR_VALIDATION_FAILED", d.cpr);
        t.flag("Bit[22]", "LDPJ", "LDPJ_DETECTED", d.ldpj);
        t.flag("Bit[23]", "RCF", "RANGE_CHECK_FAILED", d.rcf);
        t.end();
    });
}

// ---- 21903 Target Report Descriptor of editions up to 0.26 ---------------------

KOVREL_API void ast_dataitem_021_A03_init(AstItem021_A03 *out) {
    if (out) *out = AstItem021_A03{};
}

KOVREL_API void ast_dataitem_021_A03_decode(AstItem021_A03 *out, const AstDataItem *item) {
    ast_dataitem_021_A03_init(out);
    if (!out || !items::span_ok(item, 2) || item->id != 21903) return;
    const uint8_t *p = item->data;
    out->dcr = p[0] >> 7;
    out->gbs = (p[0] >> 6) & 1u;
    out->sim = (p[0] >> 5) & 1u;
    out->tst = (p[0] >> 4) & 1u;
    out->rab = (p[0] >> 3) & 1u;
    out->saa = (p[0] >> 2) & 1u;
    out->spi = (p[0] >> 1) & 1u;
    const uint32_t atp = p[1] >> 5;
    out->atp = atp < kReservedAddress ? swap01(atp) : kReservedAddress;
    out->arc = (p[1] >> 3) & 3u;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_A03_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A03 *in) {
    if (!items::encode_begin(out, buffer, size, 2)) return;
    if (!in || in->valid != 1 || in->atp > kReservedAddress || in->arc > 3) return;
    buffer[0] = static_cast<uint8_t>((in->dcr ? 0x80u : 0u) | (in->gbs ? 0x40u : 0u) | (in->sim ? 0x20u : 0u) |
                                     (in->tst ? 0x10u : 0u) | (in->rab ? 0x08u : 0u) | (in->saa ? 0x04u : 0u) |
                                     (in->spi ? 0x02u : 0u));
    buffer[1] = static_cast<uint8_t>((swap01(in->atp) << 5) | (in->arc << 3));
    items::encode_done(out, buffer, 2);
}

KOVREL_API void ast_dataitem_021_A03_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A03_decode, [](TextWriter &w, const auto &d) {
        w.append("TARGET:");
        FlagList f(w);
        f.add(d.gbs, "GBS ");
        f.add(d.sim, "SIM ");
        f.add(d.tst, "TST ");
        f.add(d.spi, "SPI ");
        f.finish("NORMAL");
    });
}

KOVREL_API void ast_dataitem_021_A03_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A03_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.flag("Bit[1]", "DCR", "DIFFERENTIAL_CORRECTION", d.dcr);
        t.flag("Bit[2]", "GBS", "GROUND_BIT_SET", d.gbs);
        t.flag("Bit[3]", "SIM", "SIMULATED_TARGET_REPORT", d.sim);
        t.flag("Bit[4]", "TST", "TEST_TARGET", d.tst);
        t.flag("Bit[5]", "RAB", "FIXED_TRANSPONDER_REPORT", d.rab);
        t.flag("Bit[6]", "SAA", "NO_SELECTED_ALTITUDE_CAPABILITY", d.saa);
        t.flag("Bit[7]", "SPI", "SPECIAL_POSITION_IDENTIFICATION", d.spi);
        atp_row(t, "Bit[9-11]", d.atp);
        t.row("Bit[12-13]", "ARC", "ALTITUDE_REPORT_CAPABILITY", arc_text(d.arc));
        t.end();
    });
}

// ---- I021/090 Quality Indicators -------------------------------------------------

KOVREL_API void ast_dataitem_021_090_init(AstItem021_090 *out) {
    if (out) *out = AstItem021_090{};
}

KOVREL_API void ast_dataitem_021_090_decode(AstItem021_090 *out, const AstDataItem *item) {
    ast_dataitem_021_090_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != 21090) return;
    const uint8_t *p = item->data;
    out->nucr_nacv = p[0] >> 5;
    out->nucp_nic = (p[0] >> 1) & 0x0Fu;
    if (item->length >= 2) {
        out->nic_baro_present = out->sil_present = out->nacp_present = 1;
        out->nic_baro = p[1] >> 7;
        out->sil = (p[1] >> 5) & 3u;
        out->nacp = (p[1] >> 1) & 0x0Fu;
    }
    if (item->length >= 3) {
        out->sil_sup_present = out->sda_present = out->gva_present = 1;
        out->sil_sup = (p[2] >> 5) & 1u;
        out->sda = (p[2] >> 3) & 3u;
        out->gva = (p[2] >> 1) & 3u;
    }
    if (item->length >= 4) {
        out->pic_present = 1;
        out->pic = p[3] >> 4;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_090_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_090 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->nucr_nacv > 7 || in->nucp_nic > 15 || in->nic_baro > 1 || in->sil > 3 ||
        in->nacp > 15 || in->sil_sup > 1 || in->sda > 3 || in->gva > 3 || in->pic > 15)
        return;
    size_t length = 1;
    if (in->nic_baro_present || in->sil_present || in->nacp_present) length = 2;
    if (in->sil_sup_present || in->sda_present || in->gva_present) length = 3;
    if (in->pic_present) length = 4;
    if (size < length) return;
    uint8_t o[4] = {
        static_cast<uint8_t>((in->nucr_nacv << 5) | (in->nucp_nic << 1)),
        static_cast<uint8_t>((in->nic_baro << 7) | (in->sil << 5) | (in->nacp << 1)),
        static_cast<uint8_t>((in->sil_sup << 5) | (in->sda << 3) | (in->gva << 1)),
        static_cast<uint8_t>(in->pic << 4),
    };
    chain_fx(o, length);
    for (size_t i = 0; i < length; ++i) buffer[i] = o[i];
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_021_090_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_090_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("NUCR:%u NUCP:%u", d.nucr_nacv, d.nucp_nic); });
}

KOVREL_API void ast_dataitem_021_090_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_090_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-3]", "NUCr/NACv", "NAVIGATION_UNCERTAINTY_VELOCITY", "%u", d.nucr_nacv);
        t.rowf("Bit[4-7]", "NUCp/NIC", "NAVIGATION_UNCERTAINTY_POSITION", "%u", d.nucp_nic);
        if (d.nic_baro_present) {
            t.flag("Bit[9]", "NICbaro", "NAVIGATION_INTEGRITY_BARO", d.nic_baro);
            t.rowf("Bit[10-11]", "SIL", "SURVEILLANCE_INTEGRITY_LEVEL", "%u", d.sil);
            t.rowf("Bit[12-15]", "NACp", "NAVIGATION_ACCURACY_POSITION", "%u", d.nacp);
        }
        if (d.sil_sup_present) {
            t.flag("Bit[19]", "SILS", "SIL_SUPPLEMENT_PER_SAMPLE", d.sil_sup);
            t.rowf("Bit[20-21]", "SDA", "SYSTEM_DESIGN_ASSURANCE", "%u", d.sda);
            t.rowf("Bit[22-23]", "GVA", "GEOMETRIC_ALTITUDE_ACCURACY", "%u", d.gva);
        }
        if (d.pic_present) t.rowf("Bit[25-28]", "PIC", "POSITION_INTEGRITY_CATEGORY", "%u", d.pic);
        t.end();
    });
}

// ---- 21905 Figure of Merit of editions up to 0.26 --------------------------------

KOVREL_API void ast_dataitem_021_A05_init(AstItem021_A05 *out) {
    if (out) *out = AstItem021_A05{};
}

KOVREL_API void ast_dataitem_021_A05_decode(AstItem021_A05 *out, const AstDataItem *item) {
    ast_dataitem_021_A05_init(out);
    if (!out || !items::span_ok(item, 2) || item->id != 21905) return;
    const uint8_t *p = item->data;
    out->ac = p[0] >> 6;
    out->mn = (p[0] >> 4) & 3u;
    out->dc = (p[0] >> 2) & 3u;
    out->pa = p[1] & 0x0Fu;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_021_A05_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A05 *in) {
    if (!items::encode_begin(out, buffer, size, 2)) return;
    if (!in || in->valid != 1 || in->ac > 3 || in->mn > 3 || in->dc > 3 || in->pa > 15) return;
    buffer[0] = static_cast<uint8_t>((in->ac << 6) | (in->mn << 4) | (in->dc << 2));
    buffer[1] = static_cast<uint8_t>(in->pa);
    items::encode_done(out, buffer, 2);
}

KOVREL_API void ast_dataitem_021_A05_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A05_decode,
                    [](TextWriter &w, const auto &d) { w.appendf("PA:%d", static_cast<int>(d.pa)); });
}

KOVREL_API void ast_dataitem_021_A05_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_021_A05_decode, [](TextWriter &w, const auto &d) {
        Detail t(w);
        t.rowf("Bit[1-2]", "AC", "ACAS_STATUS", "%u", d.ac);
        t.rowf("Bit[3-4]", "MN", "MULTIPLE_NAVIGATIONAL_AIDS", "%u", d.mn);
        t.rowf("Bit[5-6]", "DC", "DIFFERENTIAL_CORRECTION", "%u", d.dc);
        t.rowf("Bit[13-16]", "PA", "POSITION_ACCURACY", "%u", d.pa);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(021_040, AstItem021_040, ast_dataitem_021_040_decode)
KOVREL_ENCODE_EX(021_040, AstItem021_040, ast_dataitem_021_040_encode)
KOVREL_DECODE_EX(021_A03, AstItem021_A03, ast_dataitem_021_A03_decode)
KOVREL_ENCODE_EX(021_A03, AstItem021_A03, ast_dataitem_021_A03_encode)
KOVREL_DECODE_EX(021_090, AstItem021_090, ast_dataitem_021_090_decode)
KOVREL_ENCODE_EX(021_090, AstItem021_090, ast_dataitem_021_090_encode)
KOVREL_DECODE_EX(021_A05, AstItem021_A05, ast_dataitem_021_A05_decode)
KOVREL_ENCODE_EX(021_A05, AstItem021_A05, ast_dataitem_021_A05_encode)

namespace kovrel::fields {

namespace {

const char *atp_name(uint32_t v) {
    static constexpr const char *kNames[5] = {"ICAO", "DUPLICATE", "SURFACE_VEHICLE", "ANONYMOUS", "RESERVED"};
    return v <= kReservedAddress ? kNames[v] : nullptr;
}
const char *arc_name(uint32_t v) { return v <= 3 ? arc_text(v) : nullptr; }

using T040 = AstItem021_040;
constexpr Member kOctet2 = KOVREL_MEMBER(T040, ext1_present);
constexpr Member kOctet3 = KOVREL_MEMBER(T040, ext2_present);
constexpr FieldRow k040[] = {
    enumeration("atp", KOVREL_MEMBER(T040, atp), atp_name).width(3),
    enumeration("arc", KOVREL_MEMBER(T040, arc), arc_name).width(2),
    flag("rc", KOVREL_MEMBER(T040, rc)),
    flag("rab", KOVREL_MEMBER(T040, rab)),
    flag("dcr", KOVREL_MEMBER(T040, dcr)).when(kOctet2),
    flag("gbs", KOVREL_MEMBER(T040, gbs)).when(kOctet2),
    flag("sim", KOVREL_MEMBER(T040, sim)).when(kOctet2),
    flag("tst", KOVREL_MEMBER(T040, tst)).when(kOctet2),
    flag("saa", KOVREL_MEMBER(T040, saa)).when(kOctet2),
    integer("cl", KOVREL_MEMBER(T040, cl)).width(2).when(kOctet2),
    flag("bit7", KOVREL_MEMBER(T040, bit7)).when(kOctet3),
    flag("ipc", KOVREL_MEMBER(T040, ipc)).when(kOctet3),
    flag("nogo", KOVREL_MEMBER(T040, nogo)).when(kOctet3),
    flag("cpr", KOVREL_MEMBER(T040, cpr)).when(kOctet3),
    flag("ldpj", KOVREL_MEMBER(T040, ldpj)).when(kOctet3),
    flag("rcf", KOVREL_MEMBER(T040, rcf)).when(kOctet3),
};

using TA03 = AstItem021_A03;
constexpr FieldRow kA03[] = {
    flag("dcr", KOVREL_MEMBER(TA03, dcr)), flag("gbs", KOVREL_MEMBER(TA03, gbs)),
    flag("sim", KOVREL_MEMBER(TA03, sim)), flag("tst", KOVREL_MEMBER(TA03, tst)),
    flag("rab", KOVREL_MEMBER(TA03, rab)), flag("saa", KOVREL_MEMBER(TA03, saa)),
    flag("spi", KOVREL_MEMBER(TA03, spi)),
    enumeration("atp", KOVREL_MEMBER(TA03, atp), atp_name).width(3),
    enumeration("arc", KOVREL_MEMBER(TA03, arc), arc_name).width(2),
};

using T090 = AstItem021_090;
constexpr FieldRow k090[] = {
    integer("nucr_nacv", KOVREL_MEMBER(T090, nucr_nacv)).width(3),
    integer("nucp_nic", KOVREL_MEMBER(T090, nucp_nic)).width(4),
    integer("nic_baro", KOVREL_MEMBER(T090, nic_baro)).width(1).when(KOVREL_MEMBER(T090, nic_baro_present)),
    integer("sil", KOVREL_MEMBER(T090, sil)).width(2).when(KOVREL_MEMBER(T090, sil_present)),
    integer("nacp", KOVREL_MEMBER(T090, nacp)).width(4).when(KOVREL_MEMBER(T090, nacp_present)),
    integer("sil_sup", KOVREL_MEMBER(T090, sil_sup)).width(1).when(KOVREL_MEMBER(T090, sil_sup_present)),
    integer("sda", KOVREL_MEMBER(T090, sda)).width(2).when(KOVREL_MEMBER(T090, sda_present)),
    integer("gva", KOVREL_MEMBER(T090, gva)).width(2).when(KOVREL_MEMBER(T090, gva_present)),
    integer("pic", KOVREL_MEMBER(T090, pic)).width(4).when(KOVREL_MEMBER(T090, pic_present)),
};

using TA05 = AstItem021_A05;
constexpr FieldRow kA05[] = {
    integer("ac", KOVREL_MEMBER(TA05, ac)).width(2),
    integer("mn", KOVREL_MEMBER(TA05, mn)).width(2),
    integer("dc", KOVREL_MEMBER(TA05, dc)).width(2),
    integer("pa", KOVREL_MEMBER(TA05, pa)).width(4),
};

}  // namespace

constinit const FieldDesc k021_040 = describe<T040, init_valid<T040, ast_dataitem_021_040_init>>(k040);
constinit const FieldDesc k021_A03 = describe<TA03, init_valid<TA03, ast_dataitem_021_A03_init>>(kA03);
constinit const FieldDesc k021_090 = describe<T090, init_valid<T090, ast_dataitem_021_090_init>>(k090);
constinit const FieldDesc k021_A05 = describe<TA05, init_valid<TA05, ast_dataitem_021_A05_init>>(kA05);

}  // namespace kovrel::fields
