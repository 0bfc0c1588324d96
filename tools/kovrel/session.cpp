#include "session.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <vector>

#include "blocks.h"
#include "output.h"
#include "output_html.h"

namespace kovrel_tool {
namespace {

constexpr size_t kHead = 64 * 1024;  // octets looked at to tell the kind of an input

std::string cat_text(const uint8_t *data, size_t size) {
    if (size == 0) return "";
    char buf[8];
    std::snprintf(buf, sizeof buf, "CAT%03u", data[0]);
    return buf;
}

}  // namespace

DecodeSession::DecodeSession(const SessionSettings &settings, std::FILE *out, std::FILE *messages)
    : settings_(settings), out_(out), messages_(messages), decoder_(settings.uap) {}

void DecodeSession::set_output(std::FILE *out, HtmlPage *page) {
    out_ = out;
    page_ = page;
}

void DecodeSession::message(const std::string &name, const std::string &text) {
    if (before_message) before_message();
    std::fprintf(messages_, "kovrel: %s: %s\n", name.c_str(), text.c_str());
    std::fflush(messages_);
    if (page_ && !output_failed_) {
        page_->problem(text);
        check_output();
    }
}

void DecodeSession::unreadable(const std::string &name, const std::string &why) {
    message(name, why);
    ++stats_.unreadable;
}

void DecodeSession::write_line(const std::string &line) {
    if (output_failed_) return;
    std::fputs(line.c_str(), out_);
    std::fputc('\n', out_);
    check_output();
}

void DecodeSession::check_output() {
    if (!output_failed_ && std::ferror(out_)) {
        output_failed_ = true;
        output_errno_ = errno;
    }
}

bool DecodeSession::decode_stream(const std::string &name, std::FILE *file) {
    std::vector<uint8_t> data;
    std::string error;
    const bool ok = read_stream(file, data, error);
    if (file != stdin) std::fclose(file);
    if (!ok) {
        ++stats_.inputs;
        unreadable(name, "cannot read: " + error);
        return false;
    }
    return decode_memory(name, data.data(), data.size());
}

bool DecodeSession::decode_file(const std::string &path) {
    block_no_ = 0;
    if (path == "-") return decode_stream("(standard input)", stdin);
    std::FILE *file = std::fopen(path.c_str(), "rb");
    if (!file) {
        ++stats_.inputs;
        unreadable(path, std::string("cannot open: ") + std::strerror(errno));
        return false;
    }
    // Pipes and other streams that cannot seek are read whole first.
    if (std::fseek(file, 0, SEEK_END) != 0) return decode_stream(path, file);
    ++stats_.inputs;
    const long end = std::ftell(file);
    const uint64_t total = end > 0 ? static_cast<uint64_t>(end) : 0;
    std::vector<uint8_t> head(kHead);
    size_t n = 0;
    if (std::fseek(file, 0, SEEK_SET) == 0) n = std::fread(head.data(), 1, head.size(), file);
    if (std::ferror(file) || std::fseek(file, 0, SEEK_SET) != 0) {
        unreadable(path, std::string("cannot read: ") + std::strerror(errno));
        std::fclose(file);
        return false;
    }
    total_ = total;
    if (on_start) on_start(path, total);
    if (n == 0) {
        std::fclose(file);
        message(path, "empty input");
        return true;
    }
    const InputKind kind = detect_input(head.data(), n);
    if (kind == InputKind::Pcap || kind == InputKind::Pcapng) return decode_capture(path, file);

    std::vector<uint8_t> data;
    std::string error;
    const bool ok = read_stream(file, data, error, [this](uint64_t done) {
        if (on_progress) on_progress(done / 2);  // reading is the first half
    });
    std::fclose(file);
    if (!ok) {
        unreadable(path, "cannot read: " + error);
        return false;
    }
    decode_octets(path, kind, data.data(), data.size());
    return true;
}

bool DecodeSession::decode_memory(const std::string &name, const uint8_t *data, size_t size) {
    ++stats_.inputs;
    block_no_ = 0;
    total_ = size;
    if (on_start) on_start(name, size);
    if (size == 0) {
        message(name, "empty input");
        return true;
    }
    const InputKind kind = detect_input(data, size < kHead ? size : kHead);
    if (kind == InputKind::Pcap || kind == InputKind::Pcapng) {
        // libpcap reads streams only: hand it the octets as one.
        std::FILE *file = fmemopen(const_cast<uint8_t *>(data), size, "rb");
        if (!file) {
            unreadable(name, std::string("cannot read: ") + std::strerror(errno));
            return false;
        }
        return decode_capture(name, file);
    }
    decode_octets(name, kind, data, size);
    return true;
}

bool DecodeSession::decode_capture(const std::string &name, std::FILE *file) {
    CaptureStats capture;
    std::string error;
    const bool ok = read_capture(
        file, [&](const Chunk &chunk) { return decode_chunk(name, chunk, false); }, capture, error,
        [this](uint64_t done) {
            if (on_progress) on_progress(done);
        });
    if (!ok) {
        unreadable(name, "not a readable capture: " + error);
        return false;
    }
    stats_.add_capture(capture);
    if (!error.empty()) message(name, "capture ends early: " + error);
    if (capture.fragments)
        message(name, std::to_string(capture.fragments) + " IP fragments skipped (fragments are not reassembled)");
    if (capture.truncated)
        message(name, std::to_string(capture.truncated) + " packets skipped: cut short by the capture or malformed");
    if (capture.udp == 0 && capture.packets > 0) message(name, "no UDP datagram in the capture");
    return true;
}

void DecodeSession::decode_octets(const std::string &name, InputKind kind, const uint8_t *data, size_t size) {
    std::vector<uint8_t> parsed;
    if (kind == InputKind::Hex) {
        std::string error;
        if (!parse_hex(std::string_view(reinterpret_cast<const char *>(data), size), parsed, error))
            message(name, "hexadecimal text stops at " + error + "; decoding the octets before it");
        data = parsed.data();
        size = parsed.size();
    }
    Chunk chunk;
    chunk.data = data;
    chunk.size = size;
    decode_chunk(name, chunk, true);
}

bool DecodeSession::decode_chunk(const std::string &name, const Chunk &chunk, bool whole_input) {
    for (const BlockSlice &slice : split_blocks(chunk)) {
        if (output_failed_) return false;
        const uint64_t number = ++block_no_;
        if (whole_input && on_progress && chunk.size > 0)  // decoding is the second half
            on_progress(total_ / 2 + static_cast<uint64_t>(static_cast<double>(total_) / 2 *
                                                            static_cast<double>(slice.where.offset) /
                                                            static_cast<double>(chunk.size)));
        const std::string at = "block " + std::to_string(number) + " at " + format_location(slice.where);
        switch (slice.problem) {
        case SliceProblem::ShortHeader:
            message(name, at + ": " + std::to_string(slice.size) + " octets left, too few for a block header");
            stats_.count_unusable(-1, slice.size);
            break;
        case SliceProblem::LengthTooSmall:
            message(name, at + " (" + cat_text(slice.data, slice.size) + "): LEN " + std::to_string(slice.len) +
                              " is below 3");
            stats_.count_unusable(slice.data[0], slice.size);
            break;
        case SliceProblem::None:
        case SliceProblem::LengthTooLarge: {
            const BlockOutcome outcome = decoder_.decode(slice.data, slice.size);
            stats_.count_block(*outcome.block, slice.data[0], slice.size, outcome.valid);
            if (!outcome.valid)
                message(name, at + " (" + cat_text(slice.data, slice.size) + ", LEN " + std::to_string(slice.len) +
                                  "): " + outcome.reason);
            emit(name, number, chunk, slice.where, outcome);
            break;
        }
        }
        if (slice.problem == SliceProblem::LengthTooSmall || slice.problem == SliceProblem::LengthTooLarge) {
            const uint64_t rest = chunk.size - slice.where.offset;
            message(name, "the next block cannot be found; " + std::to_string(rest) + " octets from " +
                              format_location(slice.where) + " on are skipped");
        }
    }
    return !output_failed_;
}

void DecodeSession::emit(const std::string &name, uint64_t block, const Chunk &chunk, const Location &where,
                         const BlockOutcome &outcome) {
    const AstDataBlock &b = *outcome.block;
    RecordView view;
    view.input = name;
    view.block = block;
    view.where = where;
    view.time = chunk.time;
    view.block_valid = outcome.valid;
    auto one = [&](const AstDataRecord &record, size_t number) {
        if (output_failed_) return;
        view.record = &record;
        view.number = number;
        if (page_) {
            page_->record(view);
            check_output();
            return;
        }
        if (settings_.json) {
            write_line(json_line(record_json(view)));
            return;
        }
        write_line(record_line(view));
        if (settings_.items)
            for (uint64_t i = 0; i < record.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i)
                write_line(item_line(record.items[i]));
    };
    for (uint64_t i = 0; i < b.record_count && i < AST_DATABLOCK_MAX_RECORDS; ++i)
        one(b.records[i], static_cast<size_t>(i) + 1);
    if (outcome.failed) one(outcome.failed->record, outcome.failed->index + 1);
}

}  // namespace kovrel_tool
