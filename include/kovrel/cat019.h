/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat019.h: Category 019, multilateration system status messages (edition
 * 1.3 of the category).
 *
 * Every CAT019 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items.
 */
#ifndef KOVREL_CAT019_H
#define KOVREL_CAT019_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT019 item ("Remote Sensor Detailed Status"); any other
 * identifier gives "Unknown CAT019 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_019_get_name(AstItemId id);

/*
 * Items served by the common items (items.h). Their summaries and detail
 * views are the common item's; the structured entry points below decode
 * into, and encode from, the common item's structure.
 *
 * _decode_ex: *out = {valid flag of the structure, item id, storage} after
 * decoding into storage; {0, item id, NULL} and nothing written when
 * storage is NULL or smaller than the structure, or the item is not valid.
 * _encode_ex: writes the item from value->value (a pointer to the
 * structure) into buffer; *out is the written span carrying value->id, of
 * length 0 and valid 0 when the common encoder refuses the value.
 */

/* I019/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_019_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_019_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I019/000 Message Type: message type (AstMessageType); no summary or detail view. */
KOVREL_API void ast_dataitem_019_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_019_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I019/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_019_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_019_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I019/600 Position of the MLT System Reference Point: 8-octet WGS-84 position
 * (AstPositionWgs84) at 180/2^30 degrees; decode only, as the common encoder
 * writes 180/2^25.
 */
KOVREL_API void ast_dataitem_019_600_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * REF and SPF: reserved expansion field (AstReservedExpansionField) and special
 * purpose field (AstSpecialPurposeField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_019_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_019_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT019_H */
