// Big-endian integer fields of one to four octets, unsigned and two's
// complement, optionally starting some bits into the first octet.
//
// Every item decoder reads its bit fields through these eight functions, so
// this is the one place that knows octet order and sign extension. Arguments
// that make no sense (width outside 1..4, a null pointer, skip outside 0..7)
// leave the output exactly as it was.
#include <cstdint>

#include "kovrel/codec.h"

namespace kovrel {
namespace {

bool width_ok(int n) { return n >= 1 && n <= 4; }
bool skip_ok(int skip) { return skip >= 0 && skip < 8; }

// The n octets at in as one big-endian number; the top skip bits of the
// first octet belong to a neighbouring field and are masked off.
uint32_t read_field(const uint8_t *in, int n, int skip) {
    uint32_t value = in[0] & (0xFFu >> skip);
    for (int i = 1; i < n; ++i) value = (value << 8) | in[i];
    return value;
}

// Mask of the low w bits (w is 1 to 32).
uint32_t low_bits(int w) { return w >= 32 ? 0xFFFFFFFFu : (1u << w) - 1u; }

// Field of w bits to a signed value: a set sign bit (w-1) fills every bit
// from w upward.
int32_t sign_extend(uint32_t value, int w) {
    if (w < 32 && (value & (1u << (w - 1))) != 0) value |= ~low_bits(w);
    return static_cast<int32_t>(value);
}

// Writes the low 8n-skip bits of value big-endian, last octet first. With a
// skip the caller's bits above the field in out[0] survive; without one the
// whole octet is overwritten.
void write_field(uint8_t *out, int n, uint32_t value, int skip) {
    value &= low_bits(8 * n - skip);
    for (int i = n - 1; i > 0; --i) {
        out[i] = static_cast<uint8_t>(value & 0xFFu);
        value >>= 8;
    }
    const unsigned keep = (0xFFu << (8 - skip)) & 0xFFu;
    out[0] = static_cast<uint8_t>((out[0] & keep) | (value & (0xFFu >> skip)));
}

}  // namespace
}  // namespace kovrel

extern "C" {

KOVREL_API void ast_unsigned_decode(uint32_t *out, const uint8_t *in, int n) {
    if (!out || !in || !kovrel::width_ok(n)) return;
    *out = kovrel::read_field(in, n, 0);
}

KOVREL_API void ast_unsigned_decode_ex(uint32_t *out, const uint8_t *in, int n, int skip) {
    if (!out || !in || !kovrel::width_ok(n) || !kovrel::skip_ok(skip)) return;
    *out = kovrel::read_field(in, n, skip);
}

KOVREL_API void ast_unsigned_encode(uint8_t *out, int n, uint32_t value) {
    if (!out || !kovrel::width_ok(n)) return;
    kovrel::write_field(out, n, value, 0);
}

KOVREL_API void ast_unsigned_encode_ex(uint8_t *out, int n, uint32_t value, int skip) {
    if (!out || !kovrel::width_ok(n) || !kovrel::skip_ok(skip)) return;
    kovrel::write_field(out, n, value, skip);
}

KOVREL_API void ast_twos_complement_decode(int32_t *out, const uint8_t *in, int n) {
    if (!out || !in || !kovrel::width_ok(n)) return;
    *out = kovrel::sign_extend(kovrel::read_field(in, n, 0), 8 * n);
}

KOVREL_API void ast_twos_complement_decode_ex(int32_t *out, const uint8_t *in, int n, int skip) {
    if (!out || !in || !kovrel::width_ok(n) || !kovrel::skip_ok(skip)) return;
    *out = kovrel::sign_extend(kovrel::read_field(in, n, skip), 8 * n - skip);
}

KOVREL_API bool ast_twos_complement_encode(uint8_t *out, int n, int32_t value) {
    if (!out || !kovrel::width_ok(n)) return false;
    kovrel::write_field(out, n, static_cast<uint32_t>(value), 0);
    return true;
}

KOVREL_API void ast_twos_complement_encode_ex(uint8_t *out, int n, int32_t value, int skip) {
    if (!out || !kovrel::width_ok(n) || !kovrel::skip_ok(skip)) return;
    kovrel::write_field(out, n, static_cast<uint32_t>(value), skip);
}

}  // extern "C"
