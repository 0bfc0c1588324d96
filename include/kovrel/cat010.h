/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat010.h: Category 010, monosensor surface movement data (edition 1.1 of
 * the category).
 *
 * Every CAT010 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items. Items laid out as a
 * common item use that item's functions and structure; the others have
 * their own below, and the disassembled record and the record accessors
 * follow them.
 */
#ifndef KOVREL_CAT010_H
#define KOVREL_CAT010_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT010 item ("Target Report Descriptor"); any other
 * identifier gives "Unknown CAT010 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_010_get_name(AstItemId id);

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

/* I010/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_010_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/000 Message Type: message type (AstMessageType); no summary or detail view. */
KOVREL_API void ast_dataitem_010_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_010_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I010/041 Position in WGS-84 Co-ordinates: 8-octet WGS-84 position
 * (AstPositionWgs84) at 180/2^31 degrees. The common encoder writes
 * 180/2^25, so the item has its own encoder (below).
 */
KOVREL_API void ast_dataitem_010_041_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I010/060 Mode-3/A Code: Mode 3/A code (AstMode3aCode). */
KOVREL_API void ast_dataitem_010_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_060_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/090 Flight Level: Mode C code (AstModeCCode). */
KOVREL_API void ast_dataitem_010_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/091 Measured Height: height (AstHeight), written from raw. */
KOVREL_API void ast_dataitem_010_091_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_091_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstHeight *in);
KOVREL_API void ast_dataitem_010_091_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/161 Track Number: 12-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_010_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/200 Calculated Track Velocity in Polar Co-ordinates: polar velocity (AstVelocityPolar). */
KOVREL_API void ast_dataitem_010_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_200_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/220 Target Address: target address (AstTargetAddress). */
KOVREL_API void ast_dataitem_010_220_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_220_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/245 Target Identification: target identification (AstTargetId). */
KOVREL_API void ast_dataitem_010_245_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_245_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I010/250 Mode S MB Data: Mode S MB data (AstModesMb); decode only. */
KOVREL_API void ast_dataitem_010_250_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * SPF and REF: special purpose field (AstSpecialPurposeField) and reserved
 * expansion field (AstReservedExpansionField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_010_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I010/041 at its own LSB: 180/2^31 degrees (see ast_dataitem_010_041_encode). */
/**
 * Writes 8 octets from in->latitude and in->longitude at 180/2^31 degrees,
 * rounded to the nearest LSB. Fails (*out = {buffer, 0, 0, 0}, nothing
 * written) when buffer or in is NULL, size is below 8, in->valid is not 1,
 * |latitude| is above 90 or the longitude is outside [-180, 180) once
 * rounded (NaN fails too).
 */
KOVREL_API void ast_dataitem_010_041_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstPositionWgs84 *in);
KOVREL_API void ast_dataitem_010_041_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* ---- Decoded structures of the category's own items ---------------------
 *
 * Each begins with its valid flag (1 when decoded); the defaults are all
 * zero unless said otherwise. Scaled fields carry the raw wire value, the
 * LSB and the value in the unit of the summary. The functions of each item:
 *   _init        the defaults, valid 0.
 *   _decode      the defaults with valid 0 when the span is NULL, not valid,
 *                of another identifier, or of another length (fixed items);
 *                extensible items (020, 170, 270) read the octets the span
 *                holds, up to the last one they know.
 *   _encode      writes octets that decode back to *in from its raw
 *                members (the values are not read): *out = {buffer, length,
 *                0, 1}, or {buffer, 0, 0, 0} and nothing written when buffer
 *                or in is NULL, in->valid is not 1, the buffer is too short
 *                or a raw value does not fit its wire field. Extensible items
 *                write up to the last extension marked present.
 *   _get_summary, _get_detail_html
 *                empty the buffer, then write the text when the item
 *                decodes, cut to size. Summaries are upper-case tags with
 *                colons; flag words follow, "NO_INFO" standing in when none
 *                is set where an item has only flags. Detail tables have the
 *                columns "Bit", "Item", "Value", bits counted from 0 at the
 *                item's most significant bit.
 *   _decode_ex, _encode_ex
 *                as for the common items above, with the item's structure.
 *
 * Named fields (fields.h): the lower-case mnemonics of the category:
 *   I010/020  typ, dcr, chn, gbs, crt; sim, tst, rab, lop, tot (octet 2);
 *             spi (octet 3). The fields of an octet the item does not hold
 *             are not walked.
 *   I010/040  rho (m), theta (deg).
 *   I010/041  lat, lon (deg), written at 180/2^31.
 *   I010/042  x, y (m).
 *   I010/131  pam.
 *   I010/170  cnf, tre, cst, mah, tcc, sth; tom, dou, mrs (octet 2); gho (octet 3).
 *   I010/202  vx, vy (m/s).
 *   I010/210  ax, ay (m/s2).
 *   I010/270  length (m); orientation (deg); width (m), each when present.
 *   I010/280  presences: an array of {drho (m), dtheta (deg)}.
 *   I010/300  vfi (with the fleet names).
 *   I010/310  trb, msg.
 *   I010/500  devx, devy, covxy (m).
 *   I010/550  nogo, ovl, tsv, div, ttf.
 * Setting refuses a value wider than its wire field.
 */

