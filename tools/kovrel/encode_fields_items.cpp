// `kovrel encode`: the record fields of the categories whose items describe
// themselves by the same names the decoder shows. Each record field is set,
// by name, as a field of its item (the item's own scaling applies):
//
//   field        CAT010    CAT020    CAT062    CAT008 / CAT016 / CAT019      CAT015
//   sac, sic     I010/010  I020/010  I062/010  I008/010 ...                  I015/010
//   tod          I010/140  I020/140  I062/070  I008/090, I016/140, I019/140  I015/145
//   track        I010/161  I020/161  I062/040                                I015/161
//   mode3a       I010/060  I020/070  I062/060
//   fl (feet)    I010/090  I020/090
//   icao         I010/220  I020/220
//   callsign     I010/245  I020/245
//   lat, lon     I010/041  I020/041
//   x, y (m)     I010/042  I020/042
//   vx, vy (m/s) I010/202  I020/202
//
// sac and sic are required without items. With items, fl is left to them:
// the decoder also shows it from a height item (I010/091, I020/105,
// I020/110) when there is no Mode C code. Every other record field the
// decoder shows (msgtype, rho, theta, speed, heading, sel_alt, vrate, and
// what CAT015 reads from its measurement items) is accepted and left out,
// so that decoded records encode again: those come from items that carry
// more than the field, given as items. A CAT062 track shows its position,
// velocity, flight level, callsign, address, selected altitude and vertical
// rate from items the library does not write (I062/105, 100, 185, 136, 135,
// 245, 380, 390, 220); speed and heading are worked out from I062/185.
// Those items come as octets.
#include <algorithm>
#include <array>
#include <iterator>
#include <cstddef>
#include <cstring>

#include "encode_fields.h"

