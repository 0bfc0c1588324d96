/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat004.h: Category 004, safety-net messages (STCA, MSAW, APW and other
 * alerts, and the status of the safety-net functions).
 */
#ifndef KOVREL_CAT004_H
#define KOVREL_CAT004_H

#include "kovrel/datarecord.h"
#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/items_ident.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT004 item ("Alert Identifier"); any other identifier
 * gives "Unknown CAT004 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING. I004/015, 045, 070, 074, 075, 076 and 110 are part of the UAP
 * and are sized, so records carrying them decode, but they have no name of
 * their own (the fallback, with the warning) and no decoded structure.
 */
KOVREL_API const char *ast_dataitem_004_get_name(AstItemId id);

/*
 * Items served by the common items of items_ident.h and items_mode.h.
 * Their summaries and detail views are the common item's, except for the
 * message type, which the common item only reads and writes; decode_ex
 * fills the common item's structure (the storage must hold it) and
 * encode_ex writes the item from that structure (see ast_dataitem_decode
 * and ast_dataitem_encode).
 */

/*
 * I004/000 Message Type: read and written as the common message type
 * (AstMessageType holding the safety-net message type value).
 */
KOVREL_API void ast_dataitem_004_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I004/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_004_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I004/020 Time of Message: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_004_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I004/030 Track Number 1, I004/035 Track Number 2: track number, all 16 bits (AstTrackNumber). */
KOVREL_API void ast_dataitem_004_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
KOVREL_API void ast_dataitem_004_035_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_035_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I004/REF and I004/SPF: reserved expansion and special purpose fields (AstExplicitField), no detail view. */
KOVREL_API void ast_dataitem_004_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * Compound items. Each item's size function delimits the whole item (primary
 * subfield and the subfields it announces); the subfield functions take the
 * subfield identifier, item identifier x 1000 + subfield number (4100001 is
 * subfield 1 of I004/100). A subfield identifier outside an item's subfields
 * has size 0, the id text "--" (two dashes in this category) and the name
 * "UNKNOWN_SUBFIELD_NAME".
 *
 * Subfield summaries: "AN:%s" (I004/100 subfield 1, the area name),
 * "TAB:%u PROP:%u CS:%s" with CS "HIGH" or "LOW" (I004/120 subfield 2) and
 * "MODE_3/A:%04o" (I004/170 subfield 2); every other subfield of I004/100,
 * 120 and 170 reads "NOT_IMPLEMENTED" when present and empty when absent.
 * I004/171 summarises none of its subfields: each reads "NOT_IMPLEMENTED".
 * The values of all subfields are in the decoded structures below.
 */

/*
 * I004/100 Area Definition, 6 subfields: 1 AN (6 octets, eight 6-bit ICAO
 * characters), 2 CAN, 3 RT1, 4 RT2, 5 SB, 6 G (7 octets each).
 */
KOVREL_API uint64_t ast_dataitem_004_100_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_100_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_100_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_100_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_100_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_100_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I004/120 Conflict Characteristics, 4 subfields: 1 CN (FX-extended, at
 * most 3 octets), 2 CC (1 octet), 3 CP (1 octet), 4 CD (3 octets).
 */
KOVREL_API uint64_t ast_dataitem_004_120_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_120_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_120_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_120_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_120_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_120_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I004/170 Aircraft Identification & Characteristics 1, 10 subfields:
 * 1 AI1 (7 octets), 2 M31 (2), 3 CPW1 (10), 4 CPC1 (8), 5 TT1 (3), 6 DT1 (2),
 * 7 AC1 (FX-extended, at most 2 octets), 8 MS1 (6), 9 FP1 (4), 10 CF1 (2).
 */
KOVREL_API uint64_t ast_dataitem_004_170_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_170_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_170_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_170_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_170_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_170_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I004/171 Aircraft Identification & Characteristics 2: the subfields of
 * I004/170 for the second aircraft, ids and names ending in 2 (AI2, M32,
 * CPW2, CPC2, TT2, DT2, AC2, MS2, FP2, CF2).
 */
KOVREL_API uint64_t ast_dataitem_004_171_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_171_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_171_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_171_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_171_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_171_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I004/070 Conflict Timing and Separation (compound: TC, TCA, CHS, MHS, CVS,
 * MVS). Sized so that records carrying it decode; like I004/015, 045, 074,
 * 075, 076 and 110 it has no name of its own ("Unknown CAT004 Dataitem").
 */
KOVREL_API uint64_t ast_dataitem_004_070_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_004_070_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_070_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_004_070_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_004_070_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_004_070_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* ---- Items of the category ---------------------------------------------- */

/** I004/000 Message Type: "MSG_TYPE:%s" with the safety-net message type's id text. */
KOVREL_API void ast_dataitem_004_000_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Paragraph "Message type: %s (%s)": the message type's id text and name. */
KOVREL_API void ast_dataitem_004_000_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/**
 * I004/040 Alert Identifier: a packed word, the valid flag and the 16-bit
 * identifier the safety net gave the alert. Named fields (fields.h): value.
 */
