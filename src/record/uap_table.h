// One category's FRN-to-item table in one profile, and the lookup shared by
// every profile.
#pragma once

#include <cstddef>

#include "kovrel/uap.h"

namespace kovrel {

struct UapTable {
    uint32_t category;
    uint32_t max_frn;         // highest FRN the encoder walks
    const AstItemId *items;   // indexed by FRN - 1; 0 is a spare FRN
    size_t count;             // entries (may exceed max_frn, as CAT001 does)
};

template <size_t N>
constexpr UapTable make_uap_table(uint32_t category, uint32_t max_frn, const AstItemId (&items)[N]) {
    return UapTable{category, max_frn, items, N};
}

// Item of an FRN inside the table, 0 for FRN 0, a spare FRN or an FRN beyond
// the table. `beyond` is true when the FRN lies beyond the table (the caller
// decides whether and what to log).
inline AstItemId uap_table_item(const UapTable &t, uint32_t frn, bool *beyond) {
    *beyond = false;
    if (frn == 0) return 0;
    if (frn > t.count) {
        *beyond = true;
        return 0;
    }
    return t.items[frn - 1];
}

// Standard tables of every category, defined in each category's folder.
extern const UapTable kUap001Standard;
extern const UapTable kUap002Standard;
extern const UapTable kUap004Standard;
extern const UapTable kUap008Standard;
extern const UapTable kUap010Standard;
extern const UapTable kUap015Standard;
extern const UapTable kUap016Standard;
extern const UapTable kUap019Standard;
extern const UapTable kUap020Standard;
extern const UapTable kUap023Standard;
extern const UapTable kUap034Standard;
extern const UapTable kUap048Standard;
extern const UapTable kUap062Standard;
extern const UapTable kUap063Standard;
extern const UapTable kUap065Standard;
extern const UapTable kUap240Standard;

// Variant tables.
extern const UapTable kUap001Plot;
extern const UapTable kUap001Asr10ss;
extern const UapTable kUap001Asr10ssMk2;
extern const UapTable kUap002Asr10ss;
extern const UapTable kUap002Asr10ssMk2;
extern const UapTable kUap021Ver023;
extern const UapTable kUap021Ver026;
extern const UapTable kUap021Ver21;
extern const UapTable kUap021Ver27;
extern const UapTable kUap021Thales;

// The standard table of a category, or nullptr (CAT021 has none of its own:
// the standard profile answers it with edition 0.26).
const UapTable *standard_uap_table(uint32_t category);

}  // namespace kovrel
