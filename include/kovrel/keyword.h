/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * keyword.h: a small fixed set of keywords by which an application lets its
 * user search decoded records (SAC/SIC, time, callsign, address ...), the
 * word comparison used for the text keywords, and the record operations
 * that tell whether a category can supply a keyword, whether a record holds
 * it, whether its value matches a search text, and the value as text.
 *
 * Every value comes from the record accessors of datarecord.h, so a
 * category answers exactly the keywords its accessors serve.
 *
 * Search texts, keyword by keyword (a text that cannot be read never
 * matches, nor does a numeric search text of 64 characters or more):
 *   0  SAC/SIC             "25/13": both must be equal. A single number
 *                          ("25") names the SAC alone and matches every SIC
 *                          of that area, the way a viewer lists all the
 *                          sensors of one country or centre.
 *   1  Timestamp Tx        "HH:MM:SS.mmm": hours, minutes, seconds and
 *                          milliseconds read as four numbers ("5" after the
 *                          point is 5 ms), all equal to the time of day.
 *   2  Type                the first word of the message type's name
 *                          ("Track", "Plot", "measurement"), see
 *                          ast_keyword_match.
 *   3  Track Number        a decimal number.
 *   4  Mode 3/A            octal digits ("7700").
 *   5  Flight Level,
 *   6  Selected Altitude   a whole number of feet, equal to the value
 *                          truncated towards zero (as the text form shows it).
 *   7  Callsign            the first word, see ast_keyword_match.
 *   8  ICAO Address        hexadecimal digits ("4CA1FF").
 *   9  WGS84 Coordinates   "LAT, LON" in decimal degrees, each within 1e-6.
 *  10  Polar Coordinates   "R:RHO T:THETA", within 5e-5 NM and 0.005 degree.
 *  11  Speed               knots, within 0.5 kt: the coarsest ground speed
 *                          the accessors give comes from Cartesian velocity
 *                          in steps of 0.25 m/s, about 0.49 kt.
 *  12  Heading             "M:DEG T:DEG", "M:DEG" or "T:DEG", each within
 *                          0.005 degree, measured round the circle (359.999
 *                          is within reach of 0). The record accessors give
 *                          one heading per record: the direction of motion
 *                          over ground against true north (a track angle,
 *                          or the course of the Cartesian velocity), or,
 *                          where a record carries nothing better, the
 *                          aircraft's magnetic heading from its Mode S
 *                          registers. Both labels are therefore compared
 *                          with that one value: T is how the text form
 *                          labels it, M is accepted so that a search typed
 *                          as a magnetic heading still finds the record;
 *                          "M:a T:b" matches only when a and b both do.
 *  13  Cartesian Velocity  "VX:X VY:Y", "VX:X" or "VY:Y" in m/s, each
 *                          within 0.25 m/s (one step of the velocity items).
 *  14  Vertical Rate       feet per minute, within 6.25 ft/min (one step of
 *                          the rate items).
 */
#ifndef KOVREL_KEYWORD_H
#define KOVREL_KEYWORD_H

#include "kovrel/datarecord.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/** Keyword identifiers. */
enum {
    AST_KEYWORD_SACSIC = 0,
    AST_KEYWORD_TIMESTAMP = 1,
    AST_KEYWORD_TYPE = 2,
    AST_KEYWORD_TRACK_NUMBER = 3,
    AST_KEYWORD_MODE3A = 4,
    AST_KEYWORD_FLIGHT_LEVEL = 5,
    AST_KEYWORD_SELECTED_ALTITUDE = 6,
    AST_KEYWORD_CALLSIGN = 7,
    AST_KEYWORD_ICAO_ADDRESS = 8,
    AST_KEYWORD_WGS84 = 9,
    AST_KEYWORD_POLAR = 10,
    AST_KEYWORD_SPEED = 11,
    AST_KEYWORD_HEADING = 12,
    AST_KEYWORD_CARTESIAN_VELOCITY = 13,
    AST_KEYWORD_VERTICAL_RATE = 14
};

/** Number of keywords (identifiers 0 to AST_KEYWORD_COUNT - 1). */
#define AST_KEYWORD_COUNT 15

/** Format flags of ast_datarecord_get_keyword (WGS-84 position only). */
#define AST_KEYWORD_FORMAT_HIGH 0x1u      /**< seconds with hundredths */
#define AST_KEYWORD_FORMAT_VERY_HIGH 0x2u /**< seconds with millionths (wins over HIGH) */
#define AST_KEYWORD_FORMAT_DECIMAL 0x4u   /**< "%09.6f, %010.6f" decimal degrees */

/** Display name of a keyword ("SAC/SIC", "Callsign"), cut to size; empty for an id above 14. */
KOVREL_API void ast_keyword_name(char *buffer, size_t size, uint32_t id);
/** One-line description of a keyword, cut to size; empty for an id above 14. */
KOVREL_API void ast_keyword_description(char *buffer, size_t size, uint32_t id);

/**
 * Compares the first blank-delimited word of value with the first word of
 * search, leading blanks skipped in both. The words must be equal, not
 * merely one a prefix of the other; case_sensitive 0 folds case. An empty
 * (or all blank) value matches only an empty search. NULL texts never match.
 */
KOVREL_API bool ast_keyword_match(const char *value, const char *search, uint8_t case_sensitive);

/** True when records of `category` can supply the keyword (its accessor exists). */
KOVREL_API bool ast_datarecord_supports_keyword(uint32_t category, uint32_t id);
/**
 * True when the record is a valid decoded record and its category's
 * accessor finds the keyword's value in it; for the callsign, a callsign
 * that is not all blanks.
 */
KOVREL_API bool ast_datarecord_contain_keyword(const AstDataRecord *record, uint32_t id);
/** True when the record's value of the keyword matches search (see the rules above). */
KOVREL_API bool ast_datarecord_match_keyword(const AstDataRecord *record, uint32_t id, const char *search,
                                             uint8_t case_sensitive);
/**
 * Writes the record's value of the keyword as text, cut to size, and
 * returns true; false (and nothing usable) when buffer is NULL, the record
 * is not valid, the id is above 14, or the record has no such value.
 * Forms: "%.3d/%.3d"; "HH:MM:SS.mmm"; the message type's name; "%d";
 * "%.4o" followed by "G" when garbled and "S" when not extracted in the
 * last scan; "%.5d" feet; the callsign; "%.6X"; the position (by `flags`,
 * AST_KEYWORD_FORMAT_*; none: ast_latlong_to_str); "R:%08.4f T:%06.2f";
 * "%04.2f" knots; "T:%06.2f" (see Heading above); "VX:%+07.2f VY:%+07.2f";
 * "%+08.2f" ft/min.
 */
KOVREL_API bool ast_datarecord_get_keyword(char *buffer, size_t size, const AstDataRecord *record, uint32_t id,
                                           uint32_t flags);

KOVREL_END_DECLS

#endif /* KOVREL_KEYWORD_H */
