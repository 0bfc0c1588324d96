/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat021.h: Category 021, ADS-B target reports, editions 0.23, 0.26, 2.1
 * and 2.7.
 *
 * Items whose layout changed between the early editions and the later ones
 * have identifiers of their own, 21902 to 21911, printed with the standard
 * item number they replace (21903 is the two-octet I021/040 of editions up
 * to 0.26). Function names write them A02 to A11.
 *
 * Compound items open with a primary subfield (presence bits and FX bits);
 * a subfield identifier is item identifier x 1000 + subfield number
 * (21220003 is the temperature of I021/220). Subfield functions answer 0,
 * "---" or "UNKNOWN_SUBFIELD_NAME" for a subfield the item does not have.
 * The subfields have no summaries or detail views of their own yet: the
 * summary functions write "NOT_IMPLEMENTED" and the detail functions the
 * empty text.
 */
#ifndef KOVREL_CAT021_H
#define KOVREL_CAT021_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT021 item ("Target Report Descriptor", "Target Report
 * Descriptor (Ver <= 0.26)" for 21903). Any other identifier, and the items
 * I021/110, 148, 165 and 220 that have no name of their own, give "Unknown
 * CAT021 Dataitem"; "Unknown dataitem name: %s." is logged at WARNING only
 * for identifiers from 21008 to 21399.
 */
KOVREL_API const char *ast_dataitem_021_get_name(AstItemId id);

/**
 * Size of 21907, the surface capabilities of editions 1.0 to 2.1: 1 when the
 * FX bit of the first octet is clear, 2 when it is set and a second octet is
 * available, 0 otherwise (no octets, or cut off after the first).
 */
KOVREL_API uint64_t ast_dataitem_021_A07_get_size(const uint8_t *octets, size_t available);

/*
 * I021/110 Trajectory Intent (compound): TIS (FX-extended), TID (repetitive,
 * 15 octets a point). Asking ast_subfield_021_110_get_size for any subfield
 * other than 21110001 and 21110002 logs "Unsupported Subfield type %d" (the
 * subfield identifier) at CRITICAL and gives 0.
 */
KOVREL_API uint64_t ast_dataitem_021_110_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_110_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_110_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_110_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_110_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_110_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I021/220 Met Information (compound): WS, WD, TMP (2 octets each), TRB (1 octet). */
KOVREL_API uint64_t ast_dataitem_021_220_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_220_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_220_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_220_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_220_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_220_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I021/295 Data Ages (compound): 23 one-octet ages, AOS ... SCC. */
KOVREL_API uint64_t ast_dataitem_021_295_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_021_295_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_295_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_021_295_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_021_295_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_021_295_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT021_H */
