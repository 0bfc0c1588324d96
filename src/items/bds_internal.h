// Shared pieces of the Mode S register decoders and their detail views.
//
// Register fields are addressed by MB bit numbers: bit 1 is the most
// significant bit of the first MB octet, bit 56 the least significant bit of
// the seventh (octet k bit b is MB bit (k - 1) x 8 + 9 - b).
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/text.h"
#include "kovrel/dataitem.h"

namespace kovrel {

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
const uint8_t *bds_octets(const AstDataItem *reg, uint32_t code);

// Eight 6-bit identification characters from MB bits 9-56, NUL-terminated.
void bds_chars(const MbBits &mb, char (&chars)[9]);

// A register's detail table written into a caller buffer. Creating it
// empties the text; nothing more is written until begin().
class BdsTable {
public:
    BdsTable(char *buffer, size_t size) : w_(buffer, size) {}
    // Opens the table with the "Item", "Value" header, or "Item", "Status",
    // "Value" when with_status is true.
    void begin(bool with_status);
    void row(const char *label, const char *value);
    void rowf(const char *label, const char *format, ...) __attribute__((format(printf, 3, 4)));
    // A row of a table with a status column: "valid" and the formatted value,
    // or "invalid" and "--".
    void status_row(const char *label, bool valid, const char *format, ...) __attribute__((format(printf, 4, 5)));
    // Rows "CHAR_1" to "CHAR_8", one identification character each.
    void char_rows(const char (&chars)[9]);
    void end();

private:
    TextWriter w_;
};

}  // namespace kovrel
