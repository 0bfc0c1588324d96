/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat001.h: Category 001, monoradar plots and tracks (the older format that
 * CAT048 replaced), with the ASR-10SS sensor layouts and the MANAGAIR
 * custom field.
 */
#ifndef KOVREL_CAT001_H
#define KOVREL_CAT001_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/datarecord.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT001 item ("Truncated Time of Day"), including the
 * sensor variants: 1901 and 1903 (ASR-10SS and ASR-10SS Mk2 layouts of
 * I001/130) are "Radar Plot Characteristics", 1902 (ASR-10SS, in place of
 * I001/210) is "Plot Amplitude", 1904 (ASR-10SS Mk2, in place of I001/210)
 * is "Track Quality and Plot Extent", and 1951 (MANAGAIR) is "Custom Field".
 *
 * Any other identifier gives "Unknown CAT001 Dataitem" and logs "Unknown
 * dataitem name: %s." at WARNING. I001/120 (Measured Radial Doppler Speed)
 * and I001/150 (Presence of X-Pulse) are sized and decoded like every other
 * item but have no name of their own: they too answer "Unknown CAT001
 * Dataitem" (and log), as they always have.
 */
KOVREL_API const char *ast_dataitem_001_get_name(AstItemId id);

/*
 * Items served by the common items (items.h). Their summaries and detail
 * views are the common item's (unless told otherwise below); the structured
 * decode entry points decode into the common item's structure: *out =
 * {valid flag of the structure, item id, storage}, or {0, item id, NULL}
 * with nothing written when storage is NULL or smaller than the structure,
 * or the item is not valid.
 */

/* I001/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_001_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * I001/050 Mode-2 Code: Mode 3/A code (AstMode3aCode), the same layout;
 * the summary reads "MODE_2:..." and the detail view has no bit 6 row.
 * I001/060 Mode-2 Code Confidence Indicator: Mode 3/A confidence
 * (AstMode3aConfidence).
 */
KOVREL_API void ast_dataitem_001_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_001_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/070 Mode-3/A Code: Mode 3/A code (AstMode3aCode). */
KOVREL_API void ast_dataitem_001_070_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/080 Mode-3/A Code Confidence Indicator: Mode 3/A confidence (AstMode3aConfidence). */
KOVREL_API void ast_dataitem_001_080_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/090 Mode-C Code: Mode C code (AstModeCCode). */
KOVREL_API void ast_dataitem_001_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/100 Mode-C Code and Code Confidence Indicator: Mode C confidence (AstModeCConfidence). */
KOVREL_API void ast_dataitem_001_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * I001/130 Radar Plot Characteristics is summarised with the binary data
 * summary ("BIN:...").
 */

/* I001/161 Track Plot Number: 16-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_001_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* I001/200 Calculated Track Velocity: polar velocity (AstVelocityPolar). */
KOVREL_API void ast_dataitem_001_200_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * SPF and RFS: special purpose field (AstSpecialPurposeField) and random
 * field sequencing (AstRandomFieldSequencing); no detail view.
 */
KOVREL_API void ast_dataitem_001_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_001_RFS_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- The category's own items ----------------------------------------- */

/*
 * Each own item has init (the defaults below, valid 0), decode (a span of
 * another identifier, that is not valid or of a wrong length gives the
 * defaults), summary and detail view (empty unless the span decodes), and
 * the structured decode_ex / encode_ex (items.h). An encoder writes nothing
 * and gives an invalid span when the value does not fit its field or the
 * buffer is too small.
 */

/**
 * I001/020 Target Report Descriptor, 1 or 2 octets. Octet 1: TYP (bit 8,
 * 0 plot, 1 track), SIM, SSR/PSR (bits 6-5: 0 no detection, 1 sole primary,
 * 2 sole SSR, 3 combined), ANT (bit 4; kept as antenna 2 when set, 1 when
 * clear), SPI, RAB. Octet 2: TST, DS1/DS2 (bits 7-6), ME, MI. ext1_present
 * says whether octet 2 was there; the encoder writes it when it is set or
 * any of its fields is not zero.
 * Summary: "TYPE:" PLOT/TRACK, then " SIM", " NO_DETECTION"/" PSR"/" SSR"/
 * " PSR+SSR", " ANT1"/" ANT2", " SPI", " RAB", " TST", " ME", " MI".
 */
