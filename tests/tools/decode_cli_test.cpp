// `kovrel decode` end to end: --threads, --accept-empty-fspec and the exit
// status of an output that cannot be written.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/run_tool.h"

using kovrel_test::run_tool;
using kovrel_test::ToolRun;

namespace {

class ToolDecodeCli : public ::testing::Test {
protected:
    void SetUp() override {
        if (!kovrel_test::tool_available()) GTEST_SKIP() << "the kovrel binary is not built";
    }
};

// Standard error without the line that tells the time taken.
std::string without_time(const std::string &err) {
    std::string out;
    size_t at = 0;
    while (at < err.size()) {
        size_t end = err.find('\n', at);
        end = end == std::string::npos ? err.size() : end + 1;
        const std::string line = err.substr(at, end - at);
        if (line.rfind("  time ", 0) != 0) out += line;
        at = end;
    }
    return out;
}

// Blocks with a bad one, a CAT021 2.1 stream after a standard one, a
// category the library does not know, video, and a last octet, as hexadecimal text.
const char *const kHexInput =
    "30 00 06 80 19 01\n"
    "30 00 09 82 19 01 e0 29 06\n"
    "15 00 06 80 19 33\n"
    "15 00 10 81 01 01 01 80 19 33 4d 74 b1 cb 38 20\n"
    "15 00 06 80 19 33\n"
    "1e 00 06 80 19 01\n"
    "f0 00 08 82 19 01 00 03\n"
    "f0 00 0c 81 40 19 01 01 aa bb cc dd\n"
    "30\n";

}  // namespace

TEST_F(ToolDecodeCli, ThreadsChangeNothingButTheTime) {
    struct Case {
        std::vector<std::string> args;
        std::string input;  // on standard input when not empty ("-" among args)
    };
    const std::vector<Case> cases = {
        {{"--format", "text", "--stats"}, ""},
        {{"--format", "json", "--stats"}, ""},
        {{"--format", "csv", "--stats"}, ""},
        {{"--items", "--stats"}, ""},
        {{"--format", "json", "--stats", "-"}, kHexInput},
        {{"--items", "--stats", "-"}, kHexInput},
        {{"--format", "csv", "-"}, kHexInput},
    };
    for (const Case &c : cases) {
        std::string line;
        for (const auto &a : c.args) line += a + " ";
        SCOPED_TRACE(line);
        std::vector<std::string> one = {"decode", "--threads", "1"};
        one.insert(one.end(), c.args.begin(), c.args.end());
        const ToolRun base = run_tool(one, c.input);
        ASSERT_EQ(base.status, 0) << base.err;
        ASSERT_FALSE(base.out.empty());
        for (const char *threads : {"2", "4"}) {
            std::vector<std::string> args = {"decode", "--threads", threads};
            args.insert(args.end(), c.args.begin(), c.args.end());
            const ToolRun r = run_tool(args, c.input);
            EXPECT_EQ(r.status, 0) << r.err;
            EXPECT_EQ(r.out, base.out);
            // JSON counts hold the time on their one line: compared up to it.
            const std::string e = without_time(r.err), b = without_time(base.err);
            EXPECT_EQ(e.substr(0, e.find("\"seconds\"")), b.substr(0, b.find("\"seconds\"")));
        }
    }
    // The hex input's problems, with their counted nouns.
    const ToolRun r = run_tool({"decode", "--threads", "2", "-"}, kHexInput);
    EXPECT_NE(r.err.find("block 6 at @43 (CAT030, LEN 6): category 030 is not supported"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("block 9 at @69: 1 octet left, too few for a block header"), std::string::npos) << r.err;
}

TEST_F(ToolDecodeCli, OptionsAndExitStatuses) {
    struct Case {
        std::vector<std::string> args;
        std::string input;
        int status;
        const char *err_has;
        const char *out_has;
    };
    // I048/130 whose primary subfield announces nothing.
    const std::string empty_130 = "30 00 07 82 19 01 00\n";
    const std::vector<Case> cases = {
        {{"decode", "-"}, empty_130, 1, "no valid data block found", ""},
        {{"decode", "--accept-empty-fspec", "-"}, empty_130, 0, "", "CAT048 standard      rec 1  len 4    items 2  valid"},
        {{"decode", "-o", "/nonexistent/dir/out.txt"}, "", 1, "cannot write /nonexistent/dir/out.txt", ""},
        {{"decode", "--format", "html", "-o", "/nonexistent/dir/out.html"}, "", 1, "cannot write", ""},
        {{"decode", "--threads", "0"}, "", 2, "--threads", ""},
        {{"decode", "--threads", "many"}, "", 2, "--threads", ""},
        {{"decode", "--help"}, "", 0, "", "--accept-empty-fspec"},
    };
    for (const Case &c : cases) {
        std::string line;
        for (const auto &a : c.args) line += a + " ";
        SCOPED_TRACE(line);
        const ToolRun r = run_tool(c.args, c.input);
        EXPECT_EQ(r.status, c.status) << r.err;
        EXPECT_NE(r.err.find(c.err_has), std::string::npos) << r.err;
        EXPECT_NE(r.out.find(c.out_has), std::string::npos) << r.out;
    }
}
