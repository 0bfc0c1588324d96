/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat020.h: Category 020, multilateration target reports (edition 1.11 of
 * the category).
 *
 * Simple items are delimited by the generic size rules of dataitem.h. The
 * one compound item, I020/500, opens with a primary subfield (subfield.h);
 * its subfield functions take the subfield identifier (20500001 is DOP).
 * Items laid out as a common item use that item's functions and structure;
 * the others have their own below, and the disassembled record and the
 * record accessors follow them.
 */
#ifndef KOVREL_CAT020_H
#define KOVREL_CAT020_H

#include "kovrel/bds.h"
#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT020 item ("Position Accuracy"); any other identifier
 * gives "Unknown CAT020 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING.
 */
KOVREL_API const char *ast_dataitem_020_get_name(AstItemId id);

/* I020/500 Position Accuracy (compound): DOP (6 octets), SDP (6), SDH (2). */
KOVREL_API uint64_t ast_dataitem_020_500_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_020_500_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_020_500_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_020_500_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_020_500_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_020_500_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
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

/* I020/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_020_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_020_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/041 Position In WGS-84 Coordinates: 8-octet WGS-84 position (AstPositionWgs84). */
KOVREL_API void ast_dataitem_020_041_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_041_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/042 Position in Cartesian Coordinates: Cartesian position (AstPositionCartesian),
 * no detail view. The encoder writes x_raw and y_raw (24 bits each, 0.5 m).
 */
KOVREL_API void ast_dataitem_020_042_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_042_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstPositionCartesian *in);
KOVREL_API void ast_dataitem_020_042_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/161 Track Number: 12-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_020_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/070 Mode-3/A Code: Mode 3/A code (AstMode3aCode). */
KOVREL_API void ast_dataitem_020_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/050 Mode-2 Code: the Mode 3/A code layout (AstMode3aCode), with a
 * summary of its own (below).
 */
KOVREL_API void ast_dataitem_020_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_050_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/202 Calculated Track Velocity in Cartesian Coordinates: Cartesian velocity
 * (AstVelocityCartesian), no detail view. The encoder writes vx_raw and vy_raw.
 */
KOVREL_API void ast_dataitem_020_202_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_202_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstVelocityCartesian *in);
KOVREL_API void ast_dataitem_020_202_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/090 Flight Level: Mode C code (AstModeCCode). */
KOVREL_API void ast_dataitem_020_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/100 Mode C Code: Mode C code and confidence (AstModeCConfidence). The
 * encoder writes validated, garbled, code and the twelve quality flags (the
 * pulse members are not read).
 */
KOVREL_API void ast_dataitem_020_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_100_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstModeCConfidence *in);
KOVREL_API void ast_dataitem_020_100_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/220 Target Address: target address (AstTargetAddress). */
KOVREL_API void ast_dataitem_020_220_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_220_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/245 Target Identification: target identification (AstTargetId). */
KOVREL_API void ast_dataitem_020_245_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_245_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I020/110 Measured Height and I020/105 Geometric Height: height (AstHeight),
 * written from raw.
 */
