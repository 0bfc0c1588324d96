/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat010.h: Category 010, monosensor surface movement data (edition 1.1 of
 * the category).
 *
 * Every CAT010 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items.
 */
#ifndef KOVREL_CAT010_H
#define KOVREL_CAT010_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT010 item ("Target Report Descriptor"); any other
 * identifier gives "Unknown CAT010 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_010_get_name(AstItemId id);

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

/* I010/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_010_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/000 Message Type: message type (AstMessageType); no summary or detail view. */
KOVREL_API void ast_dataitem_010_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_010_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I010/041 Position in WGS-84 Co-ordinates: 8-octet WGS-84 position
 * (AstPositionWgs84) at 180/2^31 degrees; decode only, as the common encoder
 * writes 180/2^25.
 */
KOVREL_API void ast_dataitem_010_041_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I010/060 Mode-3/A Code: Mode 3/A code (AstMode3aCode). */
KOVREL_API void ast_dataitem_010_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_060_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/090 Flight Level: Mode C code (AstModeCCode). */
KOVREL_API void ast_dataitem_010_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/091 Measured Height: height (AstHeight); decode only. */
KOVREL_API void ast_dataitem_010_091_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I010/161 Track Number: 12-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_010_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/200 Calculated Track Velocity in Polar Co-ordinates: polar velocity (AstVelocityPolar). */
KOVREL_API void ast_dataitem_010_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_200_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/220 Target Address: target address (AstTargetAddress). */
KOVREL_API void ast_dataitem_010_220_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_220_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/245 Target Identification: target identification (AstTargetId). */
KOVREL_API void ast_dataitem_010_245_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_245_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/250 Mode S MB Data: Mode S MB data (AstModesMb); decode only. */
KOVREL_API void ast_dataitem_010_250_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * SPF and REF: special purpose field (AstSpecialPurposeField) and reserved
 * expansion field (AstReservedExpansionField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_010_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT010_H */
