/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * bds.h: Mode S Comm-B registers (56-bit MB fields identified by a BDS code,
 * BDS1 in the high four bits and BDS2 in the low four bits: 0x40 is 4,0).
 *
 * A register is handled as a span (AstDataItem) over its 7 MB octets whose
 * id is the BDS code. Each supported register has a decoder returning its
 * record by value and a detail view. A decoder given a span that is not
 * valid, not 7 octets long or of another code returns an all-zero record
 * (valid 0). In the records, a field with its own status or present flag
 * keeps the value 0 while that flag is 0.
 */
#ifndef KOVREL_BDS_H
#define KOVREL_BDS_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/**
 * Register 0,5: extended squitter airborne position.
 * Named fields (fields.h): tc, gnss, ss, saf, alt (ft), t, f, lat_cpr, lon_cpr.
 */
typedef struct AstBds05 {
    uint8_t valid;                /**< 1 when decoded (type code 9-18 or 20-22) */
    uint32_t type_code;           /**< format type code; kept even when the code is refused */
    uint8_t gnss_height;          /**< 1 for type codes 20-22: the altitude is a GNSS height */
    uint32_t surveillance_status; /**< 0 no condition, 1 permanent alert, 2 temporary alert, 3 SPI */
    uint8_t single_antenna;       /**< single antenna flag (NIC supplement-B in later editions) */
    int32_t altitude;             /**< feet: N x 25 - 1000 (Q bit set) or N x 100 - 1000 (Q clear) */
    uint8_t time_flag;            /**< 1 when synchronised to UTC time */
    uint8_t cpr_format;           /**< 1 odd, 0 even */
    uint32_t cpr_latitude;        /**< 17-bit CPR encoded latitude */
    uint32_t cpr_longitude;       /**< 17-bit CPR encoded longitude */
} AstBds05;

/**
 * Register 0,8: extended squitter aircraft identification and category.
 * Named fields (fields.h): tc, ca, acid.
 */
typedef struct AstBds08 {
    uint8_t valid;      /**< 1 when decoded */
    uint32_t type_code; /**< format type code: 4 set A, 3 set B, 2 set C, 1 set D */
    uint32_t category;  /**< emitter category within the set (two bits only) */
    char chars[9];      /**< eight identification characters and a NUL */
} AstBds08;

/**
 * Register 0,9: extended squitter airborne velocity.
 * Named fields (fields.h): tc, st, ic, nac, dew, vew, vns (kt), vrsrc, svr, vr (ft/min), sdif, dalt (ft).
 */
typedef struct AstBds09 {
    uint8_t valid;                /**< 1 when decoded (type code 19, subtype 1-4) */
    uint32_t type_code;           /**< format type code (19) */
    uint32_t subtype;             /**< 1-2 ground speed, 3-4 airspeed and heading (not decoded) */
    uint8_t intent_change;        /**< intent change flag */
    uint32_t nac;                 /**< navigation accuracy category for velocity (NACv) */
    uint8_t ew_direction;         /**< subtypes 1-2: 1 west, 0 east */
    uint8_t velocity_present;     /**< subtypes 1-2: both speed components are available */
    uint32_t ew_speed;            /**< knots, east-west component */
    uint8_t ns_direction;         /**< always 0: the north-south direction is not decoded */
    uint32_t ns_speed;            /**< knots, north-south component */
    uint8_t vertical_rate_source; /**< 1 barometric, 0 geometric */
    uint8_t vertical_rate_sign;   /**< 1 down, 0 up */
    uint8_t vertical_rate_present; /**< a vertical rate is given */
    int32_t vertical_rate;        /**< ft/min, magnitude (the direction is in the sign flag) */
    uint8_t height_diff_sign;     /**< geometric minus barometric height: 1 below, 0 above */
    uint8_t height_diff_present;  /**< a height difference is given */
    int32_t height_diff;          /**< ft, magnitude (the direction is in the sign flag) */
} AstBds09;

/**
 * Register 1,0: data link capability report.
 * Named fields (fields.h): cf, occ, snv, epi, ssc, uelm, delm, aic, scs, sic, gicb.
 */
