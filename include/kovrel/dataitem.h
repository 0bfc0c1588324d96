/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * dataitem.h: data items located inside records, the dispatch record that
 * tells what the library can do with an item, the size rules that delimit
 * items, and the generic operations over any item.
 *
 * Everything the library knows about an item is reached through its
 * identifier: ast_dataitem_get_func fills an AstDataItemFuncs for it. The
 * generic operations look the slots up and supply defaults (and log) where
 * a slot is empty.
 */
#ifndef KOVREL_DATAITEM_H
#define KOVREL_DATAITEM_H

#include "kovrel/export.h"
#include "kovrel/uap.h"

KOVREL_BEGIN_DECLS

/** One data item located inside a record (octets are not owned). */
typedef struct AstDataItem {
    const uint8_t *data; /**< first octet of the item */
    uint64_t length;     /**< item length in octets */
    uint32_t id;         /**< AstItemId */
    uint8_t valid;       /**< 1 when delimited (or written) successfully */
} AstDataItem;

/**
 * A decoded item value, and the element of the item lists that the record
 * encoder and modifier take. value points at the item's structure, whose
 * own first field is again a valid flag.
 */
typedef struct AstDataItemValue {
    uint8_t valid;
    uint32_t id;
    void *value;
} AstDataItemValue;

typedef uint64_t (*AstDataItemGetSizeFn)(const uint8_t *octets, size_t available);
typedef const char *(*AstDataItemGetNameFn)(AstItemId id);
typedef void (*AstDataItemGetSummaryFn)(char *buffer, size_t size, const AstDataItem *item);
typedef void (*AstDataItemGetDetailHtmlFn)(char *buffer, size_t size, const AstDataItem *item);
typedef void (*AstDataItemEncodeExFn)(AstDataItem *out, uint8_t *buffer, size_t size,
                                      const AstDataItemValue *value);
typedef void (*AstDataItemDecodeExFn)(AstDataItemValue *out, void *storage, size_t storage_size,
                                      const AstDataItem *item);

/** What the library can do with one item identifier; empty slots are NULL. */
typedef struct AstDataItemFuncs {
    AstDataItemGetSizeFn get_size;              /**< length of the item at octets, 0 if undelimitable */
    AstDataItemGetNameFn get_name;              /**< display name */
    AstDataItemGetSummaryFn get_summary;        /**< one-line text */
    AstDataItemGetDetailHtmlFn get_detail_html; /**< HTML detail view */
    AstDataItemEncodeExFn encode_ex;            /**< writes the item from a structured value */
    AstDataItemDecodeExFn decode_ex;            /**< decodes into caller storage */
} AstDataItemFuncs;

/** Capability bits of ast_dataitem_get_capabilities. */
#define AST_DATAITEM_CAP_DECODE 0x1u
#define AST_DATAITEM_CAP_SUMMARY 0x2u
#define AST_DATAITEM_CAP_DETAIL 0x4u
#define AST_DATAITEM_CAP_ENCODE 0x8u

/**
 * Fills *out with the functions of an identifier. For an identifier the
 * library does not know every slot is NULL and, unless id is 0,
 * "Unsupported dataitem %s" is logged at CRITICAL.
 */
KOVREL_API void ast_dataitem_get_func(AstDataItemFuncs *out, AstItemId id);

/**
 * Delimits the item id at octets: *out = {octets, length, id, 1}, or length
 * 0 and valid 0 when it cannot be delimited within `available` octets.
 */
KOVREL_API void ast_dataitem_scan(AstDataItem *out, const uint8_t *octets, size_t available, AstItemId id);
/** The size rule's answer for id at octets, 0 when id has none. */
KOVREL_API uint64_t ast_dataitem_get_size(const uint8_t *octets, size_t available, AstItemId id);

/**
 * Decodes an item into caller storage. *out is {0, id, NULL} when storage is
 * NULL or too small for the item's structure, the item is invalid, or the
 * item has no decoder ("Decoding function not implemented for dataitem %s."
 * is logged at WARNING then); otherwise {structure valid flag, id, storage}.
 */
KOVREL_API void ast_dataitem_decode(AstDataItemValue *out, void *storage, size_t storage_size,
                                    const AstDataItem *item);
