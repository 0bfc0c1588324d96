/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * items_mode.h: SSR mode codes and Mode S items: Mode 3/A (and Mode 2) code,
 * Mode C code, their confidence items, target address, aircraft and target
 * identification, Mode S MB data, binary data and the explicit-length
 * fields (reserved expansion, special purpose, random field sequencing).
 *
 * Conventions shared by every common item: an operation acts only on a span
 * whose valid flag is 1 and whose length is exactly the item's length;
 * otherwise decode gives the init defaults and summaries and detail views
 * write the empty text. Decoded structures begin with a valid flag (1 when
 * decoded); scaled values carry the raw integer, the LSB and the value.
 * Encoders return the written span {buffer, length, 0, 1}, or length 0 and
 * valid 0 on failure, writing nothing.
 */
#ifndef KOVREL_ITEMS_MODE_H
#define KOVREL_ITEMS_MODE_H

#include "kovrel/dataitem.h"
#include "kovrel/export.h"
#include "kovrel/bds.h"

KOVREL_BEGIN_DECLS

/* ---- Mode 3/A (and Mode 2) code, 2 octets -------------------------------
 * Octet 1: bit 8 V, bit 7 G, bit 6 L, bit 5 spare, bits 4-1 and octet 2 the
 * 12-bit code, digits A B C D of three bits each (print it with "%04o").
 */

/**
 * Mode 3/A (or Mode 2) code: flags and the 12-bit code (print it in octal).
 * Named fields (fields.h): v, g, l, mode3a (octal); ch for l in I062/060, mode2 for mode3a in Mode 2 items.
 */
typedef struct AstMode3aCode {
    uint32_t valid;
    uint8_t v;       /**< code not validated */
    uint8_t g;       /**< garbled */
    uint8_t l;       /**< bit 6: code not extracted in the last scan (smoothed) */
    uint8_t changed; /**< bit 6 again, read as "code changed" (I062/060) */
    uint32_t code;   /**< 12 bits */
} AstMode3aCode;

/** Sets every field to 0. */
KOVREL_API void ast_dataitem_mode_3a_code_init(AstMode3aCode *out);
/** Decodes a 2-octet span; an invalid span or another length gives the init defaults. */
KOVREL_API void ast_dataitem_mode_3a_code_decode(AstMode3aCode *out, const AstDataItem *item);
/**
 * Writes the 2 octets: V, G, bit 6 (set when l or changed is set) and the low
 * 12 bits of code. *out = {buffer, 2, 0, 1}; on failure {buffer, 0, 0, 0} and
 * nothing is written. Fails when in or buffer is NULL, size is below 2, the
 * valid flag is not 1 or the code is negative as a signed 32-bit number.
 */
KOVREL_API void ast_dataitem_mode_3a_code_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                 const AstMode3aCode *in);
/**
 * One line chosen by the item identifier: I062/120 "MODE_2:%04o" without
 * flags; I001/050 "MODE_2:..." and other items "MODE_3/A:..." followed by
 * " NOT_VALIDATED", " GARBLED" and " SMOOTHED" as set; I062/060 shows
 * " CHANGED" instead of " SMOOTHED". Empty text for an invalid span.
 */
KOVREL_API void ast_dataitem_mode_3a_code_get_summary(char *buffer, size_t size, const AstDataItem *item);
/**
 * Detail table (Bit, Item, Value): the V and G flags, for Mode 3/A items the
 * bit 6 flag (SMOOTHED, or CHANGED for I062/060), and the four octal digits.
 */
KOVREL_API void ast_dataitem_mode_3a_code_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Mode 3/A code confidence, 2 octets ------------------------------------
 * Octet 1 bits 4-1 QA4 QA2 QA1 QB4, octet 2 QB2 QB1 QC4 QC2 QC1 QD4 QD2 QD1;
 * a set flag marks a reply pulse of low quality.
 */

/**
 * Quality flags of the twelve Mode 3/A reply pulses (1 = low quality).
 * Named fields (fields.h): qa4, qa2, qa1, qb4, qb2, qb1, qc4, qc2, qc1, qd4, qd2, qd1.
 */
typedef struct AstMode3aConfidence {
    uint32_t valid;
    uint8_t qa4, qa2, qa1;
    uint8_t qb4, qb2, qb1;
    uint8_t qc4, qc2, qc1;
    uint8_t qd4, qd2, qd1;
} AstMode3aConfidence;

/** Sets every field to 0. */
KOVREL_API void ast_dataitem_mode_3a_confidence_init(AstMode3aConfidence *out);
/** Decodes a 2-octet span; otherwise the init defaults. */
KOVREL_API void ast_dataitem_mode_3a_confidence_decode(AstMode3aConfidence *out, const AstDataItem *item);
/**
 * Writes the twelve flags (any non-zero flag is written as 1), spare bits 0.
 * *out = {buffer, 2, 0, 1}; fails ({buffer, 0, 0, 0}, nothing written) when in
 * or buffer is NULL, size is below 2 or the valid flag is not 1.
 */
