// Structured decode and encode of the CAT021 items that are laid out as one
// of the common items: each wrapper hands the span to the common item's
// decoder or encoder, which checks the length and (for the WGS-84 position
// and the track number) picks the variant by the span's identifier.
#include <cstring>

#include "items/item_ex.h"
#include "items/item_support.h"
#include "categories/cat021/support.h"
#include "kovrel/cat021.h"
#include "kovrel/items.h"

// Writers of the common layouts that have no encoder of their own, so that
// every CAT021 report can be written back as it was read.
namespace kovrel::cat021 {
namespace {

namespace items = ::kovrel::items;

// High-precision time: FSI in the top two bits (+1 as 01, -1 as 10), the
// fraction of the second below.
void time_high_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstTimeOfDayHigh *in) {
    if (!items::encode_begin(out, buffer, size, 4)) return;
    if (!in || in->valid != 1 || in->raw > 0x3FFFFFFFu || in->fsi < -1 || in->fsi > 1) return;
    const uint32_t fsi = in->fsi == 1 ? 1u : in->fsi == -1 ? 2u : 0u;
    const uint32_t word = (fsi << 30) | in->raw;
    for (int i = 0; i < 4; ++i) buffer[i] = static_cast<uint8_t>(word >> (24 - 8 * i));
    items::encode_done(out, buffer, 4);
}

// Mode S MB data: REP, then per register its 7 MB octets and its code.
void modes_mb_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstModesMb *in) {
    if (!out) return;
    items::encode_failed(out, buffer);
    if (!in || in->valid != 1 || in->rep > AST_MODES_MB_MAX_BDS) return;
    const size_t length = 1 + 8 * size_t{in->rep};
    if (!items::encode_begin(out, buffer, size, length)) return;
    for (uint32_t i = 0; i < in->rep; ++i)
        if (!in->bds[i].data || in->bds[i].length != 7 || in->bds[i].id > 0xFFu) return;
    buffer[0] = static_cast<uint8_t>(in->rep);
    for (uint32_t i = 0; i < in->rep; ++i) {
        std::memmove(buffer + 1 + 8 * i, in->bds[i].data, 7);
        buffer[8 + 8 * i] = static_cast<uint8_t>(in->bds[i].id);
    }
    items::encode_done(out, buffer, length);
}

// RE and SP fields: the length octet counts itself.
void explicit_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstExplicitField *in) {
    if (!out) return;
    items::encode_failed(out, buffer);
    if (!in || in->valid != 1 || in->length > 254 || (in->length > 0 && !in->data)) return;
    const size_t length = 1 + static_cast<size_t>(in->length);
    if (!items::encode_begin(out, buffer, size, length)) return;
    if (in->length > 0) std::memmove(buffer + 1, in->data, static_cast<size_t>(in->length));
    buffer[0] = static_cast<uint8_t>(length);
    items::encode_done(out, buffer, length);
}

}  // namespace
}  // namespace kovrel::cat021

