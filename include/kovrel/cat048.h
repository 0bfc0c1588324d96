/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat048.h: Category 048, monoradar target reports.
 */
#ifndef KOVREL_CAT048_H
#define KOVREL_CAT048_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT048 item ("Target Report Descriptor"); any other
 * identifier gives "Unknown CAT048 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_048_get_name(AstItemId id);

/* I048/120 Radial Doppler Speed (compound): CAL, RDS. */
KOVREL_API uint64_t ast_dataitem_048_120_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_048_120_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_120_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_120_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_048_120_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_048_120_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I048/130 Radar Plot Characteristics (compound): SRL, SRR, SAM, PRL, PAM, RPD, APD. */
KOVREL_API uint64_t ast_dataitem_048_130_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_048_130_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_130_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_130_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_048_130_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_048_130_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
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

/* I048/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_048_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_048_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/161 Track Number: 12-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_048_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/070 Mode-3/A Code: Mode 3/A code (AstMode3aCode). */
KOVREL_API void ast_dataitem_048_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/080 Mode-3/A Code Confidence Indicator: Mode 3/A confidence (AstMode3aConfidence); decode only. */
KOVREL_API void ast_dataitem_048_080_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I048/090 Flight Level: Mode C code (AstModeCCode). */
KOVREL_API void ast_dataitem_048_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/100 Mode-C Code and Code Confidence Indicator: Mode C confidence (AstModeCConfidence); decode only. */
KOVREL_API void ast_dataitem_048_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I048/200 Calculated Track Velocity: polar velocity (AstVelocityPolar). */
KOVREL_API void ast_dataitem_048_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_200_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/220 Aircraft Address: target address (AstTargetAddress). */
KOVREL_API void ast_dataitem_048_220_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_220_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/240 Aircraft Identification: aircraft identification (AstAircraftId). */
KOVREL_API void ast_dataitem_048_240_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_240_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/250 Mode S MB Data: Mode S MB data (AstModesMb); decode only. */
KOVREL_API void ast_dataitem_048_250_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * SPF and REF: special purpose field (AstSpecialPurposeField) and reserved
 * expansion field (AstReservedExpansionField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_048_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT048_H */
