// What the Mode S register decoders and their detail views share.
//
// Register fields are addressed by MB bit numbers: bit 1 is the most
// significant bit of the first MB octet, bit 56 the least significant bit of
// the seventh (octet k bit b is MB bit (k - 1) x 8 + 9 - b).
#pragma once

#include <cstdint>

#include "items/item_support.h"

namespace kovrel::items {

constexpr uint64_t kMbOctets = 7;

// The 56 MB bits of a register, read once.
class MbBits {
public:
    explicit MbBits(const uint8_t *mb) {
        for (int i = 0; i < 7; ++i) word_ = (word_ << 8) | mb[i];
    }
    // count (1-32) bits starting at MB bit first (1-56).
    uint32_t field(int first, int count) const {
        const int shift = 56 - (first - 1) - count;
        return static_cast<uint32_t>((word_ >> shift) & ((uint64_t{1} << count) - 1));
    }
    uint8_t bit(int n) const { return static_cast<uint8_t>(field(n, 1)); }

private:
    uint64_t word_ = 0;
};

// The MB octets of reg when it is a valid 7-octet span of register code;
// null otherwise, and the decoder returns its all-zero record.
inline const uint8_t *bds_octets(const AstDataItem *reg, uint32_t code) {
    return span_ok(reg, kMbOctets) && reg->id == code ? reg->data : nullptr;
}

// A row of a register table with the columns "Item", "Status", "Value":
// "valid" and the formatted value, or "invalid" and "--".
void status_row(DetailTable &table, const char *label, bool valid, const char *format, ...)
    __attribute__((format(printf, 4, 5)));

}  // namespace kovrel::items
