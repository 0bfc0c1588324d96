#include "encode_json.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "profiles.h"

namespace kovrel_tool {
namespace {

using nlohmann::json;

// A value that cannot be written; the text says why.
struct BadField : std::runtime_error {
    using std::runtime_error::runtime_error;
};

[[noreturn]] void bad(const std::string &key, const std::string &why) { throw BadField(key + ": " + why); }

std::string id_text(AstItemId id) {
    char text[16];
    ast_dataitem_type_to_str(text, sizeof text, id);
    return text;
}

// ---- Record fields (CAT048) -------------------------------------------------

double number(const json &f, const char *key) {
    const json &v = f.at(key);
    if (!v.is_number()) bad(key, "not a number");
    return v.get<double>();
}

long long whole(const json &f, const char *key, long long lo, long long hi) {
    const double d = number(f, key);
    if (d != std::floor(d) || d < static_cast<double>(lo) || d > static_cast<double>(hi))
        bad(key, "not a whole number from " + std::to_string(lo) + " to " + std::to_string(hi));
    return static_cast<long long>(d);
}

// value / lsb rounded to the nearest step, which must lie in [lo, hi].
long long steps(const json &f, const char *key, double lsb, long long lo, long long hi) {
    const double d = std::round(number(f, key) / lsb);
    if (d < static_cast<double>(lo) || d > static_cast<double>(hi)) bad(key, "out of range");
    return static_cast<long long>(d);
}

// An azimuth in steps of 360/65536 degree, modulo 360.
uint32_t azimuth(const json &f, const char *key) {
    const double d = number(f, key);
    if (std::fabs(d) > 1e6) bad(key, "out of range");
    return static_cast<uint32_t>(std::llround(d * 65536.0 / 360.0) & 0xFFFF);
}

std::string text(const json &f, const char *key) {
    const json &v = f.at(key);
    if (!v.is_string()) bad(key, "not a string");
    return v.get<std::string>();
}

// A string of 1 to `most` digits of `base` (8 or 16).
uint32_t digits(const json &f, const char *key, int base, size_t most) {
    const std::string s = text(f, key);
    const bool ok = !s.empty() && s.size() <= most && std::all_of(s.begin(), s.end(), [base](char c) {
        return base == 8 ? c >= '0' && c <= '7' : std::isxdigit(static_cast<unsigned char>(c)) != 0;
    });
    if (!ok) bad(key, "not 1 to " + std::to_string(most) + (base == 8 ? " octal" : " hexadecimal") + " digits");
    return static_cast<uint32_t>(std::stoul(s, nullptr, base));
}

// Seconds since midnight from "HH:MM:SS[.fff]" or a number.
double seconds_of_day(const json &f) {
    double seconds;
    if (f.at("tod").is_number()) {
        seconds = number(f, "tod");
    } else {
        const std::string s = text(f, "tod");
        auto digit = [&](size_t i) { return i < s.size() && std::isdigit(static_cast<unsigned char>(s[i])); };
        bool ok = digit(0) && digit(1) && s[2] == ':' && digit(3) && digit(4) && s[5] == ':' && digit(6) && digit(7);
        if (ok && s.size() > 8) {
            ok = s[8] == '.' && s.size() > 9;
            for (size_t i = 9; ok && i < s.size(); ++i) ok = digit(i);
        }
        const double h = ok ? std::stod(s.substr(0, 2)) : 0, m = ok ? std::stod(s.substr(3, 2)) : 0;
        const double sec = ok ? std::stod(s.substr(6)) : 0;
        if (!ok || h > 23 || m > 59 || sec >= 60) bad("tod", "not a time HH:MM:SS or HH:MM:SS.fff");
        seconds = h * 3600 + m * 60 + sec;
    }
    if (!(seconds >= 0 && seconds < 86400)) bad("tod", "not within the day");
    return seconds;
}

// Both keys or neither.
bool pair(const json &f, const char *a, const char *b) {
    if (f.contains(a) != f.contains(b)) throw BadField(std::string(a) + " and " + b + " go together");
    return f.contains(a);
}

// The CAT048 item values the record fields name, into `v`, listed in
// `values`. `with_items`: the line also gives items, so only what the
// fields name is written.
void record_fields_048(const json &f, bool with_items, AstRecord048 &v, std::vector<AstDataItemValue> &values) {
    // What the items take, then what the decoder shows but the items do not carry.
    static const char *const known[] = {"sac", "sic", "tod", "typ", "rho", "theta", "mode3a", "fl", "icao",
                                        "callsign", "track", "speed", "heading", "msgtype", "sel_alt", "lat",
                                        "lon", "vx", "vy", "vrate"};
    for (auto it = f.begin(); it != f.end(); ++it)
        if (std::none_of(std::begin(known), std::end(known), [&](const char *k) { return it.key() == k; }))
            bad(it.key(), "unknown field");
    auto add = [&](AstItemId id, void *value) { values.push_back(AstDataItemValue{1, id, value}); };

    if (pair(f, "sac", "sic")) {
        v.i010 = {1, static_cast<uint32_t>(whole(f, "sac", 0, 255)), static_cast<uint32_t>(whole(f, "sic", 0, 255))};
        add(48010, &v.i010);
    } else if (!with_items) {
        throw BadField("sac and sic are required");
    }

    if (f.contains("tod")) {
        // Rounded, not truncated: the decoder truncates to milliseconds, and
        // the nearest step keeps the time within half a step of what was given.
        const uint32_t raw = static_cast<uint32_t>(std::llround(seconds_of_day(f) * 128) % (86400 * 128));
        v.i140 = {1, raw, 1.0 / 128, raw / 128 / 3600, raw / 128 / 60 % 60, raw / 128 % 60, raw % 128 * 1000 / 128};
        add(48140, &v.i140);
    }

    if (f.contains("typ") || !with_items) {
        v.i020.valid = 1;
        v.i020.rdp = 1;
        v.i020.typ = f.contains("typ") ? static_cast<uint32_t>(whole(f, "typ", 0, 7)) : f.contains("icao") ? 5 : 2;
        add(48020, &v.i020);
    }

    if (pair(f, "rho", "theta")) {
        const uint32_t rho = static_cast<uint32_t>(steps(f, "rho", 1.0 / 256, 0, 0xFFFF));
        const uint32_t theta = azimuth(f, "theta");
        v.i040 = {1, rho, 1.0 / 256, rho / 256.0, theta, 360.0 / 65536, theta * 360.0 / 65536};
        add(48040, &v.i040);
    }
    if (f.contains("mode3a")) {
        v.i070.valid = 1;
        v.i070.code = digits(f, "mode3a", 8, 4);
        add(48070, &v.i070);
    }
    if (f.contains("fl")) {
        // Quarters of a flight level in 14 bits.
        v.i090 = {1, 1, 0, static_cast<int32_t>(steps(f, "fl", 25, -8192, 8191))};
        add(48090, &v.i090);
    }
    if (f.contains("icao")) {
        v.i220 = {1, digits(f, "icao", 16, 6)};
        if (v.i220.address == 0) bad("icao", "000000 cannot be written");
        add(48220, &v.i220);
    }
    if (f.contains("callsign")) {
        const std::string s = text(f, "callsign");
        if (s.size() > 8 || s.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ") != std::string::npos)
            bad("callsign", "not up to 8 characters A-Z, 0-9 or blank");
        v.i240.valid = 1;
        std::memcpy(v.i240.chars, s.c_str(), s.size() + 1);
        add(48240, &v.i240);
    }
    if (f.contains("track")) {
        v.i161 = {1, static_cast<uint32_t>(whole(f, "track", 0, 4095)), 1};
        add(48161, &v.i161);
    }
    // A heading alone is what the decoder reads from Mode S registers
    // (I048/250), which are not written: it is left out.
    if (f.contains("speed")) {
        if (!f.contains("heading")) throw BadField("speed needs heading");
        const double speed_lsb = 3600.0 / 16384;  // 2^-14 NM/s in knots
        const int32_t speed = static_cast<int32_t>(steps(f, "speed", speed_lsb, 0, 0xFFFF));
        const int32_t heading = static_cast<int32_t>(azimuth(f, "heading"));
        v.i200 = {1, speed, speed_lsb, speed * speed_lsb, heading, 360.0 / 65536, heading * 360.0 / 65536};
        add(48200, &v.i200);
    }
}

// The octets of a structured value; `what` names it in the error.
ItemOctets encode_value(const AstDataItemValue &value, const std::string &what) {
    std::vector<uint8_t> buffer(AST_DATABLOCK_MAX_LENGTH);
    AstDataItem item;
    ast_dataitem_encode(&item, buffer.data(), buffer.size(), &value);
    if (item.valid != 1 || item.length == 0 || item.length > buffer.size())
        throw BadField(what + ": the library cannot encode these values");
    buffer.resize(static_cast<size_t>(item.length));
    // What is written must delimit as the item, or the record would not
    // read back.
    AstDataItem span;
    ast_dataitem_scan(&span, buffer.data(), buffer.size(), value.id);
    if (span.valid != 1 || span.length != buffer.size())
        throw BadField(what + ": the library writes these values in " + std::to_string(buffer.size()) +
                       " octets but reads " + (span.valid == 1 ? std::to_string(span.length) : std::string("no item")) +
                       " back");
    return ItemOctets{value.id, std::move(buffer)};
}

// ---- Items by fields --------------------------------------------------------

const char *set_failure(int result) {
    switch (result) {
    case AST_FIELD_SET_UNKNOWN: return "unknown field";
    case AST_FIELD_SET_OUT_OF_RANGE: return "value out of range";
    case AST_FIELD_SET_WRONG_KIND: return "wrong kind of value";
    case AST_FIELD_SET_READ_ONLY: return "cannot be set by name";
    default: return "cannot be set";
    }
}

// Storage for one decoded structure, aligned for any member.
struct Storage {
    explicit Storage(size_t n) : size(n), words((n + sizeof(std::max_align_t) - 1) / sizeof(std::max_align_t)) {}
    void *data() { return words.data(); }
    size_t size;
    std::vector<std::max_align_t> words;
};

// Finds the field at a dotted path in a walk, and its format.
struct FieldFinder {
    const std::string *target = nullptr;
    std::vector<std::string> groups;  // names of the open groups and arrays
    bool found = false;
    uint32_t format = AST_FIELD_FORMAT_DECIMAL;

    static int visit(void *context, const AstField *f) {
        auto &self = *static_cast<FieldFinder *>(context);
        if (f->kind == AST_FIELD_GROUP_END || f->kind == AST_FIELD_ARRAY_END) {
            if (!self.groups.empty()) self.groups.pop_back();
            return 1;
        }
        // Elements of arrays have no name; nothing inside them has a path.
        std::string path;
        for (const auto &g : self.groups) path += g + ".";
        path += f->name ? f->name : "[]";
        if (f->kind == AST_FIELD_GROUP_BEGIN || f->kind == AST_FIELD_ARRAY_BEGIN) {
            self.groups.push_back(f->name ? f->name : "[]");
            return 1;
        }
        if (path != *self.target) return 1;
        self.found = true;
        self.format = f->format;
        return 0;
    }
};

// The format the walk shows the field at `path` with, once it is present:
// the field is set to 0 in a copy of the structure (which marks it and
// its groups present) and the copy is walked.
uint32_t shown_format(const Storage &storage, AstItemId id, const std::string &path) {
    Storage copy = storage;
    AstField zero{};
    zero.kind = AST_FIELD_UNSIGNED;
    if (ast_dataitem_fields_set(copy.data(), copy.size, id, path.c_str(), &zero) != AST_FIELD_SET_OK)
        return AST_FIELD_FORMAT_DECIMAL;
    FieldFinder finder;
    finder.target = &path;
    const AstDataItemValue value{1, id, copy.data()};
    ast_datavalue_walk_fields(&value, FieldFinder::visit, &finder);
    return finder.found ? finder.format : static_cast<uint32_t>(AST_FIELD_FORMAT_DECIMAL);
}

// The octets a JSON text stands for. The decoder writes each octet of a
// text outside printable ASCII as the code point of the same number, so a
// text whose code points are all below 256 is read back octet by octet;
// any other text is kept as its UTF-8 octets.
std::string text_octets(const std::string &utf8) {
    std::string out;
    for (size_t i = 0; i < utf8.size();) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        if (c < 0x80) {
            out += static_cast<char>(c);
            ++i;
        } else if ((c == 0xC2 || c == 0xC3) && i + 1 < utf8.size() &&
                   (static_cast<unsigned char>(utf8[i + 1]) & 0xC0) == 0x80) {
            out += static_cast<char>(((c & 0x03) << 6) | (static_cast<unsigned char>(utf8[i + 1]) & 0x3F));
            i += 2;
        } else {
            return utf8;
        }
    }
    return out;
}

// The value of a hexadecimal digit, -1 for any other character.
int hex_digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// A string of digits in base 8 or 16 (at most 64 bits' worth); false when
// it is not one.
bool radix_value(const std::string &s, int base, uint64_t &value, bool &too_large) {
    if (s.empty()) return false;
    value = 0;
    too_large = false;
    for (char c : s) {
        const int d = hex_digit(c);
        if (d < 0 || d >= base) return false;
        if (value > (UINT64_MAX >> (base == 8 ? 3 : 4))) too_large = true;
        value = value * static_cast<uint64_t>(base) + static_cast<uint64_t>(d);
    }
    return true;
}

class FieldSetter {
public:
    FieldSetter(AstItemId id, std::string id_text, Storage &storage)
        : id_(id), id_text_(std::move(id_text)), storage_(storage) {}

