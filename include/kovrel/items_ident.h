/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * items_ident.h: identification and time items: message type, data source
 * identifier, service identification, sector number, time of day (also
 * high precision), track number and antenna rotation period.
 *
 * Conventions shared by every common item: an operation acts only on a span
 * whose valid flag is 1 and whose length is exactly the item's length;
 * otherwise decode gives the init defaults and summaries and detail views
 * write the empty text. Decoded structures begin with a valid flag (1 when
 * decoded); scaled values carry the raw integer, the LSB and the value.
 * Encoders return the written span {buffer, length, 0, 1}, or length 0 and
 * valid 0 on failure, writing nothing.
 *
 * Every function accepts null pointers (it then does nothing, or gives the
 * defaults) and never writes beyond the size it is given; a text buffer of
 * size 0 is not touched at all.
 */
#ifndef KOVREL_ITEMS_IDENT_H
#define KOVREL_ITEMS_IDENT_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/* ---- Message type (1 octet) --------------------------------------------- */

/**
 * Message type octet; its meaning depends on the category.
 * Named fields (fields.h): mt.
 */
typedef struct AstMessageType {
    uint32_t valid;
    uint32_t value;
} AstMessageType;

/** Sets *out to the defaults (all 0). */
KOVREL_API void ast_dataitem_message_type_init(AstMessageType *out);
/** Decodes a one-octet span; the defaults (valid 0) for any other span. */
KOVREL_API AstMessageType ast_dataitem_message_type_decode(const AstDataItem *item);
/**
 * Writes the value as one octet into buffer. Fails (zero-length, invalid
 * span, nothing written) when in or buffer is null, size is 0, in->valid is
 * not 1 or the value exceeds 255.
 */
KOVREL_API void ast_dataitem_message_type_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                 const AstMessageType *in);

/* ---- Data source identifier (2 octets) ---------------------------------- */

/**
 * Data source identifier: System Area Code and System Identification Code.
 * Named fields (fields.h): sac, sic.
 */
typedef struct AstDataSourceIdentifier {
    uint32_t valid;
    uint32_t sac;
    uint32_t sic;
} AstDataSourceIdentifier;

/** Sets *out to the defaults (all 0). */
KOVREL_API void ast_dataitem_data_source_identifier_init(AstDataSourceIdentifier *out);
/** Decodes a two-octet span (SAC, then SIC); the defaults for any other span. */
KOVREL_API AstDataSourceIdentifier ast_dataitem_data_source_identifier_decode(const AstDataItem *item);
/**
 * Writes SAC and SIC as two octets. Fails when in or buffer is null, size is
 * below 2, in->valid is not 1, or SAC or SIC exceeds 255.
 */
KOVREL_API void ast_dataitem_data_source_identifier_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                           const AstDataSourceIdentifier *in);
/** "SAC:%03d SIC:%03d"; the empty text for a wrong span. */
KOVREL_API void ast_dataitem_data_source_identifier_get_summary(char *buffer, size_t size,
                                                                const AstDataItem *item);
/**
 * Two titled tables, "System Area Code (SAC)" and "System Identification
 * Code (SIC)". The rows come from the SAC information and SAC/SIC sensor
 * callbacks (core.h), one per valid entry of their answers. Without a
 * callback or a valid entry the SAC table shows one row of "Unknown Region"
 * and "Unknown Country", the SIC table one row of "Unknown" texts and
 * "Unknown System". The callbacks run inside this call. The empty text for
 * a wrong span.
 */
KOVREL_API void ast_dataitem_data_source_identifier_get_detail_html(char *buffer, size_t size,
                                                                    const AstDataItem *item);

/* ---- Service identification (1 octet) ----------------------------------- */

/**
 * Service identification octet.
 * Named fields (fields.h): sid.
 */
typedef struct AstServiceId {
    uint32_t valid;
    uint32_t value;
} AstServiceId;

