#include "encoder.h"

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <vector>

#include <kovrel/kovrel.h>
#include <nlohmann/json.hpp>

#include "encode_json.h"

namespace kovrel_tool {
namespace {

// The text of a parse error without the library's "[json.exception...] " prefix.
std::string parse_error_text(const char *what) {
    std::string s = what;
    const size_t close = s.find("] ");
    return s[0] == '[' && close != std::string::npos ? s.substr(close + 2) : s;
}

// The most octets of one record: a block of that record alone.
constexpr size_t kMaxRecord = AST_DATABLOCK_MAX_LENGTH - 3;

// Writes the record of `request` into `out`: the FSPEC, then the items in
// FRN order. False, with the reason in `error`, when the items do not make
// a record of the profile.
bool assemble_record(const RecordRequest &request, std::vector<uint8_t> &out, std::string &error,
                     AstDataRecord &check) {
    const uint32_t max = ast_uap_max_frn(&request.uap, request.category);
    std::vector<const ItemOctets *> order;
    uint8_t fspec[32] = {};  // 224 FRNs, more than any profile has
    size_t fspec_length = 0;
    for (uint32_t frn = 1; frn <= max; ++frn) {
        const AstItemId id = ast_uap_get_dataitem(&request.uap, request.category, frn);
        for (const ItemOctets &item : request.items) {
            if (id == 0 || item.id != id) continue;
            if (!ast_fspec_set(fspec, sizeof fspec, frn, true)) {
                error = "the FSPEC of the record is too long";
                return false;
            }
            fspec_length = (frn - 1) / 7 + 1;
            order.push_back(&item);
            break;
        }
    }
    if (order.size() != request.items.size() || order.empty()) {
        error = order.empty() ? "no item to write" : "an item is not in the profile";
        return false;
    }
    for (size_t i = 0; i + 1 < fspec_length; ++i) fspec[i] = static_cast<uint8_t>(fspec[i] | 0x01u);
    out.assign(fspec, fspec + fspec_length);
    for (const ItemOctets *item : order) out.insert(out.end(), item->octets.begin(), item->octets.end());
    if (out.size() > kMaxRecord) {
        error = "the record is longer than a block can hold";
        return false;
    }
    // Items the library encoded read back as what they are; a record that
    // does not is refused rather than written.
    ast_datarecord_decode(&check, out.data(), out.size(), request.category, &request.uap);
    if (check.valid == 1 && check.length == out.size() && check.item_count == order.size()) return true;
    error = "the library cannot read the record back";
    return false;
}

class BlockWriter {
public:
    BlockWriter(std::FILE *out, size_t block_records, EncodeCounts &counts)
        : out_(out), limit_(block_records), counts_(counts) {}

    // A block holds records of one category written with one profile: a
    // reader decodes the whole block with one profile.
    void add(uint32_t category, const AstUap &uap, std::vector<uint8_t> record) {
        const bool same_profile = uap.max_frn == uap_.max_frn && uap.get_dataitem == uap_.get_dataitem;
        if (records_ > 0 && (category_ != category || !same_profile || records_ == limit_ ||
                             block_.size() + record.size() > AST_DATABLOCK_MAX_LENGTH))
            flush();
        if (records_ == 0) {
            block_.assign(3, 0);
            block_[0] = static_cast<uint8_t>(category);
            category_ = category;
            uap_ = uap;
        }
        block_.insert(block_.end(), record.begin(), record.end());
        ++records_;
    }

    void flush() {
        if (records_ == 0 || counts_.output_failed) return;
        block_[1] = static_cast<uint8_t>(block_.size() >> 8);
        block_[2] = static_cast<uint8_t>(block_.size());
        if (std::fwrite(block_.data(), 1, block_.size(), out_) != block_.size() || std::ferror(out_)) {
            counts_.output_failed = true;
            counts_.output_errno = errno ? errno : EIO;
        } else {
            counts_.records += records_;
            ++counts_.blocks;
        }
        records_ = 0;
        block_.clear();
    }

private:
    std::FILE *out_;
    size_t limit_;
    EncodeCounts &counts_;
    std::vector<uint8_t> block_;
    uint32_t category_ = 0;
    AstUap uap_{};
    size_t records_ = 0;
};

}  // namespace

EncodeCounts encode_lines(std::FILE *in, const std::string &name, std::FILE *out, std::FILE *messages,
                          size_t block_records) {
    EncodeCounts counts;
    if (block_records < 1 || block_records > AST_DATABLOCK_MAX_RECORDS) block_records = AST_DATABLOCK_MAX_RECORDS;
    BlockWriter writer(out, block_records, counts);
    auto check = std::make_unique<AstDataRecord>();
    RecordRequest request;
    std::vector<uint8_t> record;
    char *line = nullptr;
    size_t capacity = 0;
    ssize_t n;
    while (!counts.output_failed && (n = getline(&line, &capacity, in)) >= 0) {
        ++counts.lines;
        const std::string text(line, static_cast<size_t>(n));
        if (text.find_first_not_of(" \t\r\n") == std::string::npos) continue;
        std::string error;
        try {
            if (record_from_json(nlohmann::json::parse(text), request, error) &&
                assemble_record(request, record, error, *check))
                writer.add(request.category, request.uap, std::move(record));
        } catch (const nlohmann::json::parse_error &e) {
            error = "not JSON: " + parse_error_text(e.what());
        }
        if (!error.empty()) {
            ++counts.bad;
            std::fprintf(messages, "kovrel: %s:%llu: %s\n", name.c_str(),
                         static_cast<unsigned long long>(counts.lines), error.c_str());
        }
    }
    std::free(line);
    writer.flush();
    return counts;
}

}  // namespace kovrel_tool
