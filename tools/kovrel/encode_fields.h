// `kovrel encode`: the record "fields" of a JSON line (what `kovrel decode`
// shows of a record: sac, sic, tod, track, ...) turned into item values of
// the record's category. Each category that has record fields has one
// reader (encode_fields_NNN.cpp), found by reader_for; the value parsers
// here are shared by all of them.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <kovrel/kovrel.h>
#include <nlohmann/json.hpp>

namespace kovrel_tool::record_fields {

using nlohmann::json;

// A value that cannot be written; the text says why ("fl: not a number").
struct BadField : std::runtime_error {
    using std::runtime_error::runtime_error;
};
[[noreturn]] void bad(const std::string &key, const std::string &why);

// ---- Value parsers: each throws BadField naming the key ----
double number(const json &f, const char *key);
// A whole number from lo to hi.
long long whole(const json &f, const char *key, long long lo, long long hi);
// value / lsb rounded to the nearest step, which must lie in [lo, hi].
long long steps(const json &f, const char *key, double lsb, long long lo, long long hi);
// An azimuth in steps of 360/65536 degree, modulo 360.
uint32_t azimuth(const json &f, const char *key);
std::string text(const json &f, const char *key);
// A string of 1 to `most` digits of `base` (8 or 16).
uint32_t digits(const json &f, const char *key, int base, size_t most);
// Seconds since midnight from "tod": "HH:MM:SS[.fff]" or a number.
double seconds_of_day(const json &f);
// "tod" in 1/128 s, rounded to the nearest step, modulo one day.
uint32_t time_of_day_raw(const json &f);
// Both keys or neither; true when both are there.
bool pair(const json &f, const char *a, const char *b);
// Refuses any key that is not one of `known`.
void only_known(const json &f, std::initializer_list<const char *> known);
// A callsign of up to 8 characters A-Z, 0-9 or blank.
std::string callsign(const json &f, const char *key);

// The item values a reader made; `storage` keeps what they point to.
struct FieldValues {
    std::vector<AstDataItemValue> values;
    std::vector<std::shared_ptr<void>> storage;

    // A zeroed structure of type T, kept alive with the values.
    template <typename T>
    T &make() {
        auto p = std::make_shared<T>();
        storage.push_back(p);
        return *p;
    }
    void add(AstItemId id, void *value) { values.push_back(AstDataItemValue{1, id, value}); }
};

// Reads a record's "fields" object into item values. `with_items`: the line
// also gives items, so only what the fields name is written (and nothing is
// required). `uap` is the record's profile (categories with several
// editions pick their items by it). Throws BadField.
using Reader = void (*)(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);

// The reader of a category, or nullptr when its records take items only.
Reader reader_for(uint32_t category);

void read_fields_008(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_010(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_015(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_016(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_019(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_020(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_001(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_002(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_021(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_034(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_048(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);
void read_fields_062(const json &fields, bool with_items, const AstUap &uap, FieldValues &out);

}  // namespace kovrel_tool::record_fields
