// I240/040 Video Header Nano, I240/041 Video Header Femto, I240/048 Video
// Cells Resolution & Data Compression Indicator and I240/049 Video Octets &
// Video Cells Counters: what a receiver needs to read the video block.
#include "categories/cat240/video_state.h"
#include "items/item_ex.h"
#include "items/item_fields.h"
#include "items/item_support.h"
#include "kovrel/core.h"

namespace {

using kovrel::TextWriter;
using kovrel::cat240::kHalfLightSpeed;
using kovrel::cat240::video_state;
namespace items = kovrel::items;

constexpr AstItemId kId040 = 240040;
constexpr AstItemId kId041 = 240041;
constexpr AstItemId kId048 = 240048;
constexpr AstItemId kId049 = 240049;
constexpr double kAzimuthLsb = 360.0 / 65536.0;
// Cell durations are divided by these rather than multiplied by their
// inverse, so that a whole number of nanoseconds gives the nearest double.
constexpr double kNanoPerSecond = 1e9;
constexpr double kFemtoPerSecond = 1e15;

uint32_t be16(const uint8_t *p) { return (static_cast<uint32_t>(p[0]) << 8) | p[1]; }
uint32_t be24(const uint8_t *p) { return (static_cast<uint32_t>(p[0]) << 16) | be16(p + 1); }
uint32_t be32(const uint8_t *p) { return (static_cast<uint32_t>(p[0]) << 24) | be24(p + 1); }

// Both headers share their layout; only the LSB of the cell duration
// differs. A decoded header becomes the thread's range scale.
void decode_header(AstVideoHeader *out, const AstDataItem *item, AstItemId id, double units_per_second) {
    ast_dataitem_video_header_init(out);
    if (!out || !items::span_ok(item, 12) || item->id != id) return;
    const uint8_t *p = item->data;
    out->start_az_raw = be16(p);
    out->start_az = out->start_az_raw * out->start_az_lsb;
    out->end_az_raw = be16(p + 2);
    out->end_az = out->end_az_raw * out->end_az_lsb;
    out->start_rg = be32(p + 4);
    out->cell_dur_raw = be32(p + 8);
    out->cell_dur_lsb = 1.0 / units_per_second;
    out->cell_dur = out->cell_dur_raw / units_per_second;
    out->valid = 1;
    video_state().start_range = out->start_rg;
    video_state().cell_duration = out->cell_dur;
}

double start_range_m(const AstVideoHeader &h) { return h.start_rg * h.cell_dur * kHalfLightSpeed; }

void header_summary(TextWriter &w, const AstVideoHeader &h) {
    w.appendf("AZ:%.2f-%.2f RG:%.2f", h.start_az, h.end_az, start_range_m(h));
}

void header_detail(TextWriter &w, const AstVideoHeader &h, const char *duration_name) {
    items::DetailTable t(w);
    t.header("Bit", "Item", "Value");
    t.rowf("Bit[0-15]", "START_AZ", "%u", h.start_az_raw);
    t.rowf("Bit[0-15]", "START_AZ DEG", "%.4f", h.start_az);
    t.rowf("Bit[16-31]", "END_AZ", "%u", h.end_az_raw);
    t.rowf("Bit[16-31]", "END_AZ DEG", "%.4f", h.end_az);
    t.rowf("Bit[32-63]", "START_RG", "%u", h.start_rg);
    t.rowf("Bit[32-63]", "START_RG M", "%.2f", start_range_m(h));
    t.rowf("Bit[64-95]", duration_name, "%u", h.cell_dur_raw);
    t.rowf("Bit[64-95]", "CELL_DUR S", "%.6e", h.cell_dur);
    t.end();
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_video_header_init(AstVideoHeader *out) {
    if (!out) return;
    *out = AstVideoHeader{};
    out->start_az_lsb = kAzimuthLsb;
    out->end_az_lsb = kAzimuthLsb;
}

KOVREL_API void ast_dataitem_240_040_decode(AstVideoHeader *out, const AstDataItem *item) {
    decode_header(out, item, kId040, kNanoPerSecond);
}

KOVREL_API void ast_dataitem_240_041_decode(AstVideoHeader *out, const AstDataItem *item) {
    decode_header(out, item, kId041, kFemtoPerSecond);
}

KOVREL_API void ast_dataitem_240_040_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_040_decode, header_summary);
}

KOVREL_API void ast_dataitem_240_041_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_041_decode, header_summary);
}

KOVREL_API void ast_dataitem_240_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_040_decode,
                    [](TextWriter &w, const AstVideoHeader &h) { header_detail(w, h, "CELL_DUR NS"); });
}

KOVREL_API void ast_dataitem_240_041_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_041_decode,
                    [](TextWriter &w, const AstVideoHeader &h) { header_detail(w, h, "CELL_DUR FS"); });
}

