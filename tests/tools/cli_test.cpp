// The tool's command line end to end: exit statuses, the messages of bad
// options, and the subcommands whose output only the binary produces.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/run_tool.h"

using kovrel_test::run_tool;
using kovrel_test::ToolRun;

namespace {

struct CliCase {
    std::vector<std::string> args;
    int status;
    const char *err_has;  // text standard error must hold ("" for none)
    const char *out_has;  // text standard output must hold ("" for none)
};

class ToolCli : public ::testing::Test {
protected:
    void SetUp() override {
        if (!kovrel_test::tool_available()) GTEST_SKIP() << "the kovrel binary is not built";
    }
};

}  // namespace

TEST_F(ToolCli, ExitStatusesAndMessages) {
    const std::vector<CliCase> cases = {
        // Bad filters exit 2 and list the keywords.
        {{"decode", "--filter", "bogus=1"}, 2, "unknown keyword 'bogus'; the keywords: sacsic (SAC/SIC)", ""},
        {{"decode", "--filter", "mode3a=9999"}, 2, "--filter 'mode3a=9999'", ""},
        {{"decode", "--filter", "callsign"}, 2, "--filter 'callsign'", ""},
        {{"decode", "--cat", "abc"}, 2, "--cat", ""},
        {{"decode", "--time", "25:00-26:00"}, 2, "--time", ""},
        {{"decode", "--format", "xml"}, 2, "--format: xml not in", ""},
        {{"decode", "--uap", "nosuch"}, 2, "unknown profile 'nosuch'; known: auto", ""},
        // A filter nothing matches still decodes the sample: status 0.
        {{"decode", "--filter", "callsign=NOSUCH1", "--stats"}, 0, "1060 read, 0 matched the filter, 0 printed", ""},
        {{"decode", "--filter", "callsign=AFR71", "--stats"}, 0, "1060 read, 108 matched the filter, 0 printed", ""},
        // Nothing readable: status 1.
        {{"decode", "/nonexistent/input.pcap"}, 1, "/nonexistent/input.pcap: cannot open", ""},
    };
    for (const CliCase &c : cases) {
        std::string line;
        for (const auto &a : c.args) line += a + " ";
        SCOPED_TRACE(line);
        const ToolRun run = run_tool(c.args);
        EXPECT_EQ(run.status, c.status) << run.err;
        EXPECT_NE(run.err.find(c.err_has), std::string::npos) << run.err;
        EXPECT_NE(run.out.find(c.out_has), std::string::npos);
    }
}

TEST_F(ToolCli, KeywordsTableNamesAliasesAndCategories) {
    const ToolRun run = run_tool({"keywords"});
    ASSERT_EQ(run.status, 0) << run.err;
    // One line per keyword after the heading, each with its --filter names
    // and the categories serving it.
    const std::vector<std::vector<std::string>> lines = {
        {"SAC/SIC", "sacsic", "001 002 004", "048 062"},
        {"Callsign", "callsign", "021", "062"},
        {"Mode 3/A", "mode3a squawk", "048"},
        {"Polar Coordinates", "polar", "001", "048"},
        {"Vertical Rate", "vrate", "021", "062"},
    };
    size_t count = 0;
    for (size_t p = 0; (p = run.out.find('\n', p)) != std::string::npos; ++p) ++count;
    EXPECT_EQ(count, 16u) << run.out;  // heading + 15 keywords
    for (const auto &want : lines) {
        const size_t at = run.out.find("\n" + want[0] + " ");
        ASSERT_NE(at, std::string::npos) << want[0];
        const std::string line = run.out.substr(at + 1, run.out.find('\n', at + 1) - at - 1);
        for (size_t i = 1; i < want.size(); ++i) EXPECT_NE(line.find(want[i]), std::string::npos) << line;
    }
    // Polar positions are not served by the WGS-84 categories.
    const size_t polar = run.out.find("\nPolar Coordinates");
    EXPECT_EQ(run.out.substr(polar, run.out.find('\n', polar + 1) - polar).find("021"), std::string::npos);
}
