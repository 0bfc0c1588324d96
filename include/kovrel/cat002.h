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
#include "kovrel/datarecord.h"
#include "kovrel/export.h"
#include "kovrel/items.h"

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

/*
 * Items served by the common items (items.h). Their summaries and detail
 * views are the common item's (unless told otherwise below); the structured
 * entry points decode into, and encode from, the common item's structure.
 *
 * _decode_ex: *out = {valid flag of the structure, item id, storage} after
 * decoding into storage; {0, item id, NULL} and nothing written when
 * storage is NULL or smaller than the structure, or the item is not valid.
 * _encode_ex: writes the item from value->value (a pointer to the
 * structure) into buffer; *out is the written span carrying value->id, of
 * length 0 and valid 0 when the common encoder refuses the value.
 */

/*
 * I002/000 Message Type: message type (AstMessageType). The summary is
 * the category's own, below; there is no detail view.
 */
KOVREL_API void ast_dataitem_002_000_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_000_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);
/**
 * "MSG_TYPE:NORTH_MARKER" (1), "MSG_TYPE:SECTOR_CROSSING" (2),
 * "MSG_TYPE:SOUTH_MARKER" (3), "MSG_TYPE:BLIND_ZONE_START" (8),
 * "MSG_TYPE:BLIND_ZONE_STOP" (9), "MSG_TYPE:STATUS" (128); any other value,
 * 4 to 7 included, "MSG_TYPE:UNDEFINED". The empty text for a span that is
 * not a valid one-octet I002/000.
 */
KOVREL_API void ast_dataitem_002_000_get_summary(char *buffer, size_t size, const AstDataItem *item);

/* I002/010 Data Source Identifier: data source identifier (AstDataSourceIdentifier). */
KOVREL_API void ast_dataitem_002_010_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_010_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I002/020 Sector Number: sector number (AstSectorNumber). */
KOVREL_API void ast_dataitem_002_020_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_020_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I002/030 Time of Day: time of day (AstTimeOfDay). */
KOVREL_API void ast_dataitem_002_030_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_030_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/* I002/041 Antenna Rotation Period: antenna rotation period (AstAntennaRotationPeriod). */
KOVREL_API void ast_dataitem_002_041_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_041_encode_ex(AstDataItem *out, uint8_t *buffer, size_t size,
                                               const AstDataItemValue *value);

/*
 * I002/050 Station Configuration Status is summarised with the binary data
 * summary ("BIN:..."); it has no detail view.
 */

/*
 * SPF and RFS: special purpose field (AstSpecialPurposeField) and random
 * field sequencing (AstRandomFieldSequencing); decode only, no detail view.
 */
KOVREL_API void ast_dataitem_002_SPF_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_002_RFS_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- I002/050 ---------------------------------------------------------- */

