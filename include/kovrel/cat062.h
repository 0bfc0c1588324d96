/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat062.h: Category 062, SDPS system track data.
 *
 * Compound items open with a primary subfield (presence bits and FX bits);
 * their subfields are numbered from 1 in the order of those bits, and a
 * subfield identifier is item identifier x 1000 + number (62380009 is the
 * trajectory intent data of I062/380). Subfield functions answer 0, "---"
 * or "UNKNOWN_SUBFIELD_NAME" for a subfield the item does not have.
 *
 * Layouts, scales and value texts follow the CAT062 standard from edition
 * 1.18 on. Every subfield has a summary (upper-case tags with colons) and a
 * detail table ("Bit", "Item", "Value"); both are empty for a span that is
 * absent, not valid or not of the subfield's length (a repetitive subfield:
 * not 1 + N x REP octets). An item's structured decode splits it and decodes
 * each present subfield into its part of the item's structure, whose
 * `xxx_present` flag is then 1; a subfield cut short or of the wrong length
 * stays absent, the item still valid. Scaled values come in the unit the
 * summaries print (ft, FL, kt, deg, s, NM, m, m/s, ft/min); the raw integer
 * is kept beside them under `_raw`.
 *
 * Choices where the standard leaves room:
 *  - I062/380 subfield 8 (trajectory intent status) is one octet; its FX bit
 *    is not followed. Trajectory intent points and times of departure or
 *    arrival beyond the structure's room are counted (`tid_rep`, `tod_rep`)
 *    but not kept.
 *  - I062/380 subfield 4 gives the airspeed in knots (IM 0, 2^-14 NM/s) or
 *    as a Mach number (IM 1, 0.001); `ias_knots` tells which is filled.
 *    Ground speed (subfield 18) is given in knots.
 *  - I062/510 keeps up to AST_ITEM062_510_MAX groups; `count` is the number
 *    of groups in the item (NUM_TRACKS).
 *  - I062/200 is summarised "TRANS:%s LONG:%s VERT:%s" and " ADF" when the
 *    altitude discrepancy flag is set.
 *  - Texts of a compound subfield are cut by the compound item's detail
 *    table at 63 characters; its own detail view has the full values.
 *  - I062/380 subfield 25 with more registers than AST_MODES_MB_MAX_BDS is
 *    present with `mb` not valid and no summary text.
 *  - I062/080 octet 5: SUR_STATUS is "COMBINED", "COOPERATIVE_ONLY",
 *    "NON_COOPERATIVE_ONLY" or "NOT_DEFINED"; EMG_STATUS the text of
 *    ast_emergency_status_to_str. Single bits show as 0 or 1.
 */
#ifndef KOVREL_CAT062_H
#define KOVREL_CAT062_H

#include "kovrel/bds.h"
#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/items.h"
#include "kovrel/export.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT062 item ("Track Status"); any other identifier gives
 * "Unknown CAT062 Dataitem" and logs "Unknown dataitem name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_062_get_name(AstItemId id);

/**
 * Size of I062/510 Composed Track Number: 3-octet groups chained by the FX
 * bit of each group's last octet. Never 0: a chain cut short by the end of
 * the data ends at its last whole group, and fewer than 3 available octets
 * still give 3 (ast_dataitem_scan then refuses the item).
 */
KOVREL_API uint64_t ast_dataitem_062_510_get_size(const uint8_t *octets, size_t available);

/*
 * Items served by the common items of items_ident.h, items_motion.h and
 * items_mode.h. Their summaries and detail views are the common item's;
 * decode_ex fills the common item's structure (the storage must hold it)
 * and encode_ex writes the item from that structure (see
 * ast_dataitem_decode and ast_dataitem_encode).
 */

/* I062/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_062_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/015 Service Identification: service identification (AstServiceId). */
KOVREL_API void ast_dataitem_062_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/040 Track Number: track number, all 16 bits (AstTrackNumber, twelve_bit 0). */
KOVREL_API void ast_dataitem_062_040_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_040_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/060 Track Mode 3/A Code: Mode 3/A code, bit 6 read as "changed" (AstMode3aCode). */
KOVREL_API void ast_dataitem_062_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_060_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/070 Time of Track Information: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_062_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/100 Calculated Track Position (Cartesian): Cartesian position (AstPositionCartesian), no detail view. */
KOVREL_API void ast_dataitem_062_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * I062/105 Calculated Position in WGS84 Coordinates: 8-octet WGS-84 position
 * (AstPositionWgs84, LSB 180/2^25); AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE
 * applies to the decode, the summary and the detail view.
 */
