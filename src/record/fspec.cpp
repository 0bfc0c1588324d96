// FSPEC: which FRNs a record (or a compound item) carries.
#include "kovrel/fspec.h"

#include <cstring>

#include "core/state.h"

extern "C" {

KOVREL_API void ast_fspec_decode(AstFspec *out, const uint8_t *octets, size_t available) {
    if (!out) return;
    out->octets = octets;
    out->length = 0;
    out->frn_count = 0;
    out->set_count = 0;
    out->valid = 0;
    if (!octets) return;

    size_t n = 0;
    uint64_t set = 0;
    for (;;) {
        if (n >= available) return;  // FX chain runs past the data: nothing is reported
        const uint8_t o = octets[n++];
        set += static_cast<uint64_t>(__builtin_popcount(o & 0xFEu));
        if ((o & 0x01u) == 0) break;
    }
    out->length = n;
    out->frn_count = 7u * n;
    out->set_count = set;
    if (set > 0 || kovrel::option_set(AST_OPTION_ACCEPT_EMPTY_FSPEC)) out->valid = 1;
}

KOVREL_API bool ast_fspec_is_set(const AstFspec *fspec, uint32_t frn) {
    if (!fspec || frn == 0 || fspec->valid != 1 || frn > fspec->frn_count || !fspec->octets) return false;
    const uint32_t index = (frn - 1) / 7;
    const uint8_t mask = static_cast<uint8_t>(0x80u >> ((frn - 1) % 7));
    return (fspec->octets[index] & mask) != 0;
}

KOVREL_API bool ast_fspec_set(uint8_t *buffer, size_t size, uint32_t frn, bool value) {
    if (!buffer || frn == 0) return false;
    const size_t index = (frn - 1) / 7;
    if (size <= index) return false;
    const uint8_t mask = static_cast<uint8_t>(0x80u >> ((frn - 1) % 7));
    if (value)
        buffer[index] = static_cast<uint8_t>(buffer[index] | mask);
    else
        buffer[index] = static_cast<uint8_t>(buffer[index] & ~mask);
    return true;
}

KOVREL_API void ast_fspec_copy(AstFspec *out, uint8_t *buffer, size_t size, const AstFspec *src) {
    if (!out) return;
    out->octets = buffer;
    out->length = 0;
    out->frn_count = src ? src->frn_count : 0;
    out->set_count = src ? src->set_count : 0;
    out->valid = 0;
    if (!src || src->valid != 1 || !buffer || !src->octets || size < src->length) return;
    std::memmove(buffer, src->octets, static_cast<size_t>(src->length));
    out->length = src->length;
    out->valid = src->valid;
}

}  // extern "C"
