/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat023.h: Category 023, CNS/ATM ground station and service status
 * reports (ADS-B and related ground stations).
 *
 * I023/000 (report type: 1 ground station status, 2 service status, 3
 * service statistics), I023/010 and I023/070 are read and written as the
 * common message type, data source identifier and time of day
 * (items_ident.h); the RE and SP fields are read as the common
 * explicit-length fields (items_mode.h). Every item has a structured decode
 * (ast_dataitem_023_NNN_decode_ex, for the field walk); I023/000, 010, 070,
 * 101, 110, 120 and 200 a structured encode.
 */
#ifndef KOVREL_CAT023_H
#define KOVREL_CAT023_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT023 item ("Ground Station Status"); any other
 * identifier gives "Unknown CAT023 Dataitem" (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_023_get_name(AstItemId id);

/**
 * Size of I023/101 Ground Station Configuration at octets: 2 when the FX bit
 * of octet 2 is clear, 3 when it is set and octet 3 is there, 0 when fewer
 * octets are available. Octet 1 (the report period) has no FX bit. An octet 3
 * whose FX bit is still set logs "Dataitem I023/101 length exceed max: 3" at
 * CRITICAL and the item still ends after 3 octets.
 */
KOVREL_API uint64_t ast_dataitem_023_101_get_size(const uint8_t *octets, size_t available);

/** I023/000 Report Type: "RPT_TYPE:STATION_STATUS", "RPT_TYPE:SERVICE_STATUS", "RPT_TYPE:SERVICE_STATISTICS" or "RPT_TYPE:UNDEFINED". */
KOVREL_API void ast_dataitem_023_000_get_summary(char *buffer, size_t size, const AstDataItem *item);

/**
 * I023/015 Service Type and Identification: SID (bits 8-5, the service's
 * identifier at the station) and STYP (bits 4-1): 1 ADSB_VDL4, 2 ADSB_ES,
 * 3 ADSB_UAT, 4 TISB_VDL4, 5 TISB_ES, 6 TISB_UAT, 7 FISB_VDL4, 8 GRAS_VDL4,
 * 9 MLT; any other code is kept as 0. Named fields: sid, styp.
 */
typedef struct AstItem023_015 {
    uint32_t valid;
    uint32_t sid;
    uint32_t styp;
} AstItem023_015;

KOVREL_API void ast_dataitem_023_015_init(AstItem023_015 *out);
/** Decodes a valid one-octet I023/015 span; the defaults for any other span. */
KOVREL_API void ast_dataitem_023_015_decode(AstItem023_015 *out, const AstDataItem *item);
/** "SID:%u", then " STYP:" and the service type name for STYP 1 to 9. */
KOVREL_API void ast_dataitem_023_015_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table "Bit", "ID", "Name", "Value": "Bit[1-4]" SID and "Bit[5-8]" STYP (its name, or "UNKNOWN"). */
KOVREL_API void ast_dataitem_023_015_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I023/100 Ground Station Status. Octet 1: NOGO (data not to be used
 * operationally), ODP (data processor overload), OXT (communication
 * overload), MSC (monitoring system connected), TSV (bit 4: 1 when the time
 * source is NOT valid), SPO (potential spoofing attack), RN (track
 * numbering restarted), FX; octet 2, when sent: GSSP (bits 8-2, the ground
 * station status report period, s), FX. The structure keeps tsv as "the time
 * source is valid", the inverse of the wire bit; the field walk shows the
 * wire bit. Named fields: nogo, odp, oxt, msc, tsv, spo, rn and gssp (when
 * octet 2 was sent).
 */
typedef struct AstItem023_100 {
    uint32_t valid;
    uint8_t nogo, odp, oxt, msc;
    uint8_t tsv; /**< 1: time source valid (wire bit 4 clear) */
    uint8_t spo, rn;
    uint8_t gssp_present;
    uint32_t gssp; /**< s */
} AstItem023_100;

KOVREL_API void ast_dataitem_023_100_init(AstItem023_100 *out);
/** Decodes a valid I023/100 span of one or more octets; the defaults for any other span. */
KOVREL_API void ast_dataitem_023_100_decode(AstItem023_100 *out, const AstDataItem *item);
/**
 * "STS:NOGO" or "STS:GO", then " ODP", " OXT", " MSC", " TSV" (time source
 * valid), " SPO", " RN" for the flags that are on, then " GSSP:%dS" when the
 * period is not 0.
 */
KOVREL_API void ast_dataitem_023_100_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table "Bit", "ID", "Name", "Value": one row per flag, "Bit[8]" FX and, with octet 2, GSSP and its FX. */
KOVREL_API void ast_dataitem_023_100_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I023/101 Ground Station Configuration. Octet 1: RP, the report period
 * (0.5 s; 0 when reports are data driven); octet 2: SC (bits 8-6, service
 * class: 0 none, 1 NRA), spare, FX; octet 3 when FX is set: SSRP (bits 8-2,
 * the service status report period, s), FX. Named fields: rp (s), sc, ssrp
 * (when sent).
 */
typedef struct AstItem023_101 {
    uint32_t valid;
    uint32_t rp_raw;
    double rp; /**< s */
    uint32_t sc;
    uint8_t ssrp_present;
    uint32_t ssrp; /**< s */
} AstItem023_101;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_023_101_init(AstItem023_101 *out);
/**
 * Decodes a valid I023/101 span: 2 octets with the FX bit of octet 2 clear,
 * or 3 with it set; the defaults for any other span.
 */
KOVREL_API void ast_dataitem_023_101_decode(AstItem023_101 *out, const AstDataItem *item);
/**
 * Writes 2 octets, or 3 when ssrp_present is 1. Fails (invalid empty span)
 * unless in->valid is 1, rp_raw <= 255, sc <= 7, ssrp <= 127 and the buffer
 * holds the octets.
 */
KOVREL_API void ast_dataitem_023_101_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem023_101 *in);
/** "RP:%gS" (the period in seconds) or "RP:DATA_DRIVEN", then " SSRP:%uS" when octet 3 was sent. */
KOVREL_API void ast_dataitem_023_101_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table "Octet", "Bit", "ID", "Name", "Value": RP, SC, the spare bits, FX and, with octet 3, SSRP and its FX. */
KOVREL_API void ast_dataitem_023_101_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I023/110 Service Status: a packed word, the valid flag and STAT (bits 4-2
 * of octet 1): 0 unknown, 1 failed, 2 disabled, 3 degraded, 4 normal,
 * 5 initialisation. Named fields: stat.
 */
