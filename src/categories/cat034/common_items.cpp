// CAT034 items served by the common items: their structured decode and
// encode entry points. Each decodes into (or encodes from) the common
// item's own structure.
#include "items/item_ex.h"
#include "kovrel/cat034.h"
#include "kovrel/items.h"

KOVREL_DECODE_EX(034_000, AstMessageType, ast_dataitem_message_type_decode)
KOVREL_ENCODE_EX(034_000, AstMessageType, ast_dataitem_message_type_encode)

KOVREL_DECODE_EX(034_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(034_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(034_020, AstSectorNumber, ast_dataitem_sector_number_decode)
KOVREL_ENCODE_EX(034_020, AstSectorNumber, ast_dataitem_sector_number_encode)

KOVREL_DECODE_EX(034_030, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(034_030, AstTimeOfDay, ast_dataitem_time_of_day_encode)

KOVREL_DECODE_EX(034_041, AstAntennaRotationPeriod, ast_dataitem_antenna_rotation_period_decode)
KOVREL_ENCODE_EX(034_041, AstAntennaRotationPeriod, ast_dataitem_antenna_rotation_period_encode)

KOVREL_DECODE_EX(034_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
KOVREL_DECODE_EX(034_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
