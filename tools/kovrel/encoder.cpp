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

// Why the library refused a record: the first item it cannot write.
std::string refusal(const RecordRequest &r) {
    uint8_t scratch[256];
    for (uint64_t i = 0; i < r.input.item_count; ++i) {
        AstDataItem item;
        ast_dataitem_encode(&item, scratch, sizeof scratch, &r.input.items[i]);
        if (!item.valid) {
            char id[16];
            ast_dataitem_type_to_str(id, sizeof id, r.input.items[i].id);
            return std::string("the library cannot encode ") + id;
        }
    }
    return "the library cannot encode the record";
}

// The text of a parse error without the library's "[json.exception...] " prefix.
std::string parse_error_text(const char *what) {
    std::string s = what;
    const size_t close = s.find("] ");
    return s[0] == '[' && close != std::string::npos ? s.substr(close + 2) : s;
}

class BlockWriter {
public:
    BlockWriter(std::FILE *out, std::FILE *messages, const std::string &name, size_t block_records,
                EncodeCounts &counts)
        : out_(out), messages_(messages), name_(name), limit_(block_records), counts_(counts),
          input_(std::make_unique<AstDataBlockInput>()), block_(std::make_unique<AstDataBlock>()),
          buffer_(AST_DATABLOCK_MAX_LENGTH) {}

    // Takes a record whose encoded length is `length`.
    void add(std::unique_ptr<RecordRequest> record, uint64_t length) {
        if (!pending_.empty() && (pending_.front()->input.category != record->input.category ||
                                  pending_.size() == limit_ || 3 + octets_ + length > AST_DATABLOCK_MAX_LENGTH))
            flush();
        octets_ += length;
        pending_.push_back(std::move(record));
    }

    void flush() {
        if (pending_.empty() || counts_.output_failed) return;
        AstDataBlockInput &in = *input_;
        in = {};
        in.category = pending_.front()->input.category;
        in.uap = pending_.front()->input.uap;
        for (const auto &r : pending_) in.records[in.record_count++] = r->input;
        ast_datablock_encode(block_.get(), buffer_.data(), buffer_.size(), &in);
        // Each record was encoded alone before it came here and the block
        // keeps to the limits: a refusal here is the library's.
        if (!block_->valid) {
            std::fprintf(messages_, "kovrel: %s: the library cannot encode a block of %zu records; they are lost\n",
                         name_.c_str(), pending_.size());
        } else {
            if (std::fwrite(block_->data, 1, block_->length, out_) != block_->length || std::ferror(out_)) {
                counts_.output_failed = true;
                counts_.output_errno = errno ? errno : EIO;
            } else {
                counts_.records += pending_.size();
                ++counts_.blocks;
            }
        }
        pending_.clear();
        octets_ = 0;
    }

private:
    std::FILE *out_;
    std::FILE *messages_;
    const std::string &name_;
    size_t limit_;
    EncodeCounts &counts_;
    std::unique_ptr<AstDataBlockInput> input_;
    std::unique_ptr<AstDataBlock> block_;
    std::vector<uint8_t> buffer_;
    std::vector<std::unique_ptr<RecordRequest>> pending_;
    uint64_t octets_ = 0;
};

}  // namespace

EncodeCounts encode_lines(std::FILE *in, const std::string &name, std::FILE *out, std::FILE *messages,
                          size_t block_records) {
    EncodeCounts counts;
    if (block_records < 1 || block_records > AST_DATABLOCK_MAX_RECORDS) block_records = AST_DATABLOCK_MAX_RECORDS;
    BlockWriter writer(out, messages, name, block_records, counts);
    auto record = std::make_unique<AstDataRecord>();
    std::vector<uint8_t> scratch(AST_DATABLOCK_MAX_LENGTH);
    char *line = nullptr;
    size_t capacity = 0;
    ssize_t n;
    while (!counts.output_failed && (n = getline(&line, &capacity, in)) >= 0) {
        ++counts.lines;
        const std::string text(line, static_cast<size_t>(n));
        if (text.find_first_not_of(" \t\r\n") == std::string::npos) continue;
        std::string error;
        auto request = std::make_unique<RecordRequest>();
        try {
            if (record_from_json(nlohmann::json::parse(text), *request, error)) {
                ast_datarecord_encode(record.get(), scratch.data(), scratch.size(), &request->input);
                if (record->valid)
                    writer.add(std::move(request), record->length);
                else
                    error = refusal(*request);
            }
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
