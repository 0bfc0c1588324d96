/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * fspec.h: the FSPEC that opens every data record (and the
 * primary subfield of compound items). Each octet carries seven FRN bits
 * (bit 8 of octet k is FRN 7k+1) and an FX bit (bit 1) that announces a
 * further octet.
 */
#ifndef KOVREL_FSPEC_H
#define KOVREL_FSPEC_H

#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/** A decoded FSPEC. */
typedef struct AstFspec {
    const uint8_t *octets; /**< first FSPEC octet, inside the caller's buffer */
    uint64_t length;       /**< FSPEC octets, the last one (FX 0) included */
    uint64_t frn_count;    /**< 7 x length */
    uint64_t set_count;    /**< FRN bits set (FX bits not counted) */
    uint8_t valid;         /**< 1 when complete and acceptable */
} AstFspec;

/**
 * Reads an FSPEC from at most `available` octets. An FSPEC whose FX chain
 * runs past the octets is invalid with length 0. An FSPEC with no FRN bit
 * set is invalid unless AST_OPTION_ACCEPT_EMPTY_FSPEC is set (its length and
 * counts are filled either way). NULL octets give an invalid FSPEC.
 */
KOVREL_API void ast_fspec_decode(AstFspec *out, const uint8_t *octets, size_t available);

/** True when FRN frn is set; false for frn 0, beyond frn_count or invalid. */
KOVREL_API bool ast_fspec_is_set(const AstFspec *fspec, uint32_t frn);

/**
 * Sets or clears the bit of FRN frn in an FSPEC being built; other bits, the
 * FX bits included, are untouched. False when frn is 0 or the buffer is too
 * small to hold the octet of frn.
 */
KOVREL_API bool ast_fspec_set(uint8_t *buffer, size_t size, uint32_t frn, bool value);

/**
 * Copies the octets of a valid FSPEC into buffer; *out then describes the
 * copy. When src is invalid, buffer is NULL or too small, *out has length 0
 * and valid 0 (its counts are still those of src).
 */
KOVREL_API void ast_fspec_copy(AstFspec *out, uint8_t *buffer, size_t size, const AstFspec *src);

KOVREL_END_DECLS

#endif /* KOVREL_FSPEC_H */
