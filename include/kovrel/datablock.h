/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * datablock.h: data blocks: one category octet, a two-octet length (the
 * whole block, header included, big-endian) and the records.
 *
 * Blocks decode on several threads at once: all state is in the caller's
 * structures, except the profile remembered by the smart decoder, which is
 * kept per thread.
 */
#ifndef KOVREL_DATABLOCK_H
#define KOVREL_DATABLOCK_H

#include "kovrel/datarecord.h"
#include "kovrel/export.h"

KOVREL_BEGIN_DECLS

/** Most records a block holds. */
#define AST_DATABLOCK_MAX_RECORDS 64
/** Longest block the encoder writes. */
#define AST_DATABLOCK_MAX_LENGTH 65535

typedef struct AstDataBlock {
    const uint8_t *data;         /**< first octet of the block */
    uint64_t length;             /**< LEN */
    uint32_t category;           /**< CAT */
    AstUap uap;                  /**< profile the records were read or written with */
    const uint8_t *records_data; /**< data + 3 */
    uint64_t records_length;     /**< LEN - 3 decoding; sum of record lengths encoding */
    AstDataRecord records[AST_DATABLOCK_MAX_RECORDS];
    uint64_t record_count;
    uint8_t valid;               /**< 1 when read or written whole */
} AstDataBlock;

typedef struct AstDataBlockInput {
    uint32_t category;
    AstUap uap;
    AstDataRecordInput records[AST_DATABLOCK_MAX_RECORDS];
    uint64_t record_count;
} AstDataBlockInput;

/**
 * What a decode leaves in the caller's block. A block structure is large
 * (64 records of 48 items), so decoding does not clear it: it writes the
 * header fields, record_count and the records it reads, and each record
 * its own fields and its items up to item_count. Read records[0 ..
 * record_count - 1] and, in each, items[0 .. item_count - 1]: slots past
 * the counts keep whatever the structure held before (an earlier block's
 * records), with one exception kept for inspection: when a record fails,
 * records[record_count] is that record as far as it could be read. Every
 * block and record operation of the library goes by the counts.
 *
 * Decodes a block with one profile. Invalid when octets is NULL, fewer than
 * 3 or fewer than LEN octets are available, a record fails, more than 64
 * records are found ("Number of datarecords %zu exceeds the limit %u." at
 * PANIC, with a DEBUG dump of the block), or the records do not end exactly
 * at LEN. Records decoded before a failure stay in the block.
 */
KOVREL_API void ast_datablock_decode_into(AstDataBlock *out, const uint8_t *octets, size_t available,
                                          const AstUap *uap);
/** As ast_datablock_decode_into, returning the block. */
KOVREL_API AstDataBlock ast_datablock_decode(const uint8_t *octets, size_t available, const AstUap *uap);

/**
 * Decodes a block whose profile is not known: CAT001 blocks first try the
 * mixed plot/track decode; then the profile this thread last succeeded with
 * (standard at thread start); then, in order, standard, CAT001 plot, CAT021
 * 0.23, 0.26, 2.1, 2.7, ASR-10SS, ASR-10SS Mk2, Thales and MANAGAIR (a
 * candidate equal to the one tried just before is skipped). The first valid
 * result is returned and its profile remembered for this thread; after a
 * total failure the last attempt is returned.
 */
KOVREL_API void ast_datablock_smart_decode_into(AstDataBlock *out, const uint8_t *octets, size_t available);
KOVREL_API AstDataBlock ast_datablock_smart_decode(const uint8_t *octets, size_t available);

/**
 * Decodes a CAT001 block that mixes plots and tracks: each record is read
 * with the plot profile when the TYP bit of its I001/020 is 0, with the
 * standard profile otherwise. Records must carry I001/010 and I001/020.
 */
KOVREL_API void ast_datablock_001_mixuap_decode_into(AstDataBlock *out, const uint8_t *octets, size_t available);
KOVREL_API AstDataBlock ast_datablock_001_mixuap_decode(const uint8_t *octets, size_t available);

/**
 * Encodes 1 to 64 records of the input's category into buffer and writes the
 * header. Invalid (header not written) when a record fails, has another
 * category, or the block would exceed 65535 octets.
 */
KOVREL_API void ast_datablock_encode(AstDataBlock *out, uint8_t *buffer, size_t size, const AstDataBlockInput *input);

/**
 * Writes a copy of a valid decoded block into buffer with the replacement
 * values applied to every record (see ast_datarecord_modify).
 */
KOVREL_API void ast_datablock_modify(AstDataBlock *out, uint8_t *buffer, size_t size, const AstDataBlock *block,
                                     const AstDataItemList *replacements);

KOVREL_END_DECLS

#endif /* KOVREL_DATABLOCK_H */
