#include "output_csv.h"

#include "field_path.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace kovrel_tool {
namespace {

// The values of a RecordView, in the order of the JSON keys.
enum ViewColumn {
    kInput, kBlock, kOffset, kPacket, kTime, kCat, kUap, kRecord, kLength, kItemCount, kValid, kBlockValid,
    kSrc, kDst, kRxTime
};
constexpr const char *kViewColumns[] = {"input", "block", "offset",     "packet", "time",  "cat",
                                        "uap",   "record", "length",    "item_count", "valid", "block_valid",
                                        "src",   "dst",    "rx_time"};
constexpr size_t kViewColumnCount = sizeof kViewColumns / sizeof kViewColumns[0];

// "I048/040", "I048/SPF", "I021/A03": 'I', three digits, '/', three letters or digits.
bool looks_like_item(std::string_view s) {
    if (s.size() != 8 || s[0] != 'I' || s[4] != '/') return false;
    for (size_t i = 1; i < 4; ++i)
        if (s[i] < '0' || s[i] > '9') return false;
    for (size_t i = 5; i < 8; ++i)
        if (!((s[i] >= '0' && s[i] <= '9') || (s[i] >= 'A' && s[i] <= 'Z'))) return false;
    return true;
}

std::string known_columns() {
    std::string list;
    for (const char *name : kViewColumns) list += std::string(list.empty() ? "" : ", ") + name;
    for (size_t i = 0; i < kRecordFieldCount; ++i)
        list += std::string(", ") + record_field_name(static_cast<RecordField>(i));
    return list;
}

}  // namespace

std::string default_csv_columns() {
    std::string list = "block,offset,cat,uap,record,valid";
    for (size_t i = 0; i < kRecordFieldCount; ++i)
        list += std::string(",") + record_field_name(static_cast<RecordField>(i));
    return list;
}

bool parse_csv_columns(std::string_view list, std::vector<CsvColumn> &columns, std::string &error) {
    columns.clear();
    size_t start = 0;
    for (;;) {
        const size_t comma = list.find(',', start);
        std::string_view name = list.substr(start, comma == std::string_view::npos ? comma : comma - start);
        while (!name.empty() && name.front() == ' ') name.remove_prefix(1);
        while (!name.empty() && name.back() == ' ') name.remove_suffix(1);
        CsvColumn c;
        c.name = std::string(name);
        const size_t dot = name.find('.');
        bool known = false;
        if (name.empty()) {
            error = "empty column name in '" + std::string(list) + "'";
            return false;
        }
        if (dot != std::string_view::npos || name.find('/') != std::string_view::npos) {
            const std::string_view item = name.substr(0, dot);
            if (!looks_like_item(item) || dot == std::string_view::npos || dot + 1 == name.size()) {
                error = "column '" + c.name +
                        "': an item field is an item identifier, a dot and a field path (I048/040.rho)";
                return false;
            }
            c.kind = CsvColumn::ItemPath;
            c.item = std::string(item);
            c.path = std::string(name.substr(dot + 1));
            known = true;
        }
        for (size_t i = 0; !known && i < kViewColumnCount; ++i) {
            if (name == kViewColumns[i]) {
                c.kind = CsvColumn::Record;
                c.record = static_cast<int>(i);
                known = true;
            }
        }
        if (!known && find_record_field(name, c.field)) {
            c.kind = CsvColumn::Field;
            known = true;
        }
        if (!known) {
            error = "unknown column '" + c.name + "'; record columns: " + known_columns() +
                    "; item fields: an item identifier, a dot and a field path (I048/040.rho)";
            return false;
        }
        columns.push_back(std::move(c));
        if (comma == std::string_view::npos) break;
        start = comma + 1;
    }
    return true;
}