typedef struct AstItem001_020 {
    uint32_t valid;
    uint32_t typ;
    uint32_t sim;
    uint32_t ssr_psr;
    uint32_t ant; /**< 1 or 2 */
    uint32_t spi;
    uint32_t rab;
    uint32_t tst;
    uint32_t ds1ds2;
    uint32_t me;
    uint32_t mi;
    uint32_t ext1_present;
} AstItem001_020;
KOVREL_API void ast_dataitem_001_020_init(AstItem001_020 *out);
KOVREL_API void ast_dataitem_001_020_decode(AstItem001_020 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_020_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_020 *in);
KOVREL_API void ast_dataitem_001_020_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_020_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I001/030 Warning/Error Conditions, 1 or 2 octets: the code of octet 1
 * (bits 8-2). The encoder writes that one octet. Summary "W/E:%d", or
 * "W/E:NO_ERROR" for code 0.
 */
typedef struct AstItem001_030 {
    uint32_t valid;
    uint32_t code;
} AstItem001_030;
KOVREL_API void ast_dataitem_001_030_init(AstItem001_030 *out);
KOVREL_API void ast_dataitem_001_030_decode(AstItem001_030 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_030_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_030 *in);
KOVREL_API void ast_dataitem_001_030_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_030_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/** A scaled field: the wire value, its LSB and raw x LSB (signed and unsigned forms). */
typedef struct AstItem001Scaled {
    int32_t raw;
    double lsb;
    double value;
} AstItem001Scaled;
typedef struct AstItem001UScaled {
    uint32_t raw;
    double lsb;
    double value;
} AstItem001UScaled;

/**
 * I001/040 Measured Position, 4 octets: RHO (unsigned, 1/128 NM) and THETA
 * (unsigned, 360/2^16 degree). The encoder sends the raw fields.
 * Summary "RHO:%.1f THETA:%.1f".
 */
typedef struct AstItem001_040 {
    uint32_t valid;
    AstItem001UScaled rho;   /**< NM */
    AstItem001UScaled theta; /**< degrees */
} AstItem001_040;
KOVREL_API void ast_dataitem_001_040_init(AstItem001_040 *out);
KOVREL_API void ast_dataitem_001_040_decode(AstItem001_040 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_040 *in);
KOVREL_API void ast_dataitem_001_040_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_040_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I001/042 Calculated Position, 4 octets: X and Y, two's complement, 1/64
 * NM. The encoder sends the raw fields. Summary "X:%.1f Y:%.1f LSB:M" in
 * metres.
 */
typedef struct AstItem001_042 {
    uint32_t valid;
    AstItem001Scaled x; /**< NM */
    AstItem001Scaled y; /**< NM */
} AstItem001_042;
KOVREL_API void ast_dataitem_001_042_init(AstItem001_042 *out);
KOVREL_API void ast_dataitem_001_042_decode(AstItem001_042 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_042_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_042 *in);
KOVREL_API void ast_dataitem_001_042_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_042_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I001/120 Measured Radial Doppler Speed, 1 octet, two's complement. The
 * value is raw x 14.0625 and is printed as knots: "DOP:%.1fKT". This factor
 * is what consumers of this library have always been given; it is kept.
 */
