// Character and small text codecs: the 6-bit ICAO character set of aircraft
// identifications, an octet as binary digits, hexadecimal and octal digits,
// and two bounded string helpers.
#include <cctype>
#include <cstdint>
#include <cstring>

#include "kovrel/codec.h"

extern "C" {

// Aircraft identifications (Mode S and ADS-B callsigns) carry eight
// characters of six bits each: letters, digits and space; every other code
// has no character.
KOVREL_API char ast_icao_to_ansi(int code) {
    const unsigned c = static_cast<unsigned>(code) & 0x3Fu;
    if (c >= 1 && c <= 26) return static_cast<char>('A' + (c - 1));
    if (c == 32) return ' ';
    if (c >= 48 && c <= 57) return static_cast<char>(c);
    return 0;
}

// Lower case is folded so that typed callsigns encode the same as received
// ones.
KOVREL_API uint8_t ast_ansi_to_icao(char ch) {
    if (ch >= 'A' && ch <= 'Z') return static_cast<uint8_t>(ch - 'A' + 1);
    if (ch >= 'a' && ch <= 'z') return static_cast<uint8_t>(ch - 'a' + 1);
    if (ch >= '0' && ch <= '9') return static_cast<uint8_t>(ch);
    if (ch == ' ') return 32;
    return 0;
}

// The name is historical: the function renders one octet as its eight
// binary digits, most significant first, for the bit dumps of the detail
// views.
KOVREL_API char *ast_hex_to_bin(char *buffer, size_t size, uint8_t octet) {
    if (!buffer || size < 9) return nullptr;
    buffer[0] = (octet & 0x80) ? '1' : '0';
    buffer[1] = (octet & 0x40) ? '1' : '0';
    buffer[2] = (octet & 0x20) ? '1' : '0';
    buffer[3] = (octet & 0x10) ? '1' : '0';
    buffer[4] = (octet & 0x08) ? '1' : '0';
    buffer[5] = (octet & 0x04) ? '1' : '0';
    buffer[6] = (octet & 0x02) ? '1' : '0';
    buffer[7] = (octet & 0x01) ? '1' : '0';
    buffer[8] = '\0';
    return buffer;
}

KOVREL_API uint32_t ast_hex_to_int(char ch) {
    if (ch >= '0' && ch <= '9') return static_cast<uint32_t>(ch - '0');
    if (ch >= 'A' && ch <= 'F') return static_cast<uint32_t>(ch - 'A' + 10);
    if (ch >= 'a' && ch <= 'f') return static_cast<uint32_t>(ch - 'a' + 10);
    return 0xFFFFFFFFu;
}

// Reads Mode 3/A codes typed in octal. The digits 8 and 9 are accepted and
// weighted in base 8 like the others ("19" gives 17): kept for compatibility
// with existing callers that rely on it. No overflow check; the value wraps.
KOVREL_API int32_t ast_atoi_oct(const char *text) {
    if (!text) return 0;
    const char *p = text;
    while (std::isspace(static_cast<unsigned char>(*p))) ++p;
    bool negative = false;
    if (*p == '+' || *p == '-') negative = (*p++ == '-');
    uint32_t value = 0;  // unsigned so that wrapping is defined
    while (*p >= '0' && *p <= '9') value = value * 8u + static_cast<uint32_t>(*p++ - '0');
    if (negative) value = 0u - value;
    return static_cast<int32_t>(value);
}

// Copies at most size-1 characters and always terminates. Only the part of
// src that fits is read, so src need not be terminated within reach when it
// is longer than the destination.
KOVREL_API char *ast_strncpy(char *dst, const char *src, size_t size) {
    if (!dst || !src || size == 0) return dst;
    const void *nul = std::memchr(src, '\0', size - 1);
    const size_t n = nul ? static_cast<size_t>(static_cast<const char *>(nul) - src) : size - 1;
    std::memcpy(dst, src, n);
    dst[n] = '\0';
    return dst;
}

// dst_size is carried for symmetry with the bounded copy functions only; the
// caller guarantees that count octets fit.
KOVREL_API int ast_memset(void *dst, size_t dst_size, int value, size_t count) {
    (void)dst_size;
    if (dst && count > 0) std::memset(dst, value, count);
    return 0;
}

}  // extern "C"
