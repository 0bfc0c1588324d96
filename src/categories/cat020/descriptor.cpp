// I020/020 Target Report Descriptor, I020/170 Track Status, I020/030
// Warning/Error Conditions, and the Mode 1 and Mode 2 codes of military
// targets (I020/055, I020/050).
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
using kovrel::surface::Words;

constexpr AstItemId kDescriptorId = 20020;
constexpr AstItemId kStatusId = 20170;
constexpr AstItemId kWarningId = 20030;
constexpr AstItemId kMode1Id = 20055;
constexpr AstItemId kMode2Id = 20050;
constexpr uint64_t kMaxDescriptor = 3;

// The technologies of octet 1, most significant bit first. A set bit says
// the technology did NOT contribute.
constexpr const char *kTechText[7] = {"SSR", "MS", "HF", "VDL4", "UAT", "DME", "OT"};
constexpr const char *kCfText[4] = {"ICAO_ADDRESS", "NON_ICAO_ADDRESS", "NON_ADSB", "CF_NOT_AVAILABLE"};
constexpr const char *kCdmText[4] = {"MAINTAINING", "CLIMBING", "DESCENDING", "CDM_INVALID"};

}  // namespace

extern "C" {

// ---- I020/020 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_020_020_init(AstItem020_020 *out) {
    if (out) *out = AstItem020_020{};
}

KOVREL_API void ast_dataitem_020_020_decode(AstItem020_020 *out, const AstDataItem *item) {
    ast_dataitem_020_020_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kDescriptorId) return;
    const uint8_t *p = item->data;
    out->ssr = bit(p[0], 7);
    out->ms = bit(p[0], 6);
    out->hf = bit(p[0], 5);
    out->vdl4 = bit(p[0], 4);
    out->uat = bit(p[0], 3);
    out->dme = bit(p[0], 2);
    out->ot = bit(p[0], 1);
    if (item->length >= 2) {
        out->ext1_present = 1;
        out->rab = bit(p[1], 7);
        out->spi = bit(p[1], 6);
        out->chn = bit(p[1], 5);
        out->gbs = bit(p[1], 4);
        out->crt = bit(p[1], 3);
        out->sim = bit(p[1], 2);
        out->tst = bit(p[1], 1);
    }
    if (item->length >= kMaxDescriptor) {
        out->ext2_present = 1;
        out->cf = p[2] >> 6;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_020_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_020 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->cf > 3) return;
    const size_t length = in->ext2_present ? 3 : (in->ext1_present ? 2 : 1);
    if (size < length) return;
    uint8_t o[kMaxDescriptor] = {
        static_cast<uint8_t>(flag_bit(in->ssr, 7) | flag_bit(in->ms, 6) | flag_bit(in->hf, 5) |
                             flag_bit(in->vdl4, 4) | flag_bit(in->uat, 3) | flag_bit(in->dme, 2) |
                             flag_bit(in->ot, 1)),
        static_cast<uint8_t>(flag_bit(in->rab, 7) | flag_bit(in->spi, 6) | flag_bit(in->chn, 5) |
                             flag_bit(in->gbs, 4) | flag_bit(in->crt, 3) | flag_bit(in->sim, 2) |
                             flag_bit(in->tst, 1)),
        static_cast<uint8_t>(in->cf << 6),
    };
    for (size_t i = 0; i + 1 < length; ++i) o[i] |= 0x01u;
    for (size_t i = 0; i < length; ++i) buffer[i] = o[i];
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_020_020_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_020_decode, [](TextWriter &w, const auto &d) {
        const uint8_t off[7] = {d.ssr, d.ms, d.hf, d.vdl4, d.uat, d.dme, d.ot};
        w.append("TYP:");
        bool any = false;
        for (int i = 0; i < 7; ++i) {
            if (off[i]) continue;
            if (any) w.append("+");
            w.append(kTechText[i]);
            any = true;
        }
        if (!any) w.append("NONE");
        Words words(w);
        words.add_if(d.rab, "RAB");
        words.add_if(d.spi, "SPI");
        words.add_if(d.chn, "CHAIN2");
        words.add_if(d.gbs, "GBS");
        words.add_if(d.crt, "CRT");
        words.add_if(d.sim, "SIM");
        words.add_if(d.tst, "TST");
        if (d.ext2_present && d.cf != 0) words.add(kCfText[d.cf & 3u]);
    });
}

