// WGS-84 positions: latitude and longitude as two's complement fields of 3
// octets (6-octet item) or 4 octets (8-octet item), in degrees.
#include <cmath>

#include "core/state.h"
#include "items/item_fields.h"
#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/core.h"
#include "kovrel/items_motion.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

constexpr double kLsbLow = 180.0 / 8388608.0;         // 180/2^23
constexpr double kLsbDefault = 180.0 / 33554432.0;    // 180/2^25
constexpr double kLsbFine = 180.0 / 1073741824.0;     // 180/2^30
constexpr double kLsbFinest = 180.0 / 2147483648.0;   // 180/2^31

// Work buffers of the position texts: 20 octets for the summary (a text cut
// there is what existing consumers see), 30 for the detail rows.
constexpr size_t kSummaryText = 20;
constexpr size_t kDetailText = 30;
// An anchor holds a link of at most 511 characters and the service name.
constexpr size_t kAnchorText = 600;

// What differs between the two sizes of the item.
struct Layout {
    int field_octets;      // octets per coordinate
    double lsb;            // init LSB, and the LSB every encode writes with
    const char *label;     // octet label of the detail rows
    const char *raw_label; // octet label of the raw value row
    const char *degrees;   // format of the decimal degrees row
};

constexpr Layout kLow{3, kLsbLow, "Octet[1-6]", "Octet[1-6]", "%010.6f, %011.6f"};
// The raw value row of the 8-octet view reads "Octet[1-6]"; kept for
// compatibility with existing consumers that match on the label.
constexpr Layout kFull{4, kLsbDefault, "Octet[1-8]", "Octet[1-6]", "%012.8f, %013.8f"};

// LSB of an 8-octet position, chosen by the item that carries it.
double full_lsb(AstItemId id) {
    switch (id) {
    case 10041:  // I010/041
    case 16400:  // I016/400
        return kLsbFinest;
    case 19600:  // I019/600
    case 21131:  // I021/131
        return kLsbFine;
    default:
        return kLsbDefault;
    }
}

template <typename T>
void init(T *out, const Layout &layout) {
    if (out) *out = items::number_pair<T>(0, 0, layout.lsb, 0, layout.lsb);
}

void decode_full(AstPositionWgs84 *out, const AstDataItem *item) {
    init(out, kFull);
    if (!out || !items::span_ok(item, 8)) return;
    int32_t lat = 0, lon = 0;
    ast_twos_complement_decode(&lat, item->data, 4);
    ast_twos_complement_decode(&lon, item->data + 4, 4);
    // Some trackers send the I062/105 longitude with the wrong sign; the
    // option turns a western longitude into the eastern one of the same
    // magnitude. No other item is ever corrected.
    if (item->id == 62105 && lon < 0 && kovrel::option_set(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE)) {
        lon = items::negate_i32(lon);
    }
    const double lsb = full_lsb(item->id);
    *out = items::number_pair<AstPositionWgs84>(1, lat, lsb, lon, lsb);
}

template <typename T>
void encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in, const Layout &layout) {
    const size_t length = 2 * static_cast<size_t>(layout.field_octets);
    if (!items::encode_begin(out, buffer, size, length)) return;
    if (!in || in->valid != 1) return;
    // Written as !(x <= limit) so that NaN fails as well.
    if (!(std::fabs(in->latitude) <= 90.0) || !(std::fabs(in->longitude) <= 180.0)) return;
    const int32_t lat = items::truncate_i32(in->latitude / layout.lsb);
    const int32_t lon = items::truncate_i32(in->longitude / layout.lsb);
    ast_twos_complement_encode(buffer, layout.field_octets, lat);
    ast_twos_complement_encode(buffer + layout.field_octets, layout.field_octets, lon);
    items::encode_done(out, buffer, length);
}

template <typename T>
void summary(TextWriter &w, const T &pos) {
    char text[kSummaryText];
    ast_latlong_to_str(text, sizeof text, pos.latitude, pos.longitude);
    w.appendf("WGS84:%s", text);
}