    // Sets every leaf of the object, its nested objects as groups.
    void set_all(const json &object, const std::string &prefix) {
        for (auto it = object.begin(); it != object.end(); ++it) {
            const std::string path = prefix + it.key();
            if (it->is_object())
                set_all(*it, path + ".");
            else
                set_leaf(path, *it);
        }
    }

private:
    [[noreturn]] void fail(const std::string &path, const std::string &why) const { bad(id_text_ + "." + path, why); }

    int set(const std::string &path, const AstField &value) {
        return ast_dataitem_fields_set(storage_.data(), storage_.size, id_, path.c_str(), &value);
    }

    void check(const std::string &path, int result) const {
        if (result != AST_FIELD_SET_OK) fail(path, set_failure(result));
    }

    void set_leaf(const std::string &path, const json &v) {
        AstField field{};
        switch (v.type()) {
        case json::value_t::null:
            // A value the structure could not show (a NaN): the default stays.
            return;
        case json::value_t::boolean:
            field.kind = AST_FIELD_FLAG;
            field.u = v.get<bool>() ? 1 : 0;
            return check(path, set(path, field));
        case json::value_t::number_unsigned:
            field.kind = AST_FIELD_UNSIGNED;
            field.u = v.get<uint64_t>();
            return check(path, set(path, field));
        case json::value_t::number_integer:
            field.kind = AST_FIELD_SIGNED;
            field.i = v.get<int64_t>();
            return check(path, set(path, field));
        case json::value_t::number_float:
            field.kind = AST_FIELD_REAL;
            field.real = v.get<double>();
            return check(path, set(path, field));
        case json::value_t::string:
            return set_string(path, v.get_ref<const std::string &>());
        default: {
            // An array: the setter says whether the name exists at all.
            Storage copy = storage_;
            field.kind = AST_FIELD_UNSIGNED;
            const int result = ast_dataitem_fields_set(copy.data(), copy.size, id_, path.c_str(), &field);
            fail(path, set_failure(result == AST_FIELD_SET_OK ? AST_FIELD_SET_WRONG_KIND : result));
        }
        }
    }

