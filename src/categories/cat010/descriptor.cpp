// I010/020 Target Report Descriptor and I010/170 Track Status: what kind of
// sensor saw the target and how the surface tracker rates it. Both grow by
// FX-extended octets; the span's length, not the FX bits, says which octets
// are there.
#include "categories/cat010/item_fields.h"
#include "categories/cat010/surface_support.h"
#include "items/item_ex.h"
#include "kovrel/cat010.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;
using kovrel::surface::bit;
using kovrel::surface::flag_bit;
using kovrel::surface::Words;

constexpr AstItemId kDescriptorId = 10020;
constexpr AstItemId kStatusId = 10170;
constexpr uint64_t kMaxOctets = 3;

// Sensor types by TYP.
constexpr const char *kTypText[8] = {"SSR_MLAT", "MODE_S_MLAT", "ADSB", "PSR",
                                     "MAGNETIC_LOOP", "HF_MLAT", "UNDEFINED", "OTHER"};
constexpr const char *kLopText[4] = {"UNDETERMINED", "LOOP_START", "LOOP_FINISH", "UNDEFINED"};
constexpr const char *kTotText[4] = {"UNDETERMINED", "AIRCRAFT", "GROUND_VEHICLE", "HELICOPTER"};

constexpr const char *kCstText[4] = {"NO_EXTRAPOLATION", "REFRESH_PERIOD", "MASKED_AREA", "UNPREDICTABLE_ABSENCE"};
constexpr const char *kTomText[4] = {"UNKNOWN", "TAKE_OFF", "LANDING", "OTHER_MOVEMENT"};
constexpr const char *kDouText[8] = {"NO_DOUBT",          "DOUBTFUL_CORRELATION", "DOUBTFUL_IN_CLUTTER",
                                     "LOSS_OF_ACCURACY",  "LOSS_IN_CLUTTER",      "UNSTABLE",
                                     "PREVIOUSLY_COASTED", "UNDEFINED"};
constexpr const char *kMrsText[4] = {"UNDETERMINED", "MERGED_ASSOCIATED", "MERGED_NOT_ASSOCIATED", "SPLIT"};

// The length an extensible item is written with: up to its last extension
// marked present.
size_t extended_length(uint8_t ext1, uint8_t ext2) { return ext2 ? 3 : (ext1 ? 2 : 1); }

// Sets the FX bits of the octets before the last one written.
void chain(uint8_t *o, size_t length) {
    for (size_t i = 0; i + 1 < length; ++i) o[i] |= 0x01u;
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_010_020_init(AstItem010_020 *out) {
    if (out) *out = AstItem010_020{};
}

KOVREL_API void ast_dataitem_010_020_decode(AstItem010_020 *out, const AstDataItem *item) {
    ast_dataitem_010_020_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kDescriptorId) return;
    const uint8_t *p = item->data;
    out->typ = p[0] >> 5;
    out->dcr = bit(p[0], 4);
    out->chn = bit(p[0], 3);
    out->gbs = bit(p[0], 2);
    out->crt = bit(p[0], 1);
    if (item->length >= 2) {
        out->ext1_present = 1;
        out->sim = bit(p[1], 7);
        out->tst = bit(p[1], 6);
        out->rab = bit(p[1], 5);
        out->lop = (p[1] >> 3) & 3u;
        out->tot = (p[1] >> 1) & 3u;
    }
    if (item->length >= kMaxOctets) {
        out->ext2_present = 1;
        out->spi = bit(p[2], 7);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_010_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_020 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->typ > 7 || in->lop > 3 || in->tot > 3) return;
    const size_t length = extended_length(in->ext1_present, in->ext2_present);
    if (size < length) return;
    uint8_t o[kMaxOctets] = {
        static_cast<uint8_t>((in->typ << 5) | flag_bit(in->dcr, 4) | flag_bit(in->chn, 3) | flag_bit(in->gbs, 2) |
                             flag_bit(in->crt, 1)),
        static_cast<uint8_t>(flag_bit(in->sim, 7) | flag_bit(in->tst, 6) | flag_bit(in->rab, 5) | (in->lop << 3) |
                             (in->tot << 1)),
        flag_bit(in->spi, 7),
    };
    chain(o, length);
    for (size_t i = 0; i < length; ++i) buffer[i] = o[i];
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_010_020_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_020_decode, [](TextWriter &w, const auto &d) {
        w.append("TYP:");
        w.append(kTypText[d.typ & 7u]);
        Words words(w);
        words.add_if(d.dcr, "DCR");
        words.add_if(d.chn, "CHAIN2");
        words.add_if(d.gbs, "GBS");
        words.add_if(d.crt, "CRT");
        words.add_if(d.sim, "SIM");
        words.add_if(d.tst, "TST");
        words.add_if(d.rab, "RAB");
        if (d.lop == 1 || d.lop == 2) words.add(kLopText[d.lop]);
        if (d.tot != 0) words.add(kTotText[d.tot & 3u]);
        words.add_if(d.spi, "SPI");
    });
}