KOVREL_API void ast_dataitem_062_105_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I062/120 Track Mode 2 Code: Mode 3/A code layout, summarised as "MODE_2:%04o" (AstMode3aCode). */
KOVREL_API void ast_dataitem_062_120_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_120_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I062/185 Calculated Track Velocity (Cartesian): Cartesian velocity (AstVelocityCartesian), no detail view. */
KOVREL_API void ast_dataitem_062_185_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I062/245 Target Identification: target identification (AstTargetId). */
KOVREL_API void ast_dataitem_062_245_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I062/REF and I062/SPF: reserved expansion and special purpose fields (AstExplicitField), no detail view. */
KOVREL_API void ast_dataitem_062_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I062/110 Mode 5 Data reports & Extended Mode 1 Code (compound): SUM, PMN, POS, GA, EM1, TOS, XP. */
KOVREL_API uint64_t ast_dataitem_062_110_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_110_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_110_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_110_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_110_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_110_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/290 System Track Update Ages (compound): TRK, PSR, SSR, MDS, ADS, ES, VDL, UAT, LOP, MLT. */
KOVREL_API uint64_t ast_dataitem_062_290_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_290_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_290_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_290_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_290_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_290_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/295 Track Data Age (compound): 31 one-octet ages, MFL ... BPS. */
KOVREL_API uint64_t ast_dataitem_062_295_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_295_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_295_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_295_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_295_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_295_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/340 Measured Information (compound): SID, POS, HEIGHT, MDC, MDA, TYP. */
KOVREL_API uint64_t ast_dataitem_062_340_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_340_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_340_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_340_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_340_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_340_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/380 Aircraft Derived Data (compound): 28 subfields, ADR ... BPS; TID (9) and MB (25) are repetitive. */
KOVREL_API uint64_t ast_dataitem_062_380_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_380_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_380_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_380_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_380_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_380_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/390 Flight Plan Related Data (compound): 18 subfields, TAG ... PEC; TOD (12) is repetitive. */
KOVREL_API uint64_t ast_dataitem_062_390_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_390_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_390_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_390_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_390_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_390_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I062/500 Estimated Accuracies (compound): APC, COV, APW, AGA, ABA, ATV, AA, ARC. */
KOVREL_API uint64_t ast_dataitem_062_500_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_062_500_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_500_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_062_500_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_062_500_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_062_500_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* ---- Items of the category's own ----------------------------------------
 * Each item below has _init (the defaults: all 0), _decode (the defaults
 * when the span is not a valid item of that identifier and a length the
 * item can have), _get_summary, _get_detail_html and _decode_ex (structured
 * decode into storage holding the structure). */

/** I062/080 Track Status: up to six octets, filled while the span lasts. */
typedef struct AstItem062_080 {
    uint32_t valid;
    uint32_t octets; /**< octets present, 1 to 6 */
    /* Octet 1 */
    uint8_t mon;  /**< monosensor track */
    uint8_t spi;  /**< SPI present in the last report */
    uint8_t mrh;  /**< most reliable height: 1 geometric, 0 barometric */
    uint32_t src; /**< source of the calculated altitude of I062/130, 0-7 */
    uint8_t cnf;  /**< tentative track */
    /* Octet 2 (ext2 set when present) */
    uint8_t ext2;
    uint8_t sim, tse, tsb, fpc, aff, stp, kos;
    /* Octet 3 */
    uint8_t ext3;
    uint8_t ama;
    uint32_t md4; /**< 0 no interrogation, 1 friendly, 2 unknown, 3 no reply */
    uint8_t me, mi;
    uint32_t md5; /**< as md4 */
    /* Octet 4: coasting flags */
    uint8_t ext4;
    uint8_t cst, psr, ssr, mds, ads, suc, aac;
    /* Octet 5 */
    uint8_t ext5;
    uint32_t sds; /**< 0 combined, 1 co-operative only, 2 non-co-operative only, 3 not defined */
    uint32_t ems; /**< emergency status, 0-7 */
    uint8_t pft, fplt;
    /* Octet 6 */
    uint8_t ext6;
    uint8_t dupt, dupf, dupm, sfc, idd, iec, mlat;
} AstItem062_080;

