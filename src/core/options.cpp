// The options word and library initialisation.
#include "core/state.h"

namespace kovrel {
uint32_t g_options = 0;
}

extern "C" {

KOVREL_API bool ast_library_init(const char *text) {
    (void)text;  // carried for callers that pass a configuration name; not interpreted
    kovrel::g_options = 0;
    return true;
}

KOVREL_API void ast_library_set_option(uint32_t mask) { kovrel::g_options |= mask; }
KOVREL_API void ast_library_unset_option(uint32_t mask) { kovrel::g_options &= ~mask; }
KOVREL_API void ast_library_reset_option(void) { kovrel::g_options = 0; }

KOVREL_API bool ast_library_test_option(uint32_t mask) {
    if (mask == 0) return kovrel::g_options == 0;
    return (kovrel::g_options & mask) != 0;
}

}  // extern "C"