typedef struct AstItem023_110 {
    uint32_t valid;
    uint32_t stat;
} AstItem023_110;

KOVREL_API void ast_dataitem_023_110_init(AstItem023_110 *out);
/** Decodes a valid I023/110 span of one or more octets (only octet 1 is read). */
KOVREL_API void ast_dataitem_023_110_decode(AstItem023_110 *out, const AstDataItem *item);
/** Writes one octet; fails unless in->valid is 1 and stat <= 7. */
KOVREL_API void ast_dataitem_023_110_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem023_110 *in);
/** "UNKNOWN", "FAILED", "DISABLED", "DEGRADED", "NORMAL", "INIT", or "RESERVED" above 5. */
KOVREL_API void ast_dataitem_023_110_get_summary(char *buffer, size_t size, const AstDataItem *item);

/** One counter of I023/120. */
typedef struct AstItem023_120Counter {
    uint32_t type;    /**< what is counted (ast_dataitem_023_120_type_name) */
    uint8_t ref;      /**< 0: counted from midnight, 1: from the last report */
    uint32_t counter; /**< 32-bit count */
} AstItem023_120Counter;

/**
 * I023/120 Service Statistics: REP counters (at most 32), each TYPE, REF and
 * a 32-bit counter. Named fields: counters (an array of type, ref, counter).
 */
typedef struct AstItem023_120 {
    uint32_t valid;
    uint32_t rep;
    AstItem023_120Counter counters[32];
} AstItem023_120;

KOVREL_API void ast_dataitem_023_120_init(AstItem023_120 *out);
/**
 * Decodes a valid I023/120 span whose length is 1 + 6 x REP with REP <= 32.
 * Otherwise the structure is invalid; REP is still kept when the span could
 * be read.
 */
KOVREL_API void ast_dataitem_023_120_decode(AstItem023_120 *out, const AstDataItem *item);
/** Writes 1 + 6 x rep octets; fails unless in->valid is 1, rep <= 32 and every ref <= 1. */
KOVREL_API void ast_dataitem_023_120_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem023_120 *in);
/** "COUNTERS:%u" with REP. */
KOVREL_API void ast_dataitem_023_120_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table "Counter", "TYPE", "Name", "REF", "Value": one row per counter. */
KOVREL_API void ast_dataitem_023_120_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/**
 * Name of a counter TYPE: 0 "UNKNOWN_MESSAGES", 1 "TOO_OLD_MESSAGES",
 * 2 "FAILED_CONVERSIONS", 3 "TOTAL_RECEIVED", 4 "TOTAL_TRANSMITTED",
 * 20 "TISB_MANAGEMENT", 21 "BASIC", 22 "HIGH_DYNAMIC", 23 "FULL_POSITION",
 * 24 "BASIC_GROUND", 25 "TCP", 26 "UTC_TIME", 27 "DATA",
 * 28 "HIGH_RESOLUTION", 29 "AIRCRAFT_TARGET_AIRBORNE",
 * 30 "AIRCRAFT_TARGET_GROUND", 31 "GROUND_VEHICLE_TARGET", 32 "TCP_TWO_SLOT"
 * (messages received of that kind, except 4); "RESERVED" for any other code.
 */
KOVREL_API const char *ast_dataitem_023_120_type_name(uint32_t type);

/** I023/200 Operational Range: a packed word, the valid flag and the range in NM (255: 255 NM or more). Named fields: value (NM). */
typedef struct AstItem023_200 {
    uint32_t valid;
    uint32_t value;
} AstItem023_200;

KOVREL_API void ast_dataitem_023_200_init(AstItem023_200 *out);
/** Decodes a valid one-octet I023/200 span. */
KOVREL_API void ast_dataitem_023_200_decode(AstItem023_200 *out, const AstDataItem *item);
/** Writes one octet; fails unless in->valid is 1 and the value is at most 255. */
KOVREL_API void ast_dataitem_023_200_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem023_200 *in);
/** "RNG:%uNM". */
KOVREL_API void ast_dataitem_023_200_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table "Bit", "ID", "Name", "Value": "Bit[1-8]" RNG "OPERATIONAL_RANGE" "%u NM". */
KOVREL_API void ast_dataitem_023_200_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* Structured decode and encode (AstDataItemValue) of every item. */
KOVREL_API void ast_dataitem_023_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_023_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_023_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_023_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_101_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_101_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_023_110_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_110_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_023_120_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_120_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_023_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_200_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_023_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_023_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* Record accessors: the first I023/010 and the first I023/070 of the record. */
KOVREL_API void ast_datarecord_023_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_023_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT023_H */
