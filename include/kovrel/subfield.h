/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * subfield.h: compound data items. A compound item opens with a primary
 * subfield read like an FSPEC (seven presence bits and an FX bit an octet),
 * followed by the data subfields whose bits are set, in order.
 *
 * A subfield identifier is item identifier x 1000 + subfield number
 * (48130001 is subfield 1 of I048/130).
 */
#ifndef KOVREL_SUBFIELD_H
#define KOVREL_SUBFIELD_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/fspec.h"

KOVREL_BEGIN_DECLS

/** Most subfields a split compound item holds. */
#define AST_SUBFIELD_MAX 35

/** One subfield of a split compound item. */
typedef struct AstSubfield {
    uint8_t present;     /**< its bit is set in the primary subfield */
    const uint8_t *data; /**< NULL when absent */
    uint64_t length;     /**< 0 when absent */
    uint32_t id;         /**< subfield identifier */
    uint8_t valid;
} AstSubfield;

/** A split compound item. */
typedef struct AstSubfieldList {
    uint8_t valid;
    AstFspec primary;                      /**< the primary subfield */
    AstSubfield spans[AST_SUBFIELD_MAX];   /**< positions 1.. in order, present or not */
    uint64_t span_count;
} AstSubfieldList;

typedef uint64_t (*AstSubfieldGetSizeFn)(const uint8_t *octets, size_t available, uint32_t subfield_id);
typedef const char *(*AstSubfieldGetTextFn)(uint32_t subfield_id);
typedef void (*AstSubfieldGetSummaryFn)(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
typedef void (*AstSubfieldGetDetailHtmlFn)(char *buffer, size_t size, const AstSubfield *span,
                                          uint32_t subfield_id);

/** The functions of a compound item's subfields; empty slots are NULL. */
typedef struct AstSubfieldFuncs {
    AstSubfieldGetSizeFn get_size;
    AstSubfieldGetTextFn get_id;   /**< short identifier text */
    AstSubfieldGetTextFn get_name; /**< display name */
    AstSubfieldGetSummaryFn get_summary;
    AstSubfieldGetDetailHtmlFn get_detail_html;
} AstSubfieldFuncs;

/** Fills *out for the item of subfield_id (subfield_id / 1000); all NULL for other items. */
KOVREL_API void ast_subfield_get_func(AstSubfieldFuncs *out, uint32_t subfield_id);
/** Size of the subfield at octets, 0 when unknown or undelimitable. */
KOVREL_API uint64_t ast_subfield_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
/** Short identifier text, or "---". */
KOVREL_API const char *ast_subfield_get_id(uint32_t subfield_id);
/** Display name, or "UNKNOWN_SUBFIELD_NAME". */
KOVREL_API const char *ast_subfield_get_name(uint32_t subfield_id);
/** One-line summary, or "NOT_IMPLEMENTED". */
KOVREL_API void ast_subfield_get_summary(char *buffer, size_t size, const AstSubfield *span, uint32_t subfield_id);
/** HTML detail view, or the empty text. */
KOVREL_API void ast_subfield_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                             uint32_t subfield_id);
/** Bit table of a valid span's octets, or the empty text. */
KOVREL_API void ast_subfield_get_bin_html(char *buffer, size_t size, const AstSubfield *span);
/** 0x2 when subfields have summaries, 0x4 when they have detail views. */
KOVREL_API uint32_t ast_subfield_get_capabilities(uint32_t subfield_id);

/**
 * Variable subfield of at most n octets (FX-extended); like the item rule
 * but logging "Subfield length exceed max: %d".
 */
KOVREL_API uint64_t ast_subfield_get_size_variable(const uint8_t *octets, size_t available, size_t n);
/** Repetitive subfield: 1 + n x first octet; 0 when it does not fit or n or available is 0. */
KOVREL_API uint64_t ast_subfield_get_size_repeated(const uint8_t *octets, size_t available, size_t n);

/**
 * Size rule of a compound item: primary subfield plus every present
 * subfield; 0 when undelimitable or beyond available.
 */
KOVREL_API uint64_t ast_dataitem_subfields_get_size(const uint8_t *octets, size_t available, AstItemId item_id);
/** Number of subfields of a compound item; 0 and "Undefined Subfield %s" (CRITICAL) otherwise. */
KOVREL_API uint32_t ast_dataitem_subfields_get_number(AstItemId item_id);
/** Splits a compound item into its subfields. */
KOVREL_API void ast_dataitem_subfields_decode(AstSubfieldList *out, const AstDataItem *item);
/** As ast_dataitem_subfields_decode into caller storage (an AstSubfieldList). */
KOVREL_API void ast_dataitem_subfields_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                                 const AstDataItem *item);
/** "SUBFIELDS:%02u/%02u": present spans / spans. */
KOVREL_API void ast_dataitem_subfields_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Primary subfield table, then each present subfield's bits and detail view. */
KOVREL_API void ast_dataitem_subfields_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_SUBFIELD_H */
