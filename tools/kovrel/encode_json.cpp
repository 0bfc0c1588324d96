#include "encode_json.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "encode_fields.h"
#include "profiles.h"

namespace kovrel_tool {
namespace {

using nlohmann::json;
using namespace record_fields;

std::string id_text(AstItemId id) {
    char text[16];
    ast_dataitem_type_to_str(text, sizeof text, id);
    return text;
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

// Finds the field at a path in a walk ("rds[1].dop"), and its format.
struct FieldFinder {
    const std::string *target = nullptr;
    std::vector<std::string> groups;  // the paths of the open groups and arrays
    bool found = false;
    uint32_t format = AST_FIELD_FORMAT_DECIMAL;

    static int visit(void *context, const AstField *f) {
        auto &self = *static_cast<FieldFinder *>(context);
        if (f->kind == AST_FIELD_GROUP_END || f->kind == AST_FIELD_ARRAY_END) {
            if (!self.groups.empty()) self.groups.pop_back();
            return 1;
        }
        // Elements of arrays have no name but their position.
        const std::string outer = self.groups.empty() ? std::string() : self.groups.back();
        const std::string path = f->name ? (outer.empty() ? std::string() : outer + ".") + f->name
                                         : outer + "[" + std::to_string(f->index) + "]";
        if (f->kind == AST_FIELD_GROUP_BEGIN || f->kind == AST_FIELD_ARRAY_BEGIN) {
            self.groups.push_back(path);
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

    // Sets every leaf of the object, its nested objects as groups and its
    // lists as arrays, element by element ("rds[1].dop").
    void set_all(const json &object, const std::string &prefix) {
        for (auto it = object.begin(); it != object.end(); ++it) set_any(prefix + it.key(), *it);
    }

private:
    [[noreturn]] void fail(const std::string &path, const std::string &why) const { bad(id_text_ + "." + path, why); }

    int set(const std::string &path, const AstField &value) {
        return ast_dataitem_fields_set(storage_.data(), storage_.size, id_, path.c_str(), &value);
    }

    void check(const std::string &path, int result) const {
        if (result != AST_FIELD_SET_OK) fail(path, set_failure(result));
    }

    void set_any(const std::string &path, const json &v) {
        if (v.is_object()) return set_all(v, path + ".");
        if (!v.is_array()) return set_leaf(path, v);
        // A list is an array's elements: the setter, which refuses an array
        // a value as the wrong kind, says first whether the name is one.
        Storage copy = storage_;
        AstField zero{};
        zero.kind = AST_FIELD_UNSIGNED;
        const int result = ast_dataitem_fields_set(copy.data(), copy.size, id_, path.c_str(), &zero);
        if (result == AST_FIELD_SET_UNKNOWN || result == AST_FIELD_SET_OK)
            fail(path, set_failure(result == AST_FIELD_SET_OK ? AST_FIELD_SET_WRONG_KIND : result));
        // An empty list leaves the array as its defaults have it.
        for (size_t i = 0; i < v.size(); ++i) set_any(path + "[" + std::to_string(i) + "]", v[i]);
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
        default:
            fail(path, set_failure(AST_FIELD_SET_WRONG_KIND));
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
    // ADS-B is written in edition 2.1 unless the line names another.
    std::string profile = cat == 21 ? "cat021_ver21" : "standard";
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

    const Reader reader = reader_for(out.category);
    if (!reader) {
        if (!with_items)
            bad("cat", "category " + std::to_string(cat) + " takes items (it has no record fields to write)");
        return;
    }
    if (!with_fields) {
        if (!with_items) throw BadField("no fields or items");
        return;
    }
    auto given = [&](AstItemId id) {
        return std::any_of(out.items.begin(), out.items.end(), [id](const ItemOctets &o) { return o.id == id; });
    };
    FieldValues from_fields;
    reader(object["fields"], with_items, out.uap, from_fields);
    for (const AstDataItemValue &value : from_fields.values) {
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
