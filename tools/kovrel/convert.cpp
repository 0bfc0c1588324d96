#include "convert.h"

#include <cerrno>
#include <cmath>
#include <cstring>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>

#include "blocks.h"
#include "capture_reader.h"
#include "counted.h"

namespace kovrel_tool {
namespace {

constexpr size_t kHead = 64 * 1024;  // octets looked at to tell the kind of an input
constexpr size_t kMaxBlock = AST_DATABLOCK_MAX_LENGTH;

std::string cat_text(uint32_t category) {
    char buf[8];
    std::snprintf(buf, sizeof buf, "CAT%03u", category);
    return buf;
}

std::string id_text(AstItemId id) {
    char buf[16];
    ast_dataitem_type_to_str(buf, sizeof buf, id);
    return buf;
}

bool in_profile(const AstUap &uap, uint32_t category, AstItemId id) {
    const uint32_t max = ast_uap_max_frn(&uap, category);
    for (uint32_t frn = 1; frn <= max; ++frn)
        if (ast_uap_get_dataitem(&uap, category, frn) == id) return true;
    return false;
}

struct Member {
    AstItemId id;
    const void *value;
    uint32_t valid;
};

// Why the members of a converted record make no record of the profile: the
// first member the profile has no place for, or whose encoder refuses it.
std::string explain(const Member *members, size_t count, uint32_t category, const AstUap &uap,
                    const char *profile) {
    bool any = false;
    uint8_t scratch[kMaxBlock];
    for (size_t i = 0; i < count; ++i) {
        const Member &m = members[i];
        if (m.valid != 1) continue;
        any = true;
        if (!in_profile(uap, category, m.id)) return id_text(m.id) + " has no place in a " + profile;
        const AstDataItemValue value{1, m.id, const_cast<void *>(m.value)};
        AstDataItem item;
        ast_dataitem_encode(&item, scratch, sizeof scratch, &value);
        if (item.valid != 1) return id_text(m.id) + " cannot be encoded from the converted values";
    }
    if (!any) return "none of its items has a " + cat_text(category) + " counterpart";
    return "the " + cat_text(category) + " record cannot be assembled";
}

}  // namespace

std::string stats_text(const ConvertCounts &c, bool capture_output) {
    char buf[1024];
    int n = std::snprintf(buf, sizeof buf,
                          "inputs:            %llu\n"
                          "blocks read:       %llu\n"
                          "blocks written:    %llu\n"
                          "records converted: %llu (CAT048 to CAT001: %llu, CAT034 to CAT002: %llu)\n"
                          "records passed:    %llu\n"
                          "records dropped:   %llu\n"
                          "records failed:    %llu\n",
                          static_cast<unsigned long long>(c.inputs), static_cast<unsigned long long>(c.blocks_read),
                          static_cast<unsigned long long>(c.blocks_written),
                          static_cast<unsigned long long>(c.converted()),
                          static_cast<unsigned long long>(c.converted_001),
                          static_cast<unsigned long long>(c.converted_002), static_cast<unsigned long long>(c.passed),
                          static_cast<unsigned long long>(c.dropped), static_cast<unsigned long long>(c.failed));
    std::string text(buf, static_cast<size_t>(n));
    if (c.packets_read || capture_output) {
        n = std::snprintf(buf, sizeof buf, "packets read:      %llu\n", static_cast<unsigned long long>(c.packets_read));
        text.append(buf, static_cast<size_t>(n));
    }
    if (capture_output) {
        n = std::snprintf(buf, sizeof buf, "packets written:   %llu\n",
                          static_cast<unsigned long long>(c.packets_written));
        text.append(buf, static_cast<size_t>(n));
    }
    if (c.skipped) {
        n = std::snprintf(buf, sizeof buf, "skipped:           %llu (inputs or packets that do not fit the output)\n",
                          static_cast<unsigned long long>(c.skipped));
        text.append(buf, static_cast<size_t>(n));
    }
    return text;
}

// ---- Blocks ------------------------------------------------------------

BlockConverter::BlockConverter(bool drop_others, std::FILE *messages)
    : drop_others_(drop_others), messages_(messages), decoder_(nullptr), r048_(std::make_unique<AstRecord048>()),
      r034_(std::make_unique<AstRecord034>()), record_(kMaxBlock) {}

BlockConverter::~BlockConverter() = default;

void BlockConverter::message(const std::string &name, const std::string &text) {
    std::fprintf(messages_, "kovrel: %s: %s\n", name.c_str(), text.c_str());
}

bool BlockConverter::to_001(std::string &why) {
    AstRecord001 r = ast_datarecord_convert_048_001(r048_.get());
    // The conversion carries the measured position as values only; a
    // consumer of CAT001 wants it on the wire, in CAT001's steps.
    if (r.i040.valid == 1) {
        r.i040.rho.raw = static_cast<uint32_t>(std::lround(r.i040.rho.value * 128.0)) & 0xFFFFu;
        r.i040.theta.raw = static_cast<uint32_t>(std::lround(r.i040.theta.value * 65536.0 / 360.0)) & 0xFFFFu;
    }
    // CAT001 plots have no place for the track items: a CAT048 plot (no
    // I048/161) that carries them loses them.
    if (r.i161.valid != 1) r.i042.valid = r.i170.valid = r.i200.valid = 0;
    AstDataRecord out;
    ast_datarecord_001_assemble(&out, record_.data(), record_.size(), &r, nullptr);
    if (out.valid == 1) {
        record_size_ = out.length;
        return true;
    }
    const Member members[] = {
        {1010, &r.i010, r.i010.valid}, {1020, &r.i020, r.i020.valid}, {1040, &r.i040, r.i040.valid},
        {1042, &r.i042, r.i042.valid}, {1070, &r.i070, r.i070.valid}, {1090, &r.i090, r.i090.valid},
        {1141, &r.i141, r.i141.valid}, {1161, &r.i161, r.i161.valid}, {1170, &r.i170, r.i170.valid},
        {1200, &r.i200, r.i200.valid},
    };
    const bool track = r.i161.valid == 1;
    why = explain(members, std::size(members), 1, track ? AST_UAP_STANDARD : AST_UAP_CAT001_PLOT,
                  track ? "CAT001 track" : "CAT001 plot (the record has no I048/161)");
    return false;
}

bool BlockConverter::to_002(std::string &why) {
    AstRecord002 r = ast_datarecord_convert_034_002(r034_.get());
    AstDataRecord out;
    ast_datarecord_002_assemble(&out, record_.data(), record_.size(), &r, &AST_UAP_STANDARD);
    if (out.valid == 1) {
        record_size_ = out.length;
        return true;
    }
    const Member members[] = {
        {2000, &r.i000, r.i000.valid},
        {2010, &r.i010, r.i010.valid},
        {2020, &r.i020, r.i020.valid},
        {2030, &r.i030, r.i030.valid},
    };
    why = explain(members, std::size(members), 2, AST_UAP_STANDARD, "CAT002 record");
    return false;
}

bool BlockConverter::convert_record(const AstDataRecord &record, std::string &why) {
    if (record.category == 48) {
        ast_datarecord_048_disassemble(r048_.get(), &record);
        if (r048_->valid != 1) {
            why = "the record cannot be disassembled";
            return false;
        }
        return to_001(why);
    }
    ast_datarecord_034_disassemble(r034_.get(), &record);
    if (r034_->valid != 1) {
        why = "the record cannot be disassembled";
        return false;
    }
    return to_002(why);
}

void BlockConverter::convert_records(const std::string &name, const std::string &at, const BlockSlice &slice,
                                     const BlockOutcome &outcome, std::vector<uint8_t> &out) {
    const AstDataBlock &b = *outcome.block;
    const uint32_t source = slice.data[0];
    const uint8_t target = source == 48 ? 1 : 2;
    size_t start = out.size();
    auto open = [&] {
        start = out.size();
        out.insert(out.end(), {target, 0, 0});
    };
    auto close = [&] {
        const size_t length = out.size() - start;
        if (length <= 3) {
            out.resize(start);
            return;
        }
        out[start + 1] = static_cast<uint8_t>(length >> 8);
        out[start + 2] = static_cast<uint8_t>(length);
        ++counts_.blocks_written;
    };
    open();
    for (uint64_t i = 0; i < b.record_count && i < AST_DATABLOCK_MAX_RECORDS; ++i) {
        std::string why;
        if (!convert_record(b.records[i], why)) {
            ++counts_.failed;
            message(name, at + ", record " + std::to_string(i + 1) + " (" + cat_text(source) +
                              "): not converted: " + why);
            continue;
        }
        // A block never grows past 65535 octets: the rest goes into another.
        if (out.size() - start + record_size_ > kMaxBlock) {
            close();
            open();
        }
        out.insert(out.end(), record_.begin(), record_.begin() + static_cast<std::ptrdiff_t>(record_size_));
        ++(source == 48 ? counts_.converted_001 : counts_.converted_002);
    }
    close();
    if (!outcome.valid) {
        ++counts_.failed;
        message(name, at + " (" + cat_text(source) + ", LEN " + std::to_string(slice.len) + "): " + outcome.reason +
                          "; the rest of the block is not converted");
    }
}

void BlockConverter::convert(const std::string &name, const Chunk &chunk, std::vector<uint8_t> &out) {
    for (const BlockSlice &slice : split_blocks(chunk)) {
        const uint64_t number = ++block_no_;
        const std::string at = "block " + std::to_string(number) + " at " + format_location(slice.where);
        if (slice.problem != SliceProblem::None) {
            const std::string what =
                slice.problem == SliceProblem::ShortHeader
                    ? counted(slice.size, "octet") + " left, too few for a block header"
                    : "(" + cat_text(slice.data[0]) + ") LEN " + std::to_string(slice.len) +
                          (slice.problem == SliceProblem::LengthTooSmall ? " is below 3" : " exceeds the octets left");
            message(name, at + ": " + what + "; " + counted(slice.size, "octet") + " from " +
                              format_location(slice.where) + " on are dropped");
            break;
        }
        ++counts_.blocks_read;
        const uint32_t category = slice.data[0];
        const BlockOutcome outcome = decoder_.decode(slice.data, slice.size);
        if (category == 48 || category == 34) {
            convert_records(name, at, slice, outcome, out);
            continue;
        }
        const uint64_t records = outcome.block->record_count;
        if (drop_others_) {
            counts_.dropped += records;
            continue;
        }
        counts_.passed += records;
        out.insert(out.end(), slice.data, slice.data + slice.size);
        ++counts_.blocks_written;
    }
}

// ---- Inputs and output -------------------------------------------------

ConvertSession::ConvertSession(const ConvertSettings &settings, std::FILE *out, std::FILE *messages)
    : out_(out), converter_(settings.drop_others, messages), pcap_(out) {}

ConvertSession::~ConvertSession() = default;

void ConvertSession::failed_write() {
    if (output_failed_) return;
    output_failed_ = true;
    output_errno_ = errno ? errno : EIO;
}

void ConvertSession::unreadable(const std::string &name, const std::string &why) {
    converter_.message(name, why);
    ++converter_.counts().unreadable;
}

void ConvertSession::write_raw(const std::vector<uint8_t> &blocks) {
    if (blocks.empty() || output_failed_) return;
    if (std::fwrite(blocks.data(), 1, blocks.size(), out_) != blocks.size() || std::ferror(out_)) failed_write();
}

bool ConvertSession::convert_file(const std::string &path) {
    if (path == "-") {
        std::vector<uint8_t> data;
        std::string error;
        if (!read_stream(stdin, data, error)) {
            ++converter_.counts().inputs;
            unreadable("(standard input)", "cannot read: " + error);
            return false;
        }
        return convert_memory("(standard input)", data.data(), data.size());
    }
    std::FILE *file = std::fopen(path.c_str(), "rb");
    if (!file) {
        ++converter_.counts().inputs;
        unreadable(path, std::string("cannot open: ") + std::strerror(errno));
        return false;
    }
    std::vector<uint8_t> head(kHead);
    const size_t n = std::fread(head.data(), 1, head.size(), file);
    if (std::ferror(file) || std::fseek(file, 0, SEEK_SET) != 0) {
        // A pipe given by name: read whole.
        std::vector<uint8_t> data(head.begin(), head.begin() + static_cast<std::ptrdiff_t>(n));
        std::vector<uint8_t> rest;
        std::string error;
        const bool ok = !std::ferror(file) && read_stream(file, rest, error);
        std::fclose(file);
        if (!ok) {
            ++converter_.counts().inputs;
            unreadable(path, "cannot read: " + (error.empty() ? std::string(std::strerror(errno)) : error));
            return false;
        }
        data.insert(data.end(), rest.begin(), rest.end());
        return convert_memory(path, data.data(), data.size());
    }
    const InputKind kind = detect_input(head.data(), n);
    if (kind == InputKind::Pcap || kind == InputKind::Pcapng) {
        ++converter_.counts().inputs;
        converter_.start_input();
        return convert_capture(path, file);
    }
    // Raw blocks are converted where they lie (a mapped file), hex text once parsed.
    struct stat st;
    if (fstat(fileno(file), &st) == 0 && S_ISREG(st.st_mode) && st.st_size > 0) {
        const size_t size = static_cast<size_t>(st.st_size);
        void *map = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fileno(file), 0);
        if (map != MAP_FAILED) {
            std::fclose(file);
            madvise(map, size, MADV_SEQUENTIAL);
            const bool ok = convert_memory(path, static_cast<const uint8_t *>(map), size);
            munmap(map, size);
            return ok;
        }
    }
    std::vector<uint8_t> data;
    std::string error;
    const bool ok = read_stream(file, data, error);
    std::fclose(file);
    if (!ok) {
        ++converter_.counts().inputs;
        unreadable(path, "cannot read: " + error);
        return false;
    }
    return convert_memory(path, data.data(), data.size());
}