KOVREL_API void ast_dataitem_010_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_020_decode, [](TextWriter &w, const auto &d) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.row("Bit[0-2]", "TYPE", kTypText[d.typ & 7u]);
        t.rowf("Bit[3]", "DIFFERENTIAL_CORRECTION", "%d", d.dcr);
        t.rowf("Bit[4]", "CHAIN", "%d", d.chn + 1);
        t.rowf("Bit[5]", "GROUND_BIT_SET", "%d", d.gbs);
        t.rowf("Bit[6]", "CORRUPTED_REPLIES", "%d", d.crt);
        if (d.ext1_present) {
            t.rowf("Bit[8]", "SIMULATED", "%d", d.sim);
            t.rowf("Bit[9]", "TEST_TARGET", "%d", d.tst);
            t.rowf("Bit[10]", "FIELD_MONITOR", "%d", d.rab);
            t.row("Bit[11-12]", "LOOP_STATUS", kLopText[d.lop & 3u]);
            t.row("Bit[13-14]", "TARGET_TYPE", kTotText[d.tot & 3u]);
        }
        if (d.ext2_present) t.rowf("Bit[16]", "SPI", "%d", d.spi);
        t.end();
    });
}

KOVREL_API void ast_dataitem_010_170_init(AstItem010_170 *out) {
    if (out) *out = AstItem010_170{};
}

KOVREL_API void ast_dataitem_010_170_decode(AstItem010_170 *out, const AstDataItem *item) {
    ast_dataitem_010_170_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kStatusId) return;
    const uint8_t *p = item->data;
    out->cnf = bit(p[0], 7);
    out->tre = bit(p[0], 6);
    out->cst = (p[0] >> 4) & 3u;
    out->mah = bit(p[0], 3);
    out->tcc = bit(p[0], 2);
    out->sth = bit(p[0], 1);
    if (item->length >= 2) {
        out->ext1_present = 1;
        out->tom = p[1] >> 6;
        out->dou = (p[1] >> 3) & 7u;
        out->mrs = (p[1] >> 1) & 3u;
    }
    if (item->length >= kMaxOctets) {
        out->ext2_present = 1;
        out->gho = bit(p[2], 7);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_010_170_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_170 *in) {
    if (!items::encode_begin(out, buffer, size, 1)) return;
    if (!in || in->valid != 1 || in->cst > 3 || in->tom > 3 || in->dou > 7 || in->mrs > 3) return;
    const size_t length = extended_length(in->ext1_present, in->ext2_present);
    if (size < length) return;
    uint8_t o[kMaxOctets] = {
        static_cast<uint8_t>(flag_bit(in->cnf, 7) | flag_bit(in->tre, 6) | (in->cst << 4) | flag_bit(in->mah, 3) |
                             flag_bit(in->tcc, 2) | flag_bit(in->sth, 1)),
        static_cast<uint8_t>((in->tom << 6) | (in->dou << 3) | (in->mrs << 1)),
        flag_bit(in->gho, 7),
    };
    chain(o, length);
    for (size_t i = 0; i < length; ++i) buffer[i] = o[i];
    items::encode_done(out, buffer, length);
}

KOVREL_API void ast_dataitem_010_170_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_170_decode, [](TextWriter &w, const auto &s) {
        w.append(s.cnf ? "TRACK:TENTATIVE" : "TRACK:CONFIRMED");
        Words words(w);
        words.add_if(s.tre, "LAST");
        words.add_if(s.cst != 0, "EXTRAPOLATED");
        words.add_if(s.mah, "MANOEUVRE");
        words.add_if(s.sth, "SMOOTHED");
        if (s.tom != 0) words.add(kTomText[s.tom & 3u]);
        words.add_if(s.dou != 0, "DOUBTFUL");
        if (s.mrs == 1 || s.mrs == 2) words.add("MERGED");
        words.add_if(s.mrs == 3, "SPLIT");
        words.add_if(s.gho, "GHOST");
    });
}

