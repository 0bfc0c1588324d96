#include <kovrel/kovrel.h>

#include "commands.h"
#include "profiles.h"

namespace kovrel_tool {
namespace {

// Remembers whether the profile logged while one FRN was looked up: an FRN
// beyond the profile's table logs a CRITICAL message and is shown "undefined".
bool g_logged = false;
int note_log(uint32_t, const char *) {
    g_logged = true;
    return 0;
}

void print_category(std::FILE *out, const AstUap &uap, const char *profile, unsigned category) {
    const uint32_t max = ast_uap_max_frn(&uap, category);
    std::fprintf(out, "CAT%03u in profile %s: %u FRNs\n", category, profile, max);
    std::fprintf(out, "  %-4s %-9s %s\n", "FRN", "Item", "");
    for (uint32_t frn = 1; frn <= max; ++frn) {
        g_logged = false;
        const AstItemId id = ast_uap_get_dataitem(&uap, category, frn);
        char text[16];
        if (id != 0) {
            ast_dataitem_type_to_str(text, sizeof text, id);
            std::fprintf(out, "  %-4u %-9s\n", frn, text);
        } else {
            std::fprintf(out, "  %-4u %-9s %s\n", frn, "-", g_logged ? "undefined" : "spare");
        }
    }
}

}  // namespace

int run_uap(std::FILE *out, const std::string &profile, unsigned category) {
    const AstUap *uap = find_profile(profile);
    if (!uap) {
        std::fprintf(stderr, "kovrel: unknown profile '%s'; known:", profile.c_str());
        for (const auto &p : profiles()) std::fprintf(stderr, " %s", p.name);
        std::fprintf(stderr, "\n");
        return 2;
    }
    ast_log_handler_reg(note_log);
    int status = 0;
    if (category != 0) {
        if (ast_uap_max_frn(uap, category) == 0) {
            std::fprintf(stderr, "kovrel: category %u is not supported\n", category);
            status = 2;
        } else {
            print_category(out, *uap, profile.c_str(), category);
        }
    } else {
        for (unsigned c : supported_categories()) {
            print_category(out, *uap, profile.c_str(), c);
            std::fprintf(out, "\n");
        }
    }
    ast_log_handler_reg(nullptr);
    return status;
}

}  // namespace kovrel_tool
