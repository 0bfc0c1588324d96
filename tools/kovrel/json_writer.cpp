#include "json_writer.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace kovrel_tool {
namespace {

constexpr char kReplacement[] = "\xEF\xBF\xBD";  // U+FFFD

// True for the octets a string can carry as they are.
inline bool plain(unsigned char c) { return c >= 0x20 && c < 0x80 && c != '"' && c != '\\'; }

// Length of the UTF-8 sequence that starts at text[0], or 0 when it is
// broken; *bad is then the octets the broken sequence takes (the octet that
// broke it starts the next one, as it may be fine on its own).
size_t utf8_sequence(const unsigned char *text, size_t left, size_t *bad) {
    const unsigned char c = text[0];
    size_t need;
    unsigned char lo = 0x80, hi = 0xBF;  // range of the second octet
    if (c >= 0xC2 && c <= 0xDF) {
        need = 1;
    } else if (c == 0xE0) {
        need = 2;
        lo = 0xA0;  // no overlong forms
    } else if ((c >= 0xE1 && c <= 0xEC) || c == 0xEE || c == 0xEF) {
        need = 2;
    } else if (c == 0xED) {
        need = 2;
        hi = 0x9F;  // no surrogates
    } else if (c == 0xF0) {
        need = 3;
        lo = 0x90;
    } else if (c >= 0xF1 && c <= 0xF3) {
        need = 3;
    } else if (c == 0xF4) {
        need = 3;
        hi = 0x8F;  // nothing above U+10FFFF
    } else {
        *bad = 1;
        return 0;
    }
    for (size_t i = 1; i <= need; ++i) {
        if (i >= left) {  // cut off by the end of the text
            *bad = left;
            return 0;
        }
        const unsigned char b = text[i];
        if (b < (i == 1 ? lo : 0x80) || b > (i == 1 ? hi : 0xBF)) {
            *bad = i;
            return 0;
        }
    }
    return need + 1;
}

// Writes value (> 0) at p when its decimal expansion is exact and short,
// as the general layout below would: most values decoded from the wire are
// a whole number of halves, quarters, 1/128ths..., whose expansion ends
// soon. Two different decimals of at most 15 significant digits never make
// the same double, so such an expansion is also the shortest that reads
// back the same, which the general conversion finds at a much higher cost.
// Returns the characters written, 0 when the value is not of that kind.
size_t write_exact(char *p, double value) {
    if (!(value >= 1e-4 && value < 1e15)) return 0;
    const auto whole = static_cast<uint64_t>(value);
    // The fraction in units of 2^-49; it must be whole in those units.
    const double scaled = (value - static_cast<double>(whole)) * 562949953421312.0;  // exact
    const auto units = static_cast<uint64_t>(scaled);
    if (static_cast<double>(units) != scaled) return 0;
    // A fraction of m binary places has m decimal places: a / 2^m is
    // a * 5^m / 10^m.
    static constexpr uint64_t kPow5[20] = {1ull,
                                           5ull,
                                           25ull,
                                           125ull,
                                           625ull,
                                           3125ull,
                                           15625ull,
                                           78125ull,
                                           390625ull,
                                           1953125ull,
                                           9765625ull,
                                           48828125ull,
                                           244140625ull,
                                           1220703125ull,
                                           6103515625ull,
                                           30517578125ull,
                                           152587890625ull,
                                           762939453125ull,
                                           3814697265625ull,
                                           19073486328125ull};
    const int m = units ? 49 - __builtin_ctzll(units) : 0;
    if (m > 19) return 0;
    uint64_t decimals = (units >> (49 - m)) * kPow5[m];  // below 10^m
    char *q = p;
    if (whole != 0) {
        q = std::to_chars(q, q + 16, whole).ptr;
        if ((q - p) + m > 15) return 0;
        *q++ = '.';
        if (m == 0) {
            *q++ = '0';
            return static_cast<size_t>(q - p);
        }
    } else {
        // At most 15 significant digits after the leading zeros (of which
        // there are at most three, the value being 0.0001 or more).
        if (decimals >= 1000000000000000ull) return 0;
        *q++ = '0';
        *q++ = '.';
    }
    // Two digits at a time from the last, then the first one when m is odd.
    static constexpr char kPairs[] =
        "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
        "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
        "8081828384858687888990919293949596979899";
    int i = m;
    for (; i >= 2; i -= 2) {
        std::memcpy(q + i - 2, kPairs + (decimals % 100) * 2, 2);
        decimals /= 100;
    }
    if (i == 1) q[0] = static_cast<char>('0' + decimals);
    return static_cast<size_t>(q + m - p);
}

}  // namespace