KOVREL_API void ast_dataitem_010_170_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_010_170_decode, [](TextWriter &w, const auto &s) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "TENTATIVE_TRACK", "%d", s.cnf);
        t.rowf("Bit[1]", "LAST_REPORT", "%d", s.tre);
        t.row("Bit[2-3]", "EXTRAPOLATION", kCstText[s.cst & 3u]);
        t.rowf("Bit[4]", "HORIZONTAL_MANOEUVRE", "%d", s.mah);
        t.rowf("Bit[5]", "TRACKED_IN_2D_PLANE", "%d", s.tcc);
        t.rowf("Bit[6]", "SMOOTHED_POSITION", "%d", s.sth);
        if (s.ext1_present) {
            t.row("Bit[8-9]", "TYPE_OF_MOVEMENT", kTomText[s.tom & 3u]);
            t.row("Bit[10-12]", "DOUBT", kDouText[s.dou & 7u]);
            t.row("Bit[13-14]", "MERGE_SPLIT", kMrsText[s.mrs & 3u]);
        }
        if (s.ext2_present) t.rowf("Bit[16]", "GHOST_TRACK", "%d", s.gho);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(010_020, AstItem010_020, ast_dataitem_010_020_decode)
KOVREL_ENCODE_EX(010_020, AstItem010_020, ast_dataitem_010_020_encode)
KOVREL_DECODE_EX(010_170, AstItem010_170, ast_dataitem_010_170_decode)
KOVREL_ENCODE_EX(010_170, AstItem010_170, ast_dataitem_010_170_encode)

namespace kovrel::fields {

namespace {

using Descriptor = AstItem010_020;
using Status = AstItem010_170;
using surface::name_of;

const char *typ_name(uint32_t c) { return name_of(kTypText, c); }
const char *lop_name(uint32_t c) { return name_of(kLopText, c); }
const char *tot_name(uint32_t c) { return name_of(kTotText, c); }
const char *cst_name(uint32_t c) { return name_of(kCstText, c); }
const char *tom_name(uint32_t c) { return name_of(kTomText, c); }
const char *dou_name(uint32_t c) { return name_of(kDouText, c); }
const char *mrs_name(uint32_t c) { return name_of(kMrsText, c); }

constexpr Member kDescriptorExt1 = KOVREL_MEMBER(Descriptor, ext1_present);
constexpr Member kDescriptorExt2 = KOVREL_MEMBER(Descriptor, ext2_present);

constexpr FieldRow kDescriptorRows[] = {
    enumeration("typ", KOVREL_MEMBER(Descriptor, typ), typ_name).width(3),
    flag("dcr", KOVREL_MEMBER(Descriptor, dcr)),
    flag("chn", KOVREL_MEMBER(Descriptor, chn)),
    flag("gbs", KOVREL_MEMBER(Descriptor, gbs)),
    flag("crt", KOVREL_MEMBER(Descriptor, crt)),
    flag("sim", KOVREL_MEMBER(Descriptor, sim)).when(kDescriptorExt1),
    flag("tst", KOVREL_MEMBER(Descriptor, tst)).when(kDescriptorExt1),
    flag("rab", KOVREL_MEMBER(Descriptor, rab)).when(kDescriptorExt1),
    enumeration("lop", KOVREL_MEMBER(Descriptor, lop), lop_name).width(2).when(kDescriptorExt1),
    enumeration("tot", KOVREL_MEMBER(Descriptor, tot), tot_name).width(2).when(kDescriptorExt1),
    flag("spi", KOVREL_MEMBER(Descriptor, spi)).when(kDescriptorExt2),
};

constexpr Member kStatusExt1 = KOVREL_MEMBER(Status, ext1_present);
constexpr Member kStatusExt2 = KOVREL_MEMBER(Status, ext2_present);

constexpr FieldRow kStatusRows[] = {
    flag("cnf", KOVREL_MEMBER(Status, cnf)),
    flag("tre", KOVREL_MEMBER(Status, tre)),
    enumeration("cst", KOVREL_MEMBER(Status, cst), cst_name).width(2),
    flag("mah", KOVREL_MEMBER(Status, mah)),
    flag("tcc", KOVREL_MEMBER(Status, tcc)),
    flag("sth", KOVREL_MEMBER(Status, sth)),
    enumeration("tom", KOVREL_MEMBER(Status, tom), tom_name).width(2).when(kStatusExt1),
    enumeration("dou", KOVREL_MEMBER(Status, dou), dou_name).width(3).when(kStatusExt1),
    enumeration("mrs", KOVREL_MEMBER(Status, mrs), mrs_name).width(2).when(kStatusExt1),
    flag("gho", KOVREL_MEMBER(Status, gho)).when(kStatusExt2),
};

}  // namespace

constinit const FieldDesc k010_020 =
    describe<Descriptor, init_valid<Descriptor, ast_dataitem_010_020_init>>(kDescriptorRows);
constinit const FieldDesc k010_170 = describe<Status, init_valid<Status, ast_dataitem_010_170_init>>(kStatusRows);

}  // namespace kovrel::fields
