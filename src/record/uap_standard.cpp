// The standard profile: one FRN table per supported category.
#include "core/state.h"
#include "record/uap_table.h"

namespace kovrel {

const UapTable *standard_uap_table(uint32_t category) {
    switch (category) {
        case 1: return &kUap001Standard;
        case 2: return &kUap002Standard;
        case 4: return &kUap004Standard;
        case 8: return &kUap008Standard;
        case 10: return &kUap010Standard;
        case 15: return &kUap015Standard;
        case 16: return &kUap016Standard;
        case 19: return &kUap019Standard;
        case 20: return &kUap020Standard;
        case 23: return &kUap023Standard;
        case 34: return &kUap034Standard;
        case 48: return &kUap048Standard;
        case 62: return &kUap062Standard;
        case 63: return &kUap063Standard;
        case 65: return &kUap065Standard;
        case 240: return &kUap240Standard;
        default: return nullptr;
    }
}

}  // namespace kovrel

extern "C" {

KOVREL_API uint32_t ast_uap_max_frn_standard(uint32_t category) {
    if (category == 21) return kovrel::kUap021Ver026.max_frn;
    const kovrel::UapTable *t = kovrel::standard_uap_table(category);
    return t ? t->max_frn : 0;
}

KOVREL_API AstItemId ast_uap_get_dataitem_standard(uint32_t category, uint32_t frn) {
    if (category == 21) return ast_uap_get_dataitem_cat021_ver026(category, frn);
    const kovrel::UapTable *t = kovrel::standard_uap_table(category);
    if (!t) {
        ast_log(AST_LOG_CRITICAL, "UAP STD: Unknown category %d", static_cast<int>(category));
        return 0;
    }
    bool beyond = false;
    const AstItemId id = kovrel::uap_table_item(*t, frn, &beyond);
    if (beyond) ast_log(AST_LOG_CRITICAL, "UAP CAT%03u: Undefined FRN %d", category, static_cast<int>(frn));
    return id;
}

const AstUap AST_UAP_STANDARD = {ast_uap_max_frn_standard, ast_uap_get_dataitem_standard};

KOVREL_API uint32_t ast_uap_max_frn(const AstUap *uap, uint32_t category) {
    if (!uap || !uap->max_frn) return 0;
    return uap->max_frn(category);
}

KOVREL_API AstItemId ast_uap_get_dataitem(const AstUap *uap, uint32_t category, uint32_t frn) {
    if (!uap || !uap->get_dataitem) return 0;
    return uap->get_dataitem(category, frn);
}

}  // extern "C"
