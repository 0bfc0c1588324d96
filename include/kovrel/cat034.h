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
#include "kovrel/datarecord.h"
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

/* ---- Own items -------------------------------------------------------- */

/*
 * Every own item has _init (the defaults), _decode (the span into *out;
 * the defaults, valid 0, when the span is not valid, of another identifier
 * or of the wrong length), _get_detail_html (the empty text when the item
 * does not decode) and _decode_ex (structured decode into storage holding
 * the item's structure). I034/050 and I034/060 are summarised and viewed
 * as every compound item ("SUBFIELDS:%02u/%02u" and the subfield table);
 * their decoded subfields add their own summaries and detail tables
 * (ast_subfield_034_050_get_summary ...):
 *   I034/050 COM  "RDPC:%u" then NOGO, RDPR, OVL_RDP, OVL_XMT,
 *                 MSC_DISCONNECTED, TSV_INVALID for the conditions that hold
 *   I034/050 SSR  "ANT:%u CH:%s" (NONE, A, B, AB) then OVL, MSC_DISCONNECTED
 *   I034/060 COM  "RED_RDP:%u RED_XMT:%u"
 *   I034/060 PSR  "POL:%s RED_RAD:%u STC:%u" (POL LIN or CIRC)
 *   I034/060 SSR  "RED_RAD:%u"
 *   I034/060 MDS  "RED_RAD:%u CLU:%s" (AUTONOMOUS or CLUSTER)
 * PSR and MDS of I034/050 and the spare positions answer "NOT_IMPLEMENTED".
 * I034/070 has its own summary; I034/120 has none. The subfield fields of
 * I034/050 and I034/060 are decoded only when the subfield's FSPEC bit is
 * set and its span could be delimited.
 */

/**
 * I034/050 Station Configuration & Status. The monitoring and time source
 * flags are kept as good news: msc 1 means the monitoring system is
 * connected (the wire bit is clear), tsv 1 means the time source is valid.
 * The chain and antenna selections are kept as their number, 1 or 2.
 * PSR and MDS are only split (their spans stand in the subfield list).
 */
typedef struct AstItem034_050 {
    uint32_t valid;
    AstSubfieldList subfields;
    /* COM: common elements of the system */
    uint8_t com_present;
    uint8_t com_nogo;     /**< 1: system not released for operational use */
    uint32_t com_rdpc;    /**< radar data processor chain in use: 1 or 2 */
    uint8_t com_rdpr;     /**< 1: the selected chain was reset (expect new track numbers) */
    uint8_t com_ovl_rdp;  /**< 1: radar data processor overloaded */
    uint8_t com_ovl_xmt;  /**< 1: transmission subsystem overloaded */
    uint8_t com_msc;      /**< 1: monitoring system connected */
    uint8_t com_tsv;      /**< 1: time source valid */
    /* SSR: SSR sensor status */
    uint8_t ssr_present;
    uint32_t ssr_ant;     /**< antenna in use: 1 or 2 */
    uint32_t ssr_ch_ab;   /**< channels: 0 none, 1 A only, 2 B only, 3 both */
    uint8_t ssr_ovl;      /**< 1: SSR overloaded */
    uint8_t ssr_msc;      /**< 1: monitoring system connected */
} AstItem034_050;

KOVREL_API void ast_dataitem_034_050_init(AstItem034_050 *out);
KOVREL_API void ast_dataitem_034_050_decode(AstItem034_050 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_034_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I034/060 System Processing Mode: the reduction steps in use and the PSR settings. */
typedef struct AstItem034_060 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t com_present;
    uint32_t com_red_rdp;  /**< reduction step of the radar data processor, 0..7 */
    uint32_t com_red_xmt;  /**< reduction step of the transmission subsystem, 0..7 */
    uint8_t psr_present;
    uint8_t psr_pol;       /**< polarization: 0 linear, 1 circular */
    uint32_t psr_red_rad;  /**< PSR reduction step, 0..7 */
    uint32_t psr_stc;      /**< STC map in use, 0..3 (map 1 to 4) */
    uint8_t ssr_present;
    uint32_t ssr_red_rad;  /**< SSR reduction step, 0..7 */
    uint8_t mds_present;
    uint32_t mds_red_rad;  /**< Mode S reduction step, 0..7 */
    uint8_t mds_clu;       /**< 1: the station works autonomously (wire bit clear), 0: in a cluster */
} AstItem034_060;

