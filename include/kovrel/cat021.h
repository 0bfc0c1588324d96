/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat021.h: Category 021, ADS-B target reports, editions 0.23, 0.26, 2.1
 * and 2.7.
 *
 * Items whose layout changed between the early editions and the later ones
 * have identifiers of their own, 21902 to 21911, printed with the standard
 * item number they replace (21903 is the two-octet I021/040 of editions up
 * to 0.26). Function names write them A02 to A11.
 *
 * Compound items open with a primary subfield (presence bits and FX bits);
 * a subfield identifier is item identifier x 1000 + subfield number
 * (21220003 is the temperature of I021/220). Subfield functions answer 0,
 * "---" or "UNKNOWN_SUBFIELD_NAME" for a subfield the item does not have.
 * The subfields of I021/110 and I021/220 have no summaries or detail views
 * of their own (their summary functions write "NOT_IMPLEMENTED", their
 * detail functions the empty text); their values are decoded into the
 * item's structure. Each age of I021/295 summarises as "%.2f LSB=SEC".
 */
#ifndef KOVREL_CAT021_H
#define KOVREL_CAT021_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT021 item ("Target Report Descriptor", "Target Report
 * Descriptor (Ver <= 0.26)" for 21903). Any other identifier, and the items
 * I021/110, 148, 165 and 220 that have no name of their own, give "Unknown
 * CAT021 Dataitem"; "Unknown dataitem name: %s." is logged at WARNING only
 * for identifiers from 21008 to 21399.
 */
KOVREL_API const char *ast_dataitem_021_get_name(AstItemId id);

/*
 * Items laid out as one of the common items (items_ident.h, items_motion.h,
 * items_mode.h). decode_ex decodes into caller storage of at least the
 * common item's structure, encode_ex writes the item from one (see
 * AstDataItemValue in dataitem.h); the item's summary and detail view are
 * the common item's.
 */

/* I021/010 data source identifier: AstDataSourceIdentifier. */
KOVREL_API void ast_dataitem_021_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/015 service identification: AstServiceId. */
KOVREL_API void ast_dataitem_021_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I021/030 (editions 0.23 and 0.26), 071, 072, 073, 075 and 077 time of
 * day, 1/128 s: AstTimeOfDay.
 */
KOVREL_API void ast_dataitem_021_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_071_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_071_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_072_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_072_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_073_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_073_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_075_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_075_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_077_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_077_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I021/074 and 076 high-precision time of message reception:
 * AstTimeOfDayHigh, decoded only (the disassembled record writes them back:
 * FSI, +1 as 01 and -1 as 10, and the 30-bit fraction).
 */
KOVREL_API void ast_dataitem_021_074_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_076_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I021/070 Mode 3/A code: AstMode3aCode. */
KOVREL_API void ast_dataitem_021_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_070_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/080 target address: AstTargetAddress. */
KOVREL_API void ast_dataitem_021_080_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_080_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/161 track number, 12 bits: AstTrackNumber. */
KOVREL_API void ast_dataitem_021_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/170 target identification, eight characters in 6 octets: AstAircraftId. */
KOVREL_API void ast_dataitem_021_170_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_170_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/130 WGS-84 position in 6 octets, LSB 180/2^23: AstPositionWgs84Low. */
KOVREL_API void ast_dataitem_021_130_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_130_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I021/131 (LSB 180/2^30) and 21902, the position of edition 0.26 (LSB
 * 180/2^25), WGS-84 positions in 8 octets: AstPositionWgs84. Both are
 * written back at 180/2^25.
 */
KOVREL_API void ast_dataitem_021_131_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_131_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_A02_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A02_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/155 and 157 vertical rates with the range-exceeded bit: AstVerticalRate. */
KOVREL_API void ast_dataitem_021_155_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_155_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_157_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_157_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21909 and 21910, the 16-bit vertical rates of editions up to 0.26: AstVerticalRateNoRe. */
KOVREL_API void ast_dataitem_021_A09_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A09_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_021_A10_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A10_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I021/250 Mode S MB data: AstModesMb, decoded only (the disassembled
 * record writes it back: REP and, per register, its 7 MB octets and code).
 */
KOVREL_API void ast_dataitem_021_250_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * I021/REF and I021/SPF, the reserved expansion and special purpose fields:
 * AstReservedExpansionField and AstSpecialPurposeField, decoded only (the
 * disassembled record writes them back: the length octet and the octets
 * data points at).
 */
KOVREL_API void ast_dataitem_021_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * Size of 21907, the surface capabilities of editions 1.0 to 2.1: 1 when the
 * FX bit of the first octet is clear, 2 when it is set and a second octet is
 * available, 0 otherwise (no octets, or cut off after the first).
 */
KOVREL_API uint64_t ast_dataitem_021_A07_get_size(const uint8_t *octets, size_t available);

/*
 * I021/110 Trajectory Intent (compound): TIS (FX-extended), TID (repetitive,
 * 15 octets a point). Asking ast_subfield_021_110_get_size for any subfield
 * other than 21110001 and 21110002 logs "Unsupported Subfield type %d" (the
 * subfield identifier) at CRITICAL and gives 0.
 */
KOVREL_API uint64_t ast_dataitem_021_110_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_110_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_110_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_110_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_110_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_110_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I021/220 Met Information (compound): WS, WD, TMP (2 octets each), TRB (1 octet). */
KOVREL_API uint64_t ast_dataitem_021_220_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_220_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_220_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_220_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_220_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_220_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I021/295 Data Ages (compound): 23 one-octet ages, AOS ... SCC. */
KOVREL_API uint64_t ast_dataitem_021_295_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_295_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_295_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_295_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_295_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_295_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);


