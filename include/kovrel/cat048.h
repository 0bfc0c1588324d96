/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat048.h: Category 048, monoradar target reports.
 */
#ifndef KOVREL_CAT048_H
#define KOVREL_CAT048_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT048 item ("Target Report Descriptor"); any other
 * identifier gives "Unknown CAT048 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_048_get_name(AstItemId id);

/* I048/120 Radial Doppler Speed (compound): CAL, RDS. */
KOVREL_API uint64_t ast_dataitem_048_120_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_048_120_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_120_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_120_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_048_120_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_048_120_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I048/130 Radar Plot Characteristics (compound): SRL, SRR, SAM, PRL, PAM, RPD, APD. */
KOVREL_API uint64_t ast_dataitem_048_130_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_048_130_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_130_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_130_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_048_130_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_048_130_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
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

/* I048/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_048_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_048_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/161 Track Number: 12-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_048_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/070 Mode-3/A Code: Mode 3/A code (AstMode3aCode). */
KOVREL_API void ast_dataitem_048_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/080 Mode-3/A Code Confidence Indicator: Mode 3/A confidence (AstMode3aConfidence); decode only. */
KOVREL_API void ast_dataitem_048_080_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I048/090 Flight Level: Mode C code (AstModeCCode). */
KOVREL_API void ast_dataitem_048_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/100 Mode-C Code and Code Confidence Indicator: Mode C confidence (AstModeCConfidence); decode only. */
KOVREL_API void ast_dataitem_048_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I048/200 Calculated Track Velocity: polar velocity (AstVelocityPolar). */
KOVREL_API void ast_dataitem_048_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_200_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/220 Aircraft Address: target address (AstTargetAddress). */
KOVREL_API void ast_dataitem_048_220_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_220_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/240 Aircraft Identification: aircraft identification (AstAircraftId). */
KOVREL_API void ast_dataitem_048_240_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_240_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I048/250 Mode S MB Data: Mode S MB data (AstModesMb); decode only. */
KOVREL_API void ast_dataitem_048_250_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * SPF and REF: special purpose field (AstSpecialPurposeField) and reserved
 * expansion field (AstReservedExpansionField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_048_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_048_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Decoded structures of the category's own items. Each begins with its
 * valid flag (1 when decoded); the defaults before decoding are all zero
 * unless said otherwise. */

/*
 * The functions of each own item follow its structure:
 *   _init        the defaults, valid 0.
 *   _decode      the defaults with valid 0 when the span is NULL, not valid,
 *                of another identifier, or (fixed-length items: 040, 042,
 *                050, 110, 210, 230, 260) of another length.
 *   _get_summary, _get_detail_html
 *                empty the buffer, then write the text when the item
 *                decodes; every text is cut to size, NUL included. Detail
 *                tables have the columns "Bit", "Item", "Value", bits counted
 *                from 0 at the item's most significant bit.
 *   _decode_ex   *out = {valid flag, item id, storage} after decoding into
 *                storage; {0, item id, NULL} and nothing written when storage
 *                is NULL or smaller than the structure, or the item is not
 *                valid.
 *   _encode      (020, 040, 050) writes octets that decode back to *in:
 *                *out = {buffer, length, 0, 1}, or {buffer, 0, 0, 0} and
 *                nothing written when buffer is NULL or too short, in is NULL
 *                or not valid, or a field cannot be written (see each item).
 *   _encode_ex   the same from value->value; *out carries value->id.
 */

/*
 * Named fields (fields.h: ast_dataitem_walk_fields, ast_dataitem_get_fields_json,
 * ast_dataitem_fields_set). Every CAT048 item with a structured decode
 * describes its structure; ast_dataitem_fields_init gives the structure's
 * defaults marked valid, ready to be filled and encoded. The own items:
 *   I048/020  typ (with the summary's TYPE texts as display names), sim,
 *             rdp (the chain number 1 or 2, "CHN1"/"CHN2"), spi, rab; from
 *             octet 2 tst, err, xpp, me, mi, foe_fri (IFF status); groups
 *             adsb, scn, pai (octet 3), acasxv, poxpr (octet 4), poact,
 *             dtfxpr, dtfact (octet 5), irmxpr, irmact (octet 6), each
 *             {ep, val}. The fields of an octet the item does not hold are
 *             not walked; setting one makes its octet present.
 *   I048/030  codes: an array of the codes.
 *   I048/040  rho (NM), theta (deg): the values the encoder sends.
 *   I048/042  x, y (m, as the summary shows them).
 *   I048/050  v (1: not validated), g, l, mode2 (octal).
 *   I048/110  3dh (ft).
 *   I048/120  groups cal {d, cal (m/s)} and rds {rep, dop (m/s), amb (m/s),
 *             frq (MHz)}, each only when its subfield is present.
 *   I048/130  one group per present subfield, named by its short id in lower
 *             case and holding its value under the same name: srl (deg),
 *             srr, sam (dBm), prl (deg), pam (dBm), rpd (NM), apd (deg).
 *   I048/170  cnf, rad, dou, mah, cdm (rad and cdm with the detail view's
 *             texts); tre, gho, sup, tcc when the item holds octet 2.
 *   I048/210  sigx, sigy (NM), sigv (kt), sigh (deg).
 *   I048/230  com, stat (as decoding folds them), si, mssc, arc, aic, b1a, b1b.
 *   I048/260  group bds: the fields of register 3,0.
 * Setting refuses a value wider than its wire field.
 */

/** One element of the later I048/020 extensions: whether the radar populated it, and its value. */
typedef struct AstItem048_020Element {
    uint8_t ep;  /**< element populated */
    uint8_t val; /**< the value (one bit; four bits for acasxv) */
} AstItem048_020Element;

/**
 * I048/020 Target Report Descriptor. Defaults: rdp 1, all else 0.
 *
 * The members after foe_fri were added later and decode the rest of the
 * item: ERR and XPP of octet 2, and the second to fifth extensions
 * (octets 3 to 6: on-site ADS-B, SCN and PAI information; ACAS extended
 * version and PO transponder capability; PO and basic dataflash activity;
 * IRM capability and activity). Each extN_present tells whether the item
 * holds that octet (ext1 is octet 2). The item's size rule stops at octet 2,
 * so octets 3 to 6 come only from a span that holds them.
 */
typedef struct AstItem048_020 {
    uint32_t valid;
    uint32_t typ;     /**< 0..7: no detection, PSR, SSR, PSR+SSR, all-call, roll-call, PSR+all-call, PSR+roll-call */
    uint8_t sim;      /**< simulated target */
    uint32_t rdp;     /**< radar data processing chain: 1 or 2 */
    uint8_t spi;      /**< special position identification */
    uint8_t rab;      /**< report from a field monitor */
    uint8_t tst;      /**< test target (second octet) */
    uint8_t me;       /**< military emergency */
    uint8_t mi;       /**< military identification */
    uint32_t foe_fri; /**< IFF status (see ast_iff_status_to_str); the FOE/FRI bits taken in place */
    uint8_t err;      /**< extended range: the range is in the reserved expansion field (octet 2) */
    uint8_t xpp;      /**< X-pulse present (octet 2) */
    uint8_t ext1_present;         /**< the item holds octet 2 */
    uint8_t ext2_present;         /**< the item holds octet 3 */
    AstItem048_020Element adsb;   /**< on-site ADS-B information available */
    AstItem048_020Element scn;    /**< surveillance cluster network information available */
    AstItem048_020Element pai;    /**< passive acquisition interface information available */
    uint8_t ext3_present;         /**< the item holds octet 4 */
    AstItem048_020Element acasxv; /**< ACAS extended version, val 0..15: 0 not extended, 1 Xa, 2 Xu */
    AstItem048_020Element poxpr;  /**< transponder supports phase overlay */
    uint8_t ext4_present;         /**< the item holds octet 5 */
    AstItem048_020Element poact;  /**< phase overlay active for this plot */
    AstItem048_020Element dtfxpr; /**< transponder supports basic dataflash */
    AstItem048_020Element dtfact; /**< basic dataflash active for this plot */
    uint8_t ext5_present;         /**< the item holds octet 6 */
    AstItem048_020Element irmxpr; /**< transponder is IRM capable */
    AstItem048_020Element irmact; /**< IRM active for this plot */
} AstItem048_020;

/** Defaults: rdp 1, all else 0. */
KOVREL_API void ast_dataitem_048_020_init(AstItem048_020 *out);
/**
 * Decodes the span item into *out; the defaults when it is not a readable
 * I048/020. The item's length, not its FX bits, says which octets are there;
 * octets after the sixth are not read.
 */
KOVREL_API void ast_dataitem_048_020_decode(AstItem048_020 *out, const AstDataItem *item);
/**
 * Writes octet 1 and every octet up to the last one that is present or has
 * something to say: octet 2 when ext1_present or tst, err, xpp, me, mi or
 * foe_fri is set, octets 3 to 6 when their extN_present is set (octets in
 * between are written as well, their fields as they stand). FX bits follow.
 * Flags are written as set when non-zero. Fails when typ is above 7, rdp is
 * not 1 or 2, foe_fri is not 0 or 2 (the IFF statuses decoding yields), or
 * acasxv.val is above 15.
 */
KOVREL_API void ast_dataitem_048_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_020 *in);
/** "TYPE:%s" (TYPE:NO_DETECTION ... TYPE:PSR+ROLL_CALL), " SIM", " CHN1" or " CHN2", " SPI", " RAB",
 * then from octet 2 " TST", " ME", " MI". */
