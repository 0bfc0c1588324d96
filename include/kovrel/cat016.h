/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat016.h: Category 016, independent non-cooperative surveillance system
 * configuration reports (edition 1.0 of the category).
 *
 * Every CAT016 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items.
 */
#ifndef KOVREL_CAT016_H
#define KOVREL_CAT016_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT016 item ("Transmitter Properties"); any other
 * identifier gives "Unknown CAT016 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_016_get_name(AstItemId id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT016_H */
