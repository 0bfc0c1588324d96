/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat020.h: Category 020, multilateration target reports (edition 1.11 of
 * the category).
 *
 * Simple items are delimited by the generic size rules of dataitem.h. The
 * one compound item, I020/500, opens with a primary subfield (subfield.h);
 * its subfield functions take the subfield identifier (20500001 is DOP).
 */
#ifndef KOVREL_CAT020_H
#define KOVREL_CAT020_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT020 item ("Position Accuracy"); any other identifier
 * gives "Unknown CAT020 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING.
 */
KOVREL_API const char *ast_dataitem_020_get_name(AstItemId id);

/* I020/500 Position Accuracy (compound): DOP (6 octets), SDP (6), SDH (2). */
KOVREL_API uint64_t ast_dataitem_020_500_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_020_500_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_020_500_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_020_500_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_020_500_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_020_500_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

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

/* I020/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_020_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_020_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/041 Position In WGS-84 Coordinates: 8-octet WGS-84 position (AstPositionWgs84). */
KOVREL_API void ast_dataitem_020_041_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_041_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/042 Position in Cartesian Coordinates: Cartesian position (AstPositionCartesian);
 * decode only, no detail view.
 */
KOVREL_API void ast_dataitem_020_042_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I020/161 Track Number: 12-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_020_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/070 Mode-3/A Code: Mode 3/A code (AstMode3aCode). */
KOVREL_API void ast_dataitem_020_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/050 Mode-2 Code: the Mode 3/A code layout (AstMode3aCode). No summary:
 * the common one would label the code "MODE_3/A".
 */
KOVREL_API void ast_dataitem_020_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_050_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/202 Calculated Track Velocity in Cartesian Coordinates: Cartesian velocity
 * (AstVelocityCartesian); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_020_202_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I020/090 Flight Level: Mode C code (AstModeCCode). */
KOVREL_API void ast_dataitem_020_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/100 Mode C Code: Mode C code and confidence (AstModeCConfidence); decode only. */
KOVREL_API void ast_dataitem_020_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I020/220 Target Address: target address (AstTargetAddress). */
KOVREL_API void ast_dataitem_020_220_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_220_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/245 Target Identification: target identification (AstTargetId). */
KOVREL_API void ast_dataitem_020_245_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_245_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/110 Measured Height and I020/105 Geometric Height: height (AstHeight);
 * decode only.
 */
KOVREL_API void ast_dataitem_020_110_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_105_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I020/250 BDS Register Data: Mode S MB data (AstModesMb); decode only. */
KOVREL_API void ast_dataitem_020_250_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * REF and SPF: reserved expansion field (AstReservedExpansionField) and special
 * purpose field (AstSpecialPurposeField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_020_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT020_H */