KOVREL_API void ast_dataitem_020_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_020_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "NO_SSR_MLAT", "%d", d.ssr);
        t.rowf("Bit[1]", "NO_MODE_S_MLAT", "%d", d.ms);
        t.rowf("Bit[2]", "NO_HF_MLAT", "%d", d.hf);
        t.rowf("Bit[3]", "NO_VDL4_MLAT", "%d", d.vdl4);
        t.rowf("Bit[4]", "NO_UAT_MLAT", "%d", d.uat);
        t.rowf("Bit[5]", "NO_DME_MLAT", "%d", d.dme);
        t.rowf("Bit[6]", "NO_OTHER_MLAT", "%d", d.ot);
        if (d.ext1_present) {
            t.rowf("Bit[8]", "FIELD_MONITOR", "%d", d.rab);
            t.rowf("Bit[9]", "SPI", "%d", d.spi);
            t.rowf("Bit[10]", "CHAIN", "%d", d.chn + 1);
            t.rowf("Bit[11]", "GROUND_BIT_SET", "%d", d.gbs);
            t.rowf("Bit[12]", "CORRUPTED_REPLIES", "%d", d.crt);
            t.rowf("Bit[13]", "SIMULATED", "%d", d.sim);
            t.rowf("Bit[14]", "TEST_TARGET", "%d", d.tst);
        }
        if (d.ext2_present) t.row("Bit[16-17]", "ADDRESS_TYPE", kCfText[d.cf & 3u]);
        t.end();
    });
}

// ---- I020/170 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_020_170_init(AstItem020_170 *out) {
    if (out) *out = AstItem020_170{};
}

KOVREL_API void ast_dataitem_020_170_decode(AstItem020_170 *out, const AstDataItem *item) {
    ast_dataitem_020_170_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kStatusId) return;
    const uint8_t *p = item->data;
    out->cnf = bit(p[0], 7);
    out->tre = bit(p[0], 6);
    out->cst = bit(p[0], 5);
    out->cdm = (p[0] >> 3) & 3u;
    out->mah = bit(p[0], 2);
    out->sth = bit(p[0], 1);
    if (item->length >= 2) {
        out->ext1_present = 1;
        out->gho = bit(p[1], 7);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_020_170_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_170 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->cdm > 3) return;
    const size_t length = in->ext1_present ? 2 : 1;
    if (size < length) return;
    buffer[0] = static_cast<uint8_t>(flag_bit(in->cnf, 7) | flag_bit(in->tre, 6) | flag_bit(in->cst, 5) |
                                     (in->cdm << 3) | flag_bit(in->mah, 2) | flag_bit(in->sth, 1) |
                                     (length == 2 ? 1u : 0u));
    if (length == 2) buffer[1] = flag_bit(in->gho, 7);
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_020_170_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_170_decode, [](TextWriter &w, const auto &s) {
        w.append(s.cnf ? "TRACK:TENTATIVE" : "TRACK:CONFIRMED");
        Words words(w);
        words.add_if(s.tre, "LAST");
        words.add_if(s.cst, "COASTED");
        if (s.cdm != 0) words.add(kCdmText[s.cdm & 3u]);
        words.add_if(s.mah, "MANOEUVRE");
        words.add_if(s.sth, "SMOOTHED");
        words.add_if(s.gho, "GHOST");
    });
}

KOVREL_API void ast_dataitem_020_170_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_170_decode, [](TextWriter &w, const auto &s) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "TENTATIVE_TRACK", "%d", s.cnf);
        t.rowf("Bit[1]", "LAST_REPORT", "%d", s.tre);
        t.rowf("Bit[2]", "COASTED", "%d", s.cst);
        t.row("Bit[3-4]", "CLIMBING_DESCENDING_MODE", kCdmText[s.cdm & 3u]);
        t.rowf("Bit[5]", "HORIZONTAL_MANOEUVRE", "%d", s.mah);
        t.rowf("Bit[6]", "SMOOTHED_POSITION", "%d", s.sth);
        if (s.ext1_present) t.rowf("Bit[8]", "GHOST_TRACK", "%d", s.gho);
        t.end();
    });
}

// ---- I020/030 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_020_030_init(AstItem020_030 *out) {
    if (out) *out = AstItem020_030{};
}