KOVREL_API void ast_dataitem_mode_3a_confidence_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                       const AstMode3aConfidence *in);
/** "QTY:ABCD", a digit's letter in lower case when any of its pulses is of low quality. */
KOVREL_API void ast_dataitem_mode_3a_confidence_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table (Bit, Item, Value): one row per quality flag. */
KOVREL_API void ast_dataitem_mode_3a_confidence_get_detail_html(char *buffer, size_t size,
                                                                const AstDataItem *item);

/* ---- Mode C code (flight level), 2 octets -----------------------------------
 * Octet 1 bit 8 V, bit 7 G, then a 14-bit two's complement flight level in
 * quarters of a flight level.
 */

/**
 * Mode C code as a flight level.
 * Named fields (fields.h): v (the wire bit, 1 when not validated), g, fl (FL).
 */
typedef struct AstModeCCode {
    uint32_t valid;
    uint8_t validated;    /**< 1 when the V bit is 0 */
    uint8_t garbled;      /**< G bit */
    int32_t flight_level; /**< raw, LSB 1/4 FL */
} AstModeCCode;

/** Sets every field to 0. */
KOVREL_API void ast_dataitem_mode_c_code_init(AstModeCCode *out);
/** Decodes a 2-octet span; otherwise the init defaults. */
KOVREL_API void ast_dataitem_mode_c_code_decode(AstModeCCode *out, const AstDataItem *item);
/**
 * Writes V (set when validated is 0), G and the low 14 bits of flight_level.
 * Any non-zero valid flag is accepted. *out = {buffer, 2, 0, 1}; fails
 * ({buffer, 0, 0, 0}, nothing written) when in or buffer is NULL, size is
 * below 2 or the valid flag is 0.
 */
KOVREL_API void ast_dataitem_mode_c_code_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                const AstModeCCode *in);
/**
 * "MODE_C:%04d" with the flight level in whole FL (quarters divided by 4,
 * towards zero), then " NOT_VALIDATED" and " GARBLED" as set.
 */
KOVREL_API void ast_dataitem_mode_c_code_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table (Bit, Item, Value): V, G and the flight level in 1/4 FL, FL, feet and metres. */
KOVREL_API void ast_dataitem_mode_c_code_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Mode C code and confidence, 4 octets -----------------------------------
 * Octet 1 bit 8 V, bit 7 G, bits 4-1 C1 A1 C2 A2; octet 2 C4 A4 B1 D1 B2 D2
 * B4 D4 (the reply pulses as received, Gray code not resolved); octet 3 bits
 * 4-1 QC1 QA1 QC2 QA2; octet 4 QC4 QA4 QB1 QD1 QB2 QD2 QB4 QD4.
 */

/**
 * Mode C reply pulses and their quality flags.
 * Named fields (fields.h): v, g, modec (octal), then qc1 ... qd4 in wire order.
 */
typedef struct AstModeCConfidence {
    uint32_t valid;
    uint8_t validated; /**< 1 when the V bit is 0 */
    uint8_t garbled;
    uint32_t code; /**< pulses as the octal digits A4A2A1 B4B2B1 C4C2C1 D4D2D1 */
    uint8_t a4, a2, a1, b4, b2, b1, c4, c2, c1, d4, d2, d1;
    uint8_t qa4, qa2, qa1, qb4, qb2, qb1, qc4, qc2, qc1, qd4, qd2, qd1;
} AstModeCConfidence;

/** Sets every field to 0. */
KOVREL_API void ast_dataitem_mode_c_confidence_init(AstModeCConfidence *out);
/** Decodes a 4-octet span and assembles the pulses into code; otherwise the init defaults. */
KOVREL_API void ast_dataitem_mode_c_confidence_decode(AstModeCConfidence *out, const AstDataItem *item);
/**
 * "CODE:%.4o QTY:ABCD" (letters as for the Mode 3/A confidence), then
 * " NOT_VALIDATED" unless validated and " GARBLED" when garbled.
 */
KOVREL_API void ast_dataitem_mode_c_confidence_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table (Bit, Item, Value): V, G, the code, each pulse and each quality flag. */
KOVREL_API void ast_dataitem_mode_c_confidence_get_detail_html(char *buffer, size_t size,
                                                               const AstDataItem *item);

/* ---- Target address, 3 octets: the Mode S 24-bit address ------------------ */

/**
 * Mode S 24-bit target address.
 * Named fields (fields.h): aa (six hexadecimal digits).
 */
