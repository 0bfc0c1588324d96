// Decoding a block whose profile is not known: try the profile this thread
// last succeeded with, then every exported profile in a fixed order.
#include "kovrel/datablock.h"

namespace {

// Empty at thread start; then the profile of the last attempt.
thread_local AstUap t_remembered = {nullptr, nullptr};

bool same_profile(const AstUap &a, const AstUap &b) { return a.get_dataitem == b.get_dataitem; }

}  // namespace

extern "C" {

KOVREL_API void ast_datablock_smart_decode_into(AstDataBlock *out, const uint8_t *octets, size_t available) {
    if (!out) return;
    if (!octets || available < 3) {
        ast_datablock_decode_into(out, octets, available, &AST_UAP_STANDARD);
        return;
    }
    if (octets[0] == 1) {
        ast_datablock_001_mixuap_decode_into(out, octets, available);
        if (out->valid == 1) return;
    }
    if (!t_remembered.get_dataitem) t_remembered = AST_UAP_STANDARD;
    ast_datablock_decode_into(out, octets, available, &t_remembered);
    if (out->valid == 1) return;

    const AstUap *const candidates[] = {
        &AST_UAP_STANDARD,      &AST_UAP_CAT001_PLOT, &AST_UAP_CAT021_VER023, &AST_UAP_CAT021_VER026,
        &AST_UAP_CAT021_VER21,  &AST_UAP_CAT021_VER27, &AST_UAP_ASR10SS,      &AST_UAP_ASR10SS_MK2,
        &AST_UAP_THALES,        &AST_UAP_MANAGAIR,
    };
    AstUap previous = t_remembered;
    for (const AstUap *candidate : candidates) {
        if (same_profile(*candidate, previous)) continue;
        t_remembered = *candidate;
        previous = *candidate;
        ast_datablock_decode_into(out, octets, available, candidate);
        if (out->valid == 1) return;
    }
}

KOVREL_API AstDataBlock ast_datablock_smart_decode(const uint8_t *octets, size_t available) {
    AstDataBlock b;
    ast_datablock_smart_decode_into(&b, octets, available);
    return b;
}

}  // extern "C"
