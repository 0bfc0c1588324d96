/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat021.h: Category 021, ADS-B target reports, editions 0.23, 0.26, 2.1
 * and 2.7.
 *
 * Items whose layout changed between the early editions and the later ones
 * have identifiers of their own, 21902 to 21911, printed with the standard
 * item number they replace (21903 is the two-octet I021/040 of editions up
 * to 0.26). Function names write them A02 to A11.
 *
 * Compound items open with a primary subfield (presence bits and FX bits);
 * a subfield identifier is item identifier x 1000 + subfield number
 * (21220003 is the temperature of I021/220). Subfield functions answer 0,
 * "---" or "UNKNOWN_SUBFIELD_NAME" for a subfield the item does not have.
 * The subfields have no summaries or detail views of their own yet: the
 * summary functions write "NOT_IMPLEMENTED" and the detail functions the
 * empty text.
 */
#ifndef KOVREL_CAT021_H
#define KOVREL_CAT021_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT021 item ("Target Report Descriptor", "Target Report
 * Descriptor (Ver <= 0.26)" for 21903). Any other identifier, and the items
 * I021/110, 148, 165 and 220 that have no name of their own, give "Unknown
 * CAT021 Dataitem"; "Unknown dataitem name: %s." is logged at WARNING only
 * for identifiers from 21008 to 21399.
 */
KOVREL_API const char *ast_dataitem_021_get_name(AstItemId id);

/*
 * Items laid out as one of the common items (items_ident.h, items_motion.h,
 * items_mode.h). decode_ex decodes into caller storage of at least the
 * common item's structure, encode_ex writes the item from one (see
 * AstDataItemValue in dataitem.h); the item's summary and detail view are
 * the common item's.
 */

/* I021/010 data source identifier: AstDataSourceIdentifier. */
KOVREL_API void ast_dataitem_021_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/015 service identification: AstServiceId. */
KOVREL_API void ast_dataitem_021_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I021/030 (editions 0.23 and 0.26), 071, 072, 073, 075 and 077 time of
 * day, 1/128 s: AstTimeOfDay.
 */
KOVREL_API void ast_dataitem_021_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_071_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_071_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_072_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_072_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_073_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_073_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_075_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_075_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_077_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_077_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/074 and 076 high-precision time of message reception: AstTimeOfDayHigh, decoded only. */
KOVREL_API void ast_dataitem_021_074_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_076_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I021/070 Mode 3/A code: AstMode3aCode. */
KOVREL_API void ast_dataitem_021_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/080 target address: AstTargetAddress. */
KOVREL_API void ast_dataitem_021_080_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_080_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/161 track number, 12 bits: AstTrackNumber. */
KOVREL_API void ast_dataitem_021_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/170 target identification, eight characters in 6 octets: AstAircraftId. */
KOVREL_API void ast_dataitem_021_170_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_170_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/130 WGS-84 position in 6 octets, LSB 180/2^23: AstPositionWgs84Low. */
KOVREL_API void ast_dataitem_021_130_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_130_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I021/131 (LSB 180/2^30) and 21902, the position of edition 0.26 (LSB
 * 180/2^25), WGS-84 positions in 8 octets: AstPositionWgs84. Both are
 * written back at 180/2^25.
 */
KOVREL_API void ast_dataitem_021_131_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_131_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_A02_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A02_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/155 and 157 vertical rates with the range-exceeded bit: AstVerticalRate. */
KOVREL_API void ast_dataitem_021_155_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_155_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_157_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_157_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21909 and 21910, the 16-bit vertical rates of editions up to 0.26: AstVerticalRateNoRe. */
KOVREL_API void ast_dataitem_021_A09_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A09_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_A10_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A10_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/250 Mode S MB data: AstModesMb, decoded only. */
KOVREL_API void ast_dataitem_021_250_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * I021/REF and I021/SPF, the reserved expansion and special purpose fields:
 * AstReservedExpansionField and AstSpecialPurposeField, decoded only.
 */
KOVREL_API void ast_dataitem_021_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * Size of 21907, the surface capabilities of editions 1.0 to 2.1: 1 when the
 * FX bit of the first octet is clear, 2 when it is set and a second octet is
 * available, 0 otherwise (no octets, or cut off after the first).
 */
KOVREL_API uint64_t ast_dataitem_021_A07_get_size(const uint8_t *octets, size_t available);

/*
 * I021/110 Trajectory Intent (compound): TIS (FX-extended), TID (repetitive,
 * 15 octets a point). Asking ast_subfield_021_110_get_size for any subfield
 * other than 21110001 and 21110002 logs "Unsupported Subfield type %d" (the
 * subfield identifier) at CRITICAL and gives 0.
 */
KOVREL_API uint64_t ast_dataitem_021_110_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_110_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_110_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_110_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_110_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_110_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I021/220 Met Information (compound): WS, WD, TMP (2 octets each), TRB (1 octet). */
KOVREL_API uint64_t ast_dataitem_021_220_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_220_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_220_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_220_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_220_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_220_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I021/295 Data Ages (compound): 23 one-octet ages, AOS ... SCC. */
KOVREL_API uint64_t ast_dataitem_021_295_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_295_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_295_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_295_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_295_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_295_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT021_H */
