/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat008.h: Category 008, monoradar derived weather information
 * (edition 1.3 of the category).
 *
 * The items are delimited through the generic data item functions
 * (dataitem.h); this header adds the category's name function and the size
 * rule of I008/100, whose layout no generic rule fits.
 *
 * The category's own items decode into the structures below: a 32-bit valid
 * flag first, then one member per field in wire order, named by the field's
 * mnemonic in lower case; the encoders write from the same members.
 *
 * Weather vectors and contour points (I008/034, 036, 038, 050) are kept as
 * their raw wire values, entry by entry, so that a picture of 255 vectors
 * stays small; the item carries the LSB of its ranges and coordinates at a
 * scaling factor of 0 (range_lsb / lsb: 1/64 NM) and of its azimuths
 * (az_lsb: 360/2^16 degrees). The radar announces the scaling factor f in
 * I008/100 of its start-of-picture message; a display draws a coordinate at
 * raw x lsb x 2^f NM (ast_dataitem_008_vector_lsb). Their named fields give
 * the values at f = 0 in NM and degrees; x grows to the east and y to the
 * north of the radar (local co-ordinates) or of the system centre (ORG of
 * I008/020 and I008/040).
 *
 * Per item: _init (zeros, valid 0; the LSB members of the vector items
 * set), _decode (valid 1 only for a valid span of the item's identifier and
 * exact length), _encode (refused, zero-length invalid span, when in is not
 * valid, a value does not fit its bits, a count exceeds its array or the
 * buffer is short), _get_summary and _get_detail_html (empty text when the
 * item does not decode), and the _decode_ex/_encode_ex entry points of the
 * item dispatch.
 */
#ifndef KOVREL_CAT008_H
#define KOVREL_CAT008_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT008 item ("Vector Qualifier"); any other identifier
 * gives "Unknown CAT008 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING.
 */
KOVREL_API const char *ast_dataitem_008_get_name(AstItemId id);

/**
 * Size rule of I008/100 Processing Status: a first part of three octets
 * whose third octet alone carries the FX bit. Returns 3, or 0 when fewer
 * than three octets are available. When the FX bit is set the item is cut
 * off (0) if exactly three octets are available; otherwise "Dataitem length
 * exceed max: 3" is logged at CRITICAL and 3 is returned, so that a record
 * goes on reading after the part the category defines.
 */
KOVREL_API uint64_t ast_dataitem_008_100_get_size(const uint8_t *octets, size_t available);

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

/* I008/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_008_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_008_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I008/000 Message Type: message type (AstMessageType); no summary or detail view. */
KOVREL_API void ast_dataitem_008_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_008_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I008/090 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_008_090_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_008_090_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * SPF and RFS: special purpose field (AstSpecialPurposeField) and random field
 * sequencing (AstRandomFieldSequencing); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_008_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_008_RFS_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Category items -------------------------------------------------------- */

/**
 * I008/020 Vector Qualifier: coordinate system (org: 0 local, 1 system),
 * intensity level (i, 0-7) and shading orientation (s: 22.5 degree steps
 * from north); with the second octet (ext 1), the test vector (tst) and
 * error condition (er) bits. Summary "ORG:LOCAL I:3 S:2", then " TST", " ER".
 */
typedef struct AstItem008_020 {
    uint32_t valid;
    uint32_t org, i, s;
    uint8_t ext; /**< second octet present */
    uint8_t tst, er;
} AstItem008_020;

#define AST_ITEM008_VECTOR_MAX 255

/** One polar vector of I008/034: start and end range, azimuth (raw). */
typedef struct AstItem008Polar {
    uint32_t str;  /**< 1/64 NM x 2^f */
    uint32_t endr; /**< 1/64 NM x 2^f */
    uint32_t az;   /**< 360/2^16 degrees */
} AstItem008Polar;

/** I008/034 Sequence of Polar Vectors in SPF Notation. Summary "REP:n" then "STR:.. ENDR:.. AZ:.." per vector. */
typedef struct AstItem008_034 {
    uint32_t valid;
    uint32_t rep;
    double range_lsb; /**< NM at f = 0 */
    double az_lsb;    /**< degrees */
    AstItem008Polar vectors[AST_ITEM008_VECTOR_MAX];
} AstItem008_034;

/** One Cartesian vector of I008/036: start point and length (raw). */
typedef struct AstItem008Cartesian {
    int32_t x, y;    /**< 1/64 NM x 2^f */
    uint32_t length; /**< 1/64 NM x 2^f, along the shading orientation */
} AstItem008Cartesian;

/** I008/036 Sequence of Cartesian Vectors in SPF Notation. Summary "REP:n" then "X:.. Y:.. LENGTH:..". */
typedef struct AstItem008_036 {
    uint32_t valid;
    uint32_t rep;
    double lsb; /**< NM at f = 0 */
    AstItem008Cartesian vectors[AST_ITEM008_VECTOR_MAX];
} AstItem008_036;

/** One weather vector of I008/038: start and end point (raw). */
typedef struct AstItem008Segment {
    int32_t x1, y1, x2, y2; /**< 1/64 NM x 2^f */
} AstItem008Segment;

/** I008/038 Sequence of Weather Vectors in SPF Notation. Summary "REP:n" then "X1:.. Y1:.. X2:.. Y2:..". */
typedef struct AstItem008_038 {
    uint32_t valid;
    uint32_t rep;
    double lsb; /**< NM at f = 0 */
    AstItem008Segment vectors[AST_ITEM008_VECTOR_MAX];
} AstItem008_038;

