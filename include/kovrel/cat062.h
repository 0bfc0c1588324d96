/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat062.h: Category 062, SDPS system track data.
 *
 * Compound items open with a primary subfield (presence bits and FX bits);
 * their subfields are numbered from 1 in the order of those bits, and a
 * subfield identifier is item identifier x 1000 + number (62380009 is the
 * trajectory intent data of I062/380). Subfield functions answer 0, "---"
 * or "UNKNOWN_SUBFIELD_NAME" for a subfield the item does not have. The
 * subfields have no summaries or detail views of their own yet: the summary
 * functions write "NOT_IMPLEMENTED" and the detail functions the empty text.
 */
#ifndef KOVREL_CAT062_H
#define KOVREL_CAT062_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT062 item ("Track Status"); any other identifier gives
 * "Unknown CAT062 Dataitem" and logs "Unknown dataitem name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_062_get_name(AstItemId id);

/**
 * Size of I062/510 Composed Track Number: 3-octet groups chained by the FX
 * bit of each group's last octet. Never 0: a chain cut short by the end of
 * the data ends at its last whole group, and fewer than 3 available octets
 * still give 3 (ast_dataitem_scan then refuses the item).
 */
KOVREL_API uint64_t ast_dataitem_062_510_get_size(const uint8_t *octets, size_t available);

/*
 * Items served by the common items of items_ident.h, items_motion.h and
 * items_mode.h. Their summaries and detail views are the common item's;
 * decode_ex fills the common item's structure (the storage must hold it)
 * and encode_ex writes the item from that structure (see
 * ast_dataitem_decode and ast_dataitem_encode).
 */

/* I062/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_062_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/015 Service Identification: service identification (AstServiceId). */
KOVREL_API void ast_dataitem_062_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/040 Track Number: track number, all 16 bits (AstTrackNumber, twelve_bit 0). */
KOVREL_API void ast_dataitem_062_040_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_040_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/060 Track Mode 3/A Code: Mode 3/A code, bit 6 read as "changed" (AstMode3aCode). */
KOVREL_API void ast_dataitem_062_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_060_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/070 Time of Track Information: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_062_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/100 Calculated Track Position (Cartesian): Cartesian position (AstPositionCartesian), no detail view. */
KOVREL_API void ast_dataitem_062_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * I062/105 Calculated Position in WGS84 Coordinates: 8-octet WGS-84 position
 * (AstPositionWgs84, LSB 180/2^25); AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE
 * applies to the decode, the summary and the detail view.
 */
KOVREL_API void ast_dataitem_062_105_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I062/120 Track Mode 2 Code: Mode 3/A code layout, summarised as "MODE_2:%04o" (AstMode3aCode). */
KOVREL_API void ast_dataitem_062_120_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_120_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/185 Calculated Track Velocity (Cartesian): Cartesian velocity (AstVelocityCartesian), no detail view. */
KOVREL_API void ast_dataitem_062_185_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I062/245 Target Identification: target identification (AstTargetId). */
KOVREL_API void ast_dataitem_062_245_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I062/REF and I062/SPF: reserved expansion and special purpose fields (AstExplicitField), no detail view. */
KOVREL_API void ast_dataitem_062_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I062/110 Mode 5 Data reports & Extended Mode 1 Code (compound): SUM, PMN, POS, GA, EM1, TOS, XP. */
KOVREL_API uint64_t ast_dataitem_062_110_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_110_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_110_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_110_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_110_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_110_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/290 System Track Update Ages (compound): TRK, PSR, SSR, MDS, ADS, ES, VDL, UAT, LOP, MLT. */
KOVREL_API uint64_t ast_dataitem_062_290_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_290_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_290_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_290_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_290_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_290_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/295 Track Data Age (compound): 31 one-octet ages, MFL ... BPS. */
KOVREL_API uint64_t ast_dataitem_062_295_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_295_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_295_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_295_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_295_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_295_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/340 Measured Information (compound): SID, POS, HEIGHT, MDC, MDA, TYP. */
KOVREL_API uint64_t ast_dataitem_062_340_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_340_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_340_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_340_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_340_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_340_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/380 Aircraft Derived Data (compound): 28 subfields, ADR ... BPS; TID (9) and MB (25) are repetitive. */
KOVREL_API uint64_t ast_dataitem_062_380_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_380_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_380_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_380_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_380_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_380_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/390 Flight Plan Related Data (compound): 18 subfields, TAG ... PEC; TOD (12) is repetitive. */
KOVREL_API uint64_t ast_dataitem_062_390_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_390_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_390_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_390_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_390_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_390_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/500 Estimated Accuracies (compound): APC, COV, APW, AGA, ABA, ATV, AA, ARC. */
KOVREL_API uint64_t ast_dataitem_062_500_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_500_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_500_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_500_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_500_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_500_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT062_H */