/** I010/020 Target Report Descriptor: one to three octets. */
typedef struct AstItem010_020 {
    uint32_t valid;
    uint8_t typ; /**< 0 SSR mlat, 1 Mode S mlat, 2 ADS-B, 3 PSR, 4 magnetic loop, 5 HF mlat, 6 not defined, 7 other */
    uint8_t dcr; /**< differential correction (ADS-B) */
    uint8_t chn; /**< 0 chain 1, 1 chain 2 */
    uint8_t gbs; /**< transponder ground bit set */
    uint8_t crt; /**< corrupted replies in multilateration */
    uint8_t ext1_present; /**< the item holds octet 2 */
    uint8_t sim; /**< simulated target report */
    uint8_t tst; /**< test target */
    uint8_t rab; /**< report from a field monitor */
    uint8_t lop; /**< loop status: 0 undetermined, 1 start, 2 finish */
    uint8_t tot; /**< type of target: 0 undetermined, 1 aircraft, 2 ground vehicle, 3 helicopter */
    uint8_t ext2_present; /**< the item holds octet 3 */
    uint8_t spi; /**< special position identification */
} AstItem010_020;

KOVREL_API void ast_dataitem_010_020_init(AstItem010_020 *out);
KOVREL_API void ast_dataitem_010_020_decode(AstItem010_020 *out, const AstDataItem *item);
/** Fails also for typ above 7, lop or tot above 3. */
KOVREL_API void ast_dataitem_010_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_020 *in);
/**
 * "TYP:%s" with SSR_MLAT, MODE_S_MLAT, ADSB, PSR, MAGNETIC_LOOP, HF_MLAT,
 * UNDEFINED or OTHER, then the words of the set flags (DCR, CHAIN2, GBS,
 * CRT, SIM, TST, RAB, SPI), LOOP_START / LOOP_FINISH and AIRCRAFT,
 * GROUND_VEHICLE or HELICOPTER ("TYP:MODE_S_MLAT GBS GROUND_VEHICLE").
 */
KOVREL_API void ast_dataitem_010_020_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I010/040 Measured Position in Polar Co-ordinates: range in metres (LSB 1 m), azimuth (360/2^16 degrees). */
typedef struct AstItem010_040 {
    uint32_t valid;
    uint32_t rho_raw;
    double rho_lsb; /**< 1 */
    double rho;     /**< metres */
    uint32_t theta_raw;
    double theta_lsb; /**< 360/2^16 */
    double theta;     /**< degrees */
} AstItem010_040;

/** Defaults: raw values and values 0, the LSBs set. */
KOVREL_API void ast_dataitem_010_040_init(AstItem010_040 *out);
KOVREL_API void ast_dataitem_010_040_decode(AstItem010_040 *out, const AstDataItem *item);
/** Fails also when a raw value is above 65535. */
KOVREL_API void ast_dataitem_010_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_040 *in);
/** "RHO:%.0f THETA:%.2f" (metres, degrees). */
KOVREL_API void ast_dataitem_010_040_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_040_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_040_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/**
 * I010/042 Position in Cartesian Co-ordinates: the common Cartesian position
 * structure over two 16-bit fields at 1 m (LSBs 1).
 */
