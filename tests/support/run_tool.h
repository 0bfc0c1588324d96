// Runs the built `kovrel` binary from a test: its exit status and what it
// wrote, for the end-to-end cases that the tool's command line decides
// (exit status, --help, option errors, subcommands).
#pragma once

#include <string>
#include <vector>

namespace kovrel_test {

struct ToolRun {
    int status = -1;   // exit status; 128 + signal when killed by one; -1 when it could not run
    std::string out;   // standard output
    std::string err;   // standard error
};

// True when the tests were built with the tool (KOVREL_TOOL_BINARY).
bool tool_available();

// Runs `kovrel args...` with `input` on its standard input and waits at most
// `timeout_seconds` for it (then kills it; status 128 + SIGKILL).
ToolRun run_tool(const std::vector<std::string> &args, const std::string &input = {}, int timeout_seconds = 60);

}  // namespace kovrel_test