/* ---- Decoded structures of the category's own items ---------------------
 *
 * Each begins with its valid flag (1 when decoded); init gives all zeros
 * unless said otherwise. The functions of each item follow its structure:
 *   _init         the defaults, valid 0.
 *   _decode       the defaults with valid 0 when the span is NULL, not
 *                 valid, of another identifier or (fixed-length items) of
 *                 another length.
 *   _encode       writes the inverse of the layout: *out = {buffer, length,
 *                 0, 1}, or {buffer, 0, 0, 0} and nothing written when the
 *                 buffer is NULL or too short, in is NULL or not valid, or a
 *                 field does not fit its wire width (see each item).
 *   _get_summary  empties the buffer, then writes the one-line text when the
 *                 item decodes.
 *   _get_detail_html
 *                 a table with the columns "Bit", "ID", "Name", "Value", one
 *                 row per field, bits counted from 1 at the item's most
 *                 significant bit ("Bit[1-3]"), flags as 0/1.
 *   _decode_ex, _encode_ex
 *                 the structured entry points of the dispatch rows (see
 *                 AstDataItemValue in dataitem.h).
 * Named fields (fields.h) use the mnemonics given with each member, in
 * lower case; scaled values are given in the unit of the summary.
 *
 * Choices made where the editions leave room:
 *   - Every own item has an encoder, the inverse of its layout. What
 *     decoding folds cannot come back: bit 6 of I021/008 (written 0), the
 *     reserved emitter categories (25 is refused), address types 5 to 7
 *     (written 4), link technologies 5 to 7 (written 4), emergency codes
 *     above 7, the spare bits, the threat type of I021/260 (decoding leaves
 *     it 0) and any extension of I021/040 beyond octet 3 or of the intent
 *     status of I021/110 beyond its first octet.
 *   - The old and new target report descriptors decode to one coding of
 *     the address type and the altitude reporting capability (see
 *     AstItem021_040); their encoders map it back.
 *   - Detail tables have one row per field, the I021/040 rows included;
 *     flags read 0 or 1, codes with a name read the name.
 *   - I021/110 decodes its intent status (NAV, NVB) and up to 16 trajectory
 *     change points; I021/220 wind speed (kt), wind direction (degrees),
 *     temperature (1/4 degree Celsius) and turbulence; I021/295 its 23 ages
 *     named by the mnemonics of the standard (AOS Aircraft Operational
 *     Status Age, TRD Target Report Descriptor Age, M3A Mode 3/A Age, QI
 *     Quality Indicators Age, TI1 Trajectory Intent Age, MAM Message
 *     Amplitude Age, GH Geometric Height Age, FL Flight Level Age, SAL
 *     Selected Altitude Age, FSA Final State Selected Altitude Age, AS Air
 *     Speed Age, TAS True Air Speed Age, MH Magnetic Heading Age, BVR
 *     Barometric Vertical Rate Age, GVR Geometric Vertical Rate Age, GV
 *     Ground Vector Age, TAR Track Angle Rate Age, TI2 Target Identification
 *     Age, TS Target Status Age, MET Met Information Age, ROA Roll Angle Age,
 *     ARA ACAS Resolution Advisory Age, SCC Surface Capabilities and
 *     Characteristics Age). A compound item whose primary subfield announces
 *     a subfield the item does not have, or one cut off by the item's end,
 *     does not decode; one without any subfield present is not written.
 *   - The one-number items (020, 095, 21904, 132, 151, 21908, 400) keep the
 *     out-argument form of every decoder; their structures still fit one
 *     64-bit word.
 */

/** I021/008 Aircraft Operational Status. Fields: ra, tc, ts, arv, cdti_a, not_tcas, sa. */
typedef struct AstItem021_008 {
    uint8_t valid;
    uint8_t ra;       /**< TCAS resolution advisory active */
    uint8_t tc;       /**< target trajectory change report capability: bit 7 only (bit 6 is not read nor written) */
    uint8_t ts;       /**< target state report capability */
    uint8_t arv;      /**< air-referenced velocity report capability */
    uint8_t cdti_a;   /**< cockpit display of traffic information airborne */
    uint8_t not_tcas; /**< TCAS system not operational */
    uint8_t sa;       /**< single antenna */
} AstItem021_008;

/** I021/016 Service Management: report period. Fields: rp (s). */
typedef struct AstItem021_016 {
    uint8_t valid;
    uint32_t raw;  /**< report period, LSB 0.5 s */
    double lsb;    /**< 0.5 (set by init) */
    double period; /**< seconds */
} AstItem021_016;

/** I021/020 Emitter Category (ast_emitter_category_to_str). Fields: ecat. */
typedef struct AstItem021_020 {
    uint8_t valid;
    uint32_t ecat; /**< the octet through ast_emitter_category_from_int (reserved codes give 25) */
} AstItem021_020;

/** I021/032 Time of Day Accuracy. Fields: tda (s). */
typedef struct AstItem021_032 {
    uint8_t valid;
    uint32_t raw;
    double lsb; /**< 1/256 s (set by init) */
} AstItem021_032;

/**
 * I021/040 Target Report Descriptor (editions 1.x and 2.x). Fields: atp,
 * arc, rc, rab; with octet 2 dcr, gbs, sim, tst, saa, cl; with octet 3
 * bit7, ipc, nogo, cpr, ldpj, rcf.
 */
typedef struct AstItem021_040 {
    uint8_t valid;
    uint32_t atp; /**< address type: 0 24-bit ICAO, 1 duplicate, 2 surface vehicle, 3 anonymous, 4 reserved (raw 4-7) */
    uint32_t arc; /**< altitude reporting capability: 0 unknown, 1 25 ft, 2 100 ft, 3 invalid (wire 2, 0, 1, 3) */
    uint8_t rc;   /**< range check passed, CPR validation pending */
    uint8_t rab;  /**< report from a field monitor (fixed transponder) */
    uint8_t dcr;  /**< differential correction */
    uint8_t gbs;  /**< ground bit set */
    uint8_t sim;  /**< simulated target report */
    uint8_t tst;  /**< test target */
    uint8_t saa;  /**< equipment not capable of providing a selected altitude */
    uint32_t cl;  /**< confidence level, 0..3 */
    uint8_t bit7; /**< bit 7 of octet 3 (spare) */
    uint8_t ipc;  /**< independent position check failed */
    uint8_t nogo; /**< NOGO bit set */
    uint8_t cpr;  /**< CPR validation failed */
    uint8_t ldpj; /**< local decoding position jump detected */
    uint8_t rcf;  /**< range check failed */
    /* Added to write the item back: which extensions the item holds. */
    uint8_t ext1_present; /**< octet 2 */
    uint8_t ext2_present; /**< octet 3 */
} AstItem021_040;

