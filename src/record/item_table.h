// Dispatch rows: everything the library knows about one kind of data item,
// described once per category in a constexpr table.
//
// A category folder defines its rows and hands them to make_category_items,
// which builds a direct index from item number to row at compile time, so
// looking an identifier up is one switch on the category and one array
// access. Compound items point at their subfield table the same way.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "kovrel/dataitem.h"
#include "kovrel/subfield.h"

namespace kovrel {

namespace fields {
struct FieldDesc;
}

// How a subfield is delimited.
enum class SubfieldRule : uint8_t {
    None,      // no size function: the subfield adds 0 octets
    Fixed,     // n octets (not compared with the octets available)
    Variable,  // FX-extended, at most n octets
    Repeated,  // 1 + n x first octet
    Custom,    // the row's own size function
};

using SubfieldSizeFn = uint64_t (*)(const uint8_t *octets, size_t available);

struct SubfieldRow {
    const char *id;    // short identifier text ("SRL", "#1"); nullptr gives "---"
    const char *name;  // display name; nullptr gives "UNKNOWN_SUBFIELD_NAME"
    SubfieldRule rule;
    uint16_t n;
    SubfieldSizeFn size_fn;  // for SubfieldRule::Custom
    AstSubfieldGetSummaryFn get_summary;
    AstSubfieldGetDetailHtmlFn get_detail_html;
};

// The subfields of one compound item, subfield 1 first.
struct CompoundItem {
    uint32_t subfield_count;  // number of subfields of the item
    const SubfieldRow *rows;  // rows[i] describes subfield i + 1
    size_t row_count;
    AstSubfieldFuncs funcs;   // the item's exported subfield functions
    const char *unknown_id;   // id text of a subfield the item does not have
};

template <size_t N>
constexpr CompoundItem make_compound(uint32_t subfield_count, const SubfieldRow (&rows)[N],
                                     AstSubfieldFuncs funcs, const char *unknown_id = "---") {
    return CompoundItem{subfield_count, rows, N, funcs, unknown_id};
}

// Row-driven behaviour behind every compound item's exported subfield
// functions (see KOVREL_COMPOUND_ITEM). A subfield id of another item or
// beyond the rows has size 0, the item's unknown id text ("---" unless the
// category has its own) and the name "UNKNOWN_SUBFIELD_NAME".
uint64_t subfield_row_size(const CompoundItem &c, AstItemId item, const uint8_t *octets, size_t available,
                           uint32_t subfield_id);
const char *subfield_row_id(const CompoundItem &c, AstItemId item, uint32_t subfield_id);
const char *subfield_row_name(const CompoundItem &c, AstItemId item, uint32_t subfield_id);
void subfield_row_summary(const CompoundItem &c, AstItemId item, char *buffer, size_t size,
                          const AstSubfield *span, uint32_t subfield_id);
void subfield_row_detail(const CompoundItem &c, AstItemId item, char *buffer, size_t size,
                         const AstSubfield *span, uint32_t subfield_id);

struct ItemRow {
    uint16_t item;       // item number inside the category, 0..999 (901.. for variants)
    const char *name;    // display name returned by the category's name function
    AstDataItemGetSizeFn get_size;
    AstDataItemGetSummaryFn get_summary = nullptr;
    AstDataItemGetDetailHtmlFn get_detail_html = nullptr;
    AstDataItemEncodeExFn encode_ex = nullptr;
    AstDataItemDecodeExFn decode_ex = nullptr;
    // The members of the structure decode_ex fills, by name (fields.h).
    const fields::FieldDesc *fields = nullptr;
    const CompoundItem *compound = nullptr;  // subfields of a compound item
};

// Define a category's table as
//   constinit const CategoryItems kItems048 = make_category_items(48, ..., kRows);
// so that it is built at compile time.
struct CategoryItems {
    uint32_t category;
    AstDataItemGetNameFn get_name;   // the category's exported name function
    const char *unknown_name;        // e.g. "Unknown CAT048 Dataitem"
    const ItemRow *rows;
    size_t row_count;
    std::array<uint8_t, 1000> index;  // item number -> row position + 1, 0 for none

