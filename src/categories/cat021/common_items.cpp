// Structured decode and encode of the CAT021 items that are laid out as one
// of the common items: each wrapper hands the span to the common item's
// decoder or encoder, which checks the length and (for the WGS-84 position
// and the track number) picks the variant by the span's identifier.
#include "items/item_ex.h"
#include "kovrel/cat021.h"
#include "kovrel/items.h"

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
