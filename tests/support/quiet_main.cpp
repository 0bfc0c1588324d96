// Test start-up: the library logs to standard output by default; tests keep
// it silent unless a test captures the log on purpose.
#include <gtest/gtest.h>

#include "kovrel/core.h"

namespace {
class QuietLog : public ::testing::Environment {
public:
    void SetUp() override { ast_log_handler_reg(nullptr); }
};
const auto *const kQuiet = ::testing::AddGlobalTestEnvironment(new QuietLog);
}  // namespace
