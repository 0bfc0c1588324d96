// One item's fields as a compact JSON object, written straight into the
// caller's buffer while walking.
#include <charconv>
#include <cmath>
#include <cstring>

#include "record/field_desc.h"
#include "record/field_read.h"
#include "record/item_table.h"

namespace {

using namespace kovrel::fields;

// Writes v in base (8, 10 or 16, upper-case digits) at the end of a
// 24-character text, zero-padded to width; returns the number of characters.
// The base is a template argument so that the division is by a constant.
template <unsigned Base>
size_t digits(char (&text)[24], uint64_t v, size_t width = 0) {
    static const char kDigits[] = "0123456789ABCDEF";
    size_t n = 0;
    do {
        text[sizeof text - 1 - n++] = kDigits[v % Base];
        v /= Base;
    } while (v != 0);
    while (n < width && n < sizeof text) text[sizeof text - 1 - n++] = '0';
    return n;
}

// Most scaled ASTERIX values are whole multiples of a power of two (1/256
// NM, 360/2^16 degrees, 1/128 s): such a value below 2^31 with a step of at
// least 2^-24 is written exactly in fixed notation, which with at most 15
// significant digits is also the shortest text that reads back as the same
// double. Returns the length written at text, or 0 for any other value
// (std::to_chars then writes it).
size_t dyadic(char *text, double v) {
    constexpr int kBits = 24;
    const double scaled = v * 16777216.0;
    if (!(std::fabs(v) < 2147483648.0) || (v == 0 && std::signbit(v))) return 0;
    const auto m = static_cast<int64_t>(scaled);  // exact: |scaled| < 2^55
    if (static_cast<double>(m) != scaled) return 0;
    uint64_t a = m < 0 ? static_cast<uint64_t>(-m) : static_cast<uint64_t>(m);
    uint64_t whole = a >> kBits;
    uint64_t fraction = a & ((uint64_t{1} << kBits) - 1);
    size_t n = 0;
    if (m < 0) text[n++] = '-';
    size_t int_count = 1;
    for (uint64_t t = whole; t >= 10; t /= 10) ++int_count;
    size_t significant = whole != 0 ? int_count : 0;
    for (size_t i = int_count; i-- > 0; whole /= 10) text[n + i] = static_cast<char>('0' + whole % 10);
    n += int_count;
    if (fraction != 0) {
        text[n++] = '.';
        while (fraction != 0) {
            fraction *= 10;
            const auto d = static_cast<unsigned>(fraction >> kBits);
            fraction &= (uint64_t{1} << kBits) - 1;
            if (significant > 0 || d != 0) ++significant;
            text[n++] = static_cast<char>('0' + d);
        }
    }
    return significant <= 15 ? n : 0;
}

// Appends to a bounded buffer and counts what the whole text needs.
class JsonOut {
public:
    static constexpr size_t kShortKey = 32;

    JsonOut(char *buffer, size_t size) : buf_(buffer), size_(buffer ? size : 0) {}

    void put(char c) {
        if (need_ + 1 < size_) buf_[need_] = c;
        ++need_;
    }
    void put(const char *text, size_t n) {
        if (need_ + 1 < size_) {
            const size_t room = size_ - 1 - need_;
            std::memcpy(buf_ + need_, text, n < room ? n : room);
        }
        need_ += n;
    }
    void put(const char *text) { put(text, std::strlen(text)); }

    void string(const char *text, size_t n) {
        static const char kHex[] = "0123456789abcdef";
        put('"');
        size_t run = 0;  // characters that need no escape, written in one go
        for (size_t i = 0; i < n; ++i) {
            const auto c = static_cast<unsigned char>(text[i]);
            if (c >= 0x20 && c < 0x7F && c != '"' && c != '\\') {
                ++run;
                continue;
            }
            put(text + i - run, run);
            run = 0;
            if (c == '"' || c == '\\') {
                const char esc[2] = {'\\', static_cast<char>(c)};
                put(esc, 2);
            } else {
                // Control characters and octets outside ASCII: the text is
                // not UTF-8 by nature, so each octet stands for its code point.
                const char esc[6] = {'\\', 'u', '0', '0', kHex[c >> 4], kHex[c & 0xF]};
                put(esc, 6);
            }
        }
        put(text + n - run, run);
        put('"');
    }

