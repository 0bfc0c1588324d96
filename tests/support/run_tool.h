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

// A `kovrel` that runs while the test feeds its standard input piece by
// piece and reads its output as it comes (for inputs that stream).
class ToolProcess {
public:
    ToolProcess() = default;
    explicit ToolProcess(const std::vector<std::string> &args) { start(args); }
    ~ToolProcess();  // kills the tool if it still runs
    ToolProcess(const ToolProcess &) = delete;
    ToolProcess &operator=(const ToolProcess &) = delete;

    // Starts `kovrel args...`; false when it cannot be started (or the tool
    // is not built).
    bool start(const std::vector<std::string> &args);
    bool running() const { return pid_ > 0; }
    // Writes octets to the tool's standard input; false when it cannot.
    bool write(const std::string &octets);
    void close_input();
    // The next line of standard output (without its end), waiting at most
    // timeout_ms for it; false when none came.
    bool read_line(std::string &line, int timeout_ms);
    void send_signal(int signal);
    // Reads the tool's output until standard error holds `text`; false when
    // the tool ends or timeout_ms passes first.
    bool wait_for_err(const std::string &text, int timeout_ms);
    // Standard error so far.
    const std::string &err() const { return err_buf_; }
    // Waits for the tool to end (killing it after timeout_seconds): exit
    // status, the rest of standard output and all of standard error.
    ToolRun finish(int timeout_seconds = 30);

private:
    bool pump(int timeout_ms);  // reads what is there; false when nothing came

    int pid_ = -1;
    int in_ = -1, out_ = -1, err_ = -1;
    std::string out_buf_, err_buf_;
};

}  // namespace kovrel_test
