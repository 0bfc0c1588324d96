/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * items.h: decoded structures of the common data items that many categories
 * share. Every structure begins with a valid flag (1 when decoded); values
 * with a physical unit carry the raw integer, the LSB and the scaled value.
 */
#ifndef KOVREL_ITEMS_H
#define KOVREL_ITEMS_H

#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/** Data source identifier: System Area Code and System Identification Code. */
typedef struct AstDataSourceIdentifier {
    uint32_t valid;
    uint32_t sac;
    uint32_t sic;
} AstDataSourceIdentifier;

/** Time of day: 24-bit count of 1/128 s since midnight, and its parts. */
typedef struct AstTimeOfDay {
    uint32_t valid;
    uint32_t raw;
    double lsb; /**< 1/128 s */
    uint32_t hour;
    uint32_t minute;
    uint32_t second;
    uint32_t millisecond;
} AstTimeOfDay;

/** Track number; twelve_bit is 1 when only the low 12 bits are the number. */
typedef struct AstTrackNumber {
    uint32_t valid;
    uint32_t number;
    uint8_t twelve_bit;
} AstTrackNumber;

/** Mode 3/A (or Mode 2) code: flags and the 12-bit code (print it in octal). */
typedef struct AstMode3aCode {
    uint32_t valid;
    uint8_t v;       /**< code not validated */
    uint8_t g;       /**< garbled */
    uint8_t l;       /**< code derived from the last scan (bit 6) */
    uint8_t changed; /**< bit 6 read as "code changed" */
    uint32_t code;
} AstMode3aCode;

/** Mode S 24-bit target address. */
typedef struct AstTargetAddress {
    uint32_t valid;
    uint32_t address;
} AstTargetAddress;

/** Cartesian velocity, metres per second. */
typedef struct AstVelocityCartesian {
    uint32_t valid;
    int32_t vx_raw;
    double vx_lsb;
    double vx;
    int32_t vy_raw;
    double vy_lsb;
    double vy;
} AstVelocityCartesian;

/** Vertical rate, feet per minute; re is the range-exceeded flag. */
typedef struct AstVerticalRate {
    uint32_t valid;
    uint8_t re;
    int32_t raw;
    double lsb;
    double value;
} AstVerticalRate;

KOVREL_END_DECLS

#endif /* KOVREL_ITEMS_H */