    // A text, or a code or address written as digits.
    void set_string(const std::string &path, const std::string &s) {
        const std::string octets = text_octets(s);
        AstField field{};
        field.kind = AST_FIELD_TEXT;
        field.text = octets.c_str();
        field.length = octets.size();
        const int as_text = set(path, field);
        if (as_text != AST_FIELD_SET_WRONG_KIND) return check(path, as_text);
        const uint32_t format = shown_format(storage_, id_, path);
        if (format != AST_FIELD_FORMAT_OCTAL4 && format != AST_FIELD_FORMAT_HEX6) fail(path, set_failure(as_text));
        const bool octal = format == AST_FIELD_FORMAT_OCTAL4;
        uint64_t value = 0;
        bool too_large = false;
        if (!radix_value(s, octal ? 8 : 16, value, too_large))
            fail(path, octal ? "not octal digits" : "not hexadecimal digits");
        if (too_large) fail(path, set_failure(AST_FIELD_SET_OUT_OF_RANGE));
        field = AstField{};
        field.kind = AST_FIELD_UNSIGNED;
        field.u = value;
        check(path, set(path, field));
    }

    AstItemId id_;
    std::string id_text_;
    Storage &storage_;
};

// The octets of an item built from its named fields.
ItemOctets item_from_fields(AstItemId id, const std::string &name, const json &fields) {
    if (!fields.is_object()) bad(name, "fields is not an object");
    Storage storage(ast_dataitem_fields_storage_size(id));
    if (storage.size == 0 || ast_dataitem_fields_init(storage.data(), storage.size, id) != 1)
        bad(name, "the library cannot encode this item from fields");
    // The defaults of a described structure are a valid value: what is not
    // named keeps them.
    FieldSetter(id, name, storage).set_all(fields, "");
    return encode_value(AstDataItemValue{1, id, storage.data()}, name);
}

// ---- Items by octets --------------------------------------------------------

// The octets of an item given as hexadecimal text, which must be exactly
// one item of the identifier.
ItemOctets item_from_hex(AstItemId id, const std::string &name, const json &hex) {
    if (!hex.is_string()) bad(name, "bad hex: not a string");
    std::vector<uint8_t> octets;
    int high = -1;
    for (char c : hex.get_ref<const std::string &>()) {
        if (c == ' ' || c == '\t') {
            if (high >= 0) bad(name, "bad hex: an odd number of digits");
            continue;
        }
        const int d = hex_digit(c);
        if (d < 0) bad(name, "bad hex: not hexadecimal digits");
        if (high < 0) {
            high = d;
        } else {
            octets.push_back(static_cast<uint8_t>(high << 4 | d));
            high = -1;
        }
    }
    if (high >= 0) bad(name, "bad hex: an odd number of digits");
    if (octets.empty()) bad(name, "bad hex: no octets");
    AstDataItem item;
    ast_dataitem_scan(&item, octets.data(), octets.size(), id);
    if (item.valid != 1 || item.length != octets.size())
        bad(name, "bad hex: " + std::to_string(octets.size()) + (octets.size() == 1 ? " octet is" : " octets are") +
                      " not one " + name);
    return ItemOctets{id, std::move(octets)};
}

// True when hex holds one item of the identifier whose fields are exactly
// the given ones: an item passed through unchanged is then copied octet for
// octet, even where an encoder writes a value back at a coarser resolution
// than the item carries (I021/131). Edited fields make the item go through
// its encoder.
bool fields_of_hex(AstItemId id, const json &hex, const json &fields) {
    try {
        const ItemOctets octets = item_from_hex(id, "", hex);
        const AstDataItem item{octets.octets.data(), octets.octets.size(), id, 1};
        std::vector<char> text(256);
        size_t n = ast_dataitem_get_fields_json(text.data(), text.size(), &item);
        if (n >= text.size()) {
            text.resize(n + 1);
            n = ast_dataitem_get_fields_json(text.data(), text.size(), &item);
        }
        return n > 0 && json::parse(text.data(), text.data() + n) == fields;
    } catch (const std::exception &) {
        return false;
    }
}

// ---- Records ----------------------------------------------------------------

bool same_text(const std::string &a, const std::string &b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::toupper(static_cast<unsigned char>(x)) == std::toupper(static_cast<unsigned char>(y));
           });
}

