// CAT020 items served by the common items: their structured decode and
// encode entry points. Each decodes into (or encodes from) the common
// item's own structure.
#include "items/item_ex.h"
#include "kovrel/cat020.h"
#include "kovrel/items.h"

KOVREL_DECODE_EX(020_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(020_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(020_140, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(020_140, AstTimeOfDay, ast_dataitem_time_of_day_encode)

// Read at 180/2^25 degrees, the LSB the common encoder writes.
KOVREL_DECODE_EX(020_041, AstPositionWgs84, ast_dataitem_position_wgs84_decode)
KOVREL_ENCODE_EX(020_041, AstPositionWgs84, ast_dataitem_position_wgs84_encode)

KOVREL_DECODE_EX(020_042, AstPositionCartesian, ast_dataitem_position_cartesian_decode)

KOVREL_DECODE_EX(020_161, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(020_161, AstTrackNumber, ast_dataitem_track_number_encode)

KOVREL_DECODE_EX(020_070, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(020_070, AstMode3aCode, ast_dataitem_mode_3a_code_encode)

// The Mode 2 code has the Mode 3/A layout (V, G, L, spare, 12-bit code).
KOVREL_DECODE_EX(020_050, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(020_050, AstMode3aCode, ast_dataitem_mode_3a_code_encode)

KOVREL_DECODE_EX(020_202, AstVelocityCartesian, ast_dataitem_velocity_cartesian_decode)

KOVREL_DECODE_EX(020_090, AstModeCCode, ast_dataitem_mode_c_code_decode)
KOVREL_ENCODE_EX(020_090, AstModeCCode, ast_dataitem_mode_c_code_encode)

KOVREL_DECODE_EX(020_100, AstModeCConfidence, ast_dataitem_mode_c_confidence_decode)

KOVREL_DECODE_EX(020_220, AstTargetAddress, ast_dataitem_target_address_decode)
KOVREL_ENCODE_EX(020_220, AstTargetAddress, ast_dataitem_target_address_encode)

KOVREL_DECODE_EX(020_245, AstTargetId, ast_dataitem_target_id_decode)
KOVREL_ENCODE_EX(020_245, AstTargetId, ast_dataitem_target_id_encode)

KOVREL_DECODE_EX(020_110, AstHeight, ast_dataitem_height_decode)
KOVREL_DECODE_EX(020_105, AstHeight, ast_dataitem_height_decode)

KOVREL_DECODE_EX(020_250, AstModesMb, ast_dataitem_modes_mb_decode)

KOVREL_DECODE_EX(020_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
KOVREL_DECODE_EX(020_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