typedef AstPositionCartesian AstItem010_042;

/** Defaults: raw values and values 0, LSBs 1. */
KOVREL_API void ast_dataitem_010_042_init(AstItem010_042 *out);
KOVREL_API void ast_dataitem_010_042_decode(AstItem010_042 *out, const AstDataItem *item);
/** Fails also when a raw value is outside -32768..32767. */
KOVREL_API void ast_dataitem_010_042_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_042 *in);
/** "X:%.0f Y:%.0f LSB:M". */
KOVREL_API void ast_dataitem_010_042_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_042_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_042_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_042_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I010/131 Amplitude of Primary Plot: radar-dependent, 0 the least detectable level. */
typedef struct AstItem010_131 {
    uint32_t valid;
    uint32_t pam;
} AstItem010_131;

KOVREL_API void ast_dataitem_010_131_init(AstItem010_131 *out);
KOVREL_API void ast_dataitem_010_131_decode(AstItem010_131 *out, const AstDataItem *item);
/** Fails also when pam is above 255. */
KOVREL_API void ast_dataitem_010_131_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_131 *in);
/** "PAM:%u". */
KOVREL_API void ast_dataitem_010_131_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_131_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_131_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_131_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I010/170 Track Status: one to three octets. */
typedef struct AstItem010_170 {
    uint32_t valid;
    uint8_t cnf; /**< 1: track in initialisation phase */
    uint8_t tre; /**< last report for the track */
    uint8_t cst; /**< extrapolation: 0 none, 1 refresh period, 2 masked area, 3 unpredictable absence */
    uint8_t mah; /**< horizontal manoeuvre */
    uint8_t tcc; /**< 1: tracked in a 2D reference plane */
    uint8_t sth; /**< 1: smoothed position */
    uint8_t ext1_present;
    uint8_t tom; /**< type of movement: 0 unknown, 1 taking-off, 2 landing, 3 other */
    uint8_t dou; /**< doubt: 0 none .. 6 previously coasted, 7 undefined */
    uint8_t mrs; /**< merge/split: 0 undetermined, 1/2 merged, 3 split */
    uint8_t ext2_present;
    uint8_t gho; /**< ghost track */
} AstItem010_170;

KOVREL_API void ast_dataitem_010_170_init(AstItem010_170 *out);
KOVREL_API void ast_dataitem_010_170_decode(AstItem010_170 *out, const AstDataItem *item);
/** Fails also for cst, tom or mrs above 3, dou above 7. */
KOVREL_API void ast_dataitem_010_170_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_170 *in);
/**
 * "TRACK:CONFIRMED" or "TRACK:TENTATIVE", then the words of the set flags
 * and codes: LAST, EXTRAPOLATED, MANOEUVRE, SMOOTHED, TAKE_OFF / LANDING /
 * OTHER_MOVEMENT, DOUBTFUL, MERGED / SPLIT, GHOST.
 */
KOVREL_API void ast_dataitem_010_170_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_170_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_170_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_170_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/**
 * I010/202 Calculated Track Velocity in Cartesian Co-ordinates: the common
 * Cartesian velocity structure over two 16-bit fields at 1/16 m/s (LSBs
 * 0.0625, where the common item has 0.25).
 */
typedef AstVelocityCartesian AstItem010_202;

/** Defaults: raw values and values 0, LSBs 0.0625. */
KOVREL_API void ast_dataitem_010_202_init(AstItem010_202 *out);
KOVREL_API void ast_dataitem_010_202_decode(AstItem010_202 *out, const AstDataItem *item);
/** Fails also when a raw value is outside -32768..32767. */
KOVREL_API void ast_dataitem_010_202_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_202 *in);
/** "VX:%.2f VY:%.2f LSB:M/S". */
KOVREL_API void ast_dataitem_010_202_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_202_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_202_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_202_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I010/210 Calculated Acceleration: two 8-bit two's complement fields at 1/16 m/s2. */
typedef struct AstItem010_210 {
    uint32_t valid;
    int32_t ax_raw;
    double ax_lsb; /**< 0.0625 */
    double ax;     /**< m/s2 */
    int32_t ay_raw;
    double ay_lsb;
    double ay;
} AstItem010_210;