KOVREL_API void ast_dataitem_048_020_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: TYP, SIM, RDP, SPI, RAB and, from octet 2, TST, ME, MI, FOE/FRI. */
KOVREL_API void ast_dataitem_048_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_020). */
KOVREL_API void ast_dataitem_048_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
/** Structured encode from value->value (an AstItem048_020); *out carries value->id. */
KOVREL_API void ast_dataitem_048_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I048/030 Warning/Error Conditions: one code per octet. */
typedef struct AstItem048_030 {
    uint32_t valid;
    uint32_t count;     /**< number of codes, the item's length in octets */
    uint32_t codes[23]; /**< codes beyond count are 0 */
} AstItem048_030;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_048_030_init(AstItem048_030 *out);
/** Decodes the span item into *out; the defaults when it is not a readable I048/030. */
KOVREL_API void ast_dataitem_048_030_decode(AstItem048_030 *out, const AstDataItem *item);
/** "ERRCODE:%d" for each code, joined by "+". Items above 23 octets do not decode. */
KOVREL_API void ast_dataitem_048_030_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: one row per code. */
KOVREL_API void ast_dataitem_048_030_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_030). */
KOVREL_API void ast_dataitem_048_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I048/040 Measured Position in Polar Co-ordinates. */
typedef struct AstItem048_040 {
    uint32_t valid;
    uint32_t rho_raw;
    double rho_lsb; /**< 1/256 NM */
    double rho;     /**< NM */
    uint32_t theta_raw;
    double theta_lsb; /**< 360/65536 degree */
    double theta;     /**< degrees */
} AstItem048_040;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_048_040_init(AstItem048_040 *out);
/** Decodes the span item into *out; the defaults when it is not a readable I048/040. */
KOVREL_API void ast_dataitem_048_040_decode(AstItem048_040 *out, const AstDataItem *item);
/**
 * Each field is sent from its value when that is above 0, rounded to the
 * nearest LSB, otherwise from its raw value. Fails when RHO does not fit in
 * 16 bits or THETA is 360 degrees or more; a THETA just below 360 degrees
 * that rounds up to 2^16 LSB is sent as 0 (north).
 */
