/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat065.h: Category 065, status messages of a surveillance data
 * processing system (message type, batch number, configuration and status).
 */
#ifndef KOVREL_CAT065_H
#define KOVREL_CAT065_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items_ident.h"

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

/** I065/000 Message Type: "MSG_TYPE:SDPS_STATUS", "MSG_TYPE:END_OF_BATCH", "MSG_TYPE:SVC_STATUS_REPORT" or "MSG_TYPE:UNDEFINED". */
KOVREL_API void ast_dataitem_065_000_get_summary(char *buffer, size_t size, const AstDataItem *item);

/** I065/020 Batch Number: a packed word, the valid flag and the batch (0 to N-1). Named fields: value. */
typedef struct AstItem065_020 {
    uint32_t valid;
    uint32_t value;
} AstItem065_020;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_065_020_init(AstItem065_020 *out);
/** Decodes a valid one-octet I065/020 span; the defaults for any other span. */
KOVREL_API void ast_dataitem_065_020_decode(AstItem065_020 *out, const AstDataItem *item);
/** "BAT:%d". */
KOVREL_API void ast_dataitem_065_020_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_065_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I065/040 SDPS Configuration and Status, one octet: NOGO (bits 8-7: 0
 * operational, 1 degraded, 2 not currently connected, 3 unknown), OVL
 * (bit 6, overload), TSV (bit 5, time source invalid), PSS (bits 4-3, the
 * processing system that is active: 0 not applicable, 1 SDPS-1, 2 SDPS-2,
 * 3 SDPS-3). Named fields (fields.h): nogo, ovl, tsv, pss.
 */
typedef struct AstItem065_040 {
    uint32_t valid;
    uint32_t nogo;
    uint8_t ovl;
    uint8_t tsv;
    uint32_t pss;
} AstItem065_040;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_065_040_init(AstItem065_040 *out);
/** Decodes a valid one-octet I065/040 span; the defaults for any other span. */
KOVREL_API void ast_dataitem_065_040_decode(AstItem065_040 *out, const AstDataItem *item);
/** "STS:OPE", "STS:DGD", "STS:DIS" or "STS:UKN", then " OVL", " TSV" for set flags, then " SDPS-%d" when PSS is not 0. */
KOVREL_API void ast_dataitem_065_040_get_summary(char *buffer, size_t size, const AstDataItem *item);
/**
 * Table "Bit", "Item", "Value" with the bit labels consumers know (counted
 * from 1, the first two overlapping): "Bit[1-2]" NOGO ("OPERATIONAL",
 * "DEGRADED", "NOT_CONNECTED", "UNKNOWN"), "Bit[2]" OVL and "Bit[3]" TSV
 * ("YES" or "NO"), "Bit[4-5]" PSS ("SDPS-%d", or "N/A" for 0).
 */
KOVREL_API void ast_dataitem_065_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_065_040_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * A CAT065 record disassembled: one member per decoded item; a member whose
 * item is absent stays zero. I065/050, REF and SPF have no member and are
 * skipped with "Failed to disassemble dataitem : %s." at WARNING.
 */
typedef struct AstRecord065 {
    uint32_t valid;
    AstMessageType i000;
    AstDataSourceIdentifier i010;
    AstServiceId i015;
    AstItem065_020 i020;
    AstTimeOfDay i030;
    AstItem065_040 i040;
} AstRecord065;

/** Clears *out; valid for a valid CAT065 record, each item decoded into its member. */
KOVREL_API void ast_datarecord_065_disassemble(AstRecord065 *out, const AstDataRecord *record);

/* Record accessors: the first I065/010 and the first I065/030 of the record. */
KOVREL_API void ast_datarecord_065_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_065_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT065_H */
