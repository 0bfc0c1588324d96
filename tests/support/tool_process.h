// Runs the built `kovrel` binary in the background, for the cases where a
// test talks to it while it runs (live input): start it, wait until its
// standard error says something, then let it finish.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

#include "support/run_tool.h"

namespace kovrel_test {

class ToolProcess {
public:
    ToolProcess() = default;
    ~ToolProcess();  // kills and reaps a tool still running
    ToolProcess(const ToolProcess &) = delete;
    ToolProcess &operator=(const ToolProcess &) = delete;

    // Starts `kovrel args...` with nothing on its standard input. False when
    // it cannot be started (or the tool is not built).
    bool start(const std::vector<std::string> &args);
    // Reads its output until standard error holds `text`; false when the
    // tool ends or `timeout_ms` passes first.
    bool wait_for_err(const std::string &text, int timeout_ms);
    // Sends a signal to the tool.
    void signal(int sig);
    // Reads its output until it exits (killed after `timeout_seconds`:
    // status 128 + SIGKILL), and returns what it wrote.
    ToolRun finish(int timeout_seconds);

    const std::string &err() const { return run_.err; }

private:
    // Reads what is there within timeout_ms; false once both outputs closed.
    bool pump(int timeout_ms);

    pid_t pid_ = -1;
    int out_ = -1, err_ = -1;
    ToolRun run_;
};

}  // namespace kovrel_test
