/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * datarecord.h: data records (an FSPEC followed by the items it announces),
 * their encoding, copying and modification, their HTML views, and
 * category-independent access to the facts most records carry.
 */
#ifndef KOVREL_DATARECORD_H
#define KOVREL_DATARECORD_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/fspec.h"
#include "kovrel/items.h"
#include "kovrel/uap.h"

KOVREL_BEGIN_DECLS

/** Most items a record holds. */
#define AST_DATARECORD_MAX_ITEMS 48

/** A decoded (or encoded) record; octets stay in the caller's buffer. */
typedef struct AstDataRecord {
    const uint8_t *data; /**< first octet (the FSPEC) */
    uint64_t length;     /**< FSPEC and items, in octets */
    uint32_t category;
    AstUap uap;          /**< profile used to read or write it */
    AstFspec fspec;
    AstDataItem items[AST_DATARECORD_MAX_ITEMS]; /**< in FRN order */
    uint64_t item_count;
    uint8_t valid;       /**< 1 when read or written whole */
} AstDataRecord;

/** What the encoder takes for one record; item order does not matter. */
typedef struct AstDataRecordInput {
    uint32_t category;
    AstUap uap;
    AstDataItemValue items[AST_DATARECORD_MAX_ITEMS];
    uint64_t item_count;
} AstDataRecordInput;

/** Replacement values for the record and block modifiers. */
typedef struct AstDataItemList {
    AstDataItemValue items[AST_DATARECORD_MAX_ITEMS];
    uint64_t item_count;
} AstDataItemList;

/* ---- Accessor results. All zeros (SAC/SIC: all ones) when not available. */

/** Message type of a record (see ast_msgtype_to_str). */
typedef struct AstRecordMsgType {
    uint32_t valid;
    uint32_t value;
} AstRecordMsgType;

/** Callsign, cut at the first blank; ten zero octets when not available. */
typedef struct AstRecordCallsign {
    uint8_t valid;
    char callsign[9];
} AstRecordCallsign;

/** One scaled value: feet (flight level, selected altitude), degrees (heading), knots (speed). */
typedef struct AstRecordValue {
    uint32_t valid;
    double value;
} AstRecordValue;

/** WGS-84 position in degrees. */
typedef struct AstRecordWgs84 {
    uint32_t valid;
    double latitude;
    double longitude;
} AstRecordWgs84;

/** Polar position: range in NM, azimuth in degrees. */
typedef struct AstRecordPolar {
    uint32_t valid;
    double rho;
    double theta;
} AstRecordPolar;

/** Cartesian position of the target relative to the sensor or the system
 * reference point, in metres (x east, y north). */
typedef struct AstRecordCartesian {
    uint32_t valid;
    double x;
    double y;
} AstRecordCartesian;

/** The per-category accessors; empty slots are NULL. */
typedef struct AstDataRecordFuncs {
    void (*get_sacsic)(AstDataSourceIdentifier *out, const AstDataRecord *record);
    void (*get_timeofday)(AstTimeOfDay *out, const AstDataRecord *record);
    void (*get_msgtype)(AstRecordMsgType *out, const AstDataRecord *record);
    void (*get_tracknum)(AstTrackNumber *out, const AstDataRecord *record);
    void (*get_squawk)(AstMode3aCode *out, const AstDataRecord *record);
    void (*get_callsign)(AstRecordCallsign *out, const AstDataRecord *record);
    void (*get_icaoaddr)(AstTargetAddress *out, const AstDataRecord *record);
    void (*get_coordinate)(AstRecordWgs84 *out, const AstDataRecord *record);
    void (*get_flightlevel)(AstRecordValue *out, const AstDataRecord *record);
    void (*get_selaltitude)(AstRecordValue *out, const AstDataRecord *record);
    void (*get_polarcoord)(AstRecordPolar *out, const AstDataRecord *record);
    void (*get_heading)(AstRecordValue *out, const AstDataRecord *record);
    void (*get_speed)(AstRecordValue *out, const AstDataRecord *record);
    void (*get_cartesianvel)(AstVelocityCartesian *out, const AstDataRecord *record);
    void (*get_vrate)(AstVerticalRate *out, const AstDataRecord *record);
} AstDataRecordFuncs;