KOVREL_API void ast_dataitem_062_080_init(AstItem062_080 *out);
KOVREL_API void ast_dataitem_062_080_decode(AstItem062_080 *out, const AstDataItem *item);
/** "TRACK_STS:MONO" or "TRACK_STS:MULTI". */
KOVREL_API void ast_dataitem_062_080_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Bit, Item, Value: one row per field of each octet present, FX included. */
KOVREL_API void ast_dataitem_062_080_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_080_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I062/130 Calculated Track Geometric Altitude: 16-bit two's complement, LSB 6.25 ft. */
typedef struct AstItem062_130 {
    uint32_t valid;
    int32_t raw;
    double lsb;      /**< 6.25 ft */
    double altitude; /**< ft */
} AstItem062_130;

KOVREL_API void ast_dataitem_062_130_init(AstItem062_130 *out);
KOVREL_API void ast_dataitem_062_130_decode(AstItem062_130 *out, const AstDataItem *item);
/** "LEVEL:%.2f LSB:FT". */
KOVREL_API void ast_dataitem_062_130_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_130_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_130_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I062/135 Calculated Track Barometric Altitude: QNH bit, 15-bit two's complement in 1/4 FL. */
typedef struct AstItem062_135 {
    uint32_t valid;
    uint8_t qnh;     /**< QNH correction applied */
    int32_t raw;     /**< 1/4 FL */
    double lsb;      /**< 25 ft */
    double altitude; /**< ft */
} AstItem062_135;

KOVREL_API void ast_dataitem_062_135_init(AstItem062_135 *out);
KOVREL_API void ast_dataitem_062_135_decode(AstItem062_135 *out, const AstDataItem *item);
/** "ALTITUDE:%d LSB:FT", then " QNH" when the correction is applied. */
KOVREL_API void ast_dataitem_062_135_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_135_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_135_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I062/136 Measured Flight Level: 16-bit two's complement in 1/4 FL. */
typedef struct AstItem062_136 {
    uint32_t valid;
    int32_t raw;  /**< 1/4 FL */
    double lsb;   /**< 25 ft */
    double level; /**< ft */
} AstItem062_136;

KOVREL_API void ast_dataitem_062_136_init(AstItem062_136 *out);
KOVREL_API void ast_dataitem_062_136_decode(AstItem062_136 *out, const AstDataItem *item);
/** "LEVEL:%d LSB:FT" (feet). */
KOVREL_API void ast_dataitem_062_136_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_136_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_136_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I062/200 Mode of Movement. */
typedef struct AstItem062_200 {
    uint32_t valid;
    uint32_t trans; /**< 0 constant course, 1 right turn, 2 left turn, 3 undetermined */
    uint32_t lon;   /**< 0 constant speed, 1 increasing, 2 decreasing, 3 undetermined */
    uint32_t vert;  /**< 0 level, 1 climb, 2 descent, 3 undetermined */
    uint8_t adf;    /**< altitude discrepancy */
} AstItem062_200;

KOVREL_API void ast_dataitem_062_200_init(AstItem062_200 *out);
KOVREL_API void ast_dataitem_062_200_decode(AstItem062_200 *out, const AstDataItem *item);
/** "TRANS:%s LONG:%s VERT:%s" (CONSTANT/RIGHT/LEFT, CONSTANT/INCREASING/DECREASING,
 * LEVEL/CLIMB/DESCENT, or UNDETERMINED), then " ADF" when flagged. */
KOVREL_API void ast_dataitem_062_200_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_200_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I062/210 Calculated Acceleration (Cartesian): two signed octets, LSB 0.25 m/s2. */
typedef struct AstItem062_210 {
    uint32_t valid;
    int32_t ax_raw;
    double ax; /**< m/s2 */
    int32_t ay_raw;
    double ay; /**< m/s2 */
} AstItem062_210;

KOVREL_API void ast_dataitem_062_210_init(AstItem062_210 *out);
KOVREL_API void ast_dataitem_062_210_decode(AstItem062_210 *out, const AstDataItem *item);
/** "AX:%.2f AY:%.2f". */
KOVREL_API void ast_dataitem_062_210_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_210_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I062/220 Calculated Rate of Climb/Descent: 16-bit two's complement, LSB 6.25 ft/min. */
typedef struct AstItem062_220 {
    uint32_t valid;
    int32_t raw;
    double lsb;  /**< 6.25 ft/min */
    double rate; /**< ft/min, positive climbing */
} AstItem062_220;

KOVREL_API void ast_dataitem_062_220_init(AstItem062_220 *out);
KOVREL_API void ast_dataitem_062_220_decode(AstItem062_220 *out, const AstDataItem *item);
/** "VH:%.2f". */
KOVREL_API void ast_dataitem_062_220_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_220_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_220_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I062/270 Target Size & Orientation: length, then orientation and width in extensions. */
typedef struct AstItem062_270 {
    uint32_t valid;
    uint32_t length; /**< m */
    uint8_t orientation_present;
    uint32_t orientation_raw;
    double orientation; /**< degrees, LSB 360/128 */
    uint8_t width_present;
    uint32_t width; /**< m */
} AstItem062_270;