/** Defaults: raw values and values 0, LSBs 0.0625. */
KOVREL_API void ast_dataitem_010_210_init(AstItem010_210 *out);
KOVREL_API void ast_dataitem_010_210_decode(AstItem010_210 *out, const AstDataItem *item);
/** Fails also when a raw value is outside -128..127. */
KOVREL_API void ast_dataitem_010_210_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_210 *in);
/** "AX:%.2f AY:%.2f LSB:M/S2". */
KOVREL_API void ast_dataitem_010_210_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_210_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_210_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/**
 * I010/270 Target Size and Orientation: length (1 m), then optionally the
 * orientation (360/128 degrees from north, where the nose points) and the
 * width (1 m).
 */
typedef struct AstItem010_270 {
    uint32_t valid;
    uint32_t length; /**< metres */
    uint8_t orientation_present;
    uint32_t orientation_raw;
    double orientation_lsb; /**< 360/128 */
    double orientation;     /**< degrees */
    uint8_t width_present;
    uint32_t width; /**< metres */
} AstItem010_270;

/** Defaults: all 0 but the orientation LSB. */
KOVREL_API void ast_dataitem_010_270_init(AstItem010_270 *out);
KOVREL_API void ast_dataitem_010_270_decode(AstItem010_270 *out, const AstDataItem *item);
/** Fails also when a raw value is above 127, or the width is present without the orientation. */
KOVREL_API void ast_dataitem_010_270_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_270 *in);
/** "LEN:%u", then " ORI:%.1f" and " WID:%u" when present (metres, degrees). */
KOVREL_API void ast_dataitem_010_270_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_270_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_270_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_270_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** Most presences an I010/280 holds: its repetition count is one octet. */
#define AST_ITEM010_280_MAX 255

/** One elementary presence: offsets from the plot centre. */
typedef struct AstItem010_280Presence {
    int32_t drho;        /**< metres */
    int32_t dtheta_raw;  /**< LSB 0.15 degrees */
    double dtheta;       /**< degrees */
} AstItem010_280Presence;

/** I010/280 Presence: the elementary presences constituting a plot. */
typedef struct AstItem010_280 {
    uint32_t valid;
    uint32_t count;
    AstItem010_280Presence presences[AST_ITEM010_280_MAX];
} AstItem010_280;

KOVREL_API void ast_dataitem_010_280_init(AstItem010_280 *out);
/** Decodes a span of 1 + 2 x count octets; another length gives the defaults. */
KOVREL_API void ast_dataitem_010_280_decode(AstItem010_280 *out, const AstDataItem *item);
/**
 * Fails also when count is 0 or above 255, or a drho or dtheta_raw is
 * outside -128..127. The item's dispatch row has no encoder (its array of
 * presences cannot be set by name, so ast_dataitem_encode refuses it and
 * tools write it from its octets); the record assembler and callers use
 * this function or _encode_ex directly.
 */
KOVREL_API void ast_dataitem_010_280_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_280 *in);
/** "PRESENCES:%u". */
KOVREL_API void ast_dataitem_010_280_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** One row per presence: "DRHO_%u LSB=M" and "DTHETA_%u LSB=DEG" (numbered from 1). */
KOVREL_API void ast_dataitem_010_280_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_280_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_280_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I010/300 Vehicle Fleet Identification. */
typedef struct AstItem010_300 {
    uint32_t valid;
    uint32_t vfi; /**< 0 unknown .. 16 follow me; 17-255 have no name */
} AstItem010_300;

