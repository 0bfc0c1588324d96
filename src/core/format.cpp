// The library's own printf: see format.h for what it covers.
//
// One pass over the format writes the text. Each conversion is built in a
// small local field, right to left, and copied into the text in one piece.
// Whether a conversion is one of ours is only known when it is reached, so
// the pass takes its arguments from a copy of the argument list; meeting
// one that is not (or a width or precision above 64), it hands the whole
// format to vsnprintf with the caller's list, still untouched, and the text
// is simply written again from its start.
//
// %f and %F are exact: below 2^63 with at most 18 decimals (the values of
// real surveillance data) the digits come from 128-bit integer arithmetic,
// which costs a fraction of std::to_chars; std::to_chars, which gives the
// same digits, writes the others.
#include "core/format.h"

#include <bit>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <type_traits>

namespace kovrel {
namespace {

// Flags of a conversion directive.
constexpr uint8_t kLeft = 1;    // '-'
constexpr uint8_t kPlus = 2;    // '+'
constexpr uint8_t kSpace = 4;   // ' '
constexpr uint8_t kAlt = 8;     // '#'
constexpr uint8_t kZero = 16;   // '0'

enum class Length : uint8_t { None, Hh, H, L, Ll, Z };

// One conversion directive; small enough to travel in registers.
struct Spec {
    uint8_t flags;
    char conversion;
    Length length;
    uint32_t width;
    int32_t precision;  // -1: none given
};

// Conversions are built in a local field first, right to left, and copied
// into the text in one piece. Widths and precisions above this (never used
// by the library) are left to the C library.
constexpr uint32_t kMaxPad = 64;
// Room of a field: the padding, and 19 digits, a point and 18 decimals.
constexpr size_t kField = 128;

// Reads the digits of a width or precision at p. False when the number is
// larger than kMaxPad or is the argument number of a positional format
// ("%1$d").
inline bool read_count(const char *&p, uint32_t &value) {
    uint32_t v = 0;
    while (static_cast<unsigned char>(*p - '0') < 10) {
        v = v * 10 + static_cast<uint32_t>(*p++ - '0');
        if (v > kMaxPad) return false;
    }
    value = v;
    return *p != '$';
}

// Parses the directive after a '%' (not "%%") up to its conversion
// character; p is left on that character. Stars are marked in star_width
// and star_precision. False when the directive is not one of ours.
inline bool parse(const char *&p, Spec &s, bool &star_width, bool &star_precision) {
    uint8_t flags = 0;
    for (;; ++p) {
        switch (*p) {
            case '-': flags |= kLeft; continue;
            case '+': flags |= kPlus; continue;
            case ' ': flags |= kSpace; continue;
            case '#': flags |= kAlt; continue;
            case '0': flags |= kZero; continue;
            default: break;
        }
        break;
    }
    s.flags = flags;
    s.width = 0;
    s.precision = -1;
    s.length = Length::None;
    if (*p == '*') {
        star_width = true;
        ++p;
    } else if (!read_count(p, s.width)) {
        return false;
    }
    if (*p == '.') {
        ++p;
        if (*p == '*') {
            star_precision = true;
            ++p;
        } else {
            uint32_t v = 0;
            if (!read_count(p, v)) return false;
            s.precision = static_cast<int32_t>(v);
        }
    }
    switch (*p) {
        case 'h':
            ++p;
            s.length = Length::H;
            if (*p == 'h') {
                ++p;
                s.length = Length::Hh;
            }
            break;
        case 'l':
            ++p;
            s.length = Length::L;
            if (*p == 'l') {
                ++p;
                s.length = Length::Ll;
            }
            break;
        case 'z':
            ++p;
            s.length = Length::Z;
            break;
        default: break;
    }
    s.conversion = *p;
    switch (*p) {
        case 'd': case 'i': case 'u': case 'o': case 'x': case 'X':
            return true;
        case 'c': case 's':
            return s.length == Length::None;  // wide characters are not ours
        case 'f': case 'F':
            return s.length == Length::None || s.length == Length::L;
        default:
            return false;
    }
}

// The directives the library writes nearly always ("%d", "%02d",
// "%.2f", "%.6X", "%s"): at most the '0' flag, a width and a precision of
// one or two digits, no length modifier. False (with p unchanged) for any
// other, which parse then reads.
inline bool quick_parse(const char *&p, Spec &s) {
    const char *q = p;
    s.flags = 0;
    s.length = Length::None;
    s.width = 0;
    s.precision = -1;
    char c = *q;
    if (c == '0') {
        s.flags = kZero;
        c = *++q;
    }
    if (c >= '1' && c <= '9') {
        s.width = static_cast<uint32_t>(c - '0');
        c = *++q;
        if (c >= '0' && c <= '9') {
            s.width = s.width * 10 + static_cast<uint32_t>(c - '0');
            c = *++q;
        }
    }
    if (c == '.') {
        c = *++q;
        s.precision = 0;
        if (c >= '0' && c <= '9') {
            s.precision = c - '0';
            c = *++q;
            if (c >= '0' && c <= '9') {
                s.precision = s.precision * 10 + (c - '0');
                c = *++q;
            }
        }
    }
    switch (c) {
        case 'd': case 'i': case 'u': case 'o': case 'x': case 'X':
        case 'c': case 's': case 'f': case 'F':
            if (s.width > kMaxPad || s.precision > static_cast<int32_t>(kMaxPad)) return false;
            s.conversion = c;
            p = q;
            return true;
        default:
            return false;
    }
}

// Copies n characters without calling memcpy for the short pieces most
// conversions produce: two overlapping loads and stores cover any length in
// a power-of-two range.
inline void copy_chars(char *dst, const char *src, size_t n) {
    if (n >= 8) {
        if (n > 16) {
            std::memcpy(dst, src, n);
            return;
        }
        uint64_t head, tail;
        std::memcpy(&head, src, 8);
        std::memcpy(&tail, src + n - 8, 8);
        std::memcpy(dst, &head, 8);
        std::memcpy(dst + n - 8, &tail, 8);
    } else if (n >= 4) {
        uint32_t head, tail;
        std::memcpy(&head, src, 4);
        std::memcpy(&tail, src + n - 4, 4);
        std::memcpy(dst, &head, 4);
        std::memcpy(dst + n - 4, &tail, 4);
    } else if (n >= 2) {
        uint16_t head, tail;
        std::memcpy(&head, src, 2);
        std::memcpy(&tail, src + n - 2, 2);
        std::memcpy(dst, &head, 2);
        std::memcpy(dst + n - 2, &tail, 2);
    } else if (n == 1) {
        *dst = *src;
    }
}

// Appends n characters to the text of len characters in buf, which has room
// for cap; what does not fit is counted but not stored. Returns the new
// length.
inline size_t append(char *buf, size_t cap, size_t len, const char *text, size_t n) {
    if (len < cap) copy_chars(buf + len, text, n < cap - len ? n : cap - len);
    return len + n;
}

// Appends n (at most kMaxPad) spaces.
size_t append_spaces(char *buf, size_t cap, size_t len, size_t n) {
    static constexpr char kSpaces[kMaxPad + 1] = "                                                                ";
    return append(buf, cap, len, kSpaces, n);
}

constexpr char kDigitPairs[] =
    "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
    "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
    "8081828384858687888990919293949596979899";

// Decimal digits of v ending at end; returns their first character.
inline char *decimal(char *end, uint64_t v) {
    while (v >= 100) {
        const unsigned pair = static_cast<unsigned>(v % 100) * 2;
        v /= 100;
        end -= 2;
        std::memcpy(end, kDigitPairs + pair, 2);
    }
    if (v >= 10) {
        end -= 2;
        std::memcpy(end, kDigitPairs + v * 2, 2);
    } else {
        *--end = static_cast<char>('0' + v);
    }
    return end;
}

// The digits of v in the base of an integer conversion (o, x, X, else
// decimal), ending at end; returns their first character.
inline char *digits(char *end, char conversion, uint64_t v) {
    switch (conversion) {
        case 'o':
            do {
                *--end = static_cast<char>('0' + (v & 7u));
                v >>= 3;
            } while (v != 0);
            return end;
        case 'x':
        case 'X': {
            const char *hex = conversion == 'x' ? "0123456789abcdef" : "0123456789ABCDEF";
            do {
                *--end = hex[v & 15u];
                v >>= 4;
            } while (v != 0);
            return end;
        }
        default: return decimal(end, v);
    }
}

// Completes a field whose text starts at p: zeros up to the width between
// the prefix and the text (zero_pad), the prefix (at most two characters,
// last one first in `prefix`), spaces up to the width in front unless the
// field is left-justified (the caller then adds the spaces after it).
inline char *finish_field(char *p, const char *end, Spec s, unsigned prefix, size_t prefix_len, bool zero_pad) {
    const bool left = (s.flags & kLeft) != 0;
    if (zero_pad && !left)
        while (static_cast<size_t>(end - p) + prefix_len < s.width) *--p = '0';
    for (size_t i = 0; i < prefix_len; ++i, prefix >>= 8) *--p = static_cast<char>(prefix & 0xFFu);
    if (!left)
        while (static_cast<size_t>(end - p) < s.width) *--p = ' ';
    return p;
}

// The field of an integer conversion (d i u o x X), ending at end. Flags
// other than '0' are rare, so this is kept out of the main loop.
__attribute__((noinline)) char *integer_field(char *end, Spec s, bool negative, uint64_t magnitude) {
    char *p = end;
    // An explicit precision of 0 writes no digit for the value 0.
    if (magnitude != 0 || s.precision != 0) p = digits(p, s.conversion, magnitude);
    while (end - p < s.precision) *--p = '0';
    // '#' with octal: the first digit is a zero.
    if ((s.flags & kAlt) && s.conversion == 'o' && (p == end || *p != '0')) *--p = '0';
    unsigned prefix = 0;  // the characters before the digits, the last one in the low octet
    size_t prefix_len = 0;
    const bool is_signed = s.conversion == 'd' || s.conversion == 'i';
    if (negative) {
        prefix = '-';
        prefix_len = 1;
    } else if (is_signed && (s.flags & (kPlus | kSpace))) {
        prefix = (s.flags & kPlus) ? '+' : ' ';
        prefix_len = 1;
    } else if ((s.flags & kAlt) && magnitude != 0 && (s.conversion == 'x' || s.conversion == 'X')) {
        prefix = static_cast<unsigned>(static_cast<unsigned char>(s.conversion)) | ('0' << 8);
        prefix_len = 2;
    }
    // A precision turns the '0' flag off for integers.
    return finish_field(p, end, s, prefix, prefix_len, (s.flags & kZero) && s.precision < 0);
}

// integer_field for the directives without flags other than '0'.
inline char *plain_integer_field(char *end, Spec s, bool negative, uint64_t magnitude) {
    char *p = end;
    if (magnitude != 0 || s.precision != 0) p = digits(p, s.conversion, magnitude);
    // The digits the precision asks for, or the width when '0' pads it.
    long minimum = 0;
    if (s.precision >= 0)
        minimum = s.precision;
    else if (s.flags & kZero)
        minimum = static_cast<long>(s.width) - (negative ? 1 : 0);
    while (end - p < minimum) *--p = '0';
    if (negative) *--p = '-';
    while (end - p < static_cast<long>(s.width)) *--p = ' ';
    return p;
}

constexpr uint64_t kPow10[19] = {1ull,
                                 10ull,
                                 100ull,
                                 1000ull,
                                 10000ull,
                                 100000ull,
                                 1000000ull,
                                 10000000ull,
                                 100000000ull,
                                 1000000000ull,
                                 10000000000ull,
                                 100000000000ull,
                                 1000000000000ull,
                                 10000000000000ull,
                                 100000000000000ull,
                                 1000000000000000ull,
                                 10000000000000000ull,
                                 100000000000000000ull,
                                 1000000000000000000ull};
constexpr int kMaxSmallPrecision = 18;
constexpr double kSmallLimit = 9223372036854775808.0;  // 2^63

// Digits of a below 2^63 with at most 18 decimals, ending at end. a is
// mantissa / 2^shift, so the decimals are fbits * 10^precision / 2^shift,
// computed exactly in 128-bit integers and rounded to nearest with ties to
// even, as printf rounds the exact binary value.
char *fixed_digits(char *end, double a, unsigned precision) {
    const uint64_t bits = std::bit_cast<uint64_t>(a);
    const int exponent = static_cast<int>(bits >> 52);  // the sign bit is clear
    uint64_t mantissa = bits & ((uint64_t{1} << 52) - 1);
    int shift = 1074;
    if (exponent != 0) {
        mantissa |= uint64_t{1} << 52;
        shift = 1075 - exponent;
    }
    const uint64_t scale = kPow10[precision];
    uint64_t whole = 0;
    uint64_t fraction = 0;  // the decimals as an integer below scale
    if (shift <= 0) {
        whole = mantissa << -shift;
    } else {
        uint64_t fbits = mantissa;
        if (shift < 64) {
            whole = mantissa >> shift;
            fbits = mantissa & ((uint64_t{1} << shift) - 1);
        }
        // fbits * scale stays below 2^113: past that shift it is less than
        // half a unit and rounds to zero.
        if (shift <= 113) {
            const unsigned __int128 scaled = static_cast<unsigned __int128>(fbits) * scale;
            const unsigned __int128 q = scaled >> shift;
            const unsigned __int128 rest = scaled - (q << shift);
            const unsigned __int128 half = static_cast<unsigned __int128>(1) << (shift - 1);
            fraction = static_cast<uint64_t>(q);
            const uint64_t last = precision > 0 ? fraction : whole;
            if (rest > half || (rest == half && (last & 1u) != 0)) {
                if (++fraction == scale) {
                    fraction = 0;
                    ++whole;
                }
            }
        }
    }
    char *p = end;
    if (precision > 0) {
        p = decimal(p, fraction);
        while (static_cast<size_t>(end - p) < precision) *--p = '0';
        *--p = '.';
    }
    return decimal(p, whole);
}

// The sign of a %f conversion, or '\0'.
inline char fixed_sign(Spec s, double v) {
    return std::signbit(v) ? '-' : (s.flags & kPlus) ? '+' : (s.flags & kSpace) ? ' ' : '\0';
}

// The field of %f and %F for infinities, NaN and values below 2^63 with at
// most 18 decimals, ending at end.
char *fixed_field(char *end, Spec s, double v) {
    const char sign = fixed_sign(s, v);
    const size_t sign_len = sign ? 1 : 0;
    char *p = end;
    if (!std::isfinite(v)) {
        const bool upper = s.conversion == 'F';
        const char *text = std::isnan(v) ? (upper ? "NAN" : "nan") : (upper ? "INF" : "inf");
        p -= 3;
        std::memcpy(p, text, 3);
        return finish_field(p, end, s, static_cast<unsigned char>(sign), sign_len, false);
    }
    const unsigned precision = s.precision < 0 ? 6u : static_cast<unsigned>(s.precision);
    if (precision == 0 && (s.flags & kAlt)) *--p = '.';
    p = fixed_digits(p, std::fabs(v), precision);
    return finish_field(p, end, s, static_cast<unsigned char>(sign), sign_len, (s.flags & kZero) != 0);
}

// %f and %F of large values or many decimals, through the standard
// library; the precision is at most kMaxPad.
__attribute__((noinline)) size_t put_fixed_large(char *buf, size_t cap, size_t len, Spec s, double v) {
    char text[1 + 309 + 1 + kMaxPad + 8];  // the largest double has 309 digits
    char *p = text;
    const char sign = fixed_sign(s, v);
    if (sign) *p++ = sign;
    const unsigned precision = s.precision < 0 ? 6u : static_cast<unsigned>(s.precision);
    const std::to_chars_result r =
        std::to_chars(p, text + sizeof text - 1, std::fabs(v), std::chars_format::fixed, static_cast<int>(precision));
    if (r.ec != std::errc{}) return len;  // cannot happen: the text has room for every double
    p = r.ptr;
    if (precision == 0 && (s.flags & kAlt)) *p++ = '.';
    const size_t n = static_cast<size_t>(p - text);
    const size_t pad = s.width > n ? s.width - n : 0;
    const bool left = (s.flags & kLeft) != 0;
    if (!left && !(s.flags & kZero)) len = append_spaces(buf, cap, len, pad);
    if (!left && (s.flags & kZero) && pad > 0) {
        // Zeros go between the sign and the digits.
        const size_t sign_len = sign ? 1 : 0;
        char zeros[kMaxPad];
        std::memset(zeros, '0', pad);
        len = append(buf, cap, len, text, sign_len);
        len = append(buf, cap, len, zeros, pad);
        len = append(buf, cap, len, text + sign_len, n - sign_len);
    } else {
        len = append(buf, cap, len, text, n);
    }
    if (left) len = append_spaces(buf, cap, len, pad);
    return len;
}

using SignedSize = std::make_signed_t<size_t>;

}  // namespace

int vformat_into(char *buffer, size_t size, const char *format, va_list ap) {
    char *const buf = size > 0 ? buffer : nullptr;
    const size_t cap = buf ? size - 1 : 0;
    size_t len = 0;
    va_list args;
    va_copy(args, ap);
    const char *p = format ? format : "";
    for (;;) {
        for (char c = *p; c != '\0' && c != '%'; c = *++p) {
            if (len < cap) buf[len] = c;
            ++len;
        }
        if (*p == '\0') break;
        ++p;
        if (*p == '%') {
            if (len < cap) buf[len] = '%';
            ++len;
            ++p;
            continue;
        }
        Spec s;
        bool star_width = false, star_precision = false;
        bool ours = quick_parse(p, s) || parse(p, s, star_width, star_precision);
        if (ours && star_width) {
            const int w = va_arg(args, int);
            // A negative width from the arguments is the '-' flag.
            if (w < 0) s.flags |= kLeft;
            const long long magnitude = w < 0 ? -static_cast<long long>(w) : w;
            ours = magnitude <= static_cast<long long>(kMaxPad);
            s.width = static_cast<uint32_t>(ours ? magnitude : 0);
        }
        if (ours && star_precision) {
            const int precision = va_arg(args, int);
            s.precision = precision < 0 ? -1 : precision;
            // A text may be cut at any length; numbers keep to the field.
            ours = s.conversion == 's' || s.precision <= static_cast<int>(kMaxPad);
        }
        if (!ours) {
            // The C library writes the whole text; the argument list it
            // gets is still untouched.
            va_end(args);
            return std::vsnprintf(buffer, size, format, ap);
        }
        ++p;
        char field[kField];
        char *const end = field + kField;
        char *first = end;
        switch (s.conversion) {
            case 'd':
            case 'i':
            case 'u':
            case 'o':
            case 'x':
            case 'X': {
                bool negative = false;
                uint64_t magnitude = 0;
                if (s.conversion == 'd' || s.conversion == 'i') {
                    long long v = 0;
                    switch (s.length) {
                        case Length::None: v = va_arg(args, int); break;
                        case Length::Hh: v = static_cast<signed char>(va_arg(args, int)); break;
                        case Length::H: v = static_cast<short>(va_arg(args, int)); break;
                        case Length::L: v = va_arg(args, long); break;
                        case Length::Ll: v = va_arg(args, long long); break;
                        case Length::Z: v = va_arg(args, SignedSize); break;
                    }
                    negative = v < 0;
                    magnitude = negative ? 0 - static_cast<uint64_t>(v) : static_cast<uint64_t>(v);
                } else {
                    switch (s.length) {
                        case Length::None: magnitude = va_arg(args, unsigned); break;
                        case Length::Hh: magnitude = static_cast<unsigned char>(va_arg(args, unsigned)); break;
                        case Length::H: magnitude = static_cast<unsigned short>(va_arg(args, unsigned)); break;
                        case Length::L: magnitude = va_arg(args, unsigned long); break;
                        case Length::Ll: magnitude = va_arg(args, unsigned long long); break;
                        case Length::Z: magnitude = va_arg(args, size_t); break;
                    }
                }
                first = (s.flags & ~kZero) == 0 ? plain_integer_field(end, s, negative, magnitude)
                                                : integer_field(end, s, negative, magnitude);
                break;
            }
            case 'c':
                *--first = static_cast<char>(static_cast<unsigned char>(va_arg(args, int)));
                first = finish_field(first, end, s, 0, 0, false);
                break;
            case 's': {
                const char *text = va_arg(args, const char *);
                size_t n = 0;
                if (!text) {
                    // The C library writes "(null)" when it fits the precision, else nothing.
                    text = (s.precision < 0 || s.precision >= 6) ? "(null)" : "";
                    n = std::strlen(text);
                } else if (s.precision < 0) {
                    n = text[0] != '\0' ? std::strlen(text) : 0;  // flag texts are often empty
                } else {
                    // Only the characters the precision allows are read.
                    n = strnlen(text, static_cast<size_t>(s.precision));
                }
                // The text is copied from where it is; only its padding is added.
                const size_t pad = s.width > n ? s.width - n : 0;
                if (pad > 0 && !(s.flags & kLeft)) len = append_spaces(buf, cap, len, pad);
                len = append(buf, cap, len, text, n);
                if (pad > 0 && (s.flags & kLeft)) len = append_spaces(buf, cap, len, pad);
                continue;
            }
            default: {  // 'f', 'F'
                const double v = va_arg(args, double);
                if (std::isfinite(v) && (std::fabs(v) >= kSmallLimit || s.precision > kMaxSmallPrecision)) {
                    len = put_fixed_large(buf, cap, len, s, v);
                    continue;
                }
                first = fixed_field(end, s, v);
                break;
            }
        }
        const size_t n = static_cast<size_t>(end - first);
        len = append(buf, cap, len, first, n);
        if ((s.flags & kLeft) && s.width > n) len = append_spaces(buf, cap, len, s.width - n);
    }
    va_end(args);
    if (buf) buf[len < cap ? len : cap] = '\0';
    return len > static_cast<size_t>(INT_MAX) ? -1 : static_cast<int>(len);
}

namespace {

// Stores the field of one conversion, first..end, cut to the buffer.
int put_field(char *buffer, size_t size, const char *first, const char *end) {
    const size_t n = static_cast<size_t>(end - first);
    if (size > 0) {
        const size_t stored = n < size - 1 ? n : size - 1;
        copy_chars(buffer, first, stored);
        buffer[stored] = '\0';
    }
    return static_cast<int>(n);
}

}  // namespace

int format_signed_into(char *buffer, size_t size, long long v, unsigned width) {
    if (width > kMaxPad) return std::snprintf(buffer, size, "%0*lld", static_cast<int>(width), v);
    const bool negative = v < 0;
    const uint64_t magnitude = negative ? 0 - static_cast<uint64_t>(v) : static_cast<uint64_t>(v);
    char field[kField];
    char *const end = field + kField;
    const Spec s{kZero, 'd', Length::Ll, width, -1};
    return put_field(buffer, size, plain_integer_field(end, s, negative, magnitude), end);
}

int format_unsigned_into(char *buffer, size_t size, unsigned long long v, unsigned base, unsigned width) {
    const char conversion = base == 8 ? 'o' : base == 16 ? 'X' : 'u';
    if (width > kMaxPad) {
        const char *format = base == 8 ? "%0*llo" : base == 16 ? "%0*llX" : "%0*llu";
        return std::snprintf(buffer, size, format, static_cast<int>(width), v);
    }
    char field[kField];
    char *const end = field + kField;
    const Spec s{kZero, conversion, Length::Ll, width, -1};
    return put_field(buffer, size, plain_integer_field(end, s, false, v), end);
}

int format_fixed_into(char *buffer, size_t size, double v, unsigned decimals) {
    if (decimals > kMaxPad) return std::snprintf(buffer, size, "%.*f", static_cast<int>(decimals), v);
    const Spec s{0, 'f', Length::None, 0, static_cast<int32_t>(decimals)};
    if (std::isfinite(v) && (std::fabs(v) >= kSmallLimit || decimals > kMaxSmallPrecision)) {
        char *const buf = size > 0 ? buffer : nullptr;
        const size_t cap = buf ? size - 1 : 0;
        const size_t len = put_fixed_large(buf, cap, 0, s, v);
        if (buf) buf[len < cap ? len : cap] = '\0';
        return static_cast<int>(len);
    }
    char field[kField];
    char *const end = field + kField;
    return put_field(buffer, size, fixed_field(end, s, v), end);
}

int format_into(char *buffer, size_t size, const char *format, ...) {
    va_list ap;
    va_start(ap, format);
    const int n = vformat_into(buffer, size, format, ap);
    va_end(ap);
    return n;
}

}  // namespace kovrel
