/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat004.h: Category 004, safety-net messages (STCA, MSAW, APW and other
 * alerts, and the status of the safety-net functions).
 */
#ifndef KOVREL_CAT004_H
#define KOVREL_CAT004_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT004 item ("Alert Identifier"); any other identifier
 * gives "Unknown CAT004 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING. I004/015, 045, 070, 074, 075, 076 and 110 are part of the UAP but
 * have neither name nor size rule, so a record that announces one of them
 * cannot be read past that point.
 */
KOVREL_API const char *ast_dataitem_004_get_name(AstItemId id);

/*
 * Items served by the common items of items_ident.h and items_mode.h.
 * Their summaries and detail views are the common item's, except for the
 * message type, which the common item only reads and writes; decode_ex
 * fills the common item's structure (the storage must hold it) and
 * encode_ex writes the item from that structure (see ast_dataitem_decode
 * and ast_dataitem_encode).
 */

/*
 * I004/000 Message Type: read and written as the common message type
 * (AstMessageType holding the safety-net message type value).
 */
KOVREL_API void ast_dataitem_004_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I004/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_004_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I004/020 Time of Message: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_004_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I004/030 Track Number 1, I004/035 Track Number 2: track number, all 16 bits (AstTrackNumber). */
KOVREL_API void ast_dataitem_004_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_004_035_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_035_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I004/REF and I004/SPF: reserved expansion and special purpose fields (AstExplicitField), no detail view. */
KOVREL_API void ast_dataitem_004_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * Compound items. Each item's size function delimits the whole item (primary
 * subfield and the subfields it announces); the subfield functions take the
 * subfield identifier, item identifier x 1000 + subfield number (4100001 is
 * subfield 1 of I004/100). A subfield identifier outside an item's subfields
 * has size 0, the id text "--" (two dashes in this category) and the name
 * "UNKNOWN_SUBFIELD_NAME".
 */

/*
 * I004/100 Area Definition, 6 subfields: 1 AN (6 octets, eight 6-bit ICAO
 * characters), 2 CAN, 3 RT1, 4 RT2, 5 SB, 6 G (7 octets each).
 */
KOVREL_API uint64_t ast_dataitem_004_100_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_100_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_100_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_100_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_100_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_100_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I004/120 Conflict Characteristics, 4 subfields: 1 CN (FX-extended, at
 * most 3 octets), 2 CC (1 octet), 3 CP (1 octet), 4 CD (3 octets).
 */
KOVREL_API uint64_t ast_dataitem_004_120_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_120_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_120_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_120_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_120_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_120_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I004/170 Aircraft Identification & Characteristics 1, 10 subfields:
 * 1 AI1 (7 octets), 2 M31 (2), 3 CPW1 (10), 4 CPC1 (8), 5 TT1 (3), 6 DT1 (2),
 * 7 AC1 (FX-extended, at most 2 octets), 8 MS1 (6), 9 FP1 (4), 10 CF1 (2).
 */
KOVREL_API uint64_t ast_dataitem_004_170_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_170_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_170_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_170_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_170_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_170_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I004/171 Aircraft Identification & Characteristics 2: the subfields of
 * I004/170 for the second aircraft, ids and names ending in 2 (AI2, M32,
 * CPW2, CPC2, TT2, DT2, AC2, MS2, FP2, CF2).
 */
KOVREL_API uint64_t ast_dataitem_004_171_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_171_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_171_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_171_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_171_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_171_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I004/070 Conflict Timing and Separation (compound: TC, TCA, CHS, MHS, CVS,
 * MVS). Sized so that records carrying it decode; like I004/015, 045, 074,
 * 075, 076 and 110 it has no name of its own ("Unknown CAT004 Dataitem").
 */
KOVREL_API uint64_t ast_dataitem_004_070_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_070_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_070_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_070_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_070_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_070_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT004_H */
