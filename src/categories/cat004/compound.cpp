// CAT004 compound items decoded subfield by subfield: the area definition
// (I004/100), the conflict characteristics (I004/120) and the two aircraft
// of a conflict (I004/170, I004/171). The compound machinery delimits the
// subfields; each decoder reads the subfields whose length is the layout's.
#include <cstring>

#include "categories/cat004/item_fields.h"
#include "core/text.h"
#include "items/item_ex.h"
#include "items/item_support.h"
#include "kovrel/cat004.h"
#include "kovrel/codec.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr double kDurationLsb = 1.0 / 128.0;             // s (CD, TT)
constexpr double kProbabilityLsb = 0.5;                  // % (CP)
constexpr double kAngleLsb = 180.0 / 33554432.0;         // degrees, 180/2^25 (CPW)
constexpr double kAltitudeLsb = 25.0;                    // ft (CPW, CPC)
constexpr double kMetreLsb = 0.5;                        // m (CPC, DT)
constexpr double kFlightLevelLsb = 0.25;                 // FL (CF)

// The octets of subfield `at` (0-based) of a split item when present and of
// exactly `length` octets; nullptr otherwise.
const uint8_t *subfield_data(const AstSubfieldList &list, size_t at, uint64_t length) {
    if (list.span_count <= at) return nullptr;
    const AstSubfield &s = list.spans[at];
    if (s.present != 1 || s.valid != 1 || !s.data || s.length != length) return nullptr;
    return s.data;
}

// The octets and length of an FX-extended subfield of at most `max` octets.
const uint8_t *subfield_chain(const AstSubfieldList &list, size_t at, uint64_t max, uint32_t *length) {
    if (list.span_count <= at) return nullptr;
    const AstSubfield &s = list.spans[at];
    if (s.present != 1 || s.valid != 1 || !s.data || s.length == 0 || s.length > max) return nullptr;
    *length = static_cast<uint32_t>(s.length);
    return s.data;
}

// Seven ASCII characters as sent, blanks included, NUL-terminated.
void ascii7(char (&text)[8], const uint8_t *data) {
    for (int i = 0; i < 7; ++i) text[i] = static_cast<char>(data[i]);
    text[7] = '\0';
}

// Splits a compound item of identifier `id` (or of `other`) into list.
bool split(AstSubfieldList *list, const AstDataItem *item, AstItemId id, AstItemId other = 0) {
    if (!item || item->valid != 1 || (item->id != id && item->id != other)) return false;
    ast_dataitem_subfields_decode(list, item);
    return list->valid == 1;
}

uint8_t bit(uint8_t octet, int n) { return static_cast<uint8_t>(octet >> (n - 1) & 1u); }

}  // namespace

namespace kovrel::cat004 {

void raw_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    if (span && span->present == 1) w.append("NOT_IMPLEMENTED");
}

void an_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    if (!span || span->present != 1 || span->valid != 1 || !span->data || span->length != 6) return;
    char name[9];
    items::chars_decode(name, span->data);
    w.append("AN:");
    w.append(name);
}

void cc_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    uint8_t cc = 0;
    if (!items::subfield_octet(span, &cc)) return;
    w.appendf("TAB:%u PROP:%u CS:%s", static_cast<unsigned>(cc >> 4), static_cast<unsigned>(cc >> 1 & 7u),
              (cc & 1u) ? "HIGH" : "LOW");
}

void m3_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t) {
    TextWriter w(buffer, size);
    if (!span || span->present != 1 || span->valid != 1 || !span->data || span->length != 2) return;
    const unsigned code = static_cast<unsigned>(span->data[0] & 0x0Fu) << 8 | span->data[1];
    w.appendf("MODE_3/A:%04o", code);
}

}  // namespace kovrel::cat004

