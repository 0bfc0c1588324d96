/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat019.h: Category 019, multilateration system status messages (edition
 * 1.3 of the category).
 *
 * Every CAT019 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items.
 *
 * The category's own items decode into the structures below: a 32-bit valid
 * flag first, then one member per field of the item in wire order, named by
 * the field's mnemonic in lower case. A quantity keeps its raw wire value
 * (x_raw), its LSB (x_lsb) and its value in the unit noted (x); the
 * encoders write the raw members, and the named fields (fields.h) set the
 * raw member with the value. Flags and codes are kept as the wire has them
 * (1 for TSV means "invalid time source").
 *
 * Per item: _init (zeros, valid 0), _decode (valid 1 only for a valid span
 * of the item's identifier and exact length), _encode (refused, zero-length
 * invalid span, when in is not valid, a value does not fit its bits or the
 * buffer is short), _get_summary and _get_detail_html (empty text when the
 * item does not decode), and the _decode_ex/_encode_ex entry points of the
 * item dispatch.
 */
#ifndef KOVREL_CAT019_H
#define KOVREL_CAT019_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT019 item ("Remote Sensor Detailed Status"); any other
 * identifier gives "Unknown CAT019 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_019_get_name(AstItemId id);

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

/* I019/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_019_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_019_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I019/000 Message Type: message type (AstMessageType); no summary or detail view. */
KOVREL_API void ast_dataitem_019_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_019_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I019/140 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_019_140_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_019_140_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I019/600 Position of the MLT System Reference Point: 8-octet WGS-84 position
 * (AstPositionWgs84) at 180/2^30 degrees, with the common item's views; the
 * encoder is the category's own (below), as the common one writes 180/2^25.
 */
KOVREL_API void ast_dataitem_019_600_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/*
 * REF and SPF: reserved expansion field (AstReservedExpansionField) and special
 * purpose field (AstSpecialPurposeField); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_019_REF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_019_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Category items -------------------------------------------------------- */

/** I019/550 System Status. Summary "NOGO:OPERATIONAL" then the words OVL, TSV and TTF of the bits set. */
typedef struct AstItem019_550 {
    uint32_t valid;
    uint32_t nogo; /**< 0 operational, 1 degraded, 2 NOGO, 3 undefined */
    uint8_t ovl;   /**< overload */
    uint8_t tsv;   /**< time source invalid */
    uint8_t ttf;   /**< test target failure */
} AstItem019_550;

/**
 * I019/551 Tracking Processor Detailed Status: per tracking processor n
 * (1-4), tpNa (1 executing, 0 standby) and tpNb (1 good, 0 faulted). Both 0:
 * the processor is not used. Summary: the names of the bits set, or NONE.
 */
typedef struct AstItem019_551 {
    uint32_t valid;
    uint8_t tp1a, tp1b, tp2a, tp2b, tp3a, tp3b, tp4a, tp4b;
} AstItem019_551;

/** One remote sensor of I019/552. */
typedef struct AstItem019Sensor {
    uint32_t rsi;   /**< identification number */
    uint8_t rs1090; /**< 1090 MHz receiver present */
    uint8_t tx1030; /**< 1030 MHz transmitter present */
    uint8_t tx1090; /**< 1090 MHz transmitter present */
    uint8_t rss;    /**< 1 good, 0 faulted */
    uint8_t rso;    /**< 1 online, 0 offline */
} AstItem019Sensor;

#define AST_ITEM019_552_MAX 255

/** I019/552 Remote Sensor Detailed Status. Summary "REP:n" then per sensor "RSI:n" and the words of its bits set. */
typedef struct AstItem019_552 {
    uint32_t valid;
    uint32_t rep;
    AstItem019Sensor sensors[AST_ITEM019_552_MAX];
} AstItem019_552;

/**
 * I019/553 Reference Transponder Detailed Status: two-bit states (1 warning,
 * 2 faulted, 3 good) of transponders 1 and 2, and of 3 and 4 when the
 * second octet is present (ext 1). Summary "REFTR1:GOOD REFTR2:FAULTED ...".
 */
typedef struct AstItem019_553 {
    uint32_t valid;
    uint32_t reftr1, reftr2;
    uint8_t ext; /**< second octet present */
    uint32_t reftr3, reftr4;
} AstItem019_553;