KOVREL_API void ast_dataitem_048_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_040 *in);
/** "RHO:%.1f THETA:%.1f" (NM, degrees). */
KOVREL_API void ast_dataitem_048_040_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: RHO raw, in NM and km; THETA raw and in degrees. */
KOVREL_API void ast_dataitem_048_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_040). */
KOVREL_API void ast_dataitem_048_040_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
/** Structured encode from value->value (an AstItem048_040); *out carries value->id. */
KOVREL_API void ast_dataitem_048_040_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I048/042 Calculated Position in Cartesian Co-ordinates, raw (LSB 1/128 NM). */
typedef struct AstItem048_042 {
    uint32_t valid;
    int32_t x;
    int32_t y;
} AstItem048_042;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_048_042_init(AstItem048_042 *out);
/** Decodes the span item into *out; the defaults when it is not a readable I048/042. */
KOVREL_API void ast_dataitem_048_042_decode(AstItem048_042 *out, const AstDataItem *item);
/** "X:%.1f Y:%.1f LSB:M" (metres). */
KOVREL_API void ast_dataitem_048_042_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: X and Y raw, in NM and in metres. */
KOVREL_API void ast_dataitem_048_042_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_042). */
KOVREL_API void ast_dataitem_048_042_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
/** Writes X and Y (16-bit two's complement each); invalid when either is out of range. */
KOVREL_API void ast_dataitem_048_042_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_042 *in);
KOVREL_API void ast_dataitem_048_042_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I048/050 Mode-2 Code; code is the 12-bit octal code as an integer. */
typedef struct AstItem048_050 {
    uint8_t valid;
    uint8_t v; /**< not validated */
    uint8_t g; /**< garbled */
    uint8_t l; /**< smoothed */
    uint32_t code;
} AstItem048_050;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_048_050_init(AstItem048_050 *out);
/** Decodes the span item into *out; the defaults when it is not a readable I048/050. */
KOVREL_API void ast_dataitem_048_050_decode(AstItem048_050 *out, const AstDataItem *item);
/**
 * Fails when code is above 07777.
 */
