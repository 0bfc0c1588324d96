/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat034.h: Category 034, monoradar service messages (North markers,
 * sector crossings, station configuration and status, processing modes,
 * message counters).
 */
#ifndef KOVREL_CAT034_H
#define KOVREL_CAT034_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT034 item ("Station Configuration & Status"); any
 * other identifier gives "Unknown CAT034 Dataitem" and logs "Unknown
 * dataitem name: %s." at WARNING. I034/100 is part of the UAP but has no
 * name and no size rule, so a record that announces it cannot be read past
 * that point.
 */
KOVREL_API const char *ast_dataitem_034_get_name(AstItemId id);

/*
 * I034/050 Station Configuration & Status (compound, 7 subfields):
 * 1 COM (1 octet), 2 and 3 spare (no octets), 4 PSR (1 octet), 5 SSR
 * (1 octet), 6 MDS (2 octets), 7 spare (no octets; named "Spare").
 * The subfield functions take the subfield identifier 34050001..34050007;
 * any other identifier has size 0, id "---" and name
 * "UNKNOWN_SUBFIELD_NAME".
 */
KOVREL_API uint64_t ast_dataitem_034_050_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_034_050_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_034_050_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_034_050_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_034_050_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_034_050_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/*
 * I034/060 System Processing Mode (compound, 7 subfields): 1 COM, 4 PSR,
 * 5 SSR and 6 MDS of one octet each; 2, 3 and 7 spare (no octets).
 * Subfield identifiers 34060001..34060007, other identifiers as for
 * I034/050.
 */
KOVREL_API uint64_t ast_dataitem_034_060_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_034_060_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_034_060_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_034_060_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_034_060_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_034_060_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT034_H */
