// I048/170 Track Status and I048/210 Track Quality: how the radar's local
// tracker rates a track.
#include "categories/cat048/item_fields.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat048.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr AstItemId kStatusId = 48170;
constexpr AstItemId kQualityId = 48210;
constexpr uint64_t kQualityLength = 4;

// Sensors maintaining the track (RAD) and climbing/descending mode (CDM).
constexpr const char *kRadText[4] = {"CMB", "PSR", "SSR", "INVALID"};
constexpr const char *kCdmText[4] = {"MAINTAINING", "CLIMBING", "DESCENDING", "UNKNOWN"};

// Sigma X, sigma Y (NM), sigma V (kt: 2^-14 NM/s) and sigma H (degrees: 360/2^12).
constexpr double kSigmaLsb[4] = {1.0 / 128.0, 1.0 / 128.0, 0.2197265625, 0.087890625};

AstItem048Scaled sigma(const uint8_t *p, int i) { return AstItem048Scaled{p[i], kSigmaLsb[i], p[i] * kSigmaLsb[i]}; }

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_048_170_init(AstItem048_170 *out) {
    if (!out) return;
    *out = AstItem048_170{};
    out->rad = 3;  // invalid
    out->cdm = 3;  // unknown
}

KOVREL_API void ast_dataitem_048_170_decode(AstItem048_170 *out, const AstDataItem *item) {
    ast_dataitem_048_170_init(out);
    if (!out || !items::span_at_least(item, 1) || item->id != kStatusId) return;
    // The item's length, not the FX bit, says whether the extension is there.
    const uint8_t s = item->data[0];
    out->cnf = s >> 7;
    out->rad = (s >> 5) & 3u;
    out->dou = (s >> 4) & 1u;
    out->mah = (s >> 3) & 1u;
    out->cdm = (s >> 1) & 3u;
    if (item->length >= 2) {
        const uint8_t e = item->data[1];
        out->ext_present = 1;
        out->tre = e >> 7;
        out->gho = (e >> 6) & 1u;
        out->sup = (e >> 5) & 1u;
        out->tcc = (e >> 4) & 1u;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_048_170_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_170_decode,
                    [](TextWriter &w, const auto &s) {
                        w.append("TYPE:");
                        w.append(kRadText[s.rad & 3u]);
                    });
}

KOVREL_API void ast_dataitem_048_170_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_170_decode, [](TextWriter &w, const auto &s) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "TENTATIVE_TRACK", "%d", s.cnf);
        t.row("Bit[1-2]", "SENSOR_TYPE", kRadText[s.rad & 3u]);
        t.rowf("Bit[3]", "LOW_CONFIDENCE", "%d", s.dou);
        t.rowf("Bit[4]", "HORIZONTAL_MANOEUVRE", "%d", s.mah);
        t.row("Bit[5-6]", "CLIMBING_DESCENDING_MODE", kCdmText[s.cdm & 3u]);
        t.end();
    });
}

KOVREL_API void ast_dataitem_048_210_init(AstItem048_210 *out) {
    if (out) *out = AstItem048_210{};
}

KOVREL_API void ast_dataitem_048_210_decode(AstItem048_210 *out, const AstDataItem *item) {
    ast_dataitem_048_210_init(out);
    if (!out || !items::span_ok(item, kQualityLength) || item->id != kQualityId) return;
    const uint8_t *p = item->data;
    *out = AstItem048_210{1, sigma(p, 0), sigma(p, 1), sigma(p, 2), sigma(p, 3)};
}

KOVREL_API void ast_dataitem_048_210_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_210_decode, [](TextWriter &w, const auto &q) {
        w.appendf("X:%.2f Y:%.2f V:%.2f H:%.2f", q.sigma_x.value, q.sigma_y.value, q.sigma_v.value, q.sigma_h.value);
    });
}

KOVREL_API void ast_dataitem_048_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_048_210_decode, [](TextWriter &w, const auto &q) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-7]", "SIGMA_X LSB=NM", "%.4f", q.sigma_x.value);
        t.rowf("Bit[8-15]", "SIGMA_Y LSB=NM", "%.4f", q.sigma_y.value);
        t.rowf("Bit[16-23]", "SIGMA_V LSB=KNOT", "%.4f", q.sigma_v.value);
        t.rowf("Bit[24-31]", "SIGMA_H LSB=DEG", "%.4f", q.sigma_h.value);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(048_170, AstItem048_170, ast_dataitem_048_170_decode)
KOVREL_DECODE_EX(048_210, AstItem048_210, ast_dataitem_048_210_decode)

namespace kovrel::fields {

namespace {

using Status = AstItem048_170;
using Quality = AstItem048_210;

const char *rad_name(uint32_t rad) { return rad < 4 ? kRadText[rad] : nullptr; }
const char *cdm_name(uint32_t cdm) { return cdm < 4 ? kCdmText[cdm] : nullptr; }

constexpr Member kExtension = KOVREL_MEMBER(Status, ext_present);

constexpr FieldRow kStatusRows[] = {
    flag("cnf", KOVREL_MEMBER(Status, cnf)),
    enumeration("rad", KOVREL_MEMBER(Status, rad), rad_name).width(2),
    flag("dou", KOVREL_MEMBER(Status, dou)),
    flag("mah", KOVREL_MEMBER(Status, mah)),
    enumeration("cdm", KOVREL_MEMBER(Status, cdm), cdm_name).width(2),
    flag("tre", KOVREL_MEMBER(Status, tre)).when(kExtension),
    flag("gho", KOVREL_MEMBER(Status, gho)).when(kExtension),
    flag("sup", KOVREL_MEMBER(Status, sup)).when(kExtension),
    flag("tcc", KOVREL_MEMBER(Status, tcc)).when(kExtension),
};

// The standard deviations in the units the summary prints, from their raw
// octets.
constexpr FieldRow kQualityRows[] = {
    scaled("sigx", KOVREL_MEMBER(Quality, sigma_x.raw), kSigmaLsb[0], "NM").width(8),
    scaled("sigy", KOVREL_MEMBER(Quality, sigma_y.raw), kSigmaLsb[1], "NM").width(8),
    scaled("sigv", KOVREL_MEMBER(Quality, sigma_v.raw), kSigmaLsb[2], "kt").width(8),
    scaled("sigh", KOVREL_MEMBER(Quality, sigma_h.raw), kSigmaLsb[3], "deg").width(8),
};

}  // namespace

constinit const FieldDesc k048_170 = describe<Status, init_valid<Status, ast_dataitem_048_170_init>>(kStatusRows);
constinit const FieldDesc k048_210 = describe<Quality, init_valid<Quality, ast_dataitem_048_210_init>>(kQualityRows);

}  // namespace kovrel::fields
