/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * cat015.h: Category 015, independent non-cooperative surveillance (INCS)
 * target reports (edition 1.2 of the category).
 *
 * Simple items are delimited by the generic size rules of dataitem.h. The
 * compound items below open with a primary subfield (subfield.h); each has
 * the size rule ast_dataitem_015_NNN_get_size and the subfield functions
 * ast_subfield_015_NNN_get_size, _get_id, _get_name, _get_summary and
 * _get_detail_html, which take the subfield identifier (15600001 is the
 * first subfield of I015/600). Every CAT015 subfield has a fixed length.
 *
 * The category's own items decode into the structures below: a 32-bit valid
 * flag first, then one member per field in wire order, named by the field's
 * mnemonic in lower case. A quantity keeps its raw wire value (x_raw), its
 * LSB (x_lsb) and its value in the unit noted (x); the encoders write the
 * raw members, and the named fields (fields.h) set the raw member with the
 * value. A compound item's structure has, per subfield, a presence flag
 * (<subfield>_present) and the subfield's fields as <subfield>_<field>
 * (the subfield's name alone when it is one field); its named fields are one
 * group per present subfield. Correlation coefficients are unitless, in
 * steps of 1/128. The entries of the repetitive items keep raw values only
 * (the item carries the LSBs); their named fields give the values.
 *
 * Per item: _init (zeros, valid 0), _decode (valid 1 only for a valid span
 * of the item's identifier and exact length), _encode (refused, zero-length
 * invalid span, when in is not valid, a value does not fit its bits, a
 * count exceeds its array, no subfield of a compound item is present or the
 * buffer is short), _get_summary and _get_detail_html (simple items; empty
 * text when the item does not decode), and the _decode_ex/_encode_ex entry
 * points of the item dispatch. A compound item keeps the "SUBFIELDS:nn/nn"
 * summary and subfield table of every compound item; each subfield has its
 * own summary ("NAME:value ...") and detail view.
 */
#ifndef KOVREL_CAT015_H
#define KOVREL_CAT015_H

#include "kovrel/dataitem.h"
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"
#include "kovrel/subfield.h"

KOVREL_BEGIN_DECLS

/**
 * Display name of a CAT015 item ("Range Information"); any other identifier
 * gives "Unknown CAT015 Dataitem" and logs "Unknown dataitem name: %s." at
 * WARNING.
 */
KOVREL_API const char *ast_dataitem_015_get_name(AstItemId id);

/* I015/270 Target Size & Orientation (compound): LEN, WDT, HGT, ORT. */
KOVREL_API uint64_t ast_dataitem_015_270_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_270_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_270_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_270_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_270_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_270_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/600 Horizontal Position Information (compound): P84, HPR, HPP. */
KOVREL_API uint64_t ast_dataitem_015_600_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_600_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_600_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_600_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_600_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_600_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/601 Geometric Height Information (compound): GH, RSGH, SDGH, CI6, CI9, COGHHP, COGHHV, COGHHA. */
KOVREL_API uint64_t ast_dataitem_015_601_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_601_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_601_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_601_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_601_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_601_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/602 Horizontal Velocity Information (compound): HV, RSHV, SDHV, COHVHP. */
KOVREL_API uint64_t ast_dataitem_015_602_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_602_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_602_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_602_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_602_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_602_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/603 Horizontal Acceleration Information (compound): HA, SDHA, COHAHP, COHAHV. */
KOVREL_API uint64_t ast_dataitem_015_603_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_603_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_603_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_603_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_603_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_603_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/604 Vertical Velocity Information (compound): VV, RSVV, SDVV, COVVHP, COVVHV, COVVHA. */
KOVREL_API uint64_t ast_dataitem_015_604_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_604_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_604_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_604_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_604_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_604_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/605 Vertical Velocity Information (so titled by the edition; it carries
 * the vertical acceleration) (compound): VA, RSVA, COVAHP, COVAHV, COVAHA. */
KOVREL_API uint64_t ast_dataitem_015_605_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_605_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_605_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_605_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_605_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_605_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/625 Range Information (compound): R, RSR, SDR, RR, RSRR, SDRR, RA, SDRA. */
KOVREL_API uint64_t ast_dataitem_015_625_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_625_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_625_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_625_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_625_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_625_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/626 Doppler Information (compound): DV, SDDV, DA, SDDA, CODVR, CODVRR,
 * CODVRA, CODAR, CODARR, CODARA. */
KOVREL_API uint64_t ast_dataitem_015_626_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_626_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_626_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_626_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_626_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_626_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/627 Azimuth Information (compound): AZ, RSAZ, SDASZ, AZR, SDAZR, AZEX. */
KOVREL_API uint64_t ast_dataitem_015_627_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_627_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_627_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_627_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_627_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_627_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/628 Elevation Information (compound): EL, RSEL, SDEL, ER, SDER, ELEX. */
KOVREL_API uint64_t ast_dataitem_015_628_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_628_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_628_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_628_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_628_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_628_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);

