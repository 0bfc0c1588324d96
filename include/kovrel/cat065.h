/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat065.h: Category 065, status messages of a surveillance data
 * processing system (message type, batch number, configuration and status).
 */
#ifndef KOVREL_CAT065_H
#define KOVREL_CAT065_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT065 item ("SDPS Configuration and Status"); any
 * other identifier gives "Unknown CAT065 Dataitem" (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_065_get_name(AstItemId id);

/*
 * Items served by the common items of items_ident.h and items_mode.h.
 * Their summaries and detail views are the common item's, except for the
 * message type, which the common item only reads and writes; decode_ex
 * fills the common item's structure (the storage must hold it) and
 * encode_ex writes the item from that structure (see ast_dataitem_decode
 * and ast_dataitem_encode).
 */

/*
 * I065/000 Message Type: read and written as the common message type
 * (AstMessageType; 1 SDPS status, 2 end of batch, 3 service status report).
 * It has no detail view.
 */
KOVREL_API void ast_dataitem_065_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_065_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I065/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_065_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_065_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I065/015 Service Identification: service identification (AstServiceId). */
KOVREL_API void ast_dataitem_065_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_065_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I065/030 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_065_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_065_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I065/REF and I065/SPF: reserved expansion and special purpose fields (AstExplicitField), no detail view. */
KOVREL_API void ast_dataitem_065_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_065_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT065_H */