KOVREL_API void ast_dataitem_062_270_init(AstItem062_270 *out);
KOVREL_API void ast_dataitem_062_270_decode(AstItem062_270 *out, const AstDataItem *item);
/** "L:%u O:%.2f W:%u", "L:%u O:%.2f" or "L:%u" by the octets present. */
KOVREL_API void ast_dataitem_062_270_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_270_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_270_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I062/300 Vehicle Fleet Identification. */
typedef struct AstItem062_300 {
    uint32_t valid;
    uint32_t vfi; /**< 0-255; names of ast_vehicle_fleet_id_get_name */
} AstItem062_300;

KOVREL_API void ast_dataitem_062_300_init(AstItem062_300 *out);
KOVREL_API void ast_dataitem_062_300_decode(AstItem062_300 *out, const AstDataItem *item);
/** The fleet name ("FIRE", "UNDEFINED" above 16). */
KOVREL_API void ast_dataitem_062_300_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_300_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_300_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

#define AST_ITEM062_510_MAX 16

/** One group of I062/510: a system unit and its track number. */
typedef struct AstItem062Track {
    uint32_t ident; /**< system unit identification */
    uint32_t track; /**< system track number, 15 bits */
} AstItem062Track;

/** I062/510 Composed Track Number: the master track first, then the slave tracks. */
typedef struct AstItem062_510 {
    uint32_t valid;
    uint32_t count;  /**< groups in the item */
    uint32_t stored; /**< groups kept in tracks, at most AST_ITEM062_510_MAX */
    AstItem062Track tracks[AST_ITEM062_510_MAX];
} AstItem062_510;

KOVREL_API void ast_dataitem_062_510_init(AstItem062_510 *out);
/** Valid for a span of whole groups, each but the last with its FX bit set (the last may announce a group the data cut off). */
KOVREL_API void ast_dataitem_062_510_decode(AstItem062_510 *out, const AstDataItem *item);
/** "NUM_TRACKS:%d". */
KOVREL_API void ast_dataitem_062_510_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_510_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_510_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Compound items: decoded structures --------------------------------
 * Each has _init, _decode and _decode_ex; the item's summary stays the
 * compound summary ("SUBFIELDS:%02u/%02u"); the subfields have their own. */

/** I062/110 Mode 5 Data reports & Extended Mode 1 Code. */
typedef struct AstItem062_110 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t sum_present; /* SUM: "M5 ID DA M1 M2 M3 MC X" */
    uint8_t m5, id, da, m1, m2, m3, mc, x;
    uint8_t pmn_present; /* PMN: "PIN:%u NAT:%u MIS:%u" */
    uint32_t pin, nat, mis;
    uint8_t pos_present; /* POS: "LAT:%.5f LON:%.5f" */
    int32_t lat_raw, lon_raw; /**< 180/2^23 degrees */
    double latitude, longitude;
    uint8_t ga_present; /* GA: "GA:%d LSB:FT" */
    uint8_t res;        /**< 1: 25 ft resolution, 0: 100 ft */
    int32_t ga_raw;     /**< 14 bits, 25 ft */
    double ga;          /**< ft */
    uint8_t em1_present; /* EM1: "EM1:%04o" */
    uint32_t em1;
    uint8_t tos_present; /* TOS: "TOS:%.3f LSB:S" */
    int32_t tos_raw;     /**< 1/128 s */
    double tos;          /**< s */
    uint8_t xp_present;  /* XP: "X5 XC X3 X2 X1" */
    uint8_t x5, xc, x3, x2, x1;
} AstItem062_110;

/** One age of I062/290 or I062/295: LSB 1/4 s. */
typedef struct AstItem062Age {
    uint8_t present;
    uint32_t raw;
    double age; /**< s */
} AstItem062Age;

/** I062/290 System Track Update Ages: ages[i] is subfield i + 1 (TRK, PSR, SSR, MDS, ADS, ES, VDL, UAT, LOP, MLT). */
typedef struct AstItem062_290 {
    uint32_t valid;
    AstSubfieldList subfields;
    AstItem062Age ages[10];
} AstItem062_290;

/** I062/295 Track Data Age: ages[i] is subfield i + 1 (MFL ... BPS). */
typedef struct AstItem062_295 {
    uint32_t valid;
    AstSubfieldList subfields;
    AstItem062Age ages[31];
} AstItem062_295;