KOVREL_API void ast_dataitem_048_050_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem048_050 *in);
/** "MODE_2:%04o" followed by " NOT_VALIDATED", " GARBLED", " SMOOTHED" for the flags set. */
KOVREL_API void ast_dataitem_048_050_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: V, G, L and the code in octal. */
KOVREL_API void ast_dataitem_048_050_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_050). */
KOVREL_API void ast_dataitem_048_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
/** Structured encode from value->value (an AstItem048_050); *out carries value->id. */
KOVREL_API void ast_dataitem_048_050_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** I048/110 Height Measured by a 3D Radar. */
typedef struct AstItem048_110 {
    uint32_t valid;
    int32_t height; /**< feet */
} AstItem048_110;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_048_110_init(AstItem048_110 *out);
/** Decodes the span item into *out; the defaults when it is not a readable I048/110. */
KOVREL_API void ast_dataitem_048_110_decode(AstItem048_110 *out, const AstDataItem *item);
/** "H:%d LSB:FT". */
KOVREL_API void ast_dataitem_048_110_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: height raw, in feet and in metres. */
KOVREL_API void ast_dataitem_048_110_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_110). */
KOVREL_API void ast_dataitem_048_110_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I048/170 Track Status. Defaults: rad 3, cdm 3. The members after cdm were
 * added later and decode the extension octet (octet 2).
 */
typedef struct AstItem048_170 {
    uint8_t valid;
    uint8_t cnf;  /**< tentative track */
    uint8_t pad1; /**< always 0 */
    uint32_t rad; /**< 0 combined, 1 PSR, 2 SSR/Mode S, 3 invalid */
    uint8_t dou;  /**< low confidence */
    uint8_t mah;  /**< manoeuvre detected */
    uint8_t pad2; /**< always 0 */
    uint32_t cdm; /**< climbing/descending mode: 0 level, 1 climbing, 2 descending, 3 unknown */
    uint8_t ext_present; /**< the item holds octet 2 */
    uint8_t tre; /**< end of track: the last report of this track */
    uint8_t gho; /**< ghost target track */
    uint8_t sup; /**< track maintained with information from a neighbouring node of the cluster */
    uint8_t tcc; /**< slant range correction and a projection applied: tracking in a 2D plane */
} AstItem048_170;

