/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * items_motion.h: position, velocity and height items: WGS-84 positions,
 * Cartesian position and velocity, polar velocity, height, vertical rate.
 *
 * Conventions shared by every common item: an operation acts only on a span
 * whose valid flag is 1 and whose length is exactly the item's length;
 * otherwise decode gives the init defaults and summaries and detail views
 * write the empty text. Decoded structures begin with a valid flag (1 when
 * decoded); scaled values carry the raw integer, the LSB and the value.
 * Encoders return the written span {buffer, length, 0, 1}, or length 0 and
 * valid 0 on failure, writing nothing.
 */
#ifndef KOVREL_ITEMS_MOTION_H
#define KOVREL_ITEMS_MOTION_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/* ---- WGS-84 position ----------------------------------------------------
 * Latitude and longitude in degrees, each as raw two's complement value,
 * LSB and value. Positive latitudes are north, positive longitudes east.
 */

/**
 * WGS-84 position in 6 octets: two 24-bit fields, LSB 180/2^23 degrees.
 * Named fields (fields.h): lat, lon (deg).
 */
typedef struct AstPositionWgs84Low {
    uint32_t valid;
    int32_t lat_raw;
    double lat_lsb;
    double latitude;
    int32_t lon_raw;
    double lon_lsb;
    double longitude;
} AstPositionWgs84Low;

/**
 * WGS-84 position in 8 octets: two 32-bit fields. The LSB depends on the
 * item: 180/2^31 degrees for I010/041 and I016/400, 180/2^30 for I019/600
 * and I021/131, 180/2^25 for every other item.
 * Named fields (fields.h): lat, lon (deg).
 */
typedef struct AstPositionWgs84 {
    uint32_t valid;
    int32_t lat_raw;
    double lat_lsb;
    double latitude;
    int32_t lon_raw;
    double lon_lsb;
    double longitude;
} AstPositionWgs84;

/** Sets every raw value and value to 0 and both LSBs to 180/2^23. */
KOVREL_API void ast_dataitem_position_wgs84_low_init(AstPositionWgs84Low *out);
/**
 * Decodes a 6-octet WGS-84 position. A missing item, an invalid span or a
 * length other than 6 gives the init defaults (valid 0). No range check:
 * the values are what the wire says.
 */
KOVREL_API void ast_dataitem_position_wgs84_low_decode(AstPositionWgs84Low *out, const AstDataItem *item);
/**
 * Writes 6 octets into buffer: raw = degrees / (180/2^23), truncated towards
 * zero (the record's raw and LSB fields are not used). *out = {buffer, 6, 0,
 * 1}; on failure {buffer, 0, 0, 0} and nothing written. Fails when in or
 * buffer is NULL, size is below 6, in->valid is not 1, |latitude| is above
 * 90 or |longitude| above 180 (NaN fails too). A longitude of +180 does not
 * fit the field and reads back as -180.
 */
KOVREL_API void ast_dataitem_position_wgs84_low_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                       const AstPositionWgs84Low *in);
/** "WGS84:%s" with the position as DDMMSSHDDDMMSSH ("WGS84:483000N0021500E"); empty text on failure. */
KOVREL_API void ast_dataitem_position_wgs84_low_get_summary(char *buffer, size_t size, const AstDataItem *item);
/**
 * Detail table: the position in three precisions, decimal degrees, raw
 * values and links to the four map services. Empty text on failure.
 */
KOVREL_API void ast_dataitem_position_wgs84_low_get_detail_html(char *buffer, size_t size,
                                                                const AstDataItem *item);

/** Sets every raw value and value to 0 and both LSBs to 180/2^25. */
KOVREL_API void ast_dataitem_position_wgs84_init(AstPositionWgs84 *out);
/**
 * Decodes an 8-octet WGS-84 position with the LSB of the span's item (see
 * AstPositionWgs84), stored in both LSB fields. For I062/105 only, with the
 * option AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE set, a negative raw
 * longitude is negated before scaling (the raw field holds the negated
 * value). A missing item, an invalid span or a length other than 8 gives
 * the init defaults (valid 0). No range check.
 */
