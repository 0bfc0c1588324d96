/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat008.h: Category 008, monoradar derived weather information
 * (edition 1.3 of the category).
 *
 * The items are delimited through the generic data item functions
 * (dataitem.h); this header adds the category's name function and the size
 * rule of I008/100, whose layout no generic rule fits.
 */
#ifndef KOVREL_CAT008_H
#define KOVREL_CAT008_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT008 item ("Vector Qualifier"); any other identifier
 * gives "Unknown CAT008 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING.
 */
KOVREL_API const char *ast_dataitem_008_get_name(AstItemId id);

/**
 * Size rule of I008/100 Processing Status: a first part of three octets
 * whose third octet alone carries the FX bit. Returns 3, or 0 when fewer
 * than three octets are available. When the FX bit is set the item is cut
 * off (0) if exactly three octets are available; otherwise "Dataitem length
 * exceed max: 3" is logged at CRITICAL and 3 is returned, so that a record
 * goes on reading after the part the category defines.
 */
KOVREL_API uint64_t ast_dataitem_008_100_get_size(const uint8_t *octets, size_t available);

KOVREL_END_DECLS

#endif /* KOVREL_CAT008_H */
