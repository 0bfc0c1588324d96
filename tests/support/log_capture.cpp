#include "support/log_capture.h"

namespace kovrel_test {
namespace {
std::vector<LogLine> g_lines;
int capture(uint32_t level, const char *text) {
    g_lines.push_back({level, text ? text : ""});
    return 0;
}
}  // namespace

LogCapture::LogCapture() {
    g_lines.clear();
    ast_log_handler_reg(capture);
}
LogCapture::~LogCapture() { ast_log_handler_reg(nullptr); }
const std::vector<LogLine> &LogCapture::lines() const { return g_lines; }
void LogCapture::clear() { g_lines.clear(); }
bool LogCapture::contains(uint32_t level, const std::string &text) const {
    for (const auto &l : g_lines)
        if (l.level == level && l.text == text) return true;
    return false;
}

}  // namespace kovrel_test