/**
 * Encodes a structured value into buffer; *out describes the octets written
 * (valid 0 on failure). Items without an encoder log "Enconding function
 * not implemented for dataitem %s." at WARNING (the spelling is kept for
 * existing log filters).
 */
KOVREL_API void ast_dataitem_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                    const AstDataItemValue *value);
/** Copies a valid item's octets into buffer when they fit; *out describes the copy. */
KOVREL_API void ast_dataitem_copy(AstDataItem *out, uint8_t *buffer, size_t size, const AstDataItem *item);
/** Display name of an item, or "UNKNOWN NAME". */
KOVREL_API const char *ast_dataitem_get_name(AstItemId id);
/** One-line summary; "NOT_IMPLEMENTED" when the item has none or is invalid. */
KOVREL_API void ast_dataitem_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** HTML detail view; the empty text when the item has none or is invalid. */
KOVREL_API void ast_dataitem_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
/** Octets as lower-case hexadecimal pairs separated by blanks ("30 00 0c"). */
KOVREL_API void ast_dataitem_get_hex_str(char *buffer, size_t size, const AstDataItem *item);
/** Octets as eight binary digits each, separated by blanks. */
KOVREL_API void ast_dataitem_get_bin_str(char *buffer, size_t size, const AstDataItem *item);
/** Hexadecimal octet table (see html.h) of a valid item. */
KOVREL_API void ast_dataitem_get_hex_html(char *buffer, size_t size, const AstDataItem *item);
/** Bit table (see html.h) of a valid item. */
KOVREL_API void ast_dataitem_get_bin_html(char *buffer, size_t size, const AstDataItem *item);
/** AST_DATAITEM_CAP_* bits of what the identifier supports. */
KOVREL_API uint32_t ast_dataitem_get_capabilities(AstItemId id);
/**
 * Detail view of items that have none: writes the empty text (when size is
 * not 0). It fills the detail slot so that callers may call the slot
 * unconditionally; the item argument is not used.
 */
KOVREL_API void ast_dataitem_get_detail_html_dummy(char *buffer, size_t size, const AstDataItem *item);

/* ---- Size rules --------------------------------------------------------
 * Each returns the item length at octets, or 0 when the item cannot be
 * delimited within `available` octets.
 *
 * fixed N:     N when available >= N.
 * variable N:  octets extended by their FX bit (bit 1), at most N octets.
 *              When octet N still has FX set the item is cut off (0) if
 *              exactly N octets are available; otherwise "Dataitem length
 *              exceed max: %d" is logged at CRITICAL and N is returned.
 * repetitive:  1 + N x REP (REP = first octet), when it fits.
 * explicit:    the first octet as it is (RE, SP and RFS fields); it is not
 *              compared with available, ast_dataitem_scan does that.
 */
KOVREL_API uint64_t ast_dataitem_get_size_fixed(const uint8_t *octets, size_t available, size_t n);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_1_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_2_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_3_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_4_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_5_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_6_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_7_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_8_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_9_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_fixed_12_byte(const uint8_t *octets, size_t available);

KOVREL_API uint64_t ast_dataitem_get_size_variable(const uint8_t *octets, size_t available, size_t n);
KOVREL_API uint64_t ast_dataitem_get_size_var_1_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_2_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_3_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_4_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_5_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_6_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_8_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_11_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_12_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_16_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_var_23_byte(const uint8_t *octets, size_t available);
/** Variable rule with a bound of 999 octets. */
KOVREL_API uint64_t ast_dataitem_get_size_var_unlimited(const uint8_t *octets, size_t available);

KOVREL_API uint64_t ast_dataitem_get_size_repeat(const uint8_t *octets, size_t available, size_t n);
KOVREL_API uint64_t ast_dataitem_get_size_rep_1_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_2_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_3_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_4_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_5_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_6_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_8_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_12_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_15_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_21_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_64_byte(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_get_size_rep_256_byte(const uint8_t *octets, size_t available);

KOVREL_API uint64_t ast_dataitem_reserved_expansion_field_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_special_purpose_field_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_dataitem_random_field_sequencing_get_size(const uint8_t *octets, size_t available);

KOVREL_END_DECLS

#endif /* KOVREL_DATAITEM_H */