/** I062/340 Measured Information: the last measurement that updated the track. */
typedef struct AstItem062_340 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t sid_present; /* SID: "SAC:%03d SIC:%03d"; detail with the SAC and sensor lookups */
    uint32_t sac, sic;
    uint8_t pos_present; /* POS: "RHO:%.3f THETA:%.3f" */
    uint32_t rho_raw;   /**< 1/256 NM */
    double rho;         /**< NM */
    uint32_t theta_raw; /**< 360/2^16 degrees */
    double theta;       /**< degrees */
    uint8_t height_present; /* HEIGHT: "HEIGHT:%d LSB:FT" */
    int32_t height_raw;     /**< 25 ft */
    double height;          /**< ft */
    uint8_t mdc_present; /* MDC: "FL:%.2f", then " V" and " G" when set */
    uint8_t mdc_v, mdc_g;
    int32_t mdc_raw; /**< 14 bits, 1/4 FL */
    double mdc;      /**< FL */
    uint8_t mda_present; /* MDA: "MODE_3/A:%04o", then " V", " G", " L" */
    uint8_t mda_v, mda_g, mda_l;
    uint32_t mda;
    uint8_t typ_present; /* TYP: "TYP:%s", then " SIM", " RAB", " TST" */
    uint32_t typ;        /**< 0-7 */
    uint8_t sim, rab, tst;
} AstItem062_340;

#define AST_ITEM062_380_MAX_TID 16

/** One trajectory change point of I062/380 subfield 9. */
typedef struct AstItem062Tcp {
    uint8_t tca;  /**< TCP number not available */
    uint8_t nc;   /**< TCP non-compliance */
    uint32_t tcpn;
    int32_t alt_raw; /**< 10 ft */
    double alt;      /**< ft */
    int32_t lat_raw, lon_raw; /**< 180/2^23 degrees */
    double latitude, longitude;
    uint32_t pt;  /**< point type, 0-15 */
    uint32_t td;  /**< turn direction, 0-3 */
    uint8_t tra;  /**< turn radius available */
    uint8_t toa;  /**< time over point not available */
    uint32_t tov; /**< s */
    uint32_t ttr_raw; /**< 0.01 NM */
    double ttr;       /**< NM */
} AstItem062Tcp;