KOVREL_API void ast_dataitem_position_wgs84_decode(AstPositionWgs84 *out, const AstDataItem *item);
/**
 * Writes 8 octets into buffer: raw = degrees / (180/2^25), truncated towards
 * zero, whatever item the position came from (a position decoded with a
 * finer LSB is written back at 180/2^25). *out = {buffer, 8, 0, 1}; on
 * failure {buffer, 0, 0, 0} and nothing written. Fails when in or buffer is
 * NULL, size is below 8, in->valid is not 1, |latitude| is above 90 or
 * |longitude| above 180 (NaN fails too).
 */
KOVREL_API void ast_dataitem_position_wgs84_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                   const AstPositionWgs84 *in);
/** "WGS84:%s" with the position as DDMMSSHDDDMMSSH; empty text on failure. */
KOVREL_API void ast_dataitem_position_wgs84_get_summary(char *buffer, size_t size, const AstDataItem *item);
/**
 * Detail table as for the 6-octet position, with eight decimals. The raw
 * value row is labelled "Octet[1-6]", kept for existing consumers that
 * match on it. Empty text on failure.
 */
KOVREL_API void ast_dataitem_position_wgs84_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Cartesian position and velocity ---------------------------------- */

/**
 * Cartesian position, metres: two 24-bit fields, LSB 0.5 m.
 * Named fields (fields.h): x, y (m).
 */
typedef struct AstPositionCartesian {
    uint32_t valid;
    int32_t x_raw;
    double x_lsb;
    double x;
    int32_t y_raw;
    double y_lsb;
    double y;
} AstPositionCartesian;

/** Sets raw values and values to 0 and both LSBs to 0.5. */
KOVREL_API void ast_dataitem_position_cartesian_init(AstPositionCartesian *out);
/** Decodes 6 octets (X, Y); init defaults for a missing, invalid or wrong-length span. */
KOVREL_API void ast_dataitem_position_cartesian_decode(AstPositionCartesian *out, const AstDataItem *item);
/** "X:%.1f Y:%.1f LSB:M" in metres; empty text on failure. */
KOVREL_API void ast_dataitem_position_cartesian_get_summary(char *buffer, size_t size, const AstDataItem *item);

/**
 * Cartesian velocity, metres per second: two 16-bit fields, LSB 0.25 m/s.
 * Named fields (fields.h): vx, vy (m/s).
 */
typedef struct AstVelocityCartesian {
    uint32_t valid;
    int32_t vx_raw;
    double vx_lsb;
    double vx;
    int32_t vy_raw;
    double vy_lsb;
    double vy;
} AstVelocityCartesian;

/** Sets raw values and values to 0 and both LSBs to 0.25. */
KOVREL_API void ast_dataitem_velocity_cartesian_init(AstVelocityCartesian *out);
/** Decodes 4 octets (VX, VY); init defaults for a missing, invalid or wrong-length span. */
KOVREL_API void ast_dataitem_velocity_cartesian_decode(AstVelocityCartesian *out, const AstDataItem *item);
/** "VX:%.2f VY:%.2f LSB:M/S"; empty text on failure. */
KOVREL_API void ast_dataitem_velocity_cartesian_get_summary(char *buffer, size_t size, const AstDataItem *item);

/* ---- Polar velocity ----------------------------------------------------- */

/**
 * Ground speed in knots (16-bit unsigned, LSB 2^-14 NM/s = 0.2197265625 kt)
 * and heading in degrees (16-bit unsigned, LSB 360/2^16).
 * Named fields (fields.h): gsp (kt), hdg (deg).
 */
typedef struct AstVelocityPolar {
    uint32_t valid;
    int32_t speed_raw;
    double speed_lsb;
    double speed;
    int32_t heading_raw;
    double heading_lsb;
    double heading;
} AstVelocityPolar;

/** Sets raw values and values to 0, LSBs to 0.2197265625 and 0.0054931640625. */
KOVREL_API void ast_dataitem_velocity_polar_init(AstVelocityPolar *out);
/** Decodes 4 octets (speed, heading); init defaults for a missing, invalid or wrong-length span. */
KOVREL_API void ast_dataitem_velocity_polar_decode(AstVelocityPolar *out, const AstDataItem *item);
/**
 * Writes 4 octets. When speed or heading is above 0 both fields are
 * round(value / LSB) with the fixed LSBs (half away from zero); otherwise
 * speed_raw and heading_raw are written as they are. Each field keeps the
 * low 16 bits (no range check). *out = {buffer, 4, 0, 1}; on failure
 * {buffer, 0, 0, 0} and nothing written: in or buffer NULL, size below 4,
 * or in->valid not 1.
 */
