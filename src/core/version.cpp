// Version identity of this build.
#include "kovrel/core.h"

#ifndef KOVREL_REVISION
#define KOVREL_REVISION "unknown"
#endif

extern "C" {

KOVREL_API uint64_t ast_library_version_major(void) { return 2; }
KOVREL_API uint64_t ast_library_version_minor(void) { return 1; }
KOVREL_API uint64_t ast_library_version_patch(void) { return 0; }
KOVREL_API const char *ast_library_version(void) { return "2.1.0"; }
KOVREL_API const char *ast_library_revision(void) { return KOVREL_REVISION; }
// __DATE__ is the compiler's "Mmm dd yyyy" form.
KOVREL_API const char *ast_library_build(void) { return __DATE__; }
KOVREL_API const char *ast_library_about(void) {
    return "kovrel ASTERIX library, Copyright (c) 2026 the kovrel developers";
}
KOVREL_API const char *ast_library_contact(void) { return "https://kovrel.dev/contact"; }

}  // extern "C"