KOVREL_API void ast_dataitem_020_030_decode(AstItem020_030 *out, const AstDataItem *item) {
    ast_dataitem_020_030_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kWarningId || item->length > AST_ITEM020_030_MAX)
        return;
    out->count = static_cast<uint32_t>(item->length);
    for (uint32_t i = 0; i < out->count; ++i) out->codes[i] = item->data[i] >> 1;
    out->valid = 1;
}

KOVREL_API void ast_dataitem_020_030_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_030 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->count == 0 || in->count > AST_ITEM020_030_MAX || size < in->count) return;
    for (uint32_t i = 0; i < in->count; ++i)
        if (in->codes[i] > 0x7Fu) return;
    for (uint32_t i = 0; i < in->count; ++i)
        buffer[i] = static_cast<uint8_t>((in->codes[i] << 1) | (i + 1 < in->count ? 1u : 0u));
    items::encode_done(out, buffer, in->count);
}

KOVREL_API void ast_dataitem_020_030_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_030_decode, [](TextWriter &w, const auto &d) {
        for (uint32_t i = 0; i < d.count; ++i) {
            w.append(i ? "+ERRCODE:" : "ERRCODE:");
            w.append_int(static_cast<int>(d.codes[i]));
        }
    });
}

KOVREL_API void ast_dataitem_020_030_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_030_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        for (uint32_t i = 0; i < d.count; ++i) {
            char bits[24];
            std::snprintf(bits, sizeof bits, "Bit[%u-%u]", 8 * i, 8 * i + 6);
            t.rowf(bits, "WARNING_ERROR_CODE", "%u", d.codes[i]);
        }
        t.end();
    });
}

// ---- I020/055 ------------------------------------------------------------------

KOVREL_API void ast_dataitem_020_055_init(AstItem020_055 *out) {
    if (out) *out = AstItem020_055{};
}

KOVREL_API void ast_dataitem_020_055_decode(AstItem020_055 *out, const AstDataItem *item) {
    ast_dataitem_020_055_init(out);
    if (!out || !items::span_ok(item, 1) || item->id != kMode1Id) return;
    const uint8_t o = item->data[0];
    *out = AstItem020_055{1, bit(o, 7), bit(o, 6), bit(o, 5), static_cast<uint32_t>(o & 0x1Fu)};
}

KOVREL_API void ast_dataitem_020_055_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_055 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->code > 0x1Fu) return;
    buffer[0] = static_cast<uint8_t>(flag_bit(in->v, 7) | flag_bit(in->g, 6) | flag_bit(in->l, 5) | in->code);
    items::encode_done(out, buffer, 1);
}

KOVREL_API void ast_dataitem_020_055_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_055_decode, [](TextWriter &w, const auto &c) {
        w.append("MODE_1:");
        w.append_octal(c.code >> 2);
        w.append_octal(c.code & 3u);
        if (c.v) w.append(" NOT_VALIDATED");
        if (c.g) w.append(" GARBLED");
        if (c.l) w.append(" SMOOTHED");
    });
}

KOVREL_API void ast_dataitem_020_055_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_020_055_decode, [](TextWriter &w, const auto &c) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "NOT_VALIDATED", "%d", c.v);
        t.rowf("Bit[1]", "GARBLED", "%d", c.g);
        t.rowf("Bit[2]", "SMOOTHED", "%d", c.l);
        t.rowf("Bit[3-7]", "MODE_1_CODE", "%o%o", c.code >> 2, c.code & 3u);
        t.end();
    });
}

// ---- I020/050 summary ----------------------------------------------------------

KOVREL_API void ast_dataitem_020_050_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    TextWriter w(buffer, size);
    if (!item || item->id != kMode2Id) return;
    AstMode3aCode c;
    ast_dataitem_mode_3a_code_decode(&c, item);
    if (c.valid != 1) return;
    w.append("MODE_2:");
    w.append_octal(c.code, 4);
    if (c.v) w.append(" NOT_VALIDATED");
    if (c.g) w.append(" GARBLED");
    if (c.l) w.append(" SMOOTHED");
}

}  // extern "C"

KOVREL_DECODE_EX(020_020, AstItem020_020, ast_dataitem_020_020_decode)
KOVREL_ENCODE_EX(020_020, AstItem020_020, ast_dataitem_020_020_encode)
KOVREL_DECODE_EX(020_170, AstItem020_170, ast_dataitem_020_170_decode)
KOVREL_ENCODE_EX(020_170, AstItem020_170, ast_dataitem_020_170_encode)
KOVREL_DECODE_EX(020_030, AstItem020_030, ast_dataitem_020_030_decode)
KOVREL_ENCODE_EX(020_030, AstItem020_030, ast_dataitem_020_030_encode)
KOVREL_DECODE_EX(020_055, AstItem020_055, ast_dataitem_020_055_decode)
KOVREL_ENCODE_EX(020_055, AstItem020_055, ast_dataitem_020_055_encode)