typedef struct AstBds10 {
    uint8_t valid;                      /**< 1 when decoded */
    uint8_t continuation;               /**< continuation flag */
    uint8_t overlay_command_capability; /**< overlay command capability (TCAS interface operational) */
    uint32_t subnetwork_version;        /**< Mode S subnetwork version number (7 bits) */
    uint8_t enhanced_protocol;          /**< 1 level 5 transponder, 0 level 2-4 */
    uint8_t specific_services;          /**< Mode S specific services capability */
    uint16_t uelm_throughput;           /**< uplink ELM average throughput capability (3 bits) */
    uint16_t delm_throughput;           /**< downlink ELM throughput capability (4 bits) */
    uint8_t aircraft_ident_capability;  /**< aircraft identification capability */
    uint8_t squitter_capability;        /**< squitter capability subfield (SCS) */
    uint8_t sic_capability;             /**< surveillance identifier code capability (SIC) */
    uint8_t gicb_capability;            /**< common usage GICB capability report */
} AstBds10;

/**
 * Register 2,0: aircraft identification (first MB octet 0x20).
 * Named fields (fields.h): acid.
 */
typedef struct AstBds20 {
    uint8_t valid; /**< 1 when decoded */
    char chars[9]; /**< eight identification characters and a NUL */
} AstBds20;

/**
 * Register 3,0: ACAS active resolution advisory.
 * Named fields (fields.h): ara, rac, rat, mte, tti, tid.
 */
typedef struct AstBds30 {
    uint8_t valid;           /**< 1 when decoded */
    uint8_t ara_present;     /**< some active resolution advisory bit is set */
    uint8_t rac_present;     /**< some resolution advisory complement bit is set */
    uint8_t ra_terminated;   /**< resolution advisory terminated (RAT) */
    uint8_t multiple_threat; /**< multiple threat encounter (MTE) */
    uint32_t threat_type;    /**< threat type indicator: 1 Mode S address follows, 2 not Mode S; 0 and 3 not kept */
    uint8_t tid[3];          /**< threat identity, 24 bits in wire order (threat type 1 only) */
} AstBds30;

/**
 * Register 4,0: selected vertical intention.
 * Named fields (fields.h): mcp_alt, fms_alt (ft), bps (hPa), vnav, alt_hold, app, tars; each only with its status bit.
 */
typedef struct AstBds40 {
    uint8_t valid;                     /**< 1 when decoded */
    uint8_t mcp_alt_status;            /**< MCP/FCU selected altitude available */
    uint32_t mcp_alt;                  /**< ft, MCP/FCU selected altitude */
    uint8_t fms_alt_status;            /**< FMS selected altitude available */
    uint32_t fms_alt;                  /**< ft, FMS selected altitude */
    uint8_t baro_setting_status;       /**< barometric pressure setting available */
    double baro_setting;               /**< mb, barometric pressure setting */
    uint8_t mode_status;               /**< the three MCP/FCU mode bits are available */
    uint8_t vnav_mode;                 /**< VNAV mode engaged */
    uint8_t alt_hold_mode;             /**< altitude hold mode engaged */
    uint8_t approach_mode;             /**< approach mode engaged */
    uint8_t target_alt_source_status;  /**< target altitude source available */
    uint32_t target_alt_source;        /**< 0 unknown, 1 aircraft altitude, 2 MCP/FCU, 3 FMS */
} AstBds40;

/**
 * Register 5,0: track and turn report.
 * Named fields (fields.h): ran, tta (deg), gs (kt), tar (deg/s), tas (kt); each only with its status bit.
 */
typedef struct AstBds50 {
    uint8_t valid;                /**< 1 when decoded */
    uint8_t roll_angle_status;    /**< roll angle available */
    double roll_angle;            /**< degrees, negative for left wing down */
    uint8_t true_track_status;    /**< true track angle available */
    double true_track;            /**< degrees */
    uint8_t ground_speed_status;  /**< ground speed available */
    double ground_speed;          /**< knots */
    uint8_t track_rate_status;    /**< track angle rate available */
    double track_rate;            /**< degrees per second */
    uint8_t true_airspeed_status; /**< true airspeed available */
    uint32_t true_airspeed;       /**< knots */
} AstBds50;

/**
 * Register 6,0: heading and speed report.
 * Named fields (fields.h): mhg (deg), ias (kt), mach, bvr, ivv (ft/min); each only with its status bit.
 */
