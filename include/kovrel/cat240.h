/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat240.h: Category 240, radar video (video header, cell resolution,
 * counters and one block of video cell amplitudes).
 */
#ifndef KOVREL_CAT240_H
#define KOVREL_CAT240_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT240 item ("Video Header Nano"); I240/140 is "Time of
 * Day", I240/REF and I240/SPF are "Reserved Expansion Field" and "Special
 * Purpose Field", and any other identifier gives "Unknown CAT240 Dataitem"
 * (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_240_get_name(AstItemId id);

/*
 * Items served by the common items of items_ident.h and items_mode.h.
 * Their summaries and detail views are the common item's, except for the
 * message type, which the common item only reads and writes; decode_ex
 * fills the common item's structure (the storage must hold it) and
 * encode_ex writes the item from that structure (see ast_dataitem_decode
 * and ast_dataitem_encode).
 */

/*
 * I240/000 Message Type: read and written as the common message type
 * (AstMessageType; 1 video summary, 2 video message). It has no detail view.
 */
KOVREL_API void ast_dataitem_240_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I240/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_240_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I240/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_240_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I240/REF and I240/SPF: reserved expansion and special purpose fields (AstExplicitField), no detail view. */
KOVREL_API void ast_dataitem_240_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_240_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT240_H */
