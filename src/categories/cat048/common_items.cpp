// CAT048 items served by the common items: their structured decode and
// encode entry points. Each decodes into (or encodes from) the common
// item's own structure.
#include "items/item_ex.h"
#include "kovrel/cat048.h"
#include "kovrel/items.h"

KOVREL_DECODE_EX(048_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(048_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(048_140, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(048_140, AstTimeOfDay, ast_dataitem_time_of_day_encode)

KOVREL_DECODE_EX(048_161, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(048_161, AstTrackNumber, ast_dataitem_track_number_encode)

KOVREL_DECODE_EX(048_070, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(048_070, AstMode3aCode, ast_dataitem_mode_3a_code_encode)

KOVREL_DECODE_EX(048_080, AstMode3aConfidence, ast_dataitem_mode_3a_confidence_decode)

KOVREL_DECODE_EX(048_090, AstModeCCode, ast_dataitem_mode_c_code_decode)
KOVREL_ENCODE_EX(048_090, AstModeCCode, ast_dataitem_mode_c_code_encode)

KOVREL_DECODE_EX(048_100, AstModeCConfidence, ast_dataitem_mode_c_confidence_decode)

KOVREL_DECODE_EX(048_200, AstVelocityPolar, ast_dataitem_velocity_polar_decode)
KOVREL_ENCODE_EX(048_200, AstVelocityPolar, ast_dataitem_velocity_polar_encode)

KOVREL_DECODE_EX(048_220, AstTargetAddress, ast_dataitem_target_address_decode)
KOVREL_ENCODE_EX(048_220, AstTargetAddress, ast_dataitem_target_address_encode)

KOVREL_DECODE_EX(048_240, AstAircraftId, ast_dataitem_aircraft_id_decode)
KOVREL_ENCODE_EX(048_240, AstAircraftId, ast_dataitem_aircraft_id_encode)

KOVREL_DECODE_EX(048_250, AstModesMb, ast_dataitem_modes_mb_decode)

KOVREL_DECODE_EX(048_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
KOVREL_DECODE_EX(048_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
