/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat016.h: Category 016, independent non-cooperative surveillance system
 * configuration reports (edition 1.0 of the category).
 *
 * Every CAT016 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items.
 */
#ifndef KOVREL_CAT016_H
#define KOVREL_CAT016_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT016 item ("Transmitter Properties"); any other
 * identifier gives "Unknown CAT016 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_016_get_name(AstItemId id);

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

/* I016/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_016_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_016_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I016/015 Service Identification: service identification (AstServiceId); no detail view. */
KOVREL_API void ast_dataitem_016_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_016_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I016/000 Message Type: message type (AstMessageType); no summary or detail view. */
KOVREL_API void ast_dataitem_016_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_016_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I016/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_016_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_016_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I016/400 Position of the System Reference Point: 8-octet WGS-84 position
 * (AstPositionWgs84) at 180/2^31 degrees; decode only, as the common encoder
 * writes 180/2^25.
 */
KOVREL_API void ast_dataitem_016_400_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* SPF: special purpose field (AstSpecialPurposeField); decode only, no detail view. */
KOVREL_API void ast_dataitem_016_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT016_H */