bool ConvertSession::convert_memory(const std::string &name, const uint8_t *data, size_t size) {
    ++converter_.counts().inputs;
    converter_.start_input();
    if (size == 0) {
        converter_.message(name, "empty input");
        return true;
    }
    const InputKind kind = detect_input(data, size < kHead ? size : kHead);
    if (kind == InputKind::Pcap || kind == InputKind::Pcapng) {
        std::FILE *file = fmemopen(const_cast<uint8_t *>(data), size, "rb");
        if (!file) {
            unreadable(name, std::string("cannot read: ") + std::strerror(errno));
            return false;
        }
        return convert_capture(name, file);
    }
    std::vector<uint8_t> parsed;
    if (kind == InputKind::Hex) {
        std::string error;
        if (!parse_hex(std::string_view(reinterpret_cast<const char *>(data), size), parsed, error))
            converter_.message(name, "hexadecimal text stops at " + error + "; converting the octets before it");
        data = parsed.data();
        size = parsed.size();
    }
    return convert_octets(name, data, size);
}

bool ConvertSession::convert_octets(const std::string &name, const uint8_t *data, size_t size) {
    if (kind_ == Output::Unset) kind_ = Output::Raw;
    if (kind_ == Output::Pcap) {
        ++converter_.counts().skipped;
        converter_.message(name, "raw blocks cannot go into the capture written for the first input; skipped");
        return true;
    }
    Chunk chunk;
    chunk.data = data;
    chunk.size = size;
    blocks_.clear();
    converter_.convert(name, chunk, blocks_);
    write_raw(blocks_);
    return true;
}

