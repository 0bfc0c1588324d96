#include "columns.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace kovrel_py {
namespace {

using kovrel_tool::CsvColumn;
using kovrel_tool::RecordField;

// The record columns in the order output_csv.cpp numbers them.
enum ViewColumn {
    kInput, kBlock, kOffset, kPacket, kTime, kCat, kUap, kRecord, kLength, kItemCount, kValid, kBlockValid
};

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Column::Kind view_kind(int record, bool &nullable) {
    nullable = record == kPacket || record == kLength;
    switch (record) {
    case kInput:
    case kUap: return Column::Text;
    case kTime: return Column::Time;
    case kValid:
    case kBlockValid: return Column::Bool;
    default: return Column::Int;
    }
}

Column::Kind field_kind(RecordField f) {
    switch (f) {
    case RecordField::Sac:
    case RecordField::Sic:
    case RecordField::Track: return Column::Int;
    case RecordField::Tod: return Column::Tod;
    case RecordField::MsgType:
    case RecordField::Mode3a:
    case RecordField::Callsign:
    case RecordField::Icao: return Column::Text;
    default: return Column::Real;
    }
}

std::string_view int_text(int64_t v, char (&buf)[32]) {
    return {buf, static_cast<size_t>(std::to_chars(buf, buf + sizeof buf, v).ptr - buf)};
}

}  // namespace

size_t Column::size() const {
    switch (kind) {
    case Unknown: return pending;
    case Int: return ints.size();
    case Bool: return valid.size();
    case Text: return codes.size();
    default: return reals.size();
    }
}

void Column::put_missing() {
    switch (kind) {
    case Unknown: ++pending; break;
    case Int:
        ints.push_back(0);
        valid.push_back(0);
        break;
    case Bool: valid.push_back(0); break;
    case Text: codes.push_back(-1); break;
    default: reals.push_back(kNaN); break;
    }
}

void Column::put_int(int64_t v) {
    switch (kind) {
    case Unknown: become(Int); [[fallthrough]];
    case Int:
        ints.push_back(v);
        valid.push_back(1);
        break;
    case Text: {
        char buf[32];
        put_text(int_text(v, buf));
        break;
    }
    case Bool: valid.push_back(v != 0); break;
    default: reals.push_back(static_cast<double>(v)); break;
    }
}

void Column::put_real(double v) {
    switch (kind) {
    case Unknown: become(Real); break;
    case Int: become(Real); break;
    case Text: {
        if (!std::isfinite(v)) {
            codes.push_back(-1);
            return;
        }
        char buf[32];
        put_text({buf, static_cast<size_t>(std::to_chars(buf, buf + sizeof buf, v).ptr - buf)});
        return;
    }
    default: break;
    }
    reals.push_back(v);
}

void Column::put_bool(bool v) {
    if (kind == Bool) valid.push_back(v ? 1 : 0);
    else put_int(v ? 1 : 0);
}

void Column::put_text(std::string_view v) {
    if (kind != Text) become(Text);
    const auto it = text_index.find(v);
    if (it != text_index.end()) {
        codes.push_back(it->second);
        return;
    }
    const int32_t code = static_cast<int32_t>(texts.size());
    texts.emplace_back(v);
    text_index.emplace(std::string_view(texts.back()), code);
    codes.push_back(code);
}

void Column::become(Kind to) {
    if (kind == to) return;
    if (kind == Unknown) {
        const size_t rows = pending;
        pending = 0;
        kind = to;
        for (size_t i = 0; i < rows; ++i) put_missing();
        return;
    }
    if (kind == Int && to == Real) {
        reals.resize(ints.size());
        for (size_t i = 0; i < ints.size(); ++i) reals[i] = valid[i] ? static_cast<double>(ints[i]) : kNaN;
        ints.clear();
        valid.clear();
        kind = Real;
        return;
    }
    if (to == Text && (kind == Int || kind == Real)) {
        // Numbers met before the first text keep their CSV text.
        std::vector<int64_t> old_ints;
        std::vector<double> old_reals;
        std::vector<uint8_t> old_valid;
        old_ints.swap(ints);
        old_reals.swap(reals);
        old_valid.swap(valid);
        const Kind was = kind;
        kind = Text;
        const size_t rows = was == Int ? old_ints.size() : old_reals.size();
        for (size_t i = 0; i < rows; ++i) {
            if (was == Int) {
                if (old_valid[i]) put_int(old_ints[i]);
                else codes.push_back(-1);
            } else {
                put_real(old_reals[i]);
            }
        }
    }
}

