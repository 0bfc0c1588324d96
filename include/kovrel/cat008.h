/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat008.h: Category 008, monoradar derived weather information
 * (edition 1.3 of the category).
 *
 * The items are delimited through the generic data item functions
 * (dataitem.h); this header adds the category's name function and the size
 * rule of I008/100, whose layout no generic rule fits.
 */
#ifndef KOVREL_CAT008_H
#define KOVREL_CAT008_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT008 item ("Vector Qualifier"); any other identifier
 * gives "Unknown CAT008 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING.
 */
KOVREL_API const char *ast_dataitem_008_get_name(AstItemId id);

/**
 * Size rule of I008/100 Processing Status: a first part of three octets
 * whose third octet alone carries the FX bit. Returns 3, or 0 when fewer
 * than three octets are available. When the FX bit is set the item is cut
 * off (0) if exactly three octets are available; otherwise "Dataitem length
 * exceed max: 3" is logged at CRITICAL and 3 is returned, so that a record
 * goes on reading after the part the category defines.
 */
KOVREL_API uint64_t ast_dataitem_008_100_get_size(const uint8_t *octets, size_t available);

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

/* I008/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_008_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_008_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I008/000 Message Type: message type (AstMessageType); no summary or detail view. */
KOVREL_API void ast_dataitem_008_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_008_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I008/090 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_008_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_008_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * SPF and RFS: special purpose field (AstSpecialPurposeField) and random field
 * sequencing (AstRandomFieldSequencing); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_008_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_008_RFS_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT008_H */
