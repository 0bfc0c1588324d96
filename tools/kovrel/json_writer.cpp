#include "json_writer.h"

#include <charconv>
#include <cmath>
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

}  // namespace

void put_json_string(OutBuffer &out, const char *text, size_t length) {
    static const char kHex[] = "0123456789abcdef";
    const auto *s = reinterpret_cast<const unsigned char *>(text);
    out.put('"');
    size_t i = 0;
    while (i < length) {
        size_t run = i;
        while (run < length && plain(s[run])) ++run;
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