namespace kovrel::fields {

namespace {

using Descriptor = AstItem020_020;
using Status = AstItem020_170;
using Warning = AstItem020_030;
using Mode1 = AstItem020_055;

const char *cf_name(uint32_t c) { return surface::name_of(kCfText, c); }
const char *cdm_name(uint32_t c) { return surface::name_of(kCdmText, c); }

constexpr Member kExt1 = KOVREL_MEMBER(Descriptor, ext1_present);
constexpr Member kExt2 = KOVREL_MEMBER(Descriptor, ext2_present);

// The technology bits as the wire has them: 1 when it did not contribute.
constexpr FieldRow kDescriptorRows[] = {
    flag("ssr", KOVREL_MEMBER(Descriptor, ssr)),         flag("ms", KOVREL_MEMBER(Descriptor, ms)),
    flag("hf", KOVREL_MEMBER(Descriptor, hf)),           flag("vdl4", KOVREL_MEMBER(Descriptor, vdl4)),
    flag("uat", KOVREL_MEMBER(Descriptor, uat)),         flag("dme", KOVREL_MEMBER(Descriptor, dme)),
    flag("ot", KOVREL_MEMBER(Descriptor, ot)),           flag("rab", KOVREL_MEMBER(Descriptor, rab)).when(kExt1),
    flag("spi", KOVREL_MEMBER(Descriptor, spi)).when(kExt1), flag("chn", KOVREL_MEMBER(Descriptor, chn)).when(kExt1),
    flag("gbs", KOVREL_MEMBER(Descriptor, gbs)).when(kExt1), flag("crt", KOVREL_MEMBER(Descriptor, crt)).when(kExt1),
    flag("sim", KOVREL_MEMBER(Descriptor, sim)).when(kExt1), flag("tst", KOVREL_MEMBER(Descriptor, tst)).when(kExt1),
    enumeration("cf", KOVREL_MEMBER(Descriptor, cf), cf_name).width(2).when(kExt2),
};

constexpr FieldRow kStatusRows[] = {
    flag("cnf", KOVREL_MEMBER(Status, cnf)),
    flag("tre", KOVREL_MEMBER(Status, tre)),
    flag("cst", KOVREL_MEMBER(Status, cst)),
    enumeration("cdm", KOVREL_MEMBER(Status, cdm), cdm_name).width(2),
    flag("mah", KOVREL_MEMBER(Status, mah)),
    flag("sth", KOVREL_MEMBER(Status, sth)),
    flag("gho", KOVREL_MEMBER(Status, gho)).when(KOVREL_MEMBER(Status, ext1_present)),
};

constexpr FieldRow kCodeRows[] = {integer(nullptr, member_of<uint32_t>(0)).width(7)};
constinit const FieldDesc kCode = describe<uint32_t>(kCodeRows);

constexpr FieldRow kWarningRows[] = {
    array("codes", KOVREL_MEMBER(Warning, codes), KOVREL_MEMBER(Warning, count), sizeof(uint32_t),
          AST_ITEM020_030_MAX, kCode),
};

constexpr FieldRow kMode1Rows[] = {
    flag("v", KOVREL_MEMBER(Mode1, v)),
    flag("g", KOVREL_MEMBER(Mode1, g)),
    flag("l", KOVREL_MEMBER(Mode1, l)),
    integer("mode1", KOVREL_MEMBER(Mode1, code)).width(5),
};

}  // namespace

constinit const FieldDesc k020_020 =
    describe<Descriptor, init_valid<Descriptor, ast_dataitem_020_020_init>>(kDescriptorRows);
constinit const FieldDesc k020_170 = describe<Status, init_valid<Status, ast_dataitem_020_170_init>>(kStatusRows);
constinit const FieldDesc k020_030 = describe<Warning, init_valid<Warning, ast_dataitem_020_030_init>>(kWarningRows);
constinit const FieldDesc k020_055 = describe<Mode1, init_valid<Mode1, ast_dataitem_020_055_init>>(kMode1Rows);

}  // namespace kovrel::fields
