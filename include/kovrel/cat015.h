/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat015.h: Category 015, independent non-cooperative surveillance (INCS)
 * target reports (edition 1.2 of the category).
 *
 * Simple items are delimited by the generic size rules of dataitem.h. The
 * compound items below open with a primary subfield (subfield.h); each has
 * the size rule ast_dataitem_015_NNN_get_size and the subfield functions
 * ast_subfield_015_NNN_get_size, _get_id, _get_name, _get_summary and
 * _get_detail_html, which take the subfield identifier (15600001 is the
 * first subfield of I015/600). Every CAT015 subfield has a fixed length.
 */
#ifndef KOVREL_CAT015_H
#define KOVREL_CAT015_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT015 item ("Range Information"); any other identifier
 * gives "Unknown CAT015 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING.
 */
KOVREL_API const char *ast_dataitem_015_get_name(AstItemId id);

/* I015/270 Target Size & Orientation (compound): LEN, WDT, HGT, ORT. */
KOVREL_API uint64_t ast_dataitem_015_270_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_270_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_270_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_270_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_270_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_270_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/600 Horizontal Position Information (compound): P84, HPR, HPP. */
KOVREL_API uint64_t ast_dataitem_015_600_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_600_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_600_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_600_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_600_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_600_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/601 Geometric Height Information (compound): GH, RSGH, SDGH, CI6, CI9, COGHHP, COGHHV, COGHHA. */
KOVREL_API uint64_t ast_dataitem_015_601_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_601_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_601_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_601_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_601_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_601_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/602 Horizontal Velocity Information (compound): HV, RSHV, SDHV, COHVHP. */
KOVREL_API uint64_t ast_dataitem_015_602_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_602_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_602_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_602_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_602_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_602_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/603 Horizontal Acceleration Information (compound): HA, SDHA, COHAHP, COHAHV. */
KOVREL_API uint64_t ast_dataitem_015_603_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_603_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_603_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_603_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_603_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_603_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/604 Vertical Velocity Information (compound): VV, RSVV, SDVV, COVVHP, COVVHV, COVVHA. */
KOVREL_API uint64_t ast_dataitem_015_604_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_604_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_604_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_604_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_604_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_604_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/605 Vertical Velocity Information (so titled by the edition; it carries
 * the vertical acceleration) (compound): VA, RSVA, COVAHP, COVAHV, COVAHA. */
KOVREL_API uint64_t ast_dataitem_015_605_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_605_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_605_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_605_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_605_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_605_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/625 Range Information (compound): R, RSR, SDR, RR, RSRR, SDRR, RA, SDRA. */
KOVREL_API uint64_t ast_dataitem_015_625_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_625_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_625_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_625_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_625_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_625_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/626 Doppler Information (compound): DV, SDDV, DA, SDDA, CODVR, CODVRR,
 * CODVRA, CODAR, CODARR, CODARA. */
KOVREL_API uint64_t ast_dataitem_015_626_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_626_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_626_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_626_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_626_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_626_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/627 Azimuth Information (compound): AZ, RSAZ, SDASZ, AZR, SDAZR, AZEX. */
KOVREL_API uint64_t ast_dataitem_015_627_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_627_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_627_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_627_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_627_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_627_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/628 Elevation Information (compound): EL, RSEL, SDEL, ER, SDER, ELEX. */
KOVREL_API uint64_t ast_dataitem_015_628_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_628_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_628_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_628_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_628_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_628_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/630 Path Quality (compound): DPP, DPS, RPP, RPS. */
KOVREL_API uint64_t ast_dataitem_015_630_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_630_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_630_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_630_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_630_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_630_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
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

/* I015/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_015_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_015_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I015/015 Service Identification: service identification (AstServiceId); no detail view. */
KOVREL_API void ast_dataitem_015_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_015_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I015/145 Time of Applicability: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_015_145_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_015_145_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I015/161 Track/Plot Number: 16-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_015_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_015_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* SPF: special purpose field (AstSpecialPurposeField); decode only, no detail view. */
KOVREL_API void ast_dataitem_015_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT015_H */