KOVREL_API void ast_dataitem_velocity_polar_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                   const AstVelocityPolar *in);
/** "SPD:%.2f HDG:%.2f" (knots, degrees); empty text on failure. */
KOVREL_API void ast_dataitem_velocity_polar_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: ground speed in NM/s, m/s, knots and km/h, and heading. Empty text on failure. */
KOVREL_API void ast_dataitem_velocity_polar_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Height ------------------------------------------------------------- */

/**
 * Height in feet: 16-bit two's complement, LSB 6.25 ft.
 * Named fields (fields.h): height (ft).
 */
typedef struct AstHeight {
    uint32_t valid;
    int32_t raw;
    double lsb;
    double value;
} AstHeight;

/** Sets raw and value to 0 and the LSB to 6.25. */
KOVREL_API void ast_dataitem_height_init(AstHeight *out);
/** Decodes 2 octets; init defaults for a missing, invalid or wrong-length span. */
KOVREL_API void ast_dataitem_height_decode(AstHeight *out, const AstDataItem *item);
/** "H:%.2f LSB:FT"; empty text on failure. */
KOVREL_API void ast_dataitem_height_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: raw value, feet and metres. Empty text on failure. */
KOVREL_API void ast_dataitem_height_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Vertical rate ------------------------------------------------------ */

/**
 * Vertical rate in feet per minute, LSB 6.25 ft/min. With the range-exceeded
 * bit (bit 16) the rate is a 15-bit two's complement field; without it a
 * 16-bit one and re stays 0.
 * Named fields (fields.h): re, vr (ft/min); vr alone for the rate without range-exceeded bit.
 */
typedef struct AstVerticalRate {
    uint32_t valid;
    uint8_t re; /**< range exceeded */
    int32_t raw;
    double lsb;
    double value;
} AstVerticalRate;

/** The vertical rate without range-exceeded bit uses the same record (re is always 0). */
typedef AstVerticalRate AstVerticalRateNoRe;

/** Sets re, raw and value to 0 and the LSB to 6.25. */
KOVREL_API void ast_dataitem_vertical_rate_init(AstVerticalRate *out);
/** Decodes 2 octets: re = bit 16, rate = bits 15-1. Init defaults for a missing, invalid or wrong-length span. */
KOVREL_API void ast_dataitem_vertical_rate_decode(AstVerticalRate *out, const AstDataItem *item);
/**
 * Writes 2 octets. When value is not 0 (NaN counts as not 0) the rate is
 * value / 6.25 truncated towards zero, otherwise raw; its low 15 bits are
 * written below bit 16, and bit 16 is set when re is 1. A rate that has no
 * 32-bit truncation (NaN, beyond the range) is written as 0. Any non-zero
 * valid flag is accepted. *out = {buffer, 2, 0, 1}; on failure {buffer, 0,
 * 0, 0} and nothing written: in or buffer NULL, size below 2, valid 0.
 */
KOVREL_API void ast_dataitem_vertical_rate_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                  const AstVerticalRate *in);
/** "VR:%.2fFT/M" (the range-exceeded bit is not shown); empty text on failure. */
KOVREL_API void ast_dataitem_vertical_rate_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: raw value, feet per minute and metres per minute. Empty text on failure. */
KOVREL_API void ast_dataitem_vertical_rate_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/** Sets re, raw and value to 0 and the LSB to 6.25. */
KOVREL_API void ast_dataitem_vertical_rate_no_re_init(AstVerticalRateNoRe *out);
/** Decodes 2 octets as one 16-bit two's complement rate; re stays 0. */
KOVREL_API void ast_dataitem_vertical_rate_no_re_decode(AstVerticalRateNoRe *out, const AstDataItem *item);
/**
 * As ast_dataitem_vertical_rate_encode, but the rate fills all 16 bits and
 * re is ignored.
 */
KOVREL_API void ast_dataitem_vertical_rate_no_re_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                        const AstVerticalRateNoRe *in);
/** "VR:%.2fFT/M"; empty text on failure. */
KOVREL_API void ast_dataitem_vertical_rate_no_re_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table as for the vertical rate. Empty text on failure. */
KOVREL_API void ast_dataitem_vertical_rate_no_re_get_detail_html(char *buffer, size_t size,
                                                                 const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_ITEMS_MOTION_H */
