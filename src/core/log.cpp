// The log channel: one replaceable handler, a formatting front end, the
// default handler writing to standard output and a hexadecimal dump.
#include <cstdarg>
#include <cstdio>

#include "core/format.h"
#include "core/state.h"
#include "core/text.h"

namespace kovrel {
AstLogHandler g_log_handler = ast_log_stdout;
}

namespace {

const char *level_label(uint32_t level) {
    switch (level) {
        case AST_LOG_DEBUG: return "[DEBUG   ]";
        case AST_LOG_INFO: return "[INFO    ]";
        case AST_LOG_WARNING: return "[WARNING ]";
        case AST_LOG_CRITICAL: return "[CRITICAL]";
        case AST_LOG_PANIC: return "[PANIC   ]";
        default: return "[UNKNOWN ]";
    }
}

}  // namespace

extern "C" {

KOVREL_API void ast_log_handler_reg(AstLogHandler handler) { kovrel::g_log_handler = handler; }

KOVREL_API void ast_log(uint32_t level, const char *format, ...) {
    AstLogHandler handler = kovrel::g_log_handler;
    if (!handler) return;
    char text[512];
    text[0] = '\0';
    if (format) {
        va_list ap;
        va_start(ap, format);
        kovrel::vformat_into(text, sizeof text, format, ap);
        va_end(ap);
    }
    text[sizeof text - 1] = '\0';
    handler(level, text);
}

KOVREL_API int ast_log_stdout(uint32_t level, const char *text) {
    std::fputs(level_label(level), stdout);
    return std::printf(" %s\n", text ? text : "");
}

KOVREL_API void ast_log_binary_data(uint32_t level, const uint8_t *data, size_t size) {
    AstLogHandler handler = kovrel::g_log_handler;
    if (!handler) return;
    ast_log(level, "Binary data size: %d", static_cast<int>(size));
    if (size == 0 || !data) return;
    // 16 values of six characters each, the first line one more.
    char line[17 * 6 + 1];
    kovrel::TextWriter w(line, sizeof line);
    for (size_t i = 0; i < size; ++i) {
        w.appendf("0x%.2X, ", data[i]);
        // The flush after every non-zero multiple of 16 makes the first line
        // 17 octets long; log readers rely on this layout.
        if ((i != 0 && i % 16 == 0) || i + 1 == size) {
            w.drop_last();
            w.drop_last();
            handler(level, line);
            w = kovrel::TextWriter(line, sizeof line);
        }
    }
}

}  // extern "C"