typedef struct AstBds60 {
    uint8_t valid;                     /**< 1 when decoded */
    uint8_t magnetic_heading_status;   /**< magnetic heading available */
    double magnetic_heading;           /**< degrees */
    uint8_t indicated_airspeed_status; /**< indicated airspeed available */
    uint32_t indicated_airspeed;       /**< knots */
    uint8_t mach_status;               /**< Mach number available */
    double mach;                       /**< Mach number */
    uint8_t baro_alt_rate_status;      /**< barometric altitude rate available */
    double baro_alt_rate;              /**< ft/min */
    uint8_t inertial_vv_status;        /**< inertial vertical velocity available */
    double inertial_vv;                /**< ft/min */
} AstBds60;

/** A register detail view: writes an HTML table for the register span reg. */
typedef void (*AstBdsGetDetailHtmlFn)(char *buffer, size_t size, const AstDataItem *reg);

/**
 * Wraps MB octets into a register span {mb, 7, code, valid}; valid is 1 only
 * when count is at least 7. No field is decoded here.
 */
KOVREL_API void ast_bds_decode(AstDataItem *out, const uint8_t *mb, size_t count, uint32_t code);

/** Writes "%X,%X" (BDS1, BDS2) and returns buffer; NULL for no buffer or size 0. */
KOVREL_API char *ast_bds_type_to_str_simple(char *buffer, size_t size, uint32_t code);
/** Writes "BDS %X,%X" and returns buffer; NULL for no buffer or size 0. */
KOVREL_API char *ast_bds_type_to_str(char *buffer, size_t size, uint32_t code);
/** Register name; "UNKNOWN NAME" for a code the library does not know. */
KOVREL_API const char *ast_bds_get_name(uint32_t code);
/**
 * Empties the text, then for a valid register span writes that register's
 * detail view; an unsupported code logs "Unsupported BDS %s" at WARNING.
 */
KOVREL_API void ast_bds_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);

/**
 * The detail view of register code (one of 0x05, 0x08, 0x09, 0x10, 0x20,
 * 0x30, 0x40, 0x50, 0x60). Any other code logs "Unsupported BDS %X,%X" at
 * WARNING and returns NULL.
 */
KOVREL_API AstBdsGetDetailHtmlFn ast_bds_get_func(uint32_t code);
/** A view that shows nothing: empties the text when size is not 0. */
KOVREL_API void ast_bds_get_detail_html_dummy(char *buffer, size_t size, const AstDataItem *reg);

/*
 * Register decoders: the record of the register span reg, all zero (valid 0)
 * when reg is NULL or not valid, its id is not the register's code or its
 * length is not 7. 0,5 with a type code outside 9-18 and 20-22 keeps only the
 * type code; 0,9 needs type code 19 and subtype 1-4; 2,0 needs its first
 * octet to be 0x20. Signed fields of 5,0 and 6,0 are read as sign and
 * magnitude.
 */
KOVREL_API AstBds05 ast_bds_05_decode(const AstDataItem *reg);
KOVREL_API AstBds08 ast_bds_08_decode(const AstDataItem *reg);
KOVREL_API AstBds09 ast_bds_09_decode(const AstDataItem *reg);
KOVREL_API AstBds10 ast_bds_10_decode(const AstDataItem *reg);
KOVREL_API AstBds20 ast_bds_20_decode(const AstDataItem *reg);
KOVREL_API AstBds30 ast_bds_30_decode(const AstDataItem *reg);
KOVREL_API AstBds40 ast_bds_40_decode(const AstDataItem *reg);
KOVREL_API AstBds50 ast_bds_50_decode(const AstDataItem *reg);
KOVREL_API AstBds60 ast_bds_60_decode(const AstDataItem *reg);

/*
 * Register detail views: one HTML detail table of the register's fields,
 * written from the start of buffer and cut to size. Registers 0,5 to 3,0
 * have the columns "Item", "Value"; 4,0, 5,0 and 6,0 add a "Status" column
 * ("valid"/"invalid") and show "--" as the value of an unavailable field.
 * The text is empty when the register does not decode.
 */
KOVREL_API void ast_bds_05_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);
KOVREL_API void ast_bds_08_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);
KOVREL_API void ast_bds_09_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);
KOVREL_API void ast_bds_10_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);
KOVREL_API void ast_bds_20_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);
KOVREL_API void ast_bds_30_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);
KOVREL_API void ast_bds_40_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);
KOVREL_API void ast_bds_50_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);
KOVREL_API void ast_bds_60_get_detail_html(char *buffer, size_t size, const AstDataItem *reg);

KOVREL_END_DECLS

#endif /* KOVREL_BDS_H */