/**
 * I008/040 Contour Identifier: coordinate system (org), intensity level (i),
 * place of the record in its contour (fstlst: 0 intermediate, 1 last, 2
 * first, 3 only) and contour serial number (csn). Summary
 * "ORG:SYSTEM I:2 FSTLST:FIRST CSN:12".
 */
typedef struct AstItem008_040 {
    uint32_t valid;
    uint32_t org, i, fstlst, csn;
} AstItem008_040;

/** One contour point of I008/050 (raw). */
typedef struct AstItem008Point {
    int32_t x1, y1; /**< 1/64 NM x 2^f */
} AstItem008Point;

/** I008/050 Sequence of Contour Points in SPF Notation. Summary "REP:n" then "X1:.. Y1:.." per point. */
typedef struct AstItem008_050 {
    uint32_t valid;
    uint32_t rep;
    double lsb; /**< NM at f = 0 */
    AstItem008Point points[AST_ITEM008_VECTOR_MAX];
} AstItem008_050;

/**
 * I008/100 Processing Status: scaling factor f (-16..15), current reduction
 * stage r and processing parameters q (both application dependent).
 * Summary "F:-2 R:0 Q:1234".
 */
typedef struct AstItem008_100 {
    uint32_t valid;
    int32_t f;
    uint32_t r, q;
} AstItem008_100;

#define AST_ITEM008_110_MAX 64

/**
 * I008/110 Station Configuration Status: seven-bit status words whose bits
 * the station defines, one per octet (at most AST_ITEM008_110_MAX; a longer
 * chain does not decode). Summary "STATUS:" and the words in hexadecimal.
 */
typedef struct AstItem008_110 {
    uint32_t valid;
    uint32_t count;
    uint32_t status[AST_ITEM008_110_MAX];
} AstItem008_110;

/** I008/120 Total Number of Items Constituting One Weather Picture. Summary "TOTAL:%u". */
typedef struct AstItem008_120 {
    uint32_t valid;
    uint32_t total;
} AstItem008_120;

#define KOVREL_CAT008_ITEM(P, T)                                                                                \
    KOVREL_API void ast_dataitem_##P##_init(T *out);                                                          \
    KOVREL_API void ast_dataitem_##P##_decode(T *out, const AstDataItem *item);                               \
    KOVREL_API void ast_dataitem_##P##_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in);   \
    KOVREL_API void ast_dataitem_##P##_get_summary(char *buffer, size_t size, const AstDataItem *item);       \
    KOVREL_API void ast_dataitem_##P##_get_detail_html(char *buffer, size_t size, const AstDataItem *item);   \
    KOVREL_API void ast_dataitem_##P##_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,   \
                                                 const AstDataItem *item);                                    \
    KOVREL_API void ast_dataitem_##P##_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,              \
                                                 const AstDataItemValue *value);

KOVREL_CAT008_ITEM(008_020, AstItem008_020)
KOVREL_CAT008_ITEM(008_034, AstItem008_034)
KOVREL_CAT008_ITEM(008_036, AstItem008_036)
KOVREL_CAT008_ITEM(008_038, AstItem008_038)
KOVREL_CAT008_ITEM(008_040, AstItem008_040)
KOVREL_CAT008_ITEM(008_050, AstItem008_050)
KOVREL_CAT008_ITEM(008_100, AstItem008_100)
KOVREL_CAT008_ITEM(008_110, AstItem008_110)
KOVREL_CAT008_ITEM(008_120, AstItem008_120)

#undef KOVREL_CAT008_ITEM

/**
 * NM per raw unit of the vector and contour coordinates under a processing
 * status: 2^(f - 6). A status that is NULL or not valid gives 1/64 (f = 0).
 */
KOVREL_API double ast_dataitem_008_vector_lsb(const AstItem008_100 *status);

/* ---- Record level ------------------------------------------------------ */

/**
 * The disassembled CAT008 record: one member per item, each the structure
 * the item's structured decode yields; a member whose item is absent stays
 * zero. SPF and RFS have no member.
 */
typedef struct AstRecord008 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstMessageType i000;
    AstItem008_020 i020;
    AstItem008_036 i036;
    AstItem008_034 i034;
    AstItem008_040 i040;
    AstItem008_050 i050;
    AstTimeOfDay i090;
    AstItem008_100 i100;
    AstItem008_110 i110;
    AstItem008_120 i120;
    AstItem008_038 i038;
} AstRecord008;

/**
 * Disassembles a CAT008 record into *out: zeroed first; valid 0 unless the
 * record is valid and of category 8; SPF and RFS are skipped ("Failed to
 * disassemble dataitem %s." at DEBUG).
 */
KOVREL_API void ast_datarecord_008_disassemble(AstRecord008 *out, const AstDataRecord *record);
/**
 * Encodes the members whose valid flag is 1 as one CAT008 record of the
 * profile uap; a value an encoder refuses makes the record invalid.
 */
KOVREL_API void ast_datarecord_008_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord008 *in,
                                            const AstUap *uap);

/*
 * Record accessors: SAC/SIC, time of day and message type; invalid results
 * are all zeros (SAC/SIC: 0xFFFFFFFF each).
 */
/** SAC/SIC from I008/010. */
KOVREL_API void ast_datarecord_008_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of day from I008/090. */
KOVREL_API void ast_datarecord_008_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/**
 * From I008/000: the vector and contour messages (1 to 4) give 7 ("Video"),
 * as the weather picture is drawn from the radar's video; the start and end
 * of picture messages (254, 255) give 1 ("North"), the markers a display
 * times its picture by. Any other value leaves the result invalid.
 */
KOVREL_API void ast_datarecord_008_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT008_H */