typedef struct AstItem001_120 {
    uint32_t valid;
    int32_t raw;
    double value; /**< kt */
} AstItem001_120;
KOVREL_API void ast_dataitem_001_120_init(AstItem001_120 *out);
KOVREL_API void ast_dataitem_001_120_decode(AstItem001_120 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_120_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_120 *in);
KOVREL_API void ast_dataitem_001_120_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_120_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I001/130 Radar Plot Characteristics, 1 to 6 octets: the seven bits of
 * each octet (FX dropped). Its summary is the binary data summary ("BIN:"
 * and the octets' bits), empty for a span that does not decode.
 */
typedef struct AstItem001_130 {
    uint32_t valid;
    uint32_t count;
    uint32_t values[6];
} AstItem001_130;
KOVREL_API void ast_dataitem_001_130_init(AstItem001_130 *out);
KOVREL_API void ast_dataitem_001_130_decode(AstItem001_130 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_130_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_130 *in);
KOVREL_API void ast_dataitem_001_130_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_130_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/** I001/131 Received Power, 1 octet, two's complement dBm. Summary "PWR:%d dBm". */
typedef struct AstItem001_131 {
    uint32_t valid;
    int32_t power; /**< dBm */
} AstItem001_131;
KOVREL_API void ast_dataitem_001_131_init(AstItem001_131 *out);
KOVREL_API void ast_dataitem_001_131_decode(AstItem001_131 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_131_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_131 *in);
KOVREL_API void ast_dataitem_001_131_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_131_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I001/141 Truncated Time of Day, 2 octets, 1/128 s: whole seconds (raw >> 7)
 * and milliseconds ((raw & 127) x 1000 >> 7). The encoder sends the low 16
 * bits of raw, so a whole time of day (1/128 s) goes out modulo 512 s.
 * Summary "TTOD:%03d.%03d".
 */
typedef struct AstItem001_141 {
    uint32_t valid;
    uint32_t raw;
    uint32_t seconds;
    uint32_t milliseconds;
} AstItem001_141;
KOVREL_API void ast_dataitem_001_141_init(AstItem001_141 *out);
KOVREL_API void ast_dataitem_001_141_decode(AstItem001_141 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_141_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_141 *in);
KOVREL_API void ast_dataitem_001_141_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_141_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I001/150 Presence of X-Pulse, 1 octet: XA (bit 8), XC (bit 6), X2 (bit 3).
 * Summary "X:" and the names of the pulses present ("X:XA XC X2"), or
 * "X:NONE".
 */
typedef struct AstItem001_150 {
    uint32_t valid;
    uint32_t xa;
    uint32_t xc;
    uint32_t x2;
} AstItem001_150;
KOVREL_API void ast_dataitem_001_150_init(AstItem001_150 *out);
KOVREL_API void ast_dataitem_001_150_decode(AstItem001_150 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_150_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_150 *in);
KOVREL_API void ast_dataitem_001_150_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_150_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I001/170 Track Status, 1 or 2 octets. Octet 1: CON, RAD, MAN, DOU, RDPC
 * (bit 4; kept as chain 2 when set, 1 when clear), GHO (bit 2); octet 2:
 * TRE. Summary "TYPE:SSR_CMB" (RAD 1) or "TYPE:PSR" (RAD 0).
 */
typedef struct AstItem001_170 {
    uint32_t valid;
    uint32_t con;
    uint32_t rad;
    uint32_t man;
    uint32_t dou;
    uint32_t rdpc; /**< 1 or 2 */
    uint32_t gho;
    uint32_t tre;
    uint32_t ext1_present;
} AstItem001_170;
KOVREL_API void ast_dataitem_001_170_init(AstItem001_170 *out);
KOVREL_API void ast_dataitem_001_170_decode(AstItem001_170 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_170_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_170 *in);
KOVREL_API void ast_dataitem_001_170_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_170_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I001/210 Track Quality, 1 to 12 octets: each octet a quality figure of
 * seven bits (bits 8-2), FX at bit 1. Summary "Q1:%d Q2:%d", or "Q1:%d" for
 * a one-octet item.
 */
typedef struct AstItem001_210 {
    uint32_t valid;
    uint32_t count;
    uint32_t quality[12];
} AstItem001_210;
KOVREL_API void ast_dataitem_001_210_init(AstItem001_210 *out);
KOVREL_API void ast_dataitem_001_210_decode(AstItem001_210 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_210_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem001_210 *in);
KOVREL_API void ast_dataitem_001_210_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_210_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/*
 * ASR-10SS station items. Each is an FX-extended field read octet by octet
 * (bits 8-2 of an octet, FX at bit 1); octets past those named below are
 * kept as they came in `extra`.
 *
 * 1901 (ASR-10SS plot characteristics): octet 1 bit 8 TSM (target in
 *   surveillance mode test), bit 7 PE (plot extended). Summary "PLOT" then
 *   " TSM", " PE".
 * 1902 (ASR-10SS plot amplitude): octet 1 the amplitude in dB (7 bits).
 *   Summary "AMP:%ddB".
 * 1903 (ASR-10SS Mk2 plot characteristics): octet 1 bits 8-2 MNT, PE, WET,
 *   RAG, A3, AAZ, AEO; octet 2 bit 8 SPL; octet 3 the amplitude in dB;
 *   octet 4 the plot confidence. Summary "PLOT" then the flags set
 *   (" MNT", " PE", " WET", " RAG", " A3", " AAZ", " AEO", " SPL"), then
 *   " AMP:%ddB" and " CONF:%d" when those octets are there.
 * 1904 (ASR-10SS Mk2 track quality and plot extent): octet 1 TQ, octet 2
 *   the peak amplitude in dB, octet 3 the azimuth extent in ACPs. Summary
 *   "TQ:%d", then " PEAK:%ddB" and " AZEXT:%d" when those octets are there.
 *
 * The station items have no item-level encoder; ast_datarecord_001_assemble
 * writes them as members of a record: the named octets up to the last one
 * the structure holds (a *_present flag, ext1_present, or extra octets,
 * which need every named octet before them), then the extra octets; bits
 * without a name are sent as zeros. A flag above 1 or a value above 127
 * makes the record invalid.
 */
typedef struct AstItem001_901 {
    uint32_t valid;
    uint32_t tsm;
    uint32_t pe;
    uint32_t extra_count;
    uint32_t extra[5];
} AstItem001_901;
typedef struct AstItem001_902 {
    uint32_t valid;
    uint32_t amp; /**< dB */
    uint32_t extra_count;
    uint32_t extra[11];
} AstItem001_902;
typedef struct AstItem001_903 {
    uint32_t valid;
    uint32_t mnt, pe, wet, rag, a3, aaz, aeo;
    uint32_t spl;
    uint32_t ext1_present; /**< octet 2 was there (or is to be written) */
    uint32_t amp_present;
    uint32_t amp; /**< dB */
    uint32_t conf_present;
    uint32_t conf;
    uint32_t extra_count;
    uint32_t extra[2];
} AstItem001_903;
typedef struct AstItem001_904 {
    uint32_t valid;
    uint32_t tq;
    uint32_t peak_present;
    uint32_t peak; /**< dB */
    uint32_t azext_present;
    uint32_t azext; /**< ACPs */
    uint32_t extra_count;
    uint32_t extra[8];
} AstItem001_904;
KOVREL_API void ast_dataitem_001_901_init(AstItem001_901 *out);
KOVREL_API void ast_dataitem_001_901_decode(AstItem001_901 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_901_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_901_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_902_init(AstItem001_902 *out);
KOVREL_API void ast_dataitem_001_902_decode(AstItem001_902 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_902_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_902_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_903_init(AstItem001_903 *out);
KOVREL_API void ast_dataitem_001_903_decode(AstItem001_903 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_903_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_903_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_904_init(AstItem001_904 *out);
KOVREL_API void ast_dataitem_001_904_decode(AstItem001_904 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_904_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_001_904_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

#define KOVREL_001_EX(P)                                                                                    \
    KOVREL_API void ast_dataitem_001_##P##_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size, \
                                                      const AstDataItem *item);
#define KOVREL_001_ENC_EX(P)                                                                         \
    KOVREL_API void ast_dataitem_001_##P##_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size, \
                                                      const AstDataItemValue *value);
KOVREL_001_EX(020) KOVREL_001_EX(030) KOVREL_001_EX(040) KOVREL_001_EX(042) KOVREL_001_EX(120)
KOVREL_001_EX(130) KOVREL_001_EX(131) KOVREL_001_EX(141) KOVREL_001_EX(150) KOVREL_001_EX(170)
KOVREL_001_EX(210) KOVREL_001_EX(901) KOVREL_001_EX(902) KOVREL_001_EX(903) KOVREL_001_EX(904)
KOVREL_001_ENC_EX(010) KOVREL_001_ENC_EX(020) KOVREL_001_ENC_EX(030) KOVREL_001_ENC_EX(040)
KOVREL_001_ENC_EX(042) KOVREL_001_ENC_EX(050) KOVREL_001_ENC_EX(060) KOVREL_001_ENC_EX(070)
KOVREL_001_ENC_EX(080) KOVREL_001_ENC_EX(090) KOVREL_001_ENC_EX(120) KOVREL_001_ENC_EX(130)
KOVREL_001_ENC_EX(131) KOVREL_001_ENC_EX(141) KOVREL_001_ENC_EX(150) KOVREL_001_ENC_EX(161)
KOVREL_001_ENC_EX(170) KOVREL_001_ENC_EX(200) KOVREL_001_ENC_EX(210)
#undef KOVREL_001_EX
#undef KOVREL_001_ENC_EX

/* ---- Record level ------------------------------------------------------ */

/**
 * The disassembled CAT001 record, one member per item in item-number order
 * (the ASR-10SS station items 1901 to 1904 last); a member whose item is
 * absent stays zero. 1951, SPF and RFS have no member.
 */
typedef struct AstRecord001 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstItem001_020 i020;
    AstItem001_030 i030;
    AstItem001_040 i040;
    AstItem001_042 i042;
    AstMode3aCode i050;
    AstMode3aConfidence i060;
    AstMode3aCode i070;
    AstMode3aConfidence i080;
    AstModeCCode i090;
    AstModeCConfidence i100;
    AstItem001_120 i120;
    AstItem001_130 i130;
    AstItem001_131 i131;
    AstItem001_141 i141;
    AstItem001_150 i150;
    AstTrackNumber i161;
    AstItem001_170 i170;
    AstVelocityPolar i200;
    AstItem001_210 i210;
    AstItem001_901 i901;
    AstItem001_902 i902;
    AstItem001_903 i903;
    AstItem001_904 i904;
} AstRecord001;

/**
 * Disassembles a CAT001 record into *out (zeroed first; valid 0 for a record
 * that is not valid or not of category 1). Items without a member are
 * skipped with "Failed to disassemble dataitem %s." at DEBUG.
 */
KOVREL_API void ast_datarecord_001_disassemble(AstRecord001 *out, const AstDataRecord *record);
/**
 * Encodes the members of *in whose valid flag is 1 as one CAT001 record into
 * buffer (size octets), in the order of the profile's FRNs.
 * The profile: uap when it is AST_UAP_ASR10SS or AST_UAP_ASR10SS_MK2 (or a
 * copy of one); otherwise it follows from the record: AST_UAP_ASR10SS_MK2
 * when i903 or i904 is valid, AST_UAP_ASR10SS when i901 or i902 is, the
 * track UAP (AST_UAP_STANDARD) when i161 is, else the plot UAP
 * (AST_UAP_CAT001_PLOT). uap may be NULL. *out is the written record, with
 * the profile used in out->uap; it is invalid, and nothing is written past
 * size, when a member is not in that profile (the plot UAP has no place for
 * I001/042, 170, 200 and 210, the track UAP writes no I001/150), I001/100 is
 * valid (it has no encoder), a value does not fit its field or the buffer
 * is too small.
 */
KOVREL_API void ast_datarecord_001_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord001 *in,
                                            const AstUap *uap);

/*
 * Record accessors. Each reads the first item of the record that carries the
 * fact; the result is invalid, all zeros (SAC/SIC: 0xFFFFFFFF each), when
 * the record is invalid or lacks the item or the item does not decode.
 */
/** SAC/SIC from I001/010. */
KOVREL_API void ast_datarecord_001_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** 4 ("Track") when the record holds I001/161, else 3 ("Plot"); TYP of I001/020 is not read. */
KOVREL_API void ast_datarecord_001_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);
/** Track number from I001/161. */
KOVREL_API void ast_datarecord_001_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);
/** Mode 3/A code from I001/070. */
KOVREL_API void ast_datarecord_001_get_squawk(AstMode3aCode *out, const AstDataRecord *record);
/** Feet: the Mode C code of I001/090 (1/4 FL) x 25. */
KOVREL_API void ast_datarecord_001_get_flightlevel(AstRecordValue *out, const AstDataRecord *record);
/** RHO (NM) and THETA (degrees) from I001/040. */
KOVREL_API void ast_datarecord_001_get_polarcoord(AstRecordPolar *out, const AstDataRecord *record);
/** Metres from I001/042 (1/64 NM, x 1852); not a slot of AstDataRecordFuncs (see ast_datarecord_get_cartesiancoord). */
KOVREL_API void ast_datarecord_001_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT001_H */