/* I015/630 Path Quality (compound): DPP, DPS, RPP, RPS. */
KOVREL_API uint64_t ast_dataitem_015_630_get_size(const uint8_t *octets, size_t available);
KOVREL_API uint64_t ast_subfield_015_630_get_size(const uint8_t *octets, size_t available, uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_630_get_id(uint32_t subfield_id);
KOVREL_API const char *ast_subfield_015_630_get_name(uint32_t subfield_id);
KOVREL_API void ast_subfield_015_630_get_summary(char *buffer, size_t size, const AstSubfield *span,
                                                 uint32_t subfield_id);
KOVREL_API void ast_subfield_015_630_get_detail_html(char *buffer, size_t size, const AstSubfield *span,
                                                     uint32_t subfield_id);


/* ---- Category items -------------------------------------------------------- */

/**
 * I015/000 Message Type: mt (1 measurement plot, 2 measurement track, 3
 * sensor centric plot, 4 sensor centric track, 5 track end) and rg (1 event
 * driven report). Summary "MT:MEASUREMENT_PLOT", then " RG".
 */
typedef struct AstItem015_000 {
    uint32_t valid;
    uint32_t mt;
    uint8_t rg;
} AstItem015_000;

/**
 * I015/020 Target Report Descriptor: momu (0 mono-static, 1 multi-static, 2
 * other, 3 unknown), ttax (0 actual, 1 reference, 2 synthetic, 3
 * simulated/replayed), scd (scanning direction: 0 unknown, 1 forward, 2
 * backward, 3 static). Summary "MOMU:MONO_STATIC TTAX:ACTUAL SCD:FORWARD".
 */
typedef struct AstItem015_020 {
    uint32_t valid;
    uint32_t momu, ttax, scd;
} AstItem015_020;

#define AST_ITEM015_030_MAX 64

/** I015/030 Warning/Error Conditions: seven-bit values, one per octet. Summary "WE:" and the values in hexadecimal. */
typedef struct AstItem015_030 {
    uint32_t valid;
    uint32_t count;
    uint32_t codes[AST_ITEM015_030_MAX];
} AstItem015_030;

/** I015/050 Update Period: seconds (1/128 s, 14 bits). Summary "UPD:%.4f". */
typedef struct AstItem015_050 {
    uint32_t valid;
    uint32_t upd_raw;
    double upd_lsb;
    double upd; /**< s */
} AstItem015_050;

/**
 * I015/170 Track/Plot Status: in a blind zone (biz), in a blanked zone
 * (baz), terminated by user request (tur), position and height coasted
 * (cstp, csth), tentative track (cnf). Summary: the names of the bits set,
 * or NONE.
 */
typedef struct AstItem015_170 {
    uint32_t valid;
    uint8_t biz, baz, tur, cstp, csth, cnf;
} AstItem015_170;

/** One classification of I015/300: class (9 bits) and its probability in percent (7 bits). */
typedef struct AstItem015Class {
    uint32_t cls;
    uint32_t prb;
} AstItem015Class;

#define AST_ITEM015_300_MAX 255

/** I015/300 Object Classification. Summary "REP:n" then "CLS:%u PRB:%u" per class. */
typedef struct AstItem015_300 {
    uint32_t valid;
    uint32_t rep;
    AstItem015Class classes[AST_ITEM015_300_MAX];
} AstItem015_300;

/** I015/400 Measurement Identifier: pair identifier and observation number. Summary "PID:%u ON:%u". */
typedef struct AstItem015_400 {
    uint32_t valid;
    uint32_t pid; /**< 16 bits */
    uint32_t on;  /**< 24 bits */
} AstItem015_400;

/** One measurement identifier of I015/480, laid out as I015/400. */
typedef struct AstItem015Measurement {
    uint32_t pid;
    uint32_t on;
} AstItem015Measurement;

#define AST_ITEM015_480_MAX 255

/** I015/480 Associations: the measurement identifiers behind the report. Summary "REP:n" then "PID:%u ON:%u". */
typedef struct AstItem015_480 {
    uint32_t valid;
    uint32_t rep;
    AstItem015Measurement associations[AST_ITEM015_480_MAX];
} AstItem015_480;

/** One contour point of I015/631 (raw). */
typedef struct AstItem015Contour {
    uint32_t azcon;      /**< 360/2^16 degrees */
    int32_t elcon;       /**< 180/2^16 degrees */
    uint32_t rgconstop;  /**< 10000/2^16 m */
    uint32_t rgconstart; /**< 10000/2^16 m */
} AstItem015Contour;

#define AST_ITEM015_631_MAX 255

/**
 * I015/631 Contour (Azimuth, Elevation Angle, Range Extent): the LSBs of
 * the points' azimuth, elevation and range. Summary "REP:n" then each
 * point's values.
 */
typedef struct AstItem015_631 {
    uint32_t valid;
    uint32_t rep;
    double az_lsb; /**< degrees */
    double el_lsb; /**< degrees */
    double rg_lsb; /**< m */
    AstItem015Contour points[AST_ITEM015_631_MAX];
} AstItem015_631;

/** I015/270 Target Size & Orientation (compound): LEN, WDT, HGT, ORT. */
typedef struct AstItem015_270 {
    uint32_t valid;
    uint8_t len_present;
    uint32_t len_raw;
    double len_lsb;
    double len; /**< m */
    uint8_t wdt_present;
    uint32_t wdt_raw;
    double wdt_lsb;
    double wdt; /**< m */
    uint8_t hgt_present;
    uint32_t hgt_raw;
    double hgt_lsb;
    double hgt; /**< m */
    uint8_t ort_present;
    uint32_t ort_raw;
    double ort_lsb;
    double ort; /**< deg */
} AstItem015_270;

/** I015/600 Horizontal Position Information (compound): P84, HPR, HPP. */
typedef struct AstItem015_600 {
    uint32_t valid;
    uint8_t p84_present;
    int32_t p84_latitude_raw;
    double p84_latitude_lsb;
    double p84_latitude; /**< deg */
    int32_t p84_longitude_raw;
    double p84_longitude_lsb;
    double p84_longitude; /**< deg */
    uint8_t hpr_present;
    uint32_t hpr_rshpx_raw;
    double hpr_rshpx_lsb;
    double hpr_rshpx; /**< m */
    uint32_t hpr_rshpy_raw;
    double hpr_rshpy_lsb;
    double hpr_rshpy; /**< m */
    int32_t hpr_corshpxy_raw;
    double hpr_corshpxy_lsb;
    double hpr_corshpxy;
    uint8_t hpp_present;
    uint32_t hpp_sdhpx_raw;
    double hpp_sdhpx_lsb;
    double hpp_sdhpx; /**< m */
    uint32_t hpp_sdhpy_raw;
    double hpp_sdhpy_lsb;
    double hpp_sdhpy; /**< m */
    int32_t hpp_cosdhpxy_raw;
    double hpp_cosdhpxy_lsb;
    double hpp_cosdhpxy;
} AstItem015_600;

/** I015/601 Geometric Height Information (compound): GH, RSGH, SDGH, CI6, CI9, COGHHP, COGHHV, COGHHA. */
typedef struct AstItem015_601 {
    uint32_t valid;
    uint8_t gh_present;
    int32_t gh_raw;
    double gh_lsb;
    double gh; /**< m */
    uint8_t rsgh_present;
    uint32_t rsgh_raw;
    double rsgh_lsb;
    double rsgh; /**< m */
    uint8_t sdgh_present;
    uint32_t sdgh_raw;
    double sdgh_lsb;
    double sdgh; /**< m */
    uint8_t ci6_present;
    uint32_t ci6_uci6_raw;
    double ci6_uci6_lsb;
    double ci6_uci6; /**< m */
    uint32_t ci6_lci6_raw;
    double ci6_lci6_lsb;
    double ci6_lci6; /**< m */
    uint8_t ci9_present;
    uint32_t ci9_uci9_raw;
    double ci9_uci9_lsb;
    double ci9_uci9; /**< m */
    uint32_t ci9_lci9_raw;
    double ci9_lci9_lsb;
    double ci9_lci9; /**< m */
    uint8_t coghhp_present;
    int32_t coghhp_x_raw;
    double coghhp_x_lsb;
    double coghhp_x;
    int32_t coghhp_y_raw;
    double coghhp_y_lsb;
    double coghhp_y;
    uint8_t coghhv_present;
    int32_t coghhv_x_raw;
    double coghhv_x_lsb;
    double coghhv_x;
    int32_t coghhv_y_raw;
    double coghhv_y_lsb;
    double coghhv_y;
    uint8_t coghha_present;
    int32_t coghha_x_raw;
    double coghha_x_lsb;
    double coghha_x;
    int32_t coghha_y_raw;
    double coghha_y_lsb;
    double coghha_y;
} AstItem015_601;

/** I015/602 Horizontal Velocity Information (compound): HV, RSHV, SDHV, COHVHP. */
typedef struct AstItem015_602 {
    uint32_t valid;
    uint8_t hv_present;
    int32_t hv_x_raw;
    double hv_x_lsb;
    double hv_x; /**< m/s */
    int32_t hv_y_raw;
    double hv_y_lsb;
    double hv_y; /**< m/s */
    uint8_t rshv_present;
    uint32_t rshv_x_raw;
    double rshv_x_lsb;
    double rshv_x; /**< m/s */
    uint32_t rshv_y_raw;
    double rshv_y_lsb;
    double rshv_y; /**< m/s */
    int32_t rshv_corshvxy_raw;
    double rshv_corshvxy_lsb;
    double rshv_corshvxy;
    uint8_t sdhv_present;
    uint32_t sdhv_x_raw;
    double sdhv_x_lsb;
    double sdhv_x; /**< m/s */
    uint32_t sdhv_y_raw;
    double sdhv_y_lsb;
    double sdhv_y; /**< m/s */
    int32_t sdhv_cohvxy_raw;
    double sdhv_cohvxy_lsb;
    double sdhv_cohvxy;
    uint8_t cohvhp_present;
    int32_t cohvhp_cohvxhpx_raw;
    double cohvhp_cohvxhpx_lsb;
    double cohvhp_cohvxhpx;
    int32_t cohvhp_cohvxhpy_raw;
    double cohvhp_cohvxhpy_lsb;
    double cohvhp_cohvxhpy;
    int32_t cohvhp_cohvyhpx_raw;
    double cohvhp_cohvyhpx_lsb;
    double cohvhp_cohvyhpx;
    int32_t cohvhp_cohvyhpy_raw;
    double cohvhp_cohvyhpy_lsb;
    double cohvhp_cohvyhpy;
} AstItem015_602;

/** I015/603 Horizontal Acceleration Information (compound): HA, SDHA, COHAHP, COHAHV. */
typedef struct AstItem015_603 {
    uint32_t valid;
    uint8_t ha_present;
    int32_t ha_x_raw;
    double ha_x_lsb;
    double ha_x; /**< m/s2 */
    int32_t ha_y_raw;
    double ha_y_lsb;
    double ha_y; /**< m/s2 */
    uint8_t sdha_present;
    uint32_t sdha_x_raw;
    double sdha_x_lsb;
    double sdha_x; /**< m/s2 */
    uint32_t sdha_y_raw;
    double sdha_y_lsb;
    double sdha_y; /**< m/s2 */
    int32_t sdha_cohaxy_raw;
    double sdha_cohaxy_lsb;
    double sdha_cohaxy;
    uint8_t cohahp_present;
    int32_t cohahp_cohaxhpx_raw;
    double cohahp_cohaxhpx_lsb;
    double cohahp_cohaxhpx;
    int32_t cohahp_cohaxhpy_raw;
    double cohahp_cohaxhpy_lsb;
    double cohahp_cohaxhpy;
    int32_t cohahp_cohayhpx_raw;
    double cohahp_cohayhpx_lsb;
    double cohahp_cohayhpx;
    int32_t cohahp_coayhpy_raw;
    double cohahp_coayhpy_lsb;
    double cohahp_coayhpy;
    uint8_t cohahv_present;
    int32_t cohahv_cohaxhvx_raw;
    double cohahv_cohaxhvx_lsb;
    double cohahv_cohaxhvx;
    int32_t cohahv_cohaxhvy_raw;
    double cohahv_cohaxhvy_lsb;
    double cohahv_cohaxhvy;
    int32_t cohahv_cohayhvx_raw;
    double cohahv_cohayhvx_lsb;
    double cohahv_cohayhvx;
    int32_t cohahv_cohayhvy_raw;
    double cohahv_cohayhvy_lsb;
    double cohahv_cohayhvy;
} AstItem015_603;

/** I015/604 Vertical Velocity Information (compound): VV, RSVV, SDVV, COVVHP, COVVHV, COVVHA. */
typedef struct AstItem015_604 {
    uint32_t valid;
    uint8_t vv_present;
    int32_t vv_raw;
    double vv_lsb;
    double vv; /**< m/s */
    uint8_t rsvv_present;
    uint32_t rsvv_raw;
    double rsvv_lsb;
    double rsvv; /**< m/s */
    uint8_t sdvv_present;
    uint32_t sdvv_raw;
    double sdvv_lsb;
    double sdvv; /**< m/s */
    int32_t sdvv_covvgh_raw;
    double sdvv_covvgh_lsb;
    double sdvv_covvgh;
    uint8_t covvhp_present;
    int32_t covvhp_x_raw;
    double covvhp_x_lsb;
    double covvhp_x;
    int32_t covvhp_y_raw;
    double covvhp_y_lsb;
    double covvhp_y;
    uint8_t covvhv_present;
    int32_t covvhv_x_raw;
    double covvhv_x_lsb;
    double covvhv_x;
    int32_t covvhv_y_raw;
    double covvhv_y_lsb;
    double covvhv_y;
    uint8_t covvha_present;
    int32_t covvha_x_raw;
    double covvha_x_lsb;
    double covvha_x;
    int32_t covvha_y_raw;
    double covvha_y_lsb;
    double covvha_y;
} AstItem015_604;

/** I015/605, titled Vertical Velocity Information by the edition, carrying the vertical acceleration (compound): VA, RSVA, COVAHP, COVAHV, COVAHA. */
typedef struct AstItem015_605 {
    uint32_t valid;
    uint8_t va_present;
    int32_t va_raw;
    double va_lsb;
    double va; /**< m/s2 */
    uint8_t rsva_present;
    uint32_t rsva_sdva_raw;
    double rsva_sdva_lsb;
    double rsva_sdva; /**< m/s2 */
    int32_t rsva_covagh_raw;
    double rsva_covagh_lsb;
    double rsva_covagh;
    int32_t rsva_covavv_raw;
    double rsva_covavv_lsb;
    double rsva_covavv;
    uint8_t covahp_present;
    int32_t covahp_x_raw;
    double covahp_x_lsb;
    double covahp_x;
    int32_t covahp_y_raw;
    double covahp_y_lsb;
    double covahp_y;
    uint8_t covahv_present;
    int32_t covahv_x_raw;
    double covahv_x_lsb;
    double covahv_x;
    int32_t covahv_y_raw;
    double covahv_y_lsb;
    double covahv_y;
    uint8_t covaha_present;
    int32_t covaha_x_raw;
    double covaha_x_lsb;
    double covaha_x;
    int32_t covaha_y_raw;
    double covaha_y_lsb;
    double covaha_y;
} AstItem015_605;

/** I015/625 Range Information (compound): R, RSR, SDR, RR, RSRR, SDRR, RA, SDRA. */
typedef struct AstItem015_625 {
    uint32_t valid;
    uint8_t r_present;
    int32_t r_raw;
    double r_lsb;
    double r; /**< m */
    uint8_t rsr_present;
    uint32_t rsr_raw;
    double rsr_lsb;
    double rsr; /**< m */
    uint8_t sdr_present;
    uint32_t sdr_raw;
    double sdr_lsb;
    double sdr; /**< m */
    uint8_t rr_present;
    int32_t rr_raw;
    double rr_lsb;
    double rr; /**< m/s */
    uint8_t rsrr_present;
    uint32_t rsrr_raw;
    double rsrr_lsb;
    double rsrr; /**< m/s */
    uint8_t sdrr_present;
    uint32_t sdrr_raw;
    double sdrr_lsb;
    double sdrr; /**< m/s */
    int32_t sdrr_corrr_raw;
    double sdrr_corrr_lsb;
    double sdrr_corrr;
    uint8_t ra_present;
    int32_t ra_raw;
    double ra_lsb;
    double ra; /**< m/s2 */
    uint8_t sdra_present;
    uint32_t sdra_raw;
    double sdra_lsb;
    double sdra; /**< m/s2 */
    int32_t sdra_corar_raw;
    double sdra_corar_lsb;
    double sdra_corar;
    int32_t sdra_corarr_raw;
    double sdra_corarr_lsb;
    double sdra_corarr;
} AstItem015_625;

/** I015/626 Doppler Information (compound): DV, SDDV, DA, SDDA, CODVR, CODVRR, CODVRA, CODAR, CODARR, CODARA. */
typedef struct AstItem015_626 {
    uint32_t valid;
    uint8_t dv_present;
    int32_t dv_raw;
    double dv_lsb;
    double dv; /**< m/s */
    uint8_t sddv_present;
    uint32_t sddv_raw;
    double sddv_lsb;
    double sddv; /**< m/s */
    uint8_t da_present;
    int32_t da_raw;
    double da_lsb;
    double da; /**< m/s2 */
    uint8_t sdda_present;
    uint32_t sdda_raw;
    double sdda_lsb;
    double sdda; /**< m/s2 */
    int32_t sdda_codadv_raw;
    double sdda_codadv_lsb;
    double sdda_codadv;
    uint8_t codvr_present;
    int32_t codvr_raw;
    double codvr_lsb;
    double codvr;
    uint8_t codvrr_present;
    int32_t codvrr_raw;
    double codvrr_lsb;
    double codvrr;
    uint8_t codvra_present;
    int32_t codvra_raw;
    double codvra_lsb;
    double codvra;
    uint8_t codar_present;
    int32_t codar_raw;
    double codar_lsb;
    double codar;
    uint8_t codarr_present;
    int32_t codarr_raw;
    double codarr_lsb;
    double codarr;
    uint8_t codara_present;
    int32_t codara_raw;
    double codara_lsb;
    double codara;
} AstItem015_626;

/** I015/627 Azimuth Information (compound): AZ, RSAZ, SDASZ, AZR, SDAZR, AZEX. */
typedef struct AstItem015_627 {
    uint32_t valid;
    uint8_t az_present;
    uint32_t az_raw;
    double az_lsb;
    double az; /**< deg */
    uint8_t rsaz_present;
    uint32_t rsaz_raw;
    double rsaz_lsb;
    double rsaz; /**< deg */
    uint8_t sdasz_present;
    uint32_t sdasz_raw;
    double sdasz_lsb;
    double sdasz; /**< deg */
    uint8_t azr_present;
    int32_t azr_raw;
    double azr_lsb;
    double azr; /**< deg */
    uint8_t sdazr_present;
    uint32_t sdazr_raw;
    double sdazr_lsb;
    double sdazr; /**< deg */
    int32_t sdazr_coazraz_raw;
    double sdazr_coazraz_lsb;
    double sdazr_coazraz;
    uint8_t azex_present;
    uint32_t azex_s_raw;
    double azex_s_lsb;
    double azex_s; /**< deg */
    uint32_t azex_e_raw;
    double azex_e_lsb;
    double azex_e; /**< deg */
} AstItem015_627;

/** I015/628 Elevation Information (compound): EL, RSEL, SDEL, ER, SDER, ELEX. */
typedef struct AstItem015_628 {
    uint32_t valid;
    uint8_t el_present;
    int32_t el_raw;
    double el_lsb;
    double el; /**< deg */
    uint8_t rsel_present;
    uint32_t rsel_raw;
    double rsel_lsb;
    double rsel; /**< deg */
    uint8_t sdel_present;
    uint32_t sdel_raw;
    double sdel_lsb;
    double sdel; /**< deg */
    uint8_t er_present;
    int32_t er_raw;
    double er_lsb;
    double er; /**< deg/s */
    uint8_t sder_present;
    uint32_t sder_sdelr_raw;
    double sder_sdelr_lsb;
    double sder_sdelr; /**< deg/s */
    int32_t sder_coelrel_raw;
    double sder_coelrel_lsb;
    double sder_coelrel;
    uint8_t elex_present;
    int32_t elex_s_raw;
    double elex_s_lsb;
    double elex_s; /**< deg */
    int32_t elex_e_raw;
    double elex_e_lsb;
    double elex_e; /**< deg */
} AstItem015_628;

/** I015/630 Path Quality (compound): DPP, DPS, RPP, RPS. */
typedef struct AstItem015_630 {
    uint32_t valid;
    uint8_t dpp_present;
    int32_t dpp_raw;
    double dpp_lsb;
    double dpp; /**< dB */
    uint8_t dps_present;
    int32_t dps_raw;
    double dps_lsb;
    double dps; /**< dB */
    uint8_t rpp_present;
    int32_t rpp_raw;
    double rpp_lsb;
    double rpp; /**< dB */
    uint8_t rps_present;
    int32_t rps_raw;
    double rps_lsb;
    double rps; /**< dB */
} AstItem015_630;

#define KOVREL_CAT015_ITEM(P, T)                                                                                \
    KOVREL_API void ast_dataitem_##P##_init(T *out);                                                          \
    KOVREL_API void ast_dataitem_##P##_decode(T *out, const AstDataItem *item);                               \
    KOVREL_API void ast_dataitem_##P##_encode(AstDataItem *out, uint8_t *buffer, size_t size, const T *in);   \
    KOVREL_API void ast_dataitem_##P##_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,   \
                                                 const AstDataItem *item);                                    \
    KOVREL_API void ast_dataitem_##P##_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,              \
                                                 const AstDataItemValue *value);
