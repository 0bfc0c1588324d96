#include "session.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "block_runner.h"
#include "capture_reader.h"
#include "counted.h"
#include "blocks.h"
#include "output.h"
#include "output_html.h"
#include "parallel.h"

namespace kovrel_tool {
namespace {

constexpr size_t kHead = 64 * 1024;  // octets looked at to tell the kind of an input

bool is_terminal(std::FILE *file) {
    const int fd = file ? fileno(file) : -1;
    return fd >= 0 && isatty(fd);
}

}  // namespace

DecodeSession::DecodeSession(const SessionSettings &settings, std::FILE *out, std::FILE *messages)
    : settings_(settings), out_(out), messages_(messages), buffer_(out), terminal_(is_terminal(out)) {
    if (settings_.filter && settings_.filter->empty()) settings_.filter = nullptr;
    stats_.filtered = settings_.filter != nullptr;
    auto kept = [this](const AstDataBlock &block, BlockKeys &keys) { return kept_records(block, keys); };
    runner_ = std::make_unique<BlockRunner>(settings_, buffer_);
    runner_->kept_records = kept;
    runner_->after_record = [this] {
        record_written();
        return !output_failed_;
    };
    if (settings_.threads > 1) {
        BatchWriter writer;
        writer.write = [this](std::string_view records) {
            if (output_failed_) return;
            if (records.size() < 64 * 1024) {
                buffer_.put(records);
                if (terminal_ || buffer_.full()) flush_buffer();
                return;
            }
            flush_buffer();  // then written as it is, without another copy
            errno = 0;
            if (!output_failed_ && (std::fwrite(records.data(), 1, records.size(), out_) != records.size() ||
                                    std::ferror(out_))) {
                output_failed_ = true;
                output_errno_ = errno ? errno : EIO;
            }
        };
        writer.message = [this](const std::string &input, const std::string &text) { print_message(input, text); };
        writer.count = [this](const Stats &counts) { stats_.merge(counts); };
        parallel_ = std::make_unique<ParallelDecoder>(settings_, settings_.threads, std::move(writer), kept);
    }
    if (settings_.format == RecordFormat::Csv) {
        CsvWriter(buffer_, settings_.columns).header();
        if (terminal_) flush();
    }
}

DecodeSession::~DecodeSession() = default;

void DecodeSession::set_output(std::FILE *out, HtmlPage *page) {
    flush();
    out_ = out;
    page_ = page;
    buffer_.set_file(out);
    terminal_ = is_terminal(out);
}

void DecodeSession::flush() {
    if (parallel_) parallel_->drain();
    flush_buffer();
}

void DecodeSession::flush_buffer() {
    if (buffer_.size() == 0) return;
    if (output_failed_) {
        buffer_.clear();
        return;
    }
    if (!buffer_.flush()) {
        output_failed_ = true;
        output_errno_ = errno;
    }
}

void DecodeSession::message(const std::string &name, const std::string &text) {
    if (parallel_) parallel_->drain();
    print_message(name, text);
}

void DecodeSession::print_message(const std::string &name, const std::string &text) {
    flush_buffer();
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

void DecodeSession::record_written() {
    if (terminal_ || buffer_.full()) flush_buffer();
}

void DecodeSession::check_output() {
    if (!output_failed_ && std::ferror(out_)) {
        output_failed_ = true;
        output_errno_ = errno;
    }
}

bool DecodeSession::decode_file_stream(const std::string &path, std::FILE *file, uint64_t total) {
    const int fd = dup(fileno(file));
    std::fclose(file);
    if (fd < 0) {
        ++stats_.inputs;
        unreadable(path, std::string("cannot read: ") + std::strerror(errno));
        return false;
    }
    return decode_stream(path, fd, total);
}

bool DecodeSession::decode_file(const std::string &path) {
    block_no_ = 0;
    if (path == "-") return decode_stream("(standard input)", STDIN_FILENO);
    std::FILE *file = std::fopen(path.c_str(), "rb");
    if (!file) {
        ++stats_.inputs;
        unreadable(path, std::string("cannot open: ") + std::strerror(errno));
        return false;
    }
    // Pipes, devices and followed files are decoded as they are read.
    struct stat st;
    if (settings_.follow || fstat(fileno(file), &st) != 0 || !S_ISREG(st.st_mode) ||
        std::fseek(file, 0, SEEK_END) != 0) {
        return decode_file_stream(path, file);
    }
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
    if (kind == InputKind::Hex) {
        // Text is read line by line: memory holds no copy of it.
        --stats_.inputs;
        return decode_file_stream(path, file, total);
    }

    // A regular file is mapped rather than read: the blocks are decoded
    // where they lie, and memory holds no copy of the input. (A file cut
    // shorter by another program while it is decoded cannot be read that
    // way; recorders append, they do not cut.)
    if (fstat(fileno(file), &st) == 0 && S_ISREG(st.st_mode) && st.st_size > 0 &&
        static_cast<uint64_t>(st.st_size) == total) {
        const size_t size = static_cast<size_t>(st.st_size);
        // Smaller files are paged in at once (cheaper than a fault per
        // page); larger ones as they are read, so that decoding starts at once.
        constexpr size_t kPopulate = 256u << 20;
        void *map = mmap(nullptr, size, PROT_READ, MAP_PRIVATE | (size <= kPopulate ? MAP_POPULATE : 0),
                         fileno(file), 0);
        if (map != MAP_FAILED) {
            std::fclose(file);
            madvise(map, size, MADV_SEQUENTIAL);
            read_first_ = false;
            decode_octets(path, kind, static_cast<const uint8_t *>(map), size);
            read_first_ = true;
            munmap(map, size);
            return true;
        }
    }

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
        file, [&](const Chunk &chunk) { return decode_payload(name, chunk); }, capture, error,
        [this](uint64_t done) {
            if (on_progress) on_progress(done);
        });
    flush();
    if (!ok) {
        unreadable(name, "not a readable capture: " + error);
        return false;
    }
    stats_.add_capture(capture);
    if (!error.empty()) message(name, "capture ends early: " + error);
    for (const std::string &text : capture_messages(capture)) message(name, text);
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
    const Framing framing = framing_of(data, size < kHead ? size : kHead, size <= kHead);
    if (framing == Framing::None && read_first_) {
        Chunk chunk;
        chunk.data = data;
        chunk.size = size;
        decode_chunk(name, chunk, true);
    } else {
        ChunkStream pieces(framing, data, size);
        // A mapped file is decoded in windows of whole blocks, each given
        // back to the system once decoded: memory stays flat however
        // large the file.
        pieces.limit_chunks(16u << 20);
        decode_pieces(name, pieces, read_first_ ? nullptr : data);
    }
    flush();
}

bool DecodeSession::decode_chunk(const std::string &name, const Chunk &chunk, bool whole_input) {
    // Each input is decoded as if it were the only one: smart decoding
    // starts without a remembered profile, CAT240 without a video header.
    bool fresh = block_no_ == 0;
    const bool parallel = parallel_ && !page_;
    if (fresh && !parallel) {
        runner_->decoder().remember(nullptr);
        runner_->video = VideoMemory{};
        runner_->video.restore();
    }
    runner_->on_message = [&](const std::string &text) { message(name, text); };
    runner_->on_record = nullptr;
    if (page_)
        runner_->on_record = [this](const RecordView &view) {
            page_->record(view);
            check_output();
            return !output_failed_;
        };
    for (const BlockSlice &slice : split_blocks(chunk)) {
        if (output_failed_) return false;
        BlockTask task;
        task.number = ++block_no_;
        task.slice = slice;
        task.time = chunk.time;
        task.src = chunk.src;
        task.dst = chunk.dst;
        task.received = chunk.received;
        // Offsets are in the input; a streamed chunk starts further on.
        task.rest = chunk.size - (slice.where.offset - chunk.where.offset);
        if (whole_input && on_progress && chunk.size > 0)  // decoding is the second half, or all of it
            on_progress(read_first_ ? total_ / 2 + static_cast<uint64_t>(static_cast<double>(total_) / 2 *
                                                                         static_cast<double>(slice.where.offset) /
                                                                         static_cast<double>(chunk.size))
                                    : static_cast<uint64_t>(static_cast<double>(total_) *
                                                            static_cast<double>(slice.where.offset) /
                                                            static_cast<double>(chunk.size)));
        if (parallel)
            parallel_->add(name, task, fresh);
        else
            runner_->run(name, task, stats_);
        fresh = false;
    }
    return !output_failed_;
}

uint64_t DecodeSession::kept_records(const AstDataBlock &block) const {
    BlockKeys keys;
    keys.start(block);
    return kept_records(block, keys);
}

uint64_t DecodeSession::kept_records(const AstDataBlock &block, BlockKeys &keys) const {
    if (!settings_.filter) return ~uint64_t{0};
    uint64_t kept = 0;
    for (uint64_t i = 0; i < block.record_count && i < 64; ++i)
        if (settings_.filter->matches(block.records[i], keys.records[i])) kept |= uint64_t{1} << i;
    return kept;
}

}  // namespace kovrel_tool
