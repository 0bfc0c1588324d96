// Decoding blocks for the tool, and working out why a block is bad.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include <kovrel/kovrel.h>

namespace kovrel_tool {

// The record at which a bad block stopped, as far as it could be read.
struct FailedRecord {
    size_t index = 0;     // 0-based position of the record in the block
    uint64_t offset = 0;  // octet offset of the record inside the block
    AstDataRecord record{};
};

struct BlockOutcome {
    // The block as decoded: a valid block, or, for a bad one, the attempt
    // that read furthest (its records are all valid and complete).
    const AstDataBlock *block = nullptr;
    bool valid = false;
    // Why the block is bad, e.g. "record 3 at octet 41: after I048/130,
    // I048/220 (FRN 8) cannot be delimited in the 2 octets left".
    std::string reason;
    // The record the block stopped at; nullptr when the failure is not in
    // a record (header, LEN, too many records).
    const FailedRecord *failed = nullptr;
};

// Decodes blocks one at a time with one profile, or smartly (uap nullptr:
// the profile that read the last block first, then each profile in turn). Blocks are large (64 records of 48 items), so the decoder
// keeps its own on the heap and reuses it; an outcome stays valid until the
// next call.
class BlockDecoder {
public:
    explicit BlockDecoder(const AstUap *uap);
    ~BlockDecoder();
    BlockDecoder(const BlockDecoder &) = delete;
    BlockDecoder &operator=(const BlockDecoder &) = delete;

    BlockOutcome decode(const uint8_t *data, size_t size);

    // Smart decoding remembers the profile that read the last block (or the
    // last one tried) and tries it first on the next: the standard profile
    // before the first block. Decoding a block after remember(p) gives what
    // decoding it right after the blocks that left p remembered gives
    // (nullptr: start afresh).
    const AstUap *remembered() const { return remembered_; }
    void remember(const AstUap *uap) { remembered_ = uap ? uap : &AST_UAP_STANDARD; }

private:
    void smart_decode(const uint8_t *data, size_t size);
    // Decodes with one candidate (nullptr: the CAT001 plot/track mix).
    void attempt(AstDataBlock *out, const uint8_t *data, size_t size, const AstUap *candidate);
    std::string explain(const AstDataBlock &block, const uint8_t *data, size_t size, const AstUap *candidate);

    const AstUap *uap_;
    const AstUap *remembered_ = &AST_UAP_STANDARD;
    std::unique_ptr<AstDataBlock> block_;
    std::unique_ptr<AstDataBlock> trial_;
    std::unique_ptr<FailedRecord> failed_;
    bool have_failed_ = false;
};

// The name of the profile that read a record of `category`: a variant
// profile whose table for the category is the standard one is shown as
// "standard" (the smart decoder keeps the last profile that worked, which
// is then also used for categories the variant does not change).
const char *profile_label(const AstUap &uap, uint32_t category);

// Silences the library log for its lifetime (restores the handler
// registered with set_library_log after). With no handler registered it
// does nothing, so decoding threads may use it at the same time.
class QuietLog {
public:
    QuietLog();
    ~QuietLog();
    QuietLog(const QuietLog &) = delete;
    QuietLog &operator=(const QuietLog &) = delete;

private:
    bool active_;
};

// Registers the library log handler (nullptr: off) and remembers it, so
// that the tool can silence the library for a moment and restore it.
void set_library_log(AstLogHandler handler);

}  // namespace kovrel_tool
