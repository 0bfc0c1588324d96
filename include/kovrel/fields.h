/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * fields.h: every decoded item as named values.
 *
 * Each decoded structure of the library describes its members once (name,
 * kind, unit), so a caller can walk an item's values by name without knowing
 * its C structure: to print them, to put them into a table, to hand them to
 * another language. The same descriptions let a caller fill a structure by
 * field name and encode it.
 *
 * Field names are the lower-case mnemonics of the ASTERIX standard ("sac",
 * "rho", "typ", "mode3a"). A scaled field gives its value in the unit that
 * the item's summary prints ("NM", "deg", "FL", "kt", ...). A compound item
 * gives one group per present subfield, named by the subfield's short id in
 * lower case ("srl"); repetitive items and subfields give arrays; Mode S MB
 * data gives one group per register ("bds40", "bds60") with its BDS code and
 * its decoded fields.
 *
 * Nothing here allocates or locks: walks decode into storage on the stack,
 * and every function may run on several threads at once.
 */
#ifndef KOVREL_FIELDS_H
#define KOVREL_FIELDS_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/** What one field of a walk holds. */
typedef enum AstFieldKind {
    AST_FIELD_FLAG = 1,        /**< one bit: u is 0 or 1 */
    AST_FIELD_UNSIGNED = 2,    /**< u */
    AST_FIELD_SIGNED = 3,      /**< i */
    AST_FIELD_REAL = 4,        /**< real (may be NaN or infinite when the structure holds so) */
    AST_FIELD_TEXT = 5,        /**< text, length characters (not NUL-terminated) */
    AST_FIELD_ENUM = 6,        /**< u is the code, text/length its display name ("" when unnamed) */
    AST_FIELD_OCTETS = 7,      /**< octets, length of them */
    AST_FIELD_GROUP_BEGIN = 8, /**< the fields up to the matching GROUP_END belong to this group */
    AST_FIELD_GROUP_END = 9,
    AST_FIELD_ARRAY_BEGIN = 10, /**< elements follow, each named NULL, up to ARRAY_END */
    AST_FIELD_ARRAY_END = 11
} AstFieldKind;

/** How a number is best shown; the value itself is in u. */
typedef enum AstFieldFormat {
    AST_FIELD_FORMAT_DECIMAL = 0,
    AST_FIELD_FORMAT_OCTAL4 = 1, /**< four octal digits: Mode 3/A and Mode 2 codes ("7700") */
    AST_FIELD_FORMAT_HEX6 = 2    /**< six upper-case hexadecimal digits: 24-bit addresses ("3C654A") */
} AstFieldFormat;

/** One field of a walk. Pointers stay valid only during the visitor call. */
typedef struct AstField {
    const char *name;   /**< mnemonic; NULL for an element of an array and for the END kinds */
    uint32_t kind;      /**< AstFieldKind */
    uint32_t format;    /**< AstFieldFormat */
    uint32_t depth;     /**< 0 for the item's own fields, +1 inside each group or array */
    uint32_t index;     /**< position inside the enclosing array, else 0 */
    const char *unit;   /**< "NM", "deg", "ft", "FL", "kt", "m/s", "ft/min", "s", "dBm", ...; "" when none */
    uint64_t u;         /**< FLAG, UNSIGNED, ENUM */
    int64_t i;          /**< SIGNED */
    double real;        /**< REAL */
    const char *text;   /**< TEXT and ENUM */
    const uint8_t *octets; /**< OCTETS */
    size_t length;      /**< characters of text, or octets */
} AstField;

/**
 * Called once per field. Return non-zero to go on, 0 to stop the walk.
 */
typedef int (*AstFieldVisitor)(void *context, const AstField *field);

/** Results of the walks. */
typedef enum AstFieldsResult {
    AST_FIELDS_DONE = 1,      /**< every field was visited */
    AST_FIELDS_NONE = 0,      /**< the item has no field description (nothing visited) */
    AST_FIELDS_INVALID = -1,  /**< the span is not valid or does not decode as its item (nothing visited) */
    AST_FIELDS_STOPPED = -2   /**< the visitor returned 0 */
} AstFieldsResult;

/** 1 when items of this identifier describe their fields, else 0. */
KOVREL_API int ast_dataitem_has_fields(AstItemId id);