#define KOVREL_CAT015_VIEWS(P)                                                                                  \
    KOVREL_API void ast_dataitem_##P##_get_summary(char *buffer, size_t size, const AstDataItem *item);       \
    KOVREL_API void ast_dataitem_##P##_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

KOVREL_CAT015_ITEM(015_000, AstItem015_000)
KOVREL_CAT015_VIEWS(015_000)
KOVREL_CAT015_ITEM(015_020, AstItem015_020)
KOVREL_CAT015_VIEWS(015_020)
KOVREL_CAT015_ITEM(015_030, AstItem015_030)
KOVREL_CAT015_VIEWS(015_030)
KOVREL_CAT015_ITEM(015_050, AstItem015_050)
KOVREL_CAT015_VIEWS(015_050)
KOVREL_CAT015_ITEM(015_170, AstItem015_170)
KOVREL_CAT015_VIEWS(015_170)
KOVREL_CAT015_ITEM(015_300, AstItem015_300)
KOVREL_CAT015_VIEWS(015_300)
KOVREL_CAT015_ITEM(015_400, AstItem015_400)
KOVREL_CAT015_VIEWS(015_400)
KOVREL_CAT015_ITEM(015_480, AstItem015_480)
KOVREL_CAT015_VIEWS(015_480)
KOVREL_CAT015_ITEM(015_631, AstItem015_631)
KOVREL_CAT015_VIEWS(015_631)
KOVREL_CAT015_ITEM(015_270, AstItem015_270)
KOVREL_CAT015_ITEM(015_600, AstItem015_600)
KOVREL_CAT015_ITEM(015_601, AstItem015_601)
KOVREL_CAT015_ITEM(015_602, AstItem015_602)
KOVREL_CAT015_ITEM(015_603, AstItem015_603)
KOVREL_CAT015_ITEM(015_604, AstItem015_604)
KOVREL_CAT015_ITEM(015_605, AstItem015_605)
KOVREL_CAT015_ITEM(015_625, AstItem015_625)
KOVREL_CAT015_ITEM(015_626, AstItem015_626)
KOVREL_CAT015_ITEM(015_627, AstItem015_627)
KOVREL_CAT015_ITEM(015_628, AstItem015_628)
KOVREL_CAT015_ITEM(015_630, AstItem015_630)

