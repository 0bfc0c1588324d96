/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat016.h: Category 016, independent non-cooperative surveillance system
 * configuration reports (edition 1.0 of the category).
 *
 * Every CAT016 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items.
 *
 * The category's own items decode into the structures below: a 32-bit valid
 * flag first, then one member per field in wire order, named by the field's
 * mnemonic in lower case. A quantity keeps its raw wire value (x_raw), its
 * LSB (x_lsb) and its value in the unit noted (x); the encoders write the
 * raw members, and the named fields (fields.h) set the raw member with the
 * value. Positions are at 180/2^31 degrees, heights and altitudes at 1/4 m.
 *
 * Per item: _init (zeros, valid 0), _decode (valid 1 only for a valid span
 * of the item's identifier and exact length), _encode (refused, zero-length
 * invalid span, when in is not valid, a value does not fit its bits, a
 * count exceeds the array or the buffer is short), _get_summary and
 * _get_detail_html (empty text when the item does not decode), and the
 * _decode_ex/_encode_ex entry points of the item dispatch.
 *
 * The repetitive items keep at most AST_ITEM016_410_MAX transmitters and
 * AST_ITEM016_420_MAX receivers (the structures stay small enough to be
 * walked as named fields); an item announcing more does not decode.
 */
#ifndef KOVREL_CAT016_H
#define KOVREL_CAT016_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT016 item ("Transmitter Properties"); any other
 * identifier gives "Unknown CAT016 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_016_get_name(AstItemId id);

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

/* I016/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_016_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_016_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I016/015 Service Identification: service identification (AstServiceId); no detail view. */
KOVREL_API void ast_dataitem_016_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_016_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I016/000 Message Type: message type (AstMessageType); no summary or detail view. */
KOVREL_API void ast_dataitem_016_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_016_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I016/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_016_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_016_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I016/400 Position of the System Reference Point: 8-octet WGS-84 position
 * (AstPositionWgs84) at 180/2^31 degrees, with the common item's views; the
 * encoder is the category's own (below), as the common one writes 180/2^25.
 */
KOVREL_API void ast_dataitem_016_400_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* SPF: special purpose field (AstSpecialPurposeField); decode only, no detail view. */
KOVREL_API void ast_dataitem_016_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Category items -------------------------------------------------------- */

/** I016/200 System Configuration Reporting Period: seconds. Summary "PERIOD:%u". */
typedef struct AstItem016_200 {
    uint32_t valid;
    uint32_t period_raw;
    double period_lsb;
    double period; /**< s */
} AstItem016_200;

/** One transmitter/receiver pair of I016/300. */
typedef struct AstItem016Pair {
    uint32_t pid; /**< pair */
    uint32_t tid; /**< transmitter */
    uint32_t rid; /**< receiver */
} AstItem016Pair;

#define AST_ITEM016_300_MAX 255

/** I016/300 Pair Identification. Summary "REP:n" then "PID:%u TID:%u RID:%u" per pair. */
typedef struct AstItem016_300 {
    uint32_t valid;
    uint32_t rep;
    AstItem016Pair pairs[AST_ITEM016_300_MAX];
} AstItem016_300;

/** I016/405 Height of System Reference Point: metres (1/4 m). Summary "HEIGHT:%.2f". */
typedef struct AstItem016_405 {
    uint32_t valid;
    int32_t height_raw;
    double height_lsb;
    double height; /**< m */
} AstItem016_405;

/** One transmitter of I016/410. */
typedef struct AstItem016Transmitter {
    uint32_t tid;
    int32_t lat_raw;
    double lat_lsb;
    double lat; /**< deg, 180/2^31 */
    int32_t lon_raw;
    double lon_lsb;
    double lon; /**< deg, 180/2^31 */
    int32_t alt_raw;
    double alt_lsb;
    double alt; /**< m, 1/4 m */
    int32_t tto_raw;
    double tto_lsb;
    double tto; /**< transmission time offset, ns (2 ns) */
    uint32_t ato_raw;
    double ato_lsb;
    double ato; /**< its accuracy, ns (1 ns, 20 bits) */
    uint32_t pci; /**< parallel transmitter index */
} AstItem016Transmitter;

#define AST_ITEM016_410_MAX 32