KOVREL_API void ast_dataitem_010_300_init(AstItem010_300 *out);
KOVREL_API void ast_dataitem_010_300_decode(AstItem010_300 *out, const AstDataItem *item);
/** Fails also when vfi is above 255. */
KOVREL_API void ast_dataitem_010_300_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_300 *in);
/**
 * "VFI:%s": UNKNOWN, ATC_MAINTENANCE, AIRPORT_MAINTENANCE, FIRE, BIRD_SCARER,
 * SNOW_PLOUGH, RUNWAY_SWEEPER, EMERGENCY, POLICE, BUS, TUG, GRASS_CUTTER,
 * FUEL, BAGGAGE, CATERING, AIRCRAFT_MAINTENANCE, FOLLOW_ME; "VFI:%u" for a
 * code without a name.
 */
KOVREL_API void ast_dataitem_010_300_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_300_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_300_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_300_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I010/310 Pre-programmed Message sent by a vehicle. */
typedef struct AstItem010_310 {
    uint32_t valid;
    uint8_t trb; /**< in trouble */
    uint8_t msg; /**< 1 towing, 2 follow me, 3 runway check, 4 emergency, 5 work in progress */
} AstItem010_310;

KOVREL_API void ast_dataitem_010_310_init(AstItem010_310 *out);
KOVREL_API void ast_dataitem_010_310_decode(AstItem010_310 *out, const AstDataItem *item);
/** Fails also when msg is above 127. */
KOVREL_API void ast_dataitem_010_310_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_310 *in);
/**
 * "MSG:%s": TOWING, FOLLOW_ME, RUNWAY_CHECK, EMERGENCY, WORK_IN_PROGRESS, or
 * the number for another code; " IN_TROUBLE" when TRB is set.
 */
KOVREL_API void ast_dataitem_010_310_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_310_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_310_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_310_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/**
 * I010/500 Standard Deviation of Position: sigma X and sigma Y (8 bits
 * each) and the XY covariance (16 bits, two's complement), all at 0.25 m.
 */
typedef struct AstItem010_500 {
    uint32_t valid;
    uint32_t devx_raw;
    double devx_lsb; /**< 0.25 */
    double devx;     /**< metres */
    uint32_t devy_raw;
    double devy_lsb;
    double devy;
    int32_t covxy_raw;
    double covxy_lsb;
    double covxy;
} AstItem010_500;

/** Defaults: raw values and values 0, LSBs 0.25. */
KOVREL_API void ast_dataitem_010_500_init(AstItem010_500 *out);
KOVREL_API void ast_dataitem_010_500_decode(AstItem010_500 *out, const AstDataItem *item);
/** Fails also when a raw value does not fit its field. */
KOVREL_API void ast_dataitem_010_500_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_500 *in);
/** "SX:%.2f SY:%.2f COV:%.2f" (metres). */
KOVREL_API void ast_dataitem_010_500_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_500_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_500_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_500_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I010/550 System Status. */
typedef struct AstItem010_550 {
    uint32_t valid;
    uint8_t nogo; /**< 0 operational, 1 degraded, 2 NOGO, 3 undefined */
    uint8_t ovl;  /**< overload */
    uint8_t tsv;  /**< time source invalid */
    uint8_t div;  /**< diversity degraded */
    uint8_t ttf;  /**< test target failure */
} AstItem010_550;

KOVREL_API void ast_dataitem_010_550_init(AstItem010_550 *out);
KOVREL_API void ast_dataitem_010_550_decode(AstItem010_550 *out, const AstDataItem *item);
/** Fails also when nogo is above 3. */
KOVREL_API void ast_dataitem_010_550_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem010_550 *in);
/**
 * "STATUS:OPERATIONAL" (DEGRADED, NOGO, UNDEFINED), then OVERLOAD,
 * TIME_SOURCE_INVALID, DIVERSITY_DEGRADED and TEST_TARGET_FAILURE for the
 * set flags.
 */
KOVREL_API void ast_dataitem_010_550_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_550_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_010_550_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_010_550_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* ---- Record level ------------------------------------------------------ */

