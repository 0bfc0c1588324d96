/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat063.h: Category 063, sensor status reports of a surveillance data
 * processing system (one sensor's connection, configuration and biases).
 */
#ifndef KOVREL_CAT063_H
#define KOVREL_CAT063_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items_ident.h"

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

/**
 * I063/060 Sensor Configuration and Status. Octet 1: CON (bits 8-7: 0
 * operational, 1 degraded, 2 initialisation, 3 not connected), then one
 * NOGO flag each for the PSR, SSR, Mode S, ADS and MLT parts of the sensor.
 * Octet 2, when sent: OPS (1: not released for operational use), ODP (data
 * processor overloaded), OXT (transmission subsystem overloaded), MSC
 * (monitoring system connected), TSV (time source invalid), NPW (no plot
 * being received). Octets after the second are delimited, not read.
 * Named fields (fields.h): con, psr, ssr, mds, ads, mlt, and, when octet 2
 * was sent, ops, odp, oxt, msc, tsv, npw.
 */
typedef struct AstItem063_060 {
    uint32_t valid;
    uint32_t con;
    uint8_t psr, ssr, mds, ads, mlt;
    uint8_t ops, odp, oxt, msc, tsv, npw; /**< 0 when octet 2 is absent */
    uint8_t fx;                           /**< 1: octet 2 (and maybe more) was sent */
} AstItem063_060;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_063_060_init(AstItem063_060 *out);
/** Decodes a valid I063/060 span of one or more octets; the defaults for any other span. */
KOVREL_API void ast_dataitem_063_060_decode(AstItem063_060 *out, const AstDataItem *item);
/**
 * "CON:OPE", "CON:DGD", "STS:INI" or "CON:DIS" (the third is spelled with
 * STS, as consumers expect), then " ODP", " OXT", " TSV" for the set flags of
 * octet 2.
 */
KOVREL_API void ast_dataitem_063_060_get_summary(char *buffer, size_t size, const AstDataItem *item);
/**
 * Table "Bit", "Item", "Value", bits counted from 0: "Bit[0-1]" CON
 * ("OPERATIONAL", "DEGRADED", "INITLIZATION", "NOT_CONNECTED"), "Bit[2]" to
 * "Bit[6]" PSR, SSR, MDS, ADS, MLT ("NOGO" or "GO"), "Bit[7]" FX (0 or 1),
 * and with octet 2 "Bit[8]" to "Bit[13]" OPS, ODP, OXT, MSC, TSV, NPW
 * ("YES" or "NO").
 */
KOVREL_API void ast_dataitem_063_060_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_063_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * A CAT063 record disassembled: one member per decoded item; a member whose
 * item is absent stays zero. The bias items (I063/070 to 092), REF and SPF
 * have no member and are skipped with "Failed to disassemble dataitem : %s."
 * at WARNING.
 */
typedef struct AstRecord063 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstServiceId i015;
    AstTimeOfDay i030;
    AstDataSourceIdentifier i050;
    AstItem063_060 i060;
} AstRecord063;

/** Clears *out; valid for a valid CAT063 record, each item decoded into its member. */
KOVREL_API void ast_datarecord_063_disassemble(AstRecord063 *out, const AstDataRecord *record);

/* Record accessors: the first I063/010 and the first I063/030 of the record. */
KOVREL_API void ast_datarecord_063_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_063_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT063_H */