KOVREL_API void ast_dataitem_034_060_init(AstItem034_060 *out);
KOVREL_API void ast_dataitem_034_060_decode(AstItem034_060 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_034_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** Most counters an I034/070 is decoded with. */
#define AST_ITEM034_070_MAX_COUNTERS 16

/** One message counter: its type (5 bits) and count (11 bits). */
typedef struct AstItem034Counter {
    uint32_t typ;
    uint32_t count;
} AstItem034Counter;

/**
 * I034/070 Message Count Values: REP counters. Decoded only when the item
 * is exactly 2 x REP + 1 octets and REP is at most 16; a larger REP logs
 * "I034/070 counter count %u exceeds max %u." at WARNING and leaves the
 * structure invalid.
 */
typedef struct AstItem034_070 {
    uint32_t valid;
    uint32_t count; /**< REP */
    AstItem034Counter counters[AST_ITEM034_070_MAX_COUNTERS];
} AstItem034_070;

KOVREL_API void ast_dataitem_034_070_init(AstItem034_070 *out);
KOVREL_API void ast_dataitem_034_070_decode(AstItem034_070 *out, const AstDataItem *item);
/** "COUNTERS:%d" with REP. */
KOVREL_API void ast_dataitem_034_070_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: one row per counter with its type (and type name) and count. */
KOVREL_API void ast_dataitem_034_070_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_034_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** One scaled field: raw value (two's complement), its LSB and the value. */
typedef struct AstItem034Scaled {
    int32_t raw;
    double lsb;
    double value;
} AstItem034Scaled;

/**
 * I034/120 3D-Position Of Data Source (exactly 8 octets): height (m, LSB
 * 1 m), latitude and longitude (degrees, LSB 180/2^23), WGS-84.
 */
typedef struct AstItem034_120 {
    uint32_t valid;
    AstItem034Scaled height;
    AstItem034Scaled latitude;
    AstItem034Scaled longitude;
} AstItem034_120;

/** Defaults: all 0 but the three LSBs. */
KOVREL_API void ast_dataitem_034_120_init(AstItem034_120 *out);
KOVREL_API void ast_dataitem_034_120_decode(AstItem034_120 *out, const AstDataItem *item);
/** Detail table: height, latitude and longitude, raw and scaled. */
KOVREL_API void ast_dataitem_034_120_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_034_120_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Record level ------------------------------------------------------ */

/**
 * The disassembled CAT034 record: one member per item, each the structure
 * the item's structured decode yields; a member whose item is absent stays
 * zero. I034/090, 110, REF and SPF have no member.
 */
typedef struct AstRecord034 {
    uint32_t valid;
    AstMessageType i000;
    AstDataSourceIdentifier i010;
    AstSectorNumber i020;
    AstTimeOfDay i030;
    AstAntennaRotationPeriod i041;
    AstItem034_050 i050;
    AstItem034_060 i060;
    AstItem034_070 i070;
    AstItem034_120 i120;
} AstRecord034;

/**
 * Disassembles a CAT034 record into *out. The structure is zeroed first; a
 * record that is not valid or not of category 34 leaves it so (valid 0).
 * Otherwise valid is 1 and every item with a member is decoded into it; any
 * other item is skipped with "Failed to disassemble dataitem : %s." at
 * WARNING.
 */
KOVREL_API void ast_datarecord_034_disassemble(AstRecord034 *out, const AstDataRecord *record);
/**
 * Encodes the members of *in whose valid flag is 1 into buffer as one
 * CAT034 record of the profile uap, in FRN order. 000, 010, 020, 030 and 041
 * go through their item encoders; 050, 060, 070 and 120, which have no
 * item-level encoder, are written by the record's own: the subfields of 050
 * and 060 whose present flag is set (PSR and MDS of 050 are copied from the
 * spans of its subfield list, so they are written only while the octets the
 * record was disassembled from are alive), REP and the counters of 070, the
 * raw height, latitude and longitude of 120. A value that does not fit its
 * field, or a short buffer, makes the record invalid; nothing is written
 * past size.
 */
KOVREL_API void ast_datarecord_034_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord034 *in,
                                            const AstUap *uap);

/*
 * Record accessors. Each reads the first item of the record that carries
 * the fact; the result is invalid, all zeros, when the record is invalid or
 * lacks the item or the item does not decode.
 */
/** SAC/SIC from I034/010. */
KOVREL_API void ast_datarecord_034_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of day from I034/030. */
KOVREL_API void ast_datarecord_034_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/** 1 ("North") for a North marker, 2 ("Sector") for a sector crossing; any other type is invalid. */
KOVREL_API void ast_datarecord_034_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT034_H */
