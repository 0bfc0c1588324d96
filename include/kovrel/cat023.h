/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat023.h: Category 023, CNS/ATM ground station and service status
 * reports (ADS-B and related ground stations).
 *
 * I023/010 and I023/070 are summarised and shown through the common data
 * source identifier and time of day (items_ident.h); the RE and SP fields
 * through the common explicit-length fields (items_mode.h).
 */
#ifndef KOVREL_CAT023_H
#define KOVREL_CAT023_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT023 item ("Ground Station Status"); any other
 * identifier gives "Unknown CAT023 Dataitem" (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_023_get_name(AstItemId id);

/**
 * Size of I023/101 Ground Station Configuration at octets: 2 when the FX bit
 * of octet 2 is clear, 3 when it is set and octet 3 is there, 0 when fewer
 * octets are available. Octet 1 (the report period) has no FX bit. An octet 3
 * whose FX bit is still set logs "Dataitem I023/101 length exceed max: 3" at
 * CRITICAL and the item still ends after 3 octets.
 */
KOVREL_API uint64_t ast_dataitem_023_101_get_size(const uint8_t *octets, size_t available);

KOVREL_END_DECLS

#endif /* KOVREL_CAT023_H */