/**
 * 21903, the two-octet Target Report Descriptor of editions up to 0.26.
 * Fields: dcr, gbs, sim, tst, rab, saa, spi, atp, arc.
 */
typedef struct AstItem021_A03 {
    uint8_t valid;
    uint8_t dcr, gbs, sim, tst, rab, saa, spi;
    uint32_t atp; /**< as in AstItem021_040: wire 0 (ICAO) gives 1 and wire 1 gives 0, 2 and 3 kept, 4-7 give 4 */
    uint32_t arc; /**< wire value as it stands: 0 unknown, 1 25 ft, 2 100 ft */
} AstItem021_A03;

/**
 * I021/090 Quality Indicators. Fields: nucr_nacv, nucp_nic; nic_baro, sil,
 * nacp (octet 2); sil_sup, sda, gva (octet 3); pic (octet 4), each only
 * with its octet.
 */
typedef struct AstItem021_090 {
    uint8_t valid;
    uint32_t nucr_nacv;
    uint32_t nucp_nic;
    uint8_t nic_baro_present;
    uint32_t nic_baro;
    uint8_t sil_present;
    uint32_t sil;
    uint8_t nacp_present;
    uint32_t nacp;
    uint8_t sil_sup_present;
    uint32_t sil_sup; /**< SIL supplement: 0 per hour, 1 per sample */
    uint8_t sda_present;
    uint32_t sda;
    uint8_t gva_present;
    uint32_t gva;
    uint8_t pic_present;
    uint32_t pic;
} AstItem021_090;

/** 21905 Figure of Merit (editions up to 0.26). Fields: ac, mn, dc, pa. */
typedef struct AstItem021_A05 {
    uint8_t valid;
    uint32_t ac; /**< ACAS status */
    uint32_t mn; /**< multiple navigational aids */
    uint32_t dc; /**< differential correction */
    uint32_t pa; /**< position accuracy, 0..15 */
} AstItem021_A05;

/** I021/095 Velocity Accuracy. Fields: va. */
typedef struct AstItem021_095 {
    uint8_t valid;
    uint32_t va;
} AstItem021_095;

/** 21904 Signal Amplitude (edition 0.26). Fields: sam. */
typedef struct AstItem021_A04 {
    uint8_t valid;
    uint32_t sam;
} AstItem021_A04;

/** I021/132 Message Amplitude, dBm. Fields: mam (dBm). */
typedef struct AstItem021_132 {
    uint8_t valid;
    int32_t mam;
} AstItem021_132;

/** I021/140 Geometric Altitude. Fields: ga (ft). */
typedef struct AstItem021_140 {
    uint8_t valid;
    int32_t raw;
    double lsb;   /**< 6.25 ft (set by init) */
    double value; /**< feet */
} AstItem021_140;

/** I021/145 Flight Level. Fields: fl (FL). */
typedef struct AstItem021_145 {
    uint8_t valid;
    int32_t raw;   /**< 1/4 FL */
    double lsb;    /**< 25 ft (set by init) */
    int64_t value; /**< feet, raw x 25 */
} AstItem021_145;

/** I021/146 Selected Altitude. Fields: sas, src, alt (FL). */
typedef struct AstItem021_146 {
    uint8_t valid;
    uint8_t sas;      /**< source information provided */
    uint32_t source;  /**< ast_selected_altitude_source_to_str */
    int32_t altitude; /**< 13-bit raw, LSB 25 ft */
} AstItem021_146;

/**
 * I021/150 Air Speed: IAS (wire LSB 2^-14 NM/s, held in knots) or Mach.
 * Fields: im, ias (kt, with IM 0), mach (with IM 1).
 */
typedef struct AstItem021_150 {
    uint8_t valid;
    uint8_t im;         /**< 1 Mach, 0 IAS */
    uint32_t raw;       /**< 15 bits */
    double ias_lsb;     /**< 0.2197265625 kt (set by init) */
    uint8_t ias_valid;
    double ias;         /**< knots, 0 with IM 1 */
    double mach_lsb;    /**< 0.001 (set by init) */
    uint8_t mach_valid;
    double mach;        /**< 0 with IM 0 */
} AstItem021_150;

/** I021/151 True Air Speed, knots. Fields: re, tas (kt). */
typedef struct AstItem021_151 {
    uint8_t valid;
    uint8_t re;   /**< range exceeded */
    uint16_t tas; /**< 15 bits */
} AstItem021_151;

/** I021/152 Magnetic Heading. Fields: mh (deg). */
typedef struct AstItem021_152 {
    uint8_t valid;
    uint32_t raw;   /**< LSB 360/2^16 degree */
    double heading; /**< degrees */
} AstItem021_152;

/** I021/160 Airborne Ground Vector. Fields: re, gs (kt), ta (deg). */
typedef struct AstItem021_160 {
    uint8_t valid;
    uint8_t re;         /**< range exceeded */
    uint32_t speed_raw; /**< 15 bits, 2^-14 NM/s */
    double speed_lsb;   /**< 0.2197265625 kt (set by init) */
    double speed;       /**< knots */
    uint32_t angle_raw; /**< 16 bits */
    double angle_lsb;   /**< 0.0054931640625 degree (set by init) */
    double angle;       /**< degrees */
} AstItem021_160;

/** 21911 Ground Vector of editions up to 0.26: signed speed, no RE bit. Fields: gs (kt), ta (deg). */
typedef struct AstItem021_A11 {
    uint8_t valid;
    int32_t speed_raw; /**< 16-bit two's complement */
    double speed_lsb;  /**< 0.2197265625 kt (set by init) */
    double speed;
    uint32_t angle_raw;
    double angle_lsb;  /**< 0.0054931640625 degree (set by init) */
    double angle;
} AstItem021_A11;

