#include "stream.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kovrel_py {
namespace {

using kovrel_tool::InputKind;

constexpr size_t kHead = 64 * 1024;  // octets looked at to tell the kind of an input

std::string cat_text(const uint8_t *data, size_t size) {
    if (size == 0) return "";
    char buf[8];
    std::snprintf(buf, sizeof buf, "CAT%03u", data[0]);
    return buf;
}

}  // namespace

RecordStream::RecordStream(const AstUap *uap) : decoder_(uap) {}

RecordStream::~RecordStream() { close(); }

void RecordStream::close() {
    capture_.close();
    capturing_ = false;
    pieces_.reset();
    octets_ = nullptr;
    octets_size_ = 0;
    if (map_) munmap(map_, map_size_);
    map_ = nullptr;
    owned_.clear();
    chunk_left_ = false;
}

bool RecordStream::set_framing(const std::string &name) {
    if (name == "auto") {
        framing_auto_ = true;
        return true;
    }
    if (!kovrel_tool::parse_framing(name, framing_)) return false;
    framing_auto_ = false;
    return true;
}

kovrel_tool::Framing RecordStream::framing_of(const uint8_t *data, size_t size, bool at_end, bool payload) const {
    if (!framing_auto_) return framing_;
    // Most payloads are plain blocks: only the others are looked at closer.
    if (payload && kovrel_tool::blocks_fill(data, size)) return kovrel_tool::Framing::None;
    return kovrel_tool::detect_framing(data, size, at_end);
}

uint64_t RecordStream::octets_done() const {
    if (capturing_ || !octets_) return 0;
    if (chunk_left_) return static_cast<uint64_t>(chunk_.data - octets_) + pos_;
    return pieces_ ? pieces_->position() : octets_size_;
}

void RecordStream::message(const std::string &text) { messages_.push_back(name_ + ": " + text); }

std::vector<std::string> RecordStream::take_messages() {
    std::vector<std::string> out;
    out.swap(messages_);
    return out;
}

bool RecordStream::open_path(const std::string &path, std::string &error) {
    std::FILE *file = std::fopen(path.c_str(), "rb");
    if (!file) {
        error = path + ": cannot open: " + std::strerror(errno);
        return false;
    }
    return open_file(path, file, 0, error);
}

bool RecordStream::open_fd(const std::string &name, int fd, uint64_t position, std::string &error) {
    std::FILE *file = fdopen(fd, "rb");
    if (!file) {
        error = name + ": cannot open: " + std::strerror(errno);
        ::close(fd);
        return false;
    }
    return open_file(name, file, position, error);
}

bool RecordStream::open_file(const std::string &name, std::FILE *file, uint64_t position, std::string &error) {
    close();
    name_ = name;
    block_no_ = 0;
    const auto fail = [&](const char *what) {
        error = name + ": " + what + std::strerror(errno);
        std::fclose(file);
        return false;
    };
    const off_t start = static_cast<off_t>(position);
    if (fseeko(file, 0, SEEK_END) != 0) {
        // A pipe: read whole, as the tool does.
        std::string why;
        std::vector<uint8_t> data;
        const bool ok = kovrel_tool::read_stream(file, data, why);
        std::fclose(file);
        if (!ok) {
            error = name + ": cannot read: " + why;
            return false;
        }
        owned_ = std::move(data);
        if (owned_.empty()) {
            message("empty input");
            return true;
        }
        const InputKind kind = kovrel_tool::detect_input(owned_.data(), owned_.size() < kHead ? owned_.size() : kHead);
        if (kind == InputKind::Pcap || kind == InputKind::Pcapng) {
            std::FILE *mem = fmemopen(owned_.data(), owned_.size(), "rb");
            if (!mem) {
                error = name + ": cannot read: " + std::strerror(errno);
                return false;
            }
            return open_capture(mem, error);
        }
        start_octets(kind, owned_.data(), owned_.size());
        return true;
    }
    const off_t end = ftello(file);
    if (end < 0) return fail("cannot read: ");
    if (start > end) {
        error = name + ": position beyond the end of the file";
        std::fclose(file);
        return false;
    }
    std::vector<uint8_t> head(kHead);
    size_t n = 0;
    if (fseeko(file, start, SEEK_SET) == 0) n = std::fread(head.data(), 1, head.size(), file);
    if (std::ferror(file) || fseeko(file, start, SEEK_SET) != 0) return fail("cannot read: ");
    if (n == 0) {
        std::fclose(file);
        message("empty input");
        return true;
    }
    const InputKind kind = kovrel_tool::detect_input(head.data(), n);
    if (kind == InputKind::Pcap || kind == InputKind::Pcapng) return open_capture(file, error);

    // Regular files are mapped: the blocks are decoded where they lie.
    struct stat st;
    const size_t size = static_cast<size_t>(end);
    if (fstat(fileno(file), &st) == 0 && S_ISREG(st.st_mode) && st.st_size == end && size > 0) {
        void *map = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fileno(file), 0);
        if (map != MAP_FAILED) {
            std::fclose(file);
            madvise(map, size, MADV_SEQUENTIAL);
            map_ = map;
            map_size_ = size;
            released_ = 0;
            start_octets(kind, static_cast<const uint8_t *>(map) + start, size - static_cast<size_t>(start));
            return true;
        }
    }
    std::vector<uint8_t> data;
    std::string why;
    const bool ok = kovrel_tool::read_stream(file, data, why);
    std::fclose(file);
    if (!ok) {
        error = name + ": cannot read: " + why;
        return false;
    }
    owned_ = std::move(data);
    start_octets(kind, owned_.data(), owned_.size());
    return true;
}

