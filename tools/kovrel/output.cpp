#include "output.h"

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

void put_item_hex(OutBuffer &out, const AstDataItem &item) {
    static const char kHex[] = "0123456789abcdef";
    if (item.valid != 1 || item.length == 0 || !item.data) return;
    const size_t n = static_cast<size_t>(item.length);
    char *p = out.room(n * 3);
    for (size_t i = 0; i < n; ++i) {
        *p++ = kHex[item.data[i] >> 4];
        *p++ = kHex[item.data[i] & 0xF];
        *p++ = ' ';
    }
    out.advance(n * 3 - 1);
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

void RecordFormatter::item_json(JsonWriter &json, const AstDataItem &item) {
    json.raw(item_text(item.id).json_head);
    out_.put_unsigned(item.length);
    out_.put(",\"hex\":\"", 8);
    put_item_hex(out_, item);
    out_.put("\",\"summary\":", 12);
    ast_dataitem_get_summary(summary_.get(), kSummarySize, &item);
    put_json_string(out_, summary_.get(), strnlen(summary_.get(), kSummarySize));

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
    JsonWriter json(out_);
    json.begin_object();
    json.key("input");
    if (v.input != input_ || input_json_.empty()) {
        input_.assign(v.input);
        OutBuffer scratch(nullptr, 0);
        put_json_string(scratch, v.input);
        input_json_.assign(scratch.view());
    }
    json.raw(input_json_);
    json.key("block");
    json.unsigned_number(v.block);
    json.key("offset");
    json.unsigned_number(v.where.offset);
    if (v.where.packet != 0) {
        json.key("packet");
        json.unsigned_number(v.where.packet);
        json.key("time");
        json.real(v.time);
    }
    json.key("cat");
    json.unsigned_number(r.category);
    json.key("uap");
    json.string(label_(r));
    json.key("record");
    json.unsigned_number(v.number);
    json.key("length");
    if (r.valid)
        json.unsigned_number(r.length);
    else
        json.null();
    json.key("item_count");
    json.unsigned_number(r.item_count);
    json.key("valid");
    json.boolean(r.valid != 0);
    json.key("block_valid");
    json.boolean(v.block_valid);
    json.key("fields");
    reader_.read(fields_, r, kAskAll);
    write_fields_json(json, fields_);
    json.key("items");
    json.begin_array();
    for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) item_json(json, r.items[i]);
    json.end_array();
    json.end_object();
    out_.put('\n');
}

}  // namespace kovrel_tool
