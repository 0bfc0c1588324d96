/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat002.h: Category 002, monoradar service messages (North and South
 * markers, sector crossings, blind zones), with the ASR-10SS station status
 * items and the MANAGAIR custom field.
 */
#ifndef KOVREL_CAT002_H
#define KOVREL_CAT002_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT002 item ("Antenna Rotation Period"), including the
 * sensor variants: 2901 and 2902 (the ASR-10SS and ASR-10SS Mk2 station
 * status, up to 16 octets, in place of I002/050) are "Station Configuration
 * Status", and 2951 (MANAGAIR) is "Custom Field".
 *
 * Any other identifier gives "Unknown CAT002 Dataitem" and logs "Unknown
 * dataitem name: %s." at WARNING. I002/060, 070, 080, 090 and 100 are part
 * of the UAP but have neither a name nor a size rule, so a record that
 * announces one of them cannot be read past that point.
 */
KOVREL_API const char *ast_dataitem_002_get_name(AstItemId id);

/*
 * Items served by the common items (items.h). Their summaries and detail
 * views are the common item's (unless told otherwise below); the structured
 * entry points decode into, and encode from, the common item's structure.
 *
 * _decode_ex: *out = {valid flag of the structure, item id, storage} after
 * decoding into storage; {0, item id, NULL} and nothing written when
 * storage is NULL or smaller than the structure, or the item is not valid.
 * _encode_ex: writes the item from value->value (a pointer to the
 * structure) into buffer; *out is the written span carrying value->id, of
 * length 0 and valid 0 when the common encoder refuses the value.
 */

/*
 * I002/000 Message Type: message type (AstMessageType). The summary is
 * the category's own, below; there is no detail view.
 */
KOVREL_API void ast_dataitem_002_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
/**
 * "MSG_TYPE:NORTH_MARKER" (1), "MSG_TYPE:SECTOR_CROSSING" (2),
 * "MSG_TYPE:SOUTH_MARKER" (3), "MSG_TYPE:BLIND_ZONE_START" (8),
 * "MSG_TYPE:BLIND_ZONE_STOP" (9), "MSG_TYPE:STATUS" (128); any other value,
 * 4 to 7 included, "MSG_TYPE:UNDEFINED". The empty text for a span that is
 * not a valid one-octet I002/000.
 */
KOVREL_API void ast_dataitem_002_000_get_summary(char *buffer, size_t size, const AstDataItem *item);

/* I002/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_002_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I002/020 Sector Number: sector number (AstSectorNumber). */
KOVREL_API void ast_dataitem_002_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I002/030 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_002_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I002/041 Antenna Rotation Period: antenna rotation period (AstAntennaRotationPeriod). */
KOVREL_API void ast_dataitem_002_041_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_041_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I002/050 Station Configuration Status is summarised with the binary data
 * summary ("BIN:..."); it has no detail view.
 */

/*
 * SPF and RFS: special purpose field (AstSpecialPurposeField) and random
 * field sequencing (AstRandomFieldSequencing); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_002_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_RFS_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT002_H */