bool RecordStream::open_memory(const std::string &name, const uint8_t *data, size_t size, std::string &error) {
    close();
    name_ = name;
    block_no_ = 0;
    if (size == 0) {
        message("empty input");
        return true;
    }
    const InputKind kind = kovrel_tool::detect_input(data, size < kHead ? size : kHead);
    if (kind == InputKind::Pcap || kind == InputKind::Pcapng) {
        std::FILE *file = fmemopen(const_cast<uint8_t *>(data), size, "rb");
        if (!file) {
            error = name + ": cannot read: " + std::strerror(errno);
            return false;
        }
        return open_capture(file, error);
    }
    start_octets(kind, data, size);
    return true;
}

bool RecordStream::open_capture(std::FILE *file, std::string &error) {
    std::string why;
    if (!capture_.open(file, why)) {
        error = name_ + ": not a readable capture: " + why;
        return false;
    }
    if (!kovrel_tool::linktype_supported(capture_.linktype())) {
        error = name_ + ": not a readable capture: " + capture_.linktype_problem();
        capture_.close();
        return false;
    }
    capturing_ = true;
    chunk_left_ = false;
    return true;
}

void RecordStream::start_octets(InputKind kind, const uint8_t *data, size_t size) {
    if (kind == InputKind::Hex) {
        std::vector<uint8_t> parsed;
        std::string error;
        if (!kovrel_tool::parse_hex(std::string_view(reinterpret_cast<const char *>(data), size), parsed, error))
            message("hexadecimal text stops at " + error + "; decoding the octets before it");
        if (map_) munmap(map_, map_size_);
        map_ = nullptr;
        owned_ = std::move(parsed);
        data = owned_.data();
        size = owned_.size();
    }
    octets_ = data;
    octets_size_ = size;
    chunk_left_ = false;
    if (size == 0) return;
    pieces_ = std::make_unique<kovrel_tool::ChunkStream>(framing_of(data, size < kHead ? size : kHead, size <= kHead, false),
                                                         data, size);
    // Cutting the whole input at once would read every block header, and
    // so every page of a mapped file, before the first record: the input
    // is cut a window at a time.
    pieces_->limit_chunks(1u << 20);
}

void RecordStream::finish_capture() {
    if (!capture_.read_error().empty()) message("capture ends early: " + capture_.read_error());
    for (const std::string &text : kovrel_tool::capture_messages(capture_.stats())) message(text);
}

// The next chunk of blocks of the file or payload being cut; skipped
// octets are reported on the way.
bool RecordStream::next_piece() {
    kovrel_tool::Piece piece;
    while (pieces_ && pieces_->next(piece)) {
        if (piece.kind == kovrel_tool::Piece::Kind::Skipped) {
            message(std::to_string(piece.skipped) + " octets from " + kovrel_tool::format_location(piece.where) +
                    " on are skipped: " + piece.why);
            continue;
        }
        chunk_ = piece.chunk;
        if (capturing_) {
            chunk_.src = payload_.src;
            chunk_.dst = payload_.dst;
            chunk_.received = payload_.received;
        }
        pos_ = 0;
        chunk_left_ = chunk_.size > 0;
        if (chunk_left_) return true;
    }
    pieces_.reset();
    return false;
}