KOVREL_API void ast_dataitem_240_048_init(AstItem240_048 *out) {
    if (out) *out = AstItem240_048{};
}

KOVREL_API void ast_dataitem_240_048_decode(AstItem240_048 *out, const AstDataItem *item) {
    ast_dataitem_240_048_init(out);
    if (!out || !items::span_ok(item, 2) || item->id != kId048) return;
    out->c = item->data[0] >> 7;
    out->res = item->data[1];
    out->valid = 1;
    if (out->res < 1 || out->res > 6)
        ast_log(AST_LOG_WARNING, "I240/048 video cells resolution %d is not a standard value [1-6].",
                static_cast<int>(out->res));
    video_state().res = out->res;
}

KOVREL_API void ast_dataitem_240_048_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_048_decode, [](TextWriter &w, const auto &r) {
        w.append("RES:");
        w.append_uint(ast_video_resolution_bits(r.res));
        w.append("-BITS");
        if (r.c) w.append(" DCI");
    });
}

KOVREL_API void ast_dataitem_240_048_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_048_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0]", "C", "%u", r.c);
        t.rowf("Bit[8-15]", "RES", "%u", r.res);
        t.rowf("Bit[8-15]", "RES BITS", "%u", ast_video_resolution_bits(r.res));
        t.end();
    });
}

KOVREL_API void ast_dataitem_240_049_init(AstItem240_049 *out) {
    if (out) *out = AstItem240_049{};
}

KOVREL_API void ast_dataitem_240_049_decode(AstItem240_049 *out, const AstDataItem *item) {
    ast_dataitem_240_049_init(out);
    if (!out || !items::span_ok(item, 5) || item->id != kId049) return;
    out->nb_vb = be16(item->data);
    out->nb_cells = be24(item->data + 2);
    out->valid = 1;
}

KOVREL_API void ast_dataitem_240_049_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_049_decode, [](TextWriter &w, const auto &c) {
        w.append("OCTET:");
        w.append_uint(c.nb_vb);
        w.append(" CELL:");
        w.append_uint(c.nb_cells);
    });
}

KOVREL_API void ast_dataitem_240_049_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_240_049_decode, [](TextWriter &w, const auto &c) {
        items::DetailTable t(w);
        t.header("Bit", "Item", "Value");
        t.rowf("Bit[0-15]", "NB_VB", "%u", c.nb_vb);
        t.rowf("Bit[16-39]", "NB_CELLS", "%u", c.nb_cells);
        t.end();
    });
}

}  // extern "C"

KOVREL_DECODE_EX(240_040, AstVideoHeader, ast_dataitem_240_040_decode)
KOVREL_DECODE_EX(240_041, AstVideoHeader, ast_dataitem_240_041_decode)
KOVREL_DECODE_EX(240_048, AstItem240_048, ast_dataitem_240_048_decode)
KOVREL_DECODE_EX(240_049, AstItem240_049, ast_dataitem_240_049_decode)

namespace kovrel::fields {

namespace {

using H = AstVideoHeader;

// The azimuths and the cell duration scaled; the raw duration is kept
// beside it since its unit (ns or fs) is what the two headers differ in.
constexpr FieldRow kHeaderRows[] = {
    real("start_az", KOVREL_MEMBER(H, start_az), "deg"),
    real("end_az", KOVREL_MEMBER(H, end_az), "deg"),
    integer("start_rg", KOVREL_MEMBER(H, start_rg)),
    integer("cell_dur_raw", KOVREL_MEMBER(H, cell_dur_raw)),
    real("cell_dur", KOVREL_MEMBER(H, cell_dur), "s"),
};

constexpr FieldRow k048Rows[] = {
    flag("c", KOVREL_MEMBER(AstItem240_048, c)),
    integer("res", KOVREL_MEMBER(AstItem240_048, res)).width(8),
};

constexpr FieldRow k049Rows[] = {
    integer("nb_vb", KOVREL_MEMBER(AstItem240_049, nb_vb)).width(16),
    integer("nb_cells", KOVREL_MEMBER(AstItem240_049, nb_cells)).width(24),
};

}  // namespace

constinit const FieldDesc k240_040 = describe<H, init_valid<H, ast_dataitem_video_header_init>>(kHeaderRows);
constinit const FieldDesc k240_041 = describe<H, init_valid<H, ast_dataitem_video_header_init>>(kHeaderRows);
constinit const FieldDesc k240_048 =
    describe<AstItem240_048, init_valid<AstItem240_048, ast_dataitem_240_048_init>>(k048Rows);
constinit const FieldDesc k240_049 =
    describe<AstItem240_049, init_valid<AstItem240_049, ast_dataitem_240_049_init>>(k049Rows);

}  // namespace kovrel::fields
