/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat063.h: Category 063, sensor status reports of a surveillance data
 * processing system (one sensor's connection, configuration and biases).
 */
#ifndef KOVREL_CAT063_H
#define KOVREL_CAT063_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT063 item ("Sensor Configuration and Status"); any
 * other identifier gives "Unknown CAT063 Dataitem" (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_063_get_name(AstItemId id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT063_H */
