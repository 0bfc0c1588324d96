#include "stream.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <pcap/pcap.h>

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
    if (pcap_) pcap_close(pcap_);
    pcap_ = nullptr;
    if (map_) munmap(map_, map_size_);
    map_ = nullptr;
    owned_.clear();
    chunk_left_ = false;
    capture_done_ = true;
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
    char errbuf[PCAP_ERRBUF_SIZE] = {0};
    pcap_ = pcap_fopen_offline_with_tstamp_precision(file, PCAP_TSTAMP_PRECISION_NANO, errbuf);
    if (!pcap_) {
        std::fclose(file);  // libpcap keeps the stream only on success
        error = name_ + ": not a readable capture: " + errbuf;
        return false;
    }
    capture_ = kovrel_tool::CaptureStats{};
    capture_.linktype = pcap_datalink(pcap_);
    if (!kovrel_tool::linktype_supported(capture_.linktype)) {
        const char *link = pcap_datalink_val_to_name(capture_.linktype);
        error = name_ + ": not a readable capture: link type " + std::string(link ? link : "unknown") + " (" +
                std::to_string(capture_.linktype) + ") is not supported";
        pcap_close(pcap_);
        pcap_ = nullptr;
        return false;
    }
    capture_done_ = false;
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
    chunk_ = kovrel_tool::Chunk{};
    chunk_.data = data;
    chunk_.size = size;
    pos_ = 0;
    chunk_left_ = size > 0;
}

void RecordStream::finish_capture() {
    capture_done_ = true;
    if (capture_.fragments)
        message(std::to_string(capture_.fragments) + " IP fragments skipped (fragments are not reassembled)");
    if (capture_.truncated)
        message(std::to_string(capture_.truncated) + " packets skipped: cut short by the capture or malformed");
    if (capture_.udp == 0 && capture_.packets > 0) message("no UDP datagram in the capture");
}

// The next UDP payload of a capture that holds octets.
bool RecordStream::next_chunk() {
    if (!pcap_ || capture_done_) return false;
    pcap_pkthdr *header = nullptr;
    const u_char *data = nullptr;
    int rc;
    while ((rc = pcap_next_ex(pcap_, &header, &data)) == 1) {
        ++capture_.packets;
        kovrel_tool::Payload payload;
        switch (kovrel_tool::udp_payload(capture_.linktype, data, header->caplen, payload)) {
        case kovrel_tool::FrameResult::Udp:
            ++capture_.udp;
            chunk_ = kovrel_tool::Chunk{};
            chunk_.where = kovrel_tool::Location{capture_.packets, 0};
            chunk_.data = payload.data;
            chunk_.size = payload.size;
            chunk_.time = static_cast<double>(header->ts.tv_sec) + static_cast<double>(header->ts.tv_usec) * 1e-9;
            chunk_.src = payload.src;
            chunk_.dst = payload.dst;
            pos_ = 0;
            chunk_left_ = payload.size > 0;
            if (chunk_left_) return true;
            break;
        case kovrel_tool::FrameResult::NotUdp: ++capture_.not_udp; break;
        case kovrel_tool::FrameResult::Fragment: ++capture_.fragments; break;
        case kovrel_tool::FrameResult::Truncated: ++capture_.truncated; break;
        }
    }
    if (rc == PCAP_ERROR) message(std::string("capture ends early: ") + pcap_geterr(pcap_));
    finish_capture();
    return false;
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