#undef KOVREL_CAT015_ITEM
#undef KOVREL_CAT015_VIEWS

/*
 * Items served by the common items (items.h). Their summaries and detail
 * views are the common item's; the structured entry points below decode
 * into, and encode from, the common item's structure.
 *
 * _decode_ex: *out = {valid flag of the structure, item id, storage} after
 * decoding into storage; {0, item id, NULL} and nothing written when
 * storage is NULL or smaller than the structure, or the item is not valid.
 * _encode_ex: writes the item from value->value (a pointer to the
 * structure) into buffer; *out is the written span carrying value->id, of
 * length 0 and valid 0 when the common encoder refuses the value.
 */

/* I015/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_015_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_015_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I015/015 Service Identification: service identification (AstServiceId); no detail view. */
KOVREL_API void ast_dataitem_015_015_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_015_015_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I015/145 Time of Applicability: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_015_145_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_015_145_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I015/161 Track/Plot Number: 16-bit track number (AstTrackNumber); no detail view. */
KOVREL_API void ast_dataitem_015_161_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_015_161_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* SPF: special purpose field (AstSpecialPurposeField); decode only, no detail view. */
KOVREL_API void ast_dataitem_015_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Record level ------------------------------------------------------ */

/**
 * The disassembled CAT015 record: one member per item, each the structure
 * the item's structured decode yields; a member whose item is absent stays
 * zero. SPF has no member.
 */