/** Defaults: rad 3, cdm 3, all else 0. */
KOVREL_API void ast_dataitem_048_170_init(AstItem048_170 *out);
/**
 * Decodes the span item into *out; the defaults when it is not a readable
 * I048/170. Octet 2, when the item holds it, gives ext_present 1 and TRE,
 * GHO, SUP, TCC; octets after it are not read.
 */
KOVREL_API void ast_dataitem_048_170_decode(AstItem048_170 *out, const AstDataItem *item);
/** "TYPE:CMB", "TYPE:PSR", "TYPE:SSR" or "TYPE:INVALID" after RAD. The extension octet is not shown. */
KOVREL_API void ast_dataitem_048_170_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: CNF, RAD, DOU, MAH, CDM (the extension octet is not shown). */
KOVREL_API void ast_dataitem_048_170_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_170). */
KOVREL_API void ast_dataitem_048_170_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** One scaled field: raw value, its LSB and the value. */
typedef struct AstItem048Scaled {
    uint32_t raw;
    double lsb;
    double value;
} AstItem048Scaled;

/** I048/210 Track Quality: sigma X, Y (NM), V (kt), H (degrees). */
typedef struct AstItem048_210 {
    uint32_t valid;
    AstItem048Scaled sigma_x;
    AstItem048Scaled sigma_y;
    AstItem048Scaled sigma_v;
    AstItem048Scaled sigma_h;
} AstItem048_210;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_048_210_init(AstItem048_210 *out);
/** Decodes the span item into *out; the defaults when it is not a readable I048/210. */
KOVREL_API void ast_dataitem_048_210_decode(AstItem048_210 *out, const AstDataItem *item);
/** "X:%.2f Y:%.2f V:%.2f H:%.2f" (NM, NM, kt, degrees). */
KOVREL_API void ast_dataitem_048_210_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: the four standard deviations in their units. */
KOVREL_API void ast_dataitem_048_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_210). */
KOVREL_API void ast_dataitem_048_210_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I048/230 Communications / ACAS Capability and Flight Status. Defaults: com 7, stat 8. */
typedef struct AstItem048_230 {
    uint32_t valid;
    uint32_t com;  /**< transponder communication capability (7: undefined) */
    uint32_t stat; /**< flight status (8: undefined) */
    uint8_t mssc;  /**< Mode S specific service capability */
    uint8_t arc;   /**< altitude reporting capability: 1 25 ft, 0 100 ft */
    uint8_t aic;   /**< aircraft identification capability */
    uint8_t b1a;   /**< BDS 1,0 bit 16 */
    uint8_t b1b;   /**< BDS 1,0 bits 37-40 */
    uint8_t si;    /**< 1: the transponder is II code capable, 0: SI code capable (added later) */
} AstItem048_230;

/** Defaults: com 7, stat 8, all else 0. */
KOVREL_API void ast_dataitem_048_230_init(AstItem048_230 *out);
/** Decodes the span item into *out; the defaults when it is not a readable I048/230. */
KOVREL_API void ast_dataitem_048_230_decode(AstItem048_230 *out, const AstDataItem *item);
/** "FS:%s" with the flight status text (ast_radar_flight_status_to_str).
 * Like decoding, it logs "I048/230: Communication Capability Undefined." and
 * "I048/230: Flight Status Undefined." at WARNING for undefined codes. */
