// Shared bodies of the FX-extended and repetitive size rules (items and subfields).
#pragma once

#include <cstddef>
#include <cstdint>

namespace kovrel {

// FX-extended field of at most n octets; logs exceed_message (with n) at
// CRITICAL when octet n still has its FX bit set and more octets follow.
uint64_t fx_extended_size(const uint8_t *octets, size_t available, size_t n, const char *exceed_message);
// 1 + n x first octet, or 0 when that exceeds available.
uint64_t repetitive_size(const uint8_t *octets, size_t available, size_t n);

}  // namespace kovrel
