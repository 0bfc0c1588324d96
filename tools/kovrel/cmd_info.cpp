#include <kovrel/kovrel.h>

#include "commands.h"

namespace kovrel_tool {

int run_info(std::FILE *out) {
    std::fprintf(out, "kovrel %s\n", ast_library_version());
    std::fprintf(out, "  version   %llu.%llu.%llu\n", static_cast<unsigned long long>(ast_library_version_major()),
                 static_cast<unsigned long long>(ast_library_version_minor()),
                 static_cast<unsigned long long>(ast_library_version_patch()));
    std::fprintf(out, "  revision  %s\n", ast_library_revision());
    std::fprintf(out, "  built     %s\n", ast_library_build());
    std::fprintf(out, "  %s\n", ast_library_about());
    std::fprintf(out, "  %s\n", ast_library_contact());
    return 0;
}

}  // namespace kovrel_tool