/** A disassembled CAT010 record: one member per item, in FRN order. */
typedef struct AstRecord010 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstMessageType i000;
    AstItem010_020 i020;
    AstTimeOfDay i140;
    AstPositionWgs84 i041;
    AstItem010_040 i040;
    AstItem010_042 i042;
    AstVelocityPolar i200;
    AstItem010_202 i202;
    AstTrackNumber i161;
    AstItem010_170 i170;
    AstMode3aCode i060;
    AstTargetAddress i220;
    AstTargetId i245;
    AstModesMb i250;
    AstItem010_300 i300;
    AstModeCCode i090;
    AstHeight i091;
    AstItem010_270 i270;
    AstItem010_550 i550;
    AstItem010_310 i310;
    AstItem010_500 i500;
    AstItem010_280 i280;
    AstItem010_131 i131;
    AstItem010_210 i210;
} AstRecord010;

/**
 * Disassembles a CAT010 record into *out. The structure is zeroed first; a
 * record that is not valid or not of category 10 leaves it so (valid 0).
 * Otherwise valid is 1 and every item with a member is decoded into it; SPF
 * and REF are skipped with "Failed to disassemble dataitem %s." at DEBUG.
 */
KOVREL_API void ast_datarecord_010_disassemble(AstRecord010 *out, const AstDataRecord *record);
/**
 * Encodes the members of *in whose valid flag is 1 into buffer as one CAT010
 * record of the profile uap (ast_datarecord_encode). A member without an
 * encoder (I250 Mode S MB data, whose registers are spans into the decoded
 * octets) or with values its encoder refuses makes the record invalid;
 * nothing is written past size.
 */
KOVREL_API void ast_datarecord_010_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord010 *in,
                                            const AstUap *uap);

/*
 * Record accessors (the CAT010 slots of AstDataRecordFuncs): the first item
 * of the record that carries the fact; invalid, all zeros (SAC/SIC:
 * 0xFFFFFFFF each), when the record is invalid, lacks it or it does not
 * decode.
 */
KOVREL_API void ast_datarecord_010_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_010_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/**
 * From I010/000: a target report is 6 ("Mlat") when I010/020 names a
 * multilateration (TYP 0, 1 or 5) and 8 ("Surface") otherwise, also without
 * I010/020; a start of update cycle is 1 ("North"); status messages and
 * other codes are 0 ("Unknown"), valid. Invalid without I010/000.
 */
KOVREL_API void ast_datarecord_010_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_010_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);
/** From I010/060. */
KOVREL_API void ast_datarecord_010_get_squawk(AstMode3aCode *out, const AstDataRecord *record);
/** The characters of I010/245. */
KOVREL_API void ast_datarecord_010_get_callsign(AstRecordCallsign *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_010_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record);
/** From I010/041 (180/2^31 degrees). */
KOVREL_API void ast_datarecord_010_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record);
/** Feet: I010/090 (1/4 FL) x 25, else the measured height of I010/091. */
KOVREL_API void ast_datarecord_010_get_flightlevel(AstRecordValue *out, const AstDataRecord *record);
/** Feet: the MCP/FCU selected altitude of the first BDS 4,0 of I010/250 that gives one. */
KOVREL_API void ast_datarecord_010_get_selaltitude(AstRecordValue *out, const AstDataRecord *record);
/** RHO in NM (the item's metres / 1852) and THETA in degrees from I010/040. */
KOVREL_API void ast_datarecord_010_get_polarcoord(AstRecordPolar *out, const AstDataRecord *record);
/** Degrees: the track angle of I010/200, else the course of the velocity of I010/202. */
KOVREL_API void ast_datarecord_010_get_heading(AstRecordValue *out, const AstDataRecord *record);
/** Knots: the ground speed of I010/200, else the magnitude of I010/202. */
KOVREL_API void ast_datarecord_010_get_speed(AstRecordValue *out, const AstDataRecord *record);
/** I010/202 as decoded (LSB 1/16 m/s). */
KOVREL_API void ast_datarecord_010_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record);
/**
 * ft/min: the barometric altitude rate of the first BDS 6,0 of I010/250 that
 * gives one, else its inertial vertical velocity (LSB 32 ft/min); the
 * category has no vertical rate item of its own.
 */
KOVREL_API void ast_datarecord_010_get_vrate(AstVerticalRate *out, const AstDataRecord *record);
/** Metres from I010/042 (1 m); not a slot of AstDataRecordFuncs (see ast_datarecord_get_cartesiancoord). */
KOVREL_API void ast_datarecord_010_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT010_H */
