// CAT062 items that reuse a common item: their structured decode and encode
// entry points, each filling or reading the common item's structure.
#include "items/item_ex.h"
#include "kovrel/cat062.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"
#include "kovrel/items_motion.h"

KOVREL_DECODE_EX(062_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(062_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(062_015, AstServiceId, ast_dataitem_service_id_decode)
KOVREL_ENCODE_EX(062_015, AstServiceId, ast_dataitem_service_id_encode)

// The track number of I062/040 fills all 16 bits; the common decoder tells
// it by the identifier, and the encoder writes 16 bits when twelve_bit is 0.
KOVREL_DECODE_EX(062_040, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(062_040, AstTrackNumber, ast_dataitem_track_number_encode)

KOVREL_DECODE_EX(062_060, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(062_060, AstMode3aCode, ast_dataitem_mode_3a_code_encode)

KOVREL_DECODE_EX(062_070, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(062_070, AstTimeOfDay, ast_dataitem_time_of_day_encode)

KOVREL_DECODE_EX(062_100, AstPositionCartesian, ast_dataitem_position_cartesian_decode)

// The decoder applies AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE to this item.
KOVREL_DECODE_EX(062_105, AstPositionWgs84, ast_dataitem_position_wgs84_decode)

// The Mode 2 code has the layout of a Mode 3/A code.
KOVREL_DECODE_EX(062_120, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(062_120, AstMode3aCode, ast_dataitem_mode_3a_code_encode)

KOVREL_DECODE_EX(062_185, AstVelocityCartesian, ast_dataitem_velocity_cartesian_decode)

KOVREL_DECODE_EX(062_245, AstTargetId, ast_dataitem_target_id_decode)

KOVREL_DECODE_EX(062_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
KOVREL_DECODE_EX(062_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
