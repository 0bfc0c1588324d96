/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat048.h: Category 048, monoradar target reports.
 */
#ifndef KOVREL_CAT048_H
#define KOVREL_CAT048_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT048 item ("Target Report Descriptor"); any other
 * identifier gives "Unknown CAT048 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_048_get_name(AstItemId id);

/* I048/120 Radial Doppler Speed (compound): CAL, RDS. */
KOVREL_API uint64_t ast_dataitem_048_120_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_048_120_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_120_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_120_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_048_120_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_048_120_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I048/130 Radar Plot Characteristics (compound): SRL, SRR, SAM, PRL, PAM, RPD, APD. */
KOVREL_API uint64_t ast_dataitem_048_130_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_048_130_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_130_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_048_130_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_048_130_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_048_130_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT048_H */