/** I002/050 Station Configuration Status: the item's octets as they are. */
typedef struct AstItem002_050 {
    uint32_t valid;
    uint8_t octets[8];
    uint32_t length; /**< octets in use, 1 to 8 */
} AstItem002_050;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_002_050_init(AstItem002_050 *out);
/** Copies a valid I002/050 of 1 to 8 octets; the defaults otherwise. */
KOVREL_API void ast_dataitem_002_050_decode(AstItem002_050 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_002_050_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- ASR-10SS station status (2901, 2902) ------------------------------ */

/*
 * The station status the ASR-10SS (2901) and ASR-10SS Mk2 (2902) send in
 * place of I002/050: up to 16 FX-extended octets, each carrying status
 * fields in bits 8 to 2. A 2-bit state reads 0 off or not fitted, 1 on line
 * / normal, 2 degraded or standby, 3 failed; a flag is 1 when the condition
 * holds. The subsystem each octet reports on is given below; octets 1, 2, 6
 * and 7 are the PSR and MSSR channels whose "on line" state the summary
 * lists. Octets the item does not carry leave their fields 0; `length` says
 * how many were read.
 */
typedef struct AstItem002_901 {
    uint32_t valid;
    /* octet 1, PSR channel A: state (1 on line, the channel in use), transmitter, receiver */
    uint32_t psr_a_state;
    uint32_t psr_a_tx;
    uint32_t psr_a_rx;
    /* octet 2, PSR channel B: as octet 1 */
    uint32_t psr_b_state;
    uint32_t psr_b_tx;
    uint32_t psr_b_rx;
    /* octet 3, PSR operating mode code (5 bits) */
    uint32_t psr_mode;
    /* octet 4, PSR signal processing: processor, weather channel, MTI */
    uint32_t psr_proc;
    uint32_t psr_wx;
    uint32_t psr_mti;
    /* octet 5, antenna and site alarms (1: alarm): azimuth encoder, North reference, antenna drive, waveguide arc, RF power low, cooling, power supply */
    uint8_t  alm_azimuth;
    uint8_t  alm_north;
    uint8_t  alm_drive;
    uint8_t  alm_waveguide;
    uint8_t  alm_rf_power;
    uint8_t  alm_cooling;
    uint8_t  alm_supply;
    /* octet 6, MSSR channel A: state (1 on line), transmitter, receiver */
    uint32_t mssr_a_state;
    uint32_t mssr_a_tx;
    uint32_t mssr_a_rx;
    /* octet 7, MSSR channel B: as octet 6 */
    uint32_t mssr_b_state;
    uint32_t mssr_b_tx;
    uint32_t mssr_b_rx;
    /* octet 8, MSSR processing: processor, Mode S channel, site monitor */
    uint32_t mssr_proc;
    uint32_t mssr_modes;
    uint32_t mssr_monitor;
    /* octet 9, radar data processors A and B, communications */
    uint32_t rdp_a;
    uint32_t rdp_b;
    uint32_t comms;
    /* octet 10, LAN A and LAN B */
    uint32_t lan_a;
    uint32_t lan_b;
    /* octet 11, UPS state, mains failure (flag), generator running (flag), shelter environment */
    uint32_t ups;
    uint8_t  mains_fail;
    uint8_t  generator_on;
    uint32_t environment;
    /* octet 12, control and monitoring system state, then flags: local control, maintenance mode, test target on, sector blanking on, fault reset requested */
    uint32_t cms;
    uint8_t  local_control;
    uint8_t  maintenance;
    uint8_t  test_target;
    uint8_t  blanking;
    uint8_t  fault_reset;
    /* octet 13, time source state, time synchronisation lost (flag), station clock state */
    uint32_t time_source;
    uint8_t  time_sync_lost;
    uint32_t clock;
    /* octet 14, antenna rotation stopped (flag), output lines A, B and C */
    uint8_t  rotation_stopped;
    uint32_t line_a;
    uint32_t line_b;
    uint32_t line_c;
    /* octet 15, auxiliary states 1 to 3 */
    uint32_t aux_1;
    uint32_t aux_2;
    uint32_t aux_3;
    /* octet 16, auxiliary states 4 to 6 */
    uint32_t aux_4;
    uint32_t aux_5;
    uint32_t aux_6;
    uint32_t length; /**< octets read, 1 to 16 */
} AstItem002_901;

/** The Mk2 status has the same layout. */
typedef AstItem002_901 AstItem002_902;

/** Defaults: all 0. */
KOVREL_API void ast_dataitem_002_901_init(AstItem002_901 *out);
/** Decodes an item 2901 of 1 to 16 octets; the defaults (valid 0) for an empty or longer one. */
KOVREL_API void ast_dataitem_002_901_decode(AstItem002_901 *out, const AstDataItem *item);
/**
 * The channels on line, in this order: "PSR_A" (octet 1 bits 8-7 equal 1),
 * "PSR_B" (octet 2), "MSSR_A" (octet 6), "MSSR_B" (octet 7), separated by
 * blanks; "UNKNOWN" when none is.
 */
KOVREL_API void ast_dataitem_002_901_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table: title "ASR-10SS", one row per field of the octets present (octet, bits, name, value). */
KOVREL_API void ast_dataitem_002_901_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_002_901_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/** As 2901, for an item 2902. */
KOVREL_API void ast_dataitem_002_902_init(AstItem002_902 *out);
KOVREL_API void ast_dataitem_002_902_decode(AstItem002_902 *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_002_902_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** As 2901, with the title "ASR-10SS Mk2". */
KOVREL_API void ast_dataitem_002_902_get_detail_html(char *buffer, size_t size, const AstDataItem *item);
KOVREL_API void ast_dataitem_002_902_decode_ex(AstDataItemValue *out, void *storage, size_t storage_size,
                                               const AstDataItem *item);

/* ---- Record level ------------------------------------------------------ */

/**
 * The disassembled CAT002 record: the items every station sends. I002/050,
 * the station status items, SPF and RFS have no member.
 */
typedef struct AstRecord002 {
    uint32_t valid;
    AstMessageType i000;
    AstDataSourceIdentifier i010;
    AstSectorNumber i020;
    AstTimeOfDay i030;
    AstAntennaRotationPeriod i041;
} AstRecord002;

/**
 * Disassembles a CAT002 record into *out (zeroed first; valid 0 for a
 * record that is not valid or not of category 2); any item without a member
 * is skipped with "Failed to disassemble dataitem : %s." at WARNING.
 */
KOVREL_API void ast_datarecord_002_disassemble(AstRecord002 *out, const AstDataRecord *record);
/**
 * Encodes the members whose valid flag is 1 as one CAT002 record of the
 * profile uap; invalid when an encoder refuses a value or the buffer is too
 * small, and nothing is written past size.
 */
KOVREL_API void ast_datarecord_002_assemble(AstDataRecord *out, uint8_t *buffer, size_t size, const AstRecord002 *in,
                                            const AstUap *uap);

/** SAC/SIC from the first I002/010; all zero when absent. */
KOVREL_API void ast_datarecord_002_get_sacsic(AstDataSourceIdentifier *out, const AstDataRecord *record);
/** Time of day from the first I002/030; all zero when absent. */
KOVREL_API void ast_datarecord_002_get_timeofday(AstTimeOfDay *out, const AstDataRecord *record);
/**
 * From the first I002/000: 1 ("North") for a North marker, 2 ("Sector") for
 * a sector crossing; South markers, blind zones and status messages, like a
 * record without I002/000, are invalid.
 */
KOVREL_API void ast_datarecord_002_get_msgtype(AstRecordMsgType *out, const AstDataRecord *record);

KOVREL_END_DECLS

#endif /* KOVREL_CAT002_H */
