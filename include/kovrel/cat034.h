/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat034.h: Category 034, monoradar service messages (North markers,
 * sector crossings, station configuration and status, processing modes,
 * message counters).
 */
#ifndef KOVREL_CAT034_H
#define KOVREL_CAT034_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT034 item ("Station Configuration & Status"); any
 * other identifier gives "Unknown CAT034 Dataitem" and logs "Unknown
 * dataitem name: %s." at WARNING. I034/100 is part of the UAP but has no
 * name and no size rule, so a record that announces it cannot be read past
 * that point.
 */
KOVREL_API const char *ast_dataitem_034_get_name(AstItemId id);

/*
 * I034/050 Station Configuration & Status (compound, 7 subfields):
 * 1 COM (1 octet), 2 and 3 spare (no octets), 4 PSR (1 octet), 5 SSR
 * (1 octet), 6 MDS (2 octets), 7 spare (no octets; named "Spare").
 * The subfield functions take the subfield identifier 34050001..34050007;
 * any other identifier has size 0, id "---" and name
 * "UNKNOWN_SUBFIELD_NAME".
 */
KOVREL_API uint64_t ast_dataitem_034_050_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_034_050_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_034_050_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_034_050_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_034_050_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_034_050_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I034/060 System Processing Mode (compound, 7 subfields): 1 COM, 4 PSR,
 * 5 SSR and 6 MDS of one octet each; 2, 3 and 7 spare (no octets).
 * Subfield identifiers 34060001..34060007, other identifiers as for
 * I034/050.
 */
KOVREL_API uint64_t ast_dataitem_034_060_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_034_060_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_034_060_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_034_060_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_034_060_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_034_060_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

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
 * I034/000 Message Type: message type (AstMessageType). The summary is
 * the category's own, below; there is no detail view.
 */
KOVREL_API void ast_dataitem_034_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_034_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
/**
 * "MSG_TYPE:NORTH_MARKER" (1), "MSG_TYPE:SECTOR_CROSSING" (2),
 * "MSG_TYPE:GEO_FILTERING" (3), "MSG_TYPE:JAMMING_STROBE" (4), any other
 * value "MSG_TYPE:UNDEFINED". The empty text for a span that is not a valid
 * one-octet I034/000.
 */
KOVREL_API void ast_dataitem_034_000_get_summary(char *buffer, size_t size, const AstDataItem *item);

/* I034/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_034_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_034_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I034/020 Sector Number: sector number (AstSectorNumber). */
KOVREL_API void ast_dataitem_034_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_034_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I034/030 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_034_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_034_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I034/041 Antenna Rotation Period: antenna rotation period (AstAntennaRotationPeriod). */
KOVREL_API void ast_dataitem_034_041_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_034_041_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * REF and SPF: reserved expansion field (AstReservedExpansionField) and
 * special purpose field (AstSpecialPurposeField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_034_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_034_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_CAT034_H */
