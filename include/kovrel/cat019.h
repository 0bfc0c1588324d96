/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat019.h: Category 019, multilateration system status messages (edition
 * 1.3 of the category).
 *
 * Every CAT019 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items.
 */
#ifndef KOVREL_CAT019_H
#define KOVREL_CAT019_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT019 item ("Remote Sensor Detailed Status"); any other
 * identifier gives "Unknown CAT019 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_019_get_name(AstItemId id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT019_H */
