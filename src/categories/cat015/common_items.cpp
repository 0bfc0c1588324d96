// CAT015 items served by the common items: their structured decode and
// encode entry points. Each decodes into (or encodes from) the common
// item's own structure.
#include "items/item_ex.h"
#include "kovrel/cat015.h"
#include "kovrel/items.h"

KOVREL_DECODE_EX(015_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(015_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(015_015, AstServiceId, ast_dataitem_service_id_decode)
KOVREL_ENCODE_EX(015_015, AstServiceId, ast_dataitem_service_id_encode)

KOVREL_DECODE_EX(015_145, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(015_145, AstTimeOfDay, ast_dataitem_time_of_day_encode)

// All 16 bits are the number; the decoder knows this item.
KOVREL_DECODE_EX(015_161, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(015_161, AstTrackNumber, ast_dataitem_track_number_encode)

KOVREL_DECODE_EX(015_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
