/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat010.h: Category 010, monosensor surface movement data (edition 1.1 of
 * the category).
 *
 * Every CAT010 item is delimited by one of the generic size rules of
 * dataitem.h; the category has no compound items.
 */
#ifndef KOVREL_CAT010_H
#define KOVREL_CAT010_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT010 item ("Target Report Descriptor"); any other
 * identifier gives "Unknown CAT010 Dataitem" and logs "Unknown dataitem
 * name: %s." at WARNING.
 */
KOVREL_API const char *ast_dataitem_010_get_name(AstItemId id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT010_H */
