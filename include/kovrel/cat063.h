/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat063.h: Category 063, sensor status reports of a surveillance data
 * processing system (one sensor's connection, configuration and biases).
 */
#ifndef KOVREL_CAT063_H
#define KOVREL_CAT063_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT063 item ("Sensor Configuration and Status"); any
 * other identifier gives "Unknown CAT063 Dataitem" (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_063_get_name(AstItemId id);

/*
 * Items served by the common items of items_ident.h and items_mode.h. Their
 * summaries and detail views are the common item's; decode_ex fills the
 * common item's structure (the storage must hold it) and encode_ex writes
 * the item from that structure (see ast_dataitem_decode and
 * ast_dataitem_encode).
 */

/* I063/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_063_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_063_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I063/015 Service Identification: service identification (AstServiceId). */
KOVREL_API void ast_dataitem_063_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_063_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I063/030 Time of Message: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_063_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_063_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I063/050 Sensor Identifier: the sensor's SAC and SIC as a data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_063_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_063_050_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I063/REF and I063/SPF: reserved expansion and special purpose fields (AstExplicitField), no detail view. */
KOVREL_API void ast_dataitem_063_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_063_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT063_H */
