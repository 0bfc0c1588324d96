// Telling inputs apart by their content.
#include <charconv>
#include <cstring>

#include "input.h"

namespace kovrel_tool {
namespace {

uint32_t be32(const uint8_t *p) {
    return static_cast<uint32_t>(p[0]) << 24 | static_cast<uint32_t>(p[1]) << 16 | static_cast<uint32_t>(p[2]) << 8 |
           p[3];
}

bool is_capture_magic(uint32_t m) {
    switch (m) {
    case 0xA1B2C3D4:  // microseconds, either byte order
    case 0xD4C3B2A1:
    case 0xA1B23C4D:  // nanoseconds
    case 0x4D3CB2A1:
    case 0xA1B2CD34:  // the patched format of some old Linux tcpdumps
    case 0x34CDB2A1:
        return true;
    default:
        return false;
    }
}

bool is_separator(uint8_t c) { return c == ' ' || c == '\t' || c == '\r' || c == ',' || c == ';' || c == ':'; }
bool is_hex_digit(uint8_t c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

// Text whose first token (comments aside) is hexadecimal. The rest of the
// text is checked by the parser, which names the line of a bad token; raw
// blocks are never text throughout (their LEN and FSPEC octets are not).
bool looks_like_hex(const uint8_t *p, size_t n) {
    bool comment = false;
    size_t first_token = 0;   // characters of the first token seen so far
    bool first_done = false;  // the first token has ended
    for (size_t i = 0; i < n; ++i) {
        const uint8_t c = p[i];
        if (c < 0x20 && c != '\t' && c != '\r' && c != '\n') return false;
        if (c == 0x7F) return false;
        if (c == '\n') {
            comment = false;
            if (first_token) first_done = true;
            continue;
        }
        if (comment || first_done) continue;
        if (c == '#') {
            comment = true;
            if (first_token) first_done = true;
            continue;
        }
        if (is_separator(c)) {
            if (first_token) first_done = true;
            continue;
        }
        // "0x": the x is accepted only right after the token's first '0'.
        const bool prefix = (c == 'x' || c == 'X') && first_token == 1 && p[i - 1] == '0';
        if (!prefix && !is_hex_digit(c)) return false;
        ++first_token;
    }
    return first_token > 0;
}

}  // namespace

const char *input_kind_name(InputKind kind) {
    switch (kind) {
    case InputKind::Pcap:
        return "pcap";
    case InputKind::Pcapng:
        return "pcapng";
    case InputKind::Raw:
        return "raw";
    case InputKind::Hex:
        return "hex";
    }
    return "raw";
}

InputKind detect_input(const uint8_t *head, size_t size) {
    if (size >= 4) {
        const uint32_t m = be32(head);
        if (is_capture_magic(m)) return InputKind::Pcap;
        if (m == 0x0A0D0D0A) return InputKind::Pcapng;
    }
    if (size > 0 && looks_like_hex(head, size)) return InputKind::Hex;
    return InputKind::Raw;
}

std::string format_location(const Location &where) {
    char text[kLocationSize];
    return std::string(text, format_location(text, where));
}

size_t format_location(char *text, const Location &where) {
    char *p = text;
    char *const end = text + kLocationSize;
    if (where.packet != 0) {
        std::memcpy(p, "pkt ", 4);
        p = std::to_chars(p + 4, end, where.packet).ptr;
        *p++ = '+';
    } else {
        *p++ = '@';
    }
    p = std::to_chars(p, end, where.offset).ptr;
    return static_cast<size_t>(p - text);
}

}  // namespace kovrel_tool
