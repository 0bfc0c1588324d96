// CAT001 items served by the common items: their structured decode and
// encode entry points. Each decodes into (or encodes from) the common item's
// own structure.
#include "items/item_ex.h"
#include "kovrel/cat001.h"
#include "kovrel/items.h"

KOVREL_DECODE_EX(001_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(001_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

// The Mode 2 code has the layout of the Mode 3/A code, flags included.
KOVREL_DECODE_EX(001_050, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(001_050, AstMode3aCode, ast_dataitem_mode_3a_code_encode)
KOVREL_DECODE_EX(001_060, AstMode3aConfidence, ast_dataitem_mode_3a_confidence_decode)
KOVREL_ENCODE_EX(001_060, AstMode3aConfidence, ast_dataitem_mode_3a_confidence_encode)

KOVREL_DECODE_EX(001_070, AstMode3aCode, ast_dataitem_mode_3a_code_decode)
KOVREL_ENCODE_EX(001_070, AstMode3aCode, ast_dataitem_mode_3a_code_encode)
KOVREL_DECODE_EX(001_080, AstMode3aConfidence, ast_dataitem_mode_3a_confidence_decode)
KOVREL_ENCODE_EX(001_080, AstMode3aConfidence, ast_dataitem_mode_3a_confidence_encode)

KOVREL_DECODE_EX(001_090, AstModeCCode, ast_dataitem_mode_c_code_decode)
KOVREL_ENCODE_EX(001_090, AstModeCCode, ast_dataitem_mode_c_code_encode)
KOVREL_DECODE_EX(001_100, AstModeCConfidence, ast_dataitem_mode_c_confidence_decode)

KOVREL_DECODE_EX(001_161, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(001_161, AstTrackNumber, ast_dataitem_track_number_encode)
KOVREL_DECODE_EX(001_200, AstVelocityPolar, ast_dataitem_velocity_polar_decode)
KOVREL_ENCODE_EX(001_200, AstVelocityPolar, ast_dataitem_velocity_polar_encode)

KOVREL_DECODE_EX(001_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
KOVREL_DECODE_EX(001_RFS, AstRandomFieldSequencing, ast_dataitem_random_field_sequencing_decode)
