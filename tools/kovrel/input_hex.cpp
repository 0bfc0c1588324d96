// Hexadecimal text: what people paste from logs, debuggers and mails, and
// what xxd and hexdump -C print.
#include "input.h"

namespace kovrel_tool {
namespace {

// Longest line kept whole; a longer one (a whole recording on one line) is
// read in pieces cut between tokens.
constexpr size_t kLongLine = 64 * 1024;

int hex_value(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

bool is_separator(char c) { return c == ' ' || c == '\t' || c == '\r' || c == ',' || c == ';' || c == ':'; }

bool all_hex(std::string_view s) {
    for (char c : s)
        if (hex_value(c) < 0) return false;
    return !s.empty();
}

std::string_view trim(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
    return s;
}

// The first blank-separated token of a line.
std::string_view first_token(std::string_view line) {
    size_t end = 0;
    while (end < line.size() && line[end] != ' ' && line[end] != '\t') ++end;
    return line.substr(0, end);
}

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

// Octets of the tokens of some text; false with why and the bad token.
bool tokens_octets(std::string_view text, std::vector<uint8_t> &out, std::string &why, std::string &bad) {
    size_t i = 0;
    while (i < text.size()) {
        if (is_separator(text[i])) {
            ++i;
            continue;
        }
        size_t j = i;
        while (j < text.size() && !is_separator(text[j])) ++j;
        const std::string_view token = text.substr(i, j - i);
        if (!token_octets(token, out, why)) {
            bad = std::string(token);
            return false;
        }
        i = j;
    }
    return true;
}

}  // namespace

bool HexReader::feed(std::string_view text, std::vector<uint8_t> &out) {
    while (!failed_ && !text.empty()) {
        const size_t end = text.find('\n');
        if (end == std::string_view::npos) {
            partial_.append(text);
            if (partial_.size() > kLongLine) long_line(out);
            return !failed_;
        }
        partial_.append(text.substr(0, end));
        text.remove_prefix(end + 1);
        line(partial_, out);
        partial_.clear();
        continued_ = false;
    }
    return !failed_;
}

bool HexReader::finish(std::vector<uint8_t> &out) {
    if (!failed_ && !partial_.empty()) line(partial_, out);
    partial_.clear();
    return !failed_;
}

void HexReader::fail(const std::string &token, const std::string &why) {
    failed_ = true;
    error_ = "line " + std::to_string(line_no_) + ": " + (token.empty() ? "" : "\"" + token + "\": ") + why;
}

void HexReader::long_line(std::vector<uint8_t> &out) {
    // Plain text only (dumps have short lines): cut after the last
    // separator, or, in one endless token, after an even count of digits.
    if (style_ == Style::Unknown) style_ = Style::Plain;
    if (style_ != Style::Plain) {
        ++line_no_;
        fail("", "line too long for a dump line");
        return;
    }
    size_t cut = partial_.size();
    while (cut > 0 && !is_separator(partial_[cut - 1])) --cut;
    if (cut == 0) cut = partial_.size() & ~size_t{1};
    if (partial_.find('#') < cut) cut = partial_.find('#');  // a comment: wait for its end
    if (cut == 0) return;
    const std::string piece = partial_.substr(0, cut);
    partial_.erase(0, cut);
    if (!continued_) ++line_no_;
    continued_ = true;
    std::string why, bad;
    if (!tokens_octets(piece, out, why, bad)) fail(bad, why);
}

void HexReader::line(std::string_view text, std::vector<uint8_t> &out) {
    if (!continued_) ++line_no_;
    text = trim(text);
    if (text.empty() || text.front() == '#') return;
    std::string_view first = first_token(text);

    // The style is told by the first line with content.
    if (style_ == Style::Unknown) {
        if (first.size() >= 2 && first.back() == ':' && all_hex(first.substr(0, first.size() - 1)) &&
            first.size() < text.size())
            style_ = Style::Xxd;  // "00000010: 3000 0c80  0..."
        else if (first.size() >= 7 && all_hex(first) && text.size() > first.size() + 2 &&
                 text.compare(first.size(), 2, "  ") == 0 && text.back() == '|')
            style_ = Style::HexdumpC;  // "00000010  30 00 0c  |0..|"
        else
            style_ = Style::Plain;
    }

    std::string why, bad;
    switch (style_) {
    case Style::Xxd: {
        // Offset column, hex groups, two blanks, then the ASCII column
        // (which may hold anything, hex digits too).
        if (first.empty() || first.back() != ':' || !all_hex(first.substr(0, first.size() - 1)))
            return fail(std::string(first), "not a line of xxd output (no offset column)");
        std::string_view groups = text.substr(first.size());
        if (!groups.empty() && groups.front() == ' ') groups.remove_prefix(1);
        if (const size_t ascii = groups.find("  "); ascii != std::string_view::npos) groups = groups.substr(0, ascii);
        if (!tokens_octets(groups, out, why, bad)) fail(bad, why);
        return;
    }
    case Style::HexdumpC: {
        // Offset column, octets, ASCII column between bars; the last line
        // is the offset alone; '*' stands for lines like the one before.
        if (text == "*") return fail("*", "repeated lines are left out of this dump (hexdump -v prints them)");
        if (!all_hex(first)) return fail(std::string(first), "not a line of hexdump -C output (no offset column)");
        std::string_view octets = text.substr(first.size());
        if (const size_t bar = octets.find('|'); bar != std::string_view::npos) octets = octets.substr(0, bar);
        if (!tokens_octets(octets, out, why, bad)) fail(bad, why);
        return;
    }
    case Style::Plain:
    case Style::Unknown:
        break;
    }
    if (const size_t hash = text.find('#'); hash != std::string_view::npos) {
        text = trim(text.substr(0, hash));
        first = first_token(text);
    }
    // od and hexdump without -C: a 7-digit offset column then words, in
    // octal or in 16-bit words of the machine's order: not octets.
    if (first.size() == 7 && all_hex(first) && first.size() < text.size())
        return fail(std::string(first),
                    "looks like od or hexdump output (offset column, words): dump with xxd, hexdump -C or od -An -tx1");
    if (!tokens_octets(text, out, why, bad)) fail(bad, why);
}

bool parse_hex(std::string_view text, std::vector<uint8_t> &out, std::string &error) {
    HexReader reader;
    if (reader.feed(text, out) && reader.finish(out)) return true;
    error = reader.error();
    return false;
}

}  // namespace kovrel_tool
