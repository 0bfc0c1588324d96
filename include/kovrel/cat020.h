/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat020.h: Category 020, multilateration target reports (edition 1.11 of
 * the category).
 *
 * Simple items are delimited by the generic size rules of dataitem.h. The
 * one compound item, I020/500, opens with a primary subfield (subfield.h);
 * its subfield functions take the subfield identifier (20500001 is DOP).
 */
#ifndef KOVREL_CAT020_H
#define KOVREL_CAT020_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT020 item ("Position Accuracy"); any other identifier
 * gives "Unknown CAT020 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING.
 */
KOVREL_API const char *ast_dataitem_020_get_name(AstItemId id);

/* I020/500 Position Accuracy (compound): DOP (6 octets), SDP (6), SDH (2). */
KOVREL_API uint64_t ast_dataitem_020_500_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_020_500_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_020_500_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_020_500_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_020_500_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_020_500_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT020_H */