/** I021/200 Target Status. Fields: icf, lnav, me, ps, ss. */
typedef struct AstItem021_200 {
    uint8_t valid;
    uint8_t icf;  /**< intent change flag */
    uint8_t lnav; /**< LNAV mode not engaged */
    uint8_t me;   /**< military emergency */
    uint32_t ps;  /**< priority status (ast_emergency_status_to_str) */
    uint32_t ss;  /**< surveillance status: 0 none, 1 permanent alert, 2 temporary alert, 3 SPI */
} AstItem021_200;

/** 21908 Target Status (editions up to 0.26). Fields: ts. */
typedef struct AstItem021_A08 {
    uint8_t valid;
    uint32_t status; /**< the octet through ast_emergency_status_from_int (8 and up give 8) */
} AstItem021_A08;

/** I021/210 MOPS Version. Fields: vns, vn, ltt. */
typedef struct AstItem021_210 {
    uint8_t valid;
    uint8_t vns;  /**< version not supported */
    uint32_t vn;  /**< 0 ED102/DO-260, 1 DO-260A, 2 ED102A/DO-260B, ... */
    uint32_t ltt; /**< 0 other, 1 UAT, 2 1090 ES, 3 VDL 4, 4 not assigned (wire 4-7) */
} AstItem021_210;

/** 21906 Link Technology Indicator (editions up to 0.26). Fields: dti, mds, uat, vdl, otr. */
typedef struct AstItem021_A06 {
    uint8_t valid;
    uint8_t dti, mds, uat, vdl, otr;
} AstItem021_A06;

/** I021/230 Roll Angle. Fields: ra (deg). */
typedef struct AstItem021_230 {
    uint8_t valid;
    int32_t raw;
    double lsb; /**< 0.01 degree (set by init) */
} AstItem021_230;

/**
 * I021/260 ACAS Resolution Advisory Report. Fields: typ, styp, ara, rac,
 * rat, mte, tti, tid (broadcast and ra_active follow from them).
 */
typedef struct AstItem021_260 {
    uint8_t valid;
    uint32_t typ;      /**< message type, 5 bits */
    uint32_t styp;     /**< message sub-type, 3 bits */
    uint8_t broadcast; /**< TYP 28 with STYP 2 */
    uint8_t ra_active; /**< some active resolution advisory bit is set */
    uint32_t ara;      /**< 14 bits */
    uint32_t rac;      /**< 4 bits */
    uint8_t rat;       /**< RA terminated */
    uint8_t mte;       /**< multiple threat encounter */
    uint32_t tti;      /**< threat type: never filled by decoding (stays 0), written by the encoder */
    uint32_t tid;      /**< the 26 bits after TTI */
} AstItem021_260;

/**
 * I021/271 Surface Capabilities and Characteristics (editions 2.2 and
 * later) and 21907 (editions 1.0 to 2.1). Fields: poa, cdti_s, b2_low,
 * ras, ident, lw (with the second octet).
 */
typedef struct AstItem021_271 {
    uint8_t valid;
    uint8_t poa;    /**< position offset applied */
    uint8_t cdti_s; /**< CDTI/S operational */
    uint8_t b2_low; /**< class B2 transmit power below 70 W */
    uint8_t ras;    /**< receiving ATC services */
    uint8_t ident;  /**< IDENT switch active */
    uint8_t lw_present;
    uint32_t lw;    /**< length and width code, 0..15 (octet 2 bits 8-5 in 271, 4-1 in 21907) */
} AstItem021_271;

typedef AstItem021_271 AstItem021_A07;

/** Most trajectory change points of I021/110 a structure holds. */
#define AST_021_TID_MAX 16

/** One trajectory change point of I021/110 (15 octets). */
typedef struct AstItem021TcpPoint {
    uint8_t present; /**< the point was decoded (or is to be written) */
    uint8_t tca;     /**< TCP number not available */
    uint8_t nc;      /**< TCP non-compliance */
    uint32_t tcpn;   /**< 6 bits */
    int32_t alt;     /**< 10 ft */
    int32_t lat;     /**< 180/2^23 degree */
    int32_t lon;     /**< 180/2^23 degree */
    uint32_t pt;     /**< point type, 4 bits */
    uint32_t td;     /**< turn direction, 2 bits */
    uint8_t tra;     /**< turn radius available */
    uint8_t toa;     /**< time over point not available */
    uint32_t tov;    /**< time over point, s, 24 bits */
    uint32_t ttr;    /**< turn radius, 0.01 NM */
} AstItem021TcpPoint;

/**
 * I021/110 Trajectory Intent. Fields: group tis {nav, nvb} and group tid
 * holding one group per point, p1 ... p16, of {tca, nc, tcpn, alt (ft), lat,
 * lon (deg), pt, td, tra, toa, tov (s), ttr (NM)}; each only when present.
 * Points beyond AST_021_TID_MAX are not decoded (tid_rep keeps the wire
 * count). The encoder writes the points up to the last one that is present
 * (or tid_count of them, when more).
 */
typedef struct AstItem021_110 {
    uint8_t valid;
    AstSubfieldList subfields;
    uint8_t tis_present;
    uint8_t nav; /**< trajectory intent data not available */
    uint8_t nvb; /**< trajectory intent data not valid */
    uint8_t tid_present;
    uint32_t tid_rep;   /**< repetitions on the wire */
    uint32_t tid_count; /**< points decoded, at most AST_021_TID_MAX */
    AstItem021TcpPoint tid[AST_021_TID_MAX];
} AstItem021_110;

/**
 * I021/220 Met Information. Fields: ws (kt), wd (deg), tmp (degC), trb,
 * each only when its subfield is present.
 */
typedef struct AstItem021_220 {
    uint8_t valid;
    AstSubfieldList subfields;
    uint8_t ws_present;
    uint32_t ws; /**< wind speed, kt */
    uint8_t wd_present;
    uint32_t wd; /**< wind direction, degrees */
    uint8_t tmp_present;
    int32_t tmp_raw; /**< 1/4 degree Celsius */
    double tmp;      /**< degrees Celsius */
    uint8_t trb_present;
    uint32_t trb; /**< turbulence, 0..15 */
} AstItem021_220;

/** One age of I021/295. */
typedef struct AstItem021Age {
    uint8_t present;
    double age; /**< seconds, octet x 0.1 */
} AstItem021Age;