CsvWriter::CsvWriter(OutBuffer &out, std::vector<CsvColumn> columns)
    : out_(out), columns_(std::move(columns)), cells_(columns_.size()), filled_(columns_.size()) {
    for (size_t i = 0; i < columns_.size(); ++i) {
        const CsvColumn &c = columns_[i];
        if (c.kind == CsvColumn::Field) ask_ |= record_field_accessor(c.field);
        if (c.kind != CsvColumn::ItemPath) continue;
        size_t g = 0;
        while (g < groups_.size() && groups_[g].item != c.item) ++g;
        if (g == groups_.size()) groups_.push_back({c.item, {}});
        groups_[g].columns.push_back(i);
    }
}

void CsvWriter::cell(std::string_view text) {
    size_t i = 0;
    while (i < text.size() && text[i] != ',' && text[i] != '"' && text[i] != '\n' && text[i] != '\r') ++i;
    if (i == text.size()) {
        out_.put(text);
        return;
    }
    out_.put('"');
    for (char c : text) {
        if (c == '"') out_.put('"');
        out_.put(c);
    }
    out_.put('"');
}

void CsvWriter::header() {
    for (size_t i = 0; i < columns_.size(); ++i) {
        if (i) out_.put(',');
        cell(columns_[i].name);
    }
    out_.put('\n');
}

int CsvWriter::group_of(AstItemId id) {
    const auto it = group_of_id_.find(id);
    if (it != group_of_id_.end()) return it->second;
    char text[16];
    ast_dataitem_type_to_str(text, sizeof text, id);
    int found = -1;
    for (size_t g = 0; g < groups_.size(); ++g)
        if (groups_[g].item == text) found = static_cast<int>(g);
    group_of_id_.emplace(id, found);
    return found;
}

// Walks one item's fields, keeping the dotted path of the field visited,
// and fills the cells of the paths asked.
struct CsvWalk : FieldPath {
    CsvWalk(CsvWriter &w, const std::vector<size_t> &c) : writer(w), columns(c), left(c.size()) {}

    CsvWriter &writer;
    const std::vector<size_t> &columns;
    size_t left;                // paths not found yet

    // The cell text of a value.
    static std::string_view value_text(const AstField &f, char *buf, size_t size) {
        char *end = buf + size;
        switch (f.kind) {
        case AST_FIELD_FLAG:
        case AST_FIELD_UNSIGNED:
        case AST_FIELD_ENUM: {
            int digits = 0, base = 10;
            if (f.format == AST_FIELD_FORMAT_OCTAL4) digits = 4, base = 8;
            if (f.format == AST_FIELD_FORMAT_HEX6) digits = 6, base = 16;
            char tmp[24];
            const char *t = std::to_chars(tmp, tmp + sizeof tmp, f.u, base).ptr;
            const size_t n = static_cast<size_t>(t - tmp);
            char *p = buf;
            for (size_t pad = n; pad < static_cast<size_t>(digits); ++pad) *p++ = '0';
            for (size_t i = 0; i < n; ++i) *p++ = tmp[i] >= 'a' ? static_cast<char>(tmp[i] - 32) : tmp[i];
            return {buf, static_cast<size_t>(p - buf)};
        }
        case AST_FIELD_SIGNED:
            return {buf, static_cast<size_t>(std::to_chars(buf, end, f.i).ptr - buf)};
        case AST_FIELD_REAL:
            if (!std::isfinite(f.real)) return {};
            return {buf, static_cast<size_t>(std::to_chars(buf, end, f.real).ptr - buf)};
        case AST_FIELD_TEXT:
            return f.text ? std::string_view(f.text, f.length) : std::string_view();
        default:
            return {};
        }
    }

