/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat002.h: Category 002, monoradar service messages (North and South
 * markers, sector crossings, blind zones), with the ASR-10SS station status
 * items and the MANAGAIR custom field.
 */
#ifndef KOVREL_CAT002_H
#define KOVREL_CAT002_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT002 item ("Antenna Rotation Period"), including the
 * sensor variants: 2901 and 2902 (the ASR-10SS and ASR-10SS Mk2 station
 * status, up to 16 octets, in place of I002/050) are "Station Configuration
 * Status", and 2951 (MANAGAIR) is "Custom Field".
 *
 * Any other identifier gives "Unknown CAT002 Dataitem" and logs "Unknown
 * dataitem name: %s." at WARNING. I002/060, 070, 080, 090 and 100 are part
 * of the UAP but have neither a name nor a size rule, so a record that
 * announces one of them cannot be read past that point.
 */
KOVREL_API const char *ast_dataitem_002_get_name(AstItemId id);

KOVREL_END_DECLS

#endif /* KOVREL_CAT002_H */