/** Number of ages I021/295 carries. */
#define AST_021_AGE_COUNT 23

/**
 * I021/295 Data Ages: ages[i] is subfield i + 1 (AOS, TRD, M3A, QI, TI1,
 * MAM, GH, FL, SAL, FSA, AS, TAS, MH, BVR, GVR, GV, TAR, TI2, TS, MET, ROA,
 * ARA, SCC). Fields: one per present age, named by its mnemonic in lower
 * case (aos ... scc), in seconds.
 */
typedef struct AstItem021_295 {
    uint8_t valid;
    AstSubfieldList subfields;
    AstItem021Age ages[AST_021_AGE_COUNT];
} AstItem021_295;

/** I021/400 Receiver ID. Fields: rid. */
typedef struct AstItem021_400 {
    uint8_t valid;
    uint32_t rid;
} AstItem021_400;

/* I021/008: AstItem021_008. */
KOVREL_API void ast_dataitem_021_008_init(AstItem021_008 *out);
KOVREL_API void ast_dataitem_021_008_decode(AstItem021_008 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_008_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_008 *in);
/** flags "RA ", "TC0 ", "TS ", "ARV ", "CDTI ", "NO_TCAS ", "SA " (last blank removed), "NO_INFO" when none. */
KOVREL_API void ast_dataitem_021_008_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_008_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_008_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_008_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/016: AstItem021_016. */
KOVREL_API void ast_dataitem_021_016_init(AstItem021_016 *out);
KOVREL_API void ast_dataitem_021_016_decode(AstItem021_016 *out, const AstDataItem *item);
/** Fails when raw is above 255. */
KOVREL_API void ast_dataitem_021_016_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_016 *in);
/** "DATA_DRIVEN_MODE" (period 0), "PR:>=127.50SEC" (127.5 s), else "PR:%.2fSEC". */
KOVREL_API void ast_dataitem_021_016_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_016_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_016_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_016_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/020: AstItem021_020. */
KOVREL_API void ast_dataitem_021_020_init(AstItem021_020 *out);
KOVREL_API void ast_dataitem_021_020_decode(AstItem021_020 *out, const AstDataItem *item);
/** Fails when ecat is above 24. */
KOVREL_API void ast_dataitem_021_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_020 *in);
/** "EMITTER:%s" (ast_emitter_category_to_str, style 0). */
KOVREL_API void ast_dataitem_021_020_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/032: AstItem021_032. */
KOVREL_API void ast_dataitem_021_032_init(AstItem021_032 *out);
KOVREL_API void ast_dataitem_021_032_decode(AstItem021_032 *out, const AstDataItem *item);
/** Fails when raw is above 255. */
KOVREL_API void ast_dataitem_021_032_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_032 *in);
/** "TOD_ACCU:%.2fS". */
KOVREL_API void ast_dataitem_021_032_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_032_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_032_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_032_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/040: AstItem021_040. */
KOVREL_API void ast_dataitem_021_040_init(AstItem021_040 *out);
KOVREL_API void ast_dataitem_021_040_decode(AstItem021_040 *out, const AstDataItem *item);
/** Writes octet 2 when ext1_present or ext2_present is set or a field of octet 2 is set, octet 3 when ext2_present or a field of octet 3 is set; fails when atp is above 4 or arc or cl above 3. */
KOVREL_API void ast_dataitem_021_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_040 *in);
/** "TARGET:" then "GBS ", "SIM ", "TST " (last blank removed), or "TARGET:NORMAL". */
KOVREL_API void ast_dataitem_021_040_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_040_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_040_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21903: AstItem021_A03. */
KOVREL_API void ast_dataitem_021_A03_init(AstItem021_A03 *out);
KOVREL_API void ast_dataitem_021_A03_decode(AstItem021_A03 *out, const AstDataItem *item);
/** Fails when atp is above 4 or arc above 3. */
KOVREL_API void ast_dataitem_021_A03_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A03 *in);
/** as I021/040 with "SPI " after "TST ". */
KOVREL_API void ast_dataitem_021_A03_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A03_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A03_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A03_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/090: AstItem021_090. */
KOVREL_API void ast_dataitem_021_090_init(AstItem021_090 *out);
KOVREL_API void ast_dataitem_021_090_decode(AstItem021_090 *out, const AstDataItem *item);
/** Writes up to the last octet that has a present field; fails when a field does not fit its bits. */
KOVREL_API void ast_dataitem_021_090_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_090 *in);
/** "NUCR:%u NUCP:%u". */
KOVREL_API void ast_dataitem_021_090_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_090_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21905: AstItem021_A05. */
KOVREL_API void ast_dataitem_021_A05_init(AstItem021_A05 *out);
KOVREL_API void ast_dataitem_021_A05_decode(AstItem021_A05 *out, const AstDataItem *item);
/** Fails when ac, mn or dc is above 3 or pa above 15. */
KOVREL_API void ast_dataitem_021_A05_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A05 *in);
/** "PA:%d". */
KOVREL_API void ast_dataitem_021_A05_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A05_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A05_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A05_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/095: AstItem021_095. */
KOVREL_API void ast_dataitem_021_095_init(AstItem021_095 *out);
KOVREL_API void ast_dataitem_021_095_decode(AstItem021_095 *out, const AstDataItem *item);
/** Fails when va is above 255. */
KOVREL_API void ast_dataitem_021_095_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_095 *in);
/** "VA:%d". */
KOVREL_API void ast_dataitem_021_095_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_095_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_095_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_095_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21904: AstItem021_A04. */
KOVREL_API void ast_dataitem_021_A04_init(AstItem021_A04 *out);
KOVREL_API void ast_dataitem_021_A04_decode(AstItem021_A04 *out, const AstDataItem *item);
/** Fails when sam is above 255. */
KOVREL_API void ast_dataitem_021_A04_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A04 *in);
/** "SAM:%d". */
KOVREL_API void ast_dataitem_021_A04_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A04_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A04_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A04_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/132: AstItem021_132. */
KOVREL_API void ast_dataitem_021_132_init(AstItem021_132 *out);
KOVREL_API void ast_dataitem_021_132_decode(AstItem021_132 *out, const AstDataItem *item);
/** Fails when mam is outside -128..127. */
KOVREL_API void ast_dataitem_021_132_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_132 *in);
/** "MAM:%d". */
KOVREL_API void ast_dataitem_021_132_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_132_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_132_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_132_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/140: AstItem021_140. */
KOVREL_API void ast_dataitem_021_140_init(AstItem021_140 *out);
KOVREL_API void ast_dataitem_021_140_decode(AstItem021_140 *out, const AstDataItem *item);
/** Writes raw; fails when it does not fit 16 bits. */
KOVREL_API void ast_dataitem_021_140_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_140 *in);
/** "ALTITUDE:%.2fFT". */
KOVREL_API void ast_dataitem_021_140_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_140_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/145: AstItem021_145. */
KOVREL_API void ast_dataitem_021_145_init(AstItem021_145 *out);
KOVREL_API void ast_dataitem_021_145_decode(AstItem021_145 *out, const AstDataItem *item);
/** Writes raw; fails when it does not fit 16 bits. */
KOVREL_API void ast_dataitem_021_145_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_145 *in);
/** "LEVEL:%.2fFL". */
KOVREL_API void ast_dataitem_021_145_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_145_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_145_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_145_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/146: AstItem021_146. */
KOVREL_API void ast_dataitem_021_146_init(AstItem021_146 *out);
KOVREL_API void ast_dataitem_021_146_decode(AstItem021_146 *out, const AstDataItem *item);
/** Fails when source is above 3 or altitude does not fit 13 bits. */
KOVREL_API void ast_dataitem_021_146_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_146 *in);
/** "SELECTED_ALTITUDE:%.2fFL". */
KOVREL_API void ast_dataitem_021_146_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_146_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_146_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_146_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/150: AstItem021_150. */
KOVREL_API void ast_dataitem_021_150_init(AstItem021_150 *out);
KOVREL_API void ast_dataitem_021_150_decode(AstItem021_150 *out, const AstDataItem *item);
/** Writes IM and raw; fails when raw is above 0x7FFF. */
KOVREL_API void ast_dataitem_021_150_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_150 *in);
/** "MACH:%.3f" (IM 1) or "IAS:%.2fKT" (IM 0). */
KOVREL_API void ast_dataitem_021_150_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_150_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_150_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_150_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/151: AstItem021_151. */
KOVREL_API void ast_dataitem_021_151_init(AstItem021_151 *out);
KOVREL_API void ast_dataitem_021_151_decode(AstItem021_151 *out, const AstDataItem *item);
/** Fails when tas is above 0x7FFF. */
KOVREL_API void ast_dataitem_021_151_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_151 *in);
/** "TAS:%dKT". */
KOVREL_API void ast_dataitem_021_151_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_151_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_151_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_151_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/152: AstItem021_152. */
KOVREL_API void ast_dataitem_021_152_init(AstItem021_152 *out);
KOVREL_API void ast_dataitem_021_152_decode(AstItem021_152 *out, const AstDataItem *item);
/** Writes raw; fails when it is above 0xFFFF. */
KOVREL_API void ast_dataitem_021_152_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_152 *in);
/** "HDG:%03.2fDEG". */
KOVREL_API void ast_dataitem_021_152_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_152_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_152_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_152_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/160: AstItem021_160. */
KOVREL_API void ast_dataitem_021_160_init(AstItem021_160 *out);
KOVREL_API void ast_dataitem_021_160_decode(AstItem021_160 *out, const AstDataItem *item);
/** Writes the raw values; fails when speed_raw is above 0x7FFF or angle_raw above 0xFFFF. */
KOVREL_API void ast_dataitem_021_160_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_160 *in);
/** "SPD:%.2fKT AGL:%03.2fDEG". */
KOVREL_API void ast_dataitem_021_160_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_160_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_160_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_160_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21911: AstItem021_A11. */
KOVREL_API void ast_dataitem_021_A11_init(AstItem021_A11 *out);
KOVREL_API void ast_dataitem_021_A11_decode(AstItem021_A11 *out, const AstDataItem *item);
/** Writes the raw values; fails when they do not fit 16 bits. */
KOVREL_API void ast_dataitem_021_A11_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A11 *in);
/** "SPD:%.2fKT AGL:%03.2fDEG". */
KOVREL_API void ast_dataitem_021_A11_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A11_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A11_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A11_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/200: AstItem021_200. */
KOVREL_API void ast_dataitem_021_200_init(AstItem021_200 *out);
KOVREL_API void ast_dataitem_021_200_decode(AstItem021_200 *out, const AstDataItem *item);
/** Fails when ps is above 7 or ss above 3. */
KOVREL_API void ast_dataitem_021_200_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_200 *in);
/** "EMG:%s" (ast_emergency_status_to_str) and " SUR:NO_RPT", " SUR:PERM_ALR", " SUR:TEMP_ALR" or " SUR:SPI". */
KOVREL_API void ast_dataitem_021_200_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_200_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_200_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21908: AstItem021_A08. */
KOVREL_API void ast_dataitem_021_A08_init(AstItem021_A08 *out);
KOVREL_API void ast_dataitem_021_A08_decode(AstItem021_A08 *out, const AstDataItem *item);
/** Fails when status is above 7. */
KOVREL_API void ast_dataitem_021_A08_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A08 *in);
/** "EMG:%s". */
KOVREL_API void ast_dataitem_021_A08_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A08_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A08_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A08_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/210: AstItem021_210. */
KOVREL_API void ast_dataitem_021_210_init(AstItem021_210 *out);
KOVREL_API void ast_dataitem_021_210_decode(AstItem021_210 *out, const AstDataItem *item);
/** Fails when vn is above 7 or ltt above 4. */
KOVREL_API void ast_dataitem_021_210_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_210 *in);
/** "VN:%u" and " LINK:OTHER", " LINK:UAT", " LINK:1090ES", " LINK:VDL4" or " LINK:UNKNOWN". */
KOVREL_API void ast_dataitem_021_210_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_210_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_210_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21906: AstItem021_A06. */
KOVREL_API void ast_dataitem_021_A06_init(AstItem021_A06 *out);
KOVREL_API void ast_dataitem_021_A06_decode(AstItem021_A06 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A06_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A06 *in);
/** "LINK:" and " CDTI", " MODE_S", " UAT", " VDL4", " OTHER" for the set flags, or "LINK: NONE". */
KOVREL_API void ast_dataitem_021_A06_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A06_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A06_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A06_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/230: AstItem021_230. */
KOVREL_API void ast_dataitem_021_230_init(AstItem021_230 *out);
KOVREL_API void ast_dataitem_021_230_decode(AstItem021_230 *out, const AstDataItem *item);
/** Writes raw; fails when it does not fit 16 bits. */
KOVREL_API void ast_dataitem_021_230_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_230 *in);
/** "RA:%.2fDEG". */
KOVREL_API void ast_dataitem_021_230_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_230_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_230_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_230_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/260: AstItem021_260. */
KOVREL_API void ast_dataitem_021_260_init(AstItem021_260 *out);
KOVREL_API void ast_dataitem_021_260_decode(AstItem021_260 *out, const AstDataItem *item);
/** Writes typ, styp, ara, rac, rat, mte, tti and tid (ra_active and broadcast are not wire fields); fails when a field does not fit its bits. */
KOVREL_API void ast_dataitem_021_260_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_260 *in);
/** "BCAST ", "RA_ACTIVE " or "RA_TERM ", "THRT:MODE_AC " (TTI 2) or "THRT:%06X " (TTI 1; decoding leaves TTI 0), last blank removed; "NO_INFO" when none. */
KOVREL_API void ast_dataitem_021_260_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_260_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_260_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_260_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/271: AstItem021_271. */
KOVREL_API void ast_dataitem_021_271_init(AstItem021_271 *out);
KOVREL_API void ast_dataitem_021_271_decode(AstItem021_271 *out, const AstDataItem *item);
/** Writes octet 2 when lw_present is set; fails when lw is above 15. */
KOVREL_API void ast_dataitem_021_271_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_271 *in);
/** "POA ", "CDTI_OP ", "B2_LOW ", "RAS ", "IDENT ", "LW:%u " (last blank removed), "NO_INFO" when none. */
KOVREL_API void ast_dataitem_021_271_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_271_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_271_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_271_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* 21907: AstItem021_A07. */
KOVREL_API void ast_dataitem_021_A07_init(AstItem021_A07 *out);
KOVREL_API void ast_dataitem_021_A07_decode(AstItem021_A07 *out, const AstDataItem *item);
/** As I021/271, LW in bits 4-1 of octet 2. */
KOVREL_API void ast_dataitem_021_A07_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_A07 *in);
/** as I021/271. */
KOVREL_API void ast_dataitem_021_A07_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A07_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A07_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_A07_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/110: AstItem021_110. */
KOVREL_API void ast_dataitem_021_110_init(AstItem021_110 *out);
KOVREL_API void ast_dataitem_021_110_decode(AstItem021_110 *out, const AstDataItem *item);
/** Writes the primary subfield and the present subfields (TIS one octet, TID tid_count points); fails when a field does not fit its bits. */
KOVREL_API void ast_dataitem_021_110_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_110 *in);
KOVREL_API void ast_dataitem_021_110_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_110_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/220: AstItem021_220. */
KOVREL_API void ast_dataitem_021_220_init(AstItem021_220 *out);
KOVREL_API void ast_dataitem_021_220_decode(AstItem021_220 *out, const AstDataItem *item);
/** Writes the primary subfield and the present subfields; fails when a field does not fit its bits. */
KOVREL_API void ast_dataitem_021_220_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_220 *in);
KOVREL_API void ast_dataitem_021_220_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_220_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/295: AstItem021_295. */
KOVREL_API void ast_dataitem_021_295_init(AstItem021_295 *out);
KOVREL_API void ast_dataitem_021_295_decode(AstItem021_295 *out, const AstDataItem *item);
/** Writes the primary subfield and the present ages, each rounded to 0.1 s; fails when an age is negative or above 25.5 s. */
KOVREL_API void ast_dataitem_021_295_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_295 *in);
KOVREL_API void ast_dataitem_021_295_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_295_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I021/400: AstItem021_400. */
KOVREL_API void ast_dataitem_021_400_init(AstItem021_400 *out);
KOVREL_API void ast_dataitem_021_400_decode(AstItem021_400 *out, const AstDataItem *item);
/** Fails when rid is above 255. */
KOVREL_API void ast_dataitem_021_400_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem021_400 *in);
/** "RID:%u". */
KOVREL_API void ast_dataitem_021_400_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_400_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_021_400_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_021_400_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* ---- Record level ------------------------------------------------------ */