KOVREL_API void ast_dataitem_048_230_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: COM, STAT, MSSC, ARC, AIC, B1A, B1B (SI is not shown). */
KOVREL_API void ast_dataitem_048_230_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_230). */
KOVREL_API void ast_dataitem_048_230_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I048/260 ACAS Resolution Advisory Report: the register 3,0 it carries. */
typedef struct AstItem048_260 {
    uint32_t valid;
    AstBds30 bds;
} AstItem048_260;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_048_260_init(AstItem048_260 *out);
/** Decodes the span item into *out; the defaults when it is not a readable I048/260. */
KOVREL_API void ast_dataitem_048_260_decode(AstItem048_260 *out, const AstDataItem *item);
/** "BDS:3,0"; the empty text when the register does not decode. */
KOVREL_API void ast_dataitem_048_260_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: the fields of the resolution advisory. */
KOVREL_API void ast_dataitem_048_260_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_260). */
KOVREL_API void ast_dataitem_048_260_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** I048/130 Radar Plot Characteristics: the subfields and the decoded ones. */
typedef struct AstItem048_130 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t srl_present;
    uint32_t srl_raw;
    double srl; /**< SSR plot runlength, degrees */
    uint8_t srr_present;
    uint32_t srr; /**< number of received replies */
    uint8_t sam_present;
    int32_t sam; /**< amplitude of the (M)SSR reply, dBm */
    /* The primary plot subfields, added later. */
    uint8_t prl_present;
    uint32_t prl_raw;
    double prl; /**< primary plot runlength, degrees (LSB 360/2^13) */
    uint8_t pam_present;
    int32_t pam; /**< amplitude of the primary plot, dBm */
    uint8_t rpd_present;
    int32_t rpd_raw;
    double rpd; /**< range of the PSR plot minus range of the SSR plot, NM (LSB 1/256) */
    uint8_t apd_present;
    int32_t apd_raw;
    double apd; /**< azimuth of the PSR plot minus azimuth of the SSR plot, degrees (LSB 360/2^14) */
} AstItem048_130;

/** The empty form: no subfields, valid 0. */
KOVREL_API void ast_dataitem_048_130_init(AstItem048_130 *out);
/**
 * Splits the span item into its subfields and decodes SRL, SRR, SAM, PRL,
 * PAM, RPD and APD (the signed ones in two's complement), each present only
 * when its bit is set and its one-octet span was delimited. The empty form
 * when the span is not a valid I048/130 or does not split. The item's
 * summary and detail view are the generic compound ones; its subfield
 * summaries (ast_subfield_048_130_get_summary) are "%.2f LSB=DEG" (SRL),
 * "%d" (SRR), "%d LSB=DBM" (SAM) and "NOT_IMPLEMENTED" for the primary plot
 * subfields, whose values only the decoded structure gives.
 */
KOVREL_API void ast_dataitem_048_130_decode(AstItem048_130 *out, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_130). */
KOVREL_API void ast_dataitem_048_130_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I048/120 Radial Doppler Speed: the subfields and their values. The raw
 * Doppler speed subfield is taken as one block of 7 octets, as the item's
 * size rule delimits it: its repetition factor and the first repetition.
 */
typedef struct AstItem048_120 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t cal_present;
    uint8_t d;       /**< the calculated Doppler speed is doubtful */
    int32_t cal;     /**< calculated Doppler speed, m/s (10-bit two's complement) */
    uint8_t rds_present;
    uint32_t rep;    /**< repetition factor as sent (only the first repetition is decoded) */
    uint32_t dop;    /**< Doppler speed, m/s */
    uint32_t amb;    /**< ambiguity range, m/s */
    uint32_t frq;    /**< transmitter frequency, MHz */
} AstItem048_120;

/** The empty form: no subfields, valid 0. */
KOVREL_API void ast_dataitem_048_120_init(AstItem048_120 *out);
/**
 * Splits the span item into its subfields and decodes CAL (2 octets) and RDS
 * (7 octets), each present only when its bit is set and its span was
 * delimited with that length. The empty form when the span is NULL, not
 * valid, of another identifier or does not split. The item's summary and
 * detail view are the generic compound ones; its subfields have no summary.
 */
KOVREL_API void ast_dataitem_048_120_decode(AstItem048_120 *out, const AstDataItem *item);
/** Structured decode into storage (an AstItem048_120). */
KOVREL_API void ast_dataitem_048_120_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * The disassembled CAT048 record: one member per item, each the structure
 * the item's structured decode yields; a member whose item is absent stays
 * zero. I048/120, 055, 060, 065, SPF and REF have no member.
 */