typedef struct AstTargetAddress {
    uint32_t valid;
    uint32_t address;
} AstTargetAddress;

/** Sets every field to 0. */
KOVREL_API void ast_dataitem_target_address_init(AstTargetAddress *out);
/** Decodes a 3-octet span; otherwise the init defaults. */
KOVREL_API void ast_dataitem_target_address_decode(AstTargetAddress *out, const AstDataItem *item);
/**
 * Writes the low 24 bits of address. *out = {buffer, 3, 0, 1}; fails
 * ({buffer, 0, 0, 0}, nothing written) when in or buffer is NULL, size is
 * below 3, the valid flag is not 1 or the address is 0 (an all-zero address
 * is never written).
 */
KOVREL_API void ast_dataitem_target_address_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                   const AstTargetAddress *in);
/** "ADDR:%.6X". */
KOVREL_API void ast_dataitem_target_address_get_summary(char *buffer, size_t size, const AstDataItem *item);
/**
 * Detail table (Bit, Item, Value) with the address in hexadecimal, octal and
 * decimal. When an ICAO address country callback is registered, a paragraph
 * names the country the address block is allocated to ("... unknown
 * country/region." when the callback finds none); when the country is known
 * and a national flag callback is registered and returns an address, a
 * paragraph with the flag image follows.
 */
KOVREL_API void ast_dataitem_target_address_get_detail_html(char *buffer, size_t size,
                                                            const AstDataItem *item);

/* ---- Aircraft identification, 6 octets ---------------------------------------
 * Eight characters of six bits each, first character in the top bits, in
 * the ICAO character set (see ast_icao_to_ansi).
 */

/**
 * Aircraft identification: eight characters and a NUL.
 * Named fields (fields.h): acid.
 */
typedef struct AstAircraftId {
    uint32_t valid;
    char chars[9]; /**< a code without a character ends the text early */
} AstAircraftId;

/** Sets every field to 0. */
KOVREL_API void ast_dataitem_aircraft_id_init(AstAircraftId *out);
/** Decodes a 6-octet span; otherwise the init defaults. */
KOVREL_API void ast_dataitem_aircraft_id_decode(AstAircraftId *out, const AstDataItem *item);
/**
 * Writes the characters of chars up to its NUL (at most 8; later characters
 * are ignored) and fills the remaining positions with spaces. Characters
 * outside the ICAO set are written as code 0. *out = {buffer, 6, 0, 1};
 * fails ({buffer, 0, 0, 0}, nothing written) when in or buffer is NULL, size
 * is below 6 or the valid flag is not 1.
 */
KOVREL_API void ast_dataitem_aircraft_id_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                                const AstAircraftId *in);
/** "ACID:%s", trailing spaces kept. */
KOVREL_API void ast_dataitem_aircraft_id_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table (Bit, Item, Value): CHAR_1 to CHAR_8. */
KOVREL_API void ast_dataitem_aircraft_id_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Target identification, 7 octets ------------------------------------------
 * Octet 1 bits 8-7 the source indicator STI (0 downlinked target id, 1
 * registration, 2 callsign, 3 undefined), bits 6-1 spare; octets 2-7 eight
 * six-bit characters as in the aircraft identification.
 */

/**
 * Target identification with its source indicator.
 * Named fields (fields.h): sti, tid.
 */
typedef struct AstTargetId {
    uint32_t valid;
    uint32_t sti;  /**< 2 bits */
    char chars[9]; /**< as in AstAircraftId */
} AstTargetId;

/** Sets every field to 0. */
KOVREL_API void ast_dataitem_target_id_init(AstTargetId *out);
/** Decodes a 7-octet span; otherwise the init defaults. */
KOVREL_API void ast_dataitem_target_id_decode(AstTargetId *out, const AstDataItem *item);
/**
 * Writes STI in bits 8-7 of octet 1 (spare bits 0) and the characters as
 * ast_dataitem_aircraft_id_encode does. *out = {buffer, 7, 0, 1}; fails
 * ({buffer, 0, 0, 0}, nothing written) when in or buffer is NULL, size is
 * below 7, the valid flag is not 1 or sti is above 3.
 */
KOVREL_API void ast_dataitem_target_id_encode(AstDataItem *out, uint8_t *buffer, size_t size,
                                              const AstTargetId *in);
/**
 * STI 0 "TARGET_ID:%s", 1 "REGISTRATION:%s", 2 "CALLSIGN:%s", 3 the fixed
 * "TARGET_ID:UNDIFINED" (spelling kept for existing consumers).
 */
