#include "columns.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "field_path.h"

namespace kovrel_py {
namespace {

using kovrel_tool::CsvColumn;
using kovrel_tool::RecordField;

// The record columns in the order output_csv.cpp numbers them.
enum ViewColumn {
    kInput, kBlock, kOffset, kPacket, kTime, kCat, kUap, kRecord, kLength, kItemCount, kValid, kBlockValid
};

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr int64_t kNoTime = std::numeric_limits<int64_t>::min();  // NaT

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

using Source = ColumnSink::Source;

Source view_source(int record) {
    switch (record) {
    case kInput: return Source::Input;
    case kBlock: return Source::Block;
    case kOffset: return Source::Offset;
    case kPacket: return Source::Packet;
    case kTime: return Source::Time;
    case kCat: return Source::Cat;
    case kUap: return Source::Uap;
    case kRecord: return Source::Record;
    case kLength: return Source::Length;
    case kItemCount: return Source::ItemCount;
    case kValid: return Source::Valid;
    default: return Source::BlockValid;
    }
}

Source field_source(RecordField f) {
    switch (f) {
    case RecordField::Sac: return Source::Sac;
    case RecordField::Sic: return Source::Sic;
    case RecordField::Track: return Source::Track;
    case RecordField::Tod: return Source::Tod;
    case RecordField::MsgType: return Source::MsgType;
    case RecordField::Mode3a: return Source::Mode3a;
    case RecordField::Callsign: return Source::Callsign;
    case RecordField::Icao: return Source::Icao;
    default: return Source::RealField;
    }
}

// The member of a record field that is a real.
double kovrel_tool::RecordFields::*real_member(RecordField f) {
    using F = kovrel_tool::RecordFields;
    switch (f) {
    case RecordField::Fl: return &F::fl;
    case RecordField::SelAlt: return &F::sel_alt;
    case RecordField::Lat: return &F::lat;
    case RecordField::Lon: return &F::lon;
    case RecordField::Rho: return &F::rho;
    case RecordField::Theta: return &F::theta;
    case RecordField::Speed: return &F::speed;
    case RecordField::Heading: return &F::heading;
    case RecordField::Vx: return &F::vx;
    case RecordField::Vy: return &F::vy;
    case RecordField::Vrate: return &F::vrate;
    default: return nullptr;
    }
}

std::string_view int_text(int64_t v, char (&buf)[32]) {
    return {buf, static_cast<size_t>(std::to_chars(buf, buf + sizeof buf, v).ptr - buf)};
}

}  // namespace

void KeyCodes::grow() {
    std::vector<Slot> old(slots_.size() * 2);
    old.swap(slots_);
    used_ = 0;
    for (const Slot &s : old)
        if (s.used) at(s.key) = s.code;
}

int32_t TextTable::code(std::string_view text) {
    if (last_text_code_ >= 0 && texts_[static_cast<size_t>(last_text_code_)] == text) return last_text_code_;
    const auto it = by_text_.find(text);
    if (it != by_text_.end()) return last_text_code_ = it->second;
    const int32_t c = static_cast<int32_t>(texts_.size());
    texts_.emplace_back(text);
    by_text_.emplace(std::string_view(texts_.back()), c);
    return last_text_code_ = c;
}

size_t Column::size() const {
    switch (kind) {
    case Unknown: return pending;
    case Int:
    case Time:
    case Tod: return ints.size();
    case Bool: return bytes.size();
    case Text: return codes.size();
    default: return reals.size();
    }
}

void Column::reserve(size_t rows) {
    switch (kind) {
    case Unknown: break;
    case Int:
        ints.reserve(rows);
        if (nullable) bytes.reserve(rows);
        break;
    case Time:
    case Tod: ints.reserve(rows); break;
    case Bool: bytes.reserve(rows); break;
    case Text: codes.reserve(rows); break;
    default: reals.reserve(rows); break;
    }
}

void Column::put_missing() {
    switch (kind) {
    case Unknown: ++pending; break;
    case Int:
        ints.push_back(0);
        if (nullable) bytes.push_back(1);
        break;
    case Time:
    case Tod: ints.push_back(kNoTime); break;
    case Bool: bytes.push_back(0); break;
    case Text: codes.push_back(-1); break;
    default: reals.push_back(kNaN); break;
    }
}

void Column::put_int_other(int64_t v) {
    switch (kind) {
    case Unknown: become(Int); [[fallthrough]];
    case Int:
        ints.push_back(v);
        if (nullable) bytes.push_back(0);
        break;
    case Text: {
        char buf[32];
        put_text(int_text(v, buf));
        break;
    }
    case Bool: bytes.push_back(v != 0); break;
    case Time:
    case Tod: put_seconds(static_cast<double>(v)); break;
    default: reals.push_back(static_cast<double>(v)); break;
    }
}

void Column::put_real_other(double v) {
    switch (kind) {
    case Unknown: become(Real); break;
    case Int: become(Real); break;
    case Time:
    case Tod: put_seconds(v); return;
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

void Column::put_seconds(double seconds) {
    // Rounded half to even, as numpy rounds.
    ints.push_back(std::isfinite(seconds) && std::fabs(seconds) < 9e9 ? static_cast<int64_t>(std::nearbyint(seconds * 1e9))
                                                                     : kNoTime);
}

void Column::put_bool(bool v) {
    if (kind == Bool) bytes.push_back(v ? 1 : 0);
    else put_int(v ? 1 : 0);
}

void Column::put_text(std::string_view v) {
    if (kind != Text) become(Text);
    codes.push_back(texts.code(v));
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
    const auto has = [this](size_t i) { return !nullable || bytes[i] == 0; };
    if (kind == Int && to == Real) {
        reals.resize(ints.size());
        for (size_t i = 0; i < ints.size(); ++i) reals[i] = has(i) ? static_cast<double>(ints[i]) : kNaN;
        ints.clear();
        bytes.clear();
        kind = Real;
        return;
    }
    if (to == Text && (kind == Int || kind == Real)) {
        // Numbers met before the first text keep their CSV text.
        std::vector<int64_t> old_ints;
        std::vector<double> old_reals;
        std::vector<uint8_t> old_bytes;
        old_ints.swap(ints);
        old_reals.swap(reals);
        old_bytes.swap(bytes);
        const Kind was = kind;
        const bool had_mask = nullable;
        kind = Text;
        const size_t rows = was == Int ? old_ints.size() : old_reals.size();
        codes.reserve(rows);
        for (size_t i = 0; i < rows; ++i) {
            if (was == Int) {
                if (!had_mask || old_bytes[i] == 0) put_int(old_ints[i]);
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
    fills_.resize(spec_.size());
    for (size_t i = 0; i < spec_.size(); ++i) {
        const CsvColumn &c = spec_[i];
        Column &col = columns_[i];
        Fill &fill = fills_[i];
        col.name = c.name;
        switch (c.kind) {
        case CsvColumn::Record: {
            bool nullable = true;
            const Column::Kind kind = view_kind(c.record, nullable);
            col.nullable = nullable;
            col.become(kind);
            fill.source = view_source(c.record);
            break;
        }
        case CsvColumn::Field:
            col.become(field_kind(c.field));
            fill.source = field_source(c.field);
            fill.ask = kovrel_tool::record_field_accessor(c.field);
            fill.real = real_member(c.field);
            ask_ |= fill.ask;
            break;
        case CsvColumn::ItemPath: {
            fill.source = Source::ItemPath;
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
struct ColumnWalk : kovrel_tool::FieldPath {
    ColumnWalk(ColumnSink &s, const std::vector<size_t> &c) : sink(s), columns(c), left(c.size()) {}

    ColumnSink &sink;
    const std::vector<size_t> &columns;
    size_t left;

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

// A record field's value. Texts are coded by their raw number; the text
// itself is formatted once per distinct value.
void ColumnSink::put_field(Column &col, const Fill &fill) {
    const kovrel_tool::RecordFields &f = fields_;
    if (!(f.answered & fill.ask)) {
        col.put_missing();
        return;
    }
    const auto text_of = [&f](RecordField field, char (&scratch)[kovrel_tool::kFieldScratch]) {
        const kovrel_tool::FieldValue v = kovrel_tool::record_field_value(f, field, scratch);
        if (v.kind == kovrel_tool::FieldValue::Text) return std::string_view(v.text, v.length);
        const char *end = std::to_chars(scratch, scratch + sizeof scratch, v.u).ptr;
        return std::string_view(scratch, static_cast<size_t>(end - scratch));
    };
    // Codes of the fields whose text depends on one number only.
    const auto coded = [&](RecordField field, uint64_t key) {
        char scratch[kovrel_tool::kFieldScratch];
        col.put_code(col.texts.code_of(key, [&] { return text_of(field, scratch); }));
    };
    switch (fill.source) {
    case Source::Sac: col.put_int(f.sac); break;
    case Source::Sic: col.put_int(f.sic); break;
    case Source::Track: col.put_int(f.track); break;
    case Source::Tod: col.put_seconds(static_cast<double>(f.tod.raw) * f.tod.lsb); break;
    case Source::MsgType: coded(RecordField::MsgType, f.msgtype); break;
    case Source::Mode3a: coded(RecordField::Mode3a, f.mode3a); break;
    case Source::Icao: coded(RecordField::Icao, f.icao); break;
    case Source::Callsign: {
        // Up to eight characters, none of them NUL: packed into eight
        // octets (zeros after a shorter one), they tell callsigns apart.
        uint64_t key = 0;
        std::memcpy(&key, f.callsign, f.callsign_length < 8 ? f.callsign_length : 8);
        col.put_code(col.texts.code_of(key, [&] { return std::string_view(f.callsign, f.callsign_length); }));
        break;
    }
    case Source::RealField: col.put_real(f.*fill.real); break;
    default: col.put_missing(); break;
    }
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
    for (size_t i = 0; i < fills_.size(); ++i) {
        const Fill &fill = fills_[i];
        Column &col = columns_[i];
        switch (fill.source) {
        case Source::Input: col.put_text(v.input); break;
        case Source::Block: col.put_int(static_cast<int64_t>(v.block)); break;
        case Source::Offset: col.put_int(static_cast<int64_t>(v.where.offset)); break;
        case Source::Packet:
            if (v.where.packet) col.put_int(static_cast<int64_t>(v.where.packet));
            else col.put_missing();
            break;
        case Source::Time:
            if (v.where.packet) col.put_seconds(v.time);
            else col.put_missing();
            break;
        case Source::Cat: col.put_int(r.category); break;
        case Source::Uap: {
            // The label's address tells labels apart: they are kept texts.
            const char *label = label_(r);
            col.put_code(col.texts.code_of(reinterpret_cast<uintptr_t>(label),
                                           [label] { return std::string_view(label ? label : ""); }));
            break;
        }
        case Source::Record: col.put_int(static_cast<int64_t>(v.number)); break;
        case Source::Length:
            if (r.valid) col.put_int(static_cast<int64_t>(r.length));
            else col.put_missing();
            break;
        case Source::ItemCount: col.put_int(static_cast<int64_t>(r.item_count)); break;
        case Source::Valid: col.put_bool(r.valid != 0); break;
        case Source::BlockValid: col.put_bool(v.block_valid); break;
        case Source::ItemPath:
            if (!filled_[i]) col.put_missing();
            break;
        default: put_field(col, fill); break;
        }
    }
    ++rows_;
}

}  // namespace kovrel_py
