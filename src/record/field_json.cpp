// One item's fields as a compact JSON object, written straight into the
// caller's buffer while walking.
#include <charconv>
#include <cmath>
#include <cstring>

#include "record/field_desc.h"
#include "record/field_read.h"

namespace {

using namespace kovrel::fields;

// Appends to a bounded buffer and counts what the whole text needs.
// Writes v in base (8, 10 or 16, upper-case digits) at the end of a
// 24-character text, zero-padded to width; returns the number of characters.
size_t digits(char (&text)[24], uint64_t v, unsigned base, size_t width) {
    static const char kDigits[] = "0123456789ABCDEF";
    size_t n = 0;
    do {
        text[sizeof text - 1 - n++] = kDigits[v % base];
        v /= base;
    } while (v != 0);
    while (n < width && n < sizeof text) text[sizeof text - 1 - n++] = '0';
    return n;
}

class JsonOut {
public:
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
        char text[24];
        const size_t n = digits(text, v, 10, 0);
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
        char text[32];
        const auto r = std::to_chars(text, text + sizeof text, v);
        put(text, static_cast<size_t>(r.ptr - text));
    }
    // A number shown in a fixed radix as a string: "7700", "3C654A".
    void radix(uint64_t v, unsigned base, size_t width) {
        char text[24];
        const size_t n = digits(text, v, base, width);
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

void separator(JsonState &s, const char *name) {
    if (!s.first[s.depth]) s.out.put(',');
    s.first[s.depth] = false;
    if (!s.array[s.depth] && name) {
        s.out.string(name, std::strlen(name));
        s.out.put(':');
    }
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
    return write_object(buffer, size, [&](JsonState *s) { return walk_value(d, value, visit, s); });
}

}  // namespace kovrel::fields

extern "C" {

KOVREL_API size_t ast_dataitem_get_fields_json(char *buffer, size_t size, const AstDataItem *item) {
    return write_object(buffer, size, [&](JsonState *s) { return ast_dataitem_walk_fields(item, visit, s); });
}

KOVREL_API size_t ast_datavalue_get_fields_json(char *buffer, size_t size, const AstDataItemValue *value) {
    return write_object(buffer, size, [&](JsonState *s) { return ast_datavalue_walk_fields(value, visit, s); });
}

}  // extern "C"