// The item of the category in the profile whose text is `name`, or 0.
AstItemId item_of(const std::string &name, uint32_t category, const AstUap &uap) {
    const uint32_t max = ast_uap_max_frn(&uap, category);
    for (uint32_t frn = 1; frn <= max; ++frn) {
        const AstItemId id = ast_uap_get_dataitem(&uap, category, frn);
        if (id != 0 && same_text(id_text(id), name)) return id;
    }
    return 0;
}

bool in_profile(AstItemId id, uint32_t category, const AstUap &uap) {
    const uint32_t max = ast_uap_max_frn(&uap, category);
    for (uint32_t frn = 1; frn <= max; ++frn)
        if (ast_uap_get_dataitem(&uap, category, frn) == id) return true;
    return false;
}

// The items of the "items" list, by fields or by octets.
std::vector<ItemOctets> listed_items(const json &list, const RecordRequest &r, const std::string &profile) {
    if (!list.is_array()) throw BadField("items: not a list");
    std::vector<ItemOctets> items;
    for (size_t i = 0; i < list.size(); ++i) {
        const json &object = list[i];
        const std::string where = "items[" + std::to_string(i) + "]";
        if (!object.is_object()) bad(where, "not an object");
        if (!object.contains("id") || !object["id"].is_string()) bad(where, "no id");
        const std::string &given = object["id"].get_ref<const std::string &>();
        const AstItemId id = item_of(given, r.category, r.uap);
        if (id == 0) {
            char cat[16];
            std::snprintf(cat, sizeof cat, "CAT%03u", static_cast<unsigned>(r.category));
            bad(given, std::string("not an item of ") + cat + " in profile " + profile);
        }
        const std::string name = id_text(id);
        if (std::any_of(items.begin(), items.end(), [id](const ItemOctets &o) { return o.id == id; }))
            bad(name, "given twice");
        const bool by_fields = (ast_dataitem_get_capabilities(id) & AST_DATAITEM_CAP_ENCODE) != 0 &&
                               ast_dataitem_has_fields(id) == 1 && object.contains("fields");
        if (by_fields && !(object.contains("hex") && fields_of_hex(id, object["hex"], object["fields"])))
            items.push_back(item_from_fields(id, name, object["fields"]));
        else if (object.contains("hex"))
            items.push_back(item_from_hex(id, name, object["hex"]));
        else if (object.contains("fields"))
            bad(name, "the library cannot encode this item from fields; give its hex");
        else
            bad(name, "neither fields nor hex");
    }
    return items;
}

