// Hexadecimal text: what people paste from logs, debuggers and mails.
#include "input.h"

namespace kovrel_tool {
namespace {

int hex_value(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

bool is_separator(char c) { return c == ' ' || c == '\t' || c == '\r' || c == ',' || c == ';'; }

bool token_octets(std::string_view token, std::vector<uint8_t> &out, std::string &why) {
    bool prefixed = false;
    if (token.size() >= 2 && token[0] == '0' && (token[1] == 'x' || token[1] == 'X')) {
        token.remove_prefix(2);
        prefixed = true;
        if (token.empty()) {
            why = "\"0x\" without digits";
            return false;
        }
    }
    for (char c : token) {
        if (hex_value(c) < 0) {
            why = std::string("'") + c + "' is not a hexadecimal digit";
            return false;
        }
    }
    if (prefixed && token.size() == 1) {
        out.push_back(static_cast<uint8_t>(hex_value(token[0])));
        return true;
    }
    if (token.size() % 2 != 0) {
        why = "odd number of hexadecimal digits";
        return false;
    }
    for (size_t i = 0; i < token.size(); i += 2)
        out.push_back(static_cast<uint8_t>(hex_value(token[i]) << 4 | hex_value(token[i + 1])));
    return true;
}

}  // namespace

bool parse_hex(std::string_view text, std::vector<uint8_t> &out, std::string &error) {
    size_t line_no = 0;
    while (!text.empty()) {
        ++line_no;
        const size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (const size_t hash = line.find('#'); hash != std::string_view::npos) line = line.substr(0, hash);
        size_t i = 0;
        while (i < line.size()) {
            if (is_separator(line[i])) {
                ++i;
                continue;
            }
            size_t j = i;
            while (j < line.size() && !is_separator(line[j])) ++j;
            const std::string_view token = line.substr(i, j - i);
            std::string why;
            if (!token_octets(token, out, why)) {
                error = "line " + std::to_string(line_no) + ": \"" + std::string(token) + "\": " + why;
                return false;
            }
            i = j;
        }
    }
    return true;
}

}  // namespace kovrel_tool
