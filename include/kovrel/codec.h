/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * codec.h: the bit-field and text codecs that every item decoder uses.
 *
 * Conventions: fields are 1 to 4 octets wide, big-endian. The `_ex` forms
 * take a skip count: the number of most significant bits of the first octet
 * that belong to something else (0 to 7). A field always ends at the least
 * significant bit of its last octet.
 *
 * Bad arguments (n outside 1..4, a NULL pointer, skip outside 0..7) leave
 * every output untouched; ast_twos_complement_encode then returns false.
 */
#ifndef KOVREL_CODEC_H
#define KOVREL_CODEC_H

#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/** *out = the n octets at in, big-endian unsigned. */
KOVREL_API void ast_unsigned_decode(uint32_t *out, const uint8_t *in, int n);
/** As ast_unsigned_decode with the top skip bits of in[0] masked off. */
KOVREL_API void ast_unsigned_decode_ex(uint32_t *out, const uint8_t *in, int n, int skip);
/** Writes the low 8n bits of value big-endian (no range check). */
KOVREL_API void ast_unsigned_encode(uint8_t *out, int n, uint32_t value);
/**
 * Writes the low 8n-skip bits of value; the top skip bits already present in
 * out[0] are kept.
 */
KOVREL_API void ast_unsigned_encode_ex(uint8_t *out, int n, uint32_t value, int skip);
/** *out = the n octets at in as a two's complement number (sign bit 8n-1). */
KOVREL_API void ast_twos_complement_decode(int32_t *out, const uint8_t *in, int n);
/** Two's complement field of 8n-skip bits. */
KOVREL_API void ast_twos_complement_decode_ex(int32_t *out, const uint8_t *in, int n, int skip);
/** Writes the low 8n bits of value; false on bad arguments. */
KOVREL_API bool ast_twos_complement_encode(uint8_t *out, int n, int32_t value);
/** Writes the low 8n-skip bits of value, keeping the top skip bits of out[0]. */
KOVREL_API void ast_twos_complement_encode_ex(uint8_t *out, int n, int32_t value, int skip);

/**
 * 6-bit ICAO character code (only its low six bits count) to ASCII:
 * 1-26 'A'-'Z', 32 ' ', 48-57 '0'-'9', anything else 0.
 */
KOVREL_API char ast_icao_to_ansi(int code);
/**
 * ASCII to 6-bit ICAO code: letters (either case) 1-26, digits keep their
 * value 48-57, space 32, anything else 0.
 */
KOVREL_API uint8_t ast_ansi_to_icao(char ch);

/**
 * Writes a position as "DDMMSSHDDDMMSSH" (e.g. 483000N0021500E), seconds
 * rounded. 'N'/'E' only for values above 0, so 0 is 'S'/'W'. Seconds are not
 * carried into minutes (60 may appear). Returns buffer, or NULL when buffer
 * is NULL or size is 0. Cut to size.
 */
KOVREL_API char *ast_latlong_to_str(char *buffer, size_t size, double latitude, double longitude);
/** As ast_latlong_to_str with truncated seconds and hundredths ("%02d.%02d"). */
KOVREL_API char *ast_latlong_to_str_high(char *buffer, size_t size, double latitude, double longitude);
/** As ast_latlong_to_str with truncated seconds and millionths ("%02d.%06d"). */
KOVREL_API char *ast_latlong_to_str_very_high(char *buffer, size_t size, double latitude,
                                               double longitude);

/**
 * Renders one octet as eight binary digits, most significant first (0xA5
 * gives "10100101"). Needs size >= 9; returns buffer, or NULL.
 */
KOVREL_API char *ast_hex_to_bin(char *buffer, size_t size, uint8_t octet);
/** Value 0-15 of a hexadecimal digit, or 0xFFFFFFFF for any other character. */
KOVREL_API uint32_t ast_hex_to_int(char ch);
/**
 * Reads an octal number: leading white space, one optional sign, then
 * digits. 8 and 9 are weighted in base 8 like the others ("19" gives 17),
 * kept for compatibility with existing callers. 0 when no digit follows.
 */
KOVREL_API int32_t ast_atoi_oct(const char *text);
/**
 * Copies at most size-1 characters and always terminates; size 0 leaves dst
 * untouched. Returns dst.
 */
KOVREL_API char *ast_strncpy(char *dst, const char *src, size_t size);
/**
 * Fills count octets of dst with value; returns 0. dst_size is carried for
 * symmetry only and is not checked.
 */
KOVREL_API int ast_memset(void *dst, size_t dst_size, int value, size_t count);

KOVREL_END_DECLS

#endif /* KOVREL_CODEC_H */
