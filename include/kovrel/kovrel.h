/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * kovrel.h: the umbrella header; includes every public header.
 */
#ifndef KOVREL_KOVREL_H
#define KOVREL_KOVREL_H

#include "kovrel/export.h"
#include "kovrel/core.h"
#include "kovrel/codec.h"
#include "kovrel/fspec.h"
#include "kovrel/uap.h"
#include "kovrel/html.h"
#include "kovrel/enums.h"
#include "kovrel/dataitem.h"
#include "kovrel/subfield.h"
#include "kovrel/cat048.h"

#endif /* KOVREL_KOVREL_H */