KOVREL_API void ast_dataitem_target_id_get_summary(char *buffer, size_t size, const AstDataItem *item);
/** Detail table (Bit, Item, Value): STI with its meaning, then CHAR_1 to CHAR_8. */
KOVREL_API void ast_dataitem_target_id_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Mode S MB data, 1 + 8 x REP octets ------------------------------------
 * Octet 1 REP; each repetition holds 7 MB octets and one octet with BDS1
 * (bits 8-5) and BDS2 (bits 4-1).
 */

/** Most registers one Mode S MB item may carry. */
#define AST_MODES_MB_MAX_BDS 8

/**
 * Mode S MB data: the register spans of ast_bds_decode, in item order.
 * Named fields (fields.h): rep, then per register a group "bds40" ("bds40_2" when repeated)
 * holding bds ("4,0") and the register's fields, or mb (its 7 octets) when not decoded.
 */
typedef struct AstModesMb {
    uint32_t valid;
    uint32_t rep;
    AstDataItem bds[AST_MODES_MB_MAX_BDS];
} AstModesMb;

/** Sets every field to 0. */
KOVREL_API void ast_dataitem_modes_mb_init(AstModesMb *out);
/**
 * Decodes a span of exactly 8 x REP + 1 octets (at least 9) into register
 * spans that point into the item. Any other length gives the init defaults
 * silently; a REP above 8 also gives them and logs "Mode-S MB BDS count %u
 * exceeds max %u." at WARNING.
 */
KOVREL_API void ast_dataitem_modes_mb_decode(AstModesMb *out, const AstDataItem *item);
/** "BDS:" and the code of each register ("4,0 5,0 6,0"), separated by blanks. */
KOVREL_API void ast_dataitem_modes_mb_get_summary(char *buffer, size_t size, const AstDataItem *item);
/**
 * A "BDS List" table of codes and names, then for each register a title, a
 * bit table of its MB octets and the register's own detail view.
 */
KOVREL_API void ast_dataitem_modes_mb_get_detail_html(char *buffer, size_t size, const AstDataItem *item);

/* ---- Binary data ------------------------------------------------------------ */

/**
 * "BIN:" followed by each octet of the item as eight binary digits,
 * separated by blanks ("BIN:10100101 00000001"). Empty text for an invalid
 * or empty span.
 */
KOVREL_API void ast_dataitem_binary_data_get_summary(char *buffer, size_t size, const AstDataItem *item);

/* ---- Reserved expansion, special purpose and random field sequencing ------
 * The first octet is the item length, the length octet included. The item
 * number (identifier mod 1000) is 998, 999 and 997 respectively.
 */

/**
 * Contents of an explicit-length field (the octets after the length octet).
 * Named fields (fields.h): data (the octets after the length octet).
 */
typedef struct AstExplicitField {
    uint32_t valid;
    const uint8_t *data; /**< just after the length octet, NULL when there is nothing more */
    uint64_t length;     /**< span length - 1 */
} AstExplicitField;

typedef AstExplicitField AstReservedExpansionField;
typedef AstExplicitField AstSpecialPurposeField;
typedef AstExplicitField AstRandomFieldSequencing;

/**
 * init sets every field to 0 (data NULL). decode needs a valid span of at
 * least one octet whose item number is the field's own (998 reserved
 * expansion, 999 special purpose, 997 random field sequencing); otherwise
 * the init defaults. The summaries are the fixed texts "RESERVED_EXPANSION",
 * "SPECIAL_PURPOSE" and "RANDOM_FIELD_SEQUENCING" for a span that decodes,
 * the empty text otherwise. The size rules are declared in dataitem.h.
 */
KOVREL_API void ast_dataitem_reserved_expansion_field_init(AstReservedExpansionField *out);
KOVREL_API void ast_dataitem_reserved_expansion_field_decode(AstReservedExpansionField *out,
                                                             const AstDataItem *item);
KOVREL_API void ast_dataitem_reserved_expansion_field_get_summary(char *buffer, size_t size,
                                                                  const AstDataItem *item);
KOVREL_API void ast_dataitem_special_purpose_field_init(AstSpecialPurposeField *out);
KOVREL_API void ast_dataitem_special_purpose_field_decode(AstSpecialPurposeField *out, const AstDataItem *item);
KOVREL_API void ast_dataitem_special_purpose_field_get_summary(char *buffer, size_t size,
                                                               const AstDataItem *item);
KOVREL_API void ast_dataitem_random_field_sequencing_init(AstRandomFieldSequencing *out);
KOVREL_API void ast_dataitem_random_field_sequencing_decode(AstRandomFieldSequencing *out,
                                                            const AstDataItem *item);
KOVREL_API void ast_dataitem_random_field_sequencing_get_summary(char *buffer, size_t size,
                                                                 const AstDataItem *item);

KOVREL_END_DECLS

#endif /* KOVREL_ITEMS_MODE_H */