    // A key: names come from the library's own tables (lower-case letters,
    // digits and '_'), so they need no escape and are written with their
    // quotes and colon in one go.
    void key(const char *name) {
        if (need_ + kShortKey + 3 < size_) {
            char *at = buf_ + need_;
            *at++ = '"';
            size_t n = 0;
            for (; n < kShortKey && name[n] != '\0'; ++n) at[n] = name[n];
            if (name[n] == '\0') {
                at[n] = '"';
                at[n + 1] = ':';
                need_ += n + 3;
                return;
            }
        }
        put('"');
        put(name);
        put('"');
        put(':');
    }

    void hex(const uint8_t *octets, size_t n) {
        static const char kHex[] = "0123456789ABCDEF";
        put('"');
        for (size_t i = 0; octets && i < n; ++i) {
            const char two[2] = {kHex[octets[i] >> 4], kHex[octets[i] & 0xF]};
            put(two, 2);
        }
        put('"');
    }

    // Integers are written by hand: the integer std::to_chars keeps digit
    // tables in function-local statics that a shared object would export.
    void unsigned_number(uint64_t v) {
        if (v < 10 && need_ + 1 < size_) {  // flags and small codes: most numbers
            buf_[need_++] = static_cast<char>('0' + v);
            return;
        }
        char text[24];
        const size_t n = digits<10>(text, v);
        put(text + sizeof text - n, n);
    }
    void signed_number(int64_t v) {
        if (v < 0) put('-');
        unsigned_number(v < 0 ? static_cast<uint64_t>(0) - static_cast<uint64_t>(v) : static_cast<uint64_t>(v));
    }
    void real(double v) {
        if (!std::isfinite(v)) {
            put("null", 4);
            return;
        }
        // Written in place when the buffer has room for any real (at most
        // 48 characters: 24 digits after the point at most, or to_chars' 24).
        char text[48];
        char *at = need_ + sizeof text < size_ ? buf_ + need_ : text;
        size_t n = dyadic(at, v);
        if (n == 0) n = static_cast<size_t>(std::to_chars(at, at + sizeof text, v).ptr - at);
        if (at == text)
            put(text, n);
        else
            need_ += n;
    }

    // A number shown in a fixed radix as a string: "7700", "3C654A".
    void radix(uint64_t v, unsigned base, size_t width) {
        char text[24];
        const size_t n = base == 8 ? digits<8>(text, v, width) : digits<16>(text, v, width);
        put('"');
        put(text + sizeof text - n, n);
        put('"');
    }