    int visit(const AstField &f) {
        switch (f.kind) {
        case AST_FIELD_GROUP_BEGIN:
        case AST_FIELD_ARRAY_BEGIN:
            push(f);
            return 1;
        case AST_FIELD_GROUP_END:
        case AST_FIELD_ARRAY_END:
            pop();
            return 1;
        default:
            break;
        }
        push(f);
        if (!overflow_at) {
            const std::string_view here(path, length);
            for (size_t column : columns) {
                if (writer.filled_[column] || writer.columns_[column].path != here) continue;
                std::string &cell = writer.cells_[column];
                if (f.kind == AST_FIELD_OCTETS) {
                    static const char kHex[] = "0123456789ABCDEF";
                    cell.clear();
                    for (size_t i = 0; f.octets && i < f.length; ++i) {
                        cell.push_back(kHex[f.octets[i] >> 4]);
                        cell.push_back(kHex[f.octets[i] & 0xF]);
                    }
                } else {
                    char buf[64];
                    cell.assign(value_text(f, buf, sizeof buf));
                }
                writer.filled_[column] = true;
                --left;
            }
        }
        pop();
        return left > 0 ? 1 : 0;  // every path found: no need to go on
    }
};

void CsvWriter::walk_item(const AstDataItem &item, const ItemGroup &group) {
    CsvWalk walk(*this, group.columns);
    ast_dataitem_walk_fields(
        &item, [](void *context, const AstField *f) { return static_cast<CsvWalk *>(context)->visit(*f); }, &walk);
}

void CsvWriter::row(const RecordView &v) {
    const AstDataRecord &r = *v.record;
    RecordFields &fields = fields_;
    if (ask_) reader_.read(fields, r, ask_);
    if (!groups_.empty()) {
        for (size_t i = 0; i < columns_.size(); ++i) filled_[i] = false;
        for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) {
            const int g = group_of(r.items[i].id);
            if (g >= 0) walk_item(r.items[i], groups_[static_cast<size_t>(g)]);
        }
    }
    char text[64];
    for (size_t i = 0; i < columns_.size(); ++i) {
        if (i) out_.put(',');
        const CsvColumn &c = columns_[i];
        switch (c.kind) {
        case CsvColumn::ItemPath:
            if (filled_[i]) cell(cells_[i]);
            break;
        case CsvColumn::Field: {
            if (!fields.has(c.field)) break;
            char scratch[kFieldScratch];
            const FieldValue value = record_field_value(fields, c.field, scratch);
            switch (value.kind) {
            case FieldValue::Unsigned: out_.put_unsigned(value.u); break;
            case FieldValue::Real:
                if (std::isfinite(value.real)) out_.advance(format_json_real(out_.room(32), value.real));
                break;
            case FieldValue::Text: cell(std::string_view(value.text, value.length)); break;
            }
            break;
        }
        case CsvColumn::Record:
            switch (c.record) {
            case kInput: cell(v.input); break;
            case kBlock: out_.put_unsigned(v.block); break;
            case kOffset: out_.put_unsigned(v.where.offset); break;
            case kPacket:
                if (v.where.packet) out_.put_unsigned(v.where.packet);
                break;
            case kTime:
            case kRxTime:
                // The capture time of captures, the receive time of live input.
                if (v.where.packet && v.received == (c.record == kRxTime))
                    out_.put(text, format_json_real(text, v.time));
                break;
            case kCat: out_.put_unsigned(r.category); break;
            case kUap: cell(label_(r)); break;
            case kRecord: out_.put_unsigned(v.number); break;
            case kLength:
                if (r.valid) out_.put_unsigned(r.length);
                break;
            case kItemCount: out_.put_unsigned(r.item_count); break;
            case kValid: out_.put(r.valid ? std::string_view("true") : std::string_view("false")); break;
            case kBlockValid: out_.put(v.block_valid ? std::string_view("true") : std::string_view("false")); break;
            case kSrc:
            case kDst: {
                const NetAddress &a = c.record == kSrc ? v.src : v.dst;
                if (a.known()) out_.advance(format_address(out_.room(kAddressSize), a));
                break;
            }
            }
            break;
        }
    }
    out_.put('\n');
}

}  // namespace kovrel_tool