KOVREL_API void ast_dataitem_020_110_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_105_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_110_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstHeight *in);
KOVREL_API void ast_dataitem_020_105_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstHeight *in);
KOVREL_API void ast_dataitem_020_110_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_020_105_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I020/250 BDS Register Data: Mode S MB data (AstModesMb); decode only. */
KOVREL_API void ast_dataitem_020_250_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * REF and SPF: reserved expansion field (AstReservedExpansionField) and special
 * purpose field (AstSpecialPurposeField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_020_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I020/050 summary: "MODE_2:%04o", then " NOT_VALIDATED", " GARBLED" and
 * " SMOOTHED" for the set V, G and L bits.
 */
KOVREL_API void ast_dataitem_020_050_get_summary(char *buffer, size_t size, const AstDataItem *item);

/* ---- Decoded structures of the category's own items ---------------------
 *
 * Each begins with its valid flag (1 when decoded); the defaults are all
 * zero unless said otherwise. Scaled fields carry the raw wire value, the
 * LSB and the value in the unit of the summary. The functions of each item:
 *   _init        the defaults, valid 0.
 *   _decode      the defaults with valid 0 when the span is NULL, not valid,
 *                of another identifier, or of another length (fixed items);
 *                extensible items (020, 170) read the octets the span holds,
 *                up to the last one they know.
 *   _encode      writes octets that decode back to *in from its raw members
 *                (the values are not read): *out = {buffer, length, 0, 1},
 *                or {buffer, 0, 0, 0} and nothing written when buffer or in
 *                is NULL, in->valid is not 1, the buffer is too short or a
 *                raw value does not fit its wire field. Extensible items
 *                write up to the last extension marked present.
 *   _get_summary, _get_detail_html
 *                empty the buffer, then write the text when the item
 *                decodes, cut to size. Detail tables have the columns "Bit",
 *                "Item", "Value", bits counted from 0 at the item's most
 *                significant bit.
 *   _decode_ex, _encode_ex
 *                as for the common items above, with the item's structure.
 *
 * Named fields (fields.h): the lower-case mnemonics of the category:
 *   I020/020  ssr, ms, hf, vdl4, uat, dme, ot (1: that technology did NOT
 *             contribute, as on the wire); rab, spi, chn, gbs, crt, sim, tst
 *             (octet 2); cf (octet 3).
 *   I020/030  codes: an array of the codes.
 *   I020/055  v, g, l, mode1.
 *   I020/170  cnf, tre, cst, cdm, mah, sth; gho (octet 2).
 *   I020/210  ax, ay (m/s2).
 *   I020/230  com, stat, casevn, mssc, arc, aic, b1a, b1b.
 *   I020/260  bds1, bds2, ara, rac, rat, mte, tti, tid: the wire fields of register 3,0.
 *   I020/300  vfi.  I020/310  trb, msg.
 *   I020/400  devices: an array of the octets of contribution bits.
 *   I020/500  groups dop {x, y, xy}, sdp {x, y (m), xy} and sdh {sdh (m)},
 *             each when its subfield is present.
 * Setting refuses a value wider than its wire field.
 */

/** I020/020 Target Report Descriptor: one to three octets. */
typedef struct AstItem020_020 {
    uint32_t valid;
    /* Octet 1: each bit set means the technology did NOT contribute. */
    uint8_t ssr;  /**< 1: no non-Mode S 1090 MHz multilateration */
    uint8_t ms;   /**< 1: no Mode S 1090 MHz multilateration */
    uint8_t hf;   /**< 1: no HF multilateration */
    uint8_t vdl4; /**< 1: no VDL Mode 4 multilateration */
    uint8_t uat;  /**< 1: no UAT multilateration */
    uint8_t dme;  /**< 1: no DME/TACAN multilateration */
    uint8_t ot;   /**< 1: no other technology multilateration */
    uint8_t ext1_present;
    uint8_t rab; /**< report from a field monitor */
    uint8_t spi;
    uint8_t chn; /**< 0 chain 1, 1 chain 2 */
    uint8_t gbs; /**< transponder ground bit set */
    uint8_t crt; /**< corrupted replies */
    uint8_t sim; /**< simulated */
    uint8_t tst; /**< test target */
    uint8_t ext2_present;
    uint8_t cf; /**< 0 ICAO address, 1 non-ICAO address, 2 non-ADS-B message, 3 not available */
} AstItem020_020;

KOVREL_API void ast_dataitem_020_020_init(AstItem020_020 *out);
KOVREL_API void ast_dataitem_020_020_decode(AstItem020_020 *out, const AstDataItem *item);
/** Fails also for cf above 3. */
KOVREL_API void ast_dataitem_020_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_020 *in);
/**
 * "TYP:" and the contributing technologies joined by "+" (SSR, MS, HF,
 * VDL4, UAT, DME, OT; "NONE" when none contributed), then the words of the
 * set flags of octet 2 (RAB, SPI, CHAIN2, GBS, CRT, SIM, TST) and, with
 * octet 3, NON_ICAO_ADDRESS, NON_ADSB or CF_NOT_AVAILABLE
 * ("TYP:MS GBS NON_ADSB").
 */
