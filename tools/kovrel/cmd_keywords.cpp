#include <string>

#include <kovrel/kovrel.h>

#include "commands.h"
#include "filter.h"

namespace kovrel_tool {

int run_keywords(std::FILE *out) {
    std::fprintf(out, "%-20s %-22s %-68s %s\n", "keyword", "--filter", "description", "categories");
    for (uint32_t k = 0; k < AST_KEYWORD_COUNT; ++k) {
        char name[64], description[128];
        ast_keyword_name(name, sizeof name, k);
        ast_keyword_description(description, sizeof description, k);
        std::string cats;
        for (uint32_t c = 0; c < 256; ++c) {
            if (!ast_datarecord_supports_keyword(c, k)) continue;
            char text[8];
            std::snprintf(text, sizeof text, "%s%03u", cats.empty() ? "" : " ", c);
            cats += text;
        }
        std::fprintf(out, "%-20s %-22s %-68s %s\n", name, filter_keyword_aliases(k), description,
                     cats.empty() ? "-" : cats.c_str());
    }
    return std::ferror(out) ? 1 : 0;
}

}  // namespace kovrel_tool
