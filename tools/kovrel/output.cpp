#include "output.h"

#include <charconv>
#include <cstdio>
#include <cstring>

#include "decode.h"
#include "fields.h"

namespace kovrel_tool {
namespace {

// The room reserved for an item's fields before asking the library; a
// larger description is asked for again with the size it reported.
constexpr size_t kFieldsGuess = 1024;

std::string id_text(AstItemId id) {
    char buf[16];
    ast_dataitem_type_to_str(buf, sizeof buf, id);
    return buf;
}

}  // namespace

namespace {

// "xx " for every octet, four characters apart so that one is copied as
// a word (the fourth character is overwritten by the next one).
struct HexTable {
    char pair[256][4];
    constexpr HexTable() : pair() {
        const char digits[] = "0123456789abcdef";
        for (int i = 0; i < 256; ++i) {
            pair[i][0] = digits[i >> 4];
            pair[i][1] = digits[i & 0xF];
            pair[i][2] = ' ';
            pair[i][3] = ' ';
        }
    }
};
constexpr HexTable kHexTable;

// Writes the octets as put_item_hex does at p, which has room for n * 3 + 1
// characters; returns the characters written.
size_t write_hex(char *p, const uint8_t *data, size_t n) {
    for (size_t i = 0; i < n; ++i) std::memcpy(p + i * 3, kHexTable.pair[data[i]], 4);
    return n * 3 - 1;
}

}  // namespace

void put_hex(OutBuffer &out, const uint8_t *data, size_t size) {
    if (size == 0 || !data) return;
    out.advance(write_hex(out.room(size * 3 + 1), data, size));
}

void put_item_hex(OutBuffer &out, const AstDataItem &item) {
    if (item.valid != 1) return;
    put_hex(out, item.data, static_cast<size_t>(item.length));
}

RecordFormatter::RecordFormatter(OutBuffer &out) : out_(out), summary_(new char[kSummarySize]) {}

RecordFormatter::~RecordFormatter() = default;

const char *ProfileLabels::operator()(const AstDataRecord &r) {
    if (!r.uap.get_dataitem) return "-";
    if (label_ == nullptr || r.uap.get_dataitem != uap_ || r.category != category_) {
        label_ = profile_label(r.uap, r.category);
        uap_ = r.uap.get_dataitem;
        category_ = r.category;
    }
    return label_;
}

const RecordFormatter::ItemText &RecordFormatter::item_text(AstItemId id) {
    Recent &recent = recent_[(id * 2654435761u) >> 24];
    if (recent.text && recent.id == id) return *recent.text;
    auto it = items_.find(id);
    if (it == items_.end()) it = items_.emplace(id, make_item_text(id)).first;
    recent = {id, &it->second};
    return it->second;
}

RecordFormatter::ItemText RecordFormatter::make_item_text(AstItemId id) {
    ItemText t;
    t.id = id_text(id);
    const char *name = ast_dataitem_get_name(id);

    OutBuffer scratch(nullptr, 0);
    JsonWriter json(scratch);
    json.begin_object();
    json.key("id");
    json.string(t.id);
    json.key("name");
    json.string(name);
    json.key("len");
    t.json_head.assign(scratch.view());

    scratch.clear();
    scratch.put("    ", 4);
    scratch.put_left(t.id, 9);
    scratch.put(' ');
    scratch.put_left(name, 46);
    scratch.put(" len ", 5);
    t.text_head.assign(scratch.view());
    return t;
}

void RecordFormatter::text_line(const RecordView &v) {
    const AstDataRecord &r = *v.record;
    char location[kLocationSize];
    out_.put("blk ", 4);
    out_.put_left(v.block, 5);
    out_.put(' ');
    out_.put_left(std::string_view(location, format_location(location, v.where)), 14);
    out_.put(" CAT", 4);
    out_.put_zero_padded(r.category, 3);
    out_.put(' ');
    out_.put_left(label_(r), 13);
    out_.put(" rec ", 5);
    out_.put_left(v.number, 2);
    out_.put(" len ", 5);
    // A record that could not be read whole has no length.
    if (r.valid)
        out_.put_left(r.length, 4);
    else
        out_.put_left("-", 4);
    out_.put(" items ", 7);
    out_.put_left(r.item_count, 2);
    out_.put(' ');
    out_.put(r.valid ? std::string_view("valid") : std::string_view("INVALID"));
    reader_.read(fields_, r, kAskTags);
    put_field_tags(out_, fields_);
    if (v.src.known()) {
        out_.put("  src ", 6);
        out_.advance(format_address(out_.room(kAddressSize), v.src));
    }
    out_.put('\n');
}

void RecordFormatter::item_lines(const AstDataRecord &r) {
    for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) {
        const AstDataItem &item = r.items[i];
        const ItemText &t = item_text(item.id);
        // The identifier, name and length are one field of at most 159
        // characters; only a name of a hundred and more would reach it.
        const size_t start = out_.size();
        out_.put(t.text_head);
        out_.put_left(item.length, 3);
        out_.put(' ');
        if (out_.size() - start > 159) out_.truncate(start + 159);
        put_item_hex(out_, item);
        out_.put("  | ", 4);
        char *summary = out_.room(kSummarySize);
        ast_dataitem_get_summary(summary, kSummarySize, &item);
        out_.advance(strnlen(summary, kSummarySize));
        out_.put('\n');
    }
}

