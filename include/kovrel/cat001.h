/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat001.h: Category 001, monoradar plots and tracks (the older format that
 * CAT048 replaced), with the ASR-10SS sensor layouts and the MANAGAIR
 * custom field.
 */
#ifndef KOVREL_CAT001_H
#define KOVREL_CAT001_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT001 item ("Truncated Time of Day"), including the
 * sensor variants: 1901 and 1903 (ASR-10SS and ASR-10SS Mk2 layouts of
 * I001/130) are "Radar Plot Characteristics", 1902 (ASR-10SS, in place of
 * I001/210) is "Plot Amplitude", 1904 (ASR-10SS Mk2, in place of I001/210)
 * is "Track Quality and Plot Extent", and 1951 (MANAGAIR) is "Custom Field".
 *
 * Any other identifier gives "Unknown CAT001 Dataitem" and logs "Unknown
 * dataitem name: %s." at WARNING. I001/120 (Measured Radial Doppler Speed)
 * and I001/150 (Presence of X-Pulse) are sized and decoded like every other
 * item but have no name of their own: they too answer "Unknown CAT001
 * Dataitem" (and log), as they always have.
 */
KOVREL_API const char *ast_dataitem_001_get_name(AstItemId id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT001_H */
