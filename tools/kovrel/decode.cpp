#include "decode.h"

#include <cstdio>

#include <array>
#include <bitset>
#include <utility>

#include "counted.h"
#include "profiles.h"

namespace kovrel_tool {
namespace {

AstLogHandler g_handler = nullptr;

// The profiles in the order the smart decoder tries them.
const AstUap *const kCandidates[] = {
    &AST_UAP_STANDARD,      &AST_UAP_CAT001_PLOT, &AST_UAP_CAT021_VER023, &AST_UAP_CAT021_VER026,
    &AST_UAP_CAT021_VER21,  &AST_UAP_CAT021_VER27, &AST_UAP_ASR10SS,      &AST_UAP_ASR10SS_MK2,
    &AST_UAP_THALES,        &AST_UAP_MANAGAIR,
};

uint32_t block_len(const uint8_t *data) { return static_cast<uint32_t>(data[1]) << 8 | data[2]; }

// Where the records of a (partly) decoded block end.
uint64_t records_end(const AstDataBlock &block) {
    uint64_t p = 3;
    for (uint64_t i = 0; i < block.record_count; ++i) p += block.records[i].length;
    return p;
}

std::string id_text(AstItemId id) {
    char buf[16];
    ast_dataitem_type_to_str(buf, sizeof buf, id);
    return buf;
}

std::string header_problem(const uint8_t *data, size_t size) {
    if (!data || size < 3) return "only " + counted(size, "octet") + ", a block header takes 3";
    const uint32_t len = block_len(data);
    if (len < 3) return "LEN " + std::to_string(len) + " is below 3";
    if (len > size) return "LEN " + std::to_string(len) + " exceeds the " + counted(size, "octet") + " available";
    return "";
}

// The profile the mixed CAT001 decoding reads a record with: the plot
// profile when TYP (first bit of I001/020) is 0, the standard one when 1.
const AstUap *mix_profile(const uint8_t *rec, size_t left, std::string &why) {
    AstFspec fspec;
    ast_fspec_decode(&fspec, rec, left);
    if (!fspec.valid) return &AST_UAP_STANDARD;  // the record decode names the FSPEC problem
    if (!ast_fspec_is_set(&fspec, 2)) {
        why = "no I001/020 (FRN 2) to tell a plot from a track";
        return nullptr;
    }
    const size_t at = fspec.length + 2;
    if (at >= left) {
        why = "I001/020 lies past the end of the block";
        return nullptr;
    }
    return (rec[at] & 0x80) ? &AST_UAP_STANDARD : &AST_UAP_CAT001_PLOT;
}

}  // namespace

// Probing a bad block decodes it again and again; the first decode has
// already logged.
QuietLog::QuietLog() : active_(g_handler != nullptr) {
    if (active_) ast_log_handler_reg(nullptr);
}

QuietLog::~QuietLog() {
    if (active_) ast_log_handler_reg(g_handler);
}

void set_library_log(AstLogHandler handler) {
    g_handler = handler;
    ast_log_handler_reg(handler);
}

namespace {

// Whether a profile's table of a category is the standard one.
bool same_as_standard(const AstUap &uap, uint32_t category) {
    QuietLog quiet;
    const uint32_t max = ast_uap_max_frn(&uap, category);
    bool same = max == ast_uap_max_frn(&AST_UAP_STANDARD, category);
    for (uint32_t frn = 1; same && frn <= max; ++frn)
        same = ast_uap_get_dataitem(&uap, category, frn) == ast_uap_get_dataitem(&AST_UAP_STANDARD, category, frn);
    return same;
}

// For each exported profile, the categories whose table is the standard
// one: built once, on first use (the initialisation of a static is
// thread-safe), and only read afterwards.
struct StandardTables {
    std::array<std::bitset<256>, std::size(kCandidates)> same;
    StandardTables() {
        for (size_t p = 0; p < std::size(kCandidates); ++p)
            for (uint32_t category = 0; category < 256; ++category)
                same[p][category] = same_as_standard(*kCandidates[p], category);
    }
};

}  // namespace

const char *profile_label(const AstUap &uap, uint32_t category) {
    const char *name = profile_name(uap);
    if (uap.get_dataitem == AST_UAP_STANDARD.get_dataitem) return name;
    static const StandardTables tables;
    for (size_t p = 0; p < std::size(kCandidates); ++p)
        if (kCandidates[p]->get_dataitem == uap.get_dataitem)
            return category < 256 && tables.same[p][category] ? "standard" : name;
    return same_as_standard(uap, category) ? "standard" : name;  // a profile of the caller's own
}

BlockDecoder::BlockDecoder(const AstUap *uap)
    : uap_(uap),
      block_(std::make_unique<AstDataBlock>()),
      trial_(std::make_unique<AstDataBlock>()),
      failed_(std::make_unique<FailedRecord>()) {}

BlockDecoder::~BlockDecoder() = default;

void BlockDecoder::attempt(AstDataBlock *out, const uint8_t *data, size_t size, const AstUap *candidate) {
    if (candidate)
        ast_datablock_decode_into(out, data, size, candidate);
    else
        ast_datablock_001_mixuap_decode_into(out, data, size);
}

// The library's smart decoder, step for step, with the remembered profile
// kept here instead of in a thread_local: the tool decides when it starts
// afresh (each input) and carries it from one decoding thread to the next.
// (The library starts without a profile and takes the standard one at the
// first block it reads by profile; starting with the standard one is the
// same.)
void BlockDecoder::smart_decode(const uint8_t *data, size_t size) {
    AstDataBlock *out = block_.get();
    if (!data || size < 3) {
        ast_datablock_decode_into(out, data, size, &AST_UAP_STANDARD);
        return;
    }
    if (data[0] == 1) {
        ast_datablock_001_mixuap_decode_into(out, data, size);
        if (out->valid == 1) return;
    }
    ast_datablock_decode_into(out, data, size, remembered_);
    if (out->valid == 1) return;
    // Every candidate is tried in turn, the remembered one again unless it
    // was the one tried just before; the last tried is remembered, even
    // when none reads the block.
    const AstUap *previous = remembered_;
    for (const AstUap *candidate : kCandidates) {
        if (candidate->get_dataitem == previous->get_dataitem) continue;
        remembered_ = candidate;
        previous = candidate;
        ast_datablock_decode_into(out, data, size, candidate);
        if (out->valid == 1) return;
    }
}

BlockOutcome BlockDecoder::decode(const uint8_t *data, size_t size) {
    have_failed_ = false;
    BlockOutcome out;
    if (uap_)
        ast_datablock_decode_into(block_.get(), data, size, uap_);
    else
        smart_decode(data, size);
    out.block = block_.get();
    if (block_->valid) {
        out.valid = true;
        return out;
    }
    out.reason = header_problem(data, size);
    if (!out.reason.empty()) return out;

    QuietLog quiet;
    if (ast_uap_max_frn(&AST_UAP_STANDARD, data[0]) == 0) {
        char cat[8];
        std::snprintf(cat, sizeof cat, "%03u", data[0]);
        out.reason = std::string("category ") + cat + " is not supported";
        return out;
    }
    if (uap_) {
        out.reason = explain(*block_, data, size, uap_);
    } else {
        // The smart decoder hands back its last attempt; the attempt that
        // read furthest tells more about what is wrong.
        const AstUap *best = nullptr;
        bool have_best = false;
        uint64_t best_end = 0;
        auto consider = [&](const AstUap *candidate) {
            attempt(trial_.get(), data, size, candidate);
            const uint64_t end = records_end(*trial_);
            if (!have_best || end > best_end) {
                std::swap(block_, trial_);
                best = candidate;
                best_end = end;
                have_best = true;
            }
        };
        if (data[0] == 1) consider(nullptr);
        for (const AstUap *c : kCandidates) consider(c);
        const std::string label = best ? profile_name(*best) : "cat001 plot/track mix";
        out.reason = "no profile reads the whole block; furthest with " + label + ": " +
                     explain(*block_, data, size, best);
        out.block = block_.get();
    }
    out.failed = have_failed_ ? failed_.get() : nullptr;
    return out;
}

std::string BlockDecoder::explain(const AstDataBlock &block, const uint8_t *data, size_t size,
                                  const AstUap *candidate) {
    const uint32_t len = block_len(data);
    const uint64_t end = records_end(block);
    const uint64_t count = block.record_count;
    if (count >= AST_DATABLOCK_MAX_RECORDS && end < len)
        return "more than " + std::to_string(AST_DATABLOCK_MAX_RECORDS) + " records";
    if (end > len) {
        const AstDataRecord &last = block.records[count - 1];
        return "record " + std::to_string(count) + " at octet " + std::to_string(end - last.length) +
               " ends at octet " + std::to_string(end) + ", past LEN " + std::to_string(len);
    }
    if (end == len) return "the records end at LEN, yet the block was refused";

    // The block stopped at the record that starts where the others end.
    FailedRecord &f = *failed_;
    f = FailedRecord{};
    f.index = static_cast<size_t>(count);
    f.offset = end;
    have_failed_ = true;
    const uint8_t *rec = data + end;
    const size_t left = size - static_cast<size_t>(end);
    const std::string where = "record " + std::to_string(count + 1) + " at octet " + std::to_string(end);

    const AstUap *uap = candidate;
    if (!uap) {
        std::string why;
        uap = mix_profile(rec, left, why);
        if (!uap) {
            f.record.data = rec;
            f.record.category = block.category;
            return where + ": " + why;
        }
    }
    ast_datarecord_decode(&f.record, rec, left, block.category, uap);
    const AstDataRecord &r = f.record;
    if (!r.fspec.valid)
        return where + (r.fspec.length == 0 ? ": FSPEC runs past LEN" : ": FSPEC announces no item");
    if (r.valid) return where + ": read whole on its own, yet the block stopped there";
    if (r.item_count >= AST_DATARECORD_MAX_ITEMS)
        return where + ": more than " + std::to_string(AST_DATARECORD_MAX_ITEMS) + " items";

    // The FRN of the item that failed: the set FRN after the items read.
    uint32_t frn = 0;
    uint64_t seen = 0;
    for (uint32_t n = 1; n <= r.fspec.frn_count; ++n) {
        if (!ast_fspec_is_set(&r.fspec, n)) continue;
        if (seen == r.item_count) {
            frn = n;
            break;
        }
        ++seen;
    }
    uint64_t pos = r.fspec.length;
    for (uint64_t i = 0; i < r.item_count; ++i) pos += r.items[i].length;
    const std::string after =
        r.item_count ? "after " + id_text(r.items[r.item_count - 1].id) + ", " : "after the FSPEC, ";
    if (frn == 0 || pos > left) return where + ": cannot be read";
    const std::string frn_text = "FRN " + std::to_string(frn);
    const AstItemId id = ast_uap_get_dataitem(uap, block.category, frn);
    if (id == 0) return where + ": " + after + frn_text + " is spare or undefined in profile " + profile_name(*uap);
    AstDataItemFuncs funcs;
    ast_dataitem_get_func(&funcs, id);
    const std::string item = id_text(id) + " (" + frn_text + ")";
    if (!funcs.get_size) return where + ": " + after + item + " is not known to the library";
    const size_t rest = left - static_cast<size_t>(pos);
    const uint64_t need = funcs.get_size(rec + pos, rest);
    if (need == 0)
        return where + ": " + after + item + " cannot be delimited in the " + counted(rest, "octet") + " left";
    if (need > rest)
        return where + ": " + after + item + " claims " + counted(need, "octet") + ", " + std::to_string(rest) +
               " left";
    return where + ": " + after + item + " could not be read";
}

}  // namespace kovrel_tool
