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
#include "kovrel/fields.h"
#include "kovrel/subfield.h"
#include "kovrel/items.h"
#include "kovrel/datarecord.h"
#include "kovrel/datablock.h"
#include "kovrel/keyword.h"
#include "kovrel/cat001.h"
#include "kovrel/cat002.h"
#include "kovrel/cat004.h"
#include "kovrel/cat008.h"
#include "kovrel/cat010.h"
#include "kovrel/cat015.h"
#include "kovrel/cat016.h"
#include "kovrel/cat019.h"
#include "kovrel/cat020.h"
#include "kovrel/cat021.h"
#include "kovrel/cat023.h"
#include "kovrel/cat034.h"
#include "kovrel/cat048.h"
#include "kovrel/cat062.h"
#include "kovrel/cat063.h"
#include "kovrel/cat065.h"
#include "kovrel/cat240.h"
#include "kovrel/convert.h"

#endif /* KOVREL_KOVREL_H */
