// Data block encoding and modification.
#include "kovrel/datablock.h"

namespace {

void begin_output(AstDataBlock *b, uint8_t *buffer, uint32_t category, const AstUap *uap, uint64_t record_count) {
    b->data = buffer;
    b->length = 3;
    b->category = category;
    b->uap = uap ? *uap : AstUap{nullptr, nullptr};
    b->records_data = buffer ? buffer + 3 : nullptr;
    b->records_length = 0;
    b->record_count = record_count;
    b->valid = 0;
}

void write_header(uint8_t *buffer, uint32_t category, uint64_t length) {
    buffer[0] = static_cast<uint8_t>(category);
    buffer[1] = static_cast<uint8_t>(length >> 8);
    buffer[2] = static_cast<uint8_t>(length);
}

}  // namespace

extern "C" {

KOVREL_API void ast_datablock_encode(AstDataBlock *out, uint8_t *buffer, size_t size, const AstDataBlockInput *input) {
    if (!out) return;
    begin_output(out, buffer, input ? input->category : 0, input ? &input->uap : nullptr,
                 input ? input->record_count : 0);
    if (!input || !buffer || size < 3) return;
    if (input->record_count == 0 || input->record_count > AST_DATABLOCK_MAX_RECORDS) return;
    uint64_t p = 0;
    bool ok = true;
    for (uint64_t i = 0; i < input->record_count; ++i) {
        const AstDataRecordInput &in = input->records[i];
        if (in.category != input->category) {
            ok = false;
            break;
        }
        AstDataRecord &r = out->records[i];
        ast_datarecord_encode(&r, buffer + 3 + p, static_cast<size_t>(size - 3 - p), &in);
        if (r.valid != 1) {
            ok = false;
            break;
        }
        p += r.length;
    }
    out->records_length = p;
    out->length = p + 3;
    if (!ok || out->length > AST_DATABLOCK_MAX_LENGTH) return;
    write_header(buffer, input->category, out->length);
    out->valid = 1;
}

KOVREL_API void ast_datablock_modify(AstDataBlock *out, uint8_t *buffer, size_t size, const AstDataBlock *block,
                                     const AstDataItemList *replacements) {
    if (!out) return;
    begin_output(out, buffer, block ? block->category : 0, block ? &block->uap : nullptr,
                 block ? block->record_count : 0);
    if (!block || block->valid != 1 || !buffer || size < 3) return;
    const uint64_t count =
        block->record_count > AST_DATABLOCK_MAX_RECORDS ? AST_DATABLOCK_MAX_RECORDS : block->record_count;
    uint64_t p = 0;
    for (uint64_t i = 0; i < count; ++i) {
        AstDataRecord &r = out->records[i];
        ast_datarecord_modify(&r, buffer + 3 + p, static_cast<size_t>(size - 3 - p), &block->records[i], replacements);
        if (r.valid != 1) {
            out->records_length = p;
            return;
        }
        p += r.length;
    }
    out->records_length = p;
    out->length = p + 3;
    // Unlike the encoder, the modifier does not enforce the 65535 limit;
    // only the low 16 bits of the length fit the header.
    write_header(buffer, block->category, out->length);
    out->valid = 1;
}

}  // extern "C"