/** I062/380 Aircraft Derived Data. */
typedef struct AstItem062_380 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t adr_present; /* 1 ADR: "ADR:%06X" */
    uint32_t adr;
    uint8_t id_present; /* 2 ID: "ID:%s" */
    char id[9];
    uint8_t mhg_present; /* 3 MHG: "MHG:%.2f" */
    uint32_t mhg_raw;
    double mhg; /**< degrees */
    uint8_t ias_present; /* 4 IAS: "IAS:%.1f LSB:KT" or "MACH:%.3f" */
    uint8_t im;          /**< 1: Mach number */
    uint8_t ias_knots;   /**< 1 when ias is filled (IM 0) */
    uint32_t ias_raw;
    double ias;  /**< kt (IM 0) */
    double mach; /**< IM 1 */
    uint8_t tas_present; /* 5 TAS: "TAS:%u LSB:KT" */
    uint32_t tas;        /**< kt */
    uint8_t sal_present; /* 6 SAL: "SAL:%d LSB:FT", then " SRC:%s" when SAS */
    uint8_t sal_sas;
    uint32_t sal_src; /**< 0 unknown, 1 aircraft altitude, 2 FCU/MCP, 3 FMS */
    int32_t sal_raw;  /**< 13 bits, 25 ft */
    double sal;       /**< ft */
    uint8_t fss_present; /* 7 FSS: "FSS:%d LSB:FT", then " MV", " AH", " AM" */
    uint8_t fss_mv, fss_ah, fss_am;
    int32_t fss_raw;
    double fss; /**< ft */
    uint8_t tis_present; /* 8 TIS: "NAV:%d NVB:%d" */
    uint8_t nav, nvb;
    uint8_t tid_present; /* 9 TID: "TCP:%u" */
    uint32_t tid_rep;    /**< points in the subfield */
    uint32_t tid_count;  /**< points kept, at most AST_ITEM062_380_MAX_TID */
    AstItem062Tcp tid[AST_ITEM062_380_MAX_TID];
    uint8_t com_present; /* 10 COM: "COM:%s STAT:%s" (ast_transponder_comm_cap_to_str, ast_radar_flight_status_to_str) */
    uint32_t com, stat;
    uint8_t ssc, arc, aic, b1a;
    uint32_t b1b;
    uint8_t sab_present; /* 11 SAB: "AC:%s MN:%s DC:%s", " GBS", " STAT:%s"; DC is DIFFERENTIAL / NO_DIFFERENTIAL */
    uint32_t ac, mn, dc;
    uint8_t gbs;
    uint32_t sab_stat;
    uint8_t acs_present; /* 12 ACS: "BDS:3,0" */
    AstBds30 acs;
    uint8_t bvr_present; /* 13 BVR: "BVR:%.2f LSB:FT/MIN" */
    int32_t bvr_raw;
    double bvr; /**< ft/min */
    uint8_t gvr_present; /* 14 GVR: "GVR:%.2f LSB:FT/MIN" */
    int32_t gvr_raw;
    double gvr; /**< ft/min */
    uint8_t ran_present; /* 15 RAN: "RAN:%.2f" */
    int32_t ran_raw;
    double ran; /**< degrees */
    uint8_t tar_present; /* 16 TAR: "TI:%u ROT:%.2f" */
    uint32_t ti;
    int32_t rot_raw; /**< 7 bits, 1/4 deg/s */
    double rot;      /**< deg/s */
    uint8_t tan_present; /* 17 TAN: "TAN:%.2f" */
    uint32_t tan_raw;
    double tan; /**< degrees */
    uint8_t gs_present; /* 18 GS: "GS:%.1f LSB:KT" */
    int32_t gs_raw;     /**< 2^-14 NM/s */
    double gs;          /**< kt */
    uint8_t vun_present; /* 19 VUN: "VUN:%u" */
    uint32_t vun;
    uint8_t met_present; /* 20 MET: "WS:%u WD:%u TMP:%.2f TRB:%u", valid values only */
    uint8_t met_ws, met_wd, met_tmp, met_trb;
    uint32_t wind_speed;     /**< kt */
    uint32_t wind_direction; /**< degrees */
    int32_t temperature_raw; /**< 1/4 degree C */
    double temperature;      /**< degrees C */
    uint32_t turbulence;
    uint8_t emc_present; /* 21 EMC: "EMC:%u" */
    uint32_t emc;
    uint8_t pos_present; /* 22 POS: "LAT:%.5f LON:%.5f" */
    int32_t lat_raw, lon_raw; /**< 180/2^23 degrees */
    double latitude, longitude;
    uint8_t gal_present; /* 23 GAL: "GAL:%.2f LSB:FT" */
    int32_t gal_raw;
    double gal; /**< ft */
    uint8_t pun_present; /* 24 PUN: "PUN:%u" */
    uint32_t pun;
    uint8_t mb_present; /* 25 MB: "BDS:4,0 5,0" as the Mode S MB data items; views of the registers */
    AstModesMb mb;
    uint8_t iar_present; /* 26 IAR: "IAR:%u LSB:KT" */
    uint32_t iar;        /**< kt */
    uint8_t mac_present; /* 27 MAC: "MACH:%.3f" */
    uint32_t mac_raw;    /**< 0.008 */
    double mac;
    uint8_t bps_present; /* 28 BPS: "BPS:%.1f LSB:HPA" */
    uint32_t bps_raw;    /**< 0.1 hPa above 800 hPa */
    double bps;          /**< hPa: 800 + bps_raw x 0.1 */
} AstItem062_380;

#define AST_ITEM062_390_MAX_TOD 8

/** One time of departure or arrival of I062/390 subfield 12. */
typedef struct AstItem062Time {
    uint32_t typ; /**< 0 scheduled off-block ... 13 actual on-block */
    uint32_t day; /**< 0 today, 1 yesterday, 2 tomorrow, 3 invalid */
    uint32_t hor, min;
    uint8_t avs; /**< seconds not available */
    uint32_t sec;
} AstItem062Time;