/** Sets *out to the defaults (all 0). */
KOVREL_API void ast_dataitem_service_id_init(AstServiceId *out);
/** Decodes a one-octet span into *out; the defaults for any other span. */
KOVREL_API void ast_dataitem_service_id_decode(AstServiceId *out, const AstDataItem *item);
/**
 * Writes the value as one octet. Fails when in or buffer is null, size is 0,
 * in->valid is not 1 or the value exceeds 255.
 */
KOVREL_API void ast_dataitem_service_id_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstServiceId *in);
/** "SVC_ID:%03d"; the empty text for a wrong span. */
KOVREL_API void ast_dataitem_service_id_get_summary(char *buffer, size_t size, const AstDataItem *item);

/* ---- Sector number (1 octet, LSB 360/256 degrees) ----------------------- */

/**
 * Antenna sector number.
 * Named fields (fields.h): sector (deg).
 */
typedef struct AstSectorNumber {
    uint32_t valid;
    uint32_t raw;
    double lsb;     /**< 1.40625 degrees */
    double azimuth; /**< degrees */
} AstSectorNumber;

/** Sets *out to the defaults: lsb 1.40625, everything else 0. */
KOVREL_API void ast_dataitem_sector_number_init(AstSectorNumber *out);
/** Decodes a one-octet span into *out; the defaults for any other span. */
KOVREL_API void ast_dataitem_sector_number_decode(AstSectorNumber *out, const AstDataItem *item);
/**
 * Writes one octet: azimuth / 1.40625 rounded half away from zero when the
 * azimuth lies in [0, 360), otherwise raw. Fails when in or buffer is null,
 * size is 0, in->valid is not 1, or the octet would exceed 255 (azimuths
 * from 359.296875 up round to 256 and fail).
 */
KOVREL_API void ast_dataitem_sector_number_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                  const AstSectorNumber *in);
/** "SECTOR:%03dDEG" with the azimuth rounded to whole degrees. */
KOVREL_API void ast_dataitem_sector_number_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table of the raw value, the azimuth and the sector in 1/32 and 1/16 turns. */
KOVREL_API void ast_dataitem_sector_number_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Time of day (3 octets, LSB 1/128 s) -------------------------------- */

/**
 * Time of day: 24-bit count of 1/128 s since midnight, and its parts.
 * Named fields (fields.h): tod (s since midnight).
 */
typedef struct AstTimeOfDay {
    uint32_t valid;
    uint32_t raw;
    double lsb; /**< 1/128 s */
    uint32_t hour;
    uint32_t minute;
    uint32_t second;
    uint32_t millisecond;
} AstTimeOfDay;

/** Sets *out to the defaults: lsb 0.0078125, everything else 0. */
KOVREL_API void ast_dataitem_time_of_day_init(AstTimeOfDay *out);
/**
 * Decodes a three-octet span into *out: raw and its split into hour, minute,
 * second and millisecond (truncated). The defaults for any other span.
 */
KOVREL_API void ast_dataitem_time_of_day_decode(AstTimeOfDay *out, const AstDataItem *item);
/**
 * Writes three octets. A non-zero raw is written as it stands (bits above
 * 24 dropped) and the parts are ignored; with raw 0 the count is computed
 * from hour, minute, second and millisecond and truncated, not rounded.
 * Fails when in or buffer is null, size is below 3 or in->valid is not 1.
 */
KOVREL_API void ast_dataitem_time_of_day_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                const AstTimeOfDay *in);
/** "TOD:%02d:%02d:%02d.%03d"; the empty text for a wrong span. */
KOVREL_API void ast_dataitem_time_of_day_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table of the raw count, whole seconds, hour, minute, second and millisecond. */
KOVREL_API void ast_dataitem_time_of_day_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Time of day, high precision (4 octets) ----------------------------- */

/**
 * Fraction of the second with its full-second indication.
 * Named fields (fields.h): fsi, tomr (s).
 */
typedef struct AstTimeOfDayHigh {
    uint32_t valid;
    int32_t fsi;     /**< 0, +1 or -1 (the reserved code reads as 0) */
    uint32_t raw;    /**< 30-bit fraction of the second */
    double lsb;      /**< 2^-30 s */
    double fraction; /**< seconds */
} AstTimeOfDayHigh;