    size_t finish() {
        if (size_ > 0) buf_[need_ < size_ ? need_ : size_ - 1] = '\0';
        return need_;
    }

private:
    char *buf_;
    size_t size_;
    size_t need_ = 0;
};

struct JsonState {
    JsonOut out;
    bool first[kMaxDepth + 2] = {true};
    bool array[kMaxDepth + 2] = {false};
    uint32_t depth = 0;  // 0 is the item object itself
};

inline __attribute__((always_inline)) void separator(JsonState &s, const char *name) {
    if (!s.first[s.depth]) s.out.put(',');
    s.first[s.depth] = false;
    if (!s.array[s.depth] && name) s.out.key(name);
}

int visit(void *context, const AstField *f) {
    auto &s = *static_cast<JsonState *>(context);
    switch (f->kind) {
    case AST_FIELD_GROUP_END:
    case AST_FIELD_ARRAY_END:
        if (s.depth > 0) --s.depth;
        s.out.put(f->kind == AST_FIELD_GROUP_END ? '}' : ']');
        return 1;
    case AST_FIELD_GROUP_BEGIN:
    case AST_FIELD_ARRAY_BEGIN: {
        separator(s, f->name);
        const bool is_array = f->kind == AST_FIELD_ARRAY_BEGIN;
        s.out.put(is_array ? '[' : '{');
        if (s.depth + 1 >= kMaxDepth + 2) return 0;
        ++s.depth;
        s.first[s.depth] = true;
        s.array[s.depth] = is_array;
        return 1;
    }
    default:
        break;
    }
    separator(s, f->name);
    switch (f->kind) {
    case AST_FIELD_FLAG:
    case AST_FIELD_UNSIGNED:
    case AST_FIELD_ENUM:
        if (f->format == AST_FIELD_FORMAT_OCTAL4)
            s.out.radix(f->u, 8, 4);
        else if (f->format == AST_FIELD_FORMAT_HEX6)
            s.out.radix(f->u, 16, 6);
        else
            s.out.unsigned_number(f->u);
        break;
    case AST_FIELD_SIGNED: s.out.signed_number(f->i); break;
    case AST_FIELD_REAL: s.out.real(f->real); break;
    case AST_FIELD_TEXT: s.out.string(f->text ? f->text : "", f->text ? f->length : 0); break;
    case AST_FIELD_OCTETS: s.out.hex(f->octets, f->length); break;
    default: s.out.put("null", 4); break;
    }
    return 1;
}

// The JSON of a description written directly, without building a field for
// each value: the same text the visitor above writes for the same walk,
// at a fraction of the cost. Custom rows go through the visitor.
bool json_walk(JsonState &s, const FieldDesc &d, const void *base);

void json_number(JsonState &s, const FieldRow &row, uint64_t v) {
    if (row.format == AST_FIELD_FORMAT_OCTAL4)
        s.out.radix(v, 8, 4);
    else if (row.format == AST_FIELD_FORMAT_HEX6)
        s.out.radix(v, 16, 6);
    else
        s.out.unsigned_number(v);
}

bool json_open(JsonState &s, const char *name, bool is_array) {
    separator(s, name);
    s.out.put(is_array ? '[' : '{');
    ++s.depth;
    s.first[s.depth] = true;
    s.array[s.depth] = is_array;
    return true;
}

void json_close(JsonState &s) {
    s.out.put(s.array[s.depth] ? ']' : '}');
    --s.depth;
}

bool json_row(JsonState &s, const FieldRow &row, const void *base) {
    if (!row_present(row, base)) return true;
    const auto *at = static_cast<const uint8_t *>(base) + row.m.offset;
    switch (row.kind) {
    case AST_FIELD_FLAG:
        separator(s, row.name);
        s.out.put((read_unsigned(row.m, base) != 0) != row.invert ? '1' : '0');
        return true;
    case AST_FIELD_UNSIGNED:
    case AST_FIELD_ENUM:
        separator(s, row.name);
        json_number(s, row, read_unsigned(row.m, base));
        return true;
    case AST_FIELD_SIGNED:
        separator(s, row.name);
        s.out.signed_number(read_signed(row.m, base));
        return true;
    case AST_FIELD_REAL:
        separator(s, row.name);
        s.out.real(read_real(row, base));
        return true;
    case AST_FIELD_TEXT: {
        separator(s, row.name);
        const auto *chars = reinterpret_cast<const char *>(at);
        s.out.string(chars, strnlen(chars, row.m.size));
        return true;
    }
    case AST_FIELD_OCTETS:
        separator(s, row.name);
        s.out.hex(at, row.m.size);
        return true;
    case kKindOctetsPtr: {
        const uint8_t *data = nullptr;
        std::memcpy(&data, at, sizeof data);
        separator(s, row.name);
        s.out.hex(data, data ? static_cast<size_t>(read_unsigned(row.count, base)) : 0);
        return true;
    }
    case kKindGroup:
        if (s.depth >= kMaxDepth || !row.nested) return true;
        json_open(s, row.name, false);
        if (!json_walk(s, *row.nested, at)) return false;
        json_close(s);
        return true;
    case kKindArray: {
        if (s.depth >= kMaxDepth || !row.nested) return true;
        uint64_t count = read_unsigned(row.count, base);
        if (count > row.max) count = row.max;
        const FieldDesc &element = *row.nested;
        const bool values = element.row_count == 1 && element.rows[0].name == nullptr;
        json_open(s, row.name, true);
        for (uint64_t i = 0; i < count; ++i) {
            const uint8_t *item = at + i * row.stride;
            if (values) {
                if (!json_row(s, element.rows[0], item)) return false;
                continue;
            }
            json_open(s, nullptr, false);
            if (!json_walk(s, element, item)) return false;
            json_close(s);
        }
        json_close(s);
        return true;
    }
    case kKindCustom: {
        if (s.depth >= kMaxDepth || !row.custom) return true;
        Walker w(visit, &s, s.depth);
        w.set_direct([](void *context, const FieldDesc &d, const void *value) {
            return json_walk(*static_cast<JsonState *>(context), d, value);
        });
        return row.custom(w, row, base);
    }
    default:
        return true;
    }
}

bool json_walk(JsonState &s, const FieldDesc &d, const void *base) {
    for (size_t i = 0; i < d.row_count; ++i)
        if (!json_row(s, d.rows[i], base)) return false;
    return true;
}

}  // namespace