// Data source identifier and service identification.
KOVREL_DECODE_EX(021_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(021_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)
KOVREL_DECODE_EX(021_015, AstServiceId, ast_dataitem_service_id_decode)
KOVREL_ENCODE_EX(021_015, AstServiceId, ast_dataitem_service_id_encode)

// Times of day, 1/128 s.
KOVREL_DECODE_EX(021_030, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(021_030, AstTimeOfDay, ast_dataitem_time_of_day_encode)
KOVREL_DECODE_EX(021_071, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(021_071, AstTimeOfDay, ast_dataitem_time_of_day_encode)
KOVREL_DECODE_EX(021_072, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(021_072, AstTimeOfDay, ast_dataitem_time_of_day_encode)
KOVREL_DECODE_EX(021_073, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(021_073, AstTimeOfDay, ast_dataitem_time_of_day_encode)
KOVREL_DECODE_EX(021_075, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(021_075, AstTimeOfDay, ast_dataitem_time_of_day_encode)
KOVREL_DECODE_EX(021_077, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(021_077, AstTimeOfDay, ast_dataitem_time_of_day_encode)

// High-precision times of message reception: decoded only.
KOVREL_DECODE_EX(021_074, AstTimeOfDayHigh, ast_dataitem_time_of_day_high_decode)
KOVREL_DECODE_EX(021_076, AstTimeOfDayHigh, ast_dataitem_time_of_day_high_decode)

// Mode 3/A code, target address, track number (12 bits) and the eight
// characters of the target identification.
KOVREL_DECODE_EX(021_070, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(021_070, AstMode3aCode, ast_dataitem_mode_3a_code_encode)
KOVREL_DECODE_EX(021_080, AstTargetAddress, ast_dataitem_target_address_decode)
KOVREL_ENCODE_EX(021_080, AstTargetAddress, ast_dataitem_target_address_encode)
KOVREL_DECODE_EX(021_161, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(021_161, AstTrackNumber, ast_dataitem_track_number_encode)
KOVREL_DECODE_EX(021_170, AstAircraftId, ast_dataitem_aircraft_id_decode)
KOVREL_ENCODE_EX(021_170, AstAircraftId, ast_dataitem_aircraft_id_encode)

// WGS-84 positions: 6 octets at 180/2^23; 8 octets at 180/2^30 for I021/131
// and 180/2^25 for the position of edition 0.26. Both 8-octet items are
// written back at 180/2^25.
KOVREL_DECODE_EX(021_130, AstPositionWgs84Low, ast_dataitem_position_wgs84_low_decode)
KOVREL_ENCODE_EX(021_130, AstPositionWgs84Low, ast_dataitem_position_wgs84_low_encode)
KOVREL_DECODE_EX(021_131, AstPositionWgs84, ast_dataitem_position_wgs84_decode)
KOVREL_ENCODE_EX(021_131, AstPositionWgs84, ast_dataitem_position_wgs84_encode)
KOVREL_DECODE_EX(021_A02, AstPositionWgs84, ast_dataitem_position_wgs84_decode)
KOVREL_ENCODE_EX(021_A02, AstPositionWgs84, ast_dataitem_position_wgs84_encode)

// Vertical rates: with the range-exceeded bit in editions 1.x and later,
// a plain 16-bit rate in editions 0.23 and 0.26.
KOVREL_DECODE_EX(021_155, AstVerticalRate, ast_dataitem_vertical_rate_decode)
KOVREL_ENCODE_EX(021_155, AstVerticalRate, ast_dataitem_vertical_rate_encode)
KOVREL_DECODE_EX(021_157, AstVerticalRate, ast_dataitem_vertical_rate_decode)
KOVREL_ENCODE_EX(021_157, AstVerticalRate, ast_dataitem_vertical_rate_encode)
KOVREL_DECODE_EX(021_A09, AstVerticalRateNoRe, ast_dataitem_vertical_rate_no_re_decode)
KOVREL_ENCODE_EX(021_A09, AstVerticalRateNoRe, ast_dataitem_vertical_rate_no_re_encode)
KOVREL_DECODE_EX(021_A10, AstVerticalRateNoRe, ast_dataitem_vertical_rate_no_re_decode)
KOVREL_ENCODE_EX(021_A10, AstVerticalRateNoRe, ast_dataitem_vertical_rate_no_re_encode)

// Mode S MB data, reserved expansion and special purpose fields: decoded only.
KOVREL_DECODE_EX(021_250, AstModesMb, ast_dataitem_modes_mb_decode)
KOVREL_DECODE_EX(021_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
KOVREL_DECODE_EX(021_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)

// Written back only as members of the disassembled record, like the
// common items they are laid out as, which have no encoder of their own
// (and whose register and explicit-field octets cannot be set by name).
namespace kovrel::cat021 {
void modes_mb_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItemValue *value) {
    encode_ex<AstModesMb, modes_mb_encode>(out, buffer, size, value);
}
void explicit_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItemValue *value) {
    encode_ex<AstExplicitField, explicit_encode>(out, buffer, size, value);
}
void time_high_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItemValue *value) {
    encode_ex<AstTimeOfDayHigh, time_high_encode>(out, buffer, size, value);
}
}  // namespace kovrel::cat021