KOVREL_API void ast_dataitem_020_020_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** Most codes an I020/030 is decoded with. */
#define AST_ITEM020_030_MAX 32

/** I020/030 Warning/Error Conditions: one seven-bit code per octet. */
typedef struct AstItem020_030 {
    uint32_t valid;
    uint32_t count; /**< number of codes, the item's length in octets */
    uint32_t codes[AST_ITEM020_030_MAX];
} AstItem020_030;

KOVREL_API void ast_dataitem_020_030_init(AstItem020_030 *out);
/** A span longer than AST_ITEM020_030_MAX octets gives the defaults. */
KOVREL_API void ast_dataitem_020_030_decode(AstItem020_030 *out, const AstDataItem *item);
/**
 * Fails also when count is 0 or above the maximum, or a code is above 127.
 * As for I020/400, the dispatch row has no encoder (an array cannot be set
 * by name); the record assembler uses this one.
 */
KOVREL_API void ast_dataitem_020_030_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_030 *in);
/** "ERRCODE:%d" for the first code, "+ERRCODE:%d" for each further one. */
KOVREL_API void ast_dataitem_020_030_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_030_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I020/055 Mode-1 Code: V, G, L and the five-bit code (A4 A2 A1 B2 B1). */
typedef struct AstItem020_055 {
    uint32_t valid;
    uint8_t v; /**< 1: code not validated */
    uint8_t g; /**< garbled */
    uint8_t l; /**< 1: smoothed by a local tracker */
    uint32_t code;
} AstItem020_055;

KOVREL_API void ast_dataitem_020_055_init(AstItem020_055 *out);
KOVREL_API void ast_dataitem_020_055_decode(AstItem020_055 *out, const AstDataItem *item);
/** Fails also when code is above 31. */
KOVREL_API void ast_dataitem_020_055_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_055 *in);
/**
 * "MODE_1:%o%o" with the digits A (three bits) and B (two bits), then
 * " NOT_VALIDATED", " GARBLED", " SMOOTHED" for the set flags.
 */
KOVREL_API void ast_dataitem_020_055_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_055_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_055_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_055_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I020/170 Track Status: one or two octets. */
typedef struct AstItem020_170 {
    uint32_t valid;
    uint8_t cnf; /**< 1: track in initiation phase */
    uint8_t tre; /**< last report for the track */
    uint8_t cst; /**< coasted */
    uint8_t cdm; /**< 0 maintaining, 1 climbing, 2 descending, 3 invalid */
    uint8_t mah; /**< horizontal manoeuvre */
    uint8_t sth; /**< 1: smoothed position */
    uint8_t ext1_present;
    uint8_t gho; /**< ghost track */
} AstItem020_170;

KOVREL_API void ast_dataitem_020_170_init(AstItem020_170 *out);
KOVREL_API void ast_dataitem_020_170_decode(AstItem020_170 *out, const AstDataItem *item);
/** Fails also for cdm above 3. */
KOVREL_API void ast_dataitem_020_170_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_170 *in);
/**
 * "TRACK:CONFIRMED" or "TRACK:TENTATIVE", then LAST, COASTED, CLIMBING /
 * DESCENDING / CDM_INVALID, MANOEUVRE, SMOOTHED, GHOST for what is set.
 */
KOVREL_API void ast_dataitem_020_170_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_170_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_170_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_170_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I020/210 Calculated Acceleration: two 8-bit two's complement fields at 1/4 m/s2. */
typedef struct AstItem020_210 {
    uint32_t valid;
    int32_t ax_raw;
    double ax_lsb; /**< 0.25 */
    double ax;     /**< m/s2 */
    int32_t ay_raw;
    double ay_lsb;
    double ay;
} AstItem020_210;