    constexpr const ItemRow *find(uint32_t item) const {
        if (item >= index.size() || index[item] == 0) return nullptr;
        return &rows[index[item] - 1];
    }
};

// Called only when a row table is malformed; not constexpr, so the
// constinit table definition fails to compile.
void malformed_item_table();

template <size_t N>
constexpr CategoryItems make_category_items(uint32_t category, AstDataItemGetNameFn get_name,
                                            const char *unknown_name, const ItemRow (&rows)[N]) {
    static_assert(N < 255, "a category holds fewer than 255 items");
    CategoryItems t{category, get_name, unknown_name, rows, N, {}};
    for (size_t i = 0; i < N; ++i) {
        // A duplicate or out-of-range item number stops compilation here.
        if (rows[i].item >= 1000 || t.index[rows[i].item] != 0) malformed_item_table();
        t.index[rows[i].item] = static_cast<uint8_t>(i + 1);
    }
    return t;
}

// The row of an identifier, or nullptr (central switch in dispatch.cpp).
const ItemRow *find_item_row(AstItemId id);
// The table of a category, or nullptr.
const CategoryItems *find_category_items(uint32_t category);

// Name lookup shared by every category's name function: the row's name, or
// the category's fallback after logging "Unknown dataitem name: %s." at
// WARNING (when log_unknown). A row whose name is nullptr counts as unknown.
const char *category_item_name(const CategoryItems &table, AstItemId id, bool log_unknown = true);

// Category tables, one per category folder.
extern const CategoryItems kItems001;
extern const CategoryItems kItems002;
extern const CategoryItems kItems004;
extern const CategoryItems kItems008;
extern const CategoryItems kItems010;
extern const CategoryItems kItems015;
extern const CategoryItems kItems016;
extern const CategoryItems kItems019;
extern const CategoryItems kItems020;
extern const CategoryItems kItems021;
extern const CategoryItems kItems023;
extern const CategoryItems kItems034;
extern const CategoryItems kItems048;
extern const CategoryItems kItems062;
extern const CategoryItems kItems063;
extern const CategoryItems kItems065;
extern const CategoryItems kItems240;

}  // namespace kovrel

// Defines the exported functions of one compound item from its CompoundItem:
//   ast_dataitem_<P>_get_size           (the item's size rule)
//   ast_subfield_<P>_get_size, _get_id, _get_name, _get_summary, _get_detail_html
// P is the category and item ("048_130"), ID the item identifier (48130).
// Declare the same names in the category's public header.
#define KOVREL_COMPOUND_ITEM(P, ID, COMPOUND)                                                              \
    extern "C" {                                                                                           \
    KOVREL_API uint64_t ast_dataitem_##P##_get_size(const uint8_t *octets, size_t available) {              \
        return ast_dataitem_subfields_get_size(octets, available, ID);                                     \
    }                                                                                                      \
    KOVREL_API uint64_t ast_subfield_##P##_get_size(const uint8_t *octets, size_t available, uint32_t sid) { \
        return ::kovrel::subfield_row_size(COMPOUND, ID, octets, available, sid);                          \
    }                                                                                                      \
    KOVREL_API const char *ast_subfield_##P##_get_id(uint32_t sid) {                                       \
        return ::kovrel::subfield_row_id(COMPOUND, ID, sid);                                               \
    }                                                                                                      \
    KOVREL_API const char *ast_subfield_##P##_get_name(uint32_t sid) {                                     \
        return ::kovrel::subfield_row_name(COMPOUND, ID, sid);                                             \
    }                                                                                                      \
    KOVREL_API void ast_subfield_##P##_get_summary(char *buffer, size_t size, const AstSubfield *span,     \
                                                   uint32_t sid) {                                         \
        ::kovrel::subfield_row_summary(COMPOUND, ID, buffer, size, span, sid);                             \
    }                                                                                                      \
    KOVREL_API void ast_subfield_##P##_get_detail_html(char *buffer, size_t size, const AstSubfield *span, \
                                                       uint32_t sid) {                                     \
        ::kovrel::subfield_row_detail(COMPOUND, ID, buffer, size, span, sid);                              \
    }                                                                                                      \
    }

// The AstSubfieldFuncs of a compound item defined with KOVREL_COMPOUND_ITEM.
#define KOVREL_SUBFIELD_FUNCS(P)                                                                   \
    AstSubfieldFuncs {                                                                            \
        ast_subfield_##P##_get_size, ast_subfield_##P##_get_id, ast_subfield_##P##_get_name,       \
            ast_subfield_##P##_get_summary, ast_subfield_##P##_get_detail_html                     \
    }
