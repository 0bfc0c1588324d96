#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <unistd.h>

#include "kovrel/core.h"
#include "support/log_capture.h"

using kovrel_test::LogCapture;

TEST(Core, VersionIdentity) {
    EXPECT_EQ(ast_library_version_major(), 2u);
    EXPECT_EQ(ast_library_version_minor(), 1u);
    EXPECT_EQ(ast_library_version_patch(), 0u);
    EXPECT_STREQ(ast_library_version(), "2.1.0");
    // Build date in the compiler's "Mmm dd yyyy" form.
    const std::string build = ast_library_build();
    ASSERT_EQ(build.size(), 11u);
    EXPECT_EQ(build[3], ' ');
    EXPECT_EQ(build[6], ' ');
    EXPECT_NE(std::strlen(ast_library_revision()), 0u);
    EXPECT_NE(std::strlen(ast_library_about()), 0u);
    EXPECT_NE(std::strlen(ast_library_contact()), 0u);
}

TEST(Core, OptionsWord) {
    EXPECT_TRUE(ast_library_init("anything"));
    EXPECT_TRUE(ast_library_test_option(0));
    ast_library_set_option(2);
    EXPECT_FALSE(ast_library_test_option(0));
    EXPECT_TRUE(ast_library_test_option(AST_OPTION_ACCEPT_EMPTY_FSPEC));
    EXPECT_FALSE(ast_library_test_option(AST_OPTION_I062_105_NEGATE_WEST_LONGITUDE));

    ast_library_set_option(0x3);
    ast_library_unset_option(0x2);
    EXPECT_TRUE(ast_library_test_option(0x1));
    EXPECT_FALSE(ast_library_test_option(0x2));
    // Unknown bits are carried without effect.
    ast_library_set_option(0x80000000u);
    EXPECT_TRUE(ast_library_test_option(0x80000001u));
    ast_library_reset_option();
    EXPECT_TRUE(ast_library_test_option(0));
    ast_library_set_option(0x1);
    EXPECT_TRUE(ast_library_init(nullptr));  // init resets the options
    EXPECT_TRUE(ast_library_test_option(0));
}

TEST(Core, LogFormatsAndCutsAt511Characters) {
    LogCapture log;
    ast_log(AST_LOG_WARNING, "Unknown dataitem name: %s.", "I048/055");
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log.lines()[0].level, AST_LOG_WARNING);
    EXPECT_EQ(log.lines()[0].text, "Unknown dataitem name: I048/055.");

    std::string longtext(700, 'x');
    ast_log(AST_LOG_DEBUG, "%s", longtext.c_str());
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log.lines()[1].text, std::string(511, 'x'));
}

namespace {
int g_calls = 0;
int counting_handler(uint32_t, const char *) {
    ++g_calls;
    return 0;
}
}  // namespace

TEST(Core, NullHandlerSilencesEverything) {
    ast_log_handler_reg(counting_handler);
    g_calls = 0;
    ast_log(AST_LOG_PANIC, "x");
    EXPECT_EQ(g_calls, 1);
    ast_log_handler_reg(nullptr);
    const uint8_t data[3] = {0x30, 0x00, 0x03};
    ast_log(AST_LOG_PANIC, "x");
    ast_log_binary_data(AST_LOG_DEBUG, data, sizeof data);
    EXPECT_EQ(g_calls, 1);
}

TEST(Core, BinaryDumpFirstLineHolds17Octets) {
    LogCapture log;
    const uint8_t small[3] = {0x30, 0x00, 0x03};
    ast_log_binary_data(AST_LOG_DEBUG, small, sizeof small);
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log.lines()[0].text, "Binary data size: 3");
    EXPECT_EQ(log.lines()[1].text, "0x30, 0x00, 0x03");
    EXPECT_EQ(log.lines()[1].level, AST_LOG_DEBUG);

    log.clear();
    uint8_t big[34];
    for (size_t i = 0; i < sizeof big; ++i) big[i] = static_cast<uint8_t>(0xA0 + i);
    ast_log_binary_data(AST_LOG_PANIC, big, sizeof big);
    ASSERT_EQ(log.size(), 4u);
    EXPECT_EQ(log.lines()[0].text, "Binary data size: 34");
    const std::string &first = log.lines()[1].text;
    EXPECT_EQ(first.size(), 17u * 6 - 2);
    EXPECT_EQ(first.substr(0, 12), "0xA0, 0xA1, ");
    EXPECT_EQ(first.substr(first.size() - 4), "0xB0");
    EXPECT_EQ(log.lines()[2].text.size(), 16u * 6 - 2);
    EXPECT_EQ(log.lines()[2].text.substr(0, 4), "0xB1");
    EXPECT_EQ(log.lines()[3].text, "0xC1");

    log.clear();
    ast_log_binary_data(AST_LOG_DEBUG, big, 1);
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log.lines()[1].text, "0xA0");

    log.clear();
    ast_log_binary_data(AST_LOG_DEBUG, big, 0);
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log.lines()[0].text, "Binary data size: 0");
}

TEST(Core, StdoutHandlerLabels) {
    // Redirect standard output into a temporary file to read the labels back.
    std::fflush(stdout);
    std::FILE *tmp = std::tmpfile();
    ASSERT_NE(tmp, nullptr);
    int fd = fileno(tmp);
    int old = dup(fileno(stdout));
    ASSERT_GE(old, 0);
    dup2(fd, fileno(stdout));
    EXPECT_EQ(ast_log_stdout(7, "seven"), 7);
    ast_log_stdout(AST_LOG_DEBUG, "d");
    ast_log_stdout(AST_LOG_INFO, "i");
    ast_log_stdout(AST_LOG_WARNING, "w");
    ast_log_stdout(AST_LOG_CRITICAL, "c");
    ast_log_stdout(AST_LOG_PANIC, "p");
    ast_log_stdout(5, "five");
    std::fflush(stdout);
    dup2(old, fileno(stdout));
    close(old);
    std::rewind(tmp);
    char buf[512] = {0};
    size_t n = std::fread(buf, 1, sizeof buf - 1, tmp);
    std::fclose(tmp);
    EXPECT_EQ(std::string(buf, n),
              "[UNKNOWN ] seven\n[DEBUG   ] d\n[INFO    ] i\n[WARNING ] w\n[CRITICAL] c\n[PANIC   ] p\n"
              "[UNKNOWN ] five\n");
}
