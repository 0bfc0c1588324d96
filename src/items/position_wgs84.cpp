// WGS-84 positions: latitude and longitude as two's complement fields of 3
// octets (6-octet item) or 4 octets (8-octet item), in degrees.
#include <cmath>
#include <cstdio>

#include "core/state.h"
#include "items/motion_support.h"
#include "kovrel/codec.h"
#include "kovrel/core.h"
#include "kovrel/items_motion.h"

namespace kovrel {
namespace {

constexpr double kLsbLow = 180.0 / 8388608.0;         // 180/2^23
constexpr double kLsbDefault = 180.0 / 33554432.0;    // 180/2^25
constexpr double kLsbFine = 180.0 / 1073741824.0;     // 180/2^30
constexpr double kLsbFinest = 180.0 / 2147483648.0;   // 180/2^31

// Work buffers of the position texts: 20 octets for the summary (a text cut
// there is what existing consumers see), 30 for the detail rows.
constexpr size_t kSummaryText = 20;
constexpr size_t kDetailText = 30;
// Decimal degrees and raw values of any 32-bit field fit whole.
constexpr size_t kNumbersText = 64;
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
void init(T *out, double lsb) {
    if (!out) return;
    *out = T{0, 0, lsb, 0.0, 0, lsb, 0.0};
}

template <typename T>
void scale(T *out, int32_t lat_raw, int32_t lon_raw, double lsb) {
    *out = T{1, lat_raw, lsb, lat_raw * lsb, lon_raw, lsb, lon_raw * lsb};
}

void decode_low(AstPositionWgs84Low *out, const AstDataItem *item) {
    init(out, kLsbLow);
    if (!out || !motion::exact_span(item, 6)) return;
    int32_t lat = 0, lon = 0;
    ast_twos_complement_decode(&lat, item->data, 3);
    ast_twos_complement_decode(&lon, item->data + 3, 3);
    scale(out, lat, lon, kLsbLow);
}

void decode_full(AstPositionWgs84 *out, const AstDataItem *item) {
    init(out, kLsbDefault);
    if (!out || !motion::exact_span(item, 8)) return;
    int32_t lat = 0, lon = 0;
    ast_twos_complement_decode(&lat, item->data, 4);
    ast_twos_complement_decode(&lon, item->data + 4, 4);
    // Some trackers send the I062/105 longitude with the wrong sign; the
    // option turns a western longitude into the eastern one of the same
    // magnitude. No other item is ever corrected.
    if (item->id == 62105 && lon < 0 && option_set(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE)) {
        lon = motion::negate_i32(lon);
    }
    scale(out, lat, lon, full_lsb(item->id));
}

template <typename T>
void encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in, const Layout &layout) {
    if (!out) return;
    motion::encode_result(out, buffer, 0);
    const size_t length = 2 * static_cast<size_t>(layout.field_octets);
    if (!in || !buffer || size < length || in->valid != 1) return;
    // Written as !(x <= limit) so that NaN fails as well.
    if (!(std::fabs(in->latitude) <= 90.0) || !(std::fabs(in->longitude) <= 180.0)) return;
    const int32_t lat = motion::truncate_i32(in->latitude / layout.lsb);
    const int32_t lon = motion::truncate_i32(in->longitude / layout.lsb);
    ast_twos_complement_encode(buffer, layout.field_octets, lat);
    ast_twos_complement_encode(buffer + layout.field_octets, layout.field_octets, lon);
    motion::encode_result(out, buffer, length);
}

template <typename T>
void summary(char *buffer, size_t size, const T &pos) {
    TextWriter w(buffer, size);
    if (pos.valid != 1) return;
    char text[kSummaryText];
    ast_latlong_to_str(text, sizeof text, pos.latitude, pos.longitude);
    w.appendf("WGS84:%s", text);
}

template <typename T>
void detail(char *buffer, size_t size, const T &pos, const Layout &layout) {
    TextWriter w(buffer, size);
    if (pos.valid != 1) return;
    constexpr const char *kItem = "WGS84_COORDINATES";
    motion::table_begin(w, "Octet", "Item", "Value");

    char text[kDetailText];
    ast_latlong_to_str(text, sizeof text, pos.latitude, pos.longitude);
    motion::table_row(w, layout.label, kItem, text);
    ast_latlong_to_str_high(text, sizeof text, pos.latitude, pos.longitude);
    motion::table_row(w, layout.label, kItem, text);
    ast_latlong_to_str_very_high(text, sizeof text, pos.latitude, pos.longitude);
    motion::table_row(w, layout.label, kItem, text);
    char numbers[kNumbersText];
    std::snprintf(numbers, sizeof numbers, layout.degrees, pos.latitude, pos.longitude);
    motion::table_row(w, layout.label, kItem, numbers);
    std::snprintf(numbers, sizeof numbers, "%d, %d", pos.lat_raw, pos.lon_raw);
    motion::table_row(w, layout.raw_label, kItem, numbers);

    char anchor[kAnchorText];
    for (int32_t service = AST_MAP_GOOGLE; service <= AST_MAP_BAIDU; ++service) {
        ast_html_gen_location_map_link(anchor, sizeof anchor, service, pos.latitude, pos.longitude);
        motion::table_row(w, layout.label, kItem, anchor);
    }
    motion::table_end(w);
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_dataitem_position_wgs84_low_init(AstPositionWgs84Low *out) {
    kovrel::init(out, kovrel::kLsbLow);
}

KOVREL_API void ast_dataitem_position_wgs84_low_decode(AstPositionWgs84Low *out, const AstDataItem *item) {
    kovrel::decode_low(out, item);
}

KOVREL_API void ast_dataitem_position_wgs84_low_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                       const AstPositionWgs84Low *in) {
    kovrel::encode(out, buffer, size, in, kovrel::kLow);
}

KOVREL_API void ast_dataitem_position_wgs84_low_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    AstPositionWgs84Low pos;
    kovrel::decode_low(&pos, item);
    kovrel::summary(buffer, size, pos);
}

KOVREL_API void ast_dataitem_position_wgs84_low_get_detail_html(char *buffer, size_t size,
                                                                const AstDataItem *item) {
    AstPositionWgs84Low pos;
    kovrel::decode_low(&pos, item);
    kovrel::detail(buffer, size, pos, kovrel::kLow);
}

KOVREL_API void ast_dataitem_position_wgs84_init(AstPositionWgs84 *out) { kovrel::init(out, kovrel::kLsbDefault); }

KOVREL_API void ast_dataitem_position_wgs84_decode(AstPositionWgs84 *out, const AstDataItem *item) {
    kovrel::decode_full(out, item);
}

KOVREL_API void ast_dataitem_position_wgs84_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                   const AstPositionWgs84 *in) {
    kovrel::encode(out, buffer, size, in, kovrel::kFull);
}

KOVREL_API void ast_dataitem_position_wgs84_get_summary(char *buffer, size_t size, const AstDataItem *item) {
    AstPositionWgs84 pos;
    kovrel::decode_full(&pos, item);
    kovrel::summary(buffer, size, pos);
}

KOVREL_API void ast_dataitem_position_wgs84_get_detail_html(char *buffer, size_t size, const AstDataItem *item) {
    AstPositionWgs84 pos;
    kovrel::decode_full(&pos, item);
    kovrel::detail(buffer, size, pos, kovrel::kFull);
}

}  // extern "C"
