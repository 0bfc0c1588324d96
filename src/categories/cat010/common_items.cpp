// CAT010 items served by the common items: their structured decode and
// encode entry points. Each decodes into (or encodes from) the common
// item's own structure.
#include "items/item_ex.h"
#include "kovrel/cat010.h"
#include "kovrel/items.h"

KOVREL_DECODE_EX(010_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(010_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(010_000, AstMessageType, ast_dataitem_message_type_decode)
KOVREL_ENCODE_EX(010_000, AstMessageType, ast_dataitem_message_type_encode)

KOVREL_DECODE_EX(010_140, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(010_140, AstTimeOfDay, ast_dataitem_time_of_day_encode)

// Read at 180/2^31 degrees; its encoder (position.cpp) writes at the same LSB.
KOVREL_DECODE_EX(010_041, AstPositionWgs84, ast_dataitem_position_wgs84_decode)

KOVREL_DECODE_EX(010_060, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(010_060, AstMode3aCode, ast_dataitem_mode_3a_code_encode)

KOVREL_DECODE_EX(010_090, AstModeCCode, ast_dataitem_mode_c_code_decode)
KOVREL_ENCODE_EX(010_090, AstModeCCode, ast_dataitem_mode_c_code_encode)

KOVREL_DECODE_EX(010_091, AstHeight, ast_dataitem_height_decode)

KOVREL_DECODE_EX(010_161, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(010_161, AstTrackNumber, ast_dataitem_track_number_encode)

KOVREL_DECODE_EX(010_200, AstVelocityPolar, ast_dataitem_velocity_polar_decode)
KOVREL_ENCODE_EX(010_200, AstVelocityPolar, ast_dataitem_velocity_polar_encode)

KOVREL_DECODE_EX(010_220, AstTargetAddress, ast_dataitem_target_address_decode)
KOVREL_ENCODE_EX(010_220, AstTargetAddress, ast_dataitem_target_address_encode)

KOVREL_DECODE_EX(010_245, AstTargetId, ast_dataitem_target_id_decode)
KOVREL_ENCODE_EX(010_245, AstTargetId, ast_dataitem_target_id_encode)

KOVREL_DECODE_EX(010_250, AstModesMb, ast_dataitem_modes_mb_decode)

KOVREL_DECODE_EX(010_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
KOVREL_DECODE_EX(010_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