// The next chunk of blocks: of the file, or of the capture's UDP payloads.
bool RecordStream::next_chunk() {
    for (;;) {
        if (next_piece()) return true;
        if (!capturing_) return false;
        kovrel_tool::CapturedUdp udp;
        if (!capture_.next(udp)) {
            finish_capture();
            capturing_ = false;
            return false;
        }
        payload_ = udp.chunk();
        if (payload_.size == 0) continue;
        const kovrel_tool::Framing framing = framing_of(payload_.data, payload_.size, true, true);
        if (framing == kovrel_tool::Framing::None) {
            chunk_ = payload_;
            pos_ = 0;
            chunk_left_ = true;
            return true;
        }
        pieces_ = std::make_unique<kovrel_tool::ChunkStream>(framing, payload_.data, payload_.size, udp.packet,
                                                             payload_.time);
    }
}

// A mapped file's pages stay resident once read, and a long recording would
// end up whole in memory: the pages behind the block being decoded are
// given back every few megaoctets (no record points into them any more).
void RecordStream::release_behind() {
    if (!map_) return;
    constexpr size_t kStep = 8u << 20;
    const size_t done = static_cast<size_t>(chunk_.data - static_cast<const uint8_t *>(map_)) + pos_;
    if (done < released_ + kStep) return;
    const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    const size_t upto = done / page * page;
    madvise(static_cast<uint8_t *>(map_) + released_, upto - released_, MADV_DONTNEED);
    released_ = upto;
}

bool RecordStream::next_block(RecordSink &sink) {
    if (!chunk_left_ && !next_chunk()) return false;
    using kovrel_tool::SliceProblem;
    // One slice of the chunk, cut as split_blocks cuts them.
    kovrel_tool::BlockSlice s;
    s.where = chunk_.where;
    s.where.offset += pos_;
    s.data = chunk_.data + pos_;
    const size_t left = chunk_.size - pos_;
    if (left < 3) {
        s.size = left;
        s.problem = SliceProblem::ShortHeader;
    } else {
        s.len = static_cast<uint32_t>(s.data[1]) << 8 | s.data[2];
        s.size = left;
        if (s.len < 3)
            s.problem = SliceProblem::LengthTooSmall;
        else if (s.len > left)
            s.problem = SliceProblem::LengthTooLarge;
        else
            s.size = s.len;
    }
    if (s.problem == SliceProblem::None) {
        pos_ += s.size;
        chunk_left_ = pos_ < chunk_.size;
    } else {
        chunk_left_ = false;
    }
    release_behind();

    const uint64_t number = ++block_no_;
    const std::string at = "block " + std::to_string(number) + " at " + kovrel_tool::format_location(s.where);
    switch (s.problem) {
    case SliceProblem::ShortHeader:
        message(at + ": " + std::to_string(s.size) + " octets left, too few for a block header");
        break;
    case SliceProblem::LengthTooSmall:
        message(at + " (" + cat_text(s.data, s.size) + "): LEN " + std::to_string(s.len) + " is below 3");
        break;
    case SliceProblem::None:
    case SliceProblem::LengthTooLarge: {
        const kovrel_tool::BlockOutcome outcome = decoder_.decode(s.data, s.size);
        if (!outcome.valid)
            message(at + " (" + cat_text(s.data, s.size) + ", LEN " + std::to_string(s.len) + "): " + outcome.reason);
        const AstDataBlock &b = *outcome.block;
        kovrel_tool::RecordView view;
        view.input = name_;
        view.block = number;
        view.where = s.where;
        view.time = chunk_.time;
        view.src = chunk_.src;
        view.dst = chunk_.dst;
        view.block_valid = outcome.valid;
        kovrel_tool::BlockKeys keys;
        if (!filter_.empty()) keys.start(b);
        for (uint64_t i = 0; i < b.record_count && i < AST_DATABLOCK_MAX_RECORDS; ++i) {
            if (!filter_.empty() && !filter_.matches(b.records[i], keys.records[i])) continue;
            view.record = &b.records[i];
            view.number = static_cast<size_t>(i) + 1;
            sink.record(view);
        }
        if (outcome.failed && (filter_.empty() || filter_.matches(outcome.failed->record))) {
            view.record = &outcome.failed->record;
            view.number = outcome.failed->index + 1;
            sink.record(view);
        }
        break;
    }
    }
    if (s.problem == SliceProblem::LengthTooSmall || s.problem == SliceProblem::LengthTooLarge) {
        const uint64_t rest = chunk_.size - (s.where.offset - chunk_.where.offset);
        message("the next block cannot be found; " + std::to_string(rest) + " octets from " +
                kovrel_tool::format_location(s.where) + " on are skipped");
    }
    return true;
}

}  // namespace kovrel_py