typedef struct AstItem004_040 {
    uint32_t valid;
    uint32_t value; /**< octet 1 x 256 + octet 2 */
} AstItem004_040;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_004_040_init(AstItem004_040 *out);
/** Decodes a valid two-octet span (the identifier is not looked at); the defaults otherwise. */
KOVREL_API void ast_dataitem_004_040_decode(AstItem004_040 *out, const AstDataItem *item);
/** Writes two octets; fails (invalid empty span) unless in->valid is 1, the value fits 16 bits and size >= 2. */
KOVREL_API void ast_dataitem_004_040_encode(AstDataItem *out, uint8_t *buffer, size_t size, const AstItem004_040 *in);
/** "ALERT_ID:%04d". */
KOVREL_API void ast_dataitem_004_040_get_summary(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_004_040_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_040_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/** One safety-net function of I004/060: its message type and whether it runs. */
typedef struct AstSnetFunction {
    uint32_t type;     /**< safety-net message type (ast_snet_message_type_get_id) */
    uint8_t activated; /**< 1: the function is activated */
} AstSnetFunction;

/**
 * I004/060 Safety Net Function & System Status. The first octet's bits 8 to
 * 2 are, in order, MRVA (message type 201), RAMLD (2), RAMHD (3), MSAW (4),
 * APW (5), CLAM (6) and STCA (7). Later octets (APM, RIMCA, ACAS RA, NTCA,
 * the degraded/overflow/overload flags, AIW and the rest) are counted in
 * count but not decoded. Named fields (fields.h): count and one flag per
 * function of the first octet (mrva, ramld, ramhd, msaw, apw, clam, stca).
 */
typedef struct AstItem004_060 {
    uint32_t valid;
    uint32_t count;                /**< functions announced: octets x 7 */
    AstSnetFunction functions[7];  /**< the functions of the first octet, bit 8 first */
} AstItem004_060;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_004_060_init(AstItem004_060 *out);
/**
 * Decodes a valid I004/060 span. An item of more than one octet logs
 * "Unimplemented octects detected in I004/060" at DEBUG; the first octet is
 * decoded all the same.
 */
KOVREL_API void ast_dataitem_004_060_decode(AstItem004_060 *out, const AstDataItem *item);
/** "FUNCTIONS:%zd" with the number of activated functions. */
KOVREL_API void ast_dataitem_004_060_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table "Function", "Name", "Status": each function's id, name and "ACTIVATED" or "-". */
KOVREL_API void ast_dataitem_004_060_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_004_060_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I004/100 Area Definition, split. The area name AN is eight characters of
 * the six-bit ICAO alphabet; the other subfields are seven ASCII characters
 * each, left adjusted and padded with blanks on the wire: the crossing area
 * of a runway/taxiway crossing alert (CAN), the runways or taxiways involved
 * (RT1, RT2, e.g. "EGLL09L"), the stop bar crossed (SB) and the gate of the
 * approaching aircraft (G). Texts are kept as sent, blanks included, and
 * end with a NUL. Named fields: an, can, rt1, rt2, sb, g, each present only
 * when its subfield is.
 */
typedef struct AstItem004_100 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t an_present;
    char an[9];
    uint8_t can_present;
    char can[8];
    uint8_t rt1_present;
    char rt1[8];
    uint8_t rt2_present;
    char rt2[8];
    uint8_t sb_present;
    char sb[8];
    uint8_t g_present;
    char g[8];
} AstItem004_100;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_004_100_init(AstItem004_100 *out);
/** Splits a valid I004/100 and decodes its subfields; the defaults when it does not split. */
KOVREL_API void ast_dataitem_004_100_decode(AstItem004_100 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_004_100_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I004/120 Conflict Characteristics, split.
 * CN, conflict nature, up to three octets of flags: MAS, CAS (conflict in
 * military / civil airspace), FLD, FVD (fast lateral / vertical divergence),
 * TYPE (separation infringement type: 1 minor), CROSS (crossing test),
 * DIV (divergence test); RRC, RTC (runway/runway and runway/taxiway
 * crossing), MRVA, VRAMCRM, VRAMVRM, VRAMVTM (vertical route adherence
 * cleared level / vertical rate / vertical track deviation), HAMHD (heading
 * deviation); HAMRD, HAMVD (route and vertical deviation), DBPSMARR,
 * DBPSMDEP, DBPSMTL (DBPSM arrival, departure, above transition level),
 * AIW (airspace infringement). A flag of an octet not sent stays 0.
 * CC, conflict classification: TAB (bits 8-5, the classification table),
 * PROP (bits 4-2, the conflict properties class of that table), CS
 * (bit 1, 1 high / 0 low severity). CP, conflict probability, 0.5 %.
 * CD, conflict duration, 1/128 s.
 */
typedef struct AstItem004_120 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t cc_present;
    uint32_t tab;
    uint32_t prop;
    uint8_t cs;
    uint8_t cd_present;
    uint32_t cd_raw;
    double cd; /**< seconds */
    uint8_t cn_present;
    uint32_t cn_octets; /**< octets of CN on the wire, 1 to 3 */
    uint8_t mas, cas, fld, fvd, type, cross, div;
    uint8_t rrc, rtc, mrva, vramcrm, vramvrm, vramvtm, hamhd;
    uint8_t hamrd, hamvd, dbpsmarr, dbpsmdep, dbpsmtl, aiw;
    uint8_t cp_present;
    uint32_t cp_raw;
    double cp; /**< percent */
} AstItem004_120;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_004_120_init(AstItem004_120 *out);
/** Splits a valid I004/120 and decodes its subfields; the defaults when it does not split. */
KOVREL_API void ast_dataitem_004_120_decode(AstItem004_120 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_004_120_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/**
 * I004/170 and I004/171, one aircraft of a conflict, split.
 * M3: the 12-bit Mode 3/A code. AI: seven ASCII characters naming the
 * aircraft (blank padded). CPW: predicted conflict position, latitude and
 * longitude in degrees (180/2^25) and altitude in ft (25 ft). CPC: the same
 * in system Cartesian coordinates, x and y in m (0.5 m), z in ft (25 ft).
 * TT: time to the runway threshold, s (1/128 s). DT: distance to the
 * threshold, m (0.5 m). AC: aircraft characteristics: GATOAT (0 unknown,
 * 1 general air traffic, 2 operational air traffic, 3 not applicable),
 * FR1FR2 (flight rules: 0 IFR, 1 VFR, 2 IFR/VFR, 3 VFR/IFR), RVSM (0
 * unknown, 1 approved, 2 exempt, 3 not approved), HPR (1 high priority
 * flight); and in its second octet CDM (0 maintaining, 1 climbing,
 * 2 descending, 3 invalid), PRI (1 primary target), GV (1 ground vehicle).
 * MS: the Mode S identification, eight six-bit characters. FP: flight plan
 * number (27 bits). CF: cleared flight level, FL (1/4 FL).
 * Each group of values comes with the present flag of its subfield.
 */
typedef struct AstItem004_170 {
    uint32_t valid;
    AstSubfieldList subfields;
    uint8_t m3_present;
    uint32_t mode3a;
    uint8_t ai_present;
    char ai[8];
    uint8_t cpw_present;
    int32_t lat_raw;
    int32_t lon_raw;
    int32_t alt_raw;
    double lat; /**< degrees */
    double lon; /**< degrees */
    double alt; /**< ft */
    uint8_t cpc_present;
    int32_t x_raw;
    int32_t y_raw;
    int32_t z_raw;
    double x; /**< m */
    double y; /**< m */
    double z; /**< ft */
    uint8_t tt_present;
    uint32_t tt_raw;
    double tt; /**< s */
    uint8_t dt_present;
    uint32_t dt_raw;
    double dt; /**< m */
    uint8_t ac_present;
    uint32_t ac_octets; /**< octets of AC on the wire, 1 or 2 */
    uint32_t gatoat, fr1fr2, rvsm;
    uint8_t hpr;
    uint32_t cdm;
    uint8_t pri, gv;
    uint8_t ms_present;
    char ms[9];
    uint8_t fp_present;
    uint32_t fp;
    uint8_t cf_present;
    uint32_t cf_raw;
    double cf; /**< FL */
} AstItem004_170;

/** I004/171 has the structure of I004/170. */
typedef AstItem004_170 AstItem004_171;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_004_170_init(AstItem004_170 *out);
/** Splits a valid I004/170 or I004/171 and decodes its subfields; the defaults when it does not split. */
KOVREL_API void ast_dataitem_004_170_decode(AstItem004_170 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_004_170_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_004_171_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Disassembled record and accessors ----------------------------------- */

/**
 * A CAT004 record disassembled: one member per item the library decodes,
 * each the structure its structured decode yields; a member whose item is
 * absent stays zero. Other items (I004/015, 045, 070, 074, 075, 076, 110,
 * REF, SPF) are skipped with "Failed to disassemble dataitem %s." at DEBUG.
 */
typedef struct AstRecord004 {
    uint32_t valid;
    AstMessageType i000;
    AstDataSourceIdentifier i010;
    AstTimeOfDay i020;
    AstTrackNumber i030;
    AstTrackNumber i035;
    AstItem004_040 i040;
    AstItem004_060 i060;
    AstItem004_100 i100;
    AstItem004_120 i120;
    AstItem004_170 i170;
    AstItem004_171 i171;
} AstRecord004;

/** Clears *out; valid for a valid CAT004 record, each item decoded into its member. */
KOVREL_API void ast_datarecord_004_disassemble(AstRecord004 *out, const AstDataRecord *record);

/* Record accessors: the first I004/010, I004/020 and I004/030 of the record. */
KOVREL_API void ast_datarecord_004_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_004_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_004_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT004_H */
