/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat240.h: Category 240, radar video (video header, cell resolution,
 * counters and one block of video cell amplitudes).
 */
#ifndef KOVREL_CAT240_H
#define KOVREL_CAT240_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT240 item ("Video Header Nano"); I240/140 is "Time of
 * Day", I240/REF and I240/SPF are "Reserved Expansion Field" and "Special
 * Purpose Field", and any other identifier gives "Unknown CAT240 Dataitem"
 * (nothing is logged).
 */
KOVREL_API const char *ast_dataitem_240_get_name(AstItemId id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT240_H */