/** I062/390 Flight Plan Related Data; texts end at their NUL, trailing blanks kept. */
typedef struct AstItem062_390 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t tag_present; /* 1 TAG: "SAC:%03d SIC:%03d"; detail with the SAC and sensor lookups */
    uint32_t sac, sic;
    uint8_t cs_present; /* 2 CS: "CS:%s" */
    char cs[8];
    uint8_t ifi_present; /* 3 IFI: "TYP:%u NBR:%u" */
    uint32_t ifi_typ, ifi_nbr;
    uint8_t fct_present; /* 4 FCT: "GAT_OAT:%s FR:%s RVSM:%s", " HPR" (GAT, IFR, APPROVED ...) */
    uint32_t gatoat, fr1fr2, rvsm;
    uint8_t hpr;
    uint8_t tac_present; /* 5 TAC: "TYPE:%s" */
    char tac[5];
    uint8_t wtc_present; /* 6 WTC: "WTC:%s" */
    char wtc[2];
    uint8_t dep_present; /* 7 DEP: "DEP:%s" */
    char dep[5];
    uint8_t dst_present; /* 8 DST: "DST:%s" */
    char dst[5];
    uint8_t rds_present; /* 9 RDS: "RWY:%s" */
    char rds[4];
    uint8_t cfl_present; /* 10 CFL: "CFL:%.2f" */
    uint32_t cfl_raw;
    double cfl; /**< FL */
    uint8_t ctl_present; /* 11 CTL: "CENTRE:%u POSITION:%u" */
    uint32_t centre, position;
    uint8_t tod_present; /* 12 TOD: "TIMES:%u", then " EOBT:12:30" or " ETOT:12:45:10" per time kept */
    uint32_t tod_rep;
    uint32_t tod_count; /**< kept, at most AST_ITEM062_390_MAX_TOD */
    AstItem062Time tod[AST_ITEM062_390_MAX_TOD];
    uint8_t ast_present; /* 13 AST: "STAND:%s" */
    char ast[7];
    uint8_t sts_present; /* 14 STS: "EMP:%s AVL:%s" (OCCUPIED, NOT_AVAILABLE ...) */
    uint32_t emp, avl;
    uint8_t std_present; /* 15 STD: "SID:%s" */
    char std_[8];
    uint8_t sta_present; /* 16 STA: "STAR:%s" */
    char sta[8];
    uint8_t pem_present; /* 17 PEM: "MODE_3/A:%04o" or "NO_CODE" */
    uint8_t pem_va;
    uint32_t pem;
    uint8_t pec_present; /* 18 PEC: "CS:%s" */
    char pec[8];
} AstItem062_390;

/** I062/500 Estimated Accuracies. */
typedef struct AstItem062_500 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t apc_present; /* APC: "X:%.1f Y:%.1f LSB:M" */
    uint32_t apc_x_raw, apc_y_raw; /**< 0.5 m */
    double apc_x, apc_y;
    uint8_t cov_present; /* COV: "COV:%.1f LSB:M" */
    int32_t cov_raw;
    double cov;
    uint8_t apw_present; /* APW: "LAT:%.7f LON:%.7f" */
    uint32_t apw_lat_raw, apw_lon_raw; /**< 180/2^25 degrees */
    double apw_lat, apw_lon;
    uint8_t aga_present; /* AGA: "AGA:%.2f LSB:FT" */
    uint32_t aga_raw;
    double aga; /**< ft */
    uint8_t aba_present; /* ABA: "ABA:%.2f LSB:FL" */
    uint32_t aba_raw;
    double aba; /**< FL */
    uint8_t atv_present; /* ATV: "X:%.2f Y:%.2f LSB:M/S" */
    uint32_t atv_x_raw, atv_y_raw;
    double atv_x, atv_y; /**< m/s */
    uint8_t aa_present; /* AA: "X:%.2f Y:%.2f LSB:M/S2" */
    uint32_t aa_x_raw, aa_y_raw;
    double aa_x, aa_y; /**< m/s2 */
    uint8_t arc_present; /* ARC: "ARC:%.2f LSB:FT/MIN" */
    uint32_t arc_raw;
    double arc; /**< ft/min */
} AstItem062_500;

