#include "profiles.h"

namespace kovrel_tool {

const std::vector<ProfileName> &profiles() {
    static const std::vector<ProfileName> list = {
        {"standard", &AST_UAP_STANDARD},         {"cat001_plot", &AST_UAP_CAT001_PLOT},
        {"cat021_ver023", &AST_UAP_CAT021_VER023}, {"cat021_ver026", &AST_UAP_CAT021_VER026},
        {"cat021_ver21", &AST_UAP_CAT021_VER21},   {"cat021_ver27", &AST_UAP_CAT021_VER27},
        {"asr10ss", &AST_UAP_ASR10SS},             {"asr10ss_mk2", &AST_UAP_ASR10SS_MK2},
        {"thales", &AST_UAP_THALES},               {"managair", &AST_UAP_MANAGAIR},
    };
    return list;
}

const AstUap *find_profile(const std::string &name) {
    for (const auto &p : profiles())
        if (name == p.name) return p.uap;
    return nullptr;
}

const char *profile_name(const AstUap &uap) {
    for (const auto &p : profiles())
        if (p.uap->get_dataitem == uap.get_dataitem) return p.name;
    return "custom";
}

const std::vector<unsigned> &supported_categories() {
    static const std::vector<unsigned> cats = {1, 2, 4, 8, 10, 15, 16, 19, 20, 21, 23, 34, 48, 62, 63, 65, 240};
    return cats;
}

}  // namespace kovrel_tool