size_t json_plain_prefix(const char *text, size_t length) {
    // Eight octets at a time: a word stops the run when one of its octets
    // has the top bit set, is below 0x20, or is '"' or '\\'. The tests are
    // exact about whether such an octet is in the word, not about where, so
    // the word that stops is looked at octet by octet.
    constexpr uint64_t kOnes = 0x0101010101010101ull, kHigh = 0x8080808080808080ull;
    const auto has_zero = [](uint64_t w) { return (w - kOnes) & ~w & kHigh; };
    const auto stops = [&](size_t at) {
        uint64_t w;
        std::memcpy(&w, text + at, 8);
        return ((w & kHigh) | ((w - kOnes * 0x20) & ~w & kHigh) | has_zero(w ^ (kOnes * '"')) |
                has_zero(w ^ (kOnes * '\\'))) != 0;
    };
    size_t i = 0;
    while (length - i >= 8) {
        if (stops(i)) break;
        i += 8;
    }
    // The last few octets as the last word of the text, read again in part.
    if (i < length && length >= 8 && length - i < 8 && !stops(length - 8)) return length;
    const auto *s = reinterpret_cast<const unsigned char *>(text);
    while (i < length && plain(s[i])) ++i;
    return i;
}

void put_json_string(OutBuffer &out, const char *text, size_t length) {
    static const char kHex[] = "0123456789abcdef";
    const auto *s = reinterpret_cast<const unsigned char *>(text);
    // Most texts need no escape at all: quotes and the text in one go.
    size_t i = json_plain_prefix(text, length);
    char *at = out.room(length + 2);
    *at = '"';
    std::memcpy(at + 1, text, i);
    if (i == length) {
        at[length + 1] = '"';
        out.advance(length + 2);
        return;
    }
    out.advance(i + 1);
    while (i < length) {
        const size_t run = i + json_plain_prefix(text + i, length - i);
        if (run > i) {
            out.put(text + i, run - i);
            i = run;
            if (i == length) break;
        }
        const unsigned char c = s[i];
        if (c >= 0x80) {
            size_t bad = 0;
            const size_t n = utf8_sequence(s + i, length - i, &bad);
            if (n) {
                out.put(text + i, n);
                i += n;
            } else {
                out.put(kReplacement, 3);
                i += bad;
            }
            continue;
        }
        ++i;
        switch (c) {
        case '"': out.put("\\\"", 2); break;
        case '\\': out.put("\\\\", 2); break;
        case '\b': out.put("\\b", 2); break;
        case '\f': out.put("\\f", 2); break;
        case '\n': out.put("\\n", 2); break;
        case '\r': out.put("\\r", 2); break;
        case '\t': out.put("\\t", 2); break;
        default: {
            const char esc[6] = {'\\', 'u', '0', '0', kHex[c >> 4], kHex[c & 0xF]};
            out.put(esc, 6);
        }
        }
    }
    out.put('"');
}

size_t format_json_real(char *text, double value) {
    if (!std::isfinite(value)) {
        std::memcpy(text, "null", 4);
        return 4;
    }
    char *p = text;
    if (std::signbit(value)) {
        *p++ = '-';
        value = -value;
    }
    if (value == 0) {
        std::memcpy(p, "0.0", 3);
        return static_cast<size_t>(p + 3 - text);
    }
    if (const size_t n = write_exact(p, value)) return static_cast<size_t>(p - text) + n;
    // The shortest digits that read back the same, and where the point goes.
    char sci[32];
    const char *end = std::to_chars(sci, sci + sizeof sci, value, std::chars_format::scientific).ptr;
    char digits[20];
    int k = 0;
    const char *q = sci;
    for (; q < end && *q != 'e'; ++q)
        if (*q != '.') digits[k++] = *q;
    int exponent = 0;
    std::from_chars(q + 1 + (q[1] == '+'), end, exponent);
    const int n = exponent + 1;  // the point goes after digit n

    if (k <= n && n <= 15) {  // digits, zeros, ".0"
        std::memcpy(p, digits, static_cast<size_t>(k));
        p += k;
        for (int i = k; i < n; ++i) *p++ = '0';
        *p++ = '.';
        *p++ = '0';
    } else if (0 < n && n <= 15) {  // dig.its
        std::memcpy(p, digits, static_cast<size_t>(n));
        p += n;
        *p++ = '.';
        std::memcpy(p, digits + n, static_cast<size_t>(k - n));
        p += k - n;
    } else if (-4 < n && n <= 0) {  // 0.000digits
        *p++ = '0';
        *p++ = '.';
        for (int i = n; i < 0; ++i) *p++ = '0';
        std::memcpy(p, digits, static_cast<size_t>(k));
        p += k;
    } else {  // d.igitse+XX
        *p++ = digits[0];
        if (k > 1) {
            *p++ = '.';
            std::memcpy(p, digits + 1, static_cast<size_t>(k - 1));
            p += k - 1;
        }
        *p++ = 'e';
        int e = n - 1;
        *p++ = e < 0 ? '-' : '+';
        if (e < 0) e = -e;
        if (e < 10) *p++ = '0';
        p = std::to_chars(p, p + 4, e).ptr;
    }
    return static_cast<size_t>(p - text);
}

void put_json_real(OutBuffer &out, double value) {
    char *at = out.room(32);
    out.advance(format_json_real(at, value));
}

void JsonWriter::open(char c) {
    value();
    out_.put(c);
    if (depth_ < kMaxDepth) ++depth_;
    first_[depth_] = true;
}

void JsonWriter::close(char c) {
    out_.put(c);
    if (depth_ > 0) --depth_;
    after_key_ = false;
}

}  // namespace kovrel_tool