/**
 * Decodes one record of `category` at octets with the profile uap: the
 * FSPEC, then each announced item delimited by its size rule. The record is
 * invalid when the FSPEC is incomplete, an item cannot be delimited within
 * `available` (also a spare or undefined FRN), or more than 48 items are
 * announced ("Too many dataitems in record: %zu" at PANIC). Items found
 * before a failure stay readable.
 */
KOVREL_API void ast_datarecord_decode(AstDataRecord *out, const uint8_t *octets, size_t available,
                                      uint32_t category, const AstUap *uap);
/**
 * Encodes a record into buffer: FSPEC with FX bits, then the items in FRN
 * order. Items whose identifier is not in the profile are left out. Invalid
 * when no item is in the profile ("Failed to encode FSPEC.") or an item fails
 * ("Failed to encode dataitem %s."), both at DEBUG.
 */
KOVREL_API void ast_datarecord_encode(AstDataRecord *out, uint8_t *buffer, size_t size,
                                      const AstDataRecordInput *input);
/** Copies a decoded record into buffer; *out describes the copy. */
KOVREL_API void ast_datarecord_copy(AstDataRecord *out, uint8_t *buffer, size_t size, const AstDataRecord *record);
/**
 * Writes a new record into buffer from a decoded one, encoding the items
 * for which `replacements` holds a value (first match by identifier) and
 * copying the others. The set of items does not change.
 */
KOVREL_API void ast_datarecord_modify(AstDataRecord *out, uint8_t *buffer, size_t size,
                                      const AstDataRecord *record, const AstDataItemList *replacements);
/** Hexadecimal octet table of a valid record (empty text otherwise). */
KOVREL_API void ast_datarecord_get_hex_html(char *buffer, size_t size, const AstDataRecord *record);
/** Table of the record's items: Dataitem, Name, Size, Summary. */
KOVREL_API void ast_datarecord_get_detail_html(char *buffer, size_t size, const AstDataRecord *record);
/** Fills *out with the accessors of a category (all NULL for others). */
KOVREL_API void ast_datarecord_get_func(AstDataRecordFuncs *out, uint32_t category);

/* Generic accessors: call the category's accessor when the record is valid
 * and the category has one; otherwise an invalid (zero) result. */
KOVREL_API void ast_datarecord_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_squawk(AstMode3aCode *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_flightlevel(AstRecordValue *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_selaltitude(AstRecordValue *out, const AstDataRecord *record);
/** Callsign cut at the first blank or NUL. */
KOVREL_API void ast_datarecord_get_callsign(AstRecordCallsign *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_icaoaddr(AstTargetAddress *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_wgs84coord(AstRecordWgs84 *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_polarcoord(AstRecordPolar *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_speed(AstRecordValue *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_heading(AstRecordValue *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record);
KOVREL_API void ast_datarecord_get_vrate(AstVerticalRate *out, const AstDataRecord *record);

/**
 * Cartesian position in metres, read by the category's own accessor (it has
 * no slot in AstDataRecordFuncs, whose layout is fixed):
 *   CAT001 I001/042 (1/64 NM), CAT010 I010/042 (1 m), CAT020 I020/042
 *   (0.5 m), CAT048 I048/042 (1/128 NM), CAT062 I062/100 (0.5 m);
 * NM are converted at 1852 m. All zeros for a record that is invalid, lacks
 * the item, or belongs to a category without a Cartesian position (the
 * others carry WGS-84 or polar positions, or positions of something other
 * than a target, such as CAT008 weather vectors).
 */
KOVREL_API void ast_datarecord_get_cartesiancoord(AstRecordCartesian *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_DATARECORD_H */