typedef struct AstRecord048 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstItem048_020 i020;
    AstItem048_030 i030;
    AstItem048_040 i040;
    AstItem048_042 i042;
    AstItem048_050 i050;
    AstMode3aCode i070;
    AstMode3aConfidence i080;
    AstModeCCode i090;
    AstModeCConfidence i100;
    AstItem048_110 i110;
    AstItem048_130 i130;
    AstTimeOfDay i140;
    AstTrackNumber i161;
    AstItem048_170 i170;
    AstVelocityPolar i200;
    AstItem048_210 i210;
    AstTargetAddress i220;
    AstItem048_230 i230;
    AstAircraftId i240;
    AstModesMb i250;
    AstItem048_260 i260;
} AstRecord048;

/* ---- Record level ------------------------------------------------------ */

/**
 * Disassembles a CAT048 record into *out. The structure is zeroed first; a
 * record that is not valid or not of category 48 leaves it so (valid 0).
 * Otherwise valid is 1 and every item with a member is decoded into it; any
 * other item (I048/120, SPF, REF) is skipped with "Failed to disassemble
 * dataitem %s." at DEBUG.
 */
KOVREL_API void ast_datarecord_048_disassemble(AstRecord048 *out, const AstDataRecord *record);
/**
 * Encodes the members of *in whose valid flag is 1 into buffer as one
 * CAT048 record of the profile uap (ast_datarecord_encode); in's own valid
 * flag is not looked at. Members without an encoder, or with values the
 * encoder refuses (SAC 300, a 12-bit track number above 4095 ...), make the
 * record invalid; nothing is written past size.
 */
KOVREL_API void ast_datarecord_048_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord048 *in,
                                            const AstUap *uap);

/*
 * Record accessors (the CAT048 slots of AstDataRecordFuncs). Each reads the
 * first item of the record that carries the fact; the result is invalid,
 * all zeros (SAC/SIC: 0xFFFFFFFF each), when the record is invalid or lacks
 * the item or the item does not decode.
 */
/** SAC/SIC from I048/010. */
KOVREL_API void ast_datarecord_048_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of day from I048/140. */
KOVREL_API void ast_datarecord_048_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/** 4 ("Track") when the record holds I048/161, else 3 ("Plot"), also for a record without items. */
KOVREL_API void ast_datarecord_048_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);
/** Track number from I048/161. */
KOVREL_API void ast_datarecord_048_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);
/** Mode 3/A code from I048/070. */
KOVREL_API void ast_datarecord_048_get_squawk(AstMode3aCode *out, const AstDataRecord *record);
/** The eight characters of I048/240 as decoded (blanks kept). */
KOVREL_API void ast_datarecord_048_get_callsign(AstRecordCallsign *out, const AstDataRecord *record);
/** Aircraft address from I048/220. */
KOVREL_API void ast_datarecord_048_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record);
/**
 * Feet: the Mode C code of I048/090 (1/4 FL) x 25; when I048/090 is absent
 * or does not decode, the height of I048/110.
 */
KOVREL_API void ast_datarecord_048_get_flightlevel(AstRecordValue *out, const AstDataRecord *record);
/** Feet: the MCP/FCU selected altitude of the first BDS 4,0 of I048/250 that gives one. */
KOVREL_API void ast_datarecord_048_get_selaltitude(AstRecordValue *out, const AstDataRecord *record);
/**
 * Degrees from the Mode S registers of I048/250: the true track angle of
 * BDS 5,0 when a 5,0 register gives one, otherwise the magnetic heading of
 * BDS 6,0. The true track wins because it is referenced to true north like
 * the track angles of I048/200 and of the other categories' accessors.
 */
KOVREL_API void ast_datarecord_048_get_heading(AstRecordValue *out, const AstDataRecord *record);
/** RHO (NM) and THETA (degrees) from I048/040. */
KOVREL_API void ast_datarecord_048_get_polarcoord(AstRecordPolar *out, const AstDataRecord *record);
/** Metres from I048/042 (1/128 NM, x 1852); not a slot of AstDataRecordFuncs (see ast_datarecord_get_cartesiancoord). */
KOVREL_API void ast_datarecord_048_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT048_H */
