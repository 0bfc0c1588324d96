// Data block decoding with one profile, and the CAT001 plot/track mix.
#include "core/state.h"
#include "kovrel/datablock.h"
#include "record/datablock_internal.h"

namespace kovrel {

bool begin_block(AstDataBlock *b, const uint8_t *octets, size_t available, const AstUap *uap, uint64_t *len) {
    b->data = octets;
    b->length = 0;
    b->category = 0;
    b->uap = uap ? *uap : AstUap{nullptr, nullptr};
    b->records_data = octets ? octets + 3 : nullptr;
    b->records_length = 0;
    b->record_count = 0;
    b->valid = 0;
    if (!octets || available < 3) return false;
    b->category = octets[0];
    const uint64_t l = (static_cast<uint64_t>(octets[1]) << 8) | octets[2];
    if (available < l) return false;
    b->length = l;
    b->records_length = l >= 3 ? l - 3 : 0;
    *len = l;
    return true;
}

// Stores a decoded record, or reports the 65th. Records are decoded straight
// into the block's array; the overflow record goes to `spare`.
AstDataRecord *record_slot(AstDataBlock *b, AstDataRecord *spare) {
    return b->record_count < AST_DATABLOCK_MAX_RECORDS ? &b->records[b->record_count] : spare;
}

bool accept_record(AstDataBlock *b, bool dump, const uint8_t *octets, size_t available) {
    if (b->record_count >= AST_DATABLOCK_MAX_RECORDS) {
        ast_log(AST_LOG_PANIC, "Number of datarecords %zu exceeds the limit %u.",
                static_cast<size_t>(b->record_count + 1), static_cast<unsigned>(AST_DATABLOCK_MAX_RECORDS));
        if (dump) ast_log_binary_data(AST_LOG_DEBUG, octets, available);
        return false;
    }
    ++b->record_count;
    return true;
}

}  // namespace kovrel

extern "C" {

KOVREL_API void ast_datablock_decode_into(AstDataBlock *out, const uint8_t *octets, size_t available,
                                          const AstUap *uap) {
    if (!out) return;
    uint64_t len = 0;
    if (!kovrel::begin_block(out, octets, available, uap, &len)) return;
    AstDataRecord spare;
    uint64_t p = 3;
    while (p < len) {
        AstDataRecord *r = kovrel::record_slot(out, &spare);
        // A record may read past LEN; the final check catches it.
        ast_datarecord_decode(r, octets + p, static_cast<size_t>(available - p), out->category, &out->uap);
        if (r->valid != 1) break;
        if (!kovrel::accept_record(out, true, octets, available)) return;
        p += r->length;
    }
    out->valid = p == len;
}

KOVREL_API AstDataBlock ast_datablock_decode(const uint8_t *octets, size_t available, const AstUap *uap) {
    AstDataBlock b;
    ast_datablock_decode_into(&b, octets, available, uap);
    return b;
}

KOVREL_API void ast_datablock_001_mixuap_decode_into(AstDataBlock *out, const uint8_t *octets, size_t available) {
    if (!out) return;
    uint64_t len = 0;
    if (!kovrel::begin_block(out, octets, available, &AST_UAP_STANDARD, &len)) return;
    if (out->category != 1) return;
    AstDataRecord spare;
    uint64_t p = 3;
    while (p < len) {
        AstFspec fspec;
        ast_fspec_decode(&fspec, octets + p, static_cast<size_t>(available - p));
        if (fspec.valid != 1 || !ast_fspec_is_set(&fspec, 2)) return;
        // TYP of I001/020, behind the two octets of I001/010.
        const uint64_t typ_at = p + fspec.length + 2;
        if (typ_at >= available) return;
        const AstUap *uap = (octets[typ_at] & 0x80u) ? &AST_UAP_STANDARD : &AST_UAP_CAT001_PLOT;
        AstDataRecord *r = kovrel::record_slot(out, &spare);
        ast_datarecord_decode(r, octets + p, static_cast<size_t>(available - p), 1, uap);
        if (r->valid != 1) break;
        if (!kovrel::accept_record(out, false, octets, available)) return;
        p += r->length;
    }
    out->valid = p == len;
}

KOVREL_API AstDataBlock ast_datablock_001_mixuap_decode(const uint8_t *octets, size_t available) {
    AstDataBlock b;
    ast_datablock_001_mixuap_decode_into(&b, octets, available);
    return b;
}

}  // extern "C"