KOVREL_API void ast_dataitem_062_110_init(AstItem062_110 *out);
KOVREL_API void ast_dataitem_062_110_decode(AstItem062_110 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_110_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_290_init(AstItem062_290 *out);
KOVREL_API void ast_dataitem_062_290_decode(AstItem062_290 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_290_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_295_init(AstItem062_295 *out);
KOVREL_API void ast_dataitem_062_295_decode(AstItem062_295 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_295_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_340_init(AstItem062_340 *out);
KOVREL_API void ast_dataitem_062_340_decode(AstItem062_340 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_340_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_380_init(AstItem062_380 *out);
KOVREL_API void ast_dataitem_062_380_decode(AstItem062_380 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_380_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_390_init(AstItem062_390 *out);
KOVREL_API void ast_dataitem_062_390_decode(AstItem062_390 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_390_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_062_500_init(AstItem062_500 *out);
KOVREL_API void ast_dataitem_062_500_decode(AstItem062_500 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_062_500_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Record level ------------------------------------------------------ */

/**
 * A CAT062 record disassembled: one member per item, in UAP order, each the
 * structure its structured decode yields; a member whose item is absent
 * stays zero. REF and SPF have no member.
 */
typedef struct AstRecord062 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstServiceId i015;
    AstTimeOfDay i070;
    AstPositionWgs84 i105;
    AstPositionCartesian i100;
    AstVelocityCartesian i185;
    AstItem062_210 i210;
    AstMode3aCode i060;
    AstTargetId i245;
    AstItem062_380 i380;
    AstTrackNumber i040;
    AstItem062_080 i080;
    AstItem062_290 i290;
    AstItem062_200 i200;
    AstItem062_295 i295;
    AstItem062_136 i136;
    AstItem062_130 i130;
    AstItem062_135 i135;
    AstItem062_220 i220;
    AstItem062_390 i390;
    AstItem062_270 i270;
    AstItem062_300 i300;
    AstItem062_110 i110;
    AstMode3aCode i120;
    AstItem062_510 i510;
    AstItem062_500 i500;
    AstItem062_340 i340;
} AstRecord062;

/**
 * Clears *out; valid for a valid CAT062 record, each item decoded into its
 * member. REF and SPF are skipped with "Failed to disassemble dataitem %s."
 * at DEBUG. There is no assembler for this category.
 */
KOVREL_API void ast_datarecord_062_disassemble(AstRecord062 *out, const AstDataRecord *record);

/*
 * Record accessors (the CAT062 slots of AstDataRecordFuncs, all but the
 * polar position). Each reads the first item of the record that carries the
 * fact; the result is invalid, all zeros (SAC/SIC: 0xFFFFFFFF each), when
 * the record is invalid or lacks the items or they do not decode. Where
 * several items carry a fact, the first in the order given answers.
 */
/** SAC/SIC from I062/010. */
KOVREL_API void ast_datarecord_062_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of track information from I062/070. */
KOVREL_API void ast_datarecord_062_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/** 13 ("Track End") when I062/080 marks the last message of the track, else 4 ("Track"). */
KOVREL_API void ast_datarecord_062_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);
/** Track number from I062/040, all 16 bits. */
KOVREL_API void ast_datarecord_062_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);
/** Mode 3/A code from I062/060. */
KOVREL_API void ast_datarecord_062_get_squawk(AstMode3aCode *out, const AstDataRecord *record);
/**
 * The identification the aircraft downlinks (I062/380 subfield 2), else the
 * target identification of I062/245, else the flight plan callsign (I062/390
 * subfield 2): what the aircraft says of itself wins, as with CAT048.
 */
KOVREL_API void ast_datarecord_062_get_callsign(AstRecordCallsign *out, const AstDataRecord *record);
/** Target address from I062/380 subfield 1. */
KOVREL_API void ast_datarecord_062_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record);
/** The calculated WGS-84 position of I062/105 (with the longitude option). */
KOVREL_API void ast_datarecord_062_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record);
/**
 * Feet: the measured flight level of I062/136, else the calculated
 * barometric altitude of I062/135. The geometric altitude of I062/130 is not
 * a flight level and is not used.
 */
KOVREL_API void ast_datarecord_062_get_flightlevel(AstRecordValue *out, const AstDataRecord *record);
/**
 * Feet: the selected altitude of I062/380 subfield 6, else the MCP/FCU
 * selected altitude of the first BDS 4,0 of I062/380 subfield 25 that gives one.
 */
KOVREL_API void ast_datarecord_062_get_selaltitude(AstRecordValue *out, const AstDataRecord *record);
/**
 * Degrees from north, 0 to 360: the direction of the calculated velocity
 * I062/185 (the track's course, what a tracker display draws), else the
 * track angle of I062/380 subfield 17, else its magnetic heading (subfield 3).
 */
KOVREL_API void ast_datarecord_062_get_heading(AstRecordValue *out, const AstDataRecord *record);
/** Knots: the magnitude of I062/185, else the ground speed of I062/380 subfield 18. */
KOVREL_API void ast_datarecord_062_get_speed(AstRecordValue *out, const AstDataRecord *record);
/** The calculated Cartesian velocity of I062/185 (m/s). */
KOVREL_API void ast_datarecord_062_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record);
/**
 * ft/min (LSB 6.25): the calculated rate of I062/220, else the barometric
 * (subfield 13), else the geometric (subfield 14) vertical rate of I062/380.
 */
KOVREL_API void ast_datarecord_062_get_vrate(AstVerticalRate *out, const AstDataRecord *record);
/** Metres from I062/100 (0.5 m); not a slot of AstDataRecordFuncs (see ast_datarecord_get_cartesiancoord). */
KOVREL_API void ast_datarecord_062_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT062_H */
