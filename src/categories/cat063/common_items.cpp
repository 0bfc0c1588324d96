// CAT063 items that reuse a common item: their structured decode and encode
// entry points, each filling or reading the common item's structure.
#include "items/item_ex.h"
#include "kovrel/cat063.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"

KOVREL_DECODE_EX(063_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(063_010, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(063_015, AstServiceId, ast_dataitem_service_id_decode)
KOVREL_ENCODE_EX(063_015, AstServiceId, ast_dataitem_service_id_encode)

KOVREL_DECODE_EX(063_030, AstTimeOfDay, ast_dataitem_time_of_day_decode)
KOVREL_ENCODE_EX(063_030, AstTimeOfDay, ast_dataitem_time_of_day_encode)

// The sensor the report is about, named by its SAC and SIC.
KOVREL_DECODE_EX(063_050, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_decode)
KOVREL_ENCODE_EX(063_050, AstDataSourceIdentifier, ast_dataitem_data_source_identifier_encode)

KOVREL_DECODE_EX(063_REF, AstReservedExpansionField, ast_dataitem_reserved_expansion_field_decode)
KOVREL_DECODE_EX(063_SPF, AstSpecialPurposeField, ast_dataitem_special_purpose_field_decode)
