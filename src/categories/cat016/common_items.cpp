// CAT016 items served by the common items: their structured decode and
// encode entry points. Each decodes into (or encodes from) the common
// item's own structure.
#include "items/item_ex.h"
#include "kovrel/cat016.h"
#include "kovrel/items.h"

KOVREL_DECODE_EX(016_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(016_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(016_015, AstServiceId, ast_dataitem_service_id_decode)
KOVREL_ENCODE_EX(016_015, AstServiceId, ast_dataitem_service_id_encode)

KOVREL_DECODE_EX(016_000, AstMessageType, ast_dataitem_message_type_decode)
KOVREL_ENCODE_EX(016_000, AstMessageType, ast_dataitem_message_type_encode)

KOVREL_DECODE_EX(016_140, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(016_140, AstTimeOfDay, ast_dataitem_time_of_day_encode)

// Decode only: the common encoder writes at 180/2^25 degrees, while this
// item is read at 180/2^31.
KOVREL_DECODE_EX(016_400, AstPositionWgs84, ast_dataitem_position_wgs84_decode)

KOVREL_DECODE_EX(016_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