/** I019/610 Height of the MLT System Reference Point: metres above mean sea level (1/4 m). Summary "HEIGHT:%.2f". */
typedef struct AstItem019_610 {
    uint32_t valid;
    int32_t height_raw;
    double height_lsb;
    double height; /**< m */
} AstItem019_610;

/** I019/620 WGS-84 Undulation: metres (1 m). Summary "UND:%d". */
typedef struct AstItem019_620 {
    uint32_t valid;
    int32_t und_raw;
    double und_lsb;
    double und; /**< m */
} AstItem019_620;

#define KOVREL_CAT019_ITEM(P, T)                                                                                \
    KOVREL_API void ast_dataitem_##P##_init(T *out);                                                          \
    KOVREL_API void ast_dataitem_##P##_decode(T *out, const AstDataItem *item);                               \
    KOVREL_API void ast_dataitem_##P##_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in);   \
    KOVREL_API void ast_dataitem_##P##_get_summary(char *buffer, size_t size, const AstDataItem *item);       \
    KOVREL_API void ast_dataitem_##P##_get_detail_html(char *buffer, size_t size, const AstDataItem *item);   \
    KOVREL_API void ast_dataitem_##P##_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,   \
                                                 const AstDataItem *item);                                    \
    KOVREL_API void ast_dataitem_##P##_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,              \
                                                 const AstDataItemValue *value);

KOVREL_CAT019_ITEM(019_550, AstItem019_550)
KOVREL_CAT019_ITEM(019_551, AstItem019_551)
KOVREL_CAT019_ITEM(019_552, AstItem019_552)
KOVREL_CAT019_ITEM(019_553, AstItem019_553)
KOVREL_CAT019_ITEM(019_610, AstItem019_610)
KOVREL_CAT019_ITEM(019_620, AstItem019_620)

#undef KOVREL_CAT019_ITEM

/**
 * I019/600 written at 180/2^30 degrees from the latitude and longitude in
 * degrees; refused beyond +-90/+-180 degrees or for a value that is not a
 * number.
 */
KOVREL_API void ast_dataitem_019_600_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                            const AstPositionWgs84 *in);
KOVREL_API void ast_dataitem_019_600_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* ---- Record level ------------------------------------------------------ */

/**
 * The disassembled CAT019 record: one member per item, each the structure
 * the item's structured decode yields; a member whose item is absent stays
 * zero. REF and SPF have no member.
 */
typedef struct AstRecord019 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstMessageType i000;
    AstTimeOfDay i140;
    AstItem019_550 i550;
    AstItem019_551 i551;
    AstItem019_552 i552;
    AstItem019_553 i553;
    AstPositionWgs84 i600;
    AstItem019_610 i610;
    AstItem019_620 i620;
} AstRecord019;

/**
 * Disassembles a CAT019 record into *out: zeroed first; valid 0 unless the
 * record is valid and of category 19; REF and SPF are skipped ("Failed to
 * disassemble dataitem %s." at DEBUG).
 */
KOVREL_API void ast_datarecord_019_disassemble(AstRecord019 *out, const AstDataRecord *record);
/**
 * Encodes the members whose valid flag is 1 as one CAT019 record of the
 * profile uap; a value an encoder refuses makes the record invalid.
 */
KOVREL_API void ast_datarecord_019_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord019 *in,
                                            const AstUap *uap);

/*
 * Record accessors. A status message carries no target: SAC/SIC, time of
 * day and message type only. The result is invalid, all zeros (SAC/SIC:
 * 0xFFFFFFFF each), when the record is invalid or lacks the item.
 */
/** SAC/SIC from I019/010. */
KOVREL_API void ast_datarecord_019_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of day from I019/140. */
KOVREL_API void ast_datarecord_019_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/**
 * From I019/000: 1 (start of update cycle) gives 1 ("North"), the cycle
 * marker a display times its picture by, as the north marker of a radar;
 * 2 and 3 (periodic and event-triggered status) give 6 ("Mlat"). Any other
 * value leaves the result invalid.
 */
KOVREL_API void ast_datarecord_019_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT019_H */
