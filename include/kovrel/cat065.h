/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat065.h: Category 065, status messages of a surveillance data
 * processing system (message type, batch number, configuration and status).
 */
#ifndef KOVREL_CAT065_H
#define KOVREL_CAT065_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT065 item ("SDPS Configuration and Status"); any
 * other identifier gives "Unknown CAT065 Dataitem" (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_065_get_name(AstItemId id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT065_H */