typedef struct AstRecord015 {
    uint32_t valid;
    AstDataSourceIdentifier i010;
    AstItem015_000 i000;
    AstServiceId i015;
    AstItem015_020 i020;
    AstItem015_030 i030;
    AstTimeOfDay i145;
    AstTrackNumber i161;
    AstItem015_170 i170;
    AstItem015_050 i050;
    AstItem015_270 i270;
    AstItem015_300 i300;
    AstItem015_400 i400;
    AstItem015_600 i600;
    AstItem015_601 i601;
    AstItem015_602 i602;
    AstItem015_603 i603;
    AstItem015_604 i604;
    AstItem015_605 i605;
    AstItem015_480 i480;
    AstItem015_625 i625;
    AstItem015_626 i626;
    AstItem015_627 i627;
    AstItem015_628 i628;
    AstItem015_630 i630;
    AstItem015_631 i631;
} AstRecord015;

/**
 * Disassembles a CAT015 record into *out: zeroed first; valid 0 unless the
 * record is valid and of category 15; SPF is skipped ("Failed to
 * disassemble dataitem %s." at DEBUG).
 */
KOVREL_API void ast_datarecord_015_disassemble(AstRecord015 *out, const AstDataRecord *record);
/**
 * Encodes the members whose valid flag is 1 as one CAT015 record of the
 * profile uap; a value an encoder refuses makes the record invalid.
 */