extern "C" {

KOVREL_API void ast_dataitem_004_100_init(AstItem004_100 *out) {
    if (out) std::memset(static_cast<void *>(out), 0, sizeof *out);
}

KOVREL_API void ast_dataitem_004_100_decode(AstItem004_100 *out, const AstDataItem *item) {
    ast_dataitem_004_100_init(out);
    if (!out || !split(&out->subfields, item, 4100)) return;
    const AstSubfieldList &list = out->subfields;
    if (const uint8_t *d = subfield_data(list, 0, 6)) {
        out->an_present = 1;
        items::chars_decode(out->an, d);
    }
    struct Designator {
        uint8_t *present;
        char (*text)[8];
    };
    const Designator designators[5] = {{&out->can_present, &out->can}, {&out->rt1_present, &out->rt1},
                                       {&out->rt2_present, &out->rt2}, {&out->sb_present, &out->sb},
                                       {&out->g_present, &out->g}};
    for (size_t i = 0; i < 5; ++i) {
        const uint8_t *d = subfield_data(list, i + 1, 7);
        if (!d) continue;
        *designators[i].present = 1;
        ascii7(*designators[i].text, d);
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_004_120_init(AstItem004_120 *out) {
    if (out) std::memset(static_cast<void *>(out), 0, sizeof *out);
}

KOVREL_API void ast_dataitem_004_120_decode(AstItem004_120 *out, const AstDataItem *item) {
    ast_dataitem_004_120_init(out);
    if (!out || !split(&out->subfields, item, 4120)) return;
    const AstSubfieldList &list = out->subfields;
    uint32_t n = 0;
    if (const uint8_t *d = subfield_chain(list, 0, 3, &n)) {
        out->cn_present = 1;
        out->cn_octets = n;
        uint8_t *const flags[3][7] = {
            {&out->mas, &out->cas, &out->fld, &out->fvd, &out->type, &out->cross, &out->div},
            {&out->rrc, &out->rtc, &out->mrva, &out->vramcrm, &out->vramvrm, &out->vramvtm, &out->hamhd},
            {&out->hamrd, &out->hamvd, &out->dbpsmarr, &out->dbpsmdep, &out->dbpsmtl, &out->aiw, nullptr}};
        for (uint32_t o = 0; o < n; ++o)
            for (int i = 0; i < 7; ++i)
                if (flags[o][i]) *flags[o][i] = bit(d[o], 8 - i);
    }
    if (const uint8_t *d = subfield_data(list, 1, 1)) {
        out->cc_present = 1;
        out->tab = d[0] >> 4;
        out->prop = d[0] >> 1 & 7u;
        out->cs = d[0] & 1u;
    }
    if (const uint8_t *d = subfield_data(list, 2, 1)) {
        out->cp_present = 1;
        out->cp_raw = d[0];
        out->cp = d[0] * kProbabilityLsb;
    }
    if (const uint8_t *d = subfield_data(list, 3, 3)) {
        out->cd_present = 1;
        ast_unsigned_decode(&out->cd_raw, d, 3);
        out->cd = out->cd_raw * kDurationLsb;
    }
    out->valid = 1;
}

KOVREL_API void ast_dataitem_004_170_init(AstItem004_170 *out) {
    if (out) std::memset(static_cast<void *>(out), 0, sizeof *out);
}

KOVREL_API void ast_dataitem_004_170_decode(AstItem004_170 *out, const AstDataItem *item) {
    ast_dataitem_004_170_init(out);
    if (!out || !split(&out->subfields, item, 4170, 4171)) return;
    const AstSubfieldList &list = out->subfields;
    if (const uint8_t *d = subfield_data(list, 0, 7)) {
        out->ai_present = 1;
        ascii7(out->ai, d);
    }
    if (const uint8_t *d = subfield_data(list, 1, 2)) {
        out->m3_present = 1;
        out->mode3a = static_cast<uint32_t>(d[0] & 0x0Fu) << 8 | d[1];
    }
    if (const uint8_t *d = subfield_data(list, 2, 10)) {
        out->cpw_present = 1;
        ast_twos_complement_decode(&out->lat_raw, d, 4);
        ast_twos_complement_decode(&out->lon_raw, d + 4, 4);
        ast_twos_complement_decode(&out->alt_raw, d + 8, 2);
        out->lat = out->lat_raw * kAngleLsb;
        out->lon = out->lon_raw * kAngleLsb;
        out->alt = out->alt_raw * kAltitudeLsb;
    }
    if (const uint8_t *d = subfield_data(list, 3, 8)) {
        out->cpc_present = 1;
        ast_twos_complement_decode(&out->x_raw, d, 3);
        ast_twos_complement_decode(&out->y_raw, d + 3, 3);
        ast_twos_complement_decode(&out->z_raw, d + 6, 2);
        out->x = out->x_raw * kMetreLsb;
        out->y = out->y_raw * kMetreLsb;
        out->z = out->z_raw * kAltitudeLsb;
    }
    if (const uint8_t *d = subfield_data(list, 4, 3)) {
        out->tt_present = 1;
        ast_unsigned_decode(&out->tt_raw, d, 3);
        out->tt = out->tt_raw * kDurationLsb;
    }
    if (const uint8_t *d = subfield_data(list, 5, 2)) {
        out->dt_present = 1;
        ast_unsigned_decode(&out->dt_raw, d, 2);
        out->dt = out->dt_raw * kMetreLsb;
    }
    uint32_t n = 0;
    if (const uint8_t *d = subfield_chain(list, 6, 2, &n)) {
        out->ac_present = 1;
        out->ac_octets = n;
        out->gatoat = d[0] >> 6;
        out->fr1fr2 = d[0] >> 4 & 3u;
        out->rvsm = d[0] >> 2 & 3u;
        out->hpr = bit(d[0], 2);
        if (n > 1) {
            out->cdm = d[1] >> 6;
            out->pri = bit(d[1], 6);
            out->gv = bit(d[1], 5);
        }
    }
    if (const uint8_t *d = subfield_data(list, 7, 6)) {
        out->ms_present = 1;
        items::chars_decode(out->ms, d);
    }
    if (const uint8_t *d = subfield_data(list, 8, 4)) {
        out->fp_present = 1;
        ast_unsigned_decode_ex(&out->fp, d, 4, 5);
    }
    if (const uint8_t *d = subfield_data(list, 9, 2)) {
        out->cf_present = 1;
        ast_unsigned_decode(&out->cf_raw, d, 2);
        out->cf = out->cf_raw * kFlightLevelLsb;
    }
    out->valid = 1;
}

}  // extern "C"

KOVREL_DECODE_EX(004_100, AstItem004_100, ast_dataitem_004_100_decode)
KOVREL_DECODE_EX(004_120, AstItem004_120, ast_dataitem_004_120_decode)
KOVREL_DECODE_EX(004_170, AstItem004_170, ast_dataitem_004_170_decode)
KOVREL_DECODE_EX(004_171, AstItem004_171, ast_dataitem_004_170_decode)

namespace kovrel::fields {

namespace {

// One group per subfield, shown under the subfield's id when it is present.
constexpr FieldRow subfield_group(const char *name, Member present, const FieldDesc &fields, uint32_t size) {
    return group(name, Member{Store::Struct, 0, size}, fields).when(present);
}

using T100 = AstItem004_100;
constexpr FieldRow k100Rows[] = {
    text("an", KOVREL_MEMBER(T100, an)).when(KOVREL_MEMBER(T100, an_present)),
    text("can", KOVREL_MEMBER(T100, can)).when(KOVREL_MEMBER(T100, can_present)),
    text("rt1", KOVREL_MEMBER(T100, rt1)).when(KOVREL_MEMBER(T100, rt1_present)),
    text("rt2", KOVREL_MEMBER(T100, rt2)).when(KOVREL_MEMBER(T100, rt2_present)),
    text("sb", KOVREL_MEMBER(T100, sb)).when(KOVREL_MEMBER(T100, sb_present)),
    text("g", KOVREL_MEMBER(T100, g)).when(KOVREL_MEMBER(T100, g_present)),
};

using T120 = AstItem004_120;
constexpr FieldRow kCnRows[] = {
    flag("mas", KOVREL_MEMBER(T120, mas)),         flag("cas", KOVREL_MEMBER(T120, cas)),
    flag("fld", KOVREL_MEMBER(T120, fld)),         flag("fvd", KOVREL_MEMBER(T120, fvd)),
    flag("type", KOVREL_MEMBER(T120, type)),       flag("cross", KOVREL_MEMBER(T120, cross)),
    flag("div", KOVREL_MEMBER(T120, div)),         flag("rrc", KOVREL_MEMBER(T120, rrc)),
    flag("rtc", KOVREL_MEMBER(T120, rtc)),         flag("mrva", KOVREL_MEMBER(T120, mrva)),
    flag("vramcrm", KOVREL_MEMBER(T120, vramcrm)), flag("vramvrm", KOVREL_MEMBER(T120, vramvrm)),
    flag("vramvtm", KOVREL_MEMBER(T120, vramvtm)), flag("hamhd", KOVREL_MEMBER(T120, hamhd)),
    flag("hamrd", KOVREL_MEMBER(T120, hamrd)),     flag("hamvd", KOVREL_MEMBER(T120, hamvd)),
    flag("dbpsmarr", KOVREL_MEMBER(T120, dbpsmarr)), flag("dbpsmdep", KOVREL_MEMBER(T120, dbpsmdep)),
    flag("dbpsmtl", KOVREL_MEMBER(T120, dbpsmtl)), flag("aiw", KOVREL_MEMBER(T120, aiw)),
};
constexpr FieldRow kCcRows[] = {
    integer("tab", KOVREL_MEMBER(T120, tab)).width(4),
    integer("prop", KOVREL_MEMBER(T120, prop)).width(3),
    flag("cs", KOVREL_MEMBER(T120, cs)),
};
constexpr FieldRow kCpRows[] = {scaled("cp", KOVREL_MEMBER(T120, cp_raw), kProbabilityLsb, "%").width(8)};
constexpr FieldRow kCdRows[] = {scaled("cd", KOVREL_MEMBER(T120, cd_raw), kDurationLsb, "s").width(24)};
constinit const FieldDesc kCnFields = describe<T120>(kCnRows);
constinit const FieldDesc kCcFields = describe<T120>(kCcRows);
constinit const FieldDesc kCpFields = describe<T120>(kCpRows);
constinit const FieldDesc kCdFields = describe<T120>(kCdRows);
constexpr FieldRow k120Rows[] = {
    subfield_group("cn", KOVREL_MEMBER(T120, cn_present), kCnFields, sizeof(T120)),
    subfield_group("cc", KOVREL_MEMBER(T120, cc_present), kCcFields, sizeof(T120)),
    subfield_group("cp", KOVREL_MEMBER(T120, cp_present), kCpFields, sizeof(T120)),
    subfield_group("cd", KOVREL_MEMBER(T120, cd_present), kCdFields, sizeof(T120)),
};

using T170 = AstItem004_170;
constexpr FieldRow kCpwRows[] = {
    scaled("lat", KOVREL_MEMBER(T170, lat_raw), kAngleLsb, "deg"),
    scaled("lon", KOVREL_MEMBER(T170, lon_raw), kAngleLsb, "deg"),
    scaled("alt", KOVREL_MEMBER(T170, alt_raw), kAltitudeLsb, "ft").width(16),
};
constexpr FieldRow kCpcRows[] = {
    scaled("x", KOVREL_MEMBER(T170, x_raw), kMetreLsb, "m").width(24),
    scaled("y", KOVREL_MEMBER(T170, y_raw), kMetreLsb, "m").width(24),
    scaled("z", KOVREL_MEMBER(T170, z_raw), kAltitudeLsb, "ft").width(16),
};
constexpr FieldRow kAcRows[] = {
    integer("gatoat", KOVREL_MEMBER(T170, gatoat)).width(2),
    integer("fr1fr2", KOVREL_MEMBER(T170, fr1fr2)).width(2),
    integer("rvsm", KOVREL_MEMBER(T170, rvsm)).width(2),
    flag("hpr", KOVREL_MEMBER(T170, hpr)),
    integer("cdm", KOVREL_MEMBER(T170, cdm)).width(2),
    flag("pri", KOVREL_MEMBER(T170, pri)),
    flag("gv", KOVREL_MEMBER(T170, gv)),
};
constinit const FieldDesc kCpwFields = describe<T170>(kCpwRows);
constinit const FieldDesc kCpcFields = describe<T170>(kCpcRows);
constinit const FieldDesc kAcFields = describe<T170>(kAcRows);
constexpr FieldRow k170Rows[] = {
    text("ai", KOVREL_MEMBER(T170, ai)).when(KOVREL_MEMBER(T170, ai_present)),
    integer("mode3a", KOVREL_MEMBER(T170, mode3a))
        .width(12)
        .shown(AST_FIELD_FORMAT_OCTAL4)
        .when(KOVREL_MEMBER(T170, m3_present)),
    subfield_group("cpw", KOVREL_MEMBER(T170, cpw_present), kCpwFields, sizeof(T170)),
    subfield_group("cpc", KOVREL_MEMBER(T170, cpc_present), kCpcFields, sizeof(T170)),
    scaled("tt", KOVREL_MEMBER(T170, tt_raw), kDurationLsb, "s").width(24).when(KOVREL_MEMBER(T170, tt_present)),
    scaled("dt", KOVREL_MEMBER(T170, dt_raw), kMetreLsb, "m").width(16).when(KOVREL_MEMBER(T170, dt_present)),
    subfield_group("ac", KOVREL_MEMBER(T170, ac_present), kAcFields, sizeof(T170)),
    text("ms", KOVREL_MEMBER(T170, ms)).when(KOVREL_MEMBER(T170, ms_present)),
    integer("fp", KOVREL_MEMBER(T170, fp)).width(27).when(KOVREL_MEMBER(T170, fp_present)),
    scaled("cf", KOVREL_MEMBER(T170, cf_raw), kFlightLevelLsb, "FL").width(16).when(KOVREL_MEMBER(T170, cf_present)),
};

}  // namespace

constinit const FieldDesc k004_100 = describe<T100, init_valid<T100, ast_dataitem_004_100_init>>(k100Rows);
constinit const FieldDesc k004_120 = describe<T120, init_valid<T120, ast_dataitem_004_120_init>>(k120Rows);
constinit const FieldDesc k004_170 = describe<T170, init_valid<T170, ast_dataitem_004_170_init>>(k170Rows);

}  // namespace kovrel::fields