/** Sets *out to the defaults: lsb 2^-30, everything else 0. */
KOVREL_API void ast_dataitem_time_of_day_high_init(AstTimeOfDayHigh *out);
/** Decodes a four-octet span into *out; the defaults for any other span. */
KOVREL_API void ast_dataitem_time_of_day_high_decode(AstTimeOfDayHigh *out, const AstDataItem *item);
/** "FSI:%d TOMR:%.6f"; the empty text for a wrong span. */
KOVREL_API void ast_dataitem_time_of_day_high_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Table of FSI, the raw fraction and the fraction in seconds. */
KOVREL_API void ast_dataitem_time_of_day_high_get_detail_html(char *buffer, size_t size,
                                                              const AstDataItem *item);

/* ---- Track number (2 octets) -------------------------------------------- */

/**
 * Track number. Items 1161, 4030, 4035, 15161 and 62040 carry 16 bits;
 * every other item carries 12 bits under 4 spare bits, and twelve_bit is 1.
 * Named fields (fields.h): trn.
 */
typedef struct AstTrackNumber {
    uint32_t valid;
    uint32_t number;
    uint8_t twelve_bit;
} AstTrackNumber;

/** Sets *out to the defaults (all 0). */
KOVREL_API void ast_dataitem_track_number_init(AstTrackNumber *out);
/** Decodes a two-octet span into *out, 12 or 16 bits by item->id; defaults otherwise. */
KOVREL_API void ast_dataitem_track_number_decode(AstTrackNumber *out, const AstDataItem *item);
/**
 * Writes two octets: with twelve_bit 1 the number (at most 4095) under zero
 * spare bits, otherwise the number (at most 65535) as 16 bits. Fails when in
 * or buffer is null, size is below 2, in->valid is not 1 or the number is
 * too large.
 */
KOVREL_API void ast_dataitem_track_number_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                 const AstTrackNumber *in);
/** "TRACK_NUM:%04d"; the empty text for a wrong span. */
KOVREL_API void ast_dataitem_track_number_get_summary(char *buffer, size_t size, const AstDataItem *item);

/* ---- Antenna rotation period (2 octets, LSB 1/128 s) -------------------- */

/**
 * Antenna rotation period.
 * Named fields (fields.h): arp (s).
 */
typedef struct AstAntennaRotationPeriod {
    uint32_t valid;
    uint32_t raw;
    double lsb;    /**< 1/128 s */
    double period; /**< seconds */
} AstAntennaRotationPeriod;

/** Sets *out to the defaults: lsb 0.0078125, everything else 0. */
KOVREL_API void ast_dataitem_antenna_rotation_period_init(AstAntennaRotationPeriod *out);
/** Decodes a two-octet span into *out; the defaults for any other span. */
KOVREL_API void ast_dataitem_antenna_rotation_period_decode(AstAntennaRotationPeriod *out,
                                                            const AstDataItem *item);
/**
 * Writes two octets: the low 16 bits of period x 128 rounded half away from
 * zero when period is not 0 (a NaN counts as not 0 and, like any value
 * outside the 64-bit range, writes 0), otherwise the low 16 bits of raw.
 * Fails when in or buffer is null, size is below 2 or in->valid is 0 (any
 * non-zero flag is accepted).
 */
KOVREL_API void ast_dataitem_antenna_rotation_period_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                            const AstAntennaRotationPeriod *in);
/** "ROT:%.2f" with the period in seconds; the empty text for a wrong span. */
KOVREL_API void ast_dataitem_antenna_rotation_period_get_summary(char *buffer, size_t size,
                                                                 const AstDataItem *item);
/** Table of the raw count and the period in seconds. */
KOVREL_API void ast_dataitem_antenna_rotation_period_get_detail_html(char *buffer, size_t size,
                                                                     const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_ITEMS_IDENT_H */
