// CAT021 record accessors: the facts of an ADS-B report, each read from the
// first item of the record that carries it. Where two items of different
// editions carry the same fact (times, positions, ground vectors, vertical
// rates) whichever comes first in the record is read. A result is all
// zeros (SAC/SIC: all ones) when the record is invalid or lacks the item or
// the item does not decode.
#include <initializer_list>

#include "kovrel/cat021.h"
#include "kovrel/datarecord.h"
#include "record/record_access.h"
#include "record/record_funcs.h"

namespace {

using namespace kovrel::access;

constexpr double kSpeedLsb = 0.2197265625;     // kt
constexpr double kAngleLsb = 0.0054931640625;  // degrees

// The first item of a valid record whose identifier is one of ids.
const AstDataItem *first_of(const AstDataRecord *record, std::initializer_list<AstItemId> ids) {
    if (!record || record->valid != 1) return nullptr;
    const uint64_t count =
        record->item_count < AST_DATARECORD_MAX_ITEMS ? record->item_count : AST_DATARECORD_MAX_ITEMS;
    for (uint64_t i = 0; i < count; ++i)
        for (AstItemId id : ids)
            if (record->items[i].id == id) return &record->items[i];
    return nullptr;
}

// The two octets of a readable two-octet item.
bool word_of(const AstDataItem *item, uint32_t *word) {
    if (!item || item->valid != 1 || !item->data || item->length != 2) return false;
    *word = (uint32_t{item->data[0]} << 8) | item->data[1];
    return true;
}

int32_t sign_extend(uint32_t v, unsigned n) {
    const uint32_t m = uint32_t{1} << (n - 1);
    v &= (uint32_t{1} << n) - 1;
    return static_cast<int32_t>((v ^ m) - m);
}

void set_value(AstRecordValue *out, double value) {
    out->valid = 1;
    out->value = value;
}

// The ground vector of either generation: speed in knots and track angle.
bool ground_vector(const AstDataRecord *record, double *speed, double *angle) {
    const AstDataItem *item = first_of(record, {21911, 21160});
    if (!item || item->valid != 1 || !item->data || item->length != 4) return false;
    const uint8_t *p = item->data;
    const uint32_t hi = (uint32_t{p[0]} << 8) | p[1];
    const int32_t raw = item->id == 21911 ? sign_extend(hi, 16) : static_cast<int32_t>(hi & 0x7FFFu);
    *speed = raw * kSpeedLsb;
    *angle = ((uint32_t{p[2]} << 8) | p[3]) * kAngleLsb;
    return true;
}

}  // namespace

extern "C" {

KOVREL_API void ast_datarecord_021_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record) {
    if (!out) return;
    if (decode_first(out, record, 21010, ast_dataitem_data_source_identifier_decode)) return;
    out->sac = 0xFFFFFFFFu;
    out->sic = 0xFFFFFFFFu;
}

KOVREL_API void ast_datarecord_021_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    const AstDataItem *item = first_of(record, {21077, 21030});
    if (!item) return;
    ast_dataitem_time_of_day_decode(out, item);
    if (out->valid != 1) clear(out);
}

KOVREL_API void ast_datarecord_021_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    if (!record || record->valid != 1) return;
    *out = AstRecordMsgType{1, 5u};  // "ADS-B"
}

KOVREL_API void ast_datarecord_021_get_tracknum(AstTrackNumber *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 21161, ast_dataitem_track_number_decode);
}

KOVREL_API void ast_datarecord_021_get_squawk(AstMode3aCode *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 21070, ast_dataitem_mode_3a_code_decode);
}

KOVREL_API void ast_datarecord_021_get_callsign(AstRecordCallsign *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    AstAircraftId id;
    if (!decode_first(&id, record, 21170, ast_dataitem_aircraft_id_decode)) return;
    out->valid = 1;
    std::memcpy(out->callsign, id.chars, sizeof out->callsign - 1);
}

KOVREL_API void ast_datarecord_021_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record) {
    if (out) decode_first(out, record, 21080, ast_dataitem_target_address_decode);
}

KOVREL_API void ast_datarecord_021_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    const AstDataItem *item = first_of(record, {21130, 21131, 21902});
    if (!item) return;
    if (item->id == 21130) {
        AstPositionWgs84Low low;
        ast_dataitem_position_wgs84_low_decode(&low, item);
        if (low.valid != 1) return;
        *out = AstRecordWgs84{1, low.latitude, low.longitude};
        return;
    }
    AstPositionWgs84 high;
    ast_dataitem_position_wgs84_decode(&high, item);
    if (high.valid == 1) *out = AstRecordWgs84{1, high.latitude, high.longitude};
}

KOVREL_API void ast_datarecord_021_get_flightlevel(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    uint32_t w = 0;
    if (word_of(first_of(record, {21145}), &w)) set_value(out, sign_extend(w, 16) * 25.0);
}

KOVREL_API void ast_datarecord_021_get_selaltitude(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    uint32_t w = 0;
    if (word_of(first_of(record, {21146}), &w)) set_value(out, sign_extend(w, 13) * 25.0);
}

KOVREL_API void ast_datarecord_021_get_heading(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    double speed = 0, angle = 0;
    if (ground_vector(record, &speed, &angle)) set_value(out, angle);
}

KOVREL_API void ast_datarecord_021_get_speed(AstRecordValue *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    double speed = 0, angle = 0;
    if (ground_vector(record, &speed, &angle)) set_value(out, speed);
}

KOVREL_API void ast_datarecord_021_get_vrate(AstVerticalRate *out, const AstDataRecord *record) {
    if (!out) return;
    clear(out);
    const AstDataItem *item = first_of(record, {21909, 21155});
    if (!item) return;
    if (item->id == 21909)
        ast_dataitem_vertical_rate_no_re_decode(out, item);
    else
        ast_dataitem_vertical_rate_decode(out, item);
    if (out->valid != 1) clear(out);
}

}  // extern "C"

namespace kovrel {

constinit const AstDataRecordFuncs kRecordFuncs021 = {
    ast_datarecord_021_get_sacsic,
    ast_datarecord_021_get_timeofday,
    ast_datarecord_021_get_msgtype,
    ast_datarecord_021_get_tracknum,
    ast_datarecord_021_get_squawk,
    ast_datarecord_021_get_callsign,
    ast_datarecord_021_get_icaoaddr,
    ast_datarecord_021_get_coordinate,
    ast_datarecord_021_get_flightlevel,
    ast_datarecord_021_get_selaltitude,
    nullptr,  // no polar position in an ADS-B report
    ast_datarecord_021_get_heading,
    ast_datarecord_021_get_speed,
    nullptr,  // no Cartesian velocity
    ast_datarecord_021_get_vrate,
};

}  // namespace kovrel