template <typename T>
void detail(TextWriter &w, const T &pos, const Layout &layout) {
    constexpr const char *kItem = "WGS84_COORDINATES";
    items::DetailTable t(w);
    t.header("Octet", "Item", "Value");

    char text[kDetailText];
    ast_latlong_to_str(text, sizeof text, pos.latitude, pos.longitude);
    t.row(layout.label, kItem, text);
    ast_latlong_to_str_high(text, sizeof text, pos.latitude, pos.longitude);
    t.row(layout.label, kItem, text);
    ast_latlong_to_str_very_high(text, sizeof text, pos.latitude, pos.longitude);
    t.row(layout.label, kItem, text);
    t.rowf(layout.label, kItem, layout.degrees, pos.latitude, pos.longitude);
    t.rowf(layout.raw_label, kItem, "%d, %d", pos.lat_raw, pos.lon_raw);

    char anchor[kAnchorText];
    for (int32_t service = AST_MAP_GOOGLE; service <= AST_MAP_BAIDU; ++service) {
        ast_html_gen_location_map_link(anchor, sizeof anchor, service, pos.latitude, pos.longitude);
        t.row(layout.label, kItem, anchor);
    }
    t.end();
}

}  // namespace

extern "C" {

KOVREL_API void ast_dataitem_position_wgs84_low_init(AstPositionWgs84Low *out) { init(out, kLow); }

KOVREL_API void ast_dataitem_position_wgs84_low_decode(AstPositionWgs84Low *out, const AstDataItem *item) {
    items::decode_signed_pair(out, item, kLow.field_octets, kLow.lsb);
}

KOVREL_API void ast_dataitem_position_wgs84_low_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                       const AstPositionWgs84Low *in) {
    encode(out, buffer, size, in, kLow);
}

KOVREL_API void ast_dataitem_position_wgs84_low_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_position_wgs84_low_decode, summary<AstPositionWgs84Low>);
}

KOVREL_API void ast_dataitem_position_wgs84_low_get_detail_html(char *buffer, size_t size,
                                                                const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_position_wgs84_low_decode,
                    [](TextWriter &w, const auto &pos) { detail(w, pos, kLow); });
}

KOVREL_API void ast_dataitem_position_wgs84_init(AstPositionWgs84 *out) { init(out, kFull); }

KOVREL_API void ast_dataitem_position_wgs84_decode(AstPositionWgs84 *out, const AstDataItem *item) {
    decode_full(out, item);
}

KOVREL_API void ast_dataitem_position_wgs84_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                   const AstPositionWgs84 *in) {
    encode(out, buffer, size, in, kFull);
}

KOVREL_API void ast_dataitem_position_wgs84_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_position_wgs84_decode, summary<AstPositionWgs84>);
}

KOVREL_API void ast_dataitem_position_wgs84_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    items::describe(buffer, size, item, ast_dataitem_position_wgs84_decode,
                    [](TextWriter &w, const auto &pos) { detail(w, pos, kFull); });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
// The encoders read the degrees, never the raw values.
using L = AstPositionWgs84Low;
constexpr FieldRow kLowRows[] = {
    real("lat", KOVREL_MEMBER(L, latitude), "deg"),
    real("lon", KOVREL_MEMBER(L, longitude), "deg"),
};
using P = AstPositionWgs84;
constexpr FieldRow kFullRows[] = {
    real("lat", KOVREL_MEMBER(P, latitude), "deg"),
    real("lon", KOVREL_MEMBER(P, longitude), "deg"),
};
}  // namespace

constinit const FieldDesc kPositionWgs84Low =
    describe<L, init_valid<L, ast_dataitem_position_wgs84_low_init>>(kLowRows);
constinit const FieldDesc kPositionWgs84 = describe<P, init_valid<P, ast_dataitem_position_wgs84_init>>(kFullRows);

}  // namespace kovrel::fields