void RecordFormatter::item_json(const AstDataItem &item) {
    out_.put(item_text(item.id).json_head);
    // The length, the hexadecimal octets and the opening of the summary in
    // one stretch of the buffer.
    const bool hex = item.valid == 1 && item.length != 0 && item.data;
    const size_t octets = hex ? static_cast<size_t>(item.length) : 0;
    char *const start = out_.room(20 + 8 + octets * 3 + 1 + 13);
    char *p = start;
    if (item.length < 10)
        *p++ = static_cast<char>('0' + item.length);
    else if (item.length < 100) {
        *p++ = static_cast<char>('0' + item.length / 10);
        *p++ = static_cast<char>('0' + item.length % 10);
    } else
        p = std::to_chars(p, p + 20, item.length).ptr;
    std::memcpy(p, ",\"hex\":\"", 8);
    p += 8;
    if (hex) p += write_hex(p, item.data, octets);
    std::memcpy(p, "\",\"summary\":\"", 13);
    p += 13;
    out_.advance(static_cast<size_t>(p - start));

    // The summary is written straight after its opening quote; the rare one
    // that needs escaping is taken back and written escaped.
    char *const summary = out_.room(kSummarySize + 1);
    ast_dataitem_get_summary(summary, kSummarySize, &item);
    const size_t length = strnlen(summary, kSummarySize);
    if (json_plain_prefix(summary, length) == length) {
        summary[length] = '"';
        out_.advance(length + 1);
    } else {
        std::memcpy(summary_.get(), summary, length);
        out_.truncate(out_.size() - 1);  // the opening quote
        put_json_string(out_, summary_.get(), length);
    }

    // The library writes the fields straight into the buffer; when it
    // needs more room than was given it says how much, and is asked again.
    const size_t before = out_.size();
    out_.put(",\"fields\":", 10);
    size_t room = kFieldsGuess;
    for (;;) {
        char *at = out_.room(room);
        const size_t need = ast_dataitem_get_fields_json(at, room, &item);
        if (need == 0) {  // no description: no key
            out_.truncate(before);
            break;
        }
        if (need < room) {
            out_.advance(need);
            break;
        }
        room = need + 1;
    }
    out_.put('}');
}

void RecordFormatter::json_line(const RecordView &v) {
    const AstDataRecord &r = *v.record;
    // The members are written in place, in their fixed order; what stays
    // the same from record to record (the input name, the profile label) is
    // escaped once.
    if (v.input != input_ || input_json_.empty()) {
        input_.assign(v.input);
        OutBuffer scratch(nullptr, 0);
        scratch.put("{\"input\":", 9);
        put_json_string(scratch, v.input);
        scratch.put(",\"block\":", 9);
        input_json_.assign(scratch.view());
    }
    out_.put(input_json_);
    out_.put_unsigned(v.block);
    out_.put(",\"offset\":", 10);
    out_.put_unsigned(v.where.offset);
    if (v.where.packet != 0) {
        out_.put(",\"packet\":", 10);
        out_.put_unsigned(v.where.packet);
        if (v.received)
            out_.put(",\"rx_time\":", 11);
        else
            out_.put(",\"time\":", 8);
        put_json_real(out_, v.time);
    }
    if (v.src.known()) {
        out_.put(",\"src\":\"", 8);
        out_.advance(format_address(out_.room(kAddressSize), v.src));
        out_.put("\",\"dst\":\"", 9);
        out_.advance(format_address(out_.room(kAddressSize), v.dst));
        out_.put('"');
    }
    out_.put(",\"cat\":", 7);
    out_.put_unsigned(r.category);
    const char *uap = label_(r);
    if (uap != uap_ || uap_json_.empty()) {
        OutBuffer scratch(nullptr, 0);
        scratch.put(",\"uap\":", 7);
        put_json_string(scratch, uap, std::strlen(uap));
        scratch.put(",\"record\":", 10);
        uap_json_.assign(scratch.view());
        uap_ = uap;
    }
    out_.put(uap_json_);
    out_.put_unsigned(v.number);
    out_.put(",\"length\":", 10);
    if (r.valid)
        out_.put_unsigned(r.length);
    else
        out_.put("null", 4);
    out_.put(",\"item_count\":", 14);
    out_.put_unsigned(r.item_count);
    out_.put(r.valid ? std::string_view(",\"valid\":true") : std::string_view(",\"valid\":false"));
    out_.put(v.block_valid ? std::string_view(",\"block_valid\":true")
                           : std::string_view(",\"block_valid\":false"));
    if (!r.valid && !v.error.empty()) {
        out_.put(",\"error\":", 9);
        put_json_string(out_, v.error);
        out_.put(",\"hex\":\"", 8);
        put_hex(out_, v.undecoded, v.undecoded_size);
        out_.put('"');
    }
    out_.put(",\"fields\":", 10);
    reader_.read(fields_, r, kAskAll);
    JsonWriter json(out_);
    write_fields_json(json, fields_);
    out_.put(",\"items\":[", 10);
    for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) {
        if (i) out_.put(',');
        item_json(r.items[i]);
    }
    out_.put("]}\n", 3);
}

}  // namespace kovrel_tool
