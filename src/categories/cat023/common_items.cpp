// CAT023 items that reuse a common item: their structured decode and encode
// entry points, each filling or reading the common item's structure.
#include "items/item_ex.h"
#include "kovrel/cat023.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"

// The report type octet is read and written as the common message type; its
// summary is the category's own.
KOVREL_DECODE_EX(023_000, AstMessageType, ast_dataitem_message_type_decode)
KOVREL_ENCODE_EX(023_000, AstMessageType, ast_dataitem_message_type_encode)

KOVREL_DECODE_EX(023_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(023_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(023_070, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(023_070, AstTimeOfDay, ast_dataitem_time_of_day_encode)

KOVREL_DECODE_EX(023_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
KOVREL_DECODE_EX(023_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