/**
 * The disassembled CAT021 record, the same for every edition: one member
 * per item, in item-number order, then the items of the early editions
 * (21902 to 21911). Each member is the structure the item's structured
 * decode yields (a common item's structure where a common item serves it);
 * a member whose item is absent stays zero. I021/148 and I021/165 have no
 * member: they are carried by the generic item operations only.
 */
typedef struct AstRecord021 {
    uint8_t valid;
    AstItem021_008 i008;
    AstDataSourceIdentifier i010;
    AstServiceId i015;
    AstItem021_016 i016;
    AstItem021_020 i020;
    AstTimeOfDay i030;
    AstItem021_032 i032;
    AstItem021_040 i040;
    AstMode3aCode i070;
    AstTimeOfDay i071;
    AstTimeOfDay i072;
    AstTimeOfDay i073;
    AstTimeOfDayHigh i074;
    AstTimeOfDay i075;
    AstTimeOfDayHigh i076;
    AstTimeOfDay i077;
    AstTargetAddress i080;
    AstItem021_090 i090;
    AstItem021_095 i095;
    AstItem021_110 i110;
    AstPositionWgs84Low i130;
    AstPositionWgs84 i131;
    AstItem021_132 i132;
    AstItem021_140 i140;
    AstItem021_145 i145;
    AstItem021_146 i146;
    AstItem021_150 i150;
    AstItem021_151 i151;
    AstItem021_152 i152;
    AstVerticalRate i155;
    AstVerticalRate i157;
    AstItem021_160 i160;
    AstTrackNumber i161;
    AstAircraftId i170;
    AstItem021_200 i200;
    AstItem021_210 i210;
    AstItem021_220 i220;
    AstItem021_230 i230;
    AstModesMb i250;
    AstItem021_260 i260;
    AstItem021_271 i271;
    AstItem021_295 i295;
    AstItem021_400 i400;
    AstPositionWgs84 iA02;
    AstItem021_A03 iA03;
    AstItem021_A04 iA04;
    AstItem021_A05 iA05;
    AstItem021_A06 iA06;
    AstItem021_A07 iA07;
    AstItem021_A08 iA08;
    AstVerticalRateNoRe iA09;
    AstVerticalRateNoRe iA10;
    AstItem021_A11 iA11;
    AstReservedExpansionField ref;
    AstSpecialPurposeField spf;
} AstRecord021;