ColumnSink::ColumnSink(std::vector<CsvColumn> columns) : spec_(std::move(columns)) {
    columns_.resize(spec_.size());
    filled_.resize(spec_.size());
    for (size_t i = 0; i < spec_.size(); ++i) {
        const CsvColumn &c = spec_[i];
        Column &col = columns_[i];
        col.name = c.name;
        switch (c.kind) {
        case CsvColumn::Record: col.become(view_kind(c.record, col.nullable)); break;
        case CsvColumn::Field:
            col.become(field_kind(c.field));
            ask_ |= kovrel_tool::record_field_accessor(c.field);
            break;
        case CsvColumn::ItemPath: {
            size_t g = 0;
            while (g < groups_.size() && groups_[g].item != c.item) ++g;
            if (g == groups_.size()) groups_.push_back({c.item, {}});
            groups_[g].columns.push_back(i);
            break;
        }
        }
    }
}

int ColumnSink::group_of(AstItemId id) {
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

// Walks one item's fields keeping the dotted path of the field visited (as
// the CSV writer does) and puts the values of the paths asked.
struct ColumnWalk {
    ColumnWalk(ColumnSink &s, const std::vector<size_t> &c) : sink(s), columns(c), left(c.size()) {}

    ColumnSink &sink;
    const std::vector<size_t> &columns;
    size_t left;
    static constexpr size_t kDepth = 40;
    char path[512];
    size_t length = 0;
    size_t starts[kDepth];
    size_t depth = 0;
    size_t overflow_at = 0;

    void push(const AstField &f) {
        if (depth < kDepth) starts[depth] = length;
        ++depth;
        if (overflow_at) return;
        char seg[24];
        const char *s = f.name;
        size_t n;
        if (s) {
            n = std::strlen(s);
        } else {
            n = static_cast<size_t>(std::to_chars(seg, seg + sizeof seg, f.index).ptr - seg);
            s = seg;
        }
        if (depth > kDepth || length + 1 + n > sizeof path) {
            overflow_at = depth;
            return;
        }
        if (length) path[length++] = '.';
        std::memcpy(path + length, s, n);
        length += n;
    }
    void pop() {
        if (depth == 0) return;
        if (overflow_at == depth) overflow_at = 0;
        --depth;
        if (!overflow_at && depth < kDepth) length = starts[depth];
    }

    static void put(Column &col, const AstField &f) {
        switch (f.kind) {
        case AST_FIELD_FLAG:
        case AST_FIELD_UNSIGNED:
        case AST_FIELD_ENUM:
            if (f.format == AST_FIELD_FORMAT_OCTAL4 || f.format == AST_FIELD_FORMAT_HEX6) {
                const int digits = f.format == AST_FIELD_FORMAT_OCTAL4 ? 4 : 6;
                const int base = f.format == AST_FIELD_FORMAT_OCTAL4 ? 8 : 16;
                char tmp[24], buf[32];
                const size_t n = static_cast<size_t>(std::to_chars(tmp, tmp + sizeof tmp, f.u, base).ptr - tmp);
                char *p = buf;
                for (size_t pad = n; pad < static_cast<size_t>(digits); ++pad) *p++ = '0';
                for (size_t i = 0; i < n; ++i) *p++ = tmp[i] >= 'a' ? static_cast<char>(tmp[i] - 32) : tmp[i];
                col.put_text({buf, static_cast<size_t>(p - buf)});
            } else if (f.u > static_cast<uint64_t>(std::numeric_limits<int64_t>::max())) {
                col.put_real(static_cast<double>(f.u));
            } else {
                col.put_int(static_cast<int64_t>(f.u));
            }
            break;
        case AST_FIELD_SIGNED: col.put_int(f.i); break;
        case AST_FIELD_REAL: col.put_real(f.real); break;
        case AST_FIELD_TEXT: col.put_text(f.text ? std::string_view(f.text, f.length) : std::string_view()); break;
        case AST_FIELD_OCTETS: {
            static const char kHex[] = "0123456789ABCDEF";
            std::string hex;
            for (size_t i = 0; f.octets && i < f.length; ++i) {
                hex.push_back(kHex[f.octets[i] >> 4]);
                hex.push_back(kHex[f.octets[i] & 0xF]);
            }
            col.put_text(hex);
            break;
        }
        default: col.put_missing(); break;
        }
    }

    int visit(const AstField &f) {
        switch (f.kind) {
        case AST_FIELD_GROUP_BEGIN:
        case AST_FIELD_ARRAY_BEGIN: push(f); return 1;
        case AST_FIELD_GROUP_END:
        case AST_FIELD_ARRAY_END: pop(); return 1;
        default: break;
        }
        push(f);
        if (!overflow_at) {
            const std::string_view here(path, length);
            for (size_t column : columns) {
                if (sink.filled_[column] || sink.spec_[column].path != here) continue;
                put(sink.columns_[column], f);
                sink.filled_[column] = 1;
                --left;
            }
        }
        pop();
        return left > 0 ? 1 : 0;
    }
};

void ColumnSink::walk_item(const AstDataItem &item, const ItemGroup &group) {
    ColumnWalk walk(*this, group.columns);
    ast_dataitem_walk_fields(
        &item, [](void *context, const AstField *f) { return static_cast<ColumnWalk *>(context)->visit(*f); }, &walk);
}

void ColumnSink::record(const kovrel_tool::RecordView &v) {
    const AstDataRecord &r = *v.record;
    if (ask_) reader_.read(fields_, r, ask_);
    if (!groups_.empty()) {
        std::fill(filled_.begin(), filled_.end(), 0);
        for (uint64_t i = 0; i < r.item_count && i < AST_DATARECORD_MAX_ITEMS; ++i) {
            const int g = group_of(r.items[i].id);
            if (g >= 0) walk_item(r.items[i], groups_[static_cast<size_t>(g)]);
        }
    }
    for (size_t i = 0; i < spec_.size(); ++i) {
        const CsvColumn &c = spec_[i];
        Column &col = columns_[i];
        switch (c.kind) {
        case CsvColumn::ItemPath:
            if (!filled_[i]) col.put_missing();
            break;
        case CsvColumn::Field: {
            if (!fields_.has(c.field)) {
                col.put_missing();
                break;
            }
            if (c.field == RecordField::Tod) {
                col.put_real(static_cast<double>(fields_.tod.raw) * fields_.tod.lsb);
                break;
            }
            char scratch[kovrel_tool::kFieldScratch];
            const kovrel_tool::FieldValue value = kovrel_tool::record_field_value(fields_, c.field, scratch);
            switch (value.kind) {
            case kovrel_tool::FieldValue::Unsigned:
                if (col.kind == Column::Text) {
                    char buf[32];
                    col.put_text(int_text(static_cast<int64_t>(value.u), buf));
                } else {
                    col.put_int(static_cast<int64_t>(value.u));
                }
                break;
            case kovrel_tool::FieldValue::Real: col.put_real(value.real); break;
            case kovrel_tool::FieldValue::Text: col.put_text(std::string_view(value.text, value.length)); break;
            }
            break;
        }
        case CsvColumn::Record:
            switch (c.record) {
            case kInput: col.put_text(v.input); break;
            case kBlock: col.put_int(static_cast<int64_t>(v.block)); break;
            case kOffset: col.put_int(static_cast<int64_t>(v.where.offset)); break;
            case kPacket:
                if (v.where.packet) col.put_int(static_cast<int64_t>(v.where.packet));
                else col.put_missing();
                break;
            case kTime: col.put_real(v.where.packet ? v.time : kNaN); break;
            case kCat: col.put_int(r.category); break;
            case kUap: col.put_text(label_(r)); break;
            case kRecord: col.put_int(static_cast<int64_t>(v.number)); break;
            case kLength:
                if (r.valid) col.put_int(static_cast<int64_t>(r.length));
                else col.put_missing();
                break;
            case kItemCount: col.put_int(static_cast<int64_t>(r.item_count)); break;
            case kValid: col.put_bool(r.valid != 0); break;
            case kBlockValid: col.put_bool(v.block_valid); break;
            }
            break;
        }
    }
    ++rows_;
}

}  // namespace kovrel_py
