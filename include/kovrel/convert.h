/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * convert.h: feeding consumers of the older radar categories from a radar
 * that sends the newer ones: CAT048 target reports to CAT001 plots and
 * tracks, CAT034 service messages to CAT002.
 *
 * Both conversions take a disassembled record (ast_datarecord_048_disassemble,
 * ast_datarecord_034_disassemble) and return the disassembled record of the
 * older category by value; they never look at octets. Encode the result
 * with the older category's assemble (ast_datarecord_001_assemble,
 * ast_datarecord_002_assemble) and put the records into a block with the
 * older category's number (1 or 2).
 *
 * The result is zeroed first. A source whose valid flag is not 1 gives the
 * zero result (valid 0). Otherwise the result is valid, and a target item
 * is filled (its own valid flag 1) only when its source item is valid; every
 * other target item stays absent.
 */
#ifndef KOVREL_CONVERT_H
#define KOVREL_CONVERT_H

#include "kovrel/cat001.h"
#include "kovrel/cat002.h"
#include "kovrel/cat034.h"
#include "kovrel/cat048.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * A CAT048 target report as a CAT001 plot or track.
 *
 * Carried, item by item:
 *   I001/010 from I048/010: SAC and SIC.
 *   I001/020 from I048/020: TYP is track (1) when the source holds I048/161,
 *            else plot (0). SIM, SPI, RAB, TST, ME and MI are copied; the
 *            radar data processing chain of I048/020 goes to the bit CAT001
 *            calls ANT. SSR/PSR from the CAT048 TYP: no detection (0) and
 *            PSR (1) stay; SSR (2), all-call (4) and roll-call (5) become
 *            sole SSR (2); PSR+SSR (3), PSR+all-call (6) and PSR+roll-call
 *            (7) become combined (3).
 *   I001/040 from I048/040: RHO (NM) and THETA (degrees) as decoded values
 *            only; their raw fields and LSBs stay 0. The I001/040 encoder
 *            writes the raw fields, so a caller that wants the measured
 *            position on the wire sets rho.raw (value x 128) and theta.raw
 *            (value x 65536 / 360) before assembling; left as they are,
 *            the item goes out as RHO 0, THETA 0.
 *   I001/042 from I048/042: X and Y raw halved toward zero (CAT048 counts
 *            1/128 NM, CAT001 1/64 NM: -3 becomes -1); the scaled values
 *            stay 0.
 *   I001/070 from I048/070: the code with its V, G and L flags.
 *   I001/090 from I048/090: the flight level with its V and G flags.
 *   I001/141 from I048/140: the whole raw time of day (1/128 s), not cut to
 *            16 bits; seconds and milliseconds stay 0. The two-octet item
 *            carries the time of day modulo 512 s: its encoder writes the
 *            low 16 bits of raw (a time of 12:00:00, raw 0x546000, goes out
 *            as 60 00).
 *   I001/161 from I048/161: the track number.
 *   I001/170 from I048/170: CON from CNF; RAD 1 (SSR or combined track)
 *            when the CAT048 RAD is 0 (combined) or 2 (SSR), else 0; MAN 1
 *            when CDM is 1 or 2 (climbing, descending) or MAH is set; DOU
 *            copied; the radar data processing chain is that of I048/020
 *            when the source holds it, else 1; GHO, TRE and the extension
 *            are 0.
 *   I001/200 from I048/200: ground speed and heading (same LSBs).
 *
 * Dropped: I048/030, 050, 080, 100, 110, 120, 130, 210, 220, 230, 240, 250,
 * 260, SPF and REF. A record holding none of the carried items converts to
 * a valid record without items, which does not assemble.
 */
KOVREL_API AstRecord001 ast_datarecord_convert_048_001(const AstRecord048 *in);

/**
 * A CAT034 service message as a CAT002 message.
 *
 * Carried:
 *   I002/000 from I034/000: North marker (1) stays 1, sector crossing (2)
 *            stays 2. Any other message type is logged at WARNING as
 *            "Unsupported I034/000 message type %u detected." and I002/000
 *            stays absent; the rest is converted all the same.
 *   I002/010 from I034/010: SAC and SIC.
 *   I002/020 from I034/020: the raw sector number; the azimuth is set to
 *            -1.0 and the LSB stays 0, so that the encoder writes the raw
 *            sector number as it came.
 *   I002/030 from I034/030: the raw time of day.
 *
 * Dropped: I034/041 (antenna rotation period), 050, 060, 070, 090, 100,
 * 110, 120 and the special fields; I002/041 and the other CAT002 items stay
 * absent.
 */
KOVREL_API AstRecord002 ast_datarecord_convert_034_002(const AstRecord034 *in);

KOVREL_END_DECLS

#endif /* KOVREL_CONVERT_H */
