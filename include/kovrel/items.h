/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * items.h: the common data items that many categories share, one header
 * per family, and the Mode S BDS registers they carry.
 */
#ifndef KOVREL_ITEMS_H
#define KOVREL_ITEMS_H

#include "kovrel/bds.h"
#include "kovrel/items_ident.h"
#include "kovrel/items_mode.h"
#include "kovrel/items_motion.h"

#endif /* KOVREL_ITEMS_H */