/** Defaults: raw values and values 0, LSBs 0.25. */
KOVREL_API void ast_dataitem_020_210_init(AstItem020_210 *out);
KOVREL_API void ast_dataitem_020_210_decode(AstItem020_210 *out, const AstDataItem *item);
/** Fails also when a raw value is outside -128..127. */
KOVREL_API void ast_dataitem_020_210_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_210 *in);
/** "AX:%.2f AY:%.2f LSB:M/S2". */
KOVREL_API void ast_dataitem_020_210_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_210_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_210_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I020/230 Communications/ACAS Capability and Flight Status. */
typedef struct AstItem020_230 {
    uint32_t valid;
    uint8_t com;    /**< communications capability, 0..7 */
    uint8_t stat;   /**< flight status, 0..7 */
    uint8_t casevn; /**< CAS extended version number, 0..3 */
    uint8_t mssc;   /**< Mode S specific service capability */
    uint8_t arc;    /**< 1: 25 ft altitude reporting, 0: 100 ft */
    uint8_t aic;    /**< aircraft identification capability */
    uint8_t b1a;    /**< BDS 1,0 bit 16 */
    uint8_t b1b;    /**< BDS 1,0 bits 37-40 */
} AstItem020_230;

KOVREL_API void ast_dataitem_020_230_init(AstItem020_230 *out);
KOVREL_API void ast_dataitem_020_230_decode(AstItem020_230 *out, const AstDataItem *item);
/** Fails also for com or stat above 7, casevn above 3, b1b above 15. */
KOVREL_API void ast_dataitem_020_230_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_230 *in);
/**
 * "COM:%u STAT:%s" with the flight status as AIRBORNE, ON_GROUND,
 * ALERT_AIRBORNE, ALERT_ON_GROUND, ALERT_SPI, SPI, NOT_ASSIGNED or
 * NOT_EXTRACTED, then " ARC:25FT" or " ARC:100FT".
 */
KOVREL_API void ast_dataitem_020_230_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_230_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_230_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_230_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/**
 * I020/260 ACAS Resolution Advisory Report: the 56 bits of register 3,0 by
 * field (what the encoder writes), and the register decoded.
 */
typedef struct AstItem020_260 {
    uint32_t valid;
    uint8_t bds1; /**< register number, first digit (3) */
    uint8_t bds2; /**< register number, second digit (0) */
    uint32_t ara; /**< active resolution advisories, 14 bits */
    uint8_t rac;  /**< resolution advisory complements, 4 bits */
    uint8_t rat;  /**< resolution advisory terminated */
    uint8_t mte;  /**< multiple threat encounter */
    uint8_t tti;  /**< threat type indicator, 2 bits */
    uint32_t tid; /**< threat identity data, 26 bits */
    AstBds30 bds; /**< the register as decoded (not read by the encoder) */
} AstItem020_260;

KOVREL_API void ast_dataitem_020_260_init(AstItem020_260 *out);
/** Decodes the seven octets as register 3,0 (its first octet, the register number, is not checked). */
KOVREL_API void ast_dataitem_020_260_decode(AstItem020_260 *out, const AstDataItem *item);
/** Writes the fields; fails also when one is wider than its wire field. */
KOVREL_API void ast_dataitem_020_260_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_260 *in);
/** "BDS:3,0", then " RA_TERMINATED" and " MULTIPLE_THREAT" when set. */
KOVREL_API void ast_dataitem_020_260_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_260_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_260_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_260_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I020/300 Vehicle Fleet Identification (the codes of I010/300). */
typedef struct AstItem020_300 {
    uint32_t valid;
    uint32_t vfi;
} AstItem020_300;

