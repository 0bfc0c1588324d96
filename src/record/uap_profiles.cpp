// The nine variant profiles. Each overrides one or two categories and hands
// every other category to the functions held in AST_UAP_STANDARD, so an
// application that wraps the standard object sees the variants follow it.
#include "core/state.h"
#include "record/uap_table.h"

namespace {

using kovrel::UapTable;

// Variant tables of sensor profiles answer FRNs beyond them silently.
AstItemId quiet_lookup(const UapTable &t, uint32_t frn) {
    bool beyond = false;
    return kovrel::uap_table_item(t, frn, &beyond);
}

// The CAT021 editions report FRNs outside 1..count with their own message.
AstItemId edition_lookup(const UapTable &t, uint32_t frn, const char *edition) {
    if (frn < 1 || frn > t.count) {
        ast_log(AST_LOG_CRITICAL, "UAP ADS-B %s: Undefined FRN %d", edition, static_cast<int>(frn));
        return 0;
    }
    return t.items[frn - 1];
}

uint32_t standard_max(uint32_t category) { return AST_UAP_STANDARD.max_frn(category); }
AstItemId standard_item(uint32_t category, uint32_t frn) {
    return AST_UAP_STANDARD.get_dataitem(category, frn);
}

}  // namespace

extern "C" {

// ---- plot-only CAT001 ----
KOVREL_API uint32_t ast_uap_max_frn_cat001_plot(uint32_t category) {
    return category == 1 ? kovrel::kUap001Plot.max_frn : standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_cat001_plot(uint32_t category, uint32_t frn) {
    return category == 1 ? quiet_lookup(kovrel::kUap001Plot, frn) : standard_item(category, frn);
}

// ---- CAT021 editions ----
KOVREL_API uint32_t ast_uap_max_frn_cat021_ver023(uint32_t category) {
    return category == 21 ? kovrel::kUap021Ver023.max_frn : standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_cat021_ver023(uint32_t category, uint32_t frn) {
    return category == 21 ? edition_lookup(kovrel::kUap021Ver023, frn, "v0.23") : standard_item(category, frn);
}
KOVREL_API uint32_t ast_uap_max_frn_cat021_ver026(uint32_t category) {
    return category == 21 ? kovrel::kUap021Ver026.max_frn : standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_cat021_ver026(uint32_t category, uint32_t frn) {
    return category == 21 ? edition_lookup(kovrel::kUap021Ver026, frn, "v0.26") : standard_item(category, frn);
}
KOVREL_API uint32_t ast_uap_max_frn_cat021_ver21(uint32_t category) {
    return category == 21 ? kovrel::kUap021Ver21.max_frn : standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_cat021_ver21(uint32_t category, uint32_t frn) {
    return category == 21 ? edition_lookup(kovrel::kUap021Ver21, frn, "v2.1") : standard_item(category, frn);
}
KOVREL_API uint32_t ast_uap_max_frn_cat021_ver27(uint32_t category) {
    return category == 21 ? kovrel::kUap021Ver27.max_frn : standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_cat021_ver27(uint32_t category, uint32_t frn) {
    return category == 21 ? edition_lookup(kovrel::kUap021Ver27, frn, "v2.7") : standard_item(category, frn);
}

// ---- ASR-10SS and ASR-10SS Mk2: CAT001 and CAT002 ----
KOVREL_API uint32_t ast_uap_max_frn_asr10ss(uint32_t category) {
    if (category == 1) return kovrel::kUap001Asr10ss.max_frn;
    if (category == 2) return kovrel::kUap002Asr10ss.max_frn;
    return standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_asr10ss(uint32_t category, uint32_t frn) {
    if (category == 1) return quiet_lookup(kovrel::kUap001Asr10ss, frn);
    if (category == 2) return quiet_lookup(kovrel::kUap002Asr10ss, frn);
    return standard_item(category, frn);
}
KOVREL_API uint32_t ast_uap_max_frn_asr10ss_mk2(uint32_t category) {
    if (category == 1) return kovrel::kUap001Asr10ssMk2.max_frn;
    if (category == 2) return kovrel::kUap002Asr10ssMk2.max_frn;
    return standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_asr10ss_mk2(uint32_t category, uint32_t frn) {
    if (category == 1) return quiet_lookup(kovrel::kUap001Asr10ssMk2, frn);
    if (category == 2) return quiet_lookup(kovrel::kUap002Asr10ssMk2, frn);
    return standard_item(category, frn);
}

// ---- Thales ADS-B ground stations: CAT021 ----
KOVREL_API uint32_t ast_uap_max_frn_thales(uint32_t category) {
    return category == 21 ? kovrel::kUap021Thales.max_frn : standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_thales(uint32_t category, uint32_t frn) {
    return category == 21 ? quiet_lookup(kovrel::kUap021Thales, frn) : standard_item(category, frn);
}

// ---- MANAGAIR: a two-octet field of its own in CAT001 and CAT002 ----
KOVREL_API uint32_t ast_uap_max_frn_managair(uint32_t category) {
    if (category == 1 || category == 2) return 23;
    return standard_max(category);
}
KOVREL_API AstItemId ast_uap_get_dataitem_managair(uint32_t category, uint32_t frn) {
    if (category == 1 && (frn == 5 || frn == 23)) return 1951;
    if (category == 2 && frn == 23) return 2951;
    return standard_item(category, frn);
}

const AstUap AST_UAP_CAT001_PLOT = {ast_uap_max_frn_cat001_plot, ast_uap_get_dataitem_cat001_plot};
const AstUap AST_UAP_CAT021_VER023 = {ast_uap_max_frn_cat021_ver023,
                                                 ast_uap_get_dataitem_cat021_ver023};
const AstUap AST_UAP_CAT021_VER026 = {ast_uap_max_frn_cat021_ver026,
                                                 ast_uap_get_dataitem_cat021_ver026};
const AstUap AST_UAP_CAT021_VER21 = {ast_uap_max_frn_cat021_ver21, ast_uap_get_dataitem_cat021_ver21};
const AstUap AST_UAP_CAT021_VER27 = {ast_uap_max_frn_cat021_ver27, ast_uap_get_dataitem_cat021_ver27};
const AstUap AST_UAP_ASR10SS = {ast_uap_max_frn_asr10ss, ast_uap_get_dataitem_asr10ss};
const AstUap AST_UAP_ASR10SS_MK2 = {ast_uap_max_frn_asr10ss_mk2, ast_uap_get_dataitem_asr10ss_mk2};
const AstUap AST_UAP_THALES = {ast_uap_max_frn_thales, ast_uap_get_dataitem_thales};
const AstUap AST_UAP_MANAGAIR = {ast_uap_max_frn_managair, ast_uap_get_dataitem_managair};

}  // extern "C"