/**
 * Decodes the item span (into storage on the stack) and calls visitor once
 * per field, groups and arrays opened and closed by their BEGIN and END
 * fields. Returns an AstFieldsResult. A span that is not valid, of an
 * identifier without a description, or of the wrong length visits nothing.
 */
KOVREL_API int ast_dataitem_walk_fields(const AstDataItem *item, AstFieldVisitor visitor, void *context);

/**
 * Walks a value decoded before (ast_dataitem_decode): value->id selects the
 * description, value->value is the structure. Returns an AstFieldsResult;
 * AST_FIELDS_INVALID when value or its structure is missing or value->valid
 * is not 1.
 */
KOVREL_API int ast_datavalue_walk_fields(const AstDataItemValue *value, AstFieldVisitor visitor, void *context);

/**
 * Writes the fields of the item span as one compact JSON object
 * ({"sac":25,"sic":13}) into buffer, NUL-terminated and cut to size.
 * Returns the length the whole object needs (without the NUL), as snprintf
 * does: a result of size or more means the text was cut (the cut text is
 * not valid JSON). Returns 0 and writes the empty text when the item has no
 * fields (see ast_dataitem_walk_fields).
 *
 * Texts are escaped; reals that are NaN or infinite are written as null;
 * reals are written with up to 17 significant digits, as short as gives the
 * same double back; enumerations are written as their code; Mode 3/A codes
 * and addresses (AST_FIELD_FORMAT_*) as strings ("7700", "3C654A"); octets
 * as a string of hexadecimal digits.
 */
KOVREL_API size_t ast_dataitem_get_fields_json(char *buffer, size_t size, const AstDataItem *item);

/**
 * The JSON object of a value decoded before (ast_dataitem_decode), as
 * ast_dataitem_get_fields_json writes it for a span; 0 and the empty text
 * when ast_datavalue_walk_fields would not walk it.
 */
KOVREL_API size_t ast_datavalue_get_fields_json(char *buffer, size_t size, const AstDataItemValue *value);

/**
 * The size of the structure that an identifier's fields describe (what
 * ast_dataitem_decode fills and ast_dataitem_encode reads); 0 when the
 * identifier has no description.
 */
KOVREL_API size_t ast_dataitem_fields_storage_size(AstItemId id);

/**
 * Sets storage to the defaults of the identifier's structure (its init).
 * Returns 1, or 0 when the identifier has no description or storage is NULL
 * or smaller than ast_dataitem_fields_storage_size(id).
 */
KOVREL_API int ast_dataitem_fields_init(void *storage, size_t size, AstItemId id);

/** Results of ast_dataitem_fields_set. */
typedef enum AstFieldSetResult {
    AST_FIELD_SET_OK = 1,
    AST_FIELD_SET_UNKNOWN = 0,       /**< no field of that name (or no description, or no storage) */
    AST_FIELD_SET_OUT_OF_RANGE = -1, /**< the value does not fit the field */
    AST_FIELD_SET_WRONG_KIND = -2,   /**< e.g. a text for a number, a group given a value */
    AST_FIELD_SET_READ_ONLY = -3     /**< the field cannot be set (octets, register groups) */
} AstFieldSetResult;

/**
 * Sets one field of the identifier's structure in storage, by its path
 * (names joined by '.': "rho", "bds.ara" for a field of a group; an element
 * of an array by its position from 0: "devices[2]" for an array of values,
 * "vectors[1].x" for a field of an array of groups). Setting an element
 * past those in use brings the array's count up to it; the elements
 * skipped take their defaults. An array as a whole takes no value
 * (AST_FIELD_SET_WRONG_KIND); a position past the array's capacity is
 * AST_FIELD_SET_OUT_OF_RANGE.
 * value->kind says which member of value is read: FLAG, UNSIGNED and ENUM
 * read u, SIGNED reads i, REAL reads real, TEXT reads text and length. A
 * number is converted to the field's kind when it fits exactly (an UNSIGNED
 * 1 sets a flag; a REAL 3.0 sets an unsigned field); a scaled field takes
 * its value in its unit and keeps the raw integer in step. Fields with a
 * presence condition (a subfield, a register status) mark themselves
 * present. Returns an AstFieldSetResult; on failure storage is unchanged.
 */
KOVREL_API int ast_dataitem_fields_set(void *storage, size_t size, AstItemId id, const char *path,
                                       const AstField *value);

KOVREL_END_DECLS

#endif /* KOVREL_FIELDS_H */