KOVREL_API void ast_dataitem_020_300_init(AstItem020_300 *out);
KOVREL_API void ast_dataitem_020_300_decode(AstItem020_300 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_300_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_300 *in);
/** "VFI:%s" with the names of ast_dataitem_010_300_get_summary. */
KOVREL_API void ast_dataitem_020_300_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_300_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_300_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_300_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I020/310 Pre-programmed Message (the codes of I010/310). */
typedef struct AstItem020_310 {
    uint32_t valid;
    uint8_t trb;
    uint8_t msg;
} AstItem020_310;

KOVREL_API void ast_dataitem_020_310_init(AstItem020_310 *out);
KOVREL_API void ast_dataitem_020_310_decode(AstItem020_310 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_310_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_310 *in);
/** "MSG:%s" as ast_dataitem_010_310_get_summary. */
KOVREL_API void ast_dataitem_020_310_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_310_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_310_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_310_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** Most octets of contribution bits an I020/400 holds: its count is one octet. */
#define AST_ITEM020_400_MAX 255

/**
 * I020/400 Contributing Devices: one octet of eight contribution bits per
 * repetition. Octet i (from 0) covers devices 8i+1 to 8i+8, device 8i+1 in
 * its most significant bit, the order in which the octet lists them.
 */
typedef struct AstItem020_400 {
    uint32_t valid;
    uint32_t count;
    uint8_t devices[AST_ITEM020_400_MAX];
} AstItem020_400;

KOVREL_API void ast_dataitem_020_400_init(AstItem020_400 *out);
/** Decodes a span of 1 + count octets; another length gives the defaults. */
KOVREL_API void ast_dataitem_020_400_decode(AstItem020_400 *out, const AstDataItem *item);
/**
 * Fails also when count is 0 or above 255. The item's dispatch row has no
 * encoder (its array cannot be set by name, so ast_dataitem_encode refuses
 * it and tools write it from its octets); the record assembler and callers
 * use this function or _encode_ex directly.
 */
KOVREL_API void ast_dataitem_020_400_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_400 *in);
/** "DEVICES:" and the numbers of the contributing devices joined by "," ("DEVICES:1,7,14"); "DEVICES:NONE". */
KOVREL_API void ast_dataitem_020_400_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** One row per contributing device ("TU%u/RU%u", 1). */
KOVREL_API void ast_dataitem_020_400_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_020_400_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_400_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/**
 * I020/500 Position Accuracy: its present subfields, decoded. All fields
 * are unsigned 16-bit at 0.25 (DOP: no unit; SDP: metres, its XY
 * correlation without unit), SDH at 0.5 m.
 */
typedef struct AstItem020_500 {
    uint32_t valid;
    uint8_t dop_present;
    uint32_t dop_x_raw, dop_y_raw, dop_xy_raw;
    double dop_x, dop_y, dop_xy;
    uint8_t sdp_present;
    uint32_t sdp_x_raw, sdp_y_raw, sdp_xy_raw;
    double sdp_x, sdp_y, sdp_xy;
    uint8_t sdh_present;
    uint32_t sdh_raw;
    double sdh;
} AstItem020_500;

KOVREL_API void ast_dataitem_020_500_init(AstItem020_500 *out);
/** Valid when the item splits into its subfields; a subfield present in the primary but not delimited fails. */
KOVREL_API void ast_dataitem_020_500_decode(AstItem020_500 *out, const AstDataItem *item);
/** Writes the primary subfield and the present subfields; fails also when none is present or a raw value is above 65535. */
KOVREL_API void ast_dataitem_020_500_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem020_500 *in);
KOVREL_API void ast_dataitem_020_500_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_020_500_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
/*
 * The subfield summaries (ast_subfield_020_500_get_summary):
 * DOP "DOP_X:%.2f DOP_Y:%.2f DOP_XY:%.2f", SDP "SDP_X:%.2f SDP_Y:%.2f
 * SDP_XY:%.2f", SDH "SDH:%.1f"; the detail views give the raw values and
 * the scaled ones.
 */

/* ---- Record level ------------------------------------------------------ */