bool ConvertSession::convert_capture(const std::string &name, std::FILE *file) {
    CaptureReader reader;
    std::string why;
    if (!reader.open(file, why)) {
        unreadable(name, "not a readable capture: " + why);
        return false;
    }
    const int linktype = reader.linktype();
    if (!linktype_supported(linktype)) {
        unreadable(name, "not a readable capture: link type " + std::to_string(linktype) + " is not supported");
        return false;
    }
    if (kind_ == Output::Unset) {
        kind_ = Output::Pcap;
        if (!pcap_.begin(linktype)) failed_write();
    } else if (kind_ == Output::Pcap && linktype != pcap_.linktype()) {
        ++converter_.counts().skipped;
        converter_.message(name, "link type " + std::to_string(file_linktype(linktype)) + " differs from the " +
                                     std::to_string(file_linktype(pcap_.linktype())) +
                                     " of the capture written for the first input; skipped");
        return true;
    }
    ConvertCounts &counts = converter_.counts();
    CapturedUdp udp;
    while (!output_failed_ && reader.next(udp)) {
        ++counts.packets_read;
        blocks_.clear();
        converter_.convert(name, udp.chunk(), blocks_);
        if (kind_ == Output::Raw) {
            write_raw(blocks_);
            continue;
        }
        if (blocks_.empty()) continue;
        std::string error;
        // A datagram put together from fragments goes out whole, as one
        // packet at its last fragment.
        const bool ok =
            udp.reassembled
                ? reassembled_frame(linktype, udp.frame, udp.caplen, udp.udp_header, blocks_.data(), blocks_.size(),
                                    frame_, error)
                : rebuild_frame(linktype, udp.frame, udp.caplen, static_cast<size_t>(udp.payload.data - udp.frame),
                                blocks_.data(), blocks_.size(), frame_, error);
        if (!ok) {
            ++counts.skipped;
            converter_.message(name, "pkt " + std::to_string(udp.packet) + ": " + error + "; not written");
            continue;
        }
        if (!pcap_.packet(udp.seconds, udp.nanoseconds, frame_.data(), frame_.size()))
            failed_write();
        else
            ++counts.packets_written;
    }
    if (!output_failed_ && !reader.read_error().empty())
        converter_.message(name, "capture ends early: " + reader.read_error());
    const CaptureStats stats = reader.stats();
    if (const uint64_t other = stats.not_udp + stats.truncated)
        converter_.message(name, std::to_string(other) +
                                     " packets are not whole UDP datagrams (other protocols or packets cut short) "
                                     "and are not converted");
    if (!output_failed_)
        for (const std::string &text : fragment_messages(stats)) converter_.message(name, text);
    return true;
}

}  // namespace kovrel_tool
