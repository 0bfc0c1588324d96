// A JSON writer that streams into an OutBuffer: no tree, no allocation per
// value. Its texts are those nlohmann-json's dump() gave when the tool
// built its JSON with that library, so that outputs compare:
//   strings   '"', '\' and control characters escaped (\b \f \n \r \t, the
//             others as \u00xx); UTF-8 kept as it is; octets that are not
//             UTF-8 (hostile input reaches summaries) replaced by U+FFFD,
//             one per broken sequence;
//   reals     always with a '.' or an exponent ("35025.0", "12.50390625",
//             "1e-05", "1.5e+16"), laid out as nlohmann lays them out, in the
//             shortest digits that read back the same double (where
//             nlohmann's digits are one longer, the value is still the
//             same); NaN and infinities as null;
//   integers  in decimal.
// The output is valid JSON whatever the input octets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "out_buffer.h"

namespace kovrel_tool {

// How many leading characters of text a JSON string carries as they are
// (printable ASCII other than '"' and '\\').
size_t json_plain_prefix(const char *text, size_t length);

// Appends text as a JSON string, quotes included.
void put_json_string(OutBuffer &out, const char *text, size_t length);
inline void put_json_string(OutBuffer &out, std::string_view text) {
    put_json_string(out, text.data(), text.size());
}

// Writes a real as JSON into text (at least 32 characters); returns the
// characters written.
size_t format_json_real(char *text, double value);
void put_json_real(OutBuffer &out, double value);

// Objects and arrays with their commas. Keys are plain ASCII names written
// as they are; every value goes through the escaping above.
class JsonWriter {
public:
    explicit JsonWriter(OutBuffer &out) : out_(out) {}

    void begin_object() { open('{'); }
    void end_object() { close('}'); }
    void begin_array() { open('['); }
    void end_array() { close(']'); }

    // "name": (with the comma before it when it is not the first member).
    void key(std::string_view name) {
        char *p = out_.room(name.size() + 4);
        char *const start = p;
        if (!first_[depth_]) *p++ = ',';
        first_[depth_] = false;
        *p++ = '"';
        std::memcpy(p, name.data(), name.size());
        p += name.size();
        *p++ = '"';
        *p++ = ':';
        out_.advance(static_cast<size_t>(p - start));
        after_key_ = true;
    }

    void string(std::string_view text) {
        value();
        put_json_string(out_, text);
    }
    void unsigned_number(uint64_t v) {
        value();
        out_.put_unsigned(v);
    }
    void signed_number(int64_t v) {
        value();
        out_.put_signed(v);
    }
    void real(double v) {
        value();
        put_json_real(out_, v);
    }
    void boolean(bool v) {
        value();
        out_.put(v ? std::string_view("true") : std::string_view("false"));
    }
    void null() {
        value();
        out_.put(std::string_view("null"));
    }
    // A value that is already JSON text.
    void raw(std::string_view json) {
        value();
        out_.put(json);
    }

    OutBuffer &out() { return out_; }
    // Forgets the state of a value started and then taken back (the caller
    // truncated the buffer to before its key).
    void retract_member(bool was_first) { first_[depth_] = was_first; }
    bool at_first_member() const { return first_[depth_]; }

private:
    static constexpr int kMaxDepth = 32;

    void open(char c);
    void close(char c);
    // Before a value: the comma between array elements; a value after a key
    // needs none.
    void value() {
        if (after_key_) {
            after_key_ = false;
            return;
        }
        if (!first_[depth_]) out_.put(',');
        first_[depth_] = false;
    }

    OutBuffer &out_;
    bool first_[kMaxDepth + 1] = {true};
    int depth_ = 0;
    bool after_key_ = false;
};

}  // namespace kovrel_tool