namespace kovrel_tool::record_fields {
namespace {

// How a record field's JSON value becomes the item field's value.
enum class Conv { Whole, Real, Seconds, FeetToFl, Octal, Hex, Callsign };

struct Mapping {
    const char *key;
    AstItemId id;
    const char *path;  // the item's field
    Conv conv;
};

// Every record field the decoder shows.
constexpr const char *kShown[] = {"sac",      "sic",  "tod", "msgtype", "track", "mode3a", "fl",
                                  "sel_alt",  "callsign", "icao", "lat", "lon", "rho", "theta",
                                  "x",        "y",    "speed", "heading", "vx", "vy", "vrate"};

// The target report fields of CAT010 and CAT020, whose items share their
// numbers but for the Mode 3/A code (I010/060, I020/070).
constexpr std::array<Mapping, 14> target_report(AstItemId base, AstItemId mode3a) {
    return {{
        {"sac", base + 10, "sac", Conv::Whole},        {"sic", base + 10, "sic", Conv::Whole},
        {"tod", base + 140, "tod", Conv::Seconds},     {"track", base + 161, "trn", Conv::Whole},
        {"mode3a", base + mode3a, "mode3a", Conv::Octal}, {"fl", base + 90, "fl", Conv::FeetToFl},
        {"icao", base + 220, "aa", Conv::Hex},         {"callsign", base + 245, "tid", Conv::Callsign},
        {"lat", base + 41, "lat", Conv::Real},         {"lon", base + 41, "lon", Conv::Real},
        {"x", base + 42, "x", Conv::Real},             {"y", base + 42, "y", Conv::Real},
        {"vx", base + 202, "vx", Conv::Real},          {"vy", base + 202, "vy", Conv::Real},
    }};
}
constexpr auto k010 = target_report(10000, 60);
constexpr auto k020 = target_report(20000, 70);
constexpr Mapping k062[] = {
    {"sac", 62010, "sac", Conv::Whole},  {"sic", 62010, "sic", Conv::Whole}, {"tod", 62070, "tod", Conv::Seconds},
    {"track", 62040, "trn", Conv::Whole}, {"mode3a", 62060, "mode3a", Conv::Octal},
};
constexpr Mapping k008[] = {
    {"sac", 8010, "sac", Conv::Whole}, {"sic", 8010, "sic", Conv::Whole}, {"tod", 8090, "tod", Conv::Seconds}};
constexpr Mapping k015[] = {{"sac", 15010, "sac", Conv::Whole},
                            {"sic", 15010, "sic", Conv::Whole},
                            {"tod", 15145, "tod", Conv::Seconds},
                            {"track", 15161, "trn", Conv::Whole}};
constexpr Mapping k016[] = {
    {"sac", 16010, "sac", Conv::Whole}, {"sic", 16010, "sic", Conv::Whole}, {"tod", 16140, "tod", Conv::Seconds}};
constexpr Mapping k019[] = {
    {"sac", 19010, "sac", Conv::Whole}, {"sic", 19010, "sic", Conv::Whole}, {"tod", 19140, "tod", Conv::Seconds}};

// The value of one record field as the item field takes it.
AstField value_of(const json &f, const Mapping &m, std::string &text_keep) {
    AstField v{};
    switch (m.conv) {
    case Conv::Whole:
        v.kind = AST_FIELD_SIGNED;
        v.i = whole(f, m.key, -(1LL << 40), 1LL << 40);
        break;
    case Conv::Real:
        v.kind = AST_FIELD_REAL;
        v.real = number(f, m.key);
        break;
    case Conv::Seconds:
        v.kind = AST_FIELD_REAL;
        v.real = time_of_day_raw(f) / 128.0;
        break;
    case Conv::FeetToFl:
        v.kind = AST_FIELD_REAL;
        v.real = number(f, m.key) / 100.0;
        break;
    case Conv::Octal:
        v.kind = AST_FIELD_UNSIGNED;
        v.u = digits(f, m.key, 8, 4);
        break;
    case Conv::Hex:
        v.kind = AST_FIELD_UNSIGNED;
        v.u = digits(f, m.key, 16, 6);
        break;
    case Conv::Callsign:
        text_keep = callsign(f, m.key);
        v.kind = AST_FIELD_TEXT;
        v.text = text_keep.c_str();
        v.length = text_keep.size();
        break;
    }
    return v;
}

const char *failure(int result) {
    switch (result) {
    case AST_FIELD_SET_OUT_OF_RANGE: return "value out of range";
    case AST_FIELD_SET_WRONG_KIND: return "wrong kind of value";
    default: return "cannot be written";
    }
}

template <typename Table>
void read_by_items(const json &f, bool with_items, const Table &table, FieldValues &out) {
    const size_t N = std::size(table);
    for (auto it = f.begin(); it != f.end(); ++it) {
        const std::string &key = it.key();
        if (std::none_of(std::begin(kShown), std::end(kShown), [&](const char *k) { return key == k; }))
            bad(key, "unknown field");
    }
    auto written = [&](const Mapping &m) { return f.contains(m.key) && !(with_items && m.conv == Conv::FeetToFl); };
    if (!pair(f, "sac", "sic") && !with_items) throw BadField("sac and sic are required");
    for (const char *a : {"lat", "x", "vx"}) {
        const char *b = a[0] == 'l' ? "lon" : a[0] == 'x' ? "y" : "vy";
        if (std::any_of(std::begin(table), std::end(table), [&](const Mapping &m) { return std::strcmp(m.key, a) == 0; }))
            pair(f, a, b);
    }
    // Items in the order of their first mapping; each one structure.
    for (size_t i = 0; i < N; ++i) {
        const AstItemId id = table[i].id;
        if (std::any_of(std::begin(table), std::begin(table) + i, [&](const Mapping &m) { return m.id == id; }))
            continue;
        if (std::none_of(std::begin(table) + i, std::end(table), [&](const Mapping &m) { return m.id == id && written(m); }))
            continue;
        const size_t size = ast_dataitem_fields_storage_size(id);
        auto storage = std::make_shared<std::vector<std::max_align_t>>(size / sizeof(std::max_align_t) + 1);
        out.storage.push_back(storage);
        if (size == 0 || ast_dataitem_fields_init(storage->data(), size, id) != 1) bad(table[i].key, "cannot be written");
        for (size_t k = i; k < N; ++k) {
            const Mapping &m = table[k];
            if (m.id != id || !written(m)) continue;
            std::string keep;
            const AstField v = value_of(f, m, keep);
            const int result = ast_dataitem_fields_set(storage->data(), size, id, m.path, &v);
            if (result != AST_FIELD_SET_OK) bad(m.key, failure(result));
        }
        out.add(id, storage->data());
    }
}

}  // namespace

void read_fields_008(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    read_by_items(f, with_items, k008, out);
}
void read_fields_010(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    read_by_items(f, with_items, k010, out);
}
void read_fields_015(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    read_by_items(f, with_items, k015, out);
}
void read_fields_016(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    read_by_items(f, with_items, k016, out);
}
void read_fields_019(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    read_by_items(f, with_items, k019, out);
}
void read_fields_020(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    read_by_items(f, with_items, k020, out);
}
void read_fields_062(const json &f, bool with_items, const AstUap &, FieldValues &out) {
    read_by_items(f, with_items, k062, out);
}

}  // namespace kovrel_tool::record_fields