KOVREL_API void ast_datarecord_015_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord015 *in,
                                            const AstUap *uap);

/*
 * Record accessors of a target report; invalid results are all zeros
 * (SAC/SIC: 0xFFFFFFFF each).
 */
/** SAC/SIC from I015/010. */
KOVREL_API void ast_datarecord_015_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of applicability from I015/145. */
KOVREL_API void ast_datarecord_015_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/**
 * From MT of I015/000: 1 to 5 give 9 to 13 ("Measurement Plot",
 * "Measurement Track", "Sensor Centric Plot", "Sensor Centric Track",
 * "Track End"); any other value leaves the result invalid.
 */
KOVREL_API void ast_datarecord_015_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);
/** Track/plot number from I015/161 (16 bits). */
KOVREL_API void ast_datarecord_015_get_tracknum(AstTrackNumber *out, const AstDataRecord *record);
/** Degrees from subfield P84 of I015/600 (180/2^31 degrees). */
KOVREL_API void ast_datarecord_015_get_coordinate(AstRecordWgs84 *out, const AstDataRecord *record);
/**
 * Feet from the geometric height GH of I015/601 (metres above the WGS-84
 * ellipsoid, converted at 0.3048 m per foot): the report's only height.
 */
KOVREL_API void ast_datarecord_015_get_flightlevel(AstRecordValue *out, const AstDataRecord *record);
/**
 * Subfield HV of I015/602 as AstVelocityCartesian: x and y in m/s in the
 * raw members' place (raw: 1/100 m/s, lsb 0.01).
 */
KOVREL_API void ast_datarecord_015_get_cartesianvel(AstVelocityCartesian *out, const AstDataRecord *record);
/**
 * Subfield VV of I015/604 as AstVerticalRate: raw in 1/100 m/s, lsb and
 * value in ft/min (1 m/s = 196.85 ft/min).
 */
KOVREL_API void ast_datarecord_015_get_vrate(AstVerticalRate *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT015_H */
