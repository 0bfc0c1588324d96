#include "support/run_tool.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kovrel_test {

namespace {

// Starts `kovrel args...` with pipes for its standard input, output and
// error (the parent keeps in[1], out[0], err[0]); the child's pid, or -1.
pid_t spawn(const std::vector<std::string> &args, int in[2], int out[2], int err[2]) {
#ifdef KOVREL_TOOL_BINARY
    if (pipe2(in, O_CLOEXEC) != 0) return -1;
    if (pipe2(out, O_CLOEXEC) != 0 || pipe2(err, O_CLOEXEC) != 0) return -1;
    const pid_t pid = fork();
    if (pid != 0) {
        close(in[0]);
        close(out[1]);
        close(err[1]);
        signal(SIGPIPE, SIG_IGN);
        return pid;
    }
    dup2(in[0], 0);
    dup2(out[1], 1);
    dup2(err[1], 2);
    std::vector<char *> argv;
    argv.push_back(const_cast<char *>(KOVREL_TOOL_BINARY));
    for (const auto &a : args) argv.push_back(const_cast<char *>(a.c_str()));
    argv.push_back(nullptr);
    execv(KOVREL_TOOL_BINARY, argv.data());
    _exit(127);
#else
    (void)args;
    (void)in;
    (void)out;
    (void)err;
    return -1;
#endif
}

// The status of a reaped child as a shell gives it: its exit code, or 128 +
// the signal that ended it (SIGKILL when the run was cut short).
int exit_status(int status, bool killed) {
    if (killed) return 128 + SIGKILL;
    if (WIFEXITED(status)) return WEXITSTATUS(status);
    if (WIFSIGNALED(status)) return 128 + WTERMSIG(status);
    return -1;
}

}  // namespace

bool tool_available() {
#ifdef KOVREL_TOOL_BINARY
    return access(KOVREL_TOOL_BINARY, X_OK) == 0;
#else
    return false;
#endif
}

ToolRun run_tool(const std::vector<std::string> &args, const std::string &input, int timeout_seconds) {
    ToolRun run;
#ifdef KOVREL_TOOL_BINARY
    int in[2], out[2], err[2];
    const pid_t pid = spawn(args, in, out, err);
    if (pid < 0) return run;
    fcntl(in[1], F_SETFL, O_NONBLOCK);
    size_t sent = 0;
    int to_child = in[1];
    if (input.empty()) {
        close(to_child);
        to_child = -1;
    }
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(timeout_seconds);
    bool out_open = true, err_open = true, killed = false;
    char buf[65536];
    while (out_open || err_open) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            kill(pid, SIGKILL);
            killed = true;
            break;
        }
        pollfd fds[3] = {{out_open ? out[0] : -1, POLLIN, 0}, {err_open ? err[0] : -1, POLLIN, 0}, {to_child, POLLOUT, 0}};
        if (poll(fds, 3, static_cast<int>(left.count())) < 0 && errno != EINTR) break;
        for (int i = 0; i < 2; ++i) {
            if (!(fds[i].revents & (POLLIN | POLLHUP | POLLERR))) continue;
            const ssize_t n = read(fds[i].fd, buf, sizeof buf);
            if (n > 0)
                (i == 0 ? run.out : run.err).append(buf, static_cast<size_t>(n));
            else
                (i == 0 ? out_open : err_open) = false;
        }
        if (to_child >= 0 && (fds[2].revents & (POLLOUT | POLLERR | POLLHUP))) {
            const ssize_t n = write(to_child, input.data() + sent, input.size() - sent);
            if (n > 0) sent += static_cast<size_t>(n);
            if (n < 0 && errno != EAGAIN) sent = input.size();
            if (sent == input.size()) {
                close(to_child);
                to_child = -1;
            }
        }
    }
    if (to_child >= 0) close(to_child);
    close(out[0]);
    close(err[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    run.status = exit_status(status, killed);
#else
    (void)args;
    (void)input;
    (void)timeout_seconds;
#endif
    return run;
}

bool ToolProcess::start(const std::vector<std::string> &args) {
    int in[2], out[2], err[2];
    const pid_t pid = spawn(args, in, out, err);
    if (pid < 0) return false;
    pid_ = pid;
    in_ = in[1];
    out_ = out[0];
    err_ = err[0];
    return true;
}

bool ToolProcess::wait_for_err(const std::string &text, int timeout_ms) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeout_ms);
    while (err_buf_.find(text) == std::string::npos) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || (out_ < 0 && err_ < 0)) return false;
        pump(static_cast<int>(left.count()));
    }
    return true;
}

ToolProcess::~ToolProcess() {
    if (pid_ > 0) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    for (int fd : {in_, out_, err_})
        if (fd >= 0) close(fd);
}

bool ToolProcess::write(const std::string &octets) {
    size_t sent = 0;
    while (in_ >= 0 && sent < octets.size()) {
        const ssize_t n = ::write(in_, octets.data() + sent, octets.size() - sent);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        sent += static_cast<size_t>(n);
    }
    return sent == octets.size();
}

void ToolProcess::close_input() {
    if (in_ >= 0) close(in_);
    in_ = -1;
}

void ToolProcess::send_signal(int sig) {
    if (pid_ > 0) kill(pid_, sig);
}

bool ToolProcess::pump(int timeout_ms) {
    pollfd fds[2] = {{out_, POLLIN, 0}, {err_, POLLIN, 0}};
    if (poll(fds, 2, timeout_ms) <= 0) return false;
    bool got = false;
    char buf[65536];
    for (int i = 0; i < 2; ++i) {
        if (!(fds[i].revents & (POLLIN | POLLHUP | POLLERR))) continue;
        int &fd = i == 0 ? out_ : err_;
        const ssize_t n = read(fd, buf, sizeof buf);
        if (n > 0) {
            (i == 0 ? out_buf_ : err_buf_).append(buf, static_cast<size_t>(n));
            got = true;
        } else {
            close(fd);
            fd = -1;
        }
    }
    return got;
}

bool ToolProcess::read_line(std::string &line, int timeout_ms) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeout_ms);
    for (;;) {
        const size_t end = out_buf_.find('\n');
        if (end != std::string::npos) {
            line = out_buf_.substr(0, end);
            out_buf_.erase(0, end + 1);
            return true;
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || (out_ < 0 && err_ < 0)) return false;
        pump(static_cast<int>(left.count()));
    }
}

ToolRun ToolProcess::finish(int timeout_seconds) {
    ToolRun run;
    close_input();
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(timeout_seconds);
    bool killed = false;
    while (out_ >= 0 || err_ >= 0) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            if (pid_ > 0) kill(pid_, SIGKILL);
            killed = true;
            break;
        }
        pump(static_cast<int>(left.count()));
    }
    int status = 0;
    if (pid_ > 0) waitpid(pid_, &status, 0);
    pid_ = -1;
    run.status = exit_status(status, killed);
    run.out = std::move(out_buf_);
    run.err = std::move(err_buf_);
    return run;
}

}  // namespace kovrel_test
