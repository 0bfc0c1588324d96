// CAT004 items that reuse a common item: their structured decode and encode
// entry points, each filling or reading the common item's structure.
#include "items/item_ex.h"
#include "kovrel/cat004.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"

// The safety-net message type octet is read and written as the common
// message type; its summary and detail view are the category's own.
KOVREL_DECODE_EX(004_000, AstMessageType, ast_dataitem_message_type_decode)
KOVREL_ENCODE_EX(004_000, AstMessageType, ast_dataitem_message_type_encode)

KOVREL_DECODE_EX(004_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(004_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(004_020, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(004_020, AstTimeOfDay, ast_dataitem_time_of_day_encode)

// Both track numbers fill all 16 bits; the common decoder tells them by the
// identifier, and the encoder writes 16 bits when twelve_bit is 0.
KOVREL_DECODE_EX(004_030, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(004_030, AstTrackNumber, ast_dataitem_track_number_encode)
KOVREL_DECODE_EX(004_035, AstTrackNumber, ast_dataitem_track_number_decode)
KOVREL_ENCODE_EX(004_035, AstTrackNumber, ast_dataitem_track_number_encode)

KOVREL_DECODE_EX(004_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
KOVREL_DECODE_EX(004_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