/*
 * Disassemblers. Each zeroes *out; a record that is not valid or not of
 * category 21 leaves it so (valid 0); otherwise valid is 1 and every item
 * the function handles is decoded into its member, in record order (a later
 * occurrence overwrites an earlier one). Any other item is skipped with
 * "Failed to disassemble dataitem %s." at DEBUG.
 *   ast_datarecord_021_disassemble       every member.
 *   ast_datarecord_021_v27_disassemble   008, 010, 015, 016, 020, 040, 070 to
 *                                        077, 080, 090, 130, 131, 132, 140,
 *                                        145, 146, 150, 151, 152, 155, 157,
 *                                        160, 161, 170, 200, 210, 230, 250,
 *                                        271, 295, 400.
 *   ast_datarecord_021_v21_disassemble   the same without 271, 295 and 400,
 *                                        with 21907.
 *   ast_datarecord_021_v026_disassemble  010, 020, 030, 032, 080, 095,
 *                                        21902, 140, 145, 146, 150, 151, 152,
 *                                        170, 230, 21903 to 21911.
 *   ast_datarecord_021_v023_disassemble  as v026 with 130 in place of 21902
 *                                        and without 21904.
 */
KOVREL_API void ast_datarecord_021_disassemble(AstRecord021 *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_021_v27_disassemble(AstRecord021 *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_021_v21_disassemble(AstRecord021 *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_021_v026_disassemble(AstRecord021 *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_021_v023_disassemble(AstRecord021 *out, const AstDataRecord *record);

/*
 * Assemblers: encode the members of *in whose valid flag is 1 (in's own
 * valid flag is not looked at) through the items' encoders into buffer as
 * one CAT021 record (ast_datarecord_encode). ast_datarecord_021_assemble
 * takes every member and the profile uap; a valid member whose item the
 * profile has no FRN for makes the record invalid ("Failed to encode
 * dataitem %s." at DEBUG) rather than being lost. The edition assemblers
 * take the members their disassembler fills (for 0.26 and 0.23 without
 * 21907, which their profiles do not have; other members are not looked
 * at) and write them with their edition's profile (AST_UAP_CAT021_VER27,
 * _VER21, _VER026, _VER023). Edition 0.23 is written up to FRN 26, so its
 * RE and SP fields are read but not written. A value an encoder refuses
 * makes the record invalid; nothing is written past size.
 */
KOVREL_API void ast_datarecord_021_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord021 *in,
                                            const AstUap *uap);
KOVREL_API void ast_datarecord_021_v27_assemble(AstDataRecord *out, uint8_t *buffer, size_t size,
                                                const AstRecord021 *in);
KOVREL_API void ast_datarecord_021_v21_assemble(AstDataRecord *out, uint8_t *buffer, size_t size,
                                                const AstRecord021 *in);
KOVREL_API void ast_datarecord_021_v026_assemble(AstDataRecord *out, uint8_t *buffer, size_t size,
                                                 const AstRecord021 *in);
KOVREL_API void ast_datarecord_021_v023_assemble(AstDataRecord *out, uint8_t *buffer, size_t size,
                                                 const AstRecord021 *in);

/*
 * Record accessors (the CAT021 slots of AstDataRecordFuncs). Each scans the
 * record's items in order and reads the first that carries the fact; the
 * result is invalid, all zeros (SAC/SIC: 0xFFFFFFFF each), when the record
 * is invalid or lacks the item or the item does not decode.
 */
/** SAC/SIC from I021/010. */
KOVREL_API void ast_datarecord_021_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of day from I021/077 or I021/030, whichever comes first. */
KOVREL_API void ast_datarecord_021_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/** Always valid with 5 ("ADS-B"), for a valid record. */
KOVREL_API void ast_datarecord_021_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);
/** Track number from I021/161. */
KOVREL_API void ast_datarecord_021_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);
/** Mode 3/A code from I021/070. */
KOVREL_API void ast_datarecord_021_get_squawk(AstMode3aCode *out, const AstDataRecord *record);
/** The eight characters of I021/170. */
KOVREL_API void ast_datarecord_021_get_callsign(AstRecordCallsign *out, const AstDataRecord *record);
/** Target address from I021/080. */
KOVREL_API void ast_datarecord_021_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record);
/** Degrees from I021/130, I021/131 or 21902, whichever comes first. */
KOVREL_API void ast_datarecord_021_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record);
/** Feet from I021/145: signed raw x 25. */
KOVREL_API void ast_datarecord_021_get_flightlevel(AstRecordValue *out, const AstDataRecord *record);
/** Feet from I021/146: signed 13-bit raw x 25. */
KOVREL_API void ast_datarecord_021_get_selaltitude(AstRecordValue *out, const AstDataRecord *record);
/** Track angle in degrees from 21911 or I021/160, whichever comes first. */
KOVREL_API void ast_datarecord_021_get_heading(AstRecordValue *out, const AstDataRecord *record);
/** Ground speed in knots from 21911 (signed) or I021/160 (15 bits), whichever comes first. */
KOVREL_API void ast_datarecord_021_get_speed(AstRecordValue *out, const AstDataRecord *record);
/** Vertical rate from 21909 or I021/155, whichever comes first. */
KOVREL_API void ast_datarecord_021_get_vrate(AstVerticalRate *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT021_H */
