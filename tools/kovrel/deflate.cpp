#include "deflate.h"

#include <cstring>
#include <vector>

namespace kovrel_tool {
namespace {

constexpr size_t kWindow = 32768;
constexpr size_t kMinMatch = 4;  // shorter matches cost about what their literals do
constexpr size_t kMaxMatch = 258;
constexpr int kHashBits = 15;
constexpr int kChainTries = 8;
constexpr size_t kLazyBelow = 32;  // matches this long or longer are taken at once
// Positions inside a match longer than this are not hashed (the text is
// already known; hashing it all costs more than the matches it would find).
constexpr size_t kHashedInMatch = 16;

constexpr uint16_t kLengthBase[29] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                                      31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr uint8_t kLengthExtra[29] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                      2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr uint16_t kDistBase[30] = {1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
                                    193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr uint8_t kDistExtra[30] = {0, 0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6,
                                    6, 7, 7, 8, 8, 9, 9, 10, 10, 11, 11, 12, 12, 13, 13};

// Code tables worked out once: length (3..258) to its code, distance - 1
// to its code (below 256 directly, above by its value / 128).
struct Tables {
    uint8_t length_code[kMaxMatch + 1];
    uint8_t dist_code[512];
    Tables() {
        for (int c = 0; c < 29; ++c) {
            const int end = c == 28 ? 259 : kLengthBase[c + 1];
            for (int len = kLengthBase[c]; len < end && len <= 258; ++len) length_code[len] = static_cast<uint8_t>(c);
        }
        length_code[258] = 28;
        for (int c = 0; c < 30; ++c) {
            const int end = c == 29 ? 32769 : kDistBase[c + 1];
            for (int d = kDistBase[c]; d < end; ++d) {
                if (d - 1 < 256)
                    dist_code[d - 1] = static_cast<uint8_t>(c);
                else
                    dist_code[256 + ((d - 1) >> 7)] = static_cast<uint8_t>(c);
            }
        }
    }
};
const Tables kTables;

uint32_t reverse(uint32_t code, int bits) {
    uint32_t r = 0;
    for (int i = 0; i < bits; ++i) r |= ((code >> i) & 1u) << (bits - 1 - i);
    return r;
}

class BitWriter {
public:
    explicit BitWriter(std::string &out) : out_(out) {}
    // The low `count` bits of value, first bit first.
    void bits(uint32_t value, int count) {
        acc_ |= static_cast<uint64_t>(value) << used_;
        used_ += count;
        while (used_ >= 8) {
            out_.push_back(static_cast<char>(acc_ & 0xFF));
            acc_ >>= 8;
            used_ -= 8;
        }
    }
    // A Huffman code, most significant bit first.
    void code(uint32_t code, int count) { bits(reverse(code, count), count); }
    void finish() {
        if (used_ > 0) out_.push_back(static_cast<char>(acc_ & 0xFF));
        acc_ = 0;
        used_ = 0;
    }

private:
    std::string &out_;
    uint64_t acc_ = 0;
    int used_ = 0;
};

// The fixed literal/length code of symbol s (0..287).
void put_symbol(BitWriter &w, uint32_t s) {
    if (s < 144)
        w.code(0x30 + s, 8);
    else if (s < 256)
        w.code(0x190 + (s - 144), 9);
    else if (s < 280)
        w.code(s - 256, 7);
    else
        w.code(0xC0 + (s - 280), 8);
}

void put_match(BitWriter &w, size_t length, size_t distance) {
    const int lc = kTables.length_code[length];
    put_symbol(w, 257u + static_cast<uint32_t>(lc));
    if (kLengthExtra[lc]) w.bits(static_cast<uint32_t>(length - kLengthBase[lc]), kLengthExtra[lc]);
    const size_t d = distance - 1;
    const int dc = kTables.dist_code[d < 256 ? d : 256 + (d >> 7)];
    w.code(static_cast<uint32_t>(dc), 5);
    if (kDistExtra[dc]) w.bits(static_cast<uint32_t>(distance - kDistBase[dc]), kDistExtra[dc]);
}

// How many of the first `limit` octets at a and b are equal.
size_t common_length(const uint8_t *a, const uint8_t *b, size_t limit) {
    size_t n = 0;
    while (n + 8 <= limit) {
        uint64_t x, y;
        std::memcpy(&x, a + n, 8);
        std::memcpy(&y, b + n, 8);
        if (x != y) return n + static_cast<size_t>(__builtin_ctzll(x ^ y) / 8);
        n += 8;
    }
    while (n < limit && a[n] == b[n]) ++n;
    return n;
}

uint32_t hash4(const uint8_t *p) {
    uint32_t v;
    std::memcpy(&v, p, 4);
    return (v * 2654435761u) >> (32 - kHashBits);
}

}  // namespace

void deflate_raw(const uint8_t *data, size_t size, std::string &out) {
    BitWriter w(out);
    w.bits(1, 1);  // the final block
    w.bits(1, 2);  // fixed codes
    thread_local std::vector<int32_t> head, prev;
    head.assign(size_t{1} << kHashBits, -1);
    prev.resize(kWindow);
    auto insert = [&](size_t at) {
        const uint32_t h = hash4(data + at);
        prev[at & (kWindow - 1)] = head[h];
        head[h] = static_cast<int32_t>(at);
    };
    // The longest earlier match of the octets at i (0 when none is kMinMatch long).
    auto find = [&](size_t i, size_t &distance) {
        size_t best = 0;
        if (size - i < kMinMatch) return best;
        const size_t limit = size - i < kMaxMatch ? size - i : kMaxMatch;
        int32_t candidate = head[hash4(data + i)];
        for (int tries = 0; candidate >= 0 && tries < kChainTries; ++tries) {
            const size_t c = static_cast<size_t>(candidate);
            if (i - c > kWindow - 1) break;
            if (data[c + best] == data[i + best]) {
                const size_t n = common_length(data + c, data + i, limit);
                if (n > best) {
                    best = n;
                    distance = i - c;
                    if (n == limit) break;
                }
            }
            const int32_t next = prev[c & (kWindow - 1)];
            if (next >= candidate) break;  // the slot was taken by a later position
            candidate = next;
        }
        return best >= kMinMatch ? best : 0;
    };
    auto insert_run = [&](size_t from, size_t to) {
        for (size_t k = from; k < to && size - k >= kMinMatch; ++k) insert(k);
    };
    size_t i = 0;
    while (i < size) {
        size_t distance = 0;
        size_t best = find(i, distance);
        if (best == 0) {
            put_symbol(w, data[i]);
            insert_run(i, i + 1);
            ++i;
            continue;
        }
        size_t from = i;  // the first position of the match not hashed yet
        // A longer match one octet on is worth a literal first.
        if (best < kLazyBelow && i + 1 < size) {
            insert_run(i, i + 1);
            from = i + 1;
            size_t later_distance = 0;
            const size_t later = find(i + 1, later_distance);
            if (later > best) {
                put_symbol(w, data[i]);
                ++i;
                best = later;
                distance = later_distance;
            }
        }
        put_match(w, best, distance);
        insert_run(from, best <= kHashedInMatch ? i + best : from + 1);
        i += best;
    }
    put_symbol(w, 256);  // end of block
    w.finish();
}

void append_base64(const uint8_t *data, size_t size, std::string &out) {
    static const char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const size_t start = out.size();
    out.resize(start + (size + 2) / 3 * 4);
    char *p = out.data() + start;
    size_t i = 0;
    for (; i + 3 <= size; i += 3) {
        const uint32_t v = uint32_t{data[i]} << 16 | uint32_t{data[i + 1]} << 8 | data[i + 2];
        *p++ = kAlphabet[v >> 18];
        *p++ = kAlphabet[(v >> 12) & 63];
        *p++ = kAlphabet[(v >> 6) & 63];
        *p++ = kAlphabet[v & 63];
    }
    if (i < size) {
        const uint32_t v = uint32_t{data[i]} << 16 | (i + 1 < size ? uint32_t{data[i + 1]} << 8 : 0u);
        *p++ = kAlphabet[v >> 18];
        *p++ = kAlphabet[(v >> 12) & 63];
        *p++ = i + 1 < size ? kAlphabet[(v >> 6) & 63] : '=';
        *p++ = '=';
    }
}

}  // namespace kovrel_tool