/** A disassembled CAT020 record: one member per item, in FRN order. */
typedef struct AstRecord020 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstItem020_020 i020;
    AstTimeOfDay i140;
    AstPositionWgs84 i041;
    AstPositionCartesian i042;
    AstTrackNumber i161;
    AstItem020_170 i170;
    AstMode3aCode i070;
    AstVelocityCartesian i202;
    AstModeCCode i090;
    AstModeCConfidence i100;
    AstTargetAddress i220;
    AstTargetId i245;
    AstHeight i110;
    AstHeight i105;
    AstItem020_210 i210;
    AstItem020_300 i300;
    AstItem020_310 i310;
    AstItem020_500 i500;
    AstItem020_400 i400;
    AstModesMb i250;
    AstItem020_230 i230;
    AstItem020_260 i260;
    AstItem020_030 i030;
    AstItem020_055 i055;
    AstMode3aCode i050;
} AstRecord020;

/**
 * Disassembles a CAT020 record into *out. The structure is zeroed first; a
 * record that is not valid or not of category 20 leaves it so (valid 0).
 * Otherwise valid is 1 and every item with a member is decoded into it; REF
 * and SPF are skipped with "Failed to disassemble dataitem %s." at DEBUG.
 */
KOVREL_API void ast_datarecord_020_disassemble(AstRecord020 *out, const AstDataRecord *record);
/**
 * Encodes the members of *in whose valid flag is 1 into buffer as one CAT020
 * record of the profile uap. A member without an encoder (I250, whose
 * registers are spans into the decoded octets) or with values its encoder
 * refuses makes the record invalid; nothing is written past size.
 */
KOVREL_API void ast_datarecord_020_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord020 *in,
                                            const AstUap *uap);

/*
 * Record accessors (the CAT020 slots of AstDataRecordFuncs): the first item
 * of the record that carries the fact; invalid, all zeros (SAC/SIC:
 * 0xFFFFFFFF each), when the record is invalid, lacks it or it does not
 * decode.
 */
KOVREL_API void ast_datarecord_020_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_020_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/** 6 ("Mlat") for every valid record: the category carries multilateration reports only. */
KOVREL_API void ast_datarecord_020_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_020_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);
/** From I020/070. */
KOVREL_API void ast_datarecord_020_get_squawk(AstMode3aCode *out, const AstDataRecord *record);
/** The characters of I020/245. */
KOVREL_API void ast_datarecord_020_get_callsign(AstRecordCallsign *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_020_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record);
/** From I020/041. */
KOVREL_API void ast_datarecord_020_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record);
/**
 * Feet: I020/090 (1/4 FL) x 25; else the geometric height of I020/105, else
 * the measured height of I020/110.
 */
KOVREL_API void ast_datarecord_020_get_flightlevel(AstRecordValue *out, const AstDataRecord *record);
/** Feet: the MCP/FCU selected altitude of the first BDS 4,0 of I020/250 that gives one. */
KOVREL_API void ast_datarecord_020_get_selaltitude(AstRecordValue *out, const AstDataRecord *record);
/** Degrees: the course of the velocity of I020/202 (clockwise from north, y). */
KOVREL_API void ast_datarecord_020_get_heading(AstRecordValue *out, const AstDataRecord *record);
/** Knots: the magnitude of the velocity of I020/202. */
KOVREL_API void ast_datarecord_020_get_speed(AstRecordValue *out, const AstDataRecord *record);
/** I020/202 as decoded. */
KOVREL_API void ast_datarecord_020_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record);
/**
 * ft/min: the barometric altitude rate of the first BDS 6,0 of I020/250 that
 * gives one, else its inertial vertical velocity (LSB 32 ft/min); the
 * category has no vertical rate item of its own.
 */
KOVREL_API void ast_datarecord_020_get_vrate(AstVerticalRate *out, const AstDataRecord *record);
/** Metres from I020/042 (0.5 m); not a slot of AstDataRecordFuncs (see ast_datarecord_get_cartesiancoord). */
KOVREL_API void ast_datarecord_020_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT020_H */