namespace {

// Writes the object for one walk; 0 and the empty text when the walk did not
// finish.
template <typename Walk>
size_t write_object(char *buffer, size_t size, Walk walk) {
    JsonState s{JsonOut(buffer, size)};
    s.out.put('{');
    if (walk(&s) != AST_FIELDS_DONE) {
        if (buffer && size > 0) buffer[0] = '\0';
        return 0;
    }
    // Groups left open by a walk that went too deep are closed.
    while (s.depth > 0) {
        s.out.put(s.array[s.depth] ? ']' : '}');
        --s.depth;
    }
    s.out.put('}');
    return s.out.finish();
}

}  // namespace

namespace kovrel::fields {

size_t write_json(char *buffer, size_t size, const FieldDesc &d, const void *value) {
    return write_object(buffer, size,
                        [&](JsonState *s) { return json_walk(*s, d, value) ? AST_FIELDS_DONE : AST_FIELDS_STOPPED; });
}

}  // namespace kovrel::fields

extern "C" {

KOVREL_API size_t ast_dataitem_get_fields_json(char *buffer, size_t size, const AstDataItem *item) {
    if (!item) return write_object(buffer, size, [](JsonState *) { return AST_FIELDS_INVALID; });
    const kovrel::ItemRow *row = kovrel::find_item_row(item->id);
    if (!row || !row->decode_ex || !row->fields || item->valid != 1 || (!item->data && item->length > 0))
        return write_object(buffer, size, [](JsonState *) { return AST_FIELDS_NONE; });
    alignas(std::max_align_t) unsigned char storage[kMaxStorage];
    AstDataItemValue value{};
    row->decode_ex(&value, storage, sizeof storage, item);
    if (value.valid != 1 || !value.value) return write_object(buffer, size, [](JsonState *) { return AST_FIELDS_INVALID; });
    return kovrel::fields::write_json(buffer, size, *row->fields, value.value);
}

KOVREL_API size_t ast_datavalue_get_fields_json(char *buffer, size_t size, const AstDataItemValue *value) {
    const FieldDesc *d = value ? find_fields(value->id) : nullptr;
    if (!d || value->valid != 1 || !value->value)
        return write_object(buffer, size, [](JsonState *) { return AST_FIELDS_NONE; });
    return kovrel::fields::write_json(buffer, size, *d, value->value);
}

}  // extern "C"