/** I016/410 Transmitter Properties. Summary "REP:n" then each transmitter's fields. */
typedef struct AstItem016_410 {
    uint32_t valid;
    uint32_t rep;
    AstItem016Transmitter transmitters[AST_ITEM016_410_MAX];
} AstItem016_410;

/** One receiver of I016/420. */
typedef struct AstItem016Receiver {
    uint32_t rid;
    int32_t lat_raw;
    double lat_lsb;
    double lat; /**< deg, 180/2^31 */
    int32_t lon_raw;
    double lon_lsb;
    double lon; /**< deg, 180/2^31 */
    int32_t alt_raw;
    double alt_lsb;
    double alt; /**< m, 1/4 m */
} AstItem016Receiver;

#define AST_ITEM016_420_MAX 64

/** I016/420 Receiver Properties. Summary "REP:n" then each receiver's fields. */
typedef struct AstItem016_420 {
    uint32_t valid;
    uint32_t rep;
    AstItem016Receiver receivers[AST_ITEM016_420_MAX];
} AstItem016_420;

#define KOVREL_CAT016_ITEM(P, T)                                                                                \
    KOVREL_API void ast_dataitem_##P##_init(T *out);                                                          \
    KOVREL_API void ast_dataitem_##P##_decode(T *out, const AstDataItem *item);                               \
    KOVREL_API void ast_dataitem_##P##_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in);   \
    KOVREL_API void ast_dataitem_##P##_get_summary(char *buffer, size_t size, const AstDataItem *item);       \
    KOVREL_API void ast_dataitem_##P##_get_detail_html(char *buffer, size_t size, const AstDataItem *item);   \
    KOVREL_API void ast_dataitem_##P##_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,   \
                                                 const AstDataItem *item);                                    \
    KOVREL_API void ast_dataitem_##P##_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,              \
                                                 const AstDataItemValue *value);

KOVREL_CAT016_ITEM(016_200, AstItem016_200)
KOVREL_CAT016_ITEM(016_300, AstItem016_300)
KOVREL_CAT016_ITEM(016_405, AstItem016_405)
KOVREL_CAT016_ITEM(016_410, AstItem016_410)
KOVREL_CAT016_ITEM(016_420, AstItem016_420)

#undef KOVREL_CAT016_ITEM

/**
 * I016/400 written at 180/2^31 degrees from the latitude and longitude in
 * degrees; refused beyond +-90 degrees of latitude, at or beyond +-180
 * degrees of longitude (2^31 does not fit) or for a value that is not a
 * number.
 */
KOVREL_API void ast_dataitem_016_400_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstPositionWgs84 *in);
KOVREL_API void ast_dataitem_016_400_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* ---- Record level ------------------------------------------------------ */

/**
 * The disassembled CAT016 record: one member per item, each the structure
 * the item's structured decode yields; a member whose item is absent stays
 * zero. SPF has no member.
 */
typedef struct AstRecord016 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstServiceId i015;
    AstMessageType i000;
    AstTimeOfDay i140;
    AstItem016_200 i200;
    AstItem016_300 i300;
    AstPositionWgs84 i400;
    AstItem016_405 i405;
    AstItem016_410 i410;
    AstItem016_420 i420;
} AstRecord016;

/**
 * Disassembles a CAT016 record into *out: zeroed first; valid 0 unless the
 * record is valid and of category 16; SPF is skipped ("Failed to
 * disassemble dataitem %s." at DEBUG).
 */
KOVREL_API void ast_datarecord_016_disassemble(AstRecord016 *out, const AstDataRecord *record);
/**
 * Encodes the members whose valid flag is 1 as one CAT016 record of the
 * profile uap; a value an encoder refuses makes the record invalid.
 */
KOVREL_API void ast_datarecord_016_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord016 *in,
                                            const AstUap *uap);

/*
 * Record accessors. A configuration report carries no target: SAC/SIC, time
 * of day and message type only; invalid results are all zeros (SAC/SIC:
 * 0xFFFFFFFF each).
 */
/** SAC/SIC from I016/010. */
KOVREL_API void ast_datarecord_016_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of day from I016/140. */
KOVREL_API void ast_datarecord_016_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/**
 * From I016/000: both configuration messages (1 system, 2 transmitter and
 * receiver configuration) give 0 ("Unknown"), valid: the message is typed as
 * one that carries no target, for which the library's message types have no
 * name of their own. Any other value leaves the result invalid.
 */
KOVREL_API void ast_datarecord_016_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT016_H */