void fill(const json &object, RecordRequest &out) {
    if (!object.is_object()) throw BadField("not a JSON object");
    if (!object.contains("cat")) throw BadField("no cat");
    const long long cat = whole(object, "cat", 0, 255);
    std::string profile = "standard";
    if (object.contains("uap")) {
        if (!object["uap"].is_string()) bad("uap", "not a string");
        profile = object["uap"].get<std::string>();
    }
    const AstUap *uap = find_profile(profile);
    if (!uap) bad("uap", "no profile " + profile);
    out.category = static_cast<uint32_t>(cat);
    out.uap = *uap;
    out.items.clear();
    if (ast_uap_max_frn(uap, out.category) == 0) bad("cat", "category " + std::to_string(cat) + " is not supported");

    const bool with_items = object.contains("items") && !(object["items"].is_array() && object["items"].empty());
    if (with_items) out.items = listed_items(object["items"], out, profile);
    const bool with_fields = object.contains("fields");
    if (with_fields && !object["fields"].is_object()) throw BadField("fields: not an object");

    if (cat != 48) {
        if (!with_items)
            bad("cat", "category " + std::to_string(cat) + " takes items (record fields are read for 48 only)");
        return;
    }
    if (!with_fields) {
        if (!with_items) throw BadField("no fields or items");
        return;
    }
    auto given = [&](AstItemId id) {
        return std::any_of(out.items.begin(), out.items.end(), [id](const ItemOctets &o) { return o.id == id; });
    };
    auto values = std::make_unique<AstRecord048>();
    std::vector<AstDataItemValue> from_fields;
    record_fields_048(object["fields"], with_items, *values, from_fields);
    for (const AstDataItemValue &value : from_fields) {
        if (given(value.id)) continue;
        const std::string name = id_text(value.id);
        if (!in_profile(value.id, out.category, out.uap)) bad(name, "not in profile " + profile);
        out.items.push_back(encode_value(value, name));
    }
}

}  // namespace

bool record_from_json(const json &object, RecordRequest &out, std::string &error) {
    try {
        fill(object, out);
        return true;
    } catch (const BadField &e) {
        error = e.what();
        return false;
    }
}

}  // namespace kovrel_tool
