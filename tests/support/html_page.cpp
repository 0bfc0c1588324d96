#ifdef KOVREL_HAVE_TOOL_CORE

#include "support/html_page.h"

#include <cstdio>
#include <cstdlib>

#include "session.h"

namespace kovrel_tool_test {

bool inflate_fixed(const std::string &in, std::string &out) {
    static const int kLengthBase[29] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                                        31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
    static const int kLengthExtra[29] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                         2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
    static const int kDistBase[30] = {1,    2,    3,    4,    5,    7,     9,     13,    17,  25,
                                      33,   49,   65,   97,   129,  193,   257,   385,   513, 769,
                                      1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
    static const int kDistExtra[30] = {0, 0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6,
                                       6, 7, 7, 8, 8, 9, 9, 10, 10, 11, 11, 12, 12, 13, 13};
    size_t pos = 0;
    bool over = false;
    auto bit = [&]() -> uint32_t {
        if (pos / 8 >= in.size()) {
            over = true;
            return 0;
        }
        const uint32_t b = (static_cast<uint8_t>(in[pos / 8]) >> (pos % 8)) & 1u;
        ++pos;
        return b;
    };
    auto bits = [&](int n) {
        uint32_t v = 0;
        for (int i = 0; i < n; ++i) v |= bit() << i;
        return v;
    };
    auto code = [&](int n) {
        uint32_t v = 0;
        for (int i = 0; i < n; ++i) v = v << 1 | bit();
        return v;
    };
    for (bool last = false; !last;) {
        last = bits(1) == 1;
        if (bits(2) != 1) return false;
        for (;;) {
            uint32_t c = code(7), symbol;
            if (c <= 0x17) {
                symbol = 256 + c;
            } else {
                c = c << 1 | bit();
                if (c >= 0x30 && c <= 0xBF)
                    symbol = c - 0x30;
                else if (c >= 0xC0 && c <= 0xC7)
                    symbol = 280 + c - 0xC0;
                else
                    symbol = 144 + (c << 1 | bit()) - 0x190;
            }
            if (over || symbol > 285) return false;
            if (symbol < 256) {
                out.push_back(static_cast<char>(symbol));
                continue;
            }
            if (symbol == 256) break;
            const int lc = static_cast<int>(symbol) - 257;
            const size_t length = kLengthBase[lc] + bits(kLengthExtra[lc]);
            const uint32_t dc = code(5);
            if (dc >= 30) return false;
            const size_t distance = kDistBase[dc] + bits(kDistExtra[dc]);
            if (over || distance > out.size()) return false;
            for (size_t i = 0; i < length; ++i) out.push_back(out[out.size() - distance]);
        }
    }
    return !over;
}

std::string base64_decode(const std::string &text) {
    std::string out;
    uint32_t acc = 0;
    int have = 0;
    for (char ch : text) {
        int v;
        if (ch >= 'A' && ch <= 'Z') v = ch - 'A';
        else if (ch >= 'a' && ch <= 'z') v = ch - 'a' + 26;
        else if (ch >= '0' && ch <= '9') v = ch - '0' + 52;
        else if (ch == '+') v = 62;
        else if (ch == '/') v = 63;
        else continue;  // padding
        acc = acc << 6 | static_cast<uint32_t>(v);
        have += 6;
        if (have >= 8) {
            have -= 8;
            out.push_back(static_cast<char>(acc >> have & 0xFF));
        }
    }
    return out;
}

EmbeddedPage render_page(const std::string &name, const Octets &octets, const kovrel_tool::PageOptions &options) {
    EmbeddedPage page;
    char *buf = nullptr, *mbuf = nullptr;
    size_t size = 0, msize = 0;
    std::FILE *out = open_memstream(&buf, &size);
    std::FILE *messages = open_memstream(&mbuf, &msize);
    {
        kovrel_tool::DecodeSession session{kovrel_tool::SessionSettings{}, out, messages};
        kovrel_tool::write_page(session, out, name,
                                [&] { session.decode_memory(name, octets.data(), octets.size()); }, options);
    }
    std::fclose(out);
    std::fclose(messages);
    page.text.assign(buf, size);
    page.messages.assign(mbuf, msize);
    std::free(buf);
    std::free(mbuf);

    const std::string group = "<script type=\"application/x-kovrel-group\">";
    const std::string meta = "<script type=\"application/x-kovrel-meta\" id=\"kovrel-meta\">";
    std::vector<nlohmann::json> written;  // items written in full, in page order
    std::vector<nlohmann::json> records;  // as embedded, numbers not resolved yet
    for (size_t at = page.text.find(group); at != std::string::npos; at = page.text.find(group, at + 1)) {
        const size_t from = at + group.size();
        const auto g = nlohmann::json::parse(page.text.substr(from, page.text.find("</script>", from) - from));
        ++page.groups;
        if (g["f"] != written.size()) page.readable = false;
        for (const auto &row : g["r"]) page.rows.push_back(row);
        std::string texts;
        if (!inflate_fixed(base64_decode(g["d"].get<std::string>()), texts)) {
            page.readable = false;
            continue;
        }
        page.inflated += texts;
        auto group_records = nlohmann::json::parse(texts, nullptr, false);
        if (!group_records.is_array()) {
            page.readable = false;
            continue;
        }
        for (auto &record : group_records) {
            for (const auto &item : record[3])
                if (!item.is_number()) written.push_back(item);
            records.push_back(record);
        }
    }
    // Numbers point back at items written in full, in this group or before.
    for (auto &record : records) {
        for (auto &item : record[3]) {
            if (!item.is_number()) continue;
            if (item.get<size_t>() >= written.size()) {
                page.readable = false;
                break;
            }
            item = written[item.get<size_t>()];
        }
        page.records.push_back(record);
    }
    const size_t at = page.text.find(meta);
    if (at != std::string::npos) {
        const size_t from = at + meta.size();
        page.meta = nlohmann::json::parse(page.text.substr(from, page.text.find("</script>", from) - from));
    }
    return page;
}

}  // namespace kovrel_tool_test

#endif  // KOVREL_HAVE_TOOL_CORE
